#include "joints/Giunto.h"

#include <gmock/gmock.h>

#include <numbers>
#include <stdexcept>
#include <string>

#include "joints/Sezioni.h"

using namespace sagomi;
using namespace sagomi::prove;

TEST(Giunto, PredefinitiDeiMembri) {
    const Giunto g;
    EXPECT_FALSE(g.Acquisito);
    EXPECT_TRUE(g.Criterio1);
    EXPECT_FALSE(g.Criterio2);
    EXPECT_TRUE(g.Beta_Cautel);
    EXPECT_EQ(g.Irrigidimenti, "No");
    EXPECT_EQ(g.nf, 1);
    EXPECT_EQ(g.Classe, "8.8");
    EXPECT_EQ(g.fubl, 800);
    EXPECT_EQ(g.Kwc, 1);
    EXPECT_EQ(g.Kfc, 1);
    EXPECT_EQ(g.TipoProgetto, 0);
    EXPECT_EQ(g.TipoUscitaProgetto, 0);
    EXPECT_EQ(g.RisultatiIntermedi_Estrai().n(), 0);
}

TEST(Giunto, DiametroForo) {
    EXPECT_EQ(Giunto::DiametroForo(8), 9);
    EXPECT_EQ(Giunto::DiametroForo(14), 15);
    EXPECT_EQ(Giunto::DiametroForo(15), std::nullopt);
    EXPECT_EQ(Giunto::DiametroForo(16), 18);
    EXPECT_EQ(Giunto::DiametroForo(24), 26);
    EXPECT_EQ(Giunto::DiametroForo(25), std::nullopt);
    EXPECT_EQ(Giunto::DiametroForo(27), 30);
    EXPECT_EQ(Giunto::DiametroForo(68), 71);
    EXPECT_EQ(Giunto::DiametroForo(69), std::nullopt);
    EXPECT_EQ(Giunto::DiametroForo(7), std::nullopt);
}

// M24: ISO 4014, 4032, 7089.
TEST(Giunto, IndiceBulloneRiempieOttoCampi) {
    Giunto g;
    g.IndiceBullone(9);
    EXPECT_EQ(g.IndiceBullone(), 9);
    EXPECT_EQ(g.Diam, 24);
    EXPECT_EQ(g.Areares, 353);
    EXPECT_EQ(g.d0, 26);
    EXPECT_EQ(g.bul_k, 15);
    EXPECT_EQ(g.bul_e, 39.98);
    EXPECT_EQ(g.bul_s, 36);
    EXPECT_EQ(g.bul_m, 21.5);
    EXPECT_EQ(g.rond_d2, 44);
    EXPECT_EQ(g.rond_s, 4);
    EXPECT_THROW(g.IndiceBullone(0), std::out_of_range);
    EXPECT_THROW(g.IndiceBullone(23), std::out_of_range);
    EXPECT_EQ(g.IndiceBullone(), 9);
    g.IndiceBullone(22);
    EXPECT_EQ(g.Diam, 68);
    EXPECT_EQ(g.bul_e, 110.51);
}

TEST(Giunto, PuntatoreSezioniNonCopia) {
    Giunto g;
    const Sezione trave = IPE300();
    const Sezione colonna = HEB300();
    g.PuntatoreSezioni(trave, colonna);
    EXPECT_EQ(g.Trave, trave);
    EXPECT_EQ(g.Colonna, colonna);
    EXPECT_EQ(g.sColonna(), 0);
    g.sTraveColonna_Calcola();
    EXPECT_EQ(g.sColonna(), 27);
    EXPECT_EQ(g.sTrave(), 15);
}

// The throat of a fillet of leg 6 is 4.2426.
TEST(Giunto, RadiceDiUnaSaldata) {
    Giunto g;
    const Sezione colonna = HEB300();
    colonna->Saldata = true;
    colonna->r = 6;
    g.PuntatoreSezioni(IPE300(), colonna);
    g.sTraveColonna_Calcola();
    EXPECT_EQ(g.sColonna().Stretto(), static_cast<float>(6 / std::numbers::sqrt2));
}

