// Fields set by hand, texts written by hand: four figures, a blank in front, whole numbers never cut.
#include "joints/TestiGiunto.h"

#include <gmock/gmock.h>

#include "frame/GeneraleSagomi.h"
#include "joints/Nodo.h"
#include "joints/Sezioni.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

class TestiGiuntoTest : public testing::Test {
protected:
    TestiGiuntoTest() {
        RipristinaGenerale();
        nodo.ImpostaNodo();
        nodo.CaratterizzaGiunti();
        nodo.PuntatoreTraveDestra(IPE300());
        nodo.PuntatoreTraveSinistra(IPE300());
        nodo.PuntatoreColonna(HEB300());
        g().IndiceBullone(8); // d 20
        g().Acquisito = true;
    }
    ~TestiGiuntoTest() override { RipristinaGenerale(); }

    Giunto& g() { return *nodo.Giunti[1]; }
    std::string Testo(std::string_view controllo) const { return TestiGiunto(nodo, 1)[controllo]; }

    Nodo nodo;
};

TEST_F(TestiGiuntoTest, QuattroCifreESpazioDavanti) {
    g().Beta = 1;
    g().VplRd_Pannello_c = 1234.56F;
    g().FtRd_Anima_c = 412.367F;
    g().mc = 22.55;
    g().Sj_MjRd = 10186.2638943415;
    g().Kwc = 0.87654;
    EXPECT_EQ(Testo("txtF1"), " 1,235");
    EXPECT_EQ(Testo("txtF5"), " 412.4");
    EXPECT_EQ(Testo("Textmc"), " 22.55");
    EXPECT_EQ(Testo("TxtSj_0"), " 10,186");
    EXPECT_EQ(Testo("TxtCoef_1"), " 0.8765");
    EXPECT_EQ(TestiGiunto(nodo, 1).Valore("TxtCoef_1"), "0.8765");
}

TEST_F(TestiGiuntoTest, DueBulloniPerFila) {
    // 2 x 0.9 x 800 x 245 / 1250 = 282.24
    g().Areares = 245;
    EXPECT_EQ(Testo("txtF4"), " 282.2");
}

TEST_F(TestiGiuntoTest, NomiDelloSchermo) {
    g().nf = 2;
    g().m2 = 31;
    g().mx = 47;
    g().d2 = 38;
    g().dX = 54;
    g().pint = 160;
    g().rond_d2 = 37;
    EXPECT_EQ(Testo("Textm1"), " 31");
    EXPECT_EQ(Testo("Textm2"), " 47");
    EXPECT_EQ(Testo("Textd2"), "38");
    EXPECT_EQ(Testo("Textdx"), "54");
    EXPECT_EQ(Testo("Textp"), " 160");
    EXPECT_EQ(Testo("Textdw"), " 37");
}

TEST_F(TestiGiuntoTest, SenzaCalcoloSoloDatiEBullone) {
    g().Acquisito = false;
    g().FtRd_Anima_c = 412;
    g().ec = 61;
    for (const char* vuoto : {"txtF5", "Textec", "TxtMjRd", "ResistenzaGiunto", "RigidezzaGiunto1", "txtK_0"})
        EXPECT_EQ(Testo(vuoto), "") << vuoto;
    EXPECT_EQ(Testo("Textd"), " " + std::to_string(int(g().Diam)));
    EXPECT_EQ(Testo("TxtL_Dx"), "6");
    EXPECT_EQ(TestoGovernante(g()), "");
    EXPECT_TRUE(ComponentiGovernanti(g()).empty());
    EXPECT_FALSE(Giudica(g()).presente);
}

TEST_F(TestiGiuntoTest, SecondoGiuntoAssenteVuoto) {
    nodo.NumeroGiunti = 1;
    EXPECT_TRUE(TestiGiunto(nodo, 2).Tutti().empty());
    EXPECT_TRUE(TestiGiunto(nodo, 3).Tutti().empty());
}

