#!/usr/bin/env python3
"""Expected values of end-plate joints, derived a second time.

Writes verifiche.txt, sequenze.txt, limiti.txt, alfa.txt and ricerche.txt beside this script, which
tests/joints/GiuntoTabelle_test.cpp reads; all of them, or those named:

    python3 tests/data/joints/riferimento.py [verifiche ...]

It shares no line with the program. The rules of ENV 1993-1-1 annex J (edition of 1992) are written anew as one
long walk over a bag of numbers; the search is the plain nest of loops that computes every candidate from the
start, with nothing kept from one to the next. What a file of the program keeps in 32 bits is narrowed here too.
"""

import csv
import math
import pathlib
import random
import struct
import sys
from decimal import ROUND_HALF_UP, Decimal

QUI = pathlib.Path(__file__).resolve().parent
CATALOGO = QUI.parents[2] / "data" / "catalogue"
R2, R3, DUE_PI = math.sqrt(2), math.sqrt(3), 6.28318530717958
INF = 1e9

F32 = """FtRd_Individuale FtRd_Gruppo Ftrd_FilaInf_c Ftrd_FilaInfRid_c Ftrd_FilaSup_c Ftrd_FilaSupRid_c NbRd_Anima_c
FcRd_Anima_c FcRd_AnimaIrrigidita_c FtRd_Anima_c VplRd_Pannello_c FtRd_FilaSup_f FtRd_FilaInf_f FtRd_Anima_t
FtRd_EffSup FtRd_EffInf RDebole Beff1 Beff2 Beff3 Beff4 leffEsterna leffInterna FtotFile zInt zEst sTrave
sColonna""".split()
F64 = """ec mc mxc m2c ef mf w ex mx dX d2 m2 p pint tf bf L u hf aw Af Diam d0 lb Areares Vrd0 Vrd1 MplRdGIUNTO
M_elastico Beta k1 k2 k3 k4 k5 k6 k6_Estesa mu1 mu2 mu3 mu4 mu5 mu6 mu4_Estesa mu5_Estesa mu6_Estesa Sj_MjRd_
Sj_MjRd_Estesa Sj_MjRd Sj_Mela_ Sj_Mela_Estesa Sj_Mela Sj_MjSd_ Sj_MjSd_Estesa Sj_MjSd LimiteRigido1
LimiteRigido2 LimiteCerniera z Eq_Saldatura""".split()
I16 = "Irr_Spessore Irr_B Irr_L1 Irr_L2 Irr_a TipoMessaggio".split()
TESTI = """ComponenteDeboleFilaSup ComponenteDeboleFilaInf ComponenteDebole ResistenzaGiunto RigidezzaGiunto1
RigidezzaGiunto2 TipiGiunto""".split()

D = [8, 10, 12, 14, 16, 18, 20, 22, 24, 27, 30, 33, 36, 39, 42, 45, 48, 52, 56, 60, 64, 68]
ARES = [38.6, 58, 84.3, 115, 157, 192, 245, 303, 353, 459, 581, 694, 817, 976, 1120, 1310, 1470, 1760, 2030, 2360,
        2680, 3060]
K = [5.3, 6.4, 7.5, 8.8, 10, 11.5, 12.5, 14, 15, 17, 18.7, 21, 22.5, 25, 26, 28, 30, 33, 35, 38, 40, 43]
DADO = [6.8, 8.4, 10.8, 12.8, 14.8, 15.8, 18, 19.4, 21.5, 23.8, 25.6, 28.7, 31, 33.4, 34, 36, 38, 42, 45, 48, 51, 54]
ROND = [1.6, 2, 2.5, 2.5, 3, 3, 3, 3, 4, 4, 4, 5, 5, 6, 8, 8, 8, 8, 10, 10, 10, 10]

# Row i is lambda1 = i / 10, column j lambda2 = j / 10.
ALFA = [[float(v) for v in riga.split()] for riga in """8 8 8 8 8 8 8 8 8 8
8 8 8 8 8 8 8 8 8 8
8 8 8 8 8 8 8 8 8 8
8 8 8 8 7.4 7 7 7 7 7
8 8 8 7 6.64 6.28 6.17 6.08 6 6
8 8 7 6.28 6.04 5.77 5.52 5.42 5.38 5.33
8 8 6.28 5.98 5.5 5.25 5.1 5 4.95 4.91
8 7 6 5.25 5 4.83 4.75 4.68 4.66 4.63
8 6.14 5 4.75 4.59 4.5 4.45 4.45 4.45 4.45
8 5 4.5 4.45 4.45 4.45 4.45 4.45 4.45 4.45""".splitlines()]


def f32(v):
    return struct.unpack("<f", struct.pack("<f", v))[0]


def decimali(v, n):
    """The number as it is read with n decimals, half away from zero on its 15 figures."""
    return str(Decimal("%.15g" % v).quantize(Decimal(1).scaleb(-n), ROUND_HALF_UP))


class Borsa:
    """A bag of numbers, each in its width."""

    def __setattr__(self, nome, valore):
        object.__setattr__(self, nome, f32(valore) if nome in F32 else valore)


class Sezione:
    """What a joint reads of a section; all of its measures are kept in 32 bits."""

    def __init__(self, **v):
        self.nome = v.pop("nome", "")
        self.saldata = v.pop("saldata", 0)
        self.McyRd = v.pop("McyRd", 0.0)
        self.lunghezza = v.pop("lunghezza", 0.0)
        for chiave in "h b tw tf r1 r Area Jy fy fu NSd Mysd Vsd".split():
            setattr(self, chiave, f32(v.pop(chiave, 0.0)))
        assert not v, v
        self.a = f32(self.r / math.sqrt(2))
        self.radice = self.a if self.saldata else self.r1


def alfa(l1, l2):
    x, y = 10 * l1, 10 * l2
    if x < 0 or y < 0:
        raise IndexError("negativo")
    i, j = math.floor(x), math.floor(y)
    if i <= 8 and j <= 8:
        return sum(
            ALFA[i + di][j + dj] * ((x - i) if di else (i + 1 - x)) * ((y - j) if dj else (j + 1 - y))
            for di, dj in ((0, 0), (1, 0), (0, 1), (1, 1))
        )
    if i <= 8:
        return ALFA[i][9] * (i + 1 - x) + ALFA[i + 1][9] * (x - i)
    if i == 9 and j > 9:
        raise IndexError("fuori")
    return 4.45


