#pragma once

#include <string>

#include "report/Relazione.h"

/// Chapters of a report on a section whose InizializzaSezione has run: data, classes, resistances and the
/// check of the section. All figures are the section's own.
namespace sagomi {

class SezioneDoppioT;
class SezioneSagomoL;
class SezioneSagomoU;
struct Verdetto;

/// Steel, code with its partial factors, dimensions, constants.
CapitoloRelazione CapitoloDati(const SezioneDoppioT& s);
CapitoloRelazione CapitoloDati(const SezioneSagomoU& s);
CapitoloRelazione CapitoloDati(const SezioneSagomoL& s);

/// Axial force, moments, buckling lengths, as the section has them.
CapitoloRelazione CapitoloAzioni(const SezioneDoppioT& s);

/// Axial force [N], in compression if positive, and buckling lengths.
CapitoloRelazione CapitoloAzioni(const SezioneSagomoU& s, double NSd);
CapitoloRelazione CapitoloAzioni(const SezioneSagomoL& s, double NSd);

/// Slenderness and class of each plate, and of the section under each force.
CapitoloRelazione CapitoloClassi(const SezioneDoppioT& s);

/// Slenderness of the legs and class of an angle in compression.
CapitoloRelazione CapitoloClassi(const SezioneSagomoL& s);

/// Axial force and moments that the section bears.
CapitoloRelazione CapitoloResistenze(const SezioneDoppioT& s);

/// Axial force that an angle, or a pair, bears.
CapitoloRelazione CapitoloResistenze(const SezioneSagomoL& s);

/// Axial force with bending on the section, EC3 6.2.9. ClassePressoFlessioneCalcola has run.
CapitoloRelazione CapitoloSezione(const SezioneDoppioT& s);

/// Shifts of the centroid of a section of class 4.
void AggiungeSpostamenti(std::vector<PassoRelazione>& passi, const SezioneDoppioT& s);

/// A verdict of the model as a report has it.
VerdettoRelazione VerdettoDi(const Verdetto& v, std::string verifica, std::string norma);

} // namespace sagomi
