#!/usr/bin/env python3
"""Writes the expected model files of the example network Exemples/Demo.mtf.

Typed from the record layouts of the engine's input files and of the data
recap, reading the tag values of the network file (JSON) element by element.
It never runs Pluvane: what it writes is what the files must hold, to be
compared byte for byte with what the program generates.

    python3 write_expected.py ../../../../data/Exemples/Demo.mtf
"""
import json
import os
import re
import sys
from decimal import Decimal, ROUND_HALF_UP

HERE = os.path.dirname(os.path.abspath(__file__))
MODEL = "Decennale_Demo"

# The map of the example: X = X0 + 0.025 Xlog, Y = Y0 - 0.025 Ylog.
X0, Y0, SCALE = Decimal(649750), Decimal(6863250), Decimal("0.025")


def user(xlog, ylog):
    return X0 + SCALE * xlog, Y0 - SCALE * ylog


# ---- fixed-width fields -------------------------------------------------
def val(text):
    m = re.match(r"\s*[-+]?(\d+\.?\d*|\.\d+)", text or "")
    return Decimal(m.group(0).strip()) if m else Decimal(0)


def pad_text(text, width):  # right-aligned, an empty text is one blank
    text = (text or "").strip(" ")
    if not text:
        return " "
    return text[:width].rjust(width)


def pad_num(n, width):
    return str(int(n)).rjust(width)


def fixed(value, width, decimals):
    q = Decimal(1).scaleb(-decimals)
    v = Decimal(value).quantize(q, rounding=ROUND_HALF_UP)
    sign = "-" if Decimal(value) < 0 else ""
    whole, _, frac = f"{abs(v):.{decimals}f}".partition(".")
    if whole == "0":
        whole = ""
    whole = sign + whole or "0"
    return whole.rjust(width - decimals - 1) + "." + frac.ljust(decimals, "0")


def write(name, lines, cp1252=True):
    # Engine files and the report: Windows-1252 and CR LF; descriptions: UTF-8 and LF.
    data = "".join(line + ("\r\n" if cp1252 else "\n") for line in lines)
    with open(os.path.join(HERE, name), "wb") as f:
        f.write(data.encode("cp1252") if cp1252 else data.encode("utf-8"))


# ---- the network ---------------------------------------------------------
net = json.load(open(sys.argv[1], encoding="utf-8"))
objs = [dict(o, t=dict(o["tags"])) for o in net["objects"]]


def kind(o):
    return int(val(o["t"].get("iName", "")))


def centre(o):
    b = o["box"]
    return (b[0] + b[2]) // 2, (b[1] + b[3]) // 2  # all sums are even here


def tag(o, name):
    return o["t"].get(name, "")


def num(o, name):
    return val(tag(o, name))


nodes = [o for o in objs if kind(o) == 99]
bvs = [o for o in objs if kind(o) == 1]
node_ids = [tag(n, "Id").strip().upper() for n in nodes]


def node_no(node_id):
    node_id = (node_id or "").strip().upper()
    return node_ids.index(node_id) + 1 if node_id and node_id in node_ids else 0


# .NOD: the catchments get their numbers after the nodes
nod = [pad_num(len(nodes), 10) + pad_num(len(bvs), 10)]
for i, o in enumerate(nodes + bvs, 1):
    x, y = user(*centre(o))
    link = num(o, "iLink") if o in nodes else 0
    nod.append(pad_num(i, 10) + pad_num(link, 10) + fixed(x, 10, 0) + fixed(y, 10, 0) +
               pad_text(tag(o, "libell"), 20))
catchment_no = {tag(o, "Id"): len(nodes) + j for j, o in enumerate(bvs, 1)}
write(MODEL + ".NOD", nod)

scn = next(o for o in objs if kind(o) == 111)
write(MODEL + ".GEN", [MODEL, pad_num(int(val(tag(scn, "CalcMode")[:1])) - 1, 5),
                       fixed(num(scn, "CalcDuree"), 10, 2), fixed(num(scn, "CalcDt"), 10, 2)])
write("scenario.nom", [MODEL])