def su(x):
    return float(math.ceil(x))


def foro(d):
    return d + 1 if d <= 14 else d + 2 if d <= 24 else d + 3


def bullone(g, i):
    n = i - 1
    g.bullone, g.Diam, g.Areares, g.d0 = i, float(D[n]), f32(ARES[n]), float(foro(D[n]))
    g.bul_k, g.bul_m, g.rond_s = K[n], DADO[n], ROND[n]


def derivati(g):
    t, c = g.t, g.c
    g.m2 = g.d2 - 0.8 * R2 * g.Af
    g.pint = t.h - 2 * t.tf - 2 * g.d2
    g.lb = c.tf + g.tf + g.rond_s + (g.bul_m + g.bul_k) / 2
    g.ec = (c.b - g.bf) / 2 + g.ef
    g.mc = (c.b - c.tw) / 2 - 0.8 * g.sColonna - g.ec
    g.w = g.bf - 2 * g.ef
    g.mf = (g.bf - t.tw) / 2 - 0.8 * R2 * g.aw - g.ef
    if g.nf == 1:
        g.hf = su(t.h - t.tf)
    else:
        g.dX = g.L - g.ex
        g.mx = g.dX - 0.8 * R2 * g.Af
        g.p = t.tf + g.d2 + g.dX
        g.hf = t.h + g.L + g.u


# ------------------------------------------------------------------------------------------ welds, stiffeners


def gole(t, radice, gamma):
    beta = {360: 0.8, 430: 0.85, 510: 0.9}.get(t.fu, 0.0)
    a2 = 0.0
    if beta:
        a2 = su(R3 * t.tf * t.fy * t.b * beta * gamma[2] / ((2 * t.b - t.tw - 2 * radice) * t.fu * gamma[0]))
    return su(t.tf / 2), a2


def saldature(g):
    t = g.t
    a1, a2 = gole(t, t.radice, g.gamma)
    meta = t.tf / 2
    limite = meta * g.tf / math.sqrt(meta**2 + g.tf**2)
    if g.nf == 1:
        g.Af = a1 if a1 < a2 else a2
        g.Cambia_af = g.Af > limite
        if g.Cambia_af:
            g.Af = float(decimali(limite, 1))
    else:
        g.Af = max(a1, a2)
    if g.Af >= 3 or not g.Cambia_af:
        if g.Af < 3 and limite >= 3:
            g.Af = 3.0
    elif g.Af != g.Eq_Saldatura:
        g.avvisi.append("saldatura")
        g.Eq_Saldatura = g.Af
    g.aw = max(su(t.tw / 2), 3.0)


def irrigidimenti(n, g):
    if g.Irrigidimenti == "No":
        return
    c = n.colonna
    due = n.NumeroGiunti == 2
    spessori = [n.dx.tf] + ([n.sx.tf] if due else [])
    g.Irr_Spessore = round(max(spessori))
    g.Irr_B = round((c.b - c.tw) / 2 - 5)
    netta = c.h - 2 * c.tf
    if n.Tipovie in (2, 3) or n.dx.h == n.sx.h:
        g.Irr_L1 = round(netta - 8)
    else:
        pendenza = math.atan(abs(n.dx.h - n.sx.h) / netta)
        g.Irr_L1 = math.floor(netta / math.cos(pendenza)) - 8
    if g.Irrigidimenti == "Si":
        g.Irr_L2 = round(netta - 8)
    g.Irr_a = max(int(max(gole(g.t, g.t.r1, g.gamma))), 3)


def beta(n, g):
    dx, sx = n.dx, n.sx
    due = n.NumeroGiunti == 2
    if g.Beta_Cautel:
        if not due:
            b = 1.0
        else:
            m1, m2 = dx.Mysd, sx.Mysd
            b = 2.0 if m1 * m2 < 0 else 1.0 if (m1 == 0) != (m2 == 0) else 0.0 if m1 == m2 else 1.0
    else:
        Vm = (n.VColSup - n.colonna.Vsd) / 2
        if not due:
            b = 0.0 if dx.Mysd == 0 else abs(Vm * g.z / dx.Mysd + 1)
        else:
            M1, M2 = dx.Mysd * 1000, sx.Mysd * 1000
            z1, z2 = dx.h - dx.tf, sx.h - sx.tf
            if M1 == 0 and M2 == 0:
                b1 = b2 = 0.0
            elif M1 == 0:
                b1, b2 = 1.0, abs(Vm * z2 / M2 - 1)
            elif M2 == 0:
                b1, b2 = abs(Vm * z1 / M1 + 1), 1.0
            else:
                b1 = abs(1 - (z1 / M1) * (M2 / z2 - Vm))
                b2 = abs((M1 / z1 + Vm) * z2 / M2 - 1)
            b = b2 if n.nGiunto == 2 else b1
    g.Beta = min(b, 2.0)


# ------------------------------------------------------------------------------------------ components


def fattori_tensione(g):
    c = g.c
    segno = -1 if g.TipiGiunto in ("Croce_Sn", "CroceSn") else 1
    sigma = 1000 * c.NSd / c.Area + segno * (1e6 * c.Mysd * c.h / (2 * c.Jy))
    g.Kwc = g.Kfc = 1.0
    if 0.5 * c.fy < sigma:
        x = 1.25 - 0.5 * sigma / c.fy
        x = 0.75 if x < 0 else x
        if decimali(x, 2) != "1.00":
            g.Kwc = x
    if sigma > 180:
        x = (2 * c.fy - 180 - sigma) / (2 * c.fy - 360)
        x = 0.5 if x < 0 else x
        if decimali(x, 2) != "1.00" and x <= 1:
            g.Kfc = x


def bt(g):
    return 0.9 * g.fubl * g.Areares / (g.gamma[2] * 1000)


