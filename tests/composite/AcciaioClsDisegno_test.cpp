// The drawing of a composite beam: what stands on it, and golden DXF files that a person has looked at.

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <limits>
#include <unistd.h>

#include "Approvato.h"
#include "TraveDiProva.h"
#include "composite/DisegnoVivo.h"
#include "composite/VerificaTrave.h"
#include "drawing/Dxf.h"
#include "drawing/SuperficieFinta.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

namespace fs = std::filesystem;

class DisegnoTraveTest : public AmbienteTrave {
protected:
    DisegnoTraveTest() { InUso(235, 300, 150, 7, 11); }

    static SuperficieFinta Disegnata(const AcciaioCls& t) {
        SuperficieFinta s(800, 500);
        t.PlottaAcciaioCls(&s, "frmAcciaioCls", dispositivoVideo);
        return s;
    }
    static bool Ha(const SuperficieFinta& s, const std::string& testo) {
        const auto testi = s.Testi();
        return std::find(testi.begin(), testi.end(), testo) != testi.end();
    }
    static long Linee(const SuperficieFinta& s, std::int16_t colore) {
        return std::count_if(s.linee.begin(), s.linee.end(),
                             [colore](const auto& l) { return l.colore == colore; });
    }

    static std::string Dxf(const AcciaioCls& t) {
        const fs::path file =
            fs::temp_directory_path() / ("sagomi_trave_" + std::to_string(::getpid()) + ".dxf");
        std::int16_t n = 0;
        EXPECT_TRUE(DxfApre(file.string(), n));
        t.PlottaAcciaioCls(nullptr, "frmAcciaioCls", dispositivoDxf);
        DxfChiude();
        std::ifstream f(file, std::ios::binary);
        std::string byte{std::istreambuf_iterator<char>(f), std::istreambuf_iterator<char>()};
        fs::remove(file);
        return byte;
    }

private:
    StatoUscita prima_;
};

TEST_F(DisegnoTraveTest, NothingBeforeTheSlab) {
    const AcciaioCls t = TraveDaDisegnare(solettaPiena, sluPositivo);
    const SuperficieFinta s = Disegnata(t);
    EXPECT_TRUE(s.linee.empty());
    EXPECT_TRUE(s.scritte.empty());
}

TEST_F(DisegnoTraveTest, BeforeTheCalculationEverythingIsGrey) {
    AcciaioCls t = TraveDaDisegnare(solettaPiena, sluPositivo);
    t.InizializzaAcciaioCls();
    const SuperficieFinta s = Disegnata(t);
    EXPECT_EQ(Linee(s, 9) + Linee(s, 12), 0);
    EXPECT_FALSE(Ha(s, "a.n."));
    EXPECT_TRUE(Ha(s, "Saldata"));
    EXPECT_TRUE(Ha(s, "1000"));
    EXPECT_TRUE(Ha(s, "120"));
    EXPECT_TRUE(Ha(s, "300"));
    EXPECT_TRUE(Ha(s, "As = 800 mm2"));
    EXPECT_EQ(s.cerchi.size(), 6U); // bars 150 apart
}

TEST_F(DisegnoTraveTest, AtLeastTwoBarsWhereThereIsASlab) {
    AcciaioCls t = TraveDaDisegnare(solettaPiena, sluPositivo);
    t.beff = 1;
    t.InizializzaAcciaioCls();
    EXPECT_EQ(Disegnata(t).cerchi.size(), 2U);
    t.beff = 0;
    t.InizializzaAcciaioCls();
    EXPECT_TRUE(Disegnata(t).cerchi.empty());
}

TEST_F(DisegnoTraveTest, StressOfTheSmallestBars) {
    AcciaioCls t = TraveDaDisegnare(solettaPiena, metodoNPositivo);
    t.As = 1;
    ASSERT_TRUE(VerificaTrave(t).validi);
    const auto testi = Disegnata(t).Testi();
    EXPECT_TRUE(
        std::any_of(testi.begin(), testi.end(), [](const auto& s) { return s.starts_with("barre "); }));
}

// Plates that leave a web between them, narrower than both flanges, and a strength.
TEST_F(DisegnoTraveTest, MeasuresOfASection) {
    AcciaioCls t = TraveDaDisegnare(solettaPiena, sluPositivo);
    t.InizializzaAcciaioCls();
    const SezioneDoppioT buona = *t.Sezione;
    const auto possibile = [&](auto cambia) {
        *t.Sezione = buona;
        cambia(*t.Sezione);
        return SezionePossibile(t);
    };
    EXPECT_TRUE(possibile([](auto&) {}));
    EXPECT_TRUE(possibile([](auto& s) { s.tw = 1; }));
    EXPECT_FALSE(possibile([](auto& s) { s.tw = 0; }));
    EXPECT_FALSE(possibile([](auto& s) { s.fy = 0; }));
    EXPECT_FALSE(possibile([](auto& s) { s.tw = 150; }));
    EXPECT_FALSE(possibile([](auto& s) { s.r = 140; })) << "2·11 + 2·140 is more than 300";
    EXPECT_FALSE(possibile([](auto& s) { s.r = 139; })) << "nothing is left of the web";
    EXPECT_TRUE(possibile([](auto& s) { s.r = 138; }));
    EXPECT_FALSE(possibile([](auto& s) { s.r = -1; }));
}