brn = [pad_num(sum(1 for o in objs if kind(o) == 100), 5)]
for o in (o for o in objs if kind(o) == 100):
    brn.append(pad_text(tag(o, "Id"), 10) + "".join(
        pad_text(tag(o, f"IdColl{i}"), 10) for i in range(1, int(num(o, "NbColl")) + 1)))
write(MODEL + ".BRN", brn)

sec = []
for o in (o for o in objs if kind(o) == 101):
    n = int(num(o, "NbPt"))
    sec.append("'" + tag(o, "Id") + "'")
    sec.append("".join(fixed(num(o, f"X{i}"), 10, 3) for i in range(1, n + 1)))
    sec.append("".join(fixed(num(o, f"Y{i}"), 10, 3) for i in range(1, n + 1)))
write(MODEL + ".SEC", sec)

app = []
for o in (o for o in objs if kind(o) == 4):
    app.append("'" + tag(o, "libell") + "'")
    for i in range(1, int(num(o, "NbPt")) + 1):
        line = fixed(num(o, f"X{i}"), 10, 0) + fixed(num(o, f"Y{i}"), 10, 0)
        app.append(line + (fixed(num(o, "Qsec"), 10, 2) if i == 1 else ""))
write(MODEL + ".APP", app)

# ---- link files ------------------------------------------------------------
kept = [o for o in objs if 0 < kind(o) < 99 and kind(o) not in (12, 15, 17)]
by_label = {}
for r, o in enumerate(kept, 1):
    by_label.setdefault(tag(o, "libell"), r)


def rank(text):
    if not (text or "").strip():
        return 0
    return by_label.get(text, len(kept))  # an unknown name stands for the last


li1 = [pad_num(len(kept), 5)]
for r, o in enumerate(kept, 1):
    k = kind(o)
    name = tag(o, "Id") if k == 7 else tag(o, "libell")
    up = node_no(tag(o, "sNodAm"))
    down = aval = d1 = d2 = d3 = 0
    if k in (1, 21):
        # GenFicNod wrote the catchment's number in sNodAm; a BVS keeps its node's Id.
        up = catchment_no[tag(o, "Id")] if k == 1 else int(val(tag(o, "sNodAm")))
    if k == 2:
        start = objs[o["ends"][0]]
        if kind(start) == 1:
            up = catchment_no[tag(start, "Id")]
    if k in (2, 5, 6, 7, 13):
        down = node_no(tag(o, "sNodAv"))
    if k in (8, 9):
        nb = int(num(o, "NbDer"))
        aval = rank(tag(o, "IdAval"))
        d1, d2, d3 = (rank(tag(o, "IdDer_" + c)) if nb > i else 0 for i, c in enumerate("abc"))
    if k in (10, 11):
        aval, d1 = rank(tag(o, "IdAval")), rank(tag(o, "IdSurv"))
    code = 12 if k == 16 else k
    li1.append(pad_num(r, 5) + pad_text(name, 20) + pad_num(num(o, "iGroup"), 5) +
               pad_num(code, 5) + "".join(pad_num(v, 10) for v in (up, down, aval, d1, d2, d3)))
write(MODEL + ".LI1", li1)

# .LI2 in the typed description read by the tests: "INDEX VALUE", "LOW..HIGH
# VALUE", "text INDEX 'TEXT'", one "record" line before each element.
li2 = ["# " + MODEL + ".LI2: one record of 812 bytes for each element, in the order of .LI1"]


def points(out, o, count, columns, limit):
    """Columns are (prefix, first index); points beyond the count hold -999."""
    for prefix, first in columns:
        for i in range(1, limit + 1):
            value = num(o, f"{prefix}{i}") if i <= count else -999
            out.append(f"{first + i - 1} {value}")


