#!/usr/bin/env python3
"""Expected values of composite beams and their studs, derived a second time.

Writes travi.txt, pioli.txt and *.sco beside this script, which tests/composite/TraviTabelle_test.cpp,
PioliTabelle_test.cpp and AcciaioClsFile_test.cpp read:

    python3 tests/data/composite/riferimento.py

It shares no line and no method with the program. The program walks round one outline of the steel and one of the
slab and cuts them; its searches end within a tolerance of area, force or first moment. Here steel and slab are
heaps of trapezoids, each integrated in closed form between two levels; the axis is found by bisection to the last
figure, once for each end of the program's tolerance. A result is written as the least and the greatest value that
the tolerance allows. Values stored in 32 bits are rounded to 32 bits here too.

The moment in equilibrium (Meq) is found a third way: forces by the side of the axis on which they lie, the bars
at their level, the axis where all of them balance.
"""

import math
import pathlib
import random
import struct

QUI = pathlib.Path(__file__).resolve().parent


def f32(v):
    return struct.unpack("<f", struct.pack("<f", v))[0]


# ------------------------------------------------------------------------------------------------- geometry


class Trapezio:
    """Levels y1 < y2, width b1 at the lower one and b2 at the upper one."""

    def __init__(self, y1, y2, b1, b2):
        self.y1, self.y2, self.b1, self.b2 = y1, y2, b1, b2

    def tra(self, da, a):
        """Area, first and second moment about y = 0 of what lies between two levels."""
        p, q = max(da, self.y1), min(a, self.y2)
        if q <= p:
            return (0.0, 0.0, 0.0)
        m = (self.b2 - self.b1) / (self.y2 - self.y1)
        k = self.b1 - m * self.y1  # width = k + m y

        def primitiva(n):
            return k * (q ** (n + 1) - p ** (n + 1)) / (n + 1) + m * (q ** (n + 2) - p ** (n + 2)) / (n + 2)

        return (primitiva(0), primitiva(1), primitiva(2))


class Mucchio:
    def __init__(self, parti):
        self.parti = [p for p in parti if p.y2 > p.y1]
        self.basso = min(p.y1 for p in self.parti)
        self.alto = max(p.y2 for p in self.parti)
        self.A, self.S, self.J = self.tra(-1e9, 1e9)
        self.yG = self.S / self.A

    def tra(self, da, a):
        somme = [p.tra(da, a) for p in self.parti]
        return tuple(math.fsum(s[i] for s in somme) for i in range(3))

    def sopra(self, y):
        return self.tra(y, 1e9)

    def sotto(self, y):
        return self.tra(-1e9, y)

    def livello(self, area):
        """Level above which so much area lies; the ends of the piece where there is not so much."""
        return bisezione(lambda y: self.sopra(y)[0] - area, self.basso, self.alto)


def bisezione(f, a, b):
    """Where a falling function passes 0, or the end that is nearest to it."""
    for _ in range(200):
        m = (a + b) / 2
        if f(m) > 0:
            a = m
        else:
            b = m
    return (a + b) / 2


def acciaio(s):
    """Two plates of flanges and a web, with straight or round fillets of 8 chords at the root."""
    h, tw = s["h"], s["tw"]
    bI, tI = s.get("bInf", s["b"]), s.get("tInf", s["tf"])
    bS, tS = s["b"], s["tf"]
    parti = [Trapezio(0, tI, bI, bI), Trapezio(tI, h - tS, tw, tw), Trapezio(h - tS, h, bS, bS)]
    if s.get("r", 0) > 0:
        r = s["r"]
        parti += [Trapezio(tI, tI + r, 2 * r, 0), Trapezio(h - tS - r, h - tS, 0, 2 * r)]
    if s.get("r1", 0) > 0:
        r = s["r1"]
        # Height z above the flange and what is left of the corner there, at the ends of the chords.
        punti = []
        for i in range(9):
            a = math.pi / 2 * i / 8
            punti.append((r - r * math.cos(a), r - r * math.sin(a)))  # (z, width beside the web)
        punti.sort()
        for (z1, b1), (z2, b2) in zip(punti, punti[1:]):
            parti.append(Trapezio(tI + z1, tI + z2, 2 * b1, 2 * b2))
            parti.append(Trapezio(h - tS - z2, h - tS - z1, 2 * b2, 2 * b1))
    return Mucchio(parti)


