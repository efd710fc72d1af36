#include "joints/FormuleGiunto.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>

#include "Registratore.h"
#include "frame/Ambiente.h"
#include "frame/Errori.h"
#include "joints/NodoDaFile.h"
#include "joints/RtfInHtml.h"
#include "joints/TestiGiunto.h"

using namespace sagomi;
using namespace sagomi::prove;
using testing::HasSubstr;
using testing::Not;

namespace {

const std::filesystem::path cartella = std::filesystem::path(SAGOMI_CATALOGUE_DATA).parent_path();

const std::string& FileIntero() {
    static const std::string byte = [] {
        std::ifstream f(cartella / "FormuleGiunto.rtf", std::ios::binary);
        return std::string{std::istreambuf_iterator<char>(f), std::istreambuf_iterator<char>()};
    }();
    return byte;
}

/// The letters that a reader sees.
std::string Lettere(const std::string& rtf) {
    std::string testo = std::regex_replace(HtmlDaRtf(rtf), std::regex("<[^>]*>"), "");
    testo = std::regex_replace(testo, std::regex("&lt;"), "<");
    return std::regex_replace(testo, std::regex("&gt;"), ">");
}

int Profondita(const std::string& rtf) {
    int aperti = 0;
    for (std::size_t i = 0; i < rtf.size(); ++i) {
        if (rtf[i] == '\\')
            ++i; // a brace after it is a letter
        else
            aperti += rtf[i] == '{' ? 1 : rtf[i] == '}' ? -1 : 0;
    }
    return aperti;
}

std::set<std::string> IdDelFile() {
    std::set<std::string> id;
    const std::string& file = FileIntero();
    const std::regex tag("ID-RTF-GIUNTO-([A-Za-z0-9_]+)");
    for (std::sregex_iterator i(file.begin(), file.end(), tag), fine; i != fine; ++i)
        id.insert((*i)[1]);
    return id;
}

/// The steps with finds alone, as another program would take them.
std::string TaglioSemplice(std::string testo, const std::string& id) {
    const std::string testa = testo.substr(0, testo.find("START-RTF-GIUNTO"));
    testo.erase(0, testo.find("START-RTF-GIUNTO") + 16);
    const std::string tag = "ID-RTF-GIUNTO-" + id;
    testo.erase(0, testo.find(tag) + tag.size());
    testo.erase(0, testo.find("\r\n") + 2);
    return testa + testo.substr(0, testo.find(tag)) + "\r\n\\par }}";
}

const std::string campione = "{\\rtf1{H \r\nSTART-RTF-GIUNTO\r\n"
                             "ID-RTF-GIUNTO-k6_Estesa resto\r\nseconda\r\nID-RTF-GIUNTO-k6_Estesa\r\n"
                             "ID-RTF-GIUNTO-k6\r\nprima\\par\r\nID-RTF-GIUNTO-k6\r\n}}";

TEST(TestoFormula, TestaCorpoEFine) {
    EXPECT_EQ(TestoFormula(campione, "k6_Estesa"), "{\\rtf1{H \r\nseconda\r\n\r\n\\par }}");
    EXPECT_EQ(TestoFormula(campione, "k6"), "{\\rtf1{H \r\nprima\\par\r\n\r\n\\par }}");
}

TEST(TestoFormula, CioCheMancaNonDaTesto) {
    EXPECT_FALSE(TestoFormula(campione, "k"));
    EXPECT_FALSE(TestoFormula(campione, ""));
    EXPECT_FALSE(TestoFormula("{\\rtf1}", "k6"));
    EXPECT_FALSE(TestoFormula(campione.substr(0, campione.rfind("ID-RTF")), "k6"));
    EXPECT_FALSE(TestoFormula("START-RTF-GIUNTO ID-RTF-GIUNTO-k6", "k6"));
}

TEST(LeggeFormula, FileMancante) {
    try {
        (void)LeggeFormula("/cartella/che/manca", "k6");
        FAIL();
    } catch (const ErroreNumerato& e) {
        EXPECT_EQ(e.Numero(), 53);
        EXPECT_STREQ(e.what(), "File non trovato: FormuleGiunto.rtf");
    }
    EXPECT_THROW((void)LeggeFormula(cartella, "non_c_e"), ErroreNumerato);
}

TEST(LeggeFormula, OgniErroreHaIlSuoNumero) {
    const auto numero = [](const std::string& dove, const char* id) {
        try {
            (void)LeggeFormula(dove, id);
        } catch (const ErroreNumerato& e) {
            return e.Numero();
        }
        return 0;
    };
    EXPECT_EQ(numero(cartella, "non_c_e"), 5);
    const CartellaDiProva dir;
    std::filesystem::create_directory(dir.percorso / "FormuleGiunto.rtf");
    EXPECT_EQ(numero(dir.percorso.string(), "k6"), 75);
}

TEST(FileFormule, EUnDocumentoIntero) {
    const std::string& file = FileIntero();
    EXPECT_TRUE(file.starts_with("{\\rtf1\\ansi\\ansicpg1252"));
    EXPECT_EQ(Profondita(file), 0);
    EXPECT_TRUE(std::all_of(file.begin(), file.end(), [](unsigned char c) { return c < 0x80; }));
    EXPECT_THAT(Lettere(file), Not(HasSubstr("RTF-GIUNTO"))) << "the tags are hidden";
    EXPECT_THAT(Lettere(file), HasSubstr("Pannello d'anima della colonna a taglio"));
}

TEST(FileFormule, OgniBloccoSiTagliaIntero) {
    const auto id = IdDelFile();
    EXPECT_GE(id.size(), 80U);
    for (const std::string& i : id) {
        const std::string testo = LeggeFormula(cartella, i);
        EXPECT_EQ(testo, TaglioSemplice(FileIntero(), i)) << i;
        EXPECT_TRUE(testo.ends_with("\r\n\\par }}")) << i;
        EXPECT_EQ(Profondita(testo), 0) << i;
        EXPECT_THAT(Lettere(testo), Not(HasSubstr("GIUNTO"))) << i;
        EXPECT_GT(Lettere(testo).size(), 30U) << i;
    }
}

/// Whatever a box shows has a block, but for the data that the user gives.
TEST(FileFormule, OgniGrandezzaMostrataHaLaSua) {
    const std::set<std::string> dati{"TxtM_Dx", "TxtT_T",  "TxtN_Dx", "TxtL_Dx",
                                     "TxtM_Sn", "TxtV_Sn", "TxtN_Sn", "TxtL_Sn"};
    const auto casi = LeggeCasi(SAGOMI_TEST_DATA "/joints/verifiche.txt");
    const Registratore boxes;
    std::set<std::string> mostrati;
    for (std::size_t i = 0; i < 60; ++i) {
        NodoDaFile caso(casi[i], false);
        caso.nodo.EsegueCalcolo();
        const TestiGiunto testi(caso.nodo, caso.nodo.nGiunto);
        for (const auto& [controllo, testo] : testi.Tutti()) {
            if (dati.count(controllo) > 0 || testo.empty())
                continue;
            mostrati.insert(controllo);
            const std::string_view id = IdFormula(controllo, caso.giunto());
            ASSERT_FALSE(id.empty()) << controllo;
            EXPECT_TRUE(TestoFormula(FileIntero(), id)) << controllo << " " << id;
        }
    }
    EXPECT_GE(mostrati.size(), 76U);
}

TEST(IdFormula, AnimaCompressaSecondoGliIrrigidimenti) {
    Giunto g;
    EXPECT_EQ(IdFormula("txtF2", g), "FcRd_Anima_c");
    g.Irrigidimenti = "Cp";
    EXPECT_EQ(IdFormula("txtF2", g), "FcRd_AnimaIrrigidita_c");
    EXPECT_EQ(IdFormula("TxtDescrizione", g), "");
}

struct CasoFormula {
    const char* id;
    const char* formula;
};
void PrintTo(const CasoFormula& c, std::ostream* os) { *os << c.id; }
class FormulaTest : public testing::TestWithParam<CasoFormula> {};

/// What the calculation does, written down from it: sub- and superscripts stand in line.
TEST_P(FormulaTest, ComeIlCalcolo) {
    EXPECT_THAT(Lettere(LeggeFormula(cartella, GetParam().id)), HasSubstr(GetParam().formula));
}
// clang-format off
INSTANTIATE_TEST_SUITE_P(FileFormule, FormulaTest, testing::Values(
    CasoFormula{"lb", "lb = tf,c + tf + sr + (k + md) / 2"},
    CasoFormula{"mc", "mc = (bc − tw,c) / 2 − 0,8 sc − ec"},
    CasoFormula{"mf", "mf = (bf − tw,b) / 2 − 0,8 √2 aw − ef"},
    CasoFormula{"pint", "p = hb − 2 tf,b − 2 d1"},
    CasoFormula{"VplRd_Pannello_c", "Vwp,Rd = fy,c · Avc / (√3 · γM0 · β)"},
    CasoFormula{"VplRd_Pannello_c", "Avc = Ac − 2 bc tf,c + (tw,c + 2 rc) tf,c"},
    CasoFormula{"FcRd_Anima_c", "beff = 2 √2 af + tf,b + tf + 5 (tf,c + s) + Δ"},
    CasoFormula{"FcRd_AnimaIrrigidita_c", "/ γM0 + tf,b · bb · fy,b / γM0"},
    CasoFormula{"NbRd_Anima_c", "λ = ((hc − 2 tf,c) / 2) / √(tw,c2 / 12)"},
    CasoFormula{"Bt_Rd", "Bt,Rd = 0,9 · fub · As / γM2"},
    CasoFormula{"FtRd_Anima_c", "beff = min(4π mc; 8 mc + 2,5 ec; pv + 4 mc + 1,25 ec)"},
    CasoFormula{"Ftrd_FilaInf_c", "Mpl = 0,25 · leff · tf,c2 · fy,c · Kfc / γM0"},
    CasoFormula{"Ftrd_FilaInf_c", "F2 = (2 Mpl + n · nb · Bt,Rd) / (mc + n)"},
    CasoFormula{"Ftrd_FilaInf_c", "n = min(ec; 1,25 mc; ef)"},
    CasoFormula{"FtRd_FilaSup_f", "leff = min(0,5 bf; 0,5 w + 2 m2 + 0,625 ex; 4 m2 + 1,25 ex; 2π m2)"},
    CasoFormula{"FtRd_FilaInf_f", "λ1 = mf / (mf + ef),   λ2 = m1 / (mf + ef)"},
    CasoFormula{"FtRd_Anima_t", "Ft,wb,Rd = tw,b · fy,b · leff,int / γM0"},
    CasoFormula{"FtRd_EffInf", "Fint = min(Fgruppo − Fest; Findividuale; Ft,ep,Rd,int)"},
    CasoFormula{"Vrd1", "Vj,Rd = 2 · (1,8 / 1,4) · c · fub · As / γM2"},
    CasoFormula{"MplRdGIUNTO", "zint = hb − d1 − 1,5 tf,b"},
    CasoFormula{"MplRdGIUNTO", "zest = hb + d2 − 0,5 tf,b"},
    CasoFormula{"Beta", "βdx = |1 − (zdx / Mdx) · (Msn / zsn − Vm)|"},
    CasoFormula{"Beta", "βsn = |(Mdx / zdx + Vm) · zsn / Msn − 1|"},
    CasoFormula{"Kwc", "Kwc = 1,25 − 0,5 σ / fy,c"},
    CasoFormula{"Kfc", "Kfc = (2 fy,c − 180 − σ) / (2 fy,c − 360) ≤ 1"},
    CasoFormula{"k4", "k4 = tf,c3 / (4 mc2 · tw,c)"},
    CasoFormula{"k5", "k5 = 2 As / (tw,c · lb)"},
    CasoFormula{"k6", "k6 = max(tf3 / (12 λ mf2 · tw,c); tf3 / (4 mf2 · tw,c))"},
    CasoFormula{"k6_Estesa", "k6,est = tf3 / (4 m22 · tw,c)"},
    CasoFormula{"mu4", "μ4 = zint · Fint / Mj,Rd"},
    CasoFormula{"Sj_Mela", "ηi = (F / (Ri · μ))2 ≥ (1 / 1,5)2,   μ = 1,5"},
    CasoFormula{"LimiteRigido2", "S = 8 E J / L"},
    CasoFormula{"LimiteRigido1", "S = 25 E J / L"},
    CasoFormula{"Irr_L1", "Linf = ⌊(hc − 2 tf,c) / cos φ⌋ − 8 mm"}));
// clang-format on

} // namespace
