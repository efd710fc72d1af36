#include "geometry/PoligonoOffset.h"

#include <gtest/gtest.h>

#include <cmath>

#include "Casi.h"
#include "Registratore.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

struct CasoOffset {
    const char* nome;
    const char* contorno;
    double xP, yP;
    double area; ///< of the offset, by hand
};
void PrintTo(const CasoOffset& c, std::ostream* os) { *os << c.nome; }

class OffsetTest : public testing::TestWithParam<CasoOffset> {};

/// Distance of a point from the outline, side by side.
double DistanzaDalContorno(const Poligono& p, double x, double y) {
    double minima = 1e30;
    for (int i = 1; i <= p.nVertici(); ++i) {
        const int j = i % p.nVertici() + 1;
        const double dx = p.xi(j) - p.xi(i);
        const double dy = p.yi(j) - p.yi(i);
        const double lungo = dx * dx + dy * dy;
        const double t = lungo > 0 ? ((x - p.xi(i)) * dx + (y - p.yi(i)) * dy) / lungo : 0;
        const double s = std::min(1.0, std::max(0.0, t));
        minima = std::min(minima, std::hypot(x - p.xi(i) - s * dx, y - p.yi(i) - s * dy));
    }
    return minima;
}

TEST_P(OffsetTest, PassesThroughThePoint) {
    const CasoOffset& c = GetParam();
    const Poligono p = PoligonoDaTesto(c.contorno);
    std::shared_ptr<Poligono> q;
    ASSERT_TRUE(p.OffsetPerPunto(c.xP, c.yP, q));
    EXPECT_NEAR(DistanzaDalContorno(*q, c.xP, c.yP), 0, 1e-6 * p.MaxDimensione());
    q->AreaCalcola();
    EXPECT_NEAR(q->Area, c.area, 1e-6 * c.area);
    Poligono verso = p;
    verso.AreaCalcola();
    EXPECT_EQ(q->Antiorario, verso.Antiorario);
}

constexpr const char* rettangolo = "0 0, 30 0, 30 50, 0 50";
constexpr const char* sagomaL = "0 0, 80 0, 80 10, 10 10, 10 100, 0 100";

// clang-format off
INSTANTIATE_TEST_SUITE_P(Punti, OffsetTest, testing::Values(
    CasoOffset{"right_of_a_rectangle",       rettangolo, 35, 20, 40.0 * 60},
    CasoOffset{"below_a_rectangle",          rettangolo, 10, -2, 34.0 * 54},
    CasoOffset{"beyond_a_corner",            rettangolo, 34, 57, 44.0 * 64}, // 7 above counts, not 4 beside
    CasoOffset{"inside_a_rectangle",         rettangolo, 27, 25, 24.0 * 44},
    CasoOffset{"on_the_outline",             rettangolo, 30, 7, 1500},
    CasoOffset{"clockwise",                  "0 50, 30 50, 30 0, 0 0", 35, 20, 40.0 * 60},
    CasoOffset{"points_on_a_side",           "0 0, 12 0, 30 0, 30 0, 30 50, 0 50", 15, -5, 40.0 * 60},
    // L: perimeter 360, five corners out and one in add 4 d^2.
    CasoOffset{"L_outside",                  sagomaL, 85, 5, 1700 + 360 * 5 + 4 * 25},
    CasoOffset{"L_in_the_corner",            sagomaL, 20, 40, 1700 + 360 * 10 + 4 * 100},
    CasoOffset{"L_inside",                   sagomaL, 2, 50, 1700 - 360 * 2 + 4 * 4},
    // 3-4-5 triangle of inradius 10: similar, scaled by (10 + d)/10.
    CasoOffset{"triangle",                   "0 0, 40 0, 0 30", 20, -5, 600 * 2.25}),
    [](const auto& i) { return std::string(i.param.nome); });
// clang-format on

TEST(OffsetPerPunto, SetsTheTolerance) {
    ZeroMaxDimen = 0;
    std::shared_ptr<Poligono> q;
    PoligonoDaTesto(rettangolo).OffsetPerPunto(35, 20, q);
    EXPECT_DOUBLE_EQ(ZeroMaxDimen, 50e-6);
    ZeroMaxDimen = 0;
}

