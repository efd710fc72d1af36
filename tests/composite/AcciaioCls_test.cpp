// Data, slab and deck of a composite beam. Expected values by hand.

#include "TraveDiProva.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

using Messaggi = std::vector<std::string>;

class AcciaioClsTest : public AmbienteTrave {
protected:
    AcciaioClsTest() { InUso(235, 300, 150, 7, 11); }

    /// Deck 55/150 with ribs of 60 below and 90 above, slab of 110 in all.
    AcciaioCls Grecata(std::int16_t tipo) {
        AcciaioCls t;
        t.TipoSoletta = tipo;
        t.ha = 55;
        t.hc = 110;
        t.c = 30;
        t.beff = 1000;
        t.As = 400;
        t.bb = 60;
        t.bs = 90;
        t.iNervature = 200;
        t.b0t = 80;
        return t;
    }

    AcciaioCls Piena(double hc) {
        AcciaioCls t;
        t.hc = hc;
        t.c = 30;
        t.beff = 1200;
        return t;
    }

    static void Vertici(const AcciaioCls& t, const std::vector<std::pair<double, double>>& attesi) {
        ASSERT_EQ(t.nVerticiSoletta, int(attesi.size()));
        ASSERT_EQ(t.Soletta->nVertici(), int(attesi.size()));
        for (int i = 1; i <= t.nVerticiSoletta; ++i) {
            EXPECT_DOUBLE_EQ(t.Soletta->xi(i), attesi[std::size_t(i - 1)].first) << "vertex " << i;
            EXPECT_DOUBLE_EQ(t.Soletta->yi(i), attesi[std::size_t(i - 1)].second) << "vertex " << i;
        }
    }
};

// Web 576/8 = 72: over the 42 epsilon of class 3 of 355 N/mm2, 34.2, and under those of 50, 91.1.
TEST_F(AcciaioClsTest, EffectiveAreaOfAnotherSteelIsForgotten) {
    const auto changed = InUso(355, 600, 200, 8, 12);
    ASSERT_EQ(changed->ClasseCompressione, 4);
    changed->fy = 50;
    AcciaioCls::InizializzaTrave();
    ASSERT_LT(changed->ClasseCompressione, 4);
    EXPECT_NEAR(changed->NplRd, (2 * 200 * 12 + 576 * 8) * 50, 1);
}

// The same web at 355 N/mm2: lambda = 72 / (28.4·0.81362·2) = 1.55799, rho = 0.55122; 0.44878·576·8 = 2068 of
// 9408 mm2 go, but for the thread that holds the halves.
TEST_F(AcciaioClsTest, EffectiveAreaCountsAtTheFirstPreparation) {
    const auto s = InUso(355, 600, 200, 8, 12);
    EXPECT_NEAR(s->NplRd, (9408 - 2068) * 355.0, 0.002 * 2605.7e3);
}

TEST_F(AcciaioClsTest, SolidSlabHasSixVertices) {
    AcciaioCls t = Piena(120);
    ASSERT_TRUE(t.InizializzaAcciaioCls());
    Vertici(t, {{0, 300}, {600, 300}, {600, 420}, {-600, 420}, {-600, 300}, {0, 300}});
    EXPECT_DOUBLE_EQ(t.Soletta->Area, 1200 * 120);
    EXPECT_DOUBLE_EQ(t.Soletta->yG, 360);
    EXPECT_NEAR(t.Soletta->IxG, 1200 * 120.0 * 120 * 120 / 12, 1);
    EXPECT_EQ(t.yArmatura, 390); // 300 + 120 - 30
    EXPECT_EQ(t.yInfSoletta, 300);
    EXPECT_EQ(t.Sommita(), 420);
    EXPECT_EQ(t.Sezione, std::get<std::shared_ptr<SezioneDoppioT>>(SezioneCorrente));
    EXPECT_TRUE(registratore.testi.empty());
}

// The slab lies between H - 80 and H; the level of the bars keeps its formula.
TEST_F(AcciaioClsTest, SolidSlabBelowTheTopOfTheSteel) {
    AcciaioCls t = Piena(-80);
    ASSERT_TRUE(t.InizializzaAcciaioCls());
    EXPECT_EQ(t.nVerticiSoletta, 6);
    EXPECT_DOUBLE_EQ(t.Soletta->Area, 1200 * 80);
    EXPECT_DOUBLE_EQ(t.Soletta->yG, 260);
    EXPECT_EQ(t.yInfSoletta, 220);
    EXPECT_EQ(t.yArmatura, 190); // 300 - 80 - 30
    EXPECT_EQ(t.Sommita(), 300);
    EXPECT_TRUE(registratore.testi.empty());
}

