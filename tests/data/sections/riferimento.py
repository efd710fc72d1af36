#!/usr/bin/env python3
"""Expected values of the double-T section, derived a second time.

Writes the tables *.txt beside this script, which tests/sections/SezioneDoppioTTabelle_test.cpp reads:

    python3 tests/data/sections/riferimento.py

It shares no line and no method of geometry with the program. The program walks round one closed outline, cuts
it by moving vertices and by notches, and adds up a fan of triangles. Here a section is a heap of parts (web
rectangle, flange halves, fillets, toes); what is not effective is clipped off a part or subtracted as a
rectangle; every part is integrated along its sides (Green). The formulas of the code are written from ENV
1993-1-1 and EC3 anew, as plain functions of numbers. Values stored in 32 bits are rounded to 32 bits here too.

A rolled fillet counts with the chords of its 8 steps, as the program has it; the area with true arcs is
written beside it (AreaEsatta) in closed form.

Rows of the catalogue are taken from data/catalogue; a few sections that no mill makes are added to reach the
corners of the rules.
"""

import csv
import decimal
import math
import pathlib
import struct
from decimal import Decimal

decimal.getcontext().prec = 60

QUI = pathlib.Path(__file__).resolve().parent
CATALOGO = QUI.parents[2] / "data" / "catalogue"

E, G = 210000.0, 80769.0


def f32(v):
    """The value as 32 bits keep it."""
    return struct.unpack("<f", struct.pack("<f", v))[0]


# ------------------------------------------------------------------------------------------------ geometry


def integrali(vertici):
    """Area, first and second moments of a polygon along its sides; sense of travel does not matter."""
    A = Sx = Sy = Ix = Iy = 0.0
    for (x1, y1), (x2, y2) in zip(vertici, vertici[1:] + vertici[:1]):
        z = x1 * y2 - x2 * y1
        A += z / 2
        Sx += z * (y1 + y2) / 6
        Sy += z * (x1 + x2) / 6
        Ix += z * (y1 * y1 + y1 * y2 + y2 * y2) / 12
        Iy += z * (x1 * x1 + x1 * x2 + x2 * x2) / 12
    verso = -1 if A < 0 else 1
    return [verso * v for v in (A, Sx, Sy, Ix, Iy)]


def taglia(vertici, xt):
    """What of a polygon lies at x <= xt."""
    uscita = []
    for (x1, y1), (x2, y2) in zip(vertici, vertici[1:] + vertici[:1]):
        if x1 <= xt:
            uscita.append((x1, y1))
        if (x1 <= xt) != (x2 <= xt):
            f = (xt - x1) / (x2 - x1)
            uscita.append((xt, y1 + f * (y2 - y1)))
    return uscita


def arco(xc, yc, r, da, a, passi=8):
    return [
        (xc + r * math.cos(da + (a - da) * i / passi), yc + r * math.sin(da + (a - da) * i / passi))
        for i in range(passi + 1)
    ]


class Parti:
    """A heap of parts with signs; `su` mirrors a part of the lower flange to the upper edge h."""

    def __init__(self, h):
        self.h = h
        self.somma = [0.0] * 5
        self.punti = []

    def metti(self, vertici, segno=1, su=False, destra=True):
        if len(vertici) < 3:
            return
        v = [(x if destra else -x, self.h - y if su else y) for x, y in vertici]
        self.somma = [s + segno * i for s, i in zip(self.somma, integrali(v))]
        if segno > 0:
            self.punti += v

    def risultati(self):
        A, Sx, Sy, Ix, Iy = self.somma
        xG, yG = Sy / A, Sx / A
        IxG, IyG = Ix - A * yG * yG, Iy - A * xG * xG
        ySup = max(y for _, y in self.punti)
        xDes = max(x for x, _ in self.punti)
        return {"A": A, "xG": xG, "yG": yG, "IxG": IxG, "IyG": IyG,
                "WxSup": IxG / (ySup - yG), "WyDes": IyG / (xDes - xG)}


