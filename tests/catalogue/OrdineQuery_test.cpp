#include "catalogue/OrdineQuery.h"

#include <gtest/gtest.h>

#include "catalogue/Famiglie.h"

using namespace sagomi;

namespace {

TEST(OrdineQuery, TellsTheColumnOfEachOption) {
    EXPECT_EQ(ColonnaOrdine(ComponeQuery("frmDoppioT", {"IPE"}, 0)), "Wy (cm3)");
    EXPECT_EQ(ColonnaOrdine(ComponeQuery("frmDoppioT", {"IPE", "HEA"}, 2)), "g (Kg/m)");
    EXPECT_EQ(ColonnaOrdine(ComponeQuery("frmSagomiL", {"L Uguali"}, 0)), "iy (cm)");
    EXPECT_EQ(ColonnaOrdine("SELECT * FROM [IPE$]"), "");
    EXPECT_EQ(ColonnaOrdine("SELECT * FROM [IPE$] ORDER BY 1"), "");
}

TEST(OrdineQuery, PutsAnotherColumnInThePlaceOfTheOldOne) {
    EXPECT_EQ(OrdinaPer(ComponeQuery("frmDoppioT", {"HEA", "IPE"}, 0), "iz (cm)"),
              "SELECT * FROM [HEA$] UNION SELECT * FROM [IPE$] ORDER BY [iz (cm)]");
    EXPECT_EQ(OrdinaPer("SELECT * FROM [IPE$]", "h (mm)"), "SELECT * FROM [IPE$] ORDER BY [h (mm)]");
    EXPECT_EQ(ColonnaOrdine(OrdinaPer("SELECT * FROM [IPE$]", "a]b")), "a]b");
}

TEST(OrdineQuery, TakesAQueryOfWholeSheetsApart) {
    const auto one = SeparaOrdine("SELECT * FROM ['L Uguali'$] ORDER BY [g (Kg/m)]");
    ASSERT_TRUE(one);
    EXPECT_EQ(one->righe, "SELECT * FROM ['L Uguali'$]");
    EXPECT_EQ(one->colonna, "g (Kg/m)");
    EXPECT_FALSE(one->unione);
    const std::string query = ComponeQuery("frmDoppioT", {"HEA", "IPE"}, 0);
    const auto two = SeparaOrdine(query);
    ASSERT_TRUE(two);
    EXPECT_EQ(two->righe, "SELECT * FROM [HEA$] UNION SELECT * FROM [IPE$]");
    EXPECT_EQ(two->colonna, "Wy (cm3)");
    EXPECT_TRUE(two->unione);
    EXPECT_EQ(SeparaOrdine(R"(SELECT * FROM [x$] ORDER BY "a]b")")->colonna, "a]b");
}

TEST(OrdineQuery, LeavesEveryOtherFormAlone) {
    for (const char* query :
         {"", "SELECT * FROM [x$]", "SELECT a FROM [x$] ORDER BY [a]", "SELECT * FROM [x$] ORDER BY a",
          "SELECT * FROM [x$] ORDER BY [a] DESC", "SELECT * FROM [x$] ORDER BY [a], [b]",
          "SELECT * FROM [x$] UNION ALL SELECT * FROM [y$] ORDER BY [a]", "SELECT * FROM [x$ ORDER BY [a]",
          "SELECT * FROM [x$] WHERE a > 1 ORDER BY [a]", "SELECT * FROM [x$] ORDER BY []",
          R"(SELECT * FROM [x$] ORDER BY "a""b")", "SELECT * FROM [x$] ORDER BY [a"})
        EXPECT_FALSE(SeparaOrdine(query)) << query;
}

TEST(OrdineQuery, TellsTheTablesOfWholeSheetsAlsoWithoutAnOrder) {
    const auto one = SeparaFogli("SELECT * FROM ['L Uguali'$]");
    ASSERT_TRUE(one);
    EXPECT_EQ(one->tabelle, std::vector<std::string_view>{"'L Uguali'$"});
    EXPECT_EQ(one->colonna, "");
    const auto two = SeparaFogli(R"(SELECT * FROM [HEA$] UNION SELECT * FROM "IPE$" ORDER BY [h] ASC)");
    ASSERT_TRUE(two);
    EXPECT_EQ(two->tabelle, (std::vector<std::string_view>{"HEA$", "IPE$"}));
    EXPECT_EQ(two->colonna, "h");
    for (const char* query :
         {"", "SELECT * FROM IPE$", "SELECT * FROM [IPE$];", "SELECT * FROM [IPE$] LIMIT 1",
          "SELECT * FROM [IPE$] UNION ", "SELECT * FROM [IPE$] ORDER BY ", "SELECT * FROM [] ORDER BY [a]",
          R"(SELECT * FROM "" ORDER BY "a")", "SELECT * FROM [a] ORDER BY [] ASC]"})
        EXPECT_FALSE(SeparaFogli(query)) << query;
}

TEST(OrdineQuery, KnowsTheSheetsOfAQuery) {
    const std::string query = ComponeQuery("frmDoppioT", {"HEAA", "IPE"}, 1);
    EXPECT_TRUE(NominaFoglio(query, "HEAA"));
    EXPECT_TRUE(NominaFoglio(query, "IPE"));
    EXPECT_FALSE(NominaFoglio(query, "HEA"));
    EXPECT_TRUE(NominaFoglio(ComponeQuery("frmSagomiL", {"L Uguali"}, 0), "L Uguali"));
    EXPECT_FALSE(NominaFoglio(query, "L Uguali"));
}

TEST(OrdineQuery, ANameMayBeASingleCharacter) {
    const auto fogli = SeparaFogli(R"(SELECT * FROM [x] UNION SELECT * FROM "y" ORDER BY [z] ASC)");
    ASSERT_TRUE(fogli);
    EXPECT_EQ(fogli->tabelle, (std::vector<std::string_view>{"x", "y"}));
    EXPECT_EQ(fogli->colonna, "z");
    EXPECT_EQ(fogli->righe, R"(SELECT * FROM [x] UNION SELECT * FROM "y")");
}

} // namespace
