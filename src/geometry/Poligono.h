#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <vector>

#include "frame/Singolo.h"
#include "geometry/LineeGeometria.h"

namespace sagomi {

/// Area, first and second moments of a part of a strip about the coordinate axes.
struct MomentiStriscia {
    double Area = 0;
    double Sx = 0;  ///< area times y
    double Sy = 0;  ///< area times x
    double Ix = 0;  ///< second moment about the x axis
    double Iy = 0;  ///< second moment about the y axis
    double Ixy = 0; ///< product
};

/// A closed plane polygon: its static properties, its cuts, its plastic moduli and its strips.
///
/// Vertices are counted from 1; the side that closes the outline runs from the last to the first. Arrays
/// hold vertex 1 at [0], indices in arguments and results start at 1. Any consistent unit of length (mm in
/// the system). An outline may touch itself along a line: a part that hangs on a doubled line has no area
/// there.
///
/// A polygon that a call may not find comes as an empty pointer. Where a call hands out "this polygon
/// itself", the pointer shares the ownership of the object when a std::shared_ptr holds it; otherwise it
/// does not own it, and is good as long as the object lives.
class Poligono : public std::enable_shared_from_this<Poligono> {
public:
    double Area = 0;         ///< never negative after a calculation
    double xG = 0, yG = 0;   ///< centroid
    double Sx = 0, Sy = 0;   ///< first moments: area times y, area times x
    double Ix = 0, Iy = 0;   ///< second moments about the coordinate axes
    double Ixy = 0;          ///< product about the coordinate axes
    double IxG = 0, IyG = 0; ///< the same about the centroid
    double IxyG = 0;
    double I1 = 0, I2 = 0;     ///< principal moments, I1 the greater
    double Alfa1 = 0;          ///< direction of the axis of I1 [rad]
    double Alfa2 = 0;          ///< direction of the axis of I2 [rad]
    double Rho1 = 0;           ///< radius of gyration of I1
    double Rho2 = 0;           ///< radius of gyration of I2
    double WxSup = 0;          ///< elastic modulus about the centroidal x axis, top fibre
    double WxInf = 0;          ///< the same, bottom fibre
    double WyDes = 0;          ///< elastic modulus about the centroidal y axis, right fibre
    double WySin = 0;          ///< the same, left fibre
    double WplX = 0;           ///< plastic modulus, horizontal cut
    double WplY = 0;           ///< plastic modulus, vertical cut
    std::int16_t nStrisce = 0; ///< strips of the last discretisation
    bool Antiorario = false;   ///< vertices run counter-clockwise (signed area above zero); by AreaCalcola

    static constexpr std::int16_t maxRettangoli = 20; ///< rectangles that a strip can hold

    // Vertices ------------------------------------------------------------------------------------------

    /// A polygon with the same vertices, the 23 values and Antiorario; without strips.
    [[nodiscard]] Poligono Copia() const;

    [[nodiscard]] std::int16_t nVertici() const { return n_; }
    /// Stores n; above zero, both arrays are dimensioned anew to 1..n with zeros.
    void nVertici(std::int16_t n);

    [[nodiscard]] const std::vector<double>& CoordX() const { return x_; }
    [[nodiscard]] const std::vector<double>& CoordY() const { return y_; }
    /// Takes a whole array; its length becomes the count of vertices. More than 32767 entries: nothing is
    /// done.
    void CoordX(const std::vector<double>& x);
    void CoordY(const std::vector<double>& y);
    /// Loads the first n entries of both arrays. Arrays shorter than n: nothing is done.
    void Coordinate(const std::vector<double>& x, const std::vector<double>& y, std::int16_t n);

    /// One coordinate of vertex i, from 1; xi and x are the same, so are yi and y.
    /// Outside the array: std::out_of_range.
    [[nodiscard]] double xi(int i) const { return x_[Posto(i, x_)]; }
    void xi(int i, double v) { x_[Posto(i, x_)] = v; }
    [[nodiscard]] double x(int i) const { return xi(i); }
    void x(int i, double v) { xi(i, v); }
    [[nodiscard]] double yi(int i) const { return y_[Posto(i, y_)]; }
    void yi(int i, double v) { y_[Posto(i, y_)] = v; }
    [[nodiscard]] double y(int i) const { return yi(i); }
    void y(int i, double v) { yi(i, v); }

