#pragma once

#include <cstdint>
#include <filesystem>
#include <vector>

namespace sagomi {

/// Goes through a workbook once before it is read: the reading library trusts lengths and counts that a
/// damaged file may have wrong, above all those of the table of strings.
/// Throws std::runtime_error, with the Italian words for what is wrong, when the file cannot be opened, is no
/// compound document, has no workbook in it, is protected by a password, or its records do not add up.
void VerificaXls(const std::filesystem::path& file);

/// The same for the stream inside: records whose lengths fill it, and a table of strings that holds as many
/// strings as it says.
void VerificaFlussoBiff(const std::vector<std::uint8_t>& flusso);

} // namespace sagomi
