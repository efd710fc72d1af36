#pragma once

#include <algorithm>
#include <cmath>

/// T-stubs by a second method.
namespace sagomi::verifica {

/// Greatest force of a T-stub by the static theorem: the flange as two cantilevers on bolts, with a prying
/// force Q at n from the bolts that is scanned; moments within Mpl, bolts within their resistance.
inline double TrattoTStatico(double Mpl, double m, double n, double bulloni, double Bt) {
    double migliore = 0;
    constexpr int passi = 200000;
    const double massima = bulloni / 2 * Bt;
    for (int i = 0; i <= passi; ++i) {
        const double Q = massima * i / passi; // of one side
        if (Q * n > Mpl)
            break;
        const double F = std::min((Mpl + Q * n) / m, massima - Q); // of one side: web moment, bolts
        migliore = std::max(migliore, 2 * F);
    }
    return migliore;
}

/// alpha of the chart by its closed form (λ1* = 1.25/(α - 2.75), λ2* = α λ1*/2), by bisection on α.
inline double AlfaChiusa(double l1, double l2) {
    const auto sulla = [&](double alfa) { // l1 of the curve less the given one
        const double a = 1.25 / (alfa - 2.75), b = alfa * a / 2;
        if (l2 >= b)
            return a - l1;
        return a + (1 - a) * std::pow((b - l2) / b, 0.185 * std::pow(alfa, 1.785)) - l1;
    };
    double basso = 4.45, alto = 8;
    if (sulla(basso) < 0)
        return basso;
    if (sulla(alto) > 0)
        return alto;
    for (int i = 0; i < 60; ++i) {
        const double m = (basso + alto) / 2;
        (sulla(m) > 0 ? basso : alto) = m;
    }
    return basso;
}

} // namespace sagomi::verifica
