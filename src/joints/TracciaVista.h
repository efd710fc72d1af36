#pragma once

#include <initializer_list>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "drawing/Grafica.h"
#include "joints/GeometriaNodo.h"

namespace sagomi {

inline constexpr std::int16_t pennaGoverna = 12; ///< what governs, and limits that are broken

/// One distance of a chain of dimensions.
struct QuotaNodo {
    double da = 0, a = 0; ///< [mm of the view]
    std::string testo;
    bool rosso = false;
};

/// Draws a view into its place on a sheet; a mirrored one has x the other way, its texts on the other side.
class TracciaVista {
public:
    /// @param verso   -1 for a mirrored view
    /// @param passo   height of the text that the sheet was laid out with
    /// @param altezza height of the texts
    TracciaVista(double x, double y, double verso, double passo, double altezza)
        : x_(x), y_(y), verso_(verso), a_(passo), testo_(altezza) {}

    [[nodiscard]] PuntoNodo In(PuntoNodo p) const { return {x_ + verso_ * p.x, y_ + p.y}; }
    [[nodiscard]] double a() const { return a_; }

    static void Contorno(); ///< pens
    static void Fine(TipoLinea tipo = TipoLinea::Continua);
    static void Rossa();

    void Linea(PuntoNodo da, PuntoNodo a) const;
    void Spezzata(std::span<const PuntoNodo> punti, bool chiusa) const;
    void Campo(const CampoNodo& campo) const { Spezzata(campo.Contorno(), true); }
    void Area(std::span<const PuntoNodo> punti, Fondo fondo) const;
    void Cerchio(PuntoNodo centro, double r) const;
    void Tratteggia(std::span<const PuntoNodo> punti, std::int16_t colore) const;

    /// A text beside a point: on the side where x grows, on the other, or centred.
    void Testo(PuntoNodo dove, std::string_view testo, Allinea allinea, bool rosso = false) const;
    /// Line to a text, which stands on the side that it points to.
    void Richiamo(PuntoNodo da, PuntoNodo a, std::string_view testo) const;
    /// Line where a piece is broken off, from one point to another.
    void Rottura(PuntoNodo da, PuntoNodo a) const;

    /// Chains of dimensions: upright at x, level at y, with extension lines from the piece. Texts that would
    /// touch move apart.
    void Verticali(double xPezzo, double x, std::span<const QuotaNodo> quote) const;
    void Orizzontali(double yPezzo, double y, std::span<const QuotaNodo> quote) const;
    /// A thickness, its lines coming from outside, text on the side where x grows.
    void Spessore(double x1, double x2, double yPezzo, double y, const QuotaNodo& quota) const;

private:
    void Tacca(PuntoNodo dove) const;
    void Penna(const QuotaNodo& quota) const;

    double x_, y_, verso_, a_, testo_;
};

/// Centres of texts in a row, moved as little as they have to be so that none touches the next.
/// @param mezze   half of the room that each takes
std::vector<double> Distanziati(std::vector<double> centri, const std::vector<double>& mezze);

} // namespace sagomi
