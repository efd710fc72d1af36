#pragma once

#include <cstddef>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "sections/SezioneQualsiasi.h"

/// The rows that a choice is made of, read once.
namespace sagomi {

class Lettore;

/// A row of the catalogue with its constants; without steel and forces.
struct SagomoInGara {
    std::string schermo;  ///< name of the main screen that its kind belongs to
    std::string famiglia; ///< name of its sheet
    bool utente = false;  ///< one of the user's own
    double g = 0;         ///< weight [kg/m]
    SezioneQualsiasi sezione;

    [[nodiscard]] const std::string& Designazione() const;
};

/// What was read, and in Italian why a sheet was not.
struct Gara {
    std::vector<SagomoInGara> sagomi;
    std::vector<std::string> mancanti;
};

/// Reads the rows of all families of all main screens: "Sagomi.xls", and the user's own of "SagomiUtente.xls"
/// where there is one. A sheet that cannot be read leaves the others.
/// @param cartella  the folder of both workbooks
/// @param famiglie  names of the sheets to read; empty for all
Gara LeggeGara(const std::filesystem::path& cartella, const std::vector<std::string>& famiglie = {});

/// The same, piece by piece: who reads a long catalogue does other things in between.
class LetturaGara {
public:
    /// @param sagomi   the workbook
    /// @param utente   that of the user's own; one that is not there is none
    /// @param famiglie names of the sheets to read; empty for all
    LetturaGara(const std::filesystem::path& sagomi, const std::filesystem::path& utente,
                const std::vector<std::string>& famiglie = {});
    ~LetturaGara();
    LetturaGara(const LetturaGara&) = delete;
    LetturaGara& operator=(const LetturaGara&) = delete;

    /// Reads some more rows into `letti`.
    /// @return whether there are more
    bool Legge(std::size_t righe);

    Gara letti; ///< what has been read; may be taken away between two pieces

private:
    struct Foglio;
    void Apre();
    void Prende();

    std::vector<Foglio> fogli_;
    std::size_t foglio_ = 0;         ///< being read
    std::unique_ptr<Lettore> righe_; ///< of it; null before it is opened
};

} // namespace sagomi
