#pragma once

#include <cstdint>
#include <string_view>

namespace sagomi {

class SezioneDoppioT;

/// The plain formulas of Eurocode 3 that all section models share. Clauses and tables are those of
/// ENV 1993-1-1 where nothing else is said. The partial factors are the global ones in force.

inline constexpr double E_acciaio = 210000;  ///< modulus of elasticity [N/mm2]
inline constexpr double G_acciaio = 80769;   ///< shear modulus [N/mm2]
inline constexpr double ro_acciaio = 7850;   ///< density [kg/m3]
inline constexpr double fyRiferimento = 235; ///< strength at which epsilon is 1 [N/mm2]
inline constexpr std::string_view limiteInfinito =
    "¥"; ///< text of a limit that is none; labels paint it as infinity

/// Strength factor of the slenderness limits, table 5.3.1.
/// @param fy  yield strength [N/mm2]; 0 counts as 0.00001
/// @return root of 235 / fy [-]
double Epsilon(double fy);

/// Slenderness at which the Euler stress is the yield strength, 5.5.1.2.
/// @return 93.9 epsilon [-]
double Lamda1(double epsilon);

/// Relative slenderness, 5.5.1.2.
/// @param lamda  slenderness, length over radius of gyration [-]
/// @param fy     yield strength [N/mm2]
/// @param betaA  effective over gross area [-]
double LamdaRelativa(double lamda, double fy, double betaA);

/// The slenderness that has the given relative slenderness: the inverse of LamdaRelativa.
double LamdaDaRelativa(double lamdaRelativa, double fy, double betaA);

/// Imperfection factor of a buckling curve, table 5.5.1.
/// @param curva  "a0", "a", "b", "c" or "d"; any other throws std::out_of_range
double AlfaCurva(std::string_view curva);

/// Bow factor of a buckling curve, figure 5.5.1; the same names.
double BetaCurva(std::string_view curva);

/// phi of the reduction factor, 5.5.1.2.
/// @param alfa   imperfection factor [-]
/// @param lamda  relative slenderness [-]
double Fi(double alfa, double lamda);

/// Reduction factor for flexural buckling, 5.5.1.2; at most 1, 0 for an infinite slenderness.
/// @param alfa   imperfection factor [-]
/// @param lamda  relative slenderness [-]
double Chi(double alfa, double lamda);

/// Buckling stress fy chi / GammaM1 [N/mm2], 5.5.1.1.
/// @param lamda  slenderness [-], not the relative one
/// @param fy     yield strength [N/mm2]
/// @param betaA  effective over gross area [-]
/// @param curva  name of the buckling curve
double ChiFyM1(double lamda, double fy, double betaA, std::string_view curva);

/// Factor mu of the interaction of axial force and bending, 5.5.4; at most 0.9.
/// @param lamda     relative slenderness [-]
/// @param beta      equivalent uniform moment factor [-]
/// @param Wel, Wpl  elastic and plastic modulus [mm3]
/// @param classe    class of the section in compression with bending
double Mu(double lamda, double beta, double Wel, double Wpl, std::int16_t classe);

/// Effective part of a plate in compression, 5.3.5.
/// @param b, t    width and thickness of the plate [mm]
/// @param fy      yield strength [N/mm2]
/// @param kSigma  buckling factor [-]; not above 0 leaves nothing of the plate
/// @return effective over gross width, 0 to 1
double Rho(double b, double t, double fy, double kSigma);

/// Equivalent initial bow imperfection [mm], figure 5.5.1; at least 2.
/// @param asse  "yy" or "zz"
double FrecciaIniziale(const SezioneDoppioT& sezione, std::string_view asse);

/// Equivalent uniform moment factor of end moments, figure 5.5.3: 1.8 - 0.7 psi.
/// @param psi  ratio of the end moments, -1 to 1; another gives a message and the formula all the same
double Psi2(double psi);

} // namespace sagomi
