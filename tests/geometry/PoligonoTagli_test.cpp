#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>

#include "Casi.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

/// Crossings with a line, as the polygon gives them.
struct Incontri {
    std::vector<double> x, y;
    std::vector<std::int16_t> lato;
    std::int16_t n = -1;
    std::int16_t tolti = -1;
};

Incontri Taglia(const Poligono& p, double a, double b, double c, bool togli = false) {
    Incontri i;
    p.IntersezioneConRetta(a, b, c, i.x, i.y, i.lato, i.n, togli ? &i.tolti : nullptr);
    return i;
}

void Uguale(const std::shared_ptr<Poligono>& p, const ParteAttesa& attesa, double zero, double estensione) {
    if (attesa.Area == 0) {
        EXPECT_TRUE(!p || p->Area <= zero);
        return;
    }
    ASSERT_TRUE(p);
    p->CaratteristicheStatiche();
    EXPECT_NEAR(p->Area, attesa.Area, zero);
    EXPECT_NEAR(p->xG, attesa.xG, 1e-8 * estensione);
    EXPECT_NEAR(p->yG, attesa.yG, 1e-8 * estensione);
}

std::vector<CasoPoligono> CasiTagliati() {
    std::vector<CasoPoligono> casi;
    for (const char* file :
         {"a_mano.txt", "convessi.txt", "concavi.txt", "stellati.txt", "profili.txt", "doppi.txt"})
        for (CasoPoligono& c : LeggeCasiPoligono(file))
            if (!c.tagli.empty())
                casi.push_back(std::move(c));
    return casi;
}

class TagliTest : public testing::TestWithParam<CasoPoligono> {};

TEST_P(TagliTest, PartsOfTheCut) {
    const CasoPoligono& c = GetParam();
    Poligono p = PoligonoDelCaso(c);
    p.AreaCalcola();
    for (const TaglioAtteso& t : c.tagli) {
        SCOPED_TRACE((t.lungoX ? "x " : "y ") + std::to_string(t.livello));
        std::shared_ptr<Poligono> sopra;
        std::shared_ptr<Poligono> sotto;
        p.DividiY(t.livello, sopra, sotto, t.lungoX);
        Uguale(sopra, t.sopra, 1e-9 * p.Area, p.MaxDimensione());
        Uguale(sotto, t.sotto, 1e-9 * p.Area, p.MaxDimensione());
    }
}

// The parts of any cut, also of one through vertices, add up to the whole: area and moments.
TEST_P(TagliTest, PartsAddUp) {
    Poligono p = PoligonoDelCaso(GetParam());
    p.CaratteristicheStatiche();
    const Poligono intero = p.Copia();
    const auto [xMin, xMax, yMin, yMax] = p.BoundingBox();
    // An outline with loops of both turns has parts of either sign, which lose it in the calculation.
    const std::string& titolo = GetParam().titolo;
    if (titolo.find("wings") != std::string::npos || titolo.find("loop") != std::string::npos)
        return;
    for (int k = 0; k < 24; ++k) {
        const bool lungoX = k % 2 != 0;
        const double q = (k / 2 + 0.5) / 12;
        const double livello = lungoX ? xMin + q * (xMax - xMin) : yMin + q * (yMax - yMin);
        std::shared_ptr<Poligono> sopra;
        std::shared_ptr<Poligono> sotto;
        p.DividiY(livello, sopra, sotto, lungoX);
        ASSERT_TRUE(sopra && sotto) << livello;
        double area = 0;
        double Ix = 0;
        double Sy = 0;
        for (Poligono* parte : {sopra.get(), sotto.get()}) {
            parte->CaratteristicheStatiche();
            area += parte->Area;
            Ix += parte->Ix;
            Sy += parte->Sy;
        }
        EXPECT_NEAR(area, intero.Area, 1e-9 * intero.Area) << livello;
        EXPECT_NEAR(Ix, intero.Ix, 1e-9 * std::abs(intero.Ix)) << livello;
        EXPECT_NEAR(Sy, intero.Sy, 1e-9 * intero.Area * p.MaxDimensione() + 1e-9 * std::abs(intero.Sy))
            << livello;
    }
}

