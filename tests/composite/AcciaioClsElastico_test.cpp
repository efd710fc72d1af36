// Elastic check of composite beams. Expected values by hand: rectangles of steel 300x150x7x11 and slab.

#include <cmath>

#include "TraveDiProva.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

constexpr double A = 5246; // 2·150·11 + 278·7
const double I = 2 * (150 * 11.0 * 11 * 11 / 12 + 1650 * 144.5 * 144.5) + 7 * 278.0 * 278 * 278 / 12;

class ElasticoTest : public AmbienteTrave {
protected:
    ElasticoTest() { InUso(235, 300, 150, 7, 11); }

    static AcciaioCls Trave(double beff, double hc, double As, std::int16_t verifica, double c = 30) {
        AcciaioCls t;
        t.hc = hc;
        t.c = c;
        t.beff = beff;
        t.As = As;
        t.TipoVerifica = verifica;
        t.Msd = verifica == metodoNPositivo ? 100e6 : -100e6;
        EXPECT_TRUE(t.InizializzaAcciaioCls());
        return t;
    }
    static void Vicino(double valore, double atteso) {
        EXPECT_NEAR(valore, atteso, 2e-5 * std::abs(atteso) + 1e-6);
    }
};

// 400·60/15 = 1600 mm2 at 330.
TEST_F(ElasticoTest, AxisInTheSteel) {
    AcciaioCls t = Trave(400, 60, 0, metodoNPositivo);
    t.SigmaCalcola();
    const double y = (A * 150 + 1600 * 330) / (A + 1600);
    const double J =
        I + A * (y - 150) * (y - 150) + (400 * 60.0 * 60 * 60 / 12 + 24000 * (330 - y) * (330 - y)) / 15;
    Vicino(t.yNeutro, y);
    Vicino(t.Jid, J);
    Vicino(t.SigmaCls, -100e6 * (360 - y) / J / 15);
    Vicino(t.SigmaInf, 100e6 * y / J);
    Vicino(t.SigmaSup, -100e6 * (300 - y) / J);
    Vicino(t.SigmaArm, -100e6 * (330 - y) / J);
    Vicino(t.Ss, 1600 * (330 - y));
    Vicino(t.Vl, 1600 * (330 - y) * 100e6 / J);
    EXPECT_EQ(t.ClsCompresso, t.Soletta);
    EXPECT_EQ(t.ClsTeso, nullptr);
    EXPECT_NEAR(t.yNeutroDaSopra(), 360 - y, 1e-2);
}

// b/n = 200; 100 x^2 = 5246 (270 - x) gives x = 95.64 from the top.
TEST_F(ElasticoTest, AxisInTheSlab) {
    CoeffOmogeneizzazione = 7.5;
    AcciaioCls t = Trave(1500, 120, 0, metodoNPositivo);
    t.SigmaCalcola();
    const double x = (-A + std::sqrt(A * A + 4 * 100 * A * 270)) / 200;
    const double J = I + A * (270 - x) * (270 - x) + 200 * x * x * x / 3;
    EXPECT_NEAR(t.yNeutroDaSopra(), x, 2e-3);
    Vicino(t.Jid, J);
    Vicino(t.SigmaCls, -100e6 * x / J / 7.5);
    EXPECT_NEAR(t.Ss, 100 * x * x, 20);
    EXPECT_NEAR(t.ClsTeso->Area, 1500 * (120 - x), 3);
    EXPECT_NEAR(t.AcciaioTeso->Area, A, 1e-6);
    EXPECT_EQ(t.AcciaioCompresso, nullptr);
}

// Steel and 1000 mm2 of bars at 390; the slab, all above the axis, does not react.
TEST_F(ElasticoTest, Hogging) {
    AcciaioCls t = Trave(1500, 120, 1000, metodoNNegativo);
    t.SigmaCalcola();
    const double y = (A * 150 + 390000) / (A + 1000);
    const double J = I + A * (y - 150) * (y - 150) + 1000 * (390 - y) * (390 - y);
    Vicino(t.yNeutro, y);
    Vicino(t.Jid, J);
    Vicino(t.SigmaArm, 100e6 * (390 - y) / J);
    Vicino(t.SigmaSup, 100e6 * (300 - y) / J);
    Vicino(t.SigmaInf, -100e6 * y / J);
    Vicino(t.SigmaCls, 100e6 * (420 - y) / J / 15);
    Vicino(t.Ss, 1000 * (390 - y));
    Vicino(t.Vl, -1000 * (390 - y) * 100e6 / J); // the sign is that of the moment
    EXPECT_EQ(t.ClsCompresso, nullptr);
    EXPECT_EQ(t.ClsTeso, t.Soletta);
    EXPECT_GT(t.AcciaioTeso->Area, 0);
}

