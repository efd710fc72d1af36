#!/usr/bin/env python3
"""Writes the polygon cases of this folder, with values computed in exact fractions by a method of its own.

An outline is cut into horizontal slabs at the levels of its vertices and of the crossings of its sides. In a slab
the sides do not meet, so it holds trapezoids between neighbouring sides, each counted with the winding number of
the outline around it. Moments are sums over trapezoids; the plastic moduli integrate |y - yN| over the slabs, with
yN, the level that halves the area, found by bisection. Vertical cuts do the same on the mirrored outline. Nothing
here knows of triangle fans or of cut polygons.

Usage: python3 casi.py            writes convessi.txt, concavi.txt, stellati.txt, profili.txt, doppi.txt
"""
import functools
import math
import random
from decimal import Decimal, getcontext
from fractions import Fraction as F
from pathlib import Path

getcontext().prec = 60


def lati(punti):
    return [(punti[i], punti[(i + 1) % len(punti)]) for i in range(len(punti))]


def livelli(punti):
    return livelli_di(tuple(punti))


@functools.lru_cache(maxsize=None)
def livelli_di(punti):
    """Levels of the vertices and of the crossings of the sides."""
    trovati = {y for _, y in punti}
    segmenti = lati(punti)
    for i, ((x1, y1), (x2, y2)) in enumerate(segmenti):
        for (x3, y3), (x4, y4) in segmenti[i + 1:]:
            d = (x2 - x1) * (y4 - y3) - (y2 - y1) * (x4 - x3)
            if d == 0:
                continue
            t = ((x3 - x1) * (y4 - y3) - (y3 - y1) * (x4 - x3)) / d
            s = ((x3 - x1) * (y2 - y1) - (y3 - y1) * (x2 - x1)) / d
            if 0 < t < 1 and 0 < s < 1:
                trovati.add(y1 + t * (y2 - y1))
    return sorted(trovati)


def trapezi(punti, altri=()):
    """(weight, y1, y2, xa1, xb1, xa2, xb2): left and right abscissas at the bottom and at the top."""
    tagli = sorted(set(livelli(punti)) | set(altri))
    esito = []
    for y1, y2 in zip(tagli, tagli[1:]):
        attivi = []
        for (xa, ya), (xb, yb) in lati(punti):
            if min(ya, yb) <= y1 and max(ya, yb) >= y2 and ya != yb:
                def a(y, xa=xa, ya=ya, xb=xb, yb=yb):
                    return xa + (y - ya) / (yb - ya) * (xb - xa)
                attivi.append((a((y1 + y2) / 2), a(y1), a(y2), 1 if yb < ya else -1))
        attivi.sort(key=lambda v: v[0])
        giri = 0
        for sinistro, destro in zip(attivi, attivi[1:]):
            giri += sinistro[3]
            if giri:
                esito.append((giri, y1, y2, sinistro[1], destro[1], sinistro[2], destro[2]))
    return esito


def integrale_potenze(t, p, q):
    """Integral of x^p y^q over a trapezoid, exact: the bounds in x are linear in y."""
    _, y1, y2, a1, b1, a2, b2 = t
    h = y2 - y1

    # x bounds as polynomials of s in 0..1, y = y1 + s h
    def mul(u, v):
        r = [F(0)] * (len(u) + len(v) - 1)
        for i, x in enumerate(u):
            for j, z in enumerate(v):
                r[i + j] += x * z
        return r

    sinistra, destra = [a1, a2 - a1], [b1, b2 - b1]
    u, v = [F(1)], [F(1)]
    for _ in range(p + 1):
        u, v = mul(u, destra), mul(v, sinistra)
    dentro = [(x - z) / (p + 1) for x, z in zip(u, v)]
    for _ in range(q):
        dentro = mul(dentro, [y1, h])
    return h * sum(c / (k + 1) for k, c in enumerate(dentro))


