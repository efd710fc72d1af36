#pragma once

#include <limits>
#include <string>

#include "sections/Interazione.h"

namespace sagomi {

class SezioneDoppioT;

/// Terms of an interaction.
enum class TermineVerifica { Nessuno, N, My, Mz };

/// What a check under axial force and bending says. The terms count by their magnitude, so that no moment of
/// the other sign hides a term; an axial force that is alone beyond its resistance fails whatever it does to
/// the moments.
struct Verdetto {
    /// The sum to be shown, with the signs of its terms; no number where the axial force alone is too much.
    double somma = std::numeric_limits<double>::quiet_NaN();
    /// Held against 1: the sum of the magnitudes; where the axial force alone is too much, with the force
    /// over its resistance, and without moments whose resistances it would reduce. No number where there is
    /// no verdict.
    double utilizzo = std::numeric_limits<double>::quiet_NaN();
    TermineVerifica governa = TermineVerifica::Nessuno; ///< the largest term; none where nothing acts
    bool assialeOltre = false;                          ///< the axial force alone is beyond its resistance
    std::string motivo; ///< why it fails where the sum shown does not tell; else empty
};

/// Axial resistances that a check holds the force alone against [N], with their symbols.
struct ResistenzeAssiali {
    double compressione;
    std::string simboloCompressione;
    double trazione;
};

/// Judges a check. In tension the axial term counts as |N| over the resistance in tension.
Verdetto Giudica(const TerminiInterazione& termini, const ResistenzeAssiali& resistenze);

// Of different flanges the utilisation, and with it the verdict, counts the fibre that bears less; the sum
// shown is that of the terms.

/// Judges the resistance of the section, EC3 6.2.9: the force alone against NplRd.
Verdetto GiudicaResistenza(const SezioneDoppioT& sezione);

/// Judges flexural buckling, ENV 1993-1-1 5.5.4: the force alone against the smaller of NbyRd and NbzRd in
/// compression, against NplRd in tension.
Verdetto GiudicaInstabilita(const SezioneDoppioT& sezione);

/// Judges lateral-torsional buckling in the same way. McrFunz and MbRdSub must have run before.
Verdetto GiudicaFlessoTorsionale(const SezioneDoppioT& sezione);

/// Whether Mcr departs from what today's codes give: flanges that differ and a load away from the centroid,
/// the height of which c2 brings in. The shear centre is found with iZ for a divisor, not with the flanges'
/// inertias.
bool McrSiDiscosta(const SezioneDoppioT& sezione);

} // namespace sagomi
