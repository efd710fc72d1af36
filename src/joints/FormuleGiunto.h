#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace sagomi {

class Giunto;

/// The file with the formulas of a joint, beside the program: RTF that a word processor shows whole, with a
/// block for each quantity between two lines with the same tag.
inline constexpr std::string_view fileFormule = "FormuleGiunto.rtf";

/// The text of a quantity: the head of the file, its block, the end of an RTF. None where the file has no
/// such block.
/// @param rtf  bytes of the file
/// @param id   of the quantity, as the member of Giunto that holds it: "k6", "FtRd_Anima_c"
[[nodiscard]] std::optional<std::string> TestoFormula(std::string_view rtf, std::string_view id);

/// The same from the file in a folder. A file that is not there, cannot be read or has no such block throws
/// ErroreNumerato.
[[nodiscard]] std::string LeggeFormula(const std::filesystem::path& cartella, std::string_view id);

/// The quantity that a control shows ("txtF2", "TxtSj_0", "Textm1"), which may depend on the stiffeners;
/// empty for a control without a formula.
[[nodiscard]] std::string_view IdFormula(std::string_view controllo, const Giunto& giunto);

} // namespace sagomi
