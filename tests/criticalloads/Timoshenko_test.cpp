#include "criticalloads/Timoshenko.h"

#include <cmath>
#include <memory>

#include <gtest/gtest.h>

#include "Registratore.h"
#include "frame/GeneraleSagomi.h"
#include "sections/SezioneDoppioT.h"

using namespace sagomi;

namespace {

using Testi = std::vector<std::string>;
using Lista = std::vector<double>;

constexpr double E = 210000;
constexpr double G = 80769;

class TimoshenkoTest : public testing::Test {
protected:
    void SetUp() override {
        auto section = std::make_shared<SezioneDoppioT>();
        section->h = 300;
        SezioneCorrente = section;
    }
    void TearDown() override { RipristinaGenerale(); }

    /// gamma2 at a ratio L^2C/C1: with L = E = G = IT = 1 the warping constant is its inverse.
    static double Mensola(double ratio) { return Timoshenko::Gamma2Mens(1, 1, 1, 1, 1, 1 / ratio); }
    static double Appoggiata(double ratio, std::int16_t tipo, std::int16_t quota) {
        return Timoshenko::Gamma2App(1, 1, 1, 1, 1, 1 / ratio, tipo, quota);
    }

    prove::Registratore registratore;
};

void Uguali(const Lista& v, const Lista& attesi) {
    ASSERT_EQ(v.size(), attesi.size());
    for (std::size_t i = 0; i < v.size(); ++i)
        EXPECT_EQ(v[i], double(float(attesi[i]))) << i;
}

// Timoshenko and Gere, tables 6-3 to 6-5.
TEST_F(TimoshenkoTest, TablesHoldThePublishedValues) {
    Lista x;
    Lista y;
    Timoshenko::TabellaMensola(x, y);
    Uguali(x, {0.1, 1, 2, 3, 4, 6, 8, 10, 12, 14, 16, 24, 32, 40});
    Uguali(y, {44.3, 15.7, 12.2, 10.7, 9.76, 8.69, 8.03, 7.58, 7.2, 6.96, 6.73, 6.19, 5.87, 5.64});
    const Lista quote[2][3] = {
        {{51.5, 20.1, 16.9, 15.4, 15.0, 14.9, 14.8, 15, 15, 15.1, 15.3, 15.5, 15.6, 15.8},
         {86.4, 31.9, 25.6, 21.8, 20.3, 19.6, 18.8, 18.3, 18.1, 17.9, 17.5, 17.4, 17.2, 17.2},
         {147, 50, 38.2, 30.3, 27.2, 25.4, 23.5, 22.4, 21.7, 21.1, 20, 19.3, 19, 18.7}},
        {{92.9, 36.3, 30.4, 27.5, 26.6, 26.1, 25.9, 25.9, 25.8, 26, 26.4, 26.5, 26.6, 26.7},
         {143, 53, 42.6, 36.3, 33.8, 32.6, 31.5, 30.5, 30.1, 29.4, 29, 28.8, 28.6, 28.6},
         {223, 77.4, 59.6, 48, 43.6, 40.5, 37.8, 36.4, 35.1, 33.3, 32.1, 31.3, 31, 30.7}}};
    for (std::int16_t tipo = 0; tipo < 2; ++tipo)
        for (std::int16_t quota = 0; quota < 3; ++quota) {
            Timoshenko::TabellaAppoggiata(x, y, tipo, quota);
            Uguali(x, {0.4, 4, 8, 16, 24, 32, 48, 64, 80, 96, 160, 240, 320, 400});
            Uguali(y, quote[tipo][quota]);
        }
}

TEST_F(TimoshenkoTest, AnUnknownHeightFillsNothing) {
    Lista x;
    Lista y = {7, 8};
    Timoshenko::TabellaAppoggiata(x, y, caricoConcentrato, 3);
    EXPECT_EQ(y, (Lista{7, 8}));
    Timoshenko::TabellaAppoggiata1(y, -1);
    EXPECT_EQ(y, (Lista{7, 8}));
    EXPECT_EQ(x.size(), 14U);
}

// IPE 200: L^2 G IT / E = 16e6 · 80769 · 69800 / 210000 = 4.29537e11 mm6
TEST_F(TimoshenkoTest, RatioIsTheOneOfTheStiffnesses) {
    EXPECT_NEAR(Timoshenko::Rapporto(4000, E, G, 142.4e4, 6.98e4), 4.29537e11, 1e6);
    EXPECT_EQ(Timoshenko::Rapporto(4000, E, G, 0, 6.98e4), Timoshenko::Rapporto(4000, E, G, 142.4e4, 6.98e4));
}

struct CasoGamma {
    double ratio, gamma2;
};

TEST_F(TimoshenkoTest, CantileverBetweenTheRowsIsAStraightLine) {
    // 0.5: 44.3 - 0.4/0.9 · 28.6; 5: (9.76 + 8.69)/2; 20: (6.73 + 6.19)/2; 36: (5.87 + 5.64)/2
    // below the table, 0.01: 44.3 + 0.09/0.9 · 28.6
    for (const CasoGamma c : {CasoGamma{0.5, 31.58889},
                              {1, 15.7},
                              {1.5, 13.95},
                              {5, 9.225},
                              {20, 6.46},
                              {36, 5.755},
                              {0.01, 47.16}})
        EXPECT_NEAR(Mensola(c.ratio), c.gamma2, 2e-5) << c.ratio;
}

TEST_F(TimoshenkoTest, CantileverLeavesTheTableAbove40) {
    EXPECT_FLOAT_EQ(static_cast<float>(Timoshenko::Gamma2Mens(1, 1, 1, 1, 40, 1)), 5.64F);
    // 4.013 / (1 - root(1/40))^2 = 4.013 / 0.708772; at 100: 4.013 / 0.81
    EXPECT_NEAR(Timoshenko::Gamma2Mens(1, 1, 1, 1, 40.001, 1), 5.66, 0.005);
    EXPECT_NEAR(Mensola(100), 4.954321, 1e-5);
    EXPECT_NEAR(Timoshenko::Gamma2Mens(1, 1, 1, 1, 1, 0), 4.013, 1e-6) << "no warping at all";
}

TEST_F(TimoshenkoTest, SimplySupportedBetweenTheRows) {
    // 6: (20.1 + 16.9)/2; 12: (25.6 + 21.8)/2; 40: (25.4 + 23.5)/2; 128: (26.0 + 26.4)/2; 360: 28.6;
    // 0.2 below the table: 223 + 0.2/3.6 · 145.6
    EXPECT_NEAR(Appoggiata(6, 0, 0), 18.5, 1e-5);
    EXPECT_NEAR(Appoggiata(12, 0, 1), 23.7, 1e-5);
    EXPECT_NEAR(Appoggiata(40, 0, 2), 24.45, 1e-5);
    EXPECT_NEAR(Appoggiata(128, 1, 0), 26.2, 1e-5);
    EXPECT_NEAR(Appoggiata(360, 1, 1), 28.6, 1e-5);
    EXPECT_NEAR(Appoggiata(0.2, 1, 2), 223 + 0.2 / 3.6 * 145.6, 1e-4);
    EXPECT_TRUE(registratore.testi.empty());
}

TEST_F(TimoshenkoTest, SimplySupportedAbove400IsToldAndKeepsTheLastRow) {
    const double ultimi[2][3] = {{15.8, 17.2, 18.7}, {26.7, 28.6, 30.7}};
    for (std::int16_t tipo = 0; tipo < 2; ++tipo)
        for (std::int16_t quota = 0; quota < 3; ++quota) {
            registratore.testi.clear();
            const double a400 = Timoshenko::Gamma2App(1, 1, 1, 1, 400, 1, tipo, quota);
            EXPECT_NEAR(a400, ultimi[tipo][quota], 1e-6);
            EXPECT_TRUE(registratore.testi.empty());
            EXPECT_NEAR(Timoshenko::Gamma2App(1, 1, 1, 1, 400.01, 1, tipo, quota), ultimi[tipo][quota], 1e-6);
            EXPECT_EQ(registratore.testi, Testi{"Rapporto L^2C/C1 > 400"});
        }
}

TEST_F(TimoshenkoTest, LoadStandsHalfTheHeightAboveOrBelow) {
    EXPECT_EQ(Timoshenko::a_QuotaCarico(quotaEstradosso), 150);
    EXPECT_EQ(Timoshenko::a_QuotaCarico(quotaBaricentro), 0);
    EXPECT_EQ(Timoshenko::a_QuotaCarico(quotaIntradosso), -150);
    SezioneCorrente = std::monostate{};
    EXPECT_EQ(Timoshenko::a_QuotaCarico(quotaEstradosso), 0);
}

// L 3000, E Iz / C = 100: a / L · root = 0.05 · 10 = 0.5
TEST_F(TimoshenkoTest, WithoutWarpingTheHeightEntersLinearly) {
    const double gamma2[3] = {4.013 * 0.5, 4.013, 4.013 * 1.5};
    const double app[3] = {16.94 * 0.13, 16.94, 16.94 * 1.87};
    for (std::int16_t q = 0; q < 3; ++q) {
        EXPECT_NEAR(Timoshenko::Gamma2MensNoIw(3000, 1, 100, 1, caricoConcentrato, q), gamma2[q], 1e-5);
        EXPECT_NEAR(Timoshenko::Gamma2AppNoIw(3000, 1, 100, 1, caricoConcentrato, q), app[q], 1e-5);
    }
    EXPECT_TRUE(registratore.testi.empty());
}

TEST_F(TimoshenkoTest, WithoutWarpingADistributedLoadHasFixedValues) {
    EXPECT_NEAR(Timoshenko::Gamma2AppNoIw(3000, E, 1e6, 1e9, caricoDistribuito, 0), 26.4, 1e-5);
    EXPECT_NEAR(Timoshenko::Gamma2AppNoIw(3000, E, 1e6, 1e9, caricoDistribuito, 1), 28.3, 1e-5);
    EXPECT_NEAR(Timoshenko::Gamma2AppNoIw(3000, E, 1e6, 1e9, caricoDistribuito, 2), 30.4, 1e-5);
    EXPECT_NEAR(Timoshenko::Gamma2AppNoIw(3000, E, 1e6, 1e9, caricoDistribuito, 7), 30.4, 1e-5);
    EXPECT_NEAR(Timoshenko::Gamma2MensNoIw(3000, E, 1e6, 1e9, caricoDistribuito, 1), 12.85, 1e-5);
    EXPECT_TRUE(registratore.testi.empty());
    for (const std::int16_t flange : {quotaEstradosso, quotaIntradosso}) {
        registratore.testi.clear();
        EXPECT_NEAR(Timoshenko::Gamma2MensNoIw(3000, E, 1e6, 1e9, caricoDistribuito, flange), 12.85, 1e-5);
        EXPECT_EQ(registratore.testi, Testi{"Solo carico baricentrico"});
    }
}

/// IPE 200, 4 m: L^2C/C1 = 4.29537e11 / 12.99e9 = 33.0668; C = 69800 · 80769 = 5.63768e9;
/// root(Iz E C) / L^2 = root(1424000 · 210000 · 5.63768e9) / 16e6 = 2566.22 N. All by hand.
class TimoshenkoIpe200 : public TimoshenkoTest {
protected:
    void SetUp() override {
        TimoshenkoTest::SetUp();
        t.L = 4000;
        t.E = E;
        t.G = G;
        t.Iz = 142.4e4;
        t.IT = 6.98e4;
        t.Iw = 12.99e9;
        std::get<std::shared_ptr<SezioneDoppioT>>(SezioneCorrente)->h = 200;
    }
    Timoshenko t;
    static constexpr double K = 2566.22;
};

TEST_F(TimoshenkoIpe200, CriticalLoadIsGammaTimesTheStiffness) {
    // 19.6 - 1.0668/16 · 0.8 = 19.5467
    EXPECT_NEAR(Timoshenko::PcrApp(t.L, t.E, t.G, t.Iz, t.IT, t.Iw, 0, 1, false), 19.5467 * K, 5);
    // 5.87 - 1.0668/8 · 0.23 = 5.83933
    EXPECT_NEAR(Timoshenko::PcrMens(t.L, t.E, t.G, t.Iz, t.IT, t.Iw, 0, 1, false), 5.83933 * K, 2);
    EXPECT_NEAR(Timoshenko::PcrApp(t.L, t.E, t.G, t.Iz, t.IT, t.Iw, 1, 1, true), 28.3 * K, 5);
    EXPECT_NEAR(Timoshenko::PcrMens(t.L, t.E, t.G, t.Iz, t.IT, t.Iw, 1, 1, true), 12.85 * K, 3);
}

TEST_F(TimoshenkoIpe200, CriticalMomentOfASimplySupportedBeam) {
    EXPECT_NEAR(*t.McrAppoggiata(0, 1) / 1e6, 19.5467 * K * 4000 / 4 / 1e6, 0.005);
    // 32.6 - 1.0668/16 · 1.1 = 32.5267
    EXPECT_NEAR(*t.McrAppoggiata(1, 1) / 1e6, 32.5267 * K * 4000 / 8 / 1e6, 0.005);
}

TEST_F(TimoshenkoIpe200, CriticalMomentOfACantilever) {
    EXPECT_NEAR(*t.McrMensola(0, 1) / 1e6, 5.83933 * K * 4000 / 1e6, 0.005);
    t.NoIw = true;
    EXPECT_NEAR(*t.McrMensola(1, 1) / 1e6, 12.85 * K * 4000 / 2 / 1e6, 0.005);
    // a/L root(E Iz/C) = 0.025 · root(2.9904e11 / 5.63768e9) = 0.025 · 7.28308
    EXPECT_NEAR(*t.McrMensola(0, 0) / 1e6, 4.013 * (1 - 0.025 * 7.28308) * K * 4000 / 1e6, 0.005);
    EXPECT_NEAR(*t.McrMensola(0, 2) / 1e6, 4.013 * (1 + 0.025 * 7.28308) * K * 4000 / 1e6, 0.005);
    // 1.74 of it at mid-span of a beam, whose moment is P L / 4
    EXPECT_NEAR(*t.McrAppoggiata(0, 0) / 1e6, 16.94 * (1 - 1.74 * 0.025 * 7.28308) * K * 1000 / 1e6, 0.005);
    EXPECT_NEAR(*t.McrAppoggiata(0, 2) / 1e6, 16.94 * (1 + 1.74 * 0.025 * 7.28308) * K * 1000 / 1e6, 0.005);
}

TEST_F(TimoshenkoIpe200, DistributedLoadLeftOnACantileverWithWarpingIsHalvedAllTheSame) {
    EXPECT_DOUBLE_EQ(*t.McrMensola(1, 1), *t.McrMensola(0, 1) / 2);
}

// The closed form of annex F with the factors of a load at mid-span is another road to the same moment.
TEST_F(TimoshenkoIpe200, AgreesWithTheClosedFormOfTheAnnex) {
    SezioneDoppioT s;
    s.h = 200;
    s.b = 100;
    s.tf = 8.5;
    s.bAlaInf = 100;
    s.tAlaInf = 8.5;
    s.yG = 100;
    s.iZ = 22.4;
    s.Jz = t.Iz;
    s.JT = t.IT;
    s.Jw = t.Iw;
    s.k = s.Kw = 1;
    s.LLT = t.L;
    s.C1 = 1.365;
    s.c2 = 0.553;
    for (std::int16_t quota = 0; quota < 3; ++quota) {
        s.za = 100 * (1 - quota);
        const double annesso = s.McrFunz();
        EXPECT_NEAR(*t.McrAppoggiata(0, quota), annesso, 0.03 * annesso) << quota;
    }
}

TEST_F(TimoshenkoIpe200, ALengthThatIsNoneIsRefused) {
    for (const double L : {0.0, -1.0}) {
        registratore.testi.clear();
        registratore.messaggi.clear();
        t.L = L;
        EXPECT_FALSE(t.McrAppoggiata(0, 0));
        EXPECT_FALSE(t.McrMensola(0, 0));
        EXPECT_EQ(registratore.testi, (Testi{"L deve essere > 0", "L deve essere > 0"}));
        EXPECT_EQ(registratore.messaggi[0].icona, Icona::Stop);
    }
}

TEST_F(TimoshenkoIpe200, ALengthBelowAMillimetreIsOne) {
    t.L = 0.5;
    EXPECT_TRUE(t.McrAppoggiata(0, 1));
    EXPECT_TRUE(t.McrMensola(0, 1));
    EXPECT_TRUE(registratore.testi.empty());
}

TEST_F(TimoshenkoIpe200, NoStiffnessAtAllGivesNoNumber) {
    t.Iw = 0;
    t.IT = 0;
    EXPECT_FALSE(std::isfinite(*t.McrAppoggiata(0, 1)));
    EXPECT_FALSE(std::isfinite(*t.McrMensola(0, 1)));
}

} // namespace
