#include "fasteners/VerdettoBullone.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "frame/Numeri.h"
#include "frame/Unita.h"

namespace sagomi {

namespace {

std::string Forza(double N) { return Formato("0.0##", N_a_kN(N)) + " kN"; }

/// Why a force does not stand beside one resistance; empty when it does.
std::string Supera(const char* forza, double agente, const char* resistenza, double resistente) {
    return agente > resistente ? std::string(forza) + " = " + Forza(agente) + " supera da sola " +
                                     resistenza + " = " + Forza(resistente)
                               : std::string();
}

std::string Unisce(const std::string& a, const std::string& b) {
    return a.empty() || b.empty() ? a + b : a + "; " + b;
}

/// The plate counts where it is given; a distance below its least leaves it no resistance.
bool ConPiastra(const Bullone& b) { return b.t > 0 && b.fu > 0; }

/// A force over a resistance of 0 is beyond it by any measure; below 0 there is none to hold it against.
double Utilizzo(double agente, double resistente) {
    if (!(resistente >= 0))
        return std::numeric_limits<double>::quiet_NaN();
    return agente == 0 ? 0 : agente / resistente;
}

TermineBullone Maggiore(const TerminiTaglioTrazione& t) {
    if (!(t.Somma() > 0))
        return TermineBullone::Nessuno;
    return t.taglio >= t.trazione ? TermineBullone::Taglio : TermineBullone::Trazione;
}

} // namespace

std::string VerdettoBullone::Motivo() const { return Unisce(motivoTaglio, motivoTrazione); }

VerdettoBullone Giudica(const Bullone& b) {
    VerdettoBullone v;
    if (!(b.FvRd > 0 && b.FtRd > 0))
        return v;
    const TerminiTaglioTrazione sum = b.TerminiInterazione();
    v.interazione = sum.Somma();
    v.trazione = b.FtSd / b.FtRd;
    v.utilizzo = v.interazione;
    v.governa = Maggiore(sum);
    const auto considera = [&v](double utilizzo, TermineBullone termine) {
        if (utilizzo <= v.utilizzo || std::isnan(v.utilizzo))
            return;
        v.utilizzo = utilizzo;
        v.governa = termine;
    };
    considera(v.trazione, TermineBullone::Trazione);
    v.motivoTaglio = Supera("Fv,Sd", b.FvSd, "Fv,Rd", b.FvRd);
    v.motivoTrazione = Supera("Ft,Sd", b.FtSd, "Ft,Rd", b.FtRd);
    if (ConPiastra(b)) {
        v.rifollamento = Utilizzo(b.FvSd, b.FbRd);
        considera(v.rifollamento, TermineBullone::Rifollamento);
        v.motivoTaglio = Unisce(v.motivoTaglio, Supera("Fv,Sd", b.FvSd, "Fb,Rd", b.FbRd));
    }
    return v;
}

} // namespace sagomi
