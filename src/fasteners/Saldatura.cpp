#include "fasteners/Saldatura.h"

#include <array>
#include <cmath>

#include "fasteners/Rapporto.h"
#include "frame/GeneraleSagomi.h"
#include "frame/Messaggi.h"

namespace sagomi {

namespace {

struct Correlazione {
    double fu;
    double betaW;
};

constexpr std::array<Correlazione, 5> correlazioni{{{360, 0.8}, {430, 0.85}, {510, 0.9}, {520, 1}, {540, 1}}};

} // namespace

// EC3 1-8 table 4.1.
Singolo Saldatura::betaW() const {
    for (const Correlazione& c : correlazioni)
        if (c.fu == fu)
            return c.betaW;
    Avvisa("Valore di fu non previsto", {}, Icona::Stop);
    return 0;
}

// EC3 1-8 4.5.3.3 (3).
Singolo Saldatura::fvwd() const { return Rapporto(fu / std::sqrt(3.0), betaW()) / GammaM2; }

} // namespace sagomi
