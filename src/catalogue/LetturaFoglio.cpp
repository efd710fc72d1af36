#include "catalogue/LetturaFoglio.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <stdexcept>
#include <utility>

#include "catalogue/LetturaBiff.h"

namespace sagomi {

namespace {

constexpr std::size_t testaCella = 6; ///< row, column, style

class LettoreFoglio {
public:
    LettoreFoglio(std::span<const std::uint8_t> flusso, const TestaXls& testa, std::size_t indice,
                  MisuraCelle& resta)
        : cursore_(flusso, testa.fogli[indice].posizione), testa_(testa), resta_(resta),
          foglio_(testa.fogli[indice].nome, testa.testi) {}

    FoglioLetto Legge() {
        if (Inizio())
            while (!Finito())
                if (profondita_ == 1)
                    UnRecord();
        foglio_.Termina();
        return std::move(foglio_);
    }

private:
    /// True for a part that has cells.
    bool Inizio() {
        constexpr unsigned foglioDiCelle = 0x0010;
        if (!cursore_.Avanza() || !cursore_.E(Biff::Bof))
            throw DannoBiff("inizio");
        return cursore_.U16(2) == foglioDiCelle;
    }

    /// Goes one record on; true at the end of the sheet. Charts inside it begin and end in the same way.
    bool Finito() {
        if (!cursore_.Avanza())
            throw DannoBiff("la fine manca");
        if (cursore_.E(Biff::Bof))
            ++profondita_;
        else if (cursore_.E(Biff::Eof))
            --profondita_;
        return profondita_ == 0;
    }

    void UnRecord() {
        switch (static_cast<Biff>(cursore_.Genere())) {
        case Biff::Number:
            return Numero(Qui(), cursore_.U16(4), std::bit_cast<double>(cursore_.U64(testaCella)));
        case Biff::Rk:
            return Numero(Qui(), cursore_.U16(4), DecodificaRk(cursore_.U32(testaCella)));
        case Biff::MulRk:
            return PiuNumeri();
        case Biff::LabelSst:
            return TestoComune();
        case Biff::Label:
        case Biff::RString:
            return Testo(Qui(), testaCella);
        case Biff::BoolErr:
            return LogicoOErrore();
        case Biff::Formula:
            return Formula();
        case Biff::String:
            return TestoDiFormula();
        default:
            return;
        }
    }

    struct Posto {
        unsigned riga, colonna;
    };
    [[nodiscard]] Posto Qui() const { return {cursore_.U16(0), cursore_.U16(2)}; }

    void Aggiunge(Posto posto, CellaLetta::Tipo tipo, std::uint64_t dato = 0,
                  GenereNumero genere = GenereNumero::Semplice) {
        if (posto.colonna >= massimeColonne)
            throw DannoBiff("celle oltre la colonna 256");
        if (resta_.celle == 0)
            throw std::runtime_error("la cartella di lavoro ha più di 4 milioni di celle");
        --resta_.celle;
        foglio_.Aggiunge({dato, static_cast<std::uint16_t>(posto.riga),
                          static_cast<std::uint16_t>(posto.colonna), tipo,
                          static_cast<std::uint8_t>(genere)});
    }

    /// An infinity and what is no number leave the cell empty.
    void Numero(Posto posto, std::size_t stile, double v) {
        if (!std::isfinite(v))
            return Aggiunge(posto, CellaLetta::Tipo::Vuota);
        constexpr double giorniFra1900e1904 = 1462;
        const GenereNumero genere = testa_.Genere(stile);
        if (testa_.dal1904 && (genere == GenereNumero::Data || genere == GenereNumero::DataOra))
            v += giorniFra1900e1904;
        Aggiunge(posto, CellaLetta::Tipo::Numero, std::bit_cast<std::uint64_t>(v), genere);
    }

