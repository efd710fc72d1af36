#pragma once

#include <QString>

#include <functional>

class QPrinter;
class QWidget;

namespace sagomi {

/// Shows pages as they will be printed, and prints them from there. Returns once the window is closed.
/// @param nome    of the print job
/// @param stampa  draws all pages on the printer that it is given
void AnteprimaPagine(const QString& nome, const std::function<void(QPrinter&)>& stampa, QWidget* sopra);

} // namespace sagomi
