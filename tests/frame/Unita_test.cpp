#include "frame/Unita.h"

#include <gtest/gtest.h>

using namespace sagomi;

namespace {

// By the definition of the units: 1 m = 1000 mm, 1 kN m = 1000 N x 1000 mm, 1 cm = 10 mm.
TEST(UnitaTest, EveryConversionGoesThereAndBack) {
    EXPECT_EQ(m_a_mm(2.5), 2500);
    EXPECT_EQ(kN_a_N(0.25), 250);
    EXPECT_EQ(kNm_a_Nmm(1.5), 1.5 * 1000 * 1000);
    EXPECT_EQ(mm2_a_m2(7640), 0.00764);
    for (const double x : {0.0, 28.48, -1943.0, 0.1}) {
        EXPECT_DOUBLE_EQ(mm_a_m(m_a_mm(x)), x);
        EXPECT_DOUBLE_EQ(N_a_kN(kN_a_N(x)), x);
        EXPECT_DOUBLE_EQ(Nmm_a_kNm(kNm_a_Nmm(x)), x);
        EXPECT_DOUBLE_EQ(mm_a_cm(cm_a_mm(x)), x);
        EXPECT_DOUBLE_EQ(mm2_a_cm2(cm2_a_mm2(x)), x);
        EXPECT_DOUBLE_EQ(mm3_a_cm3(cm3_a_mm3(x)), x);
        EXPECT_DOUBLE_EQ(mm4_a_cm4(cm4_a_mm4(x)), x);
        EXPECT_DOUBLE_EQ(mm6_a_cm6(cm6_a_mm6(x)), x);
    }
}

TEST(UnitaTest, CentimetresGrowByTheirPower) {
    const double cm = 10;
    EXPECT_EQ(cm_a_mm(1), cm);
    EXPECT_EQ(cm2_a_mm2(1), cm * cm);
    EXPECT_EQ(cm3_a_mm3(1), cm * cm * cm);
    EXPECT_EQ(cm4_a_mm4(1), cm * cm * cm * cm);
    EXPECT_EQ(cm6_a_mm6(1), cm * cm * cm * cm * cm * cm);
}

// A product with 0.001 would miss the quotient by a bit here.
TEST(UnitaTest, ResultsAreDividedNotMultiplied) { EXPECT_EQ(N_a_kN(9), 0.009); }

} // namespace