def soletta(c, H):
    tipo, hc, ha, beff = c["TipoSoletta"], c["hc"], c["ha"], c["beff"]
    if tipo == 0:
        return Mucchio([Trapezio(H + min(hc, 0), H + max(hc, 0), beff, beff)])
    if tipo == 1:
        return Mucchio([Trapezio(H + ha, H + hc, beff, beff)])
    bb, bs, i, b0t = c["bb"], c["bs"], c["iNervature"], c["b0t"]
    r = (i - bs - bb) / 2
    # Rib k has its lower width between these abscissas, on one side of the beam; the middle one is cut in two.
    fasce = [(0.0, b0t / 2, True)]
    x = b0t / 2 + 2 * r + bs
    while x - r < beff / 2:
        fasce.append((x, x + bb, False))
        x += i
    # Concrete at a height z of the ribs: what of each rib lies within beff/2. Its width changes slope where a
    # sloped side leaves the width beff: the levels of these heights part the trapezoids.
    def larghezza(z):
        somma = 0.0
        for a, b, meta in fasce:
            allarga = r * z / ha
            sin = 0.0 if meta else a - allarga
            somma += max(0.0, min(b + allarga, beff / 2) - min(sin, beff / 2))
        return 2 * somma

    quote = {0.0, ha}
    for a, b, meta in fasce:
        for z in ((beff / 2 - b) * ha / r if r else 0, (a - beff / 2) * ha / r if r else 0):
            if 0 < z < ha:
                quote.add(z)
    quote = sorted(quote)
    parti = [Trapezio(H + z1, H + z2, larghezza(z1 + 1e-13), larghezza(z2 - 1e-13))
             for z1, z2 in zip(quote, quote[1:])]
    return Mucchio(parti + [Trapezio(H + ha, H + hc, beff, beff)])


# --------------------------------------------------------------------------------------------------- beams