    // Static properties ---------------------------------------------------------------------------------

    /// Sum of the side lengths, the closing side included.
    [[nodiscard]] double Perimetro() const;

    /// Sets Area and Antiorario. With fewer than 3 vertices Area is 0 and Antiorario stays as it was.
    void AreaCalcola();

    /// Calculates Area and tells whether it is at or below the threshold: 0, or with relativa the square of
    /// the perimeter divided by 1E+20.
    bool AreaNulla(bool relativa = false);

    /// Area, IxG, WxSup and WxInf of a circle or ring of outer radius Re and inner radius Ri; every other
    /// member stays as it was.
    void CaratteristicheStaticheCerchio(double Re, double Ri);

    /// Fills all properties but the plastic moduli and Antiorario. With azzera, or fewer than 3 vertices, the
    /// area and the moments become zero and nothing else is done. With cerchio it is the circle's routine.
    /// A polygon of zero area has radii and elastic moduli 0; its xG, yG are the sum of the coordinates of
    /// vertices 1 to n-2 divided by n, in single precision.
    void CaratteristicheStatiche(bool azzera = false, bool cerchio = false, double Re = 0, double Ri = 0);

    // Cuts by a line a x + b y + c = 0 --------------------------------------------------------------------

    /// Points that the line has in common with the sides, in the order of the sides; iLato(k) is the side,
    /// from 1. A side parallel to the line (sine of the angle up to 1e-6) has none, nor has one of length 0.
    /// A line through a vertex finds it on both sides.
    /// @param nTolti  when given, points that coincide with one found before are taken out, and their count
    ///                comes back here
    void IntersezioneConRetta(double a, double b, double c, std::vector<double>& xI, std::vector<double>& yI,
                              std::vector<std::int16_t>& iLato, std::int16_t& nI,
                              std::int16_t* nTolti = nullptr) const;

    /// New polygon of n + nI vertices: after vertex i come the points whose iLato is i, in the order given.
    /// @param nuovo  one flag a vertex of the result: true for an inserted point
    [[nodiscard]] std::shared_ptr<Poligono> PoligonoConIntersezioni(const std::vector<double>& xI,
                                                                    const std::vector<double>& yI,
                                                                    const std::vector<std::int16_t>& iLato,
                                                                    std::int16_t nI,
                                                                    std::vector<bool>& nuovo) const;

    /// The part of the polygon on the side of the line where the point (xP, yP) lies, with its static
    /// properties. When the line does not meet the outline it is a new polygon of the same vertices, or
    /// nothing when all of it lies on the other side.
    /// @param segno  1 when there is something on that side, -1 when not
    [[nodiscard]] std::shared_ptr<Poligono> PoligonoReagente(double xP, double yP, std::int16_t& segno,
                                                             double a, double b, double c) const;

    /// The same cut without the properties; nothing when the line does not meet the outline.
    [[nodiscard]] std::shared_ptr<Poligono> PoligonoIntersezione(double a, double b, double c, double xP,
                                                                 double yP) const;

    // Movements: the vertices change, the properties do not, unless said ------------------------------------

    /// x' = M(1) x + M(2) y + M(3), y' = M(4) x + M(5) y + M(6).
    void RotoTraslaVertici(const Trasformazione& M);

    /// Turns the vertices about (xC, yC) by angolo [rad], counter-clockwise, then CaratteristicheStatiche.
    void RuotaVertici(double xC, double yC, double angolo);

    /// Subtracts (dx, dy) from every vertex.
    void Trasla(double dx, double dy);

    /// New polygon of the vertices whose y (x with usaX) times segno is at or above zero, and of those that
    /// lie on the cut: sulTaglio, one flag a vertex.
    [[nodiscard]] std::shared_ptr<Poligono>
    PoligonoSenzaPuntiOpposti(double segno, const std::vector<bool>& sulTaglio, bool usaX = false) const;

    // Extent ----------------------------------------------------------------------------------------------

    /// Extremes of the vertices; without vertices +1E+20 and -1E+20 in single precision.
    /// @param zero  when given, receives the greater extent divided by 1000000000
    void MaxMin(double& xMin, double& xMax, double& yMin, double& yMax, double* zero = nullptr) const;

