#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>

#include "Casi.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

constexpr double infinito = std::numeric_limits<double>::infinity();

MomentiStriscia Totale(const Poligono& p, double yInf = -infinito, double ySup = infinito) {
    MomentiStriscia t;
    for (int i = 1; i <= p.nStrisce; ++i) {
        const MomentiStriscia m = p.RettangolinoMomenti(i, yInf, ySup);
        t.Area += m.Area;
        t.Sx += m.Sx;
        t.Sy += m.Sy;
        t.Ix += m.Ix;
        t.Iy += m.Iy;
        t.Ixy += m.Ixy;
    }
    return t;
}

TEST(DiscretizzaPoligono, StripsOfAU) {
    Poligono p = PoligonoDaTesto("0 0, 100 0, 100 80, 88 80, 88 10, 12 10, 12 80, 0 80");
    p.DiscretizzaPoligono(8);
    EXPECT_EQ(p.nStrisce, 8);
    EXPECT_EQ(p.MezzaStriscia(), 5);
    EXPECT_EQ(p.yStriscia(1), 75);
    EXPECT_EQ(p.hStriscia(3), 10);
    EXPECT_EQ(p.yStriscia(8), 5);
    ASSERT_EQ(p.nRett(1), 2);
    EXPECT_EQ(p.bRett(1, 1), 12);
    EXPECT_EQ(p.xRett(1, 1), 6);
    EXPECT_EQ(p.bRett(2, 1), 12);
    EXPECT_EQ(p.xRett(2, 1), 94);
    ASSERT_EQ(p.nRett(8), 1);
    EXPECT_EQ(p.bRett(1, 8), 100);
    EXPECT_EQ(p.xRett(1, 8), 50);
    // Every strip is whole here, so the sums are those of the outline.
    p.CaratteristicheStatiche();
    const MomentiStriscia t = Totale(p);
    EXPECT_NEAR(t.Area, p.Area, 1e-9 * p.Area);
    EXPECT_NEAR(t.Sx, p.Sx, 1e-9 * p.Sx);
    EXPECT_NEAR(t.Sy, p.Sy, 1e-9 * p.Sy);
    EXPECT_NEAR(t.Ix, p.Ix, 1e-9 * p.Ix);
    EXPECT_NEAR(t.Iy, p.Iy, 1e-9 * p.Iy);
    EXPECT_NEAR(t.Ixy, p.Ixy, 1e-9 * p.Ixy);
}

TEST(DiscretizzaPoligono, TablesAreInSinglePrecision) {
    Poligono p = PoligonoDaTesto("0 0, 0.1 0, 0.1 0.7, 0 0.7");
    p.DiscretizzaPoligono(7);
    EXPECT_EQ(p.bRett(1, 1).Stretto(), 0.1F);
    EXPECT_EQ(p.hStriscia(1).Stretto(), 0.1F);
    EXPECT_EQ(p.yStriscia(1).Stretto(), 0.65F);
}

// Centres of strips that fall on vertices: a passing vertex counts once, a touching one never or twice.
TEST(DiscretizzaPoligono, CentresThroughVertices) {
    Poligono rombo = PoligonoDaTesto("30 0, 60 50, 30 100, 0 50");
    rombo.DiscretizzaPoligono(5);
    ASSERT_EQ(rombo.nRett(3), 1);
    EXPECT_EQ(rombo.bRett(1, 3), 60);
    EXPECT_EQ(rombo.xRett(1, 3), 30);
    // A valley whose bottom touches the level 30 from above, a peak of a notch that touches it from below.
    Poligono valle = PoligonoDaTesto("0 0, 60 0, 60 60, 30 30, 0 60");
    valle.DiscretizzaPoligono(1);
    EXPECT_NEAR(Totale(valle).Area, 60 * 60, 1e-3);
    Poligono picco = PoligonoDaTesto("0 0, 30 30, 60 0, 60 60, 0 60");
    picco.DiscretizzaPoligono(1);
    EXPECT_NEAR(Totale(picco).Area, 60 * 60, 1e-3);
    // The underside of a T's flange is a whole side on the level: what lies above it counts.
    Poligono t = PoligonoDaTesto("5 0, 5 50, 50 50, 50 100, -50 100, -50 50, -5 50, -5 0");
    t.DiscretizzaPoligono(1);
    ASSERT_EQ(t.nRett(1), 1);
    EXPECT_EQ(t.bRett(1, 1), 100);
}

TEST(DiscretizzaPoligono, SumsComeNearTheOutline) {
    for (const char* file : {"convessi.txt", "concavi.txt", "stellati.txt", "profili.txt"})
        for (const CasoPoligono& c : LeggeCasiPoligono(file)) {
            SCOPED_TRACE(c.titolo);
            // A strip across a flange's edge is off by up to half its height, 0.4 % of the area of a deep I.
            // The tables keep 24 bits, which a place a million away uses up.
            if (c.titolo.find("million") != std::string::npos ||
                c.titolo.find("twenty-five") != std::string::npos)
                continue;
            Poligono p = PoligonoDelCaso(c);
            p.DiscretizzaPoligono(2000);
            EXPECT_NEAR(Totale(p).Area, c.attesi.at("Area"), 5e-3 * c.attesi.at("Area"));
        }
}

TEST(DiscretizzaPoligono, AtMostTwentyRectangles) {
    for (const CasoPoligono& c : LeggeCasiPoligono("concavi.txt")) {
        if (c.titolo != "comb of twenty-five teeth")
            continue;
        Poligono p = PoligonoDelCaso(c);
        p.DiscretizzaPoligono(11);
        EXPECT_EQ(p.nRett(1), 20);
        EXPECT_EQ(p.bRett(20, 1), 2);
        EXPECT_THROW((void)p.bRett(21, 1), std::out_of_range);
        return;
    }
    FAIL() << "the comb is missing";
}

