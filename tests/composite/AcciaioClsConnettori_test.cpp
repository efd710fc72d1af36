// Resistance, number and spacing of headed studs. Expected values by hand and from published tables.

#include <cmath>
#include <utility>

#include "TraveDiProva.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

class ConnettoriTest : public AmbienteTrave {
protected:
    ConnettoriTest() { InUso(235, 300, 150, 7, 11); }

    /// Stud 19x100 in C25/30 on a solid slab of 130.
    static AcciaioCls Trave(std::int16_t tipo = solettaPiena) {
        AcciaioCls t;
        t.TipoSoletta = tipo;
        t.hc = 130;
        t.beff = 1000;
        t.ha = 50;
        t.b0 = 100;
        t.iNervature = 200;
        t.dPiolo = 19;
        t.hPiolo = 100;
        t.fu = 450;
        t.GammaV = 1.25;
        t.Luce = 8;
        t.Sezione = std::make_shared<SezioneDoppioT>();
        return t;
    }

    static void Niente(const AcciaioCls& t) {
        EXPECT_EQ(t.PRd, 0);
        EXPECT_EQ(t.PRd1, 0);
        EXPECT_EQ(t.kRiduzione, 0);
    }
};

// Published for 19 mm, fu 450 in C25/30: 81.66 kN of the steel and 73.73 kN of the concrete. The latter is
// with Ecm = 31000 N/mm2 of the tables; 9500 (25 + 8)^(1/3) is 30472.
TEST_F(ConnettoriTest, PublishedStud) {
    AcciaioCls t = Trave();
    t.CalcolaPrd();
    EXPECT_NEAR(t.AreaPiolo, 283.529, 1e-3);
    EXPECT_NEAR(t.PRd1, 81656, 1);
    const double Ecm = 9500 * std::pow(33, 1.0 / 3);
    EXPECT_NEAR(t.PRd2 * std::sqrt(31000 / Ecm), 73730, 5);
    EXPECT_NEAR(t.PRd2, 73100, 10);
    EXPECT_EQ(t.kRiduzione, 1);
    EXPECT_EQ(t.PRd, t.PRd2);
    EXPECT_EQ(t.MessaggioPioli, "");
}

TEST_F(ConnettoriTest, WithoutAForceOrAResistanceThereIsNoStud) {
    AcciaioCls t = Trave();
    for (const auto& [Vl, PRd] : {std::pair{-100e3, 70e3}, {0.0, 70e3}, {100e3, 0.0}, {-100e3, 0.0}}) {
        t.Vl = Singolo(Vl);
        t.PRd = PRd;
        t.CalcolaNumeroConnettori();
        EXPECT_EQ(t.nConnCalc, 0) << Vl << ' ' << PRd;
        EXPECT_EQ(t.nConnettori, 0);
    }
}

// 0.8·450·(pi/4)/1.25
TEST_F(ConnettoriTest, AThinStudIsOne) {
    AcciaioCls t = Trave();
    t.dPiolo = 1;
    t.CalcolaPrd();
    EXPECT_NEAR(t.PRd1, 226.195, 1e-3);
}

// alfa = 0.2 (h/d + 1): 0.8 at 3, 0.9 at 3.5, 1 from 4.
TEST_F(ConnettoriTest, SlendernessOfTheStud) {
    AcciaioCls t = Trave();
    t.CalcolaPrd();
    const double intera = t.PRd2;
    t.hPiolo = 57;
    t.CalcolaPrd();
    EXPECT_EQ(t.MessaggioPioli, "");
    EXPECT_NEAR(t.PRd2, 0.8 * intera, 1e-6);
    t.hPiolo = 66.5;
    t.CalcolaPrd();
    EXPECT_NEAR(t.PRd2, 0.9 * intera, 1e-6);
    t.hPiolo = 76;
    t.CalcolaPrd();
    EXPECT_EQ(t.PRd2, intera);
}

TEST_F(ConnettoriTest, ShortStud) {
    AcciaioCls t = Trave();
    t.hPiolo = 56.9;
    t.CalcolaPrd();
    EXPECT_EQ(t.MessaggioPioli, "h/d < 3 (57 mm) EC4 #6.4.2.(1)");
    Niente(t);
    CarDecimale = ',';
    t.dPiolo = 19.5;
    t.CalcolaPrd();
    EXPECT_EQ(t.MessaggioPioli, "h/d < 3 (58,5 mm) EC4 #6.4.2.(1)");
}

TEST_F(ConnettoriTest, StudOutOfTheSlab) {
    AcciaioCls t = Trave();
    t.hPiolo = 130;
    t.CalcolaPrd();
    EXPECT_EQ(t.MessaggioPioli, "");
    t.hPiolo = 130.1;
    t.CalcolaPrd();
    EXPECT_EQ(t.MessaggioPioli, "Il piolo esce dalla soletta!");
    Niente(t);
    t.hPiolo = 100; // the message goes when the stud fits
    t.CalcolaPrd();
    EXPECT_EQ(t.MessaggioPioli, "");
}

