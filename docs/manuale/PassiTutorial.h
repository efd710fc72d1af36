#pragma once

#include <QList>
#include <QString>

namespace sagomi {

/// What a marked element of the tutorial tells to do or to read: <span
/// data-VERB="SCREEN.CONTROL">TEXT</span>.
///   sagomo    goes to the section TEXT in the table of SCREEN
///   scrive    writes TEXT into a box, and Enter
///   sceglie   takes the item, the option or the tab TEXT
///   spunta    sets the check box TEXT, toglie clears it
///   preme     presses the button TEXT, menu triggers the entry TEXT
///   legge     the control shows TEXT
///   messaggio the program has told TEXT
///   progetto  the project TEXT is given to the question of the step before, whose answer is a PDF
///   file      the file TEXT is chosen in the dialog of the step before, and is there then
///   riporta   the PDF file named instead of a screen tells TEXT; left to who can read it
///   chiude    closes SCREEN
///   foto      a picture of SCREEN is to stand here; TEXT is empty
struct PassoTutorial {
    QString verbo;
    QString schermo;   ///< object name of the screen
    QString controllo; ///< object name on it, may be empty
    QString testo;     ///< plain, without line ends
    int riga = 0;      ///< of the help file
};

/// The marked elements in their order. Elements of a kind do not stand inside each other.
QList<PassoTutorial> PassiTutorial(const QString& html);

/// The name of the picture of the n-th "foto", from 0: "esempio-01".
QString NomeFoto(int n);

} // namespace sagomi
