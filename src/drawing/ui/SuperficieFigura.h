#pragma once

#include <QPalette>
#include <QSize>

#include "drawing/Disegno.h"
#include "drawing/ui/SuperficieQt.h"

namespace sagomi {

/// A small picture beside the figures of a screen as surface: its own scale is pixels, lines lie where they
/// fall, inks and ground follow the palette (pen 8 is the light ink, pen 12 the red of verdicts), texts in
/// the widget's own font are the widget's own texts.
class SuperficieFigura : public SuperficieQt {
public:
    SuperficieFigura(QPainter& pittore, const QSizeF& misura, const QFont& carattere, const QPalette& colori);
};

/// The size of a picture with texts in that font; smaller than its own where the font is smaller than usual.
QSize InPixel(const Misura& misura, const QFont& carattere);

} // namespace sagomi
