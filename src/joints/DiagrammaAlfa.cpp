#include "joints/DiagrammaAlfa.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <stdexcept>
#include <string>

#include "frame/Numeri.h"

namespace sagomi {

namespace {

constexpr int ultimo = 9;         ///< last row and column of the table
constexpr double passi = 10;      ///< rows to a unit of lambda
constexpr double asintoto = 4.45; ///< value beyond the last row

// clang-format off
constexpr std::array<std::array<double, 10>, 10> tabella{{
    {8, 8,    8,    8,    8,    8,    8,    8,    8,    8   },
    {8, 8,    8,    8,    8,    8,    8,    8,    8,    8   },
    {8, 8,    8,    8,    8,    8,    8,    8,    8,    8   },
    {8, 8,    8,    8,    7.4,  7,    7,    7,    7,    7   },
    {8, 8,    8,    7,    6.64, 6.28, 6.17, 6.08, 6,    6   },
    {8, 8,    7,    6.28, 6.04, 5.77, 5.52, 5.42, 5.38, 5.33},
    {8, 8,    6.28, 5.98, 5.5,  5.25, 5.1,  5,    4.95, 4.91},
    {8, 7,    6,    5.25, 5,    4.83, 4.75, 4.68, 4.66, 4.63},
    {8, 6.14, 5,    4.75, 4.59, 4.5,  4.45, 4.45, 4.45, 4.45},
    {8, 5,    4.5,  4.45, 4.45, 4.45, 4.45, 4.45, 4.45, 4.45}}};
// clang-format on

double A(int i, int j) { return tabella[std::size_t(i)][std::size_t(j)]; }

double Bilineare(double x, double y) {
    const int i = int(x);
    const int j = int(y);
    const double x1 = i + 1 - x;
    const double y1 = j + 1 - y;
    return A(i, j) * x1 * y1 + A(i + 1, j) * (x - i) * y1 + A(i, j + 1) * x1 * (y - j) +
           A(i + 1, j + 1) * (x - i) * (y - j);
}

double UltimaColonna(double x) {
    const int i = int(x);
    return A(i, ultimo) * (i + 1 - x) + A(i + 1, ultimo) * (x - i);
}

} // namespace

bool NelDiagrammaAlfa(double lambda1, double lambda2) {
    const double x = passi * lambda1;
    const double y = passi * lambda2;
    if (!(x >= 0) || !(y >= 0))
        return false;
    return x < ultimo || x >= ultimo + 1 || y < ultimo + 1;
}

double AlfaDiagramma(double lambda1, double lambda2) {
    if (!NelDiagrammaAlfa(lambda1, lambda2))
        throw std::out_of_range("lambda1 = " + TestoPiano(lambda1) + ", lambda2 = " + TestoPiano(lambda2) +
                                ": fuori dal diagramma di alfa");
    const double x = passi * lambda1;
    const double y = passi * lambda2;
    if (x >= ultimo)
        return asintoto;
    return y >= ultimo ? UltimaColonna(x) : Bilineare(x, y);
}

} // namespace sagomi
