#pragma once

#include <QList>
#include <QStringList>

class QMimeData;
class QObject;
class QTableView;
class QWidget;

namespace sagomi {

/// A line of a derivation as it is copied.
struct RigaDerivazione {
    QString simbolo, valore, unita, norma;
};

/// What a screen shows, entries and results in the order of reading: the symbol and the unit come from the
/// accessible name, the clause from the tool-tip. What is hidden or empty is left out.
QList<RigaDerivazione> Derivazione(const QWidget& schermo);

/// A widget that shows a table as a drawing has it in this property, heads first, as QVariant of
/// QList<QStringList>; nothing for no table.
inline constexpr auto proprietaTabella = "tabellaCopiata";

/// The room that a control stands in: the nearest group of entries or results, table of factors, grid of a
/// derivation or drawing with a table; the screen itself where there is none.
const QWidget& StanzaDi(const QWidget& controllo, const QWidget& schermo);

/// What a room is called on its screen, without the unit; the title of the window for a screen.
QString NomeStanza(const QWidget& stanza);

/// What a room or a whole screen shows, under heads: its table, or its derivation. Only the heads for
/// nothing.
QList<QStringList> RigheStanza(const QWidget& stanza);

/// The same for the clipboard: text with tabs, HTML and a picture. The caller takes it over.
QMimeData* StanzaCopiata(const QWidget& stanza);

/// A widget as a table that has no manner of copying of its own; null for any other.
const QTableView* TabellaDi(const QObject* oggetto);

} // namespace sagomi
