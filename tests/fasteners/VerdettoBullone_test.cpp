#include "fasteners/VerdettoBullone.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace sagomi;

namespace {

/// Resistances 50, 80 and 40 kN, forces in kN.
Bullone Con(double taglio, double trazione, double spessore = 0) {
    Bullone b;
    b.FvRd = 50e3;
    b.FtRd = 80e3;
    b.FbRd = 40e3;
    b.fu = 360;
    b.t = spessore;
    b.FvSd = taglio * 1000;
    b.FtSd = trazione * 1000;
    return b;
}

// 25/50 + 28/112 = 0.75.
TEST(VerdettoBullone, SumGovernsWhereNoForceAloneIsMore) {
    const VerdettoBullone v = Giudica(Con(25, 28));
    EXPECT_NEAR(v.utilizzo, 0.75, 1e-15);
    EXPECT_EQ(v.governa, TermineBullone::Taglio);
    EXPECT_EQ(v.Motivo(), "");
    EXPECT_EQ(Giudica(Con(5, 56)).governa, TermineBullone::Trazione);
    EXPECT_EQ(Giudica(Con(25, 56)).governa, TermineBullone::Taglio) << "1/2 and 1/2: shear is named";
}

// 100/112 = 0.893 passes in the sum; 100/80 does not.
TEST(VerdettoBullone, TensionAloneBeyondItsResistanceFails) {
    const VerdettoBullone v = Giudica(Con(0, 100));
    EXPECT_EQ(v.utilizzo, 1.25);
    EXPECT_EQ(v.governa, TermineBullone::Trazione);
    EXPECT_EQ(v.motivoTrazione, "Ft,Sd = 100.0 kN supera da sola Ft,Rd = 80.0 kN");
    EXPECT_EQ(v.motivoTaglio, "");
    EXPECT_EQ(Giudica(Con(0, 80)).utilizzo, 1) << "up to its resistance";
    EXPECT_EQ(Giudica(Con(0, 80)).motivoTrazione, "");
}

TEST(VerdettoBullone, ShearIsHeldAgainstThePlateWhereOneIsGiven) {
    EXPECT_EQ(Giudica(Con(45, 0)).utilizzo, 0.9) << "no plate";
    const VerdettoBullone v = Giudica(Con(45, 0, 10));
    EXPECT_EQ(v.utilizzo, 1.125);
    EXPECT_EQ(v.governa, TermineBullone::Rifollamento);
    EXPECT_EQ(v.Motivo(), "Fv,Sd = 45.0 kN supera da sola Fb,Rd = 40.0 kN");
    EXPECT_EQ(Giudica(Con(40, 0, 10)).Motivo(), "");
    EXPECT_EQ(Giudica(Con(45, 0, 0.5)).utilizzo, 1.125) << "however thin";
    Bullone senza = Con(45, 0, 10);
    senza.fu = 0;
    EXPECT_EQ(Giudica(senza).utilizzo, 0.9) << "a plate without a strength is none";
    senza.fu = 0.5;
    EXPECT_EQ(Giudica(senza).utilizzo, 1.125);
}

TEST(VerdettoBullone, BothReasonsStandInOneLine) {
    const VerdettoBullone v = Giudica(Con(60, 90, 10));
    EXPECT_EQ(v.Motivo(), "Fv,Sd = 60.0 kN supera da sola Fv,Rd = 50.0 kN; Fv,Sd = 60.0 kN supera da sola "
                          "Fb,Rd = 40.0 kN; Ft,Sd = 90.0 kN supera da sola Ft,Rd = 80.0 kN");
    EXPECT_NEAR(v.utilizzo, 60.0 / 50 + 90 / 112.0, 1e-15);
}

TEST(VerdettoBullone, APlateThatDistancesRuinBearsNothing) {
    Bullone b = Con(10, 0, 10);
    b.FbRd = 0;
    EXPECT_GT(Giudica(b).utilizzo, 1);
    EXPECT_EQ(Giudica(b).governa, TermineBullone::Rifollamento);
    b.FvSd = 0;
    EXPECT_EQ(Giudica(b).utilizzo, 0) << "no shear, nothing to bear";
}

TEST(VerdettoBullone, WithoutForceNothingGovernsAndWithoutResistanceNothingIsJudged) {
    EXPECT_EQ(Giudica(Con(0, 0)).governa, TermineBullone::Nessuno);
    EXPECT_EQ(Giudica(Con(0, 0)).utilizzo, 0);
    Bullone b = Con(10, 0);
    b.FtRd = 0;
    EXPECT_TRUE(std::isnan(Giudica(b).utilizzo));
    b = Con(0, 10);
    b.FvRd = 0;
    EXPECT_TRUE(std::isnan(Giudica(b).utilizzo));
}

// 0.125/0.5 + 0.175/(1.4 · 0.5) = 0.5, and 0.175/0.5 is less.
TEST(VerdettoBullone, ResistancesBelowANewtonAreJudged) {
    Bullone b;
    b.FvRd = b.FtRd = 0.5;
    b.FvSd = 0.125;
    b.FtSd = 0.175;
    EXPECT_NEAR(Giudica(b).utilizzo, 0.5, 1e-7);
}

TEST(VerdettoBullone, ResistancesThatAreNoneGiveNoVerdict) {
    Bullone b = Con(10, 10, 10);
    b.FtRd = -80e3;
    EXPECT_TRUE(std::isnan(Giudica(b).utilizzo));
    b = Con(10, 10, 10);
    b.FbRd = std::numeric_limits<double>::quiet_NaN();
    EXPECT_TRUE(std::isnan(Giudica(b).utilizzo)) << "bearing is not left out";
}

} // namespace
