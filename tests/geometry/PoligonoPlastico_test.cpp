#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "Casi.h"
#include "Registratore.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

double AreaDi(const std::shared_ptr<Poligono>& p) {
    if (!p)
        return 0;
    p->AreaCalcola();
    return p->Area;
}

struct CasoFrazione {
    const char* nome;
    const char* contorno;
    double rapporto;
    bool lungoX;
    double yN; ///< level, by hand
};
void PrintTo(const CasoFrazione& c, std::ostream* os) { *os << c.nome; }

class DividiTest : public testing::TestWithParam<CasoFrazione> {};

TEST_P(DividiTest, FractionWithinATenThousandth) {
    const CasoFrazione& c = GetParam();
    Poligono p = PoligonoDaTesto(c.contorno);
    std::shared_ptr<Poligono> sopra;
    std::shared_ptr<Poligono> sotto;
    double yN = 0;
    p.Dividi(c.rapporto, sopra, sotto, yN, c.lungoX);
    EXPECT_NEAR(AreaDi(sopra), c.rapporto * p.Area, 1.001 * p.Area / 10000);
    EXPECT_NEAR(AreaDi(sopra) + AreaDi(sotto), p.Area, 1e-9 * p.Area);
    EXPECT_NEAR(yN, c.yN, 1e-3 * p.MaxDimensione());
}

constexpr const char* rettangolo = "0 0, 30 0, 30 50, 0 50";
constexpr const char* triangolo = "0 0, 60 0, 0 90";
constexpr const char* sagomaT = "5 0, 5 100, 50 100, 50 110, -50 110, -50 100, -5 100, -5 0";

// clang-format off
INSTANTIATE_TEST_SUITE_P(Frazioni, DividiTest, testing::Values(
    CasoFrazione{"quarter_above",     rettangolo, 0.25, false, 37.5},
    CasoFrazione{"third_right",       rettangolo, 1.0 / 3, true, 20},
    CasoFrazione{"half_of_triangle",  triangolo,  0.5, false, 26.360389693}, // 90 (1 - 1/sqrt 2)
    CasoFrazione{"ninth_of_triangle", triangolo,  1.0 / 9, false, 60},
    CasoFrazione{"half_of_T",         sagomaT,    0.5, false, 100},
    CasoFrazione{"nothing_above",     rettangolo, 0, false, 50},
    CasoFrazione{"all_above",         rettangolo, 1, false, 0}),
    [](const auto& i) { return std::string(i.param.nome); });
// clang-format on

TEST(Dividi, NothingAndEverything) {
    const auto p = std::make_shared<Poligono>(PoligonoDaTesto(rettangolo));
    std::shared_ptr<Poligono> sopra;
    std::shared_ptr<Poligono> sotto;
    double yN = 0;
    p->Dividi(0, sopra, sotto, yN);
    EXPECT_FALSE(sopra);
    EXPECT_EQ(sotto, p);
    p->Dividi(1, sopra, sotto, yN);
    EXPECT_EQ(sopra, p);
    EXPECT_FALSE(sotto);
}

TEST(Dividi, RunsOfHalfAndQuarterOnManyOutlines) {
    for (const char* file : {"concavi.txt", "stellati.txt", "profili.txt"})
        for (const CasoPoligono& c : LeggeCasiPoligono(file))
            for (const double rapporto : {0.03, 0.5, 0.8}) {
                SCOPED_TRACE(c.titolo);
                Poligono p = PoligonoDelCaso(c);
                std::shared_ptr<Poligono> sopra;
                std::shared_ptr<Poligono> sotto;
                double yN = 0;
                Registratore r;
                p.Dividi(rapporto, sopra, sotto, yN, rapporto > 0.6);
                EXPECT_NEAR(AreaDi(sopra), Singolo(rapporto) * p.Area, 1.001 * p.Area / 10000) << rapporto;
                EXPECT_TRUE(r.testi.empty());
            }
}

