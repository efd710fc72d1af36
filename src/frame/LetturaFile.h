#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <vector>

namespace sagomi {

/// Tells two states of a file apart. The default is that of no file.
struct ImprontaFile {
    std::uint64_t disco = 0, nodo = 0;
    std::int64_t lunghezza = 0;
    std::int64_t secondi = 0, nanosecondi = 0; ///< of the last change
    bool operator==(const ImprontaFile&) const = default;
};

/// The state of a file now; that of no file when it cannot be told.
ImprontaFile ImprontaDi(const std::filesystem::path& file) noexcept;

/// The bytes of a file and the state in which they were read.
struct FileLetto {
    std::vector<std::uint8_t> byte;
    ImprontaFile impronta;
};

/// Reads a file whole, opened once. Nothing but an ordinary file is read, so that the program never waits for
/// a pipe or a device.
/// @param massimo  most bytes that are read
/// Throws std::runtime_error, in Italian, for a file that is not there, is none of the ordinary kind, cannot
/// be read or is longer.
FileLetto LeggeFile(const std::filesystem::path& file, std::size_t massimo);

} // namespace sagomi
