// Drawings of channels and angles, alone and in pairs: all in mm.

#include <algorithm>
#include <cmath>

#include <gtest/gtest.h>

#include "drawing/Grafica.h"
#include "drawing/SuperficieFinta.h"
#include "frame/GeneraleSagomi.h"
#include "sections/DisegnoQuotato.h"
#include "sections/DisegnoSagoma.h"
#include "sections/SezioneGenerica.h"
#include "sections/SezioneSagomoL.h"
#include "sections/SezioneSagomoU.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

/// UPN 200 of EN 10365; thin ones have parallel flanges.
SezioneSagomoU Canale(double tw = 8.5, double tf = 11.5, double pendenza = 6) {
    SezioneSagomoU s;
    s.Designation = "UPN 200";
    s.fy = 235;
    s.h = 200;
    s.b = 75;
    s.tw = tw;
    s.tf = tf;
    s.r1 = 11.5;
    s.pendenza = pendenza;
    s.Area = 3220;
    return s;
}

SezioneSagomoL Angolare() {
    SezioneSagomoL s;
    s.Designation = "L 150x100x10";
    s.fy = 235;
    s.h = 150;
    s.b = 100;
    s.t = 10;
    s.r1 = 12;
    s.r2 = 6;
    s.Area = 2420;
    return s;
}

template <typename S> S Coppia(S s, double distanza, bool corto) {
    s.Designation = "2 " + s.Designation;
    s.Area = 2 * s.Area;
    s.Doppi = true;
    s.DoppiCorto = corto;
    s.dDoppi = distanza;
    s.InizializzaSezione();
    return s;
}

class DisegnoSagomi : public testing::Test {
protected:
    void TearDown() override { RipristinaGenerale(); }

    /// Ends of the lines drawn as outlines, by one of their coordinates.
    struct Ingombro {
        double xMin = 1e9, xMax = -1e9, yMin = 1e9, yMax = -1e9;
        int lati = 0;
    };
    template <typename S> Ingombro Disegna(const S& s, const char* maschera = "frm") {
        s.PlottaSezione(&su, maschera, "VIDEO");
        Ingombro e;
        for (const auto& l : su.linee)
            if (l.spessore == spessoreContorno) {
                e.xMin = std::min(e.xMin, l.x1);
                e.xMax = std::max(e.xMax, l.x1);
                e.yMin = std::min(e.yMin, l.y1);
                e.yMax = std::max(e.yMax, l.y1);
                ++e.lati;
            }
        return e;
    }
    [[nodiscard]] bool Ha(const char* testo) const {
        const auto testi = su.Testi();
        return std::find(testi.begin(), testi.end(), testo) != testi.end();
    }
    /// Outlines that cross a level, away from it.
    [[nodiscard]] int Attraversano(double y) const {
        return static_cast<int>(std::count_if(su.linee.begin(), su.linee.end(), [y](const auto& l) {
            return l.spessore == spessoreContorno && (l.y1 > y) != (l.y2 > y);
        }));
    }

    SuperficieFinta su{900, 600};
    StatoUscita prima;
};

// Among the data, and, however small, beside its corner.
TEST_F(DisegnoSagomi, ARadiusIsNamed) {
    for (const double r : {11.5, 0.5, 0.0}) {
        SuperficieFinta sheet{900, 600};
        auto s = Canale();
        s.r1 = Singolo(r);
        s.InizializzaSezione();
        s.PlottaSezione(&sheet, "frm", "VIDEO");
        EXPECT_EQ(std::ranges::count(sheet.Testi(), RigaDato("r", s.r1)), r > 0 ? 2 : 1) << r;
    }
}

TEST_F(DisegnoSagomi, AChannelStandsWithItsBackAtZero) {
    auto s = Canale();
    s.InizializzaSezione();
    const Ingombro e = Disegna(s);
    EXPECT_EQ(e.lati, 40);
    EXPECT_EQ(e.xMin, 0);
    EXPECT_EQ(e.xMax, 75);
    for (const char* testo : {"UPN 200", "h = 200", "b = 75", "tw = 8.5", "tf = 11.5", "r = 11.5"})
        EXPECT_TRUE(Ha(testo)) << testo;
    EXPECT_NEAR(su.cerchi[0].x, s.SezioneGenericaCorrente->xG, 1e-9);
}

