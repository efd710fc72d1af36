#include "frame/Acciaio.h"

#include <algorithm>
#include <cmath>

#include "frame/GeneraleSagomi.h"
#include "frame/Numeri.h"

namespace sagomi {

bool FyRiscritta(const std::string& tipo, Singolo fy) {
    const auto grade = std::ranges::find(NomeAcciaio, tipo);
    if (grade == NomeAcciaio.end() || !(fy > 0) || !std::isfinite(double(fy)))
        return false;
    const auto place = static_cast<int>(grade - NomeAcciaio.begin()) + 1;
    return fyAcciaio[place].Stretto() != fy.Stretto();
}

std::string AcciaioMostrato(const std::string& tipo, Singolo fy) {
    return FyRiscritta(tipo, fy) ? tipo + ", fy " + TestoPiano(fy) : tipo;
}

} // namespace sagomi
