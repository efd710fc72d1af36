#pragma once

#include <iosfwd>
#include <span>

namespace sagomi {

/// Makes the workbooks that lie beside the program, as the command line of crea_sagomi_xls says: that of
/// sections from the tables of figures, in place of an older one, or the user's own, without rows, where
/// there is none.
/// @param argomenti  the name of the program first
/// @param errori     where what fails is told
/// @return exit code: 0; 1 where a workbook cannot be made; 2 for other arguments
int CreaCartelle(std::span<const char* const> argomenti, std::ostream& errori);

} // namespace sagomi
