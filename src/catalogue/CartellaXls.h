#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "catalogue/FoglioLetto.h"
#include "catalogue/LetturaFoglio.h"
#include "catalogue/TestaXls.h"
#include "frame/LetturaFile.h"

namespace sagomi {

/// A workbook of the format of Excel 97 to 2003 (".xls"; also of Excel 5 and 95), by whatever program it was
/// saved. Its file is opened once and taken whole; a sheet is read when it is asked for, so that a damaged
/// one hinders nobody who does not need it.
///
/// What fails throws std::runtime_error with the cause in Italian, to stand behind the name of the file.
class CartellaXls {
public:
    /// Reads the head of the workbook in a file of at most massimoFile bytes. Of a file with both streams
    /// "Workbook" counts, not "Book".
    explicit CartellaXls(const std::filesystem::path& file);

    /// The same on the stream of a workbook, taken out of its container.
    explicit CartellaXls(std::vector<std::uint8_t> flusso);

    /// The state of the file when it was read.
    [[nodiscard]] const ImprontaFile& Impronta() const { return impronta_; }

    /// The sheets of cells, in the order of their tabs; at least one.
    [[nodiscard]] std::size_t Fogli() const { return testa_.fogli.size(); }
    [[nodiscard]] const std::string& Nome(std::size_t foglio) const { return testa_.fogli.at(foglio).nome; }

    /// Reads a sheet, 0 to Fogli() - 1. All the sheets together give at most massimaMisura.
    [[nodiscard]] FoglioLetto Legge(std::size_t foglio);

private:
    explicit CartellaXls(FileLetto file);
    void LeggeInizio();

    ImprontaFile impronta_;
    std::vector<std::uint8_t> flusso_;
    TestaXls testa_;
    std::vector<MisuraCelle> misure_; ///< of each sheet when it was read
};

} // namespace sagomi
