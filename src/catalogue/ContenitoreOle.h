#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace sagomi {

/// Starts the library for compound documents, once; who uses it calls this first.
void AvviaLibreriaOle();

/// A compound document (OLE2) with one stream, byte for byte as it goes into a file.
/// @param nome  name of the stream ("Workbook" for a workbook)
/// @param dati  its contents
/// Throws std::runtime_error when the container cannot be made.
std::string ContenitoreOle(std::string_view nome, const std::vector<std::uint8_t>& dati);

} // namespace sagomi
