// Limits of the entries, and utilization, without screens. Numbers by hand: HE 300 B (b 300, tw 11, r 27),
// IPE 300 (h 300, b 150, tw 7.1), M20 in holes of 22, gaps at rest: half a hole to edge and web, the whole
// root. A hole keeps 27 + 11 = 38 off the column's web, 4 sqrt2 + 11 = 16.66 off the beam's.
#include "joints/LimitiGiunto.h"

#include <gmock/gmock.h>

#include "Registratore.h"
#include "frame/GeneraleSagomi.h"
#include "joints/Giunto.h"
#include "joints/Sezioni.h"
#include "joints/UtilizzoGiunto.h"

using namespace sagomi;
using namespace sagomi::prove;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

class LimitiFlangia : public testing::Test {
protected:
    LimitiFlangia() {
        RipristinaGenerale();
        g.PuntatoreSezioni(trave, colonna);
        g.sTraveColonna_Calcola();
        g.IndiceBullone(7);
        g.Af = 5;
        g.aw = 4;
        g.tf = 20;
        g.bf = 160;
        g.ef = 30;
        g.d2 = g.dX = g.ex = 30;
        g.L = 60;
        g.u = 20;
        g.nf = 2;
    }
    ~LimitiFlangia() override { RipristinaGenerale(); }
    std::string Detto() {
        std::string t;
        for (const auto& s : registratore.testi)
            t += s + "|";
        registratore.testi.clear();
        return t;
    }

    Sezione trave = IPE300(), colonna = HEB300();
    Giunto g;
    Registratore registratore;
};

// 11 + 2 (38 + 11) = 109, the beam 7.1 + 2 (16.66 + 11) = 62.4.
TEST_F(LimitiFlangia, LarghezzaDellaFlangia) {
    EXPECT_EQ(CampoDi(g, ParametroGiunto::bf).minimo, 150);
    EXPECT_EQ(CampoDi(g, ParametroGiunto::bf).massimo, 300);
    g.bf = 149;
    EXPECT_TRUE(bf_Controlla(g));
    EXPECT_EQ(g.bf, 150);
    EXPECT_EQ(g.bfmin, 109);
    EXPECT_EQ(g.bfmax, 300);
    EXPECT_EQ(g.w, 90); // what follows is built anew
    EXPECT_THAT(Detto(), HasSubstr("larghezza della trave 150"));
    g.bf = 301;
    EXPECT_TRUE(bf_Controlla(g));
    EXPECT_EQ(g.bf, 300);
    EXPECT_THAT(Detto(), HasSubstr("larghezza della colonna 300"));
    for (const double giusta : {150.0, 300.0}) {
        g.bf = giusta;
        EXPECT_FALSE(bf_Controlla(g));
    }
    trave->b = 100;
    g.bf = 108;
    EXPECT_TRUE(bf_Controlla(g));
    EXPECT_EQ(g.bf, 109);
    EXPECT_THAT(Detto(), HasSubstr("minimo pari a 109 mm"));
    EXPECT_FALSE(bf_Controlla(g));
    EXPECT_THAT(Detto(), IsEmpty());
    trave->tw = 60; // 60 + 2 (16.66 + 11) = 115.3
    EXPECT_EQ(CampoDi(g, ParametroGiunto::bf).minimo, 116);
}