class Forma:
    """The plates of a section; builds it whole or with parts taken away."""

    def __init__(self, p):
        self.p = p
        self.saldata = p["Saldata"]
        self.asimm = p["SaldataAsimm"]
        self.bi = p["bAlaInf"] if self.asimm else p["b"]
        self.ti = p["tAlaInf"] if self.asimm else p["tf"]
        self.racc = p["r"] if self.saldata else p["r1"]
        self.pend = 0.14 if p["r2"] > 0 else 0.0
        self.d = p["h"] - p["tf"] - self.ti - 2 * self.racc
        self.c = (p["b"] - p["tw"]) / 2 - self.racc
        self.ci = (self.bi - p["tw"]) / 2 - self.racc

    def mezza_ala(self, b, t, xt):
        """Right half of a lower flange, fillet included, up to xt: list of (sign, polygon)."""
        p, racc = self.p, self.racc
        xw, xp = p["tw"] / 2, b / 2
        a = math.atan(self.pend)
        punta = t - self.pend * b / 4
        quota = lambda x: punta + self.pend * (xp - x)
        parti = [(1, [(xw, 0), (xp, 0), (xp, punta), (xw, quota(xw))])]
        if p["r2"] > 0:
            lato = p["r2"] * math.tan(math.pi / 4 - a / 2)  # tangent length of the toe
            spigolo = arco(xp - p["r2"], punta - lato, p["r2"], 0, math.pi / 2 - a)
            parti.append((-1, [(xp, punta)] + spigolo[::-1]))
        parti = [(s, taglia(v, xt)) for s, v in parti]
        if self.saldata:
            parti.append((1, [(xw, t), (xw + racc, t), (xw, t + racc)]))
        elif racc > 0:
            # the centre is racc away from the web's face and from the slope
            xc = xw + racc
            yc = quota(xc) + racc / math.cos(a)
            parti.append((1, [(xw, quota(xw))] + arco(xc, yc, racc, 1.5 * math.pi - a, math.pi)))
        return parti

    def costruisci(self, sup=(None, None), inf=(None, None), foro=None):
        """@param sup, inf: outstands removed at the right and left tip; foro: (y0, H) taken out of the web"""
        p = self.p
        parti = Parti(p["h"])
        xw = p["tw"] / 2
        parti.metti([(-xw, 0), (xw, 0), (xw, p["h"]), (-xw, p["h"])])
        for su, b, t, tolti in ((False, self.bi, self.ti, inf), (True, p["b"], p["tf"], sup)):
            for destra, via in zip((True, False), tolti):
                for segno, v in self.mezza_ala(b, t, b / 2 - (via or 0)):
                    parti.metti(v, segno, su, destra)
        if foro:
            y0, H = foro
            for destra in (True, False):
                parti.metti([(0.01, y0), (xw, y0), (xw, y0 + H), (0.01, y0 + H)], -1, destra=destra)
        return parti.risultati()

    def area_esatta(self):
        """With true arcs: between two tangents at the angle pi - fi an arc of angle fi leaves r L - r^2 fi/2."""
        p = self.p
        fi = math.pi / 2 - math.atan(self.pend)
        spicchio = math.tan(fi / 2) - fi / 2
        A = p["tw"] * p["h"]
        for b, t in ((p["b"], p["tf"]), (self.bi, self.ti)):
            spess_medio = t + self.pend * (b / 2 - (b + p["tw"]) / 4 - b / 4)
            A += (b - p["tw"]) * spess_medio
            A += p["r"] ** 2 if self.saldata else 2 * spicchio * (p["r1"] ** 2 - p["r2"] ** 2)
        return A


# ------------------------------------------------------------------------------------- formulas of the code


def epsilon(fy):
    return (235 / fy) ** 0.5


def classe(s, *limiti):
    return 1 + sum(s > l for l in limiti)


def ro(larghezza, spessore, fy, ks):
    if ks == 0:
        return 0.0
    lp = larghezza / (spessore * 28.4 * epsilon(fy) * math.sqrt(ks))
    return 1.0 if lp <= 0.673 else 1 / lp - 0.22 / lp**2


def k_sigma(psi):
    """(value, in table)"""
    for p, k in ((1, 4.0), (0, 7.81), (-1, 23.9)):
        if abs(psi - p) < 1e-9:
            return k, True
    if 0 < psi < 1:
        return 8.2 / (1.05 + psi), True
    if -1 < psi < 0:
        return 7.81 + psi * (9.78 * psi - 6.29), True
    if -2 < psi < -1:
        return 5.98 * (psi - 1) ** 2, True
    return 0.0, False


ALFA = {"a0": 0.13, "a": 0.21, "b": 0.34, "c": 0.49, "d": 0.76}
BETA = {"a0": 0.23, "a": 0.23, "b": 0.15, "c": 0.11, "d": 0.08}