TEST_F(ConnettoriTest, StudLowerThanTheRibs) {
    AcciaioCls t = Trave(nervatureParallele);
    t.ha = 100.5;
    t.CalcolaPrd();
    EXPECT_EQ(t.MessaggioPioli, "h deve essere maggiore di ha (100.5 mm)");
    Niente(t);
    t.ha = 100; // equal passes, and has no resistance
    t.CalcolaPrd();
    EXPECT_EQ(t.MessaggioPioli, "");
    EXPECT_EQ(t.PRd, 0);
    t.TipoSoletta = solettaPiena; // without a deck the ribs do not count
    t.ha = 120;
    t.CalcolaPrd();
    EXPECT_GT(t.PRd, 0);
}

TEST_F(ConnettoriTest, MissingDataEndQuietly) {
    AcciaioCls t = Trave();
    t.CalcolaPrd();
    t.dPiolo = 0;
    t.CalcolaPrd();
    Niente(t);
    EXPECT_EQ(t.MessaggioPioli, "");
    t = Trave(nervatureTrasversali);
    t.ha = 0;
    t.CalcolaPrd();
    Niente(t);
    EXPECT_EQ(t.MessaggioPioli, "");
    t = Trave();
    t.GammaV = 0;
    t.CalcolaPrd();
    EXPECT_EQ(t.PRd, 0);
}

// 0.7/sqrt(Nr)·b0/ha·(h/ha - 1) with ha 50, h 100: 0.014·b0/sqrt(Nr).
TEST_F(ConnettoriTest, TransverseRibs) {
    AcciaioCls t = Trave(nervatureTrasversali);
    t.b0 = 50;
    t.CalcolaPrd();
    EXPECT_NEAR(t.kRiduzione, 0.7, 1e-9);
    EXPECT_NEAR(t.PRd, 0.7 * t.PRd2, 1e-6);
    t.Nr = 2;
    t.CalcolaPrd();
    EXPECT_NEAR(t.kRiduzione, 0.7 / std::sqrt(2), 1e-9);
    t.b0 = 100; // 1.4 and 0.99
    t.CalcolaPrd();
    EXPECT_EQ(t.kRiduzione, 0.8);
    t.Nr = 1;
    t.CalcolaPrd();
    EXPECT_EQ(t.kRiduzione, 1);
}

// 0.6·b0/ha·(h/ha - 1), h at most ha + 75: with ha 50 and h 128 it is that of 125.
TEST_F(ConnettoriTest, ParallelRibs) {
    AcciaioCls t = Trave(nervatureParallele);
    t.b0 = 50;
    t.CalcolaPrd();
    EXPECT_NEAR(t.kRiduzione, 0.6, 1e-9);
    t.Nr = 2; // plays no part
    t.CalcolaPrd();
    EXPECT_NEAR(t.kRiduzione, 0.6, 1e-9);
    t.hPiolo = 128;
    t.b0 = 40;
    t.CalcolaPrd();
    EXPECT_NEAR(t.kRiduzione, 0.6 * 40 / 50 * 1.5, 1e-7);
    t.b0 = 60;
    t.CalcolaPrd();
    EXPECT_EQ(t.kRiduzione, 1);
}

// 5000000·0.6/... exactly 1: b0 = ha/0.6 with h = 2 ha.
TEST_F(ConnettoriTest, ReductionAtItsCapStays) {
    AcciaioCls t = Trave(nervatureParallele);
    t.ha = 60;
    t.hPiolo = 120;
    t.b0 = 100;
    t.CalcolaPrd();
    EXPECT_DOUBLE_EQ(t.kRiduzione, 1);
}

TEST_F(ConnettoriTest, CountIsRoundedUpAndDoubled) {
    AcciaioCls t = Trave();
    t.PRd = 50000;
    t.Vl = 500000;
    t.CalcolaNumeroConnettori();
    EXPECT_EQ(t.nConnCalc, 10);
    EXPECT_EQ(t.nConnettori, 20);
    EXPECT_NEAR(t.Passo, 8000.0 / 19, 1e-4);
    EXPECT_EQ(t.Unita, "connettori");
    t.Vl = 500001;
    t.CalcolaNumeroConnettori();
    EXPECT_EQ(t.nConnettori, 22);
    t.Vl = 1; // at least one each side
    t.CalcolaNumeroConnettori();
    EXPECT_EQ(t.nConnettori, 2);
    EXPECT_EQ(t.Passo, 8000);
}

TEST_F(ConnettoriTest, NothingToCarryNothingCounted) {
    AcciaioCls t = Trave();
    t.PRd = 50000;
    t.CalcolaNumeroConnettori();
    EXPECT_EQ(t.nConnettori, 0);
    EXPECT_EQ(t.Passo, 0);
    EXPECT_EQ(t.Unita, "");
    t.Vl = 1000;
    t.PRd = 0;
    t.CalcolaNumeroConnettori();
    EXPECT_EQ(t.nConnettori, 0);
}

