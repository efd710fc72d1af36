#pragma once

#include <string>

#include "frame/Numeri.h"

namespace sagomi {

/// A utilisation in per cent, without the sign: one decimal; what is just above 1 never reads 100.0, and
/// what is far beyond it only says so.
inline std::string Percento(double utilizzo) {
    constexpr double quasiUno = 1.0005; // would show as 100.0
    constexpr double moltissimo = 100;  // beyond it the figures tell nothing
    if (utilizzo > 1 && utilizzo < quasiUno)
        return "> 100";
    if (utilizzo > moltissimo)
        return "> " + Formato("#,##0", moltissimo * 100);
    return Formato("0.0", utilizzo * 100);
}

} // namespace sagomi
