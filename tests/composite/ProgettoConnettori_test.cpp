// The design of the studs as a whole: limits, messages, pairs, advice. Expected values by hand.

#include "composite/ProgettoConnettori.h"

#include "TraveDiProva.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

class ProgettoConnettoriTest : public AmbienteTrave {
protected:
    /// Ribs across the beam, 40 in 8 m; k is 1 of one stud and 0.8 of two.
    static AcciaioCls Trave(std::int16_t tipo = nervatureTrasversali) {
        AcciaioCls t;
        t.TipoSoletta = tipo;
        t.hc = 130;
        t.ha = 50;
        t.b0 = 100;
        t.iNervature = 200;
        t.dPiolo = 19;
        t.hPiolo = 100;
        t.fu = 450;
        t.GammaV = 1.25;
        t.Luce = 8;
        t.MplRd = 400e6;
        t.Msd = 300e6;
        t.Sezione = std::make_shared<SezioneDoppioT>();
        t.Sezione->McyRd = 200e6;
        AcciaioCls prova = t;
        prova.CalcolaPrd();
        t.Vl = 10.5 * prova.PRd;
        return t;
    }

    void Fermata(AcciaioCls t, const char* testo) {
        registratore.messaggi.clear();
        const EsitoConnettori esito = ProgettaConnettori(t, false);
        ASSERT_EQ(registratore.messaggi.size(), 1U);
        EXPECT_EQ(registratore.messaggi[0], (Messaggio{testo, Icona::Stop, "Attenzione !", Bottoni::Ok}));
        EXPECT_FALSE(esito.PRd);
        EXPECT_FALSE(esito.n);
        EXPECT_FALSE(esito.Passo);
        EXPECT_EQ(t.nConnettori, 0);
    }
};

TEST_F(ProgettoConnettoriTest, FullConnection) {
    AcciaioCls t = Trave();
    const EsitoConnettori esito = ProgettaConnettori(t, false);
    EXPECT_EQ(esito.PRd, t.PRd);
    EXPECT_EQ(esito.n, 22);
    EXPECT_EQ(esito.Passo, 380); // 8000/21 = 380.95
    EXPECT_EQ(esito.Unita, "connettori");
    EXPECT_EQ(esito.nervature, 1);
    EXPECT_EQ(esito.messaggio, "");
    EXPECT_EQ(esito.nervatureDoppie, 0);
    EXPECT_TRUE(registratore.testi.empty());
}

// Half a newton is a force, and a stud that bears less than one still a stud; a spacing below a millimetre is
// one.
TEST_F(ProgettoConnettoriTest, LittleIsNotNothing) {
    AcciaioCls t = Trave(solettaPiena);
    t.Vl = 0.5;
    EXPECT_TRUE(ProgettaConnettori(t, false).PRd);
    EXPECT_EQ(t.MessaggioPioli, "");
    t.Vl = 0;
    EXPECT_FALSE(ProgettaConnettori(t, false).PRd);
    AcciaioCls weak = Trave(solettaPiena);
    weak.fu = 0.001; // 0.8 0.001 283.5 / 1.25 = 0.181 N
    weak.Vl = 1;
    const EsitoConnettori esito = ProgettaConnettori(weak, false);
    ASSERT_TRUE(esito.PRd);
    EXPECT_NEAR(*esito.PRd, 0.1815, 1e-4);
    EXPECT_EQ(esito.n, 12) << "2 x 5.51, rounded up";
    AcciaioCls brief = Trave(solettaPiena);
    brief.Luce = 0.01;
    EXPECT_EQ(ProgettaConnettori(brief, false).Passo, 0) << "10 / 21 mm, in whole ones";
}

TEST_F(ProgettoConnettoriTest, SolidSlabShowsNoRibs) {
    AcciaioCls t = Trave(solettaPiena);
    const EsitoConnettori esito = ProgettaConnettori(t, false);
    EXPECT_EQ(esito.n, 22);
    EXPECT_FALSE(esito.nervature);
}

