#pragma once

#include <array>
#include <cstddef>
#include <vector>

namespace sagomi {

/// Outlines are drawn from one profile, a run of points from the outer corner of a flange to the web, that is
/// gone along forwards, backwards and mirrored.

inline constexpr int passiArco = 8; ///< chords of each fillet

/// Directions of an arc in equal steps, both ends included: cosine and sine.
using DirezioniArco = std::array<std::array<double, 2>, passiArco + 1>;

/// The arcs of a rolled flange.
struct ArchiAla {
    DirezioniArco punta;      ///< at the toe, from the tip upwards
    DirezioniArco raccordo;   ///< at the root, from the flange to the web
    double coseno = 1;        ///< of the angle of the flange's inner face
    double tangenteMezza = 0; ///< tangent of half the angle that an arc turns by
};

/// The arcs of a flange by the slope of its inner face, computed once a slope.
/// @param pf  slope as a tangent, 0 for parallel faces
const ArchiAla& ArchiDiPendenza(double pf);

/// Half a flange with its half of the web, lower right. Heights count from the lower fibre, abscissas from
/// the web's axis [mm].
class Profilo {
public:
    struct P {
        double x, y;
    };

    /// Beyond maxPunti it throws std::out_of_range.
    void Punto(double x, double y) { punti_.at(n_++) = {x, y}; }
    void Arco(double xC, double yC, double raggio, const DirezioniArco& direzioni);

    [[nodiscard]] std::size_t Numero() const { return n_; }
    [[nodiscard]] const P& operator[](std::size_t i) const { return punti_[i]; }

private:
    static constexpr std::size_t maxPunti = 32;
    std::array<P, maxPunti> punti_;
    std::size_t n_ = 0;
};

/// Where an outline is put, and its depth.
struct PostoContorno {
    double h = 0;     ///< overall height [mm]
    double x0 = 0;    ///< abscissa of the profile's origin
    double y0 = 0;    ///< height of the lower fibre
    double scala = 1; ///< divides the abscissas
};

/// Goes along profiles and writes the vertices of an outline; vertex 1 is the first point of the first one.
class Percorso {
public:
    /// @param x, y  receive the vertices
    /// @param n     how many there will be, no more and no less
    Percorso(std::vector<double>& x, std::vector<double>& y, const PostoContorno& posto, std::size_t n);

    void InBasso(const Profilo& p);          ///< as it is: from the lower corner to the web
    void InAlto(const Profilo& p);           ///< mirrored upwards, from the web to the upper corner
    void InAltoASinistra(const Profilo& p);  ///< mirrored upwards and to the left, from the corner to the web
    void InBassoASinistra(const Profilo& p); ///< mirrored to the left, from the web to the lower corner

private:
    void Mette(double px, double py);

    double* x_; ///< where the next vertex goes
    double* y_;
    PostoContorno posto_;
};

} // namespace sagomi
