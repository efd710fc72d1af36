// The bytes are a whole file: the container, which libgsf opens, and the stream in it.

#include <cstdint>
#include <span>
#include <stdexcept>

#include "catalogue/CartellaXls.h"
#include "catalogue/ContenitoreOle.h"

// libgsf 1.14 leaves a directory entry behind when one below it is broken.
extern "C" const char* __lsan_default_suppressions() { return "leak:libglib-2.0"; }

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    try {
        sagomi::CartellaXls cartella(sagomi::LeggeFlussoOle(std::span(data, size), {"Workbook", "Book"}));
        for (std::size_t i = 0; i < cartella.Fogli(); ++i)
            static_cast<void>(cartella.Legge(i));
    } catch (const std::runtime_error&) { // refused
    }
    return 0;
}
