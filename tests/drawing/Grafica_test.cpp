#include "drawing/Grafica.h"

#include <cmath>
#include <limits>
#include <numbers>

#include <gtest/gtest.h>

#include "drawing/CadFinto.h"
#include "drawing/SuperficieFinta.h"
#include "geometry/Casi.h"
#include "geometry/LineeGeometria.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

const std::vector<double> xQuadrato{0, 10, 10, 0};
const std::vector<double> yQuadrato{0, 0, 10, 10};
const double nan = std::numeric_limits<double>::quiet_NaN();
const double infinito = std::numeric_limits<double>::infinity();

class GraficaTest : public testing::Test {
protected:
    SuperficieFinta superficie{200, 100};
    SuUscita uscita{&superficie};
};

TEST(StatoUscita, StartsWithPen7AndUntouchedHeights) {
    EXPECT_EQ(Dispositivo, "VIDEO");
    EXPECT_EQ(ColorePenna, 7);
    EXPECT_EQ(yOrigine, 0);
    EXPECT_EQ(ScalaY, 1);
    EXPECT_EQ(OggettoGrafico, nullptr);
}

TEST(StatoUscita, PutsEverythingBack) {
    SuperficieFinta s(1, 1);
    {
        const StatoUscita prima;
        Dispositivo = "DXF";
        ColorePenna = 3;
        yOrigine = 5;
        ScalaY = 2;
        OggettoGrafico = &s;
    }
    EXPECT_EQ(Dispositivo, "VIDEO");
    EXPECT_EQ(ColorePenna, 7);
    EXPECT_EQ(yOrigine, 0);
    EXPECT_EQ(ScalaY, 1);
    EXPECT_EQ(OggettoGrafico, nullptr);
}

// y' = yOrigine + y/ScalaY: with 100 and 4 a height of 20 leaves as 105.
TEST_F(GraficaTest, HeightsAreMovedAndDividedOnTheirWayOut) {
    yOrigine = 100;
    ScalaY = 4;
    LineaPlt(1, 20, 2, 40);
    CerchioPlt(3, 20, 7);
    TestoPlt(4, 20, 5, "a");
    PolilineaPlt(2, xQuadrato, yQuadrato);
    ASSERT_EQ(superficie.linee.size(), 2U);
    EXPECT_EQ(superficie.linee[0].x1, 1);
    EXPECT_EQ(superficie.linee[0].y1, 105);
    EXPECT_EQ(superficie.linee[0].x2, 2);
    EXPECT_EQ(superficie.linee[0].y2, 110);
    EXPECT_EQ(superficie.cerchi[0].y, 105);
    EXPECT_EQ(superficie.cerchi[0].r, 7) << "a radius is not scaled in y";
    EXPECT_EQ(superficie.scritte[0].y, 105);
    EXPECT_EQ(superficie.linee[1].y1, 100);
}

TEST_F(GraficaTest, AnyOtherDeviceDrawsOnTheTarget) {
    for (const char* nome : {"VIDEO", "STAMPANTE", "FILE", "che so"}) {
        Dispositivo = nome;
        superficie.linee.clear();
        EXPECT_TRUE(SulBersaglio());
        LineaPlt(0, 0, 1, 1);
        EXPECT_EQ(superficie.linee.size(), 1U) << nome;
    }
    for (const char* nome : {"DXF", "DWG", "BLOCCO"}) {
        Dispositivo = nome;
        superficie.linee.clear();
        EXPECT_FALSE(SulBersaglio());
        LineaPlt(0, 0, 1, 1);
        CerchioPlt(0, 0, 1);
        TestoPlt(0, 0, 1, "a");
        EXPECT_TRUE(superficie.linee.empty()) << nome;
        EXPECT_TRUE(superficie.cerchi.empty() && superficie.scritte.empty()) << nome;
    }
}

TEST(Grafica, WithoutATargetNothingHappens) {
    const SuUscita uscita(nullptr);
    LineaPlt(0, 0, 1, 1);
    CerchioPlt(0, 0, 1);
    TestoPlt(0, 0, 1, "a");
    PolilineaPlt(4, xQuadrato, yQuadrato, true);
    PennaPlt(3);
    LineaStilePlt(2);
    EXPECT_EQ(ColorePenna, 3);
}

