// A beam from x = 20 to 220 on the axis y = 62, between y = 12 and 112: everything by hand from there.
// Letters of the fake font are 6 wide, their line reaches 12.7 up and 3.2 down.
#include "drawing/TavolaTrave.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "drawing/SuperficieFinta.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

bool Vicini(double a, double b) { return std::abs(a - b) < 1e-9; }

class TavolaTraveTest : public testing::Test {
protected:
    [[nodiscard]] bool HaLinea(double xa, double ya, double xb, double yb) const {
        return std::ranges::any_of(superficie.linee, [&](const auto& l) {
            return Vicini(l.x1, xa) && Vicini(l.y1, ya) && Vicini(l.x2, xb) && Vicini(l.y2, yb);
        });
    }
    /// Holds the one area drawn against its corners.
    void Area(std::vector<std::pair<double, double>> angoli, Fondo fondo) const {
        ASSERT_EQ(superficie.aree.size(), 1U);
        EXPECT_EQ(superficie.aree[0].fondo, fondo);
        ASSERT_EQ(superficie.aree[0].punti.size(), angoli.size());
        for (std::size_t i = 0; i < angoli.size(); ++i) {
            EXPECT_NEAR(superficie.aree[0].punti[i].first, angoli[i].first, 1e-9) << i;
            EXPECT_NEAR(superficie.aree[0].punti[i].second, angoli[i].second, 1e-9) << i;
        }
    }

    SuperficieFinta superficie{240, 124};
    SuUscita uscita{&superficie};
    Quadro quadro{&superficie, dispositivoVideo, {240, 124}};
    TavolaTrave trave{quadro, quadro.Tutto().Dentro(20, 12, 20, 12)};
};

TEST_F(TavolaTraveTest, APointIsMeasuredFromTheAxis) {
    EXPECT_EQ(trave.Punto(0.25, 0).x, 70);
    EXPECT_EQ(trave.Punto(0, 1).y, 12);
    EXPECT_EQ(trave.Punto(0, -0.5).y, 87);
    trave.Asse();
    EXPECT_TRUE(HaLinea(20, 62, 220, 62));
}

TEST_F(TavolaTraveTest, AProfileIsAWebBetweenTwoFlanges) {
    trave.Profilo(20);
    Area({{20, 52}, {220, 52}, {220, 72}, {20, 72}}, Fondo::Tenue);
    ASSERT_EQ(superficie.linee.size(), 3U);
    EXPECT_TRUE(HaLinea(20, 52, 220, 52));
    EXPECT_TRUE(HaLinea(20, 72, 220, 72));
    EXPECT_TRUE(HaLinea(20, 62, 220, 62));
    EXPECT_EQ(superficie.linee[0].spessore, spessoreContorno);
    EXPECT_EQ(superficie.linee[2].tipo, TipoLinea::TrattoPunto);
}

// 7 high and 8.4 wide.
TEST_F(TavolaTraveTest, ASupportIsATriangleUnderTheBeam) {
    trave.Appoggio(0.25, 5);
    ASSERT_EQ(superficie.linee.size(), 3U);
    EXPECT_TRUE(HaLinea(70, 67, 74.2, 74));
    EXPECT_TRUE(HaLinea(74.2, 74, 65.8, 74));
    EXPECT_TRUE(HaLinea(65.8, 74, 70, 67));
    trave.Appoggio(1);
    EXPECT_TRUE(HaLinea(220, 62, 224.2, 69)) << "without a height it stands on the axis";
}

// 20 high, hatched every 4: 5 strokes that fall away from the beam.
TEST_F(TavolaTraveTest, AWallIsHatchedOnItsFarSide) {
    trave.Incastro(0, 10);
    ASSERT_EQ(superficie.linee.size(), 6U);
    EXPECT_TRUE(HaLinea(20, 52, 20, 72));
    for (int i = 0; i < 5; ++i)
        EXPECT_TRUE(HaLinea(20, 52 + 4 * i, 16, 56 + 4 * i)) << i;
    superficie.linee.clear();
    trave.Incastro(0, 9.2); // 4.6 strokes are 5
    EXPECT_EQ(superficie.linee.size(), 6U);
    for (const double x : {0.5, 0.7, 1.0}) {
        superficie.linee.clear();
        trave.Incastro(x, 9); // 4.5 strokes are 4
        ASSERT_EQ(superficie.linee.size(), 5U);
        EXPECT_TRUE(HaLinea(20 + 200 * x, 65, 24 + 200 * x, 69)) << "the last, on the right";
    }
}

