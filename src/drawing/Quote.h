#pragma once

#include <string_view>

namespace sagomi {

/// What explains a drawing: dimension lines with oblique ticks, leaders, axes, lines of text. Everything is
/// sized by the height of the texts, so that it looks the same on every device; lines are thin and grey,
/// texts in ink. All lengths in the units of the model, y upwards, texts horizontal.
class Quote {
public:
    /// A point of the piece that a dimension goes to; its extension line starts beside it.
    struct Estremo {
        double x, y;
    };

    /// @param altezza  height of the texts
    explicit Quote(double altezza) : a_(altezza) {}

    [[nodiscard]] double Altezza() const { return a_; }

    /// Dimension of a width, at the level y: below the piece or above it. Extension lines come from yPezzo.
    void Orizzontale(double x1, double x2, double yPezzo, double y, std::string_view testo) const;

    /// Dimension of a height, at the abscissa x, with its text on the side away from the piece.
    void Verticale(const Estremo& basso, const Estremo& alto, double x, std::string_view testo) const;

    /// Thickness of a web at the level y, its two short lines coming from outside, text to the right.
    void SpessoreOrizzontale(double x1, double x2, double y, std::string_view testo) const;

    /// Thickness of a flange at the abscissa x, its two short lines coming from above and below, text on the
    /// side away from the piece.
    void SpessoreVerticale(const Estremo& basso, const Estremo& alto, double x, std::string_view testo) const;

    /// Line from what is meant to a text at its end, on the side that the line points to.
    void Richiamo(double x, double y, double xTesto, double yTesto, std::string_view testo) const;

    /// Axis as a chain line, with its name at the first end.
    void Asse(double x1, double y1, double x2, double y2, std::string_view nome) const;

    /// Cross and circle of a centroid.
    void Baricentro(double x, double y) const;

private:
    void Linea(double x1, double y1, double x2, double y2) const;
    void Tacca(double x, double y) const;
    void Riferimento(const Estremo& punto, double x) const;
    void TestoAccanto(const Estremo& basso, const Estremo& alto, double x, std::string_view testo) const;

    double a_;
};

} // namespace sagomi
