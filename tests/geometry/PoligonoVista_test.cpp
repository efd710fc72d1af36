#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>

#include "Casi.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

std::int16_t Dentro(const Poligono& p, double x, double y, double w = 1, double zero = 0) {
    std::int16_t esito = 0;
    p.PuntoInPoligono(x, y, w, zero, esito);
    return esito;
}

TEST(PuntoInPoligono, InsideAndOutside) {
    const Poligono p = PoligonoDaTesto("0 0, 100 0, 100 80, 88 80, 88 10, 12 10, 12 80, 0 80");
    EXPECT_EQ(Dentro(p, 6, 40), 1);
    EXPECT_EQ(Dentro(p, 50, 40), -1);
    EXPECT_EQ(Dentro(p, 94, 40), 1);
    EXPECT_EQ(Dentro(p, 50, 5), 1);
    EXPECT_EQ(Dentro(p, 50, -5), -1);
    EXPECT_EQ(Dentro(p, -1, 5), -1);
    EXPECT_EQ(Dentro(p, 101, 5), -1);
    EXPECT_EQ(Dentro(Poligono(), 0, 0), -1);
}

TEST(PuntoInPoligono, Weights) {
    const Poligono p = PoligonoDaTesto("0 0, 10 0, 10 10, 0 10");
    EXPECT_EQ(Dentro(p, 10, 10, 2), 1);
    EXPECT_EQ(Dentro(p, -10, -10, -2), 1);
    EXPECT_EQ(Dentro(p, 5, 5, 0.25), -1);
    EXPECT_EQ(Dentro(p, 5, 5, 0), -1);
    EXPECT_EQ(Dentro(p, 0.05, 0.05, 0.01, 0.02), -1);
    EXPECT_EQ(Dentro(p, 0.05, 0.05, 0.01, 0.005), 1);
}

TEST(PuntoInPoligono, RaysThroughVerticesAndAlongSides) {
    const Poligono rombo = PoligonoDaTesto("30 0, 60 50, 30 100, 0 50");
    EXPECT_EQ(Dentro(rombo, 30, 50), 1);
    EXPECT_EQ(Dentro(rombo, -5, 50), -1);
    EXPECT_EQ(Dentro(rombo, 10, 100), -1);
    EXPECT_EQ(Dentro(rombo, 10, 0), -1);
    const Poligono t = PoligonoDaTesto("5 0, 5 50, 50 50, 50 100, -50 100, -50 50, -5 50, -5 0");
    EXPECT_EQ(Dentro(t, 0, 50), 1);
    EXPECT_EQ(Dentro(t, -60, 50), -1);
    EXPECT_EQ(Dentro(t, 60, 50), -1);
}

TEST(PuntoInPoligono, CentroidsOfConvexOutlines) {
    for (const CasoPoligono& c : LeggeCasiPoligono("convessi.txt")) {
        const Poligono p = PoligonoDelCaso(c);
        EXPECT_EQ(Dentro(p, c.attesi.at("xG"), c.attesi.at("yG")), 1) << c.titolo;
        EXPECT_EQ(Dentro(p, c.attesi.at("xG") + 2 * p.MaxDimensione(), c.attesi.at("yG")), -1) << c.titolo;
    }
}

TEST(PoligonoConvesso, StartsLowestThenLeftmostAndDropsAlignedPoints) {
    const Poligono p = PoligonoDaTesto("10 10, 5 4, 10 0, 4 0, 0 0, 3 3, 0 10, 0 6, 10 5");
    const auto q = p.PoligonoConvessoCircoscritto();
    EXPECT_EQ(q->CoordX(), (std::vector<double>{0, 10, 10, 0}));
    EXPECT_EQ(q->CoordY(), (std::vector<double>{0, 0, 10, 10}));
}

