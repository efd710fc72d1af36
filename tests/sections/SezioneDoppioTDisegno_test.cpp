#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>

#include <gtest/gtest.h>
#include <unistd.h>

#include "Approvato.h"
#include "Registratore.h"
#include "SezioniDiProva.h"
#include "drawing/CadFinto.h"
#include "drawing/Dxf.h"
#include "drawing/SuperficieFinta.h"
#include "frame/GeneraleSagomi.h"
#include "frame/Numeri.h"
#include "sections/DisegnoSagoma.h"
#include "sections/SezioneDoppioT.h"
#include "sections/SezioneGenerica.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

namespace fs = std::filesystem;

SezioneDoppioT Laminata(const char* nome, double h, double b, double tw, double tf, double r1, double r2) {
    SezioneDoppioT s = Ipe200();
    s.Designation = nome;
    s.h = h;
    s.b = b;
    s.tw = tw;
    s.tf = tf;
    s.r1 = r1;
    s.r2 = r2;
    s.InizializzaSezione();
    return s;
}

SezioneDoppioT Ipe() { return Laminata("IPE 200", 200, 100, 5.6, 8.5, 12, 0); }
SezioneDoppioT Ipn() { return Laminata("IPN 300", 300, 125, 10.8, 16.2, 10.8, 6.5); }

SezioneDoppioT Saldata(const char* nome, double fy, double h, double b, double tw, double tf, double r,
                       std::optional<double> b2 = {}, std::optional<double> t2 = {}) {
    SezioneDoppioT s;
    s.Designation = nome;
    s.fy = fy;
    s.InizializzaSezioneUtente(nullptr, h, b, tw, tf, r, b2, t2);
    return s;
}

SezioneDoppioT Ise() { return Saldata("ISE 500x73", 235, 500, 180, 8, 12, 5); }
SezioneDoppioT Hsd() { return Saldata("HSD 500x84", 235, 500, 300, 8, 15, 5, 200, 12); }

/// Class 4 in web and flanges: c/tf = 240/12 = 20, d/tw = 1164/8 = 145.5, epsilon 0.814.
SezioneDoppioT Snella(std::int16_t efficace) {
    SezioneDoppioT s = Saldata("HSL 1200x190", 355, 1200, 500, 8, 12, 6);
    s.SezioneEfficaceDaPlottare = efficace;
    return s;
}

class DisegnoTest : public testing::Test {
protected:
    void TearDown() override {
        RipristinaGenerale();
        CarDecimale = '.';
        CarMigliaia = ',';
    }

    /// The lines of data and the values on the drawing, as a set that can be asked.
    static bool Ha(const SuperficieFinta& s, const char* testo) {
        const auto testi = s.Testi();
        return std::find(testi.begin(), testi.end(), testo) != testi.end();
    }

    /// Lines drawn as outlines.
    static std::size_t LatiContorno(const SuperficieFinta& s) {
        return std::size_t(std::count_if(s.linee.begin(), s.linee.end(),
                                         [](const auto& l) { return l.spessore == spessoreContorno; }));
    }

    Registratore registratore;
    SuperficieFinta superficie{900, 600};
    StatoUscita prima;
};

TEST_F(DisegnoTest, LinesOfDataInTheirOrder) {
    Ipe().PlottaSezione(&superficie, "frmDoppioT", "VIDEO");
    const auto testi = superficie.Testi();
    const std::vector<std::string> attesi{"IPE 200", "h = 200", "b = 100", "tw = 5.6", "tf = 8.5", "r = 12"};
    ASSERT_GE(testi.size(), attesi.size());
    EXPECT_EQ(std::vector<std::string>(testi.end() - 6, testi.end()), attesi);
    const auto& righe = superficie.scritte;
    const double passo = righe[righe.size() - 2].y - righe.back().y;
    EXPECT_GT(passo, righe.back().altezza) << "each line under the one before it";
    EXPECT_NEAR(righe[righe.size() - 3].y - righe[righe.size() - 2].y, passo, 1e-9);
    EXPECT_GT(righe[righe.size() - 6].altezza, righe.back().altezza) << "the name stands out";
}