/// Area above a level by clipping side by side, as a second method: every side gives the part of it that lies
/// above.
double AreaSopra(const Poligono& p, double livello) {
    std::vector<double> x;
    std::vector<double> y;
    for (int i = 1; i <= p.nVertici(); ++i) {
        const int j = i % p.nVertici() + 1;
        if (p.yi(i) >= livello) {
            x.push_back(p.xi(i));
            y.push_back(p.yi(i));
        }
        if ((p.yi(i) >= livello) == (p.yi(j) >= livello))
            continue;
        x.push_back(p.xi(i) + (livello - p.yi(i)) / (p.yi(j) - p.yi(i)) * (p.xi(j) - p.xi(i)));
        y.push_back(livello);
    }
    double area = 0;
    AreaConSegno(static_cast<std::int16_t>(x.size()), x, y, area);
    return std::abs(area);
}

// Levels that nearly meet a vertex: within the tolerance of a side, a crossing may lie beyond its end.
TEST_P(TagliTest, LevelsBesideVertices) {
    Poligono p = PoligonoDelCaso(GetParam());
    p.AreaCalcola();
    // The tolerance of side and box is 1e-5 of the extent; what lies beyond an end has no more than its
    // square.
    const double zero = 1e-9 * p.Area + 1e-10 * p.MaxDimensione() * p.MaxDimensione();
    const double passo = p.MaxDimensione();
    for (int i = 1; i <= p.nVertici(); ++i)
        for (const double scarto : {0.0, 1e-7, -1e-7, 4e-6, -4e-6, 1.1e-5, -1.1e-5, 3e-5}) {
            const double livello = Singolo(p.yi(i) + scarto * passo);
            std::shared_ptr<Poligono> sopra;
            std::shared_ptr<Poligono> sotto;
            p.DividiY(livello, sopra, sotto);
            if (sopra)
                sopra->AreaCalcola();
            EXPECT_NEAR(sopra ? sopra->Area : 0, AreaSopra(p, livello), zero) << i << " " << scarto;
        }
}

INSTANTIATE_TEST_SUITE_P(Contorni, TagliTest, testing::ValuesIn(CasiTagliati()),
                         [](const auto& i) { return std::to_string(i.index) + "_" + NomeCaso(i.param); });

TEST(IntersezioneConRetta, LineThroughARectangle) {
    const Poligono p = PoligonoDaTesto("0 0, 40 0, 40 20, 0 20");
    // y = 5 as -y + 5 = 0
    const Incontri i = Taglia(p, 0, -1, 5);
    ASSERT_EQ(i.n, 2);
    EXPECT_EQ(i.x, (std::vector<double>{40, 0}));
    EXPECT_EQ(i.y, (std::vector<double>{5, 5}));
    EXPECT_EQ(i.lato, (std::vector<std::int16_t>{2, 4}));
    EXPECT_EQ(Taglia(p, 0, -1, 25).n, 0);
    // The line x + y = 30 meets the lower and the upper side at x 30 and 10.
    const Incontri d = Taglia(p, 1, 1, -30);
    EXPECT_EQ(d.x, (std::vector<double>{30, 10}));
    EXPECT_EQ(d.lato, (std::vector<std::int16_t>{1, 3}));
}

TEST(IntersezioneConRetta, VertexIsFoundTwiceAndTakenOutOnRequest) {
    const Poligono p = PoligonoDaTesto("30 0, 60 50, 30 100, 0 50");
    const Incontri doppi = Taglia(p, 0, -1, 50);
    EXPECT_EQ(doppi.n, 4);
    EXPECT_EQ(doppi.tolti, -1);
    const Incontri semplici = Taglia(p, 0, -1, 50, true);
    EXPECT_EQ(semplici.n, 2);
    EXPECT_EQ(semplici.tolti, 2);
    EXPECT_EQ(semplici.lato, (std::vector<std::int16_t>{1, 3}));
    EXPECT_EQ(semplici.x, (std::vector<double>{60, 0}));
    // The first and the last side share vertex 1.
    EXPECT_EQ(Taglia(p, 0, -1, 0, true).n, 1);
    EXPECT_EQ(Taglia(p, 0, -1, 25, true).tolti, 0);
}

