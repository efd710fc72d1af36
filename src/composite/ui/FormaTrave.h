#pragma once

class QAction;
class QMenu;

namespace sagomi {

class Schermo;

/// Boxes with this property hold words; all others hold numbers.
inline constexpr auto proprietaParole = "parole";

/// Builds the controls and the menus of the screen of composite beams, each found by its object name. The
/// order of the tab key is that of reading.
void ComponeTrave(Schermo& schermo);

/// An entry of a menu by its object name.
QAction* AggiungeVoce(QMenu& menu, const char* nome, const char* testo, const char* tasto = "");

} // namespace sagomi
