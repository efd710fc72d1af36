#include "joints/Nodo.h"

#include <gmock/gmock.h>

#include <cmath>

#include "Registratore.h"
#include "frame/Errori.h"
#include "frame/GeneraleSagomi.h"
#include "frame/Numeri.h"
#include "joints/SagomiNodo.h"
#include "joints/Sezioni.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

class NodoProva : public testing::Test {
protected:
    NodoProva() {
        RipristinaGenerale();
        n.ImpostaNodo();
        n.CaratterizzaGiunti();
        n.TraveDx = IPE300();
        n.TraveSx = IPE300();
        n.Colonnainf = HEB300();
    }
    ~NodoProva() override { RipristinaGenerale(); }

    void UnaTrave(std::int16_t tipo) {
        n.Tipovie = tipo;
        n.NumeroGiunti = 1;
        n.ConnessioneCorrente = n.Giunti[1].Usa();
    }

    double Beta(double M1, double M2) {
        n.TraveDx->Mysd = M1;
        n.TraveSx->Mysd = M2;
        n.Beta_Calcola();
        return n.ConnessioneCorrente->Beta;
    }

    /// What a check needs.
    void Verifica(Giunto& g) const {
        g.Criterio1 = false;
        g.Criterio2 = true;
        g.IndiceBullone(7);
        g.tf = 15;
        g.bf = 200;
        g.ef = 40;
        g.d2 = 45;
    }

    Nodo n;
    Registratore boxes;
};

/// Its effective area is known only after a first run.
TEST_F(NodoProva, RenewedSectionOfClass4RestsOnItsEffectiveArea) {
    const auto beam = Laminato("IPE 500", 500, 200, 10.2, 16, 21, 11550, 482000000);
    beam->fy = 355;
    beam->fu = 510;
    beam->d = 426;
    beam->bAlaInf = beam->b;
    beam->tAlaInf = beam->tf;
    n.TraveDx = beam;
    RinnovaNplRd(n);
    EXPECT_NEAR(n.TraveDx->NplRd * GammaM1, 3853e3, 2e3);
}

} // namespace

TEST(Nodo, Predefiniti) {
    const Nodo n;
    EXPECT_EQ(n.Tipovie, 0);
    EXPECT_EQ(n.NumeroGiunti, 2);
    EXPECT_EQ(n.nGiunto, 1);
    EXPECT_FALSE(n.TraveSx);
    EXPECT_FALSE(n.TraveDx);
    EXPECT_EQ(n.Colonnainf, nullptr);
    EXPECT_FALSE(n.Giunti[1]);
    EXPECT_FALSE(n.Giunti[2]);
}

TEST(Nodo, OggettiAlPrimoUso) {
    Nodo n;
    n.TraveDx->h = 300;
    EXPECT_TRUE(n.TraveDx);
    EXPECT_EQ(n.TraveDx->h, 300);
    EXPECT_FALSE(n.TraveSx);
    n.Giunti[1]->tf = 12;
    EXPECT_EQ(n.Giunti[1]->tf, 12);
    EXPECT_FALSE(n.Giunti[2]);
}

