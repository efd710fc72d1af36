#pragma once

class QWidget;

namespace sagomi {

/// Gives a window and its menus fonts of `rapporto` times those that they had at the first call; 1 puts them
/// back exactly. What has a size of its own keeps it in proportion, the rest follows the window.
void ScalaCaratteri(QWidget& finestra, double rapporto);

/// Gives the layouts of a window margins and spacings of `rapporto` times those that they had at the first
/// call; a ratio above 1 leaves them at those.
void ScalaSpazi(QWidget& finestra, double rapporto);

} // namespace sagomi
