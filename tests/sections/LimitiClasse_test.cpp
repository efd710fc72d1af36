#include "sections/LimitiClasse.h"

#include <limits>

#include <gtest/gtest.h>

#include "frame/Numeri.h"

using namespace sagomi;

namespace {

struct Esito {
    std::int16_t classe = 0;
    std::string limite0, limite1;
    bool operator==(const Esito&) const = default;
};
void PrintTo(const Esito& e, std::ostream* os) { *os << e.classe << ' ' << e.limite0 << ' ' << e.limite1; }

Esito Classifica(const LimitiClasse& limiti, double s) {
    Esito e;
    e.classe = limiti.Classe(s, e.limite0, e.limite1);
    return e;
}

// ENV 1993-1-1 table 5.3.1: a limit belongs to the class below it.
TEST(LimitiClasse, WebsAndOutstands) {
    EXPECT_EQ(Classifica(LimitiAnimaCompressa(), 33), (Esito{1, "0", "33"}));
    EXPECT_EQ(Classifica(LimitiAnimaCompressa(), 33.01), (Esito{2, "33", "38"}));
    EXPECT_EQ(Classifica(LimitiAnimaCompressa(), 42), (Esito{3, "38", "42"}));
    EXPECT_EQ(Classifica(LimitiAnimaCompressa(), 42.01), (Esito{4, "42", "\xC2\xA5"}));
    EXPECT_EQ(Classifica(LimitiAnimaInflessa(), 100), (Esito{3, "83", "124"}));
    EXPECT_EQ(Classifica(LimitiAlaCompressa(), 9.5), (Esito{2, "9", "10"}));
    EXPECT_EQ(Classifica(LimitiAlaInflessa(), 9.5), (Esito{2, "9", "10"}));
    EXPECT_EQ(Classifica(LimitiAlaInflessa(), 15.8), (Esito{3, "10", "15.9"})); // 21 root 0.57 = 15.855
    EXPECT_EQ(Classifica(LimitiAlaInflessa(), 15.9).classe, 4);
}

TEST(LimitiClasse, NoNumberPassesAll) {
    EXPECT_EQ(Classifica(LimitiAlaCompressa(), std::numeric_limits<double>::quiet_NaN()).classe, 4);
}

TEST(LimitiClasse, TextsFollowTheSeparatorOfTheLocale) {
    const auto prima = CarDecimale;
    EXPECT_EQ(Classifica(LimitiAlaInflessa(), 12).limite1, "15.9");
    CarDecimale = ',';
    EXPECT_EQ(Classifica(LimitiAlaInflessa(), 12).limite1, "15,9");
    CarDecimale = prima;
    EXPECT_EQ(Classifica(LimitiAlaInflessa(), 12).limite1, "15.9");
}

TEST(LimitiClasse, OtherNumbersShowTheirOwnTexts) {
    EXPECT_EQ(Classifica(LimitiClasse(1.5, 2, 2.5), 1.75), (Esito{2, "1.5", "2"}));
    // class 3 reaches to 4 times 3, shown is 4 times 2
    EXPECT_EQ(Classifica(LimitiAlaInflessa(1, 2, 3, 16, 2), 11.9), (Esito{3, "2", "8.0"}));
}

} // namespace
