#pragma once

#include <string_view>

namespace sagomi {

/// Reads ("L") or writes ("S") the settings file "Sagomi.ini" of PathProgramma.
/// A file that is missing, or that cannot be read to its end, lays down every default without a message and
/// gives false. A file that cannot be written is told once, unless an automation client is at work, and gives
/// false too. A list index outside its list becomes the first item.
bool IniLeggeScrive(std::string_view modo);

} // namespace sagomi