TEST_F(ConnettoriTest, MoreStudsThanCanBeCounted) {
    AcciaioCls t = Trave();
    t.PRd = 1;
    t.Vl = 16383;
    t.CalcolaNumeroConnettori();
    EXPECT_EQ(t.nConnettori, 32766);
    EXPECT_EQ(t.MessaggioPioli, "");
    t.Vl = 16384;
    t.CalcolaNumeroConnettori();
    EXPECT_EQ(t.nConnettori, 0);
    EXPECT_EQ(t.MessaggioPioli, "troppi connettori");
    EXPECT_EQ(t.Passo, 0);
}

TEST_F(ConnettoriTest, Spacing) {
    AcciaioCls t = Trave();
    t.CalcolaPassoConnettori(21, 1);
    EXPECT_EQ(t.Passo, 400);
    EXPECT_EQ(t.Unita, "connettori");
    EXPECT_EQ(t.nNervaturePasso, 0); // no deck
    t.CalcolaPassoConnettori(21, 2);
    EXPECT_EQ(t.Passo, 800);
    EXPECT_EQ(t.Unita, "coppie conn.");
    t.TipoSoletta = nervatureParallele;
    t.iNervature = 270;
    t.CalcolaPassoConnettori(21, 2);
    EXPECT_EQ(t.nNervaturePasso, 2);
    t.CalcolaPassoConnettori(101, 1);
    EXPECT_EQ(t.Passo, 80);
    EXPECT_EQ(t.nNervaturePasso, 0);
}

TEST_F(ConnettoriTest, NoSpacingBelowTwoStuds) {
    AcciaioCls t = Trave(nervatureParallele);
    for (const int n : {1, 0, -3}) {
        t.CalcolaPassoConnettori(21, 2);
        t.CalcolaPassoConnettori(n, 2);
        EXPECT_EQ(t.Passo, 0);
        EXPECT_EQ(t.Unita, "");
        EXPECT_EQ(t.nNervaturePasso, 0);
    }
    t.SenzaPasso = true;
    t.Passo = 7;
    t.CalcolaPassoConnettori(21, 1);
    EXPECT_EQ(t.Passo, 7); // as it was
}

// q = 12 (300 - 200)/(400 - 200) = 6.
TEST_F(ConnettoriTest, PartialConnection) {
    AcciaioCls t = Trave();
    t.nConnCalc = 12;
    t.MplRd = 400e6;
    t.Sezione->McyRd = 200e6;
    t.Msd = 300e6;
    EXPECT_TRUE(t.ProgettaParzialeRipristino());
    EXPECT_EQ(t.nParziale, 12);
    EXPECT_NEAR(t.Passo, 8000.0 / 11, 1e-3);
    t.Msd = 301e6;
    EXPECT_TRUE(t.ProgettaParzialeRipristino());
    EXPECT_EQ(t.nParziale, 14);
    t.Msd = -300e6; // hogging
    t.MplRd = -400e6;
    EXPECT_TRUE(t.ProgettaParzialeRipristino());
    EXPECT_EQ(t.nParziale, 12);
    t.Msd = -400e6;
    EXPECT_TRUE(t.ProgettaParzialeRipristino());
    EXPECT_EQ(t.nParziale, 24);
}

TEST_F(ConnettoriTest, SteelAloneAsksForNoStuds) {
    AcciaioCls t = Trave();
    t.nConnCalc = 12;
    t.Sezione->McyRd = 200e6;
    for (const double MplRd : {400e6, 200e6, 0.0})
        for (const double Msd : {200e6, 100e6, 0.0, -200e6}) {
            t.MplRd = MplRd;
            t.Msd = Msd;
            EXPECT_TRUE(t.ProgettaParzialeRipristino());
            EXPECT_EQ(t.nParziale, 0);
            EXPECT_EQ(t.Passo, 0);
            EXPECT_EQ(t.MessaggioPioli, "");
        }
}

TEST_F(ConnettoriTest, MomentBeyondFullConnection) {
    AcciaioCls t = Trave();
    t.nConnCalc = 12;
    t.Sezione->McyRd = 200e6;
    t.MplRd = 400e6;
    t.Msd = 401e6;
    EXPECT_FALSE(t.ProgettaParzialeRipristino());
    EXPECT_EQ(t.MessaggioPioli, "Msd > MplRd");
    EXPECT_EQ(t.nParziale, 0);
    t.MessaggioPioli.clear();
    t.MplRd = 150e6; // the composite section is no stronger than the steel
    t.Msd = 250e6;
    EXPECT_FALSE(t.ProgettaParzialeRipristino());
    EXPECT_EQ(t.MessaggioPioli, "Msd > MplRd");
}

} // namespace