TEST(Nodo, ImpostaNodo) {
    Nodo n;
    n.Tipovie = 3;
    n.NumeroGiunti = 1;
    n.Giunti[1]->nf = 2;
    n.Giunti[1]->Irrigidimenti = "Si";
    n.Giunti[1]->Classe = "10.9";
    n.Giunti[1]->fubl = 1000;
    n.Giunti[1]->Criterio1 = false;
    n.Giunti[1]->Criterio2 = true;
    n.Giunti[1]->Beta_Cautel = false;
    n.Giunti[1]->TipoProgetto = 1;
    n.Giunti[1]->TipoUscitaProgetto = 2;
    n.Giunti[1]->Acquisito = true;
    n.Giunti[1]->Kwc = n.Giunti[1]->Kfc = 0.75;
    n.ImpostaNodo();
    EXPECT_FALSE(n.Giunti[1]->Acquisito);
    EXPECT_EQ(n.Giunti[1]->Kwc, 1);
    EXPECT_EQ(n.Giunti[1]->Kfc, 1);
    EXPECT_EQ(n.Tipovie, 0);
    EXPECT_EQ(n.NumeroGiunti, 2);
    EXPECT_EQ(n.nGiunto, 1);
    for (int i = 1; i <= 2; ++i) {
        const Giunto& g = *n.Giunti[i];
        EXPECT_EQ(g.nf, 1);
        EXPECT_EQ(g.Irrigidimenti, "No");
        EXPECT_EQ(g.IndiceBullone(), 1);
        EXPECT_EQ(g.Diam, 8);
        EXPECT_EQ(g.fubl, 800);
        EXPECT_EQ(g.Classe, "8.8");
        EXPECT_TRUE(g.Criterio1);
        EXPECT_TRUE(g.Beta_Cautel);
        EXPECT_EQ(g.TipoProgetto, 0);
        EXPECT_EQ(g.TipoUscitaProgetto, 0);
    }
    EXPECT_EQ(n.Giunti[1]->TipiGiunto, "CroceDx");
    EXPECT_EQ(n.Giunti[2]->TipiGiunto, "CroceSx");
    n.CaratterizzaGiunti();
    EXPECT_EQ(n.Giunti[2]->TipiGiunto, "CroceSn");
}

TEST(Nodo, CaratterizzaGiunti) {
    const auto lato = [](std::int16_t tipo, int i) {
        Nodo n;
        n.Tipovie = tipo;
        n.CaratterizzaGiunti();
        return n.Giunti[i] ? n.Giunti[i]->TipiGiunto : "manca";
    };
    EXPECT_EQ(lato(0, 1), "CroceDx");
    EXPECT_EQ(lato(0, 2), "CroceSn");
    EXPECT_EQ(lato(1, 1), "Croce_Dx");
    EXPECT_EQ(lato(1, 2), "Croce_Sn");
    EXPECT_EQ(lato(2, 1), "TDx");
    EXPECT_EQ(lato(2, 2), "manca");
    EXPECT_EQ(lato(3, 1), "LDx");
    EXPECT_EQ(lato(3, 2), "manca");
}

TEST_F(NodoProva, AzzeraParametriConnessioni) {
    for (int i = 1; i <= 2; ++i) {
        Giunto& g = *n.Giunti[i];
        g.IndiceBullone(5);
        g.tf = g.bf = g.ef = g.d2 = g.hf = g.dX = g.ex = g.u = g.L = 7;
        g.tf_max = 30;
    }
    n.NumeroGiunti = 1; // the loop stops there
    n.AzzeraParametriConnessioni();
    const Giunto& g = *n.Giunti[1];
    EXPECT_EQ(g.IndiceBullone(), 1);
    for (const double v : {g.tf, g.bf, g.ef, g.d2, g.hf, g.dX, g.ex, g.u, g.L})
        EXPECT_EQ(v, 0);
    EXPECT_EQ(g.tf_max, 30);
    EXPECT_EQ(n.Giunti[2]->IndiceBullone(), 5);
}

TEST_F(NodoProva, Acquisizione) {
    bool tutti = true;
    n.AcquisizioneGiunti(tutti);
    EXPECT_FALSE(tutti);
    n.Giunti[1]->Acquisito = n.Giunti[2]->Acquisito = true;
    n.AcquisizioneGiunti(tutti);
    EXPECT_TRUE(tutti);
    n.NOT_Acquisito(2);
    EXPECT_FALSE(n.Giunti[2]->Acquisito);
    EXPECT_TRUE(n.Giunti[1]->Acquisito);
    n.NumeroGiunti = 1;
    n.AcquisizioneGiunti(tutti);
    EXPECT_TRUE(tutti);
    n.NumeroGiunti = 2;
    n.No_Acquisito();
    EXPECT_FALSE(n.Giunti[1]->Acquisito);
}

