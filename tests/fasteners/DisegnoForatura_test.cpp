#include "fasteners/DisegnoForatura.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

#include "drawing/SuperficieFinta.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

constexpr ForaturaDisegnata foratura{20, 22, 45, 70, 35, 60};

/// What was drawn, measured against the distances it is drawn from: the holes give scale and place.
class DisegnoForaturaTest : public testing::Test {
protected:
    void Disegna(const ForaturaDisegnata& f) {
        superficie.linee.clear();
        superficie.scritte.clear();
        superficie.cerchi.clear();
        superficie.aree.clear();
        DisegnoForatura(f).PlottaInOggetto(&superficie, "frmBulloni");
    }
    /// Height of a line of text.
    [[nodiscard]] double Riga() const {
        const RigaTesto r = SuperficieFinta(400, 300).TextLine();
        return r.sopra + r.sotto;
    }
    void Misura(const ForaturaDisegnata& f) {
        ASSERT_FALSE(superficie.cerchi.empty());
        const auto [sinistra, destra] =
            std::ranges::minmax_element(superficie.cerchi, {}, &SuperficieFinta::Cerchio::x);
        const auto [alto, basso] =
            std::ranges::minmax_element(superficie.cerchi, {}, &SuperficieFinta::Cerchio::y);
        x1 = sinistra->x;
        x2 = destra->x;
        y1 = basso->y;
        y2 = alto->y;
        scala = (x2 - x1) / f.p1;
    }
    [[nodiscard]] bool HaLinea(double xa, double ya, double xb, double yb) const {
        const auto vicino = [](double a, double b) { return std::abs(a - b) < 1e-6; };
        return std::ranges::any_of(superficie.linee, [&](const auto& l) {
            return (vicino(l.x1, xa) && vicino(l.y1, ya) && vicino(l.x2, xb) && vicino(l.y2, yb)) ||
                   (vicino(l.x1, xb) && vicino(l.y1, yb) && vicino(l.x2, xa) && vicino(l.y2, ya));
        });
    }
    [[nodiscard]] std::ptrdiff_t Cerchi(double x, double y, double r) const {
        return std::ranges::count_if(superficie.cerchi, [&](const auto& c) {
            return std::abs(c.x - x) + std::abs(c.y - y) + std::abs(c.r - r) < 1e-6;
        });
    }
    /// Middle of a name; a character is 0.6 of its height wide.
    [[nodiscard]] std::pair<double, double> Nome(const std::string& testo) const {
        for (const auto& s : superficie.scritte)
            if (s.testo == testo)
                return {s.x + 0.3 * s.altezza * static_cast<double>(testo.size()), s.y};
        ADD_FAILURE() << testo << " is not written";
        return {};
    }

    SuperficieFinta superficie{400, 300};
    SuUscita uscita{&superficie};
    double x1 = 0, x2 = 0; ///< centres of the holes
    double y1 = 0, y2 = 0; ///< below, above
    double scala = 1;
};

TEST_F(DisegnoForaturaTest, HolesStandInTheirPitchesWithTheirAxes) {
    Disegna(foratura);
    Misura(foratura);
    EXPECT_NEAR(y1 - y2, 60 * scala, 1e-9);
    const double oltre = 11 * scala + 4;
    for (const double x : {x1, x2})
        for (const double y : {y1, y2}) {
            EXPECT_GE(Cerchi(x, y, 11 * scala), 1);
            EXPECT_EQ(Cerchi(x, y, 10 * scala), 1);
            EXPECT_TRUE(HaLinea(x - oltre, y, x + oltre, y));
            EXPECT_TRUE(HaLinea(x, y - oltre, x, y + oltre));
        }
}

// The end of the plate is e1 from the second row, its edges are e2 from the holes.
TEST_F(DisegnoForaturaTest, EdgesStandAtTheirDistances) {
    Disegna(foratura);
    Misura(foratura);
    const double fine = x2 + 45 * scala;
    const double basso = y1 + 35 * scala;
    const double alto = y2 - 35 * scala;
    const double rotto = x1 - 28 * scala; // 0.4 of p1, which is more than a hole
    EXPECT_TRUE(HaLinea(fine, basso, fine, alto));
    EXPECT_TRUE(HaLinea(rotto, basso, fine, basso));
    EXPECT_TRUE(HaLinea(fine, alto, rotto, alto));
}