TEST_F(DisegnoTraveTest, ADeckAsHighAsTheSlabLeavesTheSteelAlone) {
    AcciaioCls t = TraveDaDisegnare(nervatureTrasversali, sluPositivo);
    t.InizializzaAcciaioCls();
    const auto testi = [](const Disegno& d) {
        SuperficieFinta s(d.misura.larghezza, d.misura.altezza);
        const SuUscita uscita(&s);
        d.PlottaInOggetto(&s, "frmAcciaioCls");
        return s.Testi();
    };
    const auto armata = [](const std::vector<std::string>& scritte) {
        return std::find(scritte.begin(), scritte.end(), "As = 800 mm2") != scritte.end();
    };
    EXPECT_TRUE(armata(testi(DisegnoVivo(t))));
    t.hc = t.ha;
    EXPECT_FALSE(armata(testi(DisegnoVivo(t))));
    EXPECT_EQ(DisegnoVivo(t).minima.altezza, 160) << "what a small window leaves";
}

// Fa = 1232810, fsd As = 299130: 14.167·1000·x of concrete, 65.91 from the top.
TEST_F(DisegnoTraveTest, PlasticParts) {
    AcciaioCls t = TraveDaDisegnare(solettaPiena, sluPositivo);
    ASSERT_TRUE(VerificaTrave(t).validi);
    const SuperficieFinta s = Disegnata(t);
    EXPECT_GT(Linee(s, 9), 10);  // steel in tension
    EXPECT_GT(Linee(s, 12), 10); // concrete in compression
    EXPECT_TRUE(Ha(s, "a.n."));
    EXPECT_TRUE(Ha(s, "fyd 235"));
    EXPECT_TRUE(Ha(s, "fcd 14.17"));
    EXPECT_TRUE(Ha(s, "MplRd = 293.1 kNm")); // 933680·(420 - 65.91/2) + 299130·390 - 1232810·150
    const auto asse = std::find_if(s.linee.begin(), s.linee.end(),
                                   [](const auto& l) { return l.tipo == TipoLinea::TrattoPunto; });
    ASSERT_NE(asse, s.linee.end());
    EXPECT_NEAR(asse->y1, 420 - (1232810 - 299130.43) / 14166.667, 0.05);
    EXPECT_EQ(asse->y1, asse->y2);
}

TEST_F(DisegnoTraveTest, ElasticStresses) {
    AcciaioCls t = TraveDaDisegnare(solettaPiena, metodoNNegativo);
    ASSERT_TRUE(VerificaTrave(t).validi);
    const SuperficieFinta s = Disegnata(t);
    const auto cifre = [](double v) {
        std::string testo = FormatoCifre(4, v);
        return testo.erase(0, testo.find_first_not_of(' '));
    };
    EXPECT_TRUE(Ha(s, cifre(t.SigmaInf)));
    EXPECT_TRUE(Ha(s, cifre(t.SigmaSup)));
    EXPECT_TRUE(Ha(s, "barre " + cifre(t.SigmaArm)));
    EXPECT_FALSE(Ha(s, cifre(t.SigmaCls))); // the slab is in tension
}

TEST_F(DisegnoTraveTest, TitleAndScale) {
    AcciaioCls t = TraveDaDisegnare(nervatureTrasversali, metodoNPositivo);
    ASSERT_TRUE(VerificaTrave(t).validi);
    SuperficieFinta s(277, 190); // an A4 sheet
    t.PlottaAcciaioCls(&s, "frmAcciaioCls", dispositivoStampante);
    EXPECT_TRUE(Ha(s, "Saldata   Scala 1:10"));
}

TEST_F(DisegnoTraveTest, WhatIsNoNumberDrawsNothing) {
    AcciaioCls t = TraveDaDisegnare(solettaPiena, sluPositivo);
    t.beff = std::numeric_limits<double>::infinity();
    t.InizializzaAcciaioCls();
    EXPECT_TRUE(Disegnata(t).linee.empty());
}

struct CasoDxf {
    const char* nome;
    std::int16_t tipo, verifica;
    double hc;
};
void PrintTo(const CasoDxf& c, std::ostream* os) { *os << c.nome; }

class DisegnoTraveDxf : public DisegnoTraveTest, public testing::WithParamInterface<CasoDxf> {};

TEST_P(DisegnoTraveDxf, IsTheApprovedFile) {
    AcciaioCls t = TraveDaDisegnare(GetParam().tipo, GetParam().verifica, GetParam().hc);
    ASSERT_TRUE(VerificaTrave(t).validi);
    ConfrontaApprovato(std::string("composite/") + GetParam().nome + ".dxf", Dxf(t));
}

INSTANTIATE_TEST_SUITE_P(Casi, DisegnoTraveDxf,
                         testing::Values(CasoDxf{"parallela", nervatureParallele, sluPositivo, 120},
                                         CasoDxf{"trasversale", nervatureTrasversali, metodoNPositivo, 120},
                                         CasoDxf{"sotto", solettaPiena, sluPositivo, -80}),
                         [](const auto& i) { return std::string(i.param.nome); });

} // namespace
