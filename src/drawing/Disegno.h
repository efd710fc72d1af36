#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace sagomi {

class Superficie;

/// The size of a picture that stands beside the figures of a screen [pixels].
struct Misura {
    double larghezza = 0, altezza = 0;
    std::string campione{}; ///< a text that the picture has room for besides
};

/// A drawing as the preview, the printer, files, the clipboard and the CAD program take it.
struct Disegno {
    std::string nome; ///< stands in the preview's caption and is proposed as name of the file

    /// Draws through Grafica. The caller has put the device in force (`Dispositivo`) before.
    /// @param oggetto   the target on the screen and the printer; null for files and CAD
    /// @param maschera  name of the screen that asked for the drawing
    std::function<void(Superficie* oggetto, std::string_view maschera)> PlottaInOggetto{};

    Misura misura{}; ///< of a small picture
    Misura minima{}; ///< what it can be made to; 0 for its size
};

/// Gives the drawing of the moment; asked at every showing, activation and press of "Plotta".
using SorgenteDisegno = std::function<Disegno()>;

} // namespace sagomi
