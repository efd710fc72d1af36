#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

/// Line geometry under the polygon: points in homogeneous form, lines as a x + b y + c = 0, changes of frame.
namespace sagomi {

/// Tolerance of coincidence when a caller gives none; 0 until somebody sets it.
inline double ZeroModulo = 0;
/// Tolerance of the offset of an outline; whoever needs it sets it first.
inline double ZeroMaxDimen = 0;

inline constexpr double zeroParallele = 0.000001; ///< sine of the angle of lines that count as parallel

// Plain measures
// ----------------------------------------------------------------------------------------------

/// Distance of two points.
double Distanza(double x1, double y1, double x2, double y2);

/// Signed area A of the polygon of the first n points, above zero when they run counter-clockwise.
/// @return true when A is at or above zero
bool AreaConSegno(std::int16_t n, std::span<const double> x, std::span<const double> y, double& A);

/// Direction of the vector (dx, dy) in 0 to 2 pi. For dx = 0: 3 pi/2 when dy is negative, otherwise pi/2.
double Angolo(double dy, double dx);

/// The greater of the two extents of the first n points divided by fattore; 0 without points.
double ZeroDimensione(std::span<const double> x, std::span<const double> y, std::int16_t n, double fattore);

/// True when the absolute difference is at or below zero.
bool NumeroUguale(double a, double b, double zero);

// Points and lines
// ----------------------------------------------------------------------------------------------

/// A pair of values, of point 1 and point 2.
using Coppia = std::array<double, 2>;

/// True when the points (x1/w1, y1/w1) and (x2/w2, y2/w2) coincide in both coordinates. When the weights are
/// not both above the tolerance, the weights are compared instead. A tolerance of zero is reported.
/// @param zero  ZeroModulo when missing
bool PuntiCoincidenti(const Coppia& x, const Coppia& y, const Coppia& w, std::optional<double> zero = {});

/// The same for two plain points. @param zero  ZeroMaxDimen when missing
bool PuntiCoincidentiXY(double x1, double y1, double x2, double y2, std::optional<double> zero = {});

/// Line through two points with weights w, normally 1 and 1. @return false when the points coincide
bool RettaPerDuePunti(const Coppia& x, const Coppia& y, const Coppia& w, double& a, double& b, double& c,
                      std::optional<double> zero = {});

/// Meeting point of two lines. @param zero  sine of the angle up to which they count as parallel
/// @return false when they are parallel; x and y stay as they were
bool IntersezioneRette(double a1, double b1, double c1, double a2, double b2, double c2, double& x, double& y,
                       double zero = zeroParallele);

// Changes of frame
// ------------------------------------------------------------------------------------------------

/// Six coefficients, M(1) at [0]: x' = M(1) x + M(2) y + M(3), y' = M(4) x + M(5) y + M(6).
using Trasformazione = std::array<double, 6>;

/// Into the frame with its origin in (xp, yp) and its x axis turned by alfa [rad].
Trasformazione RiferimentoDiretto(double xp, double yp, double alfa);
/// Back from that frame.
Trasformazione RiferimentoInverso(double xp, double yp, double alfa);

/// Applies a transformation to one point.
void Trasforma(const Trasformazione& M, double& x, double& y);

// Outlines
// ----------------------------------------------------------------------------------------------------------

/// Sides of the closed outline of the first n points that pass through the level y0, each with the abscissa
/// of its crossing, in the order of the sides. A side counts when one end is above the level and the other is
/// not, so that a vertex on the level is met once where the outline passes and never or twice where it only
/// touches: the count is always even.
/// @param iLato  side, from 1
void AttraversamentiLivello(std::span<const double> x, std::span<const double> y, std::int16_t n, double y0,
                            std::vector<double>& xI, std::vector<std::int16_t>& iLato);

/// Takes the first nPunti points off an open line of n points. A count below 1 is reported and takes nothing
/// off.
void TogliePuntiInizialiDaPoligonale(std::vector<double>& x, std::vector<double>& y, std::int16_t& n,
                                     std::int16_t nPunti);

} // namespace sagomi