def chi(alfa, lr):
    f = (1 + alfa * (lr - 0.2) + lr**2) / 2
    return min(1.0, 1 / (f + math.sqrt(f * f - lr * lr)))


def curve(p):
    tf, alto = p["tf"], f32(p["h"] / p["b"]) > f32(1.2)
    if p["Saldata"]:
        return ("c", "d") if tf > 40 else ("b", "c")
    if p["TipoAcciaio"] == "S460 (Fe540)":
        if alto:
            return ("a", "a") if tf > 40 else ("a0", "a0")
        return ("c", "c") if tf > 100 else ("a", "a")
    if alto:
        return ("b", "c") if tf > 40 else ("a", "b")
    return ("d", "d") if tf > 100 else ("b", "c")


def torsione(p, f):
    if p["Saldata"]:
        return (p["b"] * p["tf"] ** 3 + f.bi * f.ti**3 + (p["h"] - p["tf"] - f.ti) * p["tw"] ** 3) / 3
    tw, tf, r1 = p["tw"], p["tf"], p["r1"]
    D = ((tf + r1) ** 2 + r1 * tw + tw * tw / 4) / (tf + 2 * r1)
    return (
        (p["h"] - 2 * tf) * tw**3 / 3
        + 2 / 3 * p["b"] * tf**3 * (1 - 0.63 * tf / p["b"])
        + 2 * tw / tf * (0.145 + r1 / (10 * tf)) * D**4
    )


