// Every limit of the entries, by the boxes. Numbers by hand from the sections: HEB 200 b 200, tw 9, r 18;
// IPE 270 h 270, b 135, tw 6.6, tf 10.2, r 15. Welds of one row and a plate of 15 mm: a1 = 6, a2 above it;
// the greatest throat 5.1 · 15 / sqrt(5.1² + 15²) = 4.83, so Af = 4.8; aw = 4. M16: d0 = 18.
#include "joints/ui/AmbienteGiunti.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class LimitiGiuntiTest : public AmbienteGiunti {
protected:
    void Una() {
        NodoT();
        Verifica1Fila();
        ASSERT_THAT(Detto(), IsEmpty());
    }
    void Due() {
        NodoT();
        Verifica2File();
        ASSERT_THAT(Detto(), IsEmpty());
    }
    Giunto& Joint() const { return *g->NodoCorrente.ConnessioneCorrente; }
};

TEST_F(LimitiGiuntiTest, WidthOfThePlateLiesBetweenBeamAndColumn) {
    Una();
    Scrive("Textef", "30");
    Scrive("Textbf", "134");
    EXPECT_THAT(Detto(), ElementsAre(" bf è inferiore a quello minimo pari alla larghezza della trave 135 "
                                     "verrà inserito automaticamente tale valore."));
    EXPECT_EQ(Legge("Textbf"), "135");
    Scrive("Textbf", "201");
    EXPECT_THAT(Detto(), ElementsAre(" bf è superiore a quello massimo pari alla larghezza della colonna 200 "
                                     "verrà inserito automaticamente tale valore."));
    EXPECT_EQ(Joint().bf, 200);
    for (const char* bound : {"135", "200"}) {
        Scrive("Textbf", bound);
        EXPECT_THAT(Detto(), IsEmpty());
    }
    EXPECT_EQ(Joint().w, 200 - 2 * 30) << "what follows from it is built anew";
}

// M39: d0 42, ef at least 21; 9 + 2 (18 + 21 + 21) = 129; M45: d0 48, 9 + 2 (18 + 24 + 24) = 141.
TEST_F(LimitiGiuntiTest, WidthHasRoomForTheHoleAndTheRoot) {
    Una();
    Bullone("45");
    EXPECT_THAT(Detto(), IsEmpty()) << "150 is enough";
    Scrive("Textbf", "140");
    EXPECT_THAT(Detto(), ElementsAre(" bf è inferiore a quello minimo pari a 141 mm verrà inserito "
                                     "automaticamente tale valore."));
    EXPECT_EQ(Joint().bf, 141);
    EXPECT_EQ(Joint().bfmin, 141);
    EXPECT_EQ(Joint().bfmax, 200);
}

// ef: at least 18/2 = 9; at most (150 - 9)/2 - (18 + 9) = 43.5, so 43.
TEST_F(LimitiGiuntiTest, HoleLiesOnThePlateAndOffTheWeb) {
    Una();
    Scrive("Textef", "8");
    EXPECT_THAT(
        Detto(),
        ElementsAre("Il valore di ef inserito porta ad avere il foro parzialmente esterno alla flangia "
                    "non consentendo la sua realizzazione pratica. Verrà inserito automaticamente il "
                    "valore minimo pari a 9 mm"));
    EXPECT_EQ(Legge("Textef"), "9");
    Scrive("Textef", "44");
    EXPECT_THAT(
        Detto(),
        ElementsAre("Il valore di ef inserito porta ad una distanza orizzontale dell'asse dei bulloni "
                    "dal bordo dell'anima della colonna che non consente la realizzazione del foro. "
                    "Verrà inserito automaticamente il valore massimo pari a 43 mm"));
    EXPECT_EQ(Joint().ef, 43);
    EXPECT_EQ(g->Suggerimento, "Per aumentare ef bisogna incrementare bf");
    Scrive("Textbf", "200"); // the column's own width bounds it first
    g->ef_controlla();
    EXPECT_EQ(g->Suggerimento, "");
    EXPECT_THAT(Detto(), IsEmpty());
}

// With a plate wider than the column its edge is the nearer one; without a width the column's bounds count.
TEST_F(LimitiGiuntiTest, NearerEdgeIsNamedAndNoWidthFallsBackOnTheColumn) {
    Una();
    Joint().bf = 220;
    Joint().ef = 15; // 5 from the edge of the column
    g->ef_controlla();
    EXPECT_THAT(
        Detto(),
        ElementsAre("Il valore di ef inserito porta ad avere il foro parzialmente esterno alla colonna "
                    "non consentendo la sua realizzazione pratica. Verrà inserito automaticamente il "
                    "valore minimo pari a 19 mm"));
    EXPECT_EQ(Joint().ec, 9);
    Joint().bf = 0;
    Joint().ef = 69; // (200 - 9)/2 - 27 = 68.5
    g->ef_controlla();
    EXPECT_EQ(Joint().ef, 68);
    EXPECT_EQ(g->Suggerimento, "");
}

