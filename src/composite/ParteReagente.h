#pragma once

#include "geometry/Poligono.h"

namespace sagomi {

/// Area, centroid and second moment about its own horizontal axis of a part of slab or steel; all 0 where
/// there is none.
struct ParteReagente {
    double A = 0, yG = 0, I = 0;

    /// Computes the part's properties, too.
    explicit ParteReagente(Poligono* parte) {
        if (parte == nullptr)
            return;
        parte->CaratteristicheStatiche();
        A = parte->Area;
        yG = parte->yG;
        I = parte->IxG;
    }
    explicit ParteReagente(const std::shared_ptr<Poligono>& parte) : ParteReagente(parte.get()) {}

    [[nodiscard]] double S() const { return A * yG; } ///< first moment about y = 0
};

} // namespace sagomi
