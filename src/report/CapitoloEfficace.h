#pragma once

#include "report/Relazione.h"

/// Chapter of a report on what plates of class 4 leave of a section, ENV 1993-1-1 5.3.5. InizializzaSezione
/// has run. All results are the section's own.
namespace sagomi {

class SezioneDoppioT;
class SezioneSagomoL;
class SezioneSagomoU;

/// Each plate of class 4 from its slenderness to its effective and its lost width, then the effective area,
/// moduli and the shifts of the centroid. Without steps where the section is whole.
CapitoloRelazione CapitoloEfficace(const SezioneDoppioT& s);

/// The same; of a pair there are no moduli.
CapitoloRelazione CapitoloEfficace(const SezioneSagomoU& s);

/// The same; of an angle in compression alone.
CapitoloRelazione CapitoloEfficace(const SezioneSagomoL& s);

} // namespace sagomi
