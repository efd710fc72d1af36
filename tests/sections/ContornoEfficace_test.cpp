#include "sections/ContornoEfficace.h"

#include <gtest/gtest.h>

#include "sections/SezioneGenerica.h"

using namespace sagomi;
using Vettore = std::vector<double>;

namespace {

TEST(CalcolaContorno, CreatesTheSectionAtFirstUseAndKeepsItAfterwards) {
    std::shared_ptr<SezioneGenerica> s;
    CalcolaContorno(s, {0, 4, 4, 0}, {0, 0, 3, 3}, 4);
    ASSERT_TRUE(s);
    EXPECT_DOUBLE_EQ(s->Area, 12);
    const SezioneGenerica* primo = s.get();
    CalcolaContorno(s, {0, 2, 2, 0}, {0, 0, 3, 3}, 4);
    EXPECT_EQ(s.get(), primo);
    EXPECT_DOUBLE_EQ(s->Area, 6);
}

TEST(TagliaPunta, DrawsTheVerticesBeyondBackToTheLine) {
    // right end of a bar, slanted edge on top: at x = 8 the slant from (0, 4) to (10, 2) is at 2.4
    Vettore x = {0, 10, 10, 0};
    Vettore y = {0, 0, 2, 4};
    TagliaPunta(x, y, {5, false}, 8, true);
    EXPECT_EQ(x, (Vettore{0, 8, 8, 0}));
    EXPECT_DOUBLE_EQ(y[1], 0);
    EXPECT_DOUBLE_EQ(y[2], 2.4);
}

TEST(TagliaPunta, PutsAllButTheLastVertexWhereTheOutlineEnters) {
    // two vertices more on the tip; the first one beyond the line is the first of the list
    Vettore x = {10, 10, 9.5, 0, 0};
    Vettore y = {0, 2, 3, 4, 0};
    TagliaPunta(x, y, {5, false}, 9, true);
    EXPECT_EQ(x, (Vettore{9, 9, 9, 0, 0}));
    EXPECT_DOUBLE_EQ(y[0], 0);
    EXPECT_DOUBLE_EQ(y[1], 0);
    EXPECT_NEAR(y[2], 3 + 0.5 / 9.5, 1e-14);
}

TEST(TagliaPunta, CutsTheLeftTipOfTheUpperPartOnly) {
    Vettore x = {10, 10, -10, -10};
    Vettore y = {8, 10, 10, 8};
    TagliaPunta(x, y, {5, true}, -7, false);
    EXPECT_EQ(x, (Vettore{10, 10, -7, -7}));
    TagliaPunta(x, y, {5, false}, 1, true);
    EXPECT_EQ(x, (Vettore{10, 10, -7, -7}));
}

TEST(TagliaPunta, LeavesAnOutlineThatDoesNotReachTheLine) {
    Vettore x = {0, 10, 10, 0};
    Vettore y = {0, 0, 2, 2};
    const Vettore prima = x;
    TagliaPunta(x, y, {5, false}, 10, true);
    EXPECT_EQ(x, prima);
    TagliaPunta(x, y, {5, false}, -1, true); // all of it lies beyond: no tip
    EXPECT_EQ(x, prima);
    Vettore diritta = {0, 10, 10, 0, 0}; // a vertex in the middle of the side that lies on the line
    Vettore alta = {0, 0, 2, 2, 1};
    TagliaPunta(diritta, alta, {5, false}, 0, false);
    EXPECT_EQ(alta, (Vettore{0, 0, 2, 2, 1}));
    Vettore nulla;
    TagliaPunta(nulla, nulla, {5, false}, 0, true);
    EXPECT_TRUE(nulla.empty());
}

} // namespace
