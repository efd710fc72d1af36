#include "choice/ScritturaScelta.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <map>
#include <optional>
#include <sstream>

#include "choice/Comando.h"
#include "choice/Opzioni.h"
#include "choice/Scelta.h"
#include "frame/Ambiente.h"
#include "frame/GeneraleSagomi.h"

using namespace sagomi;

namespace {

using Argomenti = std::vector<std::string>;

class ScritturaSceltaTest : public testing::Test {
protected:
    void TearDown() override { RipristinaGenerale(); }

    std::optional<int> Esegue(const Argomenti& argomenti, const std::string& lavori = {}) {
        std::istringstream ingresso(lavori);
        uscita.str("");
        errori.str("");
        return EsegueComando(argomenti, SAGOMI_BIN, ingresso, uscita, errori);
    }
    /// What stands after a key in the answer; empty where there is no such key.
    [[nodiscard]] std::string Campo(const std::string& chiave) const {
        const std::string testo = uscita.str(), nome = '"' + chiave + "\":";
        const std::size_t da = testo.find(nome);
        return da == std::string::npos
                   ? ""
                   : testo.substr(da + nome.size(), testo.find_first_of(",}", da) - da - nome.size());
    }
    [[nodiscard]] double Numero(const std::string& chiave) const {
        const std::string testo = Campo(chiave);
        double v = std::nan("");
        std::from_chars(testo.data(), testo.data() + testo.size(), v);
        return v;
    }

