#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "frame/Singolo.h"

namespace sagomi {

enum : std::int16_t { caricoConcentrato = 0, caricoDistribuito = 1 };
enum : std::int16_t { quotaEstradosso = 0, quotaBaricentro = 1, quotaIntradosso = 2 };

/// Elastic critical load of a doubly symmetric beam between lateral restraints, by the tables and closed
/// forms of Timoshenko and Gere, Theory of Elastic Stability, chapter 6: simply supported beam or cantilever,
/// concentrated load (at mid-span, at the free end) or distributed load, at three heights.
///
/// The critical load is gamma2 root(E Iz C) / L^2, with the torsional stiffness C = G IT; gamma2 depends on
/// L^2 C / C1, with the warping stiffness C1 = E Iw. Lengths in mm, forces in N.
class Timoshenko {
public:
    Singolo L;         ///< distance between lateral restraints [mm]
    bool NoIw = false; ///< the warping stiffness is left out
    Singolo IT;        ///< torsion constant [mm4]
    Singolo E;         ///< modulus of elasticity [N/mm2]
    Singolo G;         ///< shear modulus [N/mm2]
    Singolo Iz;        ///< second moment about the weak axis [mm4]
    Singolo Iw;        ///< warping constant [mm6]

    /// L^2 G IT / E [mm6], to be held against Iw. The second moment plays no part.
    [[nodiscard]] static Singolo Rapporto(const Singolo& L, const Singolo& E, const Singolo& G,
                                          const Singolo& Iz, const Singolo& IT);

    /// gamma2 of a cantilever with its load at the free end and the centroid: table up to a ratio of 40,
    /// closed form above.
    [[nodiscard]] static Singolo Gamma2Mens(const Singolo& L, const Singolo& E, const Singolo& G,
                                            const Singolo& Iz, const Singolo& IT, const Singolo& Iw);

    /// gamma2 of a simply supported beam; above a ratio of 400 the last value of the table, with a message.
    [[nodiscard]] static Singolo Gamma2App(const Singolo& L, const Singolo& E, const Singolo& G,
                                           const Singolo& Iz, const Singolo& IT, const Singolo& Iw,
                                           std::int16_t TipoCarico, std::int16_t QuotaCarico);

    /// Critical load of a cantilever [N]: at the free end, or the whole of a distributed one. With warping
    /// the table of the end load serves for both.
    [[nodiscard]] static double PcrMens(const Singolo& L, const Singolo& E, const Singolo& G,
                                        const Singolo& Iz, const Singolo& IT, const Singolo& Iw,
                                        std::int16_t TipoCarico, std::int16_t QuotaCarico, bool NoIw);

    /// Critical load of a simply supported beam [N]: at mid-span, or the whole of a distributed one.
    [[nodiscard]] static double PcrApp(const Singolo& L, const Singolo& E, const Singolo& G,
                                       const Singolo& Iz, const Singolo& IT, const Singolo& Iw,
                                       std::int16_t TipoCarico, std::int16_t QuotaCarico, bool NoIw);

    /// gamma2 of a cantilever without warping stiffness. A distributed load counts at the centroid; another
    /// height is told by a message.
    /// @param C  torsional stiffness [N mm2]
    [[nodiscard]] static Singolo Gamma2MensNoIw(const Singolo& L, const Singolo& E, const Singolo& Iz,
                                                double C, std::int16_t TipoCarico, std::int16_t QuotaCarico);

    /// gamma2 of a simply supported beam without warping stiffness.
    [[nodiscard]] static Singolo Gamma2AppNoIw(const Singolo& L, const Singolo& E, const Singolo& Iz,
                                               double C, std::int16_t TipoCarico, std::int16_t QuotaCarico);

    /// Height of the load above the centroid of the current section [mm]: half its height, 0, minus half.
    [[nodiscard]] static Singolo a_QuotaCarico(std::int16_t QuotaCarico);

    /// The tables: 14 abscissas L^2 C / C1 and ordinates gamma2, rounded to single precision, entry 1 at [0].
    /// A height that is none of the three fills no ordinate.
    static void TabellaMensola(std::vector<double>& ascisse, std::vector<double>& ordinate);
    static void TabellaAppoggiata(std::vector<double>& ascisse, std::vector<double>& ordinate,
                                  std::int16_t TipoCarico, std::int16_t QuotaCarico);
    static void TabellaAppoggiata1(std::vector<double>& ordinate, std::int16_t QuotaCarico);

    /// Critical moment [N mm] of the members above: the largest moment under the critical load. A length that
    /// is none gives a message and no result.
    [[nodiscard]] std::optional<double> McrAppoggiata(std::int16_t TipoCarico,
                                                      std::int16_t QuotaCarico) const;
    [[nodiscard]] std::optional<double> McrMensola(std::int16_t TipoCarico, std::int16_t QuotaCarico) const;

protected:
    /// Whether L is above 0; tells it where it is not.
    [[nodiscard]] bool LunghezzaValida() const;
};

} // namespace sagomi
