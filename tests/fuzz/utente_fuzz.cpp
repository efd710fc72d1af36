// The bytes are the workbook that the user keeps his sections in, which another program may have written: it
// is read, completed, and gets a row more. One that was refused is left as it is.

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "FileDiProva.h"
#include "NumeriArbitrari.h"
#include "catalogue/ErroreCatalogo.h"
#include "catalogue/LettoreXls.h"
#include "catalogue/SagomoUtente.h"
#include "catalogue/ScritturaRighe.h"
#include "frame/Errori.h"
#include "frame/Messaggi.h"
#include "sections/SezioneDoppioT.h"

using namespace sagomi;

namespace {

constexpr const char* fogli[] = {"'DoppioT Simmetrico'$", "'DoppioT Asimmetrico'$"};

std::string Byte(const std::filesystem::path& file) {
    std::ifstream f(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(f), std::istreambuf_iterator<char>()};
}

/// Writes and says whether it was done; nothing was where it is refused.
template <typename A> bool Scrive(const std::filesystem::path& file, A azione) {
    const std::string prima = Byte(file);
    try {
        azione();
        return true;
    } catch (const ErroreCatalogo&) {
        prove::Pretende(Byte(file) == prima);
        return false;
    }
}

} // namespace

// libgsf 1.14 leaves a directory entry behind when one below it is broken.
extern "C" const char* __lsan_default_suppressions() { return "leak:libglib-2.0"; }

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const prove::FileDiProva file("SagomiUtente.xls");
    const MessaggiTaciuti silenzio;
    file.Scrive(data, size);
    const auto acciaio = [](SezioneDoppioT& s) { s.fy = 235; };
    for (const char* foglio : fogli) {
        const auto righe = foglio == fogli[0] ? RigheDoppioT::Saldate : RigheDoppioT::SaldateAsimmetriche;
        Scrive(file.percorso, [&] { CompletaRighe(file.percorso, foglio, righe, acciaio); });
        const RigaScritta riga{{}, {std::string("nuova"), {}, 500.0, 250.0, 8.0, 15.0, 5.0}};
        if (Scrive(file.percorso,
                   [&] { ScriveRighe(file.percorso, ImprontaDi(file.percorso), foglio, {riga}); }))
            (void)LeggeXls(file.percorso); // what was written reads
    }
    return 0;
}
