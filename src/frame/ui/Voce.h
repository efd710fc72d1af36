#pragma once

#include <Qt>

class QGridLayout;
class QLabel;
class QWidget;

namespace sagomi {

class Casella;
class EtichettaRisultato;

/// A caption, in UTF-8: a text whose gap of blanks, or whose end, takes a subscript, or a word with its
/// symbol.
struct Dicitura {
    const char* nome = "";  ///< object name
    const char* testo = ""; ///< also markup of EtichettaFormula ("t{w} [mm]")
    const char* pedice = "";
    const char* simbolo = ""; ///< behind the word, subscripts in braces ("γ{M1}")
};

/// What a field of a panel is.
enum class Genere {
    entrata,   ///< a box to type in
    risultato, ///< a box that is read only
    valore,    ///< a label in a thin frame
};

/// A field of a panel, as a row of the panel's table says it. Texts are UTF-8.
struct Voce {
    Dicitura etichetta = {}; ///< caption, whose buddy the field is
    const char* nome = "";   ///< object name of the field
    int caratteri = 7;       ///< width in figures
    const char* aiuto = "";  ///< tool-tip: what the quantity is, with its clause
    const char* letta = "";  ///< accessible name, with the unit
    Genere genere = Genere::entrata;
    int decimali = -1; ///< of a value in a column: places kept behind the decimal separator; -1 none
};

/// A label of plain text; of the class EtichettaPedice where there is a subscript, EtichettaFormula where
/// there is a symbol.
QLabel* CreaDicitura(const Dicitura& scritta, Qt::Alignment allineamento = Qt::AlignLeft | Qt::AlignVCenter);

/// Puts a caption into a cell. A subscript behind a text without a gap stays beside its text.
void PosaDicitura(QGridLayout& griglia, QLabel* scritta, int riga, int colonna, Qt::Alignment allineamento);

/// A field: Casella or, for a value, EtichettaRisultato.
QWidget* CreaCampo(const Voce& voce);

/// A value without a caption of its own.
EtichettaRisultato* CreaValore(const Voce& voce);

/// A caption and its field, the one the other's buddy.
struct Coppia {
    QLabel* etichetta;
    QWidget* campo;
};
Coppia CreaCoppia(const Voce& voce);

} // namespace sagomi
