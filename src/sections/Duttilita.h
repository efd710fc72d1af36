#pragma once

namespace sagomi {

/// What the ductility parameter of a section reads: mm, mm2, N/mm2.
struct SezioneDuttile {
    double h = 0;    ///< overall height [mm]
    double b = 0;    ///< flange width [mm]
    double tw = 0;   ///< web thickness [mm]
    double tf = 0;   ///< flange thickness [mm]
    double area = 0; ///< [mm2]
    double fy = 0;   ///< yield strength [N/mm2]
    double fu = 0;   ///< ultimate strength [N/mm2]
};

/// The ductility parameter s and the steps to it, Ordinanza 3274-2003 6.5.3.1.
struct DuttilitaCalcolata {
    double lamdaF = 0; ///< slenderness of the flange [-]
    double dwe = 0;    ///< compressed height of the web, at most the clear height [mm]
    double lamdaW = 0; ///< slenderness of the web [-]
    double s = 0;      ///< ductility parameter [-]; sSenzaLuce where there is no shear length
    double limite = 0; ///< fu / fy, at most limiteDuttilita [-]
};

inline constexpr double sSenzaLuce = 1000;      ///< stands for s while the shear length is not known
inline constexpr double limiteDuttilita = 1.25; ///< highest value of s that counts

/// Ductility parameter of a double-T or channel section under axial force.
/// @param N      axial force [N], positive in compression
/// @param Lstar  shear length, from the plastic hinge to the point of zero moment [mm]; not above 0: unknown
DuttilitaCalcolata CalcolaDuttilita(const SezioneDuttile& sezione, double N, double Lstar);

} // namespace sagomi
