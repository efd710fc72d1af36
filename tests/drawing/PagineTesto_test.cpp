// On a fake page of 100 x 100 a character of 10 points is 6 wide: 13 fit between the margins of 10. Its line
// is that of a common sans serif.
#include "drawing/PagineTesto.h"

#include <gmock/gmock.h>

#include "drawing/SuperficieFinta.h"

using namespace sagomi;
using namespace sagomi::prove;
using testing::ElementsAre;

namespace {

/// The texts of every page.
std::vector<std::vector<std::string>> Pagine(std::vector<std::string> righe, double altezza = 100) {
    PagineTesto testo(std::move(righe));
    std::vector<std::vector<std::string>> pagine;
    bool altra = true;
    for (int i = 0; altra; ++i) {
        SuperficieFinta foglio(100, altezza);
        altra = testo.Pagina(foglio, i);
        pagine.push_back(foglio.Testi());
    }
    return pagine;
}

TEST(PagineTesto, UnaPaginaConTutteLeRighe) {
    EXPECT_THAT(Pagine({"prima", "", "   terza"}), ElementsAre(ElementsAre("prima", "", "   terza")));
}

TEST(PagineTesto, LaRigaLungaProsegueSotto) {
    EXPECT_THAT(Pagine({"0123456789abcdefg"}), ElementsAre(ElementsAre("0123456789abc", "defg")));
    // A letter of two bytes is never cut in two.
    EXPECT_THAT(Pagine({"0123456789abèd"}), ElementsAre(ElementsAre("0123456789ab", "èd")));
}

TEST(PagineTesto, LePagineSiSeguonoSenzaPerdereRighe) {
    std::vector<std::string> righe;
    for (int i = 0; i < 50; ++i)
        righe.push_back(std::to_string(i));
    std::vector<std::string> stampate;
    const auto pagine = Pagine(righe);
    for (const auto& pagina : pagine)
        stampate.insert(stampate.end(), pagina.begin(), pagina.end());
    EXPECT_GT(pagine.size(), 5U);
    EXPECT_EQ(stampate, righe);
}

TEST(PagineTesto, NellaPaginaStaTraIMargini) {
    PagineTesto testo(std::vector<std::string>(50, "x"));
    SuperficieFinta foglio(100, 100);
    EXPECT_TRUE(testo.Pagina(foglio, 0));
    EXPECT_EQ(foglio.scritte.front().x, 10);
    EXPECT_GT(foglio.scritte.front().y, 15);
    EXPECT_LT(foglio.scritte.back().y, 90);
    EXPECT_EQ(foglio.scritte.front().carattere, "Courier New");
}

TEST(PagineTesto, LaPaginaZeroRicomincia) {
    PagineTesto testo({"a"});
    SuperficieFinta primo(100, 100), secondo(100, 100);
    EXPECT_FALSE(testo.Pagina(primo, 0));
    EXPECT_FALSE(testo.Pagina(secondo, 0));
    EXPECT_EQ(secondo.Testi(), primo.Testi());
}

TEST(PagineTesto, SenzaRigheUnFoglioVuoto) { EXPECT_EQ(Pagine({}).size(), 1U); }

// 90 mm between the margins of a page of 110; a line is 1.1 times 12.7 + 3.2, that is 17.49: 5 find room.
TEST(PagineTesto, LeRigheHannoIlLoroPasso) {
    PagineTesto testo(std::vector<std::string>(50, "x"));
    SuperficieFinta foglio(100, 110);
    EXPECT_TRUE(testo.Pagina(foglio, 0));
    ASSERT_EQ(foglio.scritte.size(), 5U);
    for (std::size_t i = 0; i < 5; ++i)
        EXPECT_NEAR(foglio.scritte[i].y, 22.7 + 17.49 * static_cast<double>(i), 1e-9) << i;
}

TEST(PagineTesto, UnCarattereInPiuVaSotto) {
    EXPECT_THAT(Pagine({"0123456789abcd"}), ElementsAre(ElementsAre("0123456789abc", "d")));
}

// 3 mm are less than any letter: one at a time, and whole.
TEST(PagineTesto, SuUnFoglioStrettissimoUnaLetteraAllaVolta) {
    PagineTesto testo({"èa"});
    SuperficieFinta foglio(23, 100);
    EXPECT_FALSE(testo.Pagina(foglio, 0));
    EXPECT_THAT(foglio.Testi(), ElementsAre("è", "a"));
    PagineTesto altro({"ab"});
    SuperficieFinta secondo(23, 100);
    EXPECT_FALSE(altro.Pagina(secondo, 0));
    EXPECT_THAT(secondo.Testi(), ElementsAre("a", "b"));
}

// 13 letters of 6 fill the 78 mm of a page of 98.
TEST(PagineTesto, LaRigaCheRiempieLaPaginaCiSta) {
    PagineTesto testo({"0123456789abcd"});
    SuperficieFinta foglio(98, 100);
    EXPECT_FALSE(testo.Pagina(foglio, 0));
    EXPECT_THAT(foglio.Testi(), ElementsAre("0123456789abc", "d"));
}

} // namespace
