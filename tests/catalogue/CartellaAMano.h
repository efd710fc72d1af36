#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "catalogue/ContenitoreOle.h"
#include "catalogue/RecordBiff.h"
#include "catalogue/StiliXls.h"

namespace sagomi::prove {

inline Ottetti Byte(const std::vector<std::uint8_t>& dati) {
    Ottetti o;
    for (const std::uint8_t b : dati)
        o.U8(b);
    return o;
}

/// A workbook put together record by record after the published description of the format, with what the
/// writer itself never writes.
class CartellaAMano {
public:
    static constexpr unsigned biff8 = 0x0600, biff5 = 0x0500;
    static constexpr unsigned stile = 15; ///< of plain cells

    explicit CartellaAMano(unsigned versione = biff8) : versione_(versione) {}

    /// A record of the head.
    CartellaAMano& Testa(Biff genere, const Ottetti& corpo) {
        testa_.push_back({genere, corpo});
        return *this;
    }
    /// Begins a sheet; the records that follow are its own.
    CartellaAMano& Foglio(std::u16string nome, unsigned tipo = 0) {
        fogli_.push_back({std::move(nome), tipo, {}});
        return *this;
    }
    CartellaAMano& Sciolto(Biff genere, const Ottetti& corpo = {}) {
        fogli_.back().record.push_back({genere, corpo});
        return *this;
    }
    /// A record of one cell: place, style, rest.
    CartellaAMano& Cella(Biff genere, unsigned riga, unsigned colonna, const Ottetti& resto,
                         unsigned conStile = stile) {
        Ottetti o = Ottetti().U16(riga).U16(colonna).U16(conStile);
        for (const std::uint8_t b : resto.dati())
            o.U8(b);
        return Sciolto(genere, o);
    }
    CartellaAMano& Numero(unsigned riga, unsigned colonna, double v, unsigned conStile = stile) {
        return Cella(Biff::Number, riga, colonna, Ottetti().F64(v), conStile);
    }
    CartellaAMano& Testo(unsigned riga, unsigned colonna, std::u16string_view t) {
        return Cella(Biff::Label, riga, colonna,
                     Ottetti().U16(static_cast<unsigned>(t.size())).U8(1).Testo(t, 0, t.size(), false));
    }
    /// A formula (1+1, whatever it gave) with the lower and the upper half of its value.
    CartellaAMano& Formula(unsigned riga, unsigned colonna, std::uint32_t basso, std::uint32_t alto) {
        return Cella(
            Biff::Formula, riga, colonna,
            Ottetti().U32(basso).U32(alto).U16(0).U32(0).U16(7).U8(0x1E).U16(1).U8(0x1E).U16(1).U8(3));
    }
    /// Upper half of a formula's value that is no number.
    static constexpr std::uint32_t marca = 0xFFFF0000U;

    /// Takes the end from the last sheet.
    CartellaAMano& SenzaFine() {
        fine_ = false;
        return *this;
    }

    [[nodiscard]] std::vector<std::uint8_t> Flusso() const {
        FlussoBiff f;
        Bof(f, 5);
        if (versione_ == biff8)
            ScriveStili(f);
        for (const auto& [genere, corpo] : testa_)
            f.Record(genere, corpo);
        std::vector<std::uint32_t> voci;
        for (const UnFoglio& foglio : fogli_)
            voci.push_back(Voce(f, foglio));
        f.Record(Biff::Eof);
        for (std::size_t i = 0; i < fogli_.size(); ++i) {
            f.Corregge(voci[i], f.Posizione());
            Bof(f, fogli_[i].tipo == 0 ? 0x10 : 0x20);
            for (const auto& [genere, corpo] : fogli_[i].record)
                f.Record(genere, corpo);
            if (fine_ || i + 1 < fogli_.size())
                f.Record(Biff::Eof);
        }
        f.AllungaA(4096);
        return f.dati();
    }
    [[nodiscard]] std::string File(const char* flusso = "Workbook") const {
        return ContenitoreOle(flusso, Flusso());
    }

private:
    using Record = std::pair<Biff, Ottetti>;
    struct UnFoglio {
        std::u16string nome;
        unsigned tipo;
        std::vector<Record> record;
    };

    void Bof(FlussoBiff& f, unsigned genere) const {
        f.Record(Biff::Bof, Ottetti().U16(versione_).U16(genere).U16(0x0DBB).U16(0x07CC).U32(0x41).U32(6));
    }
    /// Returns where the position of the sheet goes.
    [[nodiscard]] std::uint32_t Voce(FlussoBiff& f, const UnFoglio& foglio) const {
        Ottetti o;
        o.U32(0).U8(0).U8(foglio.tipo).U8(static_cast<unsigned>(foglio.nome.size()));
        if (versione_ == biff8)
            o.U8(1);
        o.Testo(foglio.nome, 0, foglio.nome.size(), versione_ != biff8);
        return f.Record(Biff::BoundSheet, o) + static_cast<std::uint32_t>(testaRecord);
    }

    unsigned versione_;
    std::vector<Record> testa_;
    std::vector<UnFoglio> fogli_;
    bool fine_ = true;
};

} // namespace sagomi::prove
