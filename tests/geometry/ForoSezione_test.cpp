#include "geometry/ForoSezione.h"

#include <gtest/gtest.h>

#include "Casi.h"
#include "Registratore.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

struct Contorno {
    std::vector<double> x, y;
    std::int16_t n = 0;

    explicit Contorno(const Poligono& p) : x(p.CoordX()), y(p.CoordY()), n(p.nVertici()) {}
    [[nodiscard]] Poligono Calcolato() const {
        Poligono p;
        p.Coordinate(x, y, n);
        p.CaratteristicheStatiche();
        return p;
    }
};

/// Welded I of 16 vertices, fillets of leg r: with r = 0 the points at the roots are doubled.
Poligono Saldato(double r) {
    const std::vector<double> x{50, 50, 3 + r, 3, 3, 3 + r, 50, 50};
    const std::vector<double> y{0, 10, 10, 10 + r, 190 - r, 190, 190, 200};
    std::vector<double> tuttiX = x;
    std::vector<double> tuttiY = y;
    for (std::size_t i = x.size(); i-- > 0;) {
        tuttiX.push_back(-x[i]);
        tuttiY.push_back(y[i]);
    }
    Poligono p;
    p.Coordinate(tuttiX, tuttiY, 16);
    return p;
}

struct CasoForo {
    const char* nome;
    Poligono contorno;
    double tw, y0, H;
};
void PrintTo(const CasoForo& c, std::ostream* os) { *os << c.nome; }

class ForoTest : public testing::TestWithParam<CasoForo> {};

TEST_P(ForoTest, AreaRemovedAndVertices) {
    const CasoForo& c = GetParam();
    Contorno contorno(c.contorno);
    const std::int16_t prima = contorno.n;
    Poligono intero = contorno.Calcolato();
    ForoSezione(contorno.x, contorno.y, contorno.n, c.y0, c.H, "DoppioT");
    EXPECT_EQ(contorno.n, prima + 8);
    EXPECT_EQ(contorno.x.size(), static_cast<std::size_t>(contorno.n));
    const Poligono forato = contorno.Calcolato();
    EXPECT_NEAR(intero.Area - forato.Area, (c.tw - 0.02) * c.H, 1e-9 * intero.Area);
    // The strip goes with its own moment about the level of the centroid and its own about the axis of the
    // web.
    EXPECT_NEAR(intero.Sx - forato.Sx, (c.tw - 0.02) * c.H * (c.y0 + c.H / 2), 1e-9 * intero.Sx);
    EXPECT_NEAR(intero.Iy - forato.Iy, c.H * (c.tw * c.tw * c.tw - 0.02 * 0.02 * 0.02) / 12,
                1e-9 * intero.Iy);
    EXPECT_NEAR(forato.xG, 0, 1e-9);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Contorni, ForoTest, testing::Values(
    CasoForo{"rolled",                     ContornoDoppioT(200, 100, 5.6, 8.5, 12), 5.6, 60, 80},
    CasoForo{"from_the_lower_root",        ContornoDoppioT(200, 100, 5.6, 8.5, 12), 5.6, 20.5, 40},
    CasoForo{"up_to_the_upper_root",       ContornoDoppioT(200, 100, 5.6, 8.5, 12), 5.6, 100, 79.5},
    CasoForo{"welded",                     Saldato(5), 6, 40, 100},
    CasoForo{"welded_without_fillets",     Saldato(0), 6, 40, 100},
    CasoForo{"welded_from_flange_to_flange", Saldato(0), 6, 10, 180},
    CasoForo{"thin_strip",                 Saldato(0), 6, 99, 0.5}),
    [](const auto& i) { return std::string(i.param.nome); });
// clang-format on

TEST(ForoSezione, NotchPointsInTheirOrder) {
    Contorno c(Saldato(5));
    ForoSezione(c.x, c.y, c.n, 80, 40, "DoppioT");
    const std::vector<double> destraX(c.x.begin() + 4, c.x.begin() + 8);
    const std::vector<double> destraY(c.y.begin() + 4, c.y.begin() + 8);
    EXPECT_EQ(destraX, (std::vector<double>{3, 0.01, 0.01, 3}));
    EXPECT_EQ(destraY, (std::vector<double>{80, 80, 120, 120}));
    const std::vector<double> sinistraX(c.x.begin() + 16, c.x.begin() + 20);
    const std::vector<double> sinistraY(c.y.begin() + 16, c.y.begin() + 20);
    EXPECT_EQ(sinistraX, (std::vector<double>{-3, -0.01, -0.01, -3}));
    EXPECT_EQ(sinistraY, (std::vector<double>{120, 120, 80, 80}));
}

TEST(ForoSezione, AChannelGetsOneNotch) {
    Contorno c(Saldato(5));
    ForoSezione(c.x, c.y, c.n, 80, 40, "SagomiU");
    EXPECT_EQ(c.n, 20);
    EXPECT_NEAR(Contorno(Saldato(5)).Calcolato().Area - c.Calcolato().Area, 2.99 * 40, 1e-9);
}

TEST(ForoSezione, AnyOtherWordIsReportedAndKeepsTheFirstNotch) {
    Registratore r;
    Contorno c(Saldato(5));
    ForoSezione(c.x, c.y, c.n, 80, 40, "SagomiL");
    EXPECT_EQ(r.testi, std::vector<std::string>{"tipo di sagomo non previsto: SagomiL"});
    EXPECT_EQ(c.n, 20);
}

TEST(ForoSezione, ALevelOutsideChangesNothing) {
    Contorno c(Saldato(5));
    ForoSezione(c.x, c.y, c.n, 300, 40, "DoppioT");
    EXPECT_EQ(c.n, 16);
    Contorno vuoto{Poligono()};
    ForoSezione(vuoto.x, vuoto.y, vuoto.n, 0, 10, "DoppioT");
    EXPECT_EQ(vuoto.n, 0);
}

TEST(ForoSezioneTest, WhatIsNotCutStaysAsItIs) {
    std::vector<double> x{3, 9};
    std::vector<double> y{4, 9};
    std::int16_t n = 1;
    ForoSezione(x, y, n, 4, 10, "DoppioT");
    EXPECT_EQ(x, std::vector<double>{3}) << "the first n count";
    EXPECT_EQ(y, std::vector<double>{4});
    EXPECT_EQ(n, 1);
    n = 0;
    ForoSezione(x, y, n, 4, 10, "DoppioT");
    EXPECT_TRUE(x.empty());
}

} // namespace
