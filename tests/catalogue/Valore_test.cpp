#include "catalogue/Valore.h"

#include <gtest/gtest.h>

#include "frame/Ambiente.h"

using namespace sagomi;

namespace {

using S = std::string;

TEST(NumeroDi, NothingTextNumber) {
    EXPECT_EQ(NumeroDi({}), 0);
    EXPECT_EQ(NumeroDi(S("12.5 mm")), 12.5);
    EXPECT_EQ(NumeroDi(7.25), 7.25);
}

TEST(TestoDi, NothingTextNumber) {
    EXPECT_EQ(TestoDi({}), "");
    EXPECT_EQ(TestoDi(S("HEA 100")), "HEA 100");
    EXPECT_EQ(TestoDi(1943.0), "1943");
    EXPECT_EQ(TestoDi(0.6977), "0.6977");
    const prove::ConSeparatori italiani(u',', u'.');
    EXPECT_EQ(TestoDi(12990.5), "12990,5");
    EXPECT_EQ(NumeroDi(S("12.990,5")), 12990.5);
}

TEST(Vuoto, NothingAlone) {
    EXPECT_TRUE(Vuoto({}));
    EXPECT_FALSE(Vuoto(0.0));
    EXPECT_FALSE(Vuoto(S()));
}

} // namespace