// The broken side runs down from corner to corner; it is as far right above as it is left below.
TEST_F(DisegnoForaturaTest, BrokenSideSwingsEvenlyAboutItsMiddle) {
    Disegna(foratura);
    Misura(foratura);
    const double rotto = x1 - 28 * scala;
    const double alto = y2 - 35 * scala;
    const double basso = y1 + 35 * scala;
    const auto& linee = superficie.linee;
    const auto prima = std::ranges::find_if(linee, [&](const auto& l) {
        return std::abs(l.x1 - rotto) + std::abs(l.y1 - alto) < 1e-6 && std::abs(l.x2 - rotto) < 20 * scala;
    });
    ASSERT_GE(linee.end() - prima, 24);
    for (int i = 0; i < 24; ++i) {
        const auto& qui = prima[i];
        const auto& specchio = prima[23 - i];
        EXPECT_GT(qui.y2, qui.y1);
        EXPECT_NEAR(qui.x1 - rotto, rotto - specchio.x2, 1e-9) << i;
        EXPECT_NEAR(qui.y1 - alto, basso - specchio.y2, 1e-9) << i;
    }
    EXPECT_NEAR(prima[23].x2, rotto, 1e-9);
    EXPECT_NEAR(prima[23].y2, basso, 1e-9);
}

// A cubic whose middle points lie s aside swings by 3ut(u - t)s: sqrt(3)/6 s at the most, s being 0.35 of a
// line.
TEST_F(DisegnoForaturaTest, BrokenSideSwingsByATenthOfALine) {
    Disegna(foratura);
    Misura(foratura);
    const double rotto = x1 - 28 * scala;
    double oltre = 0;
    for (const auto& [x, y] : superficie.aree.at(0).punti)
        if (x < x1)
            oltre = std::max(oltre, x - rotto);
    EXPECT_NEAR(oltre, std::sqrt(3) / 6 * 0.35 * Riga(), 1e-3 * Riga());
}

// Four corners, and the 23 points where the 24 chords of the broken side meet.
TEST_F(DisegnoForaturaTest, PlateIsFilledUpToItsBrokenSide) {
    Disegna(foratura);
    Misura(foratura);
    ASSERT_EQ(superficie.aree.at(0).punti.size(), 27U);
    for (std::size_t i = 4; i + 1 < 27; ++i) {
        const auto& [xa, ya] = superficie.aree.at(0).punti[i];
        const auto& [xb, yb] = superficie.aree.at(0).punti[i + 1];
        EXPECT_TRUE(HaLinea(xa, ya, xb, yb)) << i;
    }
    const double alto = y2 - 35 * scala;
    EXPECT_TRUE(HaLinea(x1 - 28 * scala, alto, superficie.aree.at(0).punti[4].first,
                        superficie.aree.at(0).punti[4].second));
}

TEST_F(DisegnoForaturaTest, LoadRunsHalfWayBetweenTheRowsUpToItsHead) {
    Disegna(foratura);
    Misura(foratura);
    const double mezzo = (y1 + y2) / 2;
    EXPECT_TRUE(HaLinea(x1, mezzo, x2 - 6, mezzo));
    const auto& testa = superficie.aree.back(); // 6 long, 4.8 wide
    EXPECT_EQ(testa.fondo, Fondo::Pieno);
    ASSERT_EQ(testa.punti.size(), 3U);
    const double x[] = {x2, x2 - 6, x2 - 6};
    const double y[] = {mezzo, mezzo + 2.4, mezzo - 2.4};
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_NEAR(testa.punti[i].first, x[i], 1e-6) << i;
        EXPECT_NEAR(testa.punti[i].second, y[i], 1e-6) << i;
    }
    EXPECT_NEAR(Nome("F").second, mezzo - 2 - superficie.TextLine().sotto, 1e-6) << "over the shaft";
}

// 4 units are left free at the left and above; names take 2.2 lines at the right and 1.9 below.
TEST_F(DisegnoForaturaTest, PlateFillsWhatItsNamesLeave) {
    const double destra = 400 - 2.2 * Riga();
    const double fondo = 300 - 1.9 * Riga();
    const ForaturaDisegnata largo{20, 22, 200, 70, 35, 60};
    Disegna(largo);
    Misura(largo);
    EXPECT_NEAR(x1 - 28 * scala, 4, 1e-6);
    EXPECT_NEAR(x2 + 200 * scala, destra, 1e-6);
    EXPECT_NEAR((y1 + y2) / 2, (4 + fondo) / 2, 1e-6);
    const ForaturaDisegnata alto{20, 22, 45, 70, 300, 200};
    Disegna(alto);
    Misura(alto);
    EXPECT_NEAR(y2 - 300 * scala, 4, 1e-6);
    EXPECT_NEAR(y1 + 300 * scala, fondo, 1e-6);
    EXPECT_NEAR(((x1 - 28 * scala) + (x2 + 45 * scala)) / 2, (4 + destra) / 2, 1e-6);
}

