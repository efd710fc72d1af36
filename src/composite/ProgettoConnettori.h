#pragma once

#include <optional>
#include <string>

namespace sagomi {

class AcciaioCls;

inline constexpr double fuPioloIniziale = 450; ///< where a beam has no strength of its studs [N/mm2]
inline constexpr double GammaVIniziale = 1.25; ///< where it has no partial factor of them, EC4 2.3.3.2

/// Studs of half a beam, or whatever n counts, for partial connection: n (|Msd| - Ma)/(MplRd - Ma), along the
/// straight line from the steel alone to full connection, EC4 6.2.1.2. 0 where the steel carries Msd alone;
/// empty where MplRd is not above Ma, or Msd above MplRd.
/// @param MplRd, Ma  plastic moments of the composite and of the steel section, not negative [N mm]
[[nodiscard]] std::optional<double> ContoParziale(double n, double MplRd, double Msd, double Ma);

/// The same for studs in pairs: a whole number, rounded up; 0 where there is none.
[[nodiscard]] int ParzRipCoppie(int n, double MplRd, double Msd, double MaplRd);

/// What a number of studs of the whole beam gives at partial connection, EC4 6.2.1.2.
struct ConnessioneParziale {
    double grado = 0; ///< of connection, at most 1 [-]
    double MRd = 0;   ///< moment on the straight line from the steel alone to full connection [N mm]
};
/// @param n  studs of the beam; nConnCalc, MplRd and the section of the beam are those of its design
[[nodiscard]] ConnessioneParziale ConParziale(const AcciaioCls& trave, int n);

/// What the design of the studs shows; empty what stays empty.
struct EsitoConnettori {
    std::optional<double> PRd;    ///< of one stud [N]
    std::optional<int> n;         ///< studs of the beam
    std::optional<double> Passo;  ///< whole millimetres
    std::string Unita;            ///< what Passo counts
    std::optional<int> nervature; ///< ribs in a spacing, on a deck
    std::string messaggio;        ///< of lblHsuD
    int nervatureDoppie = 0;      ///< first ribs that take 2 studs, above 0 where there is such advice
};

/// The whole design with the data and the results that the beam has. Limits of the deck that are not kept
/// (EC4 6.3.3.2 (1)) are told and end it.
/// @param parziale  partial connection, for Msd
EsitoConnettori ProgettaConnettori(AcciaioCls& trave, bool parziale);

/// The advice on pairs in the first n ribs, from 1 up.
[[nodiscard]] std::string TestoSuggerimento(int n);

} // namespace sagomi