TEST(IntersezioneConRetta, SideOnTheLineCountsByItsNeighbours) {
    const Poligono p = PoligonoDaTesto("0 0, 40 0, 40 20, 0 20");
    const Incontri i = Taglia(p, 0, -1, 20);
    EXPECT_EQ(i.n, 2);
    EXPECT_EQ(i.lato, (std::vector<std::int16_t>{2, 4}));
}

TEST(IntersezioneConRetta, ParallelByTheSineOfTheAngle) {
    // A side of 1000 that rises by 0.0005 (sine 5e-7) is parallel to a level line, one that rises by 0.002 is
    // not; so it is with a line of coefficients a million times larger.
    const Poligono piano = PoligonoDaTesto("0 0, 1000 0.0005, 1000 500, 0 500");
    const Poligono inclinato = PoligonoDaTesto("0 0, 1000 0.002, 1000 500, 0 500");
    for (const double k : {1.0, 1e6, 1e-6}) {
        const Incontri p = Taglia(piano, 0, -k, k * 0.00025);
        EXPECT_EQ(std::count(p.lato.begin(), p.lato.end(), 1), 0) << k;
        const Incontri q = Taglia(inclinato, 0, -k, k * 0.001);
        EXPECT_EQ(std::count(q.lato.begin(), q.lato.end(), 1), 1) << k;
    }
}

TEST(IntersezioneConRetta, ToleranceOfTheBox) {
    // Extent 100: tolerance 0.001. A level just above the top is still met, further up it is not.
    const Poligono p = PoligonoDaTesto("0 0, 100 0, 50 100");
    EXPECT_EQ(Taglia(p, 0, -1, 100.0009).n, 2);
    EXPECT_EQ(Taglia(p, 0, -1, 100.0011).n, 0);
}

TEST(IntersezioneConRetta, SidesWithoutLengthDoNotUpset) {
    // A welded double T without fillets keeps doubled points at the roots of the web.
    const Poligono p =
        PoligonoDaTesto("50 0, 50 10, 3 10, 3 10, 3 190, 3 190, 50 190, 50 200, -50 200, -50 190, "
                        "-3 190, -3 190, -3 10, -3 10, -50 10, -50 0");
    const Incontri i = Taglia(p, 0, -1, 100);
    EXPECT_EQ(i.n, 2);
    EXPECT_EQ(i.x, (std::vector<double>{3, -3}));
    EXPECT_EQ(i.lato, (std::vector<std::int16_t>{4, 12}));
}

TEST(IntersezioneConRetta, EmptyPolygonHasNone) { EXPECT_EQ(Taglia(Poligono(), 0, -1, 0, true).n, 0); }

TEST(IntersezioneConSegmento, OnlyWithinTheSegment) {
    const Poligono p = PoligonoDaTesto("0 0, 40 0, 40 20, 0 20");
    Incontri i;
    p.IntersezioneConSegmento(20, 5, 60, 5, i.x, i.y, i.n, i.lato);
    ASSERT_EQ(i.n, 1);
    EXPECT_EQ(i.x[0], 40);
    EXPECT_EQ(i.lato[0], 2);
    p.IntersezioneConSegmento(-10, -10, 50, 30, i.x, i.y, i.n, i.lato);
    EXPECT_EQ(i.n, 2);
    p.IntersezioneConSegmento(10, 5, 30, 15, i.x, i.y, i.n, i.lato);
    EXPECT_EQ(i.n, 0);
    p.IntersezioneConSegmento(10, 0, 10, 0, i.x, i.y, i.n, i.lato);
    EXPECT_EQ(i.n, 0);
    EXPECT_TRUE(i.x.empty());
}

