#!/usr/bin/env python3
"""The DXF files of joints as ezdxf reads them.

    dxf_nodi.py FILE.dxf ...

Every file must load and pass the audit without an error or a repair. A unit is a millimetre: the plate in both
views, the holes and their pitches are measured and held against the dimensions that the joint was drawn with.

Returns 77 where ezdxf is not installed.
"""

import pathlib
import sys

try:
    import ezdxf
except ImportError:
    print("ezdxf is not installed")
    sys.exit(77)

# Plate 20 x 160; beams IPE 270 (tf 10.2) and IPE 330 (tf 11.5); one row: plate from flange to flange, rounded
# upward; two rows: 65 above and 15 below. Bolts M18 in holes of 20 mm, 35 mm from the flange, 30 from the edges.
SPESSORE, LARGHEZZA, FORO, PASSO = 20, 160, 20, 100
ATTESE = {  # height of the plate, levels of the rows below its upper edge
    "TDx": (350, [30, 110.2, 289.8]),
    "LDx": (260, [40.2, 219.8]),
    "CroceDx": (350, [30, 110.2, 289.8]),
    "CroceSn": (410, [30, 111.5, 348.5]),
    "Croce_Dx": (260, [40.2, 219.8]),
    "Croce_Sn": (319, [41, 278]),
}
TOLLERANZA = 1e-4  # sections are kept in 32 bits


def riquadro(punti):
    x, y = [p[0] for p in punti], [p[1] for p in punti]
    return min(x), min(y), max(x), max(y)


def uguale(a, b):
    return abs(a - b) < TOLLERANZA


def rettangoli(spazio):
    for e in spazio.query("POLYLINE"):
        punti = [v.dxf.location for v in e.vertices]
        if len(punti) == 5:
            yield riquadro(punti)


def esamina(percorso):
    documento = ezdxf.readfile(percorso)
    esame = documento.audit()
    assert not esame.has_errors and not esame.has_fixes, [e.message for e in esame.errors + esame.fixes]
    spazio = documento.modelspace()
    altezza, livelli = ATTESE[percorso.stem]
    tutti = list(rettangoli(spazio))
    for larga in (SPESSORE, LARGHEZZA):
        trovati = [r for r in tutti if uguale(r[2] - r[0], larga) and uguale(r[3] - r[1], altezza)]
        assert trovati, f"{percorso.name}: no plate {larga} x {altezza}"
    prospetto = trovati[0]
    fori = [(c.dxf.center.x, c.dxf.center.y, c.dxf.radius) for c in spazio.query("CIRCLE")]
    assert len(fori) == 2 * len(livelli) and all(uguale(r, FORO / 2) for _, _, r in fori)
    mezzo = (prospetto[0] + prospetto[2]) / 2
    for livello in livelli:
        x = sorted(x for x, y, _ in fori if uguale(y, prospetto[3] - livello))
        assert len(x) == 2 and uguale(x[1] - x[0], PASSO) and uguale(sum(x) / 2, mezzo), (livello, x)
    testi = [t.dxf.text for t in spazio.query("TEXT")]
    assert not [t for t in testi if "Scala" in t]
    assert f"Altezza della flangia: hf = {altezza}" in testi
    print(f"{percorso.name}: plate {altezza} mm, {len(fori)} holes, {len(testi)} texts")


for argomento in sys.argv[1:]:
    esamina(pathlib.Path(argomento))
