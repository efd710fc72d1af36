// Lines and texts of a view: places by hand, in heights of the text.
#include "joints/TracciaVista.h"

#include <array>
#include <cmath>

#include <gmock/gmock.h>

#include "drawing/SuperficieFinta.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

/// A view whose origin lies at 100, 200 of a sheet of 1000, with texts of 10; a character is 6 wide.
class TracciaVistaTest : public testing::Test {
protected:
    TracciaVistaTest() : s(1000, 1000), uscita(&s) {}

    static constexpr double a = 10;
    const TracciaVista diritta{100, 200, 1, a, a}, specchiata{100, 200, -1, a, a};
    SuperficieFinta s;
    SuUscita uscita;
};

void Va(const SuperficieFinta::Linea& l, double x1, double y1, double x2, double y2) {
    EXPECT_NEAR(l.x1, x1, 1e-9);
    EXPECT_NEAR(l.y1, y1, 1e-9);
    EXPECT_NEAR(l.x2, x2, 1e-9);
    EXPECT_NEAR(l.y2, y2, 1e-9);
}

void Sta(const SuperficieFinta::Scritta& t, const char* testo, double x, double y) {
    EXPECT_EQ(t.testo, testo);
    EXPECT_NEAR(t.x, x, 1e-9) << testo;
    EXPECT_NEAR(t.y, y, 1e-9) << testo;
}

TEST_F(TracciaVistaTest, AMirroredViewHasXTheOtherWay) {
    diritta.Linea({3, 4}, {5, 7});
    specchiata.Linea({3, 4}, {5, 7});
    specchiata.Cerchio({3, 4}, 2);
    ASSERT_EQ(s.linee.size(), 2U);
    Va(s.linee[0], 103, 204, 105, 207);
    Va(s.linee[1], 97, 204, 95, 207);
    ASSERT_EQ(s.cerchi.size(), 1U);
    EXPECT_EQ(s.cerchi[0].x, 97);
    EXPECT_EQ(s.cerchi[0].y, 204);
    EXPECT_EQ(s.cerchi[0].r, 2);
}

// The middle of a text is at its point; on the other side it ends where it would begin.
TEST_F(TracciaVistaTest, TextsStandOnTheSideOfTheirView) {
    for (const TracciaVista* v : {&diritta, &specchiata}) {
        v->Testo({50, 10}, "abc", Allinea::Sinistra);
        v->Testo({50, 10}, "abc", Allinea::Destra, true);
        v->Testo({50, 10}, "abc", Allinea::Centro);
    }
    ASSERT_EQ(s.scritte.size(), 6U);
    Sta(s.scritte[0], "abc", 150, 205);
    Sta(s.scritte[1], "abc", 132, 205);
    Sta(s.scritte[2], "abc", 141, 205);
    Sta(s.scritte[3], "abc", 32, 205);
    Sta(s.scritte[4], "abc", 50, 205);
    Sta(s.scritte[5], "abc", 41, 205);
    for (const auto& t : s.scritte)
        EXPECT_EQ(t.colore, &t == &s.scritte[1] || &t == &s.scritte[4] ? 12 : pennaInchiostro);
}

// A line of breaking passes its ends by a tooth: 0.8 of the text, but no more than an eighth of its length.
// The zigzag is one tooth long and two high.
TEST_F(TracciaVistaTest, ALineOfBreakingHasItsToothInTheMiddle) {
    for (const auto& [lunga, dente] : {std::pair{400.0, 8.0}, {64.0, 8.0}, {16.0, 2.0}, {0.5, 0.0625}}) {
        s.linee.clear();
        diritta.Rottura({0, 0}, {lunga, 0});
        ASSERT_EQ(s.linee.size(), 5U) << lunga;
        const double m = 100 + lunga / 2;
        Va(s.linee[0], 100 - dente, 200, m - dente / 2, 200);
        Va(s.linee[1], m - dente / 2, 200, m - dente / 4, 200 + dente);
        Va(s.linee[2], m - dente / 4, 200 + dente, m + dente / 4, 200 - dente);
        Va(s.linee[3], m + dente / 4, 200 - dente, m + dente / 2, 200);
        Va(s.linee[4], m + dente / 2, 200, 100 + lunga + dente, 200);
    }
    s.linee.clear();
    diritta.Rottura({7, 7}, {7, 7});
    EXPECT_TRUE(s.linee.empty());
}

