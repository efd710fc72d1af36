#pragma once

#include <limits>
#include <string>
#include <vector>

#include "drawing/SuperficieIllimitata.h"

namespace sagomi {

/// A drawing in memory that becomes an SVG file: one unit of the model is a millimetre of the picture, which
/// is as large as what has been drawn. Black ink on no ground; texts in the reader's sans serif.
class SuperficieSvg : public SuperficieIllimitata {
public:
    void Line(double x1, double y1, double x2, double y2) override;
    void Circle(double x, double y, double r) override;
    void Polyline(std::span<const double> x, std::span<const double> y, bool chiusa) override;
    void Fill(std::span<const double> x, std::span<const double> y, Fondo fondo) override;
    void Print(std::string_view testo) override;
    /// The reader aligns by the width that the text has in its font.
    void PrintAligned(std::string_view testo, Allinea allinea) override;

    /// The whole file, UTF-8. A drawing of nothing is a picture of one millimetre.
    [[nodiscard]] std::string Documento() const;

private:
    struct Elemento {
        std::string nome;      ///< of the tag, with its attributes
        std::string contenuto; ///< empty for a tag alone
        double spessore = 0;   ///< DrawWidth of its line; 0 for none
        TipoLinea tipo = TipoLinea::Continua;
        Estremi estremi = Estremi::Tondi;
    };

    void Aggiunge(std::string nome, bool linea, std::string contenuto = {});
    void Comprende(double x, double y);
    [[nodiscard]] std::string Punti(std::span<const double> x, std::span<const double> y);
    [[nodiscard]] double SpessoreUnita() const;

    std::vector<Elemento> elementi_;
    double xMin_ = std::numeric_limits<double>::infinity(), xMax_ = -xMin_;
    double yMin_ = xMin_, yMax_ = -xMin_; ///< y downwards
    double testoMinimo_ = xMin_;          ///< height of the smallest text
};

} // namespace sagomi
