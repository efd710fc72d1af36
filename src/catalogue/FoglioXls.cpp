#include "catalogue/FoglioXls.h"

#include <algorithm>
#include <cmath>
#include <string_view>
#include <vector>

#include "catalogue/StiliXls.h"

namespace sagomi {

namespace {

constexpr std::size_t righePerBlocco = 32; ///< rows and their cells alternate in blocks of this many

/// There is something to write: not nothing, not an empty text, not an infinity.
bool HaContenuto(const Cella& cella) {
    if (const auto* testo = std::get_if<std::string>(&cella.valore))
        return !testo->empty();
    const auto* numero = std::get_if<double>(&cella.valore);
    return numero != nullptr && std::isfinite(*numero);
}

/// First and last column of a row that hold something, the last one excluded.
struct Tratto {
    std::size_t da = 0;
    std::size_t a = 0;
    [[nodiscard]] bool Vuoto() const { return a == da; }
};

Tratto TrattoPieno(const std::vector<Cella>& riga) {
    const auto prima = std::ranges::find_if(riga, HaContenuto);
    if (prima == riga.end())
        return {};
    const auto ultima = std::find_if(riga.rbegin(), riga.rend(), HaContenuto);
    return {static_cast<std::size_t>(prima - riga.begin()), static_cast<std::size_t>(riga.rend() - ultima)};
}

/// The used range of a sheet, and whether it has rows without a cell inside.
struct Ingombro {
    std::size_t daRiga = 0, aRiga = 0;
    Tratto colonne;
    bool senzaBuchi = true;
    std::vector<Tratto> righe; ///< of each row of the sheet
};

Ingombro Misura(const Foglio& foglio) {
    Ingombro m;
    m.righe.reserve(foglio.righe.size());
    for (std::size_t r = 0; r < foglio.righe.size(); ++r) {
        const Tratto t = TrattoPieno(foglio.righe[r]);
        m.righe.push_back(t);
        if (t.Vuoto())
            continue;
        const bool prima = m.aRiga == 0;
        m.senzaBuchi = m.senzaBuchi && (prima || m.aRiga == r);
        m.daRiga = prima ? r : m.daRiga;
        m.aRiga = r + 1;
        m.colonne.da = prima ? t.da : std::min(m.colonne.da, t.da);
        m.colonne.a = std::max(m.colonne.a, t.a);
    }
    return m;
}

unsigned Num(std::size_t n) { return static_cast<unsigned>(n); }
unsigned Num(StileXls s) { return static_cast<unsigned>(s); }

class ScrittoreFoglio {
public:
    ScrittoreFoglio(FlussoBiff& flusso, const Foglio& foglio, const TabellaStringhe& stringhe)
        : flusso_(flusso), foglio_(foglio), stringhe_(stringhe), ingombro_(Misura(foglio)),
          colonne_(Colonne(foglio)), intestata_(HaIntestazione(foglio)) {}

    std::uint32_t Scrive(bool attivo) {
        const std::uint32_t inizio = flusso_.Record(
            Biff::Bof, Ottetti().U16(0x0600).U16(0x0010).U16(0x0DBB).U16(0x07CC).U32(0x41).U32(0x06));
        Indice();
        Calcolo();
        Pagina();
        LarghezzeColonne();
        Dimensioni();
        for (std::size_t r = ingombro_.daRiga; r < ingombro_.aRiga; r += righePerBlocco)
            Blocco(r, std::min(r + righePerBlocco, ingombro_.aRiga));
        Vista(attivo);
        flusso_.Record(Biff::Eof);
        return inizio;
    }

private:
    /// Positions of the blocks of rows, filled in as they come. A sheet with holes goes without.
    void Indice() {
        if (!ingombro_.senzaBuchi)
            return;
        const std::size_t blocchi =
            (ingombro_.aRiga - ingombro_.daRiga + righePerBlocco - 1) / righePerBlocco;
        Ottetti o;
        o.U32(0).U32(Num(ingombro_.daRiga)).U32(Num(ingombro_.aRiga)).U32(0);
        for (std::size_t i = 0; i < blocchi; ++i)
            o.U32(0);
        const std::uint32_t posizione = flusso_.Record(Biff::Index, o) + Num(testaRecord);
        correggiColonne_ = posizione + 12;
        correggiBlocco_ = posizione + 16;
    }

    void Calcolo() {
        flusso_.Record(Biff::CalcMode, Ottetti().U16(1));
        flusso_.Record(Biff::CalcCount, Ottetti().U16(100));
        flusso_.Record(Biff::RefMode, Ottetti().U16(1));
        flusso_.Record(Biff::Iteration, Ottetti().U16(0));
        flusso_.Record(Biff::Delta, Ottetti().F64(0.001));
        flusso_.Record(Biff::SaveRecalc, Ottetti().U16(1));
    }

    /// Printed lying on A4, one page wide, sheet's name above and page number below.
    void Pagina() {
        flusso_.Record(Biff::PrintHeaders, Ottetti().U16(0));
        flusso_.Record(Biff::PrintGridlines, Ottetti().U16(0));
        flusso_.Record(Biff::GridSet, Ottetti().U16(1));
        flusso_.Record(Biff::Guts, Ottetti().U32(0).U32(0));
        flusso_.Record(Biff::DefaultRowHeight, Ottetti().U16(0).U16(255));
        flusso_.Record(Biff::WsBool, Ottetti().U16(0x05C1));
        Riga(Biff::Header, u"&C&A");
        Riga(Biff::Footer, u"&CPagina &P di &N");
        flusso_.Record(Biff::HCenter, Ottetti().U16(0));
        flusso_.Record(Biff::VCenter, Ottetti().U16(0));
        flusso_.Record(
            Biff::Setup,
            Ottetti().U16(9).U16(100).U16(1).U16(1).U16(0).U16(0).U16(600).U16(600).F64(0.5).F64(0.5).U16(1));
    }

