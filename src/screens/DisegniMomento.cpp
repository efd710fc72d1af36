#include "screens/DisegniMomento.h"

#include <cmath>

#include "sections/DiagrammaMomenti.h"

namespace sagomi {

namespace {

/// Moments of a span load, 1 at the middle.
double Parabola(double x) { return 4 * x * (1 - x); }
double Triangolo(double x) { return 2 * std::min(x, 1 - x); }

double Lineare(double M1, double M2, double x) { return M1 + (M2 - M1) * x; }

/// End moments and span moment of a shape, in parts of its largest ordinate.
struct Ordinate {
    double M1, M2, MQ;
};

Ordinate OrdinateDi(std::int16_t pict) {
    switch (pict) {
    case pictEstremitaConcordi:
        return {0.9, 0.5, 0};
    case pictEstremitaDiscordi:
        return {0.9, -0.6, 0};
    case pictDistribuitoContro:
    case pictConcentratoContro:
        return {0.8, 0.5, -1.35};
    default:
        return {0.4, 0.25, 0.6};
    }
}

/// Two loads at the quarter points.
double DueForze(double x) { return std::min({4 * x, 1.0, 4 * (1 - x)}); }

/// Moment of a load between built-in ends; `ai_lati` is what the ends take of the moment of the free span.
double FraIncastri(double libero, double ai_lati) { return libero - ai_lati; }

} // namespace

void DisegnaPict(TavolaTrave& tavola, std::int16_t pict) {
    const Ordinate o = OrdinateDi(pict);
    const bool distribuito = pict == pictDistribuitoContro || pict == pictDistribuitoConcorde;
    tavola.Diagramma(
        [=](double x) { return Lineare(o.M1, o.M2, x) + o.MQ * (distribuito ? Parabola(x) : Triangolo(x)); });
    tavola.Nome(tavola.Punto(0, o.M1 / 2), QStringLiteral("M1"), -1, 0);
    tavola.Nome(tavola.Punto(1, o.M2 / 2), QStringLiteral("M2"), 1, 0);
    if (TipoDiPict(pict) == diagrammaCampata)
        tavola.Nome(tavola.Punto(0.5, 0), QStringLiteral("MQ"), 0, o.MQ < 0 ? -1 : 1); // clear of the diagram
}

void DisegnaPsi(TavolaTrave& tavola, double psi) {
    tavola.Diagramma([=](double x) { return Lineare(0.9, 0.9 * psi, x); });
}

void DisegnaCaso(TavolaTrave& carico, TavolaTrave& diagramma, CasoF12 caso) {
    using enum CasoF12;
    const bool incastri = caso == UniformeIncastri || caso == ConcentratoIncastri;
    carico.Asse();
    for (const double end : {0.0, 1.0}) {
        if (incastri)
            carico.Incastro(end, 8);
        else
            carico.Appoggio(end);
    }
    constexpr double quanto_uniforme = 2.0 / 3; // w L^2/12 of w L^2/8
    constexpr double quanto_forza = 0.5;        // F L/8 of F L/4
    // moments that pull below are drawn below
    switch (caso) {
    case UniformeAppoggi:
    case UniformeIncastri:
        carico.CaricoDistribuito();
        diagramma.Diagramma(
            [=](double x) { return -FraIncastri(Parabola(x), incastri ? quanto_uniforme : 0); });
        break;
    case ConcentratoAppoggi:
    case ConcentratoIncastri:
        carico.Forza(0.5);
        diagramma.Diagramma(
            [=](double x) { return -FraIncastri(Triangolo(x), incastri ? quanto_forza : 0); });
        break;
    case DueCarichiAppoggi:
        carico.Forza(0.25);
        carico.Forza(0.75);
        diagramma.Diagramma([](double x) { return -DueForze(x); });
        break;
    }
}

QString TestoPsi(double psi) {
    const int quarters = static_cast<int>(std::lround(4 * std::abs(psi)));
    const QString sign = psi > 0 ? QStringLiteral("+") : psi < 0 ? QStringLiteral("-") : QString();
    switch (quarters) {
    case 1:
        return sign + QStringLiteral("1/4");
    case 2:
        return sign + QStringLiteral("1/2");
    case 3:
        return sign + QStringLiteral("3/4");
    default:
        return sign + QString::number(quarters / 4);
    }
}

} // namespace sagomi