TEST_F(DisegnoSagomi, AThicknessOfATaperedFlangeIsThatAtItsMiddle) {
    for (const double pendenza : {6.0, 0.5}) {
        auto s = Canale(8.5, 11.5, pendenza);
        s.InizializzaSezione();
        su.linee.clear();
        Disegna(s);
        EXPECT_TRUE(std::any_of(su.linee.begin(), su.linee.end(), [](const auto& l) {
            return l.y1 == l.y2 && std::abs(l.y1 - 188.5) < 1e-4 && std::min(l.x1, l.x2) < 60;
        })) << pendenza;
    }
}

TEST_F(DisegnoSagomi, APairWithoutAGapShowsNone) {
    Disegna(Coppia(Angolare(), 0, false));
    EXPECT_FALSE(Ha("0"));
}

TEST_F(DisegnoSagomi, AnOvertypedStrengthStandsAmongTheData) {
    auto u = Canale();
    u.TipoAcciaio = "S235 (Fe360)";
    u.fy = 460;
    u.InizializzaSezione();
    Disegna(u);
    EXPECT_EQ(su.Testi().back(), "S235 (Fe360), fy 460");
    auto l = Angolare();
    l.TipoAcciaio = "S355 (Fe510)";
    l.fy = 400;
    l.InizializzaSezione();
    Disegna(l);
    EXPECT_EQ(su.Testi().back(), "S355 (Fe510), fy 400");
}

TEST_F(DisegnoSagomi, APairBackToBackShowsItsGap) {
    const Ingombro e = Disegna(Coppia(Canale(), 12, false));
    EXPECT_EQ(e.lati, 80);
    EXPECT_NEAR(e.xMin, -12 - 75, 1e-9);
    EXPECT_NEAR(e.xMax, 75, 1e-9);
    EXPECT_NEAR(su.cerchi[0].x, -6, 1e-9) << "the common centroid";
    EXPECT_TRUE(Ha("d = 12"));
    EXPECT_TRUE(Ha("12")) << "the dimension of the gap";
    EXPECT_TRUE(Ha("2 UPN 200"));
}

TEST_F(DisegnoSagomi, APairWithItsTipsTogetherIsABox) {
    const Ingombro e = Disegna(Coppia(Canale(), 20, true));
    EXPECT_NEAR(e.xMin, 0, 1e-9);
    EXPECT_NEAR(e.xMax, 2 * 75 + 20, 1e-9);
    EXPECT_NEAR(su.cerchi[0].x, 85, 1e-9);
}

TEST_F(DisegnoSagomi, AnglesLieWithTheirLongOrTheirShortLegsTogether) {
    const Ingombro lunghi = Disegna(Coppia(Angolare(), 8, false));
    EXPECT_EQ(lunghi.lati, 60);
    EXPECT_NEAR(lunghi.xMin, -108, 1e-9);
    EXPECT_NEAR(lunghi.xMax, 100, 1e-9);
    EXPECT_NEAR(lunghi.yMax - lunghi.yMin, 150, 1e-9);
    su.linee.clear();
    su.cerchi.clear();
    const Ingombro corti = Disegna(Coppia(Angolare(), 8, true));
    EXPECT_NEAR(corti.yMin, -158, 1e-9);
    EXPECT_NEAR(corti.yMax, 150, 1e-9);
    EXPECT_NEAR(corti.xMax - corti.xMin, 100, 1e-9);
    EXPECT_NEAR(su.cerchi[0].y, -4, 1e-9);
}

