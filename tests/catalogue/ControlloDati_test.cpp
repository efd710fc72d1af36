#include "catalogue/ControlloDati.h"

#include <cmath>
#include <limits>
#include <memory>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Fogli.h"
#include "Registratore.h"
#include "catalogue/Famiglie.h"
#include "catalogue/Lettore.h"
#include "catalogue/RigaDoppioT.h"
#include "catalogue/ScrittoreXls.h"
#include "frame/Ambiente.h"
#include "sections/SezioneDoppioT.h"
#include "sections/SezioneGenerica.h"

using namespace sagomi;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

using S = std::string;

TEST(ConfrontaValore, FiveLinesEachEndingInAReturn) {
    const prove::Registratore r;
    EXPECT_TRUE(ConfrontaValore(2000, 1897.6, 0.01)); // 102.4 / 2000 = 5.12 %
    EXPECT_THAT(r.testi, ElementsAre("Riscontrato valore troppo approssimato nel database\r"
                                     " 2,000\r"
                                     " invece del valore calcolato coi dati geometrici\r"
                                     " 1,898\r"
                                     "Differenza del  5.12%\r"));
}

TEST(ConfrontaValore, MoreThanTheToleranceOnly) {
    const prove::Registratore r;
    EXPECT_FALSE(ConfrontaValore(100, 100, 0.01));
    EXPECT_FALSE(ConfrontaValore(128, 127, 1.0 / 128)); // exactly the tolerance, to the bit
    EXPECT_FALSE(ConfrontaValore(128, 129, 1.0 / 128));
    EXPECT_TRUE(ConfrontaValore(128, 126.5, 1.0 / 128));
    EXPECT_TRUE(ConfrontaValore(128, 129.5, 1.0 / 128));
    EXPECT_EQ(r.testi.size(), 2U);
}

TEST(ConfrontaValore, NothingInTheTableIsNotCompared) {
    const prove::Registratore r;
    EXPECT_FALSE(ConfrontaValore(0, 1943, 0.01));
    EXPECT_FALSE(ConfrontaValore(0, 0, 0.01));
    EXPECT_FALSE(ConfrontaValore(1943, std::numeric_limits<double>::quiet_NaN(), 0.01));
    EXPECT_THAT(r.testi, IsEmpty());
}

/// IPE 200 of EN 10365.
const std::vector<Valore> ipe200 = {S("IPE 200"), 22.4,  200.0, 100.0, 5.6,  8.5,  12.0, 0.0,  28.5,   1943.0,
                                    194.3,        220.6, 8.26,  142.4, 28.5, 44.6, 2.24, 6.98, 12990.0};
/// IPN 200 of EN 10365: flanges tapered by 14 %.
const std::vector<Valore> ipn200 = {S("IPN 200"), 26.2,  200.0, 90.0,  7.5,  11.3, 7.5,  4.5,  33.4,   2140.0,
                                    214.0,        250.0, 8.0,   117.0, 26.0, 43.5, 1.87, 13.5, 10500.0};

/// A table of one row, its section, and the messages of the check.
class ControlloTest : public testing::Test {
protected:
    void Carica(const std::vector<Valore>& riga) {
        Foglio f{"IPE", {}};
        const auto& intestazioni = Intestazioni("frmDoppioT");
        for (std::size_t c = 0; c < intestazioni.size(); ++c) {
            f.Scrive(0, c, S(intestazioni[c]));
            f.Scrive(1, c, riga[c]);
        }
        ScriveXls({{f}}, dir.percorso / "a.xls");
        lettore.DatabaseName(dir.percorso / "a.xls");
        lettore.RecordSource("SELECT * FROM [IPE$]");
        lettore.Refresh();
        sezione = SezioneDoppioT();
        LeggeRiga(lettore, sezione);
        sezione.fy = 235;
        sezione.InizializzaSezione();
    }

    std::vector<S> Controlla(const std::vector<Valore>& riga) {
        Carica(riga);
        const prove::Registratore r;
        ControlloDatiLaminati(lettore, sezione);
        return r.testi;
    }

    static std::vector<Valore> Con(std::vector<Valore> riga, std::size_t campo, Valore v) {
        riga[campo] = std::move(v);
        return riga;
    }

    prove::CartellaDiProva dir;
    Lettore lettore;
    SezioneDoppioT sezione;
};

