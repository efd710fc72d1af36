#pragma once

namespace sagomi {

/// Unloads the screens, writes the settings, ends the run. Does its work once.
void ChiudiProgramma();

} // namespace sagomi
