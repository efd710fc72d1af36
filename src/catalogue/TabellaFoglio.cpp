#include "catalogue/TabellaFoglio.h"

#include <algorithm>
#include <charconv>
#include <compare>
#include <cstddef>
#include <cstdint>
#include <exception>
#include <memory>
#include <set>
#include <sqlite3.h>
#include <utility>

#include "catalogue/Minuscole.h"

namespace sagomi {

namespace {

constexpr int rigaDelFoglio = -1; ///< the column that stands for the rowid

std::string SenzaSpaziAiBordi(std::string testo) {
    std::erase(testo, '\0'); // where SQL would end
    const std::size_t da = testo.find_first_not_of(" \t\r\n");
    if (da == std::string::npos)
        return {};
    return testo.substr(da, testo.find_last_not_of(" \t\r\n") - da + 1);
}

/// Names of fields as SQL lists them.
std::string Elenco(const std::vector<std::string>& nomi) {
    std::string testo;
    for (const std::string& nome : nomi)
        testo += (testo.empty() ? "" : ",") + TraVirgolette(nome);
    return testo;
}

/// One term of an ORDER BY.
struct Chiave {
    int colonna;
    bool cala;
};

/// The terms as a text, which SQLite carries from the plan of a query to its run: "10+ 0-".
std::string ChiaviIn(const sqlite3_index_info& piano) {
    std::string testo;
    for (int i = 0; i < piano.nOrderBy; ++i)
        testo += std::to_string(piano.aOrderBy[i].iColumn) + (piano.aOrderBy[i].desc != 0 ? "- " : "+ ");
    return testo;
}

std::vector<Chiave> ChiaviDa(std::string_view testo) {
    std::vector<Chiave> chiavi;
    while (!testo.empty()) {
        Chiave c{};
        const auto letto = std::from_chars(testo.data(), testo.data() + testo.size(), c.colonna);
        c.cala = *letto.ptr == '-';
        chiavi.push_back(c);
        testo.remove_prefix(static_cast<std::size_t>(letto.ptr - testo.data()) + 2);
    }
    return chiavi;
}

/// Order of two cells as SQLite has it: nothing, numbers, texts by their bytes.
std::strong_ordering Confronta(const FoglioLetto& foglio, const CellaLetta* a, const CellaLetta* b) {
    if (a == nullptr || b == nullptr)
        return (a != nullptr) <=> (b != nullptr);
    if (a->HaNumero() && b->HaNumero())
        return a->Numero() < b->Numero()   ? std::strong_ordering::less
               : a->Numero() > b->Numero() ? std::strong_ordering::greater
                                           : std::strong_ordering::equal;
    if (a->HaNumero() != b->HaNumero())
        return a->HaNumero() ? std::strong_ordering::less : std::strong_ordering::greater;
    return foglio.Testo(*a) <=> foglio.Testo(*b);
}

/// Rows in the order of some keys; those that are equal stay in the order of the sheet.
class Ordinamento {
public:
    Ordinamento(const FoglioLetto& foglio, std::vector<Chiave> chiavi)
        : foglio_(foglio), chiavi_(std::move(chiavi)) {}

    void Ordina(std::vector<std::uint32_t>& righe) const {
        if (chiavi_.empty())
            return;
        std::vector<Voce> voci;
        voci.reserve(righe.size());
        for (const std::uint32_t r : righe)
            voci.push_back({CellaDi(r, chiavi_.front().colonna), r});
        std::ranges::stable_sort(voci, [this](const Voce& a, const Voce& b) { return Prima(a, b); });
        std::ranges::transform(voci, righe.begin(), &Voce::riga);
    }

private:
    struct Voce {
        const CellaLetta* prima; ///< by the first key, which decides nearly always
        std::uint32_t riga;
    };

    [[nodiscard]] const CellaLetta* CellaDi(std::uint32_t riga, int colonna) const {
        return colonna < 0 ? nullptr : foglio_.Cella(riga, static_cast<std::size_t>(colonna));
    }

