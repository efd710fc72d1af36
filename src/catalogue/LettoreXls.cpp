#include "catalogue/LettoreXls.h"

#include <new>
#include <string>
#include <utility>

#include "catalogue/CartellaXls.h"
#include "catalogue/ErroreCatalogo.h"
#include "catalogue/LimitiXls.h"

namespace sagomi {

namespace {

CartellaDati LeggeTutto(CartellaXls cartella) {
    CartellaDati dati;
    std::size_t posti = 0;
    for (std::size_t i = 0; i < cartella.Fogli(); ++i) {
        const FoglioLetto letto = cartella.Legge(i);
        posti += PostiDi(letto);
        if (posti > massimeCelle)
            throw std::runtime_error("le celle del foglio \"" + letto.nome +
                                     "\" sono troppo lontane fra loro");
        dati.fogli.push_back(FoglioDa(letto));
    }
    return dati;
}

} // namespace

CartellaDati LeggeXls(const std::filesystem::path& file, ImprontaFile* impronta) {
    try {
        CartellaXls cartella(file);
        if (impronta != nullptr)
            *impronta = cartella.Impronta();
        return LeggeTutto(std::move(cartella));
    } catch (const std::bad_alloc&) {
        throw ErroreLettura(file, "memoria insufficiente");
    } catch (const std::exception& e) {
        throw ErroreLettura(file, e.what());
    }
}

} // namespace sagomi
