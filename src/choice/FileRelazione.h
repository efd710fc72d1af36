#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

#include "report/Relazione.h"

namespace sagomi {

/// Whether a name is that of a joint's or a composite beam's file, by its extension in either case.
bool EFileDati(std::string_view nome);

/// While one lives, numbers are not grouped: a comma between figures would read as a decimal one.
class SenzaMigliaia {
public:
    SenzaMigliaia();
    ~SenzaMigliaia();
    SenzaMigliaia(const SenzaMigliaia&) = delete;
    SenzaMigliaia& operator=(const SenzaMigliaia&) = delete;

private:
    std::uint16_t prima_;
};

/// What a data file has to be reported.
struct DocumentoLetto {
    Relazione relazione;
    /// The lines of the printed report of a joint, in Windows-1252; without it the text is that of the
    /// report.
    std::function<bool(std::int16_t nFile)> scriveRighe{};
};

/// Reads a joint, with the results that it was saved with, or reads and checks a composite beam. Code and
/// factors in force; fck, fsk and n become those of the beam. Throws ErroreUso for a file that is none.
DocumentoLetto LeggeDocumento(const std::filesystem::path& file);

/// Where a command writes to; an empty name writes nothing.
struct UsciteComando {
    std::filesystem::path relazione, pdf, dxf;

    [[nodiscard]] bool Qualcuna() const { return !relazione.empty() || !pdf.empty() || !dxf.empty(); }
};

/// Writes them all. Throws std::runtime_error for a file that cannot be written; a file of that name from
/// before is then as it was.
void ScriveUscite(const DocumentoLetto& documento, const UsciteComando& uscite);

} // namespace sagomi
