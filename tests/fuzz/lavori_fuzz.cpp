// The bytes are jobs of the command line, a line each, on a workbook of a few rows; each line with something
// in it gets one line of answer.

#include <algorithm>
#include <filesystem>
#include <sstream>
#include <string>

#include "FileDiProva.h"
#include "NumeriArbitrari.h"
#include "catalogue/CatalogoCsv.h"
#include "catalogue/ScrittoreXls.h"
#include "choice/Comando.h"
#include "frame/GeneraleSagomi.h"

using namespace sagomi;

namespace {

/// The head and the first rows of each sheet of the catalogue.
void ScriveCatalogoPiccolo(const std::filesystem::path& file) {
    constexpr std::size_t righe = 3;
    CartellaDati catalogo = CatalogoDaCsv(SAGOMI_CATALOGUE_DATA);
    for (Foglio& foglio : catalogo.fogli)
        foglio.righe.resize(std::min(foglio.righe.size(), righe));
    ScriveXls(catalogo, file);
}

const std::filesystem::path& Cartella() {
    static const prove::FileDiProva file("Sagomi.xls");
    static const bool scritta = (ScriveCatalogoPiccolo(file.percorso), true);
    (void)scritta;
    return file.cartella;
}

std::ptrdiff_t RighePiene(const std::string& testo) {
    std::istringstream righe(testo);
    std::ptrdiff_t piene = 0;
    for (std::string riga; std::getline(righe, riga);)
        piene += riga.find_first_not_of(" \t\r") == std::string::npos ? 0 : 1;
    return piene;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    RipristinaGenerale();
    const std::string lavori(data, data + size);
    std::istringstream ingresso(lavori);
    std::ostringstream uscita, errori;
    const auto esito = EsegueComando({"--json"}, Cartella(), ingresso, uscita, errori);
    const std::string risposta = uscita.str();
    prove::Pretende(esito.has_value() && errori.str().empty());
    prove::Pretende(std::ranges::count(risposta, '\n') == RighePiene(lavori));
    return 0;
}
