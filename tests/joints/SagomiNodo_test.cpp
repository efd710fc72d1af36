// Which sections a node takes, and what it forgets with them.
#include "joints/SagomiNodo.h"

#include <gmock/gmock.h>

#include "NodoDisegnato.h"
#include "Registratore.h"
#include "frame/GeneraleSagomi.h"

using namespace sagomi;
using namespace sagomi::prove;
using testing::HasSubstr;

namespace {

class SagomiDelNodo : public testing::Test {
protected:
    SagomiDelNodo() { RipristinaGenerale(); }
    ~SagomiDelNodo() override { RipristinaGenerale(); }
    static Nodo Croce() {
        Nodo n = NodoDisegnato(nodoCroce, 2);
        for (int i = 1; i <= 2; ++i) {
            n.Giunti[i]->Acquisito = true;
            n.Giunti[i]->Criterio1 = true;
        }
        return n;
    }
    Registratore scatole;
};

TEST_F(SagomiDelNodo, UnaNuovaNonHaAzioni) {
    Nodo n;
    n.ImpostaNodo();
    n.CaratterizzaGiunti();
    SezioneDoppioT scelta = *IPE270();
    scelta.NSd = 5000;
    scelta.Mysd = 6e6;
    scelta.Vsd() = 7000;
    scelta.lunghezza() = 8;
    scelta.Designation = "IPE \"270\"";
    for (const RuoloSagomo ruolo : {RuoloSagomo::TraveDx, RuoloSagomo::TraveSx, RuoloSagomo::Colonna})
        ASSERT_TRUE(AssegnaSagomo(n, ruolo, scelta));
    for (const auto& s : {n.TraveDx.Riferimento(), n.TraveSx.Riferimento(), n.Colonnainf}) {
        EXPECT_EQ(s->NSd, 0);
        EXPECT_EQ(s->Mysd, 0);
        EXPECT_EQ(s->Vsd(), 0);
        EXPECT_EQ(s->lunghezza(), 0);
        EXPECT_EQ(s->Designation, "IPE ''270''");
    }
    EXPECT_FALSE(AssegnaSagomo(n, RuoloSagomo::Nessuno, scelta));
    EXPECT_TRUE(SagomiAssegnati(n));
    EXPECT_TRUE(scatole.testi.empty());
}

TEST_F(SagomiDelNodo, UnAltraTieneLeAzioniDelRuolo) {
    Nodo n = Croce();
    n.TraveDx->NSd = 1;
    n.TraveDx->Mysd = 2;
    n.TraveDx->Vsd() = 3;
    n.TraveDx->lunghezza() = 4;
    ASSERT_TRUE(AssegnaSagomo(n, RuoloSagomo::TraveDx, *IPE330()));
    EXPECT_EQ(n.TraveDx->h, 330);
    EXPECT_EQ(n.TraveDx->NSd, 1);
    EXPECT_EQ(n.TraveDx->Mysd, 2);
    EXPECT_EQ(n.TraveDx->Vsd(), 3);
    EXPECT_EQ(n.TraveDx->lunghezza(), 4);
}

TEST_F(SagomiDelNodo, SoloIlGiuntoDellaTravePerdeIParametri) {
    for (const auto& [ruolo, perso, tenuto] :
         {std::tuple{RuoloSagomo::TraveDx, 1, 2}, {RuoloSagomo::TraveSx, 2, 1}}) {
        Nodo n = Croce();
        ASSERT_TRUE(AssegnaSagomo(n, ruolo, *IPE330()));
        EXPECT_EQ(n.Giunti[perso]->tf, 0);
        EXPECT_EQ(n.Giunti[tenuto]->tf, 20);
        EXPECT_FALSE(n.Giunti[1]->Acquisito); // Beta hangs on both
        EXPECT_FALSE(n.Giunti[2]->Acquisito);
    }
    Nodo n = Croce();
    n.Giunti[2]->Criterio1 = false; // a check keeps what was typed
    ASSERT_TRUE(AssegnaSagomo(n, RuoloSagomo::Colonna, *HEB300()));
    EXPECT_EQ(n.Giunti[1]->tf, 0);
    EXPECT_EQ(n.Giunti[2]->tf, 20);
}

// Column 200 wide and 170 clear: 200 and 170 are still taken.
TEST_F(SagomiDelNodo, LarghezzeEAltezze) {
    Nodo n = Croce();
    SezioneDoppioT trave = *IPE330();
    trave.b = 200;
    trave.h = 330 + 170;
    EXPECT_TRUE(AssegnaSagomo(n, RuoloSagomo::TraveDx, trave));
    trave.h += 1;
    EXPECT_FALSE(AssegnaSagomo(n, RuoloSagomo::TraveDx, trave));
    EXPECT_EQ(n.TraveDx->h, 500);
    trave.h = 400;
    trave.b = 200.5;
    EXPECT_FALSE(AssegnaSagomo(n, RuoloSagomo::TraveDx, trave));
    EXPECT_FALSE(AssegnaSagomo(n, RuoloSagomo::TraveSx, trave));
    ASSERT_EQ(scatole.testi.size(), 3U);
    EXPECT_THAT(scatole.testi[0], HasSubstr("differenza di altezze"));
    EXPECT_THAT(scatole.testi[1], HasSubstr("La trave destra"));
    EXPECT_THAT(scatole.testi[2], HasSubstr("La trave sinistra"));
    SezioneDoppioT snella = *HEB300();
    snella.ClasseCompressione = 4;
    EXPECT_FALSE(AssegnaSagomo(n, RuoloSagomo::Colonna, snella));
    snella.ClasseCompressione = 3;
    snella.ClasseFlessioneY = 4; // of a beam alone
    EXPECT_TRUE(AssegnaSagomo(n, RuoloSagomo::Colonna, snella));
    SezioneDoppioT traveSnella = *IPE330();
    traveSnella.ClasseFlessioneY = 4;
    EXPECT_FALSE(AssegnaSagomo(n, RuoloSagomo::TraveDx, traveSnella)); // asked, no
    traveSnella.ClasseFlessioneY = 3;
    EXPECT_TRUE(AssegnaSagomo(n, RuoloSagomo::TraveDx, traveSnella));
}

// Nothing to compare a beam with: 400 over a column of 170 clear.
TEST_F(SagomiDelNodo, UnaTraveSola) {
    SezioneDoppioT trave = *IPE330();
    trave.h = 400;
    Nodo croce;
    croce.ImpostaNodo();
    croce.Tipovie = nodoCroce;
    croce.NumeroGiunti = 2;
    croce.CaratterizzaGiunti();
    EXPECT_TRUE(AssegnaSagomo(croce, RuoloSagomo::Colonna, *HEB200()));
    EXPECT_TRUE(AssegnaSagomo(croce, RuoloSagomo::TraveSx, trave));
    Nodo T = NodoDisegnato(nodoT, 2);
    EXPECT_TRUE(AssegnaSagomo(T, RuoloSagomo::TraveDx, trave));
    EXPECT_TRUE(scatole.testi.empty());
}

// IPE 270 of S235 with GammaM0 1: 484 cm3 and 45.95 cm2 by its table.
TEST_F(SagomiDelNodo, ResistenzeRinnovate) {
    Normativa = normativaEC3;
    ImpostaGamma();
    Nodo n = NodoDisegnato(nodoT, 2);
    n.TraveDx->TipoAcciaio = "S235 (Fe360)";
    n.TraveDx->Wply = 484e3;
    n.TraveDx->NSd = n.TraveDx->Mysd = 70; // kN and kNm: nothing to the classes
    n.TraveDx->McyRd = n.TraveDx->NplRd = 1;
    RinnovaNplRd(n);
    EXPECT_NEAR(n.TraveDx->NplRd, 4595 * 235, 1);
    EXPECT_EQ(n.TraveDx->McyRd, 1);
    RinnovaResistenze(n);
    EXPECT_NEAR(n.TraveDx->McyRd, 484e3 * 235, 1e3);
    EXPECT_EQ(n.TraveDx->NSd, 70);
    const std::string firma = FirmaSagomi(n);
    n.TraveDx->fy = 275;
    EXPECT_NE(FirmaSagomi(n), firma);
    EXPECT_TRUE(scatole.testi.empty());
}

TEST_F(SagomiDelNodo, Assegnato) {
    EXPECT_FALSE(Assegnato(nullptr));
    auto s = std::make_shared<SezioneDoppioT>();
    EXPECT_FALSE(Assegnato(s));
    s->h = 0.5;
    EXPECT_TRUE(Assegnato(s));
    Nodo n = NodoDisegnato(nodoT, 1);
    EXPECT_TRUE(SagomiAssegnati(n)); // there is no left beam
    n.NumeroGiunti = 2;
    EXPECT_FALSE(SagomiAssegnati(n));
}

} // namespace
