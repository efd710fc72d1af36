// Coefficients, secant stiffness and its classes by hand: IPE 300 on HE 300 B (tw 11, tf 19).
#include "joints/Giunto.h"

#include <gmock/gmock.h>

#include "frame/Errori.h"
#include "frame/GeneraleSagomi.h"
#include "joints/Sezioni.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

constexpr double infinito = 1e9;
constexpr double minimo = 1 / 2.25; ///< (1 / 1.5)^2

class Rigidezza : public testing::Test {
protected:
    Rigidezza() {
        RipristinaGenerale();
        g.PuntatoreSezioni(trave, colonna);
        g.IndiceBullone(7); // Bt 141.12
        g.tf = 20;
        g.ec = 40;
        g.mc = 30;
        g.ef = 30;
        g.mf = 30;
        g.m2 = 36;
        g.mx = 40;
        g.lb = 60;
        g.d2 = g.dX = 45;
        g.BracciLeva_Calcola(); // zInt 238.95
        g.FtRd_EffInf = 200;
        g.MplRdGIUNTO = 47.79;
        g.Ftrd_FilaInf_c = 250;
        g.FtRd_FilaInf_f = 220;
        g.FtRd_Anima_c = 400;
        g.FcRd_Anima_c = 350;
        g.NbRd_Anima_c = 320;
        g.VplRd_Pannello_c = 500;
    }
    ~Rigidezza() override { RipristinaGenerale(); }

    Sezione trave = IPE300();
    Sezione colonna = HEB300();
    Giunto g;
};

} // namespace

// E J / L = 210000 83.56E6 / 6000 / 1E6 = 2924.6 kNm/rad.
TEST_F(Rigidezza, Limiti) {
    g.Limiti();
    EXPECT_NEAR(g.LimiteCerniera, 1462.3, 1e-6 * 1462.3);
    EXPECT_NEAR(g.LimiteRigido2, 23396.8, 1e-6 * 23396.8);
    EXPECT_NEAR(g.LimiteRigido1, 73115, 1e-6 * 73115);
    trave->lunghezza() = 0; // leaves them
    trave->Jy = 1;
    g.Limiti();
    EXPECT_NEAR(g.LimiteCerniera, 1462.3, 1e-2);
}

TEST_F(Rigidezza, CoefficientiSenzaIrrigidimenti) {
    g.CoefficentiRigidezza_Calcola();
    EXPECT_EQ(g.k1, infinito);
    EXPECT_EQ(g.k2, 0.8);
    EXPECT_EQ(g.k3, 0.8);
    EXPECT_NEAR(g.k4, 6859.0 / (4 * 900 * 11), 1e-12);
    EXPECT_NEAR(g.k5, 2 * 245 / (11.0 * 60), 1e-12);
    EXPECT_NEAR(g.k6, 8000.0 / (4 * 900 * 11), 1e-12); // 12 0.6 is more than 4
    EXPECT_EQ(g.k6_Estesa, 0);
    g.Beta = 0.5;
    g.nf = 2;
    g.m2 = 12; // lambda 0.2: 2.4
    g.CoefficentiRigidezza_Calcola();
    EXPECT_EQ(g.k1, 0.38);
    EXPECT_NEAR(g.k6, 8000.0 / (2.4 * 900 * 11), 1e-12);
    EXPECT_NEAR(g.k6_Estesa, 8000.0 / (4 * 1600 * 11), 1e-12);
}

TEST_F(Rigidezza, CoefficientiConIrrigidimenti) {
    g.Irrigidimenti = "Cp";
    g.CoefficentiRigidezza_Calcola();
    EXPECT_EQ(g.k2, 0.8);
    EXPECT_EQ(g.k3, infinito);
    g.Irrigidimenti = "Si";
    g.m2c = 14; // lambda 0.2
    g.CoefficentiRigidezza_Calcola();
    EXPECT_EQ(g.k2, infinito);
    EXPECT_EQ(g.k3, infinito);
    EXPECT_NEAR(g.k4, 6859.0 / (2.4 * 900 * 11), 1e-12);
    g.m2c = 35; // lambda 0.5: the plain flange is stiffer
    g.CoefficentiRigidezza_Calcola();
    EXPECT_NEAR(g.k4, 6859.0 / (4 * 900 * 11), 1e-12);
    g.m2c = 0;
    EXPECT_THROW(g.CoefficentiRigidezza_Calcola(), ErroreAritmetico);
}

TEST_F(Rigidezza, CoefficientiCorrettivi) {
    g.CoefficientiCorrettivi_Calcola();
    EXPECT_EQ(g.mu1, 1);
    EXPECT_EQ(g.mu2, 1);
    EXPECT_EQ(g.mu3, 1);
    EXPECT_NEAR(g.mu4, 1, 1e-6);
    EXPECT_EQ(g.mu5, g.mu4);
    EXPECT_EQ(g.mu6, g.mu4);
    EXPECT_EQ(g.mu4_Estesa, 0);
    g.MplRdGIUNTO = 0;
    EXPECT_THROW(g.CoefficientiCorrettivi_Calcola(), ErroreAritmetico);
}

