#include "catalogue/ScritturaRighe.h"

#include <algorithm>
#include <string>
#include <system_error>

#include "catalogue/Famiglie.h"
#include "catalogue/LettoreXls.h"
#include "catalogue/LimitiXls.h"
#include "catalogue/Minuscole.h"
#include "catalogue/ScrittoreXls.h"

namespace sagomi {

namespace {

std::string Inizio(const std::filesystem::path& file) {
    return "Errore nella scrittura di \"" + file.string() + "\": ";
}

/// The lock that LibreOffice leaves beside a file while it is open.
std::filesystem::path Blocco(const std::filesystem::path& file) {
    return file.parent_path() / (".~lock." + file.filename().string() + "#");
}

void VerificaChiuso(const std::filesystem::path& file) {
    std::error_code errore;
    if (std::filesystem::exists(Blocco(file), errore))
        throw ErroreCatalogo(Inizio(file) + "è aperto in un altro programma (lo dice il file \"" +
                             Blocco(file).filename().string() + "\").");
}

void VerificaImpronta(const std::filesystem::path& file, const ImprontaFile& ora, const ImprontaFile& letta) {
    if (ora != letta)
        throw CartellaCambiata(Inizio(file) + "un altro programma lo ha cambiato dopo che è stato letto. Non "
                                              "è stato scritto nulla.");
}

Foglio& FoglioDi(CartellaDati& cartella, std::string_view tabella, const std::filesystem::path& file) {
    for (Foglio& foglio : cartella.fogli)
        if (Minuscole(NomeTabella(foglio.nome)) == Minuscole(tabella))
            return foglio;
    throw ErroreCatalogo(Inizio(file) + "manca il foglio " + std::string(tabella) + ".");
}

/// The row behind the last one with a value.
std::size_t PrimaLibera(const Foglio& foglio) {
    std::size_t n = foglio.righe.size();
    while (n > 0 && std::ranges::all_of(foglio.righe[n - 1], [](const Cella& c) { return Vuoto(c.valore); }))
        --n;
    return n;
}

/// @return where the row lies
std::size_t MetteRiga(Foglio& foglio, const RigaScritta& riga, const std::filesystem::path& file) {
    const std::size_t r = riga.riga.value_or(PrimaLibera(foglio));
    if (r >= massimeRighe)
        throw ErroreCatalogo(Inizio(file) + "il foglio \"" + foglio.nome + "\" è pieno.");
    for (std::size_t c = 0; c < riga.campi.size(); ++c)
        if (foglio.Legge(r, c) != riga.campi[c]) // a cell that keeps its value keeps its format
            foglio.Scrive(r, c, riga.campi[c]);
    return r;
}

} // namespace

EsitoScrittura ScriveRighe(const std::filesystem::path& file, const ImprontaFile& letta,
                           std::string_view tabella, const std::vector<RigaScritta>& righe) {
    VerificaChiuso(file);
    ImprontaFile impronta;
    CartellaDati cartella = LeggeXls(file, &impronta);
    VerificaImpronta(file, impronta, letta);
    Foglio& foglio = FoglioDi(cartella, tabella, file);
    EsitoScrittura esito;
    for (const RigaScritta& riga : righe)
        esito.righe.push_back(MetteRiga(foglio, riga, file));
    ScriveXls(cartella, file, [&] {
        VerificaImpronta(file, ImprontaDi(file), letta);
        return true;
    });
    esito.impronta = ImprontaDi(file);
    return esito;
}

} // namespace sagomi
