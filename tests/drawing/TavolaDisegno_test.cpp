#include "drawing/TavolaDisegno.h"

#include <gtest/gtest.h>

#include <cmath>
#include <iterator>

#include "Registratore.h"
#include "drawing/SuperficieFinta.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

constexpr std::array<double, 4> piatto{-50, 50, 0, 200}; // 100 x 200
const std::array<Margini, 1> senza{Margini{0, 0, 0, 0}};

class TavolaDisegnoTest : public testing::Test {
protected:
    Registratore registratore;
    StatoUscita prima;
};

// A target of 400 x 300, own texts of 10 units; margins of 2 texts at each side leave 260 in height: 1.3 a
// unit, so texts of 10/1.3 of the model.
TEST_F(TavolaDisegnoTest, OnTheScreenThePieceFillsWhatTheTextsLeave) {
    SuperficieFinta s(400, 300);
    const std::array<Margini, 1> m{Margini{2, 2, 2, 2}};
    const TavolaDisegno t(&s, "VIDEO", piatto, m);
    EXPECT_NEAR(s.InY(200), 20, 1e-9);
    EXPECT_NEAR(s.InY(0), 280, 1e-9);
    EXPECT_NEAR(s.InX(0), 200, 1e-9);
    EXPECT_NEAR(t.AltezzaTesto(), 10 / 1.3, 1e-5);
    EXPECT_EQ(t.Scala(), "") << "a screen has no scale";
    EXPECT_TRUE(registratore.testi.empty());
}

// The first way leaves 100 of the width, the second 220 of the height: 1.0 against 1.1 a unit.
TEST_F(TavolaDisegnoTest, TheWayThatLetsThePieceBeLargestIsTaken) {
    SuperficieFinta s(400, 300);
    const std::array<Margini, 2> m{Margini{0, 0, 30, 0}, Margini{0, 8, 0, 0}};
    EXPECT_EQ(TavolaDisegno(&s, "VIDEO", piatto, m).Disposizione(), 1U);
    SuperficieFinta larga(900, 300);
    EXPECT_EQ(TavolaDisegno(&larga, "VIDEO", piatto, m).Disposizione(), 0U);
}

struct CasoScala {
    const char* nome;
    double l, h; ///< of the piece, on 190 x 277 mm of paper
    double denominatore;
    const char* testo;
};
void PrintTo(const CasoScala& c, std::ostream* os) { *os << c.nome; }
class ScalaTest : public TavolaDisegnoTest, public testing::WithParamInterface<CasoScala> {};

TEST_P(ScalaTest, Tabella) {
    const CasoScala& c = GetParam();
    SuperficieFinta s(190, 277);
    const TavolaDisegno t(&s, "STAMPANTE", {0, c.l, 0, c.h}, senza);
    EXPECT_EQ(t.Scala(), c.testo);
    EXPECT_NEAR(s.InX(c.l) - s.InX(0), c.l / c.denominatore, 1e-4);
    EXPECT_NEAR(s.InY(0) - s.InY(c.h), c.h / c.denominatore, 1e-4);
    EXPECT_NEAR(s.InX(c.l / 2), 95, 1e-4) << "in the middle";
    EXPECT_NEAR(t.AltezzaTesto(), 2.5 * c.denominatore, 1e-4) << "texts of 2.5 mm";
    EXPECT_EQ(s.FontName, "Times New Roman");
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Carta, ScalaTest, testing::Values(
    CasoScala{"naturale",        100,  277,   1,   "1:1"},
    CasoScala{"appena_oltre",    100,  278,   2,   "1:2"},
    CasoScala{"mezzi",           475,  600,   2.5, "1:2.5"},
    CasoScala{"un_quinto",       300, 1200,   5,   "1:5"},
    CasoScala{"un_decimo",      1900,  100,  10,   "1:10"},
    CasoScala{"doppio",           60,  120,   0.5, "2:1"},
    CasoScala{"cinque_volte",     20,   30,   0.2, "5:1"}),
    [](const auto& i) { return std::string(i.param.nome); });
// clang-format on

TEST_F(TavolaDisegnoTest, BeyondTheScalesInUseThePieceIsFitted) {
    SuperficieFinta s(190, 277);
    const TavolaDisegno t(&s, "STAMPANTE", {0, 1e6, 0, 100}, senza);
    EXPECT_EQ(t.Scala(), "");
    EXPECT_NEAR(s.InX(1e6) - s.InX(0), 190, 1e-6);
}

