#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "Casi.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

std::vector<CasoPoligono> TuttiICasi() {
    std::vector<CasoPoligono> casi;
    for (const char* file : {"a_mano.txt", "convessi.txt", "concavi.txt", "stellati.txt", "profili.txt",
                             "doppi.txt", "degeneri.txt"})
        for (CasoPoligono& c : LeggeCasiPoligono(file))
            casi.push_back(std::move(c));
    return casi;
}

double Valore(const Poligono& p, const std::string& nome) {
    const std::map<std::string, double> valori = {{"Area", p.Area},   {"xG", p.xG},
                                                  {"yG", p.yG},       {"Sx", p.Sx},
                                                  {"Sy", p.Sy},       {"Ix", p.Ix},
                                                  {"Iy", p.Iy},       {"Ixy", p.Ixy},
                                                  {"IxG", p.IxG},     {"IyG", p.IyG},
                                                  {"IxyG", p.IxyG},   {"I1", p.I1},
                                                  {"I2", p.I2},       {"Rho1", p.Rho1},
                                                  {"Rho2", p.Rho2},   {"WxSup", p.WxSup},
                                                  {"WxInf", p.WxInf}, {"WyDes", p.WyDes},
                                                  {"WySin", p.WySin}, {"WplX", p.WplX},
                                                  {"WplY", p.WplY},   {"Perimetro", p.Perimetro()}};
    return valori.at(nome);
}

/// What a value that may vanish is measured against: a product by the moments, a coordinate by the extent.
double Misura(const Poligono& p, const std::string& nome, double atteso) {
    const double estensione = p.nVertici() > 0 ? p.MaxDimensione() : 1;
    if (nome == "xG" || nome == "yG")
        return estensione;
    if (nome == "Sx" || nome == "Sy")
        return std::max(std::abs(atteso), p.Area * estensione);
    if (nome == "Ixy" || nome == "IxyG")
        return std::max(std::abs(atteso), p.Area * estensione * estensione);
    return std::abs(atteso);
}

class CasiTest : public testing::TestWithParam<CasoPoligono> {};

TEST_P(CasiTest, StaticValues) {
    const CasoPoligono& c = GetParam();
    Poligono p = PoligonoDelCaso(c);
    p.CaratteristicheStatiche();
    p.Wplastici();
    for (const auto& [nome, atteso] : c.attesi) {
        const double tolleranza = nome.starts_with("Wpl") ? c.tolleranzaPlastica : c.tolleranza;
        EXPECT_NEAR(Valore(p, nome), atteso, tolleranza * Misura(p, nome, atteso)) << nome;
    }
}

// Running the outline the other way round changes the flag and nothing else.
TEST_P(CasiTest, ReversedOutlineHasTheSameValues) {
    const CasoPoligono& c = GetParam();
    Poligono p = PoligonoDelCaso(c);
    Poligono q;
    q.Coordinate({c.x.rbegin(), c.x.rend()}, {c.y.rbegin(), c.y.rend()}, p.nVertici());
    for (Poligono* uno : {&p, &q}) {
        uno->AreaCalcola();
        uno->CaratteristicheStatiche();
    }
    if (p.Area == 0)
        return;
    EXPECT_NE(p.Antiorario, q.Antiorario);
    for (const char* nome :
         {"Area", "xG", "yG", "Ix", "Iy", "Ixy", "IxG", "IyG", "IxyG", "I1", "WxSup", "WySin"})
        EXPECT_NEAR(Valore(q, nome), Valore(p, nome), 1e-9 * Misura(p, nome, Valore(p, nome))) << nome;
}

