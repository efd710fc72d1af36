#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace sagomi {

struct ColoreRgb {
    std::uint8_t rosso = 0, verde = 0, blu = 0;
};

/// The table of 16 colours: 0 black, 9 blue, 12 red, 15 white. A number outside it gives black.
/// A surface shows the pen at rest, 7, as its ink: like the programs that read our files, which draw it black
/// on white and white on black.
ColoreRgb ColoreTabella(std::int16_t numero);

inline constexpr std::int16_t pennaInchiostro = 7; ///< outlines and texts
inline constexpr std::int16_t pennaGrigia = 8; ///< hatching, axes, dimension lines; grey in CAD programs too

inline constexpr double spessoreContorno = 1.4; ///< DrawWidth of outlines
inline constexpr double spessoreFine = 1.0;     ///< DrawWidth of everything else

/// Font of printed sheets.
inline constexpr std::string_view carattereStampa = "Times New Roman";

enum class TipoLinea { Continua, TrattoPunto, Tratteggiata };

/// What can be drawn on: the preview, a page of the printer. Positions are in the user scale, which the
/// members Scale... give: (ScaleLeft, ScaleTop) is the top left corner, ScaleWidth and ScaleHeight are the
/// whole surface; a negative ScaleHeight lets y point upwards. Before anybody sets it, and after Scale(), the
/// scale is the surface's own: pixels of the screen, millimetres of the paper, y downwards.
class Superficie {
public:
    virtual ~Superficie() = default;

    enum : std::int16_t { scalaUtente = 0, scalaPropria = 1 };
    std::int16_t ScaleMode = scalaPropria;
    double ScaleLeft = 0;
    double ScaleTop = 0;
    double ScaleWidth = 0;
    double ScaleHeight = 0;

    double CurrentX = 0; ///< left end of the base line of the next text
    double CurrentY = 0;
    std::int16_t ForeColor = pennaInchiostro; ///< of lines, circles and texts, by the table of 16
    double DrawWidth = spessoreFine;          ///< of lines: 1 is a pixel of the screen, 0.25 mm of the paper
    TipoLinea DrawStyle = TipoLinea::Continua;
    std::string FontName; ///< family; empty for the surface's own
    double FontSize = 0;  ///< points

    /// Brings the surface's own scale back into the members.
    virtual void Scale() = 0;
    /// Brings font, colour and line back to what the surface starts with.
    virtual void Predefiniti() = 0;

    virtual void Line(double x1, double y1, double x2, double y2) = 0;
    /// The radius counts in the scale of x.
    virtual void Circle(double x, double y, double r) = 0;
    /// Prints the text (UTF-8) from (CurrentX, CurrentY).
    virtual void Print(std::string_view testo) = 0;

    /// Height of the capitals and figures of a text, and its width, in the font in force [user scale]. Both
    /// never negative.
    [[nodiscard]] virtual double TextHeight(std::string_view testo) const = 0;
    [[nodiscard]] virtual double TextWidth(std::string_view testo) const = 0;
};

} // namespace sagomi
