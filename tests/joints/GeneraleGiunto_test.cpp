#include "joints/GeneraleGiunto.h"

#include <gmock/gmock.h>

using namespace sagomi;

TEST(GeneraleGiunto, ArrotondaIntero) {
    EXPECT_EQ(ArrotondaIntero(2.5), 3);
    EXPECT_EQ(ArrotondaIntero(2.49), 2);
    EXPECT_EQ(ArrotondaIntero(-2.5), -2); // -3 and a fraction of 0.5
    EXPECT_EQ(ArrotondaIntero(-2.6), -3);
}

TEST(GeneraleGiunto, ParteInteraVersoMenoInfinito) {
    EXPECT_EQ(ParteIntera(2.9), 2);
    EXPECT_EQ(ParteIntera(-2.1), -3);
}

TEST(GeneraleGiunto, ArrotondaSu) {
    EXPECT_EQ(ArrotondaSu(4), 4);
    EXPECT_EQ(ArrotondaSu(4.0001), 5);
    EXPECT_EQ(ArrotondaSu(-4.5), -4);
}

// 32 bits: 1.2 times 15 is a little more than 18.
TEST(GeneraleGiunto, CoefficientiA32Bit) {
    EXPECT_EQ(ArrotondaSu(coefficientiProgetto.Bordo * 15), 19);
    EXPECT_EQ(CoefBordo.Stretto(), 0.5F);
    EXPECT_EQ(CoefAnima.Stretto(), 0.5F);
    EXPECT_EQ(CoefRaccordo.Stretto(), 1.0F);
}
