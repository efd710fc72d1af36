#pragma once

#include <QString>

#include <cstdint>
#include <functional>
#include <optional>

#include "report/Relazione.h"

class QMenu;
class QAction;

namespace sagomi {

class Schermo;

/// The command "Relazione PDF..." of a screen (Ctrl+E): asks for the project's name and where the report
/// goes.

/// Gives the report of what the screen shows; without chapters there is none, which is told.
using SorgenteRelazione = std::function<Relazione()>;

/// Puts the command as a button into the status line of a screen.
void AggiungeRelazione(Schermo& schermo, SorgenteRelazione sorgente);

/// The same as an entry of a menu, above another entry.
/// @param prima  null for the end of the menu
void AggiungeRelazione(Schermo& schermo, QMenu& menu, QAction* prima, SorgenteRelazione sorgente);

/// Where a report goes; the preview prints, too.
enum class MetaRelazione : std::uint8_t { Pdf, Anteprima };

struct SceltaRelazione {
    MetaRelazione meta = MetaRelazione::Pdf;
    QString progetto;
};

/// Asks the user; nothing when he gives up. The tests put their own in its place.
/// @param progetto  the name given last
using ChiedeRelazione =
    std::function<std::optional<SceltaRelazione>(QWidget* sopra, const QString& progetto)>;
void ImpostaChiedeRelazione(ChiedeRelazione chiede);

} // namespace sagomi