TEST_F(NodoProva, Cambia) {
    n.nGiunto = 2;
    n.Cambia();
    EXPECT_EQ(n.ConnessioneCorrente, n.Giunti[2].Riferimento());
    n.NumeroGiunti = 1;
    n.nGiunto = 1;
    n.Cambia(); // one beam: as it is
    EXPECT_EQ(n.ConnessioneCorrente, n.Giunti[2].Riferimento());
    n.Tipovie = 2;
    n.PreparaSalvataggio();
    EXPECT_EQ(n.ConnessioneCorrente, n.Giunti[1].Riferimento());
}

// A tenth of 5381 235 / 1.05 = 1204.3 kN.
TEST_F(NodoProva, ControllaNTravi) {
    bool eccessivo = true;
    n.TraveDx->Nsd() = 120.4;
    n.ControllaNTravi(eccessivo);
    EXPECT_FALSE(eccessivo);
    n.TraveDx->Nsd() = -120.5;
    n.ControllaNTravi(eccessivo);
    EXPECT_TRUE(eccessivo);
    n.TraveDx->Nsd() = 0;
    n.TraveSx->Nsd() = 200;
    n.ControllaNTravi(eccessivo);
    EXPECT_TRUE(eccessivo);
    n.NumeroGiunti = 1;
    n.ControllaNTravi(eccessivo);
    EXPECT_FALSE(eccessivo);
}

TEST_F(NodoProva, SezioniInComuneSenzaCopie) {
    n.PuntatoreTraveDestra();
    n.PuntatoreTraveSinistra();
    EXPECT_EQ(n.Giunti[1]->Trave, n.TraveDx.Riferimento());
    EXPECT_EQ(n.Giunti[2]->Trave, n.TraveSx.Riferimento());
    EXPECT_EQ(n.Giunti[1]->Colonna, n.Colonnainf);
    EXPECT_EQ(n.Giunti[2]->Colonna, n.Colonnainf);
    n.Colonnainf = HEB400();
    n.PuntatoreColonna();
    EXPECT_EQ(n.Giunti[2]->Colonna->h, 400);
    Sezione trave;
    Sezione colonna;
    n.PuntatoreSezioneCorrente(trave, colonna);
    EXPECT_EQ(trave, n.TraveDx.Riferimento());
    EXPECT_EQ(colonna, n.Colonnainf);
    n.LiberaOggetti();
    EXPECT_EQ(n.Giunti[1]->Trave, nullptr);
    EXPECT_EQ(n.ConnessioneCorrente, nullptr);
    n.CancellaMemoria();
    EXPECT_FALSE(n.Giunti[1]);
    EXPECT_FALSE(n.TraveDx);
    EXPECT_EQ(n.Colonnainf, nullptr);
}

TEST_F(NodoProva, UnOggettoPerRuolo) {
    const Sezione stessa = IPE300();
    n.PuntatoreTraveDestra(stessa);
    n.PuntatoreTraveSinistra(stessa);
    EXPECT_EQ(n.TraveDx.Riferimento(), stessa);
    EXPECT_NE(n.TraveSx.Riferimento(), stessa);
    EXPECT_EQ(n.TraveSx->h, 300);
    EXPECT_EQ(n.Giunti[2]->Trave, n.TraveSx.Riferimento());
}

