#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

#include "drawing/Plottaggio.h"

namespace sagomi {

class Superficie;

inline constexpr double altezzaTestoCarta = 2.5; ///< mm, the lettering of technical drawings, ISO 3098-1

/// Denominator of the next scale in use on paper, ISO 5455 (0.1 for 10:1), at which a unit of it shows at
/// least `rapporto` units of the model; 0 beyond all of them.
double ScalaInUso(double rapporto);

/// "1:5", or "2:1" for an enlargement; empty for 0.
std::string ScalaScritta(double denominatore);

/// Room around a piece for what explains it, in heights of the text.
struct Margini {
    double sx, su, dx, giu;
};

/// The sheet that a piece is drawn on with its dimensions: chooses the scale and the height of the texts.
///  - On the screen the piece is as large as the target lets it be, and texts are those of the target's font,
///    however far the picture is zoomed.
///  - On paper it has one of the scales of technical drawings, and texts of 2.5 mm.
///  - For files and CAD the units are those of the model, and texts follow from the size of the piece.
class TavolaDisegno {
public:
    /// Puts device and target in force and gives the target its scale.
    /// @param riquadro      of the piece: xMin, xMax, yMin, yMax
    /// @param disposizioni  ways to lay out what explains it; the one that lets the piece be largest is
    /// taken,
    ///                      for files and CAD the first. Never empty.
    TavolaDisegno(Superficie* oggetto, std::string_view dispositivo, const std::array<double, 4>& riquadro,
                  std::span<const Margini> disposizioni);

    /// Height of the texts [model].
    [[nodiscard]] double AltezzaTesto() const { return plottaggio_.AltezzaTesto; }

    /// Index of the way that was taken.
    [[nodiscard]] std::size_t Disposizione() const { return scelta_; }

    /// "1:5", or "2:1" where the piece is enlarged; empty where the scale is none of those in use.
    [[nodiscard]] std::string Scala() const;

private:
    void Adatta(Superficie& oggetto, const std::array<double, 4>& riquadro,
                std::span<const Margini> disposizioni);

    Plottaggio plottaggio_;
    std::size_t scelta_ = 0;
};

} // namespace sagomi
