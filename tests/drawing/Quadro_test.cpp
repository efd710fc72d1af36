#include "drawing/Quadro.h"

#include <gtest/gtest.h>

#include "drawing/CadFinto.h"
#include "drawing/SuperficieFinta.h"
#include "drawing/SuperficieSvg.h"
#include "drawing/TavolaTrave.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

const Misura misura{100, 60};

class QuadroTest : public testing::Test {
protected:
    SuperficieFinta superficie{200, 150};
    SuUscita uscita{&superficie};
};

// Capitals of the fake font are 10 high; a line of it is 1.27 + 0.32 of that.
TEST_F(QuadroTest, OnTheScreenItIsTheTargetInPixelsWithItsFont) {
    const Quadro q(&superficie, dispositivoVideo, misura);
    EXPECT_EQ(q.Tutto().larghezza, 200);
    EXPECT_EQ(q.Tutto().altezza, 150);
    EXPECT_NEAR(q.Riga(), 15.9, 1e-9);
    Quadro::Linea({10, 20}, {30, 40});
    q.Testo({50, 60}, "abc", Allinea::Destra, Posa::Alto);
    EXPECT_EQ(superficie.linee.at(0).y2, 40);
    const auto& s = superficie.scritte.at(0);
    EXPECT_EQ(s.corpo, 10) << "to the bit";
    EXPECT_NEAR(s.x, 50 - 3 * 6, 1e-9);
    EXPECT_NEAR(s.y, 60 + 12.7, 1e-9) << "the line hangs from there";
}

// 3.5 mm for 9.7 units: 100 by 60 units are 36.08 by 21.65 mm in the middle of 200 by 150.
TEST_F(QuadroTest, OnPaperItHasItsSizeInTheMiddle) {
    const Quadro q(&superficie, dispositivoStampante, misura);
    EXPECT_EQ(q.Tutto().larghezza, 100);
    EXPECT_NEAR(superficie.InX(0), 100 - 36.08 / 2, 0.01);
    EXPECT_NEAR(superficie.InX(100), 100 + 36.08 / 2, 0.01);
    EXPECT_NEAR(superficie.InY(0), 75 - 21.65 / 2, 0.01);
    EXPECT_NEAR(superficie.InY(60), 75 + 21.65 / 2, 0.01);
    q.Testo({0, 0}, "a", Allinea::Sinistra, Posa::Base);
    EXPECT_NEAR(superficie.scritte.at(0).corpo, 3.5, 1e-9) << "a point of the fake font is a millimetre";
    EXPECT_EQ(superficie.scritte.at(0).carattere, carattereStampa);
}

TEST_F(QuadroTest, ALargePictureIsMadeAsSmallAsThePage) {
    const Quadro q(&superficie, dispositivoStampante, {1000, 300});
    EXPECT_NEAR(superficie.InX(0), 0, 1e-9);
    EXPECT_NEAR(superficie.InX(1000), 200, 1e-9);
    EXPECT_NEAR(superficie.InY(150), 75, 1e-9);
}

// The sample of 4 characters of 9.7 · 0.6 widens the sheet.
TEST_F(QuadroTest, HasRoomForTheSample) {
    const Quadro q(&superficie, dispositivoStampante, {100, 60, "abcd"});
    EXPECT_NEAR(q.Tutto().larghezza, 100 + 4 * 9.7 * 0.6, 1e-9);
}

TEST(QuadroSvg, IsInMillimetresWithItsFootAtZero) {
    SuperficieSvg svg;
    const SuUscita uscita(&svg, dispositivoSvg);
    {
        const Quadro q(&svg, dispositivoSvg, {97, 97});
        Quadro::Linea({0, 0}, {97, 97});
    }
    LineaPlt(1, 2, 3, 4);
    EXPECT_NE(svg.Documento().find("points=\"0,-35 35,0\""), std::string::npos) << svg.Documento();
    EXPECT_NE(svg.Documento().find("points=\"1,-2 3,-4\""), std::string::npos) << "its own scale again";
}

