// The small pictures beside the figures of a composite beam.

#include "composite/DisegniTraveMista.h"

#include <algorithm>
#include <cmath>

#include "TraveDiProva.h"
#include "drawing/SuperficieFinta.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

class DisegniTraveMistaTest : public AmbienteTrave {
protected:
    static AcciaioCls Trave(std::int16_t tipo) {
        AcciaioCls t;
        t.TipoSoletta = tipo;
        t.hc = 120;
        t.ha = 55;
        t.bb = 60;
        t.bs = 90;
        t.iNervature = 200;
        t.b0t = 80;
        t.Luce = 8;
        t.Passo = 8000.0 / 21;
        return t;
    }
    static SuperficieFinta Su(const Disegno& d) {
        SuperficieFinta s(d.misura.larghezza, d.misura.altezza);
        const SuUscita uscita(&s);
        d.PlottaInOggetto(&s, "frmAcciaioCls");
        return s;
    }
    static std::vector<std::string> Testi(const SuperficieFinta& s) {
        std::vector<std::string> testi = s.Testi();
        std::sort(testi.begin(), testi.end());
        return testi;
    }
    /// Abscissas of the stems: plumb lines of a quarter of the height of the picture's field.
    static std::vector<double> Gambi(const SuperficieFinta& s) {
        std::vector<double> x;
        for (const auto& l : s.linee)
            if (l.x1 == l.x2 && l.spessore == spessoreContorno && l.y1 - l.y2 > 10 && l.y1 - l.y2 < 25)
                x.push_back(l.x1);
        return x;
    }
};

using Elenco = std::vector<std::string>;

TEST_F(DisegniTraveMistaTest, DeckWithItsMeasures) {
    EXPECT_EQ(Testi(Su(DisegnoLamiera(Trave(nervatureParallele)))),
              (Elenco{"b0t 80", "bb 60", "bs 90", "ha 55", "hc 120", "i 200"}));
    EXPECT_EQ(Testi(Su(DisegnoLamiera(Trave(nervatureTrasversali)))),
              (Elenco{"bb 60", "bs 90", "ha 55", "hc 120", "i 200"}));
}

TEST_F(DisegniTraveMistaTest, WhyThereIsNoDeck) {
    const auto detto = [](const AcciaioCls& t) { return Testi(Su(DisegnoLamiera(t))); };
    AcciaioCls t = Trave(nervatureParallele);
    t.iNervature = 149;
    EXPECT_EQ(detto(t), Elenco{"interasse < bb + bs"});
    t = Trave(nervatureParallele);
    t.hc = 55;
    EXPECT_EQ(detto(t), Elenco{"hc <= ha"});
    t.ha = 0;
    EXPECT_EQ(detto(t), Elenco{"dati della lamiera incompleti"});
    EXPECT_EQ(detto(AcciaioCls()), Elenco{"soletta piena"});
    t = Trave(nervatureParallele);
    t.bb = t.bs = 0;
    EXPECT_EQ(detto(t), Elenco{"dati della lamiera incompleti"});
    t.bs = 90; // ribs that end in an edge are ribs
    EXPECT_EQ(detto(t), (Elenco{"b0t 80", "bb 0", "bs 90", "ha 55", "hc 120", "i 200"}));
    t = Trave(nervatureTrasversali);
    t.b0t = 0; // of ribs along the beam alone
    EXPECT_EQ(detto(t), (Elenco{"bb 60", "bs 90", "ha 55", "hc 120", "i 200"}));
}

TEST_F(DisegniTraveMistaTest, StudsAtTheirSpacing) {
    AcciaioCls t = Trave(solettaPiena);
    const SuperficieFinta s = Su(DisegnoConnettori(t, 22));
    const std::vector<double> x = Gambi(s);
    ASSERT_EQ(x.size(), 22U);
    const double passo = x[1] - x[0];
    EXPECT_NEAR(x[21] - x[0], 21 * passo, 1e-3);
    EXPECT_EQ(Testi(s), Elenco{"n = 22, L = 8 m, passo 380 mm"});
    t.Nr = 2;
    EXPECT_EQ(Gambi(Su(DisegnoConnettori(t, 44))).size(), 44U); // 22 pairs
}

// From end to end without a spacing; one that is too large ends with the beam, half of one at its middle.
TEST_F(DisegniTraveMistaTest, StudsStayOnTheBeam) {
    AcciaioCls t = Trave(solettaPiena);
    const auto tutta = Gambi(Su(DisegnoConnettori(t, 22)));
    const double luce = tutta.back() - tutta.front();
    const auto larghe = [&](double passo, int n) {
        t.Passo = passo;
        const auto x = Gambi(Su(DisegnoConnettori(t, n)));
        return (x.back() - x.front()) / luce;
    };
    EXPECT_NEAR(larghe(0, 22), 1, 1e-6);
    EXPECT_NEAR(larghe(0, 2), 1, 1e-6);
    EXPECT_NEAR(larghe(500, 22), 1, 1e-6);
    const int visibili = static_cast<int>(Gambi(Su(DisegnoConnettori(t, 30000))).size());
    EXPECT_NEAR(larghe(4000.0 / (visibili - 1), visibili), 0.5, 1e-3);
    t.Nr = 2;
    EXPECT_EQ(Gambi(Su(DisegnoConnettori(t, 2))).size(), 2U) << "a single pair";
}

TEST_F(DisegniTraveMistaTest, MoreStudsThanCanBeSeen) {
    const auto x = Gambi(Su(DisegnoConnettori(Trave(solettaPiena), 30000)));
    EXPECT_GT(x.size(), 20U);
    EXPECT_LT(x.size(), 120U);
}

TEST_F(DisegniTraveMistaTest, NoStudsNoSpacing) {
    AcciaioCls t = Trave(solettaPiena);
    t.Passo = 0;
    const SuperficieFinta s = Su(DisegnoConnettori(t, 0));
    EXPECT_TRUE(Gambi(s).empty());
    EXPECT_EQ(Testi(s), Elenco{"L = 8 m"});
}

} // namespace
