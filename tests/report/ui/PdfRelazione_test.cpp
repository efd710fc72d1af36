#include "report/ui/PdfRelazione.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <regex>
#include <sstream>

#include "Registratore.h"
#include "TestoPdf.h"
#include "choice/Comando.h"
#include "frame/Ambiente.h"
#include "frame/FileDati.h"
#include "joints/NodoDaFile.h"
#include "report/Relazione.h"

using namespace sagomi;
using namespace sagomi::prove;
namespace fs = std::filesystem;

namespace {

class PdfRelazioneTest : public testing::Test {
protected:
    void SetUp() override {
        if (!ConLettorePdf())
            GTEST_SKIP() << "no pdftotext";
        ImpostaPdfRelazione();
    }
    void TearDown() override { RipristinaGenerale(); }

    /// The text of the PDF that a command writes.
    std::string Pdf(std::vector<std::string> argomenti) {
        const fs::path file = cartella / "o.pdf";
        argomenti.insert(argomenti.end(), {"--pdf", file.string(), "--progetto", "Capannone à Sesto"});
        std::istringstream ingresso;
        std::ostringstream uscita, errori;
        esito = EsegueComando(argomenti, SAGOMI_BIN, ingresso, uscita, errori).value_or(-1);
        EXPECT_TRUE(errori.str().empty()) << errori.str();
        if (const char* tieni = std::getenv("SAGOMI_TIENI_PDF")) // to be looked at
            fs::copy_file(
                file,
                fs::path(tieni) /
                    (std::string(testing::UnitTest::GetInstance()->current_test_info()->name()) + ".pdf"),
                fs::copy_options::overwrite_existing);
        return TestoPdf(file.string());
    }
    static void Ha(const std::string& testo, std::initializer_list<const char*> attesi) {
        for (const char* atteso : attesi)
            EXPECT_TRUE(std::regex_search(testo, std::regex(atteso))) << atteso << '\n' << testo;
    }

    CartellaDiProva prova;
    fs::path cartella = prova.percorso;
    int esito = -1;
};

// IPE 300 in S275 after EC3: A 5381 mm2, Wpl 628.4 cm3. Npl = 5381 x 275 = 1479.775 kN, Mc = 172.81 kNm;
// slenderness 5000/124.6 = 40.13, relative 40.13/(93.9 x 0.9244) = 0.4623.
TEST_F(PdfRelazioneTest, ASectionHasItsStepsWithFormulaAndClause) {
    const std::string testo = Pdf({"IPE 300", "--acciaio", "S275", "--normativa", "EC3", "--N", "100", "--My",
                                   "50", "--L0y", "5", "--L0z", "2.5"});
    EXPECT_EQ(esito, comandoVerificato);
    Ha(testo, {"Capannone à Sesto", "IPE 300", "pagina 1 di [2-6]", "pagina 2 di [2-6]", "1479\\.775 +kN",
               "172\\.81 +kNm", "40\\.13", "0\\.4623", "5\\.5\\.1\\.2", "5381 · 275 / 1",
               "Stabilità flesso-torsionale", "OK", "utilizzo [0-9.]+ %"});
}

TEST_F(PdfRelazioneTest, ACheckThatFailsSaysSo) {
    const std::string testo = Pdf({"IPE 300", "--N", "9000", "--L0y", "5", "--L0z", "2.5"});
    EXPECT_EQ(esito, comandoNonVerificato);
    Ha(testo, {"NO", "supera da sola"});
}

TEST_F(PdfRelazioneTest, ABeamHasItsSlab) {
    const std::string testo = Pdf({SAGOMI_TEST_DATA "/composite/piena.sco"});
    Ha(testo, {"Solaio A", "Spessore della soletta", "223\\.8 +N/mm", "Momento resistente"});
}

TEST_F(PdfRelazioneTest, AJointHasItsDerivation) {
    static const auto casi = LeggeCasi(SAGOMI_TEST_DATA "/joints/verifiche.txt");
    const fs::path file = cartella / "nodo.gfl";
    {
        const Registratore quiet;
        NodoDaFile caso(casi.front(), false);
        caso.nodo.EsegueCalcolo();
        caso.nodo.PreparaSalvataggio();
        const std::int16_t nFile = ApreFile(file, "S");
        std::string descrizione = "Nodo di prova";
        ASSERT_TRUE(FileInOut("S", nFile, {&descrizione}) && caso.nodo.Input_Output("S", nFile));
        ChiudeFile(nFile);
        RipristinaGenerale();
    }
    const std::string testo = Pdf({file.string(), "--normativa", "EC3"});
    Ha(testo, {"Nodo di prova", "Colonna +HEM 280", "γ ?M1 +1", "Trave destra, luce +L +4\\.5 +m",
               "f ?ub +800 +N/mm", "Giunto destro, classe dei bulloni +8\\.8", "due travi|una trave",
               "cautelativo|analitico", "irrigidiment", "Passi del calcolo, giunto destro", "73\\.25 +mm",
               "462\\.4 +kN", "Momento resistente del giunto"});
}

// Whatever the number of its lines, no line of a chapter stands alone on a page.
TEST_F(PdfRelazioneTest, NoLineOfAChapterStandsAlone) {
    const fs::path file = cartella / "righe.pdf";
    for (int rows = 26; rows < 46; ++rows) {
        Relazione r{.titolo = "Prova", .oggetto = "righe"};
        r.capitoli.push_back({.titolo = "Primo"});
        for (int i = 0; i < rows; ++i)
            r.capitoli.front().passi.push_back(
                {.descrizione = "passo", .simbolo = "s", .formula = "a + b", .valore = "1", .norma = "EC3"});
        ScrivePdfRelazione(r, file);
        std::istringstream pages(TestoPdf(file.string()));
        int whole = 0;
        for (std::string page; std::getline(pages, page, '\f');) {
            int here = 0;
            for (std::size_t at = page.find("passo"); at != std::string::npos;
                 at = page.find("passo", at + 1))
                ++here;
            EXPECT_NE(here, 1) << rows << " lines:\n" << page;
            whole += here;
        }
        EXPECT_EQ(whole, rows);
    }
}

TEST_F(PdfRelazioneTest, AFileThatCannotBeWrittenIsTold) {
    EXPECT_THROW(ScrivePdfRelazione({.titolo = "x"}, cartella / "manca" / "o.pdf"), std::runtime_error);
}

} // namespace