for r, o in enumerate(kept, 1):
    k = kind(o)
    rec = [f"record  # {r} {tag(o, 'Id')}"]
    if k in (1, 21):
        for i, t in enumerate(["S", "L", "m", "ci", "Fpluie", "Fpluie1", "Fpluie2", "Fpluie3",
                               "Fruissel", "K"] + (["Qsec"] if k == 21 else []), 1):
            rec.append(f"{i} {num(o, t)}")
    elif k == 2:
        rec += [f"1 {num(o, 'S')}", f"2 {num(o, 'L')}", f"3 {num(o, 'm')}"]
    elif k == 3:
        rec += [f"1 {num(o, 'Qsec')}", f"2 {num(o, 'SR')}"]
    elif k == 4:
        n = int(num(o, "NbPt"))
        rec.append(f"1 {n}")
        points(rec, o, n, [("X", 2), ("Y", 102)], 100)
        rec += [f"202 {num(o, 'Qsec')}", f"203 {num(o, 'SR')}"]
    elif k == 5:
        for i, t in enumerate(["ZRam", "ZRav", "Dn", "L", "K", "HD", "SR"], 1):
            rec.append(f"{i} {num(o, t)}")
    elif k in (6, 7):
        rest = ["L", "K", "HD", "SR"] if k == 6 else ["L", "Kmin", "Largeur", "Kmaj"]
        rec += [f"1 {num(o, 'ZRam')}", f"2 {num(o, 'ZRav')}",
                "text 3 '" + tag(o, "IdSect").strip()[:16].ljust(16) + "'"]
        rec += [f"{7 + i} {num(o, t)}" for i, t in enumerate(rest)]
    elif k == 8:
        rec.append(f"1 {num(o, 'NbDer')}")
        points(rec, o, int(num(o, "NbPt")), [("X", 2), ("Y", 12), ("Z", 22), ("T", 32)], 10)
    elif k == 9:
        rec += [f"1 {num(o, 'NbDer')}", f"2 {num(o, 'TypeAval')}"]
        rec += [f"{3 + i} {num(o, 'TypeDer_' + c)}" for i, c in enumerate("abc")]
        for j, (x, y, count) in enumerate([("Xav", "Yav", "NbPtAv"), ("Xda", "Yda", "NbPtDa"),
                                           ("Xdb", "Ydb", "NbPtDb"), ("Xdc", "Ydc", "NbPtDc")]):
            n = int(num(o, count))
            points(rec, o, n if n > 0 else 10, [(x, 6 + 20 * j), (y, 16 + 20 * j)], 10)
    elif k == 10:
        rec += [f"1 {num(o, 'Qf')}", f"2 {num(o, 'Z0')}"]
        points(rec, o, int(num(o, "NbPt")), [("X", 3), ("Y", 13)], 10)
    elif k == 11:
        rec.append(f"1 {num(o, 'Z0')}")
        points(rec, o, int(num(o, "NbPt")), [("X", 2), ("Y", 12), ("Z", 22), ("T", 32)], 10)
    elif k in (14, 16):
        rec.append(f"1 {num(o, 'Export')}")
    # kind 13: all zero
    li2 += rec
write(MODEL + ".LI2.txt", li2, cp1252=False)

write(MODEL + ".Scn", [tag(scn, "Id"), tag(scn, "Design")])
msg = ["<<< Début du traitement >>>", "", "Fichiers mis en oeuvre pour le modèle " + MODEL + " :",
       ""]
msg += ["@FOLDER@/" + MODEL + ext for ext in
        (".NOD", ".GEN", ".LI1", ".LI2", ".BRN", ".SEC", ".APP", ".PLU")]
write(MODEL + ".msg", msg + [""])

# ---- the rain of each kind --------------------------------------------------
def rain(k):
    return next(o for o in objs if kind(o) == k)


