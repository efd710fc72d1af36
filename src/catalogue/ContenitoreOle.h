#pragma once

#include <cstdint>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace sagomi {

/// A compound document (OLE2) with one stream, byte for byte as it goes into a file.
/// @param nome  name of the stream ("Workbook" for a workbook)
/// @param dati  its contents
/// Throws std::runtime_error when the container cannot be made.
std::string ContenitoreOle(std::string_view nome, const std::vector<std::uint8_t>& dati);

/// The contents of a stream of a compound document: of the first of these names that it has.
/// @param file  the bytes of the document
/// Throws std::runtime_error, in Italian, when they are no compound document, it has no such stream, or the
/// stream is cut short.
std::vector<std::uint8_t> LeggeFlussoOle(std::span<const std::uint8_t> file,
                                         std::initializer_list<const char*> nomi);

} // namespace sagomi
