// The bytes are the stream of a workbook, without its container.

#include <cstdint>
#include <stdexcept>
#include <vector>

#include "catalogue/CartellaXls.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    try {
        sagomi::CartellaXls cartella(std::vector<std::uint8_t>(data, data + size));
        for (std::size_t i = 0; i < cartella.Fogli(); ++i)
            try {
                const sagomi::FoglioLetto foglio = cartella.Legge(i);
                if (sagomi::PostiDi(foglio) < 100'000)
                    static_cast<void>(sagomi::FoglioDa(foglio));
            } catch (const std::runtime_error&) { // this sheet alone
            }
    } catch (const std::runtime_error&) { // refused
    }
    return 0;
}