TEST(PoligonoConvesso, HullsOfAllOutlines) {
    for (const char* file : {"convessi.txt", "concavi.txt", "stellati.txt", "profili.txt"})
        for (const CasoPoligono& c : LeggeCasiPoligono(file)) {
            SCOPED_TRACE(c.titolo);
            const Poligono p = PoligonoDelCaso(c);
            const auto q = p.PoligonoConvessoCircoscritto();
            const int n = q->nVertici();
            ASSERT_GE(n, 3);
            // Every corner turns left and every vertex of the outline lies to the left of every side.
            const double zero = 1e-9 * p.MaxDimensione() * p.MaxDimensione();
            for (int i = 1; i <= n; ++i) {
                const int j = i % n + 1;
                const double dx = q->xi(j) - q->xi(i);
                const double dy = q->yi(j) - q->yi(i);
                for (int k = 1; k <= p.nVertici(); ++k)
                    EXPECT_GE(dx * (p.yi(k) - q->yi(i)) - dy * (p.xi(k) - q->xi(i)), -zero);
                const int l = j % n + 1;
                EXPECT_GT(dx * (q->yi(l) - q->yi(j)) - dy * (q->xi(l) - q->xi(j)), 0);
            }
        }
}

TEST(PoligonoConvesso, HullOfAConvexOutlineIsTheOutline) {
    Poligono p = PoligonoDaTesto("0 0, 90 0, 70 35, 15 35");
    EXPECT_EQ(p.PoligonoConvessoCircoscritto()->CoordX(), p.CoordX());
    // Area of the hull of an I is that of its box.
    const auto q = ContornoDoppioT(200, 100, 5.6, 8.5, 12).PoligonoConvessoCircoscritto();
    q->AreaCalcola();
    EXPECT_NEAR(q->Area, 20000, 1e-9);
    EXPECT_TRUE(q->Antiorario);
    EXPECT_EQ(q->nVertici(), 4);
}

// Tips on a circle, notches within it: the hull is the tips.
TEST(PoligonoConvesso, TipsOfALargeStar) {
    constexpr int punte = 2000;
    std::vector<double> x;
    std::vector<double> y;
    for (int k = 0; k < 2 * punte; ++k) {
        const double a = (k + 0.25) * std::numbers::pi / punte;
        const double r = k % 2 == 0 ? 100 : 60;
        x.push_back(300 + r * std::cos(a));
        y.push_back(-70 + r * std::sin(a));
    }
    Poligono p;
    p.Coordinate(x, y, 2 * punte);
    const auto q = p.PoligonoConvessoCircoscritto();
    EXPECT_EQ(q->nVertici(), punte);
    for (int i = 1; i <= q->nVertici(); ++i)
        EXPECT_NEAR(Distanza(q->xi(i), q->yi(i), 300, -70), 100, 1e-9);
    q->AreaCalcola();
    EXPECT_NEAR(q->Area, punte / 2.0 * 100 * 100 * std::sin(2 * std::numbers::pi / punte), 1e-6);
}

TEST(PoligonoConvesso, WhatIsNoNumberHasNoPlace) {
    Poligono p = PoligonoDaTesto("0 0, 10 0, 5 5, 10 10, 0 10");
    p.xi(3, std::nan(""));
    EXPECT_EQ(p.PoligonoConvessoCircoscritto()->CoordX(), (std::vector<double>{0, 10, 10, 0}));
}

TEST(PoligonoConvesso, DegenerateOutlines) {
    EXPECT_EQ(Poligono().PoligonoConvessoCircoscritto()->nVertici(), 0);
    EXPECT_EQ(PoligonoDaTesto("3 4, 3 4, 3 4").PoligonoConvessoCircoscritto()->nVertici(), 1);
    const auto q = PoligonoDaTesto("20 20, 0 0, 40 40, 10 10, 0 0").PoligonoConvessoCircoscritto();
    EXPECT_EQ(q->CoordX(), (std::vector<double>{0, 40}));
}

struct Vista {
    std::vector<double> x, y;
    std::int16_t n = -1;
    explicit Vista(const Poligono& p) { p.VistaDaDestra(x, y, n); }
};

TEST(VistaDaDestra, RectangleShowsItsRightSide) {
    const Vista v(PoligonoDaTesto("0 0, 40 0, 40 20, 0 20"));
    EXPECT_EQ(v.n, 2);
    EXPECT_EQ(v.x, (std::vector<double>{40, 40}));
    EXPECT_EQ(v.y, (std::vector<double>{0, 20}));
}

