// Plate, bolts and beam web by hand: IPE 300 of S235, M20 8.8, partial factors 1.05 and 1.25.
#include "joints/Giunto.h"

#include <gmock/gmock.h>

#include "frame/Errori.h"
#include "frame/GeneraleSagomi.h"
#include "joints/Sezioni.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

class Flangia : public testing::Test {
protected:
    Flangia() {
        RipristinaGenerale();
        g.PuntatoreSezioni(IPE300(), HEB300());
        g.IndiceBullone(7);
        g.tf = 15;
        g.mf = 30;
        g.ef = 30;
        g.m2 = 36;
    }
    ~Flangia() override { RipristinaGenerale(); }

    Giunto g;
};

} // namespace

// lambda1 0.5, lambda2 0.6: 5.52 30 = 165.6 is below 2 pi 30.
TEST_F(Flangia, LunghezzaInterna) {
    g.LeffFlangia_Calcola();
    EXPECT_NEAR(g.leffInterna(), 165.6, 1e-4);
    EXPECT_EQ(g.leffEsterna(), 0);
}

TEST_F(Flangia, LunghezzaEsternaLaMinoreDiQuattro) {
    g.nf = 2;
    g.bf = 170;
    g.w = 90;
    g.mx = 40;
    g.ex = 35;
    g.LeffFlangia_Calcola();
    EXPECT_EQ(g.leffEsterna(), 85); // half of the plate
    g.mx = 10;
    g.LeffFlangia_Calcola(); // 86.875, 83.75, 62.83
    EXPECT_NEAR(g.leffEsterna(), 62.831853, 1e-5);
    g.ex = 16;
    g.LeffFlangia_Calcola(); // 75, 60, 62.83
    EXPECT_EQ(g.leffEsterna(), 60);
    g.w = 30;
    g.LeffFlangia_Calcola(); // 45
    EXPECT_EQ(g.leffEsterna(), 45);
}

// Mpl = 0.25 165.6 225 235 / 1050 = 2084.8 kNmm; modes 277.97, n 30: 210.62, 282.24.
TEST_F(Flangia, TreModi) {
    g.Kfc = 0.5; // is the column's alone
    g.RottureFlangia_Calcola();
    const double Mpl = 0.25 * 165.6 * 225 * 235 / (1000 * double(GammaM0));
    EXPECT_NEAR(g.FtRd_FilaInf_f, (2 * Mpl + 30 * 2 * 141.12) / 60, 1e-3);
    g.tf = 5;
    g.RottureFlangia_Calcola();
    EXPECT_NEAR(g.FtRd_FilaInf_f, 4 * Mpl / 9 / 30, 1e-3);
    g.tf = 40;
    g.RottureFlangia_Calcola();
    EXPECT_NEAR(g.FtRd_FilaInf_f, 282.24, 1e-3);
    EXPECT_EQ(g.FtRd_FilaSup_f, 0);
}

TEST_F(Flangia, DistanzaN) {
    EXPECT_EQ(Giunto::nFlangia_Calcola(30, 30), 30);
    EXPECT_EQ(Giunto::nFlangia_Calcola(50, 30), 37.5);
}

TEST_F(Flangia, DistanzeNulle) {
    g.mf = g.ef = 0;
    EXPECT_THROW(g.LeffFlangia_Calcola(), ErroreAritmetico);
    g.ef = 30;
    EXPECT_THROW(g.RottureFlangia_Calcola(), ErroreAritmetico); // m = 0
    g.mf = 30;
    g.m2 = -1;
    EXPECT_THROW(g.LeffFlangia_Calcola(), std::out_of_range);
}

// Told by the distance that leaves the diagram; a row at the web itself does not.
TEST_F(Flangia, LaDistanzaFuoriDalDiagrammaSiDice) {
    const auto detta = [this](double mf, double m2) {
        g.mf = mf;
        g.m2 = m2;
        try {
            g.LeffFlangia_Calcola();
        } catch (const std::out_of_range& e) {
            return std::string(e.what());
        }
        return std::string();
    };
    EXPECT_EQ(detta(-5, 36), "mf = -5 mm: fuori dal diagramma di alfa");
    EXPECT_EQ(detta(-5, -3), "mf = -5 mm: fuori dal diagramma di alfa");
    EXPECT_EQ(detta(0, -3), "m2 = -3 mm: fuori dal diagramma di alfa");
    EXPECT_EQ(detta(30, -3), "m2 = -3 mm: fuori dal diagramma di alfa");
    EXPECT_EQ(detta(0, 0), "");
}

// 7.1 235 165.6 / 1050.
TEST_F(Flangia, AnimaTrave) {
    g.LeffFlangia_Calcola();
    g.FtRdAnimaTrave_Calcola();
    EXPECT_NEAR(g.FtRd_Anima_t, 263.146, 1e-2);
}

// 0.6 800 245 / 1.25 = 94080 N a bolt; class 10.9 0.5 1000 245 / 1.25 = 98000.
TEST_F(Flangia, Taglio) {
    g.Vrd_Calcola();
    EXPECT_NEAR(g.Vrd0, 188.16, 1e-9);
    EXPECT_NEAR(g.Vrd1, 188.16 * 1.8 / 1.4, 1e-9);
    g.Classe = "10.9";
    g.fubl = 1000;
    g.Vrd_Calcola();
    EXPECT_NEAR(g.Vrd0, 196, 1e-9);
}