TEST(PoligonoConIntersezioni, PointsFollowTheStartOfTheirSide) {
    const Poligono p = PoligonoDaTesto("0 0, 40 0, 40 20, 0 20");
    std::vector<bool> nuovo;
    const auto q = p.PoligonoConIntersezioni({10, 30, 40, 0}, {0, 0, 5, 5}, {1, 1, 2, 4}, 4, nuovo);
    EXPECT_EQ(q->nVertici(), 8);
    EXPECT_EQ(q->CoordX(), (std::vector<double>{0, 10, 30, 40, 40, 40, 0, 0}));
    EXPECT_EQ(q->CoordY(), (std::vector<double>{0, 0, 0, 0, 5, 20, 20, 5}));
    EXPECT_EQ(nuovo, (std::vector<bool>{false, true, true, false, true, false, false, true}));
    EXPECT_THROW((void)p.PoligonoConIntersezioni({1}, {1}, {1}, 2, nuovo), std::out_of_range);
}

TEST(PoligonoSenzaPuntiOpposti, KeepsOneSideAndTheCut) {
    const Poligono p = PoligonoDaTesto("0 -5, 10 -5, 10 0, 10 5, 0 5, 0 0");
    const std::vector<bool> taglio{false, false, true, false, false, true};
    EXPECT_EQ(p.PoligonoSenzaPuntiOpposti(1, taglio)->CoordY(), (std::vector<double>{0, 5, 5, 0}));
    EXPECT_EQ(p.PoligonoSenzaPuntiOpposti(-1, taglio)->CoordY(), (std::vector<double>{-5, -5, 0, 0}));
    const std::vector<bool> uno{true, false, false, false, false, false};
    EXPECT_EQ(p.PoligonoSenzaPuntiOpposti(-1, uno, true)->nVertici(), 3); // x = 0 counts on both sides
    EXPECT_THROW((void)p.PoligonoSenzaPuntiOpposti(1, {true}), std::out_of_range);
}

TEST(DividiY, NoCutHandsOutThePolygonItself) {
    const auto p = std::make_shared<Poligono>(PoligonoDaTesto("0 0, 40 0, 40 20, 0 20"));
    std::shared_ptr<Poligono> sopra;
    std::shared_ptr<Poligono> sotto;
    for (const double y : {20.0, 21.0}) {
        p->DividiY(y, sopra, sotto);
        EXPECT_FALSE(sopra);
        EXPECT_EQ(sotto, p);
    }
    for (const double y : {0.0, -3.0}) {
        p->DividiY(y, sopra, sotto);
        EXPECT_EQ(sopra, p);
        EXPECT_FALSE(sotto);
    }
    p->DividiY(40, sopra, sotto, true);
    EXPECT_FALSE(sopra);
    EXPECT_EQ(sotto, p);
    p->DividiY(0, sopra, sotto, true);
    EXPECT_EQ(sopra, p);
    EXPECT_FALSE(sotto);
}

TEST(DividiY, AnObjectThatNobodySharesIsHandedOutToo) {
    Poligono p = PoligonoDaTesto("0 0, 40 0, 40 20, 0 20");
    std::shared_ptr<Poligono> sopra;
    std::shared_ptr<Poligono> sotto;
    p.DividiY(20, sopra, sotto);
    EXPECT_EQ(sotto.get(), &p);
    EXPECT_FALSE(sopra);
}

TEST(DividiY, TheLevelCountsInSinglePrecision) {
    // 0.7 in single precision is 0.699999988: below a top at 0.7, so there is a sliver; 0.3 becomes
    // 0.300000012, above a top at 0.3.
    Poligono p = PoligonoDaTesto("0 0, 1 0, 1 0.7, 0 0.7");
    std::shared_ptr<Poligono> sopra;
    std::shared_ptr<Poligono> sotto;
    p.DividiY(0.7, sopra, sotto);
    ASSERT_TRUE(sopra);
    sopra->CaratteristicheStatiche();
    EXPECT_NEAR(sopra->Area, 1.19e-8, 1e-10);
    EXPECT_TRUE(std::isfinite(sopra->Rho2));
    p = PoligonoDaTesto("0 0, 1 0, 1 0.3, 0 0.3");
    p.DividiY(0.3, sopra, sotto);
    EXPECT_FALSE(sopra);
    EXPECT_EQ(sotto.get(), &p);
}

