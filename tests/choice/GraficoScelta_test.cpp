#include "choice/GraficoScelta.h"

#include <gtest/gtest.h>

#include "choice/ConfrontoScelta.h"
#include "drawing/Grafica.h"
#include "drawing/SuperficieSvg.h"
#include "frame/GeneraleSagomi.h"
#include "frame/Numeri.h"

using namespace sagomi;

namespace {

using Posti = std::vector<std::uint32_t>;

DatiGrafico Dati() {
    DatiGrafico d;
    d.famiglie = {"IPE", "HEA"};
    d.punti = {{20, 1.3, 0, false, 7},
               {30, 0.9, 0, true, 8},
               {40, 0.95, 1, true, 9},
               {50, 0.6, 1, true, 10},
               {900, 0.1, 1, true, 11}};
    d.fronte = FronteLeggeri(d.punti);
    d.leggeri = {1, 2};
    return d;
}

TEST(GraficoSceltaTest, TheFrontHasThoseThatNoLighterOneBeats) {
    EXPECT_EQ(Dati().fronte, (Posti{1, 3, 4})) << "40 kg/m at 95 % is beaten by 30 at 90 %";
    EXPECT_TRUE(FronteLeggeri({}).empty());
    const PuntoGrafico same[] = {{30, 0.8, 0, true, 0}, {30, 0.7, 0, true, 1}};
    EXPECT_EQ(FronteLeggeri(same), (Posti{1}));
}

// The lightest that holds weighs 30: the axis goes to 120, in steps of 20 or more.
TEST(GraficoSceltaTest, TheAxisEndsAtFourTimesTheLightest) {
    const ScalaGrafico s = ScalaDi(Dati(), {0, 0, 800, 300}, 15);
    EXPECT_DOUBLE_EQ(s.gMassimo, 120);
    EXPECT_FALSE(s.Dentro(Dati().punti[4]));
    EXPECT_NEAR(s.In(0, 0).x, s.campo.sinistra, 1e-9);
    EXPECT_NEAR(s.In(120, 1.5).x, s.campo.Destra(), 1e-9);
    EXPECT_NEAR(s.In(120, 1.5).y, s.campo.alto, 1e-9);
    EXPECT_GT(ScalaDi({}, {0, 0, 800, 300}, 15).gMassimo, 0) << "axes without data";
}

TEST(GraficoSceltaTest, APointFindsTheMarkThatLiesNearest) {
    const DatiGrafico d = Dati();
    const ScalaGrafico s = ScalaDi(d, {0, 0, 800, 300}, 15);
    const PuntoQuadro mark = s.In(30, 0.9);
    EXPECT_EQ(PuntoVicino(d, s, mark + PuntoQuadro{2, 2}, 15), 1U);
    EXPECT_FALSE(PuntoVicino(d, s, mark + PuntoQuadro{25, 0}, 15));
    EXPECT_FALSE(PuntoVicino(d, s, s.In(900, 0.1), 15)) << "a mark that is not drawn";
}

TEST(GraficoSceltaTest, RowsWithoutAVerdictHaveNoMark) {
    std::vector<SagomoInGara> sagomi(3);
    sagomi[0].famiglia = sagomi[2].famiglia = "IPE";
    sagomi[1].famiglia = "UPN";
    std::vector<RigaScelta> righe(3);
    righe[0].massimo = 0.5;
    righe[0].g = 10;
    righe[0].verificato = true;
    righe[2].massimo = 2;
    righe[2].g = 5;
    const DatiGrafico d = DatiGraficoDi(Posti{2, 1, 0}, righe, sagomi);
    ASSERT_EQ(d.punti.size(), 2U);
    EXPECT_EQ(d.famiglie, (std::vector<std::string>{"IPE"}));
    ASSERT_EQ(d.leggeri.size(), 1U);
    EXPECT_EQ(d.punti[d.leggeri[0]].posto, 0U);
}

TEST(GraficoSceltaTest, WhereNothingActsTheAxesSayWhatIsMissing) {
    std::vector<SagomoInGara> sagomi(1);
    std::vector<RigaScelta> righe(1);
    righe[0].verificato = true;
    const DatiGrafico d = DatiGraficoDi(Posti{0}, righe, sagomi);
    EXPECT_TRUE(d.punti.empty());
    EXPECT_FALSE(d.avviso.empty());
    righe[0].massimo = 0.5;
    EXPECT_TRUE(DatiGraficoDi(Posti{0}, righe, sagomi).avviso.empty());
    righe[0].massimo = RigaScelta::nessuno;
    righe[0].verificato = false; // a moment that nothing checks
    EXPECT_TRUE(DatiGraficoDi(Posti{0}, righe, sagomi).avviso.empty());
}

std::string Svg(const Disegno& drawing) {
    const StatoUscita back;
    SuperficieSvg surface;
    Dispositivo = dispositivoSvg;
    OggettoGrafico = &surface;
    drawing.PlottaInOggetto(&surface, "FrmScelta");
    return surface.Documento();
}

TEST(GraficoSceltaTest, ItIsDrawnWithNamesAndTheLimit) {
    DatiGrafico d = Dati();
    d.scelto = 1;
    d.nomeScelto = "IPE 240";
    const std::string svg = Svg(DisegnoGrafico(std::make_shared<DatiGrafico>(d)));
    for (const char* text : {"IPE 240", "HEA", "100 %", "g [kg/m]", "1 sagomo fuori dal grafico"})
        EXPECT_NE(svg.find(text), std::string::npos) << text;
    EXPECT_FALSE(Svg(DisegnoGrafico(std::make_shared<DatiGrafico>())).empty());
}

// 900 kg/m lies beyond the axis of 120, 300 % beyond that of 150.
TEST(GraficoSceltaTest, ARowInHandOutsideOfTheAxesIsShownAtTheirEdge) {
    DatiGrafico d = Dati();
    d.punti.push_back({25, 3, 0, false, 12});
    const std::string without = Svg(DisegnoGrafico(std::make_shared<DatiGrafico>(d)));
    d.nomeScelto = "IN MANO";
    for (const std::uint32_t outside : {4U, 5U}) {
        d.scelto = outside;
        const std::string svg = Svg(DisegnoGrafico(std::make_shared<DatiGrafico>(d)));
        EXPECT_NE(svg.find("IN MANO"), std::string::npos) << outside;
        EXPECT_GT(svg.size(), without.size()) << "ring, arrow and name";
    }
}

// IPE 300: 150 x 300, 42.2 kg/m; HEA 200: 200 x 190, 42.3 kg/m.
TEST(ConfrontoSceltaTest, ValuesAndDifferencesFromTheFirst) {
    RipristinaGenerale();
    ImpostaGamma();
    Richiesta r;
    r.TipoAcciaio = "S235 (Fe360)";
    r.fy = 235;
    r.fu = 360;
    r.y.M1 = 30e6;
    r.L0y = r.L0z = 3000;
    std::vector<Confrontato> rows;
    std::vector<std::string> messages;
    for (const char* name : {"IPE 300", "HEA 200"})
        for (const SagomoInGara& s : LeggeGara(SAGOMI_BIN, {"IPE", "HEA"}).sagomi)
            if (s.Designazione() == name)
                rows.push_back({s, Verifica(s, r, messages)});
    ASSERT_EQ(rows.size(), 2U);
    const auto lines = LineeConfronto(rows);
    const auto line = [&](const char* name) {
        for (const LineaConfronto& l : lines)
            if (l.voce == name)
                return l;
        return LineaConfronto();
    };
    EXPECT_EQ(line("h (mm)").valori, (std::vector<std::string>{"300", "190"}));
    EXPECT_EQ(line("h (mm)").differenze, (std::vector<std::string>{"", "-110 (-37 %)"}));
    EXPECT_EQ(line("b (mm)").differenze[1], "+50 (+33 %)");
    EXPECT_EQ(line("famiglia").valori, (std::vector<std::string>{"IPE", "HEA"}));
    EXPECT_EQ(line("famiglia").differenze[1], "");
    const std::string svg = Svg(DisegnoConfronto(rows));
    for (const char* text : {"IPE 300", "HEA 200", "150 x 300", "200 x 190"})
        EXPECT_NE(svg.find(text), std::string::npos) << text;
    EXPECT_FALSE(DisegnoConfronto({}).PlottaInOggetto);
}

} // namespace
