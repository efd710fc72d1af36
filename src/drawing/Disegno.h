#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace sagomi {

class Superficie;

/// A drawing as the preview, the printer, the DXF file and the CAD program take it.
struct Disegno {
    std::string nome; ///< stands in the preview's caption and is proposed as name of the file

    /// Draws through Grafica. The caller has put the device in force (`Dispositivo`) before.
    /// @param oggetto   the target on the screen and the printer; null for DXF and CAD
    /// @param maschera  name of the screen that asked for the drawing
    std::function<void(Superficie* oggetto, std::string_view maschera)> PlottaInOggetto;
};

/// Gives the drawing of the moment; asked at every showing, activation and press of "Plotta".
using SorgenteDisegno = std::function<Disegno()>;

} // namespace sagomi
