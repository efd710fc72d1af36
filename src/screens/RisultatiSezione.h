#pragma once

#include <string>
#include <vector>

namespace sagomi {

class SezioneDoppioT;

/// A result box of a main screen and what it shows of the section.
template <typename S> struct VoceRisultato {
    const char* casella;            ///< its object name
    std::string (*testo)(const S&); ///< a class, or a resistance [kN, kNm] with 4 figures
};

/// What a double-T answers, rolled or welded: classes, resistances to buckling, bending and shear.
const std::vector<VoceRisultato<SezioneDoppioT>>& RisultatiDoppioT();

} // namespace sagomi
