#include "sections/DisegniMomento.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

#include "frame/Numeri.h"
#include "frame/Unita.h"

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

constexpr double bordo = 10;                 ///< free between two bands
constexpr double trave = 84;                 ///< length of a beam
constexpr double quotaM1 = 0.9;              ///< greater end moment of table F.1.1, in parts of the band
constexpr std::string_view nomeM1 = "M ";    ///< its name, and the room of it
constexpr std::string_view nomeM2 = " ψM  "; ///< the other end's
constexpr std::string_view nomePsi = "ψ = +3/4  ";

/// Moments of an axis as they are, the largest that counts marked with its value.
void AsseMomenti(const Quadro& quadro, const CampoQuadro& campo, std::string_view asse,
                 const MomentiMembratura& m, std::int16_t pict) {
    const TavolaTrave tavola(quadro, campo);
    tavola.Nome({campo.sinistra, campo.Centro().y}, asse, -1, 0);
    const bool contro = pict == pictDistribuitoContro || pict == pictConcentratoContro;
    const bool distribuito = pict == pictDistribuitoContro || pict == pictDistribuitoConcorde;
    const double MQ = TipoDiPict(pict) == diagrammaEstremita ? 0 : contro ? -m.MQ : m.MQ;
    const double M1 = m.M1 + m.NeN;
    const double M2 = m.M2 + m.NeN;
    const double M = std::max({std::abs(M1), std::abs(M2), std::abs((M1 + M2) / 2 + MQ)});
    if (!(M > 0)) {
        tavola.Asse();
        return;
    }
    const auto ordinate = [=](double x) {
        return (Lineare(M1, M2, x) + MQ * (distribuito ? Parabola(x) : Triangolo(x))) / M;
    };
    tavola.Diagramma(ordinate);
    const auto minore = [&](double a, double b) { return std::abs(ordinate(a)) < std::abs(ordinate(b)); };
    const double dove = std::max({0.0, 1.0, 0.5}, minore); // of equal ones the first
    const PuntoQuadro massimo = tavola.Punto(dove, ordinate(dove));
    tavola.Segna(massimo);
    tavola.Nome(massimo, Formato("0.0##", Nmm_a_kNm(M * ordinate(dove))), dove == 1 ? -1 : 1,
                ordinate(dove) < 0 ? 1 : -1);
}

void FasciaPsi(const Quadro& quadro, const CampoQuadro& campo, double psi) {
    const double inizio = campo.sinistra + quadro.LarghezzaTesto(nomeM1);
    const double luce = campo.Destra() - inizio - quadro.LarghezzaTesto(nomeM2) -
                        quadro.LarghezzaTesto(nomePsi); // narrower in a smaller picture
    const TavolaTrave tavola(quadro, {inizio, campo.alto, luce, campo.altezza});
    DisegnaPsi(tavola, psi);
    tavola.Nome(tavola.Punto(0, quotaM1 / 2), "M", -1, 0);
    if (psi != 0)
        tavola.Nome(tavola.Punto(1, quotaM1 * psi / 2), "ψM", 1, 0);
    const double fine = inizio + luce + quadro.LarghezzaTesto(nomeM2);
    tavola.Nome({fine, campo.Centro().y}, "ψ = " + TestoPsi(psi), 1, 0);
}

void FasciaCaso(const Quadro& quadro, const CampoQuadro& campo, CasoF12 caso) {
    const double luce = (campo.larghezza - 3 * bordo) / 2;
    const CampoQuadro carico{campo.sinistra, campo.alto, luce, campo.altezza};
    const CampoQuadro diagramma{campo.sinistra + luce + 2 * bordo, campo.alto, luce, campo.altezza};
    DisegnaCaso({quadro, carico}, {quadro, diagramma}, caso);
}

} // namespace

void DisegnaPict(const TavolaTrave& tavola, std::int16_t pict) {
    const Ordinate o = OrdinateDi(pict);
    const bool distribuito = pict == pictDistribuitoContro || pict == pictDistribuitoConcorde;
    tavola.Diagramma(
        [=](double x) { return Lineare(o.M1, o.M2, x) + o.MQ * (distribuito ? Parabola(x) : Triangolo(x)); });
    tavola.Nome(tavola.Punto(0, o.M1 / 2), "M1", -1, 0);
    tavola.Nome(tavola.Punto(1, o.M2 / 2), "M2", 1, 0);
    if (TipoDiPict(pict) == diagrammaCampata)
        tavola.Nome(tavola.Punto(0.5, 0), "MQ", 0, o.MQ < 0 ? -1 : 1); // clear of the diagram
}

void DisegnaPsi(const TavolaTrave& tavola, double psi) {
    tavola.Diagramma([=](double x) { return Lineare(quotaM1, quotaM1 * psi, x); });
}