class Trave:
    def __init__(self, c):
        self.c = c
        self.H = c["sezione"]["h"]
        self.a = acciaio(c["sezione"])
        self.s = soletta(c, self.H)
        self.hc = c["hc"]
        self.As = c["As"]
        self.fyd = c["sezione"]["fy"] / c["GammaM0"]
        self.fcd = 0.85 * c["fck"] / 1.5
        self.fsd = c["fsk"] / 1.15
        self.Fa, self.Fs, self.Fc = self.fyd * self.a.A, self.fsd * self.As, self.fcd * self.s.A
        self.yB = self.H + self.hc - c["c"]
        self.n = c["n"]
        self.cima = self.H + max(self.hc, 0)
        self.toll = self.H * self.a.A / 1e5

    # ---- plastic, axis above the steel's lower fibre by a share of an area

    def positivo(self, e):
        """e from -1 to 1: where in its tolerance of area the program's search has ended."""
        if self.Fs > self.Fa:
            return dict(MplRd=(self.yB - self.a.yG) * self.Fa, yNeutro=self.H, Vl=0.0, parti="0000")
        if self.Fs + self.Fc < self.Fa:
            Ac = (self.Fa - self.Fs - self.Fc) / 2 / self.fyd + e * self.a.A / 1e4
            y = self.a.livello(Ac)
            su, giu = self.a.sopra(y), self.a.sotto(y)
            M = self.yB * self.Fs + self.fcd * self.s.S - self.fyd * (giu[1] - su[1])
            return dict(MplRd=M, yNeutro=y, Vl=self.Fs + self.Fc, parti="1011")
        A = (self.Fa - self.Fs) / self.fcd + e * self.s.A / 1e4
        y = self.s.livello(A)
        M = -self.Fa * self.a.yG + self.yB * self.Fs + self.fcd * self.s.sopra(y)[1]
        return dict(MplRd=M, yNeutro=y, Vl=self.Fa)

    def negativo(self, e):
        if self.Fs < self.Fa:
            At = (self.Fa - self.Fs) / 2 / self.fyd + e * self.a.A / 1e4
            y = self.a.livello(At)
            M = self.fyd * (self.a.sotto(y)[1] - self.a.sopra(y)[1]) - self.yB * self.Fs
            return dict(MplRd=M, yNeutro=y, Vl=self.Fs)
        libera = self.s.A - self.c["beff"] * self.c["c"]
        limite = self.fcd * libera + self.Fa
        Fs, A = (self.Fs, (self.Fs - self.Fa) / self.fcd) if self.Fs < limite else (limite, libera)
        y = self.s.livello(self.s.A - A + e * self.s.A / 1e4)
        giu = self.s.sotto(y)
        M = self.Fa * self.a.yG - self.yB * Fs - self.fcd * giu[1]
        return dict(MplRd=M, yNeutro=y, Vl=Fs - self.fcd * giu[0])

    def barre(self, y):
        d = self.H / 1000
        t = max(-1.0, min(1.0, (y - self.yB) / d)) * self.fsd
        return t * self.As * (-1 if self.c["TipoVerifica"] == 1 else 1)

    def sotto_plastica(self, e):
        piu = self.c["TipoVerifica"] == 0
        compressa = lambda m, y: m.sopra(y) if piu else m.sotto(y)
        tesa = lambda m, y: m.sotto(y) if piu else m.sopra(y)

        def residuo(y):
            return (self.barre(y) + self.fcd * compressa(self.s, y)[0] +
                    self.fyd * (compressa(self.a, y)[0] - tesa(self.a, y)[0])) - e * self.toll

        y = zero(residuo, 0, self.H)
        if y is None:
            return None
        cls = compressa(self.s, y)
        M = (-self.fyd * (tesa(self.a, y)[1] - compressa(self.a, y)[1]) + self.fcd * cls[1] -
             self.fsd * self.As * self.yB)
        # Across the bars their force changes much within the last figure that 32 bits keep of the level.
        ultima = e * 2.0 ** (math.floor(math.log2(y)) - 23)
        return dict(MplRd=M, yNeutro=y, Vl=self.fcd * cls[0] + self.barre(y + ultima))

    def radici(self):
        """How often the residual of a slab below the top changes its sign: bars that push the wrong way make it
        rise again."""
        piu = self.c["TipoVerifica"] == 0
        cambi, prima = 0, None
        for i in range(2001):
            y = self.H * i / 2000
            meta = [m.sopra(y)[0] if piu else m.sotto(y)[0] for m in (self.s, self.a)]
            N = self.barre(y) + self.fcd * meta[0] + self.fyd * (2 * meta[1] - self.a.A)
            cambi += prima is not None and (N > 0) != (prima > 0)
            prima = N
        return cambi

    # ---- elastic

    def reagente(self, y):
        """Concrete that the equation counts."""
        piu = self.c["TipoVerifica"] == 2
        if self.s.basso < y < self.s.alto:
            return self.s.sopra(y) if piu else self.s.sotto(y)
        return self.s.sopra(-1e9) if piu else (0.0, 0.0, 0.0)

    def elastica(self, e):
        def residuo(y):
            A, S, _ = self.reagente(y)
            return self.a.S - self.a.A * y + self.As * (self.yB - y) + (S - A * y) / self.n - e * self.toll

        y = zero(residuo, 0, self.H + self.hc)
        if y is None:
            return None
        piu = self.c["TipoVerifica"] == 2
        A, S, J = self.s.sopra(y) if piu else self.s.sotto(y)
        Jid = (self.a.J - 2 * y * self.a.S + y * y * self.a.A + self.As * (y - self.yB) ** 2 +
               (J - 2 * y * S + y * y * A) / self.n)
        M = self.c["Msd"]
        z = self.cima - y if self.hc >= 0 or piu else self.H + self.hc - y
        Ss = (S - A * y) / self.n + (self.yB - y) * self.As
        return dict(yNeutro=y, Jid=Jid, SigmaCls=-M * z / Jid / self.n, SigmaInf=M * y / Jid,
                    SigmaSup=(y - self.H) * M / Jid, SigmaArm=(y - self.yB) * M / Jid, Ss=abs(Ss),
                    Vl=Ss * M / Jid)

    def esito(self, e):
        v = self.c["TipoVerifica"]
        if v >= 2:
            return self.elastica(e)
        if self.hc < 0:
            return self.sotto_plastica(e)
        return self.positivo(e) if v == 0 else self.negativo(e)

    # ---- equilibrium

    def equilibrio(self):
        piu = self.c["TipoVerifica"] == 0

        def bilancio(y, barre):
            """Force and moment about y = 0, compression positive; barre is the force of the bars."""
            cA, cS, _ = self.s.sopra(y) if piu else self.s.sotto(y)
            gA, gS, _ = self.a.sopra(y) if piu else self.a.sotto(y)
            N = self.fcd * cA + self.fyd * (2 * gA - self.a.A) + barre
            return N, self.fcd * cS + self.fyd * (2 * gS - self.a.S) + barre * self.yB

        N, M = bilancio(self.yB, 0)
        if abs(N) <= self.Fs:
            return M - N * self.yB
        segno = 1 if piu else -1
        # Bars above the axis are compressed in sagging. N falls with y in sagging and grows in hogging.
        if N * segno > 0:  # axis above the bars
            y = bisezione(lambda t: segno * bilancio(t, -segno * self.Fs)[0], self.yB, self.cima)
            return bilancio(y, -segno * self.Fs)[1]
        y = bisezione(lambda t: segno * bilancio(t, segno * self.Fs)[0], 0, self.yB)
        return bilancio(y, segno * self.Fs)[1]


