#pragma once

#include <cstdint>
#include <filesystem>
#include <span>
#include <string_view>

/// The writer of DXF files: one section of entities, all on layer "0", in the plain form that every CAD
/// program of the last thirty years reads. Coordinates are in the units of the model, with a decimal point
/// whatever the system's separator; texts are in Windows-1252. Every entity takes the pen in force.
namespace sagomi {

inline std::int16_t nFileDxf = 0; ///< number of the open file; 0 when none is

/// The filter of the save dialog and which of its entries comes first.
inline constexpr std::string_view filtroDxf = "All Files (*.*)|*.*|Files per Autocad (*.dxf)|*.dxf";
inline constexpr int indiceFiltroDxf = 2;

/// Opens the file and writes its head. False, with nFile 0, when it cannot be written.
bool DxfApre(const std::filesystem::path& nomeFile, std::int16_t& nFile);

/// Writes the tail and closes the file. False when it did not reach the disk, which is told in a message; a
/// file of that name from before is then as it was.
bool DxfChiude();

/// Drops what was written; a file of that name from before stays as it was.
void DxfAbbandona();

void DxfLinea(double x1, double y1, double x2, double y2);
void DxfCerchio(double x, double y, double r);
/// Open line of the first n points; fewer than 2 write nothing.
void DxfPolilinea(std::int16_t n, std::span<const double> x, std::span<const double> y);
/// The same with the first point repeated at the end.
void DxfPolilineaChiusa(std::int16_t n, std::span<const double> x, std::span<const double> y);
/// Text (UTF-8) with the left end of its base line in (x, y). A line break in it becomes a blank.
void DxfTesto(double x, double y, double altezza, std::string_view testo);

} // namespace sagomi
