// The pictures of composite beams, held against SVG files that a person has looked at.
#include <string>
#include <string_view>
#include <tuple>
#include <utility>

#include "TraveDiProva.h"
#include "composite/DisegniTraveMista.h"
#include "composite/DisegnoVivo.h"
#include "composite/VerificaTrave.h"
#include "drawing/SuperficieRitratta.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

class TraviApprovate : public AmbienteTrave {
protected:
    TraviApprovate() { InUso(235, 300, 150, 7, 11); }

    static AcciaioCls Trave(std::int16_t tipo, std::int16_t verifica, double hc = 120) {
        AcciaioCls t = TraveDaDisegnare(tipo, verifica, hc);
        t.Luce = 8;
        t.Passo = 8000.0 / 21;
        return t;
    }
    static void Approvato(const std::string& nome, const std::string& svg) {
        ConfrontaApprovato("composite/figure/" + nome + ".svg", svg);
    }
};

struct Caso {
    const char* nome;
    std::int16_t tipo, verifica;
    double hc;
};
constexpr Caso casi[] = {{"piena-plastica", solettaPiena, sluPositivo, 120},
                         {"piena-sottile", solettaPiena, sluPositivo, 60},
                         {"piena-negativa", solettaPiena, sluNegativo, 120},
                         {"piena-elastica", solettaPiena, metodoNPositivo, 120},
                         {"trasversale-elastica-negativa", nervatureTrasversali, metodoNNegativo, 120},
                         {"trasversale-plastica", nervatureTrasversali, sluPositivo, 130},
                         {"parallela-elastica", nervatureParallele, metodoNPositivo, 120},
                         {"parallela-plastica", nervatureParallele, sluPositivo, 110},
                         {"sotto-plastica", solettaPiena, sluPositivo, -100},
                         {"sotto-negativa", solettaPiena, sluNegativo, -100}};

TEST_F(TraviApprovate, SezioneCalcolata) {
    for (const Caso& c : casi) {
        AcciaioCls t = Trave(c.tipo, c.verifica, c.hc);
        ASSERT_TRUE(VerificaTrave(t).validi) << c.nome;
        SuperficieRitratta s(800, 500);
        t.PlottaAcciaioCls(&s, "frmAcciaioCls", dispositivoVideo);
        Approvato(std::string("sezione-") + c.nome, s.Svg());
        Approvato(std::string("viva-") + c.nome, InSvg(DisegnoVivo(t), 500, 340, "frmAcciaioCls"));
    }
    SuperficieRitratta carta(190, 277);
    AcciaioCls t = Trave(nervatureParallele, metodoNPositivo);
    ASSERT_TRUE(VerificaTrave(t).validi);
    t.PlottaAcciaioCls(&carta, "frmAcciaioCls", dispositivoStampante);
    Approvato("carta", carta.Svg());
}

std::size_t Quanti(const std::string& svg, std::string_view cosa) {
    std::size_t n = 0;
    for (std::size_t i = svg.find(cosa); i != std::string::npos; i = svg.find(cosa, i + 1))
        ++n;
    return n;
}

std::string Sezione(const AcciaioCls& t) {
    SuperficieRitratta s(800, 500);
    t.PlottaAcciaioCls(&s, "frmAcciaioCls", dispositivoVideo);
    return s.Svg();
}

// A slab narrower than the steel, one so wide that its hatching is wider, one deeper than the steel, and one
// that was not computed.
TEST_F(TraviApprovate, SezioniInsolite) {
    struct Insolita {
        const char* nome;
        double beff, hc;
    };
    for (const auto& [nome, beff, hc] :
         {Insolita{"stretta", 100, 120}, {"larghissima", 4200, 120}, {"profonda", 300, -280}}) {
        AcciaioCls t = Trave(solettaPiena, sluPositivo, hc);
        t.beff = Singolo(beff);
        ASSERT_TRUE(VerificaTrave(t).validi) << nome;
        Approvato(std::string("sezione-") + nome, Sezione(t));
    }
    AcciaioCls t = Trave(nervatureParallele, metodoNPositivo);
    ASSERT_TRUE(t.InizializzaAcciaioCls());
    t.As = 0;
    Approvato("sezione-non-calcolata", Sezione(t));
    AcciaioCls senza;
    senza.Sezione = t.Sezione;
    EXPECT_EQ(Quanti(Sezione(senza), "<path"), 0U) << "no slab, no picture";
}