def momenti(ts):
    def somma(p, q):
        return sum((t[0] * integrale_potenze(t, p, q) for t in ts), F(0))
    return {"Area": somma(0, 0), "Sx": somma(0, 1), "Sy": somma(1, 0), "Ix": somma(0, 2), "Iy": somma(2, 0),
            "Ixy": somma(1, 1)}


def radice(f):
    if f < 0:  # a moment of an outline whose loops run both ways
        return Decimal(0)
    return (Decimal(f.numerator) / Decimal(f.denominator)).sqrt()


def statica(punti):
    m = momenti(trapezi(punti))
    if m["Area"] < 0:
        m = {k: -v for k, v in m.items()}
    A = m["Area"]
    m["xG"], m["yG"] = m["Sy"] / A, m["Sx"] / A
    m["IxG"] = m["Ix"] - m["yG"] ** 2 * A
    m["IyG"] = m["Iy"] - m["xG"] ** 2 * A
    m["IxyG"] = m["Ixy"] - m["xG"] * m["yG"] * A
    R = F(radice((m["IxG"] - m["IyG"]) ** 2 + 4 * m["IxyG"] ** 2)) / 2
    m["I1"], m["I2"] = (m["IxG"] + m["IyG"]) / 2 + R, (m["IxG"] + m["IyG"]) / 2 - R
    m["Rho1"], m["Rho2"] = F(radice(m["I1"] / A)), F(radice(m["I2"] / A))
    xs, ys = [p[0] for p in punti], [p[1] for p in punti]
    m["WxSup"], m["WxInf"] = m["IxG"] / (max(ys) - m["yG"]), m["IxG"] / (m["yG"] - min(ys))
    m["WyDes"], m["WySin"] = m["IyG"] / (max(xs) - m["xG"]), m["IyG"] / (m["xG"] - min(xs))
    m["Perimetro"] = sum(F(radice((b[0] - a[0]) ** 2 + (b[1] - a[1]) ** 2)) for a, b in lati(punti))
    return m


def parte(punti, livello, sopra):
    ts = [t for t in trapezi(punti, [livello]) if (t[1] >= livello if sopra else t[2] <= livello)]
    m = momenti(ts)
    if m["Area"] == 0:
        return m["Area"], F(0), F(0)
    return abs(m["Area"]), m["Sy"] / m["Area"], m["Sx"] / m["Area"]


def plastico(punti):
    tutta = abs(momenti(trapezi(punti))["Area"])
    ys = [p[1] for p in punti]
    basso, alto = min(ys), max(ys)
    for _ in range(60):
        y = F(float((basso + alto) / 2))
        if parte(punti, y, True)[0] > tutta / 2:
            basso = y
        else:
            alto = y
    y = (basso + alto) / 2
    a1, _, g1 = parte(punti, y, True)
    a2, _, g2 = parte(punti, y, False)
    return a1 * (g1 - y) + a2 * (y - g2)


def scambia(punti):
    return [(y, x) for x, y in punti]


def testo(f):
    return repr(float(f)) if f else "0"


def caso(titolo, coordinate, fonte, cifre=None, plastica=True):
    """One case as text; coordinates are rounded to the decimals that are written down."""
    scritti = [(f"{x:.{cifre}f}", f"{y:.{cifre}f}") if cifre is not None else (str(x), str(y)) for x, y in coordinate]
    punti = [(F(x), F(y)) for x, y in scritti]
    m = statica(punti)
    if plastica:
        m["WplX"], m["WplY"] = plastico(punti), plastico(scambia(punti))
    righe = [f"title: {titolo}", f"source: {fonte}", "outline: " + ", ".join(f"{x} {y}" for x, y in scritti),
             "tolerance: 1e-9" + (" plastic 1e-4" if plastica else ""),
             "expected: " + " ".join(f"{k}={testo(v)}" for k, v in m.items())]
    for nome, dritti in (("y", punti), ("x", scambia(punti))):
        quote = [p[1] for p in dritti]
        passo = max(quote) - min(quote)
        scelte = {math.floor((min(quote) + passo * F(k, 7)) * 8) / F(8) for k in (1, 3, 5)}
        scelte |= {F(q) for q in sorted(quote)[1:-1] if (q * 8).denominator == 1 and min(quote) < q < max(quote)}
        for quota in sorted(q for q in scelte if min(quote) < q < max(quote))[:6]:
            pezzi = []
            for sopra in (True, False):
                A, u, v = parte(dritti, quota, sopra)
                x, y = (u, v) if nome == "y" else (v, u)
                pezzi.append(f"{testo(A)} {testo(x)} {testo(y)}")
            righe.append(f"cut: {nome} {testo(quota)} = " + " / ".join(pezzi))
    return "\n".join(righe) + "\n"


