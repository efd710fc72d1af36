#pragma once

#include <QList>

class QGridLayout;
class QLineEdit;

namespace sagomi {

/// Keeps the decimal separators of boxes that stand in a column in line, whatever numbers they come to show.
/// A number that would lose its head by it stays at the edge.
void AllineaDecimali(const QList<QLineEdit*>& colonna);

/// The same for every column of results of a grid, once they stand in it.
void AllineaDecimali(const QGridLayout& griglia);

} // namespace sagomi