def tratto_t(g, leff, t, fy, k, m, n, nb):
    Mpl = 0.25 * leff * t**2 * fy / (g.gamma[0] * 1000) * k
    B = bt(g)
    return min(4 * Mpl / m, (2 * Mpl + n * nb * B) / (m + n), nb * B)


def lunghezze_colonna(g):
    if g.Irrigidimenti != "Si":
        g.Beff1 = min(DUE_PI * g.mc, 4 * g.mc + 1.25 * g.ec)
        if g.nf == 2:
            g.Beff2 = min(2 * (DUE_PI * g.mc), 2 * (4 * g.mc + 1.25 * g.ec),
                          2 * (0.5 * g.p + 2 * g.mc + 0.625 * g.ec))
        return

    def fila(distanza):
        return min(f32(DUE_PI * g.mc), alfa(g.mc / (g.mc + g.ec), distanza / (g.mc + g.ec)) * g.mc)

    g.m2c = g.d2 - (g.Irr_Spessore - g.t.tf) - 0.8 * R2 * g.Irr_a
    g.Beff4 = fila(g.m2c)
    g.Beff1 = g.Beff4
    if g.nf == 2:
        g.mxc = g.dX - 0.8 * R2 * g.Irr_a
        g.Beff3 = fila(g.mxc)
        g.Beff2 = g.Beff3 + g.Beff4


def ala_colonna(g):
    lunghezze_colonna(g)
    n = min(g.ec, 1.25 * g.mc, g.ef)

    def r(leff, nb):
        return tratto_t(g, leff, g.c.tf, g.c.fy, g.Kfc, g.mc, n, nb)

    if g.Irrigidimenti == "Si":
        g.Ftrd_FilaInf_c = r(g.Beff4, 2)
        if g.nf == 2:
            g.Ftrd_FilaSup_c = r(g.Beff3, 2)
        return
    g.FtRd_Individuale = r(g.Beff1, 2)
    if g.nf == 1:
        g.Ftrd_FilaInf_c = g.FtRd_Individuale
    else:
        g.FtRd_Gruppo = r(g.Beff2, 4)
        g.Ftrd_FilaInf_c = g.FtRd_Gruppo - g.FtRd_Individuale
        g.Ftrd_FilaSup_c = g.FtRd_Individuale


def flangia(g):
    a = alfa(g.mf / (g.mf + g.ef), g.m2 / (g.mf + g.ef)) * g.mf
    g.leffInterna = min(f32(DUE_PI * g.mf), a)
    g.FtRd_FilaInf_f = tratto_t(g, g.leffInterna, g.tf, g.t.fy, 1, g.mf, min(g.ef, 1.25 * g.mf), 2)
    if g.nf == 2:
        g.leffEsterna = min(0.5 * g.bf, 0.5 * g.w + 2 * g.mx + 0.625 * g.ex, 4 * g.mx + 1.25 * g.ex, DUE_PI * g.mx)
        g.FtRd_FilaSup_f = tratto_t(g, g.leffEsterna, g.tf, g.t.fy, 1, g.mx, min(g.ex, 1.25 * g.mx), 2)


def file_efficaci(g):
    inf_f, sup_f = g.FtRd_FilaInf_f, g.FtRd_FilaSup_f
    if g.nf == 1 or g.Irrigidimenti == "Si":
        colonna = g.Ftrd_FilaInf_c < inf_f
        g.FtRd_EffInf = g.Ftrd_FilaInf_c if colonna else inf_f
        g.ComponenteDeboleFilaInf = (" Fila int. dall'ala della colonna a flessione" if colonna
                                     else " Fila int. dalla flangia di estremità a flessione")
        if g.nf == 2:
            colonna = g.Ftrd_FilaSup_c < sup_f
            g.FtRd_EffSup = g.Ftrd_FilaSup_c if colonna else sup_f
            g.ComponenteDeboleFilaSup = (" Fila est. ala della colonna a flessione" if colonna
                                         else " Fila est. dalla flangia di estremità a flessione")
        return
    colonna = g.FtRd_Individuale < sup_f
    if colonna:
        g.FtRd_EffSup = g.FtRd_Individuale
        g.ComponenteDeboleFilaSup = " Fila est. dall'ala della colonna a flessione"
        g.ComponenteDeboleFilaInf = " Fila int. dall'ala della colonna a flessione"
    else:
        g.FtRd_EffSup = sup_f
        g.ComponenteDeboleFilaSup = " Fila est. dalla flangia di estremità a flessione"
        g.ComponenteDeboleFilaInf = " Fila int. dall'ala della colonna a flessione "
    g.Ftrd_FilaSupRid_c = g.FtRd_EffSup
    g.FtRd_EffInf = g.FtRd_Gruppo - g.FtRd_EffSup
    if g.FtRd_EffInf > g.FtRd_Individuale:
        g.FtRd_EffInf = g.FtRd_Individuale
    g.Ftrd_FilaInfRid_c = g.FtRd_EffInf
    if not g.FtRd_EffInf < inf_f:
        g.FtRd_EffInf = inf_f
        g.ComponenteDeboleFilaInf = " Fila int. dalla flangia di estremità a flessione"


def anima_tesa(g, file):
    lunghezze_colonna(g)
    g.FtRd_Anima_c = (g.Beff2 if file == 2 else g.Beff1) * g.c.tw * g.c.fy / (g.gamma[0] * 1000)


def ala_trave(g):
    return g.t.tf * g.t.b * g.t.fy / (g.gamma[0] * 1000)


def oltre(g):
    x = g.u - R2 * g.Af
    return g.tf if x >= g.tf else x


def schiacciamento(g):
    c = g.c
    s = c.a * R2 if c.saldata else c.r1
    larghezza = 2 * R2 * g.Af + g.t.tf + g.tf + 5 * (c.tf + s) + oltre(g)
    g.FcRd_Anima_c = g.Kwc * c.tw * c.fy * larghezza / (g.gamma[0] * 1000)


