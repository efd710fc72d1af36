#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "catalogue/Valore.h"
#include "frame/LetturaFile.h"

struct sqlite3;

namespace sagomi {

/// Rows and field names that a query gave.
struct EsitoQuery {
    std::vector<std::string> campi;
    std::vector<std::vector<Valore>> righe; ///< each as long as campi
};

/// A workbook as a database: a table a sheet, named so that the queries run as they are written ([IPE$],
/// ['L Uguali'$]). A sheet is read when the first query names it; one that cannot be read makes no other
/// query fail. Of sheets whose names differ by capitals at most the first counts. The first row gives the
/// names of the fields, which are found without regard to capitals; numbers stay numbers, texts texts, empty
/// cells are NULL. Rows without any value are passed over. The rowid of a record is the row of the sheet that
/// it comes from, counted from 1.
class Catalogo {
public:
    /// The catalogue of a workbook. The last few are held: one is read again only when its file has changed.
    /// Throws ErroreCatalogo.
    static std::shared_ptr<Catalogo> Apre(const std::filesystem::path& file);

    /// Opens a workbook. Throws ErroreCatalogo.
    explicit Catalogo(const std::filesystem::path& file);
    ~Catalogo();
    Catalogo(const Catalogo&) = delete;
    Catalogo& operator=(const Catalogo&) = delete;

    /// Runs a query and fetches all of its rows. Throws ErroreCatalogo, with the file's name and what is
    /// missing; nothing but a single SELECT is run, and none that takes too many steps or gives more than a
    /// workbook may hold.
    [[nodiscard]] EsitoQuery Esegue(std::string_view query) const;

    /// The state of the file when it was opened.
    [[nodiscard]] const ImprontaFile& Impronta() const;

private:
    struct Stato;
    struct Chiude {
        void operator()(sqlite3* db) const;
    };

    void ApreTabelle();
    [[nodiscard]] EsitoQuery Raccoglie(std::string_view query) const;

    std::filesystem::path file_;
    std::unique_ptr<Stato> stato_; ///< before the database, whose tables use it
    std::unique_ptr<sqlite3, Chiude> db_;
};

/// A file of a folder whatever the capitals of its name. Where there is none the name as asked for, so that
/// an error can tell what was looked for.
std::filesystem::path FileAccanto(const std::filesystem::path& cartella, std::string_view nome);

/// Takes the right to write from a file, as far as the system lets. Never fails.
void RendeSolaLettura(const std::filesystem::path& file) noexcept;

} // namespace sagomi
