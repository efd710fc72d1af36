#include "catalogue/StiliXls.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <random>

#include <gtest/gtest.h>

#include "Fogli.h"

using namespace sagomi;
using prove::FoglioDi;

namespace {

using S = std::string;

StileXls StileDi(const char* intestazione, std::vector<Valore> numeri) {
    Foglio f{"x", {}};
    f.Scrive(0, 0, S(intestazione));
    for (std::size_t i = 0; i < numeri.size(); ++i)
        f.Scrive(i + 1, 0, numeri[i]);
    return Colonne(f).at(0).numeri;
}

TEST(HaIntestazione, TextsAndNothingElse) {
    EXPECT_TRUE(HaIntestazione(FoglioDi("x", {{S("a"), S("b")}, {1.0, 2.0}})));
    EXPECT_TRUE(HaIntestazione(FoglioDi("x", {{S("a"), {}, S("c")}})));
    EXPECT_FALSE(HaIntestazione(FoglioDi("x", {{S("a"), 1.0}})));
    EXPECT_FALSE(HaIntestazione(FoglioDi("x", {{{}, {}}, {S("a")}})));
    EXPECT_FALSE(HaIntestazione(Foglio{"x", {}}));
}

TEST(Colonne, LengthsWeightsAndAreasShareTheirDecimals) {
    EXPECT_EQ(StileDi("h (mm)", {80.0, 100.0}), StileXls::Decimali0);
    EXPECT_EQ(StileDi("g (Kg/m)", {6.0, 8.25, 10.4}), static_cast<StileXls>(19)); // two decimals
    EXPECT_EQ(StileDi("g (kg/m)", {0.882}), static_cast<StileXls>(20));
    EXPECT_EQ(StileDi("A (cm2)", {7.64, {}, S("n.d.")}), static_cast<StileXls>(19));
    EXPECT_EQ(StileDi("iz (cm)", {1.0524}), StileXls::Decimali4);
    EXPECT_EQ(StileDi("iz (cm)", {1.05241}), StileXls::Generale); // five are too many
    EXPECT_EQ(StileDi("h (mm)", {std::numeric_limits<double>::infinity()}), StileXls::Decimali0);
}

TEST(Colonne, InertiasAndModuliShowAsTheyCome) {
    EXPECT_EQ(StileDi("Iy (cm4)", {80.1, 943000.0}), StileXls::Generale);
    EXPECT_EQ(StileDi("Wy (cm3)", {20.0}), StileXls::Generale);
    EXPECT_EQ(StileDi("Iw (cm6)", {93.31, 78120000.0}), StileXls::Generale);
    EXPECT_EQ(StileDi("designation", {S("IPE 80")}), StileXls::Generale);
}

TEST(Colonne, WideEnoughForWhatIsShown) {
    const auto colonne = Colonne(FoglioDi("x", {{S("A (cm2)"), S("x")}, {1234567.0}, {7.64}, {0.5}}));
    EXPECT_EQ(colonne.at(0).larghezza, (10U + 2U) * 256U); // 1234567.00
    EXPECT_EQ(colonne.at(1).larghezza, 8U * 256U);         // never narrower
    EXPECT_EQ(Colonne(FoglioDi("x", {{S(500, 'x')}})).at(0).larghezza, 60U * 256U);
    EXPECT_TRUE(Colonne(Foglio{"x", {}}).empty());
}

/// Characters of the shortest text of a number, which the library makes.
std::size_t CaratteriDi(double v) {
    std::array<char, 400> testo{};
    const auto fine = std::to_chars(testo.data(), testo.data() + testo.size(), v, std::chars_format::fixed);
    return static_cast<std::size_t>(fine.ptr - testo.data());
}

TEST(Colonne, NumbersAreAsWideAsTheirShortestText) {
    std::mt19937 caso(1);
    std::vector<double> numeri{-0.0, 0.07, 0.1 + 0.2, 1e11, 99999999999.5, 1e22, 5e-324, 1.00005};
    for (int i = 0; i < 4000; ++i) {
        const double v = caso() % 2'000'000'000 / std::pow(10, caso() % 8);
        numeri.insert(numeri.end(), {v, -v, std::nextafter(v, 0), v / 8});
    }
    for (const double v : numeri) {
        const std::size_t attesi = std::clamp<std::size_t>(CaratteriDi(v) + 2, 8, 60) * 256;
        EXPECT_EQ(Colonne(FoglioDi("x", {{v}})).at(0).larghezza, attesi) << v;
    }
}

TEST(Colonne, DatesAndTextsInAColumnOfNumbers) {
    Foglio f = FoglioDi("x", {{S("h (mm)")}, {1.5}, {S("perch\u00E9 no")}, {40000.25}});
    EXPECT_EQ(Colonne(f).at(0).larghezza, (9U + 2U) * 256U); // the text; 40000.25 takes 8
    f.righe[3][0].genere = GenereNumero::DataOra;
    EXPECT_EQ(Colonne(f).at(0).larghezza, (16U + 2U) * 256U);
    EXPECT_EQ(Colonne(f).at(0).numeri, static_cast<StileXls>(19)); // its decimals count
}

TEST(StileCella, HeadingNumbersDatesTexts) {
    const ColonnaXls colonna{StileXls::Decimali0, 0};
    EXPECT_EQ(StileCella({S("h"), {}}, true, colonna), StileXls::Intestazione);
    EXPECT_EQ(StileCella({S("h"), {}}, false, colonna), StileXls::Generale);
    EXPECT_EQ(StileCella({1.0, {}}, false, colonna), StileXls::Decimali0);
    EXPECT_EQ(StileCella({1.0, GenereNumero::Data}, false, colonna), StileXls::Data);
    EXPECT_EQ(StileCella({1.0, GenereNumero::DataOra}, false, colonna), StileXls::DataOra);
    EXPECT_EQ(StileCella({1.0, GenereNumero::Ora}, false, colonna), StileXls::Ora);
}

TEST(ScriveStili, OneRecordForEachStyleInUse) {
    FlussoBiff f;
    ScriveStili(f);
    std::vector<prove::RecordProva> xf, font;
    for (const auto& r : prove::LeggeRecord(f.dati())) {
        if (r.E(Biff::Xf))
            xf.push_back(r);
        if (r.E(Biff::Font))
            font.push_back(r);
    }
    ASSERT_EQ(xf.size(), static_cast<std::size_t>(StileXls::Ora) + 1);
    ASSERT_EQ(font.size(), 5U);
    for (std::size_t i = 0; i < 15; ++i)
        EXPECT_EQ(xf[i].U16(4), 0xFFF5U) << i; // a style, not a cell
    const auto& intestazione = xf[static_cast<std::size_t>(StileXls::Intestazione)];
    EXPECT_EQ(intestazione.U16(0), 5U); // number 4 is left out, so the fifth font is 5
    EXPECT_EQ(font[4].U16(6), 700U);    // bold
    EXPECT_EQ(font[0].U16(6), 400U);
    EXPECT_EQ(xf[static_cast<std::size_t>(StileXls::Data)].U16(2), 14U); // the built-in date
}

} // namespace