TEST_F(GraficaTest, PenAndStyleReachTheTarget) {
    PennaPlt(12);
    LineaStilePlt(1.4, TipoLinea::TrattoPunto);
    LineaPlt(0, 0, 1, 0);
    CerchioPlt(0, 0, 1);
    EXPECT_EQ(superficie.linee[0].colore, 12);
    EXPECT_EQ(superficie.linee[0].spessore, 1.4);
    EXPECT_EQ(superficie.linee[0].tipo, TipoLinea::TrattoPunto);
    EXPECT_EQ(superficie.cerchi[0].colore, 12);
    Dispositivo = dispositivoDxf;
    PennaPlt(3);
    LineaStilePlt(9);
    EXPECT_EQ(ColorePenna, 3);
    EXPECT_EQ(superficie.ForeColor, 12) << "a file has no target";
    EXPECT_EQ(superficie.DrawWidth, 1.4);
}

TEST_F(GraficaTest, PolylineGoesFromPointToPoint) {
    PolilineaPlt(4, xQuadrato, yQuadrato);
    EXPECT_EQ(superficie.linee.size(), 3U);
    superficie.linee.clear();
    PolilineaPlt(4, xQuadrato, yQuadrato, true);
    ASSERT_EQ(superficie.linee.size(), 4U);
    EXPECT_EQ(superficie.linee[3].x1, 0);
    EXPECT_EQ(superficie.linee[3].y1, 10);
    EXPECT_EQ(superficie.linee[3].x2, 0);
    EXPECT_EQ(superficie.linee[3].y2, 0);
    superficie.linee.clear();
    PolilineaPlt(2, xQuadrato, yQuadrato);
    EXPECT_EQ(superficie.linee.size(), 1U) << "the first n points only";
    superficie.linee.clear();
    PolilineaPlt(1, xQuadrato, yQuadrato, true);
    PolilineaPlt(0, xQuadrato, yQuadrato);
    PolilineaPlt(-3, xQuadrato, yQuadrato);
    PolilineaPlt(5, xQuadrato, yQuadrato);
    EXPECT_TRUE(superficie.linee.empty());
}

TEST_F(GraficaTest, WhatIsNotFiniteIsLeftOut) {
    LineaPlt(0, nan, 1, 1);
    LineaPlt(0, 0, infinito, 1);
    CerchioPlt(0, 0, nan);
    CerchioPlt(0, 0, 0);
    CerchioPlt(0, 0, -1);
    TestoPlt(nan, 0, 1, "a");
    TestoPlt(0, 0, 0, "a");
    TestoPlt(0, 0, -1, "a");
    TestoPlt(0, 0, 1, "");
    PolilineaPlt(2, std::vector<double>{0, nan}, yQuadrato);
    EXPECT_TRUE(superficie.linee.empty());
    EXPECT_TRUE(superficie.cerchi.empty());
    EXPECT_TRUE(superficie.scritte.empty());
}

// Beyond 1E15 there is no tenth of a millimetre left in a double.
TEST_F(GraficaTest, WhatLiesBeyondAllMeasureIsLeftOut) {
    const double lontano = 1e308;
    LineaPlt(0, lontano, 1, 1);
    LineaPlt(0, 0, -lontano, 1);
    CerchioPlt(0, 0, lontano);
    CerchioPlt(lontano, 0, 1);
    TestoPlt(lontano, 0, 1, "a");
    TestoPlt(0, 0, lontano, "a");
    PolilineaPlt(3, std::vector<double>{0, 1, lontano}, yQuadrato, true);
    EXPECT_EQ(TratteggioPlt(3, std::vector<double>{0, lontano, 1}, yQuadrato, 0, 5, 8), 0);
    ScalaY = 1e-300;
    LineaPlt(0, 1e10, 1, 1);
    EXPECT_TRUE(superficie.linee.empty());
    EXPECT_TRUE(superficie.cerchi.empty());
    EXPECT_TRUE(superficie.scritte.empty());
    ScalaY = 1;
    LineaPlt(0, 0, 1e15, 1);
    EXPECT_EQ(superficie.linee.size(), 1U);
}

// The own font is 10 units high at 10 points; in a scale of 4 model units to the unit, 2 model units are half
// a unit, so half a point.
TEST_F(GraficaTest, FontIsSizedToTheHeightWanted) {
    superficie.ScaleMode = Superficie::scalaUtente;
    superficie.ScaleWidth = 800;
    superficie.ScaleHeight = -400;
    ColorePenna = 12;
    superficie.ForeColor = 9;
    TestoPlt(30, 40, 2, "IPE");
    ASSERT_EQ(superficie.scritte.size(), 1U);
    EXPECT_EQ(superficie.scritte[0].x, 30);
    EXPECT_EQ(superficie.scritte[0].y, 40);
    EXPECT_NEAR(superficie.scritte[0].altezza, 2, 1e-12);
    EXPECT_NEAR(superficie.scritte[0].corpo, 0.5, 1e-12);
    EXPECT_EQ(superficie.scritte[0].colore, 12) << "the pen's colour";
    EXPECT_EQ(superficie.ForeColor, 9) << "put back";
    TestoPlt(30, 40, 20, "IPE");
    EXPECT_NEAR(superficie.scritte[1].altezza, 20, 1e-12) << "whatever the size before it";
}

