// Welds of the beam to the plate, EC3 6.6.
#include <cmath>
#include <numbers>

#include "frame/Messaggi.h"
#include "frame/Numeri.h"
#include "joints/Divisione.h"
#include "joints/Giunto.h"

namespace sagomi {

using std::numbers::sqrt3;

namespace {

constexpr double golaMinima = 3; ///< EC3 6.6.5.2 (2) [mm]

/// ENV 1993-1-1 6.6.5.3; 0 for a steel that it does not list.
double betaW(double fu) {
    if (fu == 360)
        return 0.8;
    if (fu == 430)
        return 0.85;
    return fu == 510 ? 0.9 : 0;
}

/// Length of the fillets along one flange, both sides [mm].
double LunghezzaCordoni(const SezioneDoppioT& trave, double raccordo) {
    return 2 * trave.b - trave.tw - 2 * raccordo;
}

} // namespace

GoleAla::GoleAla(const SezioneDoppioT& trave, double raccordo, const FattoriParziali& fattori)
    : a1(ArrotondaSu(trave.tf / 2)) {
    const double beta = betaW(trave.fu);
    if (beta == 0)
        return;
    a2 = ArrotondaSu(Diviso(sqrt3 * trave.tf * trave.fy * trave.b * beta * fattori.GammaM2,
                            LunghezzaCordoni(trave, raccordo) * trave.fu * fattori.GammaM0, "2b - tw - 2s"));
}

void Giunto::CordoneAla(double& risultato) const {
    const double meta = t().tf / 2;
    risultato = Diviso(meta * tf, std::sqrt(meta * meta + tf * tf), "tf");
}

void Giunto::saldature(std::int16_t azzera) {
    if (azzera != 0)
        Eq_Saldatura_ = 0;
    sTraveColonna_Calcola();
    const GoleAla gole(t(), sTrave_, Fattori());
    double massima = 0;
    CordoneAla(massima);
    if (nf == 2) {
        Af = std::max(gole.a1, gole.a2);
    } else {
        Af = gole.a1 < gole.a2 ? gole.a1 : gole.a2;
        Cambia_af = Af > massima;
        if (Cambia_af)
            Af = ValoreNumerico(Formato("0.0", massima));
    }
    GolaMinima(massima);
    aw = std::max(ArrotondaSu(t().tw / 2), golaMinima);
}

void Giunto::GolaMinima(double massima) {
    if (Af >= golaMinima)
        return;
    if (!Cambia_af) {
        if (massima >= golaMinima)
            Af = golaMinima;
        return;
    }
    if (Af == Eq_Saldatura_)
        return;
    Avvisa(
        "Esiste un problema per la realizzazione delle saldature più esterne tra le ali della trave "
        "e la flangia: non viene rispettata la prescrizione dei 3 mm per l'altezza di gola (EC3 "
        "6.6.5.2.(2)). "
        "Si consiglia di provare ad aumentare lo spessore della flangia o di adottare saldature di testa a "
        "T, a penetrazione completa.",
        "Giunto flangiato", Icona::Avviso);
    Eq_Saldatura_ = Af;
}

std::string Giunto::M_Saldature() const {
    const double beta = betaW(t().fu);
    if (beta == 0)
        return {};
    double gola = 0;
    CordoneAla(gola);
    const double M = LunghezzaCordoni(t(), Radice(t())) * (t().h - t().tf) * gola * t().fu /
                     (1e6 * beta * sqrt3 * Fattori().GammaM2);
    return Formato("0.00", M);
}

} // namespace sagomi
