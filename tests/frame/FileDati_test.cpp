#include "frame/FileDati.h"

#include <bit>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <random>

#include "Ambiente.h"
#include "Registratore.h"

using namespace sagomi;
using prove::LeggeByte;
using prove::ScriveByte;

namespace {

using Testi = std::vector<std::string>;

const Testi letturaSenzaFine = {"Lettura incompleta del file", "Fine del file inattesa"};

class FileDatiTest : public testing::Test {
protected:
    /// Opens a file that holds these bytes.
    std::int16_t Apre(std::string_view byte) {
        ScriveByte(percorso, byte);
        return ApreFile(percorso, "L");
    }
    /// What a record looks like on the disk.
    std::string Scritto(const std::vector<Campo>& campi) {
        const std::int16_t n = ApreFile(percorso, "S");
        EXPECT_TRUE(FileInOut("S", n, campi));
        EXPECT_TRUE(ChiudeFile(n));
        return LeggeByte(percorso);
    }
    std::string ScrittaColl(Testi coll) {
        const std::int16_t n = ApreFile(percorso, "S");
        EXPECT_TRUE(FileInOutStringColl("S", n, coll));
        EXPECT_TRUE(ChiudeFile(n));
        return LeggeByte(percorso);
    }
    Testi LettaColl(std::string_view byte) {
        const std::int16_t n = Apre(byte);
        Testi coll = {"resto di prima"};
        EXPECT_TRUE(FileInOutStringColl("L", n, coll));
        ChiudeFile(n);
        return coll;
    }