// By hand: IPE 300 on HE 300 B, M20, plate 170 x 15, throats 6 and 4.
TEST(Giunto, GeometriaDerivata) {
    Giunto g;
    g.PuntatoreSezioni(IPE300(), HEB300());
    g.sTraveColonna_Calcola();
    g.IndiceBullone(7);
    g.tf = 15;
    g.bf = 170;
    g.ef = 40;
    g.d2 = 45;
    g.Af = 6;
    g.aw = 4;
    g.Derivati_Calcola();
    EXPECT_NEAR(g.m2, 45 - 6.78823, 1e-5);
    EXPECT_NEAR(g.pint, 300 - 21.4 - 90, 1e-5);
    EXPECT_EQ(g.lb, 19 + 15 + 3 + 15.25);
    EXPECT_EQ(g.ec, 65 + 40);
    EXPECT_NEAR(g.mc, 144.5 - 21.6 - 105, 1e-12);
    EXPECT_EQ(g.w, 90);
    EXPECT_NEAR(g.mf, 81.45 - 4.52548 - 40, 1e-5);
    EXPECT_EQ(g.hf, 290); // 289.3 upward
    EXPECT_EQ(g.p, 0);

    g.nf = 2;
    g.ex = 35;
    g.L = 80;
    g.u = 10;
    g.Derivati_Calcola();
    EXPECT_EQ(g.dX, 45);
    EXPECT_NEAR(g.mx, 45 - 6.78823, 1e-5);
    EXPECT_NEAR(g.p, 10.7 + 45 + 45, 1e-5);
    EXPECT_EQ(g.hf, 390);
}

// The columns of an improvement, as ParametriSelezione.h counts them: M20 is the seventh bolt.
TEST(Giunto, DatiSelezioneDaUnaRiga) {
    TabellaSelezione tabella;
    tabella.Aggiunge({1.0, std::string("12.00"), 20.0, 15.0, 170.0, 40.0, 45.0});
    tabella.Aggiunge({2.0, std::string("24.00"), 24.0, 18.0, 180.0, 42.0, 38.0, 47.0, 50.0, 16.0});
    tabella.Aggiunge({3.0, std::string("25.00"), 19.0, 18.0, 180.0, 42.0, 45.0});
    Giunto g;
    g.PuntatoreSezioni(IPE300(), HEB300());
    g.DatiSelezione_Completa(tabella, 1);
    EXPECT_EQ(g.IndiceBullone(), 7);
    EXPECT_EQ(g.tf, 15);
    EXPECT_EQ(g.bf, 170);
    EXPECT_EQ(g.ef, 40);
    EXPECT_EQ(g.d2, 45);
    EXPECT_EQ(g.sColonna(), 27);
    EXPECT_EQ(g.w, 90); // what follows is computed
    g.nf = 2;
    g.DatiSelezione_Completa(tabella, 2);
    EXPECT_EQ(g.IndiceBullone(), 9);
    EXPECT_EQ(g.ex, 38);
    EXPECT_EQ(g.L, 38 + 47);
    EXPECT_EQ(g.d2, 50);
    EXPECT_EQ(g.u, 16);
    EXPECT_EQ(g.dX, 47);
    for (int i = 1; i <= 22; ++i) { // every bolt of the table, the last of 68
        Giunto bullone;
        bullone.IndiceBullone(static_cast<std::int16_t>(i));
        TabellaSelezione una;
        una.Aggiunge({1.0, std::string("12.00"), bullone.Diam, 15.0, 170.0, 40.0, 38.0, 47.0, 45.0, 16.0});
        g.DatiSelezione_Completa(una, 1);
        EXPECT_EQ(g.IndiceBullone(), i);
    }
    EXPECT_THROW(g.DatiSelezione_Completa(tabella, 3), std::out_of_range); // no bolt of 19 mm
    EXPECT_THROW(g.DatiSelezione_Completa(tabella, 4), std::out_of_range);
}
