#pragma once

#include <cstdint>
#include <optional>

#include "sections/DiagrammaMomenti.h"

namespace sagomi {

class SezioneDoppioT;

/// What a choice has given beside the row and the entries of a main screen, in N and mm: the details start
/// from these values as long as that row is in hand.
struct ValoriScelti {
    double Mysd = 0, Mzsd = 0; ///< largest moments of the diagrams
    std::optional<double> LLT; ///< none where lateral-torsional buckling was not asked for
    double k = 1, Kw = 1, C1 = 1, c2 = 0, c3 = 0, za = 0;
    bool C1Proprio = false; ///< C1 is not that of the diagram

    MomentiMembratura y, z; ///< the diagrams that the moments come from
    std::int16_t pict = pictEstremitaConcordi;
    std::uint64_t presa = 0; ///< of each row that is taken another: details that are open begin anew

    void MetteIn(SezioneDoppioT& sezione) const;
    /// The same with the diagrams, for the checks of a member.
    /// @param sezione  initialised, with its class
    void MetteMembratura(SezioneDoppioT& sezione) const;
    /// The end factors and the load alone, without moments and C1.
    void MetteFattori(SezioneDoppioT& sezione) const;
};

} // namespace sagomi
