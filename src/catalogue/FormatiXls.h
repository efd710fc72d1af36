#pragma once

#include <string_view>

#include "catalogue/FoglioDati.h"

namespace sagomi {

/// What a number with one of the formats that every workbook has without saying so is: formats 14 to 22 and
/// 45 to 47 are dates and times.
GenereNumero GenereFormato(unsigned formato);

/// What a number shown by this picture is ("dd/mm/yyyy" a date, "[h]:mm" a time, "0.0##" a plain number).
/// What stands between quotation marks, behind a backslash or in brackets is no part of it, those of elapsed
/// hours, minutes and seconds apart; only the first section counts.
GenereNumero GenereFigura(std::string_view figura);

} // namespace sagomi