TEST_F(DisegnoTest, AnOvertypedStrengthStandsAmongTheData) {
    SezioneDoppioT s = Ipe();
    s.TipoAcciaio = "S235 (Fe360)";
    s.fy = 460;
    s.PlottaSezione(&superficie, "frmDoppioT", "VIDEO");
    EXPECT_EQ(superficie.Testi().back(), "S235 (Fe360), fy 460");
}

TEST_F(DisegnoTest, WeldedFamiliesShowTheirFilletLeg) {
    for (const char* famiglia : {"HSH", "ISE", "HSA", "HSL"}) {
        SezioneDoppioT s = Laminata((famiglia + std::string(" 300x37")).c_str(), 300, 150, 6, 10, 0, 0);
        s.r1 = 99;
        s.r = 5;
        superficie.scritte.clear();
        s.PlottaSezione(&superficie, "frmSaldati", "VIDEO");
        EXPECT_TRUE(Ha(superficie, "r = 5")) << famiglia;
    }
    superficie.scritte.clear();
    Ise().PlottaSezione(&superficie, "frmSaldati", "VIDEO");
    EXPECT_TRUE(Ha(superficie, "ISE 500x73"));
    EXPECT_TRUE(Ha(superficie, "r = 5"));
    EXPECT_TRUE(Ha(superficie, "b = 180"));
}

TEST_F(DisegnoTest, DifferentFlangesShowBothWidthsAndThicknesses) {
    Hsd().PlottaSezione(&superficie, "frmSaldatiAsimm", "VIDEO");
    const auto testi = superficie.Testi();
    const std::vector<std::string> attesi{"HSD 500x84", "h = 500",  "b1 = 300", "b2 = 200",
                                          "tw = 8",     "tf1 = 15", "tf2 = 12", "r = 5"};
    EXPECT_EQ(std::vector<std::string>(testi.end() - 8, testi.end()), attesi);
    for (const char* quota : {"500", "300", "200", "8", "15", "12"})
        EXPECT_TRUE(Ha(superficie, quota)) << quota;
}

TEST_F(DisegnoTest, ValuesStandInTheSeparatorsOfTheSystem) {
    CarDecimale = ',';
    CarMigliaia = '.';
    Ipe().PlottaSezione(&superficie, "frmDoppioT", "VIDEO");
    EXPECT_TRUE(Ha(superficie, "tw = 5,6"));
    EXPECT_TRUE(Ha(superficie, "5,6"));
}

TEST_F(DisegnoTest, OutlineHatchingAxesAndCentroid) {
    Ipe().PlottaSezione(&superficie, "frmDoppioT", "VIDEO");
    EXPECT_EQ(LatiContorno(superficie), 44U);
    EXPECT_TRUE(Ha(superficie, "y"));
    EXPECT_TRUE(Ha(superficie, "z"));
    const auto assi = std::count_if(superficie.linee.begin(), superficie.linee.end(),
                                    [](const auto& l) { return l.tipo == TipoLinea::TrattoPunto; });
    EXPECT_EQ(assi, 2);
    ASSERT_EQ(superficie.cerchi.size(), 1U);
    EXPECT_NEAR(superficie.cerchi[0].x, 0, 1e-9);
    EXPECT_NEAR(superficie.cerchi[0].y, 100, 1e-6);
    // hatching at 45 degrees: its length times its spacing of h/50 = 4 is the area of 2848 mm2
    double tratti = 0;
    for (const auto& l : superficie.linee)
        if (l.colore == pennaGrigia && std::abs((l.y2 - l.y1) - (l.x2 - l.x1)) < 1e-9)
            tratti += std::hypot(l.x2 - l.x1, l.y2 - l.y1);
    EXPECT_NEAR(tratti * 4, 2848, 0.02 * 2848);
    superficie.linee.clear();
    Ipn().PlottaSezione(&superficie, "frmDoppioT", "VIDEO");
    EXPECT_EQ(LatiContorno(superficie), 76U);
}

