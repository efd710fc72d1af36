// Files of composite beams and the fields of their screen. The files of tests/data/composite were written by
// riferimento.py, which knows the format on its own.

#include <csignal>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <sys/wait.h>
#include <unistd.h>

#include "TraveDiProva.h"
#include "composite/MascheraTrave.h"
#include "frame/FileDati.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

namespace fs = std::filesystem;

std::string ByteDi(const fs::path& percorso) {
    std::ifstream f(percorso, std::ios::binary);
    return {std::istreambuf_iterator<char>(f), std::istreambuf_iterator<char>()};
}

/// Its fields by name; "txtDati(1)" for an element.
struct MascheraFinta : MascheraTrave {
    std::map<std::string, std::string> campi;
    std::map<std::string, int> opzioni;

    static std::string Nome(std::string_view controllo, int indice) {
        return std::string(controllo) + (indice == campoSolo ? "" : "(" + std::to_string(indice) + ")");
    }
    [[nodiscard]] std::string Testo(std::string_view controllo, int indice) const override {
        const auto posto = campi.find(Nome(controllo, indice));
        return posto == campi.end() ? "" : posto->second;
    }
    void Testo(std::string_view controllo, int indice, std::string_view testo) override {
        campi[Nome(controllo, indice)] = testo;
    }
    void Opzione(std::string_view controllo, int indice) override {
        opzioni[std::string(controllo)] = indice;
    }
};

class AcciaioClsFileTest : public AmbienteTrave {
protected:
    void TearDown() override {
        fs::remove_all(cartella);
        AmbienteTrave::TearDown();
    }

    static fs::path Approvato(const std::string& nome) {
        return fs::path(SAGOMI_TEST_DATA) / "composite" / (nome + ".sco");
    }

    static bool Legge(AcciaioCls& t, const fs::path& da) {
        const std::int16_t n = ApreFile(da, "L");
        const bool esito = t.FileLeggeScrive("L", n);
        ChiudeFile(n);
        return esito;
    }
    static bool Scrive(AcciaioCls& t, const fs::path& in) {
        const std::int16_t n = ApreFile(in, "S");
        return t.FileLeggeScrive("S", n) && ChiudeFile(n);
    }
    void Contenuto(const std::string& byte) const { std::ofstream(percorso, std::ios::binary) << byte; }

    static void Titolo(AcciaioCls& t, const std::string& titolo) {
        MascheraFinta m;
        m.campi["txtTitolo"] = titolo;
        t.DatiProgettoLeggeScrive(m, "L");
    }

    fs::path cartella = fs::temp_directory_path() / ("sagomi_sco_" + std::to_string(::getpid()));
    fs::path percorso = cartella / "trave.sco";

    AcciaioClsFileTest() { fs::create_directories(cartella); }
};

TEST_F(AcciaioClsFileTest, ReadsEveryField) {
    AcciaioCls t;
    ASSERT_TRUE(Legge(t, Approvato("parallela")));
    EXPECT_EQ(t.Sezione->Designation, "ISE 500x73");
    EXPECT_EQ(t.Sezione->TipoAcciaio, "S275 (Fe430)");
    EXPECT_EQ(t.Sezione->fy, 275);
    EXPECT_EQ(t.Sezione->h, 500);
    EXPECT_EQ(t.Sezione->b, 180);
    EXPECT_EQ(t.Sezione->tw, 8);
    EXPECT_EQ(t.Sezione->tAlaInf, 12);
    EXPECT_EQ(t.Sezione->r, 5);
    EXPECT_TRUE(t.Sezione->Saldata);
    EXPECT_FALSE(t.Sezione->SaldataAsimm);
    EXPECT_EQ(t.TitoloFunz(), "");
    EXPECT_EQ(t.TipoSoletta, nervatureParallele);
    EXPECT_EQ(t.TipoVerifica, sluNegativo);
    EXPECT_EQ(t.hc, 130);
    EXPECT_EQ(t.beff, 1230);
    EXPECT_EQ(t.As, 2500);
    EXPECT_EQ(t.c, 35);
    EXPECT_EQ(CoeffOmogeneizzazione, 6.25);
    EXPECT_EQ(fck, 35.5);
    EXPECT_EQ(fsk, Singolo(391.3));
    EXPECT_EQ(t.ha, 73.5);
    EXPECT_EQ(t.bb, 110);
    EXPECT_EQ(t.bs, 61.5);
    EXPECT_EQ(t.iNervature, 187.5);
    EXPECT_EQ(t.b0t, 120);
    EXPECT_EQ(t.Msd, Singolo(-2.345678e8));
    EXPECT_EQ(t.Luce, 0);
    EXPECT_EQ(t.hPiolo, 125);
    EXPECT_EQ(t.dPiolo, 19);
    EXPECT_EQ(t.TipoConnettore, 0);
    EXPECT_TRUE(registratore.testi.empty());
}