TEST_F(TestiGiuntoTest, BetaZeroEKRigidiSonoInfinito) {
    g().Beta = 0;
    g().VplRd_Pannello_c = 700; // of another calculation
    g().k1 = g().k2 = 1e9;
    g().k3 = 0.8;
    EXPECT_EQ(Testo("txtF1"), "Infinito");
    EXPECT_EQ(Testo("txtK_0"), "Infinito");
    EXPECT_EQ(Testo("txtK_1"), "Infinito");
    EXPECT_EQ(Testo("txtK_6"), " 0.8");
}

TEST_F(TestiGiuntoTest, UnaFilaSenzaVociDellaFilaEsterna) {
    g().Ftrd_FilaInf_c = 200;
    g().FtRd_FilaInf_f = 150;
    EXPECT_EQ(Testo("txtF6"), " 200");
    EXPECT_EQ(Testo("txtF7"), " 150");
    for (const char* vuoto : {"txtF6_0", "txtF6_1", "txtF7_0", "txtF7_1", "txtF6_0Ridistr", "txtF6_1Ridistr",
                              "txtFmin1", "txtK_5", "txtmu_5", "Textm2", "Textex"})
        EXPECT_EQ(Testo(vuoto), "") << vuoto;
}

TEST_F(TestiGiuntoTest, DueFileInterneEdEsterne) {
    g().nf = 2;
    g().Ftrd_FilaInf_c = 201;
    g().Ftrd_FilaSup_c = 202;
    g().Ftrd_FilaInfRid_c = 203;
    g().Ftrd_FilaSupRid_c = 204;
    g().FtRd_FilaInf_f = 205;
    g().FtRd_FilaSup_f = 206;
    g().FtRd_EffInf = 207;
    g().FtRd_EffSup = 208;
    const TestiGiunto t(nodo, 1);
    EXPECT_EQ(t["txtF6"], "");
    EXPECT_EQ(t["txtF6_0"], " 201");
    EXPECT_EQ(t["txtF6_1"], " 202");
    EXPECT_EQ(t["txtF6_0Ridistr"], " 203");
    EXPECT_EQ(t["txtF6_1Ridistr"], " 204");
    EXPECT_EQ(t["txtF7_0"], " 205");
    EXPECT_EQ(t["txtF7_1"], " 206");
    EXPECT_EQ(t["txtFmin0"], " 207");
    EXPECT_EQ(t["txtFmin1"], " 208");
    g().Irrigidimenti = "Si";
    EXPECT_EQ(Testo("txtF6_0Ridistr"), "");
    EXPECT_EQ(Testo("txtF6_1Ridistr"), "");
}

TEST_F(TestiGiuntoTest, IrrigidimentiTolgonoInstabilita) {
    g().FcRd_Anima_c = 500;
    g().FcRd_AnimaIrrigidita_c = 900;
    g().NbRd_Anima_c = 450;
    g().Irr_L1 = 254;
    g().Irr_L2 = 255;
    EXPECT_EQ(Testo("txtF2"), " 500");
    EXPECT_EQ(Testo("txtF3"), " 450");
    EXPECT_EQ(Testo("Txt_L_Irr_0"), "");
    g().Irrigidimenti = "Cp";
    EXPECT_EQ(Testo("txtF2"), " 900");
    EXPECT_EQ(Testo("txtF3"), "");
    EXPECT_EQ(Testo("Txt_L_Irr_0"), " 254");
    EXPECT_EQ(Testo("Txt_L_Irr_1"), "");
    g().Irrigidimenti = "Si";
    EXPECT_EQ(Testo("Txt_L_Irr_1"), " 255");
}

