// Every double-T of the catalogue against its published values: what the outline and the closed formulas give
// from the dimensions of a row must be what the row says, within the tolerances of the catalogue check.

#include "sections/SezioneDoppioT.h"

#include <cmath>
#include <fstream>
#include <sstream>

#include <gtest/gtest.h>

#include "CasiDaFile.h"
#include "Registratore.h"
#include "frame/GeneraleSagomi.h"
#include "sections/SezioneGenerica.h"

using namespace sagomi;

namespace {

using Riga = std::map<std::string, double>;

struct Famiglia {
    const char* file;
    std::size_t righe;
    bool saldata, asimmetrica;
};
void PrintTo(const Famiglia& f, std::ostream* os) { *os << f.file; }

std::vector<std::string> Campi(const std::string& linea) {
    std::vector<std::string> campi;
    std::istringstream testo(linea);
    for (std::string campo; std::getline(testo, campo, ',');)
        campi.push_back(campo);
    return campi;
}

std::vector<std::pair<std::string, Riga>> LeggeFamiglia(const std::string& file) {
    std::ifstream testo(SAGOMI_CATALOGUE_DATA "/" + file + ".csv");
    std::string linea;
    std::getline(testo, linea);
    const auto colonne = Campi(linea);
    std::vector<std::pair<std::string, Riga>> righe;
    while (std::getline(testo, linea)) {
        const auto campi = Campi(linea);
        Riga riga;
        for (std::size_t i = 1; i < campi.size(); ++i)
            riga[colonne[i]] = prove::NumeroDaTesto(campi[i]);
        righe.emplace_back(campi[0], riga);
    }
    return righe;
}

SezioneDoppioT Sezione(const Famiglia& f, Riga& v) {
    SezioneDoppioT s;
    s.fy = 235;
    s.Saldata = f.saldata;
    s.SaldataAsimm = f.asimmetrica;
    s.h = v["h_mm"];
    s.b = v[f.asimmetrica ? "b1_mm" : "b_mm"];
    s.tw = v["tw_mm"];
    s.tf = v[f.asimmetrica ? "tf1_mm" : "tf_mm"];
    s.r1 = v["r1_mm"];
    s.r2 = v["r2_mm"];
    s.r = v["r_mm"];
    s.bAlaInf = v["b2_mm"];
    s.tAlaInf = v["tf2_mm"];
    s.Area = v["A_cm2"] * 100;
    s.iY = v["iy_cm"] * 10;
    s.iZ = v["iz_cm"] * 10;
    s.Jz = v["Iz_cm4"] * 1e4;
    return s;
}

class Catalogo : public testing::TestWithParam<Famiglia> {
protected:
    void TearDown() override { RipristinaGenerale(); }
};

TEST_P(Catalogo, RowsFollowFromTheirDimensions) {
    prove::Registratore registratore;
    auto righe = LeggeFamiglia(GetParam().file);
    ASSERT_EQ(righe.size(), GetParam().righe);
    for (auto& [nome, v] : righe) {
        SCOPED_TRACE(nome);
        SezioneDoppioT s = Sezione(GetParam(), v);
        s.InizializzaSezione();
        const SezioneGenerica& g = *s.SezioneGenericaCorrente;
        const auto vicino = [](double pubblicato, double calcolato, double tolleranza) {
            EXPECT_NEAR(calcolato, pubblicato, tolleranza * pubblicato);
        };
        const bool rastremata = s.r2 > 0;
        vicino(v["A_cm2"], g.Area / 1e2, 0.01);
        vicino(v["Iy_cm4"], g.JotaXG / 1e4, 0.01);
        vicino(v[GetParam().asimmetrica ? "Wy1_cm3" : "Wy_cm3"], g.WxSuperiore / 1e3, 0.01);
        if (GetParam().asimmetrica)
            vicino(v["Wy2_cm3"], g.WxInferiore / 1e3, 0.01);
        vicino(v["iy_cm"], std::sqrt(g.JotaXG / g.Area) / 10, 0.01);
        vicino(v["Iz_cm4"], g.JotaYG / 1e4, 0.01);
        vicino(v["Wz_cm3"], g.WySinistra / 1e3, 0.01);
        vicino(v["iz_cm"], std::sqrt(g.JotaYG / g.Area) / 10, 0.01);
        vicino(v["IT_cm4"], s.JotaT() / 1e4, rastremata ? 0.092 : 0.01);
        vicino(v["Iw_cm6"], s.JotaOmega() / 1e6, rastremata ? 0.05 : 0.04);
        EXPECT_FALSE(s.ErroreDatiDatabase);
        EXPECT_LE(s.betaA(), 1);
    }
    EXPECT_TRUE(registratore.testi.empty());
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Famiglie, Catalogo, testing::Values(
    Famiglia{"IPE",   18, false, false}, Famiglia{"IPEA", 18, false, false}, Famiglia{"IPEO", 13, false, false},
    Famiglia{"IPEX",  39, false, false}, Famiglia{"IPN",  23, false, false}, Famiglia{"HEA",  24, false, false},
    Famiglia{"HEB",   24, false, false}, Famiglia{"HEM",  24, false, false}, Famiglia{"HEAA", 24, false, false},
    Famiglia{"HEX",   28, false, false}, Famiglia{"HD",   42, false, false}, Famiglia{"HL",   35, false, false},
    Famiglia{"HP",    31, false, false}, Famiglia{"UB",  111, false, false}, Famiglia{"UC",   48, false, false},
    Famiglia{"W",    290, false, false},
    Famiglia{"ISE",   49, true,  false}, Famiglia{"HSE",  30, true,  false}, Famiglia{"HSA",  20, true,  false},
    Famiglia{"HSL",   24, true,  false}, Famiglia{"HSU",  30, true,  false}, Famiglia{"HSH",  24, true,  false},
    Famiglia{"HSD",   38, true,  true}), [](const auto& i) { return std::string(i.param.file); });
// clang-format on

} // namespace
