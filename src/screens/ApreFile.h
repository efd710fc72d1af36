#pragma once

class QString;

namespace sagomi {

/// Opens a file of the program on its screen: "Sco" a composite beam, "Gfl" a joint, whatever the capitals.
/// The program must have started. Another kind of file is told.
/// @return false when nothing was opened, which has been told
bool ApreFile(const QString& file);

} // namespace sagomi