TEST_F(ProgettoConnettoriTest, LimitsOfTransverseRibs) {
    AcciaioCls t = Trave();
    t.dPiolo = 22;
    t.ha = 86; // only the first is told
    Fermata(t, "Diametro dei connettori d > 20 mm !, EC4, # 6.3.3.2(1)");
    t.dPiolo = 20.5;
    Fermata(t, "Diametro dei connettori d > 20 mm !, EC4, # 6.3.3.2(1)");
    t.dPiolo = 20;
    Fermata(t, "Altezza lamiera hp > 85 mm ! EC4, # 6.3.3.2(1)");
    t.ha = 85;
    t.b0 = 84.9;
    Fermata(t, "bo < hp !, EC4, # 6.3.3.2(1)");
    t.b0 = 85;
    registratore.testi.clear();
    ProgettaConnettori(t, false);
    EXPECT_TRUE(registratore.testi.empty());
    t.TipoSoletta = nervatureParallele; // none of them there
    t.dPiolo = 25;
    t.ha = 90;
    ProgettaConnettori(t, false);
    EXPECT_TRUE(registratore.testi.empty());
}

TEST_F(ProgettoConnettoriTest, QuietEndsLeaveNothing) {
    AcciaioCls t = Trave();
    t.hPiolo = 131;
    EsitoConnettori esito = ProgettaConnettori(t, false);
    EXPECT_EQ(esito.messaggio, "Il piolo esce dalla soletta!");
    EXPECT_FALSE(esito.PRd);
    EXPECT_FALSE(esito.n);
    t = Trave();
    t.Vl = 0;
    esito = ProgettaConnettori(t, false);
    EXPECT_EQ(esito.messaggio, "Vl non è maggiore di 0: nessun connettore");
    EXPECT_FALSE(esito.n);
    t.Vl = -5;
    EXPECT_FALSE(ProgettaConnettori(t, true).n);
    EXPECT_TRUE(registratore.testi.empty());
}

TEST_F(ProgettoConnettoriTest, TooManyStuds) {
    AcciaioCls t = Trave();
    t.Vl = 1e10;
    const EsitoConnettori esito = ProgettaConnettori(t, false);
    EXPECT_EQ(esito.messaggio, "troppi connettori");
    EXPECT_TRUE(esito.PRd);
    EXPECT_FALSE(esito.n);
    EXPECT_FALSE(esito.Passo);
}

// Half of 10.5 is 5.25: 6 on each side.
TEST_F(ProgettoConnettoriTest, PartialConnection) {
    AcciaioCls t = Trave();
    const EsitoConnettori esito = ProgettaConnettori(t, true);
    EXPECT_EQ(esito.n, 12);
    EXPECT_EQ(esito.Passo, 727); // 8000/11
    t.Msd = 500e6;
    const EsitoConnettori oltre = ProgettaConnettori(t, true);
    EXPECT_EQ(oltre.messaggio, "Msd > MplRd");
    EXPECT_FALSE(oltre.n);
    t.Msd = 100e6;
    const EsitoConnettori nessuno = ProgettaConnettori(t, true);
    EXPECT_EQ(nessuno.n, 0);
    EXPECT_FALSE(nessuno.Passo);
    EXPECT_EQ(nessuno.messaggio, "");
}

// Pairs: 10.5/0.8 = 13.1, so 28; half of them 14. Msd 301: 14.14, up to 16.
TEST_F(ProgettoConnettoriTest, PartialConnectionInPairs) {
    AcciaioCls t = Trave();
    t.Nr = 2;
    EXPECT_EQ(ProgettaConnettori(t, false).n, 28);
    const EsitoConnettori esito = ProgettaConnettori(t, true);
    EXPECT_EQ(esito.n, 14);
    EXPECT_EQ(esito.Unita, "coppie conn.");
    EXPECT_EQ(esito.Passo, 1230); // 2·8000/13
    EXPECT_EQ(esito.nervature, 6);
    t.Msd = 301e6;
    EXPECT_EQ(ProgettaConnettori(t, true).n, 16);
    t.Msd = 401e6;
    EXPECT_EQ(ProgettaConnettori(t, true).messaggio, "Msd > MplRd");
    t.Msd = -200e6;
    EXPECT_EQ(ProgettaConnettori(t, true).n, 0);
}

