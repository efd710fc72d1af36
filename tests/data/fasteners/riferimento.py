#!/usr/bin/env python3
"""Expected values of bolts and fillet welds, derived a second time.

Writes the tables *.txt beside this script, which the tests in tests/fasteners read:

    python3 tests/data/fasteners/riferimento.py

The program computes in 64 bits on values stored in 32. Here everything is a fraction of whole numbers: a class
is the pair (8, 8), a strength a whole number, a distance a decimal; nothing is rounded before it is written.
Two values that are equal on paper are equal here, so a distance that stands exactly at its limit passes
without any care for the last bit. Pi and the root of 3 are rational approximations to 17 figures.

Shear, tension and bearing are written from ENV 1993-1-1 table 6.5.3 with the coefficients of each class and
the play of each diameter spelled out by size, not by ranges. The sentences of the advice are set down anew.
"""

import itertools
import pathlib
from fractions import Fraction as F

QUI = pathlib.Path(__file__).resolve().parent

PI = F(314159265358979324, 10**17)
RADICE3 = F(173205080756887729, 10**17)

# Diameter and resistant area, the standard play of the hole.
BULLONI = [(8, "38.6", 1), (10, "58", 1), (12, "84.3", 1), (14, "115", 1),
           (16, "157", 2), (18, "192", 2), (20, "245", 2), (22, "303", 2), (24, "353", 2),
           (27, "459", 3), (30, "581", 3), (33, "694", 3), (36, "817", 3), (39, "976", 3), (42, "1120", 3),
           (45, "1310", 3), (48, "1470", 3), (52, "1760", 3), (56, "2030", 3), (60, "2360", 3),
           (64, "2680", 3), (68, "3060", 3)]

# Ultimate and yield strength of each class, shear coefficient on the thread.
CLASSI = {"4.6": (400, 240, "0.6"), "4.8": (400, 320, "0.5"), "5.6": (500, 300, "0.6"), "5.8": (500, 400, "0.5"),
          "6.8": (600, 480, "0.5"), "8.8": (800, 640, "0.6"), "10.9": (1000, 900, "0.5")}


# -------------------------------------------------------------------------------------------------- numbers


def cifre(v, n):
    """v to n decimals, half away from zero."""
    scala = 10**n
    intero = (abs(v) * scala * 2 + 1) // 2
    testo = str(intero).rjust(n + 1, "0")
    segno = "-" if v < 0 and intero else ""
    return segno + (testo[:-n] + "." + testo[-n:] if n else testo)


def piano(v):
    """Shortest plain text, up to 7 significant figures."""
    v = F(v)
    interi = len(str(int(abs(v)))) if abs(v) >= 1 else 0
    testo = cifre(v, max(7 - interi, 0))
    return testo.rstrip("0").rstrip(".") if "." in testo else testo


def quattro(v):
    """A result box of 4 figures: short numbers as they are, others to 4 figures, below 1 to 4 decimals."""
    testo = piano(v)
    significative = testo.replace(".", "").lstrip("0") if v >= 1 else testo.partition(".")[2]
    if len(significative) < 4:
        return " " + testo
    return " " + cifre(v, max(4 - (len(str(int(v))) if v >= 1 else 0), 0))


# ---------------------------------------------------------------------------------------------------- bolts


