#!/usr/bin/env python3
"""Our DXF files in the eyes of a reader that is not ours.

    dxf_ezdxf.py FILE.dxf ...

Every file must load and pass the audit of ezdxf without an error or a repair. Then ezdxf draws it, and what it
draws (lines, corners of polylines, chords of circles, texts) must be what the groups of the file say, which are
read here by themselves. Closed outlines in ink are measured: their area must be the one of the section of that
name, from the published tables of EN 10365 or by the sum of the plates; effective ones after ENV 1993-1-1 5.3.5.

Returns 77 where ezdxf is not installed.
"""

import math
import pathlib
import sys

try:
    import ezdxf
    from ezdxf.addons.drawing import Frontend, RenderContext
    from ezdxf.addons.drawing.backend import Backend
    from ezdxf.tools.fonts import FontMeasurements
except ImportError:
    print("ezdxf is not installed")
    sys.exit(77)

INCHIOSTRO = 7


def gruppi(percorso):
    righe = percorso.read_bytes().decode("cp1252").split("\r\n")
    return [(int(c), v) for c, v in zip(righe[0:-1:2], righe[1:-1:2])]


def entita(percorso):
    """Entities as lists of groups, those of a polyline's vertices by themselves."""
    trovate = []
    for codice, valore in gruppi(percorso):
        if codice == 0:
            trovate.append([])
        trovate[-1].append((codice, valore))
    return [dict(e) for e in trovate]


def disegno_dei_gruppi(percorso):
    linee, cerchi, testi, poligoni = [], [], [], []
    for e in entita(percorso):
        p = (float(e.get(10, 0)), float(e.get(20, 0)))
        if e[0] == "LINE":
            linee.append((p, (float(e[11]), float(e[21]))))
        elif e[0] == "CIRCLE":
            cerchi.append((p, float(e[40])))
        elif e[0] == "TEXT":
            testi.append((e[1], p, float(e[40])))
        elif e[0] == "POLYLINE":
            poligoni.append((int(e[62]), []))
        elif e[0] == "VERTEX":
            poligoni[-1][1].append(p)
    for _, punti in poligoni:
        linee += zip(punti, punti[1:])
    return linee, cerchi, testi, poligoni


class Registra(Backend):
    def __init__(self):
        super().__init__()
        self.linee, self.testi = [], []

    def draw_line(self, start, end, properties):
        self.linee.append(((start.x, start.y), (end.x, end.y)))

    def draw_text(self, text, transform, properties, cap_height):
        origine = transform.transform((0, 0, 0))
        self.testi.append((text, (origine.x, origine.y), cap_height))

    def draw_point(self, pos, properties):
        raise AssertionError("no points are drawn")

    def draw_filled_polygon(self, points, properties):
        raise AssertionError("nothing is filled")

    def set_background(self, color):
        pass

    def clear(self):
        pass

    def get_font_measurements(self, cap_height, font=None):
        return FontMeasurements(baseline=0, cap_height=cap_height, x_height=cap_height * 0.7,
                                descender_height=cap_height * 0.3)

    def get_text_line_width(self, text, cap_height, font=None):
        return 0.85 * cap_height * len(text)


def senso_unico(linea):
    a, b = ((round(x, 6) + 0.0, round(y, 6) + 0.0) for x, y in linea)
    return (min(a, b), max(a, b))


def confronta(percorso, documento):
    registra = Registra()
    Frontend(RenderContext(documento), registra).draw_layout(documento.modelspace())
    linee, cerchi, testi, poligoni = disegno_dei_gruppi(percorso)
    disegnate = {senso_unico(l) for l in registra.linee}
    attese = {senso_unico(l) for l in linee if senso_unico(l)[0] != senso_unico(l)[1]}
    assert attese <= disegnate, f"not drawn: {sorted(attese - disegnate)[:3]}"
    for a, b in disegnate - attese:  # what is left are the chords of circles
        assert any(abs(math.dist(p, c) - r) < 1e-3 * r for c, r in cerchi for p in (a, b)) or a == b, (a, b)
    per_testo = lambda t: (t[0], round(t[1][0], 6), round(t[1][1], 6), round(t[2], 6))
    assert sorted(map(per_testo, registra.testi)) == sorted(map(per_testo, testi))
    return len(attese), len(testi), poligoni


