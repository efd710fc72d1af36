#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "drawing/Superficie.h"
#include "frame/Singolo.h"

/// The primitives of every drawing. They send what is drawn to the device in force: the target on the screen
/// or the printer, the DXF file, the model space or a block of the CAD program. Arrays hold point 1 at [0].
/// What is not finite, and so cannot be drawn, is left out.
namespace sagomi {

inline constexpr std::string_view dispositivoVideo = "VIDEO";
inline constexpr std::string_view dispositivoStampante = "STAMPANTE";
inline constexpr std::string_view dispositivoDxf = "DXF";
inline constexpr std::string_view dispositivoDwg = "DWG";       ///< model space of the CAD program
inline constexpr std::string_view dispositivoBlocco = "BLOCCO"; ///< its current block
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

/// True when the device draws on a target: everything but the DXF file and the CAD program.
bool SulBersaglio();

// Pens --------------------------------------------------------------------------------------------------

/// Takes a pen for lines, circles and texts, on every device.
void PennaPlt(std::int16_t colore);
/// Width and style of the lines on the target; files and CAD know neither.
void LineaStilePlt(double spessore, TipoLinea tipo = TipoLinea::Continua);

// Primitives --------------------------------------------------------------------------------------------

enum class Allinea { Sinistra, Centro, Destra };

void LineaPlt(double x1, double y1, double x2, double y2);

/// The radius is not scaled in y. Without a radius above 0 nothing is drawn.
void CerchioPlt(double x, double y, double r);

/// Line through the first n points; closed, it ends on the first one. Fewer than 2 points draw nothing.
void PolilineaPlt(std::int16_t n, std::span<const double> x, std::span<const double> y, bool chiusa = false);

/// Text with its base line at y.
/// @param altezza  height of the capitals, in the units of the model
/// @param allinea  which end of the text x is
void TestoPlt(double x, double y, double altezza, std::string_view testo,
              Allinea allinea = Allinea::Sinistra);

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