// The web, d/tw = 154/3 = 51.3 (epsilon 1): lamda = 51.3/56.8 = 0.904, rho = 0.837; 25.1 mm are gone about
// mid-height.
TEST_F(DisegnoSagomi, ThreadAtTheBackOfAWebIsLeftOut) {
    auto s = Canale(3, 11.5, 0);
    s.InizializzaSezione();
    ASSERT_EQ(s.ClasseWebC, 4);
    const Ingombro e = Disegna(s, "FrmClasseDoppioTU");
    EXPECT_TRUE(Ha("Aeff Comp."));
    EXPECT_EQ(Attraversano(100), 0) << "two pieces with nothing between them";
    EXPECT_EQ(Attraversano(80), 2);
    EXPECT_EQ(e.xMin, 0);
    EXPECT_EQ(e.yMin, 0);
    EXPECT_EQ(e.yMax, 200);
    su.linee.clear();
    Disegna(Coppia(s, 10, false), "FrmClasseDoppioTU");
    EXPECT_EQ(Attraversano(100), 0);
    EXPECT_EQ(Attraversano(80), 4);
}

// Bending about z: both tips are gone, and the outline lies where the whole one does.
TEST_F(DisegnoSagomi, EffectiveOutlineAboutZLiesOnTheWholeOne) {
    auto s = Canale(8.5, 3, 0);
    s.SezioneEfficaceDaPlottare = 2;
    s.InizializzaSezione();
    ASSERT_EQ(s.ClasseFlessioneZ, 4);
    const Ingombro e = Disegna(s, "FrmClasseDoppioTU");
    EXPECT_TRUE(Ha("Weff,z"));
    EXPECT_NEAR(e.xMin, 0, 1e-9);
    EXPECT_LT(e.xMax, 74);
    EXPECT_NEAR(su.cerchi[0].x, s.SezioneGenericaCorrente->xG - s.eNz, 1e-9);
}

TEST_F(DisegnoSagomi, EffectiveAngleIsDrawnForItsClassScreenAlone) {
    auto s = Angolare();
    s.fy = 460;
    s.InizializzaSezione();
    ASSERT_EQ(s.ClasseCompressione, 4);
    EXPECT_NEAR(Disegna(s).yMax, 150, 1e-9);
    su.linee.clear();
    EXPECT_LT(Disegna(s, "FrmClasseSagomiL").yMax, 140);
    EXPECT_TRUE(Ha("Aeff Comp."));
}

TEST_F(DisegnoSagomi, BeforeItIsInitialisedNothingIsDrawn) {
    SezioneSagomoU().PlottaSezione(&su, "frmSagomiU", "VIDEO");
    SezioneSagomoL().PlottaSezione(&su, "frmSagomiL", "VIDEO");
    EXPECT_TRUE(su.linee.empty());
    EXPECT_FALSE(DisegnoSagoma(SagomaDi(SezioneSagomoU())).PlottaInOggetto);
}

TEST_F(DisegnoSagomi, SmallPictureShowsBothPieces) {
    const auto coppia = SagomaDi(Coppia(Canale(), 10, false));
    EXPECT_EQ(coppia.x.size(), coppia.xAltra.size());
    EXPECT_NEAR(coppia.sinistra, -85, 1e-9);
    EXPECT_NEAR(coppia.destra, 75, 1e-9);
    EXPECT_NEAR(coppia.xG, -5, 1e-9);
    const auto corti = SagomaDi(Coppia(Angolare(), 10, true));
    EXPECT_NEAR(corti.basso, -160, 1e-9);
    EXPECT_NEAR(corti.yG, -5, 1e-9);
    EXPECT_TRUE(DisegnoSagoma(corti).PlottaInOggetto);
}

TEST_F(DisegnoSagomi, AnOutlineOfTwoPointsOrWithoutHeightHasNoPicture) {
    auto intera = Canale();
    intera.InizializzaSezione();
    SagomaDisegnata due = SagomaDi(intera);
    SagomaDisegnata piatta = due;
    due.x.resize(2);
    due.y.resize(2);
    EXPECT_FALSE(DisegnoSagoma(due).PlottaInOggetto);
    piatta.h = 0;
    EXPECT_FALSE(DisegnoSagoma(piatta).PlottaInOggetto);
}

} // namespace