def calcola(p):
    """All expected values of one case; p holds 32-bit members."""
    f = Forma(p)
    e, fy = epsilon(p["fy"]), p["fy"]
    M0, M1 = p["GammaM0"], p["GammaM1"]
    u = {"c": f.c, "d": f.d, "cAlaInf": f.ci, "AreaEsatta": f.area_esatta()}

    lordo = f.costruisci()
    u.update(AreaContorno=lordo["A"], JyContorno=lordo["IxG"], JzContorno=lordo["IyG"])
    u["yG"] = yG = f32(lordo["yG"])
    u["JotaT"] = f32(torsione(p, f))
    I1, I2 = p["b"] ** 3 * p["tf"] / 12, f.bi**3 * f.ti / 12
    if p["SaldataAsimm"]:
        u["JotaOmega"] = f32(p["Jz"] * I1 * I2 / (I1 + I2) ** 2 * (p["h"] - p["tf"] - f.ti) ** 2)
    else:
        u["JotaOmega"] = f32(lordo["IyG"] * (p["h"] - p["tf"]) ** 2 / 4)

    # classes
    sw, sa, si = f.d / p["tw"] / e, f.c / p["tf"] / e, f.ci / f.ti / e
    lz = 21 * 0.57**0.5
    webC, webF = classe(sw, 33, 38, 42), classe(sw, 72, 83, 124)
    alaC, alaF = classe(sa, 9, 10, 14), classe(sa, 9, 10, lz)
    infC, infF = classe(si, 9, 10, 14), classe(si, 9, 10, lz)
    cC, cY, cZ = max(webC, alaC, infC), max(webF, alaC), max(alaF, infF)
    u.update(ClasseWebC=webC, ClasseWebF=webF, ClasseAlaC=alaC, ClasseAlaF=alaF, ClasseAlaInfC=infC)
    u["ClasseAlaInfF"] = infF if p["SaldataAsimm"] else 0
    u.update(ClasseCompressione=cC, ClasseFlessioneY=cY, ClasseFlessioneZ=cZ)

    # a fresh object knows no effective area yet
    u["NplRd"] = Npl = p["Area"] * fy / M0
    u["Ntrascurabile"] = Nt = min(p["tw"] * f.d * fy / M0 / 2, Npl / 4)
    u["ClassePressoFlessione"] = cPF = cC if f32(Nt) <= p["NSd"] else cY

    def punte(cl, c, t, ks, lati=2):
        via = c * (1 - ro(c, t, fy, ks)) if cl == 4 else 0.0
        return (via, via if lati == 2 else 0.0)

    beta_a = 1.0
    if cC == 4:
        beff = ro(f.d, p["tw"], fy, 4.0) * f.d
        foro = (p["h"] / 2 - (f.d - beff) / 2, f.d - beff) if webC == 4 else None
        eff = f.costruisci(punte(alaC, f.c, p["tf"], 0.43), punte(infC, f.ci, f.ti, 0.43), foro)
        u["AreaComp4"] = eff["A"]
        beta_a = eff["A"] / p["Area"]
    u["betaA"] = beta_a

    # moments
    u["psiFuori"] = 0
    u["eNy"] = u["eNz"] = 0.0
    MelY, MelZ = p["Wely"] * fy / M0, p["Welz"] * fy / M0
    if cY < 3:
        u["McyRd"] = p["Wply"] * fy / M0
    elif cY == 3:
        u["McyRd"] = MelY
    else:
        sup = punte(alaC, f.c, p["tf"], 0.43)
        eff = f.costruisci(sup)
        if webF == 4:
            alto = p["h"] - p["tf"] - f.racc
            psi = (eff["yG"] - alto + f.d) / (eff["yG"] - alto)
            ks, noto = k_sigma(psi)
            u["psiFuori"] = 0 if noto else 1
            rho = ro(f.d, p["tw"], fy, ks)
            if psi < 0:
                bc = f.d / (1 - psi)
                b1, b2 = 0.4 * rho * bc, 0.6 * rho * bc
            else:
                bc = f.d
                b1 = 2 * rho * f.d / (5 - psi)
                b2 = rho * f.d - b1
            eff = f.costruisci(sup, foro=(alto - bc + b2, bc - b1 - b2))
        u["AreaWy4"] = eff["A"]
        u["WyEff"] = eff["WxSup"]
        u["McyRd"] = eff["WxSup"] * fy / M1
        u["eNy"] = p["h"] / 2 - eff["yG"]
    if cZ < 3:
        u["MczRd"] = p["Wplz"] * fy / M0
    elif cZ == 3:
        u["MczRd"] = MelZ
    else:
        eff = f.costruisci(punte(alaC, f.c, p["tf"], 0.57, 1), punte(infC, f.ci, f.ti, 0.57, 1))
        u["AreaWz4"] = eff["A"]
        u["WzEff"] = eff["WyDes"]
        u["MczRd"] = eff["WyDes"] * fy / M1
        u["eNz"] = -eff["xG"]
    Mcy, Mcz = u["McyRd"], u["MczRd"]

    # buckling and shear
    cy, cz = curve(p)
    u["curve"] = cy + "/" + cz
    ly, lz_ = p["L0y"] / p["iY"], p["L0z"] / p["iZ"]
    lry, lrz = (l / (93.9 * e) * beta_a**0.5 for l in (ly, lz_))
    u["NbyRd"] = Nby = chi(ALFA[cy], lry) * beta_a * p["Area"] * fy / M1
    u["NbzRd"] = Nbz = chi(ALFA[cz], lrz) * beta_a * p["Area"] * fy / M1
    if p["Saldata"]:
        Av = (p["h"] - 2 * p["tf"]) * p["tw"]
    else:
        Av = p["Area"] - p["tf"] * (2 * p["b"] - p["tw"] - 2 * p["r1"])
    u["VplyRd"] = Av * fy / (M0 * 3**0.5)
    u["VplzRd"] = 2 * p["b"] * p["tf"] * fy / (M0 * 3**0.5)
    u["animaSnella"] = int(f.d / p["tw"] > 69 * e)

    # axial force and bending
    N, My, Mz = p["NSd"], p["Mysd"], p["Mzsd"]
    n, a = N / Npl, min(0.5, 1 - 2 * p["b"] * p["tf"] / p["Area"])
    u["MNy"] = MNy = min(Mcy, Mcy * (1 - n) / (1 - a / 2))
    u["MNz"] = MNz = Mcz if n <= a else Mcz * (1 - ((n - a) / (1 - a)) ** 2)
    u["beta"] = bt = max(1.0, 5 * n)
    eY, eZ = u["eNy"], u["eNz"]
    if cPF <= 2:
        u["Resistenza"] = (My / MNy) ** 2 + (Mz / MNz) ** bt
    elif cPF == 3:
        u["Resistenza"] = N / Npl + My / MelY + Mz / MelZ
    else:
        u["Resistenza"] = N / Npl + (My + N * eY) / Mcy + (Mz + N * eZ) / Mcz

    def mu(lr, bm, Wel, Wpl):
        return min(0.9, 2 * lr * (bm - 2) + (Wpl / Wel - 1 if cPF < 3 else 0))

    u["muY"] = muY = mu(lry, p["BetaMy"], p["Wely"], p["Wply"])
    u["muZ"] = muZ = mu(lrz, p["BetaMz"], p["Welz"], p["Wplz"])
    u["kY"] = kY = min(1.5, 1 - muY * N / (M1 * Nby))
    u["kZ"] = kZ = min(1.5, 1 - muZ * N / (M1 * Nbz))
    rid = M0 / M1
    u["Py"] = kY * (My + N * eY) / (rid * (MelY if cPF >= 3 else Mcy))
    u["Pz"] = kZ * (Mz + N * eZ) / (rid * (MelZ if cPF >= 3 else Mcz))
    u["Instabilita"] = N / min(Nby, Nbz) + u["Py"] + u["Pz"]

    # lateral-torsional buckling
    u["zCentroTaglio"] = zs = yG + (I1 * (p["h"] - yG) - I2 * yG) / p["iZ"]
    quota = I1 / (I1 + I2)
    zj = (2 * quota - 1) * (p["h"] - p["tf"] / 2 - f.ti / 2) / 2 * (0.8 if quota >= 0.5 else 1)
    D = p["c2"] * (p["h"] / 2 + p["za"] - zs) - p["c3"] * zj
    if p["LLT"] > 0:
        L2 = (p["k"] * p["LLT"]) ** 2
        Ncr = math.pi**2 * E * p["Jz"] / L2
        T = (p["k"] / p["Kw"]) ** 2 * p["Jw"] / p["Jz"] + G * p["JT"] / Ncr
        # the root less D, of 60 digits: the two cancel where D is large
        S = (Decimal(T) + Decimal(D) ** 2).sqrt() - Decimal(D)
        u["Mcr"] = f32(p["C1"] * Ncr * float(S))
        u["LamdaLT"] = f32(math.sqrt(M0 * Mcy / u["Mcr"]))
    else:
        u["Mcr"] = u["LamdaLT"] = 0.0
    lt = u["LamdaLT"]
    u["ChiLT"] = f32(chi(0.49 if p["Saldata"] else 0.21, lt) if lt > f32(0.4) else 1.0)
    u["MbRd"] = Mb = f32(u["ChiLT"] * Mcy * rid)
    u["muLT"] = muLT = min(0.9, 0.15 * (lrz * p["BetaMLT"] - 1))
    u["kLT"] = kLT = min(1.0, 1 - muLT * N / (M1 * Nbz))
    u["FlessoTorsionale"] = N / Nbz + kLT * (My + N * eY) / Mb + kZ * (Mz + N * eZ) / (rid * Mcz)

    for asse, cv, lr, W in (("Y", cy, lry, p["Wely"]), ("Z", cz, lrz, p["Welz"])):
        k = max(1.0, 1 + BETA[cv] * (2 * lr - 1))
        u["Freccia" + asse] = max(2.0, ALFA[cv] * (lr - 0.2) * k * W / p["Area"])
    return u