TEST_F(AcciaioClsTest, TransverseRibsCountWhatLiesAboveThem) {
    AcciaioCls t = Grecata(nervatureTrasversali);
    ASSERT_TRUE(t.InizializzaAcciaioCls());
    Vertici(t, {{0, 355}, {500, 355}, {500, 410}, {-500, 410}, {-500, 355}, {0, 355}});
    EXPECT_DOUBLE_EQ(t.Soletta->Area, 1000 * 55);
    EXPECT_EQ(t.yInfSoletta, 355);
    EXPECT_EQ(t.b0, 85); // (200 + 60 - 90)/2
}

// r = (200 - 90 - 60)/2 = 25: from 0 the walk goes 40, 65 (up), 155, 180 (down), 240, 265 (up), 355, 380
// (down), 440, 465 (up), 555 which is cut at 500.
TEST_F(AcciaioClsTest, ParallelRibsWalkToTheEdge) {
    AcciaioCls t = Grecata(nervatureParallele);
    std::vector<double> xs;
    std::vector<double> ys;
    t.CoordinateGrecata(xs, ys);
    EXPECT_EQ(xs, (std::vector<double>{0, 40, 65, 155, 180, 240, 265, 355, 380, 440, 465, 500}));
    EXPECT_EQ(ys, (std::vector<double>{0, 0, 55, 55, 0, 0, 55, 55, 0, 0, 55, 55}));
    ASSERT_TRUE(t.InizializzaAcciaioCls());
    EXPECT_EQ(t.nVerticiSoletta, 26); // twice 12 and the corner
    EXPECT_EQ(t.b0, 105);             // (200 - 60 - 90)/2 + 80
    // 1000·110 less the voids: on each side two of (90 + 140)/2·55, and 12.5·... at the edge: the sloped side
    // from 440 to 465 (25·55/2) and 35·55 beyond.
    const double vuoti = 2 * (2 * 115 * 55 + 25 * 55 / 2.0 + 35 * 55);
    EXPECT_NEAR(t.Soletta->Area, 1000 * 110 - vuoti, 1e-6);
    EXPECT_EQ(t.yInfSoletta, 300);
}

TEST_F(AcciaioClsTest, StepCutOnASlope) {
    AcciaioCls t = Grecata(nervatureParallele);
    t.beff = 100; // half of it lies 10 of 25 up the first slope
    std::vector<double> xs;
    std::vector<double> ys;
    t.CoordinateGrecata(xs, ys);
    EXPECT_EQ(xs, (std::vector<double>{0, 40, 50}));
    EXPECT_EQ(ys.back(), 22);
    t.beff = 370; // 5 of 25 down, after 180: on the flat
    t.CoordinateGrecata(xs, ys);
    EXPECT_EQ(xs.back(), 185);
    EXPECT_EQ(ys.back(), 0);
    t.beff = 330; // 10 of 25 down
    t.CoordinateGrecata(xs, ys);
    EXPECT_EQ(ys.back(), 33);
    t.beff = 100;
    t.ha = 1;
    t.CoordinateGrecata(xs, ys);
    EXPECT_DOUBLE_EQ(ys.back(), 0.4);
}

TEST_F(AcciaioClsTest, NarrowWidthEndsAtTheFirstStep) {
    AcciaioCls t = Grecata(nervatureParallele);
    t.beff = 70;
    std::vector<double> xs;
    std::vector<double> ys;
    t.CoordinateGrecata(xs, ys);
    EXPECT_EQ(xs, (std::vector<double>{0, 35}));
    EXPECT_EQ(ys, (std::vector<double>{0, 0}));
    t.beff = 80; // reaches, too
    t.CoordinateGrecata(xs, ys);
    EXPECT_EQ(xs, (std::vector<double>{0, 40}));
    ASSERT_TRUE(t.InizializzaAcciaioCls());
    EXPECT_EQ(t.nVerticiSoletta, 6);
}