TEST(DividiY, ThePolygonMayBeHeldByTheResult) {
    auto p = std::make_shared<Poligono>(PoligonoDaTesto("0 0, 40 0, 40 20, 0 20"));
    Poligono* oggetto = p.get();
    std::shared_ptr<Poligono> altro;
    oggetto->DividiY(5, p, altro);
    p->AreaCalcola();
    altro->AreaCalcola();
    EXPECT_EQ(p->Area, 600);
    EXPECT_EQ(altro->Area, 200);
}

TEST(DividiY, VerticesKeepTheirPlaceAndOrder) {
    Poligono p = PoligonoDaTesto("0.1 0.1, 40.3 0.1, 40.3 30.7, 30.2 30.7, 30.2 10.9, 10.4 10.9, 10.4 30.7, "
                                 "0.1 30.7");
    std::shared_ptr<Poligono> sopra;
    std::shared_ptr<Poligono> sotto;
    p.DividiY(20.5, sopra, sotto);
    EXPECT_EQ(sopra->CoordX(), (std::vector<double>{40.3, 40.3, 30.2, 30.2, 10.4, 10.4, 0.1, 0.1}));
    EXPECT_EQ(sopra->CoordY(), (std::vector<double>{20.5, 30.7, 30.7, 20.5, 20.5, 30.7, 30.7, 20.5}));
    EXPECT_EQ(sotto->CoordX(), (std::vector<double>{0.1, 40.3, 40.3, 30.2, 30.2, 10.4, 10.4, 0.1}));
    EXPECT_EQ(sotto->CoordY(), (std::vector<double>{0.1, 0.1, 20.5, 20.5, 10.9, 10.9, 20.5, 20.5}));
    p.DividiY(30.25, sopra, sotto, true);
    EXPECT_EQ(sopra->CoordX(), (std::vector<double>{30.25, 40.3, 40.3, 30.25}));
    EXPECT_EQ(sotto->nVertici(), 8);
}

TEST(DividiY, EmptyPolygon) {
    Poligono p;
    std::shared_ptr<Poligono> sopra;
    std::shared_ptr<Poligono> sotto;
    p.DividiY(0, sopra, sotto);
    EXPECT_NE(bool(sopra), bool(sotto));
}

TEST(PoligonoReagente, ThePartOnThePointsSide) {
    const Poligono p = PoligonoDaTesto("0 0, 40 0, 40 20, 0 20");
    std::int16_t segno = 0;
    // x + y = 30 cuts a trapezium of parallel sides 30 and 10 off the left.
    const auto sinistra = p.PoligonoReagente(0, 0, segno, 1, 1, -30);
    ASSERT_TRUE(sinistra);
    EXPECT_EQ(segno, 1);
    EXPECT_NEAR(sinistra->Area, 400, 1e-9);
    EXPECT_NEAR(sinistra->yG, 20.0 / 3 * (30 + 2 * 10) / (30 + 10), 1e-9);
    EXPECT_NEAR(sinistra->Sx, 400 * sinistra->yG, 1e-6);
    const auto destra = p.PoligonoReagente(40, 20, segno, 1, 1, -30);
    EXPECT_NEAR(destra->Area, 400, 1e-9);
    EXPECT_GT(destra->xG, sinistra->xG);
    // The signs of the line do not matter, the place of the point does.
    EXPECT_NEAR(p.PoligonoReagente(0, 0, segno, -1, -1, 30)->xG, sinistra->xG, 1e-9);
}

