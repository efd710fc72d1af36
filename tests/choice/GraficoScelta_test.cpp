#include "choice/GraficoScelta.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <random>
#include <regex>
#include <tuple>

#include "choice/ConfrontoScelta.h"
#include "choice/TabellaScelta.h"
#include "drawing/Grafica.h"
#include "drawing/SuperficieRitratta.h"
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

/// One mark after the other against the definition: it holds, and no other that holds is as light or lighter
/// and utilised as much or less; of equal ones the first.
Posti PerDefinizione(const std::vector<PuntoGrafico>& marks) {
    const auto beats = [&](std::uint32_t i, std::uint32_t j) {
        const PuntoGrafico &a = marks[i], &b = marks[j];
        return a.verificato && a.g <= b.g && a.u <= b.u && (a.g < b.g || a.u < b.u || i < j);
    };
    Posti front;
    for (std::uint32_t i = 0; i < marks.size(); ++i) {
        bool beaten = !marks[i].verificato;
        for (std::uint32_t j = 0; j < marks.size(); ++j)
            beaten = beaten || (j != i && beats(j, i));
        if (!beaten)
            front.push_back(i);
    }
    std::ranges::sort(front, {}, [&](std::uint32_t i) { return marks[i].g; });
    return front;
}

TEST(GraficoSceltaTest, TheFrontIsThatOfTheDefinition) {
    std::mt19937 random(2);
    for (int run = 0; run < 3000; ++run) {
        std::vector<PuntoGrafico> marks(random() % 14);
        for (PuntoGrafico& p : marks)
            p = {double(random() % 6), double(random() % 6), 0, random() % 4 != 0, 0};
        ASSERT_EQ(FronteLeggeri(marks), PerDefinizione(marks)) << run;
    }
}

DatiGrafico Uno(double g) {
    DatiGrafico d;
    d.punti = {{g, 0.5, 0, true, 0}};
    d.fronte = {0};
    return d;
}

// An eighth of the weight, rounded up to 1, 2 or 5 of a power of ten, is the step; the axis ends at a whole
// number of them.
TEST(GraficoSceltaTest, TheAxisEndsAtAWholeStep) {
    const std::pair<double, double> ends[] = {{8, 8},       {8.1, 10},  {16, 16},          {17, 20},
                                              {23, 25},     {40, 40},   {41, 50},          {80, 80},
                                              {81, 100},    {101, 120}, {801, 1000},       {0.5, 0.5},
                                              {0.31, 0.35}, {0, 100},   {10 + 1.6e-9, 10}, {10 + 2.4e-9, 12}};
    for (const auto& [g, end] : ends)
        EXPECT_NEAR(ScalaDi(Uno(g), {0, 0, 800, 300}, 15).gMassimo, end, 1e-9) << g;
    DatiGrafico none = Uno(100); // nothing holds: as far as there are sections
    none.punti[0].verificato = false;
    none.punti.push_back({730, 2, 0, false, 1});
    none.fronte.clear();
    EXPECT_DOUBLE_EQ(ScalaDi(none, {0, 0, 800, 300}, 15).gMassimo, 800);
}

// With lines of 15: 3.4 of them for the values at the left, 0.7 above, 1.6 below, and at the right 1.6, or 1
// and the legend: its longest name at 0.62 for a letter and 1.6 for the mark. 300 have room for
// floor(300 / 17.25) = 17 names.
TEST(GraficoSceltaTest, TheFieldLeavesRoomForValuesAndLegend) {
    const auto field = [](const DatiGrafico& d) { return ScalaDi(d, {7, 9, 800, 300}, 15).campo; };
    DatiGrafico d = Uno(40);
    EXPECT_DOUBLE_EQ(field(d).sinistra, 7 + 51);
    EXPECT_DOUBLE_EQ(field(d).alto, 9 + 10.5);
    EXPECT_DOUBLE_EQ(field(d).altezza, 300 - 10.5 - 24);
    EXPECT_DOUBLE_EQ(field(d).larghezza, 800 - 51 - 24);
    d.famiglie = {""}; // takes no room
    EXPECT_DOUBLE_EQ(field(d).larghezza, 800 - 51 - 24);
    d.famiglie = {"IPE", "L Uguali"};
    EXPECT_NEAR(field(d).larghezza, 800 - 51 - 15 - (8 * 0.62 + 1.6) * 15, 1e-9);
    for (const auto& [families, columns] : {std::pair{1U, 1}, {17U, 1}, {18U, 2}, {34U, 2}, {35U, 3}}) {
        d.famiglie.assign(families, "HEA");
        EXPECT_NEAR(field(d).larghezza, 800 - 51 - 15 - columns * (3 * 0.62 + 1.6) * 15, 1e-9) << families;
    }
}

