#pragma once

#include "report/Relazione.h"

/// Chapters of the report on what a section bears in bending, besides those of double-T sections.
namespace sagomi {

class SezioneSagomoU;
struct SezioneDuttile;

/// Slenderness and class of each plate, and of the channel under each force.
CapitoloRelazione CapitoloClassi(const SezioneSagomoU& s);

/// Axial force, moments and shears that the channel, or the pair, bears. Of a pair of class 4 in bending
/// there is no moment, which a note says.
CapitoloRelazione CapitoloResistenze(const SezioneSagomoU& s);

/// What the ductility parameter of a section is asked for.
struct RichiestaDuttilita {
    double N = 0;     ///< axial force, positive in compression [N]
    double Lstar = 0; ///< shear length [mm], above 0
};

/// The steps to the ductility parameter, Ordinanza 3274-2003 6.5.3.1.
CapitoloRelazione CapitoloDuttilita(const SezioneDuttile& sezione, const RichiestaDuttilita& richiesta);

} // namespace sagomi