// At most (160 - 11)/2 - 38 = 36.5; of the whole column 106.5; of a web of 60 mm (300 - 60)/2 - 16.66 =
// 103.3.
TEST_F(LimitiFlangia, BordoDelForo) {
    std::string consiglio;
    EXPECT_EQ(CampoDi(g, ParametroGiunto::ef).minimo, 11);
    EXPECT_EQ(CampoDi(g, ParametroGiunto::ef).massimo, 36);
    for (const double giusto : {11.0, 36.0}) {
        g.ef = giusto;
        EXPECT_FALSE(ef_Controlla(g, consiglio)) << giusto;
    }
    EXPECT_THAT(Detto(), IsEmpty());
    g.ef = 37;
    EXPECT_TRUE(ef_Controlla(g, consiglio));
    EXPECT_EQ(g.ef, 36);
    EXPECT_EQ(consiglio, "Per aumentare ef bisogna incrementare bf");
    EXPECT_THAT(Detto(), HasSubstr("dell'anima della colonna"));
    g.ef = 10;
    EXPECT_TRUE(ef_Controlla(g, consiglio));
    EXPECT_EQ(g.ef, 11);
    EXPECT_EQ(g.minecef, 10);
    EXPECT_THAT(Detto(), HasSubstr("esterno alla flangia"));
    g.bf = 320; // 10 wider than the column at both sides
    g.ef = 20;
    EXPECT_TRUE(ef_Controlla(g, consiglio));
    EXPECT_EQ(g.ef, 21);
    EXPECT_EQ(g.minecef, 10);
    EXPECT_EQ(consiglio, "");
    EXPECT_THAT(Detto(), HasSubstr("esterno alla colonna"));
    g.bf = 0; // not given yet
    trave->tw = 60;
    g.ef = 104;
    EXPECT_TRUE(ef_Controlla(g, consiglio));
    EXPECT_EQ(g.ef, 103);
    EXPECT_EQ(consiglio, "");
    EXPECT_THAT(Detto(), HasSubstr("dell'anima della trave"));
    g.bf = 200; // (200 - 60)/2 - 16.66 = 53.3, the column (200 - 11)/2 - 38 = 56.5
    g.ef = 60;
    EXPECT_TRUE(ef_Controlla(g, consiglio));
    EXPECT_EQ(g.ef, 53);
    EXPECT_EQ(consiglio, "Per aumentare ef bisogna incrementare bf");
    EXPECT_THAT(Detto(), HasSubstr("dell'anima della trave"));
}

// 5 sqrt2 + 11 = 18.07 to the flange, 11 to the edge, 5 sqrt2 = 7.07 for the weld.
TEST_F(LimitiFlangia, DistanzeVerticali) {
    g.d2 = g.dX = 19;
    g.ex = 11;
    g.u = 8;
    ParametriControlla(g);
    EXPECT_THAT(Detto(), IsEmpty());
    g.d2 = 18;
    EXPECT_TRUE(d2_Controlla(g));
    EXPECT_EQ(g.d2, 19);
    EXPECT_THAT(Detto(),
                HasSubstr("d1 porta ad una distanza verticale dell'asse dei bulloni dal filo inferiore"));
    g.ex = 30;
    g.dX = 18;
    EXPECT_TRUE(dx_Controlla(g));
    EXPECT_EQ(g.L, 49);
    EXPECT_EQ(g.dX, 19);
    EXPECT_THAT(Detto(), HasSubstr("filo superiore"));
    g.dX = 40;
    g.ex = 10;
    EXPECT_TRUE(ex_Controlla(g));
    EXPECT_EQ(g.L, 51);
    EXPECT_EQ(g.ex, 11);
    g.u = 7;
    EXPECT_TRUE(u_Controlla(g));
    EXPECT_EQ(g.u, 8);
    (void)Detto();
    g.d2 = g.dX = g.ex = g.u = 1; // of one row the outer ones are not asked for
    g.nf = 1;
    ParametriControlla(g);
    EXPECT_EQ(g.d2, 19);
    EXPECT_EQ(g.u, 1);
    EXPECT_EQ(CampoDi(g, ParametroGiunto::dX).minimo, 19);
    EXPECT_EQ(CampoDi(g, ParametroGiunto::ex).minimo, 11);
    EXPECT_EQ(CampoDi(g, ParametroGiunto::u).minimo, 8);
    EXPECT_FALSE(CampoDi(g, ParametroGiunto::u).massimo);
}