TEST(VistaDaDestra, NothingBehindTheOutlineIsSeen) {
    // The arms of a U open to the left hide the inside and the left ends.
    const Vista u(PoligonoDaTesto("0 0, 80 0, 80 200, 0 200, 0 188, 71 188, 71 12, 0 12"));
    EXPECT_EQ(u.x, (std::vector<double>{80, 80}));
    // A tip that stands out hides the vertex behind it at its own level only.
    const Vista tacca(PoligonoDaTesto("0 0, 10 0, 10 10, 30 20, 10 30, 10 40, 0 40, 0 20"));
    EXPECT_EQ(tacca.x, (std::vector<double>{10, 10, 30, 10, 10}));
    EXPECT_EQ(tacca.y, (std::vector<double>{0, 10, 20, 30, 40}));
    EXPECT_EQ(Vista(Poligono()).n, 0);
}

TEST(VistaDaDestra, DoubleT) {
    // From the right a double T shows the tips of its flanges and the web between them.
    const Vista v(
        PoligonoDaTesto("50 0, 50 10, 3 10, 3 190, 50 190, 50 200, -50 200, -50 190, -3 190, -3 10, -50 10, "
                        "-50 0"));
    EXPECT_EQ(v.y, (std::vector<double>{0, 10, 190, 200}));
    const Vista raccordi(ContornoDoppioT(200, 100, 5.6, 8.5, 12));
    EXPECT_TRUE(std::all_of(raccordi.x.begin(), raccordi.x.end(), [](double x) { return x > 2; }));
    EXPECT_EQ(raccordi.n, 20); // 22 of the right side, less the two roots that lie behind the tips' edges
}

// A square: its lower and left sides are inside, the others outside.
TEST(PuntoInPoligono, OfTheOutlineTheLowerAndLeftSidesAreInside) {
    const Poligono p = PoligonoDaTesto("0 0, 10 0, 10 10, 0 10");
    EXPECT_EQ(Dentro(p, 0, 5), 1);
    EXPECT_EQ(Dentro(p, 5, 0), 1);
    EXPECT_EQ(Dentro(p, 10, 5), -1);
    EXPECT_EQ(Dentro(p, 5, 10), -1);
}

/// Vertices of the hull of a triangle with one point more on its right side, `seno` times the side's length
/// off the side: from (0, 0) to (1, 3) or (3, 1) times `scala`, a third of the way.
std::int16_t VerticiConvessi(double scala, double seno, bool ripido) {
    const double u = ripido ? 1 : 3;
    const double v = ripido ? 3 : 1;
    const double fuori = seno * 10;
    Poligono p;
    p.Coordinate({0, scala * (u + fuori * v) / 3, scala * u, -scala},
                 {0, scala * (v - fuori * u) / 3, scala * v, scala * v}, 4);
    return p.PoligonoConvessoCircoscritto()->nVertici();
}

// Up to a sine of 1E-12 a point lies on the side, whatever the size and the slope of the outline.
TEST(PoligonoConvesso, NoiseOnASideMakesNoCorner) {
    for (const double scala : {1e-3, 1.0, 1e3})
        for (const bool ripido : {false, true}) {
            EXPECT_EQ(VerticiConvessi(scala, 3e-14, ripido), 3) << scala << ripido;
            EXPECT_EQ(VerticiConvessi(scala, 1e-9, ripido), 4) << scala << ripido;
        }
}

TEST(PuntoInPoligono, AWeightOfTheToleranceIsNone) {
    EXPECT_EQ(Dentro(PoligonoDaTesto("0 0, 10 0, 10 10, 0 10"), 2.5, 2.5, 0.5, 0.5), -1);
}

// A corner with another one to its right is seen up to 1E-10.
TEST(VistaDaDestra, HidesWhatLiesFurtherLeftThanTheTolerance) {
    const auto visti = [](double d) {
        Poligono p;
        p.Coordinate({0, 10 + d, 10 + d, 10, 0}, {0, 0, 10, 10, 10}, 5);
        std::vector<double> x;
        std::vector<double> y;
        std::int16_t n = 0;
        p.VistaDaDestra(x, y, n);
        return n;
    };
    EXPECT_EQ(visti(0.8e-10), 3);
    EXPECT_EQ(visti(1.2e-10), 2);
}

} // namespace
