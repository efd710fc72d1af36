#pragma once

#include <filesystem>
#include <functional>

namespace sagomi {

struct Relazione;

/// Writes a report as a PDF file; throws std::runtime_error, in Italian, where the file cannot be written.
/// What lays out pages plugs it in.
using ScritturaPdf = std::function<void(const Relazione& relazione, const std::filesystem::path& file)>;
void ImpostaScritturaPdf(ScritturaPdf scrittura);

/// Writes by what is plugged in; throws std::runtime_error without it.
void ScrivePdf(const Relazione& relazione, const std::filesystem::path& file);

} // namespace sagomi
