#include "catalogue/Csv.h"

#include <gtest/gtest.h>

using namespace sagomi;

namespace {

using Righe = std::vector<std::vector<std::string>>;

struct CasoCsv {
    const char* nome;
    const char* testo;
    Righe righe;
};
void PrintTo(const CasoCsv& c, std::ostream* os) { *os << c.nome; }

class CsvTest : public testing::TestWithParam<CasoCsv> {};
TEST_P(CsvTest, Tabella) { EXPECT_EQ(LeggeCsv(GetParam().testo), GetParam().righe); }

// clang-format off
INSTANTIATE_TEST_SUITE_P(Testi, CsvTest, testing::Values(
    CasoCsv{"vuoto",              "",                        {}},
    CasoCsv{"unaRiga",            "a,b",                     {{"a", "b"}}},
    CasoCsv{"fineRigaLf",         "a,b\nc,d\n",              {{"a", "b"}, {"c", "d"}}},
    CasoCsv{"fineRigaCrLf",       "a,b\r\nc,d\r\n",          {{"a", "b"}, {"c", "d"}}},
    CasoCsv{"fineRigaCr",         "a\rb",                    {{"a"}, {"b"}}},
    CasoCsv{"righeVuote",         "\n\na\n\n\nb\n\n",        {{"a"}, {"b"}}},
    CasoCsv{"campiVuoti",         ",a,\n,,",                 {{"", "a", ""}, {"", "", ""}}},
    CasoCsv{"segnoDiOrdine",      "\xEF\xBB\xBF" "a,b",      {{"a", "b"}}},
    CasoCsv{"virgolette",         "\"a,b\",c",               {{"a,b", "c"}}},
    CasoCsv{"virgoletteDoppie",   "\"a \"\"b\"\"\",c",       {{"a \"b\"", "c"}}},
    CasoCsv{"aCapoDentro",        "\"a\r\nb\",c\nd,e",       {{"a\r\nb", "c"}, {"d", "e"}}},
    CasoCsv{"virgoletteVuote",    "\"\"\n\"\",x",            {{""}, {"", "x"}}},
    CasoCsv{"virgolettaInMezzo",  "3\"x2,b",                 {{"3\"x2", "b"}}},
    CasoCsv{"nonChiusa",          "a,\"b\nc",                {{"a", "b\nc"}}},
    CasoCsv{"utf8",               "\xC3\xA8,\xE2\x82\xAC",   {{"\xC3\xA8", "\xE2\x82\xAC"}}}),
    [](const auto& i) { return std::string(i.param.nome); });
// clang-format on

// What stands behind the end of the text is not read.
TEST(LeggeCsv, EndsAtItsEnd) {
    const std::string_view intero = "\"a\"\"";
    EXPECT_EQ(LeggeCsv(intero.substr(0, 3)), (std::vector<std::vector<std::string>>{{"a"}}));
}

} // namespace
