#include "drawing/TavolaDisegno.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "drawing/Grafica.h"
#include "frame/Numeri.h"

namespace sagomi {

namespace {

constexpr double testiPerPezzo = 40; ///< heights of the text in the longer side, for files and CAD
constexpr std::string_view campione = "0";

/// Denominators of the scales in use on paper, below 1 for enlargements: the series 1, 2, 5 of ISO 5455,
/// and 2.5, 25 and 250 of the building trade.
constexpr std::array<double, 16> scaleInUso{0.1, 0.2, 0.5, 1,   2,   2.5, 5,   10,
                                            20,  25,  50,  100, 200, 250, 500, 1000};

struct Area {
    double l, h;
};

/// What the margins leave of a target; never nothing.
Area Resto(const Superficie& o, const Margini& m, double corpo) {
    return {std::max(o.ScaleWidth - (m.sx + m.dx) * corpo, o.ScaleWidth / 10),
            std::max(o.ScaleHeight - (m.su + m.giu) * corpo, o.ScaleHeight / 10)};
}

/// Model units in one unit of the target.
double Rapporto(const Area& area, double l, double h) { return std::max(l / area.l, h / area.h); }

void CorpoDelTesto(Superficie& o, bool carta) {
    o.Predefiniti();
    if (!carta)
        return;
    o.FontName = carattereStampa;
    const double attuale = o.TextHeight(campione);
    if (attuale > 0)
        o.FontSize *= altezzaTestoCarta / attuale;
}

} // namespace

double ScalaInUso(double rapporto) {
    constexpr double arrotondamento = 1 + 1e-9;
    const auto* trovata = std::find_if(scaleInUso.begin(), scaleInUso.end(),
                                       [&](double s) { return s * arrotondamento >= rapporto; });
    return trovata == scaleInUso.end() ? 0 : *trovata;
}

std::string ScalaScritta(double n) {
    if (!(n > 0))
        return {};
    return n < 1 ? TestoPiano(std::round(1 / n)) + ":1" : "1:" + TestoPiano(Singolo(n));
}

TavolaDisegno::TavolaDisegno(Superficie* oggetto, std::string_view dispositivo,
                             const std::array<double, 4>& riquadro, std::span<const Margini> disposizioni) {
    plottaggio_.Inizializza(oggetto, dispositivo);
    if (oggetto != nullptr && SulBersaglio()) {
        Adatta(*oggetto, riquadro, disposizioni);
        return;
    }
    plottaggio_.AltezzaTesto = std::max(riquadro[1] - riquadro[0], riquadro[3] - riquadro[2]) / testiPerPezzo;
    plottaggio_.Denominatore = 1;
}

void TavolaDisegno::Adatta(Superficie& oggetto, const std::array<double, 4>& riquadro,
                           std::span<const Margini> disposizioni) {
    const bool carta = Dispositivo == dispositivoStampante;
    oggetto.Scale();
    CorpoDelTesto(oggetto, carta);
    const double corpo = oggetto.TextHeight(campione);
    double l = riquadro[1] - riquadro[0];
    double h = riquadro[3] - riquadro[2];
    double rapporto = std::numeric_limits<double>::infinity();
    for (std::size_t i = 0; i < disposizioni.size(); ++i) {
        const double r = Rapporto(Resto(oggetto, disposizioni[i], corpo), l, h);
        if (r < rapporto) {
            rapporto = r;
            scelta_ = i;
        }
    }
    const Margini& m = disposizioni[scelta_];
    plottaggio_.Denominatore = carta ? ScalaInUso(rapporto) : 0;
    if (plottaggio_.Denominatore > 0) {
        const Area area = Resto(oggetto, m, corpo);
        l = area.l * plottaggio_.Denominatore;
        h = area.h * plottaggio_.Denominatore;
    }
    const double xC = (riquadro[0] + riquadro[1]) / 2;
    const double yC = (riquadro[2] + riquadro[3]) / 2;
    plottaggio_.xFinestraPlt(xC - l / 2, xC + l / 2);
    plottaggio_.yFinestraPlt(yC - h / 2, yC + h / 2);
    plottaggio_.Bordi(m.sx * corpo, m.su * corpo, m.dx * corpo, m.giu * corpo);
    plottaggio_.AdattaAfinestra();
    plottaggio_.AltezzaTesto = oggetto.TextHeight(campione);
}

std::string TavolaDisegno::Scala() const { return ScalaScritta(plottaggio_.Denominatore); }

} // namespace sagomi
