#include "catalogue/RigaDoppioT.h"

#include "catalogue/Lettore.h"
#include "sections/SezioneDoppioT.h"

namespace sagomi {

namespace {

constexpr double cm_mm = 10;
constexpr double cm2_mm2 = 100;
constexpr double cm3_mm3 = 1000;
constexpr double cm4_mm4 = 10000;
constexpr double cm6_mm6 = 1000000;

/// Where a field of the row goes and what brings it to mm.
struct Destinazione {
    int campo;
    Singolo SezioneDoppioT::*membro;
    double fattore;
};

// clang-format off
constexpr Destinazione destinazioni[] = {
    { 2, &SezioneDoppioT::h,    1},
    { 3, &SezioneDoppioT::b,    1},
    { 4, &SezioneDoppioT::tw,   1},
    { 5, &SezioneDoppioT::tf,   1},
    { 6, &SezioneDoppioT::r1,   1},
    { 7, &SezioneDoppioT::r2,   1},
    { 8, &SezioneDoppioT::Area, cm2_mm2},
    { 9, &SezioneDoppioT::Jy,   cm4_mm4},
    {10, &SezioneDoppioT::Wely, cm3_mm3},
    {11, &SezioneDoppioT::Wply, cm3_mm3},
    {12, &SezioneDoppioT::iY,   cm_mm},
    {13, &SezioneDoppioT::Jz,   cm4_mm4},
    {14, &SezioneDoppioT::Welz, cm3_mm3},
    {15, &SezioneDoppioT::Wplz, cm3_mm3},
    {16, &SezioneDoppioT::iZ,   cm_mm},
    {17, &SezioneDoppioT::JT,   cm4_mm4},
    {18, &SezioneDoppioT::Jw,   cm6_mm6},
};
// clang-format on

} // namespace

void LeggeRiga(const Lettore& riga, SezioneDoppioT& sezione) {
    if (riga.BOF() || riga.EOF_())
        return;
    sezione.Designation = riga.Testo(0);
    for (const Destinazione& d : destinazioni)
        sezione.*d.membro = riga.Numero(d.campo) * d.fattore;
}

} // namespace sagomi
