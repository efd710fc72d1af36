// The bytes are the stream of a workbook, without its container.

#include <cstdint>
#include <span>
#include <stdexcept>

#include "catalogue/CelleCalcolate.h"
#include "catalogue/VerificaXls.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    try {
        const auto record = sagomi::LeggiRecord(std::span(data, size));
        sagomi::VerificaXls(record);
        static_cast<void>(sagomi::CelleCalcolate(record));
    } catch (const std::runtime_error&) { // refused
    }
    return 0;
}
