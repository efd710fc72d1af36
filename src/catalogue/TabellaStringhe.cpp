#include "catalogue/TabellaStringhe.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace sagomi {

namespace {

/// Where a string begins: in the stream, and in the record that holds it.
struct PostoStringa {
    std::uint32_t nelFlusso;
    std::uint32_t nelRecord;
};

/// Fills SST and CONTINUE records. The head of a string (length and width) and its first character stand in
/// one record; the characters may go on in the next one, which then begins with their width again.
class RiempieSst {
public:
    RiempieSst(FlussoBiff& flusso, std::uint32_t usi, std::size_t unici) : flusso_(flusso) {
        corpo_.U32(usi).U32(static_cast<std::uint32_t>(unici));
    }

    PostoStringa Aggiunge(std::u16string_view t) {
        const bool stretto = EntraInUnByte(t);
        const std::size_t largo = stretto ? 1 : 2;
        constexpr std::size_t testaStringa = 3;
        if (corpo_.size() + testaStringa + 2 * largo > massimoRecord)
            Chiude();
        const PostoStringa posto{flusso_.Posizione() +
                                     static_cast<std::uint32_t>(testaRecord + corpo_.size()),
                                 static_cast<std::uint32_t>(testaRecord + corpo_.size())};
        corpo_.U16(static_cast<unsigned>(t.size())).U8(stretto ? 0 : 1);
        for (std::size_t fatti = 0; fatti < t.size();) {
            if (fatti > 0) {
                Chiude();
                corpo_.U8(stretto ? 0 : 1);
            }
            const std::size_t n = Pezzo(t, fatti, (massimoRecord - corpo_.size()) / largo);
            corpo_.Testo(t, fatti, n, stretto);
            fatti += n;
        }
        return posto;
    }

    void Chiude() {
        flusso_.Record(genere_, corpo_);
        genere_ = Biff::Continue;
        corpo_.Svuota();
    }

private:
    /// How many characters go in here. The two halves of a character beyond U+FFFF stay together, for readers
    /// that decode a record at a time.
    static std::size_t Pezzo(std::u16string_view t, std::size_t da, std::size_t spazio) {
        const std::size_t n = std::min(spazio, t.size() - da);
        const bool aMeta = da + n < t.size() && (t[da + n - 1] & 0xFC00) == 0xD800;
        return aMeta ? n - 1 : n;
    }

    FlussoBiff& flusso_;
    Biff genere_ = Biff::Sst;
    Ottetti corpo_;
};

/// Strings between two entries of EXTSST: at least 8, and so many that about 128 entries are enough.
std::size_t PassoIndice(std::size_t unici) { return std::max<std::size_t>(8, unici / 128 + 1); }

} // namespace

void TabellaStringhe::Raccoglie(const std::string& testo) {
    ++usi_;
    const auto [voce, nuova] = indici_.try_emplace(testo, static_cast<std::uint32_t>(testi_.size()));
    if (!nuova)
        return;
    std::u16string u = Utf16DaUtf8(testo);
    if (u.size() > massimoTesto) {
        indici_.erase(voce);
        throw std::length_error("testo di " + std::to_string(u.size()) + " caratteri");
    }
    testi_.push_back(std::move(u));
}

void TabellaStringhe::Scrive(FlussoBiff& flusso) const {
    const std::size_t passo = PassoIndice(testi_.size());
    Ottetti indice;
    indice.U16(static_cast<unsigned>(passo));
    RiempieSst sst(flusso, usi_, testi_.size());
    for (std::size_t i = 0; i < testi_.size(); ++i) {
        const PostoStringa posto = sst.Aggiunge(testi_[i]);
        if (i % passo == 0)
            indice.U32(posto.nelFlusso).U16(posto.nelRecord).U16(0);
    }
    sst.Chiude();
    flusso.Record(Biff::ExtSst, indice);
}

} // namespace sagomi
