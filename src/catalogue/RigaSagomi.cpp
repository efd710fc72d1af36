#include "catalogue/RigaSagomi.h"

#include <span>

#include "catalogue/Lettore.h"
#include "frame/Unita.h"
#include "sections/SezioneSagomoL.h"
#include "sections/SezioneSagomoU.h"

namespace sagomi {

namespace {

/// Where a field of the row goes and what brings it to mm.
template <typename S> struct Destinazione {
    int campo;
    Singolo S::*membro;
    double (*unita)(double);
};

using U = SezioneSagomoU;
using L = SezioneSagomoL;

// clang-format off
constexpr Destinazione<U> canali[] = {
    { 2, &U::h,        Uguale},
    { 3, &U::b,        Uguale},
    { 4, &U::tw,       Uguale},
    { 5, &U::tf,       Uguale},
    { 6, &U::r1,       Uguale},
    { 7, &U::r2,       Uguale},
    { 7, &U::pendenza, Uguale},
    { 8, &U::Area,     cm2_a_mm2},
    { 9, &U::Jy,       cm4_a_mm4},
    {10, &U::Wely,     cm3_a_mm3},
    {11, &U::Wply,     cm3_a_mm3},
    {12, &U::iY,       cm_a_mm},
    {13, &U::Jz,       cm4_a_mm4},
    {14, &U::Welz,     cm3_a_mm3},
    {15, &U::Wplz,     cm3_a_mm3},
    {16, &U::Iz,       cm_a_mm},
    {17, &U::JT,       cm4_a_mm4},
    {18, &U::Jw,       cm6_a_mm6},
};

constexpr Destinazione<L> angolari[] = {
    { 2, &L::h,    Uguale},
    { 3, &L::b,    Uguale},
    { 4, &L::t,    Uguale},
    { 5, &L::r1,   Uguale},
    { 6, &L::r2,   Uguale},
    { 7, &L::Area, cm2_a_mm2},
    { 8, &L::Jy,   cm4_a_mm4},
    { 9, &L::Wely, cm3_a_mm3},
    {10, &L::iY,   cm_a_mm},
    {11, &L::Jz,   cm4_a_mm4},
    {12, &L::Welz, cm3_a_mm3},
    {13, &L::Iz,   cm_a_mm},
};
// clang-format on

constexpr int campoIv = 17;

template <typename S>
void Legge(const Lettore& riga, S& sezione, std::span<const Destinazione<S>> destinazioni) {
    sezione.Designation = riga.Testo(0);
    for (const Destinazione<S>& d : destinazioni)
        sezione.*d.membro = d.unita(riga.Numero(d.campo));
}

} // namespace

void LeggeRiga(const Lettore& riga, SezioneSagomoU& sezione) {
    if (!riga.BOF() && !riga.EOF_())
        Legge<U>(riga, sezione, canali);
}

void LeggeRiga(const Lettore& riga, SezioneSagomoL& sezione) {
    if (riga.BOF() || riga.EOF_())
        return;
    Legge<L>(riga, sezione, angolari);
    sezione.iV = cm_a_mm(riga.Numero(campoIv));
}

} // namespace sagomi
