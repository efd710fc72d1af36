#!/usr/bin/env python3
"""Expected values of channels and angles, single and in pairs, derived a second time.

Writes canali.txt and angolari.txt beside this script, which tests/sections/SezioneSagomoTabelle_test.cpp reads:

    python3 tests/data/sections/riferimento_sagomi.py

As riferimento.py beside it, from which it takes the integrals along the sides and the formulas of the code: a
section is a heap of parts, where the program walks round one outline; what is not effective is clipped off a part
or subtracted. A pair is the heap and its mirror image, where the program moves inertias to the common axis. The
warping constant is integrated along the centre lines about the shear centre.

Dimensions and constants of rows are those of data/catalogue (EN 10365, NF A 45-255, EN 10056-1).
"""

import csv
import math

from riferimento import (ACCIAI, ALFA, CATALOGO, FATTORI, QUI, Parti, arco, chi, classe, epsilon, f32, integrali,
                         riga, ro, taglia)

# ------------------------------------------------------------------------------------------------- channel


class Canale:
    def __init__(self, p):
        self.p = p
        self.rastremata = p["pendenza"] > 0
        self.pend = 0.0 if not self.rastremata else 0.05 if p["h"] > 300 else 0.08
        self.alfa = math.atan(self.pend)
        da_punta = (p["b"] - p["tf"]) / 2 if p["h"] > 300 else p["b"] / 2
        self.punta = p["tf"] - (self.pend * da_punta if self.rastremata else 0)
        self.xc = p["tw"] + p["r1"]  # centre of the root: r1 away from the web and from the slope
        self.yc = self.quota(self.xc) + p["r1"] / math.cos(self.alfa)
        # the root begins where the normal through its centre meets the slope
        self.radice = self.quota(self.xc - p["r1"] * math.sin(self.alfa))
        self.d = p["h"] - 2 * self.yc
        self.c = p["b"] - self.xc

    def quota(self, x):
        return self.punta + self.pend * (self.p["b"] - x)

    def ala(self, xt):
        """Lower flange up to xt, the web's part left out: list of (sign, polygon)."""
        p = self.p
        b, tw = p["b"], p["tw"]
        parti = [(1, [(tw, 0), (b, 0), (b, self.punta), (tw, self.quota(tw))])]
        if self.rastremata:
            r2 = p["pendenza"]
            lato = r2 * math.tan(math.pi / 4 - self.alfa / 2)
            spigolo = arco(b - r2, self.punta - lato, r2, 0, math.pi / 2 - self.alfa)
            parti.append((-1, [(b, self.punta)] + spigolo[::-1]))
        parti = [(s, taglia(v, xt)) for s, v in parti]
        raccordo = arco(self.xc, self.yc, p["r1"], 1.5 * math.pi - self.alfa, math.pi)
        return parti + [(1, [(tw, self.quota(tw))] + raccordo)]

    def pezzi(self, via_su=0.0, via_giu=0.0, foro=None):
        p = self.p
        parti = [(1, [(0, 0), (p["tw"], 0), (p["tw"], p["h"]), (0, p["h"])])]
        parti += self.ala(p["b"] - via_giu)
        parti += [(s, [(x, p["h"] - y) for x, y in v]) for s, v in self.ala(p["b"] - via_su)]
        if foro:
            y0, H = foro
            parti.append((-1, [(0.01, y0), (p["tw"], y0), (p["tw"], y0 + H), (0.01, y0 + H)]))
        return parti

    def area_esatta(self):
        """With true arcs: an arc of angle fi between two tangents leaves r L - r^2 fi/2."""
        p = self.p
        fi = math.pi / 2 - self.alfa
        spicchio = math.tan(fi / 2) - fi / 2
        media = (self.punta + self.quota(p["tw"])) / 2
        r2 = p["pendenza"] if self.rastremata else 0
        return p["tw"] * p["h"] + 2 * (p["b"] - p["tw"]) * media + 2 * spicchio * (p["r1"] ** 2 - r2**2)


def somma(h, pezzi):
    parti = Parti(h)
    for segno, v in pezzi:
        parti.metti(v, segno)
    return parti.risultati()


def ingobbamento(p):
    """Integral of the squared sectorial coordinate along the centre lines, about the shear centre."""
    hf, b, tf, tw = p["h"] - p["tf"], p["b"], p["tf"], p["tw"]
    e = b * b * hf * hf * tf / 4 / (tw * hf**3 / 12 + 2 * b * tf * hf * hf / 4)  # before the web
    anima = tw * e * e * hf**3 / 12
    ala = tf * hf * hf / 4 * ((b - e) ** 3 + e**3) / 3
    return anima + 2 * ala