TEST_F(NodoProva, AzioniDiUnCaso) {
    n.Scrivi_Some_Load({80, 60, 5, -40, 30, 2, 12, 8, 600, 20});
    EXPECT_EQ(n.TraveDx->Mysd, 80);
    EXPECT_EQ(n.TraveDx->Vsd(), 60);
    EXPECT_EQ(n.TraveSx->Mysd, -40);
    EXPECT_EQ(n.TraveSx->Nsd(), 2);
    EXPECT_EQ(n.Colonnainf->Nsd(), 600);
    EXPECT_EQ(n.Colonnainf->Riservato2, 8);
    EXPECT_EQ(n.VColSup, 20);
    EXPECT_EQ(n.Giunti[1]->MbSd, 80);
    EXPECT_EQ(n.Giunti[1]->VbSd, 60);
    EXPECT_EQ(n.Giunti[2]->NbSd, 2);
}

TEST_F(NodoProva, TestoCheNonENumeroTornaIlNumero) {
    double valore = 12.5;
    std::string testo = "abc";
    EXPECT_FALSE(Nodo::Controll_Dati(testo, valore));
    EXPECT_EQ(testo, TestoPiano(12.5));
    testo = "12x";
    EXPECT_FALSE(Nodo::Controll_Dati(testo, valore));
    EXPECT_EQ(valore, 12.5);
    testo = "7";
    EXPECT_TRUE(Nodo::Controll_Dati(testo, valore));
    EXPECT_EQ(valore, 7);
    EXPECT_FALSE(Nodo::Controll_Dati(testo, valore)) << "the same number again";
    testo = "";
    EXPECT_TRUE(Nodo::Controll_Dati(testo, valore));
    EXPECT_EQ(valore, 0);
}

TEST_F(NodoProva, LuceNegativaSiRifiuta) {
    double luce = 6;
    std::string testo = "-1";
    EXPECT_FALSE(Nodo::ControllaLunghezza(testo, luce));
    EXPECT_EQ(luce, 6);
    EXPECT_EQ(testo, "6");
    for (const double valore : {0.5, 0.0}) { // short, or not given
        testo = TestoPiano(valore);
        EXPECT_TRUE(Nodo::ControllaLunghezza(testo, luce));
        EXPECT_EQ(luce, valore);
    }
    testo = "0";
    EXPECT_FALSE(Nodo::ControllaLunghezza(testo, luce)) << "the same again";
}

TEST_F(NodoProva, BetaCautelativo) {
    EXPECT_EQ(Beta(50, -20), 2);
    EXPECT_EQ(Beta(-50, 20), 2);
    EXPECT_EQ(Beta(50, 0), 1);
    EXPECT_EQ(Beta(0, -20), 1);
    EXPECT_EQ(Beta(0, 0), 0);
    EXPECT_EQ(Beta(50, 50), 0);
    EXPECT_EQ(Beta(-50, -20), 1);
    EXPECT_EQ(Beta(50, 0.5), 1); // of one sign, however small
    EXPECT_EQ(Beta(0.5, 50), 1);
    EXPECT_EQ(Beta(-50, 0.5), 2);
    EXPECT_EQ(Beta(0.5, -50), 2);
    UnaTrave(nodoT);
    EXPECT_EQ(Beta(0, 0), 1);
}

// Vm = (20 - 50) / 2 = -15 kN, z 0.2893 m: |-15 0.2893 / 40 + 1|.
TEST_F(NodoProva, BetaAnaliticoUnaTrave) {
    UnaTrave(nodoT);
    Giunto& g = *n.ConnessioneCorrente;
    g.Beta_Cautel = false;
    g.z = 0.2893;
    n.VColSup = 20;
    n.Colonnainf->Vsd() = 50;
    EXPECT_NEAR(Beta(40, 0), 1 - 15 * 0.2893 / 40, 1e-9);
    EXPECT_EQ(Beta(0, 0), 0);
    n.VColSup = 1000; // no more than 2
    EXPECT_EQ(Beta(40, 0), 2);
}