// A value of the weight has at least four lines of text, of 2 to 8 values; 2.3 lines of the height are the
// margins, and quarters want more than nine.
TEST(GraficoSceltaTest, TheStepsAreAsManyAsThereIsRoomFor) {
    const auto wide = [](double g, double width) {
        return ScalaDi(Uno(g), {0, 0, width + (3.4 + 1.6) * 15, 300}, 15).gPasso;
    };
    EXPECT_EQ(wide(101, 800), 20) << "120 by 8";
    EXPECT_EQ(wide(101, 180), 50) << "by 3";
    EXPECT_EQ(wide(101, 120), 100) << "by 2";
    EXPECT_EQ(wide(101, 30), 100) << "by 2 at least";
    EXPECT_EQ(wide(40, 300), 10) << "by 5";
    const auto high = [](double height) { return ScalaDi(Uno(40), {0, 0, 800, height}, 15).uPasso; };
    EXPECT_EQ(high(9 * 15 + 34.4), 0.5);
    EXPECT_EQ(high(9 * 15 + 34.6), 0.25);
    const auto inTens = [](double height) { return ScalaDi(Uno(40), {0, 0, 800, height}, 10).uPasso; };
    EXPECT_EQ(inTens(7 + 90 + 16), 0.5) << "nine are not more";
    EXPECT_EQ(ScalaDi(Uno(40), {0, 0, 800, 300}, 15).uMassimo, 1.5);
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

// Half a mark, 0.26 lines, and half a line: 11.4 with lines of 15.
TEST(GraficoSceltaTest, APointHasToLieBesideTheMark) {
    const DatiGrafico d = Dati();
    const ScalaGrafico s = ScalaDi(d, {0, 0, 800, 300}, 15);
    const PuntoQuadro mark = s.In(30, 0.9);
    for (const PuntoQuadro way : {PuntoQuadro{1, 0}, {-1, 0}, {0, 1}, {0, -1}, {0.6, 0.8}, {-0.6, 0.8}}) {
        EXPECT_EQ(PuntoVicino(d, s, mark + way * 11.3, 15), 1U);
        EXPECT_NE(PuntoVicino(d, s, mark + way * 11.5, 15), 1U);
    }
    EXPECT_EQ(PuntoVicino(d, s, s.In(20, 1.3), 15), 0U) << "the first of all";
}

// Marks that a pair of eyes takes for one: the one that holds is meant, wherever it stands in the list.
TEST(GraficoSceltaTest, OfMarksOnEachOtherTheOneThatHoldsIsMeant) {
    for (const bool first : {false, true})
        for (const double beside : {0.0, 1e-6, 1e-4}) {
            DatiGrafico d = Dati();
            d.punti = {{30, 0.9, 0, first, 1}, {30, 0.9, 1, !first, 2}};
            const ScalaGrafico s = ScalaDi(Dati(), {0, 0, 800, 300}, 15);
            const std::uint32_t holds = first ? 0 : 1;
            PuntoQuadro where = s.In(30, 0.9);
            d.punti[holds].g += beside / s.campo.larghezza * s.gMassimo; // so many units to the right
            EXPECT_EQ(PuntoVicino(d, s, where, 15), beside < 1e-5 ? holds : 1 - holds) << beside;
            where.x += 4;
            EXPECT_EQ(PuntoVicino(d, s, where, 15), holds);
        }
}

// Rows of a table that is sorted by weight: families come back, and two are equally light.
TEST(GraficoSceltaTest, FamiliesAreThoseOfTheCatalogueHoweverTheTableIsSorted) {
    const char* families[] = {"IPE", "IPE", "HEA", "IPE", "UPN", "HEA"};
    const double weights[] = {12, 10, 20, 10, 30, 20};
    std::vector<SagomoInGara> sagomi(6);
    std::vector<RigaScelta> righe(6);
    for (std::size_t i = 0; i < 6; ++i) {
        sagomi[i].famiglia = families[i];
        righe[i].g = weights[i];
        righe[i].massimo = i == 4 ? 1.2 : 0.5;
        righe[i].verificato = i != 4;
    }
    for (const Posti& order : {Posti{0, 1, 2, 3, 4, 5}, Posti{5, 3, 1, 4, 0, 2}}) {
        const DatiGrafico d = DatiGraficoDi(order, righe, sagomi);
        EXPECT_EQ(d.famiglie, (std::vector<std::string>{"IPE", "HEA", "UPN"}));
        ASSERT_EQ(d.punti.size(), 6U);
        for (std::uint32_t i = 0; i < 6; ++i) {
            EXPECT_EQ(d.punti[i].posto, i);
            EXPECT_EQ(d.famiglie[d.punti[i].famiglia], families[i]);
            EXPECT_EQ(d.punti[i].g, weights[i]);
            EXPECT_EQ(d.punti[i].u, righe[i].massimo);
            EXPECT_EQ(d.punti[i].verificato, i != 4);
        }
        EXPECT_EQ(d.leggeri, (Posti{1, 2})) << "of equally light ones the first; no UPN holds";
    }
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

/// Left and right end of each polygon.
std::vector<std::pair<double, double>> Poligoni(const std::string& svg) {
    std::vector<std::pair<double, double>> ends;
    const std::regex polygon("<polygon[^>]*points=\"([^\"]*)\""), point("([-0-9.]+),[-0-9.]+");
    for (std::sregex_iterator i(svg.begin(), svg.end(), polygon), end; i != end; ++i) {
        const std::string points = (*i)[1];
        std::vector<double> x;
        for (std::sregex_iterator p(points.begin(), points.end(), point); p != end; ++p)
            x.push_back(std::stod((*p)[1]));
        const auto [least, greatest] = std::ranges::minmax(x);
        ends.emplace_back(least, greatest);
    }
    return ends;
}

// Of 400 sections that lie on each other there is a mark at each quarter of its width.
TEST(GraficoSceltaTest, MarksThatLieOnEachOtherAreDrawnOnce) {
    DatiGrafico d = Uno(30);
    for (std::uint32_t i = 1; i <= 400; ++i)
        d.punti.push_back({30 + i / 40.0, 0.5, 0, true, i});
    const auto marks = Poligoni(Svg(DisegnoGrafico(std::make_shared<DatiGrafico>(d))));
    ASSERT_GT(marks.size(), 2U);
    const double quarter = (marks.front().second - marks.front().first) / 4;
    const double whole = marks.back().first - marks.front().first;
    EXPECT_NEAR(static_cast<double>(marks.size()), whole / quarter + 1, 3) << quarter;
}

// Five inks in turn: blue, green, red, magenta and cyan of the table, for the marks and for the legend.
TEST(GraficoSceltaTest, EachFamilyHasItsInk) {
    DatiGrafico d;
    std::vector<std::string> expected;
    for (std::uint16_t f = 0; f < 12; ++f) {
        d.famiglie.push_back("F" + std::to_string(f));
        d.punti.push_back({20.0 + 5 * f, 0.8, f, true, f});
        constexpr std::int16_t inks[] = {9, 2, 4, 5, 3};
        const ColoreRgb c = ColoreTabella(inks[f % 5]);
        char text[8];
        std::snprintf(text, sizeof text, "#%02x%02x%02x", unsigned(c.rosso), unsigned(c.verde),
                      unsigned(c.blu));
        expected.emplace_back(text);
    }
    const std::string svg = Svg(DisegnoGrafico(std::make_shared<DatiGrafico>(d)));
    std::vector<std::string> fills;
    const std::regex polygon("<polygon[^>]*fill=\"(#[0-9a-f]{6})\"");
    for (std::sregex_iterator i(svg.begin(), svg.end(), polygon), end; i != end; ++i)
        fills.push_back((*i)[1]);
    ASSERT_EQ(fills.size(), 24U) << svg;
    EXPECT_TRUE(std::equal(expected.begin(), expected.end(), fills.begin())) << "marks: " << svg;
    EXPECT_TRUE(std::equal(expected.begin(), expected.end(), fills.begin() + 12)) << "legend";
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

// On a narrow sheet the step may be no part of the end: 0 and 50 of 80, 0 and 20 of 30.
TEST(GraficoSceltaTest, NoValueStandsBeyondTheEndOfItsAxis) {
    for (const auto& [g, last, beyond] : {std::tuple{80, ">50<", ">100<"}, {30, ">20<", ">40<"}}) {
        const auto d = std::make_shared<DatiGrafico>(Uno(g));
        const std::string narrow = prove::InSvg(DisegnoGrafico(d), 170, 200, "FrmScelta");
        EXPECT_NE(narrow.find(last), std::string::npos) << narrow;
        EXPECT_EQ(narrow.find(beyond), std::string::npos) << narrow;
        const std::string wide = prove::InSvg(DisegnoGrafico(d), 900, 200, "FrmScelta");
        EXPECT_NE(wide.find('>' + std::to_string(g) + '<'), std::string::npos) << "the end itself: " << wide;
    }
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

// A share of nothing is not told; a utilisation is a share itself; a class is neither.
TEST(ConfrontoSceltaTest, ADifferenceHasItsSignAndItsShare) {
    std::vector<Confrontato> rows(3);
    for (Confrontato& r : rows)
        r.esito.sezione = r.sagomo.sezione = SezioneDoppioT();
    rows[0].esito.riga = {.g = 40, .h = 0, .b = 100, .A = 5000, .classe = 2, .massimo = 0.8};
    rows[1].esito.riga = {.g = 50, .h = 200, .b = 100, .A = 4500, .classe = 4, .massimo = 1.25};
    rows[2].esito.riga = {.g = 30, .h = 300, .b = 99, .A = 5000, .classe = 1, .massimo = 0.3};
    const auto lines = LineeConfronto(rows);
    ASSERT_EQ(lines.size(), ColonneScelta().size() - 1);
    const auto differences = [&](std::string_view name) {
        return std::ranges::find(lines, name, &LineaConfronto::voce)->differenze;
    };
    using Testi = std::vector<std::string>;
    EXPECT_EQ(differences("g (kg/m)"),
              (Testi{"", "+" + Formato("0.0", 10) + " (+25 %)", Formato("0.0", -10) + " (-25 %)"}));
    EXPECT_EQ(differences("h (mm)"), (Testi{"", "+200", "+300"}));
    EXPECT_EQ(differences("b (mm)"), (Testi{"", "0 (0 %)", "-1 (-1 %)"}));
    EXPECT_EQ(differences("A (cm2)"),
              (Testi{"", Formato("0.0", -5) + " (-10 %)", Formato("0.0", 0) + " (0 %)"}));
    EXPECT_EQ(differences("cl."), (Testi{"", "+2", "-1"}));
    EXPECT_EQ(differences("utilizzo"), (Testi{"", "+45 %", "-50 %"}));
    EXPECT_EQ(differences("Mb,Rd (kNm)"), (Testi{"", "", ""})) << "no numbers";
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