def torsione_canale(p):
    tw, tf, r1 = p["tw"], p["tf"], p["r1"]
    D = ((tf + r1) ** 2 + r1 * tw + tw * tw / 4) / (tf + 2 * r1)
    return (p["h"] - 2 * tf) * tw**3 / 3 + 2 / 3 * p["b"] * tf**3 * (1 - 0.63 * tf / p["b"]) + tw / tf * (
        0.145 + r1 / (10 * tf)) * D**4


def calcola_canale(p):
    f = Canale(p)
    e, fy = epsilon(p["fy"]), p["fy"]
    M0, M1 = p["GammaM0"], p["GammaM1"]
    quanti = 2 if p["Doppi"] else 1
    u = {"c": f.c, "d": f.d, "pf": f.pend, "tf1": f.punta, "tf2": f.radice, "AreaEsatta": f.area_esatta()}
    lordo = somma(p["h"], f.pezzi())
    u.update(AreaContorno=lordo["A"], xG=lordo["xG"], yG=lordo["yG"], JyContorno=lordo["IxG"],
             JzContorno=lordo["IyG"], JotaT=torsione_canale(p), JotaOmega=ingobbamento(p))

    sw, sa = f.d / p["tw"] / e, f.c / p["tf"] / e
    webC, webF = classe(sw, 33, 38, 42), classe(sw, 72, 83, 124)
    alaC, alaF = classe(sa, 9, 10, 14), classe(sa, 9, 10, 21 * math.sqrt(0.57))
    cC, cY, cZ = max(webC, alaC), max(webF, alaC), alaF
    u.update(SnellWeb=sw, SnellAla=sa, ClasseWebC=webC, ClasseWebF=webF, ClasseAlaC=alaC, ClasseAlaF=alaF,
             ClasseCompressione=cC, ClasseFlessioneY=cY, ClasseFlessioneZ=cZ)

    via = lambda ks: f.c * (1 - ro(f.c, p["tf"], fy, ks)) if alaC == 4 else 0.0
    beta_a = 1.0
    if cC == 4:
        tolto = (1 - ro(f.d, p["tw"], fy, 4.0)) * f.d
        foro = (p["h"] / 2 - tolto / 2, tolto) if webC == 4 and tolto > 0 else None
        eff = somma(p["h"], f.pezzi(via(0.43), via(0.43), foro))
        u["AreaComp4"] = quanti * eff["A"]
        beta_a = u["AreaComp4"] / p["Area"]
    u["betaA"] = beta_a

    # a fresh object knows no effective area yet; NplRd comes to rest at the second run
    for parola, beta in (("Primo", 1.0), ("", beta_a)):
        u["NplRd" + parola] = Npl = beta * p["Area"] * fy / M0
        u["Ntrascurabile" + parola] = Nt = min(p["tw"] * f.d * fy / M0 / 2, Npl / 4)
        u["ClassePressoFlessione" + parola] = cC if f32(Nt) <= p["NSd"] else cY

    u["eNy"] = u["eNz"] = 0.0
    if cY < 4:
        u["McyRd"] = (p["Wply"] if cY < 3 else p["Wely"]) * fy / M0
    else:
        foro = None
        if webF == 4:
            bc = f.d / 2
            beff = ro(f.d, p["tw"], fy, 23.9) * bc
            foro = (p["h"] / 2 + 0.6 * beff, bc - beff)
        eff = somma(p["h"], f.pezzi(via(0.43), 0.0, foro))
        u["eNy"] = p["h"] / 2 - eff["yG"]
        if not p["Doppi"]:
            u.update(WyEff=eff["WxSup"], McyRd=eff["WxSup"] * fy / M1)
    if cZ < 4:
        u["MczRd"] = (p["Wplz"] if cZ < 3 else p["Welz"]) * fy / M0
    else:
        eff = somma(p["h"], f.pezzi(via(0.57), via(0.57)))
        u["eNz"] = lordo["xG"] - eff["xG"]
        if not p["Doppi"]:
            u.update(WzEff=eff["WyDes"], MczRd=eff["WyDes"] * fy / M1)

    for asse, i in (("y", p["iY"]), ("z", p["Iz"])):
        lr = p["L0" + asse] / i / (93.9 * e) * math.sqrt(beta_a)
        u["Nb" + asse + "Rd"] = chi(ALFA["c"], lr) * beta_a * p["Area"] * fy / M1
    Av = p["Area"] / quanti - p["tf"] * (2 * p["b"] - p["tw"] - p["r1"])
    u["VplzRd"] = quanti * Av * fy / (M0 * math.sqrt(3))
    u["VplyRd"] = quanti * 2 * p["b"] * p["tf"] * fy / (M0 * math.sqrt(3))
    u["animaSnella"] = int(f.d / p["tw"] > 69 * e)
    return u


