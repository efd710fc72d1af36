#pragma once

#include <memory>
#include <string>

#include "sections/SezioneDoppioT.h"

namespace sagomi::prove {

using Sezione = std::shared_ptr<SezioneDoppioT>;

/// A rolled section with the values of its table that a joint reads [mm, N/mm2].
inline Sezione Laminato(const std::string& nome, double h, double b, double tw, double tf, double r1,
                        double Area, double Jy) {
    auto s = std::make_shared<SezioneDoppioT>();
    s->Designation = nome;
    s->h = h;
    s->b = b;
    s->tw = tw;
    s->tf = tf;
    s->r1 = r1;
    s->Area = Area;
    s->Jy = Jy;
    s->fy = 235;
    s->fu = 360;
    return s;
}

inline Sezione HEB300() { return Laminato("HE 300 B", 300, 300, 11, 19, 27, 14910, 251700000); }
inline Sezione HEB400() { return Laminato("HE 400 B", 400, 300, 13.5, 24, 27, 19780, 576800000); }

/// With the plastic moment, at GammaM0 1.05.
inline Sezione IPE300() {
    auto s = Laminato("IPE 300", 300, 150, 7.1, 10.7, 15, 5381, 83560000);
    s->McyRd = 628400 * 235 / 1.05;
    s->NplRd = 5381 * 235 / 1.05;
    s->lunghezza() = 6;
    return s;
}
inline Sezione IPE600() {
    auto s = Laminato("IPE 600", 600, 220, 12, 19, 24, 15600, 920800000);
    s->McyRd = 3512000 * 235 / 1.05;
    s->NplRd = 15600 * 235 / 1.05;
    s->lunghezza() = 8;
    return s;
}

} // namespace sagomi::prove