def instabilita(g):
    c = g.c
    y = g.t.tf + g.tf + oltre(g)
    snellezza = ((c.h - 2 * c.tf) / 2) / math.sqrt(c.tw**2 / 12)
    rel = snellezza / (93.9 * math.sqrt(235 / c.fy))
    fi = 0.5 * (1 + 0.49 * (rel - 0.2) + rel**2)
    chi = min(1.0, 1 / (fi + math.sqrt(fi**2 - rel**2)))
    g.NbRd_Anima_c = c.tw * math.sqrt(c.h**2 + y**2) * (chi * c.fy / g.gamma[1]) / 1000


def pannello(g):
    c = g.c
    if g.Beta > 0:
        if c.saldata or "S" in c.nome:
            A = (c.h - 2 * (c.a + c.tf)) * c.tw
        else:
            A = c.Area - 2 * c.b * c.tf + (c.tw + 2 * c.r1) * c.tf
        g.VplRd_Pannello_c = c.fy * A / (R3 * g.gamma[0] * 1000 * g.Beta)


def debole(g):
    scelte = [(g.FtRd_Anima_c, " dall'anima della colonna a trazione")]
    if g.Irrigidimenti == "No":
        scelte.append((g.FcRd_Anima_c, " dall'anima della colonna a compressione"))
        scelte.append((g.NbRd_Anima_c, " dall'anima della colonna a instabilità"))
    else:
        scelte.append((g.FcRd_AnimaIrrigidita_c, " dall'anima della colonna a compressione"))
    if g.Beta > 0:
        scelte.append((g.VplRd_Pannello_c, " dal pannello della colonna a taglio"))
    g.RDebole, g.ComponenteDebole = min(scelte, key=lambda s: s[0])  # of equals, the first


def completa(g):
    g.TipoMessaggio = 0
    if g.nf == 1:
        g.FtRd_EffSup = 0
    g.FtotFile = g.FtRd_EffInf + g.FtRd_EffSup
    if g.nf == 1 and g.FtRd_EffInf > g.RDebole:
        g.TipoMessaggio = 1
        g.FtRd_EffInf = g.RDebole
    if g.nf == 2 and g.FtotFile > g.RDebole:
        g.TipoMessaggio = 1
        g.FtRd_EffInf = g.RDebole - g.FtRd_EffSup
        if g.FtRd_EffInf < 0:
            g.FtRd_EffInf = 0
            g.FtRd_EffSup = g.RDebole
            if g.Irrigidimenti != "Si":
                anima_tesa(g, 1)
                if g.FtRd_EffSup > g.FtRd_Anima_c:
                    g.FtRd_EffSup = g.FtRd_Anima_c
                    g.ComponenteDebole = " dall'anima della colonna a trazione in zona tesa ridotta"
                    g.avvisi.append("ridotta")
    g.FtRd_Anima_t = g.t.tw * g.t.fy * g.leffInterna / (g.gamma[0] * 1000)
    if g.FtRd_EffInf > g.FtRd_Anima_t:
        g.avvisi.append("trave")
        g.FtRd_EffInf = g.FtRd_Anima_t
        g.ComponenteDebole = " dall'anima della trave a trazione"
        if g.nf == 2:
            g.TipoMessaggio = 1
    g.zInt = g.t.h - g.d2 - 1.5 * g.t.tf
    g.zEst = g.t.h + g.dX - 0.5 * g.t.tf if g.nf == 2 else 0
    g.MplRdGIUNTO = (g.zEst * g.FtRd_EffSup + g.zInt * g.FtRd_EffInf) / 1000


def componenti(g):
    ala_colonna(g)
    flangia(g)
    file_efficaci(g)
    anima_tesa(g, g.nf)
    if g.Irrigidimenti == "Si":
        g.FtRd_Anima_c = g.FtRd_Anima_c + ala_trave(g)
    schiacciamento(g)
    if g.Irrigidimenti == "No":
        instabilita(g)
    else:
        g.FcRd_AnimaIrrigidita_c = g.FcRd_Anima_c + ala_trave(g)


def verifica(g):
    fattori_tensione(g)
    componenti(g)
    pannello(g)
    debole(g)
    completa(g)
    Mj, Mb = g.MplRdGIUNTO * 1e6, g.t.McyRd
    if Mj >= Mb:
        g.ResistenzaGiunto = " Giunto a completo ripristino di\r\n  resistenza (EC3-6.9.6.3)"
    elif 0.25 * Mb > Mj:
        g.ResistenzaGiunto = " Giunto con resistenza   a cerniera (EC3-6.9.6.3)"
    else:
        g.ResistenzaGiunto = " Giunto a parziale ripristino di\r\n  resistenza (EC3-6.9.6.3)"
    g.M_elastico = 2 / 3 * g.MplRdGIUNTO
    F = (0.5 if g.Classe == "10.9" else 0.6) * g.fubl * g.Areares / g.gamma[2]
    g.Vrd0, g.Vrd1 = 2 * F / 1000, 2 * (1.8 / 1.4) * F / 1000


# ------------------------------------------------------------------------------------------ stiffness