# Outlines ------------------------------------------------------------------------------------------------------

def regolare(n, r, fase=0.1, x0=0, y0=0):
    return [(x0 + r * math.cos(2 * math.pi * i / n + fase), y0 + r * math.sin(2 * math.pi * i / n + fase))
            for i in range(n)]


def stella(punte, R, r, fase=0.3):
    return [((R if i % 2 == 0 else r) * math.cos(math.pi * i / punte + fase),
             (R if i % 2 == 0 else r) * math.sin(math.pi * i / punte + fase)) for i in range(2 * punte)]


def arco(xc, yc, r, a1, a2, passi):
    return [(xc + r * math.cos(a1 + (a2 - a1) * i / passi), yc + r * math.sin(a1 + (a2 - a1) * i / passi))
            for i in range(passi + 1)]


def doppio_t(h, b, tw, tf, r):
    """Rolled I, fillets of 8 chords: 44 vertices."""
    meta = [(b / 2, 0), (b / 2, tf)] + arco(tw / 2 + r, tf + r, r, -math.pi / 2, -math.pi, 8)
    meta += arco(tw / 2 + r, h - tf - r, r, math.pi, math.pi / 2, 8) + [(b / 2, h - tf), (b / 2, h)]
    return meta + [(-x, y) for x, y in reversed(meta)]


def a_caso(seme, n, interno=0.25):
    caso_ = random.Random(seme)
    angoli = sorted(caso_.uniform(0, 2 * math.pi) for _ in range(n))
    return [(120 * q * math.cos(a), 90 * q * math.sin(a)) for a, q in ((a, caso_.uniform(interno, 1)) for a in angoli)]


def scala(n, p, a):
    su = [q for i in range(n) for q in ((i * p, (i + 1) * a), ((i + 1) * p, (i + 1) * a))]
    return [(0, 0)] + [(n * p, 0)] + list(reversed(su))


def pettine(denti, passo, h, base):
    sopra = []
    for i in range(denti):
        x = (denti - i) * passo
        sopra += [(x, base + h), (x - passo / 2, base + h), (x - passo / 2, base), (x - passo, base)]
    return [(0, 0), (denti * passo, 0)] + sopra[:-1] + [(0, base)]


def spirale(giri, passo, spessore):
    fuori = [(5 + passo * i / 8, i) for i in range(8 * giri + 1)]
    esterna = [((r + spessore) * math.cos(i * math.pi / 4), (r + spessore) * math.sin(i * math.pi / 4)) for r, i in fuori]
    interna = [(r * math.cos(i * math.pi / 4), r * math.sin(i * math.pi / 4)) for r, i in fuori]
    return esterna + interna[::-1]


FONTE = "slabs in exact fractions, casi.py"


def scrive(nome, casi):
    testa = "# Written by casi.py, which tells how; coordinates in mm.\n\n"
    Path(__file__).with_name(nome).write_text(testa + "\n".join(casi), encoding="utf-8")


