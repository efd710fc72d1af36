#include "catalogue/VerificaXls.h"

#include <cstddef>
#include <stdexcept>
#include <string>

namespace sagomi {

namespace {

constexpr unsigned protezione = 0x002F; ///< FILEPASS: what follows is enciphered

[[noreturn]] void Danneggiata(const char* dove) {
    throw std::runtime_error(std::string("la cartella di lavoro è danneggiata (") + dove + ")");
}

/// One string of the table: length, options, what else belongs to it; then characters, formats and reading.
void PercorriStringa(LettoreStringhe& lettore) {
    const auto testa = lettore.Prendi(3);
    const std::size_t primaParte = lettore.Parte();
    const unsigned caratteri = testa[0] | static_cast<unsigned>(testa[1]) << 8U;
    const unsigned opzioni = testa[2];
    std::size_t altro = 0;
    if ((opzioni & 8U) != 0) {
        const auto formati = lettore.Prendi(2);
        altro += 4 * (formati[0] | static_cast<std::size_t>(formati[1]) << 8U);
    }
    if ((opzioni & 4U) != 0) {
        const auto lettura = lettore.Prendi(4);
        altro += lettura[0] | static_cast<std::size_t>(lettura[1]) << 8U |
                 static_cast<std::size_t>(lettura[2]) << 16U | static_cast<std::size_t>(lettura[3]) << 24U;
    }
    lettore.Caratteri(caratteri, opzioni);
    if (lettore.Parte() > primaParte + 1)
        throw std::runtime_error("un testo è troppo lungo per essere letto");
    lettore.Salta(altro);
}

void PercorriStringhe(const RecordLetto& sst) {
    if (sst.Lunghezza() < 8)
        Danneggiata("testi");
    LettoreStringhe lettore(sst, 8);
    const std::uint32_t stringhe = sst.U32(4);
    for (std::uint32_t s = 0; s < stringhe; ++s)
        PercorriStringa(lettore);
}

/// Follows the parts of a stream, the workbook's head, its sheets and the charts inside them: each runs from
/// BOF to EOF and gives its used range once.
class Parti {
public:
    void Segue(const RecordLetto& record) {
        if (record.E(Biff::Bof)) {
            misure_.push_back(0);
            return;
        }
        if (misure_.empty())
            Danneggiata("record fuori posto");
        if (record.E(Biff::Eof))
            misure_.pop_back();
        else if (record.E(Biff::Dimensions) && ++misure_.back() > 1)
            Danneggiata("misure di un foglio");
        else if (record.Lunghezza() < Minimo(record.genere))
            Danneggiata("celle");
    }

    void Finisce() const {
        if (!misure_.empty())
            Danneggiata("la fine manca");
    }

private:
    /// Bytes that a record of a cell, of a row or of a range has at least.
    static std::size_t Minimo(unsigned genere) {
        switch (static_cast<Biff>(genere)) {
        case Biff::Formula:
        case Biff::Number:
            return 14;
        case Biff::Rk:
        case Biff::LabelSst:
        case Biff::Dimensions:
            return 10;
        case Biff::Row:
            return 16;
        case Biff::BoundSheet:
        case Biff::BoolErr:
            return 8;
        default:
            return 0;
        }
    }

    std::vector<int> misure_; ///< used ranges seen in each open part
};

} // namespace

void VerificaXls(const std::vector<RecordLetto>& record) {
    Parti parti;
    for (const RecordLetto& r : record) {
        if (r.genere == protezione)
            throw std::runtime_error("il file è protetto da una parola d'ordine");
        parti.Segue(r);
        if (r.E(Biff::Sst))
            PercorriStringhe(r);
    }
    parti.Finisce();
}

} // namespace sagomi
