#include "catalogue/ContenitoreOle.h"

#include <cstddef>
#include <gsf/gsf-infile-msole.h>
#include <gsf/gsf-input-memory.h>
#include <gsf/gsf-outfile-msole.h>
#include <gsf/gsf-output-memory.h>
#include <gsf/gsf-utils.h>
#include <memory>
#include <stdexcept>

namespace sagomi {

namespace {

struct RilasciaOggetto {
    void operator()(void* o) const { g_object_unref(o); }
};
template <typename T> using Oggetto = std::unique_ptr<T, RilasciaOggetto>;

void AvviaLibreria() {
    static const bool avviata = (gsf_init(), true);
    static_cast<void>(avviata);
}

void Riuscito(bool esito) {
    if (!esito)
        throw std::runtime_error("il contenitore OLE2 non si lascia comporre");
}

/// Keeps the library from writing its own findings to the terminal while it lives. It speaks under its own
/// name and, of the streams, under none.
class Silenzio {
public:
    Silenzio() : proprio_(Zittisce(dominio)), anonimo_(Zittisce(nullptr)) {}
    ~Silenzio() {
        g_log_remove_handler(dominio, proprio_);
        g_log_remove_handler(nullptr, anonimo_);
    }
    Silenzio(const Silenzio&) = delete;
    Silenzio& operator=(const Silenzio&) = delete;

private:
    static constexpr const char* dominio = "libgsf:msole";

    static guint Zittisce(const char* nome) {
        return g_log_set_handler(
            nome, static_cast<GLogLevelFlags>(G_LOG_LEVEL_MASK | G_LOG_FLAG_RECURSION),
            [](const gchar*, GLogLevelFlags, const gchar*, gpointer) {}, nullptr);
    }

    guint proprio_;
    guint anonimo_;
};

} // namespace

std::string ContenitoreOle(std::string_view nome, const std::vector<std::uint8_t>& dati) {
    AvviaLibreria();
    const Oggetto<GsfOutput> memoria(gsf_output_memory_new());
    const Oggetto<GsfOutfile> contenitore(gsf_outfile_msole_new(memoria.get()));
    const Oggetto<GsfOutput> flusso(
        gsf_outfile_new_child(contenitore.get(), std::string(nome).c_str(), FALSE));
    Riuscito(flusso != nullptr);
    Riuscito(gsf_output_write(flusso.get(), dati.size(), dati.data()) != FALSE);
    Riuscito(gsf_output_close(flusso.get()) != FALSE);
    Riuscito(gsf_output_close(GSF_OUTPUT(contenitore.get())) != FALSE);
    const guint8* byte = gsf_output_memory_get_bytes(GSF_OUTPUT_MEMORY(memoria.get()));
    Riuscito(byte != nullptr);
    return {reinterpret_cast<const char*>(byte), static_cast<std::size_t>(gsf_output_size(memoria.get()))};
}

namespace {

/// The contents of an open stream. One that says to be longer than its whole file is damaged.
std::vector<std::uint8_t> Contenuto(GsfInput* flusso, std::size_t massimo) {
    const auto lunghezza = static_cast<std::size_t>(gsf_input_size(flusso));
    const guint8* byte = nullptr;
    if (lunghezza <= massimo)
        byte = gsf_input_read(flusso, lunghezza, nullptr);
    if (byte == nullptr && lunghezza > 0)
        throw std::runtime_error("la cartella di lavoro è danneggiata (contenitore)");
    return {byte, byte + lunghezza};
}

} // namespace

std::vector<std::uint8_t> LeggeFlussoOle(std::span<const std::uint8_t> file,
                                         std::initializer_list<const char*> nomi) {
    AvviaLibreria();
    const Silenzio silenzio;
    Oggetto<GsfInput> ingresso;
    if (!file.empty())
        ingresso.reset(gsf_input_memory_new(file.data(), static_cast<gsf_off_t>(file.size()), FALSE));
    Oggetto<GsfInfile> contenitore;
    if (ingresso)
        contenitore.reset(gsf_infile_msole_new(ingresso.get(), nullptr));
    if (!contenitore)
        throw std::runtime_error("il file non è una cartella di lavoro .xls");
    for (const char* nome : nomi)
        if (const Oggetto<GsfInput> flusso{gsf_infile_child_by_name(contenitore.get(), nome)})
            return Contenuto(flusso.get(), file.size());
    throw std::runtime_error("il file non contiene una cartella di lavoro");
}

} // namespace sagomi
