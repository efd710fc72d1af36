#pragma once

namespace sagomi {

class SezioneGenerica;

/// Effective widths of plates of class 4. Rho itself is with the plain formulas, in Eurocod3.h.

inline constexpr double kSigmaAlaCompressa =
    0.43; ///< outstand in uniform compression, ENV 1993-1-1 table 5.3.3
inline constexpr double kSigmaAlaInflessa = 0.57; ///< outstand with its tip in compression, table 5.3.3
inline constexpr double kSigmaAnimaCompressa = 4; ///< internal plate in uniform compression, table 5.3.2

/// Buckling factor of an internal plate, ENV 1993-1-1 table 5.3.2. psi out of -2..1 gives a message and 0.
/// @param psi  ratio of the end stresses [-]; within 1e-9 of -1, 0 and 1 it counts as these
double kSigmaPiatto(double psi);

/// The strips of an internal plate that resist, table 5.3.2.
struct StrisceEfficaci {
    double be1 = 0; ///< at the compressed edge [mm]
    double be2 = 0; ///< at the neutral axis, or at the other edge when psi is not below 0 [mm]
};

/// Effective widths of an internal plate under linear stress, ENV 1993-1-1 table 5.3.2. psi above 1 gives a
/// message and leaves nothing.
/// @param psi    ratio of the end stresses, compression over compression positive [-]
/// @param bp, t  width and thickness of the plate [mm]
/// @param fy     yield strength [N/mm2]
StrisceEfficaci StrisceDelPiatto(double psi, double bp, double t, double fy);

/// Ratio of the stresses that bending about an outline's centroid gives at the ends of its web.
/// @param ySup  height of the compressed end [mm]; the other end lies bp below
double PsiAnima(const SezioneGenerica& contorno, double bp, double ySup);

/// What is taken off an outstand of class 4 at its tip [mm], ENV 1993-1-1 5.3.5.
/// @param c, t    outstand and thickness [mm]
/// @param kSigma  buckling factor, table 5.3.3
double TaglioAla(double c, double t, double fy, double kSigma);

} // namespace sagomi