TEST_F(TestiGiuntoTest, OrdineDiRigidezzeELimiti) {
    g().nf = 2;
    g().k1 = 1, g().k2 = 2, g().k4 = 4, g().k5 = 5, g().k6 = 6, g().k6_Estesa = 7, g().k3 = 3;
    g().mu1 = 11, g().mu2 = 12, g().mu4 = 14, g().mu5 = 15, g().mu6 = 16, g().mu6_Estesa = 17, g().mu3 = 13;
    g().LimiteRigido2 = 80, g().LimiteRigido1 = 250, g().LimiteCerniera = 5;
    const TestiGiunto t(nodo, 1);
    const char* k[] = {" 1", " 2", " 4", " 5", " 6", " 7", " 3"};
    const char* mu[] = {" 11", " 12", " 14", " 15", " 16", " 17", " 13"};
    for (int i = 0; i < 7; ++i) {
        EXPECT_EQ(t["txtK_" + std::to_string(i)], k[i]);
        EXPECT_EQ(t["txtmu_" + std::to_string(i)], mu[i]);
    }
    EXPECT_EQ(t["txtLimite_0"], " 80");
    EXPECT_EQ(t["txtLimite_1"], " 250");
    EXPECT_EQ(t["txtLimite_2"], " 5");
}

TEST_F(TestiGiuntoTest, SenzaLuceNessunaClasse) {
    g().RigidezzaGiunto1 = " Telaio controventato:Giunto rigido (EC3-6.9.6.2)";
    g().RigidezzaGiunto2 = " Telaio non controventato:Giunto semirigido (EC3-6.9.6.2)";
    g().LimiteRigido2 = 80;
    EXPECT_EQ(Testo("RigidezzaGiunto1"), g().RigidezzaGiunto1);
    g().Trave->lunghezza() = 0;
    EXPECT_EQ(Testo("RigidezzaGiunto1"), " luce non data");
    EXPECT_EQ(Testo("RigidezzaGiunto2"), "");
    EXPECT_EQ(Testo("txtLimite_0"), "");
}

TEST_F(TestiGiuntoTest, MomentoSollecitanteNulloDaRigidezzaZero) { EXPECT_EQ(Testo("TxtSj_2"), " 0"); }

TEST_F(TestiGiuntoTest, MomentiETagli) {
    g().MplRdGIUNTO = 71.1350362;
    g().M_elastico = 47.4233575;
    g().Vrd0 = 271.104;
    g().Vrd1 = 348.562;
    g().Trave->McyRd = 67402500;
    EXPECT_EQ(Testo("TxtMjRd"), " 71.14");
    EXPECT_EQ(Testo("TxtMel"), " 47.42");
    EXPECT_EQ(Testo("TxtVrd0"), " 271.1");
    EXPECT_EQ(Testo("TxtVrd1"), " 348.6");
    EXPECT_EQ(Testo("txtMrdTrave"), " 67.40");
}

TEST_F(TestiGiuntoTest, Governa) {
    g().ComponenteDebole = " dall'anima della colonna a trazione";
    EXPECT_EQ(TestoGovernante(g()), " Il momento resistente del giunto è governato ");
    g().TipoMessaggio = 1;
    EXPECT_EQ(TestoGovernante(g()),
              " Il momento resistente del giunto è governato da :  dall'anima della colonna a trazione");
    g().TipoMessaggio = 0;
    g().ComponenteDebole = " dall'anima della trave a trazione";
    EXPECT_EQ(TestoGovernante(g()),
              " Il momento resistente del giunto è governato da :  dall'anima della trave a trazione");
}

TEST_F(TestiGiuntoTest, VerdettoDelMomento) {
    g().MplRdGIUNTO = 50;
    g().Vrd0 = g().Vrd1 = 1000;
    g().Trave->Mysd = -50;
    EXPECT_TRUE(Giudica(g()).resiste);
    EXPECT_EQ(Giudica(g()).notaMomento, "");
    EXPECT_EQ(Giudica(g()).notaRigidezza, "");
    g().Trave->Mysd = -50.5;
    g().nf = 2;
    EXPECT_FALSE(Giudica(g()).resiste);
    EXPECT_EQ(Giudica(g()).notaMomento, "M negativo: la fila esterna non conta");
    EXPECT_EQ(Giudica(g()).notaRigidezza, "Mj,Sd > Mj,Rd");
    for (const double positivo : {0.0, 0.5}) {
        g().Trave->Mysd = positivo;
        EXPECT_EQ(Giudica(g()).notaMomento, "");
    }
}

