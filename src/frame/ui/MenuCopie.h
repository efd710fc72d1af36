#pragma once

#include <QPoint>

class QContextMenuEvent;
class QMenu;
class QWidget;

namespace sagomi {

/// The entries that copy from a screen: the room of a control as a table and as a picture, and the whole
/// screen. Each says what it copies; a room without values has none.
void AggiungeCopie(QMenu& menu, const QWidget& controllo, QWidget& schermo);

/// Opens the context menu at a control: its own entries first (those of a box, the value of a result).
/// @param ricevente  that the event came to: the control, or the screen
/// @return whether there was anything to copy
bool MostraMenuCopie(QWidget& schermo, QWidget& ricevente, const QContextMenuEvent& evento);

} // namespace sagomi
