#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>

#include "Registratore.h"
#include "frame/GeneraleSagomi.h"
#include "joints/Nodo.h"
#include "joints/Sezioni.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

class Traccia : public testing::Test {
protected:
    Traccia() {
        RipristinaGenerale();
        n.ImpostaNodo();
        n.Tipovie = nodoT;
        n.NumeroGiunti = 1;
        n.CaratterizzaGiunti();
        n.TraveDx = IPE300();
        n.Colonnainf = HEB300();
        g().Criterio1 = false;
        g().IndiceBullone(7);
        g().nf = 2;
        g().tf = 15;
        g().bf = 170;
        g().ef = 40;
        g().d2 = 45;
        g().ex = 40;
        g().L = 85;
        g().u = 10;
        n.TraveDx->Mysd = 40;
    }
    ~Traccia() override { RipristinaGenerale(); }

    Giunto& g() { return *n.ConnessioneCorrente; }
    double Valore(std::string_view componente, std::string_view nome) {
        const PassoGiunto* passo = Passo(g().Traccia, componente, nome);
        EXPECT_NE(passo, nullptr) << componente << ", " << nome;
        return passo != nullptr ? passo->valore : NAN;
    }
    /// The components in the order of their first step.
    std::vector<std::string> Componenti() {
        std::vector<std::string> nomi;
        for (const PassoGiunto& p : g().Traccia)
            if (std::find(nomi.begin(), nomi.end(), p.componente) == nomi.end())
                nomi.emplace_back(p.componente);
        return nomi;
    }

    Nodo n;
    Registratore boxes;
};

} // namespace

// By hand from the entries: mx = dX - 0.8 sqrt2 Af with dX = 85 - 40; w = 170 - 2 x 40. The sum of the rows
// at the flange of the column is the group's.
TEST_F(Traccia, FilaEsternaRidottaERigidezzeDelleFile) {
    ASSERT_TRUE(n.EsegueCalcolo());
    EXPECT_EQ(Valore("Flangia di estremità a flessione", "ex"), 40);
    EXPECT_NEAR(Valore("Flangia di estremità a flessione", "mx"), 45 - 0.8 * std::sqrt(2.0) * g().Af, 1e-9);
    EXPECT_EQ(Valore("Flangia di estremità a flessione", "w"), 90);
    EXPECT_LE(Valore("Ala della colonna a flessione, gruppo", "Ftrd_FilaInfRid_c"),
              Valore("Ala della colonna a flessione, gruppo", "FtRd_Gruppo"));
    EXPECT_EQ(Valore("Ridistribuzione", "TipoMessaggio"), g().TipoMessaggio);
    EXPECT_EQ(Valore("Coefficienti di rigidezza", "k6_Estesa"), g().k6_Estesa);
    for (const char* nome : {"mu4_Estesa", "mu5_Estesa", "mu6_Estesa"})
        EXPECT_GT(Valore("Coefficienti correttivi", nome), 0) << nome;
    for (const auto& [livello, nome] : {std::pair{"Rigidezza per Mj.Rd", "Sj_MjRd"},
                                        {"Rigidezza per Mj.el", "Sj_Mela"},
                                        {"Rigidezza per Mj.Sd", "Sj_MjSd"}}) {
        const std::string s = nome;
        // Of two rows the joint has the larger path.
        EXPECT_EQ(Valore(livello, s), std::max(Valore(livello, s + "_"), Valore(livello, s + "_Estesa")));
    }
}

TEST_F(Traccia, ComponentiNellOrdineDelCalcolo) {
    ASSERT_TRUE(n.EsegueCalcolo());
    EXPECT_THAT(Componenti(),
                testing::ElementsAre(
                    "Saldatura delle ali della trave", "Saldatura dell'anima della trave", "Colonna",
                    "Bulloni a trazione", "Ala della colonna a flessione",
                    "Ala della colonna a flessione, fila singola", "Ala della colonna a flessione, gruppo",
                    "Flangia di estremità a flessione", "Flangia di estremità a flessione, fila interna",
                    "Flangia di estremità a flessione, fila esterna", "Fila interna", "Fila esterna",
                    "Anima della colonna a trazione", "Anima della colonna a compressione (schiacciamento)",
                    "Anima della colonna a compressione (instabilità)",
                    "Pannello d'anima della colonna a taglio", "Componente debole",
                    "Anima della trave a trazione", "Ridistribuzione", "Momento resistente",
                    "Ala e anima della trave", "Bulloni a taglio", "Coefficienti di rigidezza",
                    "Coefficienti correttivi", "Rigidezza per Mj.Rd", "Rigidezza per Mj.el",
                    "Rigidezza per Mj.Sd", "Classe di rigidezza"));
    for (const PassoGiunto& p : g().Traccia)
        EXPECT_FALSE(p.norma.empty()) << p.componente << ", " << p.nome;
}