def convessi():
    lista = [("square", [(0, 0), (40, 0), (40, 40), (0, 40)], 0),
             ("square, clockwise", [(0, 40), (40, 40), (40, 0), (0, 0)], 0),
             ("flat rectangle away from the origin", [(1000, 500), (1300, 500), (1300, 512), (1000, 512)], 0),
             ("rectangle a million millimetres away", [(1000000, 2000000), (1000100, 2000000), (1000100, 2000050),
                                                       (1000000, 2000050)], 0),
             ("rectangle in negative coordinates", [(-80, -30), (-20, -30), (-20, -10), (-80, -10)], 0),
             ("triangle", [(0, 0), (60, 10), (15, 70)], 0),
             ("triangle, clockwise", [(15, 70), (60, 10), (0, 0)], 0),
             ("needle", [(0, 0), (1000, 1), (0, 2)], 0),
             ("trapezium", [(0, 0), (90, 0), (70, 35), (15, 35)], 0),
             ("rhombus", [(30, 0), (60, 50), (30, 100), (0, 50)], 0),
             ("square with vertices inside its sides", [(0, 0), (10, 0), (40, 0), (40, 25), (40, 40), (20, 40), (0, 40),
                                                        (0, 5)], 0),
             ("pentagon", regolare(5, 50), 4), ("hexagon", regolare(6, 35, 0), 4), ("heptagon", regolare(7, 81.5), 4),
             ("64-gon", regolare(64, 100, 0.01, 20, -10), 4), ("ellipse of 40 vertices",
              [(150 * math.cos(k * math.pi / 20), 40 * math.sin(k * math.pi / 20)) for k in range(40)], 4),
             ("tiny triangle", [(0, 0), (0.003, 0), (0, 0.004)], 3)]
    scrive("convessi.txt", [caso(t, p, FONTE, c) for t, p, c in lista])


def concavi():
    lista = [("L", [(0, 0), (100, 0), (100, 12), (12, 12), (12, 160), (0, 160)], 0),
             ("L, clockwise", [(0, 160), (12, 160), (12, 12), (100, 12), (100, 0), (0, 0)], 0),
             ("T", [(-10, 0), (10, 0), (10, 180), (75, 180), (75, 200), (-75, 200), (-75, 180), (-10, 180)], 0),
             ("U open to the top", [(0, 0), (100, 0), (100, 80), (88, 80), (88, 10), (12, 10), (12, 80), (0, 80)], 0),
             ("U open to the right", [(0, 0), (80, 0), (80, 12), (9, 12), (9, 188), (80, 188), (80, 200), (0, 200)], 0),
             ("cross", [(-5, -30), (5, -30), (5, -5), (30, -5), (30, 5), (5, 5), (5, 30), (-5, 30), (-5, 5), (-30, 5),
                        (-30, -5), (-5, -5)], 0),
             ("Z", [(0, 0), (70, 0), (70, 8), (8, 8), (8, 150), (-62, 150), (-62, 142), (0, 142)], 0),
             ("arrow head", [(0, 0), (60, 40), (0, 80), (20, 40)], 0),
             ("W", [(0, 60), (20, 0), (40, 40), (60, 0), (80, 60), (70, 60), (58, 20), (40, 58), (22, 20), (10, 60)], 0),
             ("stairs", scala(7, 12, 9), 0), ("comb", pettine(6, 20, 45, 8), 0), ("comb of twenty-five teeth",
              pettine(25, 4, 30, 3), 0),
             ("spiral", spirale(3, 16, 9), 4),
             ("frame with a slit", [(0, 0), (100, 0), (100, 60), (0, 60), (0, 0), (10, 10), (10, 50), (90, 50), (90, 10),
                                    (10, 10)], 0),
             ("doubled vertices", [(0, 0), (50, 0), (50, 0), (50, 20), (30, 20), (30, 20), (30, 45), (0, 45), (0, 45)], 0),
             ("sawtooth under a slab", [(0, 100), (0, 90)] + [q for k in range(8) for q in
              ((20 * k + 10, 40 + 3 * k), (20 * k + 20, 90))] + [(160, 100)], 0)]
    scrive("concavi.txt", [caso(t, p, FONTE, c) for t, p, c in lista])


