#pragma once

#include <QIcon>

namespace sagomi {

/// The icon of the program's windows: a rolled section, drawn at whatever size is asked for.
QIcon IconaProgramma();

} // namespace sagomi
