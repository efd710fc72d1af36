#pragma once

#include <filesystem>
#include <string>

namespace sagomi {

/// Why a file cannot be written, in the words of a message: the folder, the file, their rights, the disk.
std::string MotivoNonScritto(const std::filesystem::path& file);

/// Why a file cannot be read.
std::string MotivoNonLetto(const std::filesystem::path& file);

/// The whole message: what could not be done, with which file and why.
std::string AvvisoNonScritto(const std::filesystem::path& file);
std::string AvvisoNonLetto(const std::filesystem::path& file);

} // namespace sagomi
