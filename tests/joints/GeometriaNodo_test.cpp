// Where the parts of a joint are drawn, by hand from the fields. Column HE 200 B (h 200, b 200, tf 15), beam
// IPE 270 (h 270, tf 10.2), plate 20 x 160, bolts at 35 mm from the flange.

#include "joints/GeometriaNodo.h"

#include <cmath>

#include <gmock/gmock.h>

#include "NodoDisegnato.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

constexpr double vicino = 1e-4; // sections are kept in 32 bits

double Altezza(const std::array<PuntoNodo, 3>& t) { // of a right triangle over its longest side
    const double a = std::hypot(t[1].x - t[0].x, t[1].y - t[0].y);
    const double b = std::hypot(t[2].x - t[0].x, t[2].y - t[0].y);
    return a * b / std::hypot(a, b);
}

TEST(GeometriaNodo, PlateAndRowsOfTwoRowsInTension) {
    const Nodo n = NodoDisegnato(nodoT, 2);
    const GeometriaNodo g(n, nullptr, false);
    EXPECT_TRUE(g.destro);
    EXPECT_TRUE(g.sopra);
    EXPECT_NEAR(g.lato.xColonna, 100, vicino);
    EXPECT_NEAR(g.lato.xTrave(), 120, vicino);
    EXPECT_NEAR(g.lato.alto, 65, vicino);    // ex + d2 of the screen
    EXPECT_NEAR(g.lato.basso, -285, vicino); // h + u
    EXPECT_NEAR(g.lato.alto - g.lato.basso, n.ConnessioneCorrente->hf, vicino);
    ASSERT_EQ(g.lato.file.size(), 3U);
    EXPECT_NEAR(g.lato.file[0].y, 35, vicino);
    EXPECT_NEAR(g.lato.file[1].y, -45.2, vicino);
    EXPECT_NEAR(g.lato.file[2].y, -224.8, vicino);
    EXPECT_NEAR(g.lato.file[0].y - g.lato.file[1].y, n.ConnessioneCorrente->p, vicino);
    EXPECT_NEAR(g.lato.file[1].y - g.lato.file[2].y, n.ConnessioneCorrente->pint, vicino);
    EXPECT_NEAR(2 * g.lato.xFori, n.ConnessioneCorrente->w, vicino);
}

TEST(GeometriaNodo, PlateOfOneRowEndsInTheFlanges) {
    const Nodo n = NodoDisegnato(nodoL, 1);
    const GeometriaNodo g(n, nullptr, false);
    EXPECT_FALSE(g.sopra);
    EXPECT_NEAR(g.lato.alto, -5, vicino); // 270 - 10.2 rounded upward is 260, in the middle of 270
    EXPECT_NEAR(g.lato.basso, -265, vicino);
    ASSERT_EQ(g.lato.file.size(), 2U);
    EXPECT_EQ(g.Laterale().y2, 0); // the column ends with the beam
}

TEST(GeometriaNodo, FilletsHaveTheirThroat) {
    for (const int nf : {1, 2}) {
        const Nodo n = NodoDisegnato(nodoT, nf);
        const auto cordoni = GeometriaNodo(n, nullptr, false).lato.Cordoni();
        ASSERT_EQ(cordoni.size(), 4U);
        for (const auto& c : cordoni)
            EXPECT_NEAR(Altezza(c), n.ConnessioneCorrente->Af, vicino) << nf;
    }
}

TEST(GeometriaNodo, ThereIsNoFilletBeyondThePlate) {
    Nodo n = NodoDisegnato(nodoT, 1);
    n.ConnessioneCorrente->Af = 20; // half a flange has no room for it
    for (const auto& c : GeometriaNodo(n, nullptr, false).lato.Cordoni())
        for (const PuntoNodo& p : c)
            EXPECT_GE(p.x, 100 - vicino);
}

// 270.25 - 8.25 = 262, so 4.125 stand over the plate: hardly more than a throat of 4.0144, whose other leg
// is 4.0144 4.125 / root of 0.9002 = 17.453; over 4.0 it would have no end, and the plate of 20 ends it.
TEST(GeometriaNodo, FilletBesideAPlateAsHighAsItsThroat) {
    for (const auto& [h, lungo] : {std::pair{270.25, 17.453}, {270.0, 20.0}}) {
        Nodo n = NodoDisegnato(nodoT, 1);
        n.TraveDx->h = h;
        n.TraveDx->tf = 8.25;
        n.ConnessioneCorrente->Af = 4.0144;
        const auto cordoni = GeometriaNodo(n, nullptr, false).lato.Cordoni();
        ASSERT_EQ(cordoni.size(), 4U);
        EXPECT_NEAR(cordoni[0][0].x - cordoni[0][1].x, lungo, 1e-3) << h;
    }
}

