#pragma once

#include <QString>

#include <string>
#include <vector>

#include "drawing/PagineTesto.h"

class QWidget;

namespace sagomi {

/// Prints lines of text (UTF-8) on as many pages as they need: the print dialog, its copies, its PDF file.
/// @param nome   of the print job
/// @param esito  when given, receives in a few words where the text went
/// @param corpo  of the letters [points]
/// @return false when the user gave up or the printer could not be had, which is told in a message
bool StampaTesto(const std::vector<std::string>& righe, const QString& nome, QWidget* sopra,
                 QString* esito = nullptr, double corpo = corpoElenchi);

/// The preview of the same pages.
void AnteprimaTesto(const std::vector<std::string>& righe, const QString& nome, QWidget* sopra,
                    double corpo = corpoElenchi);

} // namespace sagomi
