// Plastic resistance of composite beams. Expected values by hand: rectangles of steel 300x150x7x11 and slab.

#include <cmath>

#include "TraveDiProva.h"
#include "sections/SezioneGenerica.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

constexpr double A = 5246;            // 2·150·11 + 278·7
constexpr double Wpl = 612097;        // 150·11·289 + 7·278^2/4
constexpr double largoQuota = 2.5e-4; // the search stops within a ten thousandth of an area

class PlasticoTest : public AmbienteTrave {
protected:
    /// fy 360, fsd 360 and fcd 17 are numbers without a rest.
    PlasticoTest() {
        InUso(360, 300, 150, 7, 11);
        fck = 30;
        fsk = 414;
    }

    static AcciaioCls Trave(double beff, double hc, double As, std::int16_t verifica = sluPositivo) {
        AcciaioCls t;
        t.hc = hc;
        t.c = 30;
        t.beff = beff;
        t.As = As;
        t.TipoVerifica = verifica;
        EXPECT_TRUE(t.InizializzaAcciaioCls());
        return t;
    }

    static void Vicino(double valore, double atteso) {
        EXPECT_NEAR(valore, atteso, largoQuota * std::abs(atteso));
    }
    static double AreaDi(const std::shared_ptr<Poligono>& p) { return p ? p->Area : 0; }
};

// Compressed depth x = Fa/(fcd beff); lever arm from the steel's centroid to the middle of it.
TEST_F(PlasticoTest, AxisInTheSlab) {
    AcciaioCls t = Trave(1500, 120, 0);
    t.MplRdPositivo();
    const double Fa = 360 * A;
    const double x = Fa / (17 * 1500);
    Vicino(t.MplRd, Fa * (150 + 120 - x / 2));
    Vicino(t.yNeutro, 420 - x);
    EXPECT_NEAR(t.yNeutroDaSopra(), x, 0.05);
    EXPECT_EQ(t.Vl, Singolo(Fa));
    EXPECT_EQ(t.AcciaioTeso, t.Sezione->SezioneGenericaCorrente->Poligono);
    EXPECT_EQ(t.AcciaioCompresso, nullptr);
    Vicino(t.ClsCompresso->Area, x * 1500);
    EXPECT_NEAR(t.ClsCompresso->Area + t.ClsTeso->Area, 1500 * 120, 1e-3);
    EXPECT_TRUE(registratore.testi.empty());
}

// Slab 400·60 and 500 mm2 of bars: Ftot = 408000 + 180000; the steel compresses (Fa - Ftot)/2/360 = 1806.3
// mm2: the flange of 1650 and 22.33 of the web.
TEST_F(PlasticoTest, AxisInTheSteel) {
    AcciaioCls t = Trave(400, 60, 500);
    t.MplRdPositivo();
    const double Fc = 17.0 * 400 * 60;
    const double Fs = 360.0 * 500;
    const double compressa = (360 * A - Fc - Fs) / 2 / 360;
    const double web = (compressa - 1650) / 7;
    const double Sc = 1650 * 294.5 + 7 * web * (289 - web / 2);
    Vicino(t.MplRd, 330 * Fs + Fc * 330 - 360 * (A * 150 - 2 * Sc));
    Vicino(t.yNeutro, 289 - web);
    Vicino(t.Vl, Fc + Fs);
    EXPECT_EQ(t.ClsCompresso, t.Soletta);
    EXPECT_EQ(t.ClsTeso, nullptr);
    Vicino(t.AcciaioCompresso->Area, compressa);
}

TEST_F(PlasticoTest, MoreBarsThanSteelIsAbsurd) {
    AcciaioCls t = Trave(1500, 120, 5247);
    t.MplRdPositivo();
    EXPECT_EQ(
        registratore.testi,
        std::vector<std::string>{"Resistenza barre > resistenza putrella !! Dati assurdi\n"
                                 "Il momento resistente di progetto è calcolato moltiplicando la resistenza\n"
                                 "a trazione della trave per la distanza fra baricentro-trave e armatura"});
    EXPECT_EQ(registratore.messaggi[0].icona, Icona::Avviso);
    EXPECT_NEAR(t.MplRd, (390 - 150) * 360 * A, 100);
    EXPECT_EQ(t.yNeutro, 300);
    EXPECT_EQ(t.Vl, 0);
    EXPECT_EQ(t.ClsCompresso, nullptr);
    EXPECT_EQ(t.AcciaioTeso, nullptr);
}

