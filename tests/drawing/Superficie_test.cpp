#include "drawing/Superficie.h"

#include <gtest/gtest.h>

#include <vector>

using namespace sagomi;

namespace {

struct CasoColore {
    std::int16_t numero;
    int r, g, b;
};

TEST(ColoreTabella, SixteenColours) {
    const CasoColore casi[] = {{0, 0, 0, 0},       {1, 0, 0, 128},    {2, 0, 128, 0},    {3, 0, 128, 128},
                               {4, 128, 0, 0},     {5, 128, 0, 128},  {6, 128, 128, 0},  {7, 192, 192, 192},
                               {8, 128, 128, 128}, {9, 0, 0, 255},    {10, 0, 255, 0},   {11, 0, 255, 255},
                               {12, 255, 0, 0},    {13, 255, 0, 255}, {14, 255, 255, 0}, {15, 255, 255, 255},
                               {16, 0, 0, 0},      {-1, 0, 0, 0}};
    for (const CasoColore& c : casi) {
        const ColoreRgb colore = ColoreTabella(c.numero);
        EXPECT_EQ(colore.rosso, c.r) << c.numero;
        EXPECT_EQ(colore.verde, c.g) << c.numero;
        EXPECT_EQ(colore.blu, c.b) << c.numero;
    }
}

// In widths of the line: dashes and gaps in turn.
TEST(TrattiDi, LineTypes) {
    const auto lista = [](TipoLinea tipo) {
        const auto tratti = TrattiDi(tipo);
        return std::vector<double>(tratti.begin(), tratti.end());
    };
    EXPECT_EQ(lista(TipoLinea::TrattoPunto), (std::vector<double>{12, 3, 2, 3}));
    EXPECT_EQ(lista(TipoLinea::Tratteggiata), (std::vector<double>{6, 4}));
    EXPECT_EQ(lista(TipoLinea::TrattoPuntoCorto), (std::vector<double>{8, 2, 2, 2}));
    EXPECT_TRUE(lista(TipoLinea::Continua).empty());
}

} // namespace
