#pragma once

namespace sagomi {

/// Whether the chart has a value for the two ratios: none is negative, and lambda2 does not run off the row
/// that the chart ends with.
bool NelDiagrammaAlfa(double lambda1, double lambda2);

/// Effective length of a bolt beside a stiffener or beam flange over its distance m from the web, ENV
/// 1993-1-1 annex J, chart of alpha [-]: a table in steps of 0.1, straight lines between.
/// @param lambda1  m / (m + e)
/// @param lambda2  m2 / (m + e)
/// What the chart does not have throws std::out_of_range.
double AlfaDiagramma(double lambda1, double lambda2);

} // namespace sagomi
