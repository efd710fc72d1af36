#include "choice/FileRelazione.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <functional>
#include <sstream>

#include "Approvato.h"
#include "Registratore.h"
#include "choice/Comando.h"
#include "choice/Opzioni.h"
#include "choice/RelazioneVerifica.h"
#include "choice/Scelta.h"
#include "frame/Ambiente.h"
#include "frame/FileDati.h"
#include "joints/NodoDaFile.h"
#include "report/ScritturaPdf.h"
#include "report/TestoRelazione.h"

using namespace sagomi;
using namespace sagomi::prove;
namespace fs = std::filesystem;

namespace {

constexpr const char* travi = SAGOMI_TEST_DATA "/composite/";

std::string Byte(const fs::path& file) {
    std::ifstream f(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(f), std::istreambuf_iterator<char>()};
}

class FileRelazioneTest : public testing::Test {
protected:
    void TearDown() override {
        RipristinaGenerale();
        ImpostaScritturaPdf({});
    }

    int Esegue(const std::vector<std::string>& argomenti) {
        std::istringstream ingresso;
        uscita.str("");
        errori.str("");
        return EsegueComando(argomenti, SAGOMI_BIN, ingresso, uscita, errori).value_or(-1);
    }
    [[nodiscard]] std::string Via(const std::string& nome) const { return (cartella / nome).string(); }
    [[nodiscard]] std::string Letto(const std::string& nome) const { return Byte(cartella / nome); }

    /// Saves a case of the table of checks as the joint screen does.
    std::string Salvato(int numero, bool calcola = true) {
        const Registratore quiet;
        static const auto casi = LeggeCasi(SAGOMI_TEST_DATA "/joints/verifiche.txt");
        NodoDaFile caso(casi.at(static_cast<std::size_t>(numero - 1)), false);
        if (calcola)
            caso.nodo.EsegueCalcolo();
        caso.nodo.PreparaSalvataggio();
        const fs::path file = cartella / "nodo 12.Gfl";
        const std::int16_t nFile = ApreFile(file, "S");
        std::string descrizione = "Nodo di prova, però leggero";
        EXPECT_TRUE(FileInOut("S", nFile, {&descrizione}) && caso.nodo.Input_Output("S", nFile));
        ChiudeFile(nFile);
        return file.string();
    }

