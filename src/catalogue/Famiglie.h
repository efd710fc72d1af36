#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace sagomi {

/// What the families of a main screen are: its check boxes, its sort keys and columns, the query that it
/// starts with.
struct FamigliaSchermo {
    std::string_view schermo;               ///< name of the screen
    std::vector<std::string_view> fogli;    ///< captions of ChkTipo in order, which are the sheets' names
    std::vector<std::string_view> ordini;   ///< captions of OptionOrdina 0..2
    std::string_view primaQuery;            ///< query at load
    std::string_view primoFoglio;           ///< sheet of that query, the only box ticked at load
    int primoOrdine = 0;                    ///< index of the OptionOrdina that is set at load
    std::string_view foglioUtente;          ///< sheet of the user's own sections, empty where there is none
    std::array<std::string_view, 3> chiavi; ///< what each OptionOrdina sorts by, as a query says it
    std::vector<std::string_view> intestazioni; ///< column headings of every sheet, by position
    bool perGiunto = false; ///< columns and beams of a joint are picked from these sections
};

/// The five main screens, from the rolled double-T to the angles.
const std::vector<FamigliaSchermo>& FamiglieSchermi();

/// The families of one screen. A name that is no main screen throws std::out_of_range.
const FamigliaSchermo& FamigliaDi(std::string_view schermo);

/// What the user is told when no family is ticked.
inline constexpr std::string_view messaggioNessunTipo =
    "ERRORE !! Non è stato selezionato nessun tipo di sagomo";

/// The table of a sheet: IPE gives "IPE$", L Uguali gives "'L Uguali'$".
std::string NomeTabella(std::string_view foglio);

/// The sheet as a query names it: IPE gives "[IPE$]", L Uguali gives "['L Uguali'$]". A name with a closing
/// bracket stands between quotation marks instead, so that it is a name whatever it says.
std::string NomeFoglioQuery(std::string_view foglio);

/// The query over the ticked sheets.
/// @param schermo  name of the screen, whose sort keys are used
/// @param scelti   names of the ticked sheets, in the order of their boxes
/// @param ordine   index of the OptionOrdina that is set; outside 0..2 throws std::out_of_range
/// @return the text for RecordSource; empty when nothing is ticked
std::string ComponeQuery(std::string_view schermo, const std::vector<std::string>& scelti, int ordine);

/// The same over one sheet that is given as the query names it ("['DoppioT Simmetrico'$]").
std::string ComponeQueryFoglio(std::string_view schermo, std::string_view foglioQuery, int ordine);

/// The new RecordSource of a screen from the state of its boxes. With nothing ticked and no sheet given the
/// user is told, and there is no query: the table stays as it was.
/// @param spunte       state of each ChkTipo, in order; boxes that the screen does not have are not looked at
/// @param ordine       index of the OptionOrdina that is set
/// @param foglioQuery  sheet in force as the query names it; when given, the boxes are not looked at
std::optional<std::string> CambioFamigliaQuery(std::string_view schermo, const std::vector<bool>& spunte,
                                               int ordine, std::string_view foglioQuery = {});

/// Column headings of every sheet of this screen, by position; they are the field names of the queries.
/// The user's own sheets have the same.
const std::vector<std::string_view>& Intestazioni(std::string_view schermo);

} // namespace sagomi
