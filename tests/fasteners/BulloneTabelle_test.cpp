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

} // namespace