// The first row stands a hole off the broken side where that is more than 0.4 of the pitch.
TEST_F(DisegnoForaturaTest, ANarrowPitchKeepsAHoleFromTheBrokenSide) {
    const ForaturaDisegnata f{20, 22, 45, 50, 35, 60};
    Disegna(f);
    Misura(f);
    EXPECT_TRUE(HaLinea(x1 - 22 * scala, y1 + 35 * scala, x2 + 45 * scala, y1 + 35 * scala));
}

TEST_F(DisegnoForaturaTest, NamesStandAtTheMiddleOfWhatTheyName) {
    Disegna(foratura);
    Misura(foratura);
    const double basso = y1 + 35 * scala;
    const double fine = x2 + 45 * scala;
    EXPECT_NEAR(Nome("p1").first, (x1 + x2) / 2, 1e-6);
    EXPECT_NEAR(Nome("e1").first, (x2 + fine) / 2, 1e-6);
    EXPECT_GT(Nome("p1").second, basso);
    EXPECT_EQ(Nome("p1").second, Nome("e1").second);
    EXPECT_GT(Nome("e2").first, fine);
    EXPECT_EQ(Nome("e2").first, Nome("p2").first);
    EXPECT_NEAR(Nome("e2").second - Nome("p2").second, (basso + y1) / 2 - (y1 + y2) / 2, 1e-6);
    EXPECT_NEAR(Nome("F").first, (x1 + x2) / 2, 1e-6);
}

// Dimension lines under the plate and beside it, between what they measure.
TEST_F(DisegnoForaturaTest, DimensionLinesRunBetweenWhatTheyMeasure) {
    Disegna(foratura);
    Misura(foratura);
    const double fine = x2 + 45 * scala;
    const double basso = y1 + 35 * scala;
    const auto orizzontale = [this](double a, double b, double sotto) {
        return std::ranges::any_of(superficie.linee, [&](const auto& l) {
            return l.y1 == l.y2 && l.y1 > sotto && std::abs(std::min(l.x1, l.x2) - a) < 1e-6 &&
                   std::abs(std::max(l.x1, l.x2) - b) < 1e-6;
        });
    };
    const auto verticale = [this](double a, double b, double accanto) {
        return std::ranges::any_of(superficie.linee, [&](const auto& l) {
            return l.x1 == l.x2 && l.x1 > accanto && std::abs(std::min(l.y1, l.y2) - a) < 1e-6 &&
                   std::abs(std::max(l.y1, l.y2) - b) < 1e-6;
        });
    };
    EXPECT_TRUE(orizzontale(x1, x2, basso));
    EXPECT_TRUE(orizzontale(x2, fine, basso));
    EXPECT_TRUE(verticale(y1, basso, fine));
    EXPECT_TRUE(verticale(y2, y1, fine));
    EXPECT_TRUE(HaLinea(x1, basso + 0.7 * Riga(), x2, basso + 0.7 * Riga()));
    EXPECT_TRUE(HaLinea(fine + 0.7 * Riga(), y1, fine + 0.7 * Riga(), y2));
    EXPECT_NEAR(Nome("p2").first - 0.3 * 2 * 10, fine + (0.7 + 0.35) * Riga(), 1e-6) << "letters of 10 units";
}

TEST_F(DisegnoForaturaTest, NothingLeavesTheSurface) {
    for (const ForaturaDisegnata& f : {foratura, ForaturaDisegnata{20, 22, 200, 70, 35, 60},
                                       ForaturaDisegnata{20, 22, 45, 70, 300, 200}}) {
        Disegna(f);
        for (const auto& l : superficie.linee) {
            EXPECT_GE(std::min(l.x1, l.x2), 0);
            EXPECT_LE(std::max(l.x1, l.x2), 400);
            EXPECT_GE(std::min(l.y1, l.y2), 0);
            EXPECT_LE(std::max(l.y1, l.y2), 300);
        }
        for (const auto& s : superficie.scritte)
            EXPECT_LE(s.x + 0.6 * s.altezza * static_cast<double>(s.testo.size()), 400) << s.testo;
    }
}

TEST_F(DisegnoForaturaTest, ADistanceThatIsNotAboveZeroClearsIt) {
    ForaturaDisegnata f = foratura;
    f.p2 = 0;
    EXPECT_FALSE(DisegnoForatura(f).PlottaInOggetto);
    f.p2 = 0.5;
    EXPECT_TRUE(DisegnoForatura(f).PlottaInOggetto);
}

// What the windows are laid out by [pixels].
TEST_F(DisegnoForaturaTest, SizesOfThePicture) {
    const Disegno disegno = DisegnoForatura(foratura);
    EXPECT_EQ(disegno.misura.larghezza, 260);
    EXPECT_EQ(disegno.misura.altezza, 150);
    EXPECT_EQ(disegno.minima.larghezza, 180);
    EXPECT_EQ(disegno.minima.altezza, 130);
}

} // namespace
