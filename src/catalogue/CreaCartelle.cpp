#include "catalogue/CreaCartelle.h"

#include <exception>
#include <filesystem>
#include <ostream>
#include <string_view>
#include <system_error>

#include "catalogue/CatalogoCsv.h"
#include "catalogue/SagomoUtente.h"
#include "catalogue/ScrittoreXls.h"

namespace sagomi {

namespace {

void ScriveCatalogo(const char* tabelle, const char* file) {
    const CartellaDati catalogo = CatalogoDaCsv(tabelle);
    std::error_code errore;
    std::filesystem::remove(file, errore); // an older one may have been made read-only
    ScriveXls(catalogo, file);
}

} // namespace

int CreaCartelle(std::span<const char* const> argomenti, std::ostream& errori) {
    if (argomenti.size() != 3) {
        errori << "crea_sagomi_xls <cartella delle tabelle> <file .xls>\n"
                  "crea_sagomi_xls --utente <file .xls>\n";
        return 2;
    }
    try {
        if (std::string_view(argomenti[1]) == "--utente")
            InstallaCartellaUtente(argomenti[2]);
        else
            ScriveCatalogo(argomenti[1], argomenti[2]);
    } catch (const std::exception& e) {
        errori << e.what() << '\n';
        return 1;
    }
    return 0;
}

} // namespace sagomi
