#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "Casi.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

TEST(PoligonoVertici, LoadsTheFirstEntries) {
    Poligono p;
    p.Coordinate({1, 2, 3, 4}, {5, 6, 7, 8, 9}, 3);
    EXPECT_EQ(p.nVertici(), 3);
    EXPECT_EQ(p.CoordX(), (std::vector<double>{1, 2, 3}));
    EXPECT_EQ(p.CoordY(), (std::vector<double>{5, 6, 7}));
}

TEST(PoligonoVertici, AFailedLoadEndsQuietly) {
    Poligono p = PoligonoDaTesto("1 2, 3 4, 5 6");
    p.Coordinate({1, 2}, {1, 2, 3}, 3);
    p.Coordinate({1, 2, 3}, {1, 2}, 3);
    p.CoordX(std::vector<double>(40000, 1.0));
    p.CoordY(std::vector<double>(40000, 1.0));
    EXPECT_EQ(p.nVertici(), 3);
    EXPECT_EQ(p.CoordX(), (std::vector<double>{1, 3, 5}));
    EXPECT_EQ(p.CoordY(), (std::vector<double>{2, 4, 6}));
}

TEST(PoligonoVertici, LoadsItsOwnArrays) {
    Poligono p = PoligonoDaTesto("1 2, 3 4, 5 6");
    p.Coordinate(p.CoordY(), p.CoordX(), 2);
    EXPECT_EQ(p.CoordX(), (std::vector<double>{2, 4}));
    EXPECT_EQ(p.CoordY(), (std::vector<double>{1, 3}));
}

TEST(PoligonoVertici, CountDimensionsAnewOnlyAboveZero) {
    Poligono p = PoligonoDaTesto("1 2, 3 4, 5 6");
    p.nVertici(2);
    EXPECT_EQ(p.nVertici(), 2);
    EXPECT_EQ(p.CoordX(), (std::vector<double>{0, 0}));
    p.xi(2, 7);
    p.nVertici(0);
    EXPECT_EQ(p.nVertici(), 0);
    EXPECT_EQ(p.CoordX(), (std::vector<double>{0, 7}));
    p.nVertici(-3);
    EXPECT_EQ(p.nVertici(), -3);
    EXPECT_EQ(p.Perimetro(), 0);
    p.AreaCalcola();
    EXPECT_EQ(p.Area, 0);
}

TEST(PoligonoVertici, EachArrayBringsItsCount) {
    Poligono p;
    p.CoordX({0, 10, 10, 0, 5});
    EXPECT_EQ(p.nVertici(), 5);
    p.CoordY({0, 0, 20, 20});
    EXPECT_EQ(p.nVertici(), 4);
    p.AreaCalcola();
    EXPECT_EQ(p.Area, 200);
    p.CoordY({1, 2, 3, 4, 5, 6, 7});
    EXPECT_EQ(p.nVertici(), 7);
    EXPECT_EQ(p.x(7), 0);
    p.CoordX({});
    EXPECT_EQ(p.nVertici(), 0);
}

TEST(PoligonoVertici, AccessFromOne) {
    Poligono p = PoligonoDaTesto("1 2, 3 4, 5 6");
    EXPECT_EQ(p.xi(1), 1);
    EXPECT_EQ(p.x(3), 5);
    EXPECT_EQ(p.yi(2), 4);
    EXPECT_EQ(p.y(3), 6);
    p.x(1, -1);
    p.y(1, -2);
    EXPECT_EQ(p.xi(1), -1);
    EXPECT_EQ(p.yi(1), -2);
    EXPECT_THROW((void)p.xi(0), std::out_of_range);
    EXPECT_THROW((void)p.y(4), std::out_of_range);
    EXPECT_THROW(p.yi(-1, 0), std::out_of_range);
}

TEST(PoligonoVertici, CopyTakesValuesButNoStrips) {
    Poligono p = PoligonoDaTesto("0 0, 30 0, 30 50, 0 50");
    p.AreaCalcola();
    p.CaratteristicheStatiche();
    p.Wplastici();
    p.DiscretizzaPoligono(5);
    Poligono q = p.Copia();
    EXPECT_EQ(q.CoordX(), p.CoordX());
    EXPECT_EQ(q.CoordY(), p.CoordY());
    // The 23 numbers stand side by side in the class, from Area to WplY.
    const double* primo = &p.Area;
    const double* copia = &q.Area;
    ASSERT_EQ(&p.WplY - primo, 22);
    for (int i = 0; i < 23; ++i)
        EXPECT_EQ(copia[i], primo[i]) << i;
    EXPECT_TRUE(q.Antiorario);
    EXPECT_EQ(p.nStrisce, 5);
    EXPECT_EQ(q.nStrisce, 0);
    EXPECT_EQ(q.MezzaStriscia(), 0);
    EXPECT_THROW((void)q.yStriscia(1), std::out_of_range);
    q.xi(1, 99);
    EXPECT_EQ(p.xi(1), 0);
}