// A fraction that the area cannot have: the solver says so, and the split goes on at its answer, 0.
TEST(Dividi, AnImpossibleFractionIsReported) {
    Poligono p = PoligonoDaTesto("0 -10, 30 -10, 30 40, 0 40");
    std::shared_ptr<Poligono> sopra;
    std::shared_ptr<Poligono> sotto;
    double yN = 99;
    Registratore r;
    p.Dividi(2, sopra, sotto, yN);
    EXPECT_EQ(r.testi, std::vector<std::string>{"ERRORE! La funzione non cambia segno fra x1 e x2"});
    EXPECT_EQ(yN, 0);
    EXPECT_EQ(AreaDi(sopra), 1200);
    EXPECT_EQ(AreaDi(sotto), 300);
}

TEST(yEquazione, AreaAboveLessTheWantedPart) {
    Poligono p = PoligonoDaTesto(rettangolo);
    std::shared_ptr<Poligono> sopra;
    std::shared_ptr<Poligono> sotto;
    double yN = 0;
    p.Dividi(0.5, sopra, sotto, yN);
    EXPECT_NEAR(p.yEquazione(20), 900 - 750, 1e-9);
    EXPECT_NEAR(p.yEquazione(60), -750, 1e-9);
    EXPECT_NEAR(p.yEquazione(-1), 750, 1e-9);
    EXPECT_NEAR(p.yEquazione(10, true), 1000 - 750, 1e-9);
}

std::vector<CasoPoligono> CasiConArea() {
    std::vector<CasoPoligono> casi;
    for (const char* file : {"a_mano.txt", "convessi.txt", "concavi.txt", "stellati.txt", "profili.txt"})
        for (CasoPoligono& c : LeggeCasiPoligono(file))
            casi.push_back(std::move(c));
    return casi;
}

class MetaTest : public testing::TestWithParam<CasoPoligono> {};

// The sums over sides against the polygon that the same level cuts off.
TEST_P(MetaTest, AreaAboveALevelIsThatOfThePartCutOff) {
    Poligono p = PoligonoDelCaso(GetParam());
    p.CaratteristicheStatiche();
    const auto box = p.BoundingBox();
    const double area = p.Area;
    std::shared_ptr<Poligono> sopra;
    std::shared_ptr<Poligono> sotto;
    double yN = 0;
    p.Dividi(0.5, sopra, sotto, yN);
    for (int k = 0; k < 40; ++k)
        for (const bool lungoX : {false, true}) {
            const double minimo = box[lungoX ? 0 : 2];
            const double livello = minimo + (k + 0.5) / 40 * (box[lungoX ? 1 : 3] - minimo);
            p.DividiY(livello, sopra, sotto, lungoX);
            EXPECT_NEAR(p.yEquazione(livello, lungoX), AreaDi(sopra) - area / 2, 1e-12 * area) << livello;
        }
}

// The modulus against the two halves built as polygons, with their own centroids.
TEST_P(MetaTest, ModulusIsThatOfTheHalvesOfDividi) {
    Poligono p = PoligonoDelCaso(GetParam());
    p.CaratteristicheStatiche();
    if (p.Area == 0)
        return;
    p.Wplastici();
    for (const bool attornoY : {false, true}) {
        std::shared_ptr<Poligono> sopra;
        std::shared_ptr<Poligono> sotto;
        double yN = 0;
        p.Dividi(0.5, sopra, sotto, yN, attornoY);
        ASSERT_TRUE(sopra && sotto);
        sopra->CaratteristicheStatiche();
        sotto->CaratteristicheStatiche();
        const double W = p.Area / 2 * (attornoY ? sopra->xG - sotto->xG : sopra->yG - sotto->yG);
        double livello = 0;
        EXPECT_NEAR(attornoY ? p.WplY : p.WplX, W, 1e-12 * W);
        EXPECT_NEAR(p.Wplastico(&livello, attornoY), W, 1e-12 * W);
        EXPECT_NEAR(livello, yN, 1e-12 * p.MaxDimensione());
    }
}

