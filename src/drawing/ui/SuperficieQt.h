#pragma once

#include <QColor>
#include <QFont>
#include <QPointF>
#include <QPolygonF>
#include <QSizeF>

#include "drawing/Superficie.h"

class QPainter;

namespace sagomi {

/// What the screen and the printer have in common: a painter, the user scale over it, fonts by height. What
/// comes to lie too far off to be painted is left out.
class SuperficieQt : public Superficie {
public:
    void Scale() override;
    void Predefiniti() override;
    void Line(double x1, double y1, double x2, double y2) override;
    void Circle(double x, double y, double r) override;
    /// One line with its corners, but for round ends, which make a line of its own of every side.
    void Polyline(std::span<const double> x, std::span<const double> y, bool chiusa) override;
    void Fill(std::span<const double> x, std::span<const double> y, Fondo fondo) override;
    void Print(std::string_view testo) override;
    [[nodiscard]] double TextHeight(std::string_view testo) const override;
    [[nodiscard]] double TextWidth(std::string_view testo) const override;
    [[nodiscard]] RigaTesto TextLine() const override;

protected:
    struct Carta {
        QSizeF misura;            ///< what is drawn on [units of the painter]
        double unita = 1;         ///< one unit of the own scale [units of the painter]
        double spessoreUnita = 1; ///< lines of DrawWidth 1 [units of the painter]
        QFont carattere;
        QColor inchiostro;
        QColor grigio{};             ///< of pen 8; that of the table when it is none
        QColor sfondo{Qt::white};    ///< what lies behind the drawing
        bool testiDelWidget = false; ///< texts in the own font are those of widgets, in whole pixels
        QColor rosso{};              ///< of pen 12; that of the table when it is none
    };
    SuperficieQt(QPainter& pittore, Carta carta);

    /// A last change of a point in units of the painter, and what it does to lengths.
    [[nodiscard]] virtual QPointF Vista(const QPointF& punto) const { return punto; }
    [[nodiscard]] virtual double FattoreVista() const { return 1; }
    /// Where a line between two points is to be painted.
    virtual void Assesta(QPointF& /*a*/, QPointF& /*b*/) const {}

    [[nodiscard]] const Carta& carta() const { return carta_; }

private:
    [[nodiscard]] QPointF Punto(double x, double y) const;
    [[nodiscard]] QPolygonF Punti(std::span<const double> x, std::span<const double> y) const;
    [[nodiscard]] bool CarattereProprio() const;
    [[nodiscard]] double CorpoProprio() const;
    [[nodiscard]] double FattoreTesto() const;
    [[nodiscard]] QFont Carattere(double corpo) const;
    [[nodiscard]] QColor Colore() const;
    void Penna();

    QPainter& pittore_;
    Carta carta_;
    bool scuro_; ///< what lies behind
};

} // namespace sagomi