// 10.2 of the flange and 35 to the inner row.
TEST(GeometriaNodo, ARowThatIsNotThereIsTheInnerOne) {
    const Nodo n = NodoDisegnato(nodoT, 2);
    EXPECT_NEAR(GeometriaNodo(n, nullptr, false).lato.Fila(FilaGiunto::Esterna), 35, vicino);
    n.ConnessioneCorrente->dX = 0;
    n.ConnessioneCorrente->L = n.ConnessioneCorrente->ex;
    const GeometriaNodo g(n, nullptr, false);
    EXPECT_NEAR(g.lato.Fila(FilaGiunto::Esterna), -45.2, vicino);
    EXPECT_NEAR(g.lato.Fila(FilaGiunto::Interna), -45.2, vicino);
    EXPECT_NEAR(g.lato.Fila(FilaGiunto::Nessuna), -270 + 45.2, vicino);
}

TEST(GeometriaNodo, SideAndColumnFollowTheKind) {
    struct Caso {
        std::int16_t tipo;
        bool sinistro, destro, sopra;
    };
    for (const Caso& c :
         {Caso{nodoCroce, false, true, true}, Caso{nodoCroce, true, false, true},
          Caso{nodoCroceSenzaColonna, false, true, false}, Caso{nodoCroceSenzaColonna, true, false, false},
          Caso{nodoT, false, true, true}, Caso{nodoL, false, true, false}}) {
        const Nodo n = NodoDisegnato(c.tipo, 2, "No", c.sinistro);
        const GeometriaNodo g(n, nullptr, c.tipo <= nodoCroceSenzaColonna);
        EXPECT_EQ(g.destro, c.destro) << n.ConnessioneCorrente->TipiGiunto;
        EXPECT_EQ(g.sopra, c.sopra) << n.ConnessioneCorrente->TipiGiunto;
        EXPECT_EQ(g.altro.trave.Presente(), c.tipo <= nodoCroceSenzaColonna);
        EXPECT_NEAR(g.lato.trave.h, c.sinistro ? 330 : 270, vicino);
    }
}

TEST(GeometriaNodo, StiffenersLieAtTheFlanges) {
    const Nodo n = NodoDisegnato(nodoT, 2, "Si");
    const GeometriaNodo g(n, nullptr, false);
    ASSERT_EQ(g.irrigidimenti.size(), 2U);
    EXPECT_NEAR(g.lunghezzaSup, 162, vicino); // 200 - 2 15 - 8
    for (const PuntoNodo& p : g.irrigidimenti[1]) {
        EXPECT_NEAR(std::abs(p.x), 81, vicino);
        EXPECT_NEAR(std::abs(p.y + 5.1), 5, vicino); // 10 mm thick, in the middle of the flange
    }
    for (const PuntoNodo& p : g.irrigidimenti[0])
        EXPECT_NEAR(std::abs(p.y + 264.9), 5, vicino);
    EXPECT_EQ(GeometriaNodo(NodoDisegnato(nodoT, 2, "Cp"), nullptr, false).irrigidimenti.size(), 1U);
    EXPECT_TRUE(GeometriaNodo(NodoDisegnato(nodoT, 2, "No"), nullptr, false).irrigidimenti.empty());
}

// 60 mm of 170: the axis is 180.3 long, the stiffener 180 - 8, seen from either side.
TEST(GeometriaNodo, BeamsOfDifferentHeightPutTheLowerStiffenerOnASlope) {
    for (const bool sinistro : {false, true}) {
        const Nodo n = NodoDisegnato(nodoCroce, 2, "Si", sinistro);
        const GeometriaNodo g(n, nullptr, true);
        EXPECT_NEAR(g.lunghezzaIrr, 172, vicino);
        const ContornoNodo& c = g.irrigidimenti[0];
        EXPECT_NEAR(std::hypot(c[1].x - c[0].x, c[1].y - c[0].y), 172, vicino);
        EXPECT_NEAR(std::abs((c[1].y - c[0].y) / (c[1].x - c[0].x)), 60.0 / 170, vicino);
        // towards the other beam it falls where that is the deeper one
        EXPECT_EQ(c[1].x < c[0].x, true);
        EXPECT_EQ(c[1].y < c[0].y, !sinistro);
        for (const PuntoNodo& p : g.irrigidimenti[1]) // the upper one is level
            EXPECT_NEAR(std::abs(p.y + g.lato.trave.tf / 2), 6, vicino);
    }
}

