#include "fasteners/Saldatura.h"

#include <gtest/gtest.h>

#include "Registratore.h"
#include "fasteners/CasiBulloni.h"
#include "frame/Errori.h"

using namespace sagomi;
using prove::CasoDaFile;

namespace {

// The five strengths with three partial factors; tests/data/fasteners/riferimento.py computes them in
// fractions.
class SaldaturaTabelle : public testing::TestWithParam<CasoDaFile> {
protected:
    void TearDown() override { RipristinaGenerale(); }
};

TEST_P(SaldaturaTabelle, AgreesWithTheSecondDerivation) {
    const auto& [nome, dati, attesi] = GetParam();
    GammaM2 = prove::NumeroDaTesto(dati.at("gamma"));
    Saldatura s;
    s.fu = prove::NumeroDaTesto(dati.at("fu"));
    EXPECT_EQ(s.betaW().Stretto(), static_cast<float>(prove::NumeroDaTesto(attesi.at("betaW"))));
    const double atteso = prove::NumeroDaTesto(attesi.at("fvwd"));
    EXPECT_NEAR(s.fvwd(), atteso, 1e-6 * atteso);
}

INSTANTIATE_TEST_SUITE_P(Cordoni, SaldaturaTabelle,
                         testing::ValuesIn(prove::LeggeCasi(std::string(SAGOMI_TEST_DATA) +
                                                            "/fasteners/saldature.txt")),
                         [](const auto& i) { return prove::NomeDiProva(i.param.nome); });

class SaldaturaTest : public testing::Test {
protected:
    void TearDown() override { RipristinaGenerale(); }
    prove::Registratore registratore;
};

// Design strengths of fillet welds by the simplified method, gamma M2 1.25, as design guides to EN 1993-1-8
// tabulate them: 208 N/mm2 for fu 360, 249 for fu 540. By hand: 430 / 1.73205 / 0.85 / 1.25 = 233.66.
TEST_F(SaldaturaTest, PublishedStrengths) {
    const std::pair<double, double> casi[] = {{360, 208}, {430, 233.7}, {540, 249}};
    for (const auto& [fu, atteso] : casi) {
        Saldatura s;
        s.fu = fu;
        EXPECT_NEAR(s.fvwd(), atteso, 0.5);
    }
    EXPECT_TRUE(registratore.testi.empty());
}

TEST_F(SaldaturaTest, StrengthsOf520And540HaveTheSameFactor) {
    Saldatura s;
    s.fu = 520;
    const float minore = s.betaW().Stretto();
    s.fu = 540;
    EXPECT_EQ(s.betaW().Stretto(), minore);
    EXPECT_EQ(minore, 1.F);
}

TEST_F(SaldaturaTest, StrengthBetweenTheTabulatedOnesIsRefused) {
    for (const double fu : {400.0, 0.0, 359.0, 430.5, 550.0}) {
        Saldatura s;
        s.fu = fu;
        EXPECT_EQ(s.betaW().Stretto(), 0.F) << fu;
        EXPECT_THROW((void)s.fvwd(), ErroreAritmetico) << fu;
        ASSERT_EQ(registratore.messaggi.size(), 2U) << "once from each question";
        for (const Messaggio& m : registratore.messaggi) {
            EXPECT_EQ(m.testo, "Valore di fu non previsto");
            EXPECT_EQ(m.icona, Icona::Stop);
        }
        registratore.messaggi.clear();
    }
}

TEST_F(SaldaturaTest, FactorIsReadAtEachEvaluation) {
    Saldatura s;
    s.fu = 360;
    const double prima = s.fvwd();
    GammaM2 = 2.5;
    EXPECT_NEAR(s.fvwd(), prima / 2, 1e-4);
}

} // namespace
