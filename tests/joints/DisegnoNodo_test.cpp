// What the drawing of a joint shows of it: what a check has left, or what follows from the entries.
#include "joints/DisegnoNodo.h"

#include <gmock/gmock.h>

#include "NodoDisegnato.h"
#include "Registratore.h"
#include "drawing/SuperficieFinta.h"
#include "frame/Numeri.h"

using namespace sagomi;
using namespace sagomi::prove;
using testing::Contains;

namespace {

class DisegnoNodoTest : public testing::Test {
protected:
    static std::vector<std::string> Testi(const Disegno& d) {
        SuperficieFinta s(900, 650);
        const SuUscita uscita(&s);
        d.PlottaInOggetto(&s, "frmGiunti");
        return s.Testi();
    }

private:
    StatoUscita prima_;
};

const std::string altezza = "Altezza della flangia: hf = ";

// One row: 270 - 10.2 upwards. The check of a file may have left another height.
TEST_F(DisegnoNodoTest, WhatACheckHasLeftIsShownAsItIs) {
    const Nodo n = NodoDisegnato(nodoT, 1);
    Giunto& g = *n.ConnessioneCorrente;
    g.hf = 255;
    g.Acquisito = true;
    EXPECT_THAT(Testi(DisegnoNodo(n)), Contains(altezza + "255"));
    g.Acquisito = false;
    EXPECT_THAT(Testi(DisegnoNodo(n)), Contains(altezza + "260"));
    EXPECT_EQ(g.hf, 255); // the copy alone is computed
}

// What follows from the four sizes of the plate has no value while one of them is missing.
TEST_F(DisegnoNodoTest, WhatFollowsWaitsForAllSizes) {
    for (double Giunto::*misura : {&Giunto::tf, &Giunto::bf, &Giunto::ef, &Giunto::d2}) {
        const Nodo n = NodoDisegnato(nodoT, 2);
        (*n.ConnessioneCorrente).*misura = 0;
        EXPECT_THAT(Testi(DisegnoNodo(n)),
                    testing::IsSupersetOf({altezza, std::string("Passo orizzontale fori: w = ")}));
    }
    EXPECT_THAT(Testi(DisegnoNodo(NodoDisegnato(nodoT, 2))), Contains(altezza + "350"));
}

// The welds of a check of an older program, however small.
TEST_F(DisegnoNodoTest, SmallWeldsHaveTheirTexts) {
    for (const double gola : {0.5, 1.0, 4.0}) {
        const Nodo n = NodoDisegnato(nodoT, 2);
        n.ConnessioneCorrente->Acquisito = true;
        n.ConnessioneCorrente->aw = n.ConnessioneCorrente->Af = gola;
        const auto testi = Testi(DisegnoNodo(n));
        EXPECT_THAT(testi, Contains("aw " + TestoPiano(gola)));
        EXPECT_THAT(testi, Contains("af " + TestoPiano(gola)));
    }
}

TEST_F(DisegnoNodoTest, ANodeWithoutASectionIsDrawnAsFarAsItGoes) {
    const Registratore boxes;
    Nodo n = NodoDisegnato(nodoT, 1);
    n.Colonnainf.reset();
    n.ConnessioneCorrente->PuntatoreSezioni(n.TraveDx.Riferimento(), nullptr);
    EXPECT_THAT(Testi(DisegnoNodo(n)), Contains("Trave: IPE 270"));
    EXPECT_TRUE(boxes.testi.empty());
}

TEST_F(DisegnoNodoTest, ANodeWithoutAJointHasNoDrawing) {
    Nodo n = NodoDisegnato(nodoT, 1);
    n.ConnessioneCorrente.reset();
    EXPECT_FALSE(DisegnoNodo(n).PlottaInOggetto);
    EXPECT_FALSE(DisegnoSelezione(n, {}, 1).PlottaInOggetto);
}

// The file is named by column and current beam.
TEST_F(DisegnoNodoTest, TheNameHasTheSections) {
    Nodo n = NodoDisegnato(nodoCroce, 1);
    EXPECT_EQ(DisegnoNodo(n).nome, "Giunto HE 200 B IPE 270");
    EXPECT_EQ(DisegnoNodo(NodoDisegnato(nodoCroce, 1, "No", true)).nome, "Giunto HE 200 B IPE 330");
    n.Colonnainf->Designation.clear();
    EXPECT_EQ(DisegnoNodo(n).nome, "Giunto IPE 270");
}

TEST_F(DisegnoNodoTest, ARowOfASearchIsDrawnOfACopy) {
    const Nodo n = NodoDisegnato(nodoT, 2);
    TabellaSelezione tabella;
    tabella.Aggiunge({1.0, std::string("50.00"), 16.0, 14.0, 150.0, 28.0, 26.0, 31.0, 33.0, 12.0});
    const auto testi = Testi(DisegnoSelezione(n, tabella, 1));
    for (const char* testo : {"d = 16", "Spessore: tf = 14", "Larghezza: bf = 150",
                              "Distanza verticale del foro dal bordo della flangia: ex = 26",
                              "Distanza del bordo inferiore della flangia dall'ala della trave: u = 12",
                              "Altezza della flangia: hf = 339"}) // 270 + 26 + 31 + 12
        EXPECT_THAT(testi, Contains(testo));
    EXPECT_EQ(n.ConnessioneCorrente->tf, 20);
    EXPECT_THROW((void)DisegnoSelezione(n, tabella, 2), std::out_of_range);
}

} // namespace
