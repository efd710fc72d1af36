#include "report/TestoRelazione.h"

#include <gtest/gtest.h>

#include "report/Relazione.h"

using namespace sagomi;

namespace {

TEST(TestoRelazione, SubscriptsRunOnAndSuperscriptsAreRaised) {
    EXPECT_EQ(SenzaPedici("N{b,y,Rd}"), "Nb,y,Rd");
    EXPECT_EQ(SenzaPedici("mm^{2}"), "mm²");
    EXPECT_EQ(SenzaPedici("10^{-6}"), "10⁻⁶");
    EXPECT_EQ(SenzaPedici("(a)^{α} + {b}"), "(a)^α + b");
    EXPECT_EQ(SenzaPedici("aperta {"), "aperta {");
    EXPECT_EQ(SenzaPedici(""), "");
}

TEST(TestoRelazione, AStepHasItsFormulaBelow) {
    Relazione r{.titolo = "Prova", .oggetto = "IPE 300", .progetto = "Capannone", .data = "01/02/2026"};
    r.capitoli = {{.titolo = "Resistenza",
                   .passi = {{.descrizione = "Forza assiale",
                              .simbolo = "N{pl,Rd}",
                              .formula = "A f{y} / γ{M0}",
                              .numeri = "5381 · 235 / 1.05 · 10^{-3}",
                              .valore = "1204.3",
                              .unita = "kN",
                              .norma = "ENV 1993-1-1 5.4.4"},
                             {.descrizione = "Acciaio", .valore = "S235"}},
                   .verdetto = VerdettoRelazione{.verifica = "Sezione",
                                                 .esito = EsitoRelazione::NonPassa,
                                                 .utilizzo = 1.25,
                                                 .governa = "M{y}",
                                                 .motivo = "perché no"}}};
    const std::string testo = TestoRelazione(r);
    EXPECT_EQ(testo.find("Prova: IPE 300\nProgetto: Capannone\nData: 01/02/2026  Sagomi "), 0U) << testo;
    EXPECT_NE(testo.find("  Npl,Rd                1204.3  kN      Forza assiale  [ENV 1993-1-1 5.4.4]\n"),
              std::string::npos)
        << testo;
    EXPECT_NE(testo.find("\n                = A fy / γM0\n                = 5381 · 235 / 1.05 · 10⁻³\n"),
              std::string::npos)
        << testo;
    EXPECT_NE(testo.find("\n  Acciaio: S235\n"), std::string::npos) << testo;
    EXPECT_NE(testo.find("  Sezione: NO, utilizzo 125.0 %, governa My\n    perché no\n"), std::string::npos)
        << testo;
}

TEST(Relazione, PassesWhenEveryVerdictDoes) {
    Relazione r;
    EXPECT_EQ(r.Esito(), EsitoRelazione::Assente);
    r.capitoli.resize(3);
    r.capitoli[0].verdetto = VerdettoRelazione{.esito = EsitoRelazione::Passa};
    EXPECT_EQ(r.Esito(), EsitoRelazione::Passa);
    r.capitoli[1].verdetto = VerdettoRelazione{};
    EXPECT_EQ(r.Esito(), EsitoRelazione::Assente);
    r.capitoli[2].verdetto = VerdettoRelazione{.esito = EsitoRelazione::NonPassa};
    EXPECT_EQ(r.Esito(), EsitoRelazione::NonPassa);
}

TEST(TestoRelazione, AnExponentOfSeveralPartsIsHeldTogether) {
    EXPECT_EQ(SenzaPedici("(f{ck} + 8)^{1 / 3}"), "(fck + 8)^(1 / 3)");
    EXPECT_EQ(SenzaPedici("x^{α} 10^{-6}"), "x^α 10⁻⁶");
}

} // namespace
