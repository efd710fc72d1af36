#include "sections/SezioneDoppioT.h"

#include <cmath>
#include <utility>

#include <gtest/gtest.h>

#include "SezioniDiProva.h"
#include "frame/GeneraleSagomi.h"
#include "sections/Eurocod3.h"

using namespace sagomi;

namespace {

struct CasoCurva {
    const char* nome;
    bool saldata;
    const char* acciaio;
    double h, b, tf;
    const char *yy, *zz;
};
void PrintTo(const CasoCurva& c, std::ostream* os) { *os << c.nome; }

class CurvaInstabilitaTest : public testing::TestWithParam<CasoCurva> {};

TEST_P(CurvaInstabilitaTest, Tabella) {
    const CasoCurva& c = GetParam();
    SezioneDoppioT s;
    s.Saldata = c.saldata;
    s.TipoAcciaio = c.acciaio;
    s.h = c.h;
    s.b = c.b;
    s.tf = c.tf;
    EXPECT_EQ(s.CurvaInstabilita("yy"), c.yy);
    EXPECT_EQ(s.CurvaInstabilita("zz"), c.zz);
}

constexpr const char* s235 = "S235 (Fe360)";
constexpr const char* s460 = "S460 (Fe540)";

// clang-format off
INSTANTIATE_TEST_SUITE_P(Prospetto553, CurvaInstabilitaTest, testing::Values(
    CasoCurva{"saldata",            true,  s235, 300, 300,  40, "b",  "c"},
    CasoCurva{"saldata_spessa",     true,  s235, 300, 300,  41, "c",  "d"},
    CasoCurva{"saldata_s460",       true,  s460, 900, 300,  20, "b",  "c"},
    CasoCurva{"alta",               false, s235, 450, 300,  40, "a",  "b"},
    CasoCurva{"alta_spessa",        false, s235, 450, 300,  41, "b",  "c"},
    CasoCurva{"bassa",              false, s235, 300, 300, 100, "b",  "c"},
    CasoCurva{"bassa_spessa",       false, s235, 300, 300, 101, "d",  "d"},
    CasoCurva{"s460_alta",          false, s460, 450, 300,  20, "a0", "a0"},
    CasoCurva{"s460_alta_40",       false, s460, 450, 300,  40, "a0", "a0"},
    CasoCurva{"s460_alta_spessa",   false, s460, 450, 300,  41, "a",  "a"},
    CasoCurva{"s460_bassa",         false, s460, 300, 300, 100, "a",  "a"},
    CasoCurva{"s460_bassa_spessa",  false, s460, 300, 300, 101, "c",  "c"},
    CasoCurva{"altro_s460",         false, "S460", 450, 300, 20, "a", "b"},
    CasoCurva{"heb360_non_alta",    false, s235, 360, 300,  22.5, "b", "c"},
    CasoCurva{"appena_alta",        false, s235, 360.1, 300, 22.5, "a", "b"}),
    [](const auto& i) { return std::string(i.param.nome); });
// clang-format on

class SezioneDoppioTResistenze : public testing::Test {
protected:
    void TearDown() override { RipristinaGenerale(); }

