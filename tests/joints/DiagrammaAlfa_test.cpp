#include "joints/Giunto.h"

#include <gmock/gmock.h>

#include <limits>
#include <stdexcept>

using namespace sagomi;

// Values of the printed table, and by hand between them.
TEST(DiagrammaAlfa, Tabella) {
    EXPECT_EQ(Giunto::Falfa(0, 0), 8);
    EXPECT_DOUBLE_EQ(Giunto::Falfa(0.5, 0.5), 5.77);
    EXPECT_DOUBLE_EQ(Giunto::Falfa(0.4, 0.4), 6.64);
    EXPECT_DOUBLE_EQ(Giunto::Falfa(0.7, 0.2), 6);
    EXPECT_NEAR(Giunto::Falfa(0.45, 0.45), (6.64 + 6.28 + 6.04 + 5.77) / 4, 1e-12);
    EXPECT_NEAR(Giunto::Falfa(0.85, 0.15), (6.14 + 5 + 5 + 4.5) / 4, 1e-12);
}

TEST(DiagrammaAlfa, OltreLUltimaColonnaSoloLambda1) {
    EXPECT_DOUBLE_EQ(Giunto::Falfa(0.35, 0.95), 6.5);
    EXPECT_DOUBLE_EQ(Giunto::Falfa(0.35, 7), 6.5);
    EXPECT_DOUBLE_EQ(Giunto::Falfa(0.55, 0.9), (5.33 + 4.91) / 2);
}

TEST(DiagrammaAlfa, DaNoveDecimiLaCostante) {
    EXPECT_EQ(Giunto::Falfa(0.95, 0.95), 4.45);
    EXPECT_EQ(Giunto::Falfa(0.9, 0), 4.45);
    EXPECT_EQ(Giunto::Falfa(1.2, 5), 4.45);
}

TEST(DiagrammaAlfa, FuoriDallaTabella) {
    EXPECT_THROW(Giunto::Falfa(0.9, 1), std::out_of_range);
    EXPECT_THROW(Giunto::Falfa(0.95, 2), std::out_of_range);
    EXPECT_THROW(Giunto::Falfa(-0.01, 0.5), std::out_of_range);
    EXPECT_THROW(Giunto::Falfa(0.5, -0.01), std::out_of_range);
    EXPECT_THROW(Giunto::Falfa(std::numeric_limits<double>::quiet_NaN(), 0.5), std::out_of_range);
}

// The chart's curves: 8 and more near the corner, and falling as m or m2 grow against m + e.
TEST(DiagrammaAlfa, NonSaleMai) {
    constexpr double passo = 0.05;
    for (double l1 = 0; l1 < 0.89; l1 += passo)
        for (double l2 = 0; l2 < 0.89; l2 += passo) {
            const double qui = Giunto::Falfa(l1, l2);
            EXPECT_LE(qui, 8) << l1 << ' ' << l2;
            EXPECT_GE(qui, 4.45 - 1e-12) << l1 << ' ' << l2;
            EXPECT_LE(Giunto::Falfa(l1 + passo, l2), qui + 1e-12) << l1 << ' ' << l2;
            EXPECT_LE(Giunto::Falfa(l1, l2 + passo), qui + 1e-12) << l1 << ' ' << l2;
            if (l1 < 0.199 || l2 < 0.001) {
                EXPECT_EQ(qui, 8) << l1 << ' ' << l2;
            }
        }
}