// Equal is not above: the axis lies in the slab, whose compressed part is nothing.
TEST_F(PlasticoTest, BarsEqualToTheSteelAreNotAbsurd) {
    AcciaioCls t = Trave(1500, 120, A);
    t.MplRdPositivo();
    EXPECT_TRUE(registratore.testi.empty());
    EXPECT_NEAR(t.MplRd, (390 - 150) * 360 * A, 100);
    EXPECT_EQ(t.yNeutro, 420);
    EXPECT_EQ(t.ClsCompresso, nullptr);
    EXPECT_EQ(t.ClsTeso, t.Soletta);
    EXPECT_EQ(t.Vl, Singolo(360 * A));
}

// 17·600·120 + 360·1846 = 360·5246: the axis is taken in the slab, at its lower side.
TEST_F(PlasticoTest, BarsAndSlabEqualToTheSteel) {
    AcciaioCls t = Trave(600, 120, 1846);
    t.MplRdPositivo();
    EXPECT_EQ(t.yNeutro, 300);
    EXPECT_EQ(t.ClsCompresso, t.Soletta);
    EXPECT_EQ(t.AcciaioTeso, t.Sezione->SezioneGenericaCorrente->Poligono);
    EXPECT_EQ(t.AcciaioCompresso, nullptr);
    EXPECT_EQ(t.Vl, Singolo(360 * A));
    Vicino(t.MplRd, -360 * A * 150 + 390 * 360.0 * 1846 + 17 * 72000.0 * 360);
}

TEST_F(PlasticoTest, HoggingWithoutBarsLeavesTheSteel) {
    AcciaioCls t = Trave(1500, 120, 0, sluNegativo);
    t.MplRdNegativo();
    EXPECT_EQ(t.Vl, 0);
    Vicino(t.MplRd, -360 * Wpl);
    EXPECT_NEAR(t.yNeutro, 150, 0.1);
    EXPECT_EQ(t.ClsCompresso, nullptr);
    EXPECT_EQ(t.ClsTeso, nullptr);
}

// 1000 mm2 in tension move the axis up: tension in the steel of (5246 - 1000)/2 = 2123: the flange and 473/7
// of the web.
TEST_F(PlasticoTest, HoggingWithBarsInTension) {
    AcciaioCls t = Trave(1500, 120, 1000, sluNegativo);
    t.MplRdNegativo();
    const double web = 473.0 / 7;
    const double St = 1650 * 294.5 + 473 * (289 - web / 2);
    Vicino(t.MplRd, 360 * (A * 150 - 2 * St) - 390 * 360000.0);
    Vicino(t.yNeutro, 289 - web);
    EXPECT_EQ(t.Vl, 360000);
    Vicino(AreaDi(t.AcciaioTeso), 2123);
    Vicino(AreaDi(t.AcciaioCompresso), A - 2123);
}

// Bars stronger than the steel compress the slab from below: (Fs - Fa)/17/600. The moment stands as the
// formula has it, with the concrete against the steel.
TEST_F(PlasticoTest, HoggingWithTheAxisInTheSlab) {
    AcciaioCls t = Trave(600, 120, 6000, sluNegativo);
    t.MplRdNegativo();
    const double Fs = 360.0 * 6000;
    const double Fc = Fs - 360 * A;
    const double x = Fc / 17 / 600;
    Vicino(t.MplRd, 360 * A * 150 - 390 * Fs - Fc * (300 + x / 2));
    Vicino(t.yNeutro, 300 + x);
    EXPECT_NEAR(t.Vl, 360 * A, 17 * 72000 * 1e-4 + 1); // Fs less the concrete is the steel
    EXPECT_EQ(t.AcciaioCompresso, t.Sezione->SezioneGenericaCorrente->Poligono);
    EXPECT_EQ(t.AcciaioTeso, nullptr);
}

// Below the bars 600·90 of concrete: the bars count with 17·54000 + Fa at most.
TEST_F(PlasticoTest, HoggingCapsTheBars) {
    AcciaioCls t = Trave(600, 120, 10000, sluNegativo);
    t.MplRdNegativo();
    const double Fc = 17 * 54000;
    const double Fs = Fc + 360 * A;
    Vicino(t.MplRd, 360 * A * 150 - 390 * Fs - Fc * 345);
    EXPECT_NEAR(t.yNeutro, 390, 0.02);
    EXPECT_NEAR(t.Vl, 360 * A, 17 * 72000 * 1e-4 + 1);
    Vicino(t.ClsCompresso->Area, 54000);
}

