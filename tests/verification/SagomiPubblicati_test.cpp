// Tables of sections against what outline and formulas give from the dimensions alone.
#include <cmath>

#include "Profili.h"
#include "Verbale.h"
#include "sections/SezioneSagomoL.h"
#include "sections/SezioneSagomoU.h"

using namespace sagomi;
using namespace sagomi::verifica;

namespace {

class SagomiPubblicati : public Ambiente {};

constexpr double arrotondata = 0.01; ///< three figures and the chords of the fillets
constexpr double pollice = 25.4;

struct Tabella {
    const char *A, *Iy, *Wply, *Iz, *Wplz, *It,
        *Iw; ///< cm2, cm4, cm3, cm4, cm3, cm4, cm6; empty: not compared
};

void Confronta(Esempio& e, SezioneDoppioT& s, const Tabella& t, double tollTorsione = 0.01) {
    const auto voce = [&](const char* nome, const char* unita, const char* cifra, double valore, double toll,
                          const char* nota = "") {
        if (*cifra)
            e.Confronta(nome, unita, cifra, valore, toll, nota);
    };
    voce("A", "cm²", t.A, s.Area / 1e2, arrotondata);
    voce("I<sub>y</sub>", "cm⁴", t.Iy, s.Jy / 1e4, arrotondata);
    voce("W<sub>pl,y</sub>", "cm³", t.Wply, s.Wply / 1e3, arrotondata);
    voce("I<sub>z</sub>", "cm⁴", t.Iz, s.Jz / 1e4, arrotondata);
    voce("W<sub>pl,z</sub>", "cm³", t.Wplz, s.Wplz / 1e3, arrotondata);
    voce("I<sub>t</sub>", "cm⁴", t.It, s.JT / 1e4, tollTorsione,
         tollTorsione > 0.01
             ? "La costante di torsione è di formule approssimate, diverse da tavola a tavola."
             : "");
    voce("I<sub>w</sub>", "cm⁶", t.Iw, s.Jw / 1e6, 0.02,
         "La tavola arrotonda a tre cifre e il programma prende I<sub>z</sub> di tutta la sezione, anima "
         "compresa.");
}

std::string Misure(double h, double b, double tw, double tf, double r) {
    const auto n = [](double x) {
        std::string t = std::to_string(x);
        t.resize(t.find('.') + 2);
        if (t.ends_with(".0"))
            t.resize(t.size() - 2);
        return t;
    };
    return "h " + n(h) + ", b " + n(b) + ", t<sub>w</sub> " + n(tw) + ", t<sub>f</sub> " + n(tf) + ", r " +
           n(r) + " mm";
}

struct Laminato {
    const char *fonte, *luogo, *nome;
    double h, b, tw, tf, r;
    Tabella tabella;
    double tollTorsione;
};
void PrintTo(const Laminato& l, std::ostream* os) { *os << l.nome; }

class Laminati : public SagomiPubblicati, public testing::WithParamInterface<Laminato> {};

TEST_P(Laminati, ComeLaTavola) {
    const Laminato& l = GetParam();
    SezioneDoppioT s = Laminata(l.nome, 235, l.h, l.b, l.tw, l.tf, l.r);
    Esempio e(Capitolo::sagomi, l.fonte, l.luogo,
              std::string(l.nome) + ": " + Misure(l.h, l.b, l.tw, l.tf, l.r));
    Confronta(e, s, l.tabella, l.tollTorsione);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Tavole, Laminati, testing::Values(
    Laminato{"EN10365", "serie IPE", "IPE 300", 300, 150, 7.1, 10.7, 15, {"53.81", "8356", "628.4", "603.8", "125.2", "20.12", "125900"}, 0.01},
    Laminato{"EN10365", "serie HE", "HE 200 A", 190, 200, 6.5, 10, 18, {"53.83", "3692", "429.5", "1336", "203.8", "20.98", "108000"}, 0.01},
    Laminato{"EN10365", "serie HE", "HE 200 B", 200, 200, 9, 15, 18, {"78.08", "5696", "642.5", "2003", "305.8", "59.28", "171100"}, 0.01},
    Laminato{"EN10365", "serie HE", "HE 300 M", 340, 310, 21, 39, 27, {"303.1", "59200", "4078", "19400", "1913", "1408", "4386000"}, 0.01},
    Laminato{"MSB04", "esempio A.1, pp. 4-57...4-61", "IPE 330", 330, 160, 7.5, 11.5, 18, {"62.6", "11770", "804.3", "788.1", "", "28.15", "199100"}, 0.01},
    Laminato{"MSB04", "esempio A.4, p. 4-83", "IPE 400", 400, 180, 8.6, 13.5, 21, {"84.46", "23130", "1307", "", "", "", ""}, 0.01},
    Laminato{"MSB04", "esempio A.5, p. 4-95", "HE 300 B", 300, 300, 11, 19, 27, {"149", "25170", "", "8560", "", "", ""}, 0.01},
    Laminato{"ECCS119", "esempio svolto 5", "IPE 500", 500, 200, 10.2, 16, 21, {"", "", "2194.261", "2141.7007", "", "89.287", "1249400"}, 0.01},
    Laminato{"P363", "pp. 74-75", "UC 254x254x132", 276.3, 261.3, 15.3, 25.3, 12.7, {"168", "22500", "1870", "7530", "878", "319", "1190000"}, 0.02},
    Laminato{"P363", "pp. 68-69", "UB 610x178x100", 607.4, 179.2, 11.3, 17.2, 12.7, {"128", "72500", "2790", "1660", "296", "95", "1440000"}, 0.02},
    Laminato{"JIS", "H 300x150x6,5x9", "H 300x150", 300, 150, 6.5, 9, 13, {"46.78", "7210", "", "508", "", "", ""}, 0.01}));
// clang-format on

// In inches: A 26.5, Ix 999, Zx 157, Iy 362, Zy 75.6, J 4.06, Cw 16000; the radius is kdes less tf.
TEST_F(SagomiPubblicati, AmericanoW14x90) {
    SezioneDoppioT s = Laminata("W14x90", 235, 14.0 * pollice, 14.5 * pollice, 0.44 * pollice, 0.71 * pollice,
                                (1.31 - 0.71) * pollice);
    const double i2 = pollice * pollice;
    Esempio(Capitolo::sagomi, "AISC", "table 1-1, W14x90",
            "W14x90: d 14.0, b<sub>f</sub> 14.5, t<sub>w</sub> 0.440, t<sub>f</sub> 0.710, k<sub>des</sub> "
            "1.31 in")
        .Confronta("A", "in²", "26.5", s.Area / i2, arrotondata)
        .Confronta("I<sub>x</sub>", "in⁴", "999", s.Jy / (i2 * i2), arrotondata)
        .Confronta("Z<sub>x</sub>", "in³", "157", s.Wply / (i2 * pollice), arrotondata)
        .Confronta("I<sub>y</sub>", "in⁴", "362", s.Jz / (i2 * i2), arrotondata)
        .Confronta("Z<sub>y</sub>", "in³", "75.6", s.Wplz / (i2 * pollice), arrotondata)
        .Confronta("C<sub>w</sub>", "in⁶", "16000", s.Jw / (i2 * i2 * i2), 0.02,
                   "La tavola arrotonda a due cifre significative.");
}

TEST_F(SagomiPubblicati, RastremataIPN300) {
    SezioneDoppioT s = Laminata("IPN 300", 235, 300, 125, 10.8, 16.2, 10.8, 6.5);
    Esempio e(Capitolo::sagomi, "EN10365", "serie IPN",
              "IPN 300: h 300, b 125, t<sub>w</sub> 10.8, t<sub>f</sub> 16.2, r<sub>1</sub> 10.8, "
              "r<sub>2</sub> 6.5 mm, "
              "pendenza 14 %");
    e.Confronta("A", "cm²", "69.0", s.Area / 1e2, arrotondata)
        .Confronta("I<sub>y</sub>", "cm⁴", "9800", s.Jy / 1e4, arrotondata)
        .Confronta("W<sub>pl,y</sub>", "cm³", "762", s.Wply / 1e3, arrotondata)
        .Confronta("I<sub>z</sub>", "cm⁴", "451", s.Jz / 1e4, arrotondata);
}

TEST_F(SagomiPubblicati, CanaleUpn200) {
    SezioneSagomoU s;
    s.fy = 235;
    s.h = 200;
    s.b = 75;
    s.tw = 8.5;
    s.tf = 11.5;
    s.r1 = 11.5;
    s.r2 = 6;
    s.pendenza = 6;
    s.Area = 3220;
    s.InizializzaSezione();
    const SezioneGenerica& g = *s.SezioneGenericaCorrente;
    Esempio(Capitolo::sagomi, "EN10365", "serie UPN",
            "UPN 200: h 200, b 75, t<sub>w</sub> 8.5, t<sub>f</sub> = r<sub>1</sub> 11.5, r<sub>2</sub> 6 "
            "mm, pendenza 8 %")
        .Confronta("A", "cm²", "32.2", g.Area / 1e2, arrotondata)
        .Confronta("I<sub>y</sub>", "cm⁴", "1910", g.JotaXG / 1e4, arrotondata)
        .Confronta("I<sub>z</sub>", "cm⁴", "148", g.JotaYG / 1e4, 0.015,
                   "Il raggio di punta e la pendenza della tavola sono arrotondati al mezzo millimetro.")
        .Confronta("e", "cm", "2.01", g.xG / 10, arrotondata);
}

SezioneGenerica Angolare(double h, double b, double t, double r1, double r2) {
    SezioneSagomoL s;
    s.fy = 235;
    s.h = h;
    s.b = b;
    s.t = t;
    s.r1 = r1;
    s.r2 = r2;
    s.Area = 1;
    s.InizializzaSezione();
    return *s.SezioneGenericaCorrente;
}

TEST_F(SagomiPubblicati, Angolari) {
    const SezioneGenerica uguali = Angolare(100, 100, 10, 12, 6);
    Esempio(Capitolo::sagomi, "EN10056", "L a lati uguali",
            "L 100x100x10: r<sub>1</sub> 12, r<sub>2</sub> 6 mm")
        .Confronta("A", "cm²", "19.2", uguali.Area / 1e2, arrotondata)
        .Confronta("I<sub>y</sub> = I<sub>z</sub>", "cm⁴", "177", uguali.JotaXG / 1e4, arrotondata)
        .Confronta("i<sub>u</sub>", "cm", "3.83", uguali.Rho1 / 10, arrotondata)
        .Confronta("i<sub>v</sub>", "cm", "1.95", uguali.Rho2 / 10, arrotondata);
    const SezioneGenerica disuguali = Angolare(150, 100, 10, 12, 6);
    Esempio(Capitolo::sagomi, "EN10056", "L a lati disuguali",
            "L 150x100x10: r<sub>1</sub> 12, r<sub>2</sub> 6 mm")
        .Confronta("A", "cm²", "24.2", disuguali.Area / 1e2, arrotondata)
        .Confronta("I<sub>y</sub>", "cm⁴", "552", disuguali.JotaXG / 1e4, arrotondata)
        .Confronta("I<sub>z</sub>", "cm⁴", "198", disuguali.JotaYG / 1e4, arrotondata)
        .Confronta("i<sub>v</sub>", "cm", "2.17", disuguali.Rho2 / 10, arrotondata);
}

} // namespace