TEST_F(AcciaioClsTest, OneStep) {
    AcciaioCls t;
    t.beff = 100;
    std::vector<double> xs;
    std::vector<double> ys;
    double x = 20;
    double y = 5;
    bool continua = false;
    t.CoordinataGrecataSuccessiva(x, y, 10, 7, xs, ys, continua);
    EXPECT_TRUE(continua);
    EXPECT_EQ(x, 30);
    EXPECT_EQ(y, 12);
    t.CoordinataGrecataSuccessiva(x, y, 20, 0, xs, ys, continua); // reaches the edge exactly
    EXPECT_FALSE(continua);
    EXPECT_EQ(xs, (std::vector<double>{30, 50}));
    EXPECT_EQ(ys, (std::vector<double>{12, 12}));
}

TEST_F(AcciaioClsTest, SlabBelowTheTopIsForSolidSlabsOnly) {
    for (const std::int16_t tipo : {nervatureTrasversali, nervatureParallele}) {
        AcciaioCls t = Grecata(tipo);
        t.hc = -1;
        t.b0t = 10; // the stop comes before every correction
        EXPECT_FALSE(t.InizializzaAcciaioCls());
        EXPECT_EQ(registratore.testi, Messaggi{"hc < 0 ammesso solo per soletta piena"});
        EXPECT_EQ(registratore.messaggi[0].icona, Icona::Stop);
        EXPECT_EQ(t.b0t, 10);
        EXPECT_EQ(t.Soletta, nullptr);
        registratore.testi.clear();
        registratore.messaggi.clear();
    }
}

TEST_F(AcciaioClsTest, WidthInContactIsRaisedToTheRib) {
    AcciaioCls t = Grecata(nervatureParallele);
    t.b0t = 59;
    EXPECT_FALSE(t.DatiGrecataAccettabili());
    EXPECT_TRUE(t.InizializzaAcciaioCls());
    EXPECT_EQ(registratore.testi, Messaggi{"b0t deve essere >= bb"});
    EXPECT_EQ(t.b0t, 60);
    EXPECT_EQ(t.b0, 85); // with the width that has been raised: 25 + 60
    EXPECT_TRUE(t.DatiGrecataAccettabili());
    EXPECT_TRUE(t.InizializzaAcciaioCls());
    EXPECT_EQ(registratore.testi.size(), 1U); // once
}

// Transverse ribs do not ask for it.
TEST_F(AcciaioClsTest, WidthInContactOfTransverseRibsIsFree) {
    AcciaioCls t = Grecata(nervatureTrasversali);
    t.b0t = 0;
    EXPECT_TRUE(t.DatiGrecataAccettabili());
    EXPECT_TRUE(t.InizializzaAcciaioCls());
    EXPECT_TRUE(registratore.testi.empty());
}

TEST_F(AcciaioClsTest, SpacingEqualToTheGreaterWidthPasses) {
    for (const std::int16_t tipo : {nervatureTrasversali, nervatureParallele}) {
        AcciaioCls t = Grecata(tipo);
        t.iNervature = 90;
        EXPECT_TRUE(t.DatiGrecataAccettabili());
        EXPECT_TRUE(t.InizializzaAcciaioCls());
        EXPECT_TRUE(registratore.testi.empty());
        EXPECT_EQ(t.iNervature, 90);
    }
}

TEST_F(AcciaioClsTest, OneLessIsRaisedToTheGreaterWidthAndOne) {
    for (const std::int16_t tipo : {nervatureTrasversali, nervatureParallele}) {
        AcciaioCls t = Grecata(tipo);
        t.iNervature = 89;
        EXPECT_FALSE(t.DatiGrecataAccettabili());
        EXPECT_TRUE(t.InizializzaAcciaioCls());
        EXPECT_EQ(registratore.testi, Messaggi{"L'interasse delle nervature deve essere > bs, bb"});
        EXPECT_EQ(t.iNervature, 91);
        registratore.testi.clear();
    }
}

// b0 is taken before the spacing is corrected: (40 + 60 - 90)/2 = 5, and (40 - 150)/2 + 80 = 25.
TEST_F(AcciaioClsTest, RibWidthComesBeforeTheCorrectionOfTheSpacing) {
    AcciaioCls t = Grecata(nervatureTrasversali);
    t.iNervature = 40;
    t.InizializzaAcciaioCls();
    EXPECT_EQ(t.b0, 5);
    AcciaioCls u = Grecata(nervatureParallele);
    u.iNervature = 40;
    u.InizializzaAcciaioCls();
    EXPECT_EQ(u.b0, 25);
}

