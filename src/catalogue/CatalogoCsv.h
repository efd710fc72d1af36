#pragma once

#include <filesystem>
#include <string_view>

#include "catalogue/FoglioDati.h"

namespace sagomi {

/// The sheet of a family from its table of figures.
/// @param foglio   name of the sheet
/// @param schermo  main screen that shows it: decides the headings
/// @param csv      comma separated text; its first line names the columns of the sheet in their order (the
///                 distance of the centroid, which closes the lines of a channel, is left out)
/// Throws ErroreCatalogo, with the sheet's name and the line, where the columns are not those of the sheet, a
/// line has fewer or more fields than its head, or a figure is no number.
Foglio FoglioDaCsv(std::string_view foglio, std::string_view schermo, std::string_view csv);

/// The whole catalogue from a folder with a table a family (`L Uguali` from L_Uguali.csv): the sheets of the
/// five main screens in the order of their boxes. Throws ErroreCatalogo, also for a table that is missing.
CartellaDati CatalogoDaCsv(const std::filesystem::path& cartella);

} // namespace sagomi
