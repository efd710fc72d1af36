#include "screens/RisultatiSezione.h"

#include "frame/Numeri.h"
#include "frame/Unita.h"
#include "sections/SezioneDoppioT.h"
#include "sections/SezioneSagomoL.h"
#include "sections/SezioneSagomoU.h"

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

const std::vector<VoceRisultato<SezioneSagomoU>>& RisultatiSagomoU() {
    using U = SezioneSagomoU;
    static const std::vector<VoceRisultato<U>> voci = {
        {"TxtClasseCompressione", [](const U& s) { return std::to_string(s.ClasseCompressione); }},
        {"TxtClasseFlessione", [](const U& s) { return std::to_string(s.ClasseFlessioneY); }},
        {"TxtClasseFlessioneZ", [](const U& s) { return std::to_string(s.ClasseFlessioneZ); }},
        {"TxtNbRd_0", [](const U& s) { return Forza(s.NbyRd); }},
        {"TxtNbRd_1", [](const U& s) { return Forza(s.NbzRd); }},
        {"TxtMcRd_0", [](const U& s) { return Momento(s.McyRd); }},
        {"TxtMcRd_1", [](const U& s) { return Momento(s.MczRd); }},
        {"TxtVplRd_0", [](const U& s) { return Forza(s.VplyRd); }},
        {"TxtVplRd_1", [](const U& s) { return Forza(s.VplzRd); }}};
    return voci;
}

const std::vector<VoceRisultato<SezioneSagomoL>>& RisultatiSagomoL() {
    using L = SezioneSagomoL;
    static const std::vector<VoceRisultato<L>> voci = {
        {"TxtClasseCompressione", [](const L& s) { return std::to_string(s.ClasseCompressione); }},
        {"TxtNbRd_0", [](const L& s) { return Forza(s.NbyRd); }},
        {"TxtNbRd_1", [](const L& s) { return Forza(s.NbzRd); }},
        {"TxtNbRd_2", [](const L& s) { return Forza(s.NbvRd); }}};
    return voci;
}

} // namespace sagomi
