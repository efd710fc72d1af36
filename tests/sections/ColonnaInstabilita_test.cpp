#include "sections/ColonnaInstabilita.h"

#include <cmath>
#include <limits>
#include <stdexcept>

#include <gtest/gtest.h>

#include "frame/GeneraleSagomi.h"

using namespace sagomi;

namespace {

class ColonnaInstabilita : public testing::Test {
protected:
    void TearDown() override { RipristinaGenerale(); }
};

void SenzaCoefficienti() {
    Normativa = normativaEC3;
    ImpostaGamma();
}

// Steel Buildings in Europe, Multi-Storey Steel Buildings part 4, worked example A.5: HE 300 B, S235,
// A 149 cm2, Iy 25170 cm4, Iz 8560 cm4, buckling lengths 8.00 and 5.60 m. The example prints Ncr 8151.2 and
// 5657.4 kN, relative slenderness 0.655 and 0.787, phi 0.792, chi 0.808 about y-y.
TEST_F(ColonnaInstabilita, PublishedColumnHe300B) {
    SenzaCoefficienti();
    const double area = 14900;
    const auto y = CalcolaColonna(8000 / std::sqrt(25170e4 / area), 235, 1, area, "b");
    EXPECT_NEAR(y.Ncr / 1000, 8151.2, 0.05);
    EXPECT_NEAR(y.lamdaSegnato, 0.655, 6e-4); // 93.9 for pi times the root of E / 235
    EXPECT_EQ(y.alfa, 0.34);
    EXPECT_NEAR(y.fi, 0.792, 5e-4);
    EXPECT_NEAR(y.chi, 0.808, 5e-4);
    const auto z = CalcolaColonna(5600 / std::sqrt(8560e4 / area), 235, 1, area, "c");
    EXPECT_NEAR(z.Ncr / 1000, 5657.4, 0.05);
    EXPECT_NEAR(z.lamdaSegnato, 0.787, 6e-4);
    EXPECT_NEAR(z.NbRd, z.chi * area * 235, 1);
}

// The root of the Ayrton-Perry quadratic, (1 - chi)(1 - chi lamda^2) = eta chi, worked out in Python.
TEST_F(ColonnaInstabilita, StepsOfAnIpe200) {
    const auto y = CalcolaColonna(5000 / 82.6, 235, 1, 2848, "a");
    EXPECT_NEAR(y.lamdaSegnato, 0.6446505607, 1e-9);
    EXPECT_NEAR(y.fi, 0.7544754816, 1e-9);
    EXPECT_NEAR(y.chi, 0.8722433951, 1e-9);
    EXPECT_NEAR(y.Ncr, 1610939.057, 1e-2);
    EXPECT_NEAR(y.NbRd, 555976.247, 0.1); // GammaM1 is kept in 32 bits
}

TEST_F(ColonnaInstabilita, EffectiveAreaCountsInSlendernessAndResistance) {
    SenzaCoefficienti();
    const auto c = CalcolaColonna(80, 355, 0.8, 5000, "c");
    EXPECT_NEAR(c.lamdaSegnato, 0.9365902526, 1e-9);
    EXPECT_NEAR(c.chi, 0.5775259101, 1e-9);
    EXPECT_NEAR(c.NbRd, 820086.7923, 1e-3);
    EXPECT_NEAR(c.Ncr, 1619231.972, 1e-2) << "of the gross area";
}

TEST_F(ColonnaInstabilita, NoLengthNoReduction) {
    SenzaCoefficienti();
    const auto c = CalcolaColonna(0, 235, 1, 1000, "d");
    EXPECT_EQ(c.chi, 1);
    EXPECT_EQ(c.NbRd, 235000);
    EXPECT_TRUE(std::isinf(c.Ncr));
}

TEST_F(ColonnaInstabilita, NoSlendernessNoNumbers) {
    const auto c = CalcolaColonna(std::numeric_limits<double>::quiet_NaN(), 235, 1, 1000, "a");
    EXPECT_TRUE(std::isnan(c.lamdaSegnato));
    EXPECT_TRUE(std::isnan(c.chi));
    EXPECT_TRUE(std::isnan(c.Ncr));
    EXPECT_TRUE(std::isnan(c.NbRd));
}

TEST_F(ColonnaInstabilita, UnknownCurveIsRefused) {
    EXPECT_THROW(CalcolaColonna(50, 235, 1, 1000, "e"), std::out_of_range);
    EXPECT_THROW(CalcolaRiduzione(50, false, 235, 1, ""), std::out_of_range);
}

// Table 5.5.2 of ENV 1993-1-1 at a relative slenderness of 1.
TEST_F(ColonnaInstabilita, ReductionOfARelativeSlenderness) {
    const std::pair<const char*, double> curve[] = {
        {"a", 0.6656}, {"b", 0.5970}, {"c", 0.5399}, {"d", 0.4671}};
    for (const auto& [curva, chi] : curve) {
        const auto r = CalcolaRiduzione(1, true, 235, 1, curva);
        EXPECT_NEAR(r.chi, chi, 5e-5) << curva;
        EXPECT_NEAR(r.altra, 93.9, 1e-9);
    }
}

TEST_F(ColonnaInstabilita, ReductionBothWaysIsTheSame) {
    const auto plain = CalcolaRiduzione(80, false, 355, 0.8, "c");
    EXPECT_NEAR(plain.altra, 0.9365902526, 1e-9);
    EXPECT_NEAR(plain.chi, 0.5775259101, 1e-9);
    EXPECT_EQ(plain.alfa, 0.49);
    EXPECT_NEAR(plain.fi, 1.1190652625, 1e-9);
    const auto relative = CalcolaRiduzione(plain.altra, true, 355, 0.8, "c");
    EXPECT_NEAR(relative.altra, 80, 1e-9);
    EXPECT_NEAR(relative.chi, plain.chi, 1e-12);
}

TEST_F(ColonnaInstabilita, NothingOfTheAreaEffective) {
    EXPECT_EQ(CalcolaRiduzione(80, false, 235, 0, "a").chi, 1);
    EXPECT_TRUE(std::isinf(CalcolaRiduzione(1, true, 235, 0, "a").altra));
}

} // namespace
