#include "frame/RecentiDesktop.h"

#include <glib.h>

#include <algorithm>
#include <cctype>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>

#include "frame/FileAtomico.h"
#include "frame/LetturaFile.h"
#include "frame/Ripristino.h"

namespace sagomi {

namespace fs = std::filesystem;

namespace {

fs::path& Cartella() {
    static fs::path cartella;
    return cartella;
}

[[maybe_unused]] const bool ripristino = AggiungeRipristino([] { Cartella().clear(); });

struct Tipo {
    std::string_view estensione;
    const char* mime;
};
constexpr Tipo tipi[] = {{".gfl", "application/x-sagomi-giunto"}, {".sco", "application/x-sagomi-trave"}};

const char* TipoMime(const fs::path& file) {
    std::string estensione = file.extension().string();
    std::ranges::transform(estensione, estensione.begin(),
                           [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    const auto* tipo = std::ranges::find(tipi, estensione, &Tipo::estensione);
    return tipo == std::end(tipi) ? nullptr : tipo->mime;
}

struct Libera {
    void operator()(GBookmarkFile* lista) const { g_bookmark_file_free(lista); }
    void operator()(gchar* testo) const { g_free(testo); }
};
using Lista = std::unique_ptr<GBookmarkFile, Libera>;
using Testo = std::unique_ptr<gchar, Libera>;

constexpr std::size_t byteMassimi = std::size_t{16} << 20U;

/// The list of a file, empty where there is none; nullptr where it is no list, or none of a desktop's length.
Lista Legge(const fs::path& file) {
    Lista lista(g_bookmark_file_new());
    std::error_code errore;
    if (!fs::exists(file, errore))
        return lista;
    try {
        const FileLetto letto = LeggeFile(file, byteMassimi);
        const std::string testo(letto.byte.begin(), letto.byte.end());
        if (g_bookmark_file_load_from_data(lista.get(), testo.data(), testo.size(), nullptr) == FALSE)
            lista.reset();
    } catch (const std::runtime_error&) {
        lista.reset();
    }
    return lista;
}

/// What others use concerns nobody: a new list is the user's alone.
void Scrive(GBookmarkFile& lista, const fs::path& file) {
    gsize lunghezza = 0;
    const Testo byte(g_bookmark_file_to_data(&lista, &lunghezza, nullptr));
    std::error_code errore;
    const bool nuova = !fs::exists(file, errore);
    if (byte != nullptr && ScriveAtomico(file, {byte.get(), lunghezza}) && nuova)
        fs::permissions(file, fs::perms::owner_read | fs::perms::owner_write, errore);
}

} // namespace

void CartellaRecenti(const fs::path& cartella) { Cartella() = cartella; }

void RicordaNelDesktop(const fs::path& file) {
    const char* mime = TipoMime(file);
    const Testo uri(g_filename_to_uri(file.c_str(), nullptr, nullptr));
    if (!Cartella().is_absolute() || mime == nullptr || uri == nullptr)
        return;
    const fs::path elenco = Cartella() / "recently-used.xbel";
    const Lista lista = Legge(elenco);
    if (lista == nullptr)
        return;
    g_bookmark_file_set_mime_type(lista.get(), uri.get(), mime);
    g_bookmark_file_add_application(lista.get(), uri.get(), "Sagomi", "sagomi %f");
    Scrive(*lista, elenco);
}

} // namespace sagomi