TEST(PoligonoVertici, InsertsPoints) {
    Poligono p = PoligonoDaTesto("0 0, 10 0, 10 10");
    p.InseriscePunti(2, {11, 12}, {1, 2});
    EXPECT_EQ(p.CoordX(), (std::vector<double>{0, 10, 11, 12, 10}));
    EXPECT_EQ(p.CoordY(), (std::vector<double>{0, 0, 1, 2, 10}));
    p.InseriscePunti(0, {-1}, {-2});
    EXPECT_EQ(p.xi(1), -1);
    p.InseriscePunti(6, {5}, {5});
    EXPECT_EQ(p.yi(7), 5);
    EXPECT_EQ(p.nVertici(), 7);
    EXPECT_THROW(p.InseriscePunti(8, {1}, {1}), std::out_of_range);
    EXPECT_THROW(p.InseriscePunti(1, {1, 2}, {1}), std::out_of_range);
}

TEST(PoligonoEstremi, MaxMin) {
    Poligono p = PoligonoDaTesto("3 -2, 9 4, -6 1");
    double a = 0;
    double b = 0;
    double c = 0;
    double d = 0;
    double zero = 0;
    p.MaxMin(a, b, c, d, &zero);
    EXPECT_EQ(a, -6);
    EXPECT_EQ(b, 9);
    EXPECT_EQ(c, -2);
    EXPECT_EQ(d, 4);
    EXPECT_DOUBLE_EQ(zero, 15e-9);
    EXPECT_EQ(p.BoundingBox(), (std::array<double, 4>{-6, 9, -2, 4}));
    EXPECT_EQ(p.MaxDimensione(), 15);
}

TEST(PoligonoEstremi, EmptyPolygonKeepsTheStartingExtremes) {
    const Poligono p;
    double a = 0;
    double b = 0;
    double c = 0;
    double d = 0;
    p.MaxMin(a, b, c, d);
    // 1E+20 in single precision is 2^13 times a 24-bit integer.
    EXPECT_EQ(a, 100000002004087734272.0);
    EXPECT_EQ(b, -100000002004087734272.0);
    EXPECT_EQ(c, a);
    EXPECT_EQ(d, b);
    EXPECT_EQ(p.MaxDimensione(), 0);
}

TEST(PoligonoEstremi, PointInTheGrownBox) {
    const Poligono p = PoligonoDaTesto("0 0, 10 0, 5 20");
    EXPECT_TRUE(p.PuntoInBoundingBox(0, 20, 0));
    EXPECT_FALSE(p.PuntoInBoundingBox(-0.5, 10, 0));
    EXPECT_TRUE(p.PuntoInBoundingBox(-0.5, 20.5, 0.5));
    EXPECT_FALSE(p.PuntoInBoundingBox(5, 20.6, 0.5));
    EXPECT_FALSE(p.PuntoInBoundingBox(5, 10, -6));
}

TEST(PoligonoMoti, TraslaSubtracts) {
    Poligono p = PoligonoDaTesto("1 2, 30 40, 5 6");
    p.Trasla(10, -3);
    EXPECT_EQ(p.CoordX(), (std::vector<double>{-9, 20, -5}));
    EXPECT_EQ(p.CoordY(), (std::vector<double>{5, 43, 9}));
}

TEST(PoligonoMoti, SpecchiaXY) {
    Poligono p = PoligonoDaTesto("1 2, 30 40, 5 6");
    p.SpecchiaXY(4);
    EXPECT_EQ(p.CoordX(), (std::vector<double>{-5, -34, -9}));
    EXPECT_EQ(p.CoordY(), (std::vector<double>{2, 40, 6}));
    p.SpecchiaXY(4);
    EXPECT_EQ(p.CoordX(), (std::vector<double>{1, 30, 5}));
    p.SpecchiaXY(-1, true);
    EXPECT_EQ(p.CoordY(), (std::vector<double>{-1, -39, -5}));
    EXPECT_EQ(p.CoordX(), (std::vector<double>{1, 30, 5}));
}

