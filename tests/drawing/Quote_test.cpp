#include "drawing/Quote.h"

#include <gtest/gtest.h>

#include "drawing/SuperficieFinta.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

class QuoteTest : public testing::Test {
protected:
    SuperficieFinta superficie{100, 100};
    SuUscita uscita{&superficie};
    Quote quote{10}; // texts of 10

    /// A thin grey line between two points, in either direction.
    [[nodiscard]] bool Grigia(double x1, double y1, double x2, double y2) const {
        const auto vicini = [](double a, double b) { return std::abs(a - b) < 1e-9; };
        for (const auto& l : superficie.linee)
            if (l.colore == 8 && l.spessore == 1 && vicini(l.x1, x1) && vicini(l.y1, y1) &&
                vicini(l.x2, x2) && vicini(l.y2, y2))
                return true;
        return false;
    }
};

// Gap 0.4, overshoot 0.5 and half tick 0.4 of the height of 10.
TEST_F(QuoteTest, WidthBelowThePiece) {
    quote.Orizzontale(-50, 50, 0, -30, "100");
    EXPECT_TRUE(Grigia(-50, -30, 50, -30));
    EXPECT_TRUE(Grigia(-50, -4, -50, -35));
    EXPECT_TRUE(Grigia(50, -4, 50, -35));
    ASSERT_EQ(superficie.linee.size(), 5U);
    EXPECT_EQ(superficie.linee[2].x1, -54) << "an oblique tick, rising to the right";
    EXPECT_EQ(superficie.linee[2].y1, -34);
    EXPECT_EQ(superficie.linee[2].x2, -46);
    EXPECT_EQ(superficie.linee[2].y2, -26);
    ASSERT_EQ(superficie.scritte.size(), 1U);
    EXPECT_EQ(superficie.scritte[0].testo, "100");
    EXPECT_NEAR(superficie.scritte[0].altezza, 10, 1e-12);
    EXPECT_NEAR(superficie.scritte[0].x, -9, 1e-12) << "3 characters of 6 about the middle";
    EXPECT_NEAR(superficie.scritte[0].y, -44, 1e-12) << "under the line";
}

TEST_F(QuoteTest, WidthAboveThePiece) {
    quote.Orizzontale(-50, 50, 200, 250, "100");
    EXPECT_TRUE(Grigia(-50, 204, -50, 255));
    EXPECT_NEAR(superficie.scritte[0].y, 254, 1e-12) << "over the line";
}

TEST_F(QuoteTest, HeightToTheRightOfPartsOfDifferentWidth) {
    quote.Verticale({20, 0}, {50, 200}, 80, "200");
    EXPECT_TRUE(Grigia(80, 0, 80, 200));
    EXPECT_TRUE(Grigia(24, 0, 85, 0));
    EXPECT_TRUE(Grigia(54, 200, 85, 200));
    EXPECT_NEAR(superficie.scritte[0].x, 88, 1e-12);
    EXPECT_NEAR(superficie.scritte[0].y, 95, 1e-12) << "centred on the middle";
}

TEST_F(QuoteTest, ThicknessOfAFlangeToTheLeft) {
    quote.SpessoreVerticale({-50, 190}, {-50, 200}, -72, "10");
    EXPECT_TRUE(Grigia(-54, 190, -77, 190));
    EXPECT_TRUE(Grigia(-72, 200, -72, 216));
    EXPECT_TRUE(Grigia(-72, 190, -72, 174));
    EXPECT_NEAR(superficie.scritte[0].x, -72 - 8 - 12, 1e-12) << "ends beside the line";
}

TEST_F(QuoteTest, ThicknessOfAWeb) {
    quote.SpessoreOrizzontale(-3, 3, 60, "6");
    EXPECT_TRUE(Grigia(-19, 60, -3, 60));
    EXPECT_TRUE(Grigia(3, 60, 19, 60));
    EXPECT_NEAR(superficie.scritte[0].x, 23, 1e-12);
    EXPECT_NEAR(superficie.scritte[0].y, 55, 1e-12);
}

