#pragma once

#include <vector>

#include "drawing/Superficie.h"

namespace sagomi {

/// What a file or another program takes: a plane without an edge. Its own scale is the units of the model, y
/// upwards; a font of size 1 has capitals 1 unit high. Texts are measured by an estimate, as their font is
/// the reader's.
class SuperficieIllimitata : public Superficie {
public:
    SuperficieIllimitata();

    void Scale() override;
    void Predefiniti() override;
    /// A filled area shows as its outline, any other fill not at all.
    void Fill(std::span<const double> x, std::span<const double> y, Fondo fondo) override;
    void FontHeight(double altezza) override;
    [[nodiscard]] double TextHeight(std::string_view testo) const override;
    [[nodiscard]] double TextWidth(std::string_view testo) const override;
    [[nodiscard]] bool Limitata() const override { return false; }

protected:
    // From the user scale to that of the model.
    [[nodiscard]] double X(double x) const { return (x - ScaleLeft) / ScaleWidth; }
    [[nodiscard]] double Y(double y) const { return -((y - ScaleTop) / ScaleHeight); }
    [[nodiscard]] double Raggio(double r) const;
    [[nodiscard]] std::vector<double> X(std::span<const double> x) const;
    [[nodiscard]] std::vector<double> Y(std::span<const double> y) const;
};

/// Width of a text whose font is not known.
double LarghezzaStimata(double altezza, std::string_view testo);

} // namespace sagomi
