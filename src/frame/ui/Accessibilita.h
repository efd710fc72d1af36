#pragma once

#include "frame/ui/Annunci.h"

class QWidget;

namespace sagomi {

/// A button with this property, set before all others, shows a result: its text is its value, beside its
/// accessible name.
inline constexpr auto proprietaValore = "mostraValore";

/// A button with this property keeps its tool-tip as it stands; its key is told in the status line.
inline constexpr auto proprietaSuggerimento = "suggerimentoDato";

/// Has labels tell a screen reader what they show. A label with an accessible name is a result: its name is
/// the quantity, its value the text, read only, to be read by characters too. A caption with a subscript
/// reads as it is seen, without the gap. Every screen calls it; again does nothing.
void InstallaAccessibilita();

/// Names the parts that the toolkit makes by itself, after the control that they belong to: the heading and
/// the scroll bars of a table or an area.
void NominaParti(QWidget& maschera);

} // namespace sagomi
