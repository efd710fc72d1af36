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

} // namespace
