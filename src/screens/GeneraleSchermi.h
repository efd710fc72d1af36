#pragma once

#include "frame/ui/ChiudiProgramma.h"
#include "screens/SchermoSezione.h"

namespace sagomi {

/// The start of the program; its end is ChiudiProgramma, the reactions of a main screen lie with its base.

/// Program entry: returns at once when an automation client started the program; else the start sequence.
void Main();

/// Settings, partial factors, first screen.
void InizializzaProgramma();

/// What the desktop program needs before Main: message boxes, help key, Italian texts of the toolkit.
void PreparaApplicazione();

} // namespace sagomi