// Down along 3, 4, so the tooth goes first to the left of the way: a length of 100, the middle at -30, -40.
TEST_F(TracciaVistaTest, ASlopingLineOfBreaking) {
    diritta.Rottura({0, 0}, {-60, -80});
    ASSERT_EQ(s.linee.size(), 5U);
    Va(s.linee[0], 100 + 8 * 0.6, 200 + 8 * 0.8, 70 + 4 * 0.6, 160 + 4 * 0.8);
    EXPECT_NEAR(s.linee[1].x2, 70 + 2 * 0.6 + 8 * 0.8, 1e-9);
    EXPECT_NEAR(s.linee[1].y2, 160 + 2 * 0.8 - 8 * 0.6, 1e-9);
    EXPECT_NEAR(s.linee[4].x2, 40 - 8 * 0.6, 1e-9);
    EXPECT_NEAR(s.linee[4].y2, 120 - 8 * 0.8, 1e-9);
}

// The text stands 0.4 of its height beyond the end, where the line points to; upright lines point to the
// right.
TEST_F(TracciaVistaTest, ALeaderPointsToItsText) {
    diritta.Richiamo({0, 0}, {20, 30}, "ab");
    diritta.Richiamo({0, 0}, {-20, 30}, "ab");
    diritta.Richiamo({0, 0}, {0, 30}, "ab");
    specchiata.Richiamo({0, 0}, {20, 30}, "ab");
    ASSERT_EQ(s.scritte.size(), 4U);
    Sta(s.scritte[0], "ab", 124, 225);
    Sta(s.scritte[1], "ab", 76 - 12, 225);
    Sta(s.scritte[2], "ab", 104, 225);
    Sta(s.scritte[3], "ab", 76 - 12, 225);
    ASSERT_EQ(s.linee.size(), 4U);
    Va(s.linee[3], 100, 200, 80, 230);
}

// Extension lines from 0.4 off the piece to 0.5 beyond the dimension line; ticks of 45 degrees, 0.8 wide; the
// text at 0.8 beyond the line, its middle at that of the distance.
TEST_F(TracciaVistaTest, AnUprightDimension) {
    diritta.Verticali(50, 80, std::array{QuotaNodo{-100, 0, "100"}});
    ASSERT_EQ(s.linee.size(), 5U);
    Va(s.linee[0], 180, 100, 180, 200);
    Va(s.linee[1], 154, 100, 185, 100);
    Va(s.linee[2], 176, 96, 184, 104);
    Va(s.linee[3], 154, 200, 185, 200);
    Va(s.linee[4], 176, 196, 184, 204);
    ASSERT_EQ(s.scritte.size(), 1U);
    Sta(s.scritte[0], "100", 188, 145);
    s.linee.clear();
    diritta.Verticali(-50, -80, std::array{QuotaNodo{-100, 0, "100", true}});
    Va(s.linee[1], 46, 100, 15, 100);
    Sta(s.scritte[1], "100", 12 - 18, 145);
    EXPECT_EQ(s.scritte[1].colore, 12);
    for (const auto& l : s.linee)
        EXPECT_EQ(l.colore, 12);
}

// Lines of text are 1.35 heights apart at least: of two distances of 5 the texts move by (13.5 - 5) / 2 each.
TEST_F(TracciaVistaTest, TextsOfAnUprightChainMoveApart) {
    diritta.Verticali(0, 30,
                      std::array{QuotaNodo{0, 5, "5"}, QuotaNodo{5, 10, "6"}, QuotaNodo{10, 90, "80"}});
    ASSERT_EQ(s.scritte.size(), 3U);
    EXPECT_NEAR(s.scritte[0].y, 200 + 2.5 - 4.25 - 5, 1e-9);
    EXPECT_NEAR(s.scritte[1].y, 200 + 7.5 + 4.25 - 5, 1e-9);
    EXPECT_NEAR(s.scritte[2].y, 200 + 50 - 5, 1e-9);
}

// The text is centred on the distance, its middle one height beyond the line.
TEST_F(TracciaVistaTest, ALevelDimension) {
    diritta.Orizzontali(-20, -60, std::array{QuotaNodo{0, 100, "100"}});
    ASSERT_EQ(s.linee.size(), 5U);
    Va(s.linee[0], 100, 140, 200, 140);
    Va(s.linee[1], 100, 176, 100, 135);
    Va(s.linee[2], 96, 136, 104, 144);
    Va(s.linee[3], 200, 176, 200, 135);
    ASSERT_EQ(s.scritte.size(), 1U);
    Sta(s.scritte[0], "100", 150 - 9, 140 - 10 - 5);
    diritta.Orizzontali(20, 60, std::array{QuotaNodo{0, 100, "100", true}});
    Va(s.linee[6], 100, 224, 100, 265);
    Sta(s.scritte[1], "100", 150 - 9, 260 + 10 - 5);
    EXPECT_EQ(s.linee[5].colore, 12);
}

