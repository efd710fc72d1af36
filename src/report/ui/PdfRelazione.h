#pragma once

#include <filesystem>

class QPrinter;

namespace sagomi {

struct Relazione;

/// Writes a report as a PDF file, pages A4. A QGuiApplication is there, of any platform. Throws
/// std::runtime_error, in Italian, where the file cannot be written; one of that name from before is then as
/// it was.
void ScrivePdfRelazione(const Relazione& relazione, const std::filesystem::path& file);

/// Plugs ScrivePdfRelazione in as what writes PDF; where no application is there it makes one without a
/// display, for the rest of the run.
void ImpostaPdfRelazione();

/// Paints a report on a printer that has been chosen; false when it cannot be had.
bool StampaRelazioneSu(QPrinter& stampante, const Relazione& relazione);

} // namespace sagomi
