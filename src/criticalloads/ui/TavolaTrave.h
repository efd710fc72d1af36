#pragma once

#include <QPainter>
#include <QPalette>

#include <functional>

namespace sagomi {

/// Draws a beam, its supports, loads and moment diagrams into a small picture: outline 1.4, the rest 1, in
/// the palette's colours. Abscissas run from 0 at the left end to 1 at the right one.
class TavolaTrave {
public:
    /// @param campo  where the beam lies: its axis is the middle line, its ends the left and right sides;
    /// loads
    ///               and diagrams reach to the top and bottom
    TavolaTrave(QPainter& painter, const QRectF& campo, const QPalette& colori);

    void Asse();
    /// The beam as a web between two flanges, `altezza` pixels apart.
    void Profilo(double altezza);
    /// Triangle below the axis, `sotto` pixels lower.
    void Appoggio(double x, double sotto = 0);
    /// Hatched wall at an end, reaching `mezza` pixels above and below the axis.
    void Incastro(double x, double mezza);

    /// Arrow down at x that ends `punta` pixels above the axis.
    void Forza(double x, double punta = 0);
    /// Row of arrows under a line.
    void CaricoDistribuito(double punta = 0);

    /// Filled diagram: f(x) from -1 (bottom) to 1 (top), with its ordinates at the ends.
    void Diagramma(const std::function<double(double)>& f);

    /// Text beside a point; `dx`, `dy` -1, 0 or 1 say to which side it goes.
    void Nome(const QPointF& punto, const QString& testo, int dx, int dy);
    /// A point of the picture: x from 0 to 1, y from -1 to 1.
    [[nodiscard]] QPointF Punto(double x, double y) const;

private:
    [[nodiscard]] QPen Penna(double spessore) const;
    void Freccia(const QPointF& da, const QPointF& a);

    QPainter& p_;
    QRectF campo_;
    QColor inchiostro_;
};

} // namespace sagomi