TEST_F(TestiGiuntoTest, VerdettoDelTaglio) {
    g().MplRdGIUNTO = 50;
    g().Vrd0 = 100;
    g().Vrd1 = 130;
    g().Trave->Vsd() = -100;
    EXPECT_EQ(Giudica(g()).taglio + Giudica(g()).notaTaglio, "");
    g().Trave->Vsd() = -110;
    EXPECT_EQ(Giudica(g()).taglio, "");
    EXPECT_EQ(Giudica(g()).notaTaglio, "V > Vj,Rd della sola fila in zona compressa");
    EXPECT_EQ(Giudica(g()).forma, "");
    g().Trave->Vsd() = 131;
    EXPECT_EQ(Giudica(g()).taglio, "V > Vj,Rd");
    EXPECT_EQ(Giudica(g()).forma, "solo M");
    g().Trave->Mysd = 51;
    EXPECT_EQ(Giudica(g()).forma, ""); // red says it all
}

std::string Governanti(const Giunto& g) {
    std::string r;
    for (const auto& [componente, risultato] : ComponentiGovernanti(g))
        r += std::string(componente) + ">" + std::string(risultato) + " ";
    return r;
}

TEST_F(TestiGiuntoTest, ComponentiDiOgniFila) {
    g().ComponenteDeboleFilaInf = " Fila int. dall'ala della colonna a flessione";
    EXPECT_EQ(Governanti(g()), "txtF6>txtFmin0 ");
    g().ComponenteDeboleFilaInf = " Fila int. dalla flangia di estremità a flessione";
    EXPECT_EQ(Governanti(g()), "txtF7>txtFmin0 ");
    g().nf = 2;
    g().ComponenteDeboleFilaSup = " Fila est. dall'ala della colonna a flessione";
    EXPECT_EQ(Governanti(g()), "txtF7_0>txtFmin0 txtF6_1>txtFmin1 ");
    g().ComponenteDeboleFilaInf = " Fila int. dall'ala della colonna a flessione ";
    g().ComponenteDeboleFilaSup = " Fila est. dalla flangia di estremità a flessione";
    EXPECT_EQ(Governanti(g()), "txtF6_0Ridistr>txtFmin0 txtF7_1>txtFmin1 ");
    g().Irrigidimenti = "Si";
    g().ComponenteDeboleFilaSup = " Fila est. ala della colonna a flessione";
    EXPECT_EQ(Governanti(g()), "txtF6_0>txtFmin0 txtF6_1>txtFmin1 ");
}

TEST_F(TestiGiuntoTest, ComponenteComuneAlleFile) {
    const std::pair<const char*, const char*> casi[] = {
        {" dall'anima della colonna a trazione", "txtF5"},
        {" dall'anima della colonna a trazione in zona tesa ridotta", "txtF5"},
        {" dall'anima della colonna a compressione", "txtF2"},
        {" dall'anima della colonna a instabilità", "txtF3"},
        {" dal pannello della colonna a taglio", "txtF1"},
        {" dall'anima della trave a trazione", "txtF8"}};
    g().TipoMessaggio = 1;
    for (const auto& [testo, componente] : casi) {
        g().ComponenteDebole = testo;
        EXPECT_EQ(Governanti(g()), std::string("txtF6>txtFmin0 ") + componente + ">TxtMjRd ");
    }
    g().TipoMessaggio = 0;
    g().ComponenteDebole = " dall'anima della colonna a trazione";
    EXPECT_EQ(Governanti(g()), "txtF6>txtFmin0 ");
}

} // namespace