TEST(PoligonoReagente, WithoutACut) {
    const Poligono p = PoligonoDaTesto("0 0, 40 0, 40 20, 0 20");
    std::int16_t segno = 0;
    const auto tutto = p.PoligonoReagente(5, 5, segno, 0, 1, -30);
    ASSERT_TRUE(tutto);
    EXPECT_EQ(segno, 1);
    EXPECT_EQ(tutto->CoordX(), p.CoordX());
    EXPECT_EQ(tutto->Area, 800);
    EXPECT_FALSE(p.PoligonoReagente(5, 50, segno, 0, 1, -30));
    EXPECT_EQ(segno, -1);
    EXPECT_FALSE(p.PoligonoIntersezione(0, 1, -30, 5, 5));
}

TEST(PoligonoReagente, IntersectionHasNoProperties) {
    const Poligono p = PoligonoDaTesto("0 0, 40 0, 40 20, 0 20");
    const auto parte = p.PoligonoIntersezione(0, 1, -15, 5, 19);
    ASSERT_TRUE(parte);
    EXPECT_EQ(parte->Area, 0);
    parte->CaratteristicheStatiche();
    EXPECT_NEAR(parte->Area, 200, 1e-9);
    EXPECT_NEAR(parte->yG, 17.5, 1e-9);
}

// Sloping cuts of a concave outline: both sides add up whatever the slope.
TEST(PoligonoReagente, BothSidesAddUp) {
    Poligono p = ContornoDoppioT(200, 100, 5.6, 8.5, 12);
    p.CaratteristicheStatiche();
    for (int k = 0; k < 36; ++k) {
        const double angolo = k * std::numbers::pi / 18 + 0.01;
        const double a = std::cos(angolo);
        const double b = std::sin(angolo);
        const double c = -a * 4 - b * 80;
        std::int16_t segno = 0;
        const auto qui = p.PoligonoReagente(4 + a, 80 + b, segno, a, b, c);
        const auto la = p.PoligonoReagente(4 - a, 80 - b, segno, a, b, c);
        ASSERT_TRUE(qui && la);
        EXPECT_NEAR(qui->Area + la->Area, p.Area, 1e-9 * p.Area) << k;
        EXPECT_NEAR(qui->Ix + la->Ix, p.Ix, 1e-9 * p.Ix) << k;
        EXPECT_GT(a * qui->xG + b * qui->yG + c, a * la->xG + b * la->yG + c) << k;
    }
}

// The tolerance is 1/100000 of the extent, 1E-4 here: a line half of it below the square meets both upright
// sides, one twice that low meets none. It is the same line when its equation is multiplied.
TEST(IntersezioneConRetta, ToleranceDoesNotHangOnTheScaleOfTheEquation) {
    const Poligono p = PoligonoDaTesto("0 0, 10 0, 10 10, 0 10");
    for (const double k : {1e-3, 1.0, 1000.0}) {
        EXPECT_EQ(Taglia(p, 0, k, k * 0.5e-4).n, 2) << k;
        EXPECT_EQ(Taglia(p, k, 0, k * 0.5e-4).n, 2) << k;
        EXPECT_EQ(Taglia(p, 0, k, k * 2.5e-4).n, 0) << k;
        EXPECT_EQ(Taglia(p, k, 0, k * 2.5e-4).n, 0) << k;
        EXPECT_EQ(Taglia(p, k, k, -k * (20 + 0.5e-4)).n, 2) << k << ", beyond a corner";
    }
}

// An extent of 100000 has a tolerance of 1: a segment that ends so far from a side reaches it.
TEST(IntersezioneConSegmento, TheToleranceItselfCounts) {
    const Poligono p = PoligonoDaTesto("0 0, 100000 0, 100000 100000, 0 100000");
    const auto incontri = [&p](double x1, double y1, double x2, double y2) {
        Incontri i;
        p.IntersezioneConSegmento(x1, y1, x2, y2, i.x, i.y, i.n, i.lato);
        return i.n;
    };
    EXPECT_EQ(incontri(500, 500, 99999, 500), 1);
    EXPECT_EQ(incontri(1, 500, 600, 500), 1);
    EXPECT_EQ(incontri(500, 500, 500, 99999), 1);
    EXPECT_EQ(incontri(500, 1, 500, 600), 1);
    EXPECT_EQ(incontri(500, 500, 99998.5, 500), 0);
}

