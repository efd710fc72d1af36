#include "choice/LavoriJson.h"

#include <sqlite3.h>
#include <string_view>

#include "choice/Opzioni.h"

namespace sagomi {

namespace {

// A fraction is taken as it stands: SQLite reads it with the separator of the process's locale.
constexpr auto query = "SELECT j.key, j.type, CASE j.type WHEN 'array' THEN (SELECT group_concat(value) FROM "
                       "json_each(j.value)) WHEN 'real' THEN ?1 -> j.fullkey ELSE CAST(j.value AS TEXT) END "
                       "FROM json_each(?1) j "
                       "WHERE json_type(?1) = 'object'";

struct Finisce {
    void operator()(sqlite3_stmt* s) const { sqlite3_finalize(s); }
};
using Istruzione = std::unique_ptr<sqlite3_stmt, Finisce>;

[[noreturn]] void NonOggetto() {
    throw ErroreUso(
        "un lavoro è un oggetto JSON su una riga, per esempio {\"verifica\":\"HEA 200\",\"N\":400}");
}

std::string Testo(const Istruzione& s, int colonna) {
    const auto* testo = reinterpret_cast<const char*>(sqlite3_column_text(s.get(), colonna));
    return testo == nullptr ? std::string() : std::string(testo);
}

/// The character of the number 0 ends a text for the parser, wherever it stands.
void ControllaZeri(std::string_view riga) {
    constexpr std::string_view zero = "u0000";
    bool trovato = riga.find('\0') != std::string_view::npos;
    for (std::size_t i = riga.find('\\'); i < riga.size() && !trovato; i = riga.find('\\', i + 2))
        trovato = riga.substr(i + 1).starts_with(zero);
    if (trovato)
        throw ErroreUso("un lavoro non può contenere il carattere U+0000");
}

void Aggiunge(std::vector<std::string>& argomenti, const Istruzione& s) {
    const std::string tipo = Testo(s, 1);
    const std::string chiave = Testo(s, 0);
    const std::string voce = chiave == "My1" || chiave == "Mz1" ? chiave.substr(0, 2) : chiave;
    ControllaVoce(voce);
    if (tipo == "false" || tipo == "null")
        return;
    if (tipo == "object")
        NonOggetto();
    argomenti.push_back("--" + voce);
    if (tipo != "true" && EInterruttore(argomenti.back()))
        throw ErroreUso('"' + chiave + "\" vuole true o false, non " + Testo(s, 2));
    if (tipo != "true")
        argomenti.push_back(Testo(s, 2));
}

} // namespace

void LavoriJson::Chiude::operator()(sqlite3* db) const { sqlite3_close(db); }

LavoriJson::LavoriJson() {
    sqlite3* db = nullptr;
    const int esito = sqlite3_open_v2(":memory:", &db, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
    db_.reset(db);
    if (esito != SQLITE_OK)
        throw ErroreUso("i lavori non si possono leggere");
}

std::vector<std::string> LavoriJson::Argomenti(const std::string& riga) const {
    ControllaZeri(riga);
    sqlite3_stmt* preparata = nullptr;
    sqlite3_prepare_v2(db_.get(), query, -1, &preparata, nullptr);
    const Istruzione s(preparata);
    sqlite3_bind_text(s.get(), 1, riga.data(), static_cast<int>(riga.size()), SQLITE_STATIC);
    std::vector<std::string> argomenti;
    int passo = sqlite3_step(s.get());
    for (; passo == SQLITE_ROW; passo = sqlite3_step(s.get()))
        Aggiunge(argomenti, s);
    if (passo != SQLITE_DONE || argomenti.empty())
        NonOggetto();
    return argomenti;
}

} // namespace sagomi