TEST_F(AcciaioClsFileTest, WritesWhatItReads) {
    for (const char* nome : {"piena", "trasversale", "parallela", "sotto"}) {
        AcciaioCls t;
        ASSERT_TRUE(Legge(t, Approvato(nome)));
        ASSERT_TRUE(Scrive(t, percorso));
        EXPECT_EQ(ByteDi(percorso), ByteDi(Approvato(nome))) << nome;
    }
    EXPECT_TRUE(registratore.testi.empty());
}

TEST_F(AcciaioClsFileTest, ABeamComputesAfterReading) {
    AcciaioCls t;
    ASSERT_TRUE(Legge(t, Approvato("piena")));
    SezioneCorrente = t.Sezione;
    AcciaioCls::InizializzaTrave();
    ASSERT_TRUE(t.InizializzaAcciaioCls());
    t.MplRdPositivo();
    EXPECT_GT(t.MplRd, 200e6);
}

// Every shorter file: told once (two boxes), and beam, section and globals stay.
TEST_F(AcciaioClsFileTest, AFileThatIsCutChangesNothing) {
    AcciaioCls t;
    ASSERT_TRUE(Legge(t, Approvato("trasversale")));
    t.MplRd = 7;
    const auto sezione = t.Sezione;
    const Generale prima = generale;
    const std::string intero = ByteDi(Approvato("parallela"));
    // Without the line end behind it the last figure cannot be told from the first of a longer one.
    for (std::size_t lunghezza = 0; lunghezza + 2 < intero.size(); ++lunghezza) {
        Contenuto(intero.substr(0, lunghezza));
        registratore.testi.clear();
        ASSERT_FALSE(Legge(t, percorso)) << lunghezza;
        ASSERT_EQ(registratore.testi.size(), 2U) << lunghezza;
        ASSERT_EQ(registratore.testi[0], "Lettura incompleta del file");
        ASSERT_EQ(t.Sezione, sezione);
        ASSERT_EQ(sezione->Designation, "HEB 300");
        ASSERT_EQ(t.TitoloFunz(), "Travi, piano 2");
        ASSERT_EQ(t.beff, 1800);
        ASSERT_EQ(t.MplRd, 7);
        ASSERT_EQ(static_cast<const Impostazioni&>(generale), static_cast<const Impostazioni&>(prima));
    }
}

TEST_F(AcciaioClsFileTest, WhatFollowsTheTenthRecordIsIgnored) {
    Contenuto(ByteDi(Approvato("piena")) + "altro,\"ancora\r\n\x01");
    AcciaioCls t;
    EXPECT_TRUE(Legge(t, percorso));
    EXPECT_EQ(t.TitoloFunz(), "Solaio A");
    EXPECT_TRUE(registratore.testi.empty());
}

TEST_F(AcciaioClsFileTest, AKindThatDoesNotExistIsNoWholeFile) {
    for (const char* tipi : {"3,0", "-1,0", "0,4", "0,-1"}) {
        std::string byte = ByteDi(Approvato("piena"));
        byte.replace(byte.find("\r\n0,0\r\n") + 2, 3, tipi);
        Contenuto(byte);
        AcciaioCls t;
        t.hc = 7;
        registratore.testi.clear();
        EXPECT_FALSE(Legge(t, percorso));
        EXPECT_EQ(t.hc, 7);
        EXPECT_EQ(t.Sezione, nullptr);
        ASSERT_EQ(registratore.testi.size(), 2U);
        EXPECT_EQ(registratore.testi[0], "Lettura incompleta del file");
    }
}