// 12 of the 20 studs of full connection: from 200 six tenths of the way to 400.
TEST_F(ProgettoConnettoriTest, FewerStudsGiveAShareOfTheMoment) {
    AcciaioCls t = Trave();
    t.nConnCalc = 10;
    EXPECT_DOUBLE_EQ(ConParziale(t, 12).grado, 0.6);
    EXPECT_DOUBLE_EQ(ConParziale(t, 12).MRd, 320e6);
    EXPECT_EQ(ConParziale(t, 26).grado, 1);
    EXPECT_EQ(ConParziale(t, 26).MRd, 400e6);
}

TEST_F(ProgettoConnettoriTest, CountOfPairs) {
    EXPECT_EQ(ParzRipCoppie(28, 400, 300, 200), 14);
    EXPECT_EQ(ParzRipCoppie(28, 400, -300, 200), 14);
    EXPECT_EQ(ParzRipCoppie(28, 400, 301, 200), 15); // 14.14
    EXPECT_EQ(ParzRipCoppie(28, 400, 200, 200), 0);
    EXPECT_EQ(ParzRipCoppie(28, 200, 150, 200), 0);
    EXPECT_EQ(ParzRipCoppie(28, 200, 250, 200), 0); // no count
    EXPECT_FALSE(ContoParziale(28, 200, 250, 200));
}

// Half the beam has N = 20 ribs. With one stud in each, 20·PRd; a rib with two carries 1.6·PRd, 0.6 more.
TEST_F(ProgettoConnettoriTest, AdviceOnPairs) {
    AcciaioCls t = Trave();
    const double PRd = *ProgettaConnettori(t, false).PRd;
    t.Vl = 20 * PRd + 0.59 * PRd; // 42 studs, closer than the ribs
    EsitoConnettori esito = ProgettaConnettori(t, false);
    EXPECT_EQ(esito.nervature, 0);
    EXPECT_EQ(esito.nervatureDoppie, 1);
    t.Vl = 20 * PRd + 0.61 * PRd;
    EXPECT_EQ(ProgettaConnettori(t, false).nervatureDoppie, 2);
    t.Vl = 31.9 * PRd;
    EXPECT_EQ(ProgettaConnettori(t, false).nervatureDoppie, 20);
    t.Vl = 32.1 * PRd; // more than pairs in all of them carry
    esito = ProgettaConnettori(t, false);
    EXPECT_EQ(esito.nervatureDoppie, 0);
    EXPECT_EQ(esito.messaggio, "connettori insufficienti: le nervature non bastano");
    EXPECT_EQ(esito.n, 66);
    t.Nr = 2; // pairs at 0.8: 82 studs, 197 mm apart in pairs
    esito = ProgettaConnettori(t, false);
    EXPECT_EQ(esito.nervature, 0);
    EXPECT_EQ(esito.messaggio, "connettori insufficienti: le nervature non bastano");
}

TEST_F(ProgettoConnettoriTest, NoAdviceWhereRibsAreEnough) {
    AcciaioCls t = Trave();
    const double PRd = *ProgettaConnettori(t, false).PRd;
    t.Vl = 20 * PRd * 0.999; // 40 studs are 205 mm apart
    EXPECT_EQ(ProgettaConnettori(t, false).nervatureDoppie, 0);
    t = Trave();
    t.Nr = 2;
    t.Vl = 20 * PRd; // pairs at 0.8: 50 studs, 16000/49 = 326 mm apart, a pair in each rib
    EXPECT_EQ(ProgettaConnettori(t, false).n, 50);
    EXPECT_EQ(ProgettaConnettori(t, false).nervature, 1);
    EXPECT_EQ(ProgettaConnettori(t, false).messaggio, "");
    t = Trave(nervatureParallele);
    t.Vl = 40 * PRd;
    EXPECT_EQ(ProgettaConnettori(t, false).nervatureDoppie, 0); // along the beam ribs are no limit
    EXPECT_EQ(ProgettaConnettori(t, false).messaggio, "");
}

TEST_F(ProgettoConnettoriTest, TextOfTheAdvice) {
    EXPECT_EQ(TestoSuggerimento(1), "Dove si ha taglio massimo disporre\n2 connettori per nervatura");
    EXPECT_EQ(TestoSuggerimento(7),
              "Dove si ha taglio massimo disporre\n2 connettori nelle prime 7 nervature");
}

} // namespace
