#include "catalogue/RigaDoppioT.h"

#include <charconv>
#include <cmath>
#include <span>
#include <string>
#include <utility>

#include "catalogue/Lettore.h"
#include "frame/Unita.h"
#include "sections/SezioneDoppioT.h"

namespace sagomi {

namespace {

using Unita = double (*)(double);

/// Where a field of the row goes, what brings it to mm and what brings it back.
struct Destinazione {
    int campo;
    Singolo SezioneDoppioT::*membro;
    Unita unita;
    Unita inversa;
};

// clang-format off
constexpr Destinazione laminate[] = {
    { 2, &SezioneDoppioT::h,    Uguale,    Uguale},
    { 3, &SezioneDoppioT::b,    Uguale,    Uguale},
    { 4, &SezioneDoppioT::tw,   Uguale,    Uguale},
    { 5, &SezioneDoppioT::tf,   Uguale,    Uguale},
    { 6, &SezioneDoppioT::r1,   Uguale,    Uguale},
    { 7, &SezioneDoppioT::r2,   Uguale,    Uguale},
    { 8, &SezioneDoppioT::Area, cm2_a_mm2, mm2_a_cm2},
    { 9, &SezioneDoppioT::Jy,   cm4_a_mm4, mm4_a_cm4},
    {10, &SezioneDoppioT::Wely, cm3_a_mm3, mm3_a_cm3},
    {11, &SezioneDoppioT::Wply, cm3_a_mm3, mm3_a_cm3},
    {12, &SezioneDoppioT::iY,   cm_a_mm,   mm_a_cm},
    {13, &SezioneDoppioT::Jz,   cm4_a_mm4, mm4_a_cm4},
    {14, &SezioneDoppioT::Welz, cm3_a_mm3, mm3_a_cm3},
    {15, &SezioneDoppioT::Wplz, cm3_a_mm3, mm3_a_cm3},
    {16, &SezioneDoppioT::iZ,   cm_a_mm,   mm_a_cm},
    {17, &SezioneDoppioT::JT,   cm4_a_mm4, mm4_a_cm4},
    {18, &SezioneDoppioT::Jw,   cm6_a_mm6, mm6_a_cm6},
};

constexpr Destinazione saldate[] = {
    { 2, &SezioneDoppioT::h,    Uguale,    Uguale},
    { 3, &SezioneDoppioT::b,    Uguale,    Uguale},
    { 4, &SezioneDoppioT::tw,   Uguale,    Uguale},
    { 5, &SezioneDoppioT::tf,   Uguale,    Uguale},
    { 6, &SezioneDoppioT::r,    Uguale,    Uguale},
    { 7, &SezioneDoppioT::Area, cm2_a_mm2, mm2_a_cm2},
    { 8, &SezioneDoppioT::Jy,   cm4_a_mm4, mm4_a_cm4},
    { 9, &SezioneDoppioT::Wely, cm3_a_mm3, mm3_a_cm3},
    {10, &SezioneDoppioT::Wply, cm3_a_mm3, mm3_a_cm3},
    {11, &SezioneDoppioT::iY,   cm_a_mm,   mm_a_cm},
    {12, &SezioneDoppioT::Jz,   cm4_a_mm4, mm4_a_cm4},
    {13, &SezioneDoppioT::Welz, cm3_a_mm3, mm3_a_cm3},
    {14, &SezioneDoppioT::Wplz, cm3_a_mm3, mm3_a_cm3},
    {15, &SezioneDoppioT::iZ,   cm_a_mm,   mm_a_cm},
    {16, &SezioneDoppioT::JT,   cm4_a_mm4, mm4_a_cm4},
    {17, &SezioneDoppioT::Jw,   cm6_a_mm6, mm6_a_cm6},
};

constexpr Destinazione asimmetriche[] = {
    { 2, &SezioneDoppioT::h,       Uguale,    Uguale},
    { 3, &SezioneDoppioT::b,       Uguale,    Uguale},
    { 4, &SezioneDoppioT::bAlaInf, Uguale,    Uguale},
    { 5, &SezioneDoppioT::tw,      Uguale,    Uguale},
    { 6, &SezioneDoppioT::tf,      Uguale,    Uguale},
    { 7, &SezioneDoppioT::tAlaInf, Uguale,    Uguale},
    { 8, &SezioneDoppioT::r,       Uguale,    Uguale},
    { 9, &SezioneDoppioT::Area,    cm2_a_mm2, mm2_a_cm2},
    {10, &SezioneDoppioT::Jy,      cm4_a_mm4, mm4_a_cm4},
    {11, &SezioneDoppioT::Wely,    cm3_a_mm3, mm3_a_cm3},
    {12, &SezioneDoppioT::WelyInf, cm3_a_mm3, mm3_a_cm3},
    {13, &SezioneDoppioT::Wply,    cm3_a_mm3, mm3_a_cm3},
    {14, &SezioneDoppioT::iY,      cm_a_mm,   mm_a_cm},
    {15, &SezioneDoppioT::Jz,      cm4_a_mm4, mm4_a_cm4},
    {16, &SezioneDoppioT::Welz,    cm3_a_mm3, mm3_a_cm3},
    {17, &SezioneDoppioT::Wplz,    cm3_a_mm3, mm3_a_cm3},
    {18, &SezioneDoppioT::iZ,      cm_a_mm,   mm_a_cm},
    {19, &SezioneDoppioT::JT,      cm4_a_mm4, mm4_a_cm4},
    {20, &SezioneDoppioT::Jw,      cm6_a_mm6, mm6_a_cm6},
};
// clang-format on

std::span<const Destinazione> Destinazioni(RigheDoppioT righe) {
    switch (righe) {
    case RigheDoppioT::Saldate:
        return saldate;
    case RigheDoppioT::SaldateAsimmetriche:
        return asimmetriche;
    default:
        return laminate;
    }
}

/// The number that a person would write for a single: 7.1, not 7.099999904632568.
Valore Pulito(double valore) {
    const auto stretto = static_cast<float>(valore);
    if (!std::isfinite(stretto))
        return {};
    char testo[32];
    const auto fine = std::to_chars(testo, testo + sizeof testo, stretto).ptr;
    double pulito = 0;
    std::from_chars(testo, fine, pulito);
    return pulito;
}

} // namespace

namespace {

/// @param numero  of a field by its position
template <typename F>
void Riempie(SezioneDoppioT& sezione, std::string nome, const F& numero, RigheDoppioT righe) {
    sezione.Designation = std::move(nome);
    for (const Destinazione& d : Destinazioni(righe))
        sezione.*d.membro = d.unita(numero(d.campo));
    if (righe == RigheDoppioT::Laminate)
        return;
    sezione.Saldata = true;
    sezione.SaldataAsimm = righe == RigheDoppioT::SaldateAsimmetriche;
    if (!sezione.SaldataAsimm)
        sezione.WelyInf = sezione.Wely;
}

} // namespace

int CampiDi(RigheDoppioT righe) { return Destinazioni(righe).back().campo + 1; }

void LeggeRiga(const Lettore& riga, SezioneDoppioT& sezione, RigheDoppioT righe) {
    if (!riga.BOF() && !riga.EOF_())
        Riempie(
            sezione, riga.Testo(0), [&riga](int campo) { return riga.Numero(campo); }, righe);
}

void LeggeCampi(const std::vector<Valore>& campi, SezioneDoppioT& sezione, RigheDoppioT righe) {
    const auto numero = [&campi](int campo) { return NumeroDi(campi.at(static_cast<std::size_t>(campo))); };
    Riempie(sezione, TestoDi(campi.at(0)), numero, righe);
}

std::vector<Valore> CampiRiga(const SezioneDoppioT& sezione, RigheDoppioT righe) {
    std::vector<Valore> campi = {sezione.Designation, Pulito(sezione.g)};
    for (const Destinazione& d : Destinazioni(righe))
        campi.push_back(Pulito(d.inversa(sezione.*d.membro)));
    return campi;
}

} // namespace sagomi