// Everything stays on the target, whatever its shape: 5 px of rounding in the widths of texts.
TEST_F(DisegnoTest, EverythingStaysOnTheTarget) {
    for (const auto& [l, h] : {std::pair{900.0, 600.0}, {600.0, 900.0}, {400.0, 400.0}, {1900.0, 500.0}}) {
        for (const SezioneDoppioT& s : {Ipe(), Ipn(), Ise(), Hsd()}) {
            SuperficieFinta su(l, h);
            s.PlottaSezione(&su, "x", "VIDEO");
            for (const auto& linea : su.linee)
                for (const auto& [x, y] : {std::pair{linea.x1, linea.y1}, {linea.x2, linea.y2}}) {
                    EXPECT_GE(su.InX(x), 0) << s.Designation << " on " << l;
                    EXPECT_LE(su.InX(x), l) << s.Designation;
                    EXPECT_GE(su.InY(y), 0) << s.Designation;
                    EXPECT_LE(su.InY(y), h) << s.Designation;
                }
            for (const auto& t : su.scritte) {
                EXPECT_GE(su.InX(t.x), -5) << t.testo;
                EXPECT_LE(su.InX(t.x) + 0.6 * t.corpo * double(t.testo.size()), l + 5) << t.testo;
                EXPECT_GE(su.InY(t.y + t.altezza), 0) << t.testo << " of " << s.Designation << " on " << l;
                EXPECT_LE(su.InY(t.y), h) << t.testo;
            }
        }
    }
}

TEST_F(DisegnoTest, PaperHasItsScaleAmongTheData) {
    SuperficieFinta foglio(190, 277); // printable millimetres of A4
    Ipe().PlottaSezione(&foglio, "frmDoppioT", "STAMPANTE");
    EXPECT_TRUE(Ha(foglio, "Scala 1:1"));
    EXPECT_NEAR(foglio.InY(0) - foglio.InY(200), 200, 1e-6) << "200 mm are 200 mm";
    EXPECT_NEAR(foglio.InX(50) - foglio.InX(-50), 100, 1e-6);
    EXPECT_EQ(foglio.scritte.back().carattere, "Times New Roman");
    foglio.scritte.clear();
    Snella(0).PlottaSezione(&foglio, "frmSaldati", "STAMPANTE");
    EXPECT_TRUE(Ha(foglio, "Scala 1:5"));
    EXPECT_NEAR(foglio.InY(0) - foglio.InY(1200), 240, 1e-4);
    superficie.scritte.clear();
    Ipe().PlottaSezione(&superficie, "frmDoppioT", "VIDEO");
    EXPECT_FALSE(Ha(superficie, "Scala 1:1"));
}

// Effective outlines ------------------------------------------------------------------------------------

struct Ingombro {
    double xMin = 1e9, xMax = -1e9, yMin = 1e9, yMax = -1e9;
};
Ingombro IngombroContorno(const SuperficieFinta& s, double daY, double aY) {
    Ingombro e;
    for (const auto& l : s.linee)
        if (l.spessore == spessoreContorno && l.y1 >= daY && l.y1 <= aY) {
            e.xMin = std::min(e.xMin, l.x1);
            e.xMax = std::max(e.xMax, l.x1);
            e.yMin = std::min(e.yMin, l.y1);
            e.yMax = std::max(e.yMax, l.y1);
        }
    return e;
}

