#pragma once

namespace sagomi {

class Lettore;
class SezioneSagomoL;
class SezioneSagomoU;

/// Fills a channel with the row in hand: name, dimensions and constants of the table, from mm, cm2, cm3, cm4,
/// cm6 and cm to mm and its powers. The toe radius says whether the flanges are tapered too. The weight is
/// not read, an empty field is 0. At BOF and EOF the section stays as it is. A table with fewer columns than
/// these rows have throws std::out_of_range.
void LeggeRiga(const Lettore& riga, SezioneSagomoU& sezione);

/// The same for an angle: 18 columns, of the principal axes the radius of gyration about v-v.
void LeggeRiga(const Lettore& riga, SezioneSagomoL& sezione);

} // namespace sagomi
