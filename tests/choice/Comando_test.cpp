#include "choice/Comando.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <functional>
#include <optional>
#include <sstream>
#include <stdexcept>

#include "choice/Opzioni.h"
#include "choice/Scelta.h"
#include "frame/Ambiente.h"
#include "frame/GeneraleSagomi.h"

using namespace sagomi;

namespace {

class ComandoTest : public testing::Test {
protected:
    void TearDown() override { RipristinaGenerale(); }

    std::optional<int> Esegue(const std::vector<std::string>& argomenti, const std::string& lavori = {}) {
        std::istringstream ingresso(lavori);
        uscita.str("");
        errori.str("");
        return EsegueComando(argomenti, SAGOMI_BIN, ingresso, uscita, errori);
    }
    [[nodiscard]] bool Dice(const std::string& testo) const {
        return uscita.str().find(testo) != std::string::npos;
    }
    [[nodiscard]] std::ptrdiff_t Righe() const {
        const std::string testo = uscita.str();
        return std::ranges::count(testo, '\n');
    }

    std::ostringstream uscita, errori;
};

TEST_F(ComandoTest, WithoutAQuestionTheWindowsAreMeant) {
    EXPECT_EQ(Esegue({}), std::nullopt);
    EXPECT_EQ(Esegue({"-platform", "offscreen"}), std::nullopt);
    EXPECT_EQ(Esegue({"trave.sco"}), std::nullopt);
    EXPECT_EQ(Esegue({"--platform", "offscreen", "nodo.gfl"}), std::nullopt);
    EXPECT_EQ(Esegue({"-style=Fusion"}), std::nullopt);
    EXPECT_EQ(Esegue({"-geometry", "-5+10", "-reverse", "nodo.gfl"}), std::nullopt) << "a value with a dash";
    for (const char* option : {"-style", "-stylesheet", "-display", "-qwindowgeometry", "-session"})
        EXPECT_EQ(Esegue({option, "x"}), std::nullopt) << option;
    EXPECT_EQ(Esegue({"-qmljsdebugger=port:1234,block"}), std::nullopt);
}

TEST_F(ComandoTest, HelpAndVersionHold) {
    EXPECT_EQ(Esegue({"--help"}), comandoVerificato);
    EXPECT_TRUE(Dice("--verifica \"HEA 200\""));
    EXPECT_EQ(Esegue({"--version"}), comandoVerificato);
    EXPECT_TRUE(Dice("sagomi "));
    EXPECT_TRUE(errori.str().empty());
}

// HEA 200 in S235, 400 kN, 4 m about z-z: Nb,z about 794 kN (the case of SceltaTest).
TEST_F(ComandoTest, ASectionIsCheckedAndItsDerivationWritten) {
    const std::vector<std::string> call = {"--verifica", "hea200", "--N",  "400", "--L0y",       "4",
                                           "--L0z",      "4",      "--fy", "235", "--normativa", "EC3"};
    EXPECT_EQ(Esegue(call), comandoVerificato);
    EXPECT_TRUE(Dice("HEA 200")) << uscita.str();
    EXPECT_TRUE(Dice("ENV 1993-1-1 5.5.1"));
    EXPECT_TRUE(Dice("OK"));
    std::vector<std::string> more = call;
    more[3] = "900";
    EXPECT_EQ(Esegue(more), comandoNonVerificato);
    EXPECT_TRUE(Dice("supera da sola Nb,z,Rd")) << uscita.str();
}

TEST_F(ComandoTest, JsonHasTheFiguresOfTheChoice) {
    EXPECT_EQ(Esegue({"--verifica", "IPE 300", "--acciaio", "S275", "--normativa", "EC3", "--My", "100",
                      "--L", "3", "--json"}),
              comandoVerificato);
    EXPECT_TRUE(Dice("\"designazione\":\"IPE 300\",\"famiglia\":\"IPE\"")) << uscita.str();
    EXPECT_TRUE(Dice("\"McyRd\":172.81")) << "628.4 cm3 x 275: " << uscita.str();
    EXPECT_TRUE(Dice("\"verificato\":true"));
    EXPECT_TRUE(Dice("\"NbzRd\":"));
    EXPECT_EQ(Righe(), 1);
}

TEST_F(ComandoTest, AChoiceGivesTheLightestFirst) {
    EXPECT_EQ(Esegue({"--scelta", "--famiglie", "IPE,HEA", "--My", "100", "--L", "3", "--csv"}),
              comandoVerificato);
    EXPECT_EQ(uscita.str().find("designazione,famiglia,g,"), 0U);
    const auto rows = LeggeGara(SAGOMI_BIN, {"IPE", "HEA"}).sagomi.size();
    EXPECT_EQ(Righe(), static_cast<std::ptrdiff_t>(rows) + 1);
    EXPECT_EQ(Esegue({"--scelta", "--famiglie", "IPE", "--My", "100000", "--L", "3"}), comandoNonVerificato);
    EXPECT_TRUE(Dice("IPE 600"));
    EXPECT_EQ(Esegue({"--scelta", "--famiglie", "IPE", "--My", "100000", "--verificati", "--json"}),
              comandoNonVerificato);
    EXPECT_TRUE(Dice("\"righe\":[]"));
}

TEST_F(ComandoTest, AngleInPairsUnderAForce) {
    EXPECT_EQ(Esegue({"--verifica", "L 100x100x10", "--N", "200", "--L0y", "2", "--L0z", "2", "--L0v", "1",
                      "--doppi", "10"}),
              comandoVerificato);
    EXPECT_TRUE(Dice("membratura"));
}

// iv = 19.5 mm, 3 m: lambda 153.85, relative 1.638, curve b: phi 2.087, chi 0.2960; A 1920 mm2, fy 235,
// gammaM1 1.05: Nb,v 127.2 kN, and 200 on it is 1.573. With 0 v-v does not buckle.
TEST_F(ComandoTest, AnAngleBucklesAboutItsMinorAxisByTheGreaterLength) {
    std::vector<std::string> call = {"--verifica", "L 100x100x10", "--N", "200", "--L0y", "3", "--L0z", "3"};
    EXPECT_EQ(Esegue(call), comandoNonVerificato);
    EXPECT_TRUE(Dice("157")) << uscita.str();
    const std::string without = uscita.str();
    call.insert(call.end(), {"--L0v", "3"});
    EXPECT_EQ(Esegue(call), comandoNonVerificato);
    EXPECT_EQ(uscita.str(), without);
    call.back() = "0";
    EXPECT_EQ(Esegue(call), comandoVerificato);
    EXPECT_EQ(LeggeOpzioni({"--scelta", "--L0z", "4", "--L0y", "2"}).richiesta.L0v, 4000);
    EXPECT_EQ(Esegue({"--json"}, R"({"verifica":"L 100x100x10","N":200,"L0y":3,"L0z":1})"
                                 "\n"),
              comandoNonVerificato);
    EXPECT_EQ(LeggeOpzioni({"--scelta", "--L0z", "4"}, {"--json", "--L0v", "1"}).richiesta.L0v, 1000);
}

TEST_F(ComandoTest, AMomentInTheSpanWantsADiagramThatHasIt) {
    const std::vector<std::string> call = {"--verifica", "IPE 300", "--MyQ", "50"};
    EXPECT_EQ(Esegue(call), comandoErrato);
    EXPECT_NE(errori.str().find("--MyQ e --MzQ vogliono --diagramma da 3 a 6"), std::string::npos);
    EXPECT_EQ(Esegue({"--scelta", "--MzQ", "1", "--diagramma", "2"}), comandoErrato);
    EXPECT_EQ(Esegue({"--verifica", "IPE 300", "--MyQ", "0"}), comandoVerificato);
    EXPECT_EQ(Esegue({"--verifica", "IPE 300", "--MyQ", "50", "--diagramma", "3"}), comandoVerificato);
    EXPECT_EQ(Esegue({"--json"}, R"({"verifica":"IPE 300","MyQ":50})"
                                 "\n"),
              comandoErrato);
    EXPECT_TRUE(Dice("vogliono --diagramma da 3 a 6")) << uscita.str();
    EXPECT_EQ(Esegue({"--json", "--MyQ", "50"}, R"({"verifica":"IPE 300","diagramma":3})"
                                                "\n"),
              comandoVerificato);
}

// What stands beside --json holds for each job, what a job says itself comes first.
TEST_F(ComandoTest, AJobOverrulesWhatHoldsForAll) {
    EXPECT_EQ(Esegue({"--json", "--N", "900", "--L0z", "4", "--hmax", "300"},
                     R"({"verifica":"HEA 200"})"
                     "\n"
                     R"({"verifica":"HEA 200","N":400})"
                     "\n"
                     R"({"verifica":"HEA 200","N":400,"N":900})"
                     "\n"),
              comandoErrato);
    std::istringstream lines(uscita.str());
    std::string uno, due, tre;
    std::getline(lines, uno);
    std::getline(lines, due);
    std::getline(lines, tre);
    EXPECT_NE(uno.find("\"verificato\":false"), std::string::npos) << uno;
    EXPECT_NE(due.find("\"verificato\":true"), std::string::npos) << due;
    EXPECT_EQ(tre, "{\"errore\":\"--N sta due volte\"}");
}

TEST_F(ComandoTest, APairForAllIsOneOfChannelsAndAngles) {
    EXPECT_EQ(Esegue({"--json", "--doppi", "10"}, R"({"verifica":"HEA 200"})"
                                                  "\n"
                                                  R"({"verifica":"UPN 200"})"
                                                  "\n"),
              comandoVerificato);
    EXPECT_TRUE(Dice("\"designazione\":\"HEA 200\"")) << uscita.str();
    EXPECT_EQ(Esegue({"--json"}, R"({"verifica":"HEA 200","doppi":10})"
                                 "\n"),
              comandoErrato);
}

// The same figures as alone, in the order of the jobs.
TEST_F(ComandoTest, AThousandJobsAreAnsweredLineByLine) {
    std::string jobs;
    for (int i = 0; i < 1000; ++i)
        jobs += R"({"verifica":"HEA 200","acciaio":"S275","N":)" + std::to_string(i) +
                R"(.5,"L0z":3,"L0y":3})"
                "\n";
    EXPECT_EQ(Esegue({"--json", "--normativa", "EC3"}, jobs), comandoVerificato);
    EXPECT_EQ(Righe(), 1000);
    const std::string all = uscita.str();
    Esegue({"--verifica", "HEA 200", "--acciaio", "S275", "--N", "7.5", "--L0z", "3", "--L0y", "3",
            "--normativa", "EC3", "--json"});
    std::istringstream lines(all);
    std::string line;
    for (int i = 0; i <= 7; ++i)
        std::getline(lines, line);
    EXPECT_EQ(line + '\n', uscita.str());
}

TEST_F(ComandoTest, AWrongJobIsAnsweredToo) {
    EXPECT_EQ(
        Esegue({"--json"},
               "{\"verifica\":\"IPE 200\",\"N\":100}\n\nciao\n[1]\n{}\n{\"N\":3}\n"
               "{\"verifica\":\"IPE 999\"}\n{\"scelta\":true,\"famiglie\":[\"IPE\",\"HEA\"],\"csv\":false,"
               "\"My\":50}\n{\"verifica\":{\"a\":1}}\n{\"verifica\":\"IPE 200\",\"N\":\"x\"}\n"),
        comandoErrato);
    EXPECT_EQ(Righe(), 9);
    const std::string testo = uscita.str();
    std::size_t errors = 0;
    for (std::size_t at = testo.find("{\"errore\""); at != std::string::npos;
         at = testo.find("{\"errore\"", at + 1))
        ++errors;
    EXPECT_EQ(errors, 7U) << testo;
    EXPECT_TRUE(Dice("IPE 999"));
    EXPECT_TRUE(Dice("\"famiglia\":\"HEA\""));
}

TEST_F(ComandoTest, AJobSearchesInItsFamiliesAlone) {
    EXPECT_EQ(Esegue({"--json"}, "{\"verifica\":\"HEA 200\",\"famiglie\":[\"IPE\"]}\n"
                                 "{\"verifica\":\"HEA 200\",\"famiglie\":[\"IPE\",\"HEA\"]}\n"),
              comandoErrato);
    EXPECT_EQ(Righe(), 2);
    EXPECT_TRUE(uscita.str().starts_with("{\"errore\"")) << uscita.str();
    EXPECT_TRUE(Dice("\"famiglia\":\"HEA\"")) << uscita.str();
}

// The user's own workbook is a text: the families of the other are there all the same.
TEST_F(ComandoTest, AFamilyWhoseSheetCannotBeReadIsToldSo) {
    const prove::CartellaDiProva prova;
    const std::filesystem::path folder = prova.percorso;
    std::filesystem::copy_file(std::filesystem::path(SAGOMI_BIN) / "Sagomi.xls", folder / "Sagomi.xls",
                               std::filesystem::copy_options::overwrite_existing);
    std::ofstream(folder / "SagomiUtente.xls") << "ciao";
    std::istringstream jobs(
        "{\"verifica\":\"HEA 200\",\"famiglie\":[\"doppiot simmetrico\"]}\n{\"verifica\":\"HEA 200\"}\n");
    EXPECT_EQ(EsegueComando({"--json"}, folder, jobs, uscita, errori), comandoErrato);
    EXPECT_TRUE(Dice("nessuna riga della famiglia")) << uscita.str();
    EXPECT_TRUE(Dice("SagomiUtente.xls")) << uscita.str();
    EXPECT_EQ(Righe(), 2);
}

TEST_F(ComandoTest, AValueStandsBehindAnEqualSignToo) {
    EXPECT_EQ(Esegue({"--verifica", "HEA 200", "--N", "-400", "--json"}), comandoVerificato);
    const std::string apart = uscita.str();
    EXPECT_EQ(Esegue({"--verifica=HEA 200", "--N=-400", "--json"}), comandoVerificato) << errori.str();
    EXPECT_EQ(uscita.str(), apart);
    std::vector<std::string> argomenti{"--cartella=/a=b", "--scelta"};
    EXPECT_EQ(PrendeCartella(argomenti), "/a=b");
    EXPECT_EQ(argomenti, std::vector<std::string>{"--scelta"});
}

TEST_F(ComandoTest, FamiliesAreFoundInSmallLetters) {
    EXPECT_EQ(Esegue({"--scelta", "--N", "100", "--famiglie", "l uguali,ipe", "--csv"}), comandoVerificato);
    EXPECT_TRUE(Dice("\nIPE 300,IPE,"));
    EXPECT_TRUE(Dice(",L Uguali,"));
    EXPECT_EQ(Esegue({"--json"}, R"({"verifica":"IPE 300","famiglie":["ipe"]})"
                                 "\n"),
              comandoVerificato);
}

// Restrained all along where no length is given: what is left out is said.
TEST_F(ComandoTest, ABeamWithoutALengthIsToldNotToBeCheckedForBuckling) {
    const std::string told = "svergolamento non verificato: manca L o L0z";
    for (const std::vector<std::string>& question :
         {std::vector<std::string>{"--verifica", "HEA 200", "--N", "100"},
          std::vector<std::string>{"--scelta", "--famiglie", "HEA", "--L0y", "3"}})
        for (const char* format : {"", "--json"}) {
            std::vector<std::string> call = question;
            if (*format != '\0')
                call.emplace_back(format);
            call.insert(call.end(), {"--My", "30"});
            EXPECT_EQ(Esegue(call), comandoVerificato);
            const std::size_t at = uscita.str().find(told);
            ASSERT_NE(at, std::string::npos) << uscita.str();
            EXPECT_EQ(uscita.str().find(told, at + 1), std::string::npos) << "once";
            EXPECT_TRUE(errori.str().empty());
            call.insert(call.end(), {"--L", "3"});
            Esegue(call);
            EXPECT_FALSE(Dice(told));
        }
    Esegue({"--verifica", "HEA 200", "--Mz", "5", "--json"});
    EXPECT_FALSE(Dice(told));
    Esegue({"--scelta", "--famiglie", "UPN", "--My", "5", "--json"});
    EXPECT_FALSE(Dice(told));
}

TEST_F(ComandoTest, AJobOfTheWrongKindSaysWhatWasExpected) {
    const std::pair<const char*, const char*> jobs[] = {
        {R"({"verifica":true})", "--verifica vuole il nome di un sagomo"},
        {R"({"N":true,"My":5})", "--N vuole un numero"},
        {R"({"scelta":"si"})", R"(\"scelta\" vuole true o false, non si)"},
        {R"({"verifica":"HEA 200\u0000x"})", "non può contenere il carattere U+0000"},
        {R"({"verifica":"HEA 200","k":0.7,"My":1})", "--k vuole --L o --L0z"}};
    for (const auto& [job, expected] : jobs) {
        EXPECT_EQ(Esegue({"--json"}, std::string(job) + '\n'), comandoErrato);
        EXPECT_TRUE(uscita.str().starts_with("{\"errore\":")) << uscita.str();
        EXPECT_TRUE(Dice(expected)) << uscita.str();
    }
    EXPECT_EQ(Esegue({"--json", "--k", "0.7"}, "{\"verifica\":\"HEA 200\",\"My\":1}\n"), comandoVerificato)
        << "for all jobs: " << uscita.str();
}

TEST_F(ComandoTest, AWordThatNoJobKnowsIsNamed) {
    const std::pair<const char*, const char*> jobs[] = {
        {R"({"verifica":"HEA 200","Forza":3})",
         R"(\"Forza\" non è una voce di un lavoro: le voci sono le opzioni senza i trattini)"},
        {R"({"qualcosa":"HEA 200"})", R"(\"qualcosa\" non è una voce di un lavoro)"},
        {R"({"verifca":"HEA 200"})", R"(\"verifca\" non è una voce di un lavoro: forse verifica)"},
        {R"({"verifica":"HEA 200","verificatti":false})", "forse verificati"},
        {R"({"verifica":"HEA 200","--N":3})", R"(\"--N\" non è una voce)"},
        {R"({"verifica":"HEA 200","N=3":3})", R"(\"N=3\" non è una voce)"},
        {R"({"verifica":"HEA 200","":null})", R"(\"\" non è una voce)"}};
    for (const auto& [job, expected] : jobs) {
        EXPECT_EQ(Esegue({"--json"}, std::string(job) + '\n'), comandoErrato);
        EXPECT_TRUE(Dice(expected)) << uscita.str();
    }
}

// The character of the number 0 in all of its disguises; a backslash that is itself one is none.
TEST_F(ComandoTest, OnlyTheCharacterZeroIsRefused) {
    const std::string no = "un lavoro non può contenere il carattere U+0000";
    for (const char* job :
         {R"({"verifica":"\u0000"})", R"({"verifica":"a\n\u0000"})", R"({"verifica":"\\\u0000"})",
          R"({"verifica":"\\\\\u0000b"})", R"({"\u0000":1})", R"({"verifica":"a\\\n\u0000"})"}) {
        EXPECT_EQ(Esegue({"--json"}, std::string(job) + '\n'), comandoErrato);
        EXPECT_TRUE(Dice(no)) << job << uscita.str();
    }
    EXPECT_EQ(Esegue({"--json"}, std::string("{\"verifica\":\"a\0\"}\n", 18)), comandoErrato);
    EXPECT_TRUE(Dice(no)) << uscita.str();
    for (const char* job :
         {R"({"verifica":"a\\u0000"})", R"({"verifica":"\\\\u0000"})", R"({"verifica":"a\n\u0001"})",
          R"({"verifica":"u0000"})", R"({"verifica":"\\n\\u0000"})"}) {
        EXPECT_EQ(Esegue({"--json"}, std::string(job) + '\n'), comandoErrato);
        EXPECT_TRUE(Dice("nessun sagomo si chiama")) << job << uscita.str();
    }
    EXPECT_EQ(Esegue({"--json"}, R"({"verifica":"HEA\u0020200","N":null,"scelta":null,"verificati":false})"
                                 "\n"),
              comandoVerificato)
        << uscita.str();
}

// A byte alone, a character cut short, one written too long, half of a pair.
TEST_F(ComandoTest, AnAnswerIsUtf8WhateverWasAsked) {
    const std::string no = "\xEF\xBF\xBD";
    const std::pair<std::string, std::string> names[] = {
        {"\xE8", no},
        {"\xE2\x82!", no + no + "!"},
        {"\xC0\x80", no + no},
        {"\xED\xA0\x80", no + no + no},
        {"\xC3\xA8\xE2\x82\xAC\xF0\x9F\x98\x80", "\xC3\xA8\xE2\x82\xAC\xF0\x9F\x98\x80"}};
    for (const auto& [name, told] : names) {
        EXPECT_EQ(Esegue({"--json"}, "{\"verifica\":\"" + name + "\"}\n"), comandoErrato);
        EXPECT_TRUE(Dice("si chiama \\\"" + told + "\\\"")) << uscita.str();
    }
    EXPECT_EQ(Esegue({"--json"}, "\xEF\xBB\xBF{\"verifica\":\"HEA 200\"}\n"), comandoVerificato)
        << uscita.str();
}

TEST_F(ComandoTest, TheTableHasUnitsAndMarksTheLightestOfEachFamily) {
    EXPECT_EQ(Esegue({"--scelta", "--famiglie", "IPE,HEA", "--My", "100", "--L", "3"}), comandoVerificato);
    for (const char* head : {"g [kg/m]", "h [mm]", "A [cm2]", "Npl,Rd [kN]", "Mb,Rd [kNm]"})
        EXPECT_TRUE(Dice(head)) << head;
    const std::string testo = uscita.str();
    std::size_t marks = 0;
    for (std::size_t at = testo.find(" *"); at != std::string::npos; at = testo.find(" *", at + 1))
        ++marks;
    EXPECT_EQ(marks, 2U) << testo;
    EXPECT_EQ(testo.find(" *"), testo.find(' ', testo.find("\nIPE ") + 5))
        << "the first row holds: " << testo;
    EXPECT_TRUE(Dice("\n* il più leggero verificato della sua famiglia\n"));
}

struct Errato {
    std::vector<std::string> argomenti;
    const char* atteso;
};

TEST_F(ComandoTest, AFolderIsTakenOutOfTheArguments) {
    std::vector<std::string> argomenti{"--cartella",        "/a",   "--scelta", "--cartella",
                                       "lavori di Niccolò", "x.gfl"};
    EXPECT_EQ(PrendeCartella(argomenti), "lavori di Niccolò");
    EXPECT_EQ(argomenti, (std::vector<std::string>{"--scelta", "x.gfl"}));
    EXPECT_EQ(PrendeCartella(argomenti), std::nullopt);
    std::vector<std::string> senza{"--cartella"}, vuota{"--cartella", ""};
    EXPECT_THROW(PrendeCartella(senza), ErroreUso);
    EXPECT_THROW(PrendeCartella(vuota), ErroreUso);
}

TEST_F(ComandoTest, TheFolderIsLookedForWhenAnAnswerNeedsIt) {
    int cercata = 0;
    const std::function<std::filesystem::path()> rifiutata = [&cercata]() -> std::filesystem::path {
        ++cercata;
        throw std::runtime_error("la cartella /proc/x non si può usare");
    };
    std::istringstream nessuno;
    EXPECT_EQ(EsegueComando({"--version"}, rifiutata, nessuno, uscita, errori), comandoVerificato);
    EXPECT_EQ(EsegueComando({"nodo.gfl"}, rifiutata, nessuno, uscita, errori), std::nullopt);
    EXPECT_EQ(cercata, 0);
    for (const char* domanda : {"--scelta", "--json"}) {
        errori.str("");
        EXPECT_EQ(EsegueComando({domanda}, rifiutata, nessuno, uscita, errori), comandoErrato);
        EXPECT_EQ(errori.str(), "sagomi: la cartella /proc/x non si può usare\n");
    }
    EXPECT_EQ(cercata, 2);
}

TEST_F(ComandoTest, WrongCallsSayWhatWasExpected) {
    const std::vector<Errato> calls = {
        {{"--verifica"}, "--verifica vuole il nome di un sagomo"},
        {{"--verifica", "HEA 200", "--N"}, "--N vuole un numero"},
        {{"--verifica", "HEA 200", "--N", "2,5"}, "punto decimale"},
        {{"--verifica", "HEA 200", "--N", "nan"}, "punto decimale"},
        {{"--verifica", "HEA 200", "--N", "1e400"}, "punto decimale"},
        {{"--verifica", "HEA 200", "--N", ""}, "punto decimale"},
        {{"--verifica", "HEA 200", "--L0y", "-1"},
         "--L0y non può valere -1: vuole un numero non minore di 0"},
        {{"--verifica", "HEA 200", "--fy", "0"}, "--fy non può valere 0: vuole un numero da 1 a 5000"},
        {{"--verifica", "HEA 200", "--diagramma", "7"},
         "--diagramma non può valere 7: vuole un numero da 1 a 6"},
        {{"--verifica", "HEA 200", "--diagramma", "1.5"}, "un numero intero"},
        {{"--verifica", "HEA 200", "--My", "1", "--My2", "2"}, "--My2"},
        {{"--verifica", "HEA 999"}, "nessun sagomo si chiama \"HEA 999\""},
        {{"--verifica", "HEA 200", "--acciaio", "S999"}, "S235, S275, S355"},
        {{"--verifica", "HEA 200", "--normativa", "DIN"}, "NTC o EC3"},
        {{"--verifica", "HEA 200", "--scelta"}, "una cosa sola"},
        {{"--scelta", "--json", "--csv"}, "uno solo"},
        {{"--scelta", "--famiglie", "IPE,XYZ"},
         "nessuna famiglia si chiama \"XYZ\": le famiglie sono HEA, HEB"},
        {{"--scelta", "--famiglie", "XYZ"}, "L Uguali, L Disuguali, DoppioT Simmetrico"},
        {{"--verifica", "HEA 99"}, "si chiama \"HEA 99\": forse HE"},
        {{"--verifica", "IPE 301"}, "forse IPE 300"},
        {{"--verifica", "IPE 301", "--famiglie", "IPE"}, "si chiama \"IPE 301\": forse IPE 300"},
        {{"--verifica", "IPE 301", "--famiglie", "HEA"}, "si chiama \"IPE 301\"\n"},
        {{"--verifica", "--N", "400"}, "--verifica vuole il nome di un sagomo"},
        {{"--scelta", "--famiglie", "--N", "400"}, "--famiglie vuole nomi di famiglie"},
        {{"--verifica", "HEA 200", "--N", "--My", "4"}, "--N vuole un numero"},
        {{"--scelta", "--famiglie", "IPE", "--L0v"}, "--L0v vuole un numero"},
        {{"IPE 300", "--pdf"}, "--pdf vuole un file"},
        {{"IPE 300", "--progetto", "--pdf", "o.pdf"}, "--progetto vuole un testo"},
        {{"--verifica=HEA 200", "--N=x"}, "--N vuole un numero col punto decimale"},
        {{"--verifica", "HEA 200", "--N=1", "--N", "2"}, "--N sta due volte"},
        {{"--verifica", "HEA 200", "--json=3"}, "\"--json=3\" non è un'opzione"},
        {{"--verifica", "HEA 200", "--fu", "5001"}, "vuole un numero da 1 a 5000"},
        {{"--verifica", "HEA 200", "--L", "3", "--k", "0"},
         "--k non può valere 0: vuole un numero maggiore di 0"},
        {{"--verifica", "HEA 200", "--L", "3", "--Kw", "0"}, "--Kw non può valere 0"},
        {{"--verifica", "HEA 200", "--L", "3", "--C1", "0"}, "--C1 non può valere 0"},
        {{"--verifica", "HEA 200", "--N", "9", "--L0v", "3"}, "--L0v vale per gli angolari, non per HEA 200"},
        {{"--verifica", "UPN 200", "--L0v", "3"}, "--L0v vale per gli angolari"},
        {{"--verifica", "HEA 200", "--My", "9", "--za", "5"}, "--za vuole --L o --L0z"},
        {{"--scelta", "--My", "9", "--C1", "1.2"}, "--C1 vuole --L o --L0z"},
        {{"--scelta", "--famiglie", ""}, "nessuna famiglia"},
        {{"--csv"}, "manca che cosa fare"},
        {{"--N", "3"}, "manca che cosa fare"},
        {{"--scelta", "--pippo", "3"}, "\"--pippo\" non è un'opzione"},
        {{"--verifca", "HEA 200"}, "\"--verifca\" non è un'opzione"},
        {{"-verifca", "HEA 200"}, "\"-verifca\" non è un'opzione: forse --verifica"},
        {{"-scelta"}, "forse --scelta"},
        {{"-x", "nodo.gfl"}, "\"-x\" non è un'opzione: si attende un file Gfl o Sco, --verifica o --scelta"},
        {{"-reverse", "-pippo"}, "\"-pippo\" non è un'opzione"},
        {{"--verifica", "UPN 200", "--L", "3"}, "--L vale per lo svergolamento dei doppi T, non per UPN 200"},
        {{"--verifica", "L 100x100x10", "--N", "1", "--za", "50"}, "--za vale per lo svergolamento"},
        {{"UPN 200", "--k", "1", "--relazione", "o.txt"}, "--k vale per lo svergolamento"},
        {{"--verifica", "HEA 200", "--fu", "0"}, "--fu non può valere 0"},
        {{"--verifica", "HEA 200", "--GammaM0", "1.5"}, "--GammaM0 vale con --normativa Altro"},
        {{"--verifica", "HEA 200", "--normativa", "Altro"}, "vuole --GammaM0 e --GammaM1"},
        {{"nodo.gfl", "--aiuto"}, "\"--aiuto\" non è un'opzione"},
        {{"--verifica", "HEA 200", "--N", "1", "--N", "2"}, "--N sta due volte"},
        {{"--scelta", "--scelta"}, "--scelta sta due volte"},
        {{"--verifica", "HEA 200", "--hmax", "300"}, "--hmax va con --scelta"},
        {{"--verifica", "HEA 200", "--verificati"}, "--verificati va con --scelta"},
        {{"UPN 200", "--gmax", "30", "--relazione", "o.txt"}, "--gmax va con --scelta"},
        {{"nodo.gfl", "--verificati", "--relazione", "o.txt"}, "--verificati va con --scelta"},
        {{"nodo.gfl", "--doppi", "1", "--accostati", "--relazione", "o.txt"}, "--doppi vale per un sagomo"},
        {{"--verifica", "UPN 200", "--accostati"}, "--accostati vuole --doppi"},
        {{"--verifica", "HEA 200", "--doppi", "10"}, "--doppi vale per canali e angolari"},
        {{"--scelta", "ciao"}, "\"ciao\" non è un'opzione"},
    };
    for (const auto& [call, expected] : calls) {
        EXPECT_EQ(Esegue(call), comandoErrato) << expected;
        EXPECT_NE(errori.str().find(expected), std::string::npos) << errori.str();
        EXPECT_TRUE(uscita.str().empty()) << expected;
    }
    std::istringstream nessuno;
    EXPECT_EQ(EsegueComando({"--scelta"}, "/nessuna", nessuno, uscita, errori), comandoErrato);
}

} // namespace