// A text of 5 characters of 4 units height: 5 · 0.6 · 4 = 12 wide.
TEST_F(GraficaTest, TextsAreAlignedByTheirMeasuredWidth) {
    TestoPlt(100, 0, 4, "abcde", Allinea::Centro);
    TestoPlt(100, 0, 4, "abcde", Allinea::Destra);
    EXPECT_NEAR(superficie.scritte[0].x, 94, 1e-12);
    EXPECT_NEAR(superficie.scritte[1].x, 88, 1e-12);
    EXPECT_NEAR(LarghezzaTestoPlt(4, "abcde"), 12, 1e-12);
    Dispositivo = dispositivoDxf;
    EXPECT_NEAR(LarghezzaTestoPlt(4, "perché"), 6 * 0.85 * 4, 1e-12) << "characters, not bytes";
}

// A line of the fake font reaches 1.27 of its capitals up and 0.32 down.
TEST_F(GraficaTest, TextsArePutByALevelOfTheirLine) {
    TestoPlt(0, 50, 10, "a", Allinea::Sinistra, Posa::Alto);
    TestoPlt(0, 50, 10, "a", Allinea::Sinistra, Posa::Mezzo);
    TestoPlt(0, 50, 10, "a", Allinea::Sinistra, Posa::Basso);
    superficie.ScaleHeight = -100;
    TestoPlt(0, 50, 10, "a", Allinea::Sinistra, Posa::Alto);
    EXPECT_NEAR(superficie.scritte[0].y, 62.7, 1e-12);
    EXPECT_NEAR(superficie.scritte[1].y, 54.75, 1e-12);
    EXPECT_NEAR(superficie.scritte[2].y, 46.8, 1e-12);
    EXPECT_NEAR(superficie.scritte[3].y, 37.3, 1e-12) << "y upwards";
}

TEST_F(GraficaTest, FilesShowTheOutlineOfWhatThePenFills) {
    const CadFinto cad("AutoCAD.Application.17");
    ASSERT_TRUE(CadApre());
    cad.chiamate->clear();
    Dispositivo = dispositivoDwg;
    AreaPlt(4, xQuadrato, yQuadrato, Fondo::Tenue);
    AreaPlt(4, xQuadrato, yQuadrato, Fondo::Sfondo);
    AreaPlt(2, xQuadrato, yQuadrato, Fondo::Pieno);
    EXPECT_TRUE(cad.chiamate->empty());
    AreaPlt(4, xQuadrato, yQuadrato, Fondo::Pieno);
    EXPECT_EQ(cad.chiamate->at(0), "ModelSpace.AddLightWeightPolyline 0 0 10 0 10 10 0 10 0 0");
}

// Hatching ----------------------------------------------------------------------------------------------

// Square of 10, level lines: 5 lines stand at 1, 3, 5, 7, 9, each 10 long.
TEST_F(GraficaTest, HatchLinesStandInTheMiddleOfTheirStrips) {
    EXPECT_EQ(TratteggioPlt(4, xQuadrato, yQuadrato, 0, 5, 8), 5);
    ASSERT_EQ(superficie.linee.size(), 5U);
    for (std::size_t k = 0; k < 5; ++k) {
        EXPECT_NEAR(superficie.linee[k].y1, 1 + 2 * double(k), 1e-12);
        EXPECT_NEAR(superficie.linee[k].y2, 1 + 2 * double(k), 1e-12);
        EXPECT_NEAR(std::abs(superficie.linee[k].x2 - superficie.linee[k].x1), 10, 1e-12);
        EXPECT_EQ(superficie.linee[k].colore, 8);
    }
    EXPECT_EQ(ColorePenna, 7) << "the pen is put back";
    EXPECT_EQ(superficie.ForeColor, 7);
}

// A spacing of 3 finds room three times in 10: lines at 1.5, 4.5, 7.5.
TEST_F(GraficaTest, ANegativeArgumentIsTheSpacing) {
    EXPECT_EQ(TratteggioPlt(4, xQuadrato, yQuadrato, 0, -3, 8), 3);
    ASSERT_EQ(superficie.linee.size(), 3U);
    EXPECT_NEAR(superficie.linee[0].y1, 1.5, 1e-12);
    EXPECT_NEAR(superficie.linee[2].y1, 7.5, 1e-12);
}