    prove::Registratore r;
    prove::CartellaDiProva cartella;
    std::filesystem::path percorso = cartella.percorso / "dati.txt";
};

// ---- numbers

struct CasoNumero {
    double valore;
    const char* doppio;
    const char* singolo;
};
void PrintTo(const CasoNumero& c, std::ostream* os) { *os << c.doppio; }

class NumeroFileTest : public testing::TestWithParam<CasoNumero> {};

TEST_P(NumeroFileTest, Tabella) {
    const prove::ConSeparatori italiano(',', '.'); // files do not care
    const CasoNumero& c = GetParam();
    EXPECT_EQ(NumeroFile(c.valore), c.doppio);
    EXPECT_EQ(NumeroFile(Singolo(c.valore)), c.singolo);
}

// Doubles against Python's repr, singles against numpy's repr of float32, in the form told in the header.
// clang-format off
INSTANTIATE_TEST_SUITE_P(Numeri, NumeroFileTest, testing::Values(
    CasoNumero{0,          "0",                  "0"},
    CasoNumero{-0.0,       "0",                  "0"},
    CasoNumero{235,        "235",                "235"},
    CasoNumero{-1.5,       "-1.5",               "-1.5"},
    CasoNumero{0.7,        "0.7",                "0.7"},
    CasoNumero{-0.25,      "-0.25",              "-0.25"},
    CasoNumero{1.0 / 3,    "0.3333333333333333", "0.33333334"},
    CasoNumero{0.1 + 0.2,  "0.30000000000000004", "0.3"},
    CasoNumero{0.0001,     "0.0001",             "0.0001"},
    CasoNumero{0.00012345, "0.00012345",         "0.00012345"},
    CasoNumero{0.00001,    "1E-05",              "1E-05"},
    CasoNumero{1.5e-7,     "1.5E-07",            "1.5E-07"},
    CasoNumero{1e6,        "1000000",            "1000000"},
    CasoNumero{9999999,    "9999999",            "9999999"},
    CasoNumero{1e7,        "10000000",           "1E+07"},
    CasoNumero{12345678,   "12345678",           "1.2345678E+07"},
    CasoNumero{1e14,       "100000000000000",    "1E+14"},
    CasoNumero{123456789012345.67, "123456789012345.67", "1.2345679E+14"},
    CasoNumero{1e15,       "1E+15",              "1E+15"},
    CasoNumero{-2.5e20,    "-2.5E+20",           "-2.5E+20"}));
// clang-format on

TEST_F(FileDatiTest, DoublesAndSinglesComeBackBitForBit) {
    std::mt19937_64 caso(42);
    std::vector<double> doppi;
    std::vector<Singolo> singoli;
    while (doppi.size() < 5000) {
        const double d = std::bit_cast<double>(caso());
        const float f = std::bit_cast<float>(static_cast<std::uint32_t>(caso()));
        if (!std::isfinite(d) || !std::isfinite(f))
            continue;
        doppi.push_back(d);
        singoli.emplace_back(f);
    }
    doppi.push_back(std::numeric_limits<double>::denorm_min());
    singoli.emplace_back(std::numeric_limits<float>::denorm_min());
    std::vector<double> doppiLetti(doppi.size());
    std::vector<Singolo> singoliLetti(singoli.size());
    const std::int16_t scrive = ApreFile(percorso, "S");
    for (std::size_t i = 0; i < doppi.size(); ++i)
        ASSERT_TRUE(FileInOut("S", scrive, {&doppi[i], &singoli[i]}));
    ASSERT_TRUE(ChiudeFile(scrive));
    const std::int16_t legge = ApreFile(percorso, "L");
    for (std::size_t i = 0; i < doppi.size(); ++i) {
        ASSERT_TRUE(FileInOut("L", legge, {&doppiLetti[i], &singoliLetti[i]}));
        ASSERT_EQ(doppiLetti[i], doppi[i]);
        ASSERT_EQ(singoliLetti[i].Stretto(), singoli[i].Stretto());
    }
    ChiudeFile(legge);
}

TEST_F(FileDatiTest, AResultThatIsNoNumberIsKept) {
    double nan = std::nan("");
    double inf = std::numeric_limits<double>::infinity();
    Singolo meno = -inf;
    EXPECT_EQ(Scritto({&nan, &inf, &meno}), "1.#QNAN,1.#INF,-1.#INF\r\n");
    double a = 0;
    double b = 0;
    Singolo c;
    const std::int16_t n = ApreFile(percorso, "L");
    EXPECT_TRUE(FileInOut("L", n, {&a, &b, &c}));
    ChiudeFile(n);
    EXPECT_TRUE(std::isnan(a));
    EXPECT_EQ(b, inf);
    EXPECT_EQ(c, -inf);
}

// ---- records

TEST_F(FileDatiTest, ARecordIsOneLineOfDelimitedFields) {
    double d = 1.0 / 3;
    Singolo s = 0.7;
    std::int16_t i16 = -7;
    std::int32_t i32 = 70000;
    std::string t = "IPE 200, città";
    bool vero = true;
    bool falso = false;
    EXPECT_EQ(Scritto({&d, &s, &i16, &i32, &t, &vero, &falso}),
              "0.3333333333333333,0.7,-7,70000,\"IPE 200, citt\xE0\",#TRUE#,#FALSE#\r\n");
    EXPECT_TRUE(r.testi.empty());
}

TEST_F(FileDatiTest, OneFieldIsOneLine) {
    std::string t;
    EXPECT_EQ(Scritto({&t}), "\"\"\r\n");
    std::int16_t i = 3;
    EXPECT_EQ(Scritto({&i}), "3\r\n");
}

TEST_F(FileDatiTest, NoFieldMovesNothing) {
    EXPECT_EQ(Scritto({}), "");
    const std::int16_t n = Apre("5\r\n");
    EXPECT_TRUE(FileInOut("L", n, {}));
    std::int16_t i = 0;
    EXPECT_TRUE(FileInOut("L", n, {&i}));
    EXPECT_EQ(i, 5);
    ChiudeFile(n);
}

TEST_F(FileDatiTest, NothingInATextIsEscaped) {
    std::string t = "a \"b\" c";
    EXPECT_EQ(Scritto({&t}), "\"a \"b\" c\"\r\n");
}

TEST_F(FileDatiTest, CharactersOutsideThePageAreAsked) {
    std::string t = "λ ≤ 1 – 5 €";
    EXPECT_EQ(Scritto({&t}), "\"? ? 1 \x96 5 \x80\"\r\n");
}

struct CasoRighe {
    const char* nome;
    const char* byte;
};
void PrintTo(const CasoRighe& c, std::ostream* os) { *os << c.nome; }

class RigheTest : public FileDatiTest, public testing::WithParamInterface<CasoRighe> {};

TEST_P(RigheTest, FieldsAreReadWhereverTheLinesBreak) {
    const std::int16_t n = Apre(GetParam().byte);
    double d = 0;
    Singolo s;
    std::string t;
    bool b = false;
    std::int16_t i16 = 0;
    std::int32_t i32 = 0;
    EXPECT_TRUE(FileInOut("L", n, {&d, &s, &t}));
    EXPECT_TRUE(FileInOut("L", n, {&b, &i16, &i32}));
    ChiudeFile(n);
    EXPECT_EQ(d, 1.5);
    EXPECT_EQ(s.Stretto(), 0.7F);
    EXPECT_EQ(t, "uno, due");
    EXPECT_TRUE(b);
    EXPECT_EQ(i16, -3);
    EXPECT_EQ(i32, 100000);
    EXPECT_TRUE(r.testi.empty());
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Forme, RigheTest, testing::Values(
    CasoRighe{"OneLine",      "1.5,.7,\"uno, due\",#TRUE#,-3,100000\r\n"},
    CasoRighe{"OneFieldALine", "1.5\r\n0.7\r\n\"uno, due\"\r\n#TRUE#\r\n-3\r\n100000\r\n"},
    CasoRighe{"LineFeeds",    "1.5\n0.7\n\"uno, due\"\n#true#\n-3\n1E5"},
    CasoRighe{"Returns",      "1.5\r0.7\r\"uno, due\"\r#True#\r-3\r+1e+05\r"},
    CasoRighe{"Blanks",       "  1.5 , 7E-01\t,\t \"uno, due\" , #TRUE# ,-3, 100000  \r\n"},
    CasoRighe{"Quoted",       "\"1.5\",\"0.7\",\"uno, due\",\"#TRUE#\",\"-3\",\"1.0E5\"\r\n"},
    CasoRighe{"Fractions",    "15E-1,0.70,\"uno, due\",-1,-2.5000001,99999.5\n"}),
    [](const auto& i) { return std::string(i.param.nome); });
// clang-format on

TEST_F(FileDatiTest, TextsAreReadWithOrWithoutQuotes) {
    const std::int16_t n = Apre("nudo, \"\" ,\"a\r\nb\"\r\n\r\n12\r\n");
    Testi t(5, "prima");
    for (std::string& testo : t)
        EXPECT_TRUE(FileInOut("L", n, {&testo}));
    ChiudeFile(n);
    EXPECT_EQ(t, (Testi{"nudo", "", "a\r\nb", "", "12"})); // an empty line is an empty text
}

TEST_F(FileDatiTest, FractionsBecomeIntegersHalfToEven) {
    const std::int16_t n = Apre("2.5,3.5,-0.5,32767.4,-2147483648.5\r\n");
    std::int16_t a = 0;
    std::int16_t b = 0;
    std::int16_t c = 9;
    std::int16_t d = 0;
    std::int32_t e = 0;
    EXPECT_TRUE(FileInOut("L", n, {&a, &b, &c, &d, &e}));
    ChiudeFile(n);
    EXPECT_EQ(a, 2);
    EXPECT_EQ(b, 4);
    EXPECT_EQ(c, 0);
    EXPECT_EQ(d, 32767);
    EXPECT_EQ(e, std::numeric_limits<std::int32_t>::min());
}

// ---- errors

TEST_F(FileDatiTest, AShortFileStopsTheRecordAndKeepsWhatWasRead) {
    const std::int16_t n = Apre("7,\"ala\"\r\n");
    std::int16_t i = 0;
    std::string t;
    double d = 4.5;
    EXPECT_FALSE(FileInOut("L", n, {&i, &t, &d}));
    ChiudeFile(n);
    EXPECT_EQ(i, 7);
    EXPECT_EQ(t, "ala");
    EXPECT_EQ(d, 4.5);
    EXPECT_EQ(r.testi, letturaSenzaFine);
}

struct CasoErrore {
    const char* nome;
    const char* byte;
    const char* causa;
    std::size_t tipo; // of the variable: its place in the list of types
};
void PrintTo(const CasoErrore& c, std::ostream* os) { *os << c.nome; }

class ErroriTest : public FileDatiTest, public testing::WithParamInterface<CasoErrore> {};

TEST_P(ErroriTest, TwoMessagesAndNothingStored) {
    const std::int16_t n = Apre(GetParam().byte);
    double d = 1;
    Singolo s = 1;
    std::int16_t i16 = 1;
    std::int32_t i32 = 1;
    bool b = true;
    std::string t = "prima";
    const std::vector<Campo> campi = {&d, &s, &i16, &i32, &t, &b};
    EXPECT_FALSE(FileInOut("L", n, {campi[GetParam().tipo]}));
    ChiudeFile(n);
    EXPECT_EQ(r.testi, (Testi{"Lettura incompleta del file", GetParam().causa}));
    EXPECT_TRUE(d == 1 && s == 1 && i16 == 1 && i32 == 1 && b && t == "prima");
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Campi, ErroriTest, testing::Values(
    CasoErrore{"EmptyFile",      "",              "Fine del file inattesa", 0},
    CasoErrore{"OnlyBlanks",     "   ",           "Fine del file inattesa", 4},
    CasoErrore{"OpenQuote",      "\"senza fine\r\n", "Fine del file inattesa", 4},
    CasoErrore{"Letters",        "abc\r\n",       "Numero errato: \"abc\"", 0},
    CasoErrore{"AccentedLetters", "citt\xE0\r\n", "Numero errato: \"città\"", 0},
    CasoErrore{"Missing",        ",5\r\n",        "Numero errato: \"\"", 0},
    CasoErrore{"EmptyLine",      "\r\n5\r\n",     "Numero errato: \"\"", 1},
    CasoErrore{"TwoPoints",      "1.2.3\r\n",     "Numero errato: \"1.2.3\"", 0},
    CasoErrore{"BlankBehindSign", "- 3\r\n",       "Numero errato: \"- 3\"", 0},
    CasoErrore{"TabBehindSign",  "-\t3\r\n",      "Numero errato: \"-\t3\"", 0},
    CasoErrore{"LettersBehind",  "12x\r\n",       "Numero errato: \"12x\"", 2},
    CasoErrore{"Nan",            "nan\r\n",       "Numero errato: \"nan\"", 0},
    CasoErrore{"Infinity",       "inf\r\n",       "Numero errato: \"inf\"", 1},
    CasoErrore{"NotALogical",    "TRUE\r\n",      "Numero errato: \"TRUE\"", 5},
    CasoErrore{"LogicalAsNumber", "#TRUE#\r\n",   "Numero errato: \"#TRUE#\"", 0},
    CasoErrore{"Above16Bits",    "32768\r\n",     "Valore fuori dai limiti: 32768", 2},
    CasoErrore{"Below16Bits",    "-40000\r\n",    "Valore fuori dai limiti: -40000", 2},
    CasoErrore{"Above32Bits",    "3000000000\r\n", "Valore fuori dai limiti: 3000000000", 3},
    CasoErrore{"AboveSingle",    "1E39\r\n",      "Valore fuori dai limiti: 1E39", 1},
    CasoErrore{"AboveDouble",    "1E309\r\n",     "Valore fuori dai limiti: 1E309", 0}),
    [](const auto& i) { return std::string(i.param.nome); });
// clang-format on

TEST_F(FileDatiTest, AnotherModeIsRefused) {
    std::int16_t i = 1;
    Testi coll = {"a"};
    std::string a = "a";
    std::string b = "b";
    EXPECT_FALSE(FileInOut("X", 1, {&i}));
    EXPECT_FALSE(FileInOutStringColl("", 1, coll));
    EXPECT_FALSE(FileInOutCoppia("l", 1, a, b, ""));
    EXPECT_EQ(r.testi, (Testi{"Errore nella Sub FileInOut", "Errore nella Sub FileInOutStringColl",
                              "Errore nella Sub FileInOutStringColl"}));
    EXPECT_EQ(i, 1);
    EXPECT_EQ(ApreFile(percorso, "X"), 0);
}

TEST_F(FileDatiTest, AFileThatIsNotOpenIsAnError) {
    std::int16_t i = 1;
    EXPECT_FALSE(FileInOut("S", 99, {&i}));
    EXPECT_FALSE(FileInOut("L", 99, {&i}));
    EXPECT_EQ(r.testi,
              (Testi{"Scrittura incompleta del file", "Lettura incompleta del file", "File non aperto"}));
    EXPECT_FALSE(ChiudeFile(99));
    EXPECT_FALSE(SeguonoVirgolette(99));
}

TEST_F(FileDatiTest, AFileIsReadOrWrittenNotBoth) {
    std::int16_t i = 1;
    const std::int16_t legge = Apre("5\r\n");
    EXPECT_FALSE(FileInOut("S", legge, {&i}));
    const std::int16_t scrive = ApreFile(cartella.percorso / "altro.txt", "S");
    EXPECT_FALSE(FileInOut("L", scrive, {&i}));
    EXPECT_FALSE(SeguonoVirgolette(scrive));
    ChiudeFile(legge);
    AbbandonaFile(scrive);
    EXPECT_EQ(r.testi, (Testi{"Scrittura incompleta del file", "Lettura incompleta del file",
                              "File aperto in scrittura"}));
}

TEST_F(FileDatiTest, SilenceHoldsWhileItLives) {
    std::int16_t i = 1;
    {
        const PrimitiveSilenziose fuori;
        const PrimitiveSilenziose dentro;
        EXPECT_FALSE(FileInOut("L", 99, {&i}));
        EXPECT_FALSE(FileInOut("S", 99, {&i}));
    }
    EXPECT_TRUE(r.testi.empty());
    EXPECT_FALSE(FileInOut("S", 99, {&i}));
    EXPECT_EQ(r.testi.size(), 1U);
}

// ---- opening and closing

TEST_F(FileDatiTest, NumbersAreGivenOutFromOneAndUsedAgain) {
    ScriveByte(percorso, "1\r\n");
    EXPECT_EQ(ApreFile(percorso, "L"), 1);
    EXPECT_EQ(ApreFile(percorso, "L"), 2);
    EXPECT_TRUE(ChiudeFile(1));
    EXPECT_EQ(ApreFile(percorso, "L"), 1);
    EXPECT_TRUE(ChiudeFile(1));
    EXPECT_TRUE(ChiudeFile(2));
    EXPECT_FALSE(ChiudeFile(2));
}

TEST_F(FileDatiTest, WhatCannotBeOpenedHasNoNumber) {
    EXPECT_EQ(ApreFile(percorso, "L"), 0);
    EXPECT_EQ(ApreFile(cartella.percorso, "L"), 0);
    EXPECT_EQ(ApreFile(cartella.percorso / "manca" / "x.txt", "S"), 0);
    EXPECT_TRUE(r.testi.empty());
}

TEST_F(FileDatiTest, TheOldFileStaysUntilTheSaveIsComplete) {
    ScriveByte(percorso, "vecchio");
    const std::int16_t n = ApreFile(percorso, "S");
    std::int16_t i = 1;
    EXPECT_TRUE(FileInOut("S", n, {&i}));
    EXPECT_EQ(LeggeByte(percorso), "vecchio");
    AbbandonaFile(n);
    EXPECT_EQ(LeggeByte(percorso), "vecchio");
    EXPECT_EQ(cartella.Voci(), 1);
}

TEST_F(FileDatiTest, ASaveThatDoesNotReachTheDiskIsTold) {
    const std::int16_t n = ApreFile(percorso, "S");
    std::filesystem::create_directory(percorso); // something has taken the name meanwhile
    EXPECT_FALSE(ChiudeFile(n));
    EXPECT_EQ(r.testi, Testi{"Scrittura incompleta del file"});
    EXPECT_EQ(cartella.Voci(), 1);
}

// ---- lists of texts

TEST_F(FileDatiTest, AListIsOneLine) {
    EXPECT_EQ(ScrittaColl({"uno", "due, tre", ""}), "\"uno\",\"due, tre\",\"\"\r\n");
    EXPECT_EQ(ScrittaColl({"città"}), "\"citt\xE0\"\r\n");
    EXPECT_EQ(ScrittaColl({}), "");
}

TEST_F(FileDatiTest, LineBreaksInsideATextSurvive) {
    EXPECT_EQ(ScrittaColl({"a\r\nb", "c"}), "\"a\x01\x01"
                                            "b\",\"c\"\r\n");
    EXPECT_EQ(LettaColl(LeggeByte(percorso)), (Testi{"a\r\nb", "c"}));
    // a break of another system would end the line too early: it is one as well
    EXPECT_EQ(LettaColl(ScrittaColl({"a\nb\rc\r\n\r\nd\n"})), (Testi{"a\r\nb\r\nc\r\n\r\nd\r\n"}));
}

TEST_F(FileDatiTest, AListIsReadFromOneWholeLine) {
    EXPECT_EQ(LettaColl("\"uno\",\"due, tre\",\"\"\r\n\"quattro\"\r\n"), (Testi{"uno", "due, tre", ""}));
    EXPECT_EQ(LettaColl("\"uno\"\n"), Testi{"uno"});
    EXPECT_EQ(LettaColl("\"uno\",\"senza fine"), (Testi{"uno", "senza fine"}));
    EXPECT_EQ(LettaColl("\"uno\","), Testi{"uno"});
    EXPECT_TRUE(r.testi.empty());
}

TEST_F(FileDatiTest, ALineWithoutAQuoteInFrontIsAnEmptyList) {
    EXPECT_EQ(LettaColl("3\r\n"), Testi{});
    EXPECT_EQ(LettaColl(" \"uno\"\r\n"), Testi{});
    EXPECT_EQ(LettaColl("\r\n\"uno\"\r\n"), Testi{});
    EXPECT_TRUE(r.testi.empty());
}

TEST_F(FileDatiTest, AListAtTheEndOfTheFileIsAnError) {
    const std::int16_t n = Apre("");
    Testi coll = {"resto"};
    EXPECT_FALSE(FileInOutStringColl("L", n, coll));
    ChiudeFile(n);
    EXPECT_EQ(coll, Testi{});
    EXPECT_EQ(r.testi, letturaSenzaFine);
}

TEST_F(FileDatiTest, APairTakesTheSecondTextOrItsDefault) {
    const std::int16_t scrive = ApreFile(percorso, "S");
    std::string a = "3";
    std::string b = "7.8";
    EXPECT_TRUE(FileInOutCoppia("S", scrive, a, b, ""));
    EXPECT_TRUE(ChiudeFile(scrive));
    EXPECT_EQ(LeggeByte(percorso), "\"3\",\"7.8\"\r\n");
    const std::int16_t legge = Apre("\"4\",\"7.7\",\"altro\"\r\n\"5\"\r\n6\r\n");
    EXPECT_TRUE(FileInOutCoppia("L", legge, a, b, "nulla"));
    EXPECT_EQ(a + "|" + b, "4|7.7");
    EXPECT_TRUE(FileInOutCoppia("L", legge, a, b, "nulla"));
    EXPECT_EQ(a + "|" + b, "5|nulla");
    b = "x";
    EXPECT_TRUE(FileInOutCoppia("L", legge, a, b, "nulla"));
    EXPECT_EQ(a + "|" + b, "5|nulla");
    EXPECT_FALSE(FileInOutCoppia("L", legge, a, b, "nulla"));
    ChiudeFile(legge);
    EXPECT_EQ(r.testi, letturaSenzaFine);
}

TEST_F(FileDatiTest, PlainLinesGoInAndOut) {
    const std::int16_t scrive = ApreFile(percorso, "S");
    EXPECT_TRUE(ScriveRiga(scrive, "  0"));
    EXPECT_TRUE(ScriveRiga(scrive, "città"));
    EXPECT_TRUE(ChiudeFile(scrive));
    EXPECT_EQ(LeggeByte(percorso), "  0\r\ncitt\xE0\r\n");
    const std::int16_t legge = Apre("  0\ncitt\xE0\r\n\"x\"");
    std::string riga;
    EXPECT_TRUE(LeggeRiga(legge, riga));
    EXPECT_EQ(riga, "  0");
    EXPECT_FALSE(SeguonoVirgolette(legge));
    EXPECT_TRUE(LeggeRiga(legge, riga));
    EXPECT_EQ(riga, "città");
    EXPECT_TRUE(SeguonoVirgolette(legge));
    EXPECT_TRUE(LeggeRiga(legge, riga));
    EXPECT_EQ(riga, "\"x\"");
    EXPECT_FALSE(LeggeRiga(legge, riga));
    ChiudeFile(legge);
}

// ---- names

TEST(FileDialogo, FilterNamesAllFilesAndThoseOfTheExtension) {
    EXPECT_EQ(FiltroFileDialogo("Giunti flangiati", "Gfl"),
              "Tutti i Files (*.*)|*.*|Files Giunti flangiati (*.Gfl)|*.Gfl");
    EXPECT_EQ(indiceFiltroFileDialogo, 2);
}

TEST_F(FileDatiTest, ANameIsFoundWhateverItsLetters) {
    const auto& c = cartella.percorso;
    EXPECT_EQ(PercorsoSenzaMaiuscole(c, "Sagomi.hlp"), c / "Sagomi.hlp"); // none: as given
    ScriveByte(c / "SAGOMI.HLP", "");
    EXPECT_EQ(PercorsoSenzaMaiuscole(c, "Sagomi.hlp"), c / "SAGOMI.HLP");
    ScriveByte(c / "sagomi.HLP", "");
    ScriveByte(c / "Sagomi.hlp", "");
    EXPECT_EQ(PercorsoSenzaMaiuscole(c, "Sagomi.hlp"), c / "Sagomi.hlp"); // the exact name goes first
    EXPECT_EQ(PercorsoSenzaMaiuscole(c / "manca", "x.txt"), c / "manca" / "x.txt");
}

} // namespace
