#include "catalogue/VerificaXls.h"

#include <algorithm>
#include <cstddef>
#include <gsf/gsf-infile-msole.h>
#include <gsf/gsf-input-stdio.h>
#include <memory>
#include <span>
#include <stdexcept>
#include <string>

#include "catalogue/ContenitoreOle.h"
#include "catalogue/RecordBiff.h"

namespace sagomi {

namespace {

constexpr unsigned protezione = 0x002F; ///< FILEPASS: what follows is enciphered

[[noreturn]] void Danneggiata(const char* dove) {
    throw std::runtime_error(std::string("la cartella di lavoro è danneggiata (") + dove + ")");
}

unsigned Leggi16(std::span<const std::uint8_t> d, std::size_t i) {
    return d[i] | static_cast<unsigned>(d[i + 1]) << 8U;
}

std::uint32_t Leggi32(std::span<const std::uint8_t> d, std::size_t i) {
    return Leggi16(d, i) | static_cast<std::uint32_t>(Leggi16(d, i + 2)) << 16U;
}

/// Reads over the strings of SST and of the CONTINUE records behind it.
class PercorreStringhe {
public:
    explicit PercorreStringhe(std::vector<std::span<const std::uint8_t>> parti) : parti_(std::move(parti)) {}

    void Percorri() {
        if (Resto().size() < 8)
            Danneggiata("tabella dei testi");
        const std::uint32_t stringhe = Leggi32(Resto(), 4);
        i_ = 8;
        for (std::uint32_t s = 0; s < stringhe; ++s)
            Stringa();
    }

private:
    [[nodiscard]] std::span<const std::uint8_t> Resto() const { return parti_[parte_].subspan(i_); }

    void ProssimaParte() {
        i_ = 0;
        if (++parte_ >= parti_.size())
            Danneggiata("tabella dei testi");
    }

    /// Takes bytes that must stand in one record.
    std::span<const std::uint8_t> Prendi(std::size_t n) {
        if (Resto().empty())
            ProssimaParte();
        if (Resto().size() < n)
            Danneggiata("tabella dei testi");
        const auto presi = Resto().first(n);
        i_ += n;
        return presi;
    }

    /// Passes bytes over, whatever records they stand in.
    void Salta(std::size_t n) {
        while (n > 0) {
            if (Resto().empty())
                ProssimaParte();
            const std::size_t qui = std::min(n, Resto().size());
            i_ += qui;
            n -= qui;
        }
    }

    /// Length, width, what else belongs to it; then characters, formats and readings.
    void Stringa() {
        const auto testa = Prendi(3);
        const unsigned caratteri = Leggi16(testa, 0);
        const unsigned opzioni = testa[2];
        const std::size_t formati = (opzioni & 8U) != 0 ? Leggi16(Prendi(2), 0) : 0;
        const std::size_t lettura = (opzioni & 4U) != 0 ? Leggi32(Prendi(4), 0) : 0;
        Caratteri(caratteri, opzioni);
        Salta(4 * formati);
        Salta(lettura);
    }

    /// In each new record the characters begin with their width.
    void Caratteri(std::size_t n, unsigned opzioni) {
        while (n > 0) {
            if (Resto().empty()) {
                ProssimaParte();
                opzioni = Prendi(1)[0];
            }
            const std::size_t largo = (opzioni & 1U) != 0 ? 2 : 1;
            const std::size_t qui = std::min(n, Resto().size() / largo);
            if (qui == 0)
                Danneggiata("tabella dei testi");
            i_ += qui * largo;
            n -= qui;
        }
    }

    std::vector<std::span<const std::uint8_t>> parti_;
    std::size_t parte_ = 0;
    std::size_t i_ = 0;
};

/// Follows the parts of a stream, the workbook's head, its sheets and the charts inside them: each runs from
/// BOF to EOF and gives its used range once.
class Parti {
public:
    void Record(unsigned genere, std::size_t lunghezza) {
        if (genere == static_cast<unsigned>(Biff::Bof)) {
            misure_.push_back(0);
            return;
        }
        if (misure_.empty())
            Danneggiata("record fuori posto");
        if (genere == static_cast<unsigned>(Biff::Eof))
            misure_.pop_back();
        else if (genere == static_cast<unsigned>(Biff::Dimensions) && ++misure_.back() > 1)
            Danneggiata("misure di un foglio");
        else if (lunghezza < Minimo(genere))
            Danneggiata("celle");
    }

