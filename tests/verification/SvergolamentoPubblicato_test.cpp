// Critical moments and lateral-torsional buckling: published examples.
#include "Profili.h"
#include "Verbale.h"

using namespace sagomi;
using namespace sagomi::verifica;

namespace {

class SvergolamentoPubblicato : public Ambiente {
protected:
    /// A beam on fork supports, L in mm.
    static void Trave(SezioneDoppioT& s, double L, double C1, double c2 = 0, double za = 0) {
        s.k = s.Kw = 1;
        s.LLT = L;
        s.C1 = C1;
        s.c2 = c2;
        s.za = za;
        s.McrFunz();
        s.MbRdSub();
    }
};

const char* const curvaDel1992 = "La ENV dà ai laminati la curva a con la snellezza intera (5.5.2); "
                                 "l'esempio usa il metodo di EN 1993-1-1 "
                                 "6.3.2.3, con β 0,75 e la curva c.";
const char* const curvaGenerale =
    "La ENV dà ai laminati la curva a; l'esempio usa la curva b di EN 1993-1-1 6.3.2.2.";

TEST_F(SvergolamentoPubblicato, Ipe330CaricataAllEstradosso) {
    auto s = Laminata("IPE 330", 235, 330, 160, 7.5, 11.5, 18);
    s.Jz = 788.1e4;
    s.JT = 28.15e4;
    s.Jw = 199.1e9;
    Trave(s, 5700, 1.127, 0.454, 165);
    Esempio(Capitolo::svergolamento, "MSB04", "esempio A.1, p. 4-61",
            "IPE 330, S235, 5,70 m, carico uniforme all'estradosso, C<sub>1</sub> 1,127, C<sub>2</sub> 0,454")
        .Confronta("M<sub>cr</sub>", "kNm", "113.9", s.Mcr / 1e6, 0.002)
        .Confronta("λ̄<sub>LT</sub>", "-", "1.288", s.LamdaLT, 0.002)
        .Confronta("χ<sub>LT</sub>", "-", "0.480", s.ChiLT, 0.02, curvaDel1992);
}

TEST_F(SvergolamentoPubblicato, Ipe500) {
    auto s = Laminata("IPE 500", 235, 500, 200, 10.2, 16, 21);
    Trave(s, 3750, 1);
    Esempio e(Capitolo::svergolamento, "ECCS119", "esempio svolto 5", "IPE 500, S235, 3,75 m");
    e.Confronta("M<sub>cr,0</sub>", "kNm", "899.4", s.Mcr / 1e6, 0.003)
        .Confronta("λ̄<sub>0</sub>", "-", "0.757", s.LamdaLT, 0.002);
    Trave(s, 3750, 1.2);
    e.Confronta("M<sub>cr</sub>, C<sub>1</sub> 1,2", "kNm", "1079", s.Mcr / 1e6, 0.003)
        .Confronta("λ̄<sub>LT</sub>", "-", "0.691", s.LamdaLT, 0.002)
        .Confronta("χ<sub>LT</sub>", "-", "0.789", s.ChiLT, 0.1, curvaGenerale);
}

TEST_F(SvergolamentoPubblicato, TraviInglesi) {
    auto ub98 = Laminata("UB 457x191x98", 265, 467.2, 192.8, 11.4, 19.6, 10.2);
    Trave(ub98, 6000, 1.127);
    Esempio(Capitolo::svergolamento, "P387", "esempio 02",
            "UB 457x191x98, S275, 6 m, C<sub>1</sub> 1,127, carico nel centro")
        .Confronta("M<sub>cr</sub>", "kNm", "534.0", ub98.Mcr / 1e6, 0.01)
        .Confronta("χ<sub>LT</sub>", "-", "0.601", ub98.ChiLT, 0.2, curvaDel1992);
    auto ub67 = Laminata("UB 457x191x67", 275, 453.4, 189.9, 8.5, 12.7, 10.2);
    Trave(ub67, 9000, 1);
    Esempio(Capitolo::svergolamento, "P364", "esempio 3, foglio 8",
            "UB 457x191x67, S275, 9 m, momento costante: M<sub>cr</sub> di un programma agli elementi finiti")
        .Confronta("M<sub>cr</sub>", "kNm", "134.2", ub67.Mcr / 1e6, 0.015,
                   "L'esempio usa G 81000 N/mm² e le costanti della tavola, il programma 80769 e quelle del "
                   "contorno.");
    Trave(ub67, 9000, 355.7 / 134.2);
    Esempio(Capitolo::svergolamento, "P364", "esempio 3, fogli 7-9", "la stessa, M<sub>cr</sub> 355,7 kNm")
        .Confronta("λ̄<sub>LT</sub>", "-", "1.07", ub67.LamdaLT, 0.01)
        .Confronta("χ<sub>LT</sub>", "-", "0.60", ub67.ChiLT, 0.1, curvaDel1992);
    auto ub173 = Laminata("UB 762x267x173", 275, 762.2, 266.7, 14.3, 21.6, 16.5);
    Trave(ub173, 5100, 1.879);
    Esempio(Capitolo::svergolamento, "Gardner05", "esempio 6.8",
            "UB 762x267x173, S275, 5,10 m, ψ 0, C<sub>1</sub> 1,879")
        .Confronta("M<sub>cr</sub>", "kNm", "4311", ub173.Mcr / 1e6, 0.005)
        .Confronta("χ<sub>LT</sub>", "-", "0.82", ub173.ChiLT, 0.1, curvaGenerale);
    auto ipe300 = Laminata("IPE 300", 355, 300, 150, 7.1, 10.7, 15);
    Trave(ipe300, 6000, 1);
    Esempio(Capitolo::svergolamento, "SN003", "espressione (3)",
            "IPE 300, 6 m, momento costante, I<sub>z</sub> 603,8, I<sub>t</sub> 20,12 cm⁴, I<sub>w</sub> "
            "125900 cm⁶")
        .Confronta("M<sub>cr</sub>", "kNm", "90.47", ipe300.Mcr / 1e6, 0.01);
}

} // namespace
