#include <exception>
#include <filesystem>
#include <iostream>
#include <string_view>
#include <system_error>

#include "catalogue/CatalogoCsv.h"
#include "catalogue/SagomoUtente.h"
#include "catalogue/ScrittoreXls.h"

namespace {

void ScriveCatalogo(const char* tabelle, const char* file) {
    const sagomi::CartellaDati catalogo = sagomi::CatalogoDaCsv(tabelle);
    std::error_code errore;
    std::filesystem::remove(file, errore); // an older one may have been made read-only
    sagomi::ScriveXls(catalogo, file);
}

} // namespace

/// Makes the workbooks that lie beside the program: that of sections from the tables of figures, and the
/// user's own, without rows, where there is none.
int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "crea_sagomi_xls <cartella delle tabelle> <file .xls>\n"
                     "crea_sagomi_xls --utente <file .xls>\n";
        return 2;
    }
    try {
        if (std::string_view(argv[1]) == "--utente")
            sagomi::InstallaCartellaUtente(argv[2]);
        else
            ScriveCatalogo(argv[1], argv[2]);
    } catch (const std::exception& e) {
        std::cerr << e.what() << '\n';
        return 1;
    }
    return 0;
}