TEST_F(QuoteTest, LeaderEndsAtItsText) {
    quote.Richiamo(0, 0, -15, -20, "r = 5");
    quote.Richiamo(0, 0, 15, -20, "r = 5");
    EXPECT_TRUE(Grigia(0, 0, -15, -20));
    EXPECT_NEAR(superficie.scritte[0].x, -15 - 4 - 30, 1e-12);
    EXPECT_NEAR(superficie.scritte[1].x, 19, 1e-12);
    EXPECT_NEAR(superficie.scritte[0].y, -25, 1e-12);
}

TEST_F(QuoteTest, AxisIsAChainLineWithItsNameBeyondItsFirstEnd) {
    quote.Asse(-60, 100, 60, 100, "y");
    ASSERT_EQ(superficie.linee.size(), 1U);
    EXPECT_EQ(superficie.linee[0].tipo, TipoLinea::TrattoPunto);
    EXPECT_EQ(superficie.DrawStyle, TipoLinea::Continua) << "put back";
    EXPECT_NEAR(superficie.scritte[0].x, -70 - 3, 1e-12);
    EXPECT_NEAR(superficie.scritte[0].y, 95, 1e-12);
    quote.Asse(1, 1, 1, 1, "z");
    EXPECT_EQ(superficie.scritte.size(), 1U) << "an axis without length has no name";
}

TEST_F(QuoteTest, CentroidIsACircleWithACross) {
    quote.Baricentro(5, 6);
    ASSERT_EQ(superficie.cerchi.size(), 1U);
    EXPECT_EQ(superficie.cerchi[0].x, 5);
    EXPECT_EQ(superficie.cerchi[0].y, 6);
    EXPECT_NEAR(superficie.cerchi[0].r, 3.5, 1e-12);
    EXPECT_EQ(superficie.linee.size(), 2U);
}

// Off the origin: the middle of -20 and 80 is 30.
TEST_F(QuoteTest, TextStandsAtTheMiddleOfItsWidth) {
    quote.Orizzontale(-20, 80, 0, -30, "100");
    EXPECT_NEAR(superficie.scritte[0].x, 30 - 9, 1e-12);
}

TEST_F(QuoteTest, ADimensionOnThePieceItselfIsReadAboveIt) {
    quote.Orizzontale(0, 50, 20, 20, "50");
    EXPECT_TRUE(Grigia(0, 24, 0, 25));
    EXPECT_NEAR(superficie.scritte[0].y, 24, 1e-12);
}

// The name stands a height beyond the first end, in the direction of the axis.
TEST_F(QuoteTest, AnUprightAxisHasItsNameOnTop) {
    quote.Asse(7, 100, 7, -100, "z");
    EXPECT_NEAR(superficie.scritte[0].x, 7 - 3, 1e-12);
    EXPECT_NEAR(superficie.scritte[0].y, 110 - 5, 1e-12);
    quote.Asse(0, 0, -0.5, 0, "y");
    ASSERT_EQ(superficie.scritte.size(), 2U) << "however short";
    EXPECT_NEAR(superficie.scritte[1].x, 10 - 3, 1e-12);
}

// Arms of two radii of 3.5.
TEST_F(QuoteTest, ArmsOfACentroidsCross) {
    quote.Baricentro(5, 6);
    const auto& l = superficie.linee;
    ASSERT_EQ(l.size(), 2U);
    EXPECT_NEAR(l[0].x1, -2, 1e-12);
    EXPECT_NEAR(l[0].x2, 12, 1e-12);
    EXPECT_EQ(l[0].y1, 6);
    EXPECT_EQ(l[0].y2, 6);
    EXPECT_EQ(l[1].x1, 5);
    EXPECT_EQ(l[1].x2, 5);
    EXPECT_NEAR(l[1].y1, -1, 1e-12);
    EXPECT_NEAR(l[1].y2, 13, 1e-12);
}

} // namespace