TEST_F(ControlloTest, PublishedRowsPass) {
    EXPECT_THAT(Controlla(ipe200), IsEmpty());
    EXPECT_THAT(Controlla(ipn200), IsEmpty());
}

// 1945.37 cm4 is the second moment of the 44 vertex outline, each fillet an arc in 8 chords (computed apart,
// in Python, from the vertices): (2100 - 1945.37) / 2100 = 7.363 %.
// Whatever the radius at its tip, a flange with one is tapered: torsion and warping have wider limits.
TEST_F(ControlloTest, ASmallRadiusAtTheTipMeansATaperedFlange) {
    const auto tolleranze = [this](double r2) {
        Carica(Con(ipn200, 7, r2));
        std::vector<double> t;
        for (const VoceControllo& voce : VociLaminati(sezione))
            if (voce.campo >= 17)
                t.push_back(voce.tolleranza);
        return t;
    };
    EXPECT_EQ(tolleranze(0.5), tolleranze(4.5));
    EXPECT_EQ(tolleranze(1), tolleranze(4.5));
    EXPECT_NE(tolleranze(0), tolleranze(4.5));
}

TEST_F(ControlloTest, WrongInertiaRaisesItsBoxAndNoOther) {
    EXPECT_THAT(Controlla(Con(ipe200, 9, 2100.0)),
                ElementsAre("Riscontrato valore troppo approssimato nel database\r"
                            " 2,100\r"
                            " invece del valore calcolato coi dati geometrici\r"
                            " 1,945\r"
                            "Differenza del  7.363%\r"));
    EXPECT_EQ(lettore.Numero(9), 2100);
    EXPECT_EQ(double(sezione.Jy), 21000000); // the row stays in use
}

TEST_F(ControlloTest, OneBoxForEachFieldInOrder) {
    std::vector<Valore> riga = ipe200;
    for (const std::size_t campo : {8U, 9U, 10U, 12U, 13U, 14U, 16U, 17U, 18U})
        riga[campo] = std::get<double>(riga[campo]) * 2;
    const auto testi = Controlla(riga);
    ASSERT_EQ(testi.size(), 9U);
    const char* valori[] = {" 57", " 3,886", " 388.6", " 16.52", " 284.8",
                            " 57", " 4.48",  " 13.96", " 25,980"};
    for (std::size_t i = 0; i < 9; ++i)
        EXPECT_THAT(testi[i], HasSubstr(S("database\r") + valori[i] + "\r")) << i;
}

TEST_F(ControlloTest, TheTitleNamesSectionAndQuantity) {
    Carica(Con(Con(ipe200, 9, 2100.0), 13, 200.0));
    const prove::Registratore r;
    ControlloDatiLaminati(lettore, sezione);
    ASSERT_EQ(r.messaggi.size(), 2U);
    EXPECT_EQ(r.messaggi[0].titolo, "IPE 200 - Iy (cm4)");
    EXPECT_EQ(r.messaggi[1].titolo, "IPE 200 - Iz (cm4)");
    EXPECT_EQ(r.messaggi[0].bottoni, Bottoni::OkSalta);
    EXPECT_EQ(r.messaggi[1].bottoni, Bottoni::Ok) << "nothing is left to skip";
}

TEST_F(ControlloTest, TheRestOfARowCanBeSkipped) {
    std::vector<Valore> riga = ipe200;
    for (const std::size_t campo : {8U, 9U, 10U, 12U})
        riga[campo] = std::get<double>(riga[campo]) * 2;
    Carica(riga);
    std::vector<S> titoli;
    const PortaMessaggi prima = CollegaMessaggi([&titoli](const Messaggio& m) {
        titoli.push_back(m.titolo);
        return titoli.size() == 2 ? Risposta::Salta : Risposta::Ok;
    });
    ControlloDatiLaminati(lettore, sezione);
    CollegaMessaggi(prima);
    EXPECT_THAT(titoli, ElementsAre("IPE 200 - A (cm2)", "IPE 200 - Iy (cm4)"));
}

TEST_F(ControlloTest, WeightAndPlasticModuliAreNotLookedAt) {
    std::vector<Valore> riga = ipe200;
    for (const std::size_t campo : {1U, 11U, 15U})
        riga[campo] = 1.0;
    EXPECT_THAT(Controlla(riga), IsEmpty());
}

TEST_F(ControlloTest, EmptyFieldsAreNotCompared) {
    std::vector<Valore> riga = ipe200;
    for (std::size_t campo = 9; campo < riga.size(); ++campo)
        riga[campo] = Valore();
    EXPECT_THAT(Controlla(riga), IsEmpty());
}