TEST_F(Traccia, ValoriDelGiunto) {
    n.Colonnainf->Area = 12000; // 1835 mm2 in shear: the panel governs
    ASSERT_TRUE(n.EsegueCalcolo());
    EXPECT_EQ(Valore("Momento resistente", "MplRdGIUNTO"), g().MplRdGIUNTO);
    EXPECT_EQ(Valore("Componente debole", "RDebole"), g().RDebole);
    EXPECT_EQ(Valore("Anima della colonna a trazione", "beff"), g().Beff(2));
    EXPECT_EQ(Valore("Ridistribuzione", "FtRd_EffInf"), g().FtRd_EffInf);
    EXPECT_EQ(Valore("Rigidezza per Mj.el", "Sj_Mela"), g().Sj_Mela);
    EXPECT_EQ(Valore("Rigidezza per Mj.el", "mu"), 1.5);
    EXPECT_EQ(Valore("Coefficienti di rigidezza", "k6_Estesa"), g().k6_Estesa);
    // Before the rows give way.
    EXPECT_GT(Valore("Fila interna", "FtRd_EffInf"), g().FtRd_EffInf);
    EXPECT_EQ(Passo(g().Traccia, "Componente debole", "ComponenteDebole")->testo,
              " dal pannello della colonna a taglio");
}

// The three modes give the resistance.
TEST_F(Traccia, ModiDelTrattoT) {
    ASSERT_TRUE(n.EsegueCalcolo());
    const std::string_view flangia = "Flangia di estremità a flessione, fila esterna";
    const double minimo =
        std::min({Valore(flangia, "Modo 1"), Valore(flangia, "Modo 2"), Valore(flangia, "Modo 3")});
    EXPECT_NEAR(minimo, g().FtRd_FilaSup_f, 1e-4);
    EXPECT_NEAR(4 * Valore(flangia, "Mpl") / Valore(flangia, "m"), Valore(flangia, "Modo 1"), 1e-9);
}

TEST_F(Traccia, LaRigidezzaNonSiRipete) {
    ASSERT_TRUE(n.EsegueCalcolo());
    const std::size_t passi = g().Traccia.size();
    g().Sj_Giunto_Calcola();
    EXPECT_EQ(g().Traccia.size(), passi);
    ASSERT_TRUE(n.EsegueCalcolo());
    EXPECT_EQ(g().Traccia.size(), passi);
}

// Two rows size the weld by the flange alone: 7 mm, where the plate of 15 leaves 5.35 15 / 15.926 = 5.04.
TEST_F(Traccia, NotaSullaGolaMassima) {
    ASSERT_TRUE(n.EsegueCalcolo());
    const PassoGiunto* nota = Passo(g().Traccia, "Saldatura delle ali della trave", "Nota");
    ASSERT_NE(nota, nullptr);
    EXPECT_EQ(nota->testo, "gola massima 5.0 mm");
    g().nf = 1;
    ASSERT_TRUE(n.EsegueCalcolo()); // 5.0 by the rule of one row
    EXPECT_EQ(Passo(g().Traccia, "Saldatura delle ali della trave", "Nota"), nullptr);
}

// 10.7 rounds to 11 mm; 10.4 to 10, thinner than the flange whose resistance counts whole.
TEST_F(Traccia, NotaSullIrrigidimentoSottile) {
    g().Irrigidimenti = "Cp";
    ASSERT_TRUE(n.EsegueCalcolo());
    EXPECT_EQ(Passo(g().Traccia, "Irrigidimenti", "Nota"), nullptr);
    n.TraveDx->tf = 10.4;
    ASSERT_TRUE(n.EsegueCalcolo());
    ASSERT_NE(Passo(g().Traccia, "Irrigidimenti", "Nota"), nullptr);
    EXPECT_EQ(Valore("Irrigidimenti", "Irr_Spessore"), 10);
}

// mc = (300 - 11)/2 - 0.8 27 - (300 - 170)/2 - 40 = 17.9: one row on its circle 2 pi mc, the group on two.
// Two bolts M20 in the row, four in the group.
TEST_F(Traccia, FilaSingolaEGruppo) {
    n.EsegueCalcolo();
    const std::string ala = "Ala della colonna a flessione";
    EXPECT_NEAR(Valore(ala + ", fila singola", "leff"), 2 * 3.14159265 * 17.9, 1e-4);
    EXPECT_NEAR(Valore(ala + ", gruppo", "leff"), 4 * 3.14159265 * 17.9, 1e-4);
    EXPECT_NEAR(Valore(ala + ", fila singola", "Modo 3"), 2 * 141.12, 1e-4);
    EXPECT_NEAR(Valore(ala + ", gruppo", "Modo 3"), 4 * 141.12, 1e-4);
    EXPECT_NEAR(Valore(ala, "Ftrd_FilaSup_c"), g().Ftrd_FilaSup_c, 1e-6);
    g().Irrigidimenti = "Si";
    n.EsegueCalcolo();
    EXPECT_NEAR(Valore(ala + ", fila interna", "Modo 3"), 2 * 141.12, 1e-4);
    EXPECT_NEAR(Valore(ala + ", fila esterna", "Modo 3"), 2 * 141.12, 1e-4);
    EXPECT_EQ(Passo(g().Traccia, ala + ", gruppo", "leff"), nullptr);
    // Both lie on their circles, so both flanges of the T resist as the single row did.
    EXPECT_NEAR(Valore(ala + ", fila interna", "leff"), 2 * 3.14159265 * 17.9, 1e-4);
    EXPECT_NEAR(Valore(ala + ", fila esterna", "leff"), 2 * 3.14159265 * 17.9, 1e-4);
}

