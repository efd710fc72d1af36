#include "report/RelazioneTrave.h"

#include <gtest/gtest.h>

#include "Registratore.h"
#include "composite/AcciaioCls.h"
#include "frame/FileDati.h"
#include "frame/GeneraleSagomi.h"
#include "report/Passi.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

class RelazioneTraveTest : public testing::Test {
protected:
    void TearDown() override { RipristinaGenerale(); }
    static AcciaioCls Letta(const std::string& nome) {
        AcciaioCls t;
        const std::int16_t n = ApreFile(std::string(SAGOMI_TEST_DATA "/composite/") + nome + ".sco", "L");
        EXPECT_TRUE(t.FileLeggeScrive("L", n));
        ChiudeFile(n);
        return t;
    }

    Registratore quiet;
};

// The moment of the forces about the lower fibre is that of the model, whatever the branch; so are stresses.
TEST_F(RelazioneTraveTest, NumbersPutInGiveTheValues) {
    for (const char* nome : {"piena", "sotto", "parallela", "trasversale"})
        for (const std::int16_t tipo : {sluPositivo, sluNegativo, metodoNPositivo, metodoNNegativo})
            for (const double barre : {0.0, 1000.0, 30000.0}) {
                SCOPED_TRACE(std::string(nome) + ' ' + std::to_string(tipo) + ' ' + std::to_string(barre));
                AcciaioCls t = Letta(nome);
                t.TipoVerifica = tipo;
                t.As = barre;
                const Relazione r = RelazioneTraveVerificata(t);
                ProvaNumeri(r);
                if (Ha(r, tipo < metodoNPositivo ? "M{pl,Rd}" : "σ{c}")) {
                    EXPECT_NE(Passo(r, tipo < metodoNPositivo ? "y{pl}" : "y{G}").norma, "");
                    EXPECT_NE(Passo(r, tipo < metodoNPositivo ? "M{pl,Rd}" : "J{id}").formula, "");
                }
            }
}

TEST_F(RelazioneTraveTest, APlasticCheckHasItsFormulas) {
    AcciaioCls t = Letta("piena");
    t.TipoVerifica = sluPositivo;
    const Relazione r = RelazioneTraveVerificata(t);
    for (const char* simbolo : {"y{pl}", "M{pl,Rd}", "M{a,pl,Rd}", "V{l}", "f{yd}", "f{cd}", "f{sd}"}) {
        EXPECT_NE(Passo(r, simbolo).formula, "") << simbolo;
        EXPECT_NE(Passo(r, simbolo).norma, "") << simbolo;
    }
}

TEST_F(RelazioneTraveTest, AnElasticCheckHasItsFormulas) {
    AcciaioCls t = Letta("piena");
    t.TipoVerifica = metodoNPositivo;
    const Relazione r = RelazioneTraveVerificata(t);
    for (const char* simbolo :
         {"y{N}", "y{G}", "J{id}", "S{s}", "σ{c}", "σ{s}", "σ{a,sup}", "σ{a,inf}", "V{l}"}) {
        EXPECT_NE(Passo(r, simbolo).formula, "") << simbolo;
        EXPECT_NE(Passo(r, simbolo).norma, "") << simbolo;
    }
    for (const char* simbolo : {"σ{c}", "σ{s}", "σ{a,sup}", "σ{a,inf}"})
        EXPECT_NE(Passo(r, simbolo).numeri, "") << simbolo;
}

} // namespace
