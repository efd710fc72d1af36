// A sheet of several views: scale and height of the texts by hand from the room that is left.

#include "drawing/TavolaViste.h"

#include <array>
#include <cmath>

#include <gtest/gtest.h>

#include "SuperficieFinta.h"
#include "drawing/TavolaDisegno.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

class TavolaVisteTest : public testing::Test {
private:
    StatoUscita prima_;
};

// 300 mm and 10 heights of 10 pixels in 400 pixels leave one pixel to the millimetre.
TEST_F(TavolaVisteTest, OnTheScreenTheViewsTakeWhatTheTextsLeave) {
    SuperficieFinta s(400, 1000);
    TavolaViste t(&s, dispositivoVideo, "");
    t.Dispone(std::array<DisposizioneViste, 1>{{{{{300, 10}}, {{200, 5}}}}});
    EXPECT_NEAR(s.InX(1) - s.InX(0), 1, 1e-9);
    EXPECT_NEAR(s.InY(0) - s.InY(1), 1, 1e-9); // y upwards
    EXPECT_NEAR(t.AltezzaTesto(), 10, 1e-6);
    EXPECT_NEAR(t.Larghezza(), 400, 1e-6);
    EXPECT_NEAR(t.Altezza(), 250, 1e-6);
    EXPECT_NEAR(s.InX(0), 0, 1e-6);
    EXPECT_NEAR(s.InY(t.Altezza() / 2), 500, 1e-3); // in the middle
    EXPECT_EQ(t.Scala(), "");
}

TEST_F(TavolaVisteTest, TheLayoutWithTheLargestViewsIsTaken) {
    const std::array<DisposizioneViste, 2> affiancateOSovrapposte{
        {{{{400, 0}}, {{100, 0}}}, {{{200, 0}}, {{200, 0}}}}};
    for (const bool larga : {true, false}) {
        SuperficieFinta s(larga ? 800 : 300, larga ? 200 : 300);
        TavolaViste t(&s, dispositivoVideo, "");
        t.Dispone(affiancateOSovrapposte);
        EXPECT_EQ(t.Scelta(), larga ? 0U : 1U);
    }
}

TEST_F(TavolaVisteTest, TextsThatTakeTooMuchOfAScreenBecomeSmaller) {
    SuperficieFinta s(100, 1000);
    TavolaViste t(&s, dispositivoVideo, "");
    t.Dispone(std::array<DisposizioneViste, 1>{{{{{28, 20}}, {{10, 0}}}}}); // 200 pixels of texts in 100
    EXPECT_NEAR(s.FontSize, 3.6, 1e-9);                                     // 72 of 100
    EXPECT_NEAR(s.InX(1) - s.InX(0), 1, 1e-9);
}

// 100 mm of paper: 400 mm fit at 1:5, not at the 1:4 that is no scale; 240 mm take 1:5, too, 1:2.5 is not in
// the series.
TEST_F(TavolaVisteTest, PaperTakesTheSeries) {
    for (const double mm : {400.0, 240.0, 490.0}) {
        SuperficieFinta s(100, 100);
        TavolaViste t(&s, dispositivoStampante, carattereStampa);
        t.Dispone(std::array<DisposizioneViste, 1>{{{{{mm, 0}}, {{10, 0}}}}});
        EXPECT_EQ(t.Scala(), "1:5") << mm;
        EXPECT_NEAR(s.InX(5) - s.InX(0), 1, 1e-6);
        EXPECT_NEAR(t.AltezzaTesto(), 2.5 * 5, 1e-4);
        EXPECT_EQ(s.FontName, carattereStampa);
    }
}

TEST_F(TavolaVisteTest, PaperTakesSmallerTextsForALargerScale) {
    SuperficieFinta s(100, 100);
    TavolaViste t(&s, dispositivoStampante, carattereStampa);
    t.Dispone(
        std::array<DisposizioneViste, 1>{{{{{250, 20}}, {{10, 0}}}}}); // 50 mm and 50, or 36 mm of texts
    EXPECT_EQ(t.Scala(), "1:5");
    TavolaViste u(&s, dispositivoStampante, carattereStampa);
    u.Dispone(std::array<DisposizioneViste, 1>{{{{{300, 20}}, {{10, 0}}}}});
    EXPECT_EQ(u.Scala(), "1:5");
    EXPECT_NEAR(u.AltezzaTesto(), 1.8 * 5, 1e-4);
}

