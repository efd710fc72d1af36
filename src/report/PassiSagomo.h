#pragma once

#include <string>

#include "frame/Singolo.h"
#include "report/Relazione.h"

/// Steps that the reports of several kinds of sections share.
namespace sagomi {

inline constexpr const char* tabellaClassi = "ENV 1993-1-1 tab. 5.3.1";

/// The limits of a class, of a slenderness over epsilon, as they stand behind it; nothing where the first
/// one is not given.
std::string Limiti(const std::string& da, const std::string& a);

/// A plate: its slenderness against the limits of its class.
PassoRelazione Piatto(const std::string& descrizione, const char* simbolo, const std::string& numeri,
                      double snellezza, int classe, const std::string& limiti);

PassoRelazione Classe(const char* descrizione, int classe, const char* norma = tabellaClassi);

/// The step to the factor of the steel, of a yield strength [N/mm2].
PassoRelazione PassoEpsilon(Singolo fy);

/// The effective area over the area, of class 4.
PassoRelazione PassoBetaA(double betaA);

/// Axial resistance [N] of a section whose area counts as betaA of it.
PassoRelazione PassoNplRd(int classe, double betaA, double area, Singolo fy, double NplRd);

/// The three moduli of an axis [mm3].
struct ModuliAsse {
    double plastico, elastico, efficace;
};

/// W fy over the factor of the class, ENV 1993-1-1 5.4.5; a modulus or a moment [N mm] that is no number
/// leaves its place empty.
PassoRelazione PassoMomento(bool y, int classe, const ModuliAsse& W, Singolo fy, double MRd);

/// Adds the steps to the resistances to an axial force and to moments of a section that has both.
template <typename S> void AggiungeForzaEMomenti(CapitoloRelazione& c, const S& s) {
    const double betaA = s.betaA();
    if (s.ClasseCompressione > 3)
        c.passi.push_back(PassoBetaA(betaA));
    c.passi.push_back(PassoNplRd(s.ClasseCompressione, betaA, s.Area, s.fy, s.NplRd));
    c.passi.push_back(PassoMomento(true, s.ClasseFlessioneY, {s.Wply, s.Wely, s.WyEff}, s.fy, s.McyRd));
    c.passi.push_back(PassoMomento(false, s.ClasseFlessioneZ, {s.Wplz, s.Welz, s.WzEff}, s.fy, s.MczRd));
}

/// Takes out the chapters that have nothing in them.
Relazione SenzaCapitoliVuoti(Relazione r);

} // namespace sagomi
