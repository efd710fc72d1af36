// Saves and reads a composite beam as the program does, for the script beside.

#include <cstdio>
#include <string>

#include "composite/AcciaioCls.h"
#include "frame/FileDati.h"
#include "frame/Unita.h"
#include "sections/SezioneDoppioT.h"

using namespace sagomi;

namespace {

AcciaioCls Trave(int numero) {
    AcciaioCls t;
    t.Sezione = std::make_shared<SezioneDoppioT>();
    t.Sezione->Designation = "IPE " + std::to_string(numero);
    t.Sezione->h = numero;
    t.hc = 120;
    t.beff = 1200;
    t.Msd = numero;
    return t;
}

/// Saves one beam after the other until it is killed; says the number of each that lies on the disk.
[[noreturn]] void Salva(const std::string& file, int da) {
    for (int i = da;; ++i) {
        const std::int16_t n = ApreFile(file, "S");
        if (Trave(i).FileLeggeScrive("S", n) && ChiudeFile(n)) {
            std::printf("%d\n", i);
            std::fflush(stdout);
        }
    }
}

/// The number of a beam that is whole.
int Legge(const std::string& file) {
    const std::int16_t n = ApreFile(file, "L");
    AcciaioCls t;
    const bool whole = n != 0 && t.FileLeggeScrive("L", n) && ChiudeFile(n);
    if (!whole || t.hc != 120 || t.Sezione->h != t.Msd)
        return 1;
    std::printf("%d\n", static_cast<int>(t.Msd));
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    const std::string modo = argc > 2 ? argv[1] : "";
    if (modo == "salva" && argc > 3)
        Salva(argv[2], std::stoi(argv[3]));
    return modo == "legge" ? Legge(argv[2]) : 2;
}