// M1 = 50, M2 = -20: right |1 - z1/M1 (M2/z2 - Vm)|, left |(M1/z1 + Vm) z2/M2 - 1|.
TEST_F(NodoProva, BetaAnaliticoDueTravi) {
    n.Giunti[1]->Beta_Cautel = n.Giunti[2]->Beta_Cautel = false;
    n.VColSup = 20;
    n.Colonnainf->Vsd() = 50;
    const double z = 289.3;
    EXPECT_NEAR(Beta(50, 20), std::abs(1 - z / 50000 * (20000 / z + 15)), 1e-6);
    EXPECT_NEAR(Beta(50, 0), std::abs(-15 * z / 50000 + 1), 1e-6);
    EXPECT_EQ(Beta(0, 20), 1);
    EXPECT_EQ(Beta(0, 0), 0);
    n.nGiunto = 2;
    n.Cambia();
    EXPECT_NEAR(Beta(50, 40), std::abs((50000 / z - 15) * z / 40000 - 1), 1e-6);
    EXPECT_NEAR(Beta(0, 20), std::abs(-15 * z / 20000 - 1), 1e-6);
    EXPECT_EQ(Beta(50, 0), 1);
    EXPECT_EQ(Beta(0, 0), 0);
}

// HE 300 B: (300 - 11)/2 - 5 = 139.5 to even 140; 300 - 38 - 8 = 254. IPE 300: 10.7 to 11, throats 6 and 7.
TEST_F(NodoProva, Irrigidimenti) {
    Giunto& g = *n.ConnessioneCorrente;
    n.CollegaSezioni();
    n.CalcolaIrrigidimenti();
    EXPECT_EQ(g.Irr_Spessore, 0); // "No"
    g.Irrigidimenti = "Cp";
    g.Irr_L2 = 99;
    n.CalcolaIrrigidimenti();
    EXPECT_EQ(g.Irr_Spessore, 11);
    EXPECT_EQ(g.Irr_B, 140);
    EXPECT_EQ(g.Irr_L1, 254);
    EXPECT_EQ(g.Irr_L2, 99); // as it was
    EXPECT_EQ(g.Irr_a, 7);
    g.Irrigidimenti = "Si";
    n.TraveSx->tf = 12.5; // the thicker, to even
    n.CalcolaIrrigidimenti();
    EXPECT_EQ(g.Irr_Spessore, 12);
    EXPECT_EQ(g.Irr_L2, 254);
}

TEST_F(NodoProva, IrrigidimentiMetaAlPari) {
    n.CollegaSezioni();
    n.ConnessioneCorrente->Irrigidimenti = "Cp";
    n.TraveDx->tf = n.TraveSx->tf = 8.5;
    n.CalcolaIrrigidimenti();
    EXPECT_EQ(n.ConnessioneCorrente->Irr_Spessore, 8);
    n.TraveDx->tf = 5;
    n.TraveDx->fu = 490; // 3 and 0
    UnaTrave(nodoL);
    n.CalcolaIrrigidimenti();
    EXPECT_EQ(n.ConnessioneCorrente->Irr_Spessore, 5);
    EXPECT_EQ(n.ConnessioneCorrente->Irr_a, 3);
}

// Heights 300 and 400 over a clear 262: root of 262^2 + 100^2 = 280.43, so 280 - 8.
TEST_F(NodoProva, IrrigidimentoInPendenza) {
    n.CollegaSezioni();
    n.ConnessioneCorrente->Irrigidimenti = "Cp";
    n.TraveSx->h = 400;
    n.CalcolaIrrigidimenti();
    EXPECT_EQ(n.ConnessioneCorrente->Irr_L1, 272);
    UnaTrave(nodoT);
    n.CalcolaIrrigidimenti();
    EXPECT_EQ(n.ConnessioneCorrente->Irr_L1, 254);
}