// M8 in a hole of 9: 4.5 + 4.5 + 5 sqrt2 = 16.07, whole 17, by fives 20.
TEST_F(LimitiFlangia, Sporgenza) {
    g.L = 19;
    EXPECT_TRUE(L_Controlla(g));
    EXPECT_EQ(g.L, 20);
    EXPECT_FALSE(L_Controlla(g));
    g.TipoProgetto = 1;
    EXPECT_EQ(CampoDi(g, ParametroGiunto::L).minimo, 17);
    g.TipoProgetto = 2; // no search: no least extension
    g.L = 0.5;
    EXPECT_FALSE(L_Controlla(g));
    g.TipoProgetto = 1;
    (void)Detto();
    g.L_max = g.u_max = 150; // half of the beam
    g.tf_max = 20;
    EXPECT_FALSE(L_max_Controlla(g));
    EXPECT_FALSE(u_max_Controlla(g));
    g.L_max = g.u_max = 151;
    EXPECT_TRUE(L_max_Controlla(g));
    EXPECT_TRUE(u_max_Controlla(g));
    EXPECT_EQ(g.L_max, 150);
    EXPECT_EQ(g.u_max, 150);
    EXPECT_THAT(Detto(), HasSubstr("metà dell'altezza della trave pari a 150"));
}

// The throat on the outside of a flange of 10.7: 5.35 t / hypot(5.35, t), 3 at t = 3.62.
TEST_F(LimitiFlangia, NotaDelloSpessore) {
    EXPECT_EQ(NotaSpessore(g, 0), "");
    EXPECT_EQ(NotaSpessore(g, 1), "Non rispetta i 3 mm (EC3).");
    EXPECT_EQ(NotaSpessore(g, 3.6), "Non rispetta i 3 mm (EC3).");
    EXPECT_EQ(NotaSpessore(g, 3.7), "");
    trave->tf = 10; // 5 3.75 / 6.25 = 3
    EXPECT_EQ(NotaSpessore(g, 3.75), "");
    EXPECT_EQ(NotaSpessore(g, 3.74), "Non rispetta i 3 mm (EC3).");
}

// With the coefficients of a search: root 2 0.8 4 + 1.2 22 = 30.93 off the web of 60, and 1.2 22 = 26.4, so
// 27, to the edge: 60 + 2 (30.93 + 27) = 175.9. By the column 11 + 2 (21.6 + 26.4 + 27) = 161.
TEST_F(LimitiFlangia, LarghezzaConICoefficientiDellaRicerca) {
    trave->tw = 60;
    coefficientiProgetto.Imposta();
    EXPECT_EQ(CampoDi(g, ParametroGiunto::bf).minimo, 176);
    trave->tw = 7.1;
    EXPECT_EQ(CampoDi(g, ParametroGiunto::bf).minimo, 162); // 1.2 is a little more in 32 bits
    coefficientiRiposo.Imposta();
}

// Room by the column (160 - 11)/2 - 27 = 47.5, so M42 in 45; by the extension 40 - 7.07 = 32.9, so M27 in 30;
// of the sections alone 117.5 and 140.8: every bolt, the largest in 71.
TEST_F(LimitiFlangia, BulloneMassimo) {
    g.L = 60;
    BulloneMassimo r = BulloneMax(g);
    EXPECT_EQ(r.indice, 15);
    EXPECT_FALSE(r.tutti);
    EXPECT_EQ(r.suggerimento, "per aumentarlo bisogna aumentare bf");
    g.L = 40;
    g.ex = 10;
    r = BulloneMax(g);
    EXPECT_EQ(r.indice, 10);
    EXPECT_EQ(r.suggerimento, "per aumentarlo bisogna aumentare ex");
    g.ex = 30;
    EXPECT_EQ(BulloneMax(g).suggerimento, "per aumentarlo bisogna incrementare d2");
    g.L = 50; // 50 - 7.07 = 42.9, less than by the column
    EXPECT_EQ(BulloneMax(g).suggerimento, "per aumentarlo bisogna incrementare d2");
    g.L = 54.5; // 54.5 - 7.07 = 47.4: both leave 47, the width is named
    EXPECT_EQ(BulloneMax(g).suggerimento, "per aumentarlo bisogna aumentare bf");
    g.nf = 1;
    EXPECT_EQ(BulloneMax(g).indice, 15);
    g.nf = 2;
    g.L = 0; // not given yet
    EXPECT_EQ(BulloneMax(g).indice, 15);
    g.bf = 0;
    r = BulloneMax(g);
    EXPECT_TRUE(r.tutti);
    EXPECT_EQ(r.suggerimento, "");
    trave->tw = 160; // (300 - 160)/2 - 4 sqrt2 = 64.3: M60 in 63
    r = BulloneMax(g);
    EXPECT_FALSE(r.tutti);
    EXPECT_EQ(r.indice, 20);
    g.IndiceBullone(21);
    EXPECT_TRUE(bullone_Controlla(g));
    EXPECT_EQ(g.IndiceBullone(), 20);
    EXPECT_THAT(Detto(), HasSubstr("massimo pari a d = 60 mm"));
    EXPECT_FALSE(bullone_Controlla(g));
}