    [[nodiscard]] std::strong_ordering PerChiave(std::size_t k, const Voce& a, const Voce& b) const {
        const int colonna = chiavi_[k].colonna;
        if (colonna == rigaDelFoglio)
            return a.riga <=> b.riga;
        return k == 0 ? Confronta(foglio_, a.prima, b.prima)
                      : Confronta(foglio_, CellaDi(a.riga, colonna), CellaDi(b.riga, colonna));
    }

    [[nodiscard]] bool Prima(const Voce& a, const Voce& b) const {
        for (std::size_t k = 0; k < chiavi_.size(); ++k)
            if (const auto ordine = PerChiave(k, a, b); ordine != std::strong_ordering::equal)
                return (ordine == std::strong_ordering::less) != chiavi_[k].cala;
        return false;
    }

    const FoglioLetto& foglio_;
    std::vector<Chiave> chiavi_;
};

/// What a table is made of, and where its failure goes.
struct Fonte {
    std::function<std::shared_ptr<const FoglioLetto>()> legge;
    std::string& causa;
};

using Righe = std::shared_ptr<const std::vector<std::uint32_t>>;

/// A sheet as SQLite's table.
struct Tabella : sqlite3_vtab {
    explicit Tabella(std::shared_ptr<const FoglioLetto> foglio)
        : sqlite3_vtab{}, foglio_(std::move(foglio)) {}

    [[nodiscard]] const FoglioLetto& Foglio() const { return *foglio_; }

    /// The rows below the headings in the order of these keys; the last order is kept.
    Righe InOrdine(const std::string& chiavi) {
        if (righe_ && chiavi == chiavi_)
            return righe_;
        std::vector<std::uint32_t> righe;
        righe.reserve(Foglio().Righe());
        for (std::size_t i = PrimaRecord(Foglio()); i < Foglio().Righe(); ++i)
            righe.push_back(static_cast<std::uint32_t>(i));
        Ordinamento(Foglio(), ChiaviDa(chiavi)).Ordina(righe);
        righe_ = std::make_shared<const std::vector<std::uint32_t>>(std::move(righe));
        chiavi_ = chiavi;
        return righe_;
    }

private:
    std::shared_ptr<const FoglioLetto> foglio_;
    std::string chiavi_;
    Righe righe_;
};

/// Goes through the rows of a table.
struct Cursore : sqlite3_vtab_cursor {
    Righe righe;
    std::size_t posto = 0;

