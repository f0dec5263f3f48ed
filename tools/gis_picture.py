#!/usr/bin/env python3
"""Draws the GeoJSON layers written by `pluvane-cli gis-export ... -o NAME.geojson`
into a PNG and an SVG, with the Python standard library alone: collectors as
lines in the program's colours (circular blue, closed red, open cyan), nodes as
black dots, catchments as green dots, singular elements as orange squares;
the SVG also carries the nodes' labels.

usage: gis_picture.py STEM OUT_STEM   (reads STEM_<layer>.geojson)
"""
import json
import os
import struct
import sys
import zlib

LAYERS = [  # name, colour, kind
    ("bassins_versants", (46, 160, 67), "dot"),
    ("collecteurs_ci", (0, 0, 255), "line"),
    ("collecteurs_pf", (220, 0, 0), "line"),
    ("collecteurs_po", (0, 170, 200), "line"),
    ("noeuds", (0, 0, 0), "dot"),
    ("elements_singuliers", (240, 140, 0), "square"),
]
WIDTH, HEIGHT, MARGIN = 900, 700, 40


def read(stem):
    layers = []
    for name, colour, kind in LAYERS:
        path = f"{stem}_{name}.geojson"
        if not os.path.exists(path):
            continue
        with open(path, encoding="utf-8") as f:
            data = json.load(f)
        shapes = []
        for feature in data["features"]:
            geometry = feature["geometry"]
            points = [geometry["coordinates"]] if geometry["type"] == "Point" else geometry["coordinates"]
            shapes.append((points, feature["properties"].get("libell") or ""))
        layers.append((name, colour, kind, shapes))
    return layers


def mapper(layers):
    xs = [p[0] for _, _, _, shapes in layers for pts, _ in shapes for p in pts]
    ys = [p[1] for _, _, _, shapes in layers for pts, _ in shapes for p in pts]
    x0, x1, y0, y1 = min(xs), max(xs), min(ys), max(ys)
    scale = min((WIDTH - 2 * MARGIN) / ((x1 - x0) or 1), (HEIGHT - 2 * MARGIN) / ((y1 - y0) or 1))
    ox = (WIDTH - (x1 - x0) * scale) / 2
    oy = (HEIGHT - (y1 - y0) * scale) / 2
    return lambda p: (ox + (p[0] - x0) * scale, HEIGHT - oy - (p[1] - y0) * scale)


def png(layers, to_px, path):
    pixels = [[(255, 255, 255)] * WIDTH for _ in range(HEIGHT)]

    def put(x, y, colour):
        if 0 <= x < WIDTH and 0 <= y < HEIGHT:
            pixels[y][x] = colour

    def disc(cx, cy, r, colour, square=False):
        for y in range(int(cy - r), int(cy + r) + 1):
            for x in range(int(cx - r), int(cx + r) + 1):
                if square or (x - cx) ** 2 + (y - cy) ** 2 <= r * r:
                    put(x, y, colour)

    def line(a, b, colour):
        steps = int(max(abs(b[0] - a[0]), abs(b[1] - a[1]))) + 1
        for i in range(steps + 1):
            t = i / steps
            disc(a[0] + (b[0] - a[0]) * t, a[1] + (b[1] - a[1]) * t, 1.3, colour)

    for _, colour, kind, shapes in layers:
        for points, _ in shapes:
            px = [to_px(p) for p in points]
            if kind == "line":
                for a, b in zip(px, px[1:]):
                    line(a, b, colour)
            else:
                disc(px[0][0], px[0][1], 4 if kind == "dot" else 5, colour, kind == "square")
    raw = b"".join(b"\x00" + bytes(c for p in row for c in p) for row in pixels)
    chunk = lambda kind, data: (struct.pack(">I", len(data)) + kind + data
                                + struct.pack(">I", zlib.crc32(kind + data) & 0xFFFFFFFF))
    with open(path, "wb") as f:
        f.write(b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">IIBBBBB", WIDTH, HEIGHT, 8, 2, 0, 0, 0))
                + chunk(b"IDAT", zlib.compress(raw, 9)) + chunk(b"IEND", b""))


def svg(layers, to_px, path):
    out = [f'<svg xmlns="http://www.w3.org/2000/svg" width="{WIDTH}" height="{HEIGHT}">',
           f'<rect width="{WIDTH}" height="{HEIGHT}" fill="white"/>']
    for _, (r, g, b), kind, shapes in layers:
        colour = f"rgb({r},{g},{b})"
        for points, label in shapes:
            px = [to_px(p) for p in points]
            if kind == "line":
                d = " ".join(f"{x:.1f},{y:.1f}" for x, y in px)
                out.append(f'<polyline points="{d}" fill="none" stroke="{colour}" stroke-width="2.5"/>')
            elif kind == "square":
                out.append(f'<rect x="{px[0][0]-5:.1f}" y="{px[0][1]-5:.1f}" width="10" height="10" fill="{colour}"/>')
            else:
                out.append(f'<circle cx="{px[0][0]:.1f}" cy="{px[0][1]:.1f}" r="4" fill="{colour}"/>')
                if kind == "dot" and colour == "rgb(0,0,0)" and label:
                    text = label.replace("&", "&amp;").replace("<", "&lt;")
                    out.append(f'<text x="{px[0][0]+6:.1f}" y="{px[0][1]-6:.1f}" font-size="11" '
                               f'font-family="DejaVu Sans">{text}</text>')
    out.append("</svg>")
    with open(path, "w", encoding="utf-8") as f:
        f.write("\n".join(out) + "\n")


def main():
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    layers = read(sys.argv[1])
    if not layers:
        sys.exit("no layer found")
    to_px = mapper(layers)
    png(layers, to_px, sys.argv[2] + ".png")
    svg(layers, to_px, sys.argv[2] + ".svg")


if __name__ == "__main__":
    main()
