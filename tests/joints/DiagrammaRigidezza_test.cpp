// Moment over rotation: points by hand, phi = M / Sj.

#include "joints/DiagrammaRigidezza.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>
#include <utility>

#include <gmock/gmock.h>

#include "NodoDisegnato.h"
#include "drawing/SuperficieFinta.h"
#include "frame/GeneraleSagomi.h"

using namespace sagomi;
using namespace sagomi::prove;
using testing::Contains;
using testing::HasSubstr;

namespace {

class DiagrammaRigidezzaTest : public testing::Test {
protected:
    DiagrammaRigidezzaTest() : n(NodoDisegnato(nodoT, 2)) {
        n.TraveDx->McyRd = 484e3 * 235 / 1.05;
        n.TraveDx->lunghezza() = 6;
        n.TraveDx->Mysd = 70;
        g().Criterio1 = false;
        n.EsegueCalcolo();
    }
    Giunto& g() { return *n.ConnessioneCorrente; }
    static SuperficieFinta Disegnato(const Giunto& g) {
        SuperficieFinta s(440, 280);
        const SuUscita uscita(&s);
        DiagrammaRigidezza(g).PlottaInOggetto(&s, "frmGiunti");
        return s;
    }
    /// The joint's line is the thickest.
    static std::vector<SuperficieFinta::Linea> Curva(const SuperficieFinta& s) {
        std::vector<SuperficieFinta::Linea> c;
        std::copy_if(s.linee.begin(), s.linee.end(), std::back_inserter(c),
                     [](const auto& l) { return l.spessore > 2; });
        return c;
    }
    Nodo n;

private:
    StatoUscita prima_;
};

TEST_F(DiagrammaRigidezzaTest, NamesOfLimitsStandInTheOrderOfTheirLines) {
    for (const double luce : {1.0, 2.0, 4.0, 8.0}) {
        n.TraveDx->lunghezza() = luce;
        g().Limiti();
        SuperficieFinta s(300, 200);
        const SuUscita uscita(&s);
        DiagrammaRigidezza(g()).PlottaInOggetto(&s, "frmGiunti");
        double prima = 0; // nor beyond the left edge
        for (const char* nome : {"rigido (non controv.)", "rigido (controv.)"})
            for (const auto& t : s.scritte)
                if (t.testo == nome) {
                    EXPECT_GE(t.x, prima) << nome << ' ' << luce;
                    prima = t.x;
                }
        EXPECT_GT(prima, 0) << luce;
    }
}

/// Texts as wide as in a common sans serif.
class Larga : public SuperficieFinta {
public:
    using SuperficieFinta::SuperficieFinta;
    [[nodiscard]] double TextWidth(std::string_view testo) const override {
        return 1.25 * SuperficieFinta::TextWidth(testo);
    }
};

/// Boxes of the texts, letters that hang down included: none on another, none beyond the picture.
void SenzaSovrapposizioni(const SuperficieFinta& s, double larga, const std::string& dove) {
    struct Casella {
        double x1, y1, x2, y2;
    };
    std::vector<Casella> c;
    for (const auto& t : s.scritte) {
        c.push_back(
            {t.x, t.y - t.altezza, t.x + larga * t.altezza * double(t.testo.size()), t.y + 0.3 * t.altezza});
        EXPECT_GE(c.back().x1, -1e-6) << dove << ": " << t.testo;
        EXPECT_LE(c.back().x2, s.ScaleWidth + 1e-6) << dove << ": " << t.testo;
        EXPECT_GE(c.back().y1, -1e-6) << dove << ": " << t.testo;
        EXPECT_LE(c.back().y2, s.ScaleHeight + 1e-6) << dove << ": " << t.testo;
    }
    for (std::size_t i = 0; i < c.size(); ++i)
        for (std::size_t j = 0; j < i; ++j)
            EXPECT_FALSE(c[i].x1 < c[j].x2 && c[j].x1 < c[i].x2 && c[i].y1 < c[j].y2 && c[j].y1 < c[i].y2)
                << dove << ": " << s.scritte[i].testo << " on " << s.scritte[j].testo;
}

// From the least size on, whatever lies near what: limits, level and acting moment.
TEST_F(DiagrammaRigidezzaTest, TextsDoNotTouch) {
    const double Mj = g().MplRdGIUNTO;
    const std::array<std::pair<double, double>, 5> misure{
        {{300, 160}, {300, 200}, {440, 280}, {900, 160}, {700, 500}}};
    for (const auto& [l, h] : misure)
        for (const double luce : {0.0, 0.3, 0.6, 1.0, 1.5, 2.0, 3.0, 4.0, 6.0, 8.0, 12.0, 24.0})
            for (const double parte : {0.0, 0.05, 0.2, 0.4, 0.6, 0.8, 0.9, 0.98, 1.0, 1.02, 1.1, 1.3, 3.0}) {
                n.TraveDx->lunghezza() = luce;
                n.TraveDx->Mysd = parte * Mj;
                g().Limiti();
                const std::string dove = std::to_string(int(l)) + 'x' + std::to_string(int(h)) + " luce " +
                                         std::to_string(luce) + " parte " + std::to_string(parte);
                SuperficieFinta stretta(l, h);
                Larga larga(l, h);
                for (SuperficieFinta* s : {&stretta, static_cast<SuperficieFinta*>(&larga)}) {
                    const SuUscita uscita(s);
                    DiagrammaRigidezza(g()).PlottaInOggetto(s, "frmGiunti");
                    SenzaSovrapposizioni(*s, s == &larga ? 0.75 : 0.6, dove);
                }
            }
}

// The unit of an axis from the joint's own line: its last rise ends at Mj,Rd and Mj,Rd / Sj.
TEST_F(DiagrammaRigidezzaTest, TheLineRunsThroughTheComputedPoints) {
    ASSERT_TRUE(g().Acquisito);
    const auto s = Disegnato(g());
    const auto c = Curva(s);
    ASSERT_GT(c.size(), 3U);
    const double x0 = c.front().x1;
    const double y0 = c.front().y1;
    const auto& cima = c[c.size() - 2]; // the last one is the level
    const double perMoment = (y0 - cima.y2) / g().MplRdGIUNTO;
    const double perRotation = (cima.x2 - x0) / (g().MplRdGIUNTO / g().Sj_MjRd);
    EXPECT_NEAR(c.back().y1, c.back().y2, 1e-9);
    EXPECT_NEAR(c[0].y2, y0 - perMoment * g().M_elastico, 1e-6);
    EXPECT_NEAR(c[0].x2, x0 + perRotation * g().M_elastico / g().Sj_Mela, 1e-6);
    ASSERT_EQ(s.cerchi.size(), 1U); // the acting moment
    EXPECT_NEAR(s.cerchi[0].y, y0 - perMoment * 70, 1e-6);
    EXPECT_NEAR(s.cerchi[0].x, x0 + perRotation * 70 / g().Sj_MjSd, 1e-6);
    for (const double limite : {g().LimiteRigido1, g().LimiteRigido2, g().LimiteCerniera})
        EXPECT_TRUE(std::any_of(s.linee.begin(), s.linee.end(), [&](const auto& l) {
            return l.tipo == TipoLinea::Tratteggiata && std::abs(l.x1 - x0) < 1e-9 && l.x2 > x0 &&
                   std::abs((y0 - l.y2) / perMoment / ((l.x2 - x0) / perRotation) / limite - 1) < 1e-6;
        })) << limite;
}

TEST_F(DiagrammaRigidezzaTest, ThePointsAreThoseOfTheLine) {
    const auto punti = PuntiMomentoRotazione(g());
    ASSERT_GT(punti.size(), 3U);
    EXPECT_EQ(punti.front(), std::make_pair(0.0, 0.0));
    EXPECT_DOUBLE_EQ(punti[1].second, g().M_elastico);
    EXPECT_DOUBLE_EQ(punti[1].first, 1000 * g().M_elastico / g().Sj_Mela);
    EXPECT_DOUBLE_EQ(punti.back().second, g().MplRdGIUNTO);
    EXPECT_DOUBLE_EQ(punti.back().first, 1000 * g().MplRdGIUNTO / g().Sj_MjRd);
    g().Acquisito = false;
    EXPECT_TRUE(PuntiMomentoRotazione(g()).empty());
}

// Moments and stiffness a hundred thousand times smaller: the same lines, down to joints of some Nm.
TEST_F(DiagrammaRigidezzaTest, TheUnitDoesNotChangeThePicture) {
    g().Sj_MjRd *= 0.8; // not what the check computes: straight lines between the values, as of a file
    const auto prima = Disegnato(g());
    for (double* k : {&g().MplRdGIUNTO, &g().M_elastico, &g().LimiteCerniera, &g().LimiteRigido1,
                      &g().LimiteRigido2, &g().Sj_MjRd, &g().Sj_Mela, &g().Sj_MjSd})
        *k /= 1e5;
    n.TraveDx->Mysd = 70 / 1e5;
    const auto dopo = Disegnato(g());
    ASSERT_EQ(dopo.linee.size(), prima.linee.size());
    for (std::size_t i = 0; i < prima.linee.size(); ++i) {
        EXPECT_NEAR(dopo.linee[i].x1, prima.linee[i].x1, 1e-3);
        EXPECT_NEAR(dopo.linee[i].y1, prima.linee[i].y1, 1e-3);
        EXPECT_NEAR(dopo.linee[i].x2, prima.linee[i].x2, 1e-3);
        EXPECT_NEAR(dopo.linee[i].y2, prima.linee[i].y2, 1e-3);
        EXPECT_EQ(dopo.linee[i].colore, prima.linee[i].colore);
    }
    EXPECT_EQ(dopo.cerchi.size(), prima.cerchi.size());
    EXPECT_EQ(dopo.scritte.size(), prima.scritte.size());
}

// Mj 100: the axis ends at 120, which is six steps of 20; 1.6 times 12.5 mrad are 20, two of 10.
TEST_F(DiagrammaRigidezzaTest, TheLastMarkStandsAtTheEndOfItsAxis) {
    n.TraveDx->lunghezza() = 0;
    g().MplRdGIUNTO = 100;
    g().Sj_MjRd = 8000;
    n.TraveDx->Mysd = 10;
    const auto testi = Disegnato(g()).Testi();
    for (const char* tacca : {"0", "10", "40", "60", "80", "100", "120"})
        EXPECT_EQ(std::count(testi.begin(), testi.end(), tacca), 1) << tacca;
    EXPECT_EQ(std::count(testi.begin(), testi.end(), "20"), 2); // of both axes
}

TEST_F(DiagrammaRigidezzaTest, AxesAndLimitsHaveTheirNames) {
    const auto testi = Disegnato(g()).Testi();
    for (const char* nome : {"rotazione [mrad]", "M [kNm]", "rigido (non controv.)", "rigido (controv.)",
                             "cerniera", "Mj,Sd 70"})
        EXPECT_THAT(testi, Contains(nome));
    EXPECT_THAT(testi, Contains(HasSubstr("Mj,Rd ")));
}

TEST_F(DiagrammaRigidezzaTest, AMomentThatIsNotCarriedIsRed) {
    n.TraveDx->Mysd = 2 * g().MplRdGIUNTO;
    const auto s = Disegnato(g());
    EXPECT_TRUE(s.cerchi.empty());
    EXPECT_TRUE(std::any_of(s.linee.begin(), s.linee.end(), [](const auto& l) { return l.colore == 12; }));
    EXPECT_THAT(s.Testi(), Contains(HasSubstr(" > Mj,Rd")));
}

TEST_F(DiagrammaRigidezzaTest, WithoutAValueThereIsNoCurve) {
    for (double Giunto::*valore : {&Giunto::MplRdGIUNTO, &Giunto::Sj_MjRd, &Giunto::Sj_Mela}) {
        Giunto senza = g();
        senza.*valore = 0;
        EXPECT_THAT(Disegnato(senza).Testi(), testing::ElementsAre("Giunto non calcolato"));
    }
}

// The stiffness that the joint holds is that of the check to some figures, or straight lines join the values.
TEST_F(DiagrammaRigidezzaTest, TheLineIsCurvedWhereTheCheckIsThatOfTheJoint) {
    const double Sj = g().Sj_MjRd;
    g().Sj_MjRd = Sj * (1 + 1e-8);
    EXPECT_EQ(PuntiMomentoRotazione(g()).size(), 14U); // 0, elastic, eleven between, the last
    g().Sj_MjRd = Sj * (1 - 1e-8);
    EXPECT_EQ(PuntiMomentoRotazione(g()).size(), 14U);
    g().Sj_MjRd = Sj * (1 + 1e-5);
    EXPECT_LE(PuntiMomentoRotazione(g()).size(), 4U);
}

TEST_F(DiagrammaRigidezzaTest, ThePictureHasItsSizes) {
    const Disegno d = DiagrammaRigidezza(g());
    EXPECT_EQ(d.misura.larghezza, 440);
    EXPECT_EQ(d.misura.altezza, 280);
    EXPECT_EQ(d.minima.larghezza, 300);
    EXPECT_EQ(d.minima.altezza, 160);
}

// A joint carries the moment that it can just resist.
TEST_F(DiagrammaRigidezzaTest, AMomentAsLargeAsTheResistanceIsCarried) {
    g().MplRdGIUNTO = 80;
    n.TraveDx->Mysd = 80;
    const auto s = Disegnato(g());
    EXPECT_EQ(s.cerchi.size(), 1U);
    EXPECT_TRUE(std::none_of(s.linee.begin(), s.linee.end(), [](const auto& l) { return l.colore == 12; }));
    EXPECT_THAT(s.Testi(), testing::Not(Contains(HasSubstr(" > Mj,Rd"))));
}

TEST_F(DiagrammaRigidezzaTest, NothingMisleadsWhereSomethingIsMissing) {
    n.TraveDx->lunghezza() = 0;
    const auto testi = Disegnato(g()).Testi();
    EXPECT_THAT(testi, Contains("luce non data: senza limiti"));
    EXPECT_THAT(testi, testing::Not(Contains("cerniera")));
    g().Acquisito = false;
    EXPECT_THAT(Disegnato(g()).Testi(), testing::ElementsAre("Giunto non calcolato"));
}

} // namespace
