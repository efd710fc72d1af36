#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <iosfwd>
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
    /// Hands on the lines of the printed report of a joint, UTF-8, until one is not taken; gives whether all
    /// were. Without it the text is that of the report.
    std::function<bool(const std::function<bool(std::string_view)>& scrive)> righe{};
};

/// Reads a joint, with the results that it was saved with, or reads and checks a composite beam. Code and
/// factors in force; fck, fsk and n become those of the beam. Throws ErroreUso for a file that is none.
DocumentoLetto LeggeDocumento(const std::filesystem::path& file);

/// The name of the standard output.
inline constexpr std::string_view uscitaStandard = "-";

/// Where a command writes to; an empty name writes nothing. The text may go to the standard output.
struct UsciteComando {
    std::filesystem::path relazione, pdf, dxf;

    [[nodiscard]] bool Qualcuna() const { return !relazione.empty() || !pdf.empty() || !dxf.empty(); }
};

/// Writes them all; the text of a joint to a file in Windows-1252, anything else in UTF-8. Throws
/// std::runtime_error for a file that cannot be written; a file of that name from before is then as it was.
/// Whether all of them can be opened is tried before the first is written; what was written before the disk
/// refused one is named.
/// @param uscita  the standard output
void ScriveUscite(const DocumentoLetto& documento, const UsciteComando& uscite, std::ostream& uscita);

} // namespace sagomi
