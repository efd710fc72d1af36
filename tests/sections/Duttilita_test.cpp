#include "sections/Duttilita.h"

#include <cmath>

#include <gtest/gtest.h>

using namespace sagomi;

namespace {

/// IPE 300 of EN 10365, S235.
constexpr SezioneDuttile ipe300{300, 150, 7.1, 10.7, 5381, 235, 360};

// By hand: root of 235/210000 = 0.0334522; flange 7.00935 · 0.0334522 = 0.234478; half the web of 278.6 mm is
// compressed: 139.3 / 7.1 · 0.0334522 = 0.656322; 0.695 + 0.089727 + 0.026707 - 0.0301 = 0.781334.
TEST(Duttilita, SectionWithoutAxialForce) {
    const auto r = CalcolaDuttilita(ipe300, 0, 3000);
    EXPECT_NEAR(r.lamdaF, 0.234478, 1e-6);
    EXPECT_NEAR(r.dwe, 139.3, 1e-9);
    EXPECT_NEAR(r.lamdaW, 0.656322, 1e-6);
    EXPECT_NEAR(r.s, 1 / 0.781334, 2e-6);
}

// N / (Aw fy) = 200000 / (1978.06 · 235) = 0.430252: 139.3 · 1.430252 = 199.234 mm.
TEST(Duttilita, AxialForceCompressesMoreOfTheWeb) {
    const auto r = CalcolaDuttilita(ipe300, 200e3, 3000);
    EXPECT_NEAR(r.dwe, 199.234, 1e-3);
    EXPECT_NEAR(r.lamdaW, 0.938706, 1e-6);
    EXPECT_NEAR(r.s, 1.235697, 1e-6);
    EXPECT_LT(CalcolaDuttilita(ipe300, -200e3, 3000).dwe, 139.3) << "tension";
}

TEST(Duttilita, NoMoreThanTheWholeWebIsCompressed) {
    EXPECT_NEAR(CalcolaDuttilita(ipe300, 464.8e3, 3000).dwe, 278.587, 1e-3); // Aw fy is 464.844 kN
    EXPECT_EQ(CalcolaDuttilita(ipe300, 464.9e3, 3000).dwe, 300 - 2 * 10.7);
    EXPECT_EQ(CalcolaDuttilita(ipe300, 2e6, 3000).dwe, 300 - 2 * 10.7);
    EXPECT_NEAR(CalcolaDuttilita(ipe300, 2e6, 3000).s, 1.160826, 1e-6);
}

TEST(Duttilita, ShearLengthNotKnown) {
    for (const double length : {0.0, -1.0}) {
        EXPECT_EQ(CalcolaDuttilita(ipe300, 0, length).s, 1000);
        EXPECT_EQ(CalcolaDuttilita(ipe300, 0, length).limite, 1.25);
    }
}

TEST(Duttilita, ShortShearLengthHelps) {
    // 0.781334 + 0.0301 - 0.602 · 150 / 1500 = 0.751234
    EXPECT_NEAR(CalcolaDuttilita(ipe300, 0, 1500).s, 1 / 0.751234, 2e-6);
}

TEST(Duttilita, LimitIsTheOverstrengthUpToOneAndAQuarter) {
    SezioneDuttile z = ipe300;
    EXPECT_EQ(CalcolaDuttilita(z, 0, 3000).limite, 1.25) << "360/235 is 1.53";
    z.fy = 460;
    z.fu = 540;
    EXPECT_NEAR(CalcolaDuttilita(z, 0, 3000).limite, 1.173913, 1e-6);
    z.fu = 575; // exactly 1.25
    EXPECT_EQ(CalcolaDuttilita(z, 0, 3000).limite, 1.25);
}

// H section of thin plates, S460: worked out in Python on the same clause.
TEST(Duttilita, SlenderSection) {
    const auto r = CalcolaDuttilita({300, 300, 6, 8, 6504, 460, 540}, 300e3, 4000);
    EXPECT_NEAR(r.lamdaF, 0.877547, 1e-6);
    EXPECT_NEAR(r.dwe, 196.347826, 1e-6);
    EXPECT_NEAR(r.lamdaW, 1.531596, 1e-6);
    EXPECT_NEAR(r.s, 0.487312, 1e-6);
}

TEST(Duttilita, DataThatDoNotDivideGiveNoNumber) {
    SezioneDuttile z = ipe300;
    z.tf = 0;
    z.b = 0;
    EXPECT_TRUE(std::isnan(CalcolaDuttilita(z, 0, 3000).s));
}

} // namespace
