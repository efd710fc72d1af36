#include "report/RelazioneTrave.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "Registratore.h"
#include "composite/AcciaioCls.h"
#include "composite/VerificaTrave.h"
#include "frame/FileDati.h"
#include "frame/GeneraleSagomi.h"
#include "report/CapitoloConnettori.h"
#include "report/Passi.h"
#include "sections/SezioneInForza.h"

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
    /// A beam of a file after its plastic check in sagging.
    static AcciaioCls Verificata(const std::string& nome) {
        AcciaioCls t = Letta(nome);
        t.TipoVerifica = sluPositivo;
        const SezioneInForza propria(t.Sezione);
        EXPECT_TRUE(VerificaTrave(t).validi);
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
    EXPECT_NEAR(ConPunto(Passo(r, "P{Rd,2}").valore), 73.1, 0.01);
    EXPECT_EQ(Passo(r, "P{Rd}").valore, Passo(r, "P{Rd,2}").valore) << "the concrete governs";
    const double nf = ConPunto(Passo(r, "n{f}").valore);
    EXPECT_EQ(Passo(r, "n{c}").valore, std::to_string(2 * static_cast<int>(std::ceil(nf))));
    EXPECT_NEAR(ConPunto(Passo(r, "s").valore), 8500 / (ConPunto(Passo(r, "n{c}").valore) - 1), 1);
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
        const double MRd = ConPunto(Passo(r, "M{Rd}").valore);
        const double Ma = ConPunto(Passo(r, "M{a,pl,Rd}").valore);
        const double np = ConPunto(Passo(r, "n{p}").valore);
        EXPECT_GE(MRd, Msd - 0.1);
        if (Nr == 1 && np > 2) {
            EXPECT_LT(Ma + (MRd - Ma) * (np - 2) / np, Msd);
        }
        EXPECT_LE(np, ConPunto(Passo(r, "n{c}").valore));
        EXPECT_EQ(r.capitoli.back().note.size(), 3U) << "the file has no strength and no factor of the "
                                                        "studs; the least degree is left to the engineer";
    }
}

// A moment as great as the plastic one needs all studs.
TEST_F(RelazioneTraveTest, TheWholeMomentLeavesNoPartialConnection) {
    AcciaioCls t = Verificata("piena");
    t.Msd = t.MplRd * 0.9;
    Relazione r;
    r.capitoli = {CapitoloConnettori(t).value_or(CapitoloRelazione())};
    EXPECT_TRUE(Ha(r, "n{c}"));
    EXPECT_TRUE(Ha(r, "n{p}"));
    t.Msd = t.MplRd;
    r.capitoli = {CapitoloConnettori(t).value_or(CapitoloRelazione())};
    EXPECT_TRUE(Ha(r, "n{c}"));
    EXPECT_FALSE(Ha(r, "n{p}"));
}

// Half a beam of 8 m has 13 ribs at 300 mm. A little more than 13 single studs bear needs one rib of two.
TEST_F(RelazioneTraveTest, OneRibOfTwoStudsIsAdvised) {
    AcciaioCls t = Verificata("trasversale");
    t.Luce = 8;
    t.iNervature = 300;
    t.dPiolo = 19;
    t.hPiolo = 100;
    t.fu = 450;
    t.GammaV = 1.25;
    t.Nr = 1;
    Relazione r;
    r.capitoli = {CapitoloConnettori(t).value_or(CapitoloRelazione())};
    const double PRd = ConPunto(Passo(r, "P{Rd}").valore) * 1e3;
    const auto nota = [&](double connettori) {
        t.Vl = connettori * PRd;
        return CapitoloConnettori(t).value_or(CapitoloRelazione()).note.front();
    };
    EXPECT_EQ(nota(13.1), "Dove si ha taglio massimo disporre 2 connettori per nervatura");
    EXPECT_EQ(nota(12.9).find("Dove si ha"), std::string::npos);
}

// EC4 6.3.3.1: of a stud in ribs along the beam no more than 75 mm above the deck count.
TEST_F(RelazioneTraveTest, ATallStudCountsAsFarAs75AboveTheDeck) {
    AcciaioCls t = Letta("parallela");
    t.TipoVerifica = sluPositivo;
    t.hc = 220;
    t.dPiolo = 19;
    t.fu = 450;
    t.GammaV = 1.25;
    t.Luce = 8;
    t.hPiolo = 160; // of 73.5 + 75
    const Relazione r = RelazioneTraveVerificata(t);
    EXPECT_NE(Passo(r, "k").numeri.find("(148.5 / 73.5 − 1)"), std::string::npos) << Passo(r, "k").numeri;
}

// Half a millimetre of slab lies above the steel all the same.
TEST_F(RelazioneTraveTest, AThinSlabHasItsEdgeAbove) {
    AcciaioCls t = Letta("piena");
    t.TipoVerifica = metodoNNegativo;
    t.Msd = -60e6;
    t.hc = 0.5;
    t.c = 0.25;
    EXPECT_EQ(Passo(RelazioneTraveVerificata(t), "σ{c}").descrizione, "Bordo superiore del calcestruzzo");
}

TEST_F(RelazioneTraveTest, StudsThatDoNotFitSayWhy) {
    AcciaioCls t = Letta("piena");
    t.TipoVerifica = sluPositivo;
    t.hPiolo = 130; // in a slab of 120
    const Relazione r = RelazioneTraveVerificata(t);
    EXPECT_EQ(r.capitoli.back().note.back(), "Il piolo esce dalla soletta!");
    EXPECT_FALSE(Ha(r, "P{Rd}"));
    EXPECT_TRUE(quiet.testi.empty());
    t.hPiolo = 1; // a stud all the same
    EXPECT_EQ(RelazioneTraveVerificata(t).capitoli.back().titolo, "Connettori a piolo");
    AcciaioCls sottile = Verificata("piena");
    sottile.dPiolo = 1;
    EXPECT_TRUE(CapitoloConnettori(sottile));
    sottile.Vl = 0.5; // N
    EXPECT_TRUE(CapitoloConnettori(sottile));
    t.hPiolo = 0;
    EXPECT_NE(RelazioneTraveVerificata(t).capitoli.back().titolo, "Connettori a piolo");
}

} // namespace
