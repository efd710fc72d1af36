#pragma once

namespace sagomi {

class SezioneDoppioT;
class SezioneSagomoU;
class SezioneSagomoL;

/// What plates of class 4 lose [mm], ENV 1993-1-1 5.3.5; 0 where a plate is not of class 4.
struct LunghezzePerse {
    double animaCompressa = 0; ///< height of the web, in the middle, in uniform compression
    double animaInflessa = 0;  ///< height of the web in bending about y-y
    double ala = 0;            ///< of each outstand of the upper flange, in uniform compression
};

/// Ratio of the stresses at the ends of the web in bending about y-y [-], on the neutral axis that a flange
/// of class 4 leaves; compression over compression positive.
double PsiAnimaInflessa(const SezioneDoppioT& s);

LunghezzePerse PerseDi(const SezioneDoppioT& s);
LunghezzePerse PerseDi(const SezioneSagomoU& s);

/// What the effective outline of an angle of class 4 lacks [mm]; 0 below class 4.
struct LatiPersi {
    double lungo = 0; ///< of the longer leg, at its tip
    double corto = 0; ///< of the shorter leg
    double eNy = 0;   ///< shift of the centroid along the longer leg, which bends about y-y
    double eNz = 0;   ///< the same along the shorter leg; the one across the faces of a pair cancels
};

/// InizializzaSezione must have run.
LatiPersi PerseDi(const SezioneSagomoL& s);

} // namespace sagomi
