// Classes, resistances of the section, flexural buckling: published examples.
#include <cmath>

#include "Profili.h"
#include "Verbale.h"
#include "sections/ColonnaInstabilita.h"
#include "sections/Eurocod3.h"

using namespace sagomi;
using namespace sagomi::verifica;

namespace {

class AstePubblicate : public Ambiente {};

constexpr double cifreStampate = 0.005; ///< three printed figures

TEST_F(AstePubblicate, Classi) {
    const auto ipe270 = Laminata("IPE 270", 355, 270, 135, 6.6, 10.2, 15);
    Esempio(Capitolo::classi, "MSB04", "esempio A.3, pp. 4-74 e 4-75", "IPE 270, S355; classe 1")
        .Confronta("c/t<sub>f</sub>", "-", "4.82", ipe270.c / ipe270.tf, cifreStampate)
        .Confronta("c/t<sub>w</sub>", "-", "33.3", ipe270.d / ipe270.tw, cifreStampate)
        .Confronta("classe", "-", "1", ipe270.ClasseFlessioneY, 0);
    const auto ub533 = Laminata("UB 533x210x92", 275, 533.1, 209.3, 10.1, 15.6, 12.7);
    Esempio(Capitolo::classi, "P364", "esempio 2", "UB 533x210x92, S275, inflessa")
        .Confronta("c/t<sub>f</sub>", "-", "5.57", ub533.c / ub533.tf, cifreStampate)
        .Confronta("c/t<sub>w</sub>", "-", "47.18", ub533.d / ub533.tw, cifreStampate)
        .Confronta("classe", "-", "1", ub533.ClasseFlessioneY, 0);
    const auto uc356 = Laminata("UC 356x368x129", 345, 355.6, 368.6, 10.4, 17.5, 15.2);
    Esempio(Capitolo::classi, "P364", "esempio 9, fogli 2-3",
            "UC 356x368x129, S355 (f<sub>y</sub> 345), compressa")
        .Confronta("c/t<sub>f</sub>", "-", "9.37", uc356.c / uc356.tf, cifreStampate)
        .Confronta("c/t<sub>w</sub>", "-", "27.9", uc356.d / uc356.tw, cifreStampate)
        .Confronta("classe dell'ala", "-", "3", uc356.ClasseAlaC, 0)
        .Confronta("classe dell'anima", "-", "2", uc356.ClasseWebC, 0)
        .Confronta("classe", "-", "3", uc356.ClasseCompressione, 0);
    const auto ipe500 = Laminata("IPE 500", 235, 500, 200, 10.2, 16, 21);
    Esempio(Capitolo::classi, "ECCS119", "esempio svolto 5", "IPE 500, S235")
        .Confronta("c/t<sub>f</sub>", "-", "4.6", ipe500.c / ipe500.tf, 0.01)
        .Confronta("c/t<sub>w</sub>", "-", "41.8", ipe500.d / ipe500.tw, cifreStampate)
        .Confronta("classe dell'ala", "-", "1", ipe500.ClasseAlaC, 0);
}

TEST_F(AstePubblicate, SezioneInflessaETagliata) {
    const auto ipe330 = Laminata("IPE 330", 235, 330, 160, 7.5, 11.5, 18);
    Esempio(Capitolo::resistenza, "MSB04", "esempio A.1, p. 4-60", "IPE 330, S235")
        .Confronta("M<sub>c,y,Rd</sub>", "kNm", "189.01", ipe330.McyRd / 1e6, cifreStampate)
        .Confronta("V<sub>pl,z,Rd</sub>", "kN", "417.9", ipe330.VplyRd / 1e3, cifreStampate);
    const auto ipe400 = Laminata("IPE 400", 355, 400, 180, 8.6, 13.5, 21);
    Esempio(Capitolo::resistenza, "JRC-Simões", "esempio 2, p. 31", "IPE 400, S355")
        .Confronta("M<sub>pl,Rd</sub>", "kNm", "464.0", ipe400.MplyRd / 1e6, cifreStampate)
        .Confronta("V<sub>pl,Rd</sub>", "kN", "875.0", ipe400.VplyRd / 1e3, cifreStampate);
    const auto ub457 = Laminata("UB 457x191x82", 275, 460, 191.3, 9.9, 16, 10.2);
    Esempio(Capitolo::resistenza, "P387", "esempio 01", "UB 457x191x82, S275")
        .Confronta("M<sub>c,y,Rd</sub>", "kNm", "503", ub457.McyRd / 1e6, cifreStampate)
        .Confronta("V<sub>c,z,Rd</sub>", "kN", "756", ub457.VplyRd / 1e3, 0.02,
                   "L'esempio prende l'area 104 cm² della tavola, il programma quella del contorno.");
    const auto ub533 = Laminata("UB 533x210x92", 275, 533.1, 209.3, 10.1, 15.6, 12.7);
    Esempio(Capitolo::resistenza, "P364", "esempio 2", "UB 533x210x92, S275")
        .Confronta("M<sub>c,y,Rd</sub>", "kNm", "649", ub533.McyRd / 1e6, cifreStampate)
        .Confronta("V<sub>pl,z,Rd</sub>", "kN", "909", ub533.VplyRd / 1e3, 0.01);
    const auto ipe500 = Laminata("IPE 500", 235, 500, 200, 10.2, 16, 21);
    Esempio(Capitolo::resistenza, "ECCS119", "esempio svolto 5", "IPE 500, S235")
        .Confronta("N<sub>c,Rd</sub>", "kN", "2715", ipe500.NplRd / 1e3, cifreStampate)
        .Confronta("M<sub>c,y,Rd</sub>", "kNm", "516", ipe500.McyRd / 1e6, cifreStampate)
        .Confronta("M<sub>c,z,Rd</sub>", "kNm", "78.9", ipe500.MczRd / 1e6, cifreStampate)
        .Confronta("V<sub>pl,z,Rd</sub>", "kN", "814", ipe500.VplyRd / 1e3, cifreStampate)
        .Confronta("V<sub>pl,y,Rd</sub>", "kN", "912", ipe500.VplzRd / 1e3, 0.06,
                   "Nell'esempio A<sub>v,y</sub> è l'area meno quella dell'anima; il programma conta le due "
                   "ali, 2 b "
                   "t<sub>f</sub>, senza i raccordi.");
}

TEST_F(AstePubblicate, CurveDiInstabilita) {
    const auto chi = [](const char* curva, double lamda) { return Chi(AlfaCurva(curva), lamda); };
    Esempio(Capitolo::instabilita, "ESDEP", "tabella 1, Reduction factors", "snellezza relativa 1,0")
        .Confronta("χ, curva a", "-", "0.6656", chi("a", 1), 1e-4)
        .Confronta("χ, curva b", "-", "0.5970", chi("b", 1), 1e-4)
        .Confronta("χ, curva c", "-", "0.5399", chi("c", 1), 1e-4)
        .Confronta("χ, curva d", "-", "0.4671", chi("d", 1), 1e-4);
    Esempio(Capitolo::instabilita, "ENV1993", "prospetto 5.5.2", "snellezze relative 0,5, 1,5 e 2,0")
        .Confronta("χ, curva a, 0,5", "-", "0.9243", chi("a", 0.5), 1e-4)
        .Confronta("χ, curva b, 0,5", "-", "0.8842", chi("b", 0.5), 1e-4)
        .Confronta("χ, curva c, 0,5", "-", "0.8430", chi("c", 0.5), 1e-4)
        .Confronta("χ, curva d, 0,5", "-", "0.7793", chi("d", 0.5), 1e-4)
        .Confronta("χ, curva a, 1,5", "-", "0.3724", chi("a", 1.5), 2e-4)
        .Confronta("χ, curva c, 1,5", "-", "0.3145", chi("c", 1.5), 2e-4)
        .Confronta("χ, curva b, 2,0", "-", "0.2095", chi("b", 2), 3e-4);
}

TEST_F(AstePubblicate, ColonneLaminate) {
    const double A = 14900;
    const auto y = CalcolaColonna(8000 / std::sqrt(25170e4 / A), 235, 1, A, "b");
    const auto z = CalcolaColonna(5600 / std::sqrt(8560e4 / A), 235, 1, A, "c");
    Esempio(Capitolo::instabilita, "MSB04", "esempio A.5, pp. 4-95...4-97",
            "HE 300 B, S235, A 149 cm², I<sub>y</sub> 25170, I<sub>z</sub> 8560 cm⁴, L<sub>cr</sub> 8,00 e "
            "5,60 m")
        .Confronta("N<sub>cr,y</sub>", "kN", "8151.2", y.Ncr / 1e3, 1e-4)
        .Confronta("N<sub>cr,z</sub>", "kN", "5657.4", z.Ncr / 1e3, 1e-4)
        .Confronta("λ̄<sub>y</sub>", "-", "0.655", y.lamdaSegnato, 0.002)
        .Confronta("λ̄<sub>z</sub>", "-", "0.787", z.lamdaSegnato, 0.002)
        .Confronta("φ<sub>y</sub>", "-", "0.792", y.fi, 0.002)
        .Confronta("χ<sub>y</sub>", "-", "0.808", y.chi, 0.002)
        .Confronta("χ<sub>z</sub>", "-", "0.671", z.chi, 0.002)
        .Confronta("N<sub>b,Rd</sub>", "kN", "2349.5", z.NbRd / 1e3, 0.002);
    const auto uc254 = CalcolaColonna(5000 / std::sqrt(3910e4 / 9310), 275, 1, 9310, "c");
    Esempio(Capitolo::instabilita, "P387", "esempio 05",
            "UC 254x254x73, S275, A 93,1 cm², I<sub>z</sub> 3910 cm⁴, 5 m")
        .Confronta("χ<sub>z</sub>", "-", "0.61", uc254.chi, 0.01)
        .Confronta("N<sub>b,z,Rd</sub>", "kN", "1562", uc254.NbRd / 1e3, 0.01);
    const auto uc356 = Laminata("UC 356x368x129", 345, 355.6, 368.6, 10.4, 17.5, 15.2);
    const auto cz = CalcolaColonna(6000 / 94.3, 345, 1, 16400, uc356.CurvaInstabilita("zz"));
    const auto cy = CalcolaColonna(6000 / 156.0, 345, 1, 16400, uc356.CurvaInstabilita("yy"));
    Esempio(Capitolo::instabilita, "P364", "esempio 9, fogli 3-5",
            "UC 356x368x129, f<sub>y</sub> 345, A 164 cm², i<sub>y</sub> 15,6, i<sub>z</sub> 9,43 cm, 6 m")
        .Confronta("N<sub>c,Rd</sub>", "kN", "5658", uc356.NplRd / 1e3, cifreStampate)
        .Confronta("λ̄<sub>z</sub>", "-", "0.82", cz.lamdaSegnato, 0.01)
        .Confronta("χ<sub>z</sub>", "-", "0.65", cz.chi, 0.01)
        .Confronta("N<sub>b,z,Rd</sub>", "kN", "3678", cz.NbRd / 1e3, cifreStampate)
        .Confronta("N<sub>b,y,Rd</sub>", "kN", "5010", cy.NbRd / 1e3, cifreStampate);
    const auto ipe500 = CalcolaColonna(3750 / 43.1, 235, 1, 11550, "b");
    Esempio(Capitolo::instabilita, "ECCS119", "esempio svolto 5", "IPE 500, S235, 3,75 m, asse debole")
        .Confronta("N<sub>cr,z</sub>", "kN", "3157", ipe500.Ncr / 1e3, cifreStampate)
        .Confronta("λ̄<sub>z</sub>", "-", "0.927", ipe500.lamdaSegnato, 0.002)
        .Confronta("χ<sub>z</sub>", "-", "0.644", ipe500.chi, 0.002);
    const auto he340 = Laminata("HE 340 B", 355, 340, 300, 12, 21.5, 27);
    const auto h = CalcolaColonna(4335 / he340.iZ, 355, 1, he340.Area, he340.CurvaInstabilita("zz"));
    Esempio(Capitolo::instabilita, "JRC-Simões", "esempio 1, p. 12", "HE 340 B, S355, 4,335 m")
        .Confronta("N<sub>c,Rd</sub>", "kN", "6067", he340.NplRd / 1e3, cifreStampate)
        .Confronta("λ̄<sub>z</sub>", "-", "0.75", h.lamdaSegnato, 0.01)
        .Confronta("χ<sub>z</sub>", "-", "0.69", h.chi, 0.01)
        .Confronta("N<sub>b,z,Rd</sub>", "kN", "4186.2", h.NbRd / 1e3, 0.01);
}

TEST_F(AstePubblicate, EsempiDellaGuidaAllEurocodice3) {
    const auto y = CalcolaColonna(2940 / std::sqrt(642.0e6 / 30600), 265, 1, 30600, "b");
    const auto z = CalcolaColonna(4200 / std::sqrt(203.1e6 / 30600), 265, 1, 30600, "c");
    Esempio(Capitolo::instabilita, "Gardner11", "esempio 6.10, pp. 86-93",
            "UC 305x305x240, f<sub>y</sub> 265, A 306 cm², I<sub>y</sub> 64200, I<sub>z</sub> 20310 cm⁴, "
            "2,94 e 4,20 m")
        .Confronta("N<sub>cr,y</sub>", "kN", "153943", y.Ncr / 1e3, 1e-4)
        .Confronta("N<sub>cr,z</sub>", "kN", "23863", z.Ncr / 1e3, 1e-4)
        .Confronta("χ<sub>y</sub>", "-", "0.99", y.chi, 0.01)
        .Confronta("χ<sub>z</sub>", "-", "0.80", z.chi, 0.01)
        .Confronta("N<sub>b,y,Rd</sub>", "kN", "8024", y.NbRd / 1e3, 0.002)
        .Confronta("N<sub>b,z,Rd</sub>", "kN", "6450", z.NbRd / 1e3, 0.002);
    const auto ry = CalcolaColonna(7200 / std::sqrt(36780000.0 / 8300), 355, 1, 8300, "a");
    const auto rz = CalcolaColonna(2400 / std::sqrt(11470000.0 / 8300), 355, 1, 8300, "a");
    Esempio(Capitolo::instabilita, "Gardner11", "esempio 6.9, pp. 78-85",
            "tubo 200x100x16, S355, A 83 cm², I<sub>y</sub> 3678, I<sub>z</sub> 1147 cm⁴, 7,20 e 2,40 m: "
            "sole formule")
        .Confronta("N<sub>b,y,Rd</sub>", "kN", "1209", ry.NbRd / 1e3, 0.002)
        .Confronta("N<sub>b,z,Rd</sub>", "kN", "2266", rz.NbRd / 1e3, 0.002);
}

TEST_F(AstePubblicate, SforzoNormaleEMomento) {
    auto s = Laminata("UB 457x191x98", 265, 467.2, 192.8, 11.4, 19.6, 10.2);
    s.Area = 12500;
    s.Wply = 2230e3;
    s.InizializzaSezione();
    s.NSd = 1400e3;
    double MNy = 0, MNz = 0, beta = 0;
    s.MNRd(MNy, MNz, beta);
    Esempio(Capitolo::interazione, "Gardner11", "esempio 6.6",
            "UB 457x191x98, S275 (f<sub>y</sub> 265), A 125 cm², W<sub>pl,y</sub> 2230 cm³, N 1400 kN")
        .Confronta("N<sub>pl,Rd</sub>", "kN", "3312.5", s.NplRd / 1e3, 1e-4)
        .Confronta("M<sub>pl,y,Rd</sub>", "kNm", "590.95", s.MplyRd / 1e6, 1e-4)
        .Confronta("M<sub>N,y,Rd</sub>", "kNm", "425.3", MNy / 1e6, 0.002);
    s.fy = 235;
    s.Wply = 2232e3;
    s.InizializzaSezione();
    s.MNRd(MNy, MNz, beta);
    Esempio(Capitolo::interazione, "Gardner05", "esempio 6.6",
            "la stessa, S235, W<sub>pl,y</sub> 2232 cm³, N 1400 kN")
        .Confronta("M<sub>pl,y,Rd</sub>", "kNm", "524.5", s.MplyRd / 1e6, 1e-3)
        .Confronta("M<sub>N,y,Rd</sub>", "kNm", "342.2", MNy / 1e6, 0.002);
}

TEST_F(AstePubblicate, FlessioneDeviata) {
    auto s = Laminata("IPE 500", 235, 500, 200, 10.2, 16, 21);
    s.NSd = 500e3;
    double MNy = 0, MNz = 0, beta = 0;
    s.MNRd(MNy, MNz, beta);
    Esempio(Capitolo::interazione, "ECCS119", "esempio svolto 5", "IPE 500, S235, N 500 kN")
        .Confronta("M<sub>N,y,Rd</sub>", "kNm", "516", MNy / 1e6, cifreStampate)
        .Confronta("M<sub>N,z,Rd</sub>", "kNm", "78.9", MNz / 1e6, cifreStampate)
        .Confronta("β", "-", "1", beta, 0);
}

} // namespace
