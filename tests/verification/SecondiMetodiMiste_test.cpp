// Composite beams in hogging by a second method.
#include <cmath>
#include <string>

#include "Profili.h"
#include "Verbale.h"
#include "composite/AcciaioCls.h"
#include "composite/VerificaTrave.h"
#include "geometry/Poligono.h"

using namespace sagomi;
using namespace sagomi::verifica;

namespace {

class SecondiMetodiMiste : public Ambiente {};

constexpr double H = 400, hc = 120, beff = 1500, copriferro = 30;

AcciaioCls Trave(double As) {
    SezioneCorrente = std::make_shared<SezioneDoppioT>(Saldata(235, H, 180, 8, 14));
    AcciaioCls t;
    t.hc = hc;
    t.beff = beff;
    t.c = copriferro;
    t.As = As;
    t.TipoVerifica = sluNegativo;
    AcciaioCls::InizializzaTrave();
    t.InizializzaAcciaioCls();
    return t;
}

struct Plastica {
    double M = 0, yN = 0;
};

/// Everything below the axis compressed, the bars in tension; concrete only where it is compressed.
Plastica PerFibre(double As, double fyd, double fcd, double fsd) {
    constexpr int n = 50000;
    const double dy = (H + hc) / n, yBarre = H + hc - copriferro;
    double basso = 0, alto = H + hc;
    Plastica p;
    for (int giro = 0; giro < 50; ++giro) {
        p.yN = (basso + alto) / 2;
        double F = -fsd * As;
        p.M = fsd * As * yBarre;
        for (int i = 0; i < n; ++i) {
            const double y = (i + 0.5) * dy, larga = y < 14 || y > 386 ? 180 : 8;
            const double f = y < H ? (y < p.yN ? fyd : -fyd) * larga * dy : y < p.yN ? fcd * beff * dy : 0;
            F += f;
            p.M -= f * y;
        }
        (F > 0 ? alto : basso) = p.yN;
    }
    return p;
}

TEST_F(SecondiMetodiMiste, MomentoNegativo) {
    Controprova c(
        "Momento negativo della trave mista",
        "equilibrio di 50 000 fibre di acciaio e calcestruzzo e delle barre tese; il programma divide "
        "i poligoni.",
        "acciaio saldato 400 mm, ali 180x14, anima 8 mm, S235, soletta 120x1500 C25/30, barre a 30 mm "
        "dal lembo");
    for (const auto& [As, dove] :
         {std::pair{800.0, "nell'anima"}, {2400.0, "nell'ala superiore"}, {5000.0, "nella soletta"}}) {
        AcciaioCls t = Trave(As);
        t.MplRdNegativo();
        const Plastica p = PerFibre(As, t.fyd(), AcciaioCls::fcd(), AcciaioCls::fsd());
        const bool soletta = p.yN > H;
        const std::string quale = ", barre " + std::to_string(int(As)) + " mm², asse " + dove;
        // With the axis in the slab the moment shown counts the concrete against the steel: see the rules.
        c.Confronta(std::string(soletta ? "|M| in equilibrio" : "|M<sub>pl,Rd</sub>|") + quale, "kNm",
                    p.M / 1e6, -(soletta ? MomentoInEquilibrio(t) : double(t.MplRd)) / 1e6, 0.001);
        c.Confronta("y dell'asse neutro" + quale, "mm", p.yN, t.yNeutro, 0.001);
    }
}

} // namespace