def stellati():
    lista = [(f"star of {p} points", stella(p, 100, q), 4) for p, q in ((3, 20), (5, 38), (6, 57), (8, 25), (12, 60))]
    lista += [("star of 9 points, clockwise", stella(9, 70, 30)[::-1], 4)]
    lista += [(f"random star-shaped outline of {n} vertices", a_caso(n, n), 3) for n in (7, 10, 16, 25, 40, 64, 100)]
    lista += [("random star-shaped outline, clockwise", a_caso(501, 30)[::-1], 3)]
    lista += [("ragged star", a_caso(77, 24, 0.03), 3)]
    scrive("stellati.txt", [caso(t, p, FONTE, c) for t, p, c in lista])


def profili():
    asimmetrico = [(100, 0), (100, 15), (5, 15), (5, 380), (60, 380), (60, 390), (-60, 390), (-60, 380), (-5, 380),
                   (-5, 15), (-100, 15), (-100, 0)]
    canale = [(0, 0), (75, 0), (75, 7)] + arco(18, 21, 10, -math.pi / 2, -math.pi, 8)
    canale += [(8, 179)] + arco(18, 179, 10, math.pi, math.pi / 2, 8) + [(75, 193), (75, 200), (0, 200)]
    angolare = [(0, 0), (100, 0), (100, 4)] + arco(94, 4, 6, 0, math.pi / 2, 8) + \
        arco(22, 22, 12, -math.pi / 2, -math.pi, 8) + arco(4, 94, 6, 0, math.pi / 2, 8) + [(0, 100)]
    intagliato = [(60, 0), (60, 8), (3, 8), (3, 80), (0.01, 80), (0.01, 120), (3, 120), (3, 192), (60, 192), (60, 200),
                  (-60, 200), (-60, 192), (-3, 192), (-3, 120), (-0.01, 120), (-0.01, 80), (-3, 80), (-3, 8), (-60, 8),
                  (-60, 0)]
    lista = [("I 200 of 44 vertices", doppio_t(200, 100, 5.6, 8.5, 12), 5),
             ("I 200, clockwise", doppio_t(200, 100, 5.6, 8.5, 12)[::-1], 5),
             ("I 600 of 44 vertices", doppio_t(600, 220, 12, 19, 24), 5),
             ("H 1000 of 44 vertices", doppio_t(1000, 300, 19, 36, 30), 5),
             ("H 100 of 44 vertices", doppio_t(100, 100, 6, 10, 12), 5),
             ("welded I with flanges of two kinds", asimmetrico, 0),
             ("channel 200 with fillets", canale, 5), ("angle 100x10 with fillets", angolare, 5),
             ("I with the middle of its web cut out to a thread", intagliato, 2)]
    scrive("profili.txt", [caso(t, p, FONTE, c) for t, p, c in lista])


def doppi():
    """Outlines that cover themselves: each part counts as often as the outline runs around it."""
    pentagramma = [regolare(5, 100)[2 * i % 5] for i in range(5)]
    lista = [("pentagram", pentagramma, 4, True),
             ("bow tie with unequal wings", [(0, 0), (60, 0), (20, 40), (60, 90)], 0, False),
             ("two turns round a square", [(0, 0), (30, 0), (30, 30), (0, 30)] * 2, 0, True),
             ("square with a loop", [(0, 0), (60, 0), (60, 30), (50, 40), (70, 40), (60, 30), (60, 80), (0, 80)], 0, False)]
    scrive("doppi.txt", [caso(t, p, "winding numbers over slabs in exact fractions, casi.py", c, w) for t, p, c, w in lista])


if __name__ == "__main__":
    convessi()
    concavi()
    stellati()
    profili()
    doppi()