// Principal moments and area belong to the shape, not to its place; what stands upright ends on its side.
TEST_P(CasiTest, TurningAndMirroringKeepPrincipalMoments) {
    Poligono p = PoligonoDelCaso(GetParam());
    p.CaratteristicheStatiche();
    if (p.Area == 0)
        return;
    const double zero = 1e-9 * p.I1;
    Poligono girato = p.Copia();
    girato.RuotaVertici(p.xG, p.yG, 0.3);
    EXPECT_NEAR(girato.I1, p.I1, zero);
    EXPECT_NEAR(girato.I2, p.I2, zero);
    EXPECT_NEAR(girato.Area, p.Area, 1e-9 * p.Area);
    Poligono specchiato = p.Copia();
    specchiato.SpecchiaXY(12.5);
    specchiato.CaratteristicheStatiche();
    EXPECT_NEAR(specchiato.IxyG, -p.IxyG, zero);
    EXPECT_NEAR(specchiato.WyDes, p.WySin, 1e-9 * std::abs(p.WySin));
    Poligono ritto = p.Copia();
    ritto.RuotaVertici(0, 0, std::numbers::pi / 2);
    EXPECT_NEAR(ritto.IxG, p.IyG, zero);
    EXPECT_NEAR(ritto.IyG, p.IxG, zero);
}

// In the frame of the principal axes the product vanishes and the moment about axis 1 is I1.
TEST_P(CasiTest, AxisOneCarriesTheGreaterMoment) {
    Poligono p = PoligonoDelCaso(GetParam());
    p.CaratteristicheStatiche();
    if (p.Area == 0)
        return;
    const double c = std::cos(p.Alfa1);
    const double s = std::sin(p.Alfa1);
    const double zero = 1e-9 * (std::abs(p.I1) + std::abs(p.I2));
    EXPECT_NEAR(p.IxG * c * c + p.IyG * s * s - 2 * p.IxyG * s * c, p.I1, zero);
    EXPECT_NEAR((p.IxG - p.IyG) * s * c + p.IxyG * (c * c - s * s), 0, zero);
    EXPECT_NEAR(std::abs(p.Alfa1 - p.Alfa2), std::numbers::pi / 2, 1e-12);
    EXPECT_GE(p.I1, p.I2);
}

INSTANTIATE_TEST_SUITE_P(Contorni, CasiTest, testing::ValuesIn(TuttiICasi()),
                         [](const auto& i) { return std::to_string(i.index) + "_" + NomeCaso(i.param); });

TEST(PoligonoStatica, PrincipalAxesOfRectangles) {
    // Upright rectangle: the greater moment is about the x axis, so axis 1 lies along x (or against it).
    Poligono alto = PoligonoDaTesto("0 0, 10 0, 10 40, 0 40");
    alto.CaratteristicheStatiche();
    EXPECT_NEAR(std::sin(alto.Alfa1), 0, 1e-12);
    Poligono largo = PoligonoDaTesto("0 0, 40 0, 40 10, 0 10");
    largo.CaratteristicheStatiche();
    EXPECT_NEAR(std::cos(largo.Alfa1), 0, 1e-12);
    EXPECT_NEAR(std::sin(largo.Alfa2), 0, 1e-12);
    // A square has no principal direction of its own: Angolo(0, 0) is pi/2, halved and reversed.
    Poligono quadro = PoligonoDaTesto("0 0, 8 0, 8 8, 0 8");
    quadro.CaratteristicheStatiche();
    EXPECT_NEAR(quadro.Alfa1, -std::numbers::pi / 4, 1e-12);
    EXPECT_NEAR(quadro.Alfa2, std::numbers::pi / 4, 1e-12);
}

TEST(PoligonoStatica, CircleWritesFourMembersOnly) {
    Poligono p = PoligonoDaTesto("0 0, 30 0, 30 50, 0 50");
    p.CaratteristicheStatiche();
    p.CaratteristicheStatiche(false, true, 50, 40); // ring 100/80: pi 900, pi (6.25e6 - 2.56e6)/4
    EXPECT_NEAR(p.Area, 2827.4333882308138, 1e-9);
    EXPECT_NEAR(p.IxG, 2898119.2229365845, 1e-6);
    EXPECT_NEAR(p.WxSup, 57962.384458731685, 1e-8);
    EXPECT_EQ(p.WxInf, p.WxSup);
    EXPECT_NEAR(p.IyG, 112500, 1e-6);
    EXPECT_NEAR(p.WyDes, 7500, 1e-8);
    EXPECT_NEAR(p.WySin, 7500, 1e-8);
    EXPECT_NEAR(p.I1, 312500, 1e-6);
    EXPECT_EQ(p.xG, 15);
}

