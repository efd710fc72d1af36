#include "catalogue/Famiglie.h"

#include <algorithm>
#include <cctype>

#include <stdexcept>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Registratore.h"

using namespace sagomi;
using testing::ElementsAre;

namespace {

using S = std::string;

TEST(FamiglieSchermi, BoxesAndFirstQueryOfEachScreen) {
    EXPECT_THAT(FamigliaDi("frmDoppioT").fogli,
                ElementsAre("HEA", "HEB", "HEM", "IPE", "IPEO", "IPEA", "IPEX", "IPN", "HD", "HEX", "HP",
                            "HEAA", "UC", "UB", "W", "HL"));
    EXPECT_THAT(FamigliaDi("frmSaldati").fogli, ElementsAre("HSE", "HSL", "HSU", "HSH", "ISE", "HSA"));
    EXPECT_THAT(FamigliaDi("frmSaldatiAsimm").fogli, ElementsAre("HSD"));
    EXPECT_THAT(FamigliaDi("frmSagomiU").fogli, ElementsAre("UPN", "UAP"));
    EXPECT_THAT(FamigliaDi("frmSagomiL").fogli, ElementsAre("L Uguali", "L Disuguali"));
    EXPECT_EQ(FamigliaDi("frmDoppioT").primaQuery, "SELECT * FROM [IPE$] ORDER BY [Wy (cm3)]");
    EXPECT_EQ(FamigliaDi("frmSaldati").primaQuery, "SELECT * FROM [ISE$] ORDER BY [Wy (cm3)]");
    EXPECT_EQ(FamigliaDi("frmSaldatiAsimm").primaQuery, "SELECT * FROM [HSD$] ORDER BY [Wy1 (cm3)]");
    EXPECT_EQ(FamigliaDi("frmSagomiU").primaQuery, "SELECT * FROM [UPN$] ORDER BY [Wy (cm3)]");
    EXPECT_EQ(FamigliaDi("frmSagomiL").primaQuery, "SELECT * FROM ['L Uguali'$] ORDER BY [g (Kg/m)]");
    EXPECT_THROW(FamigliaDi("frmGiunti"), std::out_of_range);
}

TEST(FamiglieSchermi, StateAtLoadAgreesWithTheFirstQuery) {
    for (const FamigliaSchermo& f : FamiglieSchermi()) {
        EXPECT_THAT(f.fogli, testing::Contains(f.primoFoglio)) << f.schermo;
        EXPECT_THAT(S(f.primaQuery), testing::HasSubstr(NomeFoglioQuery(f.primoFoglio))) << f.schermo;
        EXPECT_EQ(f.primoOrdine, f.schermo == "frmSagomiL" ? 2 : 0);
        EXPECT_EQ(f.ordini.size(), 3U);
    }
}

TEST(NomeFoglioQuery, ABracketInTheNameCannotEndIt) {
    EXPECT_EQ(NomeFoglioQuery("a]"), "\"a]$\"");
    EXPECT_EQ(NomeFoglioQuery("a \"]--"), "\"'a \"\"]--'$\"");
    EXPECT_EQ(NomeTabella("a \"]--"), "'a \"]--'$");
}

TEST(NomeFoglioQuery, ApostrophesWhereTheNameHasABlank) {
    EXPECT_EQ(NomeFoglioQuery("IPE"), "[IPE$]");
    EXPECT_EQ(NomeFoglioQuery("L Uguali"), "['L Uguali'$]");
    EXPECT_EQ(NomeFoglioQuery("DoppioT Simmetrico"), "['DoppioT Simmetrico'$]");
}

struct CasoQuery {
    const char* nome;
    const char* schermo;
    std::vector<S> scelti;
    int ordine;
    const char* query;
};
void PrintTo(const CasoQuery& c, std::ostream* os) { *os << c.nome; }

class ComponeQueryTest : public testing::TestWithParam<CasoQuery> {};
TEST_P(ComponeQueryTest, Tabella) {
    EXPECT_EQ(ComponeQuery(GetParam().schermo, GetParam().scelti, GetParam().ordine), GetParam().query);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Schermi, ComponeQueryTest, testing::Values(
    CasoQuery{"unoPerWy",    "frmDoppioT", {"IPE"}, 0, "SELECT * FROM [IPE$] ORDER BY [Wy (cm3)] ASC"},
    CasoQuery{"unoPerIy",    "frmDoppioT", {"IPE"}, 1, "SELECT * FROM [IPE$] ORDER BY [Iy (cm4)]"},
    CasoQuery{"unoPerPeso",  "frmDoppioT", {"IPE"}, 2, "SELECT * FROM [IPE$] ORDER BY [g (Kg/m)]"},
    CasoQuery{"due",         "frmDoppioT", {"HEA", "HEB"}, 0,
              "SELECT * FROM [HEA$] UNION SELECT * FROM [HEB$] ORDER BY [Wy (cm3)] ASC"},
    CasoQuery{"saldati",     "frmSaldati", {"HSE", "ISE", "HSA"}, 1,
              "SELECT * FROM [HSE$] UNION SELECT * FROM [ISE$] UNION SELECT * FROM [HSA$] ORDER BY [Iy (cm4)]"},
    CasoQuery{"asimmetrici", "frmSaldatiAsimm", {"HSD"}, 0, "SELECT * FROM [HSD$] ORDER BY [Wy1 (cm3)]"},
    CasoQuery{"canali",      "frmSagomiU", {"UPN", "UAP"}, 2,
              "SELECT * FROM [UPN$] UNION SELECT * FROM [UAP$] ORDER BY [g (Kg/m)]"},
    CasoQuery{"angolari",    "frmSagomiL", {"L Uguali", "L Disuguali"}, 0,
              "SELECT * FROM ['L Uguali'$] UNION SELECT * FROM ['L Disuguali'$] ORDER BY [iy (cm)]"},
    CasoQuery{"nessuno",     "frmDoppioT", {}, 0, ""}),
    [](const auto& i) { return std::string(i.param.nome); });
// clang-format on

// Columns and beams of a joint are rolled or welded doubly symmetric sections.
TEST(Famiglie, JointsPickFromTwoScreens) {
    for (const FamigliaSchermo& f : FamiglieSchermi())
        EXPECT_EQ(f.perGiunto, f.schermo == "frmDoppioT" || f.schermo == "frmSaldati") << f.schermo;
}

// A sort key is a column of its own sheets, whatever the capitals of the weight's unit.
TEST(Famiglie, EveryKeyIsAColumn) {
    const auto lower = [](std::string t) {
        std::transform(t.begin(), t.end(), t.begin(), [](unsigned char c) { return std::tolower(c); });
        return t;
    };
    for (const FamigliaSchermo& f : FamiglieSchermi())
        for (const std::string_view key : f.chiavi) {
            const std::string column(key.substr(1, key.find(']') - 1));
            EXPECT_TRUE(
                std::any_of(f.intestazioni.begin(), f.intestazioni.end(),
                            [&](std::string_view h) { return lower(std::string(h)) == lower(column); }))
                << f.schermo << ' ' << column;
        }
}

TEST(ComponeQuery, KeyOutsideTheOptions) {
    EXPECT_THROW(ComponeQuery("frmDoppioT", {"IPE"}, 3), std::out_of_range);
    EXPECT_THROW(ComponeQuery("frmDoppioT", {"IPE"}, -1), std::out_of_range);
}

TEST(ComponeQueryFoglio, SheetInForce) {
    EXPECT_EQ(ComponeQueryFoglio("frmSaldati", "['DoppioT Simmetrico'$]", 0),
              "SELECT * FROM ['DoppioT Simmetrico'$] ORDER BY [Wy (cm3)] ASC");
    EXPECT_EQ(ComponeQueryFoglio("frmSaldatiAsimm", "[HSD$]", 2), "SELECT * FROM [HSD$] ORDER BY [g (Kg/m)]");
}

TEST(CambioFamigliaQuery, FromTheTickedBoxes) {
    const prove::Registratore r;
    std::vector<bool> spunte(16, false);
    spunte[0] = spunte[3] = spunte[15] = true;
    EXPECT_EQ(
        CambioFamigliaQuery("frmDoppioT", spunte, 2),
        "SELECT * FROM [HEA$] UNION SELECT * FROM [IPE$] UNION SELECT * FROM [HL$] ORDER BY [g (Kg/m)]");
    EXPECT_EQ(CambioFamigliaQuery("frmSagomiU", {false, true, true, true}, 0),
              "SELECT * FROM [UAP$] ORDER BY [Wy (cm3)] ASC");
    EXPECT_TRUE(r.testi.empty());
}

TEST(CambioFamigliaQuery, NothingTickedIsToldAndGivesNoQuery) {
    const prove::Registratore r;
    EXPECT_EQ(CambioFamigliaQuery("frmDoppioT", std::vector<bool>(16, false), 0), std::nullopt);
    EXPECT_EQ(CambioFamigliaQuery("frmDoppioT", {}, 0), std::nullopt);
    EXPECT_THAT(r.testi, ElementsAre("ERRORE !! Non è stato selezionato nessun tipo di sagomo",
                                     "ERRORE !! Non è stato selezionato nessun tipo di sagomo"));
}

TEST(CambioFamigliaQuery, GivenSheetGoesBeforeTheBoxes) {
    const prove::Registratore r;
    EXPECT_EQ(CambioFamigliaQuery("frmSaldati", std::vector<bool>(6, true), 1, "['DoppioT Simmetrico'$]"),
              "SELECT * FROM ['DoppioT Simmetrico'$] ORDER BY [Iy (cm4)]");
    EXPECT_TRUE(r.testi.empty());
}

TEST(Intestazioni, ByKindOfSheet) {
    EXPECT_THAT(Intestazioni("frmDoppioT"),
                ElementsAre("designation", "g (Kg/m)", "h (mm)", "b (mm)", "tw (mm)", "tf (mm)", "r1 (mm)",
                            "r2 (mm)", "A (cm2)", "Iy (cm4)", "Wy (cm3)", "Wpl,y (cm3)", "iy (cm)",
                            "Iz (cm4)", "Wz (cm3)", "Wpl,z (cm3)", "iz (cm)", "IT (cm4)", "Iw (cm6)"));
    auto canali = Intestazioni("frmDoppioT");
    canali[1] = "g (kg/m)";
    EXPECT_EQ(Intestazioni("frmSagomiU"), canali);
    EXPECT_THAT(Intestazioni("frmSaldati"),
                ElementsAre("Designation", "g (Kg/m)", "h (mm)", "b (mm)", "tw (mm)", "tf (mm)", "r (mm)",
                            "A (cm2)", "Iy (cm4)", "Wy (cm3)", "Wpl,y (cm3)", "iy (cm)", "Iz (cm4)",
                            "Wz (cm3)", "Wpl,z (cm3)", "iz (cm)", "IT (cm4)", "Iw (cm6)"));
    EXPECT_THAT(Intestazioni("frmSaldatiAsimm"),
                ElementsAre("Designation", "g (Kg/m)", "h (mm)", "b1 (mm)", "b2 (mm)", "tw (mm)", "tf1 (mm)",
                            "tf2 (mm)", "r (mm)", "A (cm2)", "Iy (cm4)", "Wy1 (cm3)", "Wy2 (cm3)",
                            "Wpl,y (cm3)", "iy (cm)", "Iz (cm4)", "Wz (cm3)", "Wpl,z (cm3)", "iz (cm)",
                            "IT (cm4)", "Iw (cm6)"));
    EXPECT_THAT(Intestazioni("frmSagomiL"),
                ElementsAre("designation", "g (kg/m)", "h (mm)", "b (mm)", "t (mm)", "r1 (mm)", "r2 (mm)",
                            "A (cm2)", "Iy (cm4)", "Wy (cm3)", "iy (cm)", "Iz (cm4)", "Wz (cm3)", "iz (cm)",
                            "Iu (cm4)", "iu (cm)", "Iv (cm4)", "iv (cm)"));
    EXPECT_THROW(Intestazioni("frmGiunti"), std::out_of_range);
}

} // namespace
