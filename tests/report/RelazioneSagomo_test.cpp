#include "report/RelazioneSagomo.h"

#include <gtest/gtest.h>

#include "Registratore.h"
#include "frame/Ambiente.h"
#include "frame/GeneraleSagomi.h"
#include "report/CapitoliSagomo.h"
#include "report/CapitoliStabilita.h"
#include "report/CapitoloEfficace.h"
#include "report/Passi.h"
#include "sections/AreaEfficace.h"
#include "sections/SezioneDoppioT.h"
#include "sections/SezioneSagomoL.h"
#include "sections/SezioneSagomoU.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

class RelazioneSagomoTest : public testing::Test {
protected:
    /// Welded, of a thickness of the web, of S235, with gamma M0 1.05.
    RelazioneSagomoTest() { Salda(8); }
    void TearDown() override { RipristinaGenerale(); }
    void Salda(double tw) {
        s = SezioneDoppioT();
        s.fy = 235;
        s.L0y = s.L0z = s.LLT = 4000;
        s.k = s.Kw = s.C1 = 1;
        s.NSd = 100e3;
        s.Mysd = 50e6;
        s.Mzsd = 5e6;
        s.BetaMy = s.BetaMz = s.BetaMLT = 1.1;
        for (int volta = 0; volta < 2; ++volta) // of class 4 Npl,Rd takes the area found before
            s.InizializzaSezioneUtente(nullptr, 500, 250, tw, 15, 5);
        Calcola();
    }
    void Calcola() {
        s.ClassePressoFlessioneCalcola();
        s.McrFunz();
        s.MbRdSub();
    }

    Registratore quiet;
    SezioneDoppioT s;
};

// 470 x 8 x 235 / (1.73205 x 1.05) = 485.85 kN, 2 x 250 x 15 x 235 / (1.73205 x 1.05) = 969.12 kN.
TEST_F(RelazioneSagomoTest, ShearHasItsFormula) {
    const Relazione r = RelazioneResistenze(s, "FrmMcRd");
    EXPECT_EQ(Passo(r, "V{pl,y,Rd}").formula, "(h − 2 t{f}) t{w} f{y} / (√3 γ{M0})");
    EXPECT_EQ(Passo(r, "V{pl,y,Rd}").numeri, "(500 − 2 · 15) · 8 · 235 / (√3 · 1.05) · 10^{-3}");
    EXPECT_EQ(Passo(r, "V{pl,y,Rd}").valore, "485.854");
    EXPECT_EQ(Passo(r, "V{pl,z,Rd}").numeri, "2 · 250 · 15 · 235 / (√3 · 1.05) · 10^{-3}");
    EXPECT_EQ(Passo(r, "V{pl,z,Rd}").valore, "969.124");
}

TEST_F(RelazioneSagomoTest, AnAxialForceTooLargeLeavesNoNumbersOfTheInteraction) {
    ASSERT_LT(s.ClassePressoFlessione, 3);
    s.Mysd = 1e6;
    EXPECT_NE(RelazioneSezione(s, "").capitoli.back().passi.back().numeri, "");
    Salda(20); // plastic in compression, too
    s.NSd = 1e8;
    Calcola();
    ASSERT_LT(s.ClassePressoFlessione, 3);
    const CapitoloRelazione c = RelazioneSezione(s, "").capitoli.back();
    EXPECT_EQ(c.passi.back().valore, "");
    EXPECT_EQ(c.passi.back().numeri, "");
    EXPECT_EQ(c.verdetto->esito, EsitoRelazione::NonPassa);
}

TEST_F(RelazioneSagomoTest, WhatTheLateralTorsionalSumUsesIsDerivedAbove) {
    const Relazione r = RelazioneSvergolamento(s, "FrmMsverg");
    for (const char* simbolo : {"λ̅{z}", "N{b,z,Rd}", "β{M,z}", "μ{z}", "k{z}", "M{z,Rd}", "β{M,LT}", "μ{LT}",
                                "k{LT}", "M{cr}", "M{b,Rd}"})
        EXPECT_NE(Passo(r, simbolo).valore, "") << simbolo;
    EXPECT_EQ(Passo(r, "β{M,LT}").valore, "1.1");
    EXPECT_NE(r.capitoli.back().verdetto->esito, EsitoRelazione::Assente);
}