struct CasoNumero {
    const char* nome;
    double argomento;
    int linee;
};
void PrintTo(const CasoNumero& c, std::ostream* os) { *os << c.nome; }
class NumeroLineeTest : public GraficaTest, public testing::WithParamInterface<CasoNumero> {};
TEST_P(NumeroLineeTest, Tabella) {
    EXPECT_EQ(TratteggioPlt(4, xQuadrato, yQuadrato, 0, GetParam().argomento, 8), GetParam().linee);
    EXPECT_EQ(superficie.linee.size(), std::size_t(GetParam().linee));
}
// clang-format off
INSTANTIATE_TEST_SUITE_P(Quadrato, NumeroLineeTest, testing::Values(
    CasoNumero{"nessuna",            0,    0},
    CasoNumero{"una",                1,    1},
    CasoNumero{"parte_intera",       4.9,  4},
    CasoNumero{"meno_di_una",        0.9,  0},
    CasoNumero{"passo_maggiore",   -11,    0},
    CasoNumero{"passo_uguale",     -10,    1},
    CasoNumero{"passo_intero",      -2.6,  3},
    CasoNumero{"argomento_assurdo", nan,   0}),
    [](const auto& i) { return std::string(i.param.nome); });
// clang-format on

TEST_F(GraficaTest, AnAbsurdSpacingEndsAtTheLargestCount) {
    EXPECT_EQ(TratteggioPlt(4, xQuadrato, yQuadrato, 0, -1e-12, 8), 32767);
}

// Fewer than 3 points, and outlines without height in the direction of the lines.
TEST_F(GraficaTest, NothingToHatch) {
    EXPECT_EQ(TratteggioPlt(2, xQuadrato, yQuadrato, 0, 5, 8), 0);
    EXPECT_EQ(TratteggioPlt(-1, xQuadrato, yQuadrato, 0, 5, 8), 0);
    EXPECT_EQ(TratteggioPlt(5, xQuadrato, yQuadrato, 0, 5, 8), 0);
    EXPECT_EQ(TratteggioPlt(3, std::vector<double>{0, 1, 2}, std::vector<double>{4, 4, 4}, 0, 5, 8), 0);
    EXPECT_EQ(TratteggioPlt(3, std::vector<double>{0, nan, 2}, std::vector<double>{4, nan, 6}, 0, 0, 8), 0);
    EXPECT_TRUE(superficie.linee.empty());
}

// At 45 degrees the square is 10·sqrt(2) across: 4 lines at d = sqrt(2)·(1.25, 3.75, 6.25, 8.75) from the
// corner, chords 2·min(d, 10 sqrt(2) - d) long: 2·1.25·sqrt(2) = 3.5355 for the outer, 10.607 for the inner
// ones.
TEST_F(GraficaTest, TurnedLinesRunAtTheirAngle) {
    TratteggioPlt(4, xQuadrato, yQuadrato, 45, 4, 8);
    ASSERT_EQ(superficie.linee.size(), 4U);
    const double lunghezze[] = {2.5 * std::numbers::sqrt2, 7.5 * std::numbers::sqrt2,
                                7.5 * std::numbers::sqrt2, 2.5 * std::numbers::sqrt2};
    for (std::size_t k = 0; k < 4; ++k) {
        const auto& l = superficie.linee[k];
        EXPECT_NEAR(std::hypot(l.x2 - l.x1, l.y2 - l.y1), lunghezze[k], 1e-9);
        EXPECT_NEAR(l.y2 - l.y1, l.x2 - l.x1, 1e-9) << "45 degrees";
    }
}

// A U, 30 wide, arms of 10, slot from y = 10 up: a level line above 10 crosses both arms.
TEST_F(GraficaTest, AConcaveOutlineGivesTwoChordsALine) {
    const Poligono u = PoligonoDaTesto("0 0, 30 0, 30 30, 20 30, 20 10, 10 10, 10 30, 0 30");
    TratteggioPlt(8, u.CoordX(), u.CoordY(), 0, 3, 8); // levels 5, 15, 25
    ASSERT_EQ(superficie.linee.size(), 5U);
    EXPECT_NEAR(superficie.linee[0].x2 - superficie.linee[0].x1, 30, 1e-12);
    EXPECT_NEAR(superficie.linee[1].x1, 0, 1e-12);
    EXPECT_NEAR(superficie.linee[1].x2, 10, 1e-12);
    EXPECT_NEAR(superficie.linee[2].x1, 20, 1e-12);
    EXPECT_NEAR(superficie.linee[2].x2, 30, 1e-12);
}

