// Row forces, redistribution and classes of strength by hand, from component resistances that are given.
#include "joints/Giunto.h"

#include <gmock/gmock.h>

#include "Registratore.h"
#include "frame/GeneraleSagomi.h"
#include "joints/Sezioni.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

constexpr const char* T1 = " Fila int. dall'ala della colonna a flessione";
constexpr const char* T1b = " Fila int. dall'ala della colonna a flessione ";
constexpr const char* T2 = " Fila int. dalla flangia di estremità a flessione";
constexpr const char* T3 = " Fila est. dall'ala della colonna a flessione";
constexpr const char* T3b = " Fila est. ala della colonna a flessione";
constexpr const char* T4 = " Fila est. dalla flangia di estremità a flessione";

class Momento : public testing::Test {
protected:
    Momento() {
        RipristinaGenerale();
        g.PuntatoreSezioni(trave, colonna);
        g.IndiceBullone(7);
        g.d2 = 45;
        g.dX = 45;
        // The web of the beam is made to bear the row: mf 30, ef 30, m2 36 give 263 kN.
        g.mf = g.ef = 30;
        g.m2 = 36;
        g.tf = 15;
        g.LeffFlangia_Calcola();
        g.mc = 30;
        g.ec = 40;
    }
    ~Momento() override { RipristinaGenerale(); }

    Sezione trave = IPE300();
    Sezione colonna = HEB300();
    Giunto g;
    Registratore boxes;
};

} // namespace

TEST_F(Momento, UnaFilaLaMinore) {
    g.Ftrd_FilaInf_c = 150;
    g.FtRd_FilaInf_f = 180;
    g.FtRd_EfficaciFile_Calcola();
    EXPECT_EQ(g.FtRd_EffInf, 150);
    EXPECT_EQ(g.ComponenteDeboleFilaInf, T1);
    g.FtRd_FilaInf_f = 150; // a tie
    g.FtRd_EfficaciFile_Calcola();
    EXPECT_EQ(g.ComponenteDeboleFilaInf, T2);
    EXPECT_EQ(g.ComponenteDeboleFilaSup, "");
}

TEST_F(Momento, DueFileIrrigiditeIndipendenti) {
    g.nf = 2;
    g.Irrigidimenti = "Si";
    g.FtRd_Gruppo = 1;
    g.Ftrd_FilaInf_c = 150;
    g.FtRd_FilaInf_f = 140;
    g.Ftrd_FilaSup_c = 100;
    g.FtRd_FilaSup_f = 120;
    g.FtRd_EfficaciFile_Calcola();
    EXPECT_EQ(g.FtRd_EffInf, 140);
    EXPECT_EQ(g.FtRd_EffSup, 100);
    EXPECT_EQ(g.ComponenteDeboleFilaInf, T2);
    EXPECT_EQ(g.ComponenteDeboleFilaSup, T3b);
    g.FtRd_FilaSup_f = 100;
    g.FtRd_EfficaciFile_Calcola();
    EXPECT_EQ(g.ComponenteDeboleFilaSup, T4);
    EXPECT_EQ(g.FtRd_Gruppo, 1);
}

TEST_F(Momento, DueFileInGruppoLaEsternaPerPrima) {
    g.nf = 2;
    g.FtRd_Individuale = 180;
    g.FtRd_Gruppo = 300;
    g.FtRd_FilaSup_f = 200;
    g.FtRd_FilaInf_f = 250;
    g.FtRd_EfficaciFile_Calcola();
    EXPECT_EQ(g.FtRd_EffSup, 180);
    EXPECT_EQ(g.Ftrd_FilaSupRid_c, 180);
    EXPECT_EQ(g.FtRd_EffInf, 120);
    EXPECT_EQ(g.Ftrd_FilaInfRid_c, 120);
    EXPECT_EQ(g.ComponenteDeboleFilaSup, T3);
    EXPECT_EQ(g.ComponenteDeboleFilaInf, T1);
}

TEST_F(Momento, DueFileInGruppoEsternaDallaFlangia) {
    g.nf = 2;
    g.Irrigidimenti = "Cp";
    g.FtRd_Individuale = 180;
    g.FtRd_Gruppo = 300;
    g.FtRd_FilaSup_f = 100;
    g.FtRd_FilaInf_f = 250;
    g.FtRd_EfficaciFile_Calcola();
    EXPECT_EQ(g.FtRd_EffSup, 100);
    EXPECT_EQ(g.FtRd_EffInf, 180); // 200 lowered to a row alone
    EXPECT_EQ(g.Ftrd_FilaInfRid_c, 180);
    EXPECT_EQ(g.ComponenteDeboleFilaSup, T4);
    EXPECT_EQ(g.ComponenteDeboleFilaInf, T1b);
    g.FtRd_FilaInf_f = 180; // a tie is the plate's
    g.FtRd_EfficaciFile_Calcola();
    EXPECT_EQ(g.ComponenteDeboleFilaInf, T2);
    EXPECT_EQ(g.Ftrd_FilaInfRid_c, 180);
}