TEST(OffsetPerPunto, AnOutlineWithoutExtentHasNone) {
    Registratore r;
    auto q = std::make_shared<Poligono>();
    EXPECT_FALSE(PoligonoDaTesto("3 3, 3 3, 3 3").OffsetPerPunto(1, 1, q));
    EXPECT_FALSE(q);
    EXPECT_EQ(r.testi, std::vector<std::string>{"Impostare ZeroMaxDimen"});
    EXPECT_FALSE(PoligonoDaTesto("0 0, 40 0").OffsetPerPunto(1, 1, q));
    EXPECT_EQ(r.testi.size(), 1U);
}

TEST(OffsetPoligono, AsksForTheTolerance) {
    ZeroMaxDimen = 0;
    Registratore r;
    Poligono q;
    EXPECT_FALSE(OffsetPoligono(PoligonoDaTesto(rettangolo), 3, q));
    double d = 0;
    EXPECT_FALSE(OffsetDistanza(PoligonoDaTesto(rettangolo), 3, 3, d));
    EXPECT_EQ(r.testi, (std::vector<std::string>{"Impostare ZeroMaxDimen", "Impostare ZeroMaxDimen"}));
}

// The side of a hexagon of 10, carried inwards by 1, loses 1 / tan 60 = 0.577 at each end: a point 9 along
// and 1 inside lies on it still, and nearer to it than to the next side, which is 1.366 away.
TEST(OffsetPoligono, ASideIsShortenedByTheBisectorsOfItsCorners) {
    ZeroMaxDimen = 1e-6;
    const double alto = 5 * std::sqrt(3.0);
    Poligono p;
    p.Coordinate({0, 10, 15, 10, 0, -5}, {0, 0, alto, 2 * alto, 2 * alto, alto}, 6);
    for (const double x : {0.6, 1.0, 9.0, 9.4}) {
        double d = 0;
        ASSERT_TRUE(OffsetDistanza(p, x, 1, d)) << x;
        EXPECT_NEAR(std::abs(d), 1, 1e-9) << x;
    }
}

TEST(OffsetPoligono, ASpikeMovesAside) {
    // A line that doubles back has no corner to reach; its tip goes aside by the distance.
    ZeroMaxDimen = 1e-6;
    Poligono q;
    ASSERT_TRUE(OffsetPoligono(PoligonoDaTesto("0 0, 10 0, 10 10, 10 20, 10 10, 0 10"), 1, q));
    for (const double v : q.CoordX())
        EXPECT_LE(std::abs(v), 12);
    for (const double v : q.CoordY())
        EXPECT_LE(std::abs(v), 21);
    ZeroMaxDimen = 0;
}

TEST(OffsetDistanza, SignTellsTheSide) {
    ZeroMaxDimen = 1e-6;
    double d = 0;
    ASSERT_TRUE(OffsetDistanza(PoligonoDaTesto(rettangolo), 35, 20, d));
    EXPECT_NEAR(d, 5, 1e-12);
    ASSERT_TRUE(OffsetDistanza(PoligonoDaTesto(rettangolo), 27, 25, d));
    EXPECT_NEAR(d, -3, 1e-12);
    ZeroMaxDimen = 0;
}

// Turned by any angle, an outline has the same offset through the turned point: a rectangle of 30 x 50 and a
// point 10 below its corner, 9 to the left of it. 10 counts: 50 x 70.
TEST(Offset, TurnsWithTheOutline) {
    for (const double angolo : {0.0, 0.4, 1.1, 2.0, 3.3, 5.0}) {
        Poligono p = PoligonoDaTesto(rettangolo);
        p.RuotaVertici(0, 0, angolo);
        const double c = std::cos(angolo);
        const double s = std::sin(angolo);
        std::shared_ptr<Poligono> q;
        ASSERT_TRUE(p.OffsetPerPunto(-9 * c + 10 * s, -9 * s - 10 * c, q)) << angolo;
        q->AreaCalcola();
        EXPECT_NEAR(q->Area, 50 * 70, 1e-6) << angolo;
    }
}

// The first vertex once more at the end, on outlines that begin with an upright and with a level side.
TEST(Offset, AClosedOutlineIsTheSame) {
    for (const char* chiuso : {"0 0, 0 50, 30 50, 30 0, 0 0", "0 0, 30 0, 30 50, 0 50, 0 0"}) {
        std::shared_ptr<Poligono> q;
        ASSERT_TRUE(PoligonoDaTesto(chiuso).OffsetPerPunto(35, 20, q)) << chiuso;
        EXPECT_EQ(q->nVertici(), 4);
        q->AreaCalcola();
        EXPECT_NEAR(q->Area, 40 * 60, 1e-6);
    }
}

} // namespace