TEST_F(RelazioneSagomoTest, WithoutACriticalMomentThereIsNoVerdict) {
    s.Kw = 0;
    Calcola();
    const CapitoloRelazione c = RelazioneSvergolamento(s, "FrmMsverg").capitoli.back();
    EXPECT_EQ(c.verdetto->esito, EsitoRelazione::Assente);
}

// The shortest length has a critical moment; none at all needs none, whatever was found for another.
TEST_F(RelazioneSagomoTest, ALengthOfAMillimetreIsALength) {
    s.LLT = 1;
    Calcola();
    const Relazione r = RelazioneSvergolamento(s, "");
    EXPECT_NE(Passo(r, "M{cr}").numeri, "");
    ProvaNumeri(r);
    s.Kw = 0;
    Calcola();
    EXPECT_EQ(RelazioneSvergolamento(s, "").capitoli.back().verdetto->esito, EsitoRelazione::Assente);
    s.LLT = 4000;
    Calcola();
    EXPECT_EQ(Passo(RelazioneSvergolamento(s, ""), "M{b,Rd}").numeri, "");
    s.LLT = 0; // its critical moment stays none
    Calcola();
    const PassoRelazione MbRd = Passo(RelazioneSvergolamento(s, ""), "M{b,Rd}");
    EXPECT_EQ(Calcolatore::Valore(MbRd.numeri.substr(0, MbRd.numeri.find(' '))), 1) << "nothing is reduced";
}

// EC3 6.2.9.1 (5): up to n = a, here 0.5 of a web that has more, the weak axis keeps its whole moment.
TEST_F(RelazioneSagomoTest, AnAxialForceAtTheShareOfTheWebLeavesTheWeakAxisWhole) {
    Salda(20);
    s.NplRd = 4e6;
    s.NSd = 2e6;
    ASSERT_LT(s.ClassePressoFlessione, 3);
    EXPECT_EQ(Passo(RelazioneSezione(s, ""), "M{N,z,Rd}").formula, "M{c,z,Rd}");
    s.NSd = 2.1e6;
    EXPECT_NE(Passo(RelazioneSezione(s, ""), "M{N,z,Rd}").formula, "M{c,z,Rd}");
}

TEST_F(RelazioneSagomoTest, AMeasureOfNothingIsNotListed) {
    EXPECT_EQ(Passo(RelazioneSezione(s, ""), "r").valore, "5");
    s.r = 0;
    EXPECT_FALSE(Ha(RelazioneSezione(s, ""), "r"));
}

TEST_F(RelazioneSagomoTest, WithoutAnEffectiveOutlineNothingIsReadFromIt) {
    s.InizializzaSezioneUtente(nullptr, 500, 250, 8, 5, 5);
    ASSERT_EQ(s.ClasseFlessioneZ, 4);
    Relazione r;
    r.capitoli = {CapitoloEfficace(s)};
    EXPECT_TRUE(Ha(r, "x{G,eff}"));
    s.SezioneWz4.reset();
    r.capitoli = {CapitoloEfficace(s)};
    EXPECT_FALSE(Ha(r, "x{G,eff}"));
}

// Wel fy / gamma M0 of class 3; of class 4 the shifts of the effective centroids.
TEST_F(RelazioneSagomoTest, ElasticMomentsAndShiftsHaveTheirFormulas) {
    s.ClassePressoFlessione = 3;
    EXPECT_EQ(Passo(RelazioneSezione(s, ""), "M{el,y,Rd}").formula, "W{el,y} f{y} / γ{M0}");
    Salda(3); // a web of 470/3 is of class 4
    ASSERT_EQ(s.ClasseFlessioneY, 4);
    s.NSd = 1e6;
    Calcola();
    ASSERT_EQ(s.ClassePressoFlessione, 4);
    const Relazione r = RelazioneSezione(s, "");
    EXPECT_EQ(Passo(r, "e{Ny}").formula, "h / 2 − y{G,eff}");
    EXPECT_EQ(Passo(r, "e{Nz}").formula, "") << "whole about z-z";
    Salda(4.5); // 460 / 4.5 = 102: of class 3 in bending, of class 4 in compression
    s.NSd = 1e6;
    Calcola();
    ASSERT_EQ(s.ClasseFlessioneY, 3);
    ASSERT_EQ(s.ClassePressoFlessione, 4);
    EXPECT_EQ(Passo(RelazioneSezione(s, ""), "e{Ny}").formula, "") << "whole about y-y";
}

