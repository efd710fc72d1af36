#include "sections/FattoriMomento.h"

#include <cmath>

#include <gtest/gtest.h>

using namespace sagomi;

namespace {

TEST(FattoriMomentoTest, LinearDiagramsRunFromUniformToOpposite) {
    const auto& righe = ProspettoF11();
    ASSERT_EQ(righe.size(), 27U);
    const double k[] = {1.0, 0.7, 0.5};
    for (std::size_t i = 0; i < righe.size(); ++i) {
        EXPECT_EQ(righe[i].psi, 1 - 0.25 * static_cast<double>(i / 3)) << i;
        EXPECT_EQ(righe[i].k, k[i % 3]) << i;
    }
}

TEST(FattoriMomentoTest, TransverseLoadsComeWithBothRestraints) {
    const auto& righe = ProspettoF12();
    ASSERT_EQ(righe.size(), 10U);
    for (std::size_t i = 0; i < righe.size(); ++i) {
        EXPECT_EQ(static_cast<std::size_t>(righe[i].caso), i / 2);
        EXPECT_EQ(righe[i].k, i % 2 == 0 ? 1.0 : 0.5);
    }
}

// The published tables, ENV 1993-1-1 F.1.1 and F.1.2, read off again by a second hand and added up.
TEST(FattoriMomentoTest, ColumnsAddUpToThePublishedSums) {
    double C1[3] = {};
    double C3[3] = {};
    for (std::size_t i = 0; i < ProspettoF11().size(); ++i) {
        C1[i % 3] += ProspettoF11()[i].C1;
        C3[i % 3] += ProspettoF11()[i].C3;
    }
    EXPECT_NEAR(C1[0], 17.570, 1e-9);
    EXPECT_NEAR(C1[1], 19.193, 1e-9);
    EXPECT_NEAR(C1[2], 19.701, 1e-9);
    EXPECT_NEAR(C3[0], 6.803, 1e-9);
    EXPECT_NEAR(C3[1], 10.212, 1e-9);
    EXPECT_NEAR(C3[2], 14.423, 1e-9);
    double s[3] = {};
    for (const RigaF12& r : ProspettoF12()) {
        s[0] += r.C1;
        s[1] += r.C2;
        s[2] += r.C3;
    }
    EXPECT_NEAR(s[0], 11.095, 1e-9);
    EXPECT_NEAR(s[1], 6.784, 1e-9);
    EXPECT_NEAR(s[2], 18.558, 1e-9);
}

// With k = 1 the factors of the table follow the closed form 1.88 - 1.40 psi + 0.52 psi^2 of annex F.1.1 (6)
// closely as long as it stays below its limit of 2.70.
TEST(FattoriMomentoTest, TableAndClosedFormAgree) {
    for (const RigaF11& r : ProspettoF11()) {
        const double forma = 1.88 - 1.40 * r.psi + 0.52 * r.psi * r.psi;
        if (r.k == 1.0 && forma < 2.7) {
            EXPECT_NEAR(r.C1, forma, 0.02 * forma) << r.psi;
        }
    }
}

} // namespace
