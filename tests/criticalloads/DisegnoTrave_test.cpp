#include "criticalloads/DisegnoTrave.h"

#include <gtest/gtest.h>

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

} // namespace
