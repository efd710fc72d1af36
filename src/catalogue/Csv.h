#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace sagomi {

/// Lines of fields of a comma separated text in UTF-8: quoted fields may hold commas, line breaks and doubled
/// quotes; lines end in LF, CR LF or CR; a byte order mark and empty lines are passed over. A quote that is
/// never closed ends with the text.
std::vector<std::vector<std::string>> LeggeCsv(std::string_view testo);

} // namespace sagomi
