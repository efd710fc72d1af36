// The drawing of a joint on every device. Golden DXF files, one a kind of node, that a person has looked at.

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <unistd.h>

#include <gmock/gmock.h>

#include "Approvato.h"
#include "NodoDisegnato.h"
#include "drawing/CadFinto.h"
#include "drawing/Dxf.h"
#include "drawing/SuperficieFinta.h"
#include "joints/FiguraGiunto.h"
#include "joints/MascheraGiunti.h"

using namespace sagomi;
using namespace sagomi::prove;
using testing::Contains;
using testing::ElementsAreArray;
using testing::HasSubstr;
using testing::Not;

namespace {

namespace fs = std::filesystem;

struct Caso {
    const char* nome;
    std::int16_t tipo;
    int nf;
    const char* irrigidimenti;
    bool sinistro = false;
};
constexpr Caso casi[] = {{"TDx", nodoT, 2, "Si"},
                         {"LDx", nodoL, 1, "Cp"},
                         {"CroceDx", nodoCroce, 2, "Si"},
                         {"CroceSn", nodoCroce, 2, "Cp", true},
                         {"Croce_Dx", nodoCroceSenzaColonna, 1, "No"},
                         {"Croce_Sn", nodoCroceSenzaColonna, 1, "Si", true}};

Nodo Di(const Caso& c) { return NodoDisegnato(c.tipo, c.nf, c.irrigidimenti, c.sinistro); }

/// A sheet whose texts are as wide as in the font of printed sheets: half of their height a character.
class Foglio : public SuperficieFinta {
public:
    using SuperficieFinta::SuperficieFinta;
    [[nodiscard]] double TextWidth(std::string_view testo) const override {
        return 0.5 * TextHeight(testo) * static_cast<double>(testo.size());
    }
};

class NodoDisegnoTest : public testing::Test {
protected:
    static SuperficieFinta Disegnato(Nodo n, std::string_view uscita = dispositivoVideo, double l = 900,
                                     double h = 650) {
        Foglio s(l, h);
        n.Uscita = uscita;
        n.PlottaInOggetto(&s, {n.Tipovie});
        return s;
    }

    static std::string Dxf(Nodo n) {
        const fs::path file =
            fs::temp_directory_path() / ("sagomi_nodo_" + std::to_string(::getpid()) + ".dxf");
        std::int16_t f = 0;
        EXPECT_TRUE(DxfApre(file.string(), f));
        n.Uscita = dispositivoDxf;
        n.PlottaInOggetto(nullptr, {n.Tipovie});
        DxfChiude();
        std::ifstream lettura(file, std::ios::binary);
        std::string byte{std::istreambuf_iterator<char>(lettura), std::istreambuf_iterator<char>()};
        fs::remove(file);
        return byte;
    }

    struct Casella {
        double x1, y1, x2, y2;
        std::string testo;
    };
    /// Boxes of the texts, y upwards. A text stands without touching another, inside the sheet.
    static std::vector<Casella> Caselle(const SuperficieFinta& s) {
        std::vector<Casella> c;
        for (const auto& t : s.scritte)
            c.push_back({t.x, t.y, t.x + 0.5 * t.altezza * static_cast<double>(t.testo.size()),
                         t.y + t.altezza, t.testo});
        return c;
    }
    static void SenzaSovrapposizioni(const SuperficieFinta& s, const std::string& dove) {
        const auto c = Caselle(s);
        constexpr double nulla = 1e-6;
        for (std::size_t i = 0; i < c.size(); ++i) {
            EXPECT_GE(s.InX(c[i].x1), -nulla) << dove << ": " << c[i].testo;
            EXPECT_LE(s.InX(c[i].x2), s.InX(s.ScaleLeft + s.ScaleWidth) + nulla)
                << dove << ": " << c[i].testo;
            EXPECT_GE(s.InY(c[i].y2), -nulla) << dove << ": " << c[i].testo;
            EXPECT_LE(s.InY(c[i].y1), s.InY(s.ScaleTop + s.ScaleHeight) + nulla)
                << dove << ": " << c[i].testo;
            for (std::size_t j = 0; j < i; ++j)
                EXPECT_FALSE(c[i].x1 < c[j].x2 - nulla && c[j].x1 < c[i].x2 - nulla &&
                             c[i].y1 < c[j].y2 - nulla && c[j].y1 < c[i].y2 - nulla)
                    << dove << ": " << c[i].testo << " on " << c[j].testo;
        }
    }