TEST(GeometriaNodo, SaysWhatIsMissing) {
    using testing::ElementsAre;
    Nodo n;
    n.ImpostaNodo();
    n.CaratterizzaGiunti();
    EXPECT_TRUE(GeometriaNodo(n, nullptr, true).Vuota());
    EXPECT_THAT(GeometriaNodo(n, nullptr, true).Mancanze(),
                ElementsAre("colonna", "trave destra", "trave sinistra"));
    n.PuntatoreColonna(HEB200());
    n.PuntatoreTraveDestra(IPE270());
    EXPECT_THAT(GeometriaNodo(n, nullptr, true).Mancanze(), ElementsAre("trave sinistra"));
    EXPECT_THAT(GeometriaNodo(n, nullptr, false).Mancanze(), ElementsAre("tf", "bf", "ef", "d1"));
    n.ConnessioneCorrente->nf = 2;
    n.ConnessioneCorrente->tf = 20;
    EXPECT_THAT(GeometriaNodo(n, nullptr, false).Mancanze(), ElementsAre("bf", "ef", "d1", "ex", "d2"));
    EXPECT_FALSE(GeometriaNodo(n, nullptr, false).lato.Bulloni());
}

TEST(GeometriaNodo, ComponentsLieWhereTheyWork) {
    const Nodo n = NodoDisegnato(nodoT, 2, "Cp");
    const GeometriaNodo g(n, nullptr, false);
    using enum ComponenteGiunto;
    const auto zona = [&g](ComponenteGiunto c, FilaGiunto f) { return g.ZoneLaterali({c, f}); };
    EXPECT_EQ(zona(Bulloni, FilaGiunto::Nessuna).size(), 3U);
    ASSERT_EQ(zona(AlaColonna, FilaGiunto::Esterna).size(), 1U);
    const ContornoNodo ala = zona(AlaColonna, FilaGiunto::Esterna)[0];
    EXPECT_NEAR(ala[0].x, 85, vicino); // the flange of the column, at the outer row
    EXPECT_NEAR(ala[2].x, 100, vicino);
    EXPECT_NEAR((ala[0].y + ala[2].y) / 2, 35, vicino);
    const ContornoNodo pannello = zona(Pannello, FilaGiunto::Nessuna)[0];
    EXPECT_NEAR(pannello[0].y, -270, vicino);
    EXPECT_NEAR(pannello[2].x, 85, vicino);
    EXPECT_EQ(zona(Irrigidimenti, FilaGiunto::Nessuna).size(), 1U);
    EXPECT_EQ(zona(Saldature, FilaGiunto::Nessuna).size(), 4U);
    EXPECT_EQ(g.ZoneFrontali({Bulloni, FilaGiunto::Interna}).size(), 2U);
    EXPECT_TRUE(zona(Nessuno, FilaGiunto::Nessuna).empty());
}

// The stiffeners that were computed are drawn, however small; those of a joint that has none yet are
// estimated.
TEST(GeometriaNodo, StiffenersAsTheyWereComputed) {
    const Nodo n = NodoDisegnato(nodoT, 2, "Si");
    Giunto& g = *n.ConnessioneCorrente;
    g.Irr_Spessore = g.Irr_B = g.Irr_L1 = g.Irr_L2 = g.Irr_a = 1;
    const GeometriaNodo minima(n, nullptr, false);
    EXPECT_EQ(minima.spessoreIrr, 1);
    EXPECT_EQ(minima.larghezzaIrr, 1);
    EXPECT_EQ(minima.lunghezzaIrr, 1);
    EXPECT_EQ(minima.lunghezzaSup, 1);
    EXPECT_EQ(minima.golaIrr, 1);
    for (std::int16_t Giunto::*manca : {&Giunto::Irr_Spessore, &Giunto::Irr_L1}) {
        Giunto& senza = *n.ConnessioneCorrente;
        senza.*manca = 0;
        const GeometriaNodo stimata(n, nullptr, false);
        EXPECT_EQ(stimata.spessoreIrr, 10);   // the flange of 10.2
        EXPECT_EQ(stimata.larghezzaIrr, 91);  // (200 - 9) / 2 - 5 rounded
        EXPECT_EQ(stimata.lunghezzaIrr, 162); // 200 - 30 - 8
        EXPECT_EQ(stimata.golaIrr, 0);
        senza.*manca = 1;
    }
}

