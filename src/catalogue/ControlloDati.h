#pragma once

#include <vector>

namespace sagomi {

class Lettore;
class SezioneDoppioT;
class SezioneSagomoL;
class SezioneSagomoU;

/// One field of a row against what follows from the row's geometry, both in the unit of the table.
struct VoceControllo {
    int campo;         ///< position of the field
    double calcolato;  ///< value from the outline
    double tolleranza; ///< largest difference over the value of the table [-]
};

/// Tells the user when two values differ by more than `tol` times the first one. A value of 0 in the table is
/// not compared.
/// @param db    value of the table
/// @param calc  value from the geometry
/// @return true when the user was told
bool ConfrontaValore(double db, double calc, double tol);

/// Compares fields of the row in hand one after the other, each with its own message under the name of the
/// section and of the quantity; the user may skip those that are left. Nothing is changed.
/// Does nothing at BOF and EOF.
void ConfrontaVoci(const Lettore& riga, const std::vector<VoceControllo>& voci);

/// What is compared of a rolled double-T, in order. The torsion and warping constants of tapered flanges rest
/// on approximate formulas and are given more room. The section must have its outline: without one, or with
/// one of no area, there is nothing to compare.
std::vector<VoceControllo> VociLaminati(SezioneDoppioT& sezione);

/// What is compared of a welded section, in order: area, second moment, modulus of the upper fibre and, of
/// different flanges, of the lower one, radii of gyration. As for the rolled ones without an outline nothing.
std::vector<VoceControllo> VociSaldati(const SezioneDoppioT& sezione);

/// The value check of the screens of welded sections, with equal or different flanges as the section has.
void ControlloDatiSaldati(const Lettore& riga, const SezioneDoppioT& sezione);

/// What is compared of a channel, in order: area, second moments, torsion and warping constants. The latter
/// two rest on approximate formulas and are given more room.
std::vector<VoceControllo> VociSagomiU(const SezioneSagomoU& sezione);

/// What is compared of an angle, in order: area and second moments.
std::vector<VoceControllo> VociSagomiL(const SezioneSagomoL& sezione);

/// The value check of the screens of channels and of angles; of a pair its outline is still that of one
/// piece.
void ControlloDatiSagomi(const Lettore& riga, const SezioneSagomoU& sezione);
void ControlloDatiSagomi(const Lettore& riga, const SezioneSagomoL& sezione);

/// The value check of the rolled double-T screen, after each change of row.
/// @param sezione  made of the row in hand, after InizializzaSezione
void ControlloDatiLaminati(const Lettore& riga, SezioneDoppioT& sezione);

} // namespace sagomi
