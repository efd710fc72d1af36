#include "catalogue/ScrittoreXls.h"

#include <algorithm>
#include <cstddef>
#include <set>
#include <stdexcept>
#include <string>
#include <system_error>
#include <unistd.h>
#include <utility>

#include "catalogue/ContenitoreOle.h"
#include "catalogue/ErroreCatalogo.h"
#include "catalogue/FoglioXls.h"
#include "catalogue/Minuscole.h"
#include "catalogue/RecordBiff.h"
#include "catalogue/StiliXls.h"
#include "catalogue/TabellaStringhe.h"
#include "frame/FileAtomico.h"

namespace sagomi {

namespace {

constexpr unsigned italia = 39; ///< country of the program that writes, and of the system
constexpr std::size_t massimoNomeFoglio = 31;
constexpr std::size_t minimoFlusso = 4096; ///< below, the container would use its small sectors

void VerificaNome(const std::string& nome) {
    const std::u16string u = Utf16DaUtf8(nome);
    if (u.empty() || u.size() > massimoNomeFoglio)
        throw std::invalid_argument("il nome del foglio \"" + nome + "\" non ha da 1 a 31 caratteri");
    if (nome.find_first_of("\\/?*[]:") != std::string::npos || nome.front() == '\'' || nome.back() == '\'')
        throw std::invalid_argument("il nome del foglio \"" + nome + "\" contiene caratteri non ammessi");
}

void VerificaMisure(const Foglio& foglio) {
    if (foglio.righe.size() > massimeRighe)
        throw std::length_error("il foglio \"" + foglio.nome + "\" ha più di 65536 righe");
    for (const auto& riga : foglio.righe)
        if (riga.size() > massimeColonne)
            throw std::length_error("il foglio \"" + foglio.nome + "\" ha più di 256 colonne");
}

void Verifica(const CartellaDati& cartella) {
    if (cartella.fogli.empty())
        throw std::invalid_argument("la cartella di lavoro non ha fogli");
    std::set<std::string> nomi;
    for (const Foglio& foglio : cartella.fogli) {
        VerificaNome(foglio.nome);
        VerificaMisure(foglio);
        if (!nomi.insert(Minuscole(foglio.nome)).second)
            throw std::invalid_argument("il foglio \"" + foglio.nome + "\" compare due volte");
    }
}

TabellaStringhe RaccoglieStringhe(const CartellaDati& cartella) {
    TabellaStringhe stringhe;
    for (const Foglio& foglio : cartella.fogli)
        for (const auto& riga : foglio.righe)
            for (const Cella& cella : riga)
                if (const auto* testo = std::get_if<std::string>(&cella.valore); testo && !testo->empty())
                    stringhe.Raccoglie(*testo);
    return stringhe;
}

/// The head of the workbook up to the list of the sheets.
void ScriveTesta(FlussoBiff& flusso) {
    constexpr unsigned utf16 = 0x04B0;
    flusso.Record(Biff::Bof, Ottetti().U16(0x0600).U16(0x0005).U16(0x0DBB).U16(0x07CC).U32(0x41).U32(0x06));
    flusso.Record(Biff::CodePage, Ottetti().U16(utf16));
    // place and size of the window in twips, scroll bars and tabs shown, first sheet in front
    flusso.Record(Biff::Window1,
                  Ottetti().U16(480).U16(60).U16(18195).U16(8505).U16(0x0038).U16(0).U16(0).U16(1).U16(600));
    flusso.Record(Biff::DateMode, Ottetti().U16(0));
    flusso.Record(Biff::Precision, Ottetti().U16(1));
    ScriveStili(flusso);
    flusso.Record(Biff::UseSelfs, Ottetti().U16(0));
}

/// Enters a sheet into the list. Returns where its position is to be filled in.
std::uint32_t ScriveVoceFoglio(FlussoBiff& flusso, const std::string& nome) {
    const std::u16string u = Utf16DaUtf8(nome);
    const bool stretto = EntraInUnByte(u);
    Ottetti o;
    o.U32(0).U16(0).U8(static_cast<unsigned>(u.size())).U8(stretto ? 0 : 1).Testo(u, 0, u.size(), stretto);
    return flusso.Record(Biff::BoundSheet, o) + static_cast<std::uint32_t>(testaRecord);
}

/// Bytes that the cells take at most, beyond heads, rows and texts, which are little.
std::size_t ByteCelle(const CartellaDati& cartella) {
    constexpr std::size_t massimoCella = testaRecord + 14;
    std::size_t celle = 0;
    for (const Foglio& foglio : cartella.fogli)
        for (const auto& riga : foglio.righe)
            celle += riga.size() + 2; // its own record
    return celle * massimoCella;
}

/// Why a file could not be written, as far as can be told afterwards.
std::string CausaScrittura(const std::filesystem::path& file) {
    std::error_code errore;
    const std::filesystem::path cartella = file.has_parent_path() ? file.parent_path() : ".";
    if (!std::filesystem::is_directory(cartella, errore))
        return "la cartella non esiste";
    if (std::filesystem::is_directory(file, errore))
        return "al suo posto c'è una cartella";
    if (access(cartella.c_str(), W_OK) != 0 ||
        (std::filesystem::exists(file, errore) && access(file.c_str(), W_OK) != 0))
        return "accesso negato";
    return "il disco non accetta i dati";
}

} // namespace

std::vector<std::uint8_t> ComponeBiff(const CartellaDati& cartella) {
    Verifica(cartella);
    const TabellaStringhe stringhe = RaccoglieStringhe(cartella);
    FlussoBiff flusso;
    flusso.Riserva(ByteCelle(cartella));
    ScriveTesta(flusso);
    std::vector<std::uint32_t> posti;
    for (const Foglio& foglio : cartella.fogli)
        posti.push_back(ScriveVoceFoglio(flusso, foglio.nome));
    flusso.Record(Biff::Country, Ottetti().U16(italia).U16(italia));
    stringhe.Scrive(flusso);
    flusso.Record(Biff::Eof);
    for (std::size_t i = 0; i < cartella.fogli.size(); ++i)
        flusso.Corregge(posti[i], ScriveFoglio(flusso, cartella.fogli[i], stringhe, i == 0));
    flusso.AllungaA(minimoFlusso);
    return std::move(flusso).dati();
}

void ScriveXls(const CartellaDati& cartella, const std::filesystem::path& file,
               const std::function<bool()>& ancora) {
    const std::string inizio = "Errore nella scrittura di \"" + file.string() + "\": ";
    std::string byte;
    try {
        byte = ContenitoreOle("Workbook", ComponeBiff(cartella));
    } catch (const std::exception& e) {
        throw ErroreCatalogo(inizio + e.what() + ".");
    }
    if (!ScriveAtomico(file, byte, ancora))
        throw ErroreCatalogo(inizio + CausaScrittura(file) + ".");
}

} // namespace sagomi
