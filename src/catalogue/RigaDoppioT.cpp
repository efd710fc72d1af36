#include "catalogue/RigaDoppioT.h"

#include "catalogue/Lettore.h"
#include "frame/Unita.h"
#include "sections/SezioneDoppioT.h"

namespace sagomi {

namespace {

/// Where a field of the row goes and what brings it to mm.
struct Destinazione {
    int campo;
    Singolo SezioneDoppioT::*membro;
    double (*unita)(double);
};

// clang-format off
constexpr Destinazione destinazioni[] = {
    { 2, &SezioneDoppioT::h,    Uguale},
    { 3, &SezioneDoppioT::b,    Uguale},
    { 4, &SezioneDoppioT::tw,   Uguale},
    { 5, &SezioneDoppioT::tf,   Uguale},
    { 6, &SezioneDoppioT::r1,   Uguale},
    { 7, &SezioneDoppioT::r2,   Uguale},
    { 8, &SezioneDoppioT::Area, cm2_a_mm2},
    { 9, &SezioneDoppioT::Jy,   cm4_a_mm4},
    {10, &SezioneDoppioT::Wely, cm3_a_mm3},
    {11, &SezioneDoppioT::Wply, cm3_a_mm3},
    {12, &SezioneDoppioT::iY,   cm_a_mm},
    {13, &SezioneDoppioT::Jz,   cm4_a_mm4},
    {14, &SezioneDoppioT::Welz, cm3_a_mm3},
    {15, &SezioneDoppioT::Wplz, cm3_a_mm3},
    {16, &SezioneDoppioT::iZ,   cm_a_mm},
    {17, &SezioneDoppioT::JT,   cm4_a_mm4},
    {18, &SezioneDoppioT::Jw,   cm6_a_mm6},
};
// clang-format on

} // namespace

void LeggeRiga(const Lettore& riga, SezioneDoppioT& sezione) {
    if (riga.BOF() || riga.EOF_())
        return;
    sezione.Designation = riga.Testo(0);
    for (const Destinazione& d : destinazioni)
        sezione.*d.membro = d.unita(riga.Numero(d.campo));
}

} // namespace sagomi
