#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

#include "geometry/LineeGeometria.h"

/// Numerics: root finding, interpolation, cyclic indices, sorting, rounding. Tables and arrays hold entry 1
/// at [0]; indices in arguments and results start at 1, and one outside its array throws std::out_of_range.
namespace sagomi {

/// Abscissa at which f is within the tolerance of 0, by false position with the halving of a stuck end
/// (Illinois). The search moves x1 and x2; callers pass copies when they need them.
///
/// Ends of the same sign are reported, and the result is 0. Every 100 iterations the user is asked whether to
/// go on; after a no, and when f takes the same value at both ends, the result is the last estimate, and the
/// user is told that it is wrong.
double CercaZero(const std::function<double(double)>& f, double& x1, double& x2, double tolleranza);

/// CercaZero on the operation yEquazione(x) of any object.
template <typename Oggetto> double ZeroFunzione(Oggetto& oggetto, double& x1, double& x2, double tolleranza) {
    return CercaZero([&oggetto](double x) { return oggetto.yEquazione(x); }, x1, x2, tolleranza);
}

/// The same on yEquazione(x, extra).
template <typename Oggetto, typename Extra>
double ZeroFunzione(Oggetto& oggetto, double& x1, double& x2, double tolleranza, const Extra& extra) {
    return CercaZero([&](double x) { return oggetto.yEquazione(x, extra); }, x1, x2, tolleranza);
}

/// Straight-line value; empty when x1 equals x2.
std::optional<double> yInterpola(double x1, double y1, double x2, double y2, double x);

/// Straight-line value between the entries i and i+1 of a table; i-1 and i when i is the last.
std::optional<double> yInterpolaTabella(int i, const std::vector<double>& xs, const std::vector<double>& ys,
                                        double x);

/// Interval of x in a table of equal steps, by the step of its first two entries: 1 below the table, the last
/// index at its end and beyond.
int IndiceTabella(const std::vector<double>& xs, double x);

/// First and last index of the n entries of an array.
template <typename T> void LimitiArray(const std::vector<T>& /*a*/, int n, int& primo, int& ultimo) {
    primo = 1;
    ultimo = n + primo - 1;
}

/// Next index of a cyclic array of n entries: after the last comes the first.
template <typename T> int IndiceSuccessivo(const std::vector<T>& a, int n, int i) {
    int primo = 0;
    int ultimo = 0;
    LimitiArray(a, n, primo, ultimo);
    return i < ultimo ? i + 1 : primo;
}

/// Previous index of a cyclic array of n entries: before the first comes the last.
template <typename T> int IndicePrecedente(const std::vector<T>& a, int n, int i) {
    int primo = 0;
    int ultimo = 0;
    LimitiArray(a, n, primo, ultimo);
    return i > primo ? i - 1 : ultimo;
}

/// Sorts the entries primo..ultimo of a upward; equal entries keep their order.
/// @param indici  when given, moves along with a; filled with 1..n first when it comes empty
void Ordina(std::vector<double>& a, int primo, int ultimo, std::vector<int>* indici = nullptr);

/// Swaps two values; with negativi both change sign as well.
void Scambia(double& a, double& b, bool negativi = false);

/// The integer part (toward minus infinity), plus 1 when the fraction is at or above 0.5.
double Arrotonda(double x);

/// The integer part, plus 1 when any fraction remains.
double ArrotondaEccesso(double x);

} // namespace sagomi
