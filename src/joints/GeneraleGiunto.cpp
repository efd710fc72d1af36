#include "joints/GeneraleGiunto.h"

#include <cmath>

namespace sagomi {

double ArrotondaIntero(double x) {
    const double intero = std::floor(x);
    return x - intero >= 0.5 ? intero + 1 : intero;
}

double ParteIntera(double x) { return std::floor(x); }

double ArrotondaSu(double x) { return std::ceil(x); }

void CoefficientiForo::Imposta() const {
    CoefBordo = Bordo;
    CoefAnima = Anima;
    CoefRaccordo = Raccordo;
}

} // namespace sagomi