TEST_F(ControlloTest, TorsionOffByFivePercentPassesOnTaperedFlangesOnly) {
    Carica(ipn200);
    const double rastremata = sezione.JotaT() / 10000;
    EXPECT_THAT(Controlla(Con(ipn200, 17, rastremata / 1.05)), IsEmpty());
    EXPECT_THAT(Controlla(Con(ipn200, 17, rastremata / 0.95)), IsEmpty());
    EXPECT_THAT(Controlla(Con(ipn200, 17, rastremata / 1.091)), IsEmpty());
    EXPECT_EQ(Controlla(Con(ipn200, 17, rastremata / 1.093)).size(), 1U);
    Carica(ipe200);
    const double parallela = sezione.JotaT() / 10000;
    EXPECT_THAT(Controlla(Con(ipe200, 17, parallela / 1.05)),
                ElementsAre(HasSubstr("Differenza del  5.000%")));
    EXPECT_THAT(Controlla(Con(ipe200, 17, parallela / 1.009)), IsEmpty());
}

TEST_F(ControlloTest, WarpingHasFourOrFivePercent) {
    Carica(ipn200);
    const double rastremata = sezione.JotaOmega() / 1000000;
    EXPECT_THAT(Controlla(Con(ipn200, 18, rastremata / 1.049)), IsEmpty());
    EXPECT_EQ(Controlla(Con(ipn200, 18, rastremata / 1.051)).size(), 1U);
    Carica(ipe200);
    const double parallela = sezione.JotaOmega() / 1000000;
    EXPECT_THAT(Controlla(Con(ipe200, 18, parallela / 1.039)), IsEmpty());
    EXPECT_EQ(Controlla(Con(ipe200, 18, parallela / 1.041)).size(), 1U);
}

TEST_F(ControlloTest, NoRowNoOutlineNoCheck) {
    Carica(Con(ipe200, 9, 2100.0));
    const prove::Registratore r;
    SezioneDoppioT senzaContorno;
    ControlloDatiLaminati(lettore, senzaContorno);
    lettore.MoveNext();
    ControlloDatiLaminati(lettore, sezione);
    EXPECT_THAT(r.testi, IsEmpty());
}

/// Fields that are compared of a welded section, and their values against those of its row.
TEST_F(ControlloTest, WeldedSectionsCompareFiveOrSixFields) {
    sezione.fy = 235;
    sezione.InizializzaSezioneUtente(nullptr, 500, 250, 10, 15, 6);
    std::vector<int> campi;
    for (const VoceControllo& v : VociSaldati(sezione)) {
        campi.push_back(v.campo);
        EXPECT_EQ(v.tolleranza, 0.01);
    }
    EXPECT_THAT(campi, ElementsAre(7, 8, 9, 11, 15));
    sezione.InizializzaSezioneUtente(nullptr, 500, 250, 10, 15, 6, 180, 20);
    campi.clear();
    for (const VoceControllo& v : VociSaldati(sezione))
        campi.push_back(v.campo);
    EXPECT_THAT(campi, ElementsAre(9, 10, 11, 12, 14, 18));
}

// By hand, without fillets: 200 x 20 above, 200 x 20 below, web 10 x 260: A = 106 cm2,
// Iy = 2 (40 14^2 + 20 2^3 / 12) + 26^3 / 12 = 17171.3 cm4, Iz = 2 2 20^3 / 12 + 26 / 12 = 2668.8 cm4.
TEST_F(ControlloTest, WeldedValuesFollowFromThePlates) {
    sezione.fy = 235;
    sezione.InizializzaSezioneUtente(nullptr, 300, 200, 10, 20, 0);
    const auto voci = VociSaldati(sezione);
    EXPECT_NEAR(voci[0].calcolato, 106, 1e-9);
    EXPECT_NEAR(voci[1].calcolato, 17171.333, 1e-3);
    EXPECT_NEAR(voci[2].calcolato, 17171.333 / 15, 1e-4);
    EXPECT_NEAR(voci[3].calcolato, std::sqrt(17171.333 / 106), 1e-6);
    EXPECT_NEAR(voci[4].calcolato, std::sqrt(2668.8333 / 106), 1e-6);
    EXPECT_THAT(VociSaldati(SezioneDoppioT()), IsEmpty());
}

} // namespace