def zero(f, a, b):
    """A change of sign within the bracket, falling or rising; None without one at its ends."""
    fa, fb = f(a), f(b)
    if fa * fb > 0:
        return None
    return bisezione(f if fa > 0 else (lambda y: -f(y)), a, b)


# ---------------------------------------------------------------------------------------------- what is given

SEZIONI = {
    "piatti300": dict(fy=235.0, h=300.0, b=150.0, tw=7.0, tf=11.0),
    "piatti600": dict(fy=355.0, h=600.0, b=220.0, tw=12.0, tf=19.0, r=6.0),
    "diverse500": dict(fy=275.0, h=500.0, b=160.0, tw=8.0, tf=10.0, bInf=250.0, tInf=20.0),
    "ipe200": dict(fy=235.0, h=200.0, b=100.0, tw=5.6, tf=8.5, r1=12.0),
    "ipe400": dict(fy=275.0, h=400.0, b=180.0, tw=8.6, tf=13.5, r1=21.0),
    "heb300": dict(fy=355.0, h=300.0, b=300.0, tw=11.0, tf=19.0, r1=27.0),
}

LAMIERA = dict(ha=55.0, bb=60.0, bs=90.0, iNervature=200.0, b0t=80.0)
ALTRA = dict(ha=73.5, bb=110.0, bs=61.5, iNervature=187.5, b0t=120.0)
NESSUNA = dict(ha=0.0, bb=0.0, bs=0.0, iNervature=0.0, b0t=0.0)
SOLETTE = {
    "piena": dict(TipoSoletta=0, hc=120.0, beff=1500.0, c=30.0, **NESSUNA),
    "sottile": dict(TipoSoletta=0, hc=60.0, beff=400.0, c=20.0, **NESSUNA),
    "trasversale": dict(TipoSoletta=1, hc=125.0, beff=1800.0, c=25.0, **LAMIERA),
    "parallela": dict(TipoSoletta=2, hc=130.0, beff=1230.0, c=35.0, **LAMIERA),
    "parallela2": dict(TipoSoletta=2, hc=140.0, beff=957.0, c=30.0, **ALTRA),
    "stretta": dict(TipoSoletta=2, hc=140.0, beff=100.0, c=30.0, **ALTRA),
    "sotto": dict(TipoSoletta=0, hc=-80.0, beff=500.0, c=-50.0, **NESSUNA),
    "sotto2": dict(TipoSoletta=0, hc=-60.0, beff=300.0, c=30.0, **NESSUNA),
}
BARRE = [0.0, 600.0, 2500.0, 9000.0, 40000.0]
MATERIALI = [dict(fck=25.0, fsk=430.0, n=15.0, GammaM0=1.0), dict(fck=35.0, fsk=450.0, n=7.5, GammaM0=1.05)]


