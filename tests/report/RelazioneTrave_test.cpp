#include "report/RelazioneTrave.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

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

// By hand: 0.8 450 pi 19^2 / 4 / 1.25 = 81656 N; Ecm = 9500 33^(1/3) = 30472, 0.29 361 sqrt(25 30472) / 1.25
// = 73101 N.
TEST_F(RelazioneTraveTest, StudsHaveTheirChapter) {
    AcciaioCls t = Letta("piena");
    t.TipoVerifica = sluPositivo;
    t.fu = 450;
    t.GammaV = 1.25;
    const Relazione r = RelazioneTraveVerificata(t);
    ASSERT_EQ(r.capitoli.back().titolo, "Connettori a piolo");
    EXPECT_EQ(r.capitoli.back().note.size(), 1U) << "what stays with the engineer, nothing assumed";
    EXPECT_EQ(Passo(r, "P{Rd,1}").valore, "81.656");
    EXPECT_NEAR(std::stod(Passo(r, "P{Rd,2}").valore), 73.1, 0.01);
    EXPECT_EQ(Passo(r, "P{Rd}").valore, Passo(r, "P{Rd,2}").valore) << "the concrete governs";
    const double nf = std::stod(Passo(r, "n{f}").valore);
    EXPECT_EQ(Passo(r, "n{c}").valore, std::to_string(2 * static_cast<int>(std::ceil(nf))));
    EXPECT_NEAR(std::stod(Passo(r, "s").valore), 8500 / (std::stod(Passo(r, "n{c}").valore) - 1), 1);
    for (const char* simbolo :
         {"E{cm}", "α", "P{Rd,1}", "P{Rd,2}", "P{Rd}", "n{f}", "n{c}", "n{p}", "M{Rd}"}) {
        EXPECT_NE(Passo(r, simbolo).formula, "") << simbolo;
        EXPECT_NE(Passo(r, simbolo).norma, "") << simbolo;
    }
}

// As many as the moment asks for: these bear it, two fewer do not.
TEST_F(RelazioneTraveTest, PartialConnectionBearsTheMomentWithNoStudTooMany) {
    for (const std::int16_t Nr : {std::int16_t{1}, std::int16_t{2}}) {
        AcciaioCls t = Letta("piena");
        t.TipoVerifica = sluPositivo;
        t.Nr = Nr;
        const Relazione r = RelazioneTraveVerificata(t);
        const double Msd = t.Msd / 1e6;
        const double MRd = std::stod(Passo(r, "M{Rd}").valore);
        const double Ma = std::stod(Passo(r, "M{a,pl,Rd}").valore);
        const double np = std::stod(Passo(r, "n{p}").valore);
        EXPECT_GE(MRd, Msd - 0.1);
        if (Nr == 1 && np > 2) {
            EXPECT_LT(Ma + (MRd - Ma) * (np - 2) / np, Msd);
        }
        EXPECT_LE(np, std::stod(Passo(r, "n{c}").valore));
        EXPECT_EQ(r.capitoli.back().note.size(), 3U) << "the file has no strength and no factor of the "
                                                        "studs; the least degree is left to the engineer";
    }
}

TEST_F(RelazioneTraveTest, StudsThatDoNotFitSayWhy) {
    AcciaioCls t = Letta("piena");
    t.TipoVerifica = sluPositivo;
    t.hPiolo = 130; // in a slab of 120
    const Relazione r = RelazioneTraveVerificata(t);
    EXPECT_EQ(r.capitoli.back().note.back(), "Il piolo esce dalla soletta!");
    EXPECT_FALSE(Ha(r, "P{Rd}"));
    EXPECT_TRUE(quiet.testi.empty());
    t.hPiolo = 0;
    EXPECT_NE(RelazioneTraveVerificata(t).capitoli.back().titolo, "Connettori a piolo");
}

} // namespace
