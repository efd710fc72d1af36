#pragma once

#include <string>
#include <string_view>

#include "frame/Decimale.h"

namespace sagomi {

/// How a picture draws the digits of a number: "0.0##", "#,##0.00", "#.000E+00".
struct Figura {
    explicit Figura(std::string_view figura);

    std::string prefisso; ///< text before the first digit mark
    std::string suffisso; ///< text after the last one
    int interi = 0;       ///< digit marks before the separator
    int interiMinimi = 0; ///< those of them that show even when there is nothing to show
    int decimali = 0;     ///< digit marks after the separator
    int decimaliMinimi = 0;
    int cifreEsponente = 0;  ///< 0 where the picture has no power of ten
    bool separatore = false; ///< the decimal separator stands, even with no digit behind it
    bool gruppi = false;
    bool vuota = true; ///< no digit mark at all: plain text
};

/// The number drawn with the given separators; a minus goes in front of all, unless only zeros show.
std::string Disegna(const Figura& figura, const Decimale& numero, std::string_view separatore,
                    std::string_view gruppo);

} // namespace sagomi