// Many bars above pull the axis into the slab, whose lower part is compressed.
TEST_F(ElasticoTest, HoggingWithTheAxisInTheSlab) {
    AcciaioCls t = Trave(1500, 120, 20000, metodoNNegativo);
    t.SigmaCalcola();
    // 100 mm of slab width in steel: 5246·(y - 150) + 50 (y - 300)^2 = 20000·(390 - y)
    const double b = A + 20000 - 100 * 300.0;
    const double k = -A * 150 - 20000 * 390.0 + 50 * 300.0 * 300;
    const double y = (-b + std::sqrt(b * b - 4 * 50 * k)) / 100;
    ASSERT_GT(y, 300);
    EXPECT_NEAR(t.yNeutro, y, 2e-3);
    EXPECT_NEAR(t.ClsCompresso->Area, 1500 * (y - 300), 3);
    // Slab under the axis and bars above it have moments of either sign.
    EXPECT_NEAR(t.Ss, std::abs(-50 * (y - 300) * (y - 300) + 20000 * (390 - y)), 60);
}

// Of a slab below the top, in hogging, z goes to the slab's lower side: y from 220.
TEST_F(ElasticoTest, SlabBelowTheTop) {
    AcciaioCls t = Trave(100, -80, 500, metodoNNegativo, -50); // bars at 270
    t.SigmaCalcola();
    const double y = (A * 150 + 500 * 270) / (A + 500);
    const double J = I + A * (y - 150) * (y - 150) + 500 * (270 - y) * (270 - y);
    Vicino(t.yNeutro, y);
    Vicino(t.SigmaCls, 100e6 * (220 - y) / J / 15);
    t.TipoVerifica = metodoNPositivo;
    t.Msd = 100e6;
    t.SigmaCalcola();
    EXPECT_GT(t.Jid, J);
    Vicino(t.SigmaCls, -100e6 * (300 - t.yNeutro) / t.Jid / 15); // the top of the steel is the top
}

// The bracket ends at H + hc = 220: a strong slab would have its axis above. The message shows and the level
// is 0.
TEST_F(ElasticoTest, AxisBeyondTheBracket) {
    AcciaioCls t = Trave(3000, -80, 0, metodoNPositivo);
    t.SigmaCalcola();
    EXPECT_EQ(registratore.testi,
              std::vector<std::string>{"ERRORE! La funzione non cambia segno fra x1 e x2"});
    EXPECT_EQ(t.yNeutro, 0);
    EXPECT_GT(t.Jid, 0);      // the calculation goes on
    EXPECT_EQ(t.SigmaInf, 0); // with that level
}

TEST_F(ElasticoTest, RatioNotAboveZeroEnds) {
    for (const double n : {0.0, -1.0}) {
        CoeffOmogeneizzazione = n;
        AcciaioCls t = Trave(1500, 120, 0, metodoNPositivo);
        registratore.testi.clear();
        t.SigmaCalcola();
        EXPECT_EQ(registratore.testi, std::vector<std::string>{"Es/Ec deve essere >0"});
        EXPECT_EQ(registratore.messaggi.back().icona, Icona::Stop);
        EXPECT_EQ(t.yNeutro, 0);
        EXPECT_EQ(t.Jid, 0);
    }
}

TEST_F(ElasticoTest, EquationAtTheSidesOfTheSlab) {
    AcciaioCls t = Trave(1500, 120, 0, metodoNPositivo);
    const double intera = 1500 * 120 / 15.0;
    Vicino(t.EquazioneElastica(200), A * (150 - 200) + intera * (360 - 200));
    Vicino(t.EquazioneElastica(420),
           A * (150 - 420) + intera * (360 - 420)); // the whole counts above it, too
    t.TipoVerifica = metodoNNegativo;
    Vicino(t.EquazioneElastica(200), A * (150 - 200));
    Vicino(t.EquazioneElastica(420), A * (150 - 420));
    Vicino(t.EquazioneElastica(360), A * (150 - 360) + 100 * 60 * -30.0); // its lower half
}

TEST_F(ElasticoTest, ColourOfAStress) {
    EXPECT_EQ(AcciaioCls::ColoreSigma(0.1), 9);
    EXPECT_EQ(AcciaioCls::ColoreSigma(0), 12);
    EXPECT_EQ(AcciaioCls::ColoreSigma(-1), 12);
}

} // namespace
