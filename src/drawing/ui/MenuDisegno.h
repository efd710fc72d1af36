#pragma once

#include <memory>

#include "drawing/Disegno.h"

class QMenu;
class QPoint;
class QWidget;

namespace sagomi {

/// The ways that a picture shown by a widget can go: to the clipboard, the printer, a DXF or SVG file, the
/// CAD program, the preview. The actions are called "mnuImmagineItem_<choice>" and "mnuImmagineAnteprima".
std::unique_ptr<QMenu> MenuDisegno(QWidget& widget, const Disegno& disegno);

/// Opens that menu; without anything drawn there is none.
void MostraMenuDisegno(QWidget& widget, const Disegno& disegno, const QPoint& dove);

} // namespace sagomi
