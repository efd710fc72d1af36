#include "fasteners/Bullone.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "Registratore.h"
#include "frame/Ambiente.h"
#include "frame/Errori.h"
#include "frame/GeneraleSagomi.h"

using namespace sagomi;

namespace {

/// Position in the table of a nominal diameter.
std::int16_t Posizione(int diametro) {
    for (std::int16_t i = 1; i <= 22; ++i)
        if (TabellaBulloni()[i].d == diametro)
            return i;
    throw std::out_of_range("no such bolt");
}

/// A bolt whose shear and tension resistances stand.
Bullone Fatto(int diametro, double classe, bool gambo = false) {
    Bullone b;
    b.Gambo = gambo;
    b.Classe(classe);
    b.d(Posizione(diametro));
    b.CalcolaResistenzaTaglio();
    return b;
}

/// A bolt in a plate, with the distances as multiples of the hole.
Bullone InPiastra(int diametro, double classe, double e1, double p1, double e2, double p2) {
    Bullone b = Fatto(diametro, classe);
    b.fu = 360;
    b.t = 10;
    b.e1 = e1 * b.do_;
    b.p1 = p1 * b.do_;
    b.e2 = e2 * b.do_;
    b.p2 = p2 * b.do_;
    return b;
}

class BulloneTest : public testing::Test {
protected:
    void TearDown() override { RipristinaGenerale(); }
    prove::Registratore registratore;
};

TEST_F(BulloneTest, EverythingIsZeroAtCreation) {
    const Bullone b;
    for (const Singolo& s : {b.fyb,       b.fub,  b.fu,   b.Ares, b.Alorda, b.Ataglio, b.FvRdFilettata,
                             b.FvRdGambo, b.FvRd, b.FtRd, b.FbRd, b.FvSd,   b.FtSd,    b.do_,
                             b.t,         b.e1,   b.p1,   b.e2,   b.p2,     b.alfa,    b.Classe()})
        EXPECT_EQ(s.Stretto(), 0.F);
    EXPECT_FALSE(b.Gambo);
    EXPECT_EQ(b.d(), 0);
    for (std::int16_t i = 1; i <= 5; ++i)
        EXPECT_EQ(b.Messaggio(i), "");
}

// The tensile stress area of the metric coarse thread follows from the pitch P (ISO 898-1): pi/4 (d - 0.9382
// P)². Two rows of the table stand apart from it, and stay: M8 at 38.6 for 36.6 and M30 at 581 for 561 mm².
TEST_F(BulloneTest, TableHasTheAreasOfTheThread) {
    constexpr int diametri[] = {8,  10, 12, 14, 16, 18, 20, 22, 24, 27, 30,
                                33, 36, 39, 42, 45, 48, 52, 56, 60, 64, 68};
    constexpr double passi[] = {1.25, 1.5, 1.75, 2,   2,   2.5, 2.5, 2.5, 3,   3, 3.5,
                                3.5,  4,   4,    4.5, 4.5, 5,   5,   5.5, 5.5, 6, 6};
    ASSERT_EQ(TabellaBulloni().n(), 22);
    for (int i = 1; i <= 22; ++i) {
        const DimensioneBullone& riga = TabellaBulloni()[i];
        EXPECT_EQ(riga.d, diametri[i - 1]);
        const double nocciolo = riga.d - 0.9382 * passi[i - 1];
        const double area = std::numbers::pi / 4 * nocciolo * nocciolo;
        if (riga.d == 8)
            EXPECT_EQ(riga.Ares.Stretto(), 38.6F);
        else if (riga.d == 30)
            EXPECT_EQ(riga.Ares.Stretto(), 581.F);
        else
            EXPECT_NEAR(riga.Ares, area, 0.005 * area) << "M" << riga.d;
    }
}

TEST_F(BulloneTest, StandardHoleByDiameter) {
    const std::pair<int, float> casi[] = {{8, 9.F},   {12, 13.F}, {14, 15.F}, {16, 18.F}, {22, 24.F},
                                          {24, 26.F}, {27, 30.F}, {30, 33.F}, {68, 71.F}};
    for (const auto& [d, foro] : casi) {
        Bullone b;
        b.d(Posizione(d));
        EXPECT_EQ(b.d(), d);
        EXPECT_EQ(b.DiametroForoStandard().Stretto(), foro);
        EXPECT_EQ(b.do_.Stretto(), foro) << "a new diameter brings its hole";
    }
}

TEST_F(BulloneTest, PositionOutsideTheTableIsAnError) {
    Bullone b;
    for (const int i : {-1, 0, 23})
        EXPECT_THROW(b.d(static_cast<std::int16_t>(i)), std::out_of_range);
    EXPECT_EQ(b.d(), 0);
}

TEST_F(BulloneTest, ClassGivesTheStrengths) {
    struct Caso {
        double classe;
        float fub;
        double fyb;
    };
    for (const Caso& c : {Caso{4.6, 400, 240},
                          {4.8, 400, 320},
                          {5.6, 500, 300},
                          {5.8, 500, 400},
                          {6.8, 600, 480},
                          {8.8, 800, 640},
                          {10.9, 1000, 900}}) {
        Bullone b;
        b.Classe(c.classe);
        EXPECT_EQ(b.Classe().Stretto(), static_cast<float>(c.classe));
        EXPECT_EQ(b.fub.Stretto(), c.fub);
        EXPECT_NEAR(b.fyb, c.fyb, 1e-3);
    }
}

// 8.8 in 32 bits is 8.80000019073486328125, so n · f · 100 = 640.000152587890625, half way between two
// singles; the even one is 640.0001220703125.
TEST_F(BulloneTest, YieldStrengthIsNotRounded) {
    Bullone b;
    b.Classe(8.8);
    EXPECT_NE(b.fyb.Stretto(), 640.F);
    EXPECT_EQ(double(b.fyb), 640.0001220703125);
    EXPECT_EQ(TestoPiano(b.fyb), "640.0001");
    b.Classe(10.9);
    EXPECT_EQ(TestoPiano(b.fyb), "899.9996");
}

TEST_F(BulloneTest, SettersComputeNoResistance) {
    Bullone b = Fatto(16, 8.8);
    const float prima = b.FvRd.Stretto();
    b.Classe(4.6);
    b.d(Posizione(20));
    b.Gambo = true;
    EXPECT_EQ(b.FvRd.Stretto(), prima);
    EXPECT_EQ(b.Ataglio.Stretto(), 245.F) << "Gambo alone does not change the area";
    b.d(Posizione(20));
    EXPECT_FLOAT_EQ(b.Ataglio.Stretto(), 314.15927F) << "a new diameter takes the area of Gambo at once";
    EXPECT_EQ(b.FvRd.Stretto(), prima);
    b.CalcolaResistenzaTaglio();
    EXPECT_FLOAT_EQ(b.FvRd.Stretto(), 0.6F * 400 * 314.15927F / 1.25F);
}

// By hand: M16, As = 157, fub = 800, gamma 1.25: 0.6 · 800 · 157 / 1.25 = 60288, 0.9 · 800 · 157 / 1.25 =
// 90432.
TEST_F(BulloneTest, M16Class88) {
    const Bullone b = Fatto(16, 8.8);
    EXPECT_FLOAT_EQ(b.FvRd.Stretto(), 60288.F);
    EXPECT_FLOAT_EQ(b.FtRd.Stretto(), 90432.F);
    EXPECT_EQ(b.Ataglio.Stretto(), 157.F);
}

struct Pubblicato {
    int d;
    double classe;
    double FvRd, FtRd; // kN; 0 where the table does not say
};

// ArcelorMittal, Orange Book, tables of non-preloaded and preloaded hexagon head bolts: one shear plane
// through the thread, tension; gamma M2 1.25. M20 8.8 in tension: SCI P363, the same table in the Blue Book.
TEST_F(BulloneTest, PublishedResistances) {
    const Pubblicato casi[] = {{16, 4.6, 30.1, 45.2}, {20, 4.6, 47.0, 70.6}, {24, 4.6, 67.8, 102},
                               {16, 8.8, 60.3, 0},    {20, 8.8, 94.1, 141},  {24, 8.8, 136, 0},
                               {16, 10.9, 62.8, 0},   {20, 10.9, 98.0, 0},   {24, 10.9, 141, 0}};
    for (const Pubblicato& c : casi) {
        const Bullone b = Fatto(c.d, c.classe);
        EXPECT_NEAR(b.FvRd / 1000, c.FvRd, 0.005 * c.FvRd) << "M" << c.d << ' ' << c.classe;
        if (c.FtRd > 0) {
            EXPECT_NEAR(b.FtRd / 1000, c.FtRd, 0.005 * c.FtRd) << "M" << c.d << ' ' << c.classe;
        }
    }
}

TEST_F(BulloneTest, FactorIsReadAtEachEvaluation) {
    Bullone b = Fatto(16, 8.8);
    GammaM2 = 1;
    b.CalcolaResistenzaTaglio();
    EXPECT_FLOAT_EQ(b.FvRd.Stretto(), 75360.F); // 60288 · 1.25
    EXPECT_FLOAT_EQ(b.FtRd.Stretto(), 113040.F);
}

struct CasoGioco {
    const char* nome;
    int d;
    double classe;
    double foro;
    double coefficiente; // of fub As / gamma
};
void PrintTo(const CasoGioco& c, std::ostream* os) { *os << c.nome; }

class GiocoTest : public testing::TestWithParam<CasoGioco> {};

TEST_P(GiocoTest, ReducesSmallBoltsOfSomeClassesOnly) {
    const CasoGioco& c = GetParam();
    Bullone b = Fatto(c.d, c.classe);
    b.do_ = c.foro;
    b.CalcolaResistenzaTaglio();
    EXPECT_NEAR(b.FvRdFilettata, c.coefficiente * b.fub * b.Ares / 1.25, 1e-6 * b.FvRdFilettata);
    EXPECT_NEAR(b.FvRdGambo, 0.6 * b.fub * b.Alorda / 1.25, 1e-6 * b.FvRdGambo)
        << "the shank is never reduced";
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Fori, GiocoTest, testing::Values(
    CasoGioco{"M14_88_largo",       14, 8.8,  16,   0.6},
    CasoGioco{"M14_46_largo",       14, 4.6,  16,   0.6},
    CasoGioco{"M14_56_largo",       14, 5.6,  16,   0.6},
    CasoGioco{"M14_109_largo",      14, 10.9, 16,   0.5 * 0.85},
    CasoGioco{"M14_48_largo",       14, 4.8,  16,   0.5 * 0.85},
    CasoGioco{"M12_58_largo",       12, 5.8,  14,   0.5 * 0.85},
    CasoGioco{"M8_68_largo",         8, 6.8,  10,   0.5 * 0.85},
    CasoGioco{"M14_109_gioco_uno",  14, 10.9, 15,   0.5},
    CasoGioco{"M14_109_poco_oltre", 14, 10.9, 15.1, 0.5 * 0.85},
    CasoGioco{"M16_109_largo",      16, 10.9, 19,   0.5}),
    [](const auto& i) { return std::string(i.param.nome); });
// clang-format on

// Table 6.5.3 and 6.5.5 (8): the shank bears 0.6 in any class and hole, so does the thread of 8.8.
TEST_F(BulloneTest, FactorsOfTheShearResistanceAreThoseOfTheThread) {
    EXPECT_EQ(Fatto(12, 10.9).alfaV(), 0.5);
    EXPECT_EQ(Fatto(12, 10.9, true).alfaV(), 0.6);
    EXPECT_EQ(Fatto(12, 8.8).alfaV(), 0.6);
    const auto gioco = [](double classe, bool gambo, double foro) {
        Bullone b = Fatto(12, classe, gambo);
        b.do_ = foro;
        return b.FattoreGioco();
    };
    EXPECT_EQ(gioco(10.9, false, 14), 0.85);
    EXPECT_EQ(gioco(10.9, false, 13), 1) << "the standard hole";
    EXPECT_EQ(gioco(10.9, true, 14), 1);
    EXPECT_EQ(gioco(8.8, false, 14), 1);
}

TEST_F(BulloneTest, UnknownClassIsToldAndKeepsTheOldThreadResistance) {
    Bullone b = Fatto(16, 8.8);
    b.Classe(12.9);
    b.CalcolaResistenzaTaglio();
    EXPECT_EQ(registratore.testi, std::vector<std::string>{"Classe bullone non implementata"});
    EXPECT_FLOAT_EQ(b.FvRdFilettata.Stretto(), 60288.F);
    EXPECT_FLOAT_EQ(b.FvRd.Stretto(), 60288.F);
    EXPECT_FLOAT_EQ(b.FtRd.Stretto(), 0.9F * 1200 * 157 / 1.25F) << "the others are still computed";
    EXPECT_NEAR(b.FvRdGambo, 0.6 * 1200 * std::numbers::pi * 64 / 1.25, 1e-2);
}

TEST_F(BulloneTest, ClassesCompareExactlyInSinglePrecision) {
    Bullone b = Fatto(16, 8.8);
    b.Classe(8.8000002); // the same 32 bits as 8.8
    b.CalcolaResistenzaTaglio();
    EXPECT_TRUE(registratore.testi.empty());
    b.Classe(8.800001);
    b.CalcolaResistenzaTaglio();
    EXPECT_EQ(registratore.testi.size(), 1U);
}

// do = 22, fub/fu = 800/360 > 1; the least of 1, e1/66, p1/66 - 1/4, fub/fu.
TEST_F(BulloneTest, AlfaIsTheLeastOfFour) {
    Bullone b = InPiastra(20, 8.8, 3, 3.75, 1.5, 3);
    b.AlfaCalcola();
    EXPECT_EQ(b.alfa.Stretto(), 1.F);
    b.e1 = 33;
    b.AlfaCalcola();
    EXPECT_EQ(b.alfa.Stretto(), 0.5F);
    b.p1 = 41.25; // 41.25 / 66 - 0.25
    b.AlfaCalcola();
    EXPECT_EQ(b.alfa.Stretto(), 0.375F);
    b.fu = 3200;
    b.AlfaCalcola();
    EXPECT_EQ(b.alfa.Stretto(), 0.25F);
    b.e1 = 660;
    b.p1 = 660;
    b.fu = 360;
    b.AlfaCalcola();
    EXPECT_EQ(b.alfa.Stretto(), 1.F);
}

TEST_F(BulloneTest, DivisionsByZeroAreArithmeticStops) {
    Bullone b = InPiastra(20, 8.8, 3, 3.75, 1.5, 3);
    b.fu = 0;
    EXPECT_THROW(b.AlfaCalcola(), ErroreAritmetico);
    b.fu = 360;
    b.do_ = 0;
    EXPECT_THROW(b.RifollamentoCalcola(), ErroreAritmetico);
    Bullone nuovo;
    EXPECT_THROW((void)nuovo.InterazioneTaglioTrazione(), ErroreAritmetico);
}

// By hand: 2.5 · 1 · 360 · 20 · 10 / 1.25 = 144000.
TEST_F(BulloneTest, BearingWithFullDistances) {
    Bullone b = InPiastra(20, 8.8, 3, 3.75, 1.5, 3);
    b.RifollamentoCalcola();
    EXPECT_FLOAT_EQ(b.FbRd.Stretto(), 144000.F) << "e2 = 1.5 do and p2 = 3 do reduce nothing";
    b = InPiastra(20, 8.8, 3, 3.75, 1.9, 3.9);
    b.RifollamentoCalcola();
    EXPECT_FLOAT_EQ(b.FbRd.Stretto(), 144000.F) << "more adds nothing";
}

TEST_F(BulloneTest, TwoTransverseReductions) {
    Bullone b = InPiastra(20, 8.8, 3, 3.75, 1.2, 3);
    b.RifollamentoCalcola();
    EXPECT_FLOAT_EQ(b.FbRd.Stretto(), 96000.F) << "2/3 at the least edge distance";
    b.e2 = 29.7; // 1.35 do: half way, 5/6
    b.RifollamentoCalcola();
    EXPECT_FLOAT_EQ(b.FbRd.Stretto(), 120000.F);
    b.p2 = 59.4; // 2.7 do: half way again
    b.RifollamentoCalcola();
    EXPECT_FLOAT_EQ(b.FbRd.Stretto(), 100000.F);
    b.e2 = 26.4;
    b.p2 = 52.8;
    b.RifollamentoCalcola();
    EXPECT_FLOAT_EQ(b.FbRd.Stretto(), 64000.F) << "4/9 with both at their least";
}

TEST_F(BulloneTest, FiveMessagesStandTogether) {
    Bullone b = InPiastra(20, 8.8, 3, 3.75, 1.5, 3);
    b.do_ = 19;
    b.e1 = b.p1 = b.e2 = b.p2 = 1;
    b.RifollamentoCalcola();
    EXPECT_EQ(b.Messaggio(1), "do deve essere > d = 20.0");
    EXPECT_EQ(b.Messaggio(2), "e1 deve essere > 1.2 do = 22.8 - EC3 #6.5.1.2. (1)");
    EXPECT_EQ(b.Messaggio(3), "p1 deve essere > 2.2 do = 41.8 - EC3 #6.5.1.5. (1)");
    EXPECT_EQ(b.Messaggio(4), "e2 deve essere > 1.2 do = 22.8 - EC3 #6.5.1.3. (2)");
    EXPECT_EQ(b.Messaggio(5), "p2 deve essere > 2.4 do = 45.6 - EC3 #6.5.1.5. (2)");
    EXPECT_EQ(b.FbRd.Stretto(), 0.F);
    b.CalcolaResistenzaTaglio();
    EXPECT_NE(b.Messaggio(5), "") << "they stay until bearing is computed again";
    b.do_ = 22;
    b.e1 = b.p1 = b.e2 = b.p2 = 100;
    b.RifollamentoCalcola();
    for (std::int16_t i = 1; i <= 5; ++i)
        EXPECT_EQ(b.Messaggio(i), "");
    EXPECT_FLOAT_EQ(b.FbRd.Stretto(), 144000.F);
}

// Limits of do = 18, none of them a number that 32 bits hold: 21.6, 39.6, 43.2.
TEST_F(BulloneTest, DistancesAtTheirLeastPass) {
    Bullone b = InPiastra(16, 8.8, 1, 1, 1, 1);
    b.e1 = b.e2 = 21.6;
    b.p1 = 39.6;
    b.p2 = 43.2;
    b.RifollamentoCalcola();
    for (std::int16_t i = 1; i <= 5; ++i)
        EXPECT_EQ(b.Messaggio(i), "");
    EXPECT_GT(b.FbRd, 0);
}

TEST_F(BulloneTest, OneStepBelowFailsAlone) {
    Singolo Bullone::*const distanze[] = {&Bullone::e1, &Bullone::p1, &Bullone::e2, &Bullone::p2};
    for (std::int16_t i = 0; i < 4; ++i) {
        Bullone b = InPiastra(16, 8.8, 1, 1, 1, 1);
        b.e1 = b.e2 = 21.6;
        b.p1 = 39.6;
        b.p2 = 43.2;
        b.*distanze[i] = std::nextafter((b.*distanze[i]).Stretto(), 0.F);
        b.RifollamentoCalcola();
        EXPECT_EQ(b.FbRd.Stretto(), 0.F);
        for (std::int16_t slot = 1; slot <= 5; ++slot)
            EXPECT_EQ(b.Messaggio(slot).empty(), slot != i + 2) << slot;
    }
}

TEST_F(BulloneTest, HoleOfTheBoltsOwnDiameterPasses) {
    Bullone b = InPiastra(16, 8.8, 3, 3.75, 1.5, 3);
    b.do_ = 16;
    b.RifollamentoCalcola();
    EXPECT_EQ(b.Messaggio(1), "");
    EXPECT_GT(b.FbRd, 0);
}

TEST_F(BulloneTest, NoThicknessNoBearingAndNoMessage) {
    Bullone b = InPiastra(16, 8.8, 3, 3.75, 1.5, 3);
    b.t = 0;
    b.RifollamentoCalcola();
    EXPECT_EQ(b.FbRd.Stretto(), 0.F);
    for (std::int16_t i = 1; i <= 5; ++i)
        EXPECT_EQ(b.Messaggio(i), "");
}

TEST_F(BulloneTest, MessagesUseTheSystemsSeparator) {
    const prove::ConSeparatori italiano(u',', u'.');
    Bullone b = InPiastra(16, 8.8, 1, 3.75, 1.5, 3);
    b.RifollamentoCalcola();
    EXPECT_EQ(b.Messaggio(2), "e1 deve essere > 1.2 do = 21,6 - EC3 #6.5.1.2. (1)");
}

TEST_F(BulloneTest, SlotOutsideOneToFiveIsAnError) {
    const Bullone b;
    EXPECT_THROW((void)b.Messaggio(0), std::out_of_range);
    EXPECT_THROW((void)b.Messaggio(6), std::out_of_range);
}

// M16 8.8: 30144 / 60288 + 63302.4 / (1.4 · 90432) = 0.5 + 0.5.
TEST_F(BulloneTest, InteractionAddsShearAndReducedTension) {
    Bullone b = Fatto(16, 8.8);
    b.FvSd = 30144;
    EXPECT_NEAR(b.InterazioneTaglioTrazione(), 0.5, 1e-7);
    b.FtSd = 63302.4;
    EXPECT_NEAR(b.InterazioneTaglioTrazione(), 1, 1e-7);
}

} // namespace
