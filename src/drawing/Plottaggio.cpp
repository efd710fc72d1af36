#include "drawing/Plottaggio.h"

#include <cmath>
#include <utility>

#include "drawing/Grafica.h"
#include "drawing/Superficie.h"
#include "frame/Messaggi.h"

namespace sagomi {

namespace {

/// The stretch of the target along one direction that is left to the model.
struct Tratto {
    double inizio, lunghezza;

    Tratto(double totale, double da, double frazione, double bordo1, double bordo2)
        : inizio(totale * da + bordo1), lunghezza(totale * frazione - bordo1 - bordo2) {
        if (lunghezza > 0)
            return;
        inizio = totale * da;
        lunghezza = totale * frazione;
    }
};

} // namespace

void Plottaggio::xFinestraPlt(double x1, double x2) { xFinestra_ = {x1, x2}; }

void Plottaggio::yFinestraPlt(double y1, double y2) { yFinestra_ = {y1, y2}; }

void Plottaggio::Bordi(double sx, double su, double dx, double giu) { bordi_ = {sx, su, dx, giu}; }

void Plottaggio::EstremiFinestra(double x, double y, double l, double h) { estremi_ = {x, y, l, h}; }

void Plottaggio::Inizializza(Superficie* oggetto, std::string_view dispositivo, bool proporzionale) {
    std::string nome(dispositivo); // it may be a view of the one in force
    *this = Plottaggio();
    oggetto_ = oggetto;
    dispositivo_ = std::move(nome);
    proporzionale_ = proporzionale;
    OggettoGrafico = oggetto;
    Dispositivo = dispositivo_;
}

void Plottaggio::AdattaAfinestra() {
    for (std::size_t i : {2U, 3U})
        if (estremi_[i] == 0)
            estremi_[i] = 1;
    if (dispositivo_ != dispositivoVideo && dispositivo_ != dispositivoStampante) {
        Avvisa("ERRORE! Plottaggio.AdattaAfinestra - Uscita non prevista");
        return;
    }
    if (oggetto_ == nullptr)
        return;
    Superficie& o = *oggetto_;
    o.Scale();
    const Tratto orizzontale(o.ScaleWidth, estremi_[0], estremi_[2], bordi_[0], bordi_[2]);
    const Tratto verticale(o.ScaleHeight, estremi_[1], estremi_[3], bordi_[1], bordi_[3]);
    double xMin = xFinestra_[0];
    double yMin = yFinestra_[1];
    double larghezza = xFinestra_[1] - xFinestra_[0];
    double altezza = yFinestra_[0] - yFinestra_[1];
    if (proporzionale_)
        CentraPlottaggio(orizzontale.lunghezza, verticale.lunghezza, xMin, yMin, larghezza, altezza);
    const double xUnita =
        larghezza != 0 ? larghezza / orizzontale.lunghezza : 1; // model per unit of the target
    const double yUnita = altezza != 0 ? altezza / verticale.lunghezza : -1;
    o.ScaleMode = Superficie::scalaUtente;
    o.ScaleTop = yMin - (verticale.inizio - o.ScaleTop) * yUnita;
    o.ScaleLeft = xMin - (orizzontale.inizio - o.ScaleLeft) * xUnita;
    o.ScaleWidth *= xUnita;
    o.ScaleHeight *= yUnita;
}

void Plottaggio::CentraPlottaggio(double l, double h, double& xMin, double& yMin, double& larghezza,
                                  double& altezza) {
    l = std::abs(l);
    h = std::abs(h);
    if (l * std::abs(altezza) > h * std::abs(larghezza)) {
        const double nuova = std::copysign(std::abs(altezza) * l / h, larghezza);
        xMin -= (nuova - larghezza) / 2;
        larghezza = nuova;
    } else if (l > 0) {
        const double nuova = std::copysign(std::abs(larghezza) * h / l, altezza);
        yMin -= (nuova - altezza) / 2;
        altezza = nuova;
    }
}

void Plottaggio::PlottaFinestra() const {
    const double x = xFinestra_[0];
    const double y = yFinestra_[0];
    const double b = (xFinestra_[1] - x) / 1000;
    const double h = (yFinestra_[1] - y) / 500;
    const std::array<double, 4> xs{x, x + b, x + b, x};
    const std::array<double, 4> ys{y, y, y + h, y + h};
    PolilineaPlt(4, xs, ys, true);
}

void Plottaggio::RipristinaDefault() {
    if (oggetto_ == nullptr)
        return;
    oggetto_->Scale();
    oggetto_->Predefiniti();
}

} // namespace sagomi
