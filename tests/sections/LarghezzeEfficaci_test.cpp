#include "sections/LarghezzeEfficaci.h"
#include "sections/LunghezzePerse.h"
#include "sections/SezioneDoppioT.h"
#include "sections/SezioneSagomoL.h"
#include "sections/SezioneSagomoU.h"

#include <cmath>

#include <gtest/gtest.h>

#include "Registratore.h"
#include "sections/SezioneGenerica.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

// Web 460 x 3 of S235, the axis in its middle, k 23.9: lambda 153.333 / (28.4 x 4.88876) = 1.10438, rho
// 0.72511; of the 230 mm in compression 0.27489 are lost, 63.22 mm. Of one of class 3 nothing.
TEST(LunghezzePerse, OfAWebInBending) {
    const Registratore quiet;
    SezioneDoppioT s;
    s.fy = 235;
    s.InizializzaSezioneUtente(nullptr, 500, 250, 3, 15, 5);
    ASSERT_EQ(s.ClasseWebF, 4);
    EXPECT_NEAR(PerseDi(s).animaInflessa, 63.22, 0.01);
    s.ClasseWebF = 3;
    EXPECT_EQ(PerseDi(s).animaInflessa, 0);
}

// By hand. Web 300 x 4: lambda = 75 / (28.4 x 2) = 1.32042, rho = (lambda - 0.22) / lambda2 = 0.63115. Flange
// 100 x 5: lambda = 20 / (28.4 sqrt(0.43)) = 1.07393, rho = 0.74040. In bending, k 23.9: lambda = 75 / (28.4
// x 4.88876) = 0.54019, below 0.673: nothing is lost.
TEST(LunghezzePerse, OfAChannel) {
    SezioneSagomoU s;
    s.fy = 235;
    s.d = 300;
    s.tw = 4;
    s.c = 100;
    s.tf = 5;
    EXPECT_EQ(PerseDi(s).animaCompressa, 0) << "of no class yet";
    s.ClasseWebC = s.ClasseWebF = s.ClasseAlaC = 4;
    const LunghezzePerse lost = PerseDi(s);
    EXPECT_NEAR(lost.animaCompressa, 110.654, 0.01);
    EXPECT_NEAR(lost.ala, 25.960, 0.01);
    EXPECT_NEAR(lost.animaInflessa, 0, 1e-9);
}

// The same web and flange.
TEST(LunghezzePerse, OfADoubleT) {
    SezioneDoppioT s;
    s.fy = 235;
    s.d = 300;
    s.tw = 4;
    s.c = 100;
    s.tf = 5;
    s.ClasseWebC = s.ClasseAlaC = 4;
    EXPECT_NEAR(PerseDi(s).animaCompressa, 110.654, 0.01);
    EXPECT_NEAR(PerseDi(s).ala, 25.960, 0.01);
}

// By hand, L 150x100x4: lambda = 37.5 / 18.6231 = 2.01363 and 25 / 18.6231 = 1.34242, rho = 0.44236 and
// 0.62284.
TEST(LunghezzePerse, OfAnAngle) {
    SezioneSagomoL s;
    s.fy = 235;
    s.h = 150;
    s.b = 100;
    s.t = 4;
    s.r1 = 4;
    s.r2 = 2;
    s.Area = 984;
    s.ClasseCompressione = 4;
    EXPECT_EQ(PerseDi(s).lungo, 0) << "without its outlines";
    s.InizializzaSezione();
    ASSERT_EQ(s.ClasseCompressione, 4);
    EXPECT_NEAR(PerseDi(s).lungo, 83.646, 0.01);
    EXPECT_NEAR(PerseDi(s).corto, 37.716, 0.01);
}

// By hand, S235 (epsilon 1). Each plate is as wide as makes its slenderness b/t / (28.4 root(k)) equal to 1,
// so that rho = (1 - 0.22) / 1 = 0.78.
constexpr double t = 10;
constexpr double fy = 235;
double LarghezzaSnella(double k) { return 28.4 * t * std::sqrt(k); }

