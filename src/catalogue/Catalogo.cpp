#include "catalogue/Catalogo.h"

#include <algorithm>
#include <cstddef>
#include <exception>
#include <functional>
#include <map>
#include <new>
#include <set>
#include <sqlite3.h>
#include <system_error>

#include "catalogue/CartellaXls.h"
#include "catalogue/ErroreCatalogo.h"
#include "catalogue/Famiglie.h"
#include "catalogue/FogliInteri.h"
#include "catalogue/LimitiXls.h"
#include "catalogue/Minuscole.h"
#include "catalogue/TabellaFoglio.h"

namespace sagomi {

namespace {

/// A statement of the database, from its text to its end.
class Istruzione {
public:
    Istruzione(sqlite3* db, std::string_view testo) : db_(db) {
        const char* coda = nullptr;
        if (sqlite3_prepare_v2(db, testo.data(), static_cast<int>(testo.size()), &nodo_, &coda) != SQLITE_OK)
            Fallisce();
        resto_ = testo.substr(static_cast<std::size_t>(coda - testo.data()));
    }
    ~Istruzione() { sqlite3_finalize(nodo_); }
    Istruzione(const Istruzione&) = delete;
    Istruzione& operator=(const Istruzione&) = delete;

    /// A single statement that only reads.
    [[nodiscard]] bool SoloLettura() const {
        return nodo_ != nullptr && sqlite3_stmt_readonly(nodo_) != 0 && sqlite3_column_count(nodo_) > 0 &&
               resto_.find_first_not_of(" \t\r\n;") == std::string_view::npos;
    }

    [[nodiscard]] int Colonne() const { return sqlite3_column_count(nodo_); }
    [[nodiscard]] std::string NomeColonna(int c) const { return sqlite3_column_name(nodo_, c); }

    /// One row further; false behind the last.
    bool Passo() {
        const int esito = sqlite3_step(nodo_);
        if (esito != SQLITE_ROW && esito != SQLITE_DONE)
            Fallisce();
        return esito == SQLITE_ROW;
    }

    [[nodiscard]] Valore Legge(int c) const {
        switch (sqlite3_column_type(nodo_, c)) {
        case SQLITE_INTEGER:
        case SQLITE_FLOAT:
            return sqlite3_column_double(nodo_, c);
        case SQLITE_NULL:
            return {};
        default:
            return std::string(reinterpret_cast<const char*>(sqlite3_column_text(nodo_, c)),
                               static_cast<std::size_t>(sqlite3_column_bytes(nodo_, c)));
        }
    }

private:
    [[noreturn]] void Fallisce() const { throw ErroreCatalogo(sqlite3_errmsg(db_), sqlite3_errcode(db_)); }

    sqlite3* db_;
    sqlite3_stmt* nodo_ = nullptr;
    std::string_view resto_;
};

/// The rows of a query, as far as they are no more than the workbook itself could be.
class Raccolta {
public:
    explicit Raccolta(EsitoQuery& esito) : esito_(esito) {}

    void Aggiunge(const Istruzione& istruzione) {
        const auto n = static_cast<std::size_t>(istruzione.Colonne());
        celle_ += n;
        auto& riga = esito_.righe.emplace_back();
        riga.reserve(n);
        for (std::size_t c = 0; c < n; ++c) {
            riga.push_back(istruzione.Legge(static_cast<int>(c)));
            if (const auto* testo = std::get_if<std::string>(&riga.back()))
                byte_ += testo->size();
        }
        if (celle_ > massimeCelle || byte_ > massimoTestoCelle)
            throw ErroreCatalogo("l'interrogazione dà troppi dati");
    }

private:
    EsitoQuery& esito_;
    std::size_t celle_ = 0, byte_ = 0;
};

constexpr std::string_view soloSelect = "l'interrogazione non è un SELECT";

/// What SQLite says of a query in the words of the user, who knows sheets and columns.
std::string InItaliano(std::string_view causa, int numero) {
    if (numero == 0)
        return std::string(causa); // our own words
    if (numero == SQLITE_INTERRUPT)
        return "l'interrogazione è troppo lunga";
    if (numero == SQLITE_NOMEM)
        return "memoria insufficiente";
    if (causa.ends_with(" may not be dropped") || causa.ends_with(" may not be modified"))
        return std::string(soloSelect);
    constexpr std::string_view senzaTabella = "no such table: ";
    constexpr std::string_view senzaColonna = "no such column: ";
    if (causa.starts_with(senzaTabella)) {
        std::string foglio(causa.substr(senzaTabella.size()));
        std::erase_if(foglio, [](char c) { return c == '\'' || c == '$'; });
        return "manca il foglio \"" + foglio + "\"";
    }
    if (causa.starts_with(senzaColonna))
        return "manca la colonna \"" + std::string(causa.substr(senzaColonna.size())) + "\"";
    if (causa.find("ORDER BY term does not match") != std::string_view::npos)
        return "i fogli non hanno la colonna secondo cui ordinare";
    if (causa.find("do not have the same number of result columns") != std::string_view::npos)
        return "i fogli scelti non hanno le stesse colonne";
    return "l'interrogazione non riesce (" + std::string(causa) + ")";
}

/// The workbooks that are held, the one used last in front.
struct Aperto {
    std::filesystem::path file;
    std::shared_ptr<Catalogo> catalogo;
};

std::vector<Aperto>& Aperti() {
    static std::vector<Aperto> aperti;
    return aperti;
}

/// One step in many of a query: stops it when it has had enough of them.
int ContaPassi(void* restano) { return --*static_cast<int*>(restano) < 0 ? 1 : 0; }

} // namespace

/// What lives as long as the tables do.
struct Catalogo::Stato {
    explicit Stato(const std::filesystem::path& file) : cartella(file), letti(cartella.Fogli()) {}