    /// A section of round resistances, factors of EC3.
    static SezioneDoppioT Tonda() {
        GammaM0 = 1;
        GammaM1 = 1;
        SezioneDoppioT s;
        s.fy = 235;
        s.iY = 1;
        s.iZ = 1;
        s.Area = 1000;
        s.b = 50;
        s.tf = 5; // a = (1000 - 500) / 1000 = 0.5
        s.NplRd = 1000;
        s.NbyRd = 800;
        s.NbzRd = 500;
        s.McyRd = 100;
        s.MczRd = 50;
        s.MelyRd = 80;
        s.MelzRd = 40;
        s.Wely = 100;
        s.Wply = 115;
        s.Welz = 100;
        s.Wplz = 150;
        s.BetaMy = 2; // m = 0
        s.BetaMz = 2;
        s.ClassePressoFlessione = 1;
        return s;
    }
};

TEST_F(SezioneDoppioTResistenze, GradeIsThatOfTheCurrentSection) {
    SezioneDoppioT s;
    s.h = 450;
    s.b = 300;
    s.tf = 20;
    s.TipoAcciaio = s460;
    EXPECT_EQ(s.CurvaInstabilita("yy"), "a0");
    auto corrente = std::make_shared<SezioneDoppioT>();
    corrente->TipoAcciaio = s235;
    SezioneCorrente = corrente;
    EXPECT_EQ(s.CurvaInstabilita("yy"), "a");
    corrente->TipoAcciaio = s460;
    s.TipoAcciaio = s235;
    EXPECT_EQ(s.CurvaInstabilita("yy"), "a0");
    SezioneCorrente = std::shared_ptr<SezioneDoppioT>();
    EXPECT_EQ(s.CurvaInstabilita("yy"), "a");
}

TEST_F(SezioneDoppioTResistenze, BucklingResistanceIsChiTimesTheSquashLoad) {
    SezioneDoppioT s = prove::Ipe200();
    s.L0y = 93.9 * 82.6; // relative slenderness 1, curve a
    s.L0z = 93.9 * 22.4; // curve b
    Normativa = normativaEC3;
    ImpostaGamma();
    s.InizializzaSezione();
    EXPECT_NEAR(s.LamdaSegnatoY(), 1, 1e-6);
    EXPECT_NEAR(s.LamdaSegnatoZ(), 1, 1e-6);
    EXPECT_NEAR(s.NbyRd / 1000, 0.6656 * 669.28, 0.05); // 2848 235
    EXPECT_NEAR(s.NbzRd / 1000, 0.5970 * 669.28, 0.05);
    Normativa = normativaNTC;
    ImpostaGamma();
    s.InizializzaSezione();
    EXPECT_NEAR(s.NbyRd / 1000, 0.6656 * 669.28 / 1.05, 0.05);
}

TEST_F(SezioneDoppioTResistenze, NoLengthMeansNoReduction) {
    SezioneDoppioT s = prove::Ipe200();
    s.InizializzaSezione();
    EXPECT_EQ(s.LamdaY(), 0);
    EXPECT_FALSE(s.ErroreDatiDatabase);
    EXPECT_DOUBLE_EQ(s.NbyRd, s.NplRd);
    EXPECT_DOUBLE_EQ(s.NbzRd, s.NplRd);
}

TEST_F(SezioneDoppioTResistenze, ReducedMoments) {
    SezioneDoppioT s = Tonda();
    double MNy = 0;
    double MNz = 0;
    double beta = 0;
    s.NSd = 200; // 100 0.8 / 0.75 is above 100; n under a
    s.MNRd(MNy, MNz, beta);
    EXPECT_EQ(MNy, 100);
    EXPECT_EQ(MNz, 50);
    EXPECT_EQ(beta, 1);
    s.NSd = 600; // 100 0.4 / 0.75; 50 (1 - 0.2^2)
    s.MNRd(MNy, MNz, beta);
    EXPECT_NEAR(MNy, 53.3333, 1e-4);
    EXPECT_NEAR(MNz, 48, 1e-12);
    EXPECT_NEAR(beta, 3, 1e-12);
    s.NSd = 500; // n equal to a
    s.MNRd(MNy, MNz, beta);
    EXPECT_EQ(MNz, 50);
    s.NSd = -300;
    s.MNRd(MNy, MNz, beta);
    EXPECT_EQ(MNy, 100);
    EXPECT_EQ(beta, 1);
}

TEST_F(SezioneDoppioTResistenze, ShareOfTheWebIsAtMostAHalf) {
    SezioneDoppioT s = Tonda();
    s.b = 10; // a would be 0.9
    s.NSd = 600;
    double MNy = 0;
    double MNz = 0;
    double beta = 0;
    s.MNRd(MNy, MNz, beta);
    EXPECT_NEAR(MNy, 53.3333, 1e-4);
    EXPECT_NEAR(MNz, 48, 1e-12);
}

TEST_F(SezioneDoppioTResistenze, SectionInteractionByClass) {
    SezioneDoppioT s = Tonda();
    s.NSd = 600;
    s.Mysd = 40;
    s.Mzsd = 24;
    s.eNy = 0.05;
    s.eNz = 0.02;
    for (const std::int16_t classe : {1, 2}) {
        s.ClassePressoFlessione = classe;
        EXPECT_NEAR(s.InterazioneMNResistenza(), 0.6875, 1e-9); // (40/53.33)^2 + (24/48)^3
    }
    s.ClassePressoFlessione = 3;
    EXPECT_NEAR(s.InterazioneMNResistenza(), 1.7, 1e-9); // 0.6 + 40/80 + 24/40
    s.ClassePressoFlessione = 4;
    EXPECT_NEAR(s.InterazioneMNResistenza(), 2.02, 1e-9); // 0.6 + 70/100 + 36/50
}

TEST_F(SezioneDoppioTResistenze, BucklingInteraction) {
    SezioneDoppioT s = Tonda();
    GammaM1 = 1.25;
    s.NSd = 200;
    s.Mysd = 40;
    s.Mzsd = 24;
    double Py = 0;
    double Pz = 0;
    // muY 0.15, muZ 0.5; kY = 1 - 30/1000, kZ = 1 - 100/625
    EXPECT_NEAR(s.muY(), 0.15, 1e-9);
    EXPECT_NEAR(s.muZ(), 0.5, 1e-9);
    EXPECT_NEAR(s.kY(), 0.97, 1e-9);
    EXPECT_NEAR(s.kZ(), 0.84, 1e-9);
    EXPECT_EQ(s.kYfunz(), s.kY());
    EXPECT_EQ(s.kZfunz(), s.kZ());
    EXPECT_NEAR(s.InterazioneMNInstab(Py, Pz), 0.4 + 0.485 + 0.504, 1e-9);
    EXPECT_NEAR(Py, 0.97 * 40 / 80, 1e-9); // 100 / 1.25
    EXPECT_NEAR(Pz, 0.84 * 24 / 40, 1e-9);
}

TEST_F(SezioneDoppioTResistenze, BucklingInteractionTakesElasticMomentsFromClass3) {
    SezioneDoppioT s = Tonda();
    s.NSd = 200;
    s.Mysd = 40;
    s.Mzsd = 24;
    s.eNy = 0.1;
    s.eNz = 0.05;
    for (const std::int16_t classe : {3, 4}) {
        s.ClassePressoFlessione = classe;
        double Py = 0;
        double Pz = 0;
        // mu 0, k 1
        EXPECT_NEAR(s.InterazioneMNInstab(Py, Pz), 0.4 + 0.75 + 0.85, 1e-7);
        EXPECT_NEAR(Py, 60.0 / 80, 1e-7);
        EXPECT_NEAR(Pz, 34.0 / 40, 1e-7);
    }
}

TEST_F(SezioneDoppioTResistenze, FactorsAreLimited) {
    SezioneDoppioT s = Tonda();
    s.NSd = 400;
    s.L0y = 2 * 93.9; // relative slenderness 2
    s.L0z = 2 * 93.9;
    s.BetaMy = 1.1; // mu = 2 (2.2 - 4) + 0.15 = -3.45: k would be 2.7
    s.BetaMz = 2.5; // mu = 2 + 0.5
    EXPECT_NEAR(s.muY(), -3.45, 1e-5);
    EXPECT_EQ(s.kY(), 1.5);
    EXPECT_EQ(s.muZ(), 0.9);
    EXPECT_NEAR(s.kZ(), 1 - 0.9 * 400 / 500, 1e-12);
}

// What a screen shows needs no section that it could change.
template <typename S>
concept SiMostra = requires(const S& s, double& P) {
    s.LamdaY();
    s.LamdaZ();
    s.LamdaSegnatoY();
    s.LamdaSegnatoZ();
    s.betaA();
    s.muY();
    s.muZ();
    s.muLT();
    s.kY();
    s.kZ();
    s.kLT();
    s.kYfunz();
    s.kZfunz();
    s.NplRdFunz();
    s.InterazioneMNResistenza();
    s.InterazioneMNInstab(P, P);
    s.InterazioneFlessoTorsionale();
};
static_assert(SiMostra<SezioneDoppioT>);

TEST_F(SezioneDoppioTResistenze, ASlendernessThatIsShownSetsNothing) {
    SezioneDoppioT s = Tonda();
    s.iY = 0;
    s.L0y = 3000;
    EXPECT_EQ(std::as_const(s).LamdaY(), 0);
    EXPECT_FALSE(s.ErroreDatiDatabase);
    EXPECT_EQ(s.LamdaY(), 0);
    EXPECT_TRUE(s.ErroreDatiDatabase);
}

TEST_F(SezioneDoppioTResistenze, TermsAddUpToTheInteraction) {
    SezioneDoppioT s = Tonda();
    s.NSd = 200;
    s.Mysd = 40;
    s.Mzsd = 24;
    s.eNy = 0.05;
    s.eNz = 0.02;
    s.MbRd = 90;
    for (const std::int16_t classe : {1, 2, 3, 4}) {
        s.ClassePressoFlessione = classe;
        double Py = 0;
        double Pz = 0;
        const TerminiInterazione instab = s.TerminiMNInstab();
        EXPECT_EQ(instab.Somma(), s.InterazioneMNInstab(Py, Pz));
        EXPECT_EQ(instab.y.Valore(), Py);
        EXPECT_EQ(instab.z.Valore(), Pz);
        EXPECT_EQ(instab.NRd, 500); // the weaker axis
        EXPECT_EQ(s.TerminiMNResistenza().Somma(), s.InterazioneMNResistenza());
        const TerminiInterazione torsionale = s.TerminiFlessoTorsionale();
        EXPECT_EQ(torsionale.Somma(), s.InterazioneFlessoTorsionale());
        EXPECT_EQ(torsionale.y.k, s.kLT());
        EXPECT_EQ(torsionale.z.k, s.kZ());
        EXPECT_NEAR(torsionale.y.M(), 50, 1e-9); // 40 + 200 0.05
    }
}

TEST_F(SezioneDoppioTResistenze, TermsOnTheSectionByClass) {
    SezioneDoppioT s = Tonda();
    s.NSd = 600;
    s.Mysd = 40;
    s.Mzsd = 24;
    s.eNy = 0.05;
    s.eNz = 0.02;
    TerminiInterazione t = s.TerminiMNResistenza();
    EXPECT_EQ(t.N(), 0); // the axial force is in the reduced moments
    EXPECT_NEAR(t.y.MRd, 53.3333, 1e-4);
    EXPECT_EQ(t.y.esponente, 2);
    EXPECT_NEAR(t.z.esponente, 3, 1e-12);
    s.ClassePressoFlessione = 3;
    t = s.TerminiMNResistenza();
    EXPECT_NEAR(t.N(), 0.6, 1e-12);
    EXPECT_EQ(t.y.MRd, 80);
    EXPECT_EQ(t.y.NeN, 0); // class 3 has the whole section's centroid
    s.ClassePressoFlessione = 4;
    t = s.TerminiMNResistenza();
    EXPECT_EQ(t.z.MRd, 50);
    EXPECT_NEAR(t.z.M(), 36, 1e-5);
}

TEST_F(SezioneDoppioTResistenze, AResistanceOfZeroGivesNoFactor) {
    SezioneDoppioT s = Tonda();
    s.NSd = 200;
    s.NbzRd = 0;
    s.BetaMz = 1.1;
    s.L0z = 93.9;
    EXPECT_TRUE(std::isnan(s.kZ())); // mu below 0: the division gives plus infinity
    EXPECT_TRUE(std::isnan(s.kLT()));
    EXPECT_TRUE(std::isfinite(s.kY()));
}

TEST_F(SezioneDoppioTResistenze, DivisionsThatFailAreNoNumbersAndNoLimits) {
    SezioneDoppioT s;
    double Py = 0;
    double Pz = 0;
    s.ClassePressoFlessione = 1;
    EXPECT_FALSE(std::isfinite(s.kY()));
    EXPECT_FALSE(std::isfinite(s.InterazioneMNInstab(Py, Pz)));
    EXPECT_FALSE(std::isfinite(s.InterazioneMNResistenza()));
}

} // namespace