def rigidezza(g):
    t, c = g.t, g.c
    tw = c.tw
    si, no = g.Irrigidimenti == "Si", g.Irrigidimenti == "No"
    if t.lunghezza:
        EJ_L = 210000 * t.Jy / (1000 * t.lunghezza) / 1e6
        g.LimiteCerniera, g.LimiteRigido2, g.LimiteRigido1 = 0.5 * EJ_L, 8 * EJ_L, 25 * EJ_L
    g.k1 = 0.38 if g.Beta > 0 else INF
    g.k2 = INF if si else 0.8
    g.k3 = 0.8 if no else INF
    g.k4 = c.tf**3 / (4 * g.mc**2 * tw)
    if si:
        g.k4 = max(g.k4, c.tf**3 / (12 * (g.m2c / (g.ec + g.mc)) * g.mc**2 * tw))
    g.k5 = 2 * g.Areares / (tw * g.lb)
    g.k6 = max(g.tf**3 / (4 * g.mf**2 * tw), g.tf**3 / (12 * (g.m2 / (g.ef + g.mf)) * g.mf**2 * tw))
    if g.nf == 2:
        g.k6_Estesa = g.tf**3 / (4 * g.mx**2 * tw)
    g.mu1 = g.mu2 = g.mu3 = 1.0
    g.mu4 = g.mu5 = g.mu6 = g.zInt * g.FtRd_EffInf / (1000 * g.MplRdGIUNTO)
    if g.nf == 2:
        g.mu4_Estesa = g.mu5_Estesa = g.mu6_Estesa = g.zEst * g.FtRd_EffSup / (1000 * g.MplRdGIUNTO)
    g.FtotFile = g.FtRd_EffInf + (g.FtRd_EffSup if g.nf == 2 else 0)

    def livello(nome, mu):
        def eta(R, F=g.FtotFile):
            return max((F / (R * mu)) ** 2, (1 / 1.5) ** 2)

        comune = eta(g.VplRd_Pannello_c) * g.mu1 / g.k1 if g.Beta > 0 else 0.0
        comune += 0.0 if si else eta(g.FtRd_Anima_c) * g.mu2 / g.k2
        comune += eta(min(g.FcRd_Anima_c, g.NbRd_Anima_c)) * g.mu3 / g.k3 if no else 0.0
        eta4 = eta(g.Ftrd_FilaInf_c + g.Ftrd_FilaSup_c)
        eta6 = eta(g.FtRd_FilaSup_f + g.FtRd_FilaInf_f)
        S = comune + eta4 * g.mu4 / g.k4 + eta(bt(g) * 2, g.FtRd_EffInf) * g.mu5 / g.k5 + eta6 * g.mu6 / g.k6
        interna = g.zInt**2 * 210000 * tw / S * 1e-6 if S else 0.0
        setattr(g, nome + "_", interna)
        setattr(g, nome, interna)
        if g.nf == 2:
            S = (comune + eta4 * g.mu4_Estesa / g.k4 + eta(bt(g) * 2, g.FtRd_EffSup) * g.mu5_Estesa / g.k5
                 + eta6 * g.mu6_Estesa / g.k6_Estesa)
            esterna = g.zEst**2 * 210000 * tw / S * 1e-6 if S else 0.0
            setattr(g, nome + "_Estesa", esterna)
            setattr(g, nome, max(interna, esterna))

    livello("Sj_MjRd", 1)
    livello("Sj_Mela", 1.5)
    g.Sj_MjSd_ = g.Sj_MjSd_Estesa = g.Sj_MjSd = 0.0
    if t.Mysd:
        livello("Sj_MjSd", g.MplRdGIUNTO / t.Mysd)
    if g.Sj_Mela < g.LimiteCerniera:
        g.RigidezzaGiunto1, g.RigidezzaGiunto2 = " Giunto a cerniera (EC3-6.9.6.2)", ""
        return

    def classe(limite):
        return ("semirigido" if g.Sj_Mela < limite else "rigido") + " (EC3-6.9.6.2)"

    g.RigidezzaGiunto1 = " Telaio controventato:Giunto " + classe(g.LimiteRigido2)
    g.RigidezzaGiunto2 = " Telaio non controventato:Giunto " + classe(g.LimiteRigido1)


# ------------------------------------------------------------------------------------------ the search


def progetta(g, ferma=None):
    """All improvements, the number of candidates and the best; the joint keeps the best's parameters."""
    CB = CA = f32(1.2)
    CR = f32(0.8)
    t, c = g.t, g.c
    passo = 1 if g.TipoProgetto else 5
    mira = [1.2 * t.McyRd / 1e6, t.McyRd / 1e6, t.Mysd][g.TipoUscitaProgetto]
    fattori_tensione(g)
    pannello(g)
    righe, migliore = [], None
    stato = {"n": 0, "fermo": False}
    due = g.nf == 2
    M = Mbest = 0.0
    bullone_iniziale = 1
    L_iniziale = 0.0
    if due:
        X = su(CB * 9 + CA * 9 + R2 * CR * g.Af)
        L_iniziale = X if g.TipoProgetto or X % 5 == 0 else X + 5 - X % 5

    def bullone_massimo():
        larghezze = [c.b] + ([g.bf] if g.bf > 0 else [])
        A = min(
            math.floor(((b - tw) / 2 - raccordo) / (CA + CB))
            for b in larghezze
            for tw, raccordo in ((c.tw, CR * g.sColonna), (t.tw, R2 * CR * g.aw))
        )
        if due:
            A = min(A, math.floor((g.L - R2 * CR * g.Af) / (CA + CB)))
        for i in range(1, 23):
            if foro(D[i - 1]) > A:
                return max(i - 1, 1)
        return 1

    def ef_massimo():
        larghezze = [c.b] + ([g.bf] if g.bf > 0 else [])
        return math.floor(min(
            (b - tw) / 2 - (raccordo + CA * g.d0)
            for b in larghezze
            for tw, raccordo in ((c.tw, CR * g.sColonna), (t.tw, R2 * CR * g.aw))
        ))

    bf = math.floor(t.b)
    while bf <= math.floor(c.b):
        g.bf = float(bf)
        ML = 0.0
        L = L_iniziale if due else 0.0
        while True:
            if due and L > math.floor(g.L_max):
                break
            if due:
                g.L = L
            MBolt = 0.0
            for i in range(bullone_iniziale, bullone_massimo() + 1):
                MEf = 0.0
                bullone(g, i)
                if due:
                    g.ex = su(CB * g.d0)
                g.d2 = su(R2 * CR * g.Af + CA * g.d0)
                for ef in range(int(su(CB * g.d0)), ef_massimo() + 1):
                    MTf = 0.0
                    g.ef = float(ef)
                    derivati(g)
                    anima_tesa(g, g.nf)
                    if g.Irrigidimenti == "Si":
                        g.FtRd_Anima_c = g.FtRd_Anima_c + ala_trave(g)
                    if g.Irrigidimenti != "No":
                        schiacciamento(g)
                        g.FcRd_AnimaIrrigidita_c = g.FcRd_Anima_c + ala_trave(g)
                        if due:
                            g.u = su(R2 * g.Af)
                    ala_colonna(g)
                    for tf in range(1, math.floor(g.tf_max) + 1):
                        g.tf = float(tf)
                        if g.Irrigidimenti == "No":
                            if due:
                                g.u = min(su(R2 * g.Af + g.tf), g.u_max)
                            schiacciamento(g)
                            instabilita(g)
                        debole(g)
                        flangia(g)
                        file_efficaci(g)
                        derivati(g)
                        completa(g)
                        M = g.MplRdGIUNTO
                        stato["n"] += 1
                        if M > Mbest:
                            Mbest = M
                            migliore = (i, g.tf, g.bf, g.ef, g.ex, g.L, g.d2, g.u)
                            riga = [len(righe) + 1, decimali(M, 2), g.Diam, g.tf, g.bf, g.ef]
                            riga += [g.ex, g.L - g.ex, g.d2, g.u] if due else [g.d2]
                            righe.append(riga)
                            bullone_iniziale, L_iniziale = i, g.L
                        if stato["n"] == ferma:
                            stato["fermo"] = True
                            break
                        if not M > MTf:
                            break
                        MTf = M
                        if M > mira:
                            break
                    if stato["fermo"]:
                        break
                    if not MTf > MEf:
                        if not due or not M > MEf:
                            break
                    else:
                        MEf = MTf
                    if M > mira:
                        break
                if stato["fermo"] or not MEf > MBolt:
                    break
                MBolt = MEf
                if M > mira:
                    break
            if stato["fermo"] or not due:
                break
            if not MBolt > ML:
                if L > (migliore[5] if migliore else 0) + 10:
                    break
            else:
                ML = MBolt
            if M > mira:
                break
            L += passo
        if stato["fermo"] or M > mira:
            break
        bf += passo if due else 5
    if migliore:
        bullone(g, migliore[0])
        g.tf, g.bf, g.ef, g.d2 = migliore[1], migliore[2], migliore[3], migliore[6]
        if due:
            g.ex, g.L, g.u = migliore[4], migliore[5], migliore[7]
        derivati(g)
    return righe, stato["n"], migliore


