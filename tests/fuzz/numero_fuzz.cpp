// The bytes are a text that may begin with a number; the C library says what number it is.

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "frame/LetturaNumero.h"
#include "frame/Numeri.h"

namespace {

void Verifica(bool giusto) {
    if (!giusto)
        std::abort();
}

/// What was read, as strtod wants it: no blank behind the sign.
std::string SenzaBianchi(std::string_view testo) {
    std::string stretto(testo);
    std::erase_if(stretto, [](char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; });
    return stretto;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string testo(data, data + size);
    const auto letto = sagomi::LeggeNumero<double>(testo);
    Verifica(letto.fine <= testo.size());
    if (letto.fine > 0)
        Verifica(std::strtod(SenzaBianchi(std::string_view(testo).substr(0, letto.fine)).c_str(), nullptr) ==
                 letto.valore);
    Verifica(sagomi::LeggeNumero<float>(testo).fine == letto.fine);
    static_cast<void>(sagomi::ValoreNumerico(testo));
    return 0;
}
