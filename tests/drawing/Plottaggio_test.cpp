#include "drawing/Plottaggio.h"

#include <gtest/gtest.h>

#include "Registratore.h"
#include "drawing/SuperficieFinta.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

class PlottaggioTest : public testing::Test {
protected:
    Registratore registratore;
    SuperficieFinta superficie{400, 300};
    StatoUscita prima;
    Plottaggio frame;

    void Inizia(bool proporzionale = true, const char* dispositivo = "VIDEO") {
        frame.Inizializza(&superficie, dispositivo, proporzionale);
        frame.xFinestraPlt(-50, 50);
        frame.yFinestraPlt(0, 200);
    }
};

TEST_F(PlottaggioTest, PutsTargetAndDeviceInForce) {
    Inizia(true, "STAMPANTE");
    EXPECT_EQ(Dispositivo, "STAMPANTE");
    EXPECT_EQ(OggettoGrafico, &superficie);
}

// 400 x 300 for a model of 100 x 200: height governs, 300/200 = 1.5 a unit. The model is 150 wide on the
// surface, 125 are left at each side.
TEST_F(PlottaggioTest, FitsProportionallyAndCentres) {
    Inizia();
    frame.AdattaAfinestra();
    EXPECT_EQ(superficie.ScaleMode, Superficie::scalaUtente);
    EXPECT_NEAR(superficie.InX(-50), 125, 1e-9);
    EXPECT_NEAR(superficie.InX(50), 275, 1e-9);
    EXPECT_NEAR(superficie.InY(200), 0, 1e-9) << "y points up";
    EXPECT_NEAR(superficie.InY(0), 300, 1e-9);
    EXPECT_LT(superficie.ScaleHeight, 0);
}

TEST_F(PlottaggioTest, WithoutProportionEachDirectionIsFilled) {
    Inizia(false);
    frame.AdattaAfinestra();
    EXPECT_NEAR(superficie.InX(-50), 0, 1e-9);
    EXPECT_NEAR(superficie.InX(50), 400, 1e-9);
    EXPECT_NEAR(superficie.InY(0), 300, 1e-9);
    EXPECT_NEAR(superficie.InY(200), 0, 1e-9);
}

// Left 40, top 10, right 60, bottom 20 leave 300 x 270; 270/200 = 1.35; 135 wide in 300, so 82.5 at each
// side.
TEST_F(PlottaggioTest, MarginsAreKeptFree) {
    Inizia();
    frame.Bordi(40, 10, 60, 20);
    frame.AdattaAfinestra();
    EXPECT_NEAR(superficie.InX(-50), 122.5, 1e-9);
    EXPECT_NEAR(superficie.InX(50), 257.5, 1e-9);
    EXPECT_NEAR(superficie.InY(200), 10, 1e-9);
    EXPECT_NEAR(superficie.InY(0), 280, 1e-9);
}

// A quarter of the width from 0.5, half of the height from 0.25: 100 x 150 at (200, 75), scale 0.75.
TEST_F(PlottaggioTest, FractionsOfTheTarget) {
    Inizia();
    frame.EstremiFinestra(0.5, 0.25, 0.25, 0.5);
    frame.AdattaAfinestra();
    EXPECT_NEAR(superficie.InX(-50), 212.5, 1e-4);
    EXPECT_NEAR(superficie.InX(50), 287.5, 1e-4);
    EXPECT_NEAR(superficie.InY(200), 75, 1e-4);
    EXPECT_NEAR(superficie.InY(0), 225, 1e-4);
}

TEST_F(PlottaggioTest, FractionsLeftAtZeroAreOne) {
    Inizia();
    frame.EstremiFinestra(0, 0, 0, 0);
    frame.AdattaAfinestra();
    EXPECT_NEAR(superficie.InY(200), 0, 1e-9);
    EXPECT_NEAR(superficie.InY(0), 300, 1e-9);
}

TEST_F(PlottaggioTest, MarginsThatLeaveNothingAreNotKept) {
    Inizia();
    frame.Bordi(300, 0, 100, 0);
    frame.AdattaAfinestra();
    EXPECT_NEAR(superficie.InX(-50), 125, 1e-9);
}

