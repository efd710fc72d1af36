#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "frame/Acciaio.h"
#include "frame/Singolo.h"
#include "sections/Gemello.h"
#include "sections/SezioneGenerica.h"

namespace sagomi {

class Quote;
class Superficie;

/// The drawing of a section with its axes, its dimensions and the lines of its data, for every kind of
/// section.

// Where dimension lines stand, in heights of the text.
inline constexpr double quotaEsterna = 3;      ///< from the piece
inline constexpr double quotaOltreAsse = 5;    ///< the same where the name of an axis stands between
inline constexpr double quotaOltreNome = 4.2;  ///< to the left, beyond the name of the horizontal axis
inline constexpr double quotaSpessore = 2.2;   ///< of the thickness of a flange
inline constexpr double altezzaSpessore = 0.3; ///< of the thickness of a web, in heights of the section

/// An effective outline with its name.
struct ContornoEfficace {
    const SezioneGenerica* sezione = nullptr;
    std::string_view nome;
    double filo = 0; ///< abscissa of the thread that holds the strips of its web together [mm]
    double dx = 0;   ///< brings its abscissas to those of the whole outline [mm]
};

/// What a drawing shows. The outlines live at least as long as the drawing takes.
struct PezzoQuotato {
    /// xMin, xMax, yMin, yMax of the whole outline, of a pair of both [mm].
    using Riquadro = std::array<double, 4>;

    std::string nome;                          ///< the larger first line
    const SezioneGenerica* contorno = nullptr; ///< the whole section
    std::optional<Gemello> gemello;            ///< of a pair, which is drawn with the axes of the two
    ContornoEfficace efficace;         ///< drawn inside the thin line of the whole one, where there is one
    std::vector<std::string> righe;    ///< under the name
    double sopra = quotaEsterna + 0.5; ///< room above the piece [heights of the text]
    std::function<void(const Quote&, const Riquadro&)> quotatura; ///< draws the dimensions of the kind
};

/// A line of data: name = value.
std::string RigaDato(std::string_view nome, Singolo valore);

/// Draws the section to scale with hatching, axes, dimensions and data. Without an outline nothing is drawn.
/// @param oggetto      target of "VIDEO" and "STAMPANTE"; null for files and CAD
/// @param dispositivo  device, put in force
void DisegnaQuotato(const PezzoQuotato& pezzo, Superficie* oggetto, std::string_view dispositivo);

/// The piece of a section of any kind: name, outline, its twin in a pair, data and, where its fy is not the
/// grade's, the steel.
/// @param righe  the data
template <typename S> PezzoQuotato PezzoDi(const S& s, std::vector<std::string> righe) {
    PezzoQuotato pezzo;
    pezzo.nome = s.Designation;
    pezzo.contorno = s.SezioneGenericaCorrente.get();
    pezzo.righe = std::move(righe);
    if (FyRiscritta(s.TipoAcciaio, s.fy))
        pezzo.righe.push_back(AcciaioMostrato(s.TipoAcciaio, s.fy));
    if constexpr (requires { GemelloDi(s); })
        if (s.Doppi) {
            pezzo.gemello = GemelloDi(s);
            pezzo.sopra = quotaOltreAsse + 2; // the gap stands there
        }
    return pezzo;
}

/// The effective outline that the detail screen of the classes has asked for, if it is there. One of an
/// earlier run is not: the section may have left class 4 since.
/// @param s         a section with effective outlines in compression and bending
/// @param maschera  name of the screen that asks
/// @param filo      abscissa of the middle of its web [mm]
template <typename S>
ContornoEfficace EfficaceChiesto(const S& s, std::string_view maschera, double filo = 0) {
    if (maschera != "FrmClasseDoppioTU")
        return {};
    switch (s.SezioneEfficaceDaPlottare) {
    case 0:
        return s.ClasseCompressione == 4 ? ContornoEfficace{s.SezioneComp4.get(), "Aeff Comp.", filo}
                                         : ContornoEfficace{};
    case 1:
        return s.ClasseFlessioneY == 4 ? ContornoEfficace{s.SezioneWy4.get(), "Weff,y", filo}
                                       : ContornoEfficace{};
    case 2:
        return s.ClasseFlessioneZ == 4 ? ContornoEfficace{s.SezioneWz4.get(), "Weff,z", filo}
                                       : ContornoEfficace{};
    default:
        return {};
    }
}

} // namespace sagomi
