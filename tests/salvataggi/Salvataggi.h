#pragma once

#include <cstdio>
#include <filesystem>
#include <functional>
#include <map>
#include <string>

namespace sagomi::prove {

/// Kinds of files, each with what saves one that holds a number; false when it could not.
using SpecieDiFile = std::map<std::string, std::function<bool(const std::filesystem::path&, int)>>;

/// PROGRAM KIND FILE N: saves one file. PROGRAM KIND FILE N ...: one after the other from N on, until it is
/// killed. Says the number of each that is done.
inline int Salvataggi(const SpecieDiFile& specie, int argc, char** argv) {
    if (argc < 4 || !specie.contains(argv[1]))
        return 2;
    const auto& salva = specie.at(argv[1]);
    const bool senzaFine = argc > 4;
    int numero = std::stoi(argv[3]);
    do {
        if (!salva(argv[2], numero))
            return 1;
        std::printf("%d\n", numero++);
        std::fflush(stdout);
    } while (senzaFine);
    return 0;
}

} // namespace sagomi::prove