TEST_F(RelazioneSagomoTest, NumbersPutInGiveTheValues) {
    for (const double tw : {3.0, 8.0, 20.0}) {
        Salda(tw);
        ProvaNumeri(RelazioneSezione(s, ""));
        ProvaNumeri(RelazioneSvergolamento(s, ""));
        ProvaNumeri(RelazioneMembratura(s, {"b", "c"}, {}, ""));
    }
    s = SezioneDoppioT(); // rolled, as an IPE 300
    s.TipoAcciaio = "S275 (Fe430)";
    s.fy = 275;
    s.L0y = 5000;
    s.L0z = s.LLT = 2500;
    s.k = s.Kw = s.C1 = 1;
    s.h = 300, s.b = 150, s.tw = 7.1, s.tf = 10.7, s.r1 = 15;
    s.Area = 5381, s.Jy = 83.56e6, s.Jz = 6.038e6, s.iY = 124.6, s.iZ = 33.5, s.Wely = 557.1e3,
    s.Welz = 80.5e3, s.Wply = 628.4e3, s.Wplz = 125.2e3;
    s.NSd = 100e3;
    s.Mysd = 50e6;
    s.InizializzaSezione();
    Calcola();
    ProvaNumeri(RelazioneSvergolamento(s, ""));
}

// By hand: web 460 x 3 in compression, 153.333 / (28.4 x 2) = 2.69953, (2.69953 - 0.22) / 2.69953^2 =
// 0.34024, of 460 mm 156.51. Bending: psi -1, k 23.9, 153.333 / (28.4 x 4.88876) = 1.10438, (1.10438 - 0.22)
// / 1.10438^2 = 0.72511 of 230 mm = 166.78, strips of 66.71 and 100.07.
TEST_F(RelazioneSagomoTest, PlatesOfClass4AreDerived) {
    Salda(3);
    const Relazione r = RelazioneSezione(s, "");
    EXPECT_EQ(Passo(r, "λ̅{p}").valore, "2.6995");
    EXPECT_EQ(Passo(r, "ρ").valore, "0.3402");
    EXPECT_NEAR(ConPunto(Passo(r, "b{eff}").valore), 156.51, 0.01);
    EXPECT_NEAR(ConPunto(Passo(r, "b{e1}").valore), 66.71, 0.01);
    EXPECT_NEAR(ConPunto(Passo(r, "b{e2}").valore), 100.07, 0.01);
    EXPECT_FALSE(Ha(RelazioneSezione(s, ""), "x{G,eff}")) << "whole about z-z";
    EXPECT_NE(Passo(r, "A{eff}").numeri, "");
    Salda(20); // whole
    EXPECT_FALSE(Ha(RelazioneSezione(s, ""), "λ̅{p}"));
}

// The load on the upper flange: the numbers of Mcr with C2 give its value, as do those of phi.
TEST_F(RelazioneSagomoTest, TheCriticalMomentCanBeFollowed) {
    s.c2 = 0.459;
    s.za = 250;
    Calcola();
    const Relazione r = RelazioneSvergolamento(s, "");
    EXPECT_EQ(Passo(r, "z{g}").valore, "250.0");
    EXPECT_EQ(Passo(r, "z{j}").valore, "0.0");
    EXPECT_EQ(Passo(r, "E").valore, "210000");
    EXPECT_NE(Passo(r, "M{cr}").numeri, "");
    ProvaNumeri(r);
    const CapitoloRelazione senza = r.capitoli.back();
    EXPECT_TRUE(senza.note.empty());
    s.InizializzaSezioneUtente(nullptr, 500, 250, 8, 15, 5, 180, 12);
    Calcola();
    const CapitoloRelazione c = CapitoloMomentoCritico(s);
    ASSERT_EQ(c.note.size(), 1U);
    EXPECT_NE(c.note[0].find("non va usato"), std::string::npos);
}

