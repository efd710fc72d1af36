#pragma once

#include <cstdint>

/// What the moment diagram of a member does to its checks: largest moment, equivalent uniform moment factor
/// (ENV 1993-1-1 figure 5.5.3) and factor of the critical moment (annex F).
namespace sagomi {

/// How a diagram is described.
enum : std::int16_t {
    diagrammaEstremita = 0, ///< end moments alone
    diagrammaCampata = 1    ///< end moments and a load in the span
};

/// The shapes of a diagram. The load is told against the end moments when it bends the span the other way.
enum : std::int16_t {
    pictEstremitaConcordi = 1,   ///< end moments of the same sign
    pictEstremitaDiscordi = 2,   ///< end moments of opposite sign
    pictDistribuitoContro = 3,   ///< distributed load against the end moments
    pictConcentratoContro = 4,   ///< point load against the end moments
    pictDistribuitoConcorde = 5, ///< distributed load with the end moments
    pictConcentratoConcorde = 6  ///< point load with the end moments
};

inline constexpr std::int16_t nPict = 6;

/// The description that a shape belongs to.
constexpr std::int16_t TipoDiPict(std::int16_t pict) {
    return pict < pictDistribuitoContro ? diagrammaEstremita : diagrammaCampata;
}

/// The first shape of a description.
constexpr std::int16_t PrimaPict(std::int16_t tipo) {
    return tipo == diagrammaEstremita ? pictEstremitaConcordi : pictDistribuitoContro;
}

/// Moments about one axis [N mm], without the axial force.
struct MomentiMembratura {
    double M1 = 0;  ///< the larger end moment, not negative
    double M2 = 0;  ///< the other end moment, positive where it bends as M1 does
    double MQ = 0;  ///< moment of the span load at mid-span, not negative
    double NeN = 0; ///< axial force times the shift of the centroid, added at both ends
};

/// What follows from a diagram.
struct EffettiDiagramma {
    double M = 0;     ///< largest moment [N mm]
    double BetaM = 0; ///< equivalent uniform moment factor [-]
    double C1 = 0;    ///< factor of the critical moment [-], at most 2.7
};

/// Effects of a moment diagram.
/// @param tipo  diagrammaEstremita or diagrammaCampata
/// @param pict  shape, 1 to 6; of weight with diagrammaCampata alone
/// A ratio of end moments outside -1..1, which the axial force can bring about, is told by a message.
EffettiDiagramma EffettiDelDiagramma(const MomentiMembratura& m, std::int16_t tipo, std::int16_t pict);

/// Brings end moments into the range of the figure, with a message for each correction: a negative M1 changes
/// its sign, an M2 larger than M1 in absolute value becomes 0.
void CorreggeM1M2(double& M1, double& M2);

/// The same for the moment of the span load: a negative one changes its sign.
void CorreggeMQ(double& MQ);

} // namespace sagomi
