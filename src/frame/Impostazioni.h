#pragma once

#include <string_view>

#include "frame/Generale.h"

namespace sagomi {

/// What a setting may be, both ends included.
struct Limiti {
    double minimo, massimo;
    [[nodiscard]] constexpr bool Comprende(double valore) const { // false for what is no number
        return valore >= minimo && valore <= massimo;
    }
};
inline constexpr Limiti limitiGamma{0.5, 5};       ///< partial factors [-]
inline constexpr Limiti limitiResistenza{1, 5000}; ///< fy, fu, fck, fsk [N/mm2]
inline constexpr Limiti limitiRapporto{1, 100};    ///< modular ratio, bolt classes [-]

/// Reads ("L") or writes ("S") the settings file "Sagomi.ini" of PathProgramma.
/// A file that is missing, or that cannot be read to its end, lays down every default without a message and
/// gives false. What was read and cannot be (outside its limits, no number, an index outside its list) goes
/// back to its default; the names of the values are then in ImpostazioniCorrette. Grades and bolt classes
/// that no default names get that of the first. The user's own factor of 0 becomes 1.
/// A file that cannot be written is told once, unless an automation client is at work, and gives false too.
bool IniLeggeScrive(std::string_view modo);

/// Writes the settings when they are no longer what was read or written last; before the first reading there
/// is nothing to compare. A failure is told once in a run.
/// @return false when the file could not be written
bool ScriveImpostazioniCambiate();

/// "Sagomi.ini: valori non ammessi di fck, GammaM0, riportati ai predefiniti": at most six names and how many
/// more; empty where all was well.
std::string AvvisoImpostazioni();

} // namespace sagomi
