#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "catalogue/FoglioLetto.h"

struct sqlite3;

namespace sagomi {

/// Makes a sheet a table of a database, without copying it: it is read when a query first names the table.
/// The first row gives the names of the fields; rows without any value are passed over; the rowid of a record
/// is the row of the sheet that it comes from, counted from 1. Rows are handed out in the order that a query
/// asks for, where it asks by columns.
/// @param tabella  name of the table, found without regard to capitals
/// @param legge    reads the sheet; what it throws makes the query fail
/// @param causa    gets the text of what it threw
void AggiungeTabella(sqlite3* db, const std::string& tabella,
                     std::function<std::shared_ptr<const FoglioLetto>()> legge, std::string& causa);

/// The first row of a sheet that is a record: behind the headings, where it has some.
std::size_t PrimaRecord(const FoglioLetto& foglio);

/// Names of the fields: the headings, F and the number of the column where there is none, a number behind a
/// name that has been before. At least one.
std::vector<std::string> NomiCampi(const FoglioLetto& foglio);

/// A name as SQL takes any name.
std::string TraVirgolette(std::string_view nome);

} // namespace sagomi
