#pragma once

#include "drawing/Disegno.h"
#include "frame/Singolo.h"

namespace sagomi {

class AcciaioCls;

/// The global materials of a composite beam (fck, fsk [N/mm2], n, gamma M0) as they were; Imposta puts them
/// in force again.
class MaterialiTrave {
public:
    /// Keeps those in force.
    MaterialiTrave();

    void Imposta() const;

    /// Puts back each of fck, fsk and n in force that is no such number.
    void RimetteImpossibili() const;

private:
    Singolo fck_, fsk_, n_, GammaM0_;
};

/// The section of a beam to scale, as it stands, with what a check by its TipoVerifica gives: computed in
/// silence on a copy. Data that cannot be checked leave the results out; without a slab the steel stands
/// alone, and measures that are none of a section draw nothing. The drawing keeps what it shows, whatever the
/// globals are later.
Disegno DisegnoVivo(const AcciaioCls& trave);

/// Whether the measures of the steel and fy are those of a section.
[[nodiscard]] bool SezionePossibile(const AcciaioCls& trave);

} // namespace sagomi