    /// A run of numbers in one row: first column, style and number of each, last column.
    void PiuNumeri() {
        constexpr std::size_t estremi = 6, uno = 6;
        const Posto da = Qui();
        const std::size_t n = std::max(cursore_.Lunghezza(), estremi) / uno - 1;
        if (cursore_.Lunghezza() != estremi + n * uno || cursore_.U16(4 + n * uno) + 1U != da.colonna + n)
            throw DannoBiff("celle");
        for (unsigned i = 0; i < n; ++i)
            Numero({da.riga, da.colonna + i}, cursore_.U16(4 + i * uno),
                   DecodificaRk(cursore_.U32(testaCella + i * uno)));
    }

    void ContaTesto(std::size_t byte) {
        if (byte > resta_.testo)
            throw std::runtime_error("i testi della cartella di lavoro superano 64 MB");
        resta_.testo -= byte;
    }

    void TestoComune() {
        const std::size_t i = cursore_.U32(testaCella);
        if (i >= testa_.testi->size())
            throw DannoBiff("testi");
        const std::size_t lungo = (*testa_.testi)[i].size();
        ContaTesto(lungo);
        Aggiunge(Qui(), lungo > 0 ? CellaLetta::Tipo::TestoComune : CellaLetta::Tipo::Vuota, i);
    }

    /// A text that stands in the sheet: its length at `da`, then its characters, perhaps in further records.
    void Testo(Posto posto, std::size_t da) {
        TestiLetti& testi = foglio_.TestiPropri();
        const std::size_t prima = testi.InCorso().size();
        Caratteri(da, testi.InCorso());
        testi.Chiude();
        const std::size_t lungo = testi.InCorso().size() - prima;
        ContaTesto(lungo);
        Aggiunge(posto, lungo > 0 ? CellaLetta::Tipo::Testo : CellaLetta::Tipo::Vuota, testi.size() - 1);
    }

    void Caratteri(std::size_t da, std::string& utf8) {
        LettoreStringhe lettore(cursore_, da);
        const std::size_t n = lettore.U16();
        if (!testa_.biff8)
            return lettore.CaratteriAnsi(n, utf8);
        const unsigned opzioni = lettore.U8();
        lettore.Caratteri(n, opzioni, utf8);
    }

    void LogicoOErrore() {
        const bool errore = cursore_.U8(testaCella + 1) != 0;
        if (errore)
            return Aggiunge(Qui(), CellaLetta::Tipo::Vuota);
        Logico(cursore_.U8(testaCella));
    }

    void Logico(unsigned v) {
        Aggiunge(Qui(), CellaLetta::Tipo::Numero, std::bit_cast<std::uint64_t>(static_cast<double>(v)));
    }

    /// What the formula gave, in the eight bytes of its value: a number, or a mark and what it means.
    void Formula() {
        constexpr unsigned nonNumero = 0xFFFF, testo = 0, logico = 1; // the others: an error, an empty text
        attendeTesto_ = false;
        if (cursore_.U16(testaCella + 6) != nonNumero)
            return Numero(Qui(), cursore_.U16(4), std::bit_cast<double>(cursore_.U64(testaCella)));
        const unsigned che = cursore_.U8(testaCella);
        attendeTesto_ = che == testo;
        formula_ = Qui();
        if (che == logico)
            Logico(cursore_.U8(testaCella + 2));
        else
            Aggiunge(formula_, CellaLetta::Tipo::Vuota);
    }

    /// The text of the last formula comes in a record of its own.
    void TestoDiFormula() {
        if (attendeTesto_)
            Testo(formula_, 0);
        attendeTesto_ = false;
    }

    CursoreBiff cursore_;
    const TestaXls& testa_;
    MisuraCelle& resta_;
    FoglioLetto foglio_;
    int profondita_ = 1;
    Posto formula_{};
    bool attendeTesto_ = false; ///< of that formula
};

} // namespace

FoglioLetto LeggeFoglio(std::span<const std::uint8_t> flusso, const TestaXls& testa, std::size_t indice,
                        MisuraCelle& resta) {
    return LettoreFoglio(flusso, testa, indice, resta).Legge();
}

} // namespace sagomi