TEST_F(PlottaggioTest, AnotherScaleOfTheTargetIsForgotten) {
    Inizia();
    superficie.ScaleLeft = 17;
    superficie.ScaleWidth = -3;
    superficie.ScaleMode = Superficie::scalaUtente;
    frame.AdattaAfinestra();
    EXPECT_NEAR(superficie.InX(-50), 125, 1e-9);
}

TEST_F(PlottaggioTest, HeightsMayPointDown) {
    Inizia();
    frame.yFinestraPlt(200, 0);
    frame.AdattaAfinestra();
    EXPECT_NEAR(superficie.InY(0), 0, 1e-9);
    EXPECT_NEAR(superficie.InY(200), 300, 1e-9);
    EXPECT_GT(superficie.ScaleHeight, 0);
}

TEST_F(PlottaggioTest, AModelWithoutExtentStillHasAScale) {
    Inizia();
    frame.xFinestraPlt(5, 5);
    frame.AdattaAfinestra();
    EXPECT_NEAR(superficie.InX(5), 200, 1e-9) << "a plumb line stands in the middle";
    frame.yFinestraPlt(7, 7);
    frame.AdattaAfinestra();
    EXPECT_TRUE(std::isfinite(superficie.InX(5)));
    EXPECT_TRUE(std::isfinite(superficie.InY(7)));
}

TEST_F(PlottaggioTest, AnyOtherDeviceIsToldAndChangesNothing) {
    for (const char* nome : {"DXF", "DWG", "BLOCCO", "FILE", ""}) {
        registratore.testi.clear();
        Inizia(true, nome);
        frame.AdattaAfinestra();
        EXPECT_EQ(registratore.testi,
                  std::vector<std::string>{"ERRORE! Plottaggio.AdattaAfinestra - Uscita non prevista"});
        EXPECT_EQ(superficie.ScaleMode, Superficie::scalaPropria);
        EXPECT_EQ(superficie.ScaleWidth, 400);
    }
    Dispositivo = dispositivoVideo;
    LineaPlt(0, 0, 1, 1);
    EXPECT_EQ(superficie.linee.size(), 1U) << "the drawing goes on";
}

TEST_F(PlottaggioTest, WithoutATargetNothingHappens) {
    frame.Inizializza(nullptr, "VIDEO");
    frame.AdattaAfinestra();
    frame.RipristinaDefault();
    EXPECT_TRUE(registratore.testi.empty());
}

TEST_F(PlottaggioTest, ANewStartForgetsWindowMarginsAndFractions) {
    Inizia();
    frame.Bordi(40, 10, 60, 20);
    frame.EstremiFinestra(0.5, 0.5, 0.5, 0.5);
    frame.AltezzaTesto = 3;
    Inizia();
    frame.AdattaAfinestra();
    EXPECT_NEAR(superficie.InX(-50), 125, 1e-9);
    EXPECT_EQ(frame.AltezzaTesto, 0);
}

// A page of 2:1 round a window of 100 x 100: 200 wide, 50 added at each side.
TEST(CentraPlottaggio, AWiderPageAddsWidth) {
    double x = 10;
    double y = 20;
    double l = 100;
    double h = 100;
    Plottaggio::CentraPlottaggio(400, 200, x, y, l, h);
    EXPECT_EQ(x, -40);
    EXPECT_EQ(l, 200);
    EXPECT_EQ(y, 20);
    EXPECT_EQ(h, 100);
}

// A page of 1:2: 200 high. With y upwards the top is at 120 and the height below 0: the top goes up by 50.
TEST(CentraPlottaggio, ATallerPageAddsHeightAndKeepsItsSign) {
    double x = 10;
    double y = 120;
    double l = 100;
    double h = -100;
    Plottaggio::CentraPlottaggio(200, 400, x, y, l, h);
    EXPECT_EQ(x, 10);
    EXPECT_EQ(l, 100);
    EXPECT_EQ(y, 170);
    EXPECT_EQ(h, -200);
    Plottaggio::CentraPlottaggio(200, -400, x, y, l, h);
    EXPECT_EQ(h, -200) << "the right aspect already";
    EXPECT_EQ(y, 170);
}

