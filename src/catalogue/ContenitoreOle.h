#pragma once

#include <cstdint>
#include <filesystem>
#include <initializer_list>
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
/// Throws std::runtime_error, in Italian, when the file cannot be opened, is no compound document, has no
/// such stream, or the stream is cut short.
std::vector<std::uint8_t> LeggiFlussoOle(const std::filesystem::path& file,
                                         std::initializer_list<const char*> nomi);

} // namespace sagomi
