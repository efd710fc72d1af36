#pragma once

#include <QString>

namespace sagomi {

class SchermoSezione;

/// What a user finds again at the next start, apart from the settings: families, order, column widths and row
/// of each main screen, its lengths and axial force, the places of the windows, the last folder and files. It
/// is kept in a file of the user's configuration folder; one that cannot be read or written is as good as
/// none, and nothing is said of it.

/// The folder of the file; while none is named nothing is kept.
void CartellaStato(const QString& cartella);

/// Puts a main screen that has been loaded into the state that it was left in; without a state it stays.
void LeggeStato(SchermoSezione& schermo);

/// Keeps the state of a main screen, and what belongs to none.
void ScriveStato(const SchermoSezione& schermo);

/// What belongs to no screen: the places of the details, the folder and the files worked in.
void LeggeStatoComune();

} // namespace sagomi
