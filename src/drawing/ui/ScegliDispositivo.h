#pragma once

#include <QString>

#include <functional>

#include "drawing/Disegno.h"

class QPrinter;
class QWidget;

namespace sagomi {

/// Where a drawing goes; also the numbers of the preview's menu, whose 3 closes it.
enum SceltaDispositivo : int {
    sceltaStampante = 0,
    sceltaDxf = 1,
    sceltaCad = 2,
    sceltaSvg = 4,
    sceltaAppunti = 5,
    sceltaPdf = 6,
    sceltaPng = 7
};

/// Asks the user for the printer and its settings; false when he gives up. The tests put their own in the
/// place of the print dialog, which also offers a PDF file.
using SceltaStampante = std::function<bool(QPrinter& stampante, QWidget* sopra)>;
void ImpostaSceltaStampante(SceltaStampante scelta);

/// Sends a drawing to the device of choice: the print dialog and as many copies as it asks for; the save
/// dialog and a DXF, SVG, PDF or PNG file; the running CAD program; the clipboard, as a picture and as SVG.
/// The folder of a file becomes the working folder.
/// @param nome      proposed for the file and the print job
/// @param maschera  name of the screen that asks, handed on to the drawing
/// @param esito     when given, receives in a few words where the drawing went
/// @return false when the user gave up or the device could not be had, which is told in a message
bool ScegliDispositivo(int scelta, const QString& nome, const Disegno& disegno, const QString& maschera,
                       QWidget* sopra, QString* esito = nullptr);

/// Draws a page, counted from 0, and tells whether another one follows.
using PaginaStampata = std::function<bool(Superficie& foglio, int numero)>;

/// Prints pages: the print dialog, as many copies as it asks for.
/// @param nome   of the print job
/// @param esito  when given, receives in a few words where they went
/// @return false when the user gave up or the printer could not be had, which is told in a message
bool StampaPagine(const QString& nome, const PaginaStampata& pagina, QWidget* sopra,
                  QString* esito = nullptr);

/// Draws the pages of a printer that has been chosen. False, with a message, when it cannot be had or the
/// drawing fails.
bool StampaSu(QPrinter& stampante, const Disegno& disegno, const QString& maschera);
bool StampaSu(QPrinter& stampante, const PaginaStampata& pagina);

} // namespace sagomi