// sqrt2 · 4.8 + 9 = 15.79: 16.
TEST_F(LimitiGiuntiTest, InnerRowKeepsOffTheFlange) {
    Una();
    Scrive("Textd2", "15");
    EXPECT_THAT(
        Detto(),
        ElementsAre("Il valore di d1 porta ad una distanza verticale dell'asse dei bulloni dal filo "
                    "inferiore dell'ala della trave che non consente la realizzazione del foro. Verrà "
                    "inserito automaticamente il valore minimo pari a 16 mm"));
    EXPECT_EQ(Joint().d2, 16);
    Scrive("Textd2", "16");
    EXPECT_THAT(Detto(), IsEmpty());
}

// Two rows: Af is the larger of both throats. a2 = sqrt3 · 10.2 · 235 · 135 · 0.8 · 1.25 / ((270 - 6.6 - 30)
// · 360 · 1.05) = 6.35, so 7: the outer row at least sqrt2 · 7 + 9 = 18.9, 19; u at least sqrt2 · 7
// = 9.9, 10.
TEST_F(LimitiGiuntiTest, OuterRowKeepsItsDistances) {
    Due();
    ASSERT_EQ(Joint().Af, 7);
    Scrive("Textdx", "18");
    EXPECT_THAT(
        Detto(),
        ElementsAre("Il valore di d2 porta ad una distanza verticale dell'asse dei bulloni dal filo "
                    "superiore dell'ala della trave che non consente la realizzazione del foro. Verrà "
                    "inserito automaticamente il valore minimo pari a 19 mm"));
    EXPECT_EQ(Legge("Textdx"), "19");
    EXPECT_EQ(Joint().L, 30 + 19);
    Scrive("Textex", "8");
    EXPECT_THAT(Detto(),
                ElementsAre("Il valore di ex porta ad avere il foro parzialmente esterno alla flangia\r\n"
                            "Verrà inserito automaticamente il valore minimo paria a 9 mm"));
    EXPECT_EQ(Joint().ex, 9);
    EXPECT_EQ(Joint().dX, 19) << "the other distance stays";
    Scrive("Textu", "9");
    EXPECT_THAT(Detto(),
                ElementsAre("Il valore introdotto è inferiore al cordone di saldatura necessario per\r\n"
                            "la giunzione delle ali della trave alla flangia. Tale valore sarà\r\n"
                            "sostituito con la larghezza del cordone di saldatura."));
    EXPECT_EQ(Joint().u, 10);
    EXPECT_EQ(Joint().hf, 270 + 9 + 19 + 10);
}

// Fast: 9/2 + 9/2 + sqrt2 · 7 = 18.9, 19, then 20.
TEST_F(LimitiGiuntiTest, ExtensionHasRoomForTheSmallestBolt) {
    Due();
    Joint().L = 15;
    g->L_Controlla();
    EXPECT_THAT(Detto(), ElementsAre("Il valore di L minimo è 20"));
    EXPECT_EQ(Joint().L, 20);
}

// (135 - 9)/2 - 18 = 45: the hole of M42 fits, that of M45, 48, does not.
TEST_F(LimitiGiuntiTest, LargerBoltIsRefusedWithItsHint) {
    Una();
    Scrive("Textef", "25");
    Scrive("Textbf", "135");
    ASSERT_THAT(Detto(), IsEmpty());
    Bullone("48");
    EXPECT_THAT(Detto(), ElementsAre("Il diametro è maggiore di quello massimo pari a d = 42 mm \r\n"
                                     "per aumentarlo bisogna aumentare bf"));
    EXPECT_EQ(Joint().Diam, 42);
    EXPECT_EQ(Trova<QComboBox>(g, "CboDiametriBulloni")->currentText(), "42");
    std::int16_t largest = 0;
    g->IndiceBulloneMax_Calcola(largest);
    EXPECT_EQ(largest, Joint().IndiceBullone());
}

// L = 30 + 40: 70 - sqrt2 · 7 = 60.1 is more than the width of 150 gives, 52; L = 20 + 25 gives 35: M30,
// d0 33.
TEST_F(LimitiGiuntiTest, ExtensionOfThePlateBoundsTheBolt) {
    Due();
    Scrive("Textex", "20");
    Scrive("Textdx", "25");
    ASSERT_THAT(Detto(), IsEmpty());
    Bullone("36");
    EXPECT_THAT(Detto(), ElementsAre("Il diametro è maggiore di quello massimo pari a d = 30 mm \r\n"
                                     "per aumentarlo bisogna aumentare ex"));
    Bullone("16");
    Scrive("Textex", "25");
    Scrive("Textdx", "20");
    Bullone("36");
    EXPECT_THAT(Detto(), ElementsAre("Il diametro è maggiore di quello massimo pari a d = 30 mm \r\n"
                                     "per aumentarlo bisogna incrementare d2"));
}

