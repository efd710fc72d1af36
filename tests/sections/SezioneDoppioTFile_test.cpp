#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <map>

#include <gtest/gtest.h>
#include <unistd.h>

#include "Registratore.h"
#include "frame/CampiMaschera.h"
#include "frame/FileDati.h"
#include "frame/GeneraleSagomi.h"
#include "frame/Numeri.h"
#include "sections/SezioneDoppioT.h"

using namespace sagomi;

namespace {

namespace fs = std::filesystem;

class SezioneFileTest : public testing::Test {
protected:
    void TearDown() override {
        fs::remove(percorso);
        RipristinaGenerale();
    }

    [[nodiscard]] std::string Byte() const {
        std::ifstream f(percorso, std::ios::binary);
        return {std::istreambuf_iterator<char>(f), std::istreambuf_iterator<char>()};
    }
    void Scrive(const std::string& byte) const { std::ofstream(percorso, std::ios::binary) << byte; }

    bool ConFile(std::string_view modo, const std::function<bool(std::int16_t)>& azione) {
        const std::int16_t n = ApreFile(percorso, modo);
        const bool esito = azione(n);
        ChiudeFile(n);
        return esito;
    }

    fs::path percorso = fs::temp_directory_path() / ("sagomi_sezione_" + std::to_string(::getpid()));
    prove::Registratore registratore;
};

/// Every field of the full record different from every other.
SezioneDoppioT Numerata() {
    SezioneDoppioT s;
    s.fy = 235;
    s.Designation = "IPE 200, S";
    s.TipoAcciaio = "S235 (Fe360)";
    s.h = 4;
    s.b = 5;
    s.tw = 5.6;
    s.tf = 7.25;
    s.r1 = 8;
    s.r2 = 9;
    s.r = 10;
    s.Area = 2848;
    s.iY = 82.6;
    s.iZ = 13;
    s.Jz = 14;
    s.JT = 15;
    s.Jw = 1.299e10;
    s.Jy = 1.943e7;
    s.L0y = 18;
    s.L0z = 19;
    s.Wely = 20;
    s.Welz = 21;
    s.Wply = 22;
    s.Wplz = 23;
    s.NSd = -24.5;
    s.Riservato2 = 25;
    s.Mysd = 26;
    s.Mzsd = 27;
    s.fu = 360;
    s.Riservato1 = 1.0 / 3;
    s.ClasseCompressione = 1;
    s.ClasseFlessioneY = 2;
    s.ClasseFlessioneZ = 3;
    s.NbyRd = 33.5;
    s.NbzRd = 34;
    s.McyRd = 35;
    s.MczRd = 36;
    s.eNy = 37;
    s.eNz = -38;
    s.WyEff = 39;
    s.WzEff = 40;
    s.c = 41.2;
    s.d = 42;
    s.Saldata = true;
    s.ClasseWebF = 4;
    s.ClasseWebC = 5;
    s.Limite0WebF = "72";
    s.Limite1WebF = "83";
    s.Limite0WebC = "42";
    s.Limite1WebC = "¥";
    s.ClasseAlaF = 6;
    s.ClasseAlaC = 7;
    s.Limite0AlaF = "10";
    s.Limite1AlaF = "15,9";
    s.Limite0AlaC = "0";
    s.Limite1AlaC = "9";
    s.BetaMy = 1.1;
    s.BetaMz = 1.2;
    s.BetaMLT = 1.3;
    s.k = 1;
    s.Kw = 0.5;
    s.C1 = 1.132;
    s.c2 = 0.459;
    s.c3 = 0.525;
    s.za = 64;
    s.LLT = 65;
    return s;
}

// One field a line, in the order of the list of 65; texts in quotes, ¥ is A5 in Windows-1252.
const std::string recordIntero =
    "235\r\n\"IPE 200, S\"\r\n\"S235 (Fe360)\"\r\n4\r\n5\r\n5.6\r\n7.25\r\n8\r\n9\r\n10\r\n"
    "2848\r\n82.6\r\n13\r\n14\r\n15\r\n1.299E+10\r\n1.943E+07\r\n18\r\n19\r\n20\r\n"
    "21\r\n22\r\n23\r\n-24.5\r\n25\r\n26\r\n27\r\n360\r\n0.3333333333333333\r\n1\r\n"
    "2\r\n3\r\n33.5\r\n34\r\n35\r\n36\r\n37\r\n-38\r\n39\r\n40\r\n"
    "41.2\r\n42\r\n#TRUE#\r\n4\r\n5\r\n\"72\"\r\n\"83\"\r\n\"42\"\r\n\"\xA5\"\r\n6\r\n"
    "7\r\n\"10\"\r\n\"15,9\"\r\n\"0\"\r\n\"9\"\r\n1.1\r\n1.2\r\n1.3\r\n1\r\n0.5\r\n"
    "1.132\r\n0.459\r\n0.525\r\n64\r\n65\r\n";

TEST_F(SezioneFileTest, FullRecordHas65LinesInOrder) {
    SezioneDoppioT s = Numerata();
    EXPECT_TRUE(ConFile("S", [&](std::int16_t n) { return s.FileSagomoInOut("S", n); }));
    const std::string byte = Byte();
    EXPECT_EQ(byte, recordIntero);
    EXPECT_EQ(std::count(byte.begin(), byte.end(), '\n'), 65);
    EXPECT_TRUE(registratore.testi.empty());
}

TEST_F(SezioneFileTest, FullRecordReadsBackWhatItWrote) {
    Scrive(recordIntero);
    SezioneDoppioT letta;
    EXPECT_TRUE(ConFile("L", [&](std::int16_t n) { return letta.FileSagomoInOut("L", n); }));
    EXPECT_EQ(letta.Designation, "IPE 200, S");
    EXPECT_EQ(letta.tw.Stretto(), 5.6F);
    EXPECT_EQ(letta.Riservato1, 1.0 / 3);
    EXPECT_EQ(letta.Limite1WebC, "¥");
    EXPECT_TRUE(letta.Saldata);
    EXPECT_EQ(letta.LLT, 65);
    fs::remove(percorso);
    ConFile("S", [&](std::int16_t n) { return letta.FileSagomoInOut("S", n); });
    EXPECT_EQ(Byte(), recordIntero) << "all 65 came through";
}

TEST_F(SezioneFileTest, AShortFileStopsAtTheFirstMissingField) {
    Scrive(recordIntero.substr(0, recordIntero.find("82.6")));
    SezioneDoppioT letta;
    letta.LLT = 7;
    EXPECT_FALSE(ConFile("L", [&](std::int16_t n) { return letta.FileSagomoInOut("L", n); }));
    ASSERT_EQ(registratore.testi.size(), 2U) << "told once, not for every field that follows";
    EXPECT_EQ(registratore.testi[0], "Lettura incompleta del file");
    EXPECT_EQ(letta.Area, 2848) << "what was read stays";
    EXPECT_EQ(letta.LLT, 7);
}

TEST_F(SezioneFileTest, AnUnknownModeIsToldOnce) {
    SezioneDoppioT s = Numerata();
    EXPECT_FALSE(s.FileSagomoInOut("X", 1));
    EXPECT_FALSE(s.LeggeScrive("X", 1));
    EXPECT_EQ(registratore.testi,
              (std::vector<std::string>{"Errore nella Sub FileInOut", "Errore nella Sub FileInOut"}));
}

TEST_F(SezioneFileTest, ShortFormIsThreeRecords) {
    SezioneDoppioT s = Numerata();
    s.bAlaInf = 180;
    s.tAlaInf = 20;
    EXPECT_TRUE(ConFile("S", [&](std::int16_t n) { return s.LeggeScrive("S", n); }));
    EXPECT_EQ(Byte(), "\"IPE 200, S\",\"S235 (Fe360)\",235\r\n"
                      "4,5,180,5.6,7.25,20,8,9,10\r\n"
                      "#TRUE#,#FALSE#\r\n");
    SezioneDoppioT letta;
    letta.SaldataAsimm = true;
    EXPECT_TRUE(ConFile("L", [&](std::int16_t n) { return letta.LeggeScrive("L", n); }));
    EXPECT_EQ(letta.Designation, s.Designation);
    EXPECT_EQ(letta.TipoAcciaio, s.TipoAcciaio);
    EXPECT_EQ(letta.fy, 235);
    EXPECT_EQ(letta.bAlaInf, 180);
    EXPECT_EQ(letta.tAlaInf, 20);
    EXPECT_EQ(letta.r, 10);
    EXPECT_TRUE(letta.Saldata);
    EXPECT_FALSE(letta.SaldataAsimm);
}

struct MascheraFinta : CampiMaschera {
    std::map<std::string, std::string> campi;
    std::vector<std::string> scritti;