    /// No line runs through a text.
    static void SenzaLinee(const SuperficieFinta& s, const std::string& dove) {
        for (const Casella& c : Caselle(s))
            for (const auto& l : s.linee)
                EXPECT_FALSE(Attraversa(l, c))
                    << dove << ": " << c.testo << "; " << l.x1 << ' ' << l.y1 << " - " << l.x2 << ' ' << l.y2;
    }

private:
    /// Whether a part of a line lies inside a box, by clipping it (Liang and Barsky).
    static bool Attraversa(const SuperficieFinta::Linea& l, const Casella& c) {
        double da = 0;
        double a = 1;
        const double dx = l.x2 - l.x1;
        const double dy = l.y2 - l.y1;
        for (const auto& [p, q] : {std::pair{-dx, l.x1 - c.x1}, std::pair{dx, c.x2 - l.x1},
                                   std::pair{-dy, l.y1 - c.y1}, std::pair{dy, c.y2 - l.y1}}) {
            if (p == 0 && q <= 0)
                return false;
            if (p < 0)
                da = std::max(da, q / p);
            else if (p > 0)
                a = std::min(a, q / p);
        }
        return da < a - 1e-9;
    }
    StatoUscita prima_;
};

const std::vector<std::string> colonnaTesti{
    "Colonna: HE 200 B ",
    "Trave: IPE 270",
    "Bulloni [mm]",
    "d = 18",
    "d0 = 20",
    "dw = 34",
    "lb = 51.7", // 15 + 20 + 3 + (15.8 + 11.5) / 2: flange, plate, washer, half nut and head of M18
    "Saldature trave  [mm]",
    "Ala: af = 7",
    "Anima: aw = 4",
    "Flangia  [mm]",
    "Spessore: tf = 20",
    "Larghezza: bf = 160",
    "Distanza orizzontale del foro dal bordo (lato flangia): ef = 30",
    "Passo orizzontale fori: w = 100",
    "Passo verticale fori interni: p = 179.6",
    "Distanza orizzontale del foro dal bordo (lato colonna): ec = 50",
    "Distanza orizzontale del foro dall'anima della colonna: mc = 31.1",
    "Distanza orizzontale del foro dall'anima della trave: mf = 42.2",
    "Distanza verticale del foro dall'ala della trave: m1 = 27.1",
    "Distanza verticale del foro dall'ala della trave: m2 = 27.1",
    "Distanza verticale del foro dal bordo della flangia: ex = 30",
    "Distanza del bordo inferiore della flangia dall'ala della trave: u = 15",
    "Altezza della flangia: hf = 350"};

TEST_F(NodoDisegnoTest, ColumnOfDataToTheLetterAndInOrder) {
    const SuperficieFinta s = Disegnato(NodoDisegnato(nodoT, 2));
    const auto testi = s.Testi();
    const auto da = std::find(testi.begin(), testi.end(), colonnaTesti[0]);
    ASSERT_GE(testi.end() - da, static_cast<std::ptrdiff_t>(colonnaTesti.size()));
    EXPECT_THAT(std::vector<std::string>(da, da + static_cast<std::ptrdiff_t>(colonnaTesti.size())),
                ElementsAreArray(colonnaTesti));
    EXPECT_EQ(std::count(testi.begin(), testi.end(), colonnaTesti[0]), 1);
    std::vector<double> y; // lines at one distance
    for (const auto& t : s.scritte)
        if (std::find(colonnaTesti.begin(), colonnaTesti.end(), t.testo) != colonnaTesti.end())
            y.push_back(t.y);
    for (std::size_t i = 2; i < y.size(); ++i)
        EXPECT_NEAR(y[i] - y[i - 1], y[1] - y[0], 1e-6);
}

TEST_F(NodoDisegnoTest, WhatOneRowDoesNotHaveStandsWithoutValue) {
    const auto testi = Disegnato(NodoDisegnato(nodoT, 1)).Testi();
    EXPECT_THAT(testi, Contains("Distanza verticale del foro dall'ala della trave: m2 = "));
    EXPECT_THAT(testi, Contains("Distanza verticale del foro dal bordo della flangia: ex = "));
    EXPECT_THAT(testi, Contains("Distanza del bordo inferiore della flangia dall'ala della trave: u = "));
    EXPECT_THAT(testi, Contains("Altezza della flangia: hf = 260"));
}

TEST_F(NodoDisegnoTest, TheScaleIsToldToCadAlone) {
    const std::string scala = "Scala 1:1";
    EXPECT_THAT(Disegnato(NodoDisegnato(nodoT, 2)).Testi(), Not(Contains(HasSubstr("Scala"))));
    EXPECT_THAT(Disegnato(NodoDisegnato(nodoT, 2), dispositivoStampante, 190, 277).Testi(),
                Not(Contains(HasSubstr("Scala"))));
    EXPECT_THAT(Dxf(NodoDisegnato(nodoT, 2)), Not(HasSubstr(scala)));
    const CadFinto cad("AutoCAD.Application");
    ASSERT_TRUE(CadApre());
    Nodo n = NodoDisegnato(nodoT, 2);
    n.Uscita = dispositivoDwg;
    n.PlottaInOggetto(nullptr, {n.Tipovie});
    EXPECT_THAT(*cad.chiamate, Contains(HasSubstr(scala)));
}

TEST_F(NodoDisegnoTest, OneFontOnScreenAndPaper) {
    for (const auto uscita : {dispositivoVideo, dispositivoStampante})
        for (const auto& t : Disegnato(NodoDisegnato(nodoCroce, 2, "Si"), uscita).scritte)
            EXPECT_EQ(t.carattere, "Times New Roman") << t.testo;
}

TEST_F(NodoDisegnoTest, PaperHasAScaleInUse) {
    for (const Caso& c : casi)
        for (const bool alto : {true, false}) {
            const SuperficieFinta s =
                Disegnato(Di(c), dispositivoStampante, alto ? 190 : 277, alto ? 277 : 190);
            // the first circle is a hole of 20 mm: its size on the sheet gives the scale
            ASSERT_FALSE(s.cerchi.empty());
            const double mm = s.InX(s.cerchi[0].r) - s.InX(0);
            const double denominatore = 10 / mm;
            if (alto && c.tipo >= nodoT) {
                EXPECT_NEAR(denominatore, 5, 1e-4) << c.nome;
            }
            EXPECT_TRUE(std::abs(denominatore - 5) < 1e-4 || std::abs(denominatore - 10) < 1e-4)
                << c.nome << ' ' << denominatore;
            const std::string testo = "Quote in mm, disegno 1:" + std::to_string(std::lround(denominatore));
            EXPECT_THAT(s.Testi(), Contains(testo)) << c.nome;
            for (const auto& t : s.scritte) { // ISO 3098-1
                const double alta = s.InY(t.y) - s.InY(t.y + t.altezza);
                EXPECT_TRUE(std::abs(alta - 2.5) < 1e-3 || std::abs(alta - 1.8) < 1e-3) << alta;
            }
        }
}

TEST_F(NodoDisegnoTest, TextsDoNotTouch) {
    const std::array<std::pair<double, double>, 4> fogli{{{900, 650}, {1300, 700}, {190, 277}, {277, 190}}};
    for (const Caso& c : casi)
        for (const auto& [l, h] : fogli) {
            const bool carta = l < 300;
            SenzaSovrapposizioni(Disegnato(Di(c), carta ? dispositivoStampante : dispositivoVideo, l, h),
                                 c.nome + std::to_string(int(l)));
        }
}

TEST_F(NodoDisegnoTest, NoLineRunsThroughAText) {
    for (const Caso& c : casi) {
        SenzaLinee(Disegnato(Di(c), dispositivoStampante, 190, 277), c.nome);
        SenzaLinee(Disegnato(Di(c), dispositivoStampante, 277, 190), c.nome);
        SenzaLinee(Disegnato(Di(c), dispositivoVideo, 900, 650), c.nome);
    }
}

TEST_F(NodoDisegnoTest, TextsDoNotTouchFromSmallToLargeSections) {
    const auto IPE160 = [] { return Laminato("IPE 160", 160, 82, 5, 7.4, 9, 2009, 8693000); };
    const auto HEB140 = [] { return Laminato("HE 140 B", 140, 140, 7, 12, 12, 4296, 15090000); };
    for (const char* irrigidimenti : {"No", "Cp", "Si"})
        for (const int nf : {1, 2}) {
            Nodo piccolo = NodoDisegnato(nodoT, nf, irrigidimenti, false, IPE160(), HEB140());
            piccolo.ConnessioneCorrente->bf = 120;
            piccolo.ConnessioneCorrente->Derivati_Calcola();
            SenzaSovrapposizioni(Disegnato(piccolo, dispositivoStampante, 190, 277), "IPE 160");
            const Nodo grande = NodoDisegnato(nodoL, nf, irrigidimenti, false, IPE600(), HEB400());
            SenzaSovrapposizioni(Disegnato(grande, dispositivoStampante, 190, 277), "IPE 600");
            SenzaSovrapposizioni(Disegnato(grande, dispositivoVideo, 900, 650), "IPE 600");
        }
}

/// A joint of a shallow beam with bolts from the thinnest to M30, its rows a quarter of the height from the
/// flanges.
Nodo Basso(std::int16_t tipo, int nf, const char* irrigidimenti, std::int16_t bullone, double h,
           bool sinistro) {
    auto trave = Laminato("IPE " + std::to_string(std::lround(h)), h, 0.55 * h, 5, 7, 7, 2009, 8693000);
    Nodo n = NodoDisegnato(tipo, nf, irrigidimenti, sinistro, trave);
    for (std::int16_t i = n.NumeroGiunti; i >= 1; --i) {
        Giunto& g = *n.Giunti[i].Riferimento();
        g.IndiceBullone(bullone);
        g.d2 = h / 4;
        g.bf = 120;
        g.Derivati_Calcola();
    }
    return n;
}

TEST_F(NodoDisegnoTest, TextsOfShallowBeamsDoNotTouch) {
    const std::array<std::pair<double, double>, 4> fogli{{{900, 650}, {500, 400}, {190, 277}, {277, 190}}};
    for (const double h : {80.0, 100.0, 120.0, 160.0, 200.0, 240.0})
        for (const std::int16_t bullone : {1, 6, 11})
            for (const Caso& c : casi)
                for (const auto& [l, a] : fogli) {
                    const auto s = Disegnato(Basso(c.tipo, c.nf, c.irrigidimenti, bullone, h, c.sinistro),
                                             l < 300 ? dispositivoStampante : dispositivoVideo, l, a);
                    const std::string dove = "h " + std::to_string(int(h)) + " bullone " +
                                             std::to_string(bullone) + ' ' + c.nome + ' ' +
                                             std::to_string(int(l));
                    SenzaSovrapposizioni(s, dove);
                    SenzaLinee(s, dove);
                }
}

TEST_F(NodoDisegnoTest, TheLeftJointIsTheMirrorOfTheRightOne) {
    const auto nomi = [](const SuperficieFinta& s) { // abscissas of the names of column and current beam
        std::pair<double, double> x{0, 0};
        for (const auto& t : s.scritte) {
            if (t.testo == "HE 200 B")
                x.first = t.x;
            if (t.testo == "6 M18") // at the current joint
                x.second = t.x;
        }
        return x;
    };
    const auto destro = nomi(Disegnato(NodoDisegnato(nodoCroce, 2, "Si", false)));
    const auto sinistro = nomi(Disegnato(NodoDisegnato(nodoCroce, 2, "Si", true)));
    EXPECT_GT(destro.second, destro.first);
    EXPECT_LT(sinistro.second, sinistro.first);
}

TEST_F(NodoDisegnoTest, OtherBeamOnlyWhereTheScreenHasTwo) {
    Nodo n = NodoDisegnato(nodoCroce, 2);
    SuperficieFinta una(900, 650);
    n.PlottaInOggetto(&una, {2});
    EXPECT_THAT(una.Testi(), Not(Contains("IPE 330")));
    EXPECT_THAT(Disegnato(n).Testi(), Contains("IPE 330"));
}

TEST_F(NodoDisegnoTest, EachViewByItselfHasTheData) {
    Nodo n = NodoDisegnato(nodoT, 2);
    SuperficieFinta s(900, 650);
    n.PlottaGiuntoFlangiato(); // before the sheet: nothing
    EXPECT_TRUE(s.linee.empty());
    for (const bool laterale : {true, false}) {
        s.scritte.clear();
        s.cerchi.clear();
        OggettoGrafico = &s;
        laterale ? n.PltInizializza(&s, {2}) : n.PltInizializza();
        laterale ? n.PlottaGiuntoFlangiato() : n.PlottaProspettoGiunto();
        EXPECT_THAT(s.Testi(), Contains("Bulloni [mm]"));
        EXPECT_EQ(s.cerchi.size(), laterale ? 0U : 6U);
    }
}

TEST_F(NodoDisegnoTest, NothingWithoutSections) {
    Nodo n;
    n.ImpostaNodo();
    EXPECT_TRUE(Disegnato(n).linee.empty());
    n.ConnessioneCorrente.reset();
    EXPECT_TRUE(Disegnato(n).scritte.empty());
}

TEST_F(NodoDisegnoTest, DxfOfEachKindIsTheApprovedOne) {
    for (const Caso& c : casi)
        ConfrontaApprovato(std::string("joints/disegni/") + c.nome + ".dxf", Dxf(Di(c)));
}

// The picture beside the figures ------------------------------------------------------------------------

class FiguraGiuntoTest : public NodoDisegnoTest {
protected:
    static SuperficieFinta Figura(const Nodo& n, const EvidenzaGiunto& e = {}, double l = 480,
                                  double h = 600) {
        Foglio s(l, h);
        const SuUscita uscita(&s);
        FiguraGiunto(n, nullptr, e).PlottaInOggetto(&s, "frmGiunti");
        return s;
    }
};

// The moment is that of the joint that is shown, the current one when none is named.
TEST_F(FiguraGiuntoTest, TheMomentOfTheJointShown) {
    Nodo n = NodoDisegnato(nodoCroce, 2);
    n.Giunti[1]->Acquisito = n.Giunti[2]->Acquisito = true;
    n.Giunti[1]->MplRdGIUNTO = 55;
    n.Giunti[2]->MplRdGIUNTO = 77;
    EXPECT_THAT(DescrizioneGiunto(n, n.Giunti[2].Riferimento().get(), {}), HasSubstr("Mj,Rd 77"));
    EXPECT_THAT(DescrizioneGiunto(n, nullptr, {}), HasSubstr("Mj,Rd 55"));
}

TEST_F(FiguraGiuntoTest, TextsDoNotTouch) {
    for (const Caso& c : casi) {
        EvidenzaGiunto e;
        e.governano = {{ComponenteGiunto::AlaColonna, FilaGiunto::Interna}};
        e.testo = "governa: ala della colonna, fila interna 182 kN";
        e.parametro = "ef";
        e.limite = "min 35";
        SenzaSovrapposizioni(Figura(Di(c), e), c.nome);
        SenzaSovrapposizioni(Figura(Di(c), e, 700, 560), c.nome);
    }
}

TEST_F(FiguraGiuntoTest, TextsOfShallowBeamsDoNotTouch) {
    const std::array<std::pair<double, double>, 3> misure{{{300, 320}, {480, 600}, {700, 560}}};
    for (const double h : {80.0, 120.0, 160.0, 200.0})
        for (const std::int16_t bullone : {1, 6, 11})
            for (const Caso& c : casi)
                for (const auto& [l, a] : misure) {
                    const Nodo n = Basso(c.tipo, c.nf, c.irrigidimenti, bullone, h, c.sinistro);
                    SenzaSovrapposizioni(Figura(n, {}, l, a), "h " + std::to_string(int(h)) + " bullone " +
                                                                  std::to_string(bullone) + ' ' + c.nome +
                                                                  ' ' + std::to_string(int(l)));
                }
}

TEST_F(FiguraGiuntoTest, TheFrontViewStandsBelowTheSideView) {
    for (const double larga : {400.0, 480.0, 900.0, 1400.0}) {
        const SuperficieFinta s = Figura(NodoDisegnato(nodoT, 2), {}, larga, 650);
        const auto colonna = std::find_if(s.scritte.begin(), s.scritte.end(),
                                          [](const auto& t) { return t.testo == "HE 200 B"; });
        ASSERT_NE(colonna, s.scritte.end());
        for (const auto& c : s.cerchi) // the holes, below the foot of the side view
            EXPECT_LT(c.y, colonna->y) << larga;
    }
}

TEST_F(FiguraGiuntoTest, ABrokenLimitIsARedDimension) {
    EvidenzaGiunto e;
    e.parametro = "ef";
    e.limite = "min 35";
    for (const auto& t : Figura(NodoDisegnato(nodoT, 2), e).scritte)
        EXPECT_EQ(t.colore == 12, t.testo == "ef 30 (min 35)") << t.testo;
    for (const char* campo : {"tf", "bf", "ex", "dX", "d2", "u", "L"}) {
        e.parametro = campo;
        const auto s = Figura(NodoDisegnato(nodoT, 2), e);
        EXPECT_EQ(
            std::count_if(s.scritte.begin(), s.scritte.end(), [](const auto& t) { return t.colore == 12; }),
            1)
            << campo;
    }
}

TEST_F(FiguraGiuntoTest, ABrokenLimitWithoutDimensionIsToldOverThePicture) {
    EvidenzaGiunto e;
    e.parametro = "d2";
    e.limite = "min 22";
    Nodo n = NodoDisegnato(nodoT, 1);
    n.ConnessioneCorrente->d2 = 0;
    EXPECT_THAT(Figura(n, e).Testi(), Contains("d1: min 22"));
    n.ConnessioneCorrente->d2 = 12;
    EXPECT_THAT(Figura(n, e).Testi(), Not(Contains("d1: min 22")));
    EXPECT_THAT(Figura(n, e).Testi(), Contains("d1 12 (min 22)"));
}

TEST_F(FiguraGiuntoTest, ALimitOfTheOuterRowWithoutItsDistanceIsToldOverThePicture) {
    Nodo n = NodoDisegnato(nodoT, 2);
    n.ConnessioneCorrente->dX = n.ConnessioneCorrente->ex = n.ConnessioneCorrente->L = 0;
    n.ConnessioneCorrente->u = 0;
    for (const auto& [campo, detto] :
         {std::pair{"dX", "d2: min 22"}, {"ex", "ex: min 22"}, {"u", "u: min 22"}, {"L", "h': min 22"}})
        EXPECT_THAT(Figura(n, {{}, {}, campo, "min 22"}).Testi(), Contains(detto));
}

TEST_F(FiguraGiuntoTest, WhatGovernsIsHatchedAndOutlinedInRed) {
    const auto rosse = [](const SuperficieFinta& s) {
        return std::count_if(s.linee.begin(), s.linee.end(), [](const auto& l) { return l.colore == 12; });
    };
    EXPECT_EQ(rosse(Figura(NodoDisegnato(nodoT, 2))), 0);
    using enum ComponenteGiunto;
    for (const ComponenteGiunto c :
         {Pannello, AnimaColonnaCompressa, InstabilitaAnimaColonna, Bulloni, AnimaColonnaTesa, AlaColonna,
          Flangia, AnimaTrave, AlaTrave, Irrigidimenti}) {
        EvidenzaGiunto e;
        e.governano = {{c, FilaGiunto::Nessuna}};
        EXPECT_GT(rosse(Figura(NodoDisegnato(nodoT, 2, "Si"), e)), 5) << NomeComponente(e.governano[0]);
    }
}

TEST_F(FiguraGiuntoTest, SaysWhatIsMissing) {
    Nodo n;
    n.ImpostaNodo();
    n.CaratterizzaGiunti();
    EXPECT_THAT(Figura(n).Testi(), testing::ElementsAre("Nessun sagomo assegnato"));
    n.PuntatoreColonna(HEB200());
    EXPECT_THAT(Figura(n).Testi(), testing::IsSupersetOf({"Manca trave destra", "Manca trave sinistra"}));
    n.PuntatoreTraveDestra(IPE270());
    n.PuntatoreTraveSinistra(IPE270());
    EXPECT_THAT(Figura(n).Testi(), Contains("Mancano tf, bf, ef, d1"));
    Disegnabile(*n.ConnessioneCorrente, 1, "No");
    EXPECT_THAT(Figura(n).Testi(), Not(Contains(HasSubstr("Manca"))));
}

TEST_F(FiguraGiuntoTest, TheComponentsAreWhereTheyArePainted) {
    auto t = std::make_shared<TracciatoNodo>();
    t->attivo = true;
    SuperficieFinta s(480, 600);
    const SuUscita uscita(&s);
    FiguraGiunto(NodoDisegnato(nodoT, 2), nullptr, {}, t).PlottaInOggetto(&s, "frmGiunti");
    int fori = 0; // every hole lies inside a zone of the bolts
    for (const auto& c : s.cerchi)
        for (const ZonaNodo& z : t->zone)
            if (z.quale.componente == ComponenteGiunto::Bulloni && z.contorno[0].x < c.x &&
                c.x < z.contorno[2].x && z.contorno[0].y < c.y && c.y < z.contorno[2].y) {
                ++fori;
                break;
            }
    EXPECT_EQ(fori, 6);
    t->attivo = false;
    t->zone.clear();
    FiguraGiunto(NodoDisegnato(nodoT, 2), nullptr, {}, t).PlottaInOggetto(&s, "frmGiunti");
    EXPECT_TRUE(t->zone.empty());
}

// Bolts, plate and flange of the column are pointed at row by row, all else as a whole.
TEST_F(FiguraGiuntoTest, RowsHaveZonesOfTheirOwn) {
    using enum ComponenteGiunto;
    auto t = std::make_shared<TracciatoNodo>();
    t->attivo = true;
    SuperficieFinta s(480, 600);
    const SuUscita uscita(&s);
    FiguraGiunto(NodoDisegnato(nodoT, 2, "Si"), nullptr, {}, t).PlottaInOggetto(&s, "frmGiunti");
    const auto ha = [&](ComponenteGiunto c, FilaGiunto f) {
        return std::any_of(t->zone.begin(), t->zone.end(), [&](const ZonaNodo& z) {
            return z.quale == ComponenteFila{c, f};
        });
    };
    for (const ComponenteGiunto c : {Bulloni, Flangia, AlaColonna})
        for (const FilaGiunto f : {FilaGiunto::Interna, FilaGiunto::Esterna})
            EXPECT_TRUE(ha(c, f)) << NomeComponente({c, f});
    for (const ComponenteGiunto c : {Saldature, Irrigidimenti, AlaTrave, AnimaTrave, AnimaColonnaTesa,
                                     AnimaColonnaCompressa, Pannello}) {
        EXPECT_FALSE(ha(c, FilaGiunto::Interna)) << NomeComponente({c, FilaGiunto::Interna});
        EXPECT_FALSE(ha(c, FilaGiunto::Esterna)) << NomeComponente({c, FilaGiunto::Esterna});
    }
}

TEST(ComponentiGiunto, WhatGovernsFollowsTheCheck) {
    Giunto g;
    g.ComponenteDeboleFilaInf = " Fila int. dalla flangia di estremità a flessione";
    g.ComponenteDebole = " dall'anima della colonna a compressione";
    g.FtRd_EffInf = 120;
    EXPECT_TRUE(Governa(g).governano.empty()); // not computed
    g.Acquisito = true;
    const ComponenteFila flangia{ComponenteGiunto::Flangia, FilaGiunto::Nessuna};
    EXPECT_THAT(Governa(g).governano, testing::ElementsAre(flangia));
    EXPECT_EQ(Governa(g).testo, "governa: flangia d'estremità 120 kN");
    g.FtRd_EffInf = 123.456; // four figures
    EXPECT_EQ(Governa(g).testo, "governa: flangia d'estremità 123.5 kN");
    g.FtRd_EffInf = 120;
    g.TipoMessaggio = 1;
    const ComponenteFila compressa{ComponenteGiunto::AnimaColonnaCompressa, FilaGiunto::Nessuna};
    EXPECT_THAT(Governa(g).governano, testing::ElementsAre(compressa));
    g.TipoMessaggio = 0;
    g.nf = 2;
    g.FtRd_EffSup = 90;
    g.ComponenteDeboleFilaSup = " Fila est. ala della colonna a flessione";
    const ComponenteFila ala{ComponenteGiunto::AlaColonna, FilaGiunto::Esterna};
    const ComponenteFila interna{ComponenteGiunto::Flangia, FilaGiunto::Interna};
    EXPECT_THAT(Governa(g).governano, testing::ElementsAre(ala, interna));
    EXPECT_EQ(Governa(g).testo,
              "governa: ala della colonna, fila esterna 90 kN; flangia d'estremità, fila interna 120 kN");
    g.ComponenteDebole = " dall'anima della trave a trazione";
    EXPECT_EQ(Governa(g).governano[0].componente, ComponenteGiunto::AnimaTrave);
}

} // namespace
