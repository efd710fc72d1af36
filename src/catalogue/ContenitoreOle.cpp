#include "catalogue/ContenitoreOle.h"

#include <cstddef>
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

void Riuscito(bool esito) {
    if (!esito)
        throw std::runtime_error("il contenitore OLE2 non si lascia comporre");
}

} // namespace

void AvviaLibreriaOle() {
    static const bool avviata = (gsf_init(), true);
    static_cast<void>(avviata);
}

std::string ContenitoreOle(std::string_view nome, const std::vector<std::uint8_t>& dati) {
    AvviaLibreriaOle();
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
    return {byte, byte + gsf_output_size(memoria.get())};
}

} // namespace sagomi