# --------------------------------------------------------------------------------------------------- angle


class Angolare:
    def __init__(self, p):
        self.p = p

    def pezzi(self, b=None, h=None):
        """@param b, h: what is left of the legs"""
        p = self.p
        t, r1, r2 = p["t"], p["r1"], p["r2"]
        parti = [(1, [(0, 0), (t, 0), (t, p["h"]), (0, p["h"])]), (1, [(t, 0), (p["b"], 0), (p["b"], t), (t, t)]),
                 (1, [(t, t)] + arco(t + r1, t + r1, r1, 1.5 * math.pi, math.pi))]
        for x, y in ((p["b"], t), (t, p["h"])):
            parti.append((-1, [(x, y)] + arco(x - r2, y - r2, r2, 0, math.pi / 2)[::-1]))
        scambia = lambda v: [(y, x) for x, y in v]
        if b is not None:
            parti = [(s, scambia(taglia(scambia(taglia(v, b)), h))) for s, v in parti]
        return [(s, v) for s, v in parti if len(v) > 2]

    def area_esatta(self):
        p = self.p
        return (p["h"] + p["b"] - p["t"]) * p["t"] + (1 - math.pi / 4) * (p["r1"] ** 2 - 2 * p["r2"] ** 2)


def classe_angolare(s, s1):
    """(class, governing width, lower limit, upper limit) on a fresh object"""
    if s <= 9:
        return 1, "h", "0", "9"
    if s <= 10:
        return 2, "h", "9", "10"
    if s == s1:
        return (3, "h", "10", "11.5") if s <= 11.5 else (4, "h", "11.5", "inf")
    if s > 15 or s1 > 11.5:
        return 4, "(b+h)/2", "-", "inf"
    return 3, "(b+h)/2", "-", "-"


def calcola_angolare(p):
    f = Angolare(p)
    e, fy = epsilon(p["fy"]), p["fy"]
    lordo = somma(p["h"], f.pezzi())
    u = {"AreaEsatta": f.area_esatta(), "AreaContorno": lordo["A"], "xG": lordo["xG"], "yG": lordo["yG"],
         "JyContorno": lordo["IxG"], "JzContorno": lordo["IyG"]}
    s, s1 = f32(p["h"] / p["t"] / e), f32((p["h"] + p["b"]) / 2 / p["t"] / e)
    cl, larghezza, da, a = classe_angolare(s, s1)
    u.update(SnellAla=s, SnellAla1=s1, ClasseCompressione=cl, larghezza=larghezza, da=da, a=a)
    beta = 1.0
    if cl == 4:
        eff = somma(p["h"], f.pezzi(ro(p["b"], p["t"], fy, 0.43) * p["b"], ro(p["h"], p["t"], fy, 0.43) * p["h"]))
        u["AreaComp4"] = eff["A"] * (2 if p["Doppi"] else 1)
        beta = u["AreaComp4"] / p["Area"]
    u["betaA"] = beta
    for asse, i in (("y", p["iY"]), ("z", p["Iz"]), ("v", p["iV"])):
        lr = p["L0" + asse] / i / (93.9 * e) * math.sqrt(beta)
        u["Nb" + asse + "Rd"] = chi(ALFA["b"], lr) * beta * p["Area"] * fy / p["GammaM1"]
    return u


# --------------------------------------------------------------------------------------------------- pairs


def coppia(pezzi, h, s, asse_x):
    """A heap and its mirror image beyond x = -s/2 (y = -s/2), about the common axes."""
    spec = lambda v: [(x, -y - s) if asse_x else (-x - s, y) for x, y in v]
    tutti = [0.0] * 5
    for segno, v in pezzi:
        for poligono in (v, spec(v)):
            tutti = [t + segno * i for t, i in zip(tutti, integrali(poligono))]
    A, Sx, Sy, Ix, Iy = tutti
    assert abs((Sx if asse_x else Sy) / A + s / 2) < 1e-9
    return A, Ix - Sx * Sx / A, Iy - Sy * Sy / A


