#include "sections/Verdetto.h"

#include <gtest/gtest.h>

#include <cmath>
#include <utility>

#include "frame/Numeri.h"
#include "sections/SezioneDoppioT.h"

using namespace sagomi;

namespace {

const double nessuno = std::numeric_limits<double>::quiet_NaN();
const ResistenzeAssiali resistenze{600e3, "Nb,z,Rd", 1000e3};

/// Axial force in N, moments as shares of their resistances.
TerminiInterazione Termini(double N, double y, double z) {
    return {N, 600e3, {.MSd = y, .MRd = 1}, {.MSd = z, .MRd = 1}};
}

TEST(Verdetto, TermsThatAddUpNeedNoReason) {
    Verdetto v = Giudica(Termini(300e3, 0.25, 0.125), resistenze);
    EXPECT_EQ(v.somma, 0.875);
    EXPECT_EQ(v.utilizzo, 0.875);
    EXPECT_EQ(v.governa, TermineVerifica::N);
    v = Giudica(Termini(300e3, 0.75, 0.125), resistenze);
    EXPECT_EQ(v.utilizzo, 1.375);
    EXPECT_EQ(v.governa, TermineVerifica::My);
    EXPECT_EQ(v.motivo, "");
}

// Half a newton in compression is no pull: of 600 kN, not of the 1000 of tension.
TEST(Verdetto, TheLeastCompressionIsOne) {
    EXPECT_DOUBLE_EQ(Giudica(Termini(0.5, 0, 0), resistenze).utilizzo, 0.5 / 600e3);
    EXPECT_DOUBLE_EQ(Giudica(Termini(-0.5, 0, 0), resistenze).utilizzo, 0.5 / 1000e3);
}

// The load at the level of the centroid, whatever the height of that.
TEST(Verdetto, OfUnequalFlangesTheLevelOfTheLoadCounts) {
    SezioneDoppioT s;
    s.SaldataAsimm = true;
    s.h = 500;
    s.b = 200;
    s.bAlaInf = 300;
    s.tf = s.tAlaInf = 20;
    s.LLT = 4000;
    s.c2 = 0.5;
    s.yG = 210;
    for (const auto& [za, apart] : {std::pair{-40.0, false}, {0.0, true}, {40.0, true}, {-41.0, true}}) {
        s.za = za;
        EXPECT_EQ(McrSiDiscosta(s), apart) << za;
    }
    s.za = 0;
    s.c2 = 0;
    EXPECT_FALSE(McrSiDiscosta(s)) << "no load";
    s.c2 = 0.5;
    s.LLT = 0;
    EXPECT_FALSE(McrSiDiscosta(s));
    s.LLT = 4000;
    s.bAlaInf = 200;
    EXPECT_FALSE(McrSiDiscosta(s)) << "equal flanges";
    s.tAlaInf = 25;
    EXPECT_TRUE(McrSiDiscosta(s));
}

TEST(Verdetto, NothingActingPassesWithoutAGoverningTerm) {
    const Verdetto v = Giudica(Termini(0, 0, 0), resistenze);
    EXPECT_EQ(v.utilizzo, 0);
    EXPECT_EQ(v.governa, TermineVerifica::Nessuno);
}

TEST(Verdetto, MomentsThatCancelInTheSumFailByTheirMagnitudes) {
    const Verdetto v = Giudica(Termini(0, 0.75, -0.5), resistenze);
    EXPECT_EQ(v.somma, 0.25);
    EXPECT_EQ(v.utilizzo, 1.25);
    EXPECT_EQ(v.motivo, "I termini contano in valore assoluto: la loro somma è " + Formato("0.0##", 1.25));
}

// -500/1000 in tension: 0.5 + 0.75, where the sum shown has -500/600 + 0.75.
TEST(Verdetto, TensionCountsOverThePlasticResistance) {
    const Verdetto v = Giudica(Termini(-500e3, 0.75, 0), resistenze);
    EXPECT_NEAR(v.somma, -0.0833333, 1e-6);
    EXPECT_EQ(v.utilizzo, 1.25);
    EXPECT_FALSE(v.assialeOltre);
    EXPECT_NE(v.motivo, "");
}

TEST(Verdetto, AxialForceBeyondItsResistanceLeavesNoSum) {
    Verdetto v = Giudica(Termini(750e3, -1, 0), resistenze);
    EXPECT_TRUE(std::isnan(v.somma));
    EXPECT_EQ(v.utilizzo, 1.25 + 1) << "the moment counts by its magnitude";
    EXPECT_TRUE(v.assialeOltre);
    EXPECT_EQ(v.motivo, "NSd = " + Formato("0.0##", 750) +
                            " kN supera da sola Nb,z,Rd = " + Formato("0.0##", 600) + " kN");
    EXPECT_FALSE(Giudica(Termini(600e3, 0, 0), resistenze).assialeOltre) << "the resistance itself passes";
    EXPECT_FALSE(Giudica(Termini(-1000e3, 0, 0), resistenze).assialeOltre);
    v = Giudica(Termini(-1250e3, 0, 0), resistenze);
    EXPECT_TRUE(v.assialeOltre);
    EXPECT_EQ(v.utilizzo, 1.25);
    EXPECT_NE(v.motivo.find("Npl,Rd"), std::string::npos);
}

// 599, 600 and 601 of 600 kN beside moments that take 1.5: about 2.5 before and behind the resistance.
TEST(Verdetto, UtilisationGrowsWithTheForceAcrossItsResistance) {
    double before = 0;
    for (const double N : {599e3, 600e3, 601e3, 900e3}) {
        const double now = Giudica(Termini(N, 1, -0.5), resistenze).utilizzo;
        EXPECT_GT(now, before) << N;
        EXPECT_NEAR(now, N / 600e3 + 1.5, 1e-12);
        before = now;
    }
    TerminiInterazione plastic = Termini(750e3, 1, 0);
    plastic.assialeNeiMomenti = true;
    plastic.y.MRd = 0; // nothing is left of it beside such a force
    EXPECT_EQ(Giudica(plastic, resistenze).utilizzo, 1.25);
    TerminiInterazione none = Termini(750e3, 1, 0);
    none.y.MRd = 0; // nothing bears the moment, before the resistance and behind it
    EXPECT_GT(Giudica(none, resistenze).utilizzo, 1e300);
    none.y.MSd = 0; // 0/0
    none.z.MSd = 0.5;
    EXPECT_EQ(Giudica(none, resistenze).utilizzo, 1.75);
}

TEST(Verdetto, PlasticTermsLeaveTheForceToTheMoments) {
    TerminiInterazione t = Termini(500e3, 0.5, -0.25);
    t.assialeNeiMomenti = true;
    t.y.esponente = 2;
    t.z.esponente = 1.5; // a negative moment to a broken power is no number
    const Verdetto v = Giudica(t, resistenze);
    EXPECT_TRUE(std::isnan(v.somma));
    EXPECT_EQ(v.utilizzo, 0.25 + 0.125);
    EXPECT_NE(v.motivo, "");
    EXPECT_EQ(v.governa, TermineVerifica::My);
}

TEST(Verdetto, TermWithoutAResistanceHasNoVerdict) {
    TerminiInterazione t = Termini(0, 0, 0);
    t.z.MRd = 0; // 0/0
    Verdetto v = Giudica(t, resistenze);
    EXPECT_TRUE(std::isnan(v.utilizzo));
    EXPECT_EQ(v.motivo, "");
    t.z.MSd = 1;
    v = Giudica(t, resistenze);
    EXPECT_GT(v.utilizzo, 1) << "without bound";
    EXPECT_TRUE(std::isnan(Giudica(Termini(nessuno, 0, 0), resistenze).utilizzo));
}

TEST(Verdetto, EachCheckHasItsOwnAxialResistance) {
    SezioneDoppioT s;
    s.NplRd = 1000e3;
    s.NbyRd = 800e3;
    s.NbzRd = 600e3;
    s.NSd = 900e3;
    EXPECT_FALSE(GiudicaResistenza(s).assialeOltre);
    EXPECT_NE(GiudicaInstabilita(s).motivo.find("Nb,z,Rd"), std::string::npos);
    EXPECT_TRUE(GiudicaFlessoTorsionale(s).assialeOltre);
    s.NSd = -900e3;
    EXPECT_FALSE(GiudicaFlessoTorsionale(s).assialeOltre);
    s.NSd = -1100e3;
    EXPECT_TRUE(GiudicaResistenza(s).assialeOltre);
    EXPECT_TRUE(GiudicaInstabilita(s).assialeOltre);
}

TEST(Verdetto, AResistanceBelowZeroHoldsNothing) {
    TerminiInterazione t = Termini(300e3, 0.25, 0.25);
    t.y.MRd = -1;
    EXPECT_TRUE(std::isnan(Giudica(t, resistenze).utilizzo)) << "the term would hide the others";
    EXPECT_GT(Giudica(Termini(300e3, 0, 0), {-600e3, "Nb,z,Rd", 1000e3}).utilizzo, 1);
    EXPECT_GT(Giudica(Termini(-300e3, 0, 0), {600e3, "Nb,z,Rd", -1000e3}).utilizzo, 1);
}

} // namespace