// Texts of 18 and 0.4 of room are wider than 10: the first and the last of a chain go outside, an inner one
// and one that stands alone stay. 22 find
// room in 22, not in 21.
TEST_F(TracciaVistaTest, NarrowEndsOfALevelChainHaveTheirTextsOutside) {
    diritta.Orizzontali(
        0, -30, std::array{QuotaNodo{0, 10, "aaa"}, QuotaNodo{10, 90, "bbb"}, QuotaNodo{90, 100, "ccc"}});
    ASSERT_EQ(s.scritte.size(), 3U);
    EXPECT_NEAR(s.scritte[0].x, 100 - 11 - 9, 1e-9);
    EXPECT_NEAR(s.scritte[1].x, 150 - 9, 1e-9);
    EXPECT_NEAR(s.scritte[2].x, 200 + 11 - 9, 1e-9);
    s.scritte.clear();
    diritta.Orizzontali(0, -30, std::array{QuotaNodo{0, 10, "aaa"}});
    EXPECT_NEAR(s.scritte[0].x, 105 - 9, 1e-9);
    s.scritte.clear();
    diritta.Orizzontali(0, -30, std::array{QuotaNodo{0, 22, "aaa"}, QuotaNodo{121, 100, "ccc"}});
    EXPECT_NEAR(s.scritte[0].x, 100 + 11 - 9, 1e-9);
    EXPECT_NEAR(s.scritte[1].x, 221 + 11 - 9, 1e-9);
}

// Distances that are given from right to left measure the same.
TEST_F(TracciaVistaTest, NarrowEndsOfAChainFromTheRight) {
    diritta.Orizzontali(
        0, -30, std::array{QuotaNodo{10, 0, "aaa"}, QuotaNodo{90, 10, "bbb"}, QuotaNodo{100, 90, "ccc"}});
    ASSERT_EQ(s.scritte.size(), 3U);
    EXPECT_NEAR(s.scritte[0].x, 100 - 11 - 9, 1e-9);
    EXPECT_NEAR(s.scritte[2].x, 200 + 11 - 9, 1e-9);
}

// The line passes the thickness by 1.6 on both sides, the text stands 0.4 beyond.
TEST_F(TracciaVistaTest, AThicknessIsMeasuredFromOutside) {
    diritta.Spessore(40, 52, 5, 30, {0, 12, "tf 12"});
    ASSERT_EQ(s.linee.size(), 5U);
    Va(s.linee[0], 124, 230, 168, 230);
    Va(s.linee[1], 140, 209, 140, 235);
    Va(s.linee[2], 136, 226, 144, 234);
    Va(s.linee[3], 152, 209, 152, 235);
    Sta(s.scritte[0], "tf 12", 172, 225);
    specchiata.Spessore(40, 52, 5, -30, {0, 12, "tf 12", true});
    Va(s.linee[5], 76, 170, 32, 170);
    Va(s.linee[6], 60, 201, 60, 165);
    Sta(s.scritte[1], "tf 12", 28 - 30, 165);
    EXPECT_EQ(s.scritte[1].colore, 12);
}

// A square of 22: lines of 45 degrees 5.5 apart, as many as find room across its diagonal of 31.1.
TEST_F(TracciaVistaTest, HatchingStandsAtItsSpacing) {
    diritta.Tratteggia(CampoNodo{0, 0, 22, 22}.Contorno(), 12);
    EXPECT_EQ(s.linee.size(), 5U);
    for (const auto& l : s.linee) {
        EXPECT_EQ(l.colore, 12);
        EXPECT_NEAR(std::abs(l.x2 - l.x1), std::abs(l.y2 - l.y1), 1e-6);
    }
}

// What overlaps moves by half of it each, as little as need be; the order of places counts, not that of the
// list.
TEST(Distanziati, MovesTextsApart) {
    EXPECT_THAT(Distanziati({}, {}), testing::IsEmpty());
    EXPECT_THAT(Distanziati({5}, {3}), testing::ElementsAre(5));
    EXPECT_THAT(Distanziati({0, 10}, {4, 6}), testing::ElementsAre(0, 10));
    EXPECT_THAT(Distanziati({0, 8}, {4, 6}), testing::ElementsAre(-1, 9));
    EXPECT_THAT(Distanziati({8, 0}, {6, 4}), testing::ElementsAre(9, -1));
    const auto tre = Distanziati({0, 1, 2}, {2, 2, 2});
    EXPECT_NEAR(tre[0], -3, 1e-3);
    EXPECT_NEAR(tre[1], 1, 1e-3);
    EXPECT_NEAR(tre[2], 5, 1e-3);
}

} // namespace