# No radius of action: design storms stand in the middle of the page and cover all.
page = net["page"]
cx, cy = user(Decimal(page["logicLeft"] + page["logicWidth"] // 2),
              Decimal(page["logicTop"] + page["logicHeight"] // 2))
C = fixed(cx, 10, 0) + fixed(cy, 10, 0) + fixed(Decimal("9999999.0"), 10, 1)


def pair(o, a, b):
    return fixed(num(o, a), 10, 2) + fixed(num(o, b), 10, 2)


o = rain(104)
write("104_caquot.PLU", ["CAQ       '" + tag(o, "Id") + "'", pair(o, "Ca", "Cb")])
o = rain(105)
write("105_simple_triangle.PLU", ["PPST     '" + tag(o, "Id") + "'", C, pair(o, "Ca", "Cb"),
                                  pair(o, "Duree", "Timax")])
o = rain(106)
write("106_double_triangle.PLU",
      ["PPDT     '" + tag(o, "Id") + "'", C, pair(o, "CaTot", "CbTot"), pair(o, "CaInt", "CbInt"),
       pair(o, "DureeTot", "DureeInt") + fixed(num(o, "Timax"), 10, 2)])
o = rain(107)
n = int(num(o, "NbPt"))
write("107_synthetic.PLU", ["PPHY     '" + tag(o, "Id") + "'", C, pad_num(n, 5)] +
      [pair(o, f"X{i}", f"Y{i}") for i in range(1, n + 1)])

o = rain(103)
gauges = [g for g in objs if kind(g) == 12]
plu = ["PR     '" + tag(o, "Id") + "'",
       pad_num(len(gauges), 5) + pad_num(int(num(o, "iModePluie")) - 1, 5)]
rows = int(num(o, "NbPt"))
for g_no, g in enumerate(gauges, 1):
    x, y = user(*centre(g))
    plu += [pad_text("'" + tag(g, "Id") + "'", 10), fixed(x, 10, 0) + fixed(y, 10, 0),
            pad_num(rows - 1, 5)]
    for j in range(2, rows + 1):
        fields = tag(o, f"Pt{j}").split("\t")
        value = val(fields[g_no]) if len(fields) > g_no else 0
        plu.append(fixed(val(fields[0]), 10, 2) + fixed(value, 10, 2))
    plu.append("")
write("103_gauges.PLU", plu)

# Kinds the example does not hold: the test adds them to its copy of the network.
write("108_radar.PLU", ["PRAD    'Radar_1'", "/data/radar/Orage du 12 mai.Crb",
                        "/data/radar/Orage du 12 mai.Prf"])
# The external rain file that the test writes is pluies_externes.txt (below):
# the PR block of "Orage2" stops before the head of the next block; the PPHY
# block of "hyeto2" (named in capitals there) is the last one and loses its last
# line.
external = ["PPHY 'Hyeto1'", "   651000.  6862000. 9999999.0", "    2",
            "      0.00     10.00", "     30.00      0.00",
            "PR 'Orage2'", "    1    0", "   'Plu_1'", "   650750.  6862250.", "    3",
            "      0.00      0.00", "     10.00      3.50", "     20.00      8.00", "",
            "PPHY 'HYETO2'", "   651000.  6862000. 9999999.0", "    3",
            "      0.00      0.00", "     20.00     30.00", "     40.00      0.00"]
write("pluies_externes.txt", external)
write("127_external_gauges.PLU", ["PR 'Orage2'", "1    0", "'Plu_1'", "650750.  6862250.", "3",
                                  "0.00      0.00", "10.00      3.50", "20.00      8.00", ""])
write("128_external_hyetograph.PLU", ["PPHY 'HYETO2'", "651000.  6862000. 9999999.0", "3",
                                      "0.00      0.00", "20.00     30.00"])

# ---- the data recap of the scenario (its rain is the Caquot storm) -------------
def plain(value):
    text = format(Decimal(value).normalize(), "f")
    return text if text != "-0" else "0"


def field(o, label, name):
    return "\t" + label + plain(num(o, name))


def text_field(o, label, name):
    return "\t" + label + tag(o, name).strip()


def title(o, label):
    return "\t" + label + tag(o, "libell").strip() + " (" + tag(o, "Id") + ")"


def table(o, heads, prefixes, count):
    out = ["".join("\t" + h for h in heads)]
    for i in range(1, int(num(o, count)) + 1):
        out.append("".join("\t" + plain(num(o, f"{p}{i}")) for p in prefixes))
    return out


rep = ["", "Réseau : Demo", "Scénario : " + tag(scn, "Id")]
o = rain(104)
rep += ["Pluie Caquot " + tag(o, "Design") + " (" + tag(o, "Id") + ")",
        "Période de retour      = " + plain(num(o, "Pret")),
        "Coef a et b de Montana = " + plain(num(o, "Ca")) + ", " + plain(num(o, "Cb"))]


def section(kinds, head, body):
    items = [o for o in objs if kind(o) in kinds]
    if not items:
        return
    rep.extend(["", head + str(len(items)), ""])
    for o in items:
        rep.extend(body(o))


production = {
    1: ["  Coef de ruissellement (-) = "],
    2: ["  Coef de perte initiale (alpha) = ", "  Coef de recharge        (beta) = "],
    3: ["  Vitesse d'infiltration de saturation fc(mm/h) = ",
        "  Vitesse d'infiltration à sec          A(mm/h) = ",
        "  Capacité de Stockage potentiel du sol   T(mm) = "],
    4: ["  Capacité d'interception     J(mm) = ", "  Temps de ressuyage du sol (jours) = "]}


def catchment(o):
    out = [title(o, "* Id. bassin versant ..................... = "),
           field(o, "  Superficie (ha)                          = ", "S"),
           field(o, "  Longueur de cheminnement (m)             = ", "L"),
           field(o, "  Pente moyenne (m/m)                      = ", "m"),
           field(o, "  Coef d'imperméabilisation (-)            = ", "ci"),
           text_field(o, "  Fonction de production de la pluie nette = ", "Fpluie")]
    out += [field(o, label, f"Fpluie{i}")
            for i, label in enumerate(production[int(num(o, "Fpluie"))], 1)]
    return out + [text_field(o, "  Fonction de transformation pluis/débit = ", "Fruissel"),
                  field(o, "  Temps de réponse du BV (mn) = ", "K"), ""]


def dry(o):
    return [field(o, "  Débit de temps sec     (m3/s) = ", "Qsec"),
            field(o, "  Surface au miroir équivalente = ", "SR"),
            "\t          du réseau amont  (m2)"]


def road(o):
    return [field(o, "  Hauteur moyenne sous chaussée (m) = ", "HD"),
            field(o, "  Surface au miroir équivalente     = ", "SR"),
            "\t           du réseau amont (m2)"]


section((1, 21), "BASSINS VERSANTS : ", catchment)
section((2,), "ROUTAGES HYDROLOGIQUES : ", lambda o: [
    title(o, "* Id. Routage ...................... = "),
    field(o, "  Section moyenne du collecteur (m2) = ", "S"),
    field(o, "  Longueur de routage            (m) = ", "L"),
    field(o, "  Pente moyenne du collecteur  (m/m) = ", "m"), ""])
section((3,), "EXUTOIRES DE BASSIN VERSANT : ", lambda o: [
    title(o, "* Id. Exutoire de BV .......... = ")] + dry(o) + [""])
section((4,), "INJECTIONS D'HYDROGRAMME : ", lambda o: [
    title(o, "* Id. Hydrogramme ............. = ")] + dry(o) +
    table(o, ["Temps (mn)", "Débit (m3/s)"], ["X", "Y"], "NbPt") + [""])
section((5,), "COLLECTEURS CIRCULAIRES : ", lambda o: [
    title(o, "* Id. collecteur ...... = "),
    field(o, "  Cote radier amont (m) = ", "ZRam"),
    field(o, "  Cote radier aval  (m) = ", "ZRav"),
    field(o, "  Diamètre          (m) = ", "Dn"),
    field(o, "  Longueur          (m) = ", "L"),
    field(o, "  Coef Strickler    (-) = ", "K")] + road(o) + [""])
section((6,), "COLLECTEURS FERMES : ", lambda o: [
    title(o, "* Id. Collecteur .......... = "),
    field(o, "  Cote radier amont (m)     = ", "ZRam"),
    field(o, "  Cote radier aval  (m)     = ", "ZRav"),
    text_field(o, "  Identifiant de la section = ", "IdSect"),
    field(o, "  Longueur (m)              = ", "L"),
    field(o, "  Coef Strickler (-)        = ", "K")] + road(o) + [""])
section((7,), "COLLECTEURS OUVERTS : ", lambda o: [
    title(o, "* Id. Collecteur ................. = "),
    field(o, "  Cote radier amont (m)            = ", "ZRam"),
    field(o, "  Cote radier aval  (m)            = ", "ZRav"),
    text_field(o, "  Identifiant de la section        = ", "IdSect"),
    field(o, "  Longueur (m)                     = ", "L"),
    field(o, "  Coef Strickler du lit mineur (-) = ", "Kmin"),
    field(o, "  Etendue du lit majeur (m)        = ", "Largeur"),
    field(o, "  Coef Strickler du lit majeur (-) = ", "Kmaj"), ""])
section((8,), "DEVERSOIRS DE TYPE QQ : ", lambda o: [
    title(o, "* Id. Déversoir ................... = "),
    text_field(o, "  Identifiant de l'élément aval     = ", "IdAval"),
    field(o, "  Nombre de dérivation              = ", "NbDer"),
    text_field(o, "  Identifiant de la 1ère dérivation = ", "IdDer_a"),
    text_field(o, "  Identifiant de la 2ème dérivation = ", "IdDer_b"),
    text_field(o, "  Identifiant de la 3ème dérivation = ", "IdDer_c")] +
    table(o, ["Qamont (m3/s)", "Qd1 (m3/s)", "Qd2 (m3/s)", "Qd3 (m3/s)"], ["X", "Y", "Z", "T"],
          "NbPt") + [""])
# The divider of the example: a Strickler law downstream, one branch over a sill.
section((9,), "DEVERSOIRS DE TYPE QZ : ", lambda o: [
    title(o, "* Id. Déversoir ............... = "),
    text_field(o, "  Identifiant de l'élément aval = ", "IdAval"),
    text_field(o, "  Type de l'élément aval        = ", "TypeAval"),
    field(o, "  Coef. strickler   (-) = ", "Xav1"),
    field(o, "  Nombre de dérivation          = ", "NbDer"),
    text_field(o, "  Identif. de la dérivation a   = ", "IdDer_a"),
    text_field(o, "  Type de la dérivation a       = ", "TypeDer_a"),
    field(o, "  Cote du seuil     (m) = ", "Xda1"),
    field(o, "  Largeur du seuil  (m) = ", "Xda2"),
    field(o, "  Coef. de seuil    (-) = ", "Xda3"), ""])
section((10,), "BASSINS DE STOCKAGE A DEBIT DE FUITE CONSTANT : ", lambda o: [
    title(o, "* Id. Bassin ..................... = "),
    text_field(o, "  Id. du récepteur aval         = ", "IdAval"),
    text_field(o, "  Id. du récepteur de surverse  = ", "IdSurv"),
    field(o, "  Débit de fuite         (m3/s) = ", "Qf"),
    field(o, "  Z initiale dans le bassin (m) = ", "Z0")] +
    table(o, ["Z retenue (m)", "Surface (m2)"], ["X", "Y"], "NbPt") + [""])
section((11,), "BASSINS A DEBIT DE FUITE PARAMETRIQUE : ", lambda o: [
    title(o, "* Id. Bassin .................. = "),
    text_field(o, "  Id. du récepteur aval         = ", "IdAval"),
    text_field(o, "  Id. du récepteur de surverse  = ", "IdSurv"),
    field(o, "  Z initiale dans le bassin (m) = ", "Z0")] +
    table(o, ["Z retenue (m)", "Surface (m2)", "Qfuite (m3/s)", "Qsurverse (m3/s)"],
          ["X", "Y", "Z", "T"], "NbPt") + [""])
section((14,), "EXTREMITES AVAL DE RESEAU : ", lambda o: ["\t* " + tag(o, "Id")])
section((16,), "MARQUAGES DE SORTIE : ", lambda o: [title(o, "* ")])
section((100,), "BIEFS DE COLLECTEUR : ", lambda o: ["\t* Bief " + tag(o, "Id")] + [
    "\t  " + tag(o, f"IdColl{i}") for i in range(1, int(num(o, "NbColl")) + 1)])
write(MODEL + ".Txt", rep)