TEST(PoligonoStatica, AzzeraClearsAreaAndMomentsOnly) {
    Poligono p = PoligonoDaTesto("0 0, 30 0, 30 50, 0 50");
    p.CaratteristicheStatiche();
    p.CaratteristicheStatiche(true);
    for (const double v : {p.Area, p.Sx, p.Sy, p.Ix, p.Iy, p.Ixy, p.IxG, p.IyG, p.IxyG})
        EXPECT_EQ(v, 0);
    EXPECT_EQ(p.xG, 15);
    EXPECT_NEAR(p.I1, 312500, 1e-6);
}

TEST(PoligonoStatica, StaticValuesLeaveTheFlagAlone) {
    Poligono p = PoligonoDaTesto("0 0, 30 0, 30 50, 0 50");
    p.CaratteristicheStatiche();
    EXPECT_FALSE(p.Antiorario);
    p.AreaCalcola();
    EXPECT_TRUE(p.Antiorario);
    p.nVertici(2);
    p.AreaCalcola();
    EXPECT_EQ(p.Area, 0);
    EXPECT_TRUE(p.Antiorario);
}

TEST(PoligonoStatica, AreaNulla) {
    Poligono retta = PoligonoDaTesto("0 0, 10 10, 20 20");
    EXPECT_TRUE(retta.AreaNulla());
    EXPECT_TRUE(retta.AreaNulla(true));
    // Area 1e-15, perimeter about 2000: above 0, below 2000^2/1e20 = 4e-14.
    Poligono filo = PoligonoDaTesto("0 0, 1000 0, 1000 2e-18");
    EXPECT_FALSE(filo.AreaNulla());
    EXPECT_TRUE(filo.AreaNulla(true));
    EXPECT_NEAR(filo.Area, 1e-15, 1e-24);
    Poligono quadro = PoligonoDaTesto("0 0, 1 0, 1 1, 0 1");
    EXPECT_FALSE(quadro.AreaNulla(true));
}

TEST(PoligonoStatica, TheModuliAreTheEllipseOfInertiaOfEveryTurn) {
    // An angle turned by 30 degrees: Ix' = (Ix + Iy)/2 + (Ix - Iy)/2 cos 2a + Ixy sin 2a, worked by hand on
    // the L 80x10 + 10x90: 1312990.196 + 360000 0.5 - 741176.4706 0.8660254.
    Poligono p = PoligonoDaTesto("0 0, 80 0, 80 10, 10 10, 10 100, 0 100");
    p.RuotaVertici(0, 0, std::numbers::pi / 6);
    EXPECT_NEAR(p.IxG, 851112.544, 0.01);
}

// 1 by h: the perimeter is 2, its square over 1E+20 is 4E-20.
TEST(AreaNulla, ThresholdIsThePartOfTheSquaredPerimeter) {
    const auto nulla = [](double h) {
        Poligono p;
        p.Coordinate({0, 1, 1, 0}, {0, 0, h, h}, 4);
        return p.AreaNulla(true);
    };
    EXPECT_TRUE(nulla(3e-20));
    EXPECT_FALSE(nulla(5e-20));
}

TEST(AreaCalcola, ALineRunsNoWayRound) {
    Poligono p = PoligonoDaTesto("0 0, 10 0, 10 10");
    p.AreaCalcola();
    EXPECT_TRUE(p.Antiorario);
    p = PoligonoDaTesto("0 0, 10 10, 20 20");
    p.Antiorario = true;
    p.AreaCalcola();
    EXPECT_FALSE(p.Antiorario);
}

TEST(AreaNulla, WithoutMeasureOnlyNothingIsNull) {
    Poligono p;
    p.Coordinate({0, 1e-11, 1e-11, 0}, {0, 0, 1e-11, 1e-11}, 4);
    EXPECT_FALSE(p.AreaNulla());
}

} // namespace
