#include "catalogue/CelleCalcolate.h"

#include <map>
#include <utility>

namespace sagomi {

namespace {

constexpr unsigned versioneBiff8 = 0x0600;
constexpr std::size_t celleTestaFormula = 6; ///< row, column, style

/// Texts of a record: in BIFF8 with their options, before it bytes alone.
std::string Testo(const RecordLetto& record, std::size_t da, std::size_t byteLunghezza, bool biff8) {
    const std::size_t n = byteLunghezza == 1 ? record.U8(da) : record.U16(da);
    const unsigned opzioni = biff8 ? record.U8(da + byteLunghezza) : 0;
    LettoreStringhe lettore(record, da + byteLunghezza + (biff8 ? 1 : 0));
    return Utf8DaUtf16(lettore.Caratteri(n, opzioni));
}

/// What a formula gave, from the eight bytes of its value: a number, or a mark and what it means.
struct Risultato {
    Valore valore;
    bool seguitoDaTesto = false;
};

Risultato LeggiRisultato(const RecordLetto& formula) {
    constexpr unsigned nonNumero = 0xFFFF;
    if (formula.U16(celleTestaFormula + 6) != nonNumero)
        return {formula.F64(celleTestaFormula)};
    switch (formula.U8(celleTestaFormula)) {
    case 0:
        return {{}, true};
    case 1: // a logical value
        return {static_cast<double>(formula.U8(celleTestaFormula + 2))};
    default: // an error or an empty text
        return {};
    }
}

class Raccoglie {
public:
    void Segue(const RecordLetto& r) {
        if (r.E(Biff::Bof))
            ApreParte(r);
        else if (r.E(Biff::Eof) && profondita_ > 0)
            --profondita_;
        else if (r.E(Biff::BoundSheet))
            nomi_[r.U32(0)] = Testo(r, 6, 1, biff8_);
        else if (profondita_ == 1 && !foglio_.empty())
            Cella(r);
    }

    std::vector<CellaCalcolata> celle;

private:
    /// The first part is the workbook's head and tells the version; the others are named by their position.
    void ApreParte(const RecordLetto& r) {
        if (++profondita_ > 1)
            return;
        if (nomi_.empty())
            biff8_ = r.U16(0) == versioneBiff8;
        const auto nome = nomi_.find(static_cast<std::uint32_t>(r.posizione));
        foglio_ = nome == nomi_.end() ? "" : nome->second;
        attendeTesto_ = false;
    }

    void Cella(const RecordLetto& r) {
        if (r.E(Biff::Formula)) {
            Risultato risultato = LeggiRisultato(r);
            attendeTesto_ = risultato.seguitoDaTesto;
            Aggiungi(r, std::move(risultato.valore));
        } else if (r.E(Biff::String) && attendeTesto_) {
            celle.back().valore = Testo(r, 0, 2, biff8_);
            attendeTesto_ = false;
        } else if (r.E(Biff::BoolErr) && r.U8(7) != 0) {
            Aggiungi(r, {});
        }
    }

    void Aggiungi(const RecordLetto& r, Valore valore) {
        celle.push_back({foglio_, r.U16(0), r.U16(2), std::move(valore)});
    }

    std::map<std::uint32_t, std::string> nomi_; ///< of the sheets, by their position in the stream
    std::string foglio_;                        ///< the sheet in hand
    int profondita_ = 0;                        ///< 2 and more inside a chart
    bool biff8_ = true;
    bool attendeTesto_ = false; ///< the last formula gave a text, which comes in a record of its own
};

} // namespace

std::vector<CellaCalcolata> CelleCalcolate(const std::vector<RecordLetto>& record) {
    Raccoglie raccoglie;
    for (const RecordLetto& r : record)
        raccoglie.Segue(r);
    return std::move(raccoglie.celle);
}

} // namespace sagomi