TEST_F(AcciaioClsFileTest, QuotesBecomeApostrophes) {
    AcciaioCls t;
    ASSERT_TRUE(Legge(t, Approvato("sotto")));
    t.Sezione->Designation = "HSD \"500\"";
    Titolo(t, "Perché \"no\"? 3 €");
    ASSERT_TRUE(Scrive(t, percorso));
    EXPECT_EQ(ByteDi(percorso), ByteDi(Approvato("sotto")));
    EXPECT_EQ(t.Sezione->Designation, "HSD \"500\""); // the beam keeps its own
    EXPECT_EQ(t.TitoloFunz(), "Perché \"no\"? 3 €");
}

TEST_F(AcciaioClsFileTest, ReadingDropsTheResultsOfTheBeamBefore) {
    AcciaioCls t;
    t.MplRd = 1;
    t.nConnettori = 20;
    t.Soletta = std::make_shared<Poligono>();
    ASSERT_TRUE(Legge(t, Approvato("piena")));
    EXPECT_EQ(t.MplRd, 0);
    EXPECT_EQ(t.nConnettori, 0);
    EXPECT_EQ(t.Soletta, nullptr);
}

TEST_F(AcciaioClsFileTest, AnUnknownModeMovesNothing) {
    AcciaioCls t;
    t.hc = 3;
    EXPECT_FALSE(t.LeggeScrive("X", 1));
    EXPECT_FALSE(t.FileLeggeScrive("X", 1));
    EXPECT_EQ(registratore.testi,
              (std::vector<std::string>{"Errore nella Sub FileInOut", "Errore nella Sub FileInOut"}));
    EXPECT_EQ(t.hc, 3);
}

// A process that is killed in the middle of saving leaves the old file or the new one, whole.
TEST_F(AcciaioClsFileTest, KilledSavesLoseNothing) {
    AcciaioCls vecchia;
    AcciaioCls nuova;
    ASSERT_TRUE(Legge(vecchia, Approvato("piena")));
    ASSERT_TRUE(Legge(nuova, Approvato("parallela")));
    Titolo(nuova, std::string(20000, 'x'));
    ASSERT_TRUE(Scrive(nuova, percorso));
    const std::string byteNuova = ByteDi(percorso);
    ASSERT_TRUE(Scrive(vecchia, percorso));
    const std::string byteVecchia = ByteDi(percorso);
    constexpr int volte = 100;
    for (int i = 0; i < volte; ++i) {
        const pid_t figlio = fork();
        ASSERT_GE(figlio, 0);
        if (figlio == 0) {
            for (;;)
                Scrive(i % 2 == 0 ? nuova : vecchia, percorso);
        }
        ::usleep(static_cast<useconds_t>(50 + 37 * i));
        ::kill(figlio, SIGKILL);
        ::waitpid(figlio, nullptr, 0);
        const std::string byte = ByteDi(percorso);
        ASSERT_TRUE(byte == byteNuova || byte == byteVecchia) << i;
    }
}

TEST_F(AcciaioClsFileTest, ASaveThatIsGivenUpLeavesTheOldFile) {
    AcciaioCls t;
    ASSERT_TRUE(Legge(t, Approvato("piena")));
    Contenuto("vecchio");
    const std::int16_t n = ApreFile(percorso, "S");
    ASSERT_TRUE(t.FileLeggeScrive("S", n));
    AbbandonaFile(n);
    EXPECT_EQ(ByteDi(percorso), "vecchio");
}

