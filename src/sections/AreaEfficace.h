#pragma once

#include "frame/Messaggi.h"
#include "sections/MostraVplRd.h"

/// Sections of class 4 with the effective area that is their own.
namespace sagomi {

/// Runs the initialiser as often as it takes for NplRd, and what follows from it, to rest on the section's
/// own effective area: the initialiser asks for NplRd before it finds the class and cuts the outline, so a
/// section that is or was of class 4 is run again. Messages are told once.
/// @param schermo  handed on to InizializzaSezione; may be null
template <typename S> void InizializzaConAreaEfficace(S& s, MostraVplRd* schermo = nullptr) {
    const bool era4 = s.ClasseCompressione == 4;
    s.InizializzaSezione(schermo);
    if (!era4 && s.ClasseCompressione != 4)
        return;
    const MessaggiTaciuti quiet;
    s.InizializzaSezione(schermo);
}

} // namespace sagomi