// Drawn with 2 units to a millimetre, the piece comes out in its millimetres.
TEST(QuadroCad, ShowsAPieceAsLargeAsItIs) {
    CadFinto cad("AutoCAD.Application.17");
    ASSERT_TRUE(CadApre());
    cad.chiamate->clear();
    const SuUscita uscita(nullptr, dispositivoDwg);
    const Quadro q(nullptr, dispositivoDwg, {100, 100});
    q.VeraGrandezza(2);
    Quadro::Cerchio({50, 100}, 20);
    q.Testo({0, 50}, "a", Allinea::Sinistra, Posa::Base);
    EXPECT_EQ(cad.chiamate->at(0), "ModelSpace.AddCircle (25 0 0) 10");
    EXPECT_EQ(cad.chiamate->at(2), "ModelSpace.AddText a (0 25 0) 4.85");
}

TEST(Quadro, WithoutASurfaceNothingHappens) {
    const SuUscita uscita(nullptr);
    const Quadro q(nullptr, dispositivoVideo, misura);
    q.Quota({0, 0}, {10, 0});
    q.Testo({0, 0}, "a", Allinea::Centro, Posa::Mezzo);
    EXPECT_EQ(q.Tutto().larghezza, 100);
}

TEST_F(QuadroTest, DimensionLinesHaveObliqueTicksInLightInk) {
    const Quadro q(&superficie, dispositivoVideo, misura);
    q.Quota({10, 50}, {90, 50});
    ASSERT_EQ(superficie.linee.size(), 3U);
    EXPECT_EQ(superficie.linee[0].colore, pennaGrigia);
    EXPECT_EQ(superficie.linee[1].x1, 6.5);
    EXPECT_EQ(superficie.linee[1].y1, 53.5);
    EXPECT_EQ(superficie.linee[2].x2, 93.5);
    EXPECT_EQ(superficie.linee[2].y2, 46.5);
}

// A beam in the middle of 200 x 150: ends at x = 20 and 180, axis at y = 75.
TEST_F(QuadroTest, ABeamLiesOnTheMiddleLineOfItsField) {
    const Quadro q(&superficie, dispositivoVideo, misura);
    const TavolaTrave trave(q, q.Tutto().Dentro(20, 5, 20, 5));
    trave.Asse();
    EXPECT_EQ(superficie.linee.at(0).x1, 20);
    EXPECT_EQ(superficie.linee.at(0).x2, 180);
    EXPECT_EQ(superficie.linee.at(0).y1, 75);
    EXPECT_EQ(superficie.linee.at(0).spessore, spessoreContorno);
    superficie.linee.clear();
    trave.Diagramma([](double x) { return 1 - 2 * x; });
    // ends, axis, and 48 chords from the top left to the bottom right corner of the field
    ASSERT_EQ(superficie.linee.size(), 3U + 48U);
    EXPECT_EQ(superficie.linee[3].y1, 5);
    EXPECT_EQ(superficie.linee.back().y2, 145);
}

TEST_F(QuadroTest, AnArrowHeadIsATriangle) {
    Quadro::Punta({10, 20}, {1, 0}, 6, 2);
    ASSERT_EQ(superficie.aree.size(), 1U);
    EXPECT_EQ(superficie.aree[0].fondo, Fondo::Pieno);
    EXPECT_EQ(superficie.aree[0].punti, (std::vector<std::pair<double, double>>{{10, 20}, {4, 22}, {4, 18}}));
}

TEST_F(QuadroTest, TrueSizeIsOfFilesAlone) {
    const Quadro q(&superficie, dispositivoVideo, misura);
    q.VeraGrandezza(2);
    EXPECT_EQ(superficie.ScaleWidth, 200);
    SuperficieSvg svg;
    const Quadro foglio(&svg, dispositivoSvg, misura);
    const double prima = svg.ScaleWidth;
    foglio.VeraGrandezza(0);
    EXPECT_EQ(svg.ScaleWidth, prima) << "no scale";
    foglio.VeraGrandezza(2);
    EXPECT_EQ(svg.ScaleWidth, 2);
    const Quadro nessuno(nullptr, dispositivoVideo, misura);
    nessuno.VeraGrandezza(2);
}

} // namespace