// Bolts far from the web: each row by its own distance from the stiffener. A panel in half of the shear.
TEST_F(Traccia, FileDiDistanzaDiversa) {
    g().bf = 300;
    g().ef = 50;
    g().L = 120; // dX = 80
    g().Irrigidimenti = "Si";
    n.EsegueCalcolo();
    const std::string ala = "Ala della colonna a flessione";
    EXPECT_NEAR(Valore(ala + ", fila esterna", "leff"), g().Beff(3), 1e-6);
    EXPECT_NEAR(Valore(ala + ", fila interna", "leff"), g().Beff(4), 1e-6);
    EXPECT_LT(g().Beff(3), g().Beff(4) - 1);
    g().Irrigidimenti = "No";
    g().Beta = 0.5;
    g().Mrd_Giunto_Calcola();
    EXPECT_NEAR(Valore("Pannello d'anima della colonna a taglio", "Avc"),
                Giunto::AreaTaglio_Calcola(*n.Colonnainf), 1e-6);
    g().Beta = 0;
    g().Mrd_Giunto_Calcola();
    EXPECT_EQ(Passo(g().Traccia, "Pannello d'anima della colonna a taglio", "Avc"), nullptr);
}

// The secant at the acting moment: 40 kNm.
TEST_F(Traccia, RapportoDelMomentoCheAgisce) {
    n.EsegueCalcolo();
    EXPECT_NEAR(Valore("Rigidezza per Mj.Sd", "mu"), g().MplRdGIUNTO / 40, 1e-9 * g().MplRdGIUNTO);
    EXPECT_NEAR(Valore("Rigidezza per Mj.Rd", "mu"), 1, 1e-12);
}

// IPE 300 has flanges of 10.7: the stiffener of 11 is not thinner, nor is one of 12 beside 12; of 12.4 it
// is 12.
TEST_F(Traccia, IrrigidimentoPiuSottileDellAla) {
    g().Irrigidimenti = "Cp";
    for (const auto& [tf, spessore, piuSottile] :
         {std::tuple{10.7, 11.0, false}, {12.0, 12.0, false}, {12.4, 12.0, true}}) {
        n.TraveDx->tf = tf;
        ASSERT_TRUE(n.EsegueCalcolo());
        EXPECT_EQ(Valore("Irrigidimenti", "Irr_Spessore"), spessore);
        EXPECT_EQ(Passo(g().Traccia, "Irrigidimenti", "Nota") != nullptr, piuSottile) << tf;
    }
}

// Half a flange of 10 and a plate of 3.75 are the legs of a throat of 5 3.75 / 6.25 = 3: the weld of one row
// has just that. With two rows it lies inside and may be larger.
TEST_F(Traccia, GolaOltreLaMassima) {
    n.TraveDx->tf = 10;
    g().tf = 3.75;
    g().nf = 1;
    ASSERT_TRUE(n.EsegueCalcolo());
    EXPECT_EQ(Valore("Saldatura delle ali della trave", "CordoneAla"), 3);
    EXPECT_EQ(Valore("Saldatura delle ali della trave", "Af"), 3);
    EXPECT_EQ(Passo(g().Traccia, "Saldatura delle ali della trave", "Nota"), nullptr);
    g().nf = 2;
    ASSERT_TRUE(n.EsegueCalcolo());
    EXPECT_GT(Valore("Saldatura delle ali della trave", "Af"), 3);
    const PassoGiunto* nota = Passo(g().Traccia, "Saldatura delle ali della trave", "Nota");
    ASSERT_NE(nota, nullptr);
    EXPECT_EQ(nota->testo, "gola massima 3.0 mm");
}

// Without an acting moment there is no way to its stiffness; with any other there is.
TEST_F(Traccia, RigidezzaDelMomentoAgente) {
    const auto passi = [this](double M) {
        n.TraveDx->Mysd = M;
        EXPECT_TRUE(n.EsegueCalcolo());
        return std::count_if(g().Traccia.begin(), g().Traccia.end(),
                             [](const PassoGiunto& p) { return p.componente == "Rigidezza per Mj.Sd"; });
    };
    const auto senza = passi(0);
    EXPECT_EQ(senza, 3); // inner row, outer row, joint
    for (const double M : {1.0, 0.5, -1.0, 40.0})
        EXPECT_GT(passi(M), senza) << M;
}