// A triangle can take more points than it has vertices; with none it stays as it is.
TEST(PoligonoConIntersezioni, TakesAnyCountOfPoints) {
    const Poligono p = PoligonoDaTesto("0 0, 10 0, 0 10");
    std::vector<bool> nuovo;
    EXPECT_EQ(p.PoligonoConIntersezioni({}, {}, {}, 0, nuovo)->nVertici(), 3);
    const auto uno = p.PoligonoConIntersezioni({5}, {0}, {1}, 1, nuovo);
    EXPECT_EQ(uno->CoordX(), (std::vector<double>{0, 5, 10, 0}));
    const auto molti = p.PoligonoConIntersezioni({1, 2, 3, 4}, {0, 0, 0, 0}, {1, 1, 1, 1}, 4, nuovo);
    EXPECT_EQ(molti->CoordX(), (std::vector<double>{0, 1, 2, 3, 4, 10, 0}));
}

// A pentagon of 10 x 10 whose roof slopes from (0, 6) to (4, 10): the level 5 cuts it in 50 and 42, wherever
// it stands. Its upper part is 10 x 5 less a triangle of 8 about (4/3, 26/3).
TEST(DividiY, TheSameFarFromTheOrigin) {
    const double xG = (50 * 5 - 8 * 4.0 / 3) / 42;
    const double yG = (50 * 7.5 - 8 * 26.0 / 3) / 42;
    for (const double lontano : {0.0, 1e6}) {
        Poligono p = PoligonoDaTesto("0 0, 10 0, 10 10, 4 10, 0 6");
        p.Trasla(-lontano, 0);
        std::shared_ptr<Poligono> sopra;
        std::shared_ptr<Poligono> sotto;
        p.DividiY(5, sopra, sotto);
        Uguale(sotto, {50, lontano + 5, 2.5}, 1e-6, 10 + lontano);
        Uguale(sopra, {42, lontano + xG, yG}, 1e-6, 10 + lontano);
        EXPECT_EQ(sotto->nVertici(), 4) << lontano;
        EXPECT_EQ(sopra->nVertici(), 5) << lontano;
        p = PoligonoDaTesto("0 0, 10 0, 10 10, 4 10, 0 6");
        p.Trasla(0, -lontano);
        p.DividiY(lontano + 5, sopra, sotto);
        EXPECT_EQ(sotto->nVertici(), 4) << lontano;
        EXPECT_EQ(sopra->nVertici(), 5) << lontano;
    }
}

// A triangle below the line y = x, which does not meet it; its first abscissa with its second ordinate lies
// above.
TEST(PoligonoReagente, AllOfItOnOneSide) {
    const Poligono p = PoligonoDaTesto("2 1, 10 9, 10 1");
    std::int16_t segno = 0;
    const auto dentro = p.PoligonoReagente(5, 1, segno, 1, -1, 0);
    ASSERT_TRUE(dentro);
    EXPECT_EQ(dentro->nVertici(), 3);
    EXPECT_EQ(segno, 1);
    EXPECT_FALSE(p.PoligonoReagente(1, 5, segno, 1, -1, 0));
    EXPECT_EQ(segno, -1);
}

TEST(PoligonoReagente, WithoutVerticesItIsTheEmptyOutline) {
    for (const double x : {-1.0, 1.0}) {
        std::int16_t segno = 0;
        const auto p = Poligono().PoligonoReagente(x, 0, segno, 1, 0, 0);
        ASSERT_TRUE(p);
        EXPECT_EQ(p->nVertici(), 0);
        EXPECT_EQ(segno, 1);
    }
}