    void Riga(Biff genere, std::u16string_view testo) {
        flusso_.Record(genere, Ottetti().U16(Num(testo.size())).U8(0).Testo(testo, 0, testo.size(), true));
    }

    void LarghezzeColonne() {
        const std::uint32_t posizione = flusso_.Record(Biff::DefColWidth, Ottetti().U16(8));
        if (correggiColonne_ != 0)
            flusso_.Corregge(correggiColonne_, posizione);
        for (std::size_t c = 0; c < colonne_.size(); ++c)
            flusso_.Record(Biff::ColInfo, Ottetti()
                                              .U16(Num(c))
                                              .U16(Num(c))
                                              .U16(colonne_[c].larghezza)
                                              .U16(Num(StileXls::Generale))
                                              .U16(0)
                                              .U16(0));
    }

    void Dimensioni() {
        flusso_.Record(Biff::Dimensions, Ottetti()
                                             .U32(Num(ingombro_.daRiga))
                                             .U32(Num(ingombro_.aRiga))
                                             .U16(Num(ingombro_.colonne.da))
                                             .U16(Num(ingombro_.colonne.a))
                                             .U16(0));
    }

    /// The rows from `da` to before `a`: first all ROW records, then their cells, then where these begin.
    void Blocco(std::size_t da, std::size_t a) {
        const std::uint32_t primaRiga = flusso_.Posizione();
        std::uint32_t precedente = 0; ///< behind the first ROW record the offsets are counted
        for (std::size_t r = da; r < a; ++r)
            if (!ingombro_.righe[r].Vuoto()) {
                RecordRiga(r);
                precedente = precedente == 0 ? flusso_.Posizione() : precedente;
            }
        Ottetti distanze;
        for (std::size_t r = da; r < a; ++r)
            if (!ingombro_.righe[r].Vuoto()) {
                distanze.U16(flusso_.Posizione() - precedente);
                precedente = flusso_.Posizione();
                Celle(r);
            }
        if (ingombro_.senzaBuchi)
            FineBlocco(primaRiga, distanze);
    }

    void FineBlocco(std::uint32_t primaRiga, const Ottetti& distanze) {
        const std::uint32_t posizione = flusso_.Posizione();
        Ottetti o;
        o.U32(posizione - primaRiga);
        for (const std::uint8_t byte : distanze.dati())
            o.U8(byte);
        flusso_.Record(Biff::DbCell, o);
        flusso_.Corregge(correggiBlocco_, posizione);
        correggiBlocco_ += 4;
    }

    void RecordRiga(std::size_t r) {
        const Tratto& t = ingombro_.righe[r];
        flusso_.Record(
            Biff::Row,
            Ottetti().U16(Num(r)).U16(Num(t.da)).U16(Num(t.a)).U16(255).U16(0).U16(0).U32(0x000F0100));
    }

    void Celle(std::size_t r) {
        const auto& riga = foglio_.righe[r];
        for (std::size_t c = ingombro_.righe[r].da; c < ingombro_.righe[r].a; ++c)
            if (HaContenuto(riga[c]))
                UnaCella(r, c, riga[c]);
    }

    void UnaCella(std::size_t r, std::size_t c, const Cella& cella) {
        const PostoBiff posto{Num(r), Num(c), Num(StileCella(cella, intestata_ && r == 0, colonne_[c]))};
        if (const auto* testo = std::get_if<std::string>(&cella.valore)) {
            flusso_.Cella(Biff::LabelSst, posto, stringhe_.Indice(*testo));
            return;
        }
        const double numero = std::get<double>(cella.valore);
        if (const auto rk = CodificaRk(numero))
            flusso_.Cella(Biff::Rk, posto, *rk);
        else
            flusso_.Cella(Biff::Number, posto, numero);
    }

    void Vista(bool attivo) {
        const unsigned bloccata = intestata_ ? 0x0108 : 0;
        const unsigned scelta = attivo ? 0x0600 : 0;
        flusso_.Record(Biff::Window2,
                       Ottetti().U16(0x00B6U | bloccata | scelta).U16(0).U16(0).U32(64).U16(0).U16(0).U32(0));
        constexpr unsigned riquadroBasso = 2, riquadroUnico = 3;
        const unsigned riga = intestata_ ? 1 : 0;
        if (intestata_)
            flusso_.Record(Biff::Pane, Ottetti().U16(0).U16(riga).U16(riga).U16(0).U16(riquadroBasso));
        flusso_.Record(Biff::Selection, Ottetti()
                                            .U8(intestata_ ? riquadroBasso : riquadroUnico)
                                            .U16(riga)
                                            .U16(0)
                                            .U16(0)
                                            .U16(1)
                                            .U16(riga)
                                            .U16(riga)
                                            .U8(0)
                                            .U8(0));
    }

    FlussoBiff& flusso_;
    const Foglio& foglio_;
    const TabellaStringhe& stringhe_;
    Ingombro ingombro_;
    std::vector<ColonnaXls> colonne_;
    bool intestata_;
    std::uint32_t correggiColonne_ = 0;
    std::uint32_t correggiBlocco_ = 0;
};

} // namespace

std::uint32_t ScriveFoglio(FlussoBiff& flusso, const Foglio& foglio, const TabellaStringhe& stringhe,
                           bool attivo) {
    return ScrittoreFoglio(flusso, foglio, stringhe).Scrive(attivo);
}

} // namespace sagomi