    /// The greater of the two extents; 0 without vertices.
    [[nodiscard]] double MaxDimensione() const;

    /// Containment of the point (x/w, y/w): esito 1 inside, -1 outside; -1 too when |w| is not above zero.
    /// A point of the outline counts inside on lower and left sides, outside on upper and right ones.
    void PuntoInPoligono(double x, double y, double w, double zero, std::int16_t& esito) const;

    /// Inserts points after vertex iDopo; 0 puts them before the first.
    void InseriscePunti(int iDopo, const std::vector<double>& xP, const std::vector<double>& yP);

    /// As IntersezioneConRetta, for the segment from (x1, y1) to (x2, y2).
    void IntersezioneConSegmento(double x1, double y1, double x2, double y2, std::vector<double>& xI,
                                 std::vector<double>& yI, std::int16_t& nI,
                                 std::vector<std::int16_t>& iLato) const;

    /// True when the point lies in the box of the vertices grown by the margin, edges included.
    [[nodiscard]] bool PuntoInBoundingBox(double x, double y, double margine) const;

    /// xMin, xMax, yMin, yMax.
    [[nodiscard]] std::array<double, 4> BoundingBox() const;

    // Drawing, on the device in force
    // -------------------------------------------------------------------------

    /// Draws the closed outline, moved by x0y0. With doppio the list holds two contours of equal length: the
    /// first n/2 - 1 vertices are one closed line, those from n/2 + 1 on another.
    void Plotta(const std::array<double, 2>& x0y0 = {}, bool doppio = false) const;

    /// Hatches the inside, see TratteggioPlt.
    /// @param angolo      [degrees]
    /// @param tratteggio  lines, or below 0 minus their spacing
    /// @return lines laid
    int Tratteggia(double angolo, double tratteggio, std::int16_t colore,
                   const std::array<double, 2>& x0y0 = {}) const;

    /// Writes each vertex's number at the vertex, in texts of that height.
    void NumeraVertici(double altezza, const std::array<double, 2>& x0y0 = {}) const;

    // Splits and plastic moduli -----------------------------------------------------------------------------

    /// Splits at the level y (at the abscissa y with lungoX) into the part above and the part below (right
    /// and left of it). The level counts in single precision. At or above the top, sopra is empty and sotto
    /// is this polygon itself; at or below the bottom, sopra is this polygon itself and sotto is empty.
    void DividiY(double y, std::shared_ptr<Poligono>& sopra, std::shared_ptr<Poligono>& sotto,
                 bool lungoX = false);

    /// Splits so that the fraction rapporto of the area lies above (right of) the cut, within Area/10000.
    /// Calculates Area. @param yN  level of the cut
    void Dividi(double rapporto, std::shared_ptr<Poligono>& sopra, std::shared_ptr<Poligono>& sotto,
                double& yN, bool lungoX = false);

    /// Plastic modulus W of a circle of diameter De, or of a ring of inner diameter Di.
    static void WplasticoCerchio(double De, double Di, double& W);

    /// Plastic modulus in one direction: half the area times the distance of the centroids of the two halves,
    /// above and below (right and left with attornoY). Calculates Area.
    /// @param yN       when given, receives the level of the cut
    /// @param cerchio  the modulus of a ring of diameters De, Di instead; no cut, yN stays as it was
    double Wplastico(double* yN = nullptr, bool attornoY = false, bool cerchio = false, double De = 0,
                     double Di = 0);

    /// Fills WplX and WplY; both are zero when Area is. Area must have been calculated before.
    void Wplastici();

    /// Area above (right of) the level y less the wanted fraction of Area: what Dividi drives to zero.
    double yEquazione(double y, bool lungoX = false);

    /// Parallel offset of the outline that passes through the point: every side is moved by the same distance
    /// and joined to its neighbours in a corner. Where an offset to the inside is larger than a detail of the
    /// outline, that detail turns over.
    /// Sets ZeroMaxDimen. @return false, and an empty result, for an outline without extent
    bool OffsetPerPunto(double xP, double yP, std::shared_ptr<Poligono>& risultato) const;

    // Strips -----------------------------------------------------------------------------------------------

