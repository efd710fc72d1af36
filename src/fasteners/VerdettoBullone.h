#pragma once

#include <limits>
#include <string>

#include "fasteners/Bullone.h"

namespace sagomi {

/// What governs the check of a bolt.
enum class TermineBullone { Nessuno, Taglio, Trazione, Rifollamento };

/// What the check of a bolt under shear and tension says. Beside the sum of ENV 1993-1-1 6.5.5 (5), which
/// counts tension over 1.4 times its resistance, each force alone is held against its own.
struct VerdettoBullone {
    /// Held against 1: the largest of the sum and the forces over their own resistances. No number where a
    /// resistance is not above 0, which has no verdict.
    double utilizzo = std::numeric_limits<double>::quiet_NaN();
    // What it is the largest of; no number for none.
    double interazione = std::numeric_limits<double>::quiet_NaN();  ///< the sum
    double trazione = std::numeric_limits<double>::quiet_NaN();     ///< tension alone
    double rifollamento = std::numeric_limits<double>::quiet_NaN(); ///< shear against bearing
    TermineBullone governa = TermineBullone::Nessuno;               ///< none where nothing acts
    std::string motivoTaglio;   ///< why the shear force alone is too much; else empty
    std::string motivoTrazione; ///< the same of the tension force

    /// Both reasons in one line.
    [[nodiscard]] std::string Motivo() const;
};

/// Judges a bolt by its forces and its resistances as last computed. The plate counts where it has a
/// thickness and a strength: the shear force is then held against the bearing resistance too.
VerdettoBullone Giudica(const Bullone& bullone);

} // namespace sagomi
