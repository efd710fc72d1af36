#include <cmath>
#include <numbers>

#include <gtest/gtest.h>

#include "Registratore.h"
#include "drawing/CadFinto.h"
#include "drawing/SuperficieFinta.h"
#include "geometry/Casi.h"
#include "geometry/LineeGeometria.h"
#include "sections/SezioneGenerica.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

/// A rectangle 40 x 100 with its lower left corner in (10, 20).
SezioneGenerica Rettangolo() {
    SezioneGenerica s;
    s.CoordinateSezione({10, 50, 50, 10}, {20, 20, 120, 120}, 4);
    s.CaratteristicheStaticheSezione();
    return s;
}

class SezioneGenericaDisegnoTest : public testing::Test {
protected:
    Registratore registratore;
    SuperficieFinta superficie{300, 200};
    StatoUscita prima;
};

// Nine tenths of 300 x 200 are 270 x 180: 180/100 = 1.8 a unit, so 72 wide in the middle of 300 and 180 high
// in the middle of 200.
TEST_F(SezioneGenericaDisegnoTest, FitsTheBoxIntoTheTarget) {
    SezioneGenerica s = Rettangolo();
    s.PlottaSezione(&superficie, "FrmClasseSagomiL");
    EXPECT_NEAR(superficie.InX(10), 114, 1e-4);
    EXPECT_NEAR(superficie.InX(50), 186, 1e-4);
    EXPECT_NEAR(superficie.InY(120), 10, 1e-4);
    EXPECT_NEAR(superficie.InY(20), 190, 1e-4);
    ASSERT_GT(superficie.linee.size(), 4U);
    const auto bordo = superficie.linee.end() - 4;
    for (auto l = superficie.linee.begin(); l != bordo; ++l)
        EXPECT_EQ(l->colore, 8) << "hatching";
    EXPECT_EQ(bordo->colore, 7);
    EXPECT_EQ(bordo->spessore, 1.4);
}

// A fiftieth of its greatest dimension, 100, lies between the lines.
TEST_F(SezioneGenericaDisegnoTest, HatchingIsAFiftiethApart) {
    SezioneGenerica s = Rettangolo();
    s.PlottaSezione(&superficie, "x");
    ASSERT_GT(superficie.linee.size(), 6U);
    const auto& a = superficie.linee[0];
    const auto& b = superficie.linee[1];
    const double lunga = std::hypot(a.x2 - a.x1, a.y2 - a.y1);
    const double stacco = ((a.x2 - a.x1) * (b.y1 - a.y1) - (a.y2 - a.y1) * (b.x1 - a.x1)) / lunga;
    EXPECT_NEAR(std::abs(stacco), 2, 1e-6);
    EXPECT_NEAR(std::abs(a.x2 - a.x1), std::abs(a.y2 - a.y1), 1e-6) << "at 45 degrees";
}

TEST_F(SezioneGenericaDisegnoTest, TheJointScreenHasNoHatching) {
    SezioneGenerica s = Rettangolo();
    s.PlottaSezione(&superficie, "frmGiunti");
    EXPECT_EQ(superficie.linee.size(), 4U);
}

TEST_F(SezioneGenericaDisegnoTest, ThePrinterHasTheFontOfSheets) {
    Dispositivo = dispositivoStampante;
    SezioneGenerica s = Rettangolo();
    s.PlottaSezione(&superficie, "x");
    EXPECT_EQ(superficie.FontName, "Times New Roman");
    Dispositivo = dispositivoVideo;
    s.PlottaSezione(&superficie, "x");
    EXPECT_TRUE(superficie.FontName.empty());
}

TEST_F(SezioneGenericaDisegnoTest, CadReceivesTheSameInUnitsOfTheModel) {
    const CadFinto cad("AutoCAD.Application.17");
    ASSERT_TRUE(CadApre());
    cad.chiamate->clear();
    Dispositivo = dispositivoDwg;
    SezioneGenerica s = Rettangolo();
    s.PlottaSezione(nullptr, "FrmClasseSagomiL");
    EXPECT_EQ((*cad.chiamate)[cad.chiamate->size() - 2],
              "ModelSpace.AddLightWeightPolyline 10 20 50 20 50 120 10 120 10 20");
    EXPECT_TRUE((*cad.chiamate)[0].starts_with("ModelSpace.AddLine"));
    EXPECT_TRUE(registratore.testi.empty()) << "no frame is asked for";
}

