#pragma once

#include <QImage>

#include "drawing/Disegno.h"

class QString;

namespace sagomi {

/// A drawing as a picture in memory, three times as dense as the screen: black ink on white, a small picture
/// in its own size, any other as large as a preview.
QImage ImmagineDi(const Disegno& disegno, const QString& maschera);

} // namespace sagomi