TEST_F(Momento, RDeboleEITesti) {
    g.FtRd_Anima_c = 400;
    g.FcRd_Anima_c = 400;
    g.NbRd_Anima_c = 400;
    g.FcRd_AnimaIrrigidita_c = 390;
    g.VplRd_Pannello_c = 10;
    g.RDebole_Calcola(); // ties stay with the first; Beta 0 leaves the panel out
    EXPECT_EQ(g.RDebole, 400);
    EXPECT_EQ(g.ComponenteDebole, " dall'anima della colonna a trazione");
    g.FcRd_Anima_c = 380;
    g.RDebole_Calcola();
    EXPECT_EQ(g.ComponenteDebole, " dall'anima della colonna a compressione");
    g.NbRd_Anima_c = 370;
    g.RDebole_Calcola();
    EXPECT_EQ(g.RDebole, 370);
    EXPECT_EQ(g.ComponenteDebole, " dall'anima della colonna a instabilità");
    g.Irrigidimenti = "Cp"; // with the stiffener neither counts
    g.RDebole_Calcola();
    EXPECT_EQ(g.RDebole, 390);
    EXPECT_EQ(g.ComponenteDebole, " dall'anima della colonna a compressione");
    g.Beta = 1;
    g.RDebole_Calcola();
    EXPECT_EQ(g.RDebole, 10);
    EXPECT_EQ(g.ComponenteDebole, " dal pannello della colonna a taglio");
}

// zInt = 300 - 45 - 16.05 = 238.95: 200 kN give 47.79 kNm.
TEST_F(Momento, UnaFilaUgualeARDebole) {
    g.FtRd_EffInf = 200;
    g.FtRd_EffSup = 55;
    g.RDebole = 200;
    g.ComponenteDebole = "come prima";
    g.Mrd_Giunto_CompletaCalcolo();
    EXPECT_EQ(g.TipoMessaggio, 0);
    EXPECT_EQ(g.FtRd_EffSup, 0);
    EXPECT_EQ(g.FtotFile(), 200);
    EXPECT_EQ(g.zEst(), 0);
    EXPECT_NEAR(g.zInt(), 238.95, 1e-4);
    EXPECT_NEAR(g.MplRdGIUNTO, 47.79, 1e-4);
    EXPECT_EQ(g.ComponenteDebole, "come prima");
    EXPECT_TRUE(boxes.testi.empty());
}

TEST_F(Momento, UnaFilaRidottaARDebole) {
    g.FtRd_EffInf = 200;
    g.RDebole = 150;
    g.Mrd_Giunto_CompletaCalcolo();
    EXPECT_EQ(g.TipoMessaggio, 1);
    EXPECT_EQ(g.FtRd_EffInf, 150);
    EXPECT_EQ(g.FtotFile(), 200);
}

// The beam web bears 263.146 kN; TipoMessaggio stays as it was on this road.
TEST_F(Momento, UnaFilaAnimaDellaTrave) {
    g.FtRd_EffInf = 280;
    g.RDebole = 400;
    g.Mrd_Giunto_CompletaCalcolo();
    EXPECT_EQ(g.TipoMessaggio, 0);
    EXPECT_NEAR(g.FtRd_EffInf, 263.146, 1e-2);
    EXPECT_EQ(g.ComponenteDebole, " dall'anima della trave a trazione");
    EXPECT_THAT(boxes.testi,
                testing::ElementsAre("La resistenza è governata dall'anima della trave a trazione"));
    EXPECT_EQ(boxes.messaggi[0].bottoni, Bottoni::Ok);
    EXPECT_EQ(boxes.messaggi[0].icona, Icona::Informazione);
}

// 300 + 45 - 5.35 = 339.65 and 238.95.
TEST_F(Momento, DueFileLInternaCedePerPrima) {
    g.nf = 2;
    g.FtRd_EffInf = 150;
    g.FtRd_EffSup = 180;
    g.RDebole = 250;
    g.Mrd_Giunto_CompletaCalcolo();
    EXPECT_EQ(g.TipoMessaggio, 1);
    EXPECT_EQ(g.FtotFile(), 330);
    EXPECT_EQ(g.FtRd_EffInf, 70);
    EXPECT_EQ(g.FtRd_EffSup, 180);
    EXPECT_NEAR(g.zEst(), 339.65, 1e-4);
    EXPECT_NEAR(g.MplRdGIUNTO, (339.65 * 180 + 238.95 * 70) / 1000, 1e-4);
}

// One row of the column web bears 170 11 235 / 1050 = 418.5: more than RDebole.
TEST_F(Momento, DueFileSoloLaEsterna) {
    g.nf = 2;
    g.ComponenteDeboleFilaInf = T2;
    g.FtRd_EffInf = 150;
    g.FtRd_EffSup = 180;
    g.RDebole = 160;
    g.Mrd_Giunto_CompletaCalcolo();
    EXPECT_EQ(g.TipoMessaggio, 1);
    EXPECT_EQ(g.FtRd_EffInf, 0);
    EXPECT_EQ(g.FtRd_EffSup, 160);
    EXPECT_EQ(g.ComponenteDeboleFilaInf, T2);
    EXPECT_NEAR(g.FtRd_Anima_c, 418.524, 1e-3); // of one row now
    EXPECT_TRUE(boxes.testi.empty());
}

