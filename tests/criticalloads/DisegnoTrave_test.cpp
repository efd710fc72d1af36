#include "criticalloads/DisegnoTrave.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "drawing/SuperficieFinta.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

class DisegnoTraveTest : public testing::Test {
protected:
    void Disegna(const TraveDisegnata& t) {
        superficie.linee.clear();
        superficie.scritte.clear();
        DisegnoTrave(t).PlottaInOggetto(&superficie, "frmTimoshenko");
    }
    [[nodiscard]] bool HaLinea(double xa, double ya, double xb, double yb) const {
        const auto vicino = [](double a, double b) { return std::abs(a - b) < 1e-9; };
        return std::ranges::any_of(superficie.linee, [&](const auto& l) {
            return vicino(l.x1, xa) && vicino(l.y1, ya) && vicino(l.x2, xb) && vicino(l.y2, yb);
        });
    }
    SuperficieFinta superficie{228, 108}; ///< less margins of 14 and 4: 200 x 100, axis at y = 54
    SuUscita uscita{&superficie};
};

// The shaft of the arrow ends 3 above its point: at the top flange, the centroid, the bottom flange of a beam
// 22 high.
TEST_F(DisegnoTraveTest, TheLoadActsAtItsHeight) {
    for (const int quota : {0, 1, 2}) {
        Disegna({false, false, quota});
        EXPECT_EQ(superficie.Testi(), std::vector<std::string>{"P"});
        const auto& freccia = superficie.linee.back();
        EXPECT_EQ(freccia.x1, 114) << "mid-span";
        EXPECT_NEAR(freccia.y2, 54 - (1 - quota) * 11 - 3, 1e-9) << quota;
    }
}

// 200 over 12 is 17 spaces: 18 arrows under a line of the whole length.
TEST_F(DisegnoTraveTest, ADistributedLoadIsARowOfArrows) {
    Disegna({true, true, 1});
    EXPECT_EQ(superficie.Testi(), std::vector<std::string>{"q"});
    EXPECT_EQ(superficie.linee.back().x1, 14);
    EXPECT_EQ(superficie.linee.back().x2, 214);
    std::size_t verticali = 0;
    for (const auto& l : superficie.linee)
        verticali += l.x1 == l.x2 && l.y1 == 4 ? 1 : 0;
    EXPECT_EQ(verticali, 18U);
}

// Triangles 7 high and 8.4 wide under the lower flange, 11 below the axis.
TEST_F(DisegnoTraveTest, ABeamStandsOnASupportAtEachEnd) {
    Disegna({false, false, 1});
    for (const double x : {14.0, 214.0}) {
        EXPECT_TRUE(HaLinea(x, 65, x + 4.2, 72)) << x;
        EXPECT_TRUE(HaLinea(x + 4.2, 72, x - 4.2, 72)) << x;
    }
    EXPECT_FALSE(HaLinea(14, 32, 14, 76)) << "no wall";
}

// Twice as high as the beam.
TEST_F(DisegnoTraveTest, ACantileverStandsOutOfAWallAtItsLeft) {
    Disegna({true, false, 1});
    EXPECT_TRUE(HaLinea(14, 32, 14, 76));
    EXPECT_FALSE(HaLinea(14, 65, 18.2, 72)) << "no support";
    EXPECT_EQ(superficie.linee.back().x1, 214) << "loaded at its free end";
}

// Letters of 10 units are 6 wide; a name stands 2 units off its point.
TEST_F(DisegnoTraveTest, NamesStandClearOfTheLoad) {
    Disegna({false, false, 1});
    const auto P = superficie.scritte.at(0);
    EXPECT_NEAR(P.x, 114 + 2, 1e-9) << "right of the arrow";
    Disegna({true, false, 1});
    EXPECT_NEAR(superficie.scritte.at(0).x, 214 - 2 - 6, 1e-9) << "left of it at the free end";
    EXPECT_EQ(superficie.scritte.at(0).y, P.y);
    Disegna({false, true, 1});
    const auto q = superficie.scritte.at(0);
    EXPECT_NEAR(q.x, 114 - 3, 1e-9) << "in the middle";
    EXPECT_NEAR(q.y - P.y, (65 + 2) - (4 + 2), 1e-9) << "one hangs from the lower flange, one from the top";
    EXPECT_NEAR(P.y, 4 + 2 + superficie.TextLine().sopra, 1e-9);
}

// What the windows are laid out by [pixels].
TEST_F(DisegnoTraveTest, SizesOfThePicture) {
    const Disegno disegno = DisegnoTrave({});
    EXPECT_EQ(disegno.misura.larghezza, 190);
    EXPECT_EQ(disegno.misura.altezza, 96);
    EXPECT_EQ(disegno.minima.larghezza, 150);
    EXPECT_EQ(disegno.minima.altezza, 84);
}

} // namespace