TEST_F(NodoProva, VerificaInUnOrdineSolo) {
    Giunto& g = *n.ConnessioneCorrente;
    Verifica(g);
    n.TraveDx->Mysd = 30;
    EXPECT_TRUE(n.EsegueCalcolo());
    EXPECT_TRUE(g.Acquisito);
    EXPECT_EQ(g.Beta, 1); // the other beam has no moment
    EXPECT_GT(g.MplRdGIUNTO, 0);
    EXPECT_GT(g.Sj_MjSd, 0);
    EXPECT_NEAR(g.z, 0.2893, 1e-6);
    EXPECT_EQ(g.Trave, n.TraveDx.Riferimento());
    EXPECT_EQ(g.Colonna, n.Colonnainf);
    GammaM2 = 2.5; // the joint is bound to no copy of the factors
    EXPECT_NEAR(g.Bt_Rd(), 70.56, 1e-6);
}

TEST_F(NodoProva, DaDueFileAUna) {
    Giunto& g = *n.ConnessioneCorrente;
    Verifica(g);
    g.nf = 2;
    g.ex = 40;
    g.L = 85;
    g.u = 10;
    ASSERT_TRUE(n.EsegueCalcolo());
    EXPECT_GT(g.FtRd_EffSup, 0);
    EXPECT_GT(g.Sj_Mela_Estesa, 0);
    g.nf = 1;
    ASSERT_TRUE(n.EsegueCalcolo());
    for (const double v : {double(g.Ftrd_FilaSup_c),
                           double(g.Ftrd_FilaSupRid_c),
                           double(g.leffEsterna()),
                           double(g.FtRd_FilaSup_f),
                           double(g.FtRd_EffSup),
                           g.k6_Estesa,
                           g.mu4_Estesa,
                           g.mu5_Estesa,
                           g.mu6_Estesa,
                           g.Sj_MjRd_Estesa,
                           g.Sj_Mela_Estesa,
                           g.Sj_MjSd_Estesa,
                           g.ex,
                           g.mx,
                           g.dX,
                           g.mxc,
                           g.p,
                           g.L,
                           g.u,
                           double(g.zEst())})
        EXPECT_EQ(v, 0);
    EXPECT_EQ(g.ComponenteDeboleFilaSup, "");
}

TEST_F(NodoProva, ErroreDellaVerificaLasciaIlGiunto) {
    Giunto& g = *n.ConnessioneCorrente;
    Verifica(g);
    ASSERT_TRUE(n.EsegueCalcolo());
    const double M = g.MplRdGIUNTO;
    n.Colonnainf->Area = 0;
    EXPECT_THROW((void)n.EsegueCalcolo(), ErroreAritmetico);
    EXPECT_EQ(g.MplRdGIUNTO, M);
    EXPECT_FALSE(g.Acquisito);
    n.Colonnainf = nullptr;
    EXPECT_THROW((void)n.EsegueCalcolo(), ErroreNumerato);
}

// Up to a tenth of the axial resistance, either way: 1,000 kN.
TEST(NodoLimiti, AssialeDellaTrave) {
    Nodo n;
    n.ImpostaNodo();
    n.Tipovie = nodoT;
    n.NumeroGiunti = 1;
    n.CaratterizzaGiunti();
    n.TraveDx = IPE300();
    n.TraveDx->NplRd = 1e6;
    bool troppo = true;
    for (const auto& [N, atteso] :
         {std::pair{100.0, false}, {-100.0, false}, {100.5, true}, {-100.5, true}}) {
        n.TraveDx->NSd = N;
        n.ControllaNTravi(troppo);
        EXPECT_EQ(troppo, atteso) << N;
    }
}

TEST(NodoLimiti, LiberaEntrambiIGiunti) {
    Nodo n;
    n.ImpostaNodo();
    for (int i = 1; i <= 2; ++i)
        n.Giunti[i].Usa()->PuntatoreSezioni(IPE300(), HEB300());
    const auto destro = n.Giunti[1].Riferimento(), sinistro = n.Giunti[2].Riferimento();
    n.LiberaOggetti();
    EXPECT_EQ(destro->Trave, nullptr);
    EXPECT_EQ(sinistro->Trave, nullptr);
}
