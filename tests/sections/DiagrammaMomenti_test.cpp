#include "sections/DiagrammaMomenti.h"

#include <gtest/gtest.h>

#include "Registratore.h"

using namespace sagomi;

namespace {

using Testi = std::vector<std::string>;

/// Moments in kNm.
struct Caso {
    std::int16_t tipo, pict;
    double M1, M2, MQ, NeN, M, BetaM, C1;
};

void PrintTo(const Caso& c, std::ostream* os) {
    *os << "tipo " << c.tipo << " pict " << c.pict << " M1 " << c.M1 << " M2 " << c.M2 << " MQ " << c.MQ
        << " NeN " << c.NeN;
}

EffettiDiagramma Effetti(const Caso& c) {
    return EffettiDelDiagramma({c.M1 * 1e6, c.M2 * 1e6, c.MQ * 1e6, c.NeN * 1e6}, c.tipo, c.pict);
}

class DiagrammaMomentiTest : public testing::Test {
protected:
    prove::Registratore registratore;
};

// Factors are those of the shape: they do not hang on the unit of the moments.
TEST_F(DiagrammaMomentiTest, FactorsDoNotHangOnTheSizeOfTheMoments) {
    for (std::int16_t pict = 1; pict <= nPict; ++pict)
        for (const double M2 : {-0.5, 0.0, 0.8})
            for (const double MQ : {0.1, 0.3, 0.7, 2.0}) {
                const auto effects = [&](double unit) {
                    return EffettiDelDiagramma({0.8 * unit, M2 * unit, MQ * unit, 0}, TipoDiPict(pict), pict);
                };
                const EffettiDiagramma small = effects(1), large = effects(1e6);
                EXPECT_NEAR(small.BetaM, large.BetaM, 1e-9) << pict << ' ' << M2 << ' ' << MQ;
                EXPECT_NEAR(small.C1, large.C1, 1e-9) << pict << ' ' << M2 << ' ' << MQ;
            }
}

class DiagrammaMomentiTabella : public testing::TestWithParam<Caso> {};

TEST_P(DiagrammaMomentiTabella, MomentoEFattori) {
    const Caso& c = GetParam();
    const prove::Registratore registratore;
    const EffettiDiagramma e = Effetti(c);
    EXPECT_NEAR(e.M, c.M * 1e6, 1e-3);
    EXPECT_NEAR(e.BetaM, c.BetaM, 1e-9);
    EXPECT_NEAR(e.C1, c.C1, 1e-9);
    EXPECT_TRUE(registratore.testi.empty());
}

// Exact fractions in Python, from the extreme ordinates of each diagram: range of the diagram for DeltaM
// where it changes sign, its largest ordinate where it does not.
// clang-format off
INSTANTIATE_TEST_SUITE_P(Forme, DiagrammaMomentiTabella, testing::Values(
    //   tipo pict M1   M2    MQ   NeN       M          BetaM       C1
    Caso{0, 1,  100,  100,    0,    0,    100,           1.1,       1},
    Caso{0, 1,  100,   75,    0,    0,    100,         1.275,  1.1225},
    Caso{0, 1,  100,   50,    0,    0,    100,          1.45,    1.31},
    Caso{0, 1,  100,    0,    0,    0,    100,           1.8,    1.88},
    Caso{0, 1,    0,    0,    0,    0,      0,           1.1,       1},
    Caso{0, 1,   80,   40,    0,   20,    100,          1.38,  1.2272},
    Caso{0, 1,    0,    0,    0,   30,     30,           1.1,       1},
    Caso{0, 1,  100,  100,    0,  -40,     60,           1.1,       1},
    Caso{0, 2,  100,  -25,    0,    0,    100,         1.975,  2.2625},
    Caso{0, 2,  100,  -50,    0,    0,    100,          2.15,     2.7},
    Caso{0, 2,  100,  -60,    0,    0,    100,          2.22,     2.7},
    Caso{0, 2,  100, -100,    0,    0,    100,           2.5,     2.7},
    Caso{0, 2,  100,  -80,    0,   15,    115,   2.195652174,     2.7},
    Caso{0, 2,   50,  -50,    0,   10,     60,   2.266666667,     2.7},
    Caso{1, 3,  100,  100,  150,    0,    100,           1.3,       1},
    Caso{1, 3,  100,    0,  100,    0,    100,   1.466666667,       1},
    Caso{1, 3,  100,  100,   40,    0,    100,          1.18,       1},
    Caso{1, 3,  100,   50,   60,    0,    100,          1.36,       1},
    Caso{1, 3,  100,  100,  100,    0,    100,           1.3,       1},
    Caso{1, 3,    0,    0,   90,    0,     90,           1.3,       1},
    Caso{1, 3,    0,    0,    0,    0,      0,           1.1,       1},
    Caso{1, 3,   60,  -60,   30,    0,     60,           2.1,       1},
    Caso{1, 3,  100, -100,    0,    0,    100,           2.5,       1},
    Caso{1, 3,   40,   20,  120,   10,     80,   1.306153846,       1},
    Caso{1, 4,  100,  100,  150,    0,    100,           1.4,       1},
    Caso{1, 4,  100,    0,  100,    0,    100,   1.533333333,       1},
    Caso{1, 4,  100,  100,   40,    0,    100,          1.22,       1},
    Caso{1, 4,  100,   50,   60,    0,    100,          1.42,       1},
    Caso{1, 4,  100,  100,  100,    0,    100,           1.4,       1},
    Caso{1, 4,    0,    0,   90,    0,     90,           1.4,       1},
    Caso{1, 4,   60,  -60,   30,    0,     60,   2.133333333,       1},
    Caso{1, 4,  100, -100,    0,    0,    100,           2.5,       1},
    Caso{1, 4,   40,   20,  120,   10,     80,   1.398461538,       1},
    Caso{1, 5,    0,    0,   90,    0,     90,           1.3,       1},
    Caso{1, 5,  100,  100,   50,    0,    150,   1.166666667,       1},
    Caso{1, 5,  100,    0,   20,    0,    100,           1.7,       1},
    Caso{1, 5,  100, -100,   30,    0,    100,          2.14,       1},
    Caso{1, 5,   40,   20,  120,   10,    160,          1.32,       1},
    Caso{1, 6,    0,    0,   90,    0,     90,           1.4,       1},
    Caso{1, 6,  100,  100,   50,    0,    150,           1.2,       1},
    Caso{1, 6,  100,    0,   20,    0,    100,          1.72,       1},
    Caso{1, 6,  100, -100,   30,    0,    100,          2.17,       1},
    Caso{1, 6,   40,   20,  120,   10,    160,         1.395,       1}));
// clang-format on

// Beams of the textbooks, by hand: the ends and the middle of a built-in beam under a uniform load are
// q L^2/12 and q L^2/24, of a propped one q L^2/8 and q L^2/16; under a point load P L/8 and P L/8.
TEST_F(DiagrammaMomentiTest, BuiltInBeamHasTheFactorOfItsLoadAlone) {
    const EffettiDiagramma uniforme = EffettiDelDiagramma({1.0 / 12, 1.0 / 12, 1.0 / 8, 0}, 1, 3);
    EXPECT_NEAR(uniforme.BetaM, 1.3, 1e-12);
    EXPECT_NEAR(uniforme.M, 1.0 / 12, 1e-12);
    const EffettiDiagramma punto = EffettiDelDiagramma({1.0 / 8, 1.0 / 8, 1.0 / 4, 0}, 1, 4);
    EXPECT_NEAR(punto.BetaM, 1.4, 1e-12);
    EXPECT_NEAR(punto.M, 1.0 / 8, 1e-12);
    const EffettiDiagramma appoggio = EffettiDelDiagramma({1.0 / 8, 0, 1.0 / 8, 0}, 1, 3);
    EXPECT_NEAR(appoggio.BetaM, 1.8 - 0.5 * 2 / 3, 1e-12);
}

TEST_F(DiagrammaMomentiTest, NoEndMomentCountsAsUniform) {
    const EffettiDiagramma e = EffettiDelDiagramma({}, diagrammaEstremita, 1);
    EXPECT_DOUBLE_EQ(e.BetaM, 1.1);
    EXPECT_DOUBLE_EQ(e.C1, 1.0);
    EXPECT_EQ(e.M, 0);
}

TEST_F(DiagrammaMomentiTest, FactorOfOppositeEndsIsCutAt2Point7) {
    EXPECT_EQ(EffettiDelDiagramma({100, -100, 0, 0}, diagrammaEstremita, 2).C1, 2.7);
}

TEST_F(DiagrammaMomentiTest, MiddleAboveTheEndGovernsTheMoment) {
    EXPECT_DOUBLE_EQ(EffettiDelDiagramma({50, 30, 60, 0}, diagrammaCampata, 5).M, 100);
    EXPECT_DOUBLE_EQ(EffettiDelDiagramma({50, 30, 60, 0}, diagrammaCampata, 3).M, 50);
}

TEST_F(DiagrammaMomentiTest, AxialForceCanBringTheRatioOutOfItsRange) {
    // 100 - 40 = 60 and -100 - 40 = -140: psi -2.33
    const EffettiDiagramma e = EffettiDelDiagramma({100, -100, 0, -40}, diagrammaEstremita, 2);
    EXPECT_EQ(registratore.testi, Testi{"Valore di psi non ammesso"});
    EXPECT_NEAR(e.BetaM, 1.8 + 0.7 * 140 / 60, 1e-12);
    EXPECT_EQ(e.C1, 2.7);
}

TEST_F(DiagrammaMomentiTest, NegativeFirstMomentChangesItsSign) {
    double M1 = -12.5;
    double M2 = 5;
    CorreggeM1M2(M1, M2);
    EXPECT_EQ(M1, 12.5);
    EXPECT_EQ(M2, 5);
    EXPECT_EQ(registratore.testi, Testi{"M1 deve essere positivo.\nIl segno viene automaticamente cambiato"});
}

TEST_F(DiagrammaMomentiTest, SecondMomentAboveTheFirstBecomesZero) {
    for (const double larger : {10.001, -10.001}) {
        registratore.testi.clear();
        double M1 = 10;
        double M2 = larger;
        CorreggeM1M2(M1, M2);
        EXPECT_EQ(M1, 10);
        EXPECT_EQ(M2, 0);
        EXPECT_EQ(registratore.testi,
                  Testi{"M1 deve essere maggiore di M2 (in valore assoluto).\nM2 viene posto = 0"});
    }
}

TEST_F(DiagrammaMomentiTest, EqualMomentsOfEitherSignStay) {
    for (const double equal : {10.0, -10.0}) {
        double M1 = 10;
        double M2 = equal;
        CorreggeM1M2(M1, M2);
        EXPECT_EQ(M2, equal);
    }
    EXPECT_TRUE(registratore.testi.empty());
}

TEST_F(DiagrammaMomentiTest, BothCorrectionsAreTold) {
    double M1 = -5;
    double M2 = 8;
    CorreggeM1M2(M1, M2);
    EXPECT_EQ(M1, 5);
    EXPECT_EQ(M2, 0);
    EXPECT_EQ(registratore.testi.size(), 2U);
}

TEST_F(DiagrammaMomentiTest, NegativeSpanMomentChangesItsSign) {
    double MQ = -3;
    CorreggeMQ(MQ);
    EXPECT_EQ(MQ, 3);
    EXPECT_EQ(registratore.testi, Testi{"MQ deve essere positivo.\nIl segno viene automaticamente cambiato"});
    MQ = 0;
    CorreggeMQ(MQ);
    EXPECT_EQ(registratore.testi.size(), 1U);
}

TEST_F(DiagrammaMomentiTest, ShapesBelongToTheirDescription) {
    EXPECT_EQ(TipoDiPict(1), 0);
    EXPECT_EQ(TipoDiPict(2), 0);
    for (std::int16_t pict = 3; pict <= nPict; ++pict)
        EXPECT_EQ(TipoDiPict(pict), 1);
    EXPECT_EQ(PrimaPict(0), 1);
    EXPECT_EQ(PrimaPict(1), 3);
}

} // namespace
