// misura_grande TABLES FILE.xls: the catalogue with two families of 50,000 rows each, for the measures of
// large tables. The rows of IPE and HEA are repeated, each with a name and a weight of its own.

#include <exception>
#include <iostream>

#include "catalogue/CatalogoCsv.h"
#include "catalogue/ScrittoreXls.h"

using namespace sagomi;

namespace {

constexpr std::size_t righe = 50000;

void Allunga(Foglio& foglio) {
    const std::size_t date = foglio.righe.size();
    foglio.righe.reserve(righe + 1);
    for (std::size_t r = date; r <= righe; ++r) {
        foglio.righe.push_back(foglio.righe[1 + (r - 1) % (date - 1)]);
        auto& nuova = foglio.righe.back();
        nuova[0].valore = TestoDi(nuova[0].valore) + " " + std::to_string(r);
        for (const std::size_t colonna : {1U, 9U, 10U}) // weight, Iy, Wy: what is sorted by
            nuova[colonna].valore =
                NumeroDi(nuova[colonna].valore) + static_cast<double>(r * 7919 % righe) / 100;
    }
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "misura_grande TABLES FILE.xls\n";
        return 2;
    }
    try {
        CartellaDati cartella = CatalogoDaCsv(argv[1]);
        for (Foglio& foglio : cartella.fogli)
            if (foglio.nome == "IPE" || foglio.nome == "HEA")
                Allunga(foglio);
        ScriveXls(cartella, argv[2]);
    } catch (const std::exception& e) {
        std::cerr << e.what() << '\n';
        return 1;
    }
}