TEST_F(AcciaioClsFileTest, FieldsOfTheScreenAreWritten) {
    CarDecimale = ',';
    CarMigliaia = '.';
    AcciaioCls t;
    ASSERT_TRUE(Legge(t, Approvato("parallela")));
    MascheraFinta m;
    t.DatiGrecataLeggeScrive(m, "S");
    t.DatiSolettaLeggeScrive(m, "S");
    t.DatiProgettoLeggeScrive(m, "S");
    const std::map<std::string, std::string> attesi{
        {"TxtLam(0)", "73,5"},  {"TxtLam(1)", "110"},   {"TxtLam(2)", "61,5"},  {"TxtLam(3)", "187,5"},
        {"TxtLam(4)", "120"},   {"txtDati(1)", "130"},  {"txtDati(2)", "1230"}, {"txtDati(3)", "2500"},
        {"txtDati(4)", "35"},   {"txtDati(5)", "6,25"}, {"Txt_fck", "35,5"},    {"Txt_fsk", "391,3"},
        {"Txt_M", "-234,5678"}, {"txtTitolo", ""}};
    EXPECT_EQ(m.campi, attesi);
    EXPECT_EQ(m.opzioni, (std::map<std::string, int>{{"OptTipoSoletta", 2}, {"OpTipoVerifica", 1}}));
}

TEST_F(AcciaioClsFileTest, FieldsOfTheScreenAreRead) {
    CarDecimale = ',';
    CarMigliaia = '.';
    MascheraFinta m;
    m.campi = {{"TxtLam(0)", "55"},   {"TxtLam(1)", "60"},   {"TxtLam(2)", "90,5"},   {"TxtLam(3)", "200"},
               {"TxtLam(4)", "80"},   {"txtDati(0)", "999"}, {"txtDati(1)", "-80"},   {"txtDati(2)", "1.500"},
               {"txtDati(3)", "600"}, {"txtDati(4)", "30"},  {"txtDati(5)", "15"},    {"Txt_fck", "28"},
               {"Txt_fsk", "450"},    {"Txt_M", "150,5"},    {"txtTitolo", "Trave 1"}};
    AcciaioCls t;
    t.TipoVerifica = metodoNPositivo;
    t.DatiGrecataLeggeScrive(m, "L");
    t.DatiSolettaLeggeScrive(m, "L");
    t.DatiProgettoLeggeScrive(m, "L");
    EXPECT_EQ(t.ha, 55);
    EXPECT_EQ(t.bb, 60);
    EXPECT_EQ(t.bs, 90.5);
    EXPECT_EQ(t.iNervature, 200);
    EXPECT_EQ(t.b0t, 80);
    EXPECT_EQ(t.hc, -80);
    EXPECT_EQ(t.beff, 1500);
    EXPECT_EQ(t.As, 600);
    EXPECT_EQ(t.c, 30);
    EXPECT_EQ(CoeffOmogeneizzazione, 15);
    EXPECT_EQ(fck, 28);
    EXPECT_EQ(fsk, 450);
    EXPECT_EQ(t.Msd, 150500000);
    EXPECT_EQ(t.TitoloFunz(), "Trave 1");
    EXPECT_EQ(t.TipoVerifica, metodoNPositivo); // options are read where they change
    EXPECT_TRUE(m.opzioni.empty());
}

// To the screen and back, and to the file and back: the same N mm.
TEST_F(AcciaioClsFileTest, TheMomentStaysTheSame) {
    for (const double M : {150.5e6, 123456789.0, -0.1, 1.0 / 3, 9.87654321e8, 3e-7, 1.1e12, 0.0}) {
        AcciaioCls t;
        t.Msd = M;
        MascheraFinta m;
        t.DatiSolettaLeggeScrive(m, "S");
        t.Msd = 0;
        t.DatiSolettaLeggeScrive(m, "L");
        EXPECT_EQ(t.Msd.Stretto(), Singolo(M).Stretto()) << m.campi["Txt_M"];
        ASSERT_TRUE(Scrive(t, percorso));
        AcciaioCls letta;
        ASSERT_TRUE(Legge(letta, percorso));
        EXPECT_EQ(letta.Msd.Stretto(), Singolo(M).Stretto());
    }
}

} // namespace
