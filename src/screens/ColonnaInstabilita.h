#pragma once

namespace sagomi {

class Schermo;

/// Fills one column of a buckling screen from SezioneCorrente: slenderness, relative slenderness, curve, its
/// imperfection factor, phi, chi, critical force, resistance (EC3 6.3.1), and the values that all columns
/// share. The labels are found by their names; a screen may leave some out.
/// @param lamda  slenderness about the axis [-]; no number empties the column
/// @param asse   0 y-y, 1 z-z, 2 v-v
void ColonnaInstabilita(double lamda, int asse, Schermo& schermo);

} // namespace sagomi
