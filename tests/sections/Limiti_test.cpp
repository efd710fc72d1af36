#include "sections/Limiti.h"

#include <gtest/gtest.h>

using namespace sagomi;

namespace {

constexpr double infinito = std::numeric_limits<double>::infinity();
constexpr double nessuno = std::numeric_limits<double>::quiet_NaN();

TEST(Limiti, FiniteValuesAreLimitedOnOneSide) {
    EXPECT_EQ(AlPiu(1.4, 1.5), 1.4);
    EXPECT_EQ(AlPiu(1.6, 1.5), 1.5);
    EXPECT_EQ(AlPiu(-9, 1.5), -9);
    EXPECT_EQ(Almeno(2, 1), 2);
    EXPECT_EQ(Almeno(-2, 1), 1);
}

TEST(Limiti, AValueThatIsNotFiniteIsNoNumber) {
    for (const double v : {infinito, -infinito, nessuno}) {
        EXPECT_TRUE(std::isnan(AlPiu(v, 1)));
        EXPECT_TRUE(std::isnan(Almeno(v, 1)));
    }
}

} // namespace
