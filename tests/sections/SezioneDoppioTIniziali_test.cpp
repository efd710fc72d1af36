#include <cmath>

#include <gtest/gtest.h>

#include "Registratore.h"
#include "SezioniDiProva.h"
#include "frame/GeneraleSagomi.h"
#include "sections/SezioneDoppioT.h"
#include "sections/SezioneGenerica.h"

using namespace sagomi;
using prove::Ipe200;
using prove::TrePiatti;

namespace {

class InizialiTest : public testing::Test {
protected:
    void TearDown() override { RipristinaGenerale(); }
    prove::Registratore registratore;
    SezioneDoppioT s;
};

struct SchermoFinto : MostraVplRd {
    std::vector<bool> chiamate;
    void lblVplRd(bool visibile) override { chiamate.push_back(visibile); }
};

TEST_F(InizialiTest, EqualFlangesWithoutTheOptionalValues) {
    s.fy = 235;
    s.SaldataAsimm = true;
    s.InizializzaSezioneUtente(nullptr, 500, 250, 8, 15, 5);
    EXPECT_TRUE(s.Saldata);
    EXPECT_FALSE(s.SaldataAsimm);
    EXPECT_EQ(s.h, 500);
    EXPECT_EQ(s.b, 250);
    EXPECT_EQ(s.tw, 8);
    EXPECT_EQ(s.tf, 15);
    EXPECT_EQ(s.r, 5);
    EXPECT_EQ(s.bAlaInf, 250);
    EXPECT_EQ(s.tAlaInf, 15);
    EXPECT_TRUE(registratore.testi.empty());
}

TEST_F(InizialiTest, DifferentFlangesWithThem) {
    s.fy = 235;
    s.InizializzaSezioneUtente(nullptr, 500, 250, 8, 15, 5, 180, 20);
    EXPECT_TRUE(s.Saldata);
    EXPECT_TRUE(s.SaldataAsimm);
    EXPECT_EQ(s.bAlaInf, 180);
    EXPECT_EQ(s.tAlaInf, 20);
    SezioneDoppioT una;
    una.fy = 235;
    una.InizializzaSezioneUtente(nullptr, 500, 250, 8, 15, 5, 180);
    EXPECT_TRUE(una.SaldataAsimm);
    EXPECT_EQ(una.tAlaInf, 15) << "as the upper flange";
    SezioneDoppioT altra;
    altra.fy = 235;
    altra.InizializzaSezioneUtente(nullptr, 500, 250, 8, 15, 5, {}, 20);
    EXPECT_TRUE(altra.SaldataAsimm);
    EXPECT_EQ(altra.bAlaInf, 250);
}

// Three rectangles without fillets: the constants of plates in closed form (TrePiatti).
TEST_F(InizialiTest, ConstantsOfPlates) {
    const SezioneDoppioT attesa = TrePiatti(500, 250, 8, 15);
    s.fy = 235;
    s.InizializzaSezioneUtente(nullptr, 500, 250, 8, 15, 0);
    EXPECT_NEAR(s.Area, attesa.Area, 1e-6 * attesa.Area);
    EXPECT_NEAR(s.Jy, attesa.Jy, 1e-6 * attesa.Jy);
    EXPECT_NEAR(s.Jz, attesa.Jz, 1e-6 * attesa.Jz);
    EXPECT_NEAR(s.Wely, attesa.Wely, 1e-6 * attesa.Wely);
    EXPECT_NEAR(s.WelyInf, attesa.Wely, 1e-6 * attesa.Wely);
    EXPECT_NEAR(s.Welz, attesa.Welz, 1e-6 * attesa.Welz);
    EXPECT_NEAR(s.Wply, attesa.Wply, 2e-4 * attesa.Wply);
    EXPECT_NEAR(s.Wplz, attesa.Wplz, 2e-4 * attesa.Wplz);
    EXPECT_NEAR(s.iY, std::sqrt(attesa.Jy / attesa.Area), 1e-5 * s.iY);
    EXPECT_NEAR(s.iZ, std::sqrt(attesa.Jz / attesa.Area), 1e-5 * s.iZ);
    // (15^3·250·2 + 8^3·470)/3 = 642713.3 mm4
    EXPECT_NEAR(s.JT, 642713.33, 1);
    EXPECT_NEAR(s.Jw, attesa.Jz / 4 * 485 * 485, 1e-6 * s.Jw);
    // 11260 mm2 of steel weigh 11260·7850/1e6 = 88.391 kg/m
    EXPECT_NEAR(s.g, 88.391, 1e-3);
    EXPECT_NEAR(s.xG, 0, 1e-6);
    EXPECT_NEAR(s.yG, 250, 1e-4);
}

// HSD 500x84 of the catalogue, without its fillets of 5: 300x15, 473x8, 200x12; by hand
// A = 4500 + 3784 + 2400 = 10684; yG = (4500·492.5 + 3784·248.5 + 2400·6)/10684 = 296.7965;
// Jy = 300·15^3/12 + 4500·195.7035^2 + 8·473^3/12 + 3784·48.2965^2 + 200·12^3/12 + 2400·290.7965^2;
// Jz = (15·300^3 + 473·8^3 + 12·200^3)/12 = 41770181; the moduli are Jy over 203.2035 and 296.7965.
TEST_F(InizialiTest, ConstantsOfDifferentFlanges) {
    s.fy = 235;
    s.InizializzaSezioneUtente(nullptr, 500, 300, 8, 15, 0, 200, 12);
    const double A = 300 * 15 + 473 * 8 + 200 * 12;
    const double yG = (4500 * 492.5 + 3784 * 248.5 + 2400 * 6) / A;
    const double Jy = 300 * std::pow(15, 3) / 12 + 4500 * std::pow(492.5 - yG, 2) +
                      8 * std::pow(473, 3) / 12 + 3784 * std::pow(248.5 - yG, 2) +
                      200 * std::pow(12, 3) / 12 + 2400 * std::pow(yG - 6, 2);
    EXPECT_NEAR(s.Area, 10684, 1e-3);
    EXPECT_NEAR(s.yG, 296.7965, 1e-3);
    EXPECT_NEAR(s.Jy, Jy, 1e-6 * Jy);
    EXPECT_NEAR(s.Wely, Jy / (500 - yG), 1e-6 * s.Wely);
    EXPECT_NEAR(s.WelyInf, Jy / yG, 1e-6 * s.WelyInf);
    EXPECT_NEAR(s.Jz, 41770181, 10);
    EXPECT_NEAR(s.Welz, 41770181 / 150.0, 1);
    // Warping: p = 15·300^3/(15·300^3 + 12·200^3) = 0.808383; Jw = p(1 - p) Jz 473^2... flanges 500 - 27
    // apart.
    const double p = 405e6 / (405e6 + 96e6);
    EXPECT_NEAR(s.Jw, p * (1 - p) * 41770181 * 473.0 * 473.0, 1e-5 * s.Jw);
}

TEST_F(InizialiTest, FilletsCountInTheOutline) {
    s.fy = 235;
    s.InizializzaSezioneUtente(nullptr, 500, 250, 8, 15, 6);
    // four right triangles of leg 6: 4·18 = 72 mm2 on top of the plates
    EXPECT_NEAR(s.Area, 11260 + 72, 1e-2);
    EXPECT_EQ(s.SezioneGenericaCorrente->Poligono->nVertici(), 16);
}

TEST_F(InizialiTest, TheRestFollowsAndTheScreenIsAsked) {
    SchermoFinto schermo;
    s.fy = 235;
    s.InizializzaSezioneUtente(&schermo, 500, 250, 6, 15, 0); // d/tw = 470/6 = 78.3 above 69
    EXPECT_EQ(schermo.chiamate, (std::vector<bool>{false, true}));
    EXPECT_EQ(s.ClasseFlessioneY, 2); // 78.3 between 72 and 83
    EXPECT_NEAR(s.MplyRd, s.Wply * 235 / 1.05, 1e-6 * s.MplyRd);
    EXPECT_NEAR(s.MplzRd, s.Wplz * 235 / 1.05, 1e-6 * s.MplzRd);
    EXPECT_NEAR(s.MelyRd, s.Wely * 235 / 1.05, 1e-6 * s.MelyRd);
    EXPECT_NEAR(s.MelzRd, s.Welz * 235 / 1.05, 1e-6 * s.MelzRd);
    EXPECT_NEAR(s.McyRd, s.MplyRd, 1e-9 * s.MplyRd);
    EXPECT_GT(s.VplyRd, 0);
}

TEST_F(InizialiTest, PlatesWithoutAreaLeaveDataThatFail) {
    s.fy = 235;
    s.InizializzaSezioneUtente(nullptr, 0, 0, 0, 0, 0);
    EXPECT_EQ(s.Area, 0);
    EXPECT_EQ(s.Wply, 0);
}

// IPE 200 of EN 10365: A 28.48 cm2, Iy 1943, Wy 194.3, Wpl,y 220.6, Iz 142.4, Wz 28.47, Wpl,z 44.61, iy 8.26,
// iz 2.24, It 6.98 cm4, 22.4 kg/m.
TEST_F(InizialiTest, SteelOfACompositeBeamTakesItsConstantsFromTheOutline) {
    const SezioneDoppioT tabella = Ipe200();
    s = Ipe200();
    s.Area = s.Jy = s.Wely = s.Wply = s.iY = s.Jz = s.Welz = s.Wplz = s.iZ = s.JT = s.Jw = 0;
    s.InizializzaSezioneAcciaioCls();
    EXPECT_NEAR(s.Area, tabella.Area, 0.003 * tabella.Area);
    EXPECT_NEAR(s.Jy, tabella.Jy, 0.003 * tabella.Jy);
    EXPECT_NEAR(s.Wely, tabella.Wely, 0.003 * tabella.Wely);
    EXPECT_NEAR(s.WelyInf, tabella.Wely, 0.003 * tabella.Wely);
    EXPECT_NEAR(s.Wply, tabella.Wply, 0.003 * tabella.Wply);
    EXPECT_NEAR(s.Jz, tabella.Jz, 0.003 * tabella.Jz);
    EXPECT_NEAR(s.Welz, tabella.Welz, 0.003 * tabella.Welz);
    EXPECT_NEAR(s.Wplz, tabella.Wplz, 0.003 * tabella.Wplz);
    EXPECT_NEAR(s.iY, tabella.iY, 0.003 * tabella.iY);
    EXPECT_NEAR(s.iZ, tabella.iZ, 0.004 * tabella.iZ);
    EXPECT_NEAR(s.JT, tabella.JT, 0.01 * tabella.JT);
    EXPECT_NEAR(s.g, 22.4, 0.1);
    EXPECT_NEAR(s.xG, 0, 1e-6);
    EXPECT_NEAR(s.yG, 100, 1e-4);
    EXPECT_NEAR(s.MplyRd, s.Wply * 235 / 1.05, 1e-7 * s.MplyRd);
    EXPECT_EQ(s.McyRd, s.MplyRd);
    EXPECT_FALSE(s.Saldata);
    EXPECT_EQ(s.SezioneGenericaCorrente->Poligono->nVertici(), 44);
}

TEST_F(InizialiTest, AWeldedOneKeepsItsKind) {
    s.fy = 235;
    s.InizializzaSezioneUtente(nullptr, 500, 250, 8, 15, 5, 180, 20);
    SezioneDoppioT altra = s;
    altra.SezioneGenericaCorrente.reset();
    altra.InizializzaSezioneAcciaioCls();
    EXPECT_TRUE(altra.SaldataAsimm);
    EXPECT_EQ(altra.Area, s.Area);
    EXPECT_EQ(altra.Jw, s.Jw);
    EXPECT_EQ(altra.Wply, s.Wply);
}

} // namespace