# Expected areas -----------------------------------------------------------------------------------------------


def ro(snellezza, fy, ks):
    """ENV 1993-1-1 5.3.5 (3)."""
    lamda = snellezza / (28.4 * math.sqrt(235 / fy) * math.sqrt(ks))
    return (lamda - 0.22) / lamda**2 if lamda > 0.673 else 1


def doppio_t(h, b1, b2, tw, tf1, tf2, r):
    """Parts of a welded section as (area, height of the centroid): flanges, web, fillets."""
    raccordi = [(r * r / 2, h - tf1 - r / 3)] * 2 + [(r * r / 2, tf2 + r / 3)] * 2
    return [(b1 * tf1, h - tf1 / 2), (b2 * tf2, tf2 / 2), ((h - tf1 - tf2) * tw, (h - tf1 + tf2) / 2)] + raccordi


def snella(quale, h=1200.0, b=500.0, tw=8.0, tf=12.0, r=6.0, fy=355.0):
    """Effective area of the slender section of the drawings."""
    c = b / 2 - tw / 2 - r
    d = h - 2 * tf - 2 * r
    taglio = (1 - ro(c / tf, fy, 0.57 if quale == "wz" else 0.43)) * c
    intera = sum(a for a, _ in doppio_t(h, b, b, tw, tf, tf, r))
    if quale == "wz":
        return intera - 2 * taglio * tf
    if quale == "comp":
        return intera - 4 * taglio * tf - (1 - ro(d / tw, fy, 4)) * d * tw
    parti = doppio_t(h, b - 2 * taglio, b, tw, tf, tf, r)
    y_g = sum(a * y for a, y in parti) / sum(a for a, _ in parti)
    psi = -(y_g - tf - r) / (h - tf - r - y_g)
    ks = 5.98 * (1 - psi) ** 2 if psi < -1 else 7.81 - 6.29 * psi + 9.78 * psi**2
    compressa = d / (1 - psi)
    return sum(a for a, _ in parti) - (1 - ro(d / tw, fy, ks)) * compressa * tw


def somma(parti):
    return sum(a for a, _ in parti)


ATTESE = {  # area [mm2], tolerance, h, width
    "laminato": (2848, 3e-3, 200, 100),  # IPE 200, EN 10365
    "rastremato": (6900, 3e-3, 300, 125),  # IPN 300, EN 10365
    "saldato": (somma(doppio_t(500, 180, 180, 8, 12, 12, 5)), 1e-6, 500, 180),
    "asimmetrico": (somma(doppio_t(500, 300, 200, 8, 15, 12, 5)), 1e-6, 500, 300),
    "classe4_comp": (snella("comp"), 1e-5, 1200, 500),
    "classe4_wy": (snella("wy"), 1e-5, 1200, 500),
    "classe4_wz": (snella("wz"), 1e-5, 1200, 500),
}


def area(punti):
    assert punti[0] == punti[-1], "the first point closes the outline"
    return abs(sum(a[0] * b[1] - b[0] * a[1] for a, b in zip(punti, punti[1:]))) / 2


def misura(nome, poligoni):
    attesa, tolleranza, h, b = ATTESE[nome]
    trovata = sum(area(punti) for colore, punti in poligoni if colore == INCHIOSTRO)
    assert abs(trovata - attesa) <= tolleranza * attesa, f"area {trovata}, expected {attesa}"
    tutti = [p for _, punti in poligoni for p in punti]
    for asse, misura_attesa in ((0, b), (1, h)):
        estensione = max(p[asse] for p in tutti) - min(p[asse] for p in tutti)
        assert abs(estensione - misura_attesa) < 1e-3, f"extent {estensione}, expected {misura_attesa}"
    return trovata


def main():
    for argomento in sys.argv[1:]:
        percorso = pathlib.Path(argomento)
        documento = ezdxf.readfile(percorso)
        esame = documento.audit()
        assert not esame.has_errors and not esame.has_fixes, [e.message for e in esame.errors + esame.fixes]
        linee, testi, poligoni = confronta(percorso, documento)
        a = misura(percorso.stem, poligoni)
        print(f"{percorso.name}: {linee} lines, {testi} texts, {a:.1f} mm2")


main()
