#pragma once

#include <numbers>

#include "joints/Giunto.h"
#include "joints/Sezioni.h"

namespace sagomi::prove {

/// UB 533x210x92 on UC 254x254x107, extended plate 670 x 250 x 25, M24 8.8, S275, no shear in the panel.
struct GiuntoInglese {
    Giunto g;
    GiuntoInglese() {
        using std::numbers::sqrt2;
        const auto trave = Laminato("UB 533x210x92", 533.1, 209.3, 10.1, 15.6, 12.7, 11700, 552000000);
        const auto colonna = Laminato("UC 254x254x107", 266.7, 258.8, 12.8, 20.5, 12.7, 13600, 175000000);
        trave->fy = colonna->fy = 265;
        trave->McyRd = 2360000 * 275.0;
        g.PuntatoreSezioni(trave, colonna);
        g.sTraveColonna_Calcola();
        g.IndiceBullone(9);
        g.nf = 2;
        g.tf = 25;
        g.bf = 250;
        g.ef = 75;
        g.d2 = 100 - 40 - 15.6;
        g.ex = 50;
        g.L = 90;
        g.u = 670 - 533.1 - 90;
        g.Af = 12 / sqrt2;
        g.aw = 8 / sqrt2;
        g.Derivati_Calcola();
        g.Mrd_Giunto_Calcola();
    }
};

} // namespace sagomi::prove
