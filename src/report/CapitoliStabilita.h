#pragma once

#include <optional>
#include <string>

#include "report/Relazione.h"
#include "sections/DiagrammaMomenti.h"

/// Chapters of a report on the stability of a member. All figures are those of its section, whose checks have
/// run.
namespace sagomi {

class SezioneDoppioT;
class SezioneSagomoL;
class SezioneSagomoU;

/// Buckling curves about y-y and z-z.
struct CurveInstabilita {
    std::string y, z;
};

/// From the slenderness to the resistance about each axis, ENV 1993-1-1 5.5.1.
CapitoloRelazione CapitoloInstabilita(const SezioneDoppioT& s, const CurveInstabilita& curve);
CapitoloRelazione CapitoloInstabilita(const SezioneSagomoU& s, const CurveInstabilita& curve);
CapitoloRelazione CapitoloInstabilita(const SezioneSagomoL& s, const CurveInstabilita& curve);

/// The moments of a member about both axes and the shape of their diagram.
CapitoloRelazione CapitoloMomenti(const MomentiMembratura& y, const MomentiMembratura& z, std::int16_t tipo,
                                  std::int16_t pict);

/// Axial force and bending with flexural buckling, ENV 1993-1-1 5.5.4.
CapitoloRelazione CapitoloMembratura(const SezioneDoppioT& s);

/// Critical moment and resistance to lateral-torsional buckling, without a check. McrFunz and MbRdSub have
/// run.
CapitoloRelazione CapitoloMomentoCritico(const SezioneDoppioT& s);

/// Critical moment, resistance and check of lateral-torsional buckling. McrFunz and MbRdSub have run. Where
/// k or kw leave no critical moment there is no verdict.
/// @param conAsseZ  with the steps to kz, for a report without CapitoloMembratura
CapitoloRelazione CapitoloSvergolamento(const SezioneDoppioT& s, bool conAsseZ = false);

} // namespace sagomi