def metti_coppia(p, f):
    """Constants of the pair, from its geometry; the plastic modulus about the axis between them too."""
    s, b, h = p["dDoppi"], p["b"], p["h"]
    uno = somma(h, f.pezzi())
    corto, canale = p["DoppiCorto"], isinstance(f, Canale)
    if canale and corto:  # tips together: mirrored, so that they lie at x = 0
        pezzi = [(sg, [(b - x, y) for x, y in v]) for sg, v in f.pezzi()]
    else:
        pezzi = f.pezzi()
    A, Jy, Jz = coppia(pezzi, h, s, corto and not canale)
    p.update(Area=A, Jy=Jy, Jz=Jz, iY=math.sqrt(Jy / A), Iz=math.sqrt(Jz / A))
    if canale:
        braccio = s / 2 + (b - uno["xG"] if corto else uno["xG"])
        p.update(Wply=2 * p["Wply"], Wplz=A * braccio, Wely=Jy / (h - uno["yG"]), Welz=Jz / (b + s / 2))
    elif corto:
        p.update(Wely=Jy / (h + s / 2), Welz=Jz / (b - uno["xG"]))
    else:
        p.update(Wely=Jy / (h - uno["yG"]), Welz=Jz / (b + s / 2))


# --------------------------------------------------------------------------------------------------- cases

CANALI = ((2, "h", 1), (3, "b", 1), (4, "tw", 1), (5, "tf", 1), (6, "r1", 1), (7, "pendenza", 1), (8, "Area", 1e2),
          (9, "Jy", 1e4), (10, "Wely", 1e3), (11, "Wply", 1e3), (12, "iY", 10), (13, "Jz", 1e4), (14, "Welz", 1e3),
          (15, "Wplz", 1e3), (16, "Iz", 10))
ANGOLARI = ((2, "h", 1), (3, "b", 1), (4, "t", 1), (5, "r1", 1), (6, "r2", 1), (7, "Area", 1e2), (8, "Jy", 1e4),
            (9, "Wely", 1e3), (10, "iY", 10), (11, "Jz", 1e4), (12, "Welz", 1e3), (13, "Iz", 10), (17, "iV", 10))


def costanti(p, f):
    """Of a section that stands in no table; plastic moduli as a round share of the elastic ones."""
    q = somma(p["h"], f.pezzi())
    p.update(Area=q["A"], Jy=q["IxG"], Jz=q["IyG"], iY=math.sqrt(q["IxG"] / q["A"]), Iz=math.sqrt(q["IyG"] / q["A"]))
    p.update(Wely=q["WxSup"], Welz=q["WyDes"])
    if isinstance(f, Canale):
        p.update(Wply=1.17 * p["Wely"], Wplz=1.8 * p["Welz"])
    else:
        p["iV"] = 0.6 * p["Iz"]


def caso(i, nome, fy, forma, colonne, valori=None, doppi=None):
    """@param doppi: (gap, short side together)"""
    p = dict(valori or {})
    if valori is None:
        campi = riga(nome)
        p.update({m: float(campi[k]) * fatt for k, m, fatt in colonne})
    p = {m: f32(v) for m, v in p.items()}
    f = forma(p)
    if valori is not None:
        costanti(p, f)
    p["Doppi"] = doppi is not None
    p["dDoppi"], p["DoppiCorto"] = doppi or (0.0, False)
    if doppi:
        metti_coppia(p, f)
        nome = "2 " + nome
    norma, p["GammaM0"], p["GammaM1"] = FATTORI[i % 3]
    p["TipoAcciaio"], p["fy"] = ACCIAI.get(fy, "fy libera"), float(fy)
    p["L0y"] = (3000.0, 0.0, 5200.0, 1200.0)[i % 4]
    p["L0z"] = (1500.0, 2600.0, 0.0)[i % 3]
    if forma is Angolare:
        p["L0v"] = (900.0, 1800.0, 0.0, 3100.0)[i % 4]
    else:
        p["NSd"] = (0.0, 0.04, 0.3, 0.6, -0.1)[i % 5] * p["Area"] * p["fy"]
    p = {m: f32(v) if isinstance(v, float) and m != "iV" else v for m, v in p.items()}
    return "%s, %s, %s" % (nome, p["TipoAcciaio"], norma), p


def testo(v, cifre):
    if isinstance(v, str):
        return v.replace(" ", "_")
    return "%d" % v if isinstance(v, (bool, int)) else "%.*g" % (cifre, v)


