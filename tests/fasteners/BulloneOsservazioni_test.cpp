// The advice to the letter. The golden texts of tests/data/fasteners/osservazioni.txt are put together by
// riferimento.py; here the sign of a paragraph and the new line behind it become CR LF again.

#include <gtest/gtest.h>

#include <fstream>

#include "fasteners/CasiBulloni.h"
#include "frame/Ambiente.h"

using namespace sagomi;
using prove::CasoDaFile;

namespace {

const std::string percorsoTesti = std::string(SAGOMI_TEST_DATA) + "/fasteners/osservazioni.txt";

struct CasoTesto {
    CasoDaFile caso;
    std::string testo;
};
void PrintTo(const CasoTesto& c, std::ostream* os) { *os << c.caso.nome; }

/// The text between "testo" and "fine", line by line.
std::string LeggeTesto(std::istream& file) {
    const std::string segno = "¶";
    std::string testo;
    for (std::string riga; std::getline(file, riga) && riga != "fine";)
        testo += riga.ends_with(segno) ? riga.substr(0, riga.size() - segno.size()) + "\r\n" : riga;
    return testo;
}

std::vector<CasoTesto> Casi() {
    std::ifstream file(percorsoTesti);
    if (!file)
        throw std::runtime_error("cannot read " + percorsoTesti);
    std::vector<CasoTesto> casi;
    for (std::string riga; std::getline(file, riga);) {
        std::istringstream parole(riga);
        std::string genere;
        parole >> genere;
        if (genere == "caso")
            casi.push_back({{riga.substr(5), {}, {}}, {}});
        else if (genere == "testo")
            casi.back().testo = LeggeTesto(file);
        else if (genere == "dati")
            for (std::string coppia; parole >> coppia;)
                casi.back().caso.dati[coppia.substr(0, coppia.find('='))] =
                    coppia.substr(coppia.find('=') + 1);
    }
    return casi;
}

std::string Osservazioni(const Bullone& b) {
    std::string testo = "what stood there before";
    b.Osservazioni(testo);
    return testo;
}

class BulloneOsservazioni : public testing::TestWithParam<CasoTesto> {
protected:
    void TearDown() override { RipristinaGenerale(); }
};

TEST_P(BulloneOsservazioni, IsTheGoldenText) {
    EXPECT_EQ(Osservazioni(prove::BulloneDaCaso(GetParam().caso)), GetParam().testo);
}

INSTANTIATE_TEST_SUITE_P(Testi, BulloneOsservazioni, testing::ValuesIn(Casi()),
                         [](const auto& i) { return prove::NomeDiProva(i.param.caso.nome); });

/// M20 8.8 in a plate of S235, 20 mm thick, with the distances that lower nothing.
Bullone M20() {
    Bullone b;
    b.Classe(8.8);
    b.d(7);
    b.CalcolaResistenzaTaglio();
    b.fu = 360;
    b.t = 20;
    b.e1 = 66;
    b.p1 = 82.5;
    b.e2 = 33;
    b.p2 = 66;
    b.RifollamentoCalcola();
    return b;
}

TEST(BulloneOsservazioniTest, UsesAlfaAsLastComputed) {
    Bullone b = M20();
    b.e1 = 40;
    EXPECT_EQ(Osservazioni(b), "") << "the new e1 has not gone into alfa yet";
    b.RifollamentoCalcola();
    EXPECT_EQ(Osservazioni(b).substr(0, 55), "La resistenza a rifollamento è penalizzata (alfa =  0.");
    EXPECT_EQ(b.alfa.Stretto(), 40.F / 66.F);
}

TEST(BulloneOsservazioniTest, TouchesNeitherResistanceNorMessages) {
    Bullone b = M20();
    b.t = 5;
    b.e1 = 500;
    b.p2 = 500;
    b.RifollamentoCalcola();
    const float FbRd = b.FbRd.Stretto();
    EXPECT_NE(Osservazioni(b), "");
    EXPECT_EQ(b.FbRd.Stretto(), FbRd);
    EXPECT_FLOAT_EQ(FbRd, 72000.F); // 2.5 · 360 · 20 · 5 / 1.25
    for (std::int16_t i = 1; i <= 5; ++i)
        EXPECT_EQ(b.Messaggio(i), "");
}

// 12 · 12.54 = 150.48 is the greater one: it holds, not 150.
TEST(BulloneOsservazioniTest, TheGreaterOfTwoLimitsHoldsFromItsFirstTenth) {
    Bullone b = M20();
    b.t = 12.54;
    b.e1 = 150.25;
    b.RifollamentoCalcola();
    EXPECT_EQ(Osservazioni(b).find("#6.5.1.4. (2)"), std::string::npos);
    b.e1 = 150.5;
    EXPECT_NE(Osservazioni(b).find("#6.5.1.4. (2)"), std::string::npos);
}

// 14 · 14.3 = 200.2: 200 is the smaller one.
TEST(BulloneOsservazioniTest, TheSmallerOfTwoLimitsHoldsFromItsFirstTenth) {
    Bullone b = M20();
    b.t = 14.3;
    b.p1 = 200.1;
    b.RifollamentoCalcola();
    EXPECT_NE(Osservazioni(b).find("#6.5.1.6. (1)"), std::string::npos);
}

TEST(BulloneOsservazioniTest, ABoltAsStrongAsThePlateIsNotBlamed) {
    Bullone b = M20();
    b.fu = 800;
    b.e1 = 40;
    b.RifollamentoCalcola();
    EXPECT_NE(Osservazioni(b).find("e1 < 3 do"), std::string::npos);
    EXPECT_EQ(Osservazioni(b).find("fub"), std::string::npos);
    b.fu = 801;
    b.RifollamentoCalcola();
    EXPECT_NE(Osservazioni(b).find("fub = 800 < fu = 801"), std::string::npos);
}

TEST(BulloneOsservazioniTest, NegativeThicknessCountsAsNone) {
    Bullone b = M20();
    b.t = -3;
    EXPECT_EQ(Osservazioni(b), "Spessore piastra = 0 !!!!");
}

TEST(BulloneOsservazioniTest, NumbersFollowTheSystemsSeparator) {
    const prove::ConSeparatori italiano(u',', u'.');
    Bullone b = M20();
    b.p1 = 70;
    b.RifollamentoCalcola();
    // 70 / 66 - 0.25 = 0.8106
    EXPECT_EQ(Osservazioni(b), "La resistenza a rifollamento è penalizzata (alfa =  0,8106 < 1) perchè:\r\n"
                               "   p1 < 3.75 do = 82,5\r\n\r\n");
}

} // namespace