TEST(PoligonoMoti, FrameAndBack) {
    // Frame at (10, 5) turned by 90 degrees: the point (10, 8) lies 3 along its x axis, (6, 5) 4 along its y
    // axis.
    Poligono p = PoligonoDaTesto("10 8, 6 5, 10 5");
    p.RotoTraslaVertici(RiferimentoDiretto(10, 5, std::numbers::pi / 2));
    EXPECT_NEAR(p.xi(1), 3, 1e-12);
    EXPECT_NEAR(p.yi(1), 0, 1e-12);
    EXPECT_NEAR(p.xi(2), 0, 1e-12);
    EXPECT_NEAR(p.yi(2), 4, 1e-12);
    EXPECT_NEAR(p.xi(3), 0, 1e-12);
    p.RotoTraslaVertici(RiferimentoInverso(10, 5, std::numbers::pi / 2));
    EXPECT_NEAR(p.xi(1), 10, 1e-12);
    EXPECT_NEAR(p.yi(1), 8, 1e-12);
    EXPECT_NEAR(p.xi(2), 6, 1e-12);
}

TEST(PoligonoMoti, TransformationByItsCoefficients) {
    Poligono p = PoligonoDaTesto("1 2");
    p.RotoTraslaVertici({2, 3, 4, 5, 6, 7});
    EXPECT_EQ(p.xi(1), 12);
    EXPECT_EQ(p.yi(1), 24);
}

TEST(PoligonoMoti, RuotaVerticiInEveryQuadrant) {
    // About (1, 1): right, above, left, below and the centre itself, by 30 degrees.
    Poligono p = PoligonoDaTesto("3 1, 1 3, -1 1, 1 -1, 1 1");
    p.RuotaVertici(1, 1, std::numbers::pi / 6);
    const double c = std::sqrt(3.0);
    const std::vector<double> x{1 + c, 0, 1 - c, 2, 1};
    const std::vector<double> y{2, 1 + c, 0, 1 - c, 1};
    for (int i = 1; i <= 5; ++i) {
        EXPECT_NEAR(p.xi(i), x[static_cast<std::size_t>(i - 1)], 1e-12) << i;
        EXPECT_NEAR(p.yi(i), y[static_cast<std::size_t>(i - 1)], 1e-12) << i;
    }
    EXPECT_GT(p.Area, 0); // and recalculates
}

TEST(PoligonoMoti, Perimetro) {
    EXPECT_EQ(PoligonoDaTesto("0 0, 3 0, 3 4").Perimetro(), 12);
    EXPECT_EQ(PoligonoDaTesto("0 0, 3 4").Perimetro(), 10);
    EXPECT_EQ(Poligono().Perimetro(), 0);
}

TEST(PoligonoVertici, OneVertexStandsAtTheOrigin) {
    Poligono p;
    p.nVertici(1);
    EXPECT_EQ(p.x(1), 0);
    EXPECT_EQ(p.y(1), 0);
}

// The box of a square of 10 with a margin of 1, edges included.
TEST(PuntoInBoundingBox, GrowsByTheMarginOnAllSides) {
    const Poligono p = PoligonoDaTesto("0 0, 10 0, 10 10, 0 10");
    for (const double v : {-1.0, 0.0, 5.0, 10.0, 11.0}) {
        EXPECT_TRUE(p.PuntoInBoundingBox(v, 5, 1)) << v;
        EXPECT_TRUE(p.PuntoInBoundingBox(5, v, 1)) << v;
    }
    for (const double v : {-1.001, 11.001}) {
        EXPECT_FALSE(p.PuntoInBoundingBox(v, 5, 1)) << v;
        EXPECT_FALSE(p.PuntoInBoundingBox(5, v, 1)) << v;
    }
}

TEST(PoligonoVertici, ALoadOfNoneForgetsNoCoordinate) {
    Poligono p = PoligonoDaTesto("1 2, 3 4, 5 6");
    p.Coordinate({}, {}, 0);
    EXPECT_EQ(p.nVertici(), 0);
    EXPECT_EQ(p.CoordX(), (std::vector<double>{1, 3, 5}));
}

// A quarter turn about the origin, of a vertex that is next to it.
TEST(RuotaVertici, AVertexNextToTheCentreTurnsToo) {
    Poligono p;
    p.Coordinate({1.2e-20, 10, 0}, {0, 0, 10}, 3);
    p.RuotaVertici(0, 0, std::numbers::pi / 2);
    EXPECT_NEAR(p.x(1), 0, 1e-25);
    EXPECT_NEAR(p.y(1), 1.2e-20, 1e-25);
}

} // namespace