def scrivi(file, titolo, casi, calcola):
    fuori = ["# " + titolo, "# Written by riferimento_sagomi.py, which says how. mm, N, Nmm.", ""]
    for nome, p in casi:
        fuori.append("caso " + nome)
        for parola, valori, cifre in (("dati", p, 9), ("attesi", calcola(p), 12)):
            linea = parola
            for m, v in valori.items():
                pezzo = " %s=%s" % (m, testo(v, 17 if m == "iV" else cifre))
                if len(linea + pezzo) > 108:
                    fuori.append(linea)
                    linea = parola
                linea += pezzo
            fuori.append(linea)
        fuori.append("")
    (QUI / file).write_text("\n".join(fuori), encoding="ascii")
    print(file, len(casi))


def nomi(file):
    with open(CATALOGO / (file + ".csv"), newline="", encoding="ascii") as f:
        return [r[0] for r in csv.reader(f)][1:]


def canali():
    """Every row, some in pairs; thin ones that no mill makes, where classes 3 and 4 begin."""
    gradi = (235, 275, 355, 460)
    righe = nomi("UPN") + nomi("UAP")
    casi = [caso(i, n, gradi[i % 4], Canale, CANALI) for i, n in enumerate(righe)]
    doppi = ((0.0, False), (10.0, False), (25.0, True), (0.0, True), (12.0, False), (300.0, True))
    casi += [caso(i, n, gradi[i % 4], Canale, CANALI, None, doppi[i])
             for i, n in enumerate(("UPN 80", "UPN 200", "UPN 300", "UPN 400", "UAP 100", "UAP 300"))]
    sottili = []
    for i, (h, b, tw, tf, r1, pend) in enumerate((
            (200, 120, 6, 8, 8, 4), (200, 120, 6, 8, 8, 0), (300, 150, 5, 10, 10, 5), (320, 150, 5, 10, 10, 5),
            (400, 100, 4, 12, 12, 6), (400, 100, 4, 12, 12, 0), (500, 200, 5, 9, 10, 4), (500, 110, 4, 14, 14, 0),
            (301, 160, 6, 9, 9, 3), (600, 250, 6, 12, 12, 0), (150, 100, 4, 6, 6, 3), (800, 150, 5, 14, 14, 7),
            (240, 190, 8, 11, 11, 0), (260, 140, 5, 9, 9, 0), (1000, 300, 6, 16, 16, 0), (280, 170, 7, 10, 8, 5),
            (350, 220, 7, 14, 12, 0), (450, 120, 4, 9, 9, 4), (700, 180, 4, 12, 12, 0), (220, 110, 4, 7, 7, 3),
            (900, 260, 6, 12, 14, 6))):
        sottili.append(("thin %d" % (i + 1), gradi[i % 4],
                        dict(h=h, b=b, tw=tw, tf=tf, r1=r1, pendenza=pend)))
    casi += [caso(i, n, fy, Canale, CANALI, v) for i, (n, fy, v) in enumerate(sottili)]
    classe4 = [x for x in ((n, fy, v) for n, fy, v in sottili for fy in (460,))][:20]
    casi += [caso(i, n, fy, Canale, CANALI, v, (float(4 * i), i % 3 == 0)) for i, (n, fy, v) in enumerate(classe4)]
    return casi


def angolari():
    gradi = (235, 275, 355, 460)
    righe = nomi("L_Uguali")[::4] + nomi("L_Disuguali")[::3]
    casi = [caso(i, n, gradi[i % 4], Angolare, ANGOLARI) for i, n in enumerate(righe)]
    a_mano = (("equal 11.5", 235, dict(h=115, b=115, t=10, r1=12, r2=6)),
              ("unequal 12 and 11", 235, dict(h=120, b=100, t=10, r1=12, r2=6)),
              ("unequal 16", 235, dict(h=160, b=60, t=10, r1=12, r2=6)),
              ("no radii", 355, dict(h=200, b=100, t=6, r1=0, r2=0)))
    casi += [caso(i, n, fy, Angolare, ANGOLARI, v) for i, (n, fy, v) in enumerate(a_mano)]
    coppie = nomi("L_Uguali")[5::12] + nomi("L_Disuguali")[2::6]
    casi += [caso(i, n, gradi[(i + 1) % 4], Angolare, ANGOLARI, None, (float(5 * (i % 4)), i % 2 == 1))
             for i, n in enumerate(coppie)]
    return casi


def main():
    scrivi("canali.txt", "Channels", canali(), calcola_canale)
    scrivi("angolari.txt", "Angles", angolari(), calcola_angolare)


if __name__ == "__main__":
    main()