    /// A sheet, read when it is first asked for.
    const std::shared_ptr<const FoglioLetto>& Legge(std::size_t i) {
        if (!letti[i])
            letti[i] = std::make_shared<const FoglioLetto>(cartella.Legge(i));
        return letti[i];
    }

    /// The sheet of a table; null where there is none or it cannot be read.
    std::shared_ptr<const FoglioLetto> Trova(std::string_view tabella) {
        const auto trovata = tabelle.find(tabella);
        if (trovata == tabelle.end())
            return nullptr;
        try {
            return Legge(trovata->second);
        } catch (const std::exception&) {
            return nullptr;
        }
    }

    CartellaXls cartella;
    std::vector<std::shared_ptr<const FoglioLetto>> letti;
    std::map<std::string, std::size_t, std::less<>> tabelle; ///< and their sheets
    std::string causa;                                       ///< why a sheet could not be read
    int restano = 0;                                         ///< steps of the query in hand, in lots
};

void Catalogo::Chiude::operator()(sqlite3* db) const { sqlite3_close(db); }

std::shared_ptr<Catalogo> Catalogo::Apre(const std::filesystem::path& file) {
    constexpr std::size_t massimiAperti = 4;
    auto& aperti = Aperti();
    const auto gia = std::ranges::find(aperti, file, &Aperto::file);
    if (gia != aperti.end()) {
        if (gia->catalogo->Impronta() == ImprontaDi(file)) {
            std::rotate(aperti.begin(), gia, gia + 1);
            return aperti.front().catalogo;
        }
        aperti.erase(gia);
    }
    aperti.insert(aperti.begin(), {file, std::make_shared<Catalogo>(file)});
    aperti.resize(std::min(aperti.size(), massimiAperti));
    return aperti.front().catalogo;
}

Catalogo::Catalogo(const std::filesystem::path& file) : file_(file) {
    try {
        stato_ = std::make_unique<Stato>(file);
        ApreTabelle();
    } catch (const std::bad_alloc&) {
        throw ErroreLettura(file, "memoria insufficiente");
    } catch (const std::exception& e) {
        throw ErroreLettura(file, e.what());
    }
}

Catalogo::~Catalogo() = default;

const ImprontaFile& Catalogo::Impronta() const { return stato_->cartella.Impronta(); }

void Catalogo::ApreTabelle() {
    sqlite3* db = nullptr;
    const int esito = sqlite3_open_v2(
        ":memory:", &db, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX, nullptr);
    db_.reset(db);
    if (esito != SQLITE_OK)
        throw std::bad_alloc();
    std::set<std::string> nomi;
    for (std::size_t i = 0; i < stato_->cartella.Fogli(); ++i) {
        const std::string nome = NomeTabella(stato_->cartella.Nome(i));
        if (nome.find('\0') != std::string::npos || !nomi.insert(Minuscole(nome)).second)
            continue;
        stato_->tabelle.emplace(nome, i);
        AggiungeTabella(
            db, nome, [stato = stato_.get(), i] { return stato->Legge(i); }, stato_->causa);
    }
}

EsitoQuery Catalogo::Esegue(std::string_view query) const {
    constexpr int passiPerLotto = 10'000, massimiLotti = 2'000;
    stato_->causa.clear();
    stato_->restano = massimiLotti;
    sqlite3_progress_handler(db_.get(), passiPerLotto, ContaPassi, &stato_->restano);
    try {
        auto diretto =
            RigheDiFogli(query, [this](std::string_view tabella) { return stato_->Trova(tabella); });
        return diretto ? *std::move(diretto) : Raccoglie(query);
    } catch (const ErroreCatalogo& e) {
        const bool nelFoglio = !stato_->causa.empty();
        throw ErroreLettura(file_, nelFoglio ? stato_->causa : InItaliano(e.what(), e.Numero()));
    } catch (const std::bad_alloc&) {
        throw ErroreLettura(file_, "memoria insufficiente");
    }
}

EsitoQuery Catalogo::Raccoglie(std::string_view query) const {
    EsitoQuery esito;
    Istruzione istruzione(db_.get(), query);
    if (!istruzione.SoloLettura())
        throw ErroreCatalogo(std::string(soloSelect));
    for (int c = 0; c < istruzione.Colonne(); ++c)
        esito.campi.push_back(istruzione.NomeColonna(c));
    Raccolta raccolta(esito);
    while (istruzione.Passo())
        raccolta.Aggiunge(istruzione);
    return esito;
}

std::filesystem::path FileAccanto(const std::filesystem::path& cartella, std::string_view nome) {
    std::error_code errore;
    std::filesystem::path esatto = cartella / nome;
    if (std::filesystem::exists(esatto, errore))
        return esatto;
    std::vector<std::filesystem::path> trovati;
    for (auto i = std::filesystem::directory_iterator(cartella, errore);
         !errore && i != std::filesystem::directory_iterator(); i.increment(errore))
        if (Minuscole(i->path().filename().string()) == Minuscole(nome))
            trovati.push_back(i->path());
    return trovati.empty() ? esatto : *std::ranges::min_element(trovati);
}

void RendeSolaLettura(const std::filesystem::path& file) noexcept {
    using std::filesystem::perms;
    std::error_code errore;
    // What a link leads to is somebody else's file: its rights stay.
    std::filesystem::permissions(
        file, perms::owner_write | perms::group_write | perms::others_write,
        std::filesystem::perm_options::remove | std::filesystem::perm_options::nofollow, errore);
}

} // namespace sagomi
