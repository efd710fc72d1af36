#include "report/TestoRelazione.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <ctime>
#include <limits>
#include <random>
#include <sstream>
#include <string>
#include <vector>

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

std::vector<std::string> Righe(const std::string& testo) {
    std::vector<std::string> lines;
    std::istringstream in(testo);
    for (std::string line; std::getline(in, line);)
        lines.push_back(line);
    return lines;
}

/// The letters that the eye sees: of code points neither combining bars nor what follows the first byte.
std::size_t Viste(const std::string& testo) {
    std::size_t n = 0;
    for (std::size_t i = 0; i < testo.size(); ++i) {
        const unsigned c = static_cast<unsigned char>(testo[i]);
        if (c / 64 == 2)
            continue; // goes on
        const unsigned next = i + 1 < testo.size() ? static_cast<unsigned char>(testo[i + 1]) : 0;
        const unsigned point = c >= 0xC0 && c < 0xE0 ? (c - 0xC0) * 64 + next % 64 : c;
        n += point >= 0x300 && point < 0x370 ? 0 : 1; // U+0300 to U+036F combine
    }
    return n;
}

/// The lines of a report of one note.
std::vector<std::string> Nota(const std::string& nota) {
    Relazione r;
    r.capitoli = {{.titolo = "C", .note = {nota}}};
    std::vector<std::string> lines = Righe(TestoRelazione(r));
    lines.erase(lines.begin(), lines.begin() + 4); // title, program, blank, chapter
    return lines;
}

// As many words as there is room for in 110 columns, none broken and none lost.
TEST(TestoRelazione, ParagraphsAreBrokenAtTheirBlanks) {
    const std::string letters[] = {"a", "è", "λ̅", "β", "x\u0301", "x\u0361", "\u037F", "−"};
    std::mt19937 random(4);
    for (int run = 0; run < 300; ++run) {
        std::vector<std::string> words(1 + random() % 60);
        std::string text;
        for (std::string& word : words) {
            for (std::size_t n = 1 + random() % (run % 10 == 0 ? 130 : 14); n > 0; --n)
                word += letters[random() % 8];
            text += (text.empty() ? "" : " ") + word;
        }
        std::string together;
        const auto lines = Nota(text);
        for (std::size_t i = 0; i < lines.size(); ++i) {
            ASSERT_TRUE(lines[i].starts_with("  ")) << lines[i];
            const std::string line = lines[i].substr(2);
            together += (i == 0 ? "" : " ") + line;
            EXPECT_TRUE(Viste(lines[i]) <= 110 || line.find(' ') == std::string::npos) << lines[i];
            if (i > 0) {
                const std::string first = line.substr(0, line.find(' '));
                EXPECT_GT(Viste(lines[i - 1]) + 1 + Viste(first), 110U) << "there was room for " << first;
            }
        }
        ASSERT_EQ(together, text);
    }
}

TEST(TestoRelazione, ABreakOfTheTextStays) {
    using Testi = std::vector<std::string>;
    EXPECT_EQ(Nota("uno\ndue  tre"), (Testi{"  uno", "  due  tre"}));
    EXPECT_EQ(Nota("\nuno\r\n\r\ndue "), (Testi{"  uno", "", "  due"}));
    EXPECT_EQ(Nota("q"), Testi{"  q"});
    const std::string full(108, 'p');
    EXPECT_EQ(Nota(full.substr(2) + " q"), (Testi{"  " + full.substr(2) + " q"}));
    EXPECT_EQ(Nota(full.substr(1) + " q"), (Testi{"  " + full.substr(1), "  q"}));
}

TEST(TestoRelazione, ColumnsAreCountedByTheEye) {
    Relazione r;
    const auto step = [](const char* simbolo, const char* valore, const char* unita) {
        return PassoRelazione{
            .descrizione = "cosa", .simbolo = simbolo, .valore = valore, .unita = unita, .norma = "N"};
    };
    r.capitoli = {{.titolo = "C",
                   .passi = {step("N{b}", "1", "kN"), step("λ̅{LT}", "−1,5", "mm^{2}"), step("ͿͰ", "∞", "°"),
                             step("quattordici___", "12345678901234", "otto____"),
                             step("quindici_______", "123456789012345", "nove_____")}}};
    const auto lines = Righe(TestoRelazione(r));
    for (std::size_t i = 4; i < 7; ++i)
        EXPECT_EQ(Viste(lines[i]), 2U + 14 + 14 + 2 + 8 + 4 + 5) << lines[i];
    EXPECT_EQ(lines[4], "  Nb                         1  kN      cosa  [N]");
    EXPECT_EQ(lines[5], "  λ̅LT                     −1,5  mm²     cosa  [N]");
    EXPECT_EQ(lines[7], "  quattordici___12345678901234  otto____cosa  [N]");
    EXPECT_EQ(lines[8], "  quindici_______123456789012345  nove_____cosa  [N]");
}

