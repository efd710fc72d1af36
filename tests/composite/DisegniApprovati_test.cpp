// The pictures of composite beams, held against SVG files that a person has looked at.
#include <string>

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
