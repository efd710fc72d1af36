#pragma once

#include <string>

#include "fasteners/Bullone.h"
#include "frame/GeneraleSagomi.h"
#include "sections/CasiDaFile.h"

namespace sagomi::prove {

/// The bolt of a case of tests/data/fasteners, computed in the order in which its callers do; the case also
/// sets GammaM2.
inline Bullone BulloneDaCaso(const CasoDaFile& c) {
    const auto numero = [&c](const char* chiave) { return NumeroDaTesto(c.dati.at(chiave)); };
    GammaM2 = numero("gamma");
    Bullone b;
    b.Classe(numero("classe"));
    b.Gambo = numero("gambo") != 0;
    b.d(static_cast<std::int16_t>(numero("posizione")));
    if (c.dati.contains("fub"))
        b.fub = numero("fub");
    b.do_ = numero("do");
    b.CalcolaResistenzaTaglio();
    b.fu = numero("fu");
    b.t = numero("t");
    b.e1 = numero("e1");
    b.p1 = numero("p1");
    b.e2 = numero("e2");
    b.p2 = numero("p2");
    b.RifollamentoCalcola();
    b.FvSd = numero("FvSd");
    b.FtSd = numero("FtSd");
    return b;
}

/// Table of cases as a test's parameters: the name becomes one that the test program takes.
inline std::string NomeDiProva(const std::string& nome) {
    std::string buono;
    for (const char ch : nome)
        buono += std::isalnum(static_cast<unsigned char>(ch)) != 0 ? ch : '_';
    return buono;
}

} // namespace sagomi::prove
