#include "sections/TracciaContorno.h"

#include <cmath>
#include <numbers>

#include <gtest/gtest.h>

#include "geometry/Poligono.h"

using namespace sagomi;

namespace {

TEST(TracciaContorno, ArcsOfParallelFlangesTurnByAQuarter) {
    const ArchiAla& archi = ArchiDiPendenza(0);
    EXPECT_EQ(archi.coseno, 1);
    EXPECT_NEAR(archi.tangenteMezza, std::tan(std::numbers::pi / 4), 1e-15);
    EXPECT_NEAR(archi.raccordo.front()[1], -1, 1e-15); // starts on the flange, below its centre
    EXPECT_NEAR(archi.raccordo.back()[0], -1, 1e-15);  // ends on the web
    EXPECT_EQ(&ArchiDiPendenza(0), &archi);
}

TEST(TracciaContorno, ArcsOfASlopeEndSquareToIt) {
    const ArchiAla& archi = ArchiDiPendenza(0.14);
    const double a = std::atan(0.14);
    EXPECT_EQ(archi.punta.front()[0], 1); // upright at the tip
    EXPECT_NEAR(archi.punta.back()[0], std::sin(a), 1e-15);
    EXPECT_NEAR(archi.raccordo.front()[0], -std::sin(a), 1e-15);
    EXPECT_NE(&ArchiDiPendenza(0.08), &archi);
    EXPECT_EQ(&ArchiDiPendenza(0.14), &archi);
}

// A channel of plates 100 x 50 x 5: two flanges of 50 x 5 and a web of 90 x 5, from one profile. Its back is
// the line that joins the last vertex to the first.
TEST(TracciaContorno, AProfileAndItsMirrorMakeAChannel) {
    Profilo p;
    p.Punto(0, 0);
    p.Punto(50, 0);
    p.Punto(50, 5);
    p.Punto(5, 5);
    std::vector<double> x;
    std::vector<double> y;
    Percorso percorso(x, y, {.h = 100}, 8);
    percorso.InBasso(p);
    percorso.InAlto(p);
    Poligono contorno;
    contorno.Coordinate(x, y, 8);
    contorno.CaratteristicheStatiche();
    EXPECT_NEAR(contorno.Area, 950, 1e-9);
    EXPECT_NEAR(contorno.yG, 50, 1e-9);
    EXPECT_NEAR(contorno.xG, (500 * 25 + 450 * 2.5) / 950, 1e-9);
}

TEST(TracciaContorno, PlaceAndScaleMoveTheVertices) {
    Profilo p;
    p.Punto(50, 1);
    std::vector<double> x;
    std::vector<double> y;
    Percorso percorso(x, y, {.h = 100, .x0 = 10, .y0 = 3, .scala = 2}, 2);
    percorso.InAltoASinistra(p);
    percorso.InBassoASinistra(p);
    EXPECT_EQ(x, (std::vector<double>{-20, -20}));
    EXPECT_EQ(y, (std::vector<double>{102, 4}));
}

TEST(TracciaContorno, AProfileHasRoomForThirtyTwoPoints) {
    Profilo p;
    for (int i = 0; i < 32; ++i)
        p.Punto(i, 0);
    EXPECT_THROW(p.Punto(0, 0), std::out_of_range);
}

} // namespace
