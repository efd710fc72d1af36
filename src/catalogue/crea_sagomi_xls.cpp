#include <exception>
#include <filesystem>
#include <iostream>
#include <system_error>

#include "catalogue/CatalogoCsv.h"
#include "catalogue/ScrittoreXls.h"

/// Makes the workbook of sections that lies beside the program from the tables of figures.
int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "crea_sagomi_xls <cartella delle tabelle> <file .xls>\n";
        return 2;
    }
    try {
        const sagomi::CartellaDati catalogo = sagomi::CatalogoDaCsv(argv[1]);
        std::error_code errore;
        std::filesystem::remove(argv[2], errore); // an older one may have been made read-only
        sagomi::ScriveXls(catalogo, argv[2]);
    } catch (const std::exception& e) {
        std::cerr << e.what() << '\n';
        return 1;
    }
    return 0;
}