    [[nodiscard]] std::size_t Riga() const { return (*righe)[posto]; }
};

Tabella& Di(sqlite3_vtab* t) { return *static_cast<Tabella*>(t); }
Cursore& Di(sqlite3_vtab_cursor* c) { return *static_cast<Cursore*>(c); }

int Apre(sqlite3* db, void* fonte, int /*argc*/, const char* const* /*argv*/, sqlite3_vtab** tabella,
         char** errore) {
    const Fonte& f = *static_cast<const Fonte*>(fonte);
    try {
        auto nuova = std::make_unique<Tabella>(f.legge());
        const std::string campi = "CREATE TABLE x(" + Elenco(NomiCampi(nuova->Foglio())) + ")";
        const int esito = sqlite3_declare_vtab(db, campi.c_str());
        if (esito == SQLITE_OK)
            *tabella = nuova.release();
        return esito;
    } catch (const std::bad_alloc&) {
        return SQLITE_NOMEM;
    } catch (const std::exception& e) {
        f.causa = e.what();
        *errore = sqlite3_mprintf("%s", e.what());
        return SQLITE_ERROR;
    }
}

int Chiude(sqlite3_vtab* t) {
    delete &Di(t);
    return SQLITE_OK;
}

/// No condition is used, each order is.
int Progetta(sqlite3_vtab* t, sqlite3_index_info* piano) {
    const auto righe = static_cast<sqlite3_int64>(Di(t).Foglio().Righe());
    piano->estimatedRows = righe;
    piano->estimatedCost = static_cast<double>(righe) + 1;
    if (piano->nOrderBy == 0)
        return SQLITE_OK;
    piano->idxStr = sqlite3_mprintf("%s", ChiaviIn(*piano).c_str());
    piano->needToFreeIdxStr = 1;
    piano->orderByConsumed = 1;
    return piano->idxStr == nullptr ? SQLITE_NOMEM : SQLITE_OK;
}

int ApreCursore(sqlite3_vtab* /*t*/, sqlite3_vtab_cursor** cursore) {
    *cursore = new Cursore{};
    return SQLITE_OK;
}

int ChiudeCursore(sqlite3_vtab_cursor* c) {
    delete &Di(c);
    return SQLITE_OK;
}

int Comincia(sqlite3_vtab_cursor* c, int /*numero*/, const char* chiavi, int /*argc*/,
             sqlite3_value** /*argv*/) {
    try {
        Di(c).righe = Di(c->pVtab).InOrdine(chiavi == nullptr ? "" : chiavi);
        Di(c).posto = 0;
        return SQLITE_OK;
    } catch (const std::bad_alloc&) {
        return SQLITE_NOMEM;
    }
}

int Prosegue(sqlite3_vtab_cursor* c) {
    ++Di(c).posto;
    return SQLITE_OK;
}

int Finita(sqlite3_vtab_cursor* c) { return Di(c).posto >= Di(c).righe->size() ? 1 : 0; }

int Campo(sqlite3_vtab_cursor* c, sqlite3_context* esito, int colonna) {
    const FoglioLetto& foglio = Di(c->pVtab).Foglio();
    const CellaLetta* cella = foglio.Cella(Di(c).Riga(), static_cast<std::size_t>(colonna));
    if (cella == nullptr) {
        sqlite3_result_null(esito);
    } else if (cella->HaNumero()) {
        sqlite3_result_double(esito, cella->Numero());
    } else {
        const std::string_view testo = foglio.Testo(*cella);
        sqlite3_result_text(esito, testo.data(), static_cast<int>(testo.size()), SQLITE_STATIC);
    }
    return SQLITE_OK;
}

int NumeroRiga(sqlite3_vtab_cursor* c, sqlite3_int64* riga) {
    *riga = static_cast<sqlite3_int64>(Di(c->pVtab).Foglio().NumeroRiga(Di(c).Riga())) + 1;
    return SQLITE_OK;
}

/// A table that is there without being created: it has no xCreate.
constexpr sqlite3_module ModuloFoglio() {
    sqlite3_module m{};
    m.xConnect = Apre;
    m.xBestIndex = Progetta;
    m.xDisconnect = Chiude;
    m.xOpen = ApreCursore;
    m.xClose = ChiudeCursore;
    m.xFilter = Comincia;
    m.xNext = Prosegue;
    m.xEof = Finita;
    m.xColumn = Campo;
    m.xRowid = NumeroRiga;
    return m;
}

constexpr sqlite3_module moduloFoglio = ModuloFoglio();

} // namespace

void AggiungeTabella(sqlite3* db, const std::string& tabella,
                     std::function<std::shared_ptr<const FoglioLetto>()> legge, std::string& causa) {
    auto fonte = std::make_unique<Fonte>(Fonte{std::move(legge), causa});
    sqlite3_create_module_v2(db, tabella.c_str(), &moduloFoglio, fonte.release(),
                             [](void* f) { delete static_cast<Fonte*>(f); });
}

std::size_t PrimaRecord(const FoglioLetto& foglio) {
    return foglio.Righe() > 0 && foglio.NumeroRiga(0) == 0 ? 1 : 0;
}

std::vector<std::string> NomiCampi(const FoglioLetto& foglio) {
    const bool conTitoli = PrimaRecord(foglio) > 0;
    std::vector<std::string> nomi;
    std::set<std::string> usati;
    const std::size_t n = std::max<std::size_t>(foglio.Colonne(), 1);
    for (std::size_t c = 0; c < n; ++c) {
        const Valore v = conTitoli ? foglio.ValoreDi(foglio.Cella(0, c)) : Valore();
        const std::string titolo = SenzaSpaziAiBordi(TestoDi(v));
        const std::string base = titolo.empty() ? "F" + std::to_string(c + 1) : titolo;
        std::string nome = base;
        for (int i = 1; !usati.insert(Minuscole(nome)).second; ++i)
            nome = base + std::to_string(i);
        nomi.push_back(nome);
    }
    return nomi;
}

std::string TraVirgolette(std::string_view nome) {
    std::string q = "\"";
    for (const char c : nome)
        q.append(c == '"' ? 2 : 1, c);
    return q + '"';
}

} // namespace sagomi
