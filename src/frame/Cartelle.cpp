#include "frame/Cartelle.h"

#include <cstdlib>
#include <system_error>

#include "frame/FileDati.h"
#include "frame/GeneraleSagomi.h"

namespace sagomi {

namespace fs = std::filesystem;

namespace {

bool ConCatalogo(const fs::path& cartella) {
    std::error_code errore;
    return fs::exists(PercorsoSenzaMaiuscole(cartella, "Sagomi.xls"), errore);
}

fs::path Variabile(const char* nome) {
    const char* valore = std::getenv(nome); // NOLINT(concurrency-mt-unsafe): nobody writes the environment
    return valore == nullptr ? fs::path() : fs::path(valore);
}

fs::path CartellaUtente(const char* variabile, const char* nellaCasa) {
    fs::path scelta = Variabile(variabile);
    return scelta.is_absolute() ? scelta : Variabile("HOME") / nellaCasa;
}

} // namespace

fs::path CartellaFile(const fs::path& programma) {
    if (ConCatalogo(programma))
        return programma;
    fs::path condivisa = programma.parent_path() / "share" / "sagomi";
    return ConCatalogo(condivisa) ? condivisa : programma;
}

fs::path CartellaDatiUtente() { return CartellaUtente("XDG_DATA_HOME", ".local/share"); }

fs::path CartellaConfigurazioneUtente() { return CartellaUtente("XDG_CONFIG_HOME", ".config"); }

fs::path CartellaInstallata() { return PathInstallazione.empty() ? PathProgramma : PathInstallazione; }

} // namespace sagomi
