#!/usr/bin/env python3
"""Builds the expected control files from their hand-written field lists.

Each line of a .fields file is one control line: a record letter, then its
fields separated by "|". A field is written literally, or as R<w>:text (the
text right-aligned in w columns, blank when empty) or L<w>:text (left-aligned).
Every field is checked against the width its column table gives, so a slip
of one blank is caught here. The .ctl is written in Windows-1252 with CR LF.
"""
import pathlib
import sys

WIDTHS = {
    "P": [5, 5],
    "F": [5, 5, 8, 8, 8, 8, 80, 8, 8, 8, 8, 8, 10],
    "S": [10, 10, 10, 10, 8, 8, 5, 5, 8, 40, 40, 5, 5, 10, 10],
    "G": [5, 5, 8, 8, 8, 10],
    "C": [80, 256, 8, 8, 8, 8, 40, 5, 8, 8, 8],
    "N": [5],
    "M": [8, 8, 8, 5, 100, 8, 8, 8, 8, 8],
    "Z": [5, 15, 15, 8, 8, 8, 5],  # the marker, then the PLOTXYZ fields
    "Y": [10, 10, 5, 5, 5],        # a line of a surface
}


def field(text):
    if len(text) > 1 and text[0] in "RL" and ":" in text:
        head, body = text.split(":", 1)
        if head[1:].isdigit():
            w = int(head[1:])
            return body.rjust(w) if head[0] == "R" else body.ljust(w)
    return text


def build(path):
    out = []
    for number, raw in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
        if not raw.strip() or raw.startswith("#"):
            continue
        kind, *parts = raw.split("|")
        fields = [field(p) for p in parts]
        widths = WIDTHS[kind]
        if len(fields) != len(widths):
            sys.exit(f"{path}:{number}: {len(fields)} fields for {len(widths)}")
        for i, (f, w) in enumerate(zip(fields, widths), 1):
            if len(f) != w:
                sys.exit(f"{path}:{number}: field {i} {f!r} is {len(f)} wide, not {w}")
        out.append("".join(fields))
    data = "".join(line + "\r\n" for line in out).encode("cp1252")
    path.with_suffix(".ctl").write_bytes(data)


for p in sorted(pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else "expected").glob("*.fields")):
    build(p)