TEST(CentraPlottaggio, APageWithoutWidthChangesNothing) {
    double x = 0;
    double y = 0;
    double l = 100;
    double h = 50;
    Plottaggio::CentraPlottaggio(0, 100, x, y, l, h);
    EXPECT_EQ(l, 100);
    EXPECT_EQ(h, 50);
}

// Window 100 x 200: 0.1 by 0.4 at its lower left corner.
TEST_F(PlottaggioTest, MarkerAtTheCorner) {
    Inizia();
    frame.AdattaAfinestra();
    frame.PlottaFinestra();
    ASSERT_EQ(superficie.linee.size(), 4U);
    EXPECT_NEAR(superficie.linee[0].x1, -50, 1e-12);
    EXPECT_NEAR(superficie.linee[0].y1, 0, 1e-12);
    EXPECT_NEAR(superficie.linee[0].x2, -49.9, 1e-12);
    EXPECT_NEAR(superficie.linee[1].y2, 0.4, 1e-12);
}

TEST_F(PlottaggioTest, DefaultsComeBack) {
    Inizia();
    frame.AdattaAfinestra();
    superficie.FontSize = 99;
    superficie.FontName = "Times New Roman";
    superficie.ForeColor = 12;
    superficie.DrawWidth = 3;
    frame.RipristinaDefault();
    EXPECT_EQ(superficie.ScaleWidth, 400);
    EXPECT_EQ(superficie.ScaleMode, Superficie::scalaPropria);
    EXPECT_EQ(superficie.FontSize, SuperficieFinta::corpoProprio);
    EXPECT_TRUE(superficie.FontName.empty());
    EXPECT_EQ(superficie.ForeColor, 7);
    EXPECT_EQ(superficie.DrawWidth, 1);
}

TEST_F(PlottaggioTest, AllCornersOfTheMarker) {
    Inizia();
    frame.AdattaAfinestra();
    frame.PlottaFinestra();
    const double x[] = {-50, -49.9, -49.9, -50};
    const double y[] = {0, 0, 0.4, 0.4};
    ASSERT_EQ(superficie.linee.size(), 4U);
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_NEAR(superficie.linee[i].x1, x[i], 1e-12) << i;
        EXPECT_NEAR(superficie.linee[i].y1, y[i], 1e-12) << i;
    }
}

// As without margins: 100 x 150 at (200, 75).
TEST_F(PlottaggioTest, MarginsThatLeaveNothingOfAFractionAreNotKept) {
    Inizia();
    frame.EstremiFinestra(0.5, 0.25, 0.25, 0.5);
    frame.Bordi(60, 100, 60, 100);
    frame.AdattaAfinestra();
    EXPECT_NEAR(superficie.InX(-50), 212.5, 1e-4);
    EXPECT_NEAR(superficie.InX(50), 287.5, 1e-4);
    EXPECT_NEAR(superficie.InY(200), 75, 1e-4);
    EXPECT_NEAR(superficie.InY(0), 225, 1e-4);
}

TEST_F(PlottaggioTest, MarginsThatLeaveHalfAUnitAreKept) {
    Inizia();
    frame.Bordi(200, 0, 199.5, 0);
    frame.AdattaAfinestra();
    EXPECT_NEAR(superficie.InX(-50), 200, 1e-9);
    EXPECT_NEAR(superficie.InX(50), 200.5, 1e-9);
}

TEST_F(PlottaggioTest, APointIsShownInTheUnitsOfTheTarget) {
    Inizia();
    frame.xFinestraPlt(5, 5);
    frame.yFinestraPlt(7, 7);
    frame.AdattaAfinestra();
    EXPECT_NEAR(superficie.InX(6) - superficie.InX(5), 1, 1e-9);
    EXPECT_NEAR(superficie.InY(7) - superficie.InY(8), 1, 1e-9) << "y points up";
}

} // namespace
