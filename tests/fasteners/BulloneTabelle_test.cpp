// Bolts of every size and class against a second, independent derivation: tests/data/fasteners/riferimento.py
// tells how the expected values came about. Holes standard, larger, tight and too small, distances from below
// their least to far beyond, four plates, three partial factors.

#include <gtest/gtest.h>

#include "Registratore.h"
#include "fasteners/CasiBulloni.h"

using namespace sagomi;
using prove::CasoDaFile;

namespace {

std::vector<CasoDaFile> Casi() {
    return prove::LeggeCasi(std::string(SAGOMI_TEST_DATA) + "/fasteners/bulloni.txt");
}

class BulloneTabelle : public testing::TestWithParam<CasoDaFile> {
protected:
    void TearDown() override { RipristinaGenerale(); }
    static void Vicino(const char* chiave, double valore) {
        const double atteso = prove::NumeroDaTesto(GetParam().attesi.at(chiave));
        EXPECT_NEAR(valore, atteso, 1e-6 * std::abs(atteso)) << chiave;
    }
    prove::Registratore registratore;
};

TEST_P(BulloneTabelle, AgreesWithTheSecondDerivation) {
    const Bullone b = prove::BulloneDaCaso(GetParam());
    if (!GetParam().dati.contains("fub"))
        Vicino("fub_classe", b.fub);
    Vicino("fyb", b.fyb);
    Vicino("d", b.d());
    Vicino("Ares", b.Ares);
    Vicino("foro", b.DiametroForoStandard());
    Vicino("Alorda", b.Alorda);
    Vicino("Ataglio", b.Ataglio);
    Vicino("FtRd", b.FtRd);
    Vicino("FvRdGambo", b.FvRdGambo);
    Vicino("FvRdFilettata", b.FvRdFilettata);
    Vicino("FvRd", b.FvRd);
    Vicino("alfa", b.alfa);
    Vicino("FbRd", b.FbRd);
    Vicino("interazione", b.InterazioneTaglioTrazione());
    for (std::int16_t i = 1; i <= 5; ++i) {
        const auto atteso = GetParam().attesi.find("m" + std::to_string(i));
        EXPECT_EQ(b.Messaggio(i), atteso == GetParam().attesi.end() ? "" : atteso->second);
    }
    EXPECT_TRUE(registratore.testi.empty());
}

INSTANTIATE_TEST_SUITE_P(TutteLeMisure, BulloneTabelle, testing::ValuesIn(Casi()),
                         [](const auto& i) { return prove::NomeDiProva(i.param.nome); });

TEST(BulloneTabelle, HaveEverySizeWithEveryClass) {
    std::set<std::pair<std::string, std::string>> insieme;
    for (const CasoDaFile& c : Casi())
        insieme.emplace(c.dati.at("posizione"), c.dati.at("classe"));
    EXPECT_EQ(insieme.size(), 22U * 7U);
}

/// Heads, nuts and washers column by column as the standards list them: ISO 4014 k and s, ISO 4032 m, ISO
/// 7089 d2 and h. 68 mm, which they do not have, goes on with the series.
TEST(DimensioniBulloni, AreThoseOfTheStandards) {
    constexpr int n = 22;
    const double d[n] = {8,  10, 12, 14, 16, 18, 20, 22, 24, 27, 30,
                         33, 36, 39, 42, 45, 48, 52, 56, 60, 64, 68};
    const double k[n] = {5.3, 6.4,  7.5, 8.8, 10, 11.5, 12.5, 14, 15, 17, 18.7,
                         21,  22.5, 25,  26,  28, 30,   33,   35, 38, 40, 43};
    const double s[n] = {13, 16, 18, 21, 24, 27, 30, 34, 36, 41, 46,
                         50, 55, 60, 65, 70, 75, 80, 85, 90, 95, 100};
    const double m[n] = {6.8,  8.4, 10.8, 12.8, 14.8, 15.8, 18, 19.4, 21.5, 23.8, 25.6,
                         28.7, 31,  33.4, 34,   36,   38,   42, 45,   48,   51,   54};
    const double d2[n] = {16, 20, 24, 28, 30, 34, 37, 39,  44,  50,  56,
                          60, 66, 72, 78, 85, 92, 98, 105, 110, 115, 120};
    const double h[n] = {1.6, 2, 2.5, 2.5, 3, 3, 3, 3, 4, 4, 4, 5, 5, 6, 8, 8, 8, 8, 10, 10, 10, 10};
    for (int i = 0; i < n; ++i) {
        const DimensioneBullone& riga = TabellaBulloni()[i + 1];
        EXPECT_EQ(riga.d, d[i]);
        EXPECT_EQ(riga.k, k[i]) << d[i];
        EXPECT_EQ(riga.s, s[i]) << d[i];
        EXPECT_EQ(riga.m, m[i]) << d[i];
        EXPECT_EQ(riga.d2, d2[i]) << d[i];
        EXPECT_EQ(riga.sr, h[i]) << d[i];
    }
}

/// ISO 4014 gives the corners as 1.13 times the least width across flats that ISO 4759-1 allows.
TEST(DimensioniBulloni, CornersFollowFromTheLeastFlats) {
    const double minime[] = {12.73, 15.73, 17.73, 20.67, 23.67, 26.67, 29.67, 33.38, 35.38, 40,   45,
                             49,    53.8,  58.8,  63.1,  68.1,  73.1,  78.1,  82.8,  87.8,  92.8, 97.8};
    for (int i = 0; i < 22; ++i)
        EXPECT_NEAR(TabellaBulloni()[i + 1].e, 1.13 * minime[i], 0.0051) << TabellaBulloni()[i + 1].d;
}

} // namespace
