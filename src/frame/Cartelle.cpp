#include "frame/Cartelle.h"

#include <system_error>

#include "frame/FileDati.h"

namespace sagomi {

namespace fs = std::filesystem;

namespace {

bool ConCatalogo(const fs::path& cartella) {
    std::error_code errore;
    return fs::exists(PercorsoSenzaMaiuscole(cartella, "Sagomi.xls"), errore);
}

} // namespace

fs::path CartellaFile(const fs::path& programma) {
    if (ConCatalogo(programma))
        return programma;
    fs::path installata = programma.parent_path() / "share" / "sagomi";
    return ConCatalogo(installata) ? installata : programma;
}

} // namespace sagomi