// F 200: web 0.25, buckling 0.391, flange 0.64, bolts (200 / 282.24)^2 = 0.502, plate 0.826; what is below
// 0.444 is raised to it.
TEST_F(Rigidezza, SecanteAMjRd) {
    g.Sj_Giunto_Calcola();
    const double S = minimo / 0.8 + minimo / 0.8 + 0.64 / g.k4 + 200 * 200 / (282.24 * 282.24) / g.k5 +
                     200 * 200 / (220.0 * 220) / g.k6;
    EXPECT_NEAR(g.Sj_MjRd, 238.95 * 238.95 * 210000 * 11 / S * 1e-6, 1e-5 * g.Sj_MjRd);
    EXPECT_EQ(g.Sj_MjRd_, g.Sj_MjRd);
    EXPECT_EQ(g.Sj_MjRd_Estesa, 0);
    // At the elastic moment all of them are at the floor.
    const double Sel = minimo * (1 / 0.8 + 1 / 0.8 + 1 / g.k4 + 1 / g.k5 + 1 / g.k6);
    EXPECT_NEAR(g.Sj_Mela, 238.95 * 238.95 * 210000 * 11 / Sel * 1e-6, 1e-5 * g.Sj_Mela);
    EXPECT_EQ(g.FtotFile(), 200);
    EXPECT_EQ(g.Sj_MjSd, 0); // no moment acts
}

TEST_F(Rigidezza, PannelloSoloConBeta) {
    g.Sj_Giunto_Calcola();
    const double senza = g.Sj_MjRd;
    g.VplRd_Pannello_c = 0; // does not count
    g.Sj_Giunto_Calcola();
    EXPECT_EQ(g.Sj_MjRd, senza);
    g.Beta = 1;
    EXPECT_THROW(g.Sj_Giunto_Calcola(), ErroreAritmetico);
    g.VplRd_Pannello_c = 250; // eta 0.64
    g.Sj_Giunto_Calcola();
    EXPECT_NEAR(1 / g.Sj_MjRd - 1 / senza, 0.64 / 0.38 / (238.95 * 238.95 * 210000 * 11 * 1e-6), 1e-9);
}

TEST_F(Rigidezza, MomentoAgente) {
    trave->Mysd = 47.79 / 1.5; // as the elastic one
    g.Sj_Giunto_Calcola();
    EXPECT_NEAR(g.Sj_MjSd, g.Sj_Mela, 1e-5 * g.Sj_Mela);
    g.Sj_MjSd_ = g.Sj_MjSd_Estesa = g.Sj_MjSd = 7;
    trave->Mysd = 0;
    g.Sj_Giunto_Calcola();
    EXPECT_EQ(g.Sj_MjSd_, 0);
    EXPECT_EQ(g.Sj_MjSd_Estesa, 0);
    EXPECT_EQ(g.Sj_MjSd, 0);
}

TEST_F(Rigidezza, DueFileIlPercorsoMaggiore) {
    g.nf = 2;
    g.BracciLeva_Calcola(); // zEst 339.65
    g.FtRd_EffSup = 100;
    g.FtRd_FilaSup_f = 150;
    g.Ftrd_FilaSup_c = 150;
    g.MplRdGIUNTO = (339.65 * 100 + 238.95 * 200) / 1000;
    g.Sj_Giunto_Calcola();
    EXPECT_EQ(g.FtotFile(), 300);
    EXPECT_NEAR(g.mu4, 47.79 / 81.755, 1e-5);
    EXPECT_NEAR(g.mu4_Estesa, 33.965 / 81.755, 1e-5);
    EXPECT_GT(g.Sj_MjRd_Estesa, g.Sj_MjRd_);
    EXPECT_EQ(g.Sj_MjRd, g.Sj_MjRd_Estesa);
}

// With stiffeners and Beta 0 a row without force has no component that gives way: no stiffness, not infinite.
TEST_F(Rigidezza, PercorsoSenzaForza) {
    g.nf = 2;
    g.BracciLeva_Calcola();
    g.Irrigidimenti = "Si";
    g.m2c = 20;
    g.FtRd_EffInf = 0;
    g.FtRd_EffSup = 100;
    g.FtRd_FilaSup_f = 150;
    g.MplRdGIUNTO = 33.965;
    g.Sj_Giunto_Calcola();
    EXPECT_EQ(g.Sj_MjRd_, 0);
    EXPECT_GT(g.Sj_MjRd, 0);
}

TEST_F(Rigidezza, Classi) {
    g.LimiteCerniera = 100;
    g.LimiteRigido2 = 1000;
    g.LimiteRigido1 = 3000;
    const auto classe = [&](double S) {
        g.Sj_Mela = S;
        g.ClasseRigidezza_Calcola();
        return g.RigidezzaGiunto1 + "/" + g.RigidezzaGiunto2;
    };
    EXPECT_EQ(classe(99), " Giunto a cerniera (EC3-6.9.6.2)/");
    EXPECT_EQ(classe(100), " Telaio controventato:Giunto semirigido (EC3-6.9.6.2)/"
                           " Telaio non controventato:Giunto semirigido (EC3-6.9.6.2)");
    EXPECT_EQ(classe(1000), " Telaio controventato:Giunto rigido (EC3-6.9.6.2)/"
                            " Telaio non controventato:Giunto semirigido (EC3-6.9.6.2)");
    EXPECT_EQ(classe(3000), " Telaio controventato:Giunto rigido (EC3-6.9.6.2)/"
                            " Telaio non controventato:Giunto rigido (EC3-6.9.6.2)");
}
