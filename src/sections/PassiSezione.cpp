#include "sections/PassiSezione.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "frame/Messaggi.h"
#include "frame/Numeri.h"
#include "sections/Eurocod3.h"

namespace sagomi {

// EC3 6.2.9.1 (4).
double AssialeTrascurabile(double tw, double d, double fy, double NplRd) {
    const double Nw = tw * fy * d / GammaM0;
    return std::min(Nw / 2, NplRd / 4);
}

std::int16_t ClasseConAssiale(Singolo NSd, double Ntrascurabile, std::int16_t compressione,
                              std::int16_t flessioneY) {
    return Singolo(Ntrascurabile).Stretto() <= NSd.Stretto() ? compressione : flessioneY;
}

// ENV 1993-1-1 5.5.1.1 (1).
double RapportoAree(std::int16_t classe, const SezioneGenerica* efficace, double area) {
    if (classe <= 3)
        return 1;
    const double Aeff = efficace != nullptr ? efficace->Area : 0;
    return Aeff / area;
}

void SegnalaRapportoAree(double betaA) {
    if (betaA > 1)
        Avvisa("Errore! betaA = " + TestoPiano(betaA) + " Segnalare a Prof. Tarvisi.");
}

// ENV 1993-1-1 5.4.6 (1).
double ResistenzaTaglio(double Av, double fy) { return Av * fy / std::numbers::sqrt3 / GammaM0; }

// ENV 1993-1-1 5.4.6 (7).
void SegnalaAnimaSnella(double d, double tw, double fy, MostraVplRd& schermo) {
    schermo.lblVplRd(false);
    if (d / tw > 69 * Epsilon(fy))
        schermo.lblVplRd(true);
}

// The plates by t^3/3, the junctions by the circle inscribed in them (El Darwish and Johnston, 1965).
double TorsioneLaminata(double h, double b, double tw, double tf, double r1, double nodi) {
    const double anima = std::pow(tw, 3) * (h - 2 * tf) / 3;
    const double ali = std::pow(tf, 3) * (b - 0.63 * tf) * 2 / 3;
    // diameter of the circle inscribed in the junction of web and flange
    const double D = (std::pow(tw / 2 + r1, 2) + std::pow(r1 + tf, 2) - std::pow(r1, 2)) / (2 * r1 + tf);
    return anima + ali + std::pow(D, 4) * (0.145 + 0.1 * r1 / tf) * (nodi * tw / tf);
}

} // namespace sagomi
