#include "screens/TavolaFattori.h"

#include "frame/ui/NavigaSchermi.h"

namespace sagomi {

void TavolaFattori::Consegna(const FattoriScelti& fattori) {
    if (alScelta)
        alScelta(fattori);
    NavigaSchermi::Unico().Lascia(*this);
}

} // namespace sagomi
