#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "drawing/Superficie.h"
#include "frame/Singolo.h"

/// The primitives of every drawing. They draw on the surface in force: the target (screen, page, picture),
/// the DXF file, the model space or a block of the CAD program. Arrays hold point 1 at [0]. What is not
/// finite, or lies beyond `coordinataMassima`, cannot be drawn and is left out.
namespace sagomi {

inline constexpr std::string_view dispositivoVideo = "VIDEO";
inline constexpr std::string_view dispositivoStampante = "STAMPANTE";
inline constexpr std::string_view dispositivoDxf = "DXF";
inline constexpr std::string_view dispositivoDwg = "DWG";       ///< model space of the CAD program
inline constexpr std::string_view dispositivoBlocco = "BLOCCO"; ///< its current block
inline constexpr std::string_view dispositivoSvg = "SVG";       ///< a target in memory (SuperficieSvg)
inline constexpr std::string_view testoFile = "FILE";           ///< how the way to a file is called

// State of the output -----------------------------------------------------------------------------------

inline std::string Dispositivo{dispositivoVideo};  ///< device in force
inline std::int16_t ColorePenna = pennaInchiostro; ///< colour of texts, and of all that goes to a file
inline Singolo yOrigine;                           ///< y' = yOrigine + y / ScalaY on the way out
inline Singolo ScalaY = 1;
inline Superficie* OggettoGrafico = nullptr; ///< the target; null for files and CAD

/// Keeps the state of the output while it lives, and puts it back.
class StatoUscita {
public:
    StatoUscita();
    ~StatoUscita();
    StatoUscita(const StatoUscita&) = delete;
    StatoUscita& operator=(const StatoUscita&) = delete;

private:
    std::string dispositivo_;
    std::int16_t penna_;
    Singolo yOrigine_, scalaY_;
    Superficie* oggetto_;
};

/// The surface that the device in force draws on: its own for the DXF file and the CAD program, else the
/// target. Null without one.
Superficie* SuperficieInForza();

/// True when a drawing has to be fitted to the device: to all but files and the CAD program, which take it in
/// the units of the model.
bool SulBersaglio();

/// Coordinates above it are none: a double has no tenth of a millimetre left there.
inline constexpr double coordinataMassima = 1e15;

/// Whether all of the values can be drawn: a drawing whose frame cannot draws nothing at all.
bool Disegnabili(std::span<const double> valori);

// Pens --------------------------------------------------------------------------------------------------

/// Takes a pen for lines, circles and texts, on every device.
void PennaPlt(std::int16_t colore);
/// Width, style and ends of lines; DXF files and CAD know none of them.
void LineaStilePlt(double spessore, TipoLinea tipo = TipoLinea::Continua, Estremi estremi = Estremi::Tondi);

// Primitives --------------------------------------------------------------------------------------------

void LineaPlt(double x1, double y1, double x2, double y2);

/// The radius is not scaled in y. Without a radius above 0 nothing is drawn.
void CerchioPlt(double x, double y, double r);

/// Line through the first n points; closed, it ends on the first one. Fewer than 2 points draw nothing.
void PolilineaPlt(std::int16_t n, std::span<const double> x, std::span<const double> y, bool chiusa = false);

/// The inside of the outline of the first n points, without its line. Files and CAD, which know no fill, show
/// the outline of what the pen fills and nothing of a lighter fill. Fewer than 3 points draw nothing.
void AreaPlt(std::int16_t n, std::span<const double> x, std::span<const double> y, Fondo fondo);

/// Text with its base line at y.
/// @param altezza  height of the capitals, in the units of the model
/// @param allinea  which end of the text x is
/// @param posa     which level of its line y is
void TestoPlt(double x, double y, double altezza, std::string_view testo, Allinea allinea = Allinea::Sinistra,
              Posa posa = Posa::Base);

/// Width that a text of that height takes, measured on the target, estimated on the other devices.
double LarghezzaTestoPlt(double altezza, std::string_view testo);

/// Hatches the inside of the outline of the first n points with parallel lines, each in the middle of its
/// strip. Fewer than 3 points draw nothing.
/// @param angolo      of the lines, counter-clockwise from the x axis [degrees]
/// @param tratteggio  at or above 0 the number of lines, of which the integer part counts; below 0 the
///                    spacing with a minus in front, and the lines are as many as whole spacings find room
/// @param colore      of the lines; the pen is put back
/// @return lines laid, those that meet nothing included
int TratteggioPlt(std::int16_t n, std::span<const double> x, std::span<const double> y, double angolo,
                  double tratteggio, std::int16_t colore);

} // namespace sagomi