TEST_F(SezioneGenericaDisegnoTest, WithoutHatchingInPen7) {
    SezioneGenerica s = Rettangolo();
    ColorePenna = 12;
    s.MiaFormSetta(dispositivoVideo, &superficie);
    s.PlottaSenzaTratteggio();
    EXPECT_EQ(ColorePenna, 7);
    ASSERT_EQ(superficie.linee.size(), 4U);
    EXPECT_EQ(superficie.linee[0].colore, 7);
    EXPECT_NEAR(superficie.InY(120), 10, 1e-4);
}

TEST_F(SezioneGenericaDisegnoTest, AnEmptySectionDrawsNothing) {
    SezioneGenerica s;
    s.PlottaSezione(&superficie, "x");
    OggettoGrafico = &superficie;
    s.PlottaEllisse();
    s.PlottaSaldature(5);
    EXPECT_TRUE(superficie.linee.empty());
}

// The rectangle's radii of gyration: 100/sqrt(12) = 28.868 upwards, 40/sqrt(12) = 11.547 sideways, about its
// middle (30, 70).
TEST_F(SezioneGenericaDisegnoTest, EllipseOfInertiaLiesAlongTheSection) {
    OggettoGrafico = &superficie;
    Rettangolo().PlottaEllisse();
    double xMax = 0;
    double yMax = 0;
    double area = 0;
    for (const auto& l : superficie.linee) {
        xMax = std::max(xMax, l.x1);
        yMax = std::max(yMax, l.y1);
        area += (l.x1 * l.y2 - l.x2 * l.y1) / 2;
        const double u = (l.x1 - 30) / (40 / std::sqrt(12));
        const double v = (l.y1 - 70) / (100 / std::sqrt(12));
        EXPECT_NEAR(u * u + v * v, 1, 1e-9);
    }
    EXPECT_NEAR(xMax, 30 + 11.547, 1e-3);
    EXPECT_NEAR(yMax, 70 + 28.868, 1e-3);
    EXPECT_NEAR(area, std::numbers::pi * 28.868 * 11.547, 2) << "once round it";
}

// Turned by 30 degrees, the long axis of the ellipse turns along: its furthest point from the middle lies 120
// degrees from the x axis.
TEST_F(SezioneGenericaDisegnoTest, EllipseTurnsWithTheSection) {
    OggettoGrafico = &superficie;
    SezioneGenerica s = Rettangolo();
    s.Poligono->RuotaVertici(s.xG, s.yG, std::numbers::pi / 6);
    s.CaratteristicheStaticheSezione();
    s.PlottaEllisse();
    double lontano = 0;
    double direzione = 0;
    for (const auto& l : superficie.linee) {
        const double d = std::hypot(l.x1 - 30, l.y1 - 70);
        if (d > lontano) {
            lontano = d;
            direzione = std::atan2(l.y1 - 70, l.x1 - 30);
        }
    }
    EXPECT_NEAR(lontano, 28.868, 1e-3);
    EXPECT_NEAR(std::tan(direzione), std::tan(2 * std::numbers::pi / 3), 1e-6);
}

// A throat of 5 has legs of 7.0711: the seam's line lies that much outside the rectangle.
TEST_F(SezioneGenericaDisegnoTest, SeamLiesALegOutside) {
    OggettoGrafico = &superficie;
    Rettangolo().PlottaSaldature(5);
    ASSERT_EQ(superficie.linee.size(), 4U);
    double xMin = 1e9;
    double yMax = -1e9;
    for (const auto& l : superficie.linee) {
        xMin = std::min(xMin, l.x1);
        yMax = std::max(yMax, l.y1);
    }
    EXPECT_NEAR(xMin, 10 - 7.0711, 1e-3);
    EXPECT_NEAR(yMax, 120 + 7.0711, 1e-3);
    superficie.linee.clear();
    Rettangolo().PlottaSaldature(0);
    EXPECT_TRUE(superficie.linee.empty());
}

} // namespace