class LarghezzeEfficaciTest : public testing::Test {
protected:
    Registratore registratore;
};

// ENV 1993-1-1 table 5.3.2, the row of the buckling factor.
TEST_F(LarghezzeEfficaciTest, BucklingFactorOfAnInternalPlate) {
    EXPECT_EQ(kSigmaPiatto(1), 4);
    EXPECT_NEAR(kSigmaPiatto(0.5), 5.290323, 1e-6); // 8.2 / 1.55
    EXPECT_EQ(kSigmaPiatto(0), 7.81);
    EXPECT_NEAR(kSigmaPiatto(-0.5), 13.4, 1e-12); // 7.81 + 3.145 + 2.445
    EXPECT_EQ(kSigmaPiatto(-1), 23.9);
    EXPECT_NEAR(kSigmaPiatto(-1.5), 37.375, 1e-12); // 5.98 * 6.25
    EXPECT_EQ(kSigmaPiatto(-1 + 1e-10), 23.9) << "rounding of a symmetric outline";
    EXPECT_TRUE(registratore.testi.empty());
}

TEST_F(LarghezzeEfficaciTest, ARatioThatTheTableDoesNotKnowIsTold) {
    EXPECT_EQ(kSigmaPiatto(-2.5), 0);
    EXPECT_EQ(registratore.testi.size(), 1U);
}

// psi 1: halves. psi 0: 2/5 and 3/5. psi -1: 0.4 and 0.6 of the compressed half.
TEST_F(LarghezzeEfficaciTest, StripsOfAnInternalPlate) {
    const StrisceEfficaci compressa = StrisceDelPiatto(1, 568, t, fy);
    EXPECT_NEAR(compressa.be1, 221.52, 1e-9);
    EXPECT_NEAR(compressa.be2, 221.52, 1e-9);
    const StrisceEfficaci triangolo = StrisceDelPiatto(0, 793.67723, t, fy); // 284 * 2.7946377
    EXPECT_NEAR(triangolo.be1, 247.6273, 1e-3);
    EXPECT_NEAR(triangolo.be2, 371.4409, 1e-3);
    const StrisceEfficaci inflessa = StrisceDelPiatto(-1, 1388.4087, t, fy); // 284 * 4.8887626
    EXPECT_NEAR(inflessa.be1, 216.5918, 1e-3);
    EXPECT_NEAR(inflessa.be2, 324.8876, 1e-3);
}

TEST_F(LarghezzeEfficaciTest, AStockyPlateKeepsAllOfItself) {
    const StrisceEfficaci tozza = StrisceDelPiatto(1, 380, t, fy); // 38 / 56.8 = 0.669
    EXPECT_EQ(tozza.be1 + tozza.be2, 380);
    EXPECT_EQ(TaglioAla(100, t, fy, kSigmaAlaCompressa), 0); // 10 / 18.6 = 0.54
}

// ENV 1993-1-1 table 5.3.3: 0.43 in compression, 0.57 with the tip compressed; 0.22 of the outstand goes.
TEST_F(LarghezzeEfficaciTest, WhatIsTakenOffAnOutstand) {
    EXPECT_NEAR(LarghezzaSnella(0.43), 186.2312, 1e-3);
    EXPECT_NEAR(TaglioAla(186.2312, t, fy, kSigmaAlaCompressa), 40.9709, 1e-3);
    EXPECT_NEAR(LarghezzaSnella(0.57), 214.4153, 1e-3);
    EXPECT_NEAR(TaglioAla(214.4153, t, fy, kSigmaAlaInflessa), 47.1714, 1e-3);
}

// Distances from the centroid: 50 and 50, then 20 below and 80 above.
TEST_F(LarghezzeEfficaciTest, RatioOfTheStressesAtTheEndsOfAWeb) {
    SezioneGenerica contorno;
    contorno.yG = 50;
    EXPECT_EQ(PsiAnima(contorno, 100, 100), -1);
    contorno.yG = 20;
    EXPECT_NEAR(PsiAnima(contorno, 100, 100), -0.25, 1e-12);
}

} // namespace
