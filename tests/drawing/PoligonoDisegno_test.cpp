#include "geometry/Poligono.h"

#include <cmath>

#include <gtest/gtest.h>

#include "drawing/SuperficieFinta.h"
#include "geometry/Casi.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

class PoligonoDisegnoTest : public testing::Test {
protected:
    SuperficieFinta superficie{100, 100};
    SuUscita uscita{&superficie};
};

TEST_F(PoligonoDisegnoTest, PlotsTheClosedOutline) {
    PoligonoDaTesto("0 0, 10 0, 10 5").Plotta({100, 200});
    ASSERT_EQ(superficie.linee.size(), 3U);
    EXPECT_EQ(superficie.linee[0].x1, 100);
    EXPECT_EQ(superficie.linee[0].y1, 200);
    EXPECT_EQ(superficie.linee[2].x1, 110);
    EXPECT_EQ(superficie.linee[2].y1, 205);
    EXPECT_EQ(superficie.linee[2].x2, 100);
    EXPECT_EQ(superficie.linee[2].y2, 200);
}

// Ten vertices: 1 to 4 are the outer square, 5 repeats its start and is left out, 6 to 10 are the inner line.
TEST_F(PoligonoDisegnoTest, DoubleListHasTwoContours) {
    PoligonoDaTesto("0 0, 9 0, 9 9, 0 9, 0 0, 3 3, 6 3, 6 6, 3 6, 3 3").Plotta({}, true);
    ASSERT_EQ(superficie.linee.size(), 4U + 5U);
    EXPECT_EQ(superficie.linee[3].x2, 0) << "back to vertex 1";
    EXPECT_EQ(superficie.linee[3].y1, 9);
    EXPECT_EQ(superficie.linee[4].x1, 3) << "vertex 6";
    EXPECT_EQ(superficie.linee[8].x1, 3) << "vertex 10";
    EXPECT_EQ(superficie.linee[8].x2, 3);
}

TEST_F(PoligonoDisegnoTest, AnEmptyPolygonDrawsNothing) {
    Poligono p;
    p.Plotta();
    p.Plotta({}, true);
    EXPECT_EQ(p.Tratteggia(45, 10, 8), 0);
    p.NumeraVertici(1);
    p.PlottaRettangolini();
    p.nVertici(-5);
    p.Plotta();
    p.Plotta({}, true);
    p.NumeraVertici(1);
    EXPECT_TRUE(superficie.linee.empty());
    EXPECT_TRUE(superficie.scritte.empty());
}

TEST_F(PoligonoDisegnoTest, HatchesTheInside) {
    EXPECT_EQ(PoligonoDaTesto("0 0, 10 0, 10 10, 0 10").Tratteggia(0, 2, 8, {50, 60}), 2);
    ASSERT_EQ(superficie.linee.size(), 2U); // levels 2.5 and 7.5
    EXPECT_NEAR(superficie.linee[0].x1, 50, 1e-12);
    EXPECT_NEAR(superficie.linee[0].x2, 60, 1e-12);
    EXPECT_NEAR(superficie.linee[0].y1, 62.5, 1e-12);
    EXPECT_NEAR(superficie.linee[1].y1, 67.5, 1e-12);
    EXPECT_EQ(superficie.linee[0].colore, 8);
}

TEST_F(PoligonoDisegnoTest, WritesEachNumberAtItsVertex) {
    PoligonoDaTesto("0 0, 10 0, 10 5").NumeraVertici(2, {1, 1});
    ASSERT_EQ(superficie.scritte.size(), 3U);
    EXPECT_EQ(superficie.Testi(), (std::vector<std::string>{"1", "2", "3"}));
    EXPECT_EQ(superficie.scritte[2].x, 11);
    EXPECT_EQ(superficie.scritte[2].y, 6);
    EXPECT_NEAR(superficie.scritte[2].altezza, 2, 1e-12);
}

// A U, 30 wide, arms of 10, floor of 10, 30 high, in 3 strips: two arms twice, the floor once: 5 rectangles
// of height 10.
TEST_F(PoligonoDisegnoTest, DrawsTheRectanglesOfTheStrips) {
    Poligono u = PoligonoDaTesto("0 0, 30 0, 30 30, 20 30, 20 10, 10 10, 10 30, 0 30");
    u.DiscretizzaPoligono(3);
    u.PlottaRettangolini({100, 0});
    ASSERT_EQ(superficie.linee.size(), 5U * 4U);
    // the first: the left arm's top, x 0..10, y 20..30
    EXPECT_NEAR(superficie.linee[0].x1, 100, 1e-6);
    EXPECT_NEAR(superficie.linee[0].x2, 110, 1e-6);
    EXPECT_NEAR(superficie.linee[0].y1, 20, 1e-6);
    EXPECT_NEAR(superficie.linee[2].y1, 30, 1e-6);
    // the last: the floor
    EXPECT_NEAR(superficie.linee[16].x2 - superficie.linee[16].x1, 30, 1e-6);
    EXPECT_NEAR(superficie.linee[16].y1, 0, 1e-6);
}

TEST_F(PoligonoDisegnoTest, BothCoordinatesAreMoved) {
    PoligonoDaTesto("0 0, 10 0, 10 5").NumeraVertici(2, {1, 3});
    EXPECT_EQ(superficie.scritte[2].x, 11);
    EXPECT_EQ(superficie.scritte[2].y, 8);
    Poligono p = PoligonoDaTesto("0 0, 30 0, 30 20, 0 20");
    p.DiscretizzaPoligono(1);
    p.PlottaRettangolini({100, 7});
    const double x[] = {100, 130, 130, 100};
    const double y[] = {7, 7, 27, 27};
    ASSERT_EQ(superficie.linee.size(), 4U);
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_NEAR(superficie.linee[i].x1, x[i], 1e-5) << i;
        EXPECT_NEAR(superficie.linee[i].y1, y[i], 1e-5) << i;
    }
}

} // namespace
