#pragma once

#include <QHash>
#include <QList>
#include <QPoint>
#include <QRect>
#include <QString>

class QWidget;

namespace sagomi {

/// Rooms of a desktop, all in its pixels.
struct Stanze {
    QRect disponibile;          ///< the desktop without its panels
    QRect chiamante;            ///< the window that opens, with its frame
    QList<QRect> protette = {}; ///< its entries and results
    QRect copribile = {};       ///< what a window may well stand over, empty where nothing is
    QList<QRect> aperte = {};   ///< other windows of the program
};

/// Where a window opens: beside its caller, at the right if there is room that no other window takes, else
/// left, below, above; where there is none, inside the desktop, over as little of the protected rooms as can
/// be, then of other windows, and over the one that may be covered before anything else.
/// @param misura  size of the window with its frame
/// @return the upper left corner of its frame
QPoint PostoLibero(QSize misura, const Stanze& stanze);

/// Moves a window that is about to be shown: to where it was left in this run, else to a free place by its
/// caller. Group boxes of the caller that have the property "copribile" may be covered, those with entries or
/// results may not.
void Colloca(QWidget& finestra, const QWidget& chiamante);

/// Moves a hidden window to where it was left; one that was not shown before stays.
void RiprendePosto(QWidget& finestra);

/// Keeps the place of a visible window for its next showing.
void RicordaPosto(const QWidget& finestra);

/// The places kept, by the object names of the windows: upper left corners of their frames.
QHash<QString, QPoint>& PostiFinestre();

} // namespace sagomi
