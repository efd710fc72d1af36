#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <string_view>

#include "report/Calcolatore.h"
#include "report/Relazione.h"

namespace sagomi::prove {

inline const PassoRelazione* Cerca(const Relazione& r, std::string_view simbolo) {
    for (const CapitoloRelazione& c : r.capitoli)
        for (const PassoRelazione& p : c.passi)
            if (p.simbolo == simbolo)
                return &p;
    return nullptr;
}

inline bool Ha(const Relazione& r, std::string_view simbolo) { return Cerca(r, simbolo) != nullptr; }

/// The first step with a symbol; an empty one, and a failure, where there is none.
inline PassoRelazione Passo(const Relazione& r, std::string_view simbolo) {
    const PassoRelazione* p = Cerca(r, simbolo);
    EXPECT_NE(p, nullptr) << simbolo;
    return p != nullptr ? *p : PassoRelazione();
}

/// Each step with its numbers put in gives its value, as far as four figures go.
inline void ProvaNumeri(const Relazione& r) {
    constexpr double quattroCifre = 2e-3;
    for (const CapitoloRelazione& c : r.capitoli)
        for (const PassoRelazione& p : c.passi) {
            if (p.numeri.empty() || p.numeri.find("∞") != std::string::npos)
                continue;
            double calcolato = std::nan("");
            EXPECT_NO_THROW(calcolato = Calcolatore::Valore(p.numeri.substr(0, p.numeri.find('\n'))))
                << c.titolo << ", " << p.simbolo << ": " << p.numeri;
            if (p.valore.empty() || p.formula.find("≤") != std::string::npos)
                continue;
            std::string senzaMigliaia = p.valore;
            std::erase(senzaMigliaia, ',');
            const double valore = ConPunto(senzaMigliaia);
            EXPECT_NEAR(calcolato, valore, quattroCifre * std::abs(valore) + 1e-3)
                << c.titolo << ": " << p.descrizione << ' ' << p.numeri << " = " << p.valore;
        }
}

} // namespace sagomi::prove
