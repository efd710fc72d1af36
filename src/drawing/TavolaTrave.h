#pragma once

#include <functional>
#include <string_view>

#include "drawing/Quadro.h"

namespace sagomi {

/// Draws a beam, its supports, loads and moment diagrams into a small picture. Abscissas run from 0 at the
/// left end to 1 at the right one.
class TavolaTrave {
public:
    /// @param campo  where the beam lies: its axis is the middle line, its ends the left and right sides;
    ///               loads and diagrams reach to the top and bottom
    TavolaTrave(const Quadro& quadro, const CampoQuadro& campo) : q_(quadro), campo_(campo) {}

    void Asse() const;
    /// The beam as a web between two flanges, `altezza` apart.
    void Profilo(double altezza) const;
    /// Triangle below the axis, `sotto` lower.
    void Appoggio(double x, double sotto = 0) const;
    /// Hatched wall at an end, reaching `mezza` above and below the axis.
    void Incastro(double x, double mezza) const;

    /// Arrow down at x that ends `sopra` above the axis.
    void Forza(double x, double sopra = 0) const;
    /// Row of arrows under a line.
    void CaricoDistribuito(double sopra = 0) const;

    /// Filled diagram: f(x) from -1 (bottom) to 1 (top), with its ordinates at the ends.
    void Diagramma(const std::function<double(double)>& f) const;

    /// Dimension line below the axis, with its text.
    void Distanza(double da, double a, std::string_view testo) const;
    /// A point that is meant.
    void Segna(PuntoQuadro dove) const { q_.Disco(dove, 3, Fondo::Pieno); }

    /// Text beside a point; `dx`, `dy` -1, 0 or 1 say to which side it goes.
    void Nome(PuntoQuadro punto, std::string_view testo, int dx, int dy) const;
    /// A point of the picture: x from 0 to 1, y from -1 to 1.
    [[nodiscard]] PuntoQuadro Punto(double x, double y) const;

private:
    void Contorno() const { q_.Contorno(Estremi::Piatti); }
    void Fine(TipoLinea tipo = TipoLinea::Continua) const { q_.Fine(tipo, Estremi::Piatti); }
    void Freccia(PuntoQuadro da, PuntoQuadro a) const;

    const Quadro& q_;
    CampoQuadro campo_;
};

} // namespace sagomi