INSTANTIATE_TEST_SUITE_P(Contorni, MetaTest, testing::ValuesIn(CasiConArea()),
                         [](const auto& i) { return std::to_string(i.index) + "_" + NomeCaso(i.param); });

TEST(Wplastici, RectangleByFormula) {
    Poligono p = PoligonoDaTesto("7 -3, 37 -3, 37 47, 7 47");
    p.CaratteristicheStatiche();
    p.Wplastici();
    EXPECT_NEAR(p.WplX, 30.0 * 50 * 50 / 4, 1);
    EXPECT_NEAR(p.WplY, 50.0 * 30 * 30 / 4, 1);
}

TEST(Wplastici, ZeroAreaGivesZero) {
    Poligono p;
    p.WplX = 5;
    p.WplY = 6;
    p.Wplastici();
    EXPECT_EQ(p.WplX, 0);
    EXPECT_EQ(p.WplY, 0);
    Poligono senzaArea = PoligonoDaTesto(rettangolo); // Area has not been calculated
    senzaArea.Wplastici();
    EXPECT_EQ(senzaArea.WplX, 0);
}

TEST(Wplastici, TakesTheRoundOutlineOfThreeHundredAndSixtySides) {
    // A circle of radius 50: 4 r^3/3, less the chords: (pi/360)^2 r-squared order, about 1e-4.
    std::vector<double> x;
    std::vector<double> y;
    for (int k = 0; k < 360; ++k) {
        x.push_back(50 * std::cos(k * std::numbers::pi / 180));
        y.push_back(50 * std::sin(k * std::numbers::pi / 180));
    }
    Poligono p;
    p.Coordinate(x, y, 360);
    p.CaratteristicheStatiche();
    p.Wplastici();
    double W = 0;
    Poligono::WplasticoCerchio(100, 0, W);
    EXPECT_NEAR(p.WplX, W, 2e-4 * W);
    EXPECT_NEAR(p.WplY, W, 2e-4 * W);
}

TEST(Wplastico, Circle) {
    double W = 0;
    Poligono::WplasticoCerchio(100, 80, W);
    EXPECT_NEAR(W, (1000000.0 - 512000) / 6, 1e-9);
    Poligono p;
    double yN = 3;
    EXPECT_NEAR(p.Wplastico(&yN, false, true, 60, 0), 36000, 1e-9);
    EXPECT_EQ(yN, 3);
}

TEST(Wplastico, GivesTheLevelOfTheCut) {
    Poligono p = PoligonoDaTesto(sagomaT);
    double yN = 0;
    // The cut is good to 1e-4 of the area; where the halves are unlike, the modulus is good to twice that.
    EXPECT_NEAR(p.Wplastico(&yN), 55000, 11);
    EXPECT_NEAR(yN, 100, 0.05);
    EXPECT_NEAR(p.Wplastico(&yN, true), 27500, 2.75);
    EXPECT_NEAR(yN, 0, 0.05);
}

TEST(Wplastico, AFailedSplitGivesZero) {
    Poligono p;
    Registratore r;
    EXPECT_EQ(p.Wplastico(), 0);
    EXPECT_FALSE(r.testi.empty());
}

// b h^2 / 4; twice the area of each half is 1.
TEST(Wplastico, UnitSquare) {
    Poligono p = PoligonoDaTesto("0 0, 1 0, 1 1, 0 1");
    EXPECT_NEAR(p.Wplastico(), 0.25, 1e-12);
    EXPECT_NEAR(p.Wplastico(nullptr, true), 0.25, 1e-12);
}

// Area that was calculated before the vertices moved onto one line.
TEST(Wplastici, AnAreaThatIsGoneHasNoModulus) {
    const Registratore registratore;
    Poligono p = PoligonoDaTesto("0 0, 10 0, 20 0");
    p.Area = 5;
    p.Wplastici();
    EXPECT_EQ(p.WplX, 0);
    EXPECT_EQ(p.WplY, 0);
}

} // namespace