// With the distances of a design a hole takes 1.2 + 1.2 diameters and 0.8 of the root: by the column (160 -
// 11)/2 - 21.6 = 52.9 or 22.04 a hole, M20; by a web of 60 mm 50 - 4.53 = 45.5 or 18.9, M16.
TEST_F(LimitiFlangia, BulloneConLeDistanzeDiProgetto) {
    coefficientiProgetto.Imposta();
    g.L = 200;
    EXPECT_EQ(BulloneMax(g).indice, 7);
    EXPECT_EQ(g.IndiceBulloneMaxGiunto_Calcola(), 7);
    trave->tw = 60;
    EXPECT_EQ(BulloneMax(g).indice, 5);
    EXPECT_EQ(g.IndiceBulloneMaxGiunto_Calcola(), 5);
    trave->tw = 7.1;
    g.L = 40; // 40 - 0.8 5 sqrt2 = 34.3 or 14.3: M12 in 13
    EXPECT_EQ(BulloneMax(g).indice, 3);
    EXPECT_EQ(BulloneMax(g).suggerimento, "per aumentarlo bisogna incrementare d2");
    coefficientiRiposo.Imposta();
}

TEST_F(LimitiFlangia, PrimoDatoCheManca) {
    const auto manca = [](const char* cosa) {
        return std::string("Inserire un valore diverso da zero per ") + cosa + ".";
    };
    g.Criterio1 = false;
    EXPECT_EQ(PrimoZero(g), "");
    g.u = 0;
    EXPECT_EQ(PrimoZero(g), manca("u"));
    g.ex = 0;
    EXPECT_EQ(PrimoZero(g), manca("ex"));
    g.nf = 1;
    EXPECT_EQ(PrimoZero(g), "");
    g.ef = 0;
    EXPECT_EQ(PrimoZero(g), manca("ef"));
    g.tf = 0.5; // a plate thinner than a millimetre is one
    g.bf = -1;
    EXPECT_EQ(PrimoZero(g), manca("la larghezza della flangia bf"));
    g.Criterio1 = true;
    EXPECT_EQ(PrimoZero(g), manca("tf max"));
    g.tf_max = 20;
    g.L_max = g.u_max = 0.5;
    EXPECT_EQ(PrimoZero(g), "");
}

// As near to one edge as to the other, it is that of the plate.
TEST_F(LimitiFlangia, ForoVicinoAiDueBordi) {
    g.bf = colonna->b;
    g.ef = 5;
    std::string consiglio;
    EXPECT_TRUE(ef_Controlla(g, consiglio));
    EXPECT_THAT(Detto(), HasSubstr("esterno alla flangia"));
}

TEST_F(LimitiFlangia, SenzaSezioni) {
    Giunto vuoto;
    vuoto.ef = 30;
    std::string consiglio;
    EXPECT_ANY_THROW(bf_Controlla(vuoto));
    EXPECT_ANY_THROW(ef_Controlla(vuoto, consiglio));
    EXPECT_ANY_THROW((void)BulloneMax(vuoto));
}

