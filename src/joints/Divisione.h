#pragma once

#include <string>
#include <string_view>

#include "frame/Errori.h"

namespace sagomi {

/// a / b. A divisor of 0 throws ErroreAritmetico with its name.
inline double Diviso(double a, double b, const char* nome) {
    if (b == 0)
        throw ErroreAritmetico(std::string("divisione per zero: ") + nome + " = 0");
    return a / b;
}

} // namespace sagomi
