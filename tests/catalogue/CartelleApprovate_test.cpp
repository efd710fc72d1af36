// Workbooks held byte for byte against files that other programs open.
#include <cstdint>
#include <fstream>
#include <iterator>

#include <gtest/gtest.h>

#include "Approvato.h"
#include "Fogli.h"
#include "catalogue/SagomoUtente.h"
#include "catalogue/ScrittoreXls.h"
#include "frame/Ambiente.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

using S = std::string;

std::string Byte(const std::filesystem::path& file) {
    std::ifstream f(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(f), std::istreambuf_iterator<char>()};
}

/// Headings, numbers of every width, texts that repeat, that go over a record and that have accents.
CartellaDati Campione() {
    CartellaDati c;
    c.fogli.push_back(
        FoglioDi("Sagomi", {{S("designation"), S("g (kg/m)"), S("h (mm)"), S("A (cm2)"), S("Iy (cm4)")},
                            {S("IPE 80"), 6.0, 80.0, 7.64, 80.14},
                            {S("IPE 600"), 122.4, 600.0, 155.985, 92083.0},
                            {S("però \"ò\" €"), -0.5, 1e9, 1e-9, 1.0 / 3},
                            {{}, {}, 12345678.0, S("n.d."), S("IPE 80")}}));
    Foglio lungo{"Lungo", {}};
    for (std::size_t r = 0; r < 90; ++r) {
        lungo.Scrive(r, 0, S("riga ") + std::to_string(r));
        lungo.Scrive(r, 2, static_cast<double>(r) * 1.25);
        lungo.Scrive(r, 3, static_cast<double>(r * 1000));
        if (r % 7 == 0)
            lungo.Scrive(r, 40, S(r * 40, static_cast<char>('a' + r % 26)));
    }
    c.fogli.push_back(lungo);
    c.fogli.push_back(Foglio{"Vuoto", {}});
    return c;
}

TEST(CartelleApprovate, CartellaDiProva) {
    const CartellaDiProva dir;
    const auto file = dir.percorso / "campione.xls";
    ScriveXls(Campione(), file);
    ConfrontaApprovato("catalogue/campione.xls", Byte(file));
}

TEST(CartelleApprovate, CartellaDellUtente) {
    const CartellaDiProva dir;
    const auto file = dir.percorso / "utente.xls";
    InstallaCartellaUtente(file);
    ConfrontaApprovato("catalogue/utente.xls", Byte(file));
}

} // namespace
