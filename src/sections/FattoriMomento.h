#pragma once

#include <array>

/// Factors C1, C2 and C3 of the elastic critical moment as ENV 1993-1-1, annex F, tabulates them.
namespace sagomi {

/// A row of table F.1.1: linear moment diagram. Rows come in groups of one psi, with falling k.
struct RigaF11 {
    double psi; ///< ratio of the end moments
    double k;   ///< end restraint against rotation in plan
    double C1;
    double C3;
};

/// Loads and supports of table F.1.2.
enum class CasoF12 {
    UniformeAppoggi,    ///< uniform load, pinned ends
    UniformeIncastri,   ///< uniform load, fixed ends
    ConcentratoAppoggi, ///< point load at mid-span, pinned ends
    ConcentratoIncastri,
    DueCarichiAppoggi ///< two point loads at the quarter points, pinned ends
};

/// A row of table F.1.2: transverse loading. Rows come in groups of one case, with falling k.
struct RigaF12 {
    CasoF12 caso;
    double k;
    double C1;
    double C2;
    double C3;
};

inline constexpr std::size_t psiF11 = 9;  ///< moment diagrams of table F.1.1, three rows each
inline constexpr std::size_t casiF12 = 5; ///< load cases of table F.1.2, two rows each

const std::array<RigaF11, 3 * psiF11>& ProspettoF11();
const std::array<RigaF12, 2 * casiF12>& ProspettoF12();

} // namespace sagomi
