#include "catalogue/CartellaXls.h"

#include <stdexcept>
#include <utility>

#include "catalogue/ContenitoreOle.h"
#include "catalogue/LetturaBiff.h"
#include "catalogue/LimitiXls.h"

namespace sagomi {

CartellaXls::CartellaXls(const std::filesystem::path& file) : CartellaXls(LeggeFile(file, massimoFile)) {}

CartellaXls::CartellaXls(FileLetto file)
    : impronta_(file.impronta), flusso_(LeggeFlussoOle(file.byte, {"Workbook", "Book"})) {
    LeggeInizio();
}

CartellaXls::CartellaXls(std::vector<std::uint8_t> flusso) : flusso_(std::move(flusso)) { LeggeInizio(); }

void CartellaXls::LeggeInizio() {
    try {
        testa_ = LeggeTesta(flusso_);
    } catch (const DannoBiff& e) {
        throw std::runtime_error(std::string("la cartella di lavoro è danneggiata (") + e.what() + ")");
    }
    if (testa_.fogli.empty())
        throw std::runtime_error("la cartella di lavoro non ha fogli");
    misure_.resize(testa_.fogli.size());
}

FoglioLetto CartellaXls::Legge(std::size_t foglio) {
    misure_.at(foglio) = {};
    MisuraCelle resta = massimaMisura;
    for (const MisuraCelle& letto : misure_) {
        resta.celle -= letto.celle;
        resta.testo -= letto.testo;
    }
    const MisuraCelle prima = resta;
    try {
        FoglioLetto letto = LeggeFoglio(flusso_, testa_, foglio, resta);
        misure_[foglio] = {prima.celle - resta.celle, prima.testo - resta.testo};
        return letto;
    } catch (const DannoBiff& e) {
        throw std::runtime_error("il foglio \"" + Nome(foglio) + "\" è danneggiato (" + e.what() + ")");
    }
}

} // namespace sagomi
