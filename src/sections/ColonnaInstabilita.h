#pragma once

#include <string_view>

namespace sagomi {

/// One column of the derivation of a buckling resistance: the steps of ENV 1993-1-1 5.5.1 about one axis.
struct ColonnaCalcolata {
    double lamdaSegnato = 0; ///< relative slenderness [-]
    double alfa = 0;         ///< imperfection factor [-], table 5.5.1
    double fi = 0;           ///< [-]
    double chi = 0;          ///< reduction factor [-]
    double Ncr = 0;          ///< elastic critical force [N]; infinite where the slenderness is 0
    double NbRd = 0;         ///< buckling resistance [N]
};

/// The steps from a slenderness to the buckling resistance.
/// @param lamda  slenderness, length over radius of gyration [-]
/// @param fy     yield strength [N/mm2]
/// @param betaA  effective over gross area [-]
/// @param area   gross area [mm2]
/// @param curva  name of the buckling curve, "a0" to "d"; any other throws std::out_of_range
/// @return numbers; what cannot be computed is no number (NaN)
ColonnaCalcolata CalcolaColonna(double lamda, double fy, double betaA, double area, std::string_view curva);

/// Elastic critical force of a slenderness, EC3 6.3.1.2 [N].
double ForzaCritica(double lamda, double area);

/// What a slenderness typed by hand gives.
struct RiduzioneCalcolata {
    double altra = 0; ///< the other slenderness [-]: relative where the plain one is given, and the reverse
    double alfa = 0;  ///< imperfection factor [-]
    double fi = 0;    ///< [-]
    double chi = 0;   ///< reduction factor [-]
};

/// Reduction factor of a slenderness, or of a relative one, ENV 1993-1-1 5.5.1.2.
/// @param snellezza  the given one [-]
/// @param relativa   it is the relative slenderness
/// @param fy         yield strength [N/mm2]
/// @param betaA      effective over gross area [-]
/// @param curva      name of the buckling curve, "a0" to "d"; any other throws std::out_of_range
RiduzioneCalcolata CalcolaRiduzione(double snellezza, bool relativa, double fy, double betaA,
                                    std::string_view curva);

} // namespace sagomi
