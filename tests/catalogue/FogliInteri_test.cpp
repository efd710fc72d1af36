// Which queries are answered straight from the sheets, and with what. That the rows are those of SQLite is
// tested in Catalogo_test.cpp.
#include "catalogue/FogliInteri.h"

#include <map>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Fogli.h"
#include "catalogue/CartellaXls.h"
#include "catalogue/ScrittoreXls.h"

using namespace sagomi;
using prove::FoglioDi;
using testing::ElementsAre;

namespace {

using S = std::string;
using Riga = std::vector<Valore>;

class FogliInteriTest : public testing::Test {
protected:
    FogliInteriTest() {
        CartellaXls cartella(ComponeBiff({{FoglioDi("x", {{S("a"), S("b")}, {2.0, S("u")}, {1.0, S("v")}}),
                                           FoglioDi("y", {{S("c"), S("d")}, {1.0, S("v")}, {0.5, {}}}),
                                           FoglioDi("z", {{S("a")}, {7.0}}), FoglioDi("vuoto", {})}}));
        for (std::size_t i = 0; i < cartella.Fogli(); ++i)
            fogli[cartella.Nome(i)] = std::make_shared<const FoglioLetto>(cartella.Legge(i));
    }

    std::optional<EsitoQuery> Chiede(std::string_view query) {
        return RigheDiFogli(query, [this](std::string_view tabella) {
            const auto i = fogli.find(S(tabella));
            return i == fogli.end() ? nullptr : i->second;
        });
    }

    std::map<S, std::shared_ptr<const FoglioLetto>> fogli;
};

TEST_F(FogliInteriTest, ASheetAsItStands) {
    const auto esito = Chiede("SELECT * FROM [x]");
    ASSERT_TRUE(esito);
    EXPECT_THAT(esito->campi, ElementsAre("a", "b"));
    EXPECT_THAT(esito->righe, ElementsAre(Riga{2.0, S("u")}, Riga{1.0, S("v")}));
}

TEST_F(FogliInteriTest, ASheetInTheOrderOfAColumn) {
    EXPECT_THAT(Chiede("SELECT * FROM [x] ORDER BY [a]")->righe,
                ElementsAre(Riga{1.0, S("v")}, Riga{2.0, S("u")}));
    EXPECT_THAT(Chiede("SELECT * FROM [x] ORDER BY [b]")->righe,
                ElementsAre(Riga{2.0, S("u")}, Riga{1.0, S("v")}));
}

// A row that both have comes once; what is empty comes first.
TEST_F(FogliInteriTest, AUnionHasTheFieldsOfItsFirstSheet) {
    const auto esito = Chiede("SELECT * FROM [x] UNION SELECT * FROM [y] ORDER BY [b]");
    ASSERT_TRUE(esito);
    EXPECT_THAT(esito->campi, ElementsAre("a", "b"));
    EXPECT_THAT(esito->righe, ElementsAre(Riga{0.5, {}}, Riga{2.0, S("u")}, Riga{1.0, S("v")}));
    EXPECT_EQ(Chiede("SELECT * FROM [y] UNION SELECT * FROM [x] ORDER BY [c]")->righe.size(), 3U);
}

TEST_F(FogliInteriTest, EveryOtherFormIsLeftToSqlite) {
    for (const char* query :
         {"SELECT a FROM [x]", "SELECT * FROM [manca]", "SELECT * FROM [x] ORDER BY [c]",
          "SELECT * FROM [x] UNION SELECT * FROM [y]",
          "SELECT * FROM [x] UNION SELECT * FROM [x] ORDER BY [a]",
          "SELECT * FROM [x] UNION SELECT * FROM [z] ORDER BY [a]",
          "SELECT * FROM [x] UNION SELECT * FROM [y] ORDER BY [c]",
          "SELECT * FROM [x] UNION SELECT * FROM [manca] ORDER BY [a]",
          "SELECT * FROM [x] UNION SELECT * FROM [y] UNION SELECT * FROM [x] ORDER BY [a]"})
        EXPECT_FALSE(Chiede(query)) << query;
}

} // namespace
