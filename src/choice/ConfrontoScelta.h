#pragma once

#include <string>
#include <vector>

#include "choice/Scelta.h"
#include "drawing/Disegno.h"

/// Rows of a choice side by side.
namespace sagomi {

inline constexpr std::size_t massimoConfronto = 4; ///< rows side by side

/// A row that is compared, with the section that has all of its results.
struct Confrontato {
    SagomoInGara sagomo;
    SagomoVerificato esito;
};

/// A quantity of the comparison: its text for each row, and by how much it differs from the first one's.
struct LineaConfronto {
    std::string voce, aiuto;
    std::vector<std::string> valori;
    std::vector<std::string> differenze; ///< "+12,3 (+4 %)"; empty for the first row and without two numbers
};

/// The columns of the table as lines, but for the name.
std::vector<LineaConfronto> LineeConfronto(const std::vector<Confrontato>& righe);

/// The outlines side by side, one scale for all, each with its name and measures; none draws nothing.
Disegno DisegnoConfronto(const std::vector<Confrontato>& righe);

} // namespace sagomi
