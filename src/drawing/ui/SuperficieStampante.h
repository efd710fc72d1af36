#pragma once

#include "drawing/ui/SuperficieQt.h"

namespace sagomi {

/// A page as surface: its own scale is true millimetres from the top left corner of what can be printed;
/// black ink on white.
class SuperficieStampante : public SuperficieQt {
public:
    /// @param pittore  at work on a printer, a PDF file, or the pages of a print preview
    explicit SuperficieStampante(QPainter& pittore);
};

} // namespace sagomi
