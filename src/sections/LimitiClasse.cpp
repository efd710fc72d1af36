#include "sections/LimitiClasse.h"

#include <cmath>
#include <utility>

#include "frame/Numeri.h"
#include "sections/Eurocod3.h"

namespace sagomi {

LimitiClasse::LimitiClasse(double l1, double l2, double l3) : LimitiClasse(l1, l2, l3, TestoPiano(l3)) {}

LimitiClasse::LimitiClasse(double l1, double l2, double l3, std::string testo3)
    : limiti_{l1, l2, l3}, testi_{"0", TestoPiano(l1), TestoPiano(l2), std::move(testo3),
                                  std::string(limiteInfinito)} {}

std::int16_t LimitiClasse::Classe(double s, std::string& limite0, std::string& limite1) const {
    std::int16_t classe = 1;
    for (const double limite : limiti_) {
        if (s <= limite)
            break;
        ++classe;
    }
    limite0 = testi_[static_cast<std::size_t>(classe - 1)];
    limite1 = testi_[static_cast<std::size_t>(classe)];
    return classe;
}

// ENV 1993-1-1 table 5.3.1, sheet 1 for webs, sheet 3 for outstands.
const LimitiClasse& LimitiAnimaCompressa() {
    static const LimitiClasse limiti(33, 38, 42);
    return limiti;
}

const LimitiClasse& LimitiAnimaInflessa() {
    static const LimitiClasse limiti(72, 83, 124);
    return limiti;
}

const LimitiClasse& LimitiAlaCompressa() {
    static const LimitiClasse limiti(9, 10, 14);
    return limiti;
}

// The one text with decimals is made anew when the separator of the locale has changed.
const LimitiClasse& LimitiAlaInflessa() {
    static auto separatore = CarDecimale;
    static LimitiClasse limiti = LimitiAlaInflessa(9, 10, 21, 0.57, 21);
    if (separatore != CarDecimale) {
        limiti = LimitiAlaInflessa(9, 10, 21, 0.57, 21);
        separatore = CarDecimale;
    }
    return limiti;
}

LimitiClasse LimitiAlaInflessa(double l1, double l2, double a, double kS, double bLim) {
    const double radice = std::sqrt(kS);
    return {l1, l2, radice * a, Formato("0.0", bLim * radice)};
}

} // namespace sagomi