# ---------------------------------------------------------------------------------------------------- cases

ACCIAI = {235: "S235 (Fe360)", 275: "S275 (Fe430)", 355: "S355 (Fe510)", 460: "S460 (Fe540)"}
FATTORI = (("NTC", 1.05, 1.05), ("EC3", 1.0, 1.0), ("Altro", 1.1, 1.2))

# columns of the catalogue: member, factor to mm
LAMINATE = ((2, "h", 1), (3, "b", 1), (4, "tw", 1), (5, "tf", 1), (6, "r1", 1), (7, "r2", 1), (8, "Area", 1e2),
            (10, "Wely", 1e3), (11, "Wply", 1e3), (12, "iY", 10), (13, "Jz", 1e4), (14, "Welz", 1e3),
            (15, "Wplz", 1e3), (16, "iZ", 10), (17, "JT", 1e4), (18, "Jw", 1e6))
SALDATE = ((2, "h", 1), (3, "b", 1), (4, "tw", 1), (5, "tf", 1), (6, "r", 1), (7, "Area", 1e2), (9, "Wely", 1e3),
           (10, "Wply", 1e3), (11, "iY", 10), (12, "Jz", 1e4), (13, "Welz", 1e3), (14, "Wplz", 1e3), (15, "iZ", 10),
           (16, "JT", 1e4), (17, "Jw", 1e6))
ASIMMETRICHE = ((2, "h", 1), (3, "b", 1), (4, "bAlaInf", 1), (5, "tw", 1), (6, "tf", 1), (7, "tAlaInf", 1),
                (8, "r", 1), (9, "Area", 1e2), (11, "Wely", 1e3), (13, "Wply", 1e3), (14, "iY", 10), (15, "Jz", 1e4),
                (16, "Welz", 1e3), (17, "Wplz", 1e3), (18, "iZ", 10), (19, "JT", 1e4), (20, "Jw", 1e6))


