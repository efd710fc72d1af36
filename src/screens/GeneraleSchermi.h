#pragma once

#include <QString>

#include <string_view>

namespace sagomi {

class SchermoSezione;

/// The common behaviour of the main screens: start, activation, new rows, new steel, resize, end.

/// Program entry: returns at once when an automation client started the program; else the start sequence.
void Main();

/// Settings, partial factors, first screen.
void InizializzaProgramma();

/// What the desktop program needs before Main: message boxes, help key, Italian texts of the toolkit.
void PreparaApplicazione();

/// The common part of a main screen's load, once its workbook and SQLstring are set.
void CaricaFormComune(SchermoSezione& schermo);

/// A main screen has become the active one.
void AttivaForm(SchermoSezione& schermo);

/// Caption of the menu entry that names the code of rules in force.
void AggiornaCaptionNormativa(SchermoSezione& schermo);

/// Rebuilds the query from the boxes, or over a sheet given as queries name it, and reads the table anew.
void CambioFamiglia(SchermoSezione& schermo, std::string_view foglio = {});

/// The display field `indice` has changed; for 0, the name, the new row is taken over.
void RecordCambiato(SchermoSezione& schermo, int indice);

/// The text of Txt_fy has changed.
void AcciaioCambiato(SchermoSezione& schermo);

/// The window has been maximised, minimised or restored.
void RidimensionaForm(SchermoSezione& schermo);

/// Unloads the screens, writes the settings, ends the run. Does its work once.
void ChiudiProgramma();

} // namespace sagomi