TEST_F(PlasticoTest, HoggingWithEqualForces) {
    AcciaioCls t = Trave(600, 120, A, sluNegativo);
    t.MplRdNegativo();
    EXPECT_EQ(t.yNeutro, 300);
    EXPECT_EQ(t.ClsCompresso, nullptr);
    EXPECT_EQ(t.ClsTeso, t.Soletta);
    EXPECT_NEAR(t.MplRd, -240 * 360 * A, 100);
    EXPECT_EQ(t.Vl, Singolo(360 * A));
}

// d = 0.3: from -fsd below 189.7 to +fsd above 190.3.
TEST_F(PlasticoTest, ForceOfTheBars) {
    AcciaioCls t = Trave(500, -80, 100);
    EXPECT_EQ(t.yArmatura, 190);
    EXPECT_EQ(t.ForzaArmatura(100), -36000);
    EXPECT_EQ(t.ForzaArmatura(250), 36000);
    EXPECT_NEAR(t.ForzaArmatura(190), 0, 1e-9);
    EXPECT_NEAR(t.ForzaArmatura(190.15), 18000, 1e-6);
    EXPECT_NEAR(t.ForzaArmatura(189.85), -18000, 1e-6);
    EXPECT_NEAR(t.ForzaArmatura(190 + 0.3), 36000, 1e-6);
    t.TipoVerifica = sluNegativo;
    EXPECT_EQ(t.ForzaArmatura(100), 36000);
    EXPECT_EQ(t.ForzaArmatura(250), -36000);
}

// Slab 500·80 from 220 to 300, no bars. Sagging: 17·500·(300 - y) + 360·(area above - area below) = 0 in the
// upper part of the web.
TEST_F(PlasticoTest, SlabBelowTheTop) {
    AcciaioCls t = Trave(500, -80, 0);
    t.MplRdPositivo(); // goes to the slab below by itself
    // With y in the web between 220 and 289: 8500·(300 - y) + 360·(1650·2 + 14·(289 - y) - 5246) = 0
    const double y = (8500 * 300 + 360 * (3300 + 14 * 289 - A)) / (8500 + 360 * 14);
    ASSERT_GT(y, 220);
    EXPECT_NEAR(t.yNeutro, y, 0.01);
    const double cls = 500 * (300 - y);
    const double sopra = 1650 + 7 * (289 - y);
    const double Ssopra = 1650 * 294.5 + 7 * (289 - y) * (289 + y) / 2;
    EXPECT_NEAR(t.MplRd, 17 * cls * (300 + y) / 2 - 360 * (A * 150 - 2 * Ssopra), 1e5);
    EXPECT_NEAR(t.Vl, 17 * cls, 60);
    EXPECT_NEAR(t.AcciaioCompresso->Area, sopra, 0.2);
    EXPECT_NEAR(t.ClsCompresso->Area, cls, 5);
    EXPECT_NEAR(t.yNeutroDaSopra(), 300 - y, 0.01);
}

TEST_F(PlasticoTest, SlabBelowTheTopInHogging) {
    AcciaioCls t = Trave(500, -80, 0, sluNegativo);
    t.MplRdNegativo();
    // Compressed below: the slab is out of the way where the axis lies under it. Steel alone: the axis at
    // 150.
    EXPECT_NEAR(t.yNeutro, 150, 0.02);
    Vicino(t.MplRd, -360 * Wpl);
    EXPECT_EQ(t.ClsCompresso, nullptr);
    EXPECT_EQ(t.Vl, 0);
}

TEST_F(PlasticoTest, ResidualByKindOfCheck) {
    AcciaioCls t = Trave(500, -80, 100);
    EXPECT_EQ(t.yEquazione(120), t.EquazionePlastica(120));
    t.TipoVerifica = metodoNPositivo;
    EXPECT_EQ(t.yEquazione(120), t.EquazioneElastica(120));
    AcciaioCls u = Trave(500, 80, 100);
    EXPECT_EQ(u.yEquazione(120), u.EquazioneElastica(120));
    AcciaioCls v = Trave(500, 0.5, 100);
    EXPECT_EQ(v.yEquazione(120), v.EquazioneElastica(120));
    // All of the section below the level: bars and steel, nothing compressed.
    EXPECT_NEAR(t.EquazionePlastica(300), 0, 1e9);
    t.TipoVerifica = sluPositivo;
    EXPECT_NEAR(t.EquazionePlastica(300), 36000 - 360 * A, 1e-3);
    EXPECT_EQ(t.ClsCompresso, nullptr);
}

} // namespace
