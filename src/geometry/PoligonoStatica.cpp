#include <algorithm>
#include <cmath>
#include <numbers>

#include "geometry/Poligono.h"

namespace sagomi {

namespace {

/// Green's theorem over a polygon, as sums over the fan of triangles on vertex 1, in a frame with its origin
/// there: an outline far from the axes loses no figures in the differences of large moments.
struct Somme {
    double A = 0;
    double Su = 0, Sv = 0; ///< area times u, area times v
    double Iu = 0, Iv = 0; ///< area times u^2, area times v^2
    double Iuv = 0;

    void Aggiunge(double u1, double v1, double u2, double v2) {
        const double At = (u1 * v2 - u2 * v1) / 2;
        const double u = u1 + u2;
        const double v = v1 + v2;
        A += At;
        Su += At * u / 3; // divided one by one: written drawings hang on each figure of the centroid
        Sv += At * v / 3;
        Iu += At * (u1 * u1 + u * u + u2 * u2);
        Iv += At * (v1 * v1 + v * v + v2 * v2);
        Iuv += At * (u1 * v1 + u * v + u2 * v2);
    }

    /// From the sums of second moments to their values.
    void Divide() {
        for (double* s : {&Iu, &Iv, &Iuv})
            *s /= 12;
    }

    void CambiaSegno() {
        for (double* s : {&A, &Su, &Sv, &Iu, &Iv, &Iuv})
            *s = -*s;
    }
};

} // namespace

double Poligono::Perimetro() const {
    double somma = 0;
    for (std::size_t i = 0; i < Numero(); ++i) {
        const std::size_t dopo = i + 1 == Numero() ? 0 : i + 1;
        somma += Distanza(x_[i], y_[i], x_[dopo], y_[dopo]);
    }
    return somma;
}

// Green's theorem (the formula of Gauss for a polygon).
void Poligono::AreaCalcola() {
    Area = 0;
    if (n_ < 3)
        return;
    double doppia = 0;
    for (std::size_t i = 1; i + 1 < Numero(); ++i)
        doppia += (x_[i] - x_[0]) * (y_[i + 1] - y_[0]) - (x_[i + 1] - x_[0]) * (y_[i] - y_[0]);
    Antiorario = doppia > 0;
    Area = std::abs(doppia) / 2;
}

bool Poligono::AreaNulla(bool relativa) {
    AreaCalcola();
    const double perimetro = relativa ? Perimetro() : 0;
    return Area <= perimetro * perimetro / 1E+20;
}

void Poligono::CaratteristicheStaticheCerchio(double Re, double Ri) {
    Area = std::numbers::pi * (Re * Re - Ri * Ri);
    IxG = std::numbers::pi * (std::pow(Re, 4) - std::pow(Ri, 4)) / 4;
    WxSup = IxG / Re;
    WxInf = IxG / Re;
}

void Poligono::CaratteristicheStatiche(bool azzera, bool cerchio, double Re, double Ri) {
    if (cerchio) {
        CaratteristicheStaticheCerchio(Re, Ri);
        return;
    }
    for (double* v : {&Area, &Sx, &Sy, &Ix, &Iy, &Ixy, &IxG, &IyG, &IxyG})
        *v = 0;
    if (azzera || n_ < 3)
        return;
    SommeTriangoli();
    AssiPrincipali();
    ModuliElastici();
}

// Moments are carried from vertex 1 to the axes and to the centroid by the theorem of Huygens and Steiner.
void Poligono::SommeTriangoli() {
    Somme s;
    const double x0 = x_[0];
    const double y0 = y_[0];
    for (std::size_t i = 1; i + 1 < Numero(); ++i)
        s.Aggiunge(x_[i] - x0, y_[i] - y0, x_[i + 1] - x0, y_[i + 1] - y0);
    s.Divide();
    if (s.A < 0)
        s.CambiaSegno();
    Area = s.A;
    Sx = s.Sv + y0 * s.A;
    Sy = s.Su + x0 * s.A;
    Ix = s.Iv + 2 * y0 * s.Sv + y0 * y0 * s.A;
    Iy = s.Iu + 2 * x0 * s.Su + x0 * x0 * s.A;
    Ixy = s.Iuv + x0 * s.Sv + y0 * s.Su + x0 * y0 * s.A;
    if (Area == 0) {
        BaricentroDegenere();
        return;
    }
    xG = x0 + s.Su / s.A;
    yG = y0 + s.Sv / s.A;
    IxG = s.Iv - s.Sv * s.Sv / s.A;
    IyG = s.Iu - s.Su * s.Su / s.A;
    IxyG = s.Iuv - s.Su * s.Sv / s.A;
}

// The sum stops two vertices short of the last: the agreed place of an outline without area.
void Poligono::BaricentroDegenere() {
    Singolo sommaX;
    Singolo sommaY;
    for (std::size_t i = 0; i + 2 < Numero(); ++i) {
        sommaX += x_[i];
        sommaY += y_[i];
    }
    xG = sommaX.Stretto() / static_cast<float>(n_);
    yG = sommaY.Stretto() / static_cast<float>(n_);
    IxG = Ix;
    IyG = Iy;
    IxyG = Ixy;
}

// Mohr's circle of the second moments: R is its radius. The moment about the axis at a has the second
// derivative -4 R there, so that it is the greatest and no other sign need be asked for.
void Poligono::AssiPrincipali() {
    Alfa1 = -Angolo(2 * IxyG, IxG - IyG) / 2;
    Alfa2 = Alfa1 + std::numbers::pi / 2;
    const double R = std::sqrt((IxG - IyG) * (IxG - IyG) + 4 * IxyG * IxyG) / 2;
    I1 = (IyG + IxG) / 2 + R;
    I2 = (IyG + IxG) / 2 - R;
}

// Second moment over the distance of the outermost fibre.
void Poligono::ModuliElastici() {
    if (Area == 0) {
        for (double* v : {&Rho1, &Rho2, &WxSup, &WxInf, &WyDes, &WySin})
            *v = 0;
        return;
    }
    const auto [xMin, xMax, yMin, yMax] = BoundingBox();
    WxSup = IxG / (yMax - yG);
    WxInf = IxG / (yG - yMin);
    WyDes = IyG / (xMax - xG);
    WySin = IyG / (xG - xMin);
    // A sliver left by a cut can have a moment a rounding error below zero.
    Rho1 = std::sqrt(std::max(0.0, I1 / Area));
    Rho2 = std::sqrt(std::max(0.0, I2 / Area));
}

} // namespace sagomi