// Lines that cut a square in two points, whichever vertex comes first.
TEST(IntersezioneConRetta, TheFirstVertexDoesNotMatter) {
    const double x[] = {0, 10, 10, 0};
    const double y[] = {0, 0, 10, 10};
    const double rette[][3] = {{0, 1, -4}, {1, 0, -3},  {2, 3, -31}, {-3, 2, 4},
                               {2, -3, 7}, {1, 1, -13}, {-1, 2, -5}};
    for (std::size_t primo = 0; primo < 4; ++primo) {
        Poligono p;
        p.nVertici(4);
        for (std::size_t i = 0; i < 4; ++i) {
            p.x(static_cast<int>(i) + 1, x[(primo + i) % 4]);
            p.y(static_cast<int>(i) + 1, y[(primo + i) % 4]);
        }
        for (const auto& r : rette)
            EXPECT_EQ(Taglia(p, r[0], r[1], r[2]).n, 2)
                << primo << ": " << r[0] << ' ' << r[1] << ' ' << r[2];
    }
}

// Sides down to 1E-12 of the extent have a direction; the neighbours meet the line within its tolerance.
TEST(IntersezioneConRetta, ASideOfNoiseHasNoPoint) {
    const auto incontri = [](double lato) {
        Poligono p;
        p.Coordinate({0, 1, 1, 0, 0}, {0, 0, 1, 1, lato}, 5);
        return Taglia(p, 0, 1, -lato / 2).n;
    };
    EXPECT_EQ(incontri(0.8e-12) + 1, incontri(1.2e-12));
}

TEST(IntersezioneConSegmento, SegmentsOfLengthOneInEachDirection) {
    const Poligono p = PoligonoDaTesto("0 0, 10 0, 10 10, 0 10");
    const double segmenti[][4] = {{5, -0.5, 5, 0.5}, {5, 0.5, 5, -0.5}, {0.5, 5, -0.5, 5}, {-0.5, 5, 0.5, 5}};
    for (const auto& s : segmenti) {
        Incontri i;
        p.IntersezioneConSegmento(s[0], s[1], s[2], s[3], i.x, i.y, i.n, i.lato);
        EXPECT_EQ(i.n, 1) << s[0] << ' ' << s[1];
    }
}

// The part below y = 4 of a square lies where it was.
TEST(PoligonoReagente, APartStaysInItsPlace) {
    std::int16_t segno = 0;
    const auto sotto = PoligonoDaTesto("0 0, 10 0, 10 10, 0 10").PoligonoReagente(5, 1, segno, 0, 1, -4);
    ASSERT_TRUE(sotto);
    Uguale(sotto, {40, 5, 2}, 1e-9, 10);
    const auto sinistra = PoligonoDaTesto("0 0, 10 0, 10 10, 0 10").PoligonoReagente(1, 5, segno, 1, 0, -4);
    ASSERT_TRUE(sinistra);
    Uguale(sinistra, {40, 2, 5}, 1e-9, 10);
}

// A side that rises by 1E-7 of its length runs along the level and has no point on it.
TEST(DividiY, ASideAlongTheLevelIsNotCut) {
    Poligono p;
    p.Coordinate({0, 1000, 1000, 0}, {0, 0, 5 + 0.5e-4, 5 - 0.5e-4}, 4);
    std::shared_ptr<Poligono> sopra;
    std::shared_ptr<Poligono> sotto;
    p.DividiY(5, sopra, sotto);
    EXPECT_EQ(sotto->nVertici(), 5) << "three corners and the level at both ends";
    EXPECT_EQ(sopra->nVertici(), 3);
}

// A notch that ends 1.5 times the tolerance above the level is not met.
TEST(DividiY, ANotchAboveTheLevelStaysAbove) {
    Poligono p = PoligonoDaTesto("0 0, 10 0, 10 10, 5 5.00015, 0 10");
    std::shared_ptr<Poligono> sopra;
    std::shared_ptr<Poligono> sotto;
    p.DividiY(5, sopra, sotto);
    EXPECT_EQ(sotto->nVertici(), 4);
    EXPECT_EQ(sopra->nVertici(), 5);
}

} // namespace