// By hand, EC3 (ENV) 5.3.5, S355: epsilon 0.81362. Flange, k 0.43: lamda = 20/(28.4·0.81362·0.65574)
// = 1.31996, rho = (1.31996 - 0.22)/1.31996^2 = 0.63133, kept outstand 0.63133·240 = 151.52, tip at 151.52 +
// 4 + 6 = 161.52. Web, k 4: lamda = 145.5/(28.4·0.81362·2) = 3.14841, rho = 0.29543, two strips of
// 0.29543·1164/2 = 171.94 beside the fillets: hole from 18 + 171.94 = 189.94 to 1200 - 189.94.
TEST_F(DisegnoTest, EffectiveOutlineInCompression) {
    Snella(0).PlottaSezione(&superficie, "FrmClasseDoppioTU", "VIDEO");
    EXPECT_TRUE(Ha(superficie, "Aeff Comp."));
    const Ingombro sotto = IngombroContorno(superficie, -1, 600);
    const Ingombro sopra = IngombroContorno(superficie, 600, 1300);
    EXPECT_NEAR(sopra.xMax, 161.5, 0.5);
    EXPECT_NEAR(sotto.xMin, -161.5, 0.5);
    EXPECT_NEAR(sotto.yMax, 189.9, 0.5) << "the strip left at the lower flange";
    EXPECT_NEAR(sopra.yMin, 1200 - 189.9, 0.5);
    for (const auto& l : superficie.linee)
        if (l.spessore == spessoreContorno) {
            EXPECT_GT(std::max(std::abs(l.x1), std::abs(l.x2)), 1) << "the thread of 0.02 mm is not drawn";
        }
    const auto intera = std::count_if(superficie.linee.begin(), superficie.linee.end(),
                                      [](const auto& l) { return l.tipo == TipoLinea::Tratteggiata; });
    EXPECT_EQ(intera, 16) << "the whole outline behind it";
    EXPECT_TRUE(Ha(superficie, "b = 500")) << "dimensions are those of the whole section";
}

TEST_F(DisegnoTest, EffectiveOutlineInBendingAboutY) {
    const SezioneDoppioT s = Snella(1);
    s.PlottaSezione(&superficie, "FrmClasseDoppioTU", "VIDEO");
    EXPECT_TRUE(Ha(superficie, "Weff,y"));
    const Ingombro tutto = IngombroContorno(superficie, -1, 1300);
    EXPECT_NEAR(tutto.xMax, 250, 1e-6) << "the lower flange is in tension";
    EXPECT_NEAR(IngombroContorno(superficie, 1150, 1300).xMax, 161.5, 0.5);
    EXPECT_LT(s.SezioneWy4->yG, 600);
    EXPECT_NEAR(superficie.cerchi[0].y, s.SezioneWy4->yG, 1e-9) << "its own centroid";
}

// Bending about z, k 0.57: lamda = 20/(28.4·0.81362·0.75498) = 1.14647, rho = 0.70486, tip at 0.70486·240 +
// 10 = 179.17, on the right only.
TEST_F(DisegnoTest, EffectiveOutlineInBendingAboutZ) {
    Snella(2).PlottaSezione(&superficie, "FrmClasseDoppioTU", "VIDEO");
    EXPECT_TRUE(Ha(superficie, "Weff,z"));
    const Ingombro tutto = IngombroContorno(superficie, -1, 1300);
    EXPECT_NEAR(tutto.xMax, 179.2, 0.5);
    EXPECT_NEAR(tutto.xMin, -250, 1e-6);
}

TEST_F(DisegnoTest, OnlyTheClassScreenGetsEffectiveOutlines) {
    Snella(0).PlottaSezione(&superficie, "frmSaldati", "VIDEO");
    EXPECT_FALSE(Ha(superficie, "Aeff Comp."));
    EXPECT_EQ(LatiContorno(superficie), 16U);
}

TEST_F(DisegnoTest, AnOutlineThatIsNotThereGivesTheWholeSection) {
    for (const std::int16_t quale : {0, 1, 2, 3, -1}) {
        SezioneDoppioT s = Ipe();
        s.SezioneEfficaceDaPlottare = quale;
        SuperficieFinta su(900, 600);
        s.PlottaSezione(&su, "FrmClasseDoppioTU", "VIDEO");
        EXPECT_EQ(LatiContorno(su), 44U) << quale;
    }
}

