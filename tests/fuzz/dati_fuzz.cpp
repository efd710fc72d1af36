// The bytes are a data file; the first one says by which of the primitives it is read to its end.

#include <cstdint>
#include <string>
#include <vector>

#include "FileDiProva.h"
#include "frame/FileDati.h"

using namespace sagomi;

namespace {

bool Legge(std::uint8_t come, std::int16_t nFile) {
    constexpr unsigned maniere = 4;
    double doppio = 0;
    Singolo singolo;
    std::int16_t corto = 0;
    std::int32_t lungo = 0;
    bool logico = false;
    std::string testo, altro;
    std::vector<std::string> testi;
    switch (come % maniere) {
    case 0:
        return FileInOut("L", nFile, {&testo, &doppio, &singolo, &corto, &lungo, &logico});
    case 1:
        return FileInOutStringColl("L", nFile, testi);
    case 2:
        return FileInOutCoppia("L", nFile, testo, altro, "7.8");
    default:
        return LeggeRiga(nFile, testo);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const prove::FileDiProva file("dati.txt");
    const PrimitiveSilenziose silenzio;
    if (size == 0)
        return 0;
    file.Scrive(data + 1, size - 1);
    const std::int16_t nFile = ApreFile(file.percorso, "L");
    while (Legge(*data, nFile)) {
    }
    ChiudeFile(nFile);
    return 0;
}