class Bullone:
    def __init__(self, classe, posizione, gambo=False, do=None, fub=None, fu=360, t=10, e1=None, p1=None,
                 e2=None, p2=None, gamma="1.25", FvSd=0, FtSd=0):
        self.classe, self.posizione, self.gambo = classe, posizione, gambo
        self.d, area, gioco = BULLONI[posizione - 1]
        self.standard = self.d + gioco
        self.Ares = F(area)
        self.do = F(do if do is not None else self.standard)
        self.fub_classe, self.fyb, coefficiente = CLASSI[classe]
        self.fub_scritta = fub
        self.fub = F(fub if fub is not None else self.fub_classe)
        self.coefficiente = F(coefficiente)
        self.fu, self.t, self.gamma = F(fu), F(t), F(gamma)
        self.e1 = F(e1) if e1 is not None else 3 * self.do
        self.p1 = F(p1) if p1 is not None else F("3.75") * self.do
        self.e2 = F(e2) if e2 is not None else F("1.5") * self.do
        self.p2 = F(p2) if p2 is not None else 3 * self.do
        self.FvSd, self.FtSd = F(FvSd), F(FtSd)

    def alfa(self):
        return min(F(1), self.e1 / (3 * self.do), self.p1 / (3 * self.do) - F(1, 4), self.fub / self.fu)

    def k_bordo(self):
        return F(2, 3) + (self.e2 / self.do - F("1.2")) / (F("0.3") * 3)

    def k_passo(self):
        return F(2, 3) + (self.p2 / self.do - F("2.4")) / (F("0.6") * 3)

    def messaggi(self):
        def m(manca, testo, limite, articolo=""):
            return testo + cifre(F(limite), 1) + articolo if manca else ""

        do = self.do
        return [m(do < self.d, "do deve essere > d = ", self.d),
                m(self.e1 / do < F(6, 5), "e1 deve essere > 1.2 do = ", do * 6 / 5, " - EC3 #6.5.1.2. (1)"),
                m(self.p1 / do < F(11, 5), "p1 deve essere > 2.2 do = ", do * 11 / 5, " - EC3 #6.5.1.5. (1)"),
                m(self.e2 / do < F(6, 5), "e2 deve essere > 1.2 do = ", do * 6 / 5, " - EC3 #6.5.1.3. (2)"),
                m(self.p2 / do < F(12, 5), "p2 deve essere > 2.4 do = ", do * 12 / 5, " - EC3 #6.5.1.5. (2)")]

    def resistenze(self):
        lorda = PI * self.d * self.d / 4
        filettata = self.coefficiente * self.fub * self.Ares / self.gamma
        if self.coefficiente == F(1, 2) and self.d in (8, 10, 12, 14) and self.do > self.d + 1:
            filettata *= F(17, 20)
        gambo = F(3, 5) * self.fub * lorda / self.gamma
        Ft = F(9, 10) * self.fub * self.Ares / self.gamma
        Fb = F(5, 2) * self.alfa() * self.fu * self.d * self.t / self.gamma
        if any(self.messaggi()):
            Fb = F(0)
        else:
            Fb *= min(F(1), self.k_bordo()) * min(F(1), self.k_passo())
        Fv = gambo if self.gambo else filettata
        return {"Alorda": lorda, "Ataglio": lorda if self.gambo else self.Ares, "FtRd": Ft, "FvRdGambo": gambo,
                "FvRdFilettata": filettata, "FvRd": Fv, "alfa": self.alfa(), "FbRd": Fb,
                "interazione": self.FvSd / Fv + self.FtSd / (F(7, 5) * Ft)}

    def osservazioni(self):
        return "".join(osservazioni(self))

    def dati(self):
        voci = {"classe": self.classe, "posizione": self.posizione, "gambo": int(self.gambo),
                "gamma": piano(self.gamma), "do": piano(self.do), "fu": piano(self.fu), "t": piano(self.t),
                "e1": piano(self.e1), "p1": piano(self.p1), "e2": piano(self.e2), "p2": piano(self.p2),
                "FvSd": piano(self.FvSd), "FtSd": piano(self.FtSd)}
        if self.fub_scritta is not None:
            voci["fub"] = piano(self.fub_scritta)
        return voci


def osservazioni(b):
    """The advice in order; the sign of a paragraph stands for CR LF."""
    vuota = "¶¶"
    if b.do < b.d:
        yield "B E S T I A !!!  Il diametro del foro è inferiore al diametro del bullone."
        return
    if b.t <= 0:
        yield "Spessore piastra = 0 !!!!"
        return
    if b.d in (8, 10):
        yield "EC3 sembra escludere bulloni con diametro inferiore a 12 mm (bulloni M12)" + vuota
    if b.do > b.standard:
        yield "EC3 #7.5.2. (1)¶Il gioco foro-bullone = " + piano(b.do - b.d)
        yield " mm è maggiore del valore standard:¶"
        yield {1: "   1 mm per bulloni M12 e M14 ¶"
                  "EC3 #6.5.5. (8) - Bulloni M12 e M14 possono essere usati in fori con 2 mm di gioco purchè per i "
                  "bulloni delle classi 4.8, 5.8, 6.8, 10.9 la resistenza di progetto a taglio Fv,Rd sia ridotta "
                  "all'85% (riduzione già operata dal programma)",
               2: "   2 mm per bulloni da M16 e M24 ",
               3: "   3 mm per bulloni M27 ed oltre "}[b.standard - b.d]
        yield vuota
    if b.alfa() < 1:
        yield "La resistenza a rifollamento è penalizzata (alfa = " + quattro(b.alfa()) + " < 1) perchè:"
        if b.e1 < 3 * b.do:
            yield "¶   e1 < 3 do = " + piano(3 * b.do)
        if b.p1 < b.do * 15 / 4:
            yield "¶   p1 < 3.75 do = " + piano(b.do * 15 / 4)
        if b.fub < b.fu:
            yield "¶   fub = " + piano(b.fub) + " < fu = " + piano(b.fu)
        yield vuota
    bordi = [("e1", b.e1), ("e2", b.e2)]
    passi = [("p1", b.p1), ("p2", b.p2)]
    intemperie = "esposto alle intemperie o ad altre azioni corrosive, "
    distanza = "la distanza massima dall'estremità o dal bordo "
    minore = "p1 e p2 non devono superare il valore minore fra "
    yield from oltre(40 + 4 * b.t, bordi, "EC3 #6.5.1.4. (1)¶Se il giunto è " + intemperie + distanza
                     + "deve essere inferiore a 40 mm + 4 t = ")
    yield from oltre(max(12 * b.t, F(150)), bordi, "EC3 #6.5.1.4. (2)¶Se il giunto non è " + intemperie + distanza
                     + "non deve superare il valore maggiore fra 12 t e 150 mm = ")
    yield from oltre(min(14 * b.t, F(200)), passi, "EC3 #6.5.1.6. (1)¶Se il giunto è compresso o è " + intemperie
                     + minore + "14 t e 200 mm = ")
    yield from oltre(min(21 * b.t, F(300)), passi, "EC3 #6.5.1.7. (2)¶Se il giunto è teso e non è " + intemperie
                     + minore + "1.5*(14 t e 200 mm) = ")
    if b.e2 / b.do < F(3, 2):
        yield "EC3 #6.5.5. (10)¶Poichè e2 < 1.5 do = " + piano(b.do * 3 / 2)
        yield ", la resistenza a rifollamento è penalizzata con coefficiente " + quattro(b.k_bordo()) + vuota
    if b.p2 / b.do < 3:
        yield "EC3 #6.5.5. (10)¶Poichè p2 < 3 do = " + piano(3 * b.do)
        yield ", la resistenza a rifollamento è penalizzata con coefficiente " + quattro(b.k_passo())