// As many bars as lie 150 mm apart, 2 to 100; none without an area.
TEST_F(TraviApprovate, LeBarreStannoOgniQuindiciCentimetri) {
    for (const auto& [beff, bars] :
         {std::pair{200.0, 2U}, {449.0, 2U}, {450.0, 3U}, {900.0, 6U}, {1049.0, 6U}, {20000.0, 100U}})
        for (const double As : {0.5, 800.0}) {
            AcciaioCls t = Trave(solettaPiena, sluNegativo);
            t.beff = Singolo(beff);
            t.As = Singolo(As);
            ASSERT_TRUE(t.InizializzaAcciaioCls());
            EXPECT_EQ(Quanti(Sezione(t), "<circle"), bars) << beff;
            t.As = 0;
            EXPECT_EQ(Quanti(Sezione(t), "<circle"), 0U);
        }
}

// A deck that is deep beside its width, ribs of nothing; spacings of nothing, and studs closer than lengths
// are.
TEST_F(TraviApprovate, LamiereEConnettoriInsoliti) {
    AcciaioCls t = Trave(nervatureParallele, sluPositivo, 900);
    const Disegno alta = DisegnoLamiera(t);
    Approvato("lamiera-alta", InSvg(alta, alta.misura.larghezza, alta.misura.altezza, ""));
    for (const auto& [bb, bs, whole] : {std::tuple{60.0, 0.5, true},
                                        {0.5, 60.0, true},
                                        {0.4, 0.4, true},
                                        {0.0, 60.0, true},
                                        {60.0, 0.0, true},
                                        {0.0, 0.0, false},
                                        {-1.0, 60.0, false},
                                        {60.0, -1.0, false}}) {
        AcciaioCls rib = Trave(nervatureParallele, sluPositivo);
        rib.bb = Singolo(bb);
        rib.bs = Singolo(bs);
        EXPECT_EQ(Quanti(InSvg(DisegnoLamiera(rib), 300, 130, ""), "incompleti"), whole ? 0U : 1U)
            << bb << ' ' << bs;
    }
    const auto pioli = [&t](const char* nome, int n, double luce, double passo) {
        t.Luce = Singolo(luce);
        t.Passo = Singolo(passo);
        const Disegno d = DisegnoConnettori(t, n);
        Approvato(std::string("pioli-") + nome, InSvg(d, d.misura.larghezza, d.misura.altezza, ""));
    };
    pioli("senza-passo", 12, 8, 0);
    pioli("senza-luce", 12, 0, 300);
    pioli("fitti", 3, 0.0009, 0.3);
    pioli("corti", 5, 8, 300);
}

TEST_F(TraviApprovate, LamieraEConnettori) {
    for (const auto& [nome, tipo] : {std::pair{"piena", solettaPiena},
                                     {"trasversale", nervatureTrasversali},
                                     {"parallela", nervatureParallele}}) {
        AcciaioCls t = Trave(tipo, sluPositivo);
        const Disegno lamiera = DisegnoLamiera(t);
        Approvato(std::string("lamiera-") + nome,
                  InSvg(lamiera, lamiera.misura.larghezza, lamiera.misura.altezza, "frmAcciaioCls"));
        for (const std::int16_t Nr : {std::int16_t{1}, std::int16_t{2}}) {
            t.Nr = Nr;
            const Disegno pioli = DisegnoConnettori(t, 22);
            Approvato(std::string("pioli-") + nome + "-" + std::to_string(Nr),
                      InSvg(pioli, pioli.misura.larghezza, pioli.misura.altezza, "frmConnettori"));
        }
    }
    AcciaioCls t = Trave(nervatureParallele, sluPositivo);
    t.bs = 40; // ribs that are wider below
    const Disegno lamiera = DisegnoLamiera(t);
    Approvato("lamiera-rientrante", InSvg(lamiera, lamiera.misura.larghezza, lamiera.misura.altezza, ""));
    const Disegno nessuno = DisegnoConnettori(t, 1);
    Approvato("pioli-nessuno", InSvg(nessuno, nessuno.misura.larghezza, nessuno.misura.altezza, ""));
}

} // namespace
