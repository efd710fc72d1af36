#pragma once

#include <vector>

#include "catalogue/LetturaBiff.h"

namespace sagomi {

/// Goes through the records of a workbook before the reading library does: it trusts lengths and counts that
/// a damaged file may have wrong, above all those of the table of strings.
/// Throws std::runtime_error, with the Italian words for what is wrong, when the parts of the workbook do not
/// begin and end in order, a cell is too short for its value, the table holds fewer strings than it says or
/// one that goes over more than one record border (the library loses it), or a password protects the file.
void VerificaXls(const std::vector<RecordLetto>& record);

} // namespace sagomi