// By hand, L 150 x 100 x 8 of S235: 150 / 8 = 18.75 and 125 / 8 = 15.625 against 15 and 11.5, class 4. lambda
// p = 18.75 / (28.4 x 0.655744) = 1.00681, rho 0.77619; 12.5 / 18.62313 = 0.67121, below 0.673, whole.
TEST(RelazioneAngolare, AnAngleOfClass4IsDerived) {
    const Registratore quiet;
    SezioneSagomoL l;
    l.fy = 235;
    l.h = 150, l.b = 100, l.t = 8, l.r1 = 12, l.r2 = 6;
    l.Area = 1948, l.iY = 48, l.Iz = 29, l.iV = 21.9;
    l.L0y = l.L0z = l.L0v = 2000;
    l.InizializzaSezione();
    ASSERT_EQ(l.ClasseCompressione, 4);
    Relazione r;
    r.capitoli = {CapitoloAzioni(l, 80e3), CapitoloClassi(l), CapitoloEfficace(l), CapitoloResistenze(l)};
    EXPECT_EQ(Passo(r, "N{Sd}").valore, "80.0");
    EXPECT_EQ(Passo(r, "L{0,v}").valore, "2.0");
    EXPECT_EQ(Passo(r, "h / t / ε").valore, "18.75");
    EXPECT_EQ(Passo(r, "(b + h) / (2 t) / ε").valore, "15.625");
    EXPECT_NEAR(ConPunto(Passo(r, "λ̅{p}").valore), 1.0068, 1e-4);
    EXPECT_NEAR(ConPunto(Passo(r, "ρ").valore), 0.7762, 1e-4);
    EXPECT_NEAR(ConPunto(Passo(r, "N{pl,Rd}").valore), 1948 * l.betaA() * 0.235 / GammaM0, 0.01);
    ProvaNumeri(r);
}

TEST(RelazioneAngolare, LimitsFollowTheSeparator) {
    const Registratore quiet;
    const ConSeparatori italiani(',', '.');
    SezioneSagomoL l;
    l.fy = 235;
    l.h = l.b = 100;
    l.t = 9; // 11.1, class 3
    l.Area = 1700, l.iY = l.Iz = 30, l.iV = 19.6;
    l.InizializzaSezione();
    const CapitoloRelazione c = CapitoloClassi(l);
    EXPECT_EQ(c.passi[1].descrizione, "Lato lungo: classe 3 (limiti 10 - 11,5)");
}

// By hand, 150 x 100.8 x 8: 100.8 / 8 = 12.6, / (28.4 x 0.655744) = 0.67658, rho (0.67658 - 0.22) / 0.67658^2
// = 0.99744: of the short leg less than a millimetre is lost, 0.258 mm, and that counts.
TEST(RelazioneAngolare, ALossBelowAMillimetreStandsInTheArea) {
    const Registratore quiet;
    SezioneSagomoL l;
    l.fy = 235;
    l.h = 150, l.b = 100.8F, l.t = 8;
    l.Area = (150 + 100.8F - 8) * 8;
    l.iY = 48, l.Iz = 29, l.iV = 21.9F;
    l.L0y = l.L0z = l.L0v = 2000;
    l.InizializzaSezione();
    ASSERT_EQ(l.ClasseCompressione, 4);
    Relazione r;
    r.capitoli = {CapitoloEfficace(l)};
    ProvaNumeri(r);
    const std::string numeri = Passo(r, "A{eff}").numeri;
    ASSERT_NE(numeri.find(" − 0."), std::string::npos) << numeri;
    EXPECT_NEAR(ConPunto(numeri.substr(numeri.rfind(" − ") + std::string(" − ").size())), 0.258, 0.005);
}

