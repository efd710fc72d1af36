#pragma once

#include <QGroupBox>
#include <QKeySequence>
#include <QList>
#include <QString>

class QGridLayout;
class QHBoxLayout;
class QLabel;
class QPushButton;
class QRadioButton;

/// The pieces that the tabs of the joint screen are made of. Texts are UTF-8.
namespace sagomi {

struct Disegno;

/// An option of a choice.
struct Scelta {
    const char* testo;
    const char* aiuto = ""; ///< tool-tip
    const char* letta = ""; ///< accessible name, where the text alone stands twice in the window
};

/// A room with a heading and an empty grid in it.
QGridLayout* CreaStanza(QGroupBox* stanza, const char* nome, const char* titolo);

/// Options name_0, name_1, ... of which one is chosen.
/// @param padre  of the buttons' group
QList<QRadioButton*> CreaScelte(QWidget* padre, const char* nome, const QList<Scelta>& scelte);

/// A small picture beside a choice, outside the tab order.
QWidget* CreaFigura(const char* nome, const char* letta, const Disegno& disegno);

/// A plain caption, of a control where one is given.
QLabel* CreaScritta(const char* testo, QWidget* controllo = nullptr);

/// A command.
QPushButton* CreaBottone(const char* nome, const char* testo, const char* aiuto);

/// The "?" beside a result, which says how to make it larger. All have one key, Shift+F1: it is meant for the
/// result that has the focus.
/// @param casella  object name of the result
QPushButton* CreaDomanda(int indice, const char* letta, const char* casella);
inline constexpr auto proprietaCasella = "casella"; ///< of a "?": its result
inline constexpr auto tastoDomanda = Qt::SHIFT | Qt::Key_F1;

/// A text that the screen writes, read as a result.
QLabel* CreaEsposto(const char* nome, const char* letta, const char* testo = "");

/// A text that the screen writes into a room of its own: lines that are kept also while it is empty, as wide
/// as there is room, so that nothing around it moves.
QLabel* CreaNota(const char* nome, const char* letta, int righe);

/// A row of widgets with the spare room behind.
QHBoxLayout* InRiga(const QList<QWidget*>& pezzi);
QHBoxLayout* ScelteInRiga(const QList<QRadioButton*>& scelte);

} // namespace sagomi
