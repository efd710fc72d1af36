#pragma once

#include <filesystem>
#include <optional>

#include "frame/ui/ChiudiProgramma.h"
#include "screens/SchermoSezione.h"

namespace sagomi {

/// The start of the program; its end is ChiudiProgramma, the reactions of a main screen lie with its base.

/// Program entry: returns at once when an automation client started the program; else the start sequence.
void Main();

/// Settings, partial factors, first screen.
void InizializzaProgramma();

/// Names the folders of the run: PathProgramma, what came with the program, the state of the windows. The
/// start does it where nobody has done it before.
/// @param scelta  the folder that the user has chosen
/// @return false when that one cannot be used, which has been told
bool TrovaCartelle(const std::optional<std::filesystem::path>& scelta = {});

/// What the desktop program needs before Main: message boxes, help key, Italian texts of the toolkit.
void PreparaApplicazione();

} // namespace sagomi
