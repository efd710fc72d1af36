#include "frame/GeneraleSagomi.h"

#include <gtest/gtest.h>

using namespace sagomi;

namespace {

struct CasoGamma {
    const char* nome;
    std::int16_t normativa;
    double altro0, altro1, altro2;
    float m0, m1, m2;
    const char* caption;
};
void PrintTo(const CasoGamma& c, std::ostream* os) { *os << c.nome; }

class ImpostaGammaTest : public testing::TestWithParam<CasoGamma> {
protected:
    void TearDown() override { RipristinaGenerale(); }
};

TEST_P(ImpostaGammaTest, Tabella) {
    const CasoGamma& c = GetParam();
    Normativa = c.normativa;
    GammaM0Altro = c.altro0;
    GammaM1Altro = c.altro1;
    GammaM2Altro = c.altro2;
    ImpostaGamma();
    EXPECT_EQ(GammaM0.Stretto(), c.m0);
    EXPECT_EQ(GammaM1.Stretto(), c.m1);
    EXPECT_EQ(GammaM2.Stretto(), c.m2);
    EXPECT_EQ(NomeNormativa(), c.caption);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Normative, ImpostaGammaTest, testing::Values(
    CasoGamma{"NTC",            0, 2, 3, 4,     1.05F, 1.05F, 1.25F, "NTC"},
    CasoGamma{"EC3",            1, 2, 3, 4,     1.F,   1.F,   1.25F, "EC3"},
    CasoGamma{"Altro",          2, 1.1, 1.2, 1.3, 1.1F, 1.2F, 1.3F,  "Altro"},
    CasoGamma{"AltroZeroConta1", 2, 0, 1.2, 0,   1.F,   1.2F, 1.F,   "Altro"}),
    [](const auto& i) { return std::string(i.param.nome); });
// clang-format on

TEST(GeneraleSagomi, StartsWithThreeGradesAndSevenBoltClasses) {
    EXPECT_EQ(NumAcciai, 3);
    EXPECT_EQ(NomeAcciaio[3], "S355 (Fe510)");
    EXPECT_EQ(fuAcciaio[2].Stretto(), 430.F);
    EXPECT_EQ(ClasseBullone[7].Stretto(), 10.9F);
    EXPECT_THROW(NomeAcciaio[0], std::out_of_range);
    EXPECT_THROW(NomeAcciaio[4], std::out_of_range);
}

TEST(GeneraleSagomi, IsAValueThatALongJobCanTakeAndPutBack) {
    const Generale prima = generale;
    Normativa = normativaEC3;
    ImpostaGamma();
    NomeAcciaio = {"mio"};
    generale.fck = 50;
    EXPECT_EQ(fck, 50) << "the names are those of the members";
    generale = prima;
    EXPECT_EQ(GammaM0.Stretto(), 1.05F);
    EXPECT_EQ(NomeAcciaio.n(), 3);
    EXPECT_EQ(fck, 25);
}

struct Cliente : OsservatoreSezione {
    int cambi = 0;
    void SagomoCambiato() override { ++cambi; }
    void SagomiQuittato() override {}
};

TEST(GeneraleSagomi, AnObserverThatDiesUnplugsItselfFromEveryCopy) {
    Generale copia;
    {
        Cliente cliente;
        OggettoServer = &cliente;
        OggettoServer->SagomoCambiato();
        EXPECT_EQ(cliente.cambi, 1);
        copia = generale;
    }
    EXPECT_TRUE(OggettoServer == nullptr);
    generale = copia;
    EXPECT_TRUE(OggettoServer == nullptr);
    RipristinaGenerale();
}

} // namespace