TEST_F(DisegnoTest, BeforeItIsInitialisedNothingIsDrawn) {
    const SezioneDoppioT s;
    s.PlottaSezione(&superficie, "frmDoppioT", "VIDEO");
    s.PlottaSezione(nullptr, "frmDoppioT", "DXF");
    EXPECT_TRUE(superficie.linee.empty());
    EXPECT_TRUE(registratore.testi.empty());
}

TEST_F(DisegnoTest, ASectionBeyondAllMeasureDrawsNothing) {
    for (const double b : {1e308, 1e16}) {
        SezioneDoppioT s = Ipe();
        Poligono& contorno = *s.SezioneGenericaCorrente->Poligono;
        std::vector<double> x(contorno.CoordX().begin(), contorno.CoordX().end());
        const std::vector<double> y(contorno.CoordY().begin(), contorno.CoordY().end());
        x[0] = b;
        contorno.Coordinate(x, y, contorno.nVertici());
        s.PlottaSezione(&superficie, "frmDoppioT", "VIDEO");
        EXPECT_FALSE(DisegnoSagoma(SagomaDi(s)).PlottaInOggetto);
    }
    EXPECT_TRUE(superficie.linee.empty() && superficie.scritte.empty() && superficie.cerchi.empty());
}

TEST_F(DisegnoTest, ThePictureOfDifferentFlangesNamesEach) {
    const SagomaDisegnata picture = SagomaDi(Hsd());
    std::vector<std::string> names{picture.nomeB};
    for (const NomeSagoma& name : picture.nomi)
        names.push_back(name.testo);
    EXPECT_EQ(names, (std::vector<std::string>{"b2", "tw", "tf1", "r", "b1", "tf2"}));
    EXPECT_EQ(picture.b, 200) << "the dimension below is that of the lower flange";
    EXPECT_EQ(picture.destra, 150);
    EXPECT_EQ(SagomaDi(Ipe()).nomeB, "b");
}

TEST_F(DisegnoTest, WithoutFilletsNoLeader) {
    Saldata("piatti", 235, 300, 150, 6, 10, 0).PlottaSezione(&superficie, "x", "VIDEO");
    const auto testi = superficie.Testi();
    EXPECT_EQ(std::count(testi.begin(), testi.end(), "r = 0"), 1) << "among the data only";
}

// Files -------------------------------------------------------------------------------------------------

std::string InDxf(const SezioneDoppioT& s, const char* maschera) {
    const fs::path percorso = fs::temp_directory_path() / ("sagomi_disegno_" + std::to_string(::getpid()));
    std::int16_t n = 0;
    EXPECT_TRUE(DxfApre(percorso, n));
    {
        const SuUscita uscita(nullptr, dispositivoDxf);
        s.PlottaSezione(nullptr, maschera, "DXF");
    }
    EXPECT_TRUE(DxfChiude());
    std::ifstream f(percorso, std::ios::binary);
    std::string byte{std::istreambuf_iterator<char>(f), std::istreambuf_iterator<char>()};
    fs::remove(percorso);
    return byte;
}

struct CasoFile {
    const char* file;
    std::function<SezioneDoppioT()> sezione;
    const char* maschera;
};
void PrintTo(const CasoFile& c, std::ostream* os) { *os << c.file; }

class FileDxfTest : public DisegnoTest, public testing::WithParamInterface<CasoFile> {};

TEST_P(FileDxfTest, AlByte) {
    const CasoFile& c = GetParam();
    ConfrontaApprovato("drawing/" + std::string(c.file) + ".dxf", InDxf(c.sezione(), c.maschera));
    EXPECT_TRUE(registratore.testi.empty());
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Approvati, FileDxfTest, testing::Values(
    CasoFile{"laminato",    Ipe,                     "frmDoppioT"},
    CasoFile{"rastremato",  Ipn,                     "frmDoppioT"},
    CasoFile{"saldato",     Ise,                     "frmSaldati"},
    CasoFile{"asimmetrico", Hsd,                     "frmSaldatiAsimm"},
    CasoFile{"classe4_comp", [] { return Snella(0); }, "FrmClasseDoppioTU"},
    CasoFile{"classe4_wy",   [] { return Snella(1); }, "FrmClasseDoppioTU"},
    CasoFile{"classe4_wz",   [] { return Snella(2); }, "FrmClasseDoppioTU"}),
    [](const auto& i) { return std::string(i.param.file); });