TEST_F(LimitiGiuntiTest, WholeTableFitsWhereNoWidthIsGiven) {
    NodoT();
    Sceglie("OptCriterio_1");
    Bullone("68");
    EXPECT_THAT(Detto(), IsEmpty());
    EXPECT_EQ(Joint().Diam, 68);
}

TEST_F(LimitiGiuntiTest, LimitsOfADesignAreHalfTheBeamAtMost) {
    NodoT();
    Scrive("Texttf_1", "20");
    Scrive("TextL", "136");
    EXPECT_THAT(Detto(), ElementsAre(" h'max è superiore a metà dell'altezza della trave pari a 135"));
    EXPECT_EQ(Joint().L_max, 135);
    Scrive("Textu_1", "135.5");
    EXPECT_THAT(Detto(), ElementsAre(" u max è superiore a metà dell'altezza della trave pari a 135"));
    EXPECT_EQ(Legge("Textu_1"), "135");
    for (const char* box : {"TextL", "Textu_1"}) {
        Scrive(box, "135");
        EXPECT_THAT(Detto(), IsEmpty());
    }
}

// Plate of 20: 5.1 · 20 / sqrt(5.1² + 20²) = 4.94, Af 4.9: u at least 6.93, 7; h' at least 9 + 6.9 = 15.9,
// 16, then 20.
TEST_F(LimitiGiuntiTest, LimitsOfADesignHaveRoomForWeldAndSmallestBolt) {
    NodoT();
    Scrive("Texttf_1", "20");
    Scrive("TextL", "19");
    EXPECT_THAT(Detto(), ElementsAre(" h'max non consente di posizionare il bullone con d = 8 mm rispettando "
                                     "le distanze minime dai bordi"));
    EXPECT_EQ(Joint().L_max, 20);
    Scrive("Textu_1", "6");
    EXPECT_THAT(Detto(),
                ElementsAre(" u max non consente di realizzare la saldatura della flangia all'ala "
                            "della trave verrà inserito automaticamente il valore necessario pari a 7"));
    EXPECT_EQ(Joint().u_max, 7);
}

// Throat 3 asks for t · tf / sqrt(t² + tf²) = 3 with t = 5.1: tf = 3.71.
TEST_F(LimitiGiuntiTest, ThinPlateIsNoted) {
    NodoT();
    Scrive("Texttf_1", "3.7");
    EXPECT_EQ(Scritta(g, "lbltf"), "Non rispetta i 3 mm (EC3).");
    Scrive("Texttf_1", "3.8");
    EXPECT_EQ(Scritta(g, "lbltf"), "");
    Sceglie("OptCriterio_1");
    Scrive("Texttf", "3");
    EXPECT_EQ(Scritta(g, "lbltf"), "Non rispetta i 3 mm (EC3).");
}

TEST_F(LimitiGiuntiTest, CheckWantsItsParametersOneAfterTheOther) {
    NodoT();
    Sceglie("Optfila_1");
    Sceglie("OptCriterio_1");
    const std::pair<const char*, double Giunto::*> steps[] = {
        {"Inserire un valore diverso da zero per lo spessore della flangia tf.", &Giunto::tf},
        {"Inserire un valore diverso da zero per la larghezza della flangia bf.", &Giunto::bf},
        {"Inserire un valore diverso da zero per ef.", &Giunto::ef},
        {"Inserire un valore diverso da zero per d2.", &Giunto::d2},
        {"Inserire un valore diverso da zero per dx.", &Giunto::dX},
        {"Inserire un valore diverso da zero per ex.", &Giunto::ex},
        {"Inserire un valore diverso da zero per u.", &Giunto::u}};
    for (const auto& [text, field] : steps) {
        Preme(g, "cmdCalcola");
        EXPECT_THAT(Detto(), ElementsAre(text));
        EXPECT_FALSE(Joint().Acquisito);
        Joint().*field = 40;
    }
}

TEST_F(LimitiGiuntiTest, DesignWantsItsLimitsOneAfterTheOther) {
    NodoT();
    Preme(g, "cmdCalcola");
    EXPECT_THAT(Detto(), ElementsAre("Inserire un valore diverso da zero per tf max."));
    Scrive("Texttf_1", "20");
    Preme(g, "cmdCalcola");
    EXPECT_THAT(Detto(), ElementsAre("Inserire un valore diverso da zero per h'max."));
    Scrive("TextL", "80");
    Preme(g, "cmdCalcola");
    EXPECT_THAT(Detto(), ElementsAre("Inserire un valore diverso da zero per u max."));
}