def stretto(c):
    """Everything that the program keeps in 32 bits."""
    s = {k: f32(v) for k, v in c["sezione"].items()}
    return {k: v if k in ("sezione", "nome") or isinstance(v, int) else f32(v) for k, v in c.items()} | {
        "sezione": s}


def casi_travi():
    sorte = random.Random(1)
    for ns, sez in SEZIONI.items():
        for nl, sol in SOLETTE.items():
            for v in range(4):
                As = BARRE[sorte.randrange(len(BARRE))]
                if sol["hc"] < 0:
                    As = min(As, 2500.0)
                c = dict(sol, sezione=sez, TipoVerifica=v, As=As, Msd=(-1 if v in (1, 3) else 1) * 150e6,
                         **MATERIALI[sorte.randrange(2)])
                # Which of several zeros is found is the search's own matter.
                while sol["hc"] < 0 and v < 2 and Trave(stretto(c)).radici() > 1:
                    c["As"] = As = As / 2
                c["nome"] = f"{ns}_{nl}_{'slu' if v < 2 else 'n'}{'pn'[v % 2]}_As{As:g}"
                yield stretto(c)


CHIAVI = ["TipoSoletta", "TipoVerifica", "hc", "beff", "As", "c", "n", "fck", "fsk", "ha", "bb", "bs", "iNervature",
          "b0t", "Msd", "GammaM0"]


def scrive_travi():
    righe = ["# Written by riferimento.py; least and greatest value that the searches' tolerance allows.",
             "# mm, N, N mm, N/mm2. cambia=0: the residual keeps its sign between the ends of the bracket."]
    for c in casi_travi():
        t = Trave(c)
        esiti = [t.esito(e) for e in (-1, 0, 1)]
        righe.append("caso " + c["nome"])
        dati = [f"{k}={c[k]!r}" for k in CHIAVI] + [f"s.{k}={v!r}" for k, v in c["sezione"].items()]
        righe.append("dati " + " ".join(dati))
        if esiti[1] is None:
            righe.append("attesi cambia=0")
            continue
        if None in esiti:
            raise SystemExit("on the edge of the bracket: " + c["nome"])
        attesi = ["cambia=1"]
        for k in esiti[1]:
            if k == "parti":
                continue
            valori = [e[k] for e in esiti]
            attesi += [f"{k}_min={min(valori)!r}", f"{k}_max={max(valori)!r}"]
        if c["TipoVerifica"] < 2:
            attesi.append(f"Meq={t.equilibrio()!r}")
        righe.append("attesi " + " ".join(attesi))
    (QUI / "travi.txt").write_text("\n".join(righe) + "\n")


# --------------------------------------------------------------------------------------------------- studs

PIOLI = dict(TipoSoletta=0, hc=130.0, ha=55.0, bb=60.0, bs=90.0, iNervature=200.0, b0t=80.0, fck=25.0, d=19.0,
             h=100.0, fu=450.0, GammaV=1.25, Nr=1, Luce=8.0, Vl=1.2e6, MplRd=4e8, Ma=2e8, Msd=3e8)


