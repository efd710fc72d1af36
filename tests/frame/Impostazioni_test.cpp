#include "frame/Impostazioni.h"

#include <chrono>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "Ambiente.h"
#include "Guasti.h"
#include "Registratore.h"
#include "frame/GeneraleSagomi.h"

using namespace sagomi;
using prove::LeggeByte;
using prove::ScriveByte;

namespace {

const std::string intestazione = "\"3\",\"7.8\"\r\n3\r\n";
const std::string acciai = "\"S235 (Fe360)\"\r\n235\r\n360\r\n\"S275 (Fe430)\"\r\n275\r\n430\r\n"
                           "\"S355 (Fe510)\"\r\n355\r\n510\r\n";
const std::string bulloni = "7\r\n4.6\r\n4.8\r\n5.6\r\n5.8\r\n6.8\r\n8.8\r\n10.9\r\n";
const std::string cemento = "25\r\n430\r\n15\r\n";

/// A whole file of the present version.
std::string File(const std::string& indici, const std::string& cls, const std::string& norme) {
    const std::size_t taglio = indici.find('/');
    return intestazione + acciai + indici.substr(0, taglio) + "\r\n" + bulloni + indici.substr(taglio + 1) +
           "\r\n" + cls + norme;
}

class ImpostazioniTest : public testing::Test {
protected:
    ImpostazioniTest() {
        RipristinaGenerale();
        PathProgramma = cartella.percorso;
    }
    void TearDown() override { RipristinaGenerale(); }

    /// Reads a file of these bytes, after settings that are all of another kind.
    bool Legge(std::string_view byte) {
        ScriveByte(percorso, byte);
        SettaAltro();
        return IniLeggeScrive("L");
    }
    static void SettaAltro() {
        NumAcciai = 1;
        NomeAcciaio = {"vecchio"};
        fyAcciaio = {1};
        fuAcciaio = {2};
        IndiceAcciaio = 9;
        NumClassiBulloni = 1;
        ClasseBullone = {3};
        IndiceClasseBullone = 9;
        fck = 1;
        fsk = 2;
        CoeffOmogeneizzazione = 3;
        Normativa = normativaAltro;
        GammaM0Altro = 4;
        GammaM1Altro = 5;
        GammaM2Altro = 6;
        Versione = "1";
    }
    static void AttendePredefiniti() {
        EXPECT_EQ(NumAcciai, 3);
        ASSERT_EQ(NomeAcciaio.n(), 3);
        EXPECT_EQ(NomeAcciaio[1], "S235 (Fe360)");
        EXPECT_EQ(NomeAcciaio[3], "S355 (Fe510)");
        EXPECT_EQ(fyAcciaio[2].Stretto(), 275.F);
        EXPECT_EQ(fuAcciaio[3].Stretto(), 510.F);
        EXPECT_EQ(IndiceAcciaio, 0);
        EXPECT_EQ(NumClassiBulloni, 7);
        ASSERT_EQ(ClasseBullone.n(), 7);
        EXPECT_EQ(ClasseBullone[7].Stretto(), 10.9F);
        EXPECT_EQ(IndiceClasseBullone, 0);
        EXPECT_EQ(fck, 25);
        EXPECT_EQ(fsk, 430);
        EXPECT_EQ(CoeffOmogeneizzazione, 15);
        EXPECT_EQ(Normativa, normativaNTC);
        EXPECT_TRUE(GammaM0Altro == 0 && GammaM1Altro == 0 && GammaM2Altro == 0);
        EXPECT_EQ(Versione, "");
    }

