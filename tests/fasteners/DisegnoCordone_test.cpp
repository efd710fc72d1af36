#include "fasteners/DisegnoCordone.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "drawing/SuperficieFinta.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

// Legs l: the throat is the height of the triangle, l / sqrt(2), square to its face.
TEST(DisegnoCordoneTest, TheThroatIsTheHeightOfTheWeld) {
    SuperficieFinta s(400, 300);
    const SuUscita uscita(&s);
    DisegnoCordone().PlottaInOggetto(&s, "frmSaldature");
    EXPECT_EQ(s.aree.size(), 2U) << "the welds";
    const auto slanted = [](const auto& l) {
        return std::abs(std::abs(l.x2 - l.x1) - std::abs(l.y2 - l.y1)) < 1e-6;
    };
    double face = 0;
    for (const auto& l : s.linee)
        if (slanted(l))
            face = std::max(face, std::hypot(l.x2 - l.x1, l.y2 - l.y1));
    ASSERT_GT(face, 0) << "legs are equal";
    EXPECT_TRUE(std::ranges::any_of(s.linee, [&](const auto& l) {
        return slanted(l) && std::abs(std::hypot(l.x2 - l.x1, l.y2 - l.y1) - face / 2) < 1e-6;
    }));
    EXPECT_EQ(s.Testi(), std::vector<std::string>{"a"});
    for (const auto& l : s.linee)
        for (const double x : {l.x1, l.x2})
            EXPECT_TRUE(x >= 0 && x <= 400);
}

// A line of 15.9 around 220 x 150: a unit is 100 wide, the middle of the joint stands at (125.9, 125.9).
TEST(DisegnoCordoneTest, PlatesAndWeldsByHand) {
    SuperficieFinta s(251.8, 181.8);
    const SuUscita uscita(&s);
    DisegnoCordone().PlottaInOggetto(&s, "frmSaldature");
    const auto ha = [&s](double xa, double ya, double xb, double yb) {
        const auto vicino = [](double a, double b) { return std::abs(a - b) < 1e-9; };
        return std::ranges::any_of(s.linee, [&](const auto& l) {
            return vicino(l.x1, 125.9 + xa) && vicino(l.y1, 125.9 - ya) && vicino(l.x2, 125.9 + xb) &&
                   vicino(l.y2, 125.9 - yb);
        });
    };
    EXPECT_TRUE(ha(-110, -30, 110, -30) && ha(110, -30, 110, 0) && ha(110, 0, -110, 0)) << "lying plate";
    EXPECT_TRUE(ha(-15, 0, 15, 0) && ha(15, 0, 15, 100) && ha(15, 100, -15, 100)) << "upright plate";
    EXPECT_TRUE(ha(15, 0, 57, 0) && ha(57, 0, 15, 42) && ha(15, 42, 15, 0)) << "right weld";
    EXPECT_TRUE(ha(-15, 0, -57, 0) && ha(-57, 0, -15, 42)) << "left weld";
    EXPECT_TRUE(ha(15, 0, 36, 21)) << "throat";
    ASSERT_EQ(s.scritte.size(), 1U);
    EXPECT_NEAR(s.scritte[0].x, 125.9 + 36 + 0.4 * 15.9, 1e-9);
    EXPECT_NEAR(s.scritte[0].y, 125.9 - 21 - 3.2, 1e-9);
    const Disegno disegno = DisegnoCordone();
    EXPECT_EQ(disegno.misura.larghezza, 220);
    EXPECT_EQ(disegno.misura.altezza, 150);
    EXPECT_EQ(disegno.minima.larghezza, 160);
    EXPECT_EQ(disegno.minima.altezza, 110);
}

// Where the height governs, 130 of it are 1.3 units of 100 as well.
TEST(DisegnoCordoneTest, FitsALowTarget) {
    SuperficieFinta s(400, 161.8);
    const SuUscita uscita(&s);
    DisegnoCordone().PlottaInOggetto(&s, "frmSaldature");
    double alto = 1e9, basso = 0;
    for (const auto& l : s.linee) {
        alto = std::min({alto, l.y1, l.y2});
        basso = std::max({basso, l.y1, l.y2});
    }
    EXPECT_NEAR(alto, 15.9, 1e-9);
    EXPECT_NEAR(basso, 145.9, 1e-9);
}

} // namespace
