#pragma once

#include <vector>

#include "frame/ui/Voce.h"

namespace sagomi {

/// Units, behind the symbols of a term.
inline constexpr Dicitura unitaN{"", " [kN]"};
inline constexpr Dicitura unitaM{"", " [kNm]"};

/// Symbols with their unit.
inline std::vector<Dicitura> Con(const Dicitura& unita, std::vector<Dicitura> simboli) {
    simboli.push_back(unita);
    return simboli;
}

/// Symbols of a moment with the axial force on the shift of the effective section's centroid:
/// "My,Sd + NSd eNy", or with "Mz,Sd" and "eNz".
inline std::vector<Dicitura> MomentoSpostato(bool y) {
    return {{"", "M", y ? "y,Sd" : "z,Sd"}, {"", "+"}, {"", "N", "Sd"}, {"", "e", y ? "Ny" : "Nz"}};
}

/// The same in brackets behind its factor k, whose subscript is given.
inline std::vector<Dicitura> TermineSpostato(const char* pedice, bool y) {
    std::vector<Dicitura> simboli = MomentoSpostato(y);
    simboli.insert(simboli.begin(), {{"", "k", pedice}, {"", "("}});
    simboli.push_back({"", ")"});
    return simboli;
}

} // namespace sagomi
