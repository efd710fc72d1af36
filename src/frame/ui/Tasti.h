#pragma once

#include <QKeySequence>

class QAbstractButton;
class QWidget;

namespace sagomi {

/// A button that does something: no option, no part of the toolkit, no number of a table to be taken.
bool Comando(const QAbstractButton& bottone);

/// Gives every command of a screen a key: its own mnemonic or shortcut, else the next function key that is
/// free; and tells it in the tool-tip. Entries of a menu bar that open no menu count as commands.
void AssegnaTasti(QWidget& maschera);

} // namespace sagomi
