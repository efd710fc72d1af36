#include "sections/DisegniMomento.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "drawing/SuperficieFinta.h"
#include "frame/Numeri.h"
#include "sections/DiagrammaMomenti.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

class DisegniMomentoTest : public testing::Test {
protected:
    /// 10 units of margin and 18 of a name ("M1 " in the fake font) at each side leave 100 x 100 of 146 x
    /// 110.
    void Pict(std::int16_t pict) {
        superficie.linee.clear();
        superficie.scritte.clear();
        DisegnoPict(pict).PlottaInOggetto(&superficie, "FrmPresFless");
    }
    /// Ordinate of the diagram at a chord's end, upwards from -1 to 1.
    [[nodiscard]] double Ordinata(std::size_t corda) const {
        const auto& l = superficie.linee.at(3 + corda);
        return (55 - l.y1) / 50;
    }
    SuperficieFinta superficie{146, 110};
    SuUscita uscita{&superficie};
};

// The end ordinates of the shapes, and the one at mid-span: (M1 + M2)/2 + MQ.
TEST_F(DisegniMomentoTest, ShapesHaveTheirOrdinates) {
    Pict(pictEstremitaConcordi);
    ASSERT_EQ(superficie.linee.size(), 3U + 48U);
    EXPECT_NEAR(superficie.linee[3].x1, 23, 1e-9);
    EXPECT_NEAR(Ordinata(0), 0.9, 1e-9);
    EXPECT_NEAR(Ordinata(24), 0.7, 1e-9);
    Pict(pictEstremitaDiscordi);
    EXPECT_NEAR(Ordinata(24), 0.15, 1e-9);
    Pict(pictConcentratoContro);
    EXPECT_NEAR(Ordinata(24), 0.65 - 1.35, 1e-9);
    EXPECT_NEAR(Ordinata(12), 0.725 - 0.675, 1e-9) << "a point load bends it straight";
    Pict(pictDistribuitoConcorde);
    EXPECT_NEAR(Ordinata(12), 0.3625 + 0.75 * 0.6, 1e-9) << "a parabola is at 3/4 there";
}

TEST_F(DisegniMomentoTest, ShapesNameTheirMoments) {
    Pict(pictEstremitaConcordi);
    EXPECT_EQ(superficie.Testi(), (std::vector<std::string>{"M1", "M2"}));
    Pict(pictConcentratoConcorde);
    EXPECT_EQ(superficie.Testi(), (std::vector<std::string>{"M1", "M2", "MQ"}));
}

// 60 and -50 kNm with N eN of -20: 40 at one end, -70 at the other.
TEST_F(DisegniMomentoTest, TheMarkStandsAtTheLargestMoment) {
    struct Caso {
        MomentiMembratura m;
        std::int16_t pict;
        double dove; ///< from one end to the other
        const char* valore;
    };
    const Caso casi[] = {{{60e6, -50e6, 0, -20e6}, pictEstremitaDiscordi, 1, "-70.0"},
                         {{60e6, 30e6, 0, -20e6}, pictEstremitaConcordi, 0, "40.0"},
                         {{60e6, 30e6, 0, 0}, pictEstremitaConcordi, 0, "60.0"},
                         {{60e6, 60e6, 0, 0}, pictEstremitaConcordi, 0, "60.0"}, // of equal ones the first
                         {{40e6, 20e6, 50e6, 0}, pictDistribuitoConcorde, 0.5, "80.0"},
                         {{40e6, -10e6, 10e6, -40e6}, pictConcentratoConcorde, 1, "-50.0"}};
    SuperficieFinta foglio{168, 76};
    for (const Caso& c : casi) {
        foglio.scritte.clear();
        foglio.linee.clear();
        DisegnoMomenti(c.m, {}, c.pict).PlottaInOggetto(&foglio, "FrmPresFless");
        ASSERT_EQ(foglio.scritte.size(), 3U);
        std::string valore = c.valore;
        valore[valore.find('.')] = static_cast<char>(CarDecimale);
        EXPECT_EQ(foglio.scritte[1].testo, valore);
        const double inizio = foglio.linee.at(3).x1;
        const double luce = foglio.linee.at(50).x2 - inizio;
        // the number stands beside the mark, inwards
        const double testo = foglio.scritte[1].x + (c.dove == 1 ? foglio.TextWidth(valore) : 0);
        EXPECT_NEAR((testo - inizio) / luce, c.dove, 0.1) << valore;
    }
}

// 56 x 46 of the diagram with 5 at each side; two axes of 84; beams of 84 with 10 around and between them.
TEST_F(DisegniMomentoTest, PicturesHaveRoomForWhatTheyHold) {
    EXPECT_EQ(DisegnoPict(1).misura.larghezza, 66);
    EXPECT_EQ(DisegnoPict(1).misura.altezza, 56);
    EXPECT_EQ(DisegnoMomenti({}, {}, 1).misura.larghezza, 168);
    EXPECT_EQ(DisegnoProspetto(1).misura.larghezza, 104);
    EXPECT_EQ(DisegnoProspetto(2).misura.larghezza, 218);
}

TEST_F(DisegniMomentoTest, ATableHasABandForEachOfItsGroups) {
    DisegnoProspetto(1).PlottaInOggetto(&superficie, "frmMsvergH1");
    std::vector<std::string> attesi;
    for (const char* psi : {"+1", "+3/4", "+1/2", "+1/4", "0", "-1/4", "-1/2", "-3/4", "-1"}) {
        attesi.emplace_back("M");
        if (*psi != '0')
            attesi.emplace_back("ψM"); // of 0 there is no moment to name
        attesi.push_back(std::string("ψ = ") + psi);
    }
    EXPECT_EQ(superficie.Testi(), attesi);
    EXPECT_EQ(superficie.linee.size(), 9U * 51);
    EXPECT_EQ(DisegnoProspetto(1).misura.altezza, 9 * 48);
    EXPECT_EQ(DisegnoProspetto(2).misura.altezza, 5 * 60);
}

} // namespace
