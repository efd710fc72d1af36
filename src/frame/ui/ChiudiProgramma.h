#pragma once

namespace sagomi {

/// Unloads the screens, writes the settings, ends the run. Does its work once. Before that the user is asked
/// about work that is not saved, whoever ends the run. Called from inside of work that lets events through,
/// it stops that work and waits for its end.
/// @return false when the user stays
bool ChiudiProgramma();

} // namespace sagomi
