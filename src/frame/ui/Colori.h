#pragma once

#include <QColor>

namespace sagomi {

/// Contrast of two opaque colours, from 1 to 21: WCAG 2.1, relative luminance of sRGB.
double Contrasto(const QColor& a, const QColor& b);

/// The least contrast at which a text can be read.
inline constexpr double contrastoLeggibile = 4.5;

/// The red of verdicts and of what governs: plain on a light ground; on a dark one light enough to be read.
QColor RossoSu(const QColor& fondo);

/// An ink as it is painted on a light ground: itself where it can be read there, else so much darker.
QColor Leggibile(const QColor& inchiostro, const QColor& fondo);

/// Whether texts on this ground have to be light.
bool Scuro(const QColor& fondo);

/// A colour over another.
/// @param parte  how much of the tint, 0 to 1
QColor Velo(const QColor& fondo, const QColor& tinta, float parte);

} // namespace sagomi
