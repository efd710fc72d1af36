#include "catalogue/Valore.h"

#include "frame/Numeri.h"

namespace sagomi {

double NumeroDi(const Valore& v) {
    if (const auto* numero = std::get_if<double>(&v))
        return *numero;
    const auto* testo = std::get_if<std::string>(&v);
    return testo == nullptr ? 0 : ValoreNumerico(*testo);
}

std::string TestoDi(const Valore& v) {
    if (const auto* testo = std::get_if<std::string>(&v))
        return *testo;
    const auto* numero = std::get_if<double>(&v);
    return numero == nullptr ? std::string() : TestoPiano(*numero);
}

} // namespace sagomi
