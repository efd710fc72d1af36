#pragma once

#include <vector>

#include "catalogue/Valore.h"

namespace sagomi {

class Lettore;
class SezioneDoppioT;

/// The columns of a table of double-T sections: rolled, welded with equal flanges, welded with different
/// ones.
enum class RigheDoppioT { Laminate, Saldate, SaldateAsimmetriche };

/// Columns that rows of a kind have at least: 19, 18 or 21.
int CampiDi(RigheDoppioT righe);

/// Fills a section with the row in hand: name, dimensions and constants of the table, from mm, cm2, cm3, cm4,
/// cm6 and cm to mm and its powers. Of welded sections the kind is set too; equal flanges have one modulus
/// for both fibres. The weight is not read, an empty field is 0. At BOF and EOF the section stays as it is. A
/// table with fewer columns than these rows have throws std::out_of_range.
void LeggeRiga(const Lettore& riga, SezioneDoppioT& sezione, RigheDoppioT righe = RigheDoppioT::Laminate);

/// The same from the fields of a row by position; too few of them throw std::out_of_range.
void LeggeCampi(const std::vector<Valore>& campi, SezioneDoppioT& sezione, RigheDoppioT righe);

/// The way back: the fields of a row by position, from the section's name and weight [kg/m] to the warping
/// constant, each the shortest number that the section's single stands for. What is not finite is empty.
std::vector<Valore> CampiRiga(const SezioneDoppioT& sezione, RigheDoppioT righe);

} // namespace sagomi
