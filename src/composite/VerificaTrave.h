#pragma once

#include <limits>
#include <optional>
#include <string>
#include <string_view>

namespace sagomi {

class AcciaioCls;
class SezioneDoppioT;

/// What a check has to say besides the results in the beam.
struct EsitoTrave {
    bool accettati = false; ///< the data were accepted; if not, "Errore! Controllare i dati" has been told
    bool validi = false;    ///< there are results. If not, those of the beam are 0 and it has no parts
    std::string nota;       ///< why there are none, where no message has said it: "interasse < bb + bs", ...
    bool segnoMsd = false;  ///< elastic: Msd has the sign of the other check (sagging is positive)
    bool soloElastica = false;        ///< class 3 or 4: a plastic resistance is not to be counted on
    std::optional<double> equilibrio; ///< moment in equilibrium, where MplRd is off by over 1 % [N mm]
};

/// The whole check of a composite beam on the section in use: prepares both, computes by TipoVerifica and
/// holds back results that would mislead: after a message of the solver, with ribs that overlap, without a
/// slab above the deck, with bars outside the slab.
EsitoTrave VerificaTrave(AcciaioCls& trave);

/// What a check says of the acting moment.
struct VerdettoTrave {
    /// Held against 1: |Msd| over the smaller of MplRd and the moment in equilibrium, or the largest stress
    /// over its limit (fyd of the steel, fsd of the bars, fcd of compressed concrete; EC4 6.2.1.5 (2)). No
    /// number where there is no verdict.
    double utilizzo = std::numeric_limits<double>::quiet_NaN();
    std::string governa; ///< elastic: the part whose stress is the largest
    std::string motivo;  ///< why there is no verdict
};
[[nodiscard]] VerdettoTrave Giudica(const AcciaioCls& trave, const EsitoTrave& esito);

/// Why the data of an accepted beam cannot give results; empty where they can.
[[nodiscard]] std::string DatiFuorvianti(const AcciaioCls& trave);

/// Plastic moment with every force in equilibrium: slab and steel on the side of the axis where they lie,
/// bars in compression on the compressed side, at their level as much as is missing. Slab and section are
/// there. [N mm], below 0 when hogging.
[[nodiscard]] double MomentoInEquilibrio(const AcciaioCls& trave);

/// "in equilibrio: x kNm", to stand beside MplRd; empty where there is no such moment.
[[nodiscard]] std::string TestoEquilibrio(const EsitoTrave& esito);

/// "Sezione di classe n" and, of class 3 and 4, "Solo verifica elastica" on a second line.
[[nodiscard]] std::string MessaggioClasse(const SezioneDoppioT& sezione);

inline constexpr std::string_view testoSegnoMsd = "segno di Msd";

} // namespace sagomi
