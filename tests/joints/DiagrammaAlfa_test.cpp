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