class RelazioneCanaleTest : public testing::Test {
protected:
    void TearDown() override { RipristinaGenerale(); }
    /// UPN 200 of S235, alone or back to back; values of the table of the catalogue.
    static SezioneSagomoU Canale(bool doppi) {
        SezioneSagomoU u;
        const double quanti = doppi ? 2 : 1;
        u.Designation = "UPN 200";
        u.fy = 235;
        u.fu = 360;
        u.h = 200;
        u.b = 75;
        u.tw = 8.5;
        u.tf = 11.5;
        u.r1 = 11.5;
        u.r2 = 6;
        u.pendenza = 6;
        u.Doppi = doppi;
        u.dDoppi = 10;
        u.Area = quanti * 3220;
        u.Jy = quanti * 19.1e6;
        u.Jz = quanti * 1.48e6;
        u.iY = 77;
        u.Iz = 21.4;
        u.Wely = quanti * 191e3;
        u.Welz = quanti * 27e3;
        u.Wply = quanti * 228e3;
        u.Wplz = quanti * 51.8e3;
        u.InizializzaSezione();
        return u;
    }

    Registratore quiet;
};

// By hand, gamma M0 1.05: 228000 x 235 / 1.05 = 51.029 kNm; Av = 3220 - 2 75 11.5 + (8.5 + 11.5) 11.5 = 1725
// mm2, x 235 / (1.73205 x 1.05) = 222.898 kN; flanges 1725 mm2, the same.
TEST_F(RelazioneCanaleTest, AChannelHasItsMomentsAndShears) {
    const Relazione r = RelazioneResistenze(Canale(false), "FrmMcRd");
    ProvaNumeri(r);
    EXPECT_EQ(r.oggetto, "UPN 200");
    EXPECT_EQ(Passo(r, "M{c,y,Rd}").valore, "51.029");
    EXPECT_EQ(Passo(r, "V{pl,z,Rd}").valore, "222.898");
    EXPECT_EQ(Passo(r, "V{pl,y,Rd}").valore, "222.898");
    EXPECT_FALSE(Ha(r, "s")) << "no shear length, no ductility";
}

TEST_F(RelazioneCanaleTest, APairBearsTwiceAsMuch) {
    const Relazione r = RelazioneResistenze(Canale(true), "FrmMcRd");
    ProvaNumeri(r);
    EXPECT_EQ(Passo(r, "M{c,y,Rd}").valore, "102.057");
    EXPECT_EQ(Passo(r, "V{pl,z,Rd}").valore, "445.797");
}

// By hand, 400 x 75 x 3 x 11.5 of S235 without roots: d 377, 125.667 / 56.8 = 2.21244, rho (2.21244 - 0.22) /
// 2.21244^2 = 0.40705: 223.54 mm of a web are lost, of a pair twice.
TEST_F(RelazioneCanaleTest, AThinWebLosesOnceAloneAndTwiceInAPair) {
    for (const int quanti : {1, 2}) {
        SezioneSagomoU u = Canale(quanti == 2);
        u.h = 400, u.tw = 3, u.r1 = 0, u.r2 = 0, u.pendenza = 0;
        u.Area = Singolo(quanti * (400 * 3 + 2 * 72 * 11.5));
        InizializzaConAreaEfficace(u);
        ASSERT_EQ(u.ClasseCompressione, 4);
        Relazione r;
        r.capitoli = {CapitoloEfficace(u)};
        ProvaNumeri(r);
        const PassoRelazione p = Passo(r, "A{eff}");
        const double perse = quanti * 223.54 * 3;
        ASSERT_NE(p.numeri, "") << quanti;
        EXPECT_NEAR(Calcolatore::Valore(p.numeri), quanti * 2856 - perse, 0.5);
        EXPECT_EQ(p.numeri.find(" − 2 · ") != std::string::npos, quanti == 2) << p.numeri;
    }
}

// By hand, N 0: lambda f = 75 / 23 sqrt(235 / 210000) = 0.10908; dwe = 177 / 2 = 88.5, lambda w = 88.5 / 8.5
// x 0.033452 = 0.34830; s = 1 / (0.695 + 0.019418 + 0.0075214 - 0.602 x 75 / 2000) = 1 / 0.699364 = 1.4299.
TEST_F(RelazioneCanaleTest, AShearLengthGivesTheDuctility) {
    const Relazione r = RelazioneResistenze(Canale(false), "FrmMcRd", {0, 2000});
    ProvaNumeri(r);
    EXPECT_EQ(Passo(r, "s").valore, "1.4299");
    EXPECT_EQ(Passo(r, "s{max}").valore, "1.25");
}

} // namespace
