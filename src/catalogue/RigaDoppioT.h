#pragma once

namespace sagomi {

class Lettore;
class SezioneDoppioT;

/// Fills a section with the row in hand of the rolled double-T: name, dimensions and constants of the table,
/// from mm, cm2, cm3, cm4, cm6 and cm to mm and its powers. The weight is not read, an empty field is 0.
/// At BOF and EOF the section stays as it is. A table with fewer than 19 columns throws std::out_of_range.
void LeggeRiga(const Lettore& riga, SezioneDoppioT& sezione);

} // namespace sagomi