    void Fine() const {
        if (!misure_.empty())
            Danneggiata("la fine manca");
    }

private:
    /// Bytes that a record of a cell, of a row or of a range has at least.
    static std::size_t Minimo(unsigned genere) {
        switch (genere) {
        case static_cast<unsigned>(Biff::Number):
            return 14;
        case static_cast<unsigned>(Biff::Rk):
        case static_cast<unsigned>(Biff::LabelSst):
        case static_cast<unsigned>(Biff::Dimensions):
            return 10;
        case static_cast<unsigned>(Biff::Row):
            return 16;
        case static_cast<unsigned>(Biff::BoundSheet):
            return 8;
        default:
            return 0;
        }
    }

    std::vector<int> misure_; ///< used ranges seen in each open part
};

struct RilasciaOggetto {
    void operator()(void* o) const { g_object_unref(o); }
};
template <typename T> using Oggetto = std::unique_ptr<T, RilasciaOggetto>;

/// Keeps the container library from writing its own findings to the terminal while it lives. It speaks under
/// its own name and, of children, under none.
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

/// The stream of the workbook: "Workbook" from Excel 97 on, "Book" before.
std::vector<std::uint8_t> LeggiFlusso(const std::filesystem::path& file) {
    AvviaLibreriaOle();
    const Silenzio silenzio;
    const Oggetto<GsfInput> ingresso(gsf_input_stdio_new(file.c_str(), nullptr));
    if (!ingresso)
        throw std::runtime_error("il file non si apre");
    const Oggetto<GsfInfile> contenitore(gsf_infile_msole_new(ingresso.get(), nullptr));
    if (!contenitore)
        throw std::runtime_error("il file non è una cartella di lavoro .xls");
    for (const char* nome : {"Workbook", "Book"}) {
        const Oggetto<GsfInput> flusso(gsf_infile_child_by_name(contenitore.get(), nome));
        if (!flusso)
            continue;
        std::vector<std::uint8_t> dati(static_cast<std::size_t>(gsf_input_size(flusso.get())));
        if (gsf_input_read(flusso.get(), dati.size(), dati.data()) == nullptr)
            Danneggiata("contenitore");
        return dati;
    }
    throw std::runtime_error("il file non contiene una cartella di lavoro");
}

} // namespace

void VerificaFlussoBiff(const std::vector<std::uint8_t>& flusso) {
    std::vector<std::span<const std::uint8_t>> stringhe;
    Parti parti;
    bool nellaTabella = false;
    const std::span<const std::uint8_t> tutto(flusso);
    for (std::size_t i = 0; i + testaRecord <= tutto.size();) {
        const unsigned genere = Leggi16(tutto, i);
        const std::size_t lunghezza = Leggi16(tutto, i + 2);
        if (genere == 0 && lunghezza == 0)
            break; // the rest is filling
        if (i + testaRecord + lunghezza > tutto.size())
            Danneggiata("record");
        if (genere == protezione)
            throw std::runtime_error("il file è protetto da una parola d'ordine");
        parti.Record(genere, lunghezza);
        nellaTabella = genere == static_cast<unsigned>(Biff::Sst) ||
                       (nellaTabella && genere == static_cast<unsigned>(Biff::Continue));
        if (nellaTabella)
            stringhe.push_back(tutto.subspan(i + testaRecord, lunghezza));
        i += testaRecord + lunghezza;
    }
    parti.Fine();
    if (!stringhe.empty())
        PercorreStringhe(std::move(stringhe)).Percorri();
}

void VerificaXls(const std::filesystem::path& file) { VerificaFlussoBiff(LeggiFlusso(file)); }

} // namespace sagomi