// All that a report can hold.
TEST(TestoRelazione, EveryPartHasItsPlace) {
    Relazione r{.titolo = "T", .oggetto = "O"};
    r.capitoli = {
        {.titolo = "Primo",
         .passi = {{.descrizione = "parola", .valore = "valore", .unita = "m^{2}", .norma = "N 1"},
                   {.descrizione = "senza valore"},
                   {.descrizione = "formula sola", .formula = "a{b}"},
                   {.descrizione = "propria", .simbolo = "s", .formula = "\nx = 1\ny = 2", .valore = "3"}},
         .note = {"nota x{1}"},
         .verdetto = VerdettoRelazione{.verifica = "V", .norma = "N 2"}},
        {.titolo = "Secondo",
         .verdetto = VerdettoRelazione{
             .verifica = "W", .esito = EsitoRelazione::Passa, .utilizzo = 0.5, .governa = "M{y}"}}};
    r.avvisi = {"uno", "due{x}"};
    EXPECT_EQ(TestoRelazione(r), "T: O\n" + ProgrammaRelazione() +
                                     "\n\nPrimo\n"
                                     "  parola: valore m²  [N 1]\n"
                                     "  senza valore: -\n"
                                     "                             -          formula sola\n"
                                     "                = ab\n"
                                     "  s                          3          propria\n"
                                     "                  x = 1\n"
                                     "                  y = 2\n"
                                     "  nota x1\n"
                                     "  V: -  [N 2]\n"
                                     "\nSecondo\n"
                                     "  W: OK, utilizzo 50.0 %, governa My\n"
                                     "\navviso: uno\navviso: due{x}\n");
}

TEST(TestoRelazione, EveryFigureCanBeRaised) {
    EXPECT_EQ(SenzaPedici("x^{0123456789-}"), "x⁰¹²³⁴⁵⁶⁷⁸⁹⁻");
    EXPECT_EQ(SenzaPedici("^{2}"), "²");
    EXPECT_EQ(SenzaPedici("{a}{b}c^{3}{d}"), "abc³d");
    for (const char* parts : {"a b", "a/b", "a·b", "a+b"})
        EXPECT_EQ(SenzaPedici("x^{" + std::string(parts) + "}y"), "x^(" + std::string(parts) + ")y");
    EXPECT_EQ(SenzaPedici("x^{2a}"), "x^2a");
    EXPECT_EQ(SenzaPedici("x^{/}"), "x^(/)");
    EXPECT_EQ(SenzaPedici("x^{:}"), "x^:");
    EXPECT_EQ(SenzaPedici("a} {b"), "a} {b");
}

// A comma between two figures is the separator; elsewhere it stays.
TEST(Relazione, CommasOfFormulasFollowTheSeparator) {
    CapitoloRelazione c{.passi = {{.descrizione = "1,5, e 2, 3,a", .formula = ",5 0,2 9,", .numeri = "0,9"}}};
    AdattaDecimali(c);
    EXPECT_EQ(c.passi[0].descrizione, "1.5, e 2, 3,a");
    EXPECT_EQ(c.passi[0].formula, ",5 0.2 9,");
    EXPECT_EQ(c.passi[0].numeri, "0.9");
}

TEST(Relazione, AUtilisationUpToOnePasses) {
    EXPECT_EQ(VerdettoRelazione::Da(1), EsitoRelazione::Passa);
    EXPECT_EQ(VerdettoRelazione::Da(0), EsitoRelazione::Passa);
    EXPECT_EQ(VerdettoRelazione::Da(std::nextafter(1.0, 2.0)), EsitoRelazione::NonPassa);
    EXPECT_EQ(VerdettoRelazione::Da(std::numeric_limits<double>::infinity()), EsitoRelazione::NonPassa);
    EXPECT_EQ(VerdettoRelazione::Da(std::nan("")), EsitoRelazione::Assente);
    EXPECT_EQ(TestoUtilizzo(std::nan("")), "");
    EXPECT_EQ(TestoEsito(EsitoRelazione::Assente), "-");
}

// Today as day, month and year.
TEST(Relazione, TheDateIsToday) {
    const auto today = [] {
        const std::time_t now = std::time(nullptr);
        const std::tm* day = std::localtime(&now);
        char text[40];
        std::snprintf(text, sizeof text, "%02d/%02d/%04d", day->tm_mday, day->tm_mon + 1,
                      day->tm_year + 1900);
        return std::string(text);
    };
    const std::string before = today(), date = DataRelazione();
    EXPECT_TRUE(date == before || date == today()) << date;
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