TEST_F(LimitiGiuntiTest, OneRowWantsItsDistanceToo) {
    NodoT();
    Sceglie("OptCriterio_1");
    Scrive("Texttf", "15");
    Scrive("Textbf", "150");
    Scrive("Textef", "35");
    Detto();
    Preme(g, "cmdCalcola");
    EXPECT_THAT(Detto(), ElementsAre("Inserire un valore diverso da zero per d2."));
}

TEST_F(LimitiGiuntiTest, CalculationHoldsTheLimitsOnceMoreInTheirOrder) {
    Due();
    Scrive("TxtL_Dx", "6");
    Joint().bf = 130;
    Joint().ef = 5;
    Joint().d2 = 5;
    Joint().u = 1;
    Preme(g, "cmdCalcola");
    const auto said = Detto();
    ASSERT_GE(said.size(), 4U);
    EXPECT_THAT(said[0], testing::StartsWith(" bf è inferiore"));
    EXPECT_THAT(said[1], testing::StartsWith("Il valore di ef"));
    EXPECT_THAT(said[2], testing::StartsWith("Il valore di d1"));
    EXPECT_THAT(said[3], testing::StartsWith("Il valore introdotto"));
    EXPECT_EQ(Legge("Textbf"), "135");
    EXPECT_TRUE(Joint().Acquisito);
}

TEST_F(LimitiGiuntiTest, ColumnOfClass4IsRefused) {
    Apre();
    Preme(g, "CmdColonnaInf");
    VaA(*partenza, "IPE 500");
    prove::Scrive(partenza, "Txt_fy", "355");
    ASSERT_EQ(Sezione().ClasseCompressione, 4);
    Preme(partenza, "cmdSceltaSagomoGiunto");
    EXPECT_THAT(Detto(),
                ElementsAre("Il sagomo scelto come colonna è di classe 4, non rispettando le ipotesi di "
                            "calcolo dell'Appendice J.\r\n                                           "
                            "Scegliere un altro sagomo."));
    EXPECT_EQ(Scritta(g, "LblColonnaInf"), "NON ASSEGNATO");
}

TEST_F(LimitiGiuntiTest, BeamOfClass4IsAskedAbout) {
    Apre();
    SezioneDoppioT slender;
    slender.h = 1000;
    slender.ClasseFlessioneY = 4;
    EXPECT_FALSE(AssegnaSagomo(g->NodoCorrente, RuoloSagomo::TraveDx, slender)) << "answered no";
    EXPECT_THAT(Detto(),
                ElementsAre("Il sagomo scelto come trave è di classe 4, non rispettando le ipotesi di "
                            "calcolo dell'Appendice J.\r\n                                           "
                            "Continuare lo stesso?."));
    const Registratore yes(true);
    EXPECT_TRUE(AssegnaSagomo(g->NodoCorrente, RuoloSagomo::TraveDx, slender));
}

TEST_F(LimitiGiuntiTest, BeamWiderThanTheColumnIsRefused) {
    Apre();
    Prende("CmdColonnaInf", "HEB 120");
    Prende("CmdTraveDx", "IPE 270");
    EXPECT_THAT(Detto(),
                ElementsAre("La trave destra ha una larghezza superiore a quella della colonna :\r\nla "
                            "connessione non può essere realizzata cambiare il sagomo della trave\r\no "
                            "dellla colonna"));
    EXPECT_EQ(Scritta(g, "LblTraveDx"), "NON ASSEGNATO");
    Prende("CmdTraveSx", "IPE 270");
    EXPECT_THAT(Detto(),
                ElementsAre("La trave sinistra ha una larghezza superiore a quella della colonna :\r\nla "
                            "connessione non può essere realizzata cambiare il sagomo della trave\r\no "
                            "della colonna"));
    EXPECT_FALSE(SceltaSagomoGiunto);
}

// HEB 200: 200 - 2 · 15 = 170 between the flanges; 270 and 440 differ by that, 270 and 450 by more.
TEST_F(LimitiGiuntiTest, BeamsOfTooDifferentHeightsAreRefused) {
    Apre();
    Prende("CmdColonnaInf", "HEB 200");
    Prende("CmdTraveDx", "IPE 270");
    Prende("CmdTraveSx", "IPE 450");
    EXPECT_THAT(Detto(), ElementsAre("Le travi scelte hanno una differenza di altezze eccessiva:\r\ncambiare "
                                     "sagomi (Appendice J-2.6.1.(2))."));
    EXPECT_EQ(Scritta(g, "LblTraveSx"), "NON ASSEGNATO");
    Prende("CmdTraveSx", "IPE 400");
    EXPECT_EQ(Scritta(g, "LblTraveSx"), "IPE 400");
}

} // namespace