    /// Fills the tables with n strips of equal height, from the top down. The rectangles of a strip are the
    /// chords of the outline at its centre, at most 20, from left to right. n below 1 empties the tables.
    void DiscretizzaPoligono(std::int16_t n);

    /// Fills the tables for a circle of diameter D about (xC, yC): strip i has its centre at the angle
    /// pi/2 - i pi/n, and takes the height of one step of the angle.
    void DiscretizzaCerchio(std::int16_t n, double D, double xC = 0, double yC = 0);

    [[nodiscard]] double MezzaStriscia() const { return mezzaStriscia_; } ///< half the strip height
    /// Entries of the tables, i from 1 to nStrisce, k from 1 to nRett(i); outside: std::out_of_range.
    [[nodiscard]] Singolo yStriscia(int i) const { return Striscia(i).y; }      ///< centre of strip i
    [[nodiscard]] Singolo hStriscia(int i) const { return Striscia(i).h; }      ///< height of strip i
    [[nodiscard]] std::int16_t nRett(int i) const { return Striscia(i).nRett; } ///< its rectangles
    [[nodiscard]] Singolo bRett(int k, int i) const { return Striscia(i).b[PostoRett(k, i)]; } ///< width
    [[nodiscard]] Singolo xRett(int k, int i) const { return Striscia(i).x[PostoRett(k, i)]; } ///< centre

    /// Draws the rectangles of the strip tables, moved by x0y0.
    void PlottaRettangolini(const std::array<double, 2>& x0y0 = {}) const;

    /// Area of the part of strip i that lies between the levels yInf and ySup.
    [[nodiscard]] double RettangolinoArea(int i, double yInf, double ySup) const;
    /// Area and moments of that part.
    [[nodiscard]] MomentiStriscia RettangolinoMomenti(int i, double yInf, double ySup) const;

    // Hull, view, mirror
    // -------------------------------------------------------------------------------------

    /// Convex hull, counter-clockwise from the lowest vertex (the leftmost of several); points on its sides
    /// are dropped.
    [[nodiscard]] std::shared_ptr<Poligono> PoligonoConvessoCircoscritto() const;

    /// The vertices that have nothing of the outline to their right by more than 1E-10.
    void VistaDaDestra(std::vector<double>& xV, std::vector<double>& yV, std::int16_t& nV) const;

    /// Mirrors the polygon: every x becomes -(x + d); with suY every y becomes -(y + d).
    void SpecchiaXY(double d, bool suY = false);

private:
    struct RigaStriscia {
        Singolo y, h;
        std::int16_t nRett = 0;
        std::array<Singolo, maxRettangoli> b{}, x{};
    };

    static std::size_t Posto(int i, const std::vector<double>& v);
    [[nodiscard]] std::size_t PostoRett(int k, int i) const;
    [[nodiscard]] const RigaStriscia& Striscia(int i) const;
    [[nodiscard]] std::size_t Numero() const { return n_ > 0 ? static_cast<std::size_t>(n_) : 0; }
    [[nodiscard]] std::shared_ptr<Poligono> Stesso();
    static std::int16_t Contati(std::size_t vertici);
    static std::shared_ptr<Poligono> DaVertici(std::vector<double> x, std::vector<double> y);
    void SommeTriangoli();
    void BaricentroDegenere();
    void AssiPrincipali();
    void ModuliElastici();
    [[nodiscard]] std::shared_ptr<Poligono> ParteTagliata(double a, double b, double c, double xP,
                                                          double yP) const;
    /// The parts above and below the level into two empty polygons, in one walk along the outline. @return
    /// false when no side meets the level
    bool PartiAlLivello(double livello, double zero, bool lungoX, Poligono& alto, Poligono& basso) const;
    [[nodiscard]] double ModuloPlastico(const std::array<double, 4>& box, bool attornoY, double* yN);
    void ApreTabelle(std::int16_t n, double mezza);

    std::vector<double> x_, y_; ///< vertex 1 at [0]; never shorter than n_
    std::int16_t n_ = 0;
    Singolo rapportoArea_;     ///< fraction of the area wanted above the cut, set by Dividi
    double mezzaStriscia_ = 0; ///< half the strip height of the last discretisation
    std::vector<RigaStriscia> strisce_;
};

} // namespace sagomi
