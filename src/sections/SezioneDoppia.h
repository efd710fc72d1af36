#pragma once

#include <string>

#include "sections/SezioneSagomoL.h"
#include "sections/SezioneSagomoU.h"

/// Two equal channels or angles at a distance, as one section.
namespace sagomi {

/// What one piece gives to a pair [mm and its powers].
struct SagomoSingolo {
    std::string nome;
    double Area = 0;
    double Jy = 0, Jz = 0;     ///< second moments
    double Wply = 0, Wplz = 0; ///< plastic moduli; none of angles
    double e = 0;              ///< centroid from the back of the web, or of the upright leg
    double yc = 0;             ///< centroid above the lower fibre
    double iY = 0, iZ = 0;     ///< radii of gyration
    double b = 0, h = 0;
};

/// The constants of a pair [mm and its powers].
struct SagomoDoppio {
    double Area = 0, Jy = 0, Jz = 0, Wely = 0, Welz = 0, Wply = 0, Wplz = 0, iY = 0, iZ = 0;
};

/// What a section gives, after InizializzaSezione on one piece.
SagomoSingolo SingoloDi(const SezioneSagomoU& sezione);
SagomoSingolo SingoloDi(const SezioneSagomoL& sezione);

/// Two channels.
/// @param s          gap [mm]
/// @param accostaAli the flange tips towards each other, else the webs back to back
SagomoDoppio UdoppiCalcolaSub(const SagomoSingolo& uno, double s, bool accostaAli);

/// Two angles; a pair has no plastic moduli.
/// @param s             gap [mm]
/// @param accostaCorti  the short legs against each other, else the long ones
SagomoDoppio LdoppiCalcolaSub(const SagomoSingolo& uno, double s, bool accostaCorti);

/// Makes a section the pair: name, constants and the flags Doppi, DoppiCorto, dDoppi. Its plates stay those
/// of one piece, and so does iV of an angle. Whatever it was before counts for nothing: a pair is not doubled
/// again.
void RendeDoppia(SezioneSagomoU& sezione, const SagomoSingolo& uno, double s, bool accostaAli);
void RendeDoppia(SezioneSagomoL& sezione, const SagomoSingolo& uno, double s, bool accostaCorti);

/// Kinds of section that make pairs.
template <typename S>
concept ConCoppia = requires(S& s, const SagomoSingolo& uno) {
    RendeDoppia(s, uno, 0.0, false);
};

} // namespace sagomi