// A node whose joints are not there yet: which columns go on above the beams.
TEST(GeometriaNodo, KindsWithoutAJoint) {
    for (const auto& [tipo, sopra] :
         {std::pair{nodoCroce, true}, {nodoCroceSenzaColonna, false}, {nodoT, true}, {nodoL, false}}) {
        Nodo n;
        n.ImpostaNodo();
        n.Tipovie = tipo;
        n.ConnessioneCorrente.reset();
        n.PuntatoreColonna(HEB200());
        EXPECT_EQ(GeometriaNodo(n, nullptr, false).sopra, sopra) << tipo;
        EXPECT_EQ(GeometriaNodo(NodoDisegnato(tipo, 1), nullptr, false).sopra, sopra) << tipo;
    }
}

// A beam alone begins at the axis of the column that is not there.
TEST(GeometriaNodo, ABeamWithoutAColumn) {
    Nodo n = NodoDisegnato(nodoT, 1);
    n.Colonnainf.reset();
    n.ConnessioneCorrente->PuntatoreSezioni(n.TraveDx.Riferimento(), nullptr);
    const GeometriaNodo g(n, nullptr, false);
    EXPECT_EQ(g.Laterale().x1, 0);
    EXPECT_NEAR(g.Laterale().x2, 20 + 0.9 * 270, vicino); // the plate and what is seen of the beam
}

// What is thinner than a millimetre is there all the same, and what is 0 is not.
TEST(GeometriaNodo, MisurePiccoleCiSono) {
    Nodo n = NodoDisegnato(nodoT, 2);
    Giunto& g = *n.ConnessioneCorrente;
    g.tf = g.bf = g.ef = g.d2 = g.ex = g.dX = g.u = 0.5;
    const GeometriaNodo minima(n, nullptr, false);
    EXPECT_THAT(minima.Mancanze(), testing::IsEmpty());
    ASSERT_EQ(minima.lato.file.size(), 3U);
    EXPECT_NEAR(minima.lato.file[0].y, 0.5, vicino);
    g.tf = g.bf = g.ef = g.d2 = g.ex = g.dX = g.L = 0;
    EXPECT_THAT(GeometriaNodo(n, nullptr, false).Mancanze(),
                testing::ElementsAre("tf", "bf", "ef", "d1", "ex", "d2"));
    g.L = 65; // d2 follows from it
    g.ex = 30;
    EXPECT_NEAR(GeometriaNodo(n, nullptr, false).lato.dX, 35, vicino);
}

// (200 - 9)/2 less 5 mm to the edge of the flange.
TEST(GeometriaNodo, LarghezzaDegliIrrigidimentiSenzaDati) {
    Nodo n = NodoDisegnato(nodoT, 2, "Si");
    n.ConnessioneCorrente->Irr_Spessore = 0;
    EXPECT_NEAR(GeometriaNodo(n, nullptr, false).larghezzaIrr, 90.5, 0.51);
    EXPECT_EQ(GeometriaNodo(n, nullptr, false).spessoreIrr, 10); // of a flange of 10.2
}

// The upper stiffener lies between the flanges of the column, 200 - 2 15 with 8 mm of play, where its length
// is not given.
TEST(GeometriaNodo, LunghezzaDellIrrigidimentoSuperiore) {
    Nodo n = NodoDisegnato(nodoT, 2, "Si");
    n.ConnessioneCorrente->Irr_L2 = 1;
    EXPECT_EQ(GeometriaNodo(n, nullptr, false).lunghezzaSup, 1);
    n.ConnessioneCorrente->Irr_L2 = 0;
    EXPECT_NEAR(GeometriaNodo(n, nullptr, false).lunghezzaSup, 162, vicino);
}

} // namespace
