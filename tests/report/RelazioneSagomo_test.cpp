#include "report/RelazioneSagomo.h"

#include <gtest/gtest.h>

#include "Registratore.h"
#include "frame/GeneraleSagomi.h"
#include "report/Passi.h"
#include "sections/SezioneDoppioT.h"

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
}

TEST_F(RelazioneSagomoTest, NumbersPutInGiveTheValues) {
    for (const double tw : {3.0, 8.0, 20.0}) {
        Salda(tw);
        ProvaNumeri(RelazioneSezione(s, ""));
        ProvaNumeri(RelazioneSvergolamento(s, ""));
        ProvaNumeri(RelazioneMembratura(s, {"b", "c"}, {}, ""));
    }
    s = SezioneDoppioT(); // rolled, as an IPE 300
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

} // namespace
