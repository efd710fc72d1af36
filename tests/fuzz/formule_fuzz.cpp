// The bytes are the file of the formulas: blocks are cut out of it, and all of it goes to a rich text box.

#include <cstdint>
#include <string_view>

#include "joints/FormuleGiunto.h"
#include "joints/RtfInHtml.h"

using namespace sagomi;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view rtf(reinterpret_cast<const char*>(data), size);
    for (const std::string_view id : {"k6", "k6_Estesa", ""})
        if (const auto testo = TestoFormula(rtf, id))
            (void)HtmlDaRtf(*testo);
    (void)HtmlDaRtf(rtf);
    return 0;
}