# ------------------------------------------------------------------------------------------ the node


def giunto(n, dati):
    g = Borsa()
    for nome in F32 + F64:
        setattr(g, nome, 0.0)
    for nome in I16:
        setattr(g, nome, 0)
    for nome in TESTI:
        setattr(g, nome, "")
    for nome, valore in dati.items():
        setattr(g, nome, valore)
    g.Kwc = g.Kfc = 1.0
    g.Cambia_af = False
    g.avvisi = []
    g.c = n.colonna
    g.t = n.sx if n.nGiunto == 2 else n.dx
    lati = {0: ("CroceDx", "CroceSn"), 1: ("Croce_Dx", "Croce_Sn"), 2: ("TDx",), 3: ("LDx",)}
    g.TipiGiunto = lati[n.Tipovie][n.nGiunto - 1]
    return g


ESTERNA = """Ftrd_FilaSup_c Ftrd_FilaSupRid_c leffEsterna FtRd_FilaSup_f FtRd_EffSup k6_Estesa mu4_Estesa mu5_Estesa
mu6_Estesa Sj_MjRd_Estesa Sj_Mela_Estesa Sj_MjSd_Estesa ex mx dX mxc p L u zEst""".split()


def calcola(n, g, progetto, ferma=None):
    t = g.t
    g.sTrave, g.sColonna = t.radice, g.c.radice
    if g.nf == 1:
        for nome in ESTERNA:
            setattr(g, nome, 0.0)
        g.ComponenteDeboleFilaSup = ""
    if progetto:
        bullone(g, 1)
        g.tf = g.tf_max
    saldature(g)
    if progetto:
        g.tf = 0.0
    irrigidimenti(n, g)
    if not progetto:
        derivati(g)
    g.z = (t.h - t.tf) / 1000
    beta(n, g)
    esito = None
    if progetto:
        esito = progetta(g, ferma)
        g.avvisi = [a for a in g.avvisi if a == "saldatura"]
        if not esito[2]:
            return esito
    verifica(g)
    rigidezza(g)
    return esito


# ------------------------------------------------------------------------------------------ cases


def catalogo(*famiglie):
    righe = []
    for famiglia in famiglie:
        with open(CATALOGO / (famiglia + ".csv"), newline="") as f:
            for r in csv.DictReader(f):
                righe.append(dict(nome=r["designation"], h=float(r["h_mm"]), b=float(r["b_mm"]),
                                  tw=float(r["tw_mm"]), tf=float(r["tf_mm"]), r1=float(r["r1_mm"]),
                                  Area=float(r["A_cm2"]) * 100, Jy=float(r["Iy_cm4"]) * 1e4,
                                  Wply=float(r["Wply_cm3"]) * 1000))
    return righe


def saldata(nome, h, b, tw, tf, r):
    A = 2 * b * tf + (h - 2 * tf) * tw + 2 * r * r
    J = (b * h**3 - (b - tw) * (h - 2 * tf) ** 3) / 12
    W = b * tf * (h - tf) + tw * (h - 2 * tf) ** 2 / 4
    return dict(nome=nome, h=h, b=b, tw=tw, tf=tf, r=r, Area=A, Jy=J, Wply=W, saldata=1)


ACCIAI = [(235, 360), (275, 430), (355, 510), (420, 520)]
GAMMA = [(1.05, 1.05, 1.25), (1.0, 1.0, 1.25), (1.1, 1.1, 1.35)]
CAMPI = "h b tw tf r1 r Area Jy fy fu NSd Mysd Vsd McyRd lunghezza saldata".split()


