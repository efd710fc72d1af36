#pragma once

#include <cstdint>
#include <span>
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

enum class TipoLinea { Continua, TrattoPunto, Tratteggiata, TrattoPuntoCorto };

/// Dashes and gaps of a line, in turn, in widths of it; none for a line without gaps.
std::span<const double> TrattiDi(TipoLinea tipo);

/// Ends and corners of lines: round both; drawn beyond the end by half the width, and sharp; cut at the end,
/// and sharp.
enum class Estremi : std::uint8_t { Tondi, Quadri, Piatti };

/// What an area is filled with: a light shade of the ink, the pen, or what the surface has behind it.
enum class Fondo : std::uint8_t { Tenue, Pieno, Sfondo };

/// Which point of a text, across and upright, lies where it is put.
enum class Allinea : std::uint8_t { Sinistra, Centro, Destra };
enum class Posa : std::uint8_t { Base, Alto, Mezzo, Basso };

/// Share of its width that lies to the left of where a text is put.
constexpr double QuotaSinistra(Allinea allinea) {
    return allinea == Allinea::Sinistra ? 0 : allinea == Allinea::Centro ? 0.5 : 1;
}

/// How far a line of text reaches from its base line, both ways not negative.
struct RigaTesto {
    double sopra = 0, sotto = 0;
};

/// What can be drawn on: the preview, a page of the printer, a file. Positions are in the user scale, which
/// the members Scale... give: (ScaleLeft, ScaleTop) is the top left corner, ScaleWidth and ScaleHeight are
/// the whole surface; a negative ScaleHeight lets y point upwards. Before anybody sets it, and after Scale(),
/// the scale is the surface's own: pixels of the screen, millimetres of the paper, y downwards; the units of
/// the model, y upwards, where there is no edge.
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
    Estremi DrawCap = Estremi::Tondi;
    std::string FontName; ///< family; empty for the surface's own
    double FontSize = 0;  ///< points

    /// Brings the surface's own scale back into the members.
    virtual void Scale() = 0;
    /// Brings font, colour and line back to what the surface starts with.
    virtual void Predefiniti() = 0;

    virtual void Line(double x1, double y1, double x2, double y2) = 0;
    /// The radius counts in the scale of x.
    virtual void Circle(double x, double y, double r) = 0;
    /// Line from point to point, closed back to the first one; here a sequence of `Line`.
    virtual void Polyline(std::span<const double> x, std::span<const double> y, bool chiusa);
    /// The inside of an outline, without its line; here nothing.
    virtual void Fill(std::span<const double> x, std::span<const double> y, Fondo fondo);
    /// Prints the text (UTF-8) from (CurrentX, CurrentY).
    virtual void Print(std::string_view testo) = 0;
    /// The same with another point of its width at CurrentX.
    virtual void PrintAligned(std::string_view testo, Allinea allinea);
    /// Sizes the font so that its capitals are that high [user scale].
    virtual void FontHeight(double altezza);

    /// Height of the capitals and figures of a text, and its width, in the font in force [user scale]. Both
    /// never negative.
    [[nodiscard]] virtual double TextHeight(std::string_view testo) const = 0;
    [[nodiscard]] virtual double TextWidth(std::string_view testo) const = 0;
    /// A line of text in the font in force [user scale]; here as in a common sans serif.
    [[nodiscard]] virtual RigaTesto TextLine() const;

    /// Whether the surface has a size, to which a drawing is to be fitted.
    [[nodiscard]] virtual bool Limitata() const { return true; }
};

} // namespace sagomi