def riga(nome):
    for file in sorted(CATALOGO.glob("*.csv")):
        with open(file, newline="", encoding="ascii") as testo:
            for campi in csv.reader(testo):
                if campi[0] == nome:
                    return campi
    raise KeyError(nome)


def azioni(i, p):
    """Lengths, forces and factors that differ from case to case, in proportion to the section."""
    fy, A = p["fy"], p["Area"]
    p["L0y"] = (0, 3000, 6000, 9000, 14000)[i % 5]
    p["L0z"] = (2500, 0, 4000, 6500)[i % 4]
    p["NSd"] = (0.0, 0.05, 0.3, 0.55, -0.1, 0.12)[i % 6] * A * fy
    p["Mysd"] = (0.3, 0.0, 0.5, 0.15)[i % 4] * p["Wely"] * fy
    p["Mzsd"] = (0.0, 0.2, 0.1)[i % 3] * p["Welz"] * fy
    p["BetaMy"], p["BetaMz"] = (1.1, 1.8, 2.5)[i % 3], (1.3, 2.2)[i % 2]
    p["BetaMLT"] = (1.1, 1.4, 2.1)[i % 3]
    p["LLT"] = (4000, 8000, 0, 12000, 800)[i % 5]
    p["k"], p["Kw"] = (1, 0.7, 0.5)[i % 3], (1, 0.9)[i % 2]
    p["C1"], p["c2"], p["c3"] = (1, 1.88, 1.132)[i % 3], (0, 0.459, 1.2)[i % 3], (0, 0.525, 0.939)[(i // 2) % 3]
    p["za"] = (0, 0.5, -0.5)[i % 3] * p["h"]


def caso(i, nome, fy, colonne=None, valori=None):
    p = dict.fromkeys(("r", "r1", "r2", "bAlaInf", "tAlaInf"), 0.0)
    if colonne:
        campi = riga(nome)
        p.update({m: float(campi[k]) * fatt for k, m, fatt in colonne})
    else:
        p.update(valori)
    p["Saldata"] = colonne in (SALDATE, ASIMMETRICHE) if colonne else p.get("Saldata", True)
    p["SaldataAsimm"] = colonne is ASIMMETRICHE if colonne else p["bAlaInf"] > 0
    p["TipoAcciaio"] = ACCIAI.get(fy, "fy libera")
    p["fy"] = fy
    norma, p["GammaM0"], p["GammaM1"] = FATTORI[i % 3]
    if not colonne:
        costanti(p)
    azioni(i, p)
    for m, v in p.items():
        if isinstance(v, float) or (isinstance(v, int) and not isinstance(v, bool)):
            p[m] = f32(v)
    return nome + ", " + p["TipoAcciaio"] + ", " + norma, p


def costanti(p):
    """Constants of a section that stands in no table; plastic moduli as a round share of the elastic ones."""
    f = Forma(p)
    q = f.costruisci()
    p.update(Area=q["A"], Jz=q["IyG"], Wely=q["WxSup"], Welz=q["WyDes"], JT=torsione(p, f))
    p.update(Wply=1.15 * p["Wely"], Wplz=1.5 * p["Welz"], iY=(q["IxG"] / q["A"]) ** 0.5, iZ=(q["IyG"] / q["A"]) ** 0.5)
    p["Jw"] = q["IyG"] / 4 * (p["h"] - p["tf"]) ** 2


def scrivi(file, titolo, casi):
    fuori = ["# " + titolo, "# Written by riferimento.py, which says how. mm, N, Nmm.", ""]
    for nome, p in casi:
        fuori.append("caso " + nome)
        for parola, valori in (("dati", p), ("attesi", calcola(p))):
            linea = parola
            for m, v in valori.items():
                if isinstance(v, str):
                    v = v.replace(" ", "_")
                elif isinstance(v, (bool, int)):
                    v = int(v)
                else:
                    v = "%.9g" % v if parola == "dati" else "%.12g" % v
                pezzo = " %s=%s" % (m, v)
                if len(linea + pezzo) > 108:
                    fuori.append(linea)
                    linea = parola
                linea += pezzo
            fuori.append(linea)
        fuori.append("")
    (QUI / file).write_text("\n".join(fuori), encoding="ascii")


def main():
    lam = [("IPE 80", 235), ("IPE 200", 235), ("IPE 300", 275), ("IPE 450", 355), ("IPE 600", 460), ("IPEA 300", 355),
           ("IPEO 600", 275), ("IPN 80", 235), ("IPN 200", 275), ("IPN 500", 355), ("IPN 600", 460), ("HEA 100", 235),
           ("HEA 280", 355), ("HEA 300", 460), ("HEAA 260", 355), ("HEAA 300", 460), ("HEAA 1000", 460),
           ("HEB 360", 235), ("HEB 360", 460), ("HEM 300", 355), ("HL 920x344", 460), ("HL 920x368", 355),
           ("W 100x100x19.3", 275)]
    sal = [("ISE 300x37", 235), ("ISE 300x53", 460), ("HSL 500x47", 235), ("HSL 500x57", 460), ("HSA 300x61", 235),
           ("HSA 300x61", 460), ("HSA 300x74", 355), ("HSE 300x92", 275), ("HSH 400x243", 355), ("HSH 400x316", 460),
           ("HSU 500x131", 235)]
    for famiglia, passo in (("ISE", 12), ("HSL", 5), ("HSA", 6), ("HSH", 11)):
        with open(CATALOGO / (famiglia + ".csv"), newline="", encoding="ascii") as testo:
            nomi = [r[0] for r in csv.reader(testo)][1:]
        sal += [(n, (355, 235, 460, 275)[j % 4]) for j, n in enumerate(nomi[passo::passo])]
    with open(CATALOGO / "HSD.csv", newline="", encoding="ascii") as testo:
        nomi = [r[0] for r in csv.reader(testo)][1:]
    asi = [(n, (235, 355, 460, 275)[j % 4]) for j, n in enumerate(nomi[::3])]
    scrivi("laminati.txt", "Rolled sections", [caso(i, n, fy, LAMINATE) for i, (n, fy) in enumerate(lam)])
    scrivi("saldati.txt", "Welded sections, equal flanges", [caso(i, n, fy, SALDATE) for i, (n, fy) in enumerate(sal)])
    scrivi("asimmetrici.txt", "Welded sections, different flanges",
           [caso(i, n, fy, ASIMMETRICHE) for i, (n, fy) in enumerate(asi)])
    piatti = lambda **v: dict(dict.fromkeys(("r", "r1", "r2", "bAlaInf", "tAlaInf"), 0.0), **v)
    sintetici = [
        ("tapered, flanges of class 4", 690, piatti(Saldata=False, h=300, b=200, tw=8, tf=9, r1=9, r2=4)),
        ("tapered, cut inside the toe", 560, piatti(Saldata=False, h=400, b=200, tw=9, tf=9, r1=9, r2=6)),
        ("rolled, all of class 4", 690, piatti(Saldata=False, h=600, b=300, tw=5, tf=9, r1=12)),
        ("no fillets, slender web", 355, piatti(h=1500, b=300, tw=8, tf=20)),
        ("no fillets, all of class 4", 460, piatti(h=1200, b=400, tw=6, tf=10)),
        ("web beyond psi -2", 235, piatti(h=1000, b=600, tw=5, tf=50, r=5, bAlaInf=120, tAlaInf=10)),
        ("psi between -2 and -1", 355, piatti(h=1200, b=400, tw=6, tf=25, r=5, bAlaInf=300, tAlaInf=20)),
        ("whole web in compression", 355, piatti(h=1000, b=100, tw=4, tf=10, r=5, bAlaInf=600, tAlaInf=100)),
        ("psi between -1 and 0, thin upper flange", 355, piatti(h=1000, b=300, tw=5, tf=8, bAlaInf=200, tAlaInf=30)),
        ("thin lower flange", 460, piatti(h=600, b=200, tw=12, tf=20, r=6, bAlaInf=400, tAlaInf=12)),
        ("heavy, flanges above 100", 235, piatti(Saldata=False, h=600, b=550, tw=80, tf=125, r1=20)),
        ("welded, flanges above 40", 355, piatti(h=700, b=400, tw=30, tf=60, r=12)),
    ]
    scrivi("sintetici.txt", "Sections that no mill makes, for the corners of the rules",
           [caso(i, n, fy, None, v) for i, (n, fy, v) in enumerate(sintetici)])


if __name__ == "__main__":
    main()