    CartellaDiProva prova;
    fs::path cartella = prova.percorso;
    std::ostringstream uscita, errori;
};

// The approved files are those of the report on paper; of those the ones with the factors of NTC.
TEST_F(FileRelazioneTest, AJointGivesTheLinesOfItsPrintedReport) {
    for (const int numero : {1, 3, 4}) {
        const std::string file = Salvato(numero);
        const int esito = Esegue({file, "--relazione", Via("o.txt")});
        EXPECT_NE(esito, comandoErrato) << errori.str();
        ConfrontaApprovato("joints/relazioni/verifica_" + std::to_string(numero) + ".txt", Letto("o.txt"));
        EXPECT_TRUE(uscita.str().empty());
    }
}

TEST_F(FileRelazioneTest, TheProjectStandsAboveAJointToo) {
    const std::string file = Salvato(1);
    Esegue({file, "--relazione", Via("senza.txt")});
    EXPECT_NE(Esegue({file, "--progetto", "Capannone A, è prova", "--relazione", Via("con.txt")}),
              comandoErrato)
        << errori.str();
    EXPECT_EQ(Letto("con.txt"), "   PROGETTO: Capannone A, \xE8 prova\r\n" + Letto("senza.txt"));
}

TEST_F(FileRelazioneTest, AJointThatHoldsEndsWithZeroOneThatWasNotComputedWithOne) {
    EXPECT_EQ(Esegue({Salvato(1, false), "--relazione", Via("o.txt")}), comandoNonVerificato);
    EXPECT_NE(Letto("o.txt").find("non calcolato"), std::string::npos);
}

TEST_F(FileRelazioneTest, AJointIsDrawnAsTheWorkshopGetsIt) {
    EXPECT_EQ(Esegue({Salvato(1), "--dxf", Via("o.dxf")}), comandoVerificato) << errori.str();
    const std::string dxf = Letto("o.dxf");
    EXPECT_NE(dxf.find("HEM 280"), std::string::npos);
    EXPECT_TRUE(dxf.ends_with("EOF\r\n") || dxf.ends_with("EOF\n"));
}

// fyd 235/1.05, fcd 0.85 25/1.5, fsd 430/1.15.
TEST_F(FileRelazioneTest, ABeamIsCheckedAndReported) {
    const std::string file = std::string(travi) + "piena.sco";
    EXPECT_NE(Esegue({file, "--relazione", Via("o.txt"), "--dxf", Via("o.dxf"), "--progetto", "Solaio"}),
              comandoErrato)
        << errori.str();
    const std::string testo = Letto("o.txt");
    for (const char* atteso : {"Trave mista acciaio-calcestruzzo: Solaio A", "Progetto: Solaio", "IPE 300",
                               "223.8  N/mm²", "14.17  N/mm²", "373.9  N/mm²", "150.5  kNm", "Mpl,Rd"})
        EXPECT_NE(testo.find(atteso), std::string::npos) << atteso << '\n' << testo;
    EXPECT_NE(Letto("o.dxf").find("ENTITIES"), std::string::npos);
}

TEST_F(FileRelazioneTest, ASectionIsReportedAloneOrWithItsCheck) {
    EXPECT_EQ(Esegue({"ipe300", "--N", "100", "--relazione", Via("o.txt"), "--dxf", Via("o.dxf")}),
              comandoVerificato)
        << errori.str();
    EXPECT_TRUE(uscita.str().empty());
    EXPECT_NE(Letto("o.txt").find("Verifica di un sagomo: IPE 300"), std::string::npos);
    EXPECT_NE(Letto("o.dxf").find("IPE 300"), std::string::npos);
    EXPECT_EQ(Esegue({"--verifica", "IPE 300", "--json", "--relazione", Via("p.txt")}), comandoVerificato);
    EXPECT_NE(uscita.str().find("\"designazione\":\"IPE 300\""), std::string::npos);
    EXPECT_NE(Letto("p.txt").find("IPE 300"), std::string::npos);
    EXPECT_EQ(Esegue({"IPE 300", "--N", "9000", "--relazione", Via("o.txt")}), comandoNonVerificato);
    EXPECT_EQ(Esegue({"L 100x100x10", "--N", "50", "--relazione", Via("l.txt"), "--dxf", Via("l.dxf")}),
              comandoVerificato)
        << errori.str();
    EXPECT_EQ(Esegue({"UPN 200", "--N", "50", "--relazione", Via("u.txt")}), comandoVerificato);
}

// The figures of the approved text were held against hand calculations: Npl 5381 x 275/1.05 = 1409.31 kN, Mc
// 628.4 x 275/1.05 = 164.58 kNm, n 100/1409.31 = 0.071, a (5381 - 2 x 150 x 10.7)/5381 = 0.4035, phi of y-y
// 0.5 (1 + 0.21 (0.4623 - 0.2) + 0.4623^2) = 0.6344, chi 1/(0.6344 + 0.4344) = 0.9356.
TEST_F(FileRelazioneTest, TheDerivationIsThatOfTheApprovedText) {
    EXPECT_EQ(Esegue({"--verifica", "IPE 300", "--acciaio", "S275", "--N", "100", "--My", "50", "--L0y", "5",
                      "--L0z", "2.5"}),
              comandoVerificato);
    std::string testo = uscita.str();
    const std::size_t versione = testo.find("Sagomi ");
    ASSERT_NE(versione, std::string::npos);
    testo.erase(versione, testo.find('\n', versione) + 1 - versione); // another one each time
    ConfrontaApprovato("choice/ipe300.txt", testo);
}

// A length without a warping factor has no critical moment: the check is named and has no verdict.
TEST_F(FileRelazioneTest, AMissingCriticalMomentLeavesTheChapterWithoutAVerdict) {
    Comando c =
        LeggeOpzioni({"--verifica", "IPE 300", "--N", "100", "--My", "20", "--L0y", "5", "--L0z", "2.5"});
    MetteInVigore(c);
    c.richiesta.Kw = 0;
    const Gara gara = LeggeGara(SAGOMI_BIN, {"IPE"});
    const auto sagomo = std::ranges::find(gara.sagomi, "IPE 300", &SagomoInGara::Designazione);
    ASSERT_NE(sagomo, gara.sagomi.end());
    std::vector<std::string> messaggi;
    const SagomoVerificato esito = Verifica(*sagomo, c.richiesta, messaggi);
    EXPECT_FALSE(esito.riga.verificato);
    const std::string testo = TestoRelazione(RelazioneVerifica(*sagomo, esito, c.richiesta));
    EXPECT_NE(testo.find("Stabilità flesso-torsionale: -"), std::string::npos) << testo;
    EXPECT_EQ(Esegue({"--verifica", "IPE 300", "--N", "100"}), comandoVerificato) << "no length";
    EXPECT_EQ(uscita.str().find("flesso-torsionale"), std::string::npos) << uscita.str();
}

// Without a factor of the diagram there is no critical moment left: any moment is infinitely too much.
TEST_F(FileRelazioneTest, AnInfiniteUtilisationSaysWhichResistanceIsNone) {
    Comando c = LeggeOpzioni({"--verifica", "IPE 300", "--My", "20", "--L", "5"});
    MetteInVigore(c);
    c.richiesta.C1 = 0;
    const Gara gara = LeggeGara(SAGOMI_BIN, {"IPE"});
    const auto sagomo = std::ranges::find(gara.sagomi, "IPE 300", &SagomoInGara::Designazione);
    ASSERT_NE(sagomo, gara.sagomi.end());
    std::vector<std::string> messaggi;
    const RigaScelta riga = Verifica(*sagomo, c.richiesta, messaggi).riga;
    EXPECT_TRUE(std::isinf(riga.svergolamento)) << riga.svergolamento << ' ' << riga.MbRd;
    EXPECT_EQ(riga.motivo, "Mb,Rd è 0");
}

TEST_F(FileRelazioneTest, APdfIsWrittenByWhatIsPluggedIn) {
    EXPECT_EQ(Esegue({"IPE 300", "--pdf", Via("o.pdf")}), comandoErrato);
    EXPECT_NE(errori.str().find("non scrive PDF"), std::string::npos);
    std::string oggetto;
    ImpostaScritturaPdf(
        [&](const Relazione& r, const fs::path& file) { oggetto = r.oggetto + file.filename().string(); });
    EXPECT_EQ(Esegue({"IPE 300", "--pdf", Via("o.pdf")}), comandoVerificato) << errori.str();
    EXPECT_EQ(oggetto, "IPE 300o.pdf");
}

// All of the answers or none.
TEST_F(FileRelazioneTest, NothingIsWrittenWhereOneAnswerCannotBe) {
    ImpostaScritturaPdf([](const Relazione&, const fs::path&) {});
    const std::string trave = std::string(travi) + "piena.sco";
    for (const std::string& cosa : {std::string("IPE 300"), trave, Salvato(1)}) {
        EXPECT_EQ(Esegue({cosa, "--relazione", Via("o.txt"), "--pdf", Via("nessuna/o.pdf")}), comandoErrato);
        EXPECT_NE(errori.str().find("nessuna/o.pdf"), std::string::npos) << errori.str();
        EXPECT_FALSE(fs::exists(Via("o.txt"))) << cosa;
    }
    ImpostaScritturaPdf([](const Relazione&, const fs::path&) { throw std::runtime_error("disco pieno"); });
    EXPECT_EQ(Esegue({"IPE 300", "--relazione", Via("o.txt"), "--pdf", Via("o.pdf")}), comandoErrato);
    EXPECT_NE(errori.str().find("disco pieno\ngià scritto: " + Via("o.txt")), std::string::npos)
        << errori.str();
}

TEST_F(FileRelazioneTest, ADashIsTheStandardOutput) {
    EXPECT_EQ(Esegue({"IPE 300", "--N", "100", "--relazione", Via("o.txt")}), comandoVerificato);
    EXPECT_EQ(Esegue({"IPE 300", "--N", "100", "--relazione", "-"}), comandoVerificato) << errori.str();
    EXPECT_EQ(uscita.str(), Letto("o.txt"));
    EXPECT_NE(Esegue({Salvato(1), "--progetto", "Città", "--relazione", "-"}), comandoErrato) << errori.str();
    EXPECT_TRUE(uscita.str().starts_with("   PROGETTO: Città\n")) << uscita.str();
    EXPECT_EQ(uscita.str().find('\r'), std::string::npos);
    EXPECT_FALSE(fs::exists("-"));
}

// Jobs come from other programs; they write nowhere but on the output.
TEST_F(FileRelazioneTest, AJobWritesNoFile) {
    std::istringstream ingresso("{\"verifica\":\"IPE 300\",\"relazione\":\"" + Via("o.txt") + "\"}\n");
    EXPECT_EQ(EsegueComando({"--json"}, SAGOMI_BIN, ingresso, uscita, errori), comandoErrato);
    EXPECT_NE(uscita.str().find("non scrive file"), std::string::npos) << uscita.str();
    EXPECT_FALSE(fs::exists(Via("o.txt")));
}

// A report of a file reads its formulas there: a folder that cannot be used is told, and no file begun.
TEST_F(FileRelazioneTest, AFolderThatCannotBeUsedIsTold) {
    const std::function<fs::path()> rifiutata = []() -> fs::path {
        throw std::runtime_error("la cartella /proc/x non si può usare");
    };
    for (const std::string& file : {std::string(travi) + "piena.sco", Salvato(1)}) {
        std::istringstream nessuno;
        errori.str("");
        EXPECT_EQ(
            EsegueComando({file, "--relazione", Via("o.txt")}, rifiutata, nessuno, uscita, errori).value(),
            comandoErrato);
        EXPECT_EQ(errori.str(), "sagomi: la cartella /proc/x non si può usare\n");
        EXPECT_FALSE(fs::exists(Via("o.txt")));
    }
}

struct Errato {
    std::vector<std::string> argomenti;
    const char* atteso;
};

TEST_F(FileRelazioneTest, WrongCallsSayWhatWasExpected) {
    const std::string trave = std::string(travi) + "piena.sco";
    std::ofstream(cartella / "rotta.sco") << "ciao\n";
    std::ofstream(cartella / "rotto.gfl") << "\"x\"\n1\n";
    std::ofstream(cartella / "altro.xyz") << "ciao\n";
    const std::string o = Via("o.txt");
    const std::vector<Errato> calls = {
        {{trave, "--relazione"}, "--relazione vuole un file"},
        {{trave, "--pdf", "-"}, "--pdf vuole un file"},
        {{"--verifica", "IPE 300", "--relazione", "-"}, "--relazione - va senza --verifica"},
        {{trave, "--relazione", ""}, "--relazione vuole un file"},
        {{trave, "--relazione", "--pdf", o}, "--relazione vuole un file"},
        {{trave, "--relazione", o, "--relazione", o}, "--relazione sta due volte"},
        {{trave, "--relazione", o, "--dxf", o}, "file diversi"},
        {{trave, "--relazione", trave}, "non si sovrascrive"},
        {{trave, trave, "--relazione", o}, "un solo file o sagomo alla volta"},
        {{trave, "IPE 300", "--relazione", o}, "un solo file o sagomo alla volta"},
        {{"", "--relazione", o}, "nome vuoto"},
        {{trave, "--N", "3", "--relazione", o}, "--N vale per un sagomo"},
        {{trave, "--acciaio", "S275", "--relazione", o}, "--acciaio vale per un sagomo"},
        {{trave, "--json", "--relazione", o}, "--json e --csv vanno con"},
        {{"IPE 300", "--csv", "--relazione", o}, "--json e --csv vanno con"},
        {{trave, "--verifica", "IPE 300", "--relazione", o}, "un solo file o sagomo alla volta"},
        {{trave, "--scelta", "--relazione", o}, "una cosa sola"},
        {{"--scelta", "--relazione", o}, "non --scelta"},
        {{"--relazione", o}, "vogliono un file Gfl o Sco o un sagomo"},
        {{"--json", "--pdf", o}, "vogliono un file Gfl o Sco o un sagomo"},
        {{trave, "--progetto", "x"}, "non è un'opzione"},
        {{"--verifica", "IPE 300", "--progetto", "x"}, "--progetto va con"},
        {{trave, "--normativa", "DIN", "--relazione", o}, "NTC o EC3"},
        {{"IPE 999", "--relazione", o}, "nessun sagomo si chiama \"IPE 999\""},
        {{Via("altro.xyz"), "--relazione", o}, "non è un file di Sagomi (Gfl, Sco)"},
        {{Via("manca.sco"), "--relazione", o}, "manca.sco"},
        {{Via("manca.gfl"), "--relazione", o}, "manca.gfl"},
        {{Via("rotta.sco"), "--relazione", o}, "non è un file di Sagomi valido"},
        {{Via("rotto.gfl"), "--relazione", o}, "non è un file di Sagomi valido"},
        {{trave, "--relazione", Via("nessuna/o.txt")}, "nessuna/o.txt"},
        {{trave, "--dxf", Via("nessuna/o.dxf")}, "nessuna/o.dxf"},
        {{"IPE 300", "--dxf", cartella.string()}, cartella.c_str()},
    };
    for (const auto& [call, expected] : calls) {
        EXPECT_EQ(Esegue(call), comandoErrato) << expected;
        EXPECT_NE(errori.str().find(expected), std::string::npos) << errori.str();
        EXPECT_TRUE(uscita.str().empty()) << expected;
        EXPECT_FALSE(fs::exists(o)) << expected;
    }
}

} // namespace