// Half of Mj,Rd acts: half of the rows' forces over the resistance.
TEST_F(LimitiFlangia, Utilizzo) {
    g.Acquisito = true;
    g.MplRdGIUNTO = 50;
    trave->Mysd = -25;
    g.FtRd_EffInf = 100;
    g.FtRd_EffSup = 200;
    g.VplRd_Pannello_c = 400;
    g.FcRd_Anima_c = 500;
    g.FcRd_AnimaIrrigidita_c = 750;
    g.NbRd_Anima_c = 600;
    g.FtRd_Anima_c = 300;
    g.Ftrd_FilaInfRid_c = 125;
    g.Ftrd_FilaInf_c = 200;
    g.FtRd_FilaInf_f = 250;
    g.FtRd_Anima_t = 1000;
    g.Ftrd_FilaSup_c = 200;
    g.FtRd_FilaSup_f = 800;
    const auto u = [&](const char* c) { return Utilizzo(g, c).value_or(-1); };
    EXPECT_EQ(u("txtF1"), -1); // no shear in the panel
    g.Beta = 1;
    EXPECT_NEAR(u("txtF1"), 0.375, 1e-12);
    g.Beta = 0.5; // VplRd_Pannello_c is over Beta already
    EXPECT_NEAR(u("txtF1"), 0.375, 1e-12);
    EXPECT_NEAR(u("txtF2"), 0.3, 1e-12);
    EXPECT_NEAR(u("txtF3"), 0.25, 1e-12);
    EXPECT_NEAR(u("txtF5"), 0.5, 1e-12);
    EXPECT_NEAR(u("txtF4"), 100 / (2 * 0.9 * 0.8 * 245 / 1.25), 1e-6); // M20 8.8, the greater row
    EXPECT_NEAR(u("txtF6_0"), 0.4, 1e-12);
    EXPECT_EQ(u("txtF6"), -1);
    EXPECT_NEAR(u("txtF7_0"), 0.2, 1e-12);
    EXPECT_EQ(u("txtF7"), -1);
    EXPECT_NEAR(u("txtF8"), 0.05, 1e-12);
    EXPECT_NEAR(u("txtF6_1"), 0.5, 1e-12);
    EXPECT_NEAR(u("txtF7_1"), 0.125, 1e-12);
    EXPECT_NEAR(u("txtFmin0"), 0.5, 1e-12);
    EXPECT_NEAR(u("txtFmin1"), 0.5, 1e-12);
    g.FtRd_FilaSup_f = 0.5; // not much, and yet a resistance
    EXPECT_NEAR(u("txtF7_1"), 200, 1e-9);
    g.FtRd_Anima_c = 1;
    EXPECT_NEAR(u("txtF5"), 150, 1e-9);
    g.Irrigidimenti = "Si";
    EXPECT_NEAR(u("txtF2"), 0.2, 1e-12);
    EXPECT_EQ(u("txtF3"), -1);
    EXPECT_NEAR(u("txtF6_0"), 0.25, 1e-12); // the rows stand for themselves
    g.Irrigidimenti = "No";
    g.nf = 1;
    EXPECT_NEAR(u("txtF2"), 0.1, 1e-12);
    EXPECT_NEAR(u("txtF6"), 0.25, 1e-12);
    EXPECT_EQ(u("txtF6_0"), -1);
    EXPECT_NEAR(u("txtF7"), 0.2, 1e-12);
    EXPECT_NEAR(u("txtF4"), 50 / (2 * 0.9 * 0.8 * 245 / 1.25), 1e-6);
    EXPECT_EQ(u("txtFmin1"), -1);
    EXPECT_EQ(u("TxtMjRd"), -1);
    g.FtRd_EffInf = 0.5;
    EXPECT_NEAR(u("txtF4"), 0.25 / (2 * 0.9 * 0.8 * 245 / 1.25), 1e-6);
    g.FtRd_EffInf = 100;
    g.MplRdGIUNTO = 0.5;
    EXPECT_NEAR(u("txtFmin0"), 50, 1e-9);
    g.MplRdGIUNTO = 0;
    EXPECT_EQ(u("txtFmin0"), -1);
    g.MplRdGIUNTO = 50;
    g.Acquisito = false;
    EXPECT_EQ(u("txtFmin0"), -1);
}

} // namespace