TEST_F(Momento, DueFileColonnaTesaRidotta) {
    g.nf = 2;
    g.mc = 10; // 62.83 11 235 / 1050 = 154.68
    g.FtRd_EffInf = 150;
    g.FtRd_EffSup = 180;
    g.RDebole = 160;
    g.Mrd_Giunto_CompletaCalcolo();
    EXPECT_NEAR(g.FtRd_EffSup, 154.69, 1e-1);
    EXPECT_EQ(g.FtRd_EffSup, g.FtRd_Anima_c);
    EXPECT_EQ(g.ComponenteDebole, " dall'anima della colonna a trazione in zona tesa ridotta");
    EXPECT_THAT(boxes.testi, testing::ElementsAre(
                                 "La resistenza è governata dall'anima della colonna a trazione ridotta"));
}

TEST_F(Momento, DueFileIrrigiditeNonSiRiducono) {
    g.nf = 2;
    g.mc = 10;
    g.Irrigidimenti = "Si";
    g.FtRd_Anima_c = 500;
    g.FtRd_EffInf = 150;
    g.FtRd_EffSup = 180;
    g.RDebole = 160;
    g.Mrd_Giunto_CompletaCalcolo();
    EXPECT_EQ(g.FtRd_EffSup, 160);
    EXPECT_EQ(g.FtRd_Anima_c, 500);
}

TEST_F(Momento, DueFileAnimaDellaTrave) {
    g.nf = 2;
    g.FtRd_EffInf = 280;
    g.FtRd_EffSup = 100;
    g.RDebole = 1000;
    g.Mrd_Giunto_CompletaCalcolo();
    EXPECT_EQ(g.TipoMessaggio, 1);
    EXPECT_NEAR(g.FtRd_EffInf, 263.146, 1e-2);
    EXPECT_EQ(g.ComponenteDebole, " dall'anima della trave a trazione");
    EXPECT_EQ(boxes.testi.size(), 1U);
}

TEST_F(Momento, ClassiDiResistenza) {
    trave->McyRd = 100e6;
    g.MplRdGIUNTO = 100;
    g.ClasseResistenza_Calcola();
    EXPECT_EQ(g.ResistenzaGiunto, " Giunto a completo ripristino di\r\n  resistenza (EC3-6.9.6.3)");
    g.MplRdGIUNTO = 99.9;
    g.ClasseResistenza_Calcola();
    EXPECT_EQ(g.ResistenzaGiunto, " Giunto a parziale ripristino di\r\n  resistenza (EC3-6.9.6.3)");
    g.MplRdGIUNTO = 25;
    g.ClasseResistenza_Calcola();
    EXPECT_EQ(g.ResistenzaGiunto, " Giunto a parziale ripristino di\r\n  resistenza (EC3-6.9.6.3)");
    g.MplRdGIUNTO = 24.9;
    g.ClasseResistenza_Calcola();
    EXPECT_EQ(g.ResistenzaGiunto, " Giunto con resistenza   a cerniera (EC3-6.9.6.3)");
}

// The check on a joint whose geometry is set by hand: everything in its order, two thirds, shear.
TEST_F(Momento, VerificaIntera) {
    g.bf = 170;
    g.ef = 40;
    g.Af = 6;
    g.aw = 4;
    g.sTraveColonna_Calcola();
    g.Derivati_Calcola();
    g.mc = 30; // moves the bolts away from the root
    g.Beta = 1;
    g.Mrd_Giunto_Calcola();
    EXPECT_GT(g.MplRdGIUNTO, 0);
    EXPECT_DOUBLE_EQ(g.M_elastico, 2.0 / 3 * g.MplRdGIUNTO);
    EXPECT_NEAR(g.Vrd0, 188.16, 1e-9);
    EXPECT_FALSE(g.ResistenzaGiunto.empty());
    EXPECT_FALSE(g.Traccia.empty());
}

// Rows that together are just as strong as what both pass through keep their forces.
TEST(MomentoAlLimite, FileForteComeIlComponenteDebole) {
    RipristinaGenerale();
    Giunto g;
    g.PuntatoreSezioni(IPE300(), HEB300());
    g.nf = 2;
    g.mf = 50;
    g.ef = 40;
    g.m2 = 40;
    g.mx = 40;
    g.bf = 200;
    g.w = 100;
    g.ex = 40;
    g.LeffFlangia_Calcola();
    for (const auto& [debole, messaggio] : {std::pair{300.0, 0}, {299.5, 1}}) {
        g.FtRd_EffInf = 100;
        g.FtRd_EffSup = 200;
        g.RDebole = debole;
        g.Mrd_Giunto_CompletaCalcolo();
        EXPECT_EQ(g.TipoMessaggio, messaggio) << debole;
        EXPECT_NEAR(g.FtRd_EffInf, debole - 200, 1e-4);
    }
}