TEST_F(TavolaVisteTest, FilesTakeTheUnitsOfTheModel) {
    const SuUscita uscita(nullptr, dispositivoDxf);
    TavolaViste t(nullptr, dispositivoDxf, carattereStampa);
    t.Dispone(std::array<DisposizioneViste, 1>{{{{{900, 10}}, {{500, 4}}}}});
    EXPECT_NEAR(t.AltezzaTesto(), 12.5, 1e-4); // as at 1:5 on 190 mm
    EXPECT_NEAR(t.Larghezza(), 1025, 1e-3);
    EXPECT_EQ(t.Scala(), "1:1");
    EXPECT_NEAR(t.InAltezze("12345678"), 6.8, 1e-9); // estimated
}

TEST_F(TavolaVisteTest, ScalesInUse) {
    EXPECT_EQ(ScalaInUso(4.2), 5);
    EXPECT_EQ(ScalaInUso(5), 5);
    EXPECT_EQ(ScalaInUso(5.01), 10);
    EXPECT_EQ(ScalaInUso(2000), 0);
    EXPECT_EQ(ScalaScritta(0.5), "2:1");
    EXPECT_EQ(ScalaScritta(0), "");
}

TEST_F(TavolaVisteTest, ViewsStandInTheMiddleOfThePaper) {
    SuperficieFinta s(100, 60);
    TavolaViste t(&s, dispositivoStampante, carattereStampa);
    t.Dispone(std::array<DisposizioneViste, 1>{{{{{400, 0}}, {{100, 0}}}}});
    EXPECT_EQ(t.Scala(), "1:5");
    EXPECT_NEAR(s.InX(200), 50, 1e-6);
    EXPECT_NEAR(s.InY(50), 30, 1e-6);
    EXPECT_NEAR(s.InX(0), 10, 1e-6);
    EXPECT_NEAR(s.InY(0), 40, 1e-6);
}

// 10 mm on 100 of paper are drawn ten times as large; a kilometre has no scale and is fitted.
TEST_F(TavolaVisteTest, PaperEnlargesWhatIsSmallAndFitsWhatIsBeyondAllScales) {
    SuperficieFinta s(100, 100);
    TavolaViste piccola(&s, dispositivoStampante, carattereStampa);
    piccola.Dispone(std::array<DisposizioneViste, 1>{{{{{10, 0}}, {{5, 0}}}}});
    EXPECT_EQ(piccola.Scala(), "10:1");
    TavolaViste grande(&s, dispositivoStampante, carattereStampa);
    grande.Dispone(std::array<DisposizioneViste, 1>{{{{{1e6, 0}}, {{10, 0}}}}});
    EXPECT_EQ(grande.Scala(), "");
    EXPECT_NEAR(s.InX(1e6) - s.InX(0), 100, 1e-6);
}

// 60 heights are 150 mm at 2.5 and 108 at 1.8: too much for 100 mm, of which texts then take 72, 1.2 each.
TEST_F(TavolaVisteTest, TextsThatFindNoRoomOnPaperBecomeSmaller) {
    SuperficieFinta s(100, 100);
    TavolaViste t(&s, dispositivoStampante, carattereStampa);
    t.Dispone(std::array<DisposizioneViste, 1>{{{{{10, 60}}, {{10, 0}}}}});
    EXPECT_EQ(t.Scala(), "");
    EXPECT_NEAR(s.InX(10) - s.InX(0), 28, 1e-6);
    EXPECT_NEAR(t.AltezzaTesto() * 28 / 10, 1.2, 1e-6);
}

// On the screen half the texts count a quarter: views twice as large do not make up for it, ten times
// do. 14.4 heights of 10 in 100 pixels are halved and leave 28.
TEST_F(TavolaVisteTest, SmallTextsCountBySquares) {
    const DisposizioneViste grandi{{{100, 0}}, {{1, 0}}};
    for (const double modello : {14.0, 2.8}) {
        const DisposizioneViste piccoli{{{modello, 14.4}}, {{1, 0}}};
        SuperficieFinta s(100, 1000);
        TavolaViste t(&s, dispositivoVideo, "");
        t.Dispone(std::array{piccoli, grandi});
        EXPECT_EQ(t.Scelta(), modello == 14 ? 1U : 0U);
        TavolaViste u(&s, dispositivoVideo, "");
        u.Dispone(std::array{grandi, piccoli});
        EXPECT_EQ(u.Scelta(), modello == 14 ? 0U : 1U) << "in either order";
    }
}

