#include "catalogue/TestaXls.h"

#include <algorithm>
#include <map>
#include <stdexcept>
#include <utility>

#include "catalogue/FormatiXls.h"
#include "catalogue/LetturaBiff.h"
#include "catalogue/LimitiXls.h"

namespace sagomi {

namespace {

/// Reads the records of the head one by one.
class LettoreTesta {
public:
    explicit LettoreTesta(std::span<const std::uint8_t> flusso) : cursore_(flusso) {}

    TestaXls Legge() {
        Inizio();
        for (;;) {
            if (!cursore_.Avanza())
                throw DannoBiff("la fine manca");
            if (cursore_.E(Biff::Eof))
                break;
            UnRecord();
        }
        testa_.testi = std::make_shared<const TestiLetti>(std::move(testi_));
        Generi();
        return std::move(testa_);
    }

private:
    void Inizio() {
        constexpr unsigned biff8 = 0x0600, biff5 = 0x0500;
        if (!cursore_.Avanza() || !cursore_.E(Biff::Bof))
            throw DannoBiff("inizio");
        const unsigned versione = cursore_.U16(0);
        if (versione != biff8 && versione != biff5)
            throw std::runtime_error("il formato è di un programma troppo vecchio");
        testa_.biff8 = versione == biff8;
    }

    void UnRecord() {
        switch (static_cast<Biff>(cursore_.Genere())) {
        case Biff::FilePass: // what follows is enciphered
            throw std::runtime_error("il file è protetto da una parola d'ordine");
        case Biff::DateMode:
            testa_.dal1904 = cursore_.U16(0) == 1;
            break;
        case Biff::Format:
            Formato();
            break;
        case Biff::Xf:
            stili_.push_back(static_cast<std::uint16_t>(cursore_.U16(2)));
            break;
        case Biff::BoundSheet:
            UnFoglio();
            break;
        case Biff::Sst:
            Testi();
            break;
        default:
            break;
        }
    }

    /// A text behind its length, of one byte or of two before Excel 97.
    void Testo(LettoreStringhe& lettore, std::size_t n, std::string& utf8) const {
        if (!testa_.biff8)
            return lettore.CaratteriAnsi(n, utf8);
        const unsigned opzioni = lettore.U8();
        lettore.Caratteri(n, opzioni, utf8);
    }

    void Formato() {
        const unsigned numero = cursore_.U16(0);
        LettoreStringhe lettore(cursore_, 2);
        std::string figura;
        const std::size_t n = testa_.biff8 ? lettore.U16() : lettore.U8();
        Testo(lettore, n, figura);
        formati_[numero] = GenereFigura(figura);
    }

    void UnFoglio() {
        constexpr unsigned celle = 0; // others are charts, macros and modules
        const bool diCelle = cursore_.U8(5) == celle;
        VoceFoglio voce{{}, cursore_.U32(0)};
        LettoreStringhe lettore(cursore_, 6);
        const std::size_t n = lettore.U8();
        Testo(lettore, n, voce.nome);
        if (!diCelle)
            return;
        if (testa_.fogli.size() >= massimiFogli)
            throw std::runtime_error("la cartella di lavoro ha troppi fogli");
        testa_.fogli.push_back(std::move(voce));
    }

    void Testi() {
        const std::size_t n = cursore_.U32(4);
        if (n > massimeCelle || testi_.size() > 0)
            throw DannoBiff("testi");
        testi_.Riserva(std::min(n, cursore_.Lunghezza()));
        LettoreStringhe lettore(cursore_, 8);
        for (std::size_t i = 0; i < n; ++i)
            UnTesto(lettore);
    }

    /// Length and options of a text, what else belongs to it; then characters, formats and reading.
    void UnTesto(LettoreStringhe& lettore) {
        const std::size_t caratteri = lettore.U16();
        const unsigned opzioni = lettore.U8();
        std::size_t altro = 0;
        if ((opzioni & 8U) != 0)
            altro += 4 * std::size_t{lettore.U16()};
        if ((opzioni & 4U) != 0)
            altro += lettore.U32();
        lettore.Caratteri(caratteri, opzioni, testi_.InCorso());
        testi_.Chiude();
        lettore.Salta(altro);
    }

    void Generi() {
        testa_.generi.reserve(stili_.size());
        for (const unsigned formato : stili_) {
            const auto proprio = formati_.find(formato);
            testa_.generi.push_back(proprio == formati_.end() ? GenereFormato(formato) : proprio->second);
        }
    }

    CursoreBiff cursore_;
    TestaXls testa_;
    TestiLetti testi_;
    std::map<unsigned, GenereNumero> formati_; ///< by their number
    std::vector<std::uint16_t> stili_;         ///< number of the format of each cell style
};

} // namespace

TestaXls LeggeTesta(std::span<const std::uint8_t> flusso) { return LettoreTesta(flusso).Legge(); }

} // namespace sagomi