class Generatore:
    def __init__(self, seme):
        self.r = random.Random(seme)
        self.travi = [s for s in catalogo("IPE", "HEA") if 120 <= s["h"] <= 600]
        self.travi += [saldata("SA %d" % h, h, b, 8, tf, 6) for h, b, tf in ((250, 150, 10), (400, 180, 14), (500, 200, 6))]
        self.colonne = [s for s in catalogo("HEB", "HEA", "HEM", "HD") if s["h"] <= 700]
        self.colonne += [saldata("Colonna", 300, 300, 12, 20, 8), saldata("XS 400", 400, 320, 12, 22, 7)]

    def sezione(self, riga, acciaio, gamma0, **v):
        riga = dict(riga)
        W = riga.pop("Wply")
        return Sezione(fy=acciaio[0], fu=acciaio[1], McyRd=W * acciaio[0] / gamma0, **riga, **v)

    def nodo(self):
        r = self.r
        n = Borsa()
        n.gamma = tuple(f32(v) for v in r.choice(GAMMA))
        acciaio = r.choice(ACCIAI[:3]) if r.random() < 0.93 else ACCIAI[3]
        acciaio_colonna = r.choice(ACCIAI)
        n.Tipovie = r.randrange(4)
        n.NumeroGiunti = 2 if n.Tipovie < 2 else 1
        n.nGiunto = r.randint(1, n.NumeroGiunti)
        while True:
            c, t1 = r.choice(self.colonne), r.choice(self.travi)
            t2 = r.choice(self.travi) if r.random() < 0.6 else t1
            if c["b"] >= max(t1["b"], t2["b"]):
                break
        momenti = [0, 40, 85.5, -60, 120, 40]

        def trave(riga):
            return self.sezione(riga, acciaio, n.gamma[0], Mysd=r.choice(momenti), NSd=r.choice([0, 12.5]),
                                Vsd=r.choice([0, 55]), lunghezza=r.choice([0, 4.5, 6, 8, 12]))

        n.dx, n.sx = trave(t1), trave(t2)
        A = c["Area"]
        # Stresses from nothing to beyond yield, so that both reductions are met.
        n.colonna = self.sezione(c, acciaio_colonna, n.gamma[0], NSd=r.choice([0, 0.2, 0.6, 0.8, 2.7]) * A *
                                 acciaio_colonna[0] / 1000, Mysd=r.choice([0, 0, 25, 60, -30]), Vsd=r.choice([0, 30, -45]))
        n.VColSup = f32(r.choice([0, 20, -35])) if n.Tipovie in (0, 2) else 0.0
        return n

    def comuni(self, n):
        r = self.r
        return dict(nf=r.choice([1, 2]), Irrigidimenti=r.choice(["No", "Si", "Cp"]),
                    Beta_Cautel=r.random() < 0.5, gamma=n.gamma,
                    **r.choice([dict(Classe="8.8", fubl=800.0), dict(Classe="10.9", fubl=1000.0)]))

    def piastra(self, n):
        """Entries of a check: whole millimetres, a few half ones, anything from thin to thick."""
        r = self.r
        t = n.sx if n.nGiunto == 2 else n.dx
        dati = self.comuni(n)
        i = r.randint(3, 11)
        d0 = foro(D[i - 1])
        bf = math.floor(r.uniform(t.b, n.colonna.b))
        dati.update(bullone_=i, tf=float(r.choice([4, 5, 6, 8, 10, 12.5, 15, 18, 20, 25, 30, 40])), bf=float(bf),
                    ef=float(r.randint(round(0.6 * d0), max(round(0.6 * d0), bf // 2 - 25))),
                    d2=float(r.randint(round(0.9 * d0) + 8, round(2 * d0) + 12)))
        if dati["nf"] == 2:
            ex = float(r.randint(round(0.7 * d0), round(2 * d0)))
            dati.update(ex=ex, L=ex + r.randint(round(0.9 * d0) + 8, round(2 * d0) + 12), u=float(r.randint(0, 40)))
        return dati


def numero(v):
    return "%.15g" % v


def parola(v):
    return v.replace("\r\n", "|").replace(" ", "_")


def righe_dati(n, dati, altro):
    coppie = []
    for ruolo, s in (("c", n.colonna), ("dx", n.dx), ("sx", n.sx)):
        coppie.append("%s.nome=%s" % (ruolo, parola(s.nome)))
        coppie += ["%s.%s=%s" % (ruolo, k, numero(getattr(s, k))) for k in CAMPI if getattr(s, k)]
    coppie += ["Tipovie=%d" % n.Tipovie, "NumeroGiunti=%d" % n.NumeroGiunti, "nGiunto=%d" % n.nGiunto,
               "VColSup=" + numero(n.VColSup), "M0=" + numero(n.gamma[0]), "M1=" + numero(n.gamma[1]),
               "M2=" + numero(n.gamma[2])]
    for k, v in {**dati, **altro}.items():
        if k != "gamma":
            coppie.append("%s=%s" % (k.rstrip("_"), v if isinstance(v, str) else numero(float(v))))
    return scrive("dati", coppie)


def scrive(genere, coppie):
    righe, riga = [], genere
    for coppia in coppie:
        if len(riga) + len(coppia) > 110:
            righe.append(riga)
            riga = genere
        riga += " " + coppia
    return righe + [riga]


def attesi(g):
    coppie = ["%s=%s" % (k, numero(getattr(g, k))) for k in F32 + F64 + I16 + ["Kwc", "Kfc"]]
    coppie += ["%s=%s" % (k, parola(getattr(g, k))) for k in TESTI]
    coppie += ["Cambia_af=%d" % g.Cambia_af, "avvisi=" + ",".join(g.avvisi)]
    return scrive("attesi", coppie)


def casi_verifica(quanti):
    gen, righe, fatti = Generatore(1993), [], 0
    while fatti < quanti:
        n = gen.nodo()
        dati = gen.piastra(n)
        g = giunto(n, {k: v for k, v in dati.items() if k != "bullone_"})
        bullone(g, dati["bullone_"])
        try:
            calcola(n, g, False)
        except (ArithmeticError, IndexError):
            continue
        if min(g.mc, g.mf, g.m2, g.MplRdGIUNTO) <= 0 or (g.nf == 2 and g.mx <= 0):
            continue
        fatti += 1
        nome = "%03d %s su %s, %d file, %s" % (fatti, g.t.nome, g.c.nome, g.nf, g.Irrigidimenti)
        righe += ["", "caso " + nome] + righe_dati(n, dati, {}) + attesi(g)
    return righe


def casi_sequenza(quante, passi):
    """One joint, changed and checked again and again: what a road does not write stays."""
    gen, righe, fatte = Generatore(2005), [], 0
    while fatte < quante:
        n = gen.nodo()
        g, blocco = None, []
        try:
            for passo in range(passi):
                dati = gen.piastra(n)
                if g is None:
                    g = giunto(n, {})
                for nome in "ex L u".split():
                    setattr(g, nome, 0.0)
                for nome, valore in dati.items():
                    setattr(g, nome, valore)
                bullone(g, dati["bullone_"])
                g.avvisi = []
                calcola(n, g, False)
                if min(g.mc, g.mf, g.m2, g.MplRdGIUNTO) <= 0 or (g.nf == 2 and g.mx <= 0):
                    raise ArithmeticError
                nome = "%02d.%d %d file, %s" % (fatte + 1, passo + 1, g.nf, g.Irrigidimenti)
                blocco += ["", "caso " + nome] + righe_dati(n, dati, {}) + attesi(g)
        except (ArithmeticError, IndexError):
            continue
        fatte += 1
        righe += blocco
    return righe


def casi_limite(quanti):
    """Room for the holes, at rest and in a search."""
    gen, righe = Generatore(1998), []
    for caso in range(quanti):
        n = gen.nodo()
        dati = gen.comuni(n)
        r = gen.r
        ricerca = caso % 2
        t, c = (n.sx if n.nGiunto == 2 else n.dx), n.colonna
        i = r.randint(1, 12)
        dati.update(bullone_=i, bf=float(r.choice([0, math.floor(t.b), math.floor((t.b + c.b) / 2)])),
                    L=float(r.choice([0, 30, 55, 90])), Af=float(r.randint(3, 12)), aw=float(r.randint(3, 8)),
                    TipoProgetto=r.choice([0, 1]))
        CB, CA, CR = (f32(1.2), f32(1.2), f32(0.8)) if ricerca else (0.5, 0.5, 1.0)
        d0, Af, L, bf = foro(D[i - 1]), dati["Af"], dati["L"], dati["bf"]
        fianchi = [((b - s.tw) / 2, resto) for b in ([c.b, bf] if bf > 0 else [c.b])
                   for s, resto in ((c, CR * c.radice), (t, R2 * CR * dati["aw"]))]
        A = min(math.floor((meta - resto) / (CA + CB)) for meta, resto in fianchi)
        if dati["nf"] == 2:
            A = min(A, math.floor((L - R2 * CR * Af) / (CA + CB)))
        grandi = [k for k in range(1, 23) if foro(D[k - 1]) > A]
        X = su(CB * 9 + CA * 9 + R2 * CR * Af)
        uscita = dict(efmin=su(CB * d0), exmin=su(CB * d0), d2min=su(R2 * CR * Af + CA * d0),
                      efmax=math.floor(min(meta - (resto + CA * d0) for meta, resto in fianchi)),
                      Lmin=X if dati["TipoProgetto"] else 5.0 * math.ceil(X / 5),
                      bullone=max(grandi[0] - 1, 1) if grandi else 1)
        righe += ["", "caso %02d" % (caso + 1)] + righe_dati(n, dati, {"ricerca": ricerca})
        righe += scrive("attesi", ["%s=%s" % (k, numero(v)) for k, v in uscita.items()])
    return righe


def casi_ricerca(quanti):
    gen, righe, fatti = Generatore(1992), [], 0
    while fatti < quanti:
        n = gen.nodo()
        dati = gen.comuni(n)
        r = gen.r
        dati.update(tf_max=float(r.choice([0, 8, 12, 20, 30, 40])), L_max=float(r.choice([60, 90, 120, 200])),
                    u_max=float(r.choice([8, 15, 40])), TipoProgetto=r.choice([0, 1]),
                    TipoUscitaProgetto=r.choice([0, 0, 1, 2]))
        t = n.sx if n.nGiunto == 2 else n.dx
        if dati["TipoUscitaProgetto"] == 2 and t.Mysd <= 0:
            continue
        ferma = r.choice([None, None, None, 1, 7, 40])
        g = giunto(n, dati)
        try:
            tabella, candidati, migliore = calcola(n, g, True, ferma)
        except (ArithmeticError, IndexError):
            continue
        if candidati > 30000:
            continue
        fatti += 1
        nome = "%02d %s su %s, %d file, %s" % (fatti, g.t.nome, g.c.nome, g.nf, g.Irrigidimenti)
        righe += ["", "caso " + nome] + righe_dati(n, dati, {"ferma": ferma or 0})
        coppie = ["candidati=%d" % candidati, "righe=%d" % len(tabella)]
        coppie += ["riga%d=%s" % (i + 1, ";".join(v if isinstance(v, str) else numero(v) for v in riga))
                   for i, riga in enumerate(tabella)]
        righe += scrive("attesi", coppie)
        if migliore:
            righe += attesi(g)
    return righe


def casi_alfa():
    righe = ["caso diagramma"]
    r = random.Random(7)
    punti = [(i / 10, j / 10) for i, j in ((0, 0), (3, 4), (9, 9), (4, 9))]
    punti += [(round(r.uniform(0, 1.1), 3), round(r.uniform(0, 1.3), 3)) for _ in range(22)]
    for l1, l2 in punti:
        try:
            valore = numero(alfa(l1, l2))
        except IndexError:
            valore = "errore"
        righe += ["", "caso %g %g" % (l1, l2), "dati lambda1=%s lambda2=%s" % (numero(l1), numero(l2)),
                  "attesi alfa=" + valore]
    return righe[1:]


def file(nome, righe):
    testa = ["# " + nome, "# Written by riferimento.py, which says how. mm, kN, kNm, N/mm2; McyRd in Nmm."]
    (QUI / nome).write_text("\n".join(testa + righe) + "\n")


if __name__ == "__main__":
    TAVOLE = dict(verifiche=lambda: casi_verifica(137), sequenze=lambda: casi_sequenza(10, 6),
                  limiti=lambda: casi_limite(40), alfa=casi_alfa, ricerche=lambda: casi_ricerca(45))
    for tavola in sys.argv[1:] or TAVOLE:
        file(tavola + ".txt", TAVOLE[tavola]())