// Head 6 long and 4.8 wide, half of it over the end of the shaft.
TEST_F(TavolaTraveTest, AForcePointsDownToItsHeight) {
    trave.Forza(0.5, 11);
    ASSERT_EQ(superficie.linee.size(), 1U);
    EXPECT_TRUE(HaLinea(120, 12, 120, 48));
    Area({{120, 51}, {117.6, 45}, {122.4, 45}}, Fondo::Pieno);
    trave.Forza(0);
    EXPECT_TRUE(HaLinea(20, 12, 20, 59)) << "to the axis";
}

// 200 over 12 is 17 spaces; a field of 30 has 4 at the least.
TEST_F(TavolaTraveTest, ADistributedLoadIsARowFromEndToEnd) {
    trave.CaricoDistribuito(0);
    ASSERT_EQ(superficie.linee.size(), 19U);
    for (int i = 0; i <= 17; ++i)
        EXPECT_TRUE(HaLinea(20 + 200.0 * i / 17, 12, 20 + 200.0 * i / 17, 59)) << i;
    EXPECT_TRUE(HaLinea(20, 12, 220, 12));
    superficie.linee.clear();
    TavolaTrave(quadro, {10, 12, 30, 100}).CaricoDistribuito(7);
    ASSERT_EQ(superficie.linee.size(), 6U);
    EXPECT_TRUE(HaLinea(17.5, 12, 17.5, 52));
}

TEST_F(TavolaTraveTest, ADiagramIsFilledToTheAxisAndHasItsEndOrdinates) {
    trave.Diagramma([](double x) { return 1 - 1.5 * x; });
    ASSERT_EQ(superficie.aree.size(), 1U);
    const auto& punti = superficie.aree[0].punti;
    ASSERT_EQ(punti.size(), 51U);
    EXPECT_EQ(superficie.aree[0].fondo, Fondo::Tenue);
    EXPECT_EQ(punti[0], (std::pair<double, double>{20, 12}));
    EXPECT_EQ(punti[24], (std::pair<double, double>{120, 49.5})) << "the middle: 0.25 up";
    EXPECT_EQ(punti[48], (std::pair<double, double>{220, 87}));
    EXPECT_EQ(punti[49], (std::pair<double, double>{220, 62}));
    EXPECT_EQ(punti[50], (std::pair<double, double>{20, 62}));
    EXPECT_TRUE(HaLinea(20, 62, 20, 12));
    EXPECT_TRUE(HaLinea(220, 62, 220, 87));
    EXPECT_TRUE(HaLinea(20, 62, 220, 62));
    EXPECT_EQ(superficie.linee.size(), 51U);
}

// 2 units off its point, on each of the nine sides.
TEST_F(TavolaTraveTest, ANameStandsBesideItsPoint) {
    const double x[] = {112, 117, 122};
    const double y[] = {60 - 3.2, 62 + (12.7 - 3.2) / 2, 64 + 12.7};
    for (const int dx : {-1, 0, 1})
        for (const int dy : {-1, 0, 1}) {
            superficie.scritte.clear();
            trave.Nome(trave.Punto(0.5, 0), "q", dx, dy);
            ASSERT_EQ(superficie.scritte.size(), 1U);
            EXPECT_NEAR(superficie.scritte[0].x, x[dx + 1], 1e-9) << dx;
            EXPECT_NEAR(superficie.scritte[0].y, y[dy + 1], 1e-9) << dy;
        }
}

// 0.6 of the half field below the axis: y = 92.
TEST_F(TavolaTraveTest, ADistanceIsMeasuredBelowTheBeam) {
    trave.Distanza(0.2, 0.6, "a");
    EXPECT_TRUE(HaLinea(60, 92, 140, 92));
    ASSERT_EQ(superficie.scritte.size(), 1U);
    EXPECT_NEAR(superficie.scritte[0].x, 97, 1e-9);
    EXPECT_NEAR(superficie.scritte[0].y, 94 + 12.7, 1e-9);
}

// The area of a polygon of 72 sides on a circle of 3 is 36 · 9 · sin(5°).
TEST_F(TavolaTraveTest, APointThatIsMeantIsADisc) {
    trave.Segna({50, 60});
    ASSERT_EQ(superficie.aree.size(), 1U);
    EXPECT_EQ(superficie.aree[0].fondo, Fondo::Pieno);
    const auto& punti = superficie.aree[0].punti;
    ASSERT_EQ(punti.size(), 72U);
    double doppia = 0;
    for (std::size_t i = 0; i < 72; ++i) {
        const auto& [x1, y1] = punti[i];
        const auto& [x2, y2] = punti[(i + 1) % 72];
        EXPECT_NEAR(std::hypot(x1 - 50, y1 - 60), 3, 1e-9);
        doppia += x1 * y2 - x2 * y1;
    }
    EXPECT_NEAR(doppia / 2, 36 * 9 * std::sin(5 * std::acos(-1) / 180), 1e-9);
}

} // namespace