// Through the vertices of a diamond: the middle line of three passes both side vertices; lines outside would
// pair wrongly if a vertex counted twice.
TEST_F(GraficaTest, LinesThroughVerticesPairUp) {
    const Poligono rombo = PoligonoDaTesto("0 -9, 9 0, 0 9, -9 0");
    TratteggioPlt(4, rombo.CoordX(), rombo.CoordY(), 0, 3, 8); // levels -6, 0, 6
    ASSERT_EQ(superficie.linee.size(), 3U);
    EXPECT_NEAR(superficie.linee[1].x1, -9, 1e-12);
    EXPECT_NEAR(superficie.linee[1].x2, 9, 1e-12);
}

// The hatch length times its spacing is the area: I 200x100x5.6x8.5, r 12 in chords, by the polygon's own
// Area.
TEST_F(GraficaTest, HatchingCoversTheArea) {
    Poligono p = ContornoDoppioT(200, 100, 5.6, 8.5, 12);
    p.AreaCalcola();
    for (const double angolo : {0.0, 17.0, 45.0, 90.0, 135.0, -30.0}) {
        superficie.linee.clear();
        TratteggioPlt(p.nVertici(), p.CoordX(), p.CoordY(), angolo, -0.25, 8);
        double lunghezza = 0;
        for (const auto& l : superficie.linee)
            lunghezza += std::hypot(l.x2 - l.x1, l.y2 - l.y1);
        EXPECT_NEAR(lunghezza * 0.25, p.Area, 0.01 * p.Area) << angolo;
    }
}

TEST_F(GraficaTest, HatchingSetsTheToleranceFirst) {
    ZeroMaxDimen = 0;
    TratteggioPlt(4, xQuadrato, yQuadrato, 0, 2, 8);
    EXPECT_NEAR(ZeroMaxDimen, 10 / 1e6, 1e-15);
}

// CAD ---------------------------------------------------------------------------------------------------

TEST(GraficaCad, ModelSpaceAndBlockReceiveTheirPrimitives) {
    CadFinto cad("AutoCAD.Application.17");
    ASSERT_TRUE(CadApre());
    BloccoCad = cad.Blocco("Blocco");
    cad.chiamate->clear();
    const SuUscita uscita(nullptr, dispositivoDwg);
    LineaPlt(0, 0, 1, 2);
    Dispositivo = dispositivoBlocco;
    PennaPlt(12);
    TestoPlt(10, 20, 5, "HEA");
    const std::vector<std::string> attese{"ModelSpace.AddLine (0 0 0) (1 2 0)", "Color 7",
                                          "Blocco.AddText HEA (10 20 0) 5", "Color 12"};
    EXPECT_EQ(*cad.chiamate, attese);
}

TEST(GraficaCad, WithoutAProgramNothingHappens) {
    const SuUscita uscita(nullptr, dispositivoDwg);
    LineaPlt(0, 0, 1, 2);
    CerchioPlt(0, 0, 1);
    PolilineaPlt(4, xQuadrato, yQuadrato, true);
    TestoPlt(0, 0, 1, "a");
    SUCCEED();
}

TEST_F(GraficaTest, TextsHangDownInATinyScaleToo) {
    superficie.ScaleHeight = 0.5;
    TestoPlt(0, 0.25, 0.1, "a", Allinea::Sinistra, Posa::Alto);
    ASSERT_EQ(superficie.scritte.size(), 1U);
    EXPECT_NEAR(superficie.scritte[0].y, 0.25 + 0.127, 1e-12);
}

TEST_F(GraficaTest, AnOutlineBelowAUnitIsHatched) {
    const std::vector<double> x{0, 0.5, 0.5, 0};
    const std::vector<double> y{0, 0, 0.5, 0.5};
    EXPECT_EQ(TratteggioPlt(4, x, y, 0, 2, 8), 2);
    EXPECT_EQ(TratteggioPlt(4, x, y, 0, -0.25, 8), 2);
    EXPECT_EQ(superficie.linee.size(), 4U);
    EXPECT_EQ(TratteggioPlt(3, x, y, 0, 2, 8), 2) << "three points are enough";
}

TEST_F(GraficaTest, AbscissasAndOrdinatesMustBothSuffice) {
    const std::vector<double> corta{0, 1, 1};
    const std::vector<double> lunga{0, 0, 1, 1};
    EXPECT_EQ(TratteggioPlt(4, corta, lunga, 0, 2, 8), 0);
    EXPECT_EQ(TratteggioPlt(4, lunga, corta, 0, 2, 8), 0);
}

} // namespace