def resistenza(c):
    """PRd1, PRd2, k, PRd and the message, or zeros."""
    nulla = (0.0, 0.0, 0.0, 0.0)
    d, h, ha, lamiera = c["d"], c["h"], c["ha"], c["TipoSoletta"] > 0
    if d <= 0 or lamiera and ha <= 0:
        return nulla, ""
    if h > c["hc"]:
        return nulla, "Il piolo esce dalla soletta!"
    if h < 3 * d:
        return nulla, f"h/d < 3 ({f32(3 * d):g} mm) EC4 #6.4.2.(1)"
    if lamiera and h < ha:
        return nulla, f"h deve essere maggiore di ha ({ha:g} mm)"
    acciaio = 0.8 * c["fu"] * math.pi * (d / 2) ** 2 / c["GammaV"]
    Ecm = f32(9.5 * 1000 * math.exp(math.log(c["fck"] + 8) / 3))
    alfa = min(1.0, 0.2 * (h / d + 1))
    cls = 0.29 * alfa * d ** 2 * math.sqrt(Ecm * c["fck"]) / c["GammaV"]
    k = 1.0
    if c["TipoSoletta"] == 1:
        k = min((0.8 if c["Nr"] == 2 else 1.0), 0.7 * c["b0"] * (h - ha) / ha ** 2 / math.sqrt(c["Nr"]))
    elif c["TipoSoletta"] == 2:
        k = min(1.0, 0.6 * c["b0"] * (min(h, ha + 75) - ha) / ha ** 2)
    return (acciaio, cls, k, k * min(acciaio, cls)), ""


