#pragma once

#include "choice/Scelta.h"

namespace sagomi {

class SchermoSezione;

/// Steel as the entries of the screens have it.
struct EntrateAcciaio {
    int indice = 0; ///< in the list of grades
    double fy = 0, fu = 0;

    bool operator==(const EntrateAcciaio&) const = default;
};

/// Puts a row of a choice into the main screen of its kind, with all that was asked: the family is ticked,
/// the row in hand, steel, lengths and axial force are in their boxes; the details start from the moments and
/// factors. The screen is not shown, and computes when it is activated next.
/// @return the screen; null where the row is not in its table any more, which is told in a message
SchermoSezione* PrendeSagomo(const SagomoInGara& sagomo, const Richiesta& richiesta,
                             const EntrateAcciaio& acciaio);

} // namespace sagomi