    prove::Registratore r;
    prove::CartellaDiProva cartella;
    std::filesystem::path percorso = cartella.percorso / "Sagomi.ini";
};

TEST_F(ImpostazioniTest, ANewInstallationWorksUnderNtcAndWritesACompleteFile) {
    SettaAltro();
    EXPECT_FALSE(IniLeggeScrive("L"));
    AttendePredefiniti();
    ImpostaGamma();
    EXPECT_EQ(GammaM0.Stretto(), 1.05F);
    EXPECT_EQ(GammaM1.Stretto(), 1.05F);
    EXPECT_EQ(GammaM2.Stretto(), 1.25F);
    EXPECT_TRUE(IniLeggeScrive("S"));
    EXPECT_EQ(LeggeByte(percorso), File("0/0", cemento, "0\r\n0,0,0\r\n"));
    EXPECT_TRUE(r.testi.empty());
    EXPECT_EQ(cartella.Voci(), 1);
}

TEST_F(ImpostazioniTest, WhatIsWrittenIsReadBack) {
    NumAcciai = 2;
    NomeAcciaio = {"S420, laminato à caldo", "S460 (Fe540)"};
    fyAcciaio = {420, 460.5};
    fuAcciaio = {520, 540.1};
    IndiceAcciaio = 1;
    NumClassiBulloni = 1;
    ClasseBullone = {12.9};
    fck = 30;
    fsk = 450;
    CoeffOmogeneizzazione = 6.5;
    Normativa = normativaAltro;
    GammaM0Altro = 1.1;
    GammaM1Altro = 1.15;
    GammaM2Altro = 1.35;
    ASSERT_TRUE(IniLeggeScrive("S"));
    EXPECT_EQ(LeggeByte(percorso), "\"2\",\"7.8\"\r\n2\r\n"
                                   "\"S420, laminato \xE0 caldo\"\r\n420\r\n520\r\n"
                                   "\"S460 (Fe540)\"\r\n460.5\r\n540.1\r\n1\r\n"
                                   "1\r\n12.9\r\n0\r\n30\r\n450\r\n6.5\r\n2\r\n1.1,1.15,1.35\r\n");
    SettaAltro();
    ASSERT_TRUE(IniLeggeScrive("L"));
    EXPECT_EQ(Versione, "7.8");
    EXPECT_EQ(NomeAcciaio.n(), 2);
    EXPECT_EQ(NomeAcciaio[1], "S420, laminato à caldo");
    EXPECT_EQ(fyAcciaio[2].Stretto(), 460.5F);
    EXPECT_EQ(fuAcciaio[2].Stretto(), 540.1F);
    EXPECT_EQ(AvvisoImpostazioni(), "");
    EXPECT_EQ(IndiceAcciaio, 1);
    EXPECT_EQ(ClasseBullone.n(), 1);
    EXPECT_EQ(ClasseBullone[1].Stretto(), 12.9F);
    EXPECT_EQ(IndiceClasseBullone, 0);
    EXPECT_EQ(CoeffOmogeneizzazione.Stretto(), 6.5F);
    EXPECT_EQ(Normativa, normativaAltro);
    EXPECT_EQ(GammaM2Altro.Stretto(), 1.35F);
}

struct CasoVersione {
    const char* nome;
    const char* inizio;   // record 1, and 2 where the version has it
    const char* versione; // as kept
    bool recente;
};
void PrintTo(const CasoVersione& c, std::ostream* os) { *os << c.nome; }

class VersioniTest : public ImpostazioniTest, public testing::WithParamInterface<CasoVersione> {};

TEST_P(VersioniTest, OldFilesWorkUnderEc3) {
    const CasoVersione& c = GetParam();
    const std::string norme = c.recente ? "2\r\n1.1,1.2,1.3\r\n" : "";
    ASSERT_TRUE(Legge(c.inizio + acciai + "2\r\n" + bulloni + "5\r\n" + cemento + norme));
    EXPECT_EQ(Versione, c.versione);
    EXPECT_EQ(NumAcciai, 3);
    EXPECT_EQ(NomeAcciaio[3], "S355 (Fe510)");
    EXPECT_EQ(IndiceAcciaio, 2);
    EXPECT_EQ(IndiceClasseBullone, 5);
    EXPECT_EQ(CoeffOmogeneizzazione, 15);
    EXPECT_EQ(Normativa, c.recente ? normativaAltro : normativaEC3);
    EXPECT_EQ(GammaM1Altro.Stretto(), c.recente ? 1.2F : 1.F);
    // at the close the file is brought up to date
    ASSERT_TRUE(IniLeggeScrive("S"));
    EXPECT_EQ(LeggeByte(percorso),
              File("2/5", cemento, c.recente ? "2\r\n1.1,1.2,1.3\r\n" : "1\r\n1,1,1\r\n"));
    EXPECT_TRUE(r.testi.empty());
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Inizi, VersioniTest, testing::Values(
    CasoVersione{"BareNumber",   "3\r\n",                 "",     false},
    CasoVersione{"OneText",      "\"3\"\r\n",             "",     false},
    CasoVersione{"Version76",    "\"3\",\"7.6\"\r\n",     "7.6",  false},
    CasoVersione{"Version710",   "\"3\",\"7.10\"\r\n",    "7.10", false}, // 7.1 as a number
    CasoVersione{"Version77",    "\"3\",\"7.7\"\r\n3\r\n", "7.7", true},
    CasoVersione{"Version78",    "\"3\",\"7.8\"\r\n3\r\n", "7.8", true},
    CasoVersione{"Version10",    "\"3\",\"10.0\"\n3\n",   "10.0", true},  // not a comparison of letters
    CasoVersione{"FirstItemFree", "\"x\",\"7.8\"\r\n3\r\n", "7.8", true}),
    [](const auto& i) { return std::string(i.param.nome); });
// clang-format on

struct CasoGuasto {
    const char* nome;
    std::string byte;
};
void PrintTo(const CasoGuasto& c, std::ostream* os) { *os << c.nome; }

class GuastiTest : public ImpostazioniTest, public testing::WithParamInterface<CasoGuasto> {};

TEST_P(GuastiTest, LayDownEveryDefaultWithoutAWord) {
    EXPECT_FALSE(Legge(GetParam().byte));
    AttendePredefiniti();
    EXPECT_TRUE(r.testi.empty());
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(File, GuastiTest, testing::Values(
    CasoGuasto{"Empty",         ""},
    CasoGuasto{"EmptyLine",     "\r\n"},
    CasoGuasto{"Letters",       "tre\r\n" + acciai},
    CasoGuasto{"OldFraction",   "\"3x\"\r\n" + acciai},
    CasoGuasto{"OldNumberAndLetter", "\"3x\"\r\n" + acciai + "2\r\n" + bulloni + "5\r\n" + cemento},
    CasoGuasto{"OldTooMany",    "70000\r\n" + acciai},
    CasoGuasto{"NoGrades",      "\"0\",\"7.8\"\r\n0\r\n0\r\n" + bulloni + "0\r\n" + cemento + "0\r\n1,1,1\r\n"},
    CasoGuasto{"NegativeGrades", "\"3\",\"7.8\"\r\n-3\r\n" + acciai},
    CasoGuasto{"TooManyGrades", "\"3\",\"7.8\"\r\n40000\r\n" + acciai},
    CasoGuasto{"MoreGradesThanRecords", "\"3\",\"7.8\"\r\n30000\r\n" + acciai},
    CasoGuasto{"CutInGrades",   "\"3\",\"7.8\"\r\n3\r\n\"S235 (Fe360)\"\r\n235\r\n"},
    CasoGuasto{"BadYield",      "\"1\",\"7.8\"\r\n1\r\n\"S235\"\r\nabc\r\n360\r\n"},
    CasoGuasto{"NoBolts",       intestazione + acciai + "0\r\n0\r\n0\r\n" + cemento + "0\r\n1,1,1\r\n"},
    CasoGuasto{"CutInConcrete", intestazione + acciai + "1\r\n" + bulloni + "1\r\n25\r\n"},
    CasoGuasto{"CutInFactors",  intestazione + acciai + "1\r\n" + bulloni + "1\r\n" + cemento + "2\r\n1.1,1.2"}),
    [](const auto& i) { return std::string(i.param.nome); });
// clang-format on

TEST_F(ImpostazioniTest, AFolderInTheFilesPlaceIsUnreadable) {
    std::filesystem::create_directory(percorso);
    EXPECT_FALSE(IniLeggeScrive("L"));
    AttendePredefiniti();
    EXPECT_TRUE(r.testi.empty());
}

TEST_F(ImpostazioniTest, APipeInTheFilesPlaceHangsNothing) {
    ASSERT_EQ(mkfifo(percorso.c_str(), 0600), 0);
    EXPECT_FALSE(IniLeggeScrive("L"));
    AttendePredefiniti();
}

TEST_F(ImpostazioniTest, AHugeFileIsNotRead) {
    ScriveByte(percorso, File("0/0", cemento, "0\r\n0,0,0\r\n"));
    std::filesystem::resize_file(percorso, std::uintmax_t{1} << 31U);
    const auto prima = std::chrono::steady_clock::now();
    EXPECT_FALSE(IniLeggeScrive("L"));
    EXPECT_LT(std::chrono::steady_clock::now() - prima, std::chrono::milliseconds(100));
    AttendePredefiniti();
}

struct CasoNonCreduto {
    const char* nome;
    std::string byte;
    std::vector<std::string> corrette;
};
void PrintTo(const CasoNonCreduto& c, std::ostream* os) { *os << c.nome; }

class NonCredutiTest : public ImpostazioniTest, public testing::WithParamInterface<CasoNonCreduto> {};

TEST_P(NonCredutiTest, GoBackToTheirDefaultAndAreNamed) {
    ASSERT_TRUE(Legge(GetParam().byte));
    EXPECT_EQ(generale.ImpostazioniCorrette, GetParam().corrette);
    EXPECT_EQ(fyAcciaio[1], 235);
    EXPECT_EQ(fuAcciaio[3], 510);
    EXPECT_EQ(ClasseBullone[7].Stretto(), 10.9F);
    EXPECT_EQ(fck, 25);
    EXPECT_EQ(fsk, 430);
    EXPECT_EQ(CoeffOmogeneizzazione, 15);
    EXPECT_TRUE(GammaM0Altro == 1 && GammaM1Altro == 1 && GammaM2Altro == 1);
    EXPECT_TRUE(r.testi.empty());
}

std::string Con(std::string byte, std::string_view vecchio, std::string_view nuovo) {
    return byte.replace(byte.find(vecchio), vecchio.size(), nuovo);
}
const std::string giusto = File("0/0", cemento, "2\r\n1,1,1\r\n");

// clang-format off
INSTANTIATE_TEST_SUITE_P(Valori, NonCredutiTest, testing::Values(
    CasoNonCreduto{"AllWell",       giusto, {}},
    CasoNonCreduto{"ZeroFactors",   Con(giusto, "1,1,1", "0,0,0"), {}},
    CasoNonCreduto{"SmallFactor",   Con(giusto, "1,1,1", "1E-30,1,1"), {"GammaM0"}},
    CasoNonCreduto{"JustBelow",     Con(giusto, "1,1,1", "1,0.49999,1"), {"GammaM1"}},
    CasoNonCreduto{"JustAbove",     Con(giusto, "1,1,1", "1,1,5.00001"), {"GammaM2"}},
    CasoNonCreduto{"NoNumber",      Con(giusto, "1,1,1", "1.#QNAN,1.#INF,-1"), {"GammaM0", "GammaM1", "GammaM2"}},
    CasoNonCreduto{"Yield",         Con(giusto, "\r\n235\r\n", "\r\n0.5\r\n"), {"fyAcciaio[1]"}},
    CasoNonCreduto{"Ultimate",      Con(giusto, "\r\n510\r\n", "\r\n5001\r\n"), {"fuAcciaio[3]"}},
    CasoNonCreduto{"BoltClass",     Con(giusto, "\r\n10.9\r\n", "\r\n101\r\n"), {"ClasseBullone[7]"}},
    CasoNonCreduto{"Concrete",      Con(giusto, cemento, "1.#INF\r\n-430\r\n0.5\r\n"),
                   {"fck", "fsk", "CoeffOmogeneizzazione"}}),
    [](const auto& i) { return std::string(i.param.nome); });
// clang-format on

TEST_F(ImpostazioniTest, TheEndsOfARangeAreBelieved) {
    ASSERT_TRUE(Legge(File("0/0", "1\r\n5000\r\n100\r\n", "2\r\n0.5,5,1\r\n")));
    EXPECT_EQ(AvvisoImpostazioni(), "");
    EXPECT_TRUE(fck == 1 && fsk == 5000 && CoeffOmogeneizzazione == 100);
    EXPECT_TRUE(GammaM0Altro == 0.5 && GammaM1Altro == 5);
}

TEST_F(ImpostazioniTest, AGradeOfTheUsersOwnGetsTheFirstDefault) {
    ASSERT_TRUE(Legge("\"4\",\"7.8\"\r\n4\r\n" + acciai + "\"mio\"\r\n0\r\n1E30\r\n0\r\n" + bulloni +
                      "0\r\n" + cemento + "0\r\n1,1,1\r\n"));
    EXPECT_EQ(fyAcciaio[4], 235);
    EXPECT_EQ(fuAcciaio[4], 360);
    EXPECT_EQ(AvvisoImpostazioni(),
              "Sagomi.ini: valori non ammessi di fyAcciaio[4], fuAcciaio[4], riportati ai predefiniti");
}

TEST_F(ImpostazioniTest, ManyWrongValuesStillFitALine) {
    generale.ImpostazioniCorrette = {"a", "b", "c", "d", "e", "f"};
    EXPECT_EQ(AvvisoImpostazioni(),
              "Sagomi.ini: valori non ammessi di a, b, c, d, e, f, riportati ai predefiniti");
    generale.ImpostazioniCorrette.resize(30000, "g");
    EXPECT_EQ(AvvisoImpostazioni(),
              "Sagomi.ini: valori non ammessi di a, b, c, d, e, f e altri 29994, riportati ai predefiniti");
}

TEST_F(ImpostazioniTest, AChangeIsWrittenWhenItIsMade) {
    IndiceAcciaio = 1;
    EXPECT_TRUE(ScriveImpostazioniCambiate());
    EXPECT_EQ(cartella.Voci(), 0) << "nothing has been read yet: there is no file to keep up";
    IniLeggeScrive("L");
    EXPECT_TRUE(ScriveImpostazioniCambiate());
    EXPECT_EQ(cartella.Voci(), 0) << "nothing has changed";
    IndiceAcciaio = 2;
    EXPECT_TRUE(ScriveImpostazioniCambiate());
    EXPECT_EQ(LeggeByte(percorso), File("2/0", cemento, "0\r\n0,0,0\r\n"));
    std::filesystem::remove(percorso);
    EXPECT_TRUE(ScriveImpostazioniCambiate());
    EXPECT_EQ(cartella.Voci(), 0) << "written once";
}

TEST_F(ImpostazioniTest, AChangeThatCannotBeWrittenIsToldOnceInARun) {
    PathProgramma = cartella.percorso / "manca";
    IniLeggeScrive("L");
    fck = 30;
    EXPECT_FALSE(ScriveImpostazioniCambiate());
    fck = 35;
    EXPECT_FALSE(ScriveImpostazioniCambiate());
    EXPECT_EQ(r.testi, std::vector<std::string>{"Scrittura incompleta del file"});
}

TEST_F(ImpostazioniTest, ZerosAreRepaired) {
    ASSERT_TRUE(Legge(File("0/0", "0\r\n-1\r\n0\r\n", "2\r\n0,1.2,0\r\n")));
    EXPECT_EQ(fck, 25);
    EXPECT_EQ(fsk, 430);
    EXPECT_EQ(CoeffOmogeneizzazione, 15);
    EXPECT_EQ(GammaM0Altro, 1);
    EXPECT_EQ(GammaM1Altro.Stretto(), 1.2F);
    EXPECT_EQ(GammaM2Altro, 1);
}

TEST_F(ImpostazioniTest, IndicesOutsideTheirListBecomeTheFirstItem) {
    ASSERT_TRUE(Legge(File("3/7", cemento, "3\r\n1,1,1\r\n")));
    EXPECT_EQ(IndiceAcciaio, 0);
    EXPECT_EQ(IndiceClasseBullone, 0);
    EXPECT_EQ(Normativa, normativaNTC);
    ASSERT_TRUE(Legge(File("-1/-1", cemento, "-1\r\n1,1,1\r\n")));
    EXPECT_EQ(IndiceAcciaio, 0);
    EXPECT_EQ(IndiceClasseBullone, 0);
    EXPECT_EQ(Normativa, normativaNTC);
    ASSERT_TRUE(Legge(File("2/6", cemento, "2\r\n1,1,1\r\n")));
    EXPECT_EQ(IndiceAcciaio, 2);
    EXPECT_EQ(IndiceClasseBullone, 6);
    EXPECT_EQ(Normativa, normativaAltro);
}

TEST_F(ImpostazioniTest, TheFileIsFoundWhateverItsLetters) {
    percorso = cartella.percorso / "SAGOMI.INI";
    ASSERT_TRUE(Legge(File("1/2", cemento, "1\r\n1,1,1\r\n")));
    EXPECT_EQ(IndiceAcciaio, 1);
    ASSERT_TRUE(IniLeggeScrive("S"));
    EXPECT_EQ(cartella.Voci(), 1); // the same file again
}

TEST_F(ImpostazioniTest, TheSeparatorsOfTheScreenDoNotReachTheFile) {
    const prove::ConSeparatori italiano(',', '.');
    fyAcciaio[1] = 235.5;
    NumAcciai = 3;
    ASSERT_TRUE(IniLeggeScrive("S"));
    EXPECT_NE(LeggeByte(percorso).find("\r\n235.5\r\n"), std::string::npos);
    SettaAltro();
    ASSERT_TRUE(IniLeggeScrive("L"));
    EXPECT_EQ(fyAcciaio[1].Stretto(), 235.5F);
}

TEST_F(ImpostazioniTest, AFileThatCannotBeWrittenIsToldOnce) {
    PathProgramma = cartella.percorso / "manca";
    EXPECT_FALSE(IniLeggeScrive("S"));
    EXPECT_EQ(r.testi, std::vector<std::string>{"Scrittura incompleta del file"});
    ServerAttivo = true;
    EXPECT_FALSE(IniLeggeScrive("S"));
    EXPECT_EQ(r.testi.size(), 1U);
}

TEST_F(ImpostazioniTest, ASaveThatStopsLeavesTheOldFile) {
    ScriveByte(percorso, "vecchio");
    NumAcciai = 0;
    EXPECT_FALSE(IniLeggeScrive("S"));
    EXPECT_EQ(LeggeByte(percorso), "vecchio");
    EXPECT_EQ(cartella.Voci(), 1);
}

TEST_F(ImpostazioniTest, AFullDiskLeavesTheOldFileAndIsTold) {
    ASSERT_TRUE(IniLeggeScrive("S"));
    const std::string before = LeggeByte(percorso);
    const prove::Registratore boxes;
    fck = 33;
    {
        const prove::DiscoPieno full(20);
        EXPECT_FALSE(IniLeggeScrive("S"));
    }
    EXPECT_EQ(LeggeByte(percorso), before);
    EXPECT_EQ(boxes.testi.size(), 1U);
}

TEST_F(ImpostazioniTest, AnotherModeDoesNothing) {
    SettaAltro();
    EXPECT_FALSE(IniLeggeScrive("X"));
    EXPECT_EQ(fck, 1);
    EXPECT_TRUE(r.testi.empty());
    EXPECT_EQ(cartella.Voci(), 0);
}

TEST_F(ImpostazioniTest, OneGradeIsEnough) {
    ASSERT_TRUE(Legge("\"1\",\"7.8\"\r\n1\r\n\"S235\"\r\n235\r\n360\r\n0\r\n" + bulloni + "0\r\n" + cemento +
                      "0\r\n1,1,1\r\n"));
    EXPECT_EQ(NumAcciai, 1);
    EXPECT_EQ(NomeAcciaio[1], "S235");
    EXPECT_EQ(fuAcciaio[1], 360);
}

} // namespace