def passo(c, n):
    """Spacing, its unit, ribs in it."""
    if n < 2:
        return 0.0, "", 0
    p = f32(c["Luce"] * 1000 * c["Nr"] / (n - 1))
    return p, "coppie_conn." if c["Nr"] == 2 else "connettori", int(p // c["iNervature"]) if c["TipoSoletta"] else 0


def casi_pioli():
    variazioni = [{}]
    variazioni += [dict(d=v) for v in (10.0, 13.0, 16.0, 22.0, 25.0, 0.0)]
    variazioni += [dict(h=v) for v in (57.0, 56.9, 65.0, 76.0, 130.0, 130.5)]
    variazioni += [dict(fck=v) for v in (20.0, 40.0, 60.0)]
    variazioni += [dict(fu=360.0), dict(fu=500.0, GammaV=1.5), dict(Luce=14.5), dict(Vl=3.3e5), dict(Vl=7e4)]
    variazioni += [dict(Msd=v) for v in (2e8, 1e8, -2.5e8, 3.999e8, 4e8)]
    for tipo in (0, 1, 2):
        for Nr in (1, 2):
            for v in variazioni:
                c = dict(PIOLI, TipoSoletta=tipo, Nr=Nr) | v
                c["nome"] = f"{'piena trasversale parallela'.split()[tipo]}_{Nr}_" + "_".join(
                    f"{k}{x:g}" for k, x in v.items())
                yield c
        if tipo:
            for v in (dict(ha=0.0), dict(ha=85.0, h=120.0), dict(ha=40.0, h=125.0), dict(ha=60.0, h=60.0, hc=140.0),
                      dict(ha=76.0, h=75.0), dict(ha=73.5, bb=110.0, bs=61.5, iNervature=187.5, h=125.0, b0t=120.0),
                      dict(ha=40.0, h=125.0, bb=150.0, bs=50.0, b0t=150.0), dict(ha=50.0, h=128.0, hc=140.0)):
                for Nr in (1, 2):
                    c = dict(PIOLI, TipoSoletta=tipo, Nr=Nr) | v
                    c["nome"] = f"{'piena trasversale parallela'.split()[tipo]}_{Nr}_" + "_".join(
                        f"{k}{x:g}" for k, x in v.items())
                    yield c


def scrive_pioli():
    righe = ["# Written by riferimento.py. mm, N, N mm, N/mm2; Luce in m."]
    for c in casi_pioli():
        nome = c.pop("nome")
        c = {k: v if isinstance(v, int) else f32(v) for k, v in c.items()}
        i, bb, bs = c["iNervature"], c["bb"], c["bs"]
        c["b0"] = f32([0.0, i / 2 - (bs - bb) / 2, c["b0t"] + i / 2 - bs / 2 - bb / 2][c["TipoSoletta"]])
        (P1, P2, k, P), messaggio = resistenza(c)
        righe.append("caso " + nome)
        righe.append("dati " + " ".join(f"{x}={v!r}" for x, v in c.items()))
        attesi = dict(PRd1=P1, PRd2=P2, kRiduzione=k, PRd=P)
        if messaggio:
            attesi["messaggio"] = messaggio.replace(" ", "_")
        if P > 0:
            meta = f32(c["Vl"] / P)
            n = 2 * math.ceil(meta)
            attesi["nConnettori"] = n
            attesi["Passo"], attesi["Unita"], attesi["nervature"] = passo(c, n)
            M = abs(c["Msd"])
            parte = 0.0 if M <= c["Ma"] else (M - c["Ma"]) / (c["MplRd"] - c["Ma"])
            parziale = 2 * math.ceil(meta * parte) if c["Nr"] == 1 else 2 * math.ceil(math.ceil(n * parte) / 2)
            attesi["nParziale"] = parziale
            attesi["PassoParziale"] = passo(c, parziale)[0]
        testi = [f"{x}={v if isinstance(v, str) else repr(v)}" for x, v in attesi.items() if v != ""]
        righe.append("attesi " + " ".join(testi))
    (QUI / "pioli.txt").write_text("\n".join(righe) + "\n")


# --------------------------------------------------------------------------------------------------- files


def corto(v):
    """The shortest text that reads back to the same 32 bits, with a point and no power of ten."""
    for cifre in range(1, 10):
        testo = f"{v:.{cifre}g}"
        if f32(float(testo)) == v:
            break
    e = math.floor(math.log10(abs(v))) if v else 0
    if -4 <= e <= 6:
        return f"{float(testo):.9f}".rstrip("0").rstrip(".")
    m, x = f"{float(testo):.8e}".split("e")
    return f"{m.rstrip('0').rstrip('.')}E{x}"


def scrive_file():
    casi = {
        "piena": (['"IPE 300"', '"S235 (Fe360)"', 235], [300, 150, 150, 7.1, 10.7, 10.7, 15, 0, 0], "##", '"Solaio A"',
                  [0, 0], [120, 1500, 1200, 30, 15, 25, 430], [0] * 5, [150.5e6, 8.5], [100, 19], [0]),
        "trasversale": (['"HEB 300"', '"S355 (Fe510)"', 355], [300, 300, 300, 11, 19, 19, 27, 0, 0], "##",
                        '"Travi, piano 2"', [1, 2], [125.5, 1800, 0, 25, 7.5, 30, 450], [55, 60, 90, 200, 0],
                        [-1.25e7, 12], [95, 22], [1]),
        "parallela": (['"ISE 500x73"', '"S275 (Fe430)"', 275], [500, 180, 180, 8, 12, 12, 0, 0, 5], "T#", '""',
                      [2, 1], [130, 1230, 2500, 35, 6.25, 35.5, 391.3], [73.5, 110, 61.5, 187.5, 120],
                      [-2.345678e8, 0], [125, 19], [0]),
        "sotto": (["\"HSD ''500''\"", '"S235 (Fe360)"', 223.8095], [500, 300, 200, 8, 15, 12, 0, 0, 5.5], "TT",
                  "\"Perché ''no''? 3 €\"", [0, 3], [-80, 0.333333, 0, -50, 14.5, 20, 500], [0] * 5, [-1, 0.05],
                  [0, 0], [-3]),
    }
    for nome, (sezione, misure, tipo, titolo, *record) in casi.items():
        righe = [",".join(v if isinstance(v, str) else corto(f32(v)) for v in sezione),
                 ",".join(corto(f32(v)) for v in misure),
                 ",".join("#TRUE#" if t == "T" else "#FALSE#" for t in tipo), titolo]
        righe += [",".join(corto(f32(v)) for v in r) for r in record]
        (QUI / f"{nome}.sco").write_bytes("".join(r + "\r\n" for r in righe).encode("cp1252"))


if __name__ == "__main__":
    scrive_travi()
    scrive_pioli()
    scrive_file()