    std::ostringstream uscita, errori;
};

// HEA 200, L 2.5 m: Jz 1336 cm4, Jw 108000 cm6, JT 20.98 cm4, C1 1.88: pi2 E Jz / L2 = 4430 kN, the root of
// 8084 + 3825 mm2 is 109.1 mm, so Mcr = 1.88 x 483.5 = 909 kNm. betaM of a triangle is 1.8.
TEST_F(ScritturaSceltaTest, TheStepsOfTheMemberAreWritten) {
    Esegue({"--verifica", "HEA 200", "--N", "400", "--My", "30", "--L0y", "5", "--L0z", "2.5", "--json"});
    EXPECT_NEAR(Numero("Mcr"), 909, 1);
    EXPECT_NEAR(Numero("lamdaSegnatoLT"), std::sqrt(1.05 * 96.126 / 909), 5e-4);
    EXPECT_EQ(Campo("chiLT"), "1");
    EXPECT_EQ(Campo("betaMy"), "1.8");
    EXPECT_EQ(Campo("LLT"), "2.5");
    EXPECT_NEAR(Numero("ky"), 1 - Numero("muy") * 400 / (1.05 * Numero("NbyRd")), 1e-3);
    EXPECT_NEAR(Numero("kLT"), std::min(1.0, 1 - Numero("muLT") * 400 / (1.05 * Numero("NbzRd"))), 1e-3);
    for (const char* check : {"Sezione", "Membratura", "Svergolamento"}) {
        const double sum = Numero(std::string("termineN") + check) +
                           Numero(std::string("termineMy") + check) +
                           Numero(std::string("termineMz") + check);
        std::string key = check;
        key.front() = static_cast<char>(key.front() + ('a' - 'A'));
        EXPECT_NEAR(sum, Numero(key), 2e-4) << check;
    }
}

TEST_F(ScritturaSceltaTest, AnAngleHasItsMinorAxisAndNoBending) {
    Esegue({"--verifica", "L 100x100x10", "--N", "100", "--L0y", "3", "--L0z", "3", "--json"});
    EXPECT_NEAR(Numero("lamdav"), 3000 / 19.5, 0.01);
    EXPECT_NEAR(Numero("NbvRd"), Numero("chiv") * 1920 * 235 / 1.05 / 1000, 0.05);
    EXPECT_NEAR(Numero("massimo"), 100 / Numero("NbvRd"), 1e-5);
    EXPECT_EQ(Campo("Mcr"), "");
    EXPECT_EQ(Campo("termineMyMembratura"), "");
}

// What was asked for stands in the answer with all its figures: asked again, it is answered alike.
TEST_F(ScritturaSceltaTest, AnAnswerCanBeRunAgain) {
    const std::map<std::string, std::string> asked = {
        {"N", "123.456789"}, {"My2", "-2.3"}, {"MyQ", "12.7"},   {"Mz2", "0.1"},  {"diagramma", "4"},
        {"L0y", "5.00007"},  {"L0z", "2.3"},  {"L", "2.123456"}, {"k", "0.7"},    {"Kw", "0.9"},
        {"C1", "1.285"},     {"C2", "1.562"}, {"C3", "0.753"},   {"za", "-95.5"}, {"fy", "248.3"}};
    Argomenti call{"--verifica", "IPE 300", "--json", "--My", "30.1", "--Mz", "1.3"};
    for (const auto& [name, value] : asked)
        call.insert(call.end(), {"--" + name, value});
    ASSERT_NE(Esegue(call), comandoErrato) << errori.str();
    for (const auto& [name, value] : asked)
        EXPECT_EQ(Campo(name), value) << name;
    EXPECT_EQ(Campo("My"), "30.1");
    EXPECT_EQ(Campo("fu"), "360");
    EXPECT_EQ(Campo("doppi"), "null");
    const std::string first = uscita.str();
    Argomenti again{"--verifica", "IPE 300", "--json", "--My", Campo("My"), "--Mz", Campo("Mz")};
    for (const auto& [name, value] : asked)
        again.insert(again.end(), {"--" + name, Campo(name)});
    Esegue(again);
    EXPECT_EQ(uscita.str(), first);
    Esegue({"--verifica", "UPN 200", "--doppi", "12.5", "--accostati", "--json"});
    EXPECT_EQ(Campo("doppi"), "12.5");
    EXPECT_EQ(Campo("accostati"), "true");
    EXPECT_EQ(Campo("L"), "null");
}

/// The request in an answer.
std::string RichiestaIn(const std::string& answer) {
    const std::string from = "{\"richiesta\":";
    return answer.substr(from.size(), answer.find('}') + 1 - from.size());
}

TEST_F(ScritturaSceltaTest, TheRequestOfAnAnswerIsAJobWithThatAnswer) {
    const Argomenti calls[] = {
        {"--verifica", "HEA 200", "--N", "123.456789", "--My", "30.1", "--My2", "-12", "--L0y", "5", "--L0z",
         "2.5", "--acciaio", "S275", "--normativa", "EC3"},
        {"--verifica", "IPE 300", "--MyQ", "50", "--diagramma", "3", "--L", "4", "--k", "0.7", "--C1", "1.3",
         "--za", "-90", "--fy", "248.3", "--fu", "401.5"},
        {"--verifica", "IPE 300", "--My", "50", "--normativa", "Altro", "--GammaM0", "1.0123", "--GammaM1",
         "1.1"},
        {"--verifica", "UPN 200", "--N", "200", "--L0y", "3", "--doppi", "12.5", "--accostati"},
        {"--verifica", "L 100x100x10", "--N", "90", "--L0y", "3", "--L0v", "1.5"},
        {"--verifica", "IPE 300"},
        {"--scelta", "--famiglie", "HEA,IPE", "--N", "90", "--L0y", "3", "--hmax", "310.5", "--gmin", "12",
         "--verificati"},
        {"--scelta", "--My", "60", "--L", "3", "--doppi", "10"}};
    for (Argomenti call : calls) {
        call.emplace_back("--json");
        ASSERT_NE(Esegue(call), comandoErrato) << errori.str();
        const std::string first = uscita.str();
        ASSERT_NE(Esegue({"--json"}, RichiestaIn(first) + '\n'), comandoErrato) << uscita.str();
        EXPECT_EQ(uscita.str(), first);
    }
}

// What holds for all jobs and means nothing for one of them stays out of its request.
TEST_F(ScritturaSceltaTest, ARequestHasWhatMeansSomethingForItsKind) {
    for (const char* name : {"UPN 200", "HEA 200"}) {
        const std::string job = std::string(R"({"verifica":")") + name + R"(","N":50})" + '\n';
        ASSERT_EQ(Esegue({"--json", "--L", "3", "--k", "0.7", "--doppi", "8"}, job), comandoVerificato);
        const std::string first = uscita.str();
        EXPECT_EQ(Esegue({"--json"}, RichiestaIn(first) + '\n'), comandoVerificato) << uscita.str();
        EXPECT_EQ(uscita.str(), first);
    }
    EXPECT_EQ(Esegue({"--json"}, R"({"verifica":"IPE 300","My1":30})"
                                 "\n"),
              comandoVerificato)
        << "an older name";
    EXPECT_EQ(Campo("My"), "30");
}

// Resistances alone, in every writing.
TEST_F(ScritturaSceltaTest, WithoutForcesThereIsNoVerdict) {
    for (const char* name : {"IPE 300", "UPN 200", "L 100x100x10"}) {
        EXPECT_EQ(Esegue({"--verifica", name, "--L0y", "3", "--L0z", "3", "--json"}), comandoVerificato);
        for (const char* key : {"sezione", "membratura", "svergolamento", "massimo", "verificato"})
            EXPECT_EQ(Campo(key), "null") << name << ' ' << key;
        EXPECT_EQ(Campo("governa"), "\"\"");
        EXPECT_GT(Numero("NbyRd"), 100);
        EXPECT_EQ(Esegue({"--verifica", name, "--L0y", "3", "--L0z", "3"}), comandoVerificato);
        EXPECT_EQ(uscita.str().find(" 0 %"), std::string::npos) << uscita.str();
        EXPECT_EQ(uscita.str().find("OK"), std::string::npos) << uscita.str();
    }
    EXPECT_EQ(Esegue({"--scelta", "--famiglie", "IPE", "--L0z", "3", "--csv"}), comandoVerificato);
    EXPECT_NE(uscita.str().find(",,,,,,,\n"), std::string::npos) << uscita.str();
    EXPECT_EQ(uscita.str().find("OK"), std::string::npos) << uscita.str();
    EXPECT_EQ(Esegue({"--verifica", "IPE 300", "--L", "3"}), comandoVerificato);
    EXPECT_NE(uscita.str().find("Resistenza allo svergolamento"), std::string::npos) << uscita.str();
}

// Between supports without a distance there is no lateral buckling, and no critical moment to tell.
TEST_F(ScritturaSceltaTest, WithoutADistanceThereIsNoCriticalMoment) {
    Esegue({"--verifica", "HEA 200", "--My", "30", "--L", "0", "--json"});
    EXPECT_EQ(Campo("LLT"), "0");
    EXPECT_EQ(Campo("Mcr"), "null");
    EXPECT_EQ(Campo("chiLT"), "1");
}

// 5383 mm2 x 235 / 1.05 = 1204.1 kN: a force a little above it is above 1, and does not read as 1.
TEST_F(ScritturaSceltaTest, AUtilisationBesideOneIsNotToldAsOne) {
    const Argomenti call{"--verifica", "HEA 200", "--N", "1204.13"};
    Argomenti json = call;
    json.emplace_back("--json");
    EXPECT_EQ(Esegue(json), comandoNonVerificato);
    EXPECT_GT(Numero("massimo"), 1);
    EXPECT_LT(Numero("massimo"), 1.0001);
    EXPECT_EQ(Campo("verificato"), "false");
    Esegue({"--scelta", "--famiglie", "HEA", "--N", "1204.13"});
    EXPECT_NE(uscita.str().find("  1.0000"), std::string::npos) << uscita.str();
}

TEST_F(ScritturaSceltaTest, ARowSaysWhyItDoesNotHold) {
    const Argomenti call{"--scelta", "--famiglie", "UPN", "--My", "10"};
    for (const char* format : {"--json", "--csv", "--verificati"}) {
        Argomenti formatted = call;
        formatted.emplace_back(format);
        EXPECT_EQ(Esegue(formatted), comandoNonVerificato);
        EXPECT_EQ(uscita.str().find("La flessione di canali e angolari non ha una verifica") !=
                      std::string::npos,
                  std::string(format) != "--verificati");
    }
    Esegue(call);
    EXPECT_NE(uscita.str().find("non ha una verifica"), std::string::npos) << uscita.str();
}

// The user's own workbook is a text: that is told, and the table of CSV stays one.
TEST_F(ScritturaSceltaTest, WhatIsToldStandsBesideATableOfCsv) {
    const prove::CartellaDiProva prova;
    const std::filesystem::path folder = prova.percorso;
    std::filesystem::copy_file(std::filesystem::path(SAGOMI_BIN) / "Sagomi.xls", folder / "Sagomi.xls",
                               std::filesystem::copy_options::overwrite_existing);
    std::ofstream(folder / "SagomiUtente.xls") << "ciao";
    for (const Argomenti& question : {Argomenti{"--scelta"}, Argomenti{"--verifica", "IPE 300"}}) {
        Argomenti call = question;
        call.emplace_back("--csv");
        std::istringstream nothing;
        uscita.str("");
        errori.str("");
        EXPECT_EQ(EsegueComando(call, folder, nothing, uscita, errori), comandoVerificato);
        EXPECT_TRUE(uscita.str().starts_with("designazione,")) << uscita.str();
        EXPECT_EQ(uscita.str().find("SagomiUtente"), std::string::npos);
        EXPECT_TRUE(errori.str().starts_with("avviso: ")) << errori.str();
    }
}

std::string Cifre(double v) {
    char text[64];
    return std::isnan(v) ? "" : std::string(text, std::to_chars(text, text + sizeof text, v).ptr);
}

/// How long the character at the beginning is by its code point; 0 where there is none.
std::size_t Carattere(std::string_view bytes) {
    const auto at = [&](std::size_t i) -> std::uint32_t { return static_cast<unsigned char>(bytes[i]); };
    if (at(0) < 128)
        return 1;
    const std::size_t lengths[] = {2, 3, 4};
    const std::uint32_t least[] = {0x80, 0x800, 0x10000}; // what shorter ones do not reach
    for (int k = 0; k < 3; ++k) {
        const std::size_t n = lengths[k];
        const std::uint32_t lead = at(0) >> (6 - k - 1), mark = (1U << (k + 3)) - 2; // 110, 1110, 11110
        if (lead != mark || bytes.size() < n)
            continue;
        std::uint32_t point = at(0) - (mark << (6 - k - 1));
        bool good = true;
        for (std::size_t i = 1; i < n; ++i) {
            good = good && at(i) / 64 == 2;
            point = point * 64 + at(i) % 64;
        }
        return good && point >= least[k] && point <= 0x10FFFF && point / 0x800 != 27 ? n : 0; // D800 to DFFF
    }
    return 0;
}

/// A text of JSON, byte by byte.
std::string InJson(std::string_view bytes) {
    std::string text;
    for (std::size_t n = 0; !bytes.empty(); bytes.remove_prefix(n)) {
        n = Carattere(bytes);
        const std::string_view one = bytes.substr(0, n);
        text += n == 0                       ? "\xEF\xBF\xBD"
                : one == "\"" || one == "\\" ? "\\" + std::string(one)
                : one == "\n"                ? "\\n"
                : one < " "                  ? " "
                                             : std::string(one);
        n = std::max<std::size_t>(n, 1);
    }
    return "{\"errore\":\"" + text + "\"}\n";
}

// Every first byte with the second, third and fourth ones at all ends of what is allowed.
TEST(ScritturaErrore, AnyBytesBecomeATextOfJson) {
    const std::string ends = "!\x7F\x80\x8F\x90\x9F\xA0\xBF\xC0\xFF";
    std::string bytes(4, '\0');
    for (int first = 0; first < 256; ++first)
        for (const char second : ends)
            for (const char third : ends)
                for (const char fourth : {'!', '\x7F', '\x80', '\xBF', '\xC0'}) {
                    bytes = {static_cast<char>(first), second, third, fourth};
                    for (const std::size_t n : {4U, 3U, 2U, 1U}) {
                        std::ostringstream out;
                        ScriveErrore(out, bytes.substr(0, n));
                        ASSERT_EQ(out.str(), InJson(bytes.substr(0, n))) << first;
                        if (fourth != '!')
                            break; // the shorter ones once
                    }
                }
}

/// Ten thousandths, rounded, without zeros at the end.
std::string QuattroDecimali(double v) {
    const long long n = std::llround(std::abs(v) * 10000);
    std::string part = std::to_string(10000 + n % 10000).substr(1);
    while (!part.empty() && part.back() == '0')
        part.pop_back();
    return (v < 0 && n != 0 ? "-" : "") + std::to_string(n / 10000) + (part.empty() ? "" : "." + part);
}

// A weight is told with four decimals, a utilisation to a program as it is; to a person, too, where it
// would read as 1.
TEST_F(ScritturaSceltaTest, NumbersAreRoundedForWhoReadsThem) {
    std::vector<SagomoInGara> one(1);
    one[0].famiglia = "Mia, \"nuova\"";
    one[0].sezione = SezioneDoppioT();
    Comando c;
    const auto written = [&](FormatoUscita format, double g, double u) {
        RigaScelta row;
        row.g = g;
        row.massimo = row.sezione = u;
        row.verificato = u <= 1;
        c.formato = format;
        uscita.str("");
        ScriveScelta(uscita, c, one, {row}, {});
        return uscita.str();
    };
    for (const double v : {0.0, -0.0, 1.0, -1.0, 1.00001, 0.99999, 0.99994, -0.00004, -0.00006, 0.00006, 12.5,
                           100.0, 120.0, 1234567.89012, -20.05, 0.3, 1 / 3.0, 999999999999.5}) {
        const std::string csv = written(FormatoUscita::Csv, v, v);
        EXPECT_NE(csv.find("\n,\"Mia, \"\"nuova\"\"\"," + QuattroDecimali(v) + ",0,0,0,0,"),
                  std::string::npos)
            << csv;
        written(FormatoUscita::Json, v, v);
        EXPECT_EQ(Campo("g"), QuattroDecimali(v));
        double back = std::nan("");
        const std::string exact = Campo("massimo");
        std::from_chars(exact.data(), exact.data() + exact.size(), back);
        EXPECT_EQ(back, v) << exact;
        const std::string text = written(FormatoUscita::Testo, v, v);
        const bool beside = QuattroDecimali(v) == "1" && v != 1;
        EXPECT_NE(text.find(beside ? ' ' + exact + ' ' : ' ' + QuattroDecimali(v) + ' '), std::string::npos)
            << text;
        EXPECT_NE(text.find(' ' + QuattroDecimali(v) + ' '), std::string::npos) << "the weight: " << text;
    }
    for (const double v : {1e15, -3e15, 1.25e20, 1e300}) { // no decimals left
        written(FormatoUscita::Json, v, v);
        EXPECT_EQ(Numero("g"), v) << Campo("g");
        EXPECT_LE(Campo("g").size(), 8U) << Campo("g");
    }
    written(FormatoUscita::Json, RigaScelta::nessuno, RigaScelta::nessuno);
    EXPECT_EQ(Campo("g"), "null");
    EXPECT_NE(written(FormatoUscita::Csv, RigaScelta::nessuno, 0).find("\"\"\",,0,"), std::string::npos);
}

// A thousandth of many numbers is no longer the number: what was asked for is told as it was given.
TEST_F(ScritturaSceltaTest, WhatWasGivenComesBackFigureByFigure) {
    std::string jobs, numbers;
    for (int i = 1; i <= 300; ++i) {
        const std::string number = Cifre(i / 1000.0);
        jobs +=
            R"({"verifica":"HEA 200","N":)" + number + R"(,"My":)" + number + R"(,"L0y":)" + number + "}\n";
        numbers += number + ' ' + number + ' ' + number + '\n';
    }
    EXPECT_EQ(Esegue({"--json"}, jobs), comandoVerificato);
    std::istringstream answers(uscita.str());
    std::string told;
    for (std::string line; std::getline(answers, line); told += '\n') {
        uscita.str(line);
        told += Campo("N") + ' ' + Campo("My") + ' ' + Campo("L0y");
    }
    EXPECT_EQ(told, numbers);
}

/// The fields of a line of CSV without quotation marks.
std::vector<std::string> Campi(const std::string& line) {
    std::vector<std::string> fields;
    std::istringstream in(line);
    for (std::string field; std::getline(in, field, ',');)
        fields.push_back(field);
    return fields;
}

class ScritturaDiTutto : public ScritturaSceltaTest, public testing::WithParamInterface<Argomenti> {};

// Each row of all kinds, to the last figure.
TEST_P(ScritturaDiTutto, HasTheFiguresOfTheSweep) {
    Argomenti call = GetParam();
    call.insert(call.end(), {"--scelta", "--csv"});
    Esegue(call);
    std::istringstream lines(uscita.str());
    std::string line;
    std::getline(lines, line);
    const Argomenti heads = Campi(line);
    const auto at = [&heads](const char* name) {
        return static_cast<std::size_t>(std::ranges::find(heads, name) - heads.begin());
    };
    const std::size_t greatest = at("massimo"), member = at("membratura"), holds = at("verificato");

    Comando c = LeggeOpzioni(call);
    MetteInVigore(c);
    const Gara gara = LeggeGara(SAGOMI_BIN);
    std::vector<std::string> messages;
    std::vector<RigaScelta> rows = Valuta(gara.sagomi, c.richiesta, c.filtri, messages);
    OrdinaPerPeso(rows);
    ASSERT_GT(rows.size(), 300U);
    for (const RigaScelta& row : rows) {
        ASSERT_TRUE(std::getline(lines, line));
        const Argomenti fields = Campi(line);
        ASSERT_GT(fields.size(), holds) << line;
        ASSERT_EQ(fields[0], gara.sagomi[row.indice].Designazione());
        ASSERT_EQ(fields[greatest], Cifre(row.massimo)) << line;
        ASSERT_EQ(fields[member], Cifre(row.membratura)) << line;
        ASSERT_EQ(fields[holds], row.verificato ? "OK" : "NO") << line;
    }
    EXPECT_FALSE(std::getline(lines, line));
}

INSTANTIATE_TEST_SUITE_P(
    Forze, ScritturaDiTutto,
    testing::Values(Argomenti{"--N", "200", "--L0y", "3", "--L0z", "3"},
                    Argomenti{"--N", "-350.5", "--acciaio", "S355", "--normativa", "EC3"},
                    Argomenti{"--N", "100", "--My", "30", "--Mz", "2", "--L0y", "5", "--L0z", "2.5"},
                    Argomenti{"--My", "80", "--My2", "-40", "--MyQ", "60", "--diagramma", "4", "--L", "4",
                              "--C2", "0.5", "--za", "100", "--acciaio", "S275"},
                    Argomenti{"--N", "300", "--L0y", "4", "--L0z", "4", "--L0v", "1", "--doppi", "10"},
                    Argomenti{"--N", "90", "--L0y", "4", "--doppi", "8", "--accostati", "--hmax", "300"}));

} // namespace