def oltre(limite, distanze, testo):
    """A paragraph on the distances beyond a limit, where there are any."""
    troppe = [f"¶   {nome} = {piano(v)}" for nome, v in distanze if v > limite]
    if troppe:
        yield testo + cifre(limite, 0) + " mm. Si ha invece:" + "".join(troppe) + "¶¶"


# ---------------------------------------------------------------------------------------------------- cases

# Distances as multiples of the hole: e1, p1, e2, p2.
DISTANZE = [("predefinite", "3", "3.75", "1.5", "3"), ("al_minimo", "1.2", "2.2", "1.2", "2.4"),
            ("bordo_stretto", "3", "3.75", "1.3", "3"), ("passo_stretto", "3", "3.75", "1.5", "2.6"),
            ("corto", "1.8", "4", "2", "4"), ("fitto", "4", "2.5", "2", "4"), ("stretto", "2", "3", "1.4", "2.8"),
            ("largo", "6", "8", "5", "9"), ("e1_manca", "1.1", "3.75", "1.5", "3"),
            ("p1_manca", "3", "2.1", "1.5", "3"), ("e2_manca", "3", "3.75", "1.1", "3"),
            ("p2_manca", "3", "3.75", "1.5", "2.3"), ("mancano_tutte", "1", "2", "1", "2")]
SPESSORI = ["10", "8", "12.5", "20", "5", "40", "0", "7.1"]
GAMMA = ["1.25", "1.25", "1.35", "1"]
FU = [360, 430, 510, 700]


def casi_bulloni():
    """Every size with every class; what else varies runs round at steps that have no common divisor."""
    combinazioni = itertools.product(range(1, len(BULLONI) + 1), CLASSI)
    for n, (posizione, classe) in enumerate(combinazioni):
        d, _, gioco = BULLONI[posizione - 1]
        do = [d + gioco, d + 1, d + gioco + 1, F(2 * d + 3, 2), d, d - 1][(n * 5) % 6]
        nome, *multipli = DISTANZE[(n * 3) % len(DISTANZE)]
        if do < d:
            nome = "foro_piccolo_" + nome
        e1, p1, e2, p2 = (F(m) * do for m in multipli)
        area = F(BULLONI[posizione - 1][1])
        b = Bullone(classe, posizione, gambo=n % 3 == 1, do=do, fu=FU[n % 4], t=SPESSORI[(n * 3) % 8], e1=e1, p1=p1,
                    e2=e2, p2=p2, gamma=GAMMA[(n * 7) % 4], fub=355 if n % 11 == 4 else None,
                    FvSd=int(area * 60), FtSd=int(area * (n % 5) * 50))
        yield f"M{d} {classe} {nome}", b