TEST(DiscretizzaPoligono, NothingToDivide) {
    Poligono p = PoligonoDaTesto("0 0, 30 0, 30 50, 0 50");
    p.DiscretizzaPoligono(4);
    p.DiscretizzaPoligono(0);
    EXPECT_EQ(p.nStrisce, 0);
    EXPECT_EQ(p.MezzaStriscia(), 0);
    EXPECT_THROW((void)p.hStriscia(1), std::out_of_range);
    Poligono vuoto;
    vuoto.DiscretizzaPoligono(10);
    EXPECT_EQ(vuoto.nStrisce, 0);
}

TEST(DiscretizzaPoligono, TablesRefuseIndicesOutside) {
    Poligono p = PoligonoDaTesto("0 0, 30 0, 30 50, 0 50");
    p.DiscretizzaPoligono(4);
    EXPECT_THROW((void)p.yStriscia(0), std::out_of_range);
    EXPECT_THROW((void)p.nRett(5), std::out_of_range);
    EXPECT_THROW((void)p.xRett(2, 1), std::out_of_range);
    EXPECT_THROW((void)p.xRett(0, 1), std::out_of_range);
}

TEST(DiscretizzaCerchio, StripsAddUpToTheCircle) {
    for (const auto& [n, errore] : {std::pair{20, 0.01}, std::pair{200, 1e-4}}) {
        Poligono p;
        p.DiscretizzaCerchio(static_cast<std::int16_t>(n), 100);
        EXPECT_EQ(p.nStrisce, n);
        const MomentiStriscia t = Totale(p);
        EXPECT_NEAR(t.Area, 2500 * std::numbers::pi, errore * 2500 * std::numbers::pi) << n;
        EXPECT_NEAR(t.Ix, std::numbers::pi * 6250000 / 4, errore * std::numbers::pi * 6250000 / 4) << n;
        EXPECT_NEAR(t.Sx, 0, 1e-2);
    }
}

TEST(DiscretizzaCerchio, FirstStrips) {
    Poligono p;
    p.DiscretizzaCerchio(6, 20, 3, 100); // steps of 30 degrees from 60 down
    EXPECT_NEAR(p.yStriscia(1), 100 + 10 * std::sqrt(3) / 2, 1e-5);
    EXPECT_NEAR(p.bRett(1, 1), 10, 1e-6);
    EXPECT_EQ(p.xRett(1, 1), 3);
    EXPECT_NEAR(p.yStriscia(3), 100, 1e-6);
    EXPECT_NEAR(p.bRett(1, 3), 20, 1e-6);
    EXPECT_NEAR(p.hStriscia(3), 20 * std::sin(std::numbers::pi / 12), 1e-6);
    EXPECT_NEAR(p.bRett(1, 6), 0, 1e-6);
    EXPECT_EQ(p.nRett(6), 1);
    p.DiscretizzaCerchio(0, 20);
    EXPECT_EQ(p.nStrisce, 0);
}

TEST(Rettangolini, PartOfAStripBetweenTwoLevels) {
    Poligono p = PoligonoDaTesto("0 0, 30 0, 30 50, 0 50");
    p.DiscretizzaPoligono(5);
    EXPECT_EQ(p.RettangolinoArea(5, 0, 10), 300);
    EXPECT_EQ(p.RettangolinoArea(5, 4, 100), 180);
    EXPECT_EQ(p.RettangolinoArea(5, -100, 4), 120);
    EXPECT_EQ(p.RettangolinoArea(5, 2, 5), 90);
    EXPECT_EQ(p.RettangolinoArea(5, 10, 20), 0);
    EXPECT_EQ(p.RettangolinoArea(5, 8, 2), 0);
    const MomentiStriscia m = p.RettangolinoMomenti(5, 2, 5); // 30 x 3 about (15, 3.5)
    EXPECT_NEAR(m.Sx, 90 * 3.5, 1e-9);
    EXPECT_NEAR(m.Sy, 90 * 15, 1e-9);
    EXPECT_NEAR(m.Ix, 30 * (125 - 8) / 3.0, 1e-9);
    EXPECT_NEAR(m.Iy, 3 * 27000 / 3.0, 1e-9);
    EXPECT_NEAR(m.Ixy, 90 * 3.5 * 15, 1e-9);
    EXPECT_NEAR(Totale(p, 13, 37).Area, 24 * 30, 1e-9);
    EXPECT_THROW((void)p.RettangolinoArea(6, 0, 1), std::out_of_range);
}

TEST(DiscretizzaPoligono, AVertexAloneHasStripsWithoutHeight) {
    Poligono p;
    p.Coordinate({5}, {7}, 1);
    p.DiscretizzaPoligono(3);
    ASSERT_EQ(p.nStrisce, 3);
    EXPECT_EQ(p.hStriscia(3), 0);
    EXPECT_EQ(p.yStriscia(1), 7);
    EXPECT_EQ(p.nRett(1), 0);
}

TEST(DiscretizzaCerchio, OneStripIsHalfTheDiameterToEachSide) {
    Poligono p;
    p.DiscretizzaCerchio(1, 10);
    EXPECT_EQ(p.MezzaStriscia(), 5);
    p.DiscretizzaCerchio(0, 10);
    EXPECT_EQ(p.MezzaStriscia(), 0);
}

} // namespace
