#include "screens/RisultatiSezione.h"

#include "frame/Numeri.h"
#include "frame/Unita.h"
#include "sections/SezioneDoppioT.h"

namespace sagomi {

namespace {

using S = SezioneDoppioT;

constexpr int cifre = 4;

std::string Forza(double N) { return FormatoCifre(cifre, N_a_kN(N)); }

std::string Momento(double M) { return FormatoCifre(cifre, Nmm_a_kNm(M)); }

/// A row whose data do not compute has no buckling resistance, and what follows from it was not reached.
std::string ForzaSeCalcolata(const S& s, double N) { return s.ErroreDatiDatabase ? std::string() : Forza(N); }

} // namespace

const std::vector<VoceRisultato<SezioneDoppioT>>& RisultatiDoppioT() {
    static const std::vector<VoceRisultato<S>> voci = {
        {"TxtClasseCompressione", [](const S& s) { return std::to_string(s.ClasseCompressione); }},
        {"TxtClasseFlessioneY", [](const S& s) { return std::to_string(s.ClasseFlessioneY); }},
        {"TxtClasseFlessioneZ", [](const S& s) { return std::to_string(s.ClasseFlessioneZ); }},
        {"TxtClassePressFless", [](const S& s) { return std::to_string(s.ClassePressoFlessione); }},
        {"TxtNbRd_0", [](const S& s) { return ForzaSeCalcolata(s, s.NbyRd); }},
        {"TxtNbRd_1", [](const S& s) { return ForzaSeCalcolata(s, s.NbzRd); }},
        {"TxtMcRd_0", [](const S& s) { return Momento(s.McyRd); }},
        {"TxtMcRd_1", [](const S& s) { return Momento(s.MczRd); }},
        {"TxtVplRd_0", [](const S& s) { return ForzaSeCalcolata(s, s.VplyRd); }},
        {"TxtVplRd_1", [](const S& s) { return ForzaSeCalcolata(s, s.VplzRd); }}};
    return voci;
}

} // namespace sagomi