def casi_osservazioni():
    yield "foro inferiore al bullone", Bullone("8.8", 5, do=15)
    yield "foro uguale al bullone", Bullone("8.8", 5, do=16)
    yield "spessore nullo", Bullone("8.8", 5, t=0)
    yield "foro inferiore e spessore nullo", Bullone("8.8", 5, t=0, do=15)
    yield "niente da osservare", Bullone("8.8", 7, t=20)
    yield "bullone piccolo", Bullone("4.6", 1, t=10)
    yield "bullone piccolo in foro largo", Bullone("10.9", 2, t=10, do=12)
    yield "M12 in foro largo", Bullone("10.9", 3, t=10, do="14.5")
    yield "M14 in foro largo", Bullone("8.8", 4, t=12, do=16)
    yield "M16 in foro largo", Bullone("10.9", 5, t=10, do=19)
    yield "M24 in foro largo", Bullone("6.8", 9, t=20, do=27)
    yield "M27 in foro largo", Bullone("5.6", 10, t=20, do=31)
    yield "penalizzata da e1", Bullone("8.8", 7, t=20, e1=40)
    yield "penalizzata da p1", Bullone("8.8", 7, t=20, p1=60)
    yield "penalizzata dal bullone", Bullone("4.6", 7, t=20, fu=510)
    yield "penalizzata da tutto", Bullone("5.8", 7, t=20, fu=510, e1=50, p1=70)
    yield "bordi oltre 40 + 4 t", Bullone("8.8", 7, t=20, e1=121, e2=130)
    yield "bordi oltre 150", Bullone("8.8", 7, t=5, e1=151, e2=60)
    yield "e2 oltre 12 t", Bullone("8.8", 7, t=20, e2="240.5")
    yield "e1 ed e2 ai limiti", Bullone("8.8", 7, t=20, e1=120, e2=120)
    yield "passi oltre 14 t", Bullone("8.8", 7, t=5, p1=100, p2=105)
    yield "passi oltre 21 t", Bullone("8.8", 7, t=5, p1=106, p2="105.5")
    yield "passi oltre 200", Bullone("8.8", 7, t=20, p1=201, p2=200)
    yield "passi oltre 300", Bullone("8.8", 7, t=20, p1=300, p2="300.5")
    yield "spessore con decimali", Bullone("8.8", 7, t="7.3", e1=80, p1=120, p2=103)
    yield "e2 riduce", Bullone("8.8", 7, t=20, e2=28)
    yield "p2 riduce", Bullone("8.8", 7, t=20, p2=60)
    yield "e2 e p2 al minimo", Bullone("8.8", 7, t=20, e2="26.4", p2="52.8")
    yield "e2 e p2 sotto il minimo", Bullone("8.8", 7, t=20, e2=20, p2=40)
    yield "tutto insieme", Bullone("4.8", 2, t=3, do=13, fu=430, e1=35, p1="43.5", e2=160, p2=32)


def casi_saldature():
    """The five strengths with three partial factors."""
    for (fu, beta), gamma in itertools.product([(360, "0.8"), (430, "0.85"), (510, "0.9"), (520, "1"), (540, "1")],
                                               ["1.25", "1.35", "1"]):
        yield fu, gamma, F(beta), F(fu) / RADICE3 / F(beta) / F(gamma)


# --------------------------------------------------------------------------------------------------- output

TESTA = "# {}\n# Written by riferimento.py, which says how. mm, N.\n"


def righe(genere, voci):
    """Lines of "key=value" of at most some 110 characters; blanks in values become underscores."""
    riga = genere
    for k, v in voci.items():
        coppia = f" {k}=" + str(v).replace(" ", "_")
        if len(riga) + len(coppia) > 110:
            yield riga
            riga = genere
        riga += coppia
    yield riga


def scrive(nome, titolo, corpo):
    (QUI / nome).write_text(TESTA.format(titolo) + "\n" + "\n".join(corpo) + "\n", encoding="utf-8")


def main():
    corpo = []
    for nome, b in casi_bulloni():
        attesi = {"fub_classe": b.fub_classe, "fyb": b.fyb, "d": b.d, "Ares": piano(b.Ares), "foro": b.standard}
        attesi |= {k: f"{float(v):.10g}" for k, v in b.resistenze().items()}
        attesi |= {f"m{i}": m for i, m in enumerate(b.messaggi(), 1) if m}
        corpo += ["caso " + nome, *righe("dati", b.dati()), *righe("attesi", attesi), ""]
    scrive("bulloni.txt", "Bolts of every size and class", corpo[:-1])

    corpo = []
    for nome, b in casi_osservazioni():
        corpo += ["caso " + nome, *righe("dati", b.dati()), "testo", b.osservazioni().replace("¶", "¶\n"), "fine", ""]
    scrive("osservazioni.txt", "Advice to the letter; ¶ and the new line after it stand for CR LF", corpo[:-1])

    corpo = []
    for fu, gamma, beta, fvwd in casi_saldature():
        corpo += [f"caso fu {fu}, gamma {gamma}", f"dati fu={fu} gamma={gamma}",
                  f"attesi betaW={piano(beta)} fvwd={float(fvwd):.10g}", ""]
    scrive("saldature.txt", "Fillet welds", corpo[:-1])


if __name__ == "__main__":
    main()