TEST_F(TavolaVisteTest, ViewsWithoutHeightAreLaidOutByTheirWidth) {
    SuperficieFinta s(400, 300);
    TavolaViste t(&s, dispositivoVideo, "");
    t.Dispone(std::array<DisposizioneViste, 1>{{{{{200, 0}}, {{0, 5}}}}});
    EXPECT_NEAR(s.InX(200) - s.InX(0), 400, 1e-6);
}

// As at 1:1 where the sheet of 190 mm would take more.
TEST_F(TavolaVisteTest, FilesNeverHaveTextsBelowThoseOfPaper) {
    const SuUscita uscita(nullptr, dispositivoDxf);
    for (const double mm : {10.0, 100.0, 190.0}) {
        TavolaViste t(nullptr, dispositivoDxf, carattereStampa);
        t.Dispone(std::array<DisposizioneViste, 1>{{{{{mm, 0}}, {{5, 0}}}}});
        EXPECT_NEAR(t.AltezzaTesto(), 2.5, 1e-6) << mm;
    }
}

TEST_F(TavolaVisteTest, TextsAreMeasuredOnTheTargetWhereThereIsOne) {
    SuperficieFinta s(400, 300);
    EXPECT_NEAR(TavolaViste(&s, dispositivoVideo, "").InAltezze("abc"), 1.8, 1e-9) << "3 of 6 over 10";
    EXPECT_NEAR(TavolaViste(nullptr, dispositivoVideo, "").InAltezze("abc"), 3 * 0.85, 1e-9) << "estimated";
    s.FontName = "mine";
    EXPECT_NEAR(TavolaViste(&s, dispositivoDxf, carattereStampa).InAltezze("abc"), 3 * 0.85, 1e-9);
    EXPECT_EQ(s.FontName, "mine") << "a file does not touch the target";
    struct SenzaAltezza : SuperficieFinta {
        using SuperficieFinta::SuperficieFinta;
        [[nodiscard]] double TextHeight(std::string_view /*testo*/) const override { return 0; }
    } vuota(100, 100);
    EXPECT_EQ(TavolaViste(&vuota, dispositivoVideo, "").InAltezze("abc"), 0);
}

// 1:25 and 1:250 are of the building trade and not in the series.
TEST_F(TavolaVisteTest, TheSeriesIsTheSameInEachDecade) {
    for (const auto& [mm, scala] : {std::pair{2400.0, "1:50"}, std::pair{24000.0, "1:500"}}) {
        SuperficieFinta s(100, 100);
        TavolaViste t(&s, dispositivoStampante, carattereStampa);
        t.Dispone(std::array<DisposizioneViste, 1>{{{{{mm, 0}}, {{10, 0}}}}});
        EXPECT_EQ(t.Scala(), scala);
    }
}

// At 1:5 texts of 2.5 mm are 12.5 of the model: 200 and four of them are 250.
TEST_F(TavolaVisteTest, RoomForTextsIsCountedInTheModel) {
    SuperficieFinta s(60, 100);
    TavolaViste t(&s, dispositivoStampante, carattereStampa);
    t.Dispone(std::array<DisposizioneViste, 1>{{{{{200, 4}}, {{10, 0}}}}});
    EXPECT_EQ(t.Scala(), "1:5");
    EXPECT_NEAR(t.Passo(), 12.5, 1e-6);
    EXPECT_NEAR(t.Larghezza(), 250, 1e-6);
}

// 940 mm on 190 are 1:5, whatever texts stand beside them.
TEST_F(TavolaVisteTest, FilesCountTheModelAlone) {
    const SuUscita uscita(nullptr, dispositivoDxf);
    TavolaViste t(nullptr, dispositivoDxf, carattereStampa);
    t.Dispone(std::array<DisposizioneViste, 1>{{{{{940, 10}}, {{500, 4}}}}});
    EXPECT_NEAR(t.AltezzaTesto(), 12.5, 1e-4);
}

// Both at 1:5 on 100 mm: the one of 400 leaves more room than that of 490.
TEST_F(TavolaVisteTest, OfTwoAtOneScaleTheOneWithMoreRoomIsTaken) {
    const DisposizioneViste stretta{{{490, 0}}, {{10, 0}}};
    const DisposizioneViste comoda{{{400, 0}}, {{10, 0}}};
    SuperficieFinta s(100, 100);
    TavolaViste t(&s, dispositivoStampante, carattereStampa);
    t.Dispone(std::array{stretta, comoda});
    EXPECT_EQ(t.Scelta(), 1U);
    TavolaViste u(&s, dispositivoStampante, carattereStampa);
    u.Dispone(std::array{comoda, stretta});
    EXPECT_EQ(u.Scelta(), 0U);
}

} // namespace