TEST_F(AcciaioClsTest, MessagesComeInTheirOrder) {
    AcciaioCls t = Grecata(nervatureParallele);
    t.b0t = 10;
    t.iNervature = 30;
    EXPECT_TRUE(t.InizializzaAcciaioCls());
    EXPECT_EQ(registratore.testi,
              (Messaggi{"b0t deve essere >= bb", "L'interasse delle nervature deve essere > bs, bb"}));
}

TEST_F(AcciaioClsTest, DataThatLeadNowhereEnd) {
    AcciaioCls t = Grecata(nervatureParallele);
    std::vector<double> xs;
    std::vector<double> ys;
    t.bb = t.bs = -10; // the spacing that is put right is -9
    t.iNervature = -20;
    t.CoordinateGrecata(xs, ys);
    EXPECT_EQ(xs.back(), 500);
    EXPECT_EQ(ys.back(), 0);
    t = Grecata(nervatureParallele);
    t.bb = t.bs = 0;
    t.iNervature = 1e-9;
    t.CoordinateGrecata(xs, ys);
    EXPECT_EQ(xs.size(), 8001U) << "four times as many, and two, are counted in 16 bits";
    EXPECT_TRUE(t.InizializzaAcciaioCls());
    EXPECT_GT(t.nVerticiSoletta, 0);
    EXPECT_EQ(t.Soletta->nVertici(), t.nVerticiSoletta);
    // A level that cuts every rib: the vertices of the part are counted in 16 bits, too.
    t.bb = t.bs = 5e-4;
    t.iNervature = 2e-3;
    t.b0t = 1;
    EXPECT_TRUE(t.InizializzaAcciaioCls());
    std::shared_ptr<Poligono> sopra;
    std::shared_ptr<Poligono> sotto;
    EXPECT_NO_THROW(t.Soletta->DividiY(320, sopra, sotto));
    EXPECT_TRUE(sopra && sotto);
}

TEST_F(AcciaioClsTest, WithoutADoubleTNothingIsBuilt) {
    SezioneCorrente.emplace<std::monostate>();
    AcciaioCls t = Piena(120);
    AcciaioCls::InizializzaTrave();
    EXPECT_FALSE(t.InizializzaAcciaioCls());
    EXPECT_EQ(t.Soletta, nullptr);
    EXPECT_EQ(t.Sommita(), 0);
}

TEST_F(AcciaioClsTest, DeckValuesByIndex) {
    AcciaioCls t;
    CarDecimale = ',';
    CarMigliaia = '.';
    for (int i = -1; i <= 5; ++i)
        t.DatoLamiera(std::to_string(10 + i) + ",5", i);
    EXPECT_EQ(t.ha, 10.5);
    EXPECT_EQ(t.bb, 11.5);
    EXPECT_EQ(t.bs, 12.5);
    EXPECT_EQ(t.iNervature, 13.5);
    EXPECT_EQ(t.b0t, 14.5);
}

TEST_F(AcciaioClsTest, DesignStrengths) {
    AcciaioCls t = Piena(120);
    t.InizializzaAcciaioCls();
    fck = 30;
    fsk = 460;
    EXPECT_NEAR(AcciaioCls::fcd(), 17, 1e-12);
    EXPECT_NEAR(AcciaioCls::fsd(), 400, 1e-12);
    EXPECT_EQ(t.fyd(), 235);
    Normativa = normativaNTC;
    ImpostaGamma();
    EXPECT_NEAR(t.fyd(), 223.8095, 1e-4); // 235/1.05
}

// The order of the members is that of the model: each is left at its start.
TEST_F(AcciaioClsTest, StartsEmpty) {
    const AcciaioCls t;
    EXPECT_EQ(t.TipoSoletta, 0);
    EXPECT_EQ(t.TipoVerifica, 0);
    EXPECT_EQ(t.Nr, 1);
    EXPECT_EQ(t.PRd, 0);
    EXPECT_EQ(t.MplRd, 0);
    EXPECT_TRUE(t.DatiGrecataAccettabili());
}

} // namespace