    static std::string Nome(std::string_view controllo, int indice) {
        return std::string(controllo) + (indice == campoSolo ? "" : "(" + std::to_string(indice) + ")");
    }
    [[nodiscard]] std::string Testo(std::string_view controllo, int indice) const override {
        const auto posto = campi.find(Nome(controllo, indice));
        return posto == campi.end() ? "" : posto->second;
    }
    void Testo(std::string_view controllo, int indice, std::string_view testo) override {
        scritti.push_back(Nome(controllo, indice));
        campi[scritti.back()] = testo;
    }
};

TEST_F(SezioneFileTest, FieldsOfTheCompositeScreenAreWrittenInOrder) {
    SezioneDoppioT s = Numerata();
    s.bAlaInf = 180;
    s.tAlaInf = 20.5;
    CarDecimale = ',';
    CarMigliaia = '.';
    MascheraFinta m;
    s.DatiAcciaioClsLeggeScrive("S", m);
    EXPECT_EQ(m.scritti, (std::vector<std::string>{"Txt_Prof(0)", "Txt_TipoAcciaio", "Txt_fy", "txtHsd(0)",
                                                   "txtHsd(1)", "txtHsd(2)", "txtHsd(3)", "txtHsd(4)",
                                                   "txtHsd(5)", "txtHsd(6)", "txtHsd(7)", "txtHsd(8)"}));
    EXPECT_EQ(m.campi["Txt_Prof(0)"], "IPE 200, S");
    EXPECT_EQ(m.campi["Txt_TipoAcciaio"], "S235 (Fe360)");
    EXPECT_EQ(m.campi["Txt_fy"], "235");
    const char* attesi[] = {"5", "180", "7,25", "20,5", "4", "5,6", "8", "9", "10"};
    for (int i = 0; i < 9; ++i)
        EXPECT_EQ(m.campi["txtHsd(" + std::to_string(i) + ")"], attesi[i]) << i;
    CarDecimale = '.';
    CarMigliaia = ',';
}

TEST_F(SezioneFileTest, FieldsOfTheCompositeScreenAreRead) {
    MascheraFinta m;
    m.campi = {{"Txt_Prof(0)", "HEA 200"}, {"Txt_TipoAcciaio", "S355"}, {"Txt_fy", "355"},
               {"txtHsd(0)", "200"},       {"txtHsd(1)", "201"},        {"txtHsd(2)", "10"},
               {"txtHsd(3)", "11"},        {"txtHsd(4)", "190"},        {"txtHsd(5)", "6.5"},
               {"txtHsd(6)", "18"},        {"txtHsd(7)", ""},           {"txtHsd(8)", "abc"}};
    SezioneDoppioT s;
    s.r2 = 3;
    s.DatiAcciaioClsLeggeScrive("L", m);
    EXPECT_TRUE(m.scritti.empty());
    EXPECT_EQ(s.Designation, "HEA 200");
    EXPECT_EQ(s.TipoAcciaio, "S355");
    EXPECT_EQ(s.fy, 355);
    EXPECT_EQ(s.b, 200);
    EXPECT_EQ(s.bAlaInf, 201);
    EXPECT_EQ(s.tf, 10);
    EXPECT_EQ(s.tAlaInf, 11);
    EXPECT_EQ(s.h, 190);
    EXPECT_EQ(s.tw.Stretto(), 6.5F);
    EXPECT_EQ(s.r1, 18);
    EXPECT_EQ(s.r2, 0) << "an empty box is 0";
    EXPECT_EQ(s.r, 0) << "so is a text";
}

} // namespace