void DisegnaCaso(const TavolaTrave& carico, const TavolaTrave& diagramma, CasoF12 caso) {
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
        carico.Nome(carico.Punto(1, 0.7), "q", 1, 0);
        diagramma.Diagramma(
            [=](double x) { return -FraIncastri(Parabola(x), incastri ? quanto_uniforme : 0); });
        break;
    case ConcentratoAppoggi:
    case ConcentratoIncastri:
        carico.Forza(0.5);
        carico.Nome(carico.Punto(0.5, 0.7), "F", 1, 0);
        diagramma.Diagramma(
            [=](double x) { return -FraIncastri(Triangolo(x), incastri ? quanto_forza : 0); });
        break;
    case DueCarichiAppoggi:
        for (const double where : {0.25, 0.75}) {
            carico.Forza(where);
            carico.Nome(carico.Punto(where, 0.7), "F", 1, 0);
        }
        carico.Distanza(0, 0.25, "L/4");
        carico.Distanza(0.75, 1, "L/4");
        diagramma.Diagramma([](double x) { return -DueForze(x); });
        break;
    }
}

std::string TestoPsi(double psi) {
    constexpr std::array<std::string_view, 4> quarti{"0", "1/4", "1/2", "3/4"};
    const auto n = static_cast<std::size_t>(std::lround(4 * std::abs(psi)));
    const std::string segno = psi > 0 ? "+" : psi < 0 ? "-" : "";
    return segno + (n < quarti.size() ? std::string(quarti[n]) : std::to_string(n / 4));
}

Disegno DisegnoPict(std::int16_t pict) {
    constexpr double larghezza = 56; // of the diagram between its names
    constexpr double altezza = 46;
    constexpr double margine = 5;
    Disegno disegno{"Diagramma dei momenti", {}, {larghezza + 2 * margine, altezza + 2 * margine, "M1 M1 "}};
    disegno.PlottaInOggetto = [pict, misura = disegno.misura](Superficie* oggetto, std::string_view) {
        const Quadro quadro(oggetto, Dispositivo, misura);
        const double nome = quadro.LarghezzaTesto("M1 ");
        DisegnaPict({quadro, quadro.Tutto().Dentro(margine + nome, margine, margine + nome, margine)}, pict);
    };
    return disegno;
}

Disegno DisegnoMomenti(const MomentiMembratura& y, const MomentiMembratura& z, std::int16_t pict) {
    constexpr double larghezza = 84;
    constexpr double altezza = 76;
    Disegno disegno{"Momenti di progetto", {}, {2 * larghezza, altezza, "y-y  z-z  0000,0"}};
    disegno.PlottaInOggetto = [y, z, pict, misura = disegno.misura](Superficie* oggetto, std::string_view) {
        const Quadro quadro(oggetto, Dispositivo, misura);
        const double nome = quadro.LarghezzaTesto("y-y  ");
        CampoQuadro meta = quadro.Tutto();
        meta.larghezza /= 2;
        for (const bool primo : {true, false}) {
            const double riga = quadro.Riga();
            AsseMomenti(quadro, meta.Dentro(nome, riga, 2 * bordo, riga), primo ? "y-y " : "z-z ",
                        primo ? y : z, pict);
            meta.sinistra += meta.larghezza;
        }
    };
    return disegno;
}

Disegno DisegnoProspetto(int prospetto) {
    const bool diagrammi = prospetto == 1;
    Disegno disegno;
    disegno.nome = diagrammi ? "Prospetto F.1.1" : "Prospetto F.1.2";
    if (diagrammi)
        disegno.misura = {trave + 2 * bordo, 48.0 * psiF11, "M  ψM  ψ = +3/4  "};
    else
        disegno.misura = {2 * trave + 5 * bordo, 60.0 * casiF12};
    disegno.PlottaInOggetto = [diagrammi, misura = disegno.misura](Superficie* oggetto, std::string_view) {
        const Quadro quadro(oggetto, Dispositivo, misura);
        const std::size_t fasce = diagrammi ? psiF11 : casiF12;
        CampoQuadro fascia = quadro.Tutto();
        fascia.altezza /= static_cast<double>(fasce);
        for (std::size_t i = 0; i < fasce; ++i) {
            const CampoQuadro dentro = fascia.Dentro(bordo, bordo, bordo, bordo);
            if (diagrammi)
                FasciaPsi(quadro, dentro, ProspettoF11()[3 * i].psi);
            else
                FasciaCaso(quadro, dentro, ProspettoF12()[2 * i].caso);
            fascia.alto += fascia.altezza;
        }
    };
    return disegno;
}

} // namespace sagomi
