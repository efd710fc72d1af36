#include "catalogue/Catalogo.h"

#include <algorithm>
#include <cctype>
#include <cstddef>
#include <cstdint>
#include <map>
#include <set>
#include <sqlite3.h>
#include <sys/stat.h>
#include <system_error>
#include <utility>

#include "catalogue/ErroreCatalogo.h"
#include "catalogue/Famiglie.h"
#include "catalogue/LettoreXls.h"

namespace sagomi {

namespace {

std::string Minuscole(std::string_view s) {
    std::string m(s);
    std::ranges::transform(m, m.begin(), [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return m;
}

std::string SenzaSpaziAiBordi(const std::string& s) {
    const std::size_t da = s.find_first_not_of(" \t\r\n");
    if (da == std::string::npos)
        return {};
    return s.substr(da, s.find_last_not_of(" \t\r\n") - da + 1);
}

/// A name as SQL takes any name.
std::string TraVirgolette(std::string_view nome) {
    std::string q = "\"";
    for (const char c : nome)
        q.append(c == '"' ? 2 : 1, c);
    return q + '"';
}

/// The table of a sheet: its name in a query without the square brackets.
std::string NomeTabella(std::string_view foglio) {
    const std::string q = NomeFoglioQuery(foglio);
    return q.substr(1, q.size() - 2);
}

std::size_t NumeroColonne(const Foglio& foglio) {
    std::size_t n = 0;
    for (const auto& riga : foglio.righe)
        n = std::max(n, riga.size());
    return n;
}

/// Names of the fields: the headings, F and the number of the column where there is none, a number behind a
/// name that has been before.
std::vector<std::string> NomiCampi(const Foglio& foglio) {
    std::vector<std::string> nomi;
    std::set<std::string> usati;
    const std::size_t n = std::max<std::size_t>(NumeroColonne(foglio), 1);
    for (std::size_t c = 0; c < n; ++c) {
        const std::string titolo = SenzaSpaziAiBordi(TestoDi(foglio.Leggi(0, c)));
        const std::string base = titolo.empty() ? "F" + std::to_string(c + 1) : titolo;
        std::string nome = base;
        for (int i = 1; !usati.insert(Minuscole(nome)).second; ++i)
            nome = base + std::to_string(i);
        nomi.push_back(nome);
    }
    return nomi;
}

bool RigaVuota(const std::vector<Cella>& riga) {
    return std::ranges::all_of(riga, [](const Cella& c) { return Vuoto(c.valore); });
}

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

    [[nodiscard]] Valore Leggi(int c) const {
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

    void Lega(int posto, const Valore& v) {
        int esito = SQLITE_OK;
        if (const auto* numero = std::get_if<double>(&v))
            esito = sqlite3_bind_double(nodo_, posto, *numero);
        else if (const auto* testo = std::get_if<std::string>(&v))
            esito = sqlite3_bind_text(nodo_, posto, testo->data(), static_cast<int>(testo->size()),
                                      SQLITE_TRANSIENT); // NOLINT: the library's own constant
        else
            esito = sqlite3_bind_null(nodo_, posto);
        if (esito != SQLITE_OK)
            Fallisce();
    }

    void Riavvolgi() { sqlite3_reset(nodo_); }

private:
    [[noreturn]] void Fallisce() const { throw ErroreCatalogo(sqlite3_errmsg(db_), sqlite3_errcode(db_)); }

    sqlite3* db_;
    sqlite3_stmt* nodo_ = nullptr;
    std::string_view resto_;
};

/// Names of fields as SQL lists them.
std::string Elenco(const std::vector<std::string>& nomi) {
    std::string testo;
    for (const std::string& nome : nomi)
        testo += (testo.empty() ? "" : ",") + TraVirgolette(nome);
    return testo;
}

void CaricaRighe(sqlite3* db, const std::string& tabella, const Foglio& foglio,
                 const std::vector<std::string>& nomi) {
    std::string testo = "INSERT INTO " + tabella + " (_rowid_," + Elenco(nomi) + ") VALUES (?";
    for (std::size_t c = 0; c < nomi.size(); ++c)
        testo += ",?";
    Istruzione inserisce(db, testo + ")");
    for (std::size_t r = 1; r < foglio.righe.size(); ++r) {
        if (RigaVuota(foglio.righe[r]))
            continue;
        inserisce.Lega(1, static_cast<double>(r + 1));
        for (std::size_t c = 0; c < nomi.size(); ++c)
            inserisce.Lega(static_cast<int>(c + 2), foglio.Leggi(r, c));
        inserisce.Passo();
        inserisce.Riavvolgi();
    }
}

/// Columns have no type, so that each value stays what it is in the sheet.
void CaricaFoglio(sqlite3* db, const Foglio& foglio) {
    const std::string tabella = TraVirgolette(NomeTabella(foglio.nome));
    const std::vector<std::string> nomi = NomiCampi(foglio);
    Istruzione(db, "CREATE TABLE " + tabella + " (" + Elenco(nomi) + ")").Passo();
    CaricaRighe(db, tabella, foglio, nomi);
}

/// What SQLite says of a query in the words of the user, who knows sheets and columns.
std::string InItaliano(std::string_view causa) {
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

/// Tells two states of a file apart.
struct Impronta {
    dev_t disco = 0;
    ino_t nodo = 0;
    off_t lunghezza = 0;
    std::int64_t secondi = 0, nanosecondi = 0;
    bool operator==(const Impronta&) const = default;
};

Impronta ImprontaDi(const std::filesystem::path& file) {
    struct stat s {};
    if (stat(file.c_str(), &s) != 0)
        return {};
    return {s.st_dev, s.st_ino, s.st_size, s.st_mtim.tv_sec, s.st_mtim.tv_nsec};
}

struct Aperto {
    Impronta impronta;
    std::weak_ptr<Catalogo> catalogo;
};

std::map<std::filesystem::path, Aperto>& Aperti() {
    static std::map<std::filesystem::path, Aperto> aperti;
    return aperti;
}

} // namespace

void Catalogo::Chiude::operator()(sqlite3* db) const { sqlite3_close(db); }

std::shared_ptr<Catalogo> Catalogo::Apri(const std::filesystem::path& file) {
    const Impronta impronta = ImprontaDi(file);
    Aperto& aperto = Aperti()[file];
    if (auto gia = aperto.catalogo.lock(); gia && aperto.impronta == impronta)
        return gia;
    auto nuovo = std::make_shared<Catalogo>(file);
    aperto = {impronta, nuovo};
    return nuovo;
}

Catalogo::Catalogo(const std::filesystem::path& file) : nome_(file.string()) {
    const CartellaDati cartella = LeggiXls(file);
    sqlite3* db = nullptr;
    const int esito = sqlite3_open(":memory:", &db);
    db_.reset(db);
    try {
        if (esito != SQLITE_OK)
            throw ErroreCatalogo("memoria insufficiente", esito);
        for (const Foglio& foglio : cartella.fogli)
            CaricaFoglio(db, foglio);
    } catch (const ErroreCatalogo& e) {
        throw ErroreCatalogo("Errore nella lettura di \"" + nome_ + "\": " + e.what() + ".", e.Numero());
    }
}

EsitoQuery Catalogo::Esegui(std::string_view query) const {
    EsitoQuery esito;
    try {
        Istruzione istruzione(db_.get(), query);
        if (!istruzione.SoloLettura())
            throw ErroreCatalogo("non è un SELECT");
        for (int c = 0; c < istruzione.Colonne(); ++c)
            esito.campi.push_back(istruzione.NomeColonna(c));
        while (istruzione.Passo()) {
            auto& riga = esito.righe.emplace_back();
            for (int c = 0; c < istruzione.Colonne(); ++c)
                riga.push_back(istruzione.Leggi(c));
        }
    } catch (const ErroreCatalogo& e) {
        throw ErroreCatalogo("Errore nella lettura di \"" + nome_ + "\": " + InItaliano(e.what()) + ".",
                             e.Numero());
    }
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

void RendiSolaLettura(const std::filesystem::path& file) noexcept {
    using std::filesystem::perms;
    std::error_code errore;
    std::filesystem::permissions(file, perms::owner_write | perms::group_write | perms::others_write,
                                 std::filesystem::perm_options::remove, errore);
}

} // namespace sagomi
