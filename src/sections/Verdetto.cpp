#include "sections/Verdetto.h"

#include <algorithm>
#include <cmath>

#include "frame/Numeri.h"
#include "frame/Unita.h"
#include "sections/FibraInferiore.h"
#include "sections/SezioneDoppioT.h"

namespace sagomi {

namespace {

constexpr auto figura = "0.0##";

/// The magnitudes of the terms.
struct Grandezze {
    double N, My, Mz;

    [[nodiscard]] double Somma() const { return N + My + Mz; }
    /// A resistance below 0, of data that are no section's, would hide another term.
    [[nodiscard]] bool Valide() const { return N >= 0 && My >= 0 && Mz >= 0; }
};

double Grandezza(const TermineMomento& t) {
    TermineMomento positivo = t;
    positivo.MSd = std::abs(t.k * t.M());
    positivo.NeN = 0;
    positivo.k = 1;
    return positivo.Valore();
}

Grandezze GrandezzeDi(const TerminiInterazione& t, const ResistenzeAssiali& r) {
    const double N = t.assialeNeiMomenti ? 0 : t.NSd < 0 ? -t.NSd / r.trazione : t.N();
    return {N, Grandezza(t.y), Grandezza(t.z)};
}

TermineVerifica Maggiore(const Grandezze& g) {
    const double massimo = std::max({g.N, g.My, g.Mz});
    if (!(massimo > 0))
        return TermineVerifica::Nessuno;
    return massimo == g.N ? TermineVerifica::N : massimo == g.My ? TermineVerifica::My : TermineVerifica::Mz;
}

std::string Forza(double N) { return Formato(figura, N_a_kN(N)) + " kN"; }

std::string MotivoAssiale(double N, double resistenza, const std::string& simbolo) {
    return "NSd = " + Forza(N) + " supera da sola " + simbolo + " = " + Forza(resistenza);
}

std::string MotivoGrandezze(double somma) {
    return "I termini contano in valore assoluto: la loro somma è " + Formato(figura, somma);
}

/// What moments add to an axial force that is too much alone. Where the force reduces their resistances these
/// are gone, and so are the terms.
double MomentiOltre(const TerminiInterazione& t) {
    if (t.assialeNeiMomenti)
        return 0;
    const auto almenoZero = [](double termine) { return termine > 0 ? termine : 0; };
    return almenoZero(Grandezza(t.y)) + almenoZero(Grandezza(t.z));
}

Verdetto Oltre(const TerminiInterazione& termini, double resistenza, const std::string& simbolo) {
    const double N = termini.NSd;
    Verdetto v;
    v.utilizzo = resistenza > 0 ? std::abs(N) / resistenza + MomentiOltre(termini)
                                : std::numeric_limits<double>::infinity();
    v.governa = TermineVerifica::N;
    v.assialeOltre = true;
    v.motivo = MotivoAssiale(N, resistenza, simbolo);
    return v;
}

/// Buckling resistances are none where the data of the row did not compute.
ResistenzeAssiali Instabilita(const SezioneDoppioT& s) {
    const double Nb =
        s.ErroreDatiDatabase ? std::numeric_limits<double>::quiet_NaN() : std::min(s.NbyRd, s.NbzRd);
    return {Nb, s.NbyRd < s.NbzRd ? "Nb,y,Rd" : "Nb,z,Rd", s.NplRd};
}

} // namespace

Verdetto Giudica(const TerminiInterazione& termini, const ResistenzeAssiali& r) {
    const double N = termini.NSd;
    if (N > r.compressione)
        return Oltre(termini, r.compressione, r.simboloCompressione);
    if (-N > r.trazione)
        return Oltre(termini, r.trazione, "Npl,Rd");
    const Grandezze g = GrandezzeDi(termini, r);
    Verdetto v;
    v.somma = termini.Somma();
    v.governa = Maggiore(g);
    v.utilizzo = g.Valide() ? g.Somma() : std::numeric_limits<double>::quiet_NaN();
    if (std::isnan(v.somma) || (v.utilizzo > 1 && !(v.somma > 1)))
        v.motivo = std::isfinite(v.utilizzo) ? MotivoGrandezze(v.utilizzo) : "";
    return v;
}

namespace {

/// Judges a check whose moment about y-y the lower fibre may bear less of than the terms say: the sum shown
/// is that of the terms, the verdict takes the smaller resistance.
/// @param quota  the resistance that counts over that of the term, at most 1
Verdetto GiudicaConFibra(const TerminiInterazione& termini, const ResistenzeAssiali& r, double quota) {
    Verdetto v = Giudica(termini, r);
    if (!(quota < 1))
        return v;
    TerminiInterazione ridotti = termini;
    ridotti.y.MRd *= quota;
    const Verdetto w = Giudica(ridotti, r);
    if (w.utilizzo > 1 && !(v.utilizzo > 1))
        v.motivo =
            "La fibra inferiore porta meno: My,Rd = " + Formato(figura, Nmm_a_kNm(ridotti.y.MRd)) + " kNm";
    v.utilizzo = w.utilizzo;
    v.governa = w.governa;
    return v;
}

/// What counts of the resistance about y-y, where a check takes the elastic moment or the section's own.
double Quota(const SezioneDoppioT& s, bool elastica) { return elastica ? QuotaElastica(s) : QuotaMcyRd(s); }

} // namespace

Verdetto GiudicaResistenza(const SezioneDoppioT& s) {
    return GiudicaConFibra(s.TerminiMNResistenza(), {s.NplRd, "Npl,Rd", s.NplRd},
                           Quota(s, s.ClassePressoFlessione == 3));
}

Verdetto GiudicaInstabilita(const SezioneDoppioT& s) {
    return GiudicaConFibra(s.TerminiMNInstab(), Instabilita(s), Quota(s, s.ClassePressoFlessione >= 3));
}

Verdetto GiudicaFlessoTorsionale(const SezioneDoppioT& s) {
    return GiudicaConFibra(s.TerminiFlessoTorsionale(), Instabilita(s), QuotaMcyRd(s));
}

bool McrSiDiscosta(const SezioneDoppioT& s) {
    const bool diverse = s.b != s.bAlaInf || s.tf != s.tAlaInf;
    return s.SaldataAsimm && diverse && s.LLT > 0 && s.c2 != 0 && s.h / 2 + s.za != s.yG;
}

} // namespace sagomi
