#include "criticalloads/DisegnoTrave.h"

#include "drawing/TavolaTrave.h"

namespace sagomi {

namespace {

// In units of the picture.
constexpr double altezza = 22; ///< of the beam
constexpr double bordo = 14;

void Vincoli(const TavolaTrave& tavola, bool mensola) {
    if (mensola) {
        tavola.Incastro(0, altezza);
        return;
    }
    tavola.Appoggio(0, altezza / 2);
    tavola.Appoggio(1, altezza / 2);
}

void Carico(const TavolaTrave& tavola, const TraveDisegnata& t) {
    const double sopra = (1 - t.quota) * altezza / 2;
    const double dove = t.mensola ? 1 : 0.5;
    // The name stays clear of the load: beside a single arrow, under the beam for a row of them.
    if (t.distribuito) {
        tavola.CaricoDistribuito(sopra);
        tavola.Nome(tavola.Punto(0.5, 0) + PuntoQuadro{0, altezza / 2}, "q", 0, 1);
    } else {
        tavola.Forza(dove, sopra);
        tavola.Nome(tavola.Punto(dove, 1), "P", t.mensola ? -1 : 1, 1);
    }
}

} // namespace

Disegno DisegnoTrave(const TraveDisegnata& trave) {
    Disegno disegno{"Carico critico", {}, {190, 96}, {150, 84}};
    disegno.PlottaInOggetto = [trave, misura = disegno.misura](Superficie* oggetto, std::string_view) {
        const Quadro quadro(oggetto, Dispositivo, misura);
        const TavolaTrave tavola(quadro, quadro.Tutto().Dentro(bordo, 4, bordo, 4));
        tavola.Profilo(altezza);
        Vincoli(tavola, trave.mensola);
        Carico(tavola, trave);
    };
    return disegno;
}

} // namespace sagomi
