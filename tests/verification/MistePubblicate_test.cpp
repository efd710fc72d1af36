// Composite beams, studs and critical loads: published examples.
#include <cmath>
#include <vector>

#include "Profili.h"
#include "Verbale.h"
#include "composite/AcciaioCls.h"
#include "criticalloads/Timoshenko.h"
#include "geometry/Poligono.h"
#include "sections/FattoriMomento.h"

using namespace sagomi;
using namespace sagomi::verifica;

namespace {

class MistePubblicate : public Ambiente {
protected:
    static AcciaioCls Trave(const SezioneDoppioT& acciaio, std::int16_t tipo, double beff, double hc,
                            double ha) {
        SezioneCorrente = std::make_shared<SezioneDoppioT>(acciaio);
        AcciaioCls t;
        t.TipoSoletta = tipo;
        t.hc = hc;
        t.ha = ha;
        t.beff = beff;
        t.c = 30;
        t.bb = 62;
        t.bs = 106;
        t.iNervature = 207;
        AcciaioCls::InizializzaTrave();
        t.InizializzaAcciaioCls();
        return t;
    }
    static void Piolo(AcciaioCls& t, double b0) {
        t.fu = 450;
        t.dPiolo = 19;
        t.hPiolo = 100;
        t.GammaV = 1.25;
        t.b0 = b0;
        t.CalcolaPrd();
    }
};

const char* const moduloDel1992 = "Il modulo del calcestruzzo è 9500 (f<sub>ck</sub> + 8)<sup>1/3</sup>, "
                                  "30472 N/mm², contro 31000 di EN 1992-1-1.";

TEST_F(MistePubblicate, TraveSecondariaConLamieraTrasversale) {
    AcciaioCls t =
        Trave(Laminata("IPE 270", 355, 270, 135, 6.6, 10.2, 15), nervatureTrasversali, 1875, 120, 58);
    t.MplRdPositivo();
    Piolo(t, 82);
    Esempio(Capitolo::miste, "MSB04", "esempio A.3, p. 4-76",
            "IPE 270, S355, soletta 120 mm su lamiera da 58 trasversale, C25/30, b<sub>eff</sub> 1,875 m, "
            "pioli 19x100, "
            "f<sub>u</sub> 450, b<sub>0</sub> 82 mm")
        .Confronta("P<sub>Rd</sub> dell'acciaio", "kN", "81.66", t.PRd1 / 1e3, 0.001)
        .Confronta("P<sub>Rd</sub> del calcestruzzo", "kN", "73.73", t.PRd2 / 1e3, 0.01, moduloDel1992)
        .Confronta("k<sub>t</sub>", "-", "0.717", t.kRiduzione, 0.002)
        .Confronta("P<sub>Rd</sub>", "kN", "52.86", t.PRd / 1e3, 0.01, moduloDel1992)
        .Confronta("N<sub>c,f</sub>", "kN", "1647", t.fcd() * t.Soletta->Area / 1e3, 0.001);
}

TEST_F(MistePubblicate, TravePrincipaleConLamieraParallela) {
    AcciaioCls t =
        Trave(Laminata("IPE 400", 355, 400, 180, 8.6, 13.5, 21), nervatureTrasversali, 2250, 140, 58);
    t.MplRdPositivo();
    Esempio e(Capitolo::miste, "MSB04", "esempio A.4, p. 4-90",
              "IPE 400, S355, soletta 140 mm su lamiera da 58, C25/30, b<sub>eff</sub> 2,25 m, nervature "
              "parallele, pioli 19x100");
    e.Confronta("N<sub>pl,a</sub>", "kN", "2998", t.fyd() * t.Sezione->SezioneGenericaCorrente->Area / 1e3,
                0.002)
        .Confronta("N<sub>c,f</sub> = V<sub>l</sub>", "kN", "2614", t.Vl / 1e3, 0.001);
    t.TipoSoletta = nervatureParallele;
    Piolo(t, 82);
    e.Confronta("P<sub>Rd</sub>", "kN", "45.27", t.PRd / 1e3, 0.01, moduloDel1992)
        .Confronta("N<sub>c</sub> di 31 pioli", "kN", "1403", 31 * t.PRd / 1e3, 0.01, moduloDel1992);
}

TEST_F(MistePubblicate, TraveDiJohnson) {
    AcciaioCls t = Trave(Laminata("UB 406x178x60", 355, 406.4, 177.9, 7.9, 12.8, 10.2), nervatureTrasversali,
                         2250, 150, 70);
    t.MplRdPositivo();
    Esempio(Capitolo::miste, "Johnson", "figura 3.29, equazioni (3.110)-(3.111)",
            "UB 406x178x60, S355, A 76 cm², soletta 150 mm su lamiera da 70, C25/30, b<sub>eff</sub> 2,25 m")
        .Confronta("N<sub>c,f</sub>", "kN", "2555", t.Vl / 1e3, 0.003)
        .Confronta("N<sub>a,pl</sub>", "kN", "2698", t.fyd() * t.Sezione->SezioneGenericaCorrente->Area / 1e3,
                   0.01)
        .Confronta("x<sub>c</sub>", "mm", "151.1", t.yNeutroDaSopra(), 0.003);
}

void Punti(Esempio& e, const char* nome, const std::vector<double>& ascisse,
           const std::vector<double>& ordinate, const std::vector<std::pair<double, const char*>>& stampati) {
    for (const auto& [x, cifra] : stampati)
        for (std::size_t i = 0; i < ascisse.size(); ++i)
            if (std::abs(ascisse[i] - x) < 1e-6)
                e.Confronta(std::string(nome) + ", L²C/C<sub>1</sub> = " + std::to_string(int(x)), "-", cifra,
                            ordinate[i], 1e-6);
}

TEST_F(MistePubblicate, CarichiCriticiDiTimoshenko) {
    Esempio e(Capitolo::critici, "Timoshenko", "tabelle 6-3, 6-4 e 6-5",
              "coefficienti γ<sub>2</sub> di mensole e travi appoggiate, carico nel baricentro");
    std::vector<double> x, y;
    Timoshenko::TabellaMensola(x, y);
    Punti(e, "mensola, forza all'estremità", x, y, {{1, "15.7"}, {4, "9.76"}, {16, "6.73"}, {40, "5.64"}});
    Timoshenko::TabellaAppoggiata(x, y, caricoConcentrato, quotaBaricentro);
    Punti(e, "appoggiata, forza in mezzeria", x, y, {{4, "31.9"}, {16, "21.8"}, {96, "17.9"}, {400, "17.2"}});
    Timoshenko::TabellaAppoggiata(x, y, caricoDistribuito, quotaBaricentro);
    Punti(e, "appoggiata, carico distribuito", x, y, {{4, "53"}, {16, "36.3"}, {96, "29.4"}, {400, "28.6"}});
}

TEST_F(MistePubblicate, CoefficientiDelProspettoF12) {
    const RigaF12& uniforme = ProspettoF12()[0];
    Esempio(Capitolo::critici, "ENV1993", "prospetto F.1.2", "carico uniforme su appoggi, k 1")
        .Confronta("C<sub>1</sub>", "-", "1.132", uniforme.C1, 1e-6)
        .Confronta("C<sub>2</sub>", "-", "0.459", uniforme.C2, 1e-6)
        .Confronta("C<sub>3</sub>", "-", "0.525", uniforme.C3, 1e-6);
}

} // namespace