// clang-format on

/// Straight lines of a DXF, those of its polylines too.
std::vector<std::array<double, 4>> LineeDelDxf(const std::string& byte) {
    std::vector<std::pair<std::string, std::string>> gruppi;
    for (std::size_t i = 0; i < byte.size();) {
        std::string righe[2];
        for (std::string& riga : righe) {
            const std::size_t fine = byte.find("\r\n", i);
            riga = byte.substr(i, fine - i);
            i = fine + 2;
        }
        gruppi.emplace_back(righe[0], righe[1]);
    }
    std::vector<std::array<double, 4>> linee;
    std::array<double, 4> v{};
    std::string entita;
    bool primo = true;
    double xP = 0;
    double yP = 0;
    const auto chiude = [&] {
        if (entita == "LINE")
            linee.push_back(v);
        if (entita == "POLYLINE")
            primo = true;
        if (entita == "VERTEX") {
            if (!primo)
                linee.push_back({xP, yP, v[0], v[1]});
            primo = false;
            xP = v[0];
            yP = v[1];
        }
    };
    for (const auto& [codice, valore] : gruppi) {
        if (codice == "  0") {
            chiude();
            entita = valore;
        }
        const char* codici[] = {" 10", " 20", " 11", " 21"};
        for (std::size_t k = 0; k < 4; ++k)
            if (codice == codici[k])
                v[k] = ValoreNumerico(valore);
    }
    return linee;
}

// On a target where texts come out as high as in the file, h/40, both hold the same lines: 10/(h/40) units
// for a millimetre, so 400 units for h, and the margins (3.5 + 5.5 texts of 10) on top.
TEST_F(DisegnoTest, FileAndScreenHoldTheSamePicture) {
    SuperficieFinta su(1200, 400 + 90);
    const SezioneDoppioT s = Ipe();
    s.PlottaSezione(&su, "frmDoppioT", "VIDEO");
    ASSERT_NEAR(su.scritte.back().altezza, 5, 1e-6);
    const auto file = LineeDelDxf(InDxf(s, "frmDoppioT"));
    ASSERT_EQ(file.size(), su.linee.size());
    for (std::size_t i = 0; i < file.size(); ++i) {
        EXPECT_NEAR(file[i][0], su.linee[i].x1, 1e-5);
        EXPECT_NEAR(file[i][1], su.linee[i].y1, 1e-5);
        EXPECT_NEAR(file[i][2], su.linee[i].x2, 1e-5);
        EXPECT_NEAR(file[i][3], su.linee[i].y2, 1e-5);
    }
}

TEST_F(DisegnoTest, CadReceivesTheOutlineAsOnePolyline) {
    const CadFinto cad("AutoCAD.Application.17");
    ASSERT_TRUE(CadApre());
    cad.chiamate->clear();
    {
        const SuUscita uscita(nullptr, dispositivoDwg);
        Ise().PlottaSezione(nullptr, "frmSaldati", "DWG");
    }
    const auto inizia = [](const char* con) {
        return [con](const std::string& c) { return c.starts_with(con); };
    };
    EXPECT_EQ(std::count_if(cad.chiamate->begin(), cad.chiamate->end(),
                            inizia("ModelSpace.AddLightWeightPolyline 90 0 90 12")),
              1);
    EXPECT_EQ(std::count_if(cad.chiamate->begin(), cad.chiamate->end(), inizia("ModelSpace.AddCircle")), 1);
    EXPECT_EQ(std::count_if(cad.chiamate->begin(), cad.chiamate->end(), inizia("ModelSpace.AddText h = 500")),
              1);
}

} // namespace