TEST_F(TavolaDisegnoTest, FilesHaveTheUnitsOfTheModel) {
    for (const char* nome : {"DXF", "DWG", "BLOCCO"}) {
        const TavolaDisegno t(nullptr, nome, piatto, senza);
        EXPECT_NEAR(t.AltezzaTesto(), 200.0 / 40, 1e-6);
        EXPECT_EQ(t.Disposizione(), 0U);
        EXPECT_EQ(t.Scala(), "1:1");
        EXPECT_EQ(Dispositivo, nome);
    }
    EXPECT_TRUE(registratore.testi.empty());
}

TEST_F(TavolaDisegnoTest, ATinyTargetStillShowsThePiece) {
    SuperficieFinta s(30, 30);
    const std::array<Margini, 1> m{Margini{8, 4, 20, 5}};
    const TavolaDisegno t(&s, "VIDEO", piatto, m);
    EXPECT_GT(t.AltezzaTesto(), 0);
    EXPECT_TRUE(std::isfinite(s.InX(50)));
}

// ISO 5455 and the building trade.
TEST_F(TavolaDisegnoTest, EachScaleInUseHoldsUpToItself) {
    const double scale[] = {0.1, 0.2, 0.5, 1, 2, 2.5, 5, 10, 20, 25, 50, 100, 200, 250, 500, 1000};
    for (std::size_t i = 0; i < std::size(scale); ++i) {
        EXPECT_EQ(ScalaInUso(scale[i]), scale[i]);
        EXPECT_EQ(ScalaInUso(scale[i] * 1.001), i + 1 < std::size(scale) ? scale[i + 1] : 0) << scale[i];
    }
    EXPECT_EQ(ScalaInUso(5 * (1 + 0.9e-9)), 5) << "the noise of a division";
    EXPECT_EQ(ScalaInUso(5 * (1 + 1.2e-9)), 10);
    EXPECT_EQ(ScalaScritta(1.25), "1:1.25");
}

// Margins of 70 x 22.5 mm leave nothing of a width of 30, which counts as a tenth, 3, and 7.5 of the height.
TEST_F(TavolaDisegnoTest, WhatMarginsLeaveIsATenthAtLeast) {
    const std::array<Margini, 1> m{Margini{8, 4, 20, 5}};
    SuperficieFinta s(30, 30);
    EXPECT_EQ(TavolaDisegno(&s, "STAMPANTE", {0, 150, 0, 10}, m).Scala(), "1:50") << "150 in 3";
    EXPECT_EQ(TavolaDisegno(&s, "STAMPANTE", {0, 10, 0, 375}, m).Scala(), "1:50") << "375 in 7.5";
}

// 200 high, from 100 to 300, on a target of 300: 1.5 a unit.
TEST_F(TavolaDisegnoTest, APieceOffTheOriginIsMeasuredByItsExtent) {
    SuperficieFinta s(400, 300);
    const TavolaDisegno t(&s, "VIDEO", {100, 200, 100, 300}, senza);
    EXPECT_NEAR(s.InY(300), 0, 1e-9);
    EXPECT_NEAR(s.InY(100), 300, 1e-9);
    EXPECT_NEAR(s.InX(150), 200, 1e-9);
}

TEST_F(TavolaDisegnoTest, TextsOfAFileFollowTheLongerSide) {
    EXPECT_NEAR(TavolaDisegno(nullptr, "DXF", {100, 400, 0, 100}, senza).AltezzaTesto(), 300.0 / 40, 1e-6);
    SuperficieFinta s(400, 300);
    const TavolaDisegno t(&s, "DXF", piatto, senza);
    EXPECT_NEAR(t.AltezzaTesto(), 5, 1e-6);
    EXPECT_EQ(s.ScaleMode, Superficie::scalaPropria) << "the target is not touched";
    EXPECT_NEAR(TavolaDisegno(nullptr, "VIDEO", piatto, senza).AltezzaTesto(), 5, 1e-6) << "without a target";
}

// A font that has no size cannot be brought to 2.5 mm.
TEST_F(TavolaDisegnoTest, AFontWithoutHeightKeepsItsSize) {
    struct SenzaAltezza : SuperficieFinta {
        using SuperficieFinta::SuperficieFinta;
        [[nodiscard]] double TextHeight(std::string_view /*testo*/) const override { return 0; }
    } s(190, 277);
    const TavolaDisegno t(&s, "STAMPANTE", piatto, senza);
    EXPECT_EQ(s.FontSize, SuperficieFinta::corpoProprio);
}

} // namespace
