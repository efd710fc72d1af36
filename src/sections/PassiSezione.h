#pragma once

#include <cstdint>

#include "frame/GeneraleSagomi.h"
#include "sections/MostraVplRd.h"
#include "sections/SezioneGenerica.h"

/// The steps of an initialiser that all sections built of a web and flanges share. Lengths in mm, forces in
/// N, moments in N mm, strengths in N/mm2.
namespace sagomi {

/// Axial force below which a section keeps its class in bending: the smaller of half the web's plastic
/// resistance and a quarter of the section's, after EC3 6.2.9.1 (4).
/// @param tw, d  thickness and clear height of the web
double AssialeTrascurabile(double tw, double d, double fy, double NplRd);

/// Class in compression with bending: that in compression once the axial force reaches the negligible one,
/// compared in single precision; that in bending about y-y below.
std::int16_t ClasseConAssiale(Singolo NSd, double Ntrascurabile, std::int16_t compressione,
                              std::int16_t flessioneY);

/// Effective over gross area in compression, ENV 1993-1-1 5.5.1.1: 1 up to class 3; not finite where the
/// gross area is 0.
/// @param efficace  the effective outline of class 4; without it nothing of the section is effective
double RapportoAree(std::int16_t classe, const SezioneGenerica* efficace, double area);

/// Tells the user of a ratio above 1.
void SegnalaRapportoAree(double betaA);

/// Plastic resistance of a shear area, ENV 1993-1-1 5.4.6 (1).
double ResistenzaTaglio(double Av, double fy);

/// Hides the mark beside the shear resistance, then shows it when the web is so slender that shear buckling
/// has to be checked: d/tw > 69 epsilon, ENV 1993-1-1 5.4.6 (7).
void SegnalaAnimaSnella(double d, double tw, double fy, MostraVplRd& schermo);

/// Torsion constant of a rolled section of a web and two flanges, with the junctions [mm4].
/// @param nodi  flanges' outstands at each junction: 2 for a double-T, 1 for a channel
double TorsioneLaminata(double h, double b, double tw, double tf, double r1, double nodi);

/// Moment resistance by class, ENV 1993-1-1 5.4.5: plastic up to class 2, elastic in class 3. Both are
/// divided by GammaM0; class 4 by GammaM1.
inline double MomentoLordo(std::int16_t classe, double Wpl, double Wel, double fy) {
    return (classe < 3 ? Wpl : Wel) * fy / GammaM0;
}

/// Writes McyRd and eNy, and WyEff of class 4, for which it has the effective outline built.
template <typename S> void FlessioneY(S& s) {
    s.eNy = 0;
    if (s.ClasseFlessioneY < 4) {
        s.McyRd = MomentoLordo(s.ClasseFlessioneY, s.Wply, s.Wely, s.fy);
        return;
    }
    s.CoordinateWy4();
    s.WyEff = s.SezioneWy4->WxSuperiore;
    s.McyRd = s.fy * s.WyEff / GammaM1;
    s.eNy = s.h / 2 - s.SezioneWy4->yG;
}

/// Writes MczRd and eNz, and WzEff of class 4.
template <typename S> void FlessioneZ(S& s) {
    s.eNz = 0;
    if (s.ClasseFlessioneZ < 4) {
        s.MczRd = MomentoLordo(s.ClasseFlessioneZ, s.Wplz, s.Welz, s.fy);
        return;
    }
    s.CoordinateWz4();
    s.WzEff = s.SezioneWz4->WyDestra;
    s.MczRd = s.fy * s.WzEff / GammaM1;
    s.eNz = -s.SezioneWz4->xG;
}

/// Classes of the whole section; that of the flange in compression comes before that in bending about y-y.
template <typename S> void Classi(S& s) {
    s.ClasseCompressione = s.ClasseCompressioneFunz();
    s.ClasseFlessioneY = s.ClasseFlessioneYfunz();
    s.ClasseFlessioneZ = s.ClasseFlessioneZfunz();
    s.ClassePressoFlessioneCalcola();
}

} // namespace sagomi
