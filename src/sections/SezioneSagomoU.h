#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "frame/Singolo.h"
#include "sections/MostraVplRd.h"

namespace sagomi {

class SezioneGenerica;
class Superficie;

/// A channel, or a pair of them: geometry, material, classes and resistances after Eurocode 3 (ENV 1993-1-1
/// where the clause is of the 1992 edition).
///
/// Units: mm, N, N/mm2 and their products; the screens convert at the border. Axis y-y is the strong one,
/// horizontal; the back of the web lies at x = 0, the flanges point to greater x, the lower fibre lies at
/// y = 0. The upper flange is the compressed one in bending about y-y.
///
/// A caller sets name, dimensions and constants of the table and the actions, runs InizializzaSezione and
/// reads the results from the members. Of a pair (Doppi) the constants are those of both channels, b, h and
/// the plates those of one.
class SezioneSagomoU {
public:
    MostraVplRd* MiaForm = nullptr; ///< the screen of the last run, receives the visibility of lblVplRd

    // Outlines, created at first use; those of class 4 while the class is 4. A copy of the section keeps
    // those that it was copied with.
    std::shared_ptr<SezioneGenerica> SezioneGenericaCorrente; ///< one whole channel
    std::shared_ptr<SezioneGenerica> SezioneComp4; ///< effective in compression; of a pair Area counts both
    std::shared_ptr<SezioneGenerica> SezioneWy4;   ///< effective in bending about y-y
    std::shared_ptr<SezioneGenerica> SezioneWz4;   ///< the same about z-z, x from the gross centroid
    std::int16_t SezioneEfficaceDaPlottare = 0;    ///< which effective outline is to be drawn

    // Material and name
    Singolo fy;              ///< yield strength [N/mm2]
    Singolo fu;              ///< ultimate strength [N/mm2]
    std::string Designation; ///< name of the section
    std::string TipoAcciaio; ///< name of the grade

    // Dimensions
    Singolo h;        ///< depth [mm]
    Singolo b;        ///< flange width, from the back of the web [mm]
    Singolo tw;       ///< web thickness [mm]
    Singolo tf;       ///< flange thickness [mm]; of a tapered flange the mean one
    Singolo r1;       ///< root radius [mm]
    Singolo r2;       ///< toe radius of the table [mm]
    Singolo pendenza; ///< above 0 for tapered flanges, whose toe radius it is [mm]; 0 for parallel ones

    // Constants
    Singolo Area;   ///< [mm2]
    Singolo iY;     ///< radius of gyration about y-y [mm]
    Singolo Iz;     ///< radius of gyration about z-z [mm]
    Singolo Jy;     ///< second moment about y-y [mm4]
    Singolo Jz;     ///< second moment about z-z [mm4]
    Singolo JT;     ///< torsion constant [mm4]
    Singolo Jw;     ///< warping constant [mm6]
    Singolo Wely;   ///< elastic modulus about y-y [mm3]
    Singolo Welz;   ///< elastic modulus about z-z, at the flange tips [mm3]
    Singolo Wply;   ///< plastic modulus about y-y [mm3]
    Singolo Wplz;   ///< plastic modulus about z-z [mm3]
    Singolo L0y;    ///< buckling length about y-y [mm]
    Singolo L0z;    ///< buckling length about z-z [mm]
    Singolo NSd;    ///< design axial force, positive in compression [N]
    Singolo dDoppi; ///< gap of a pair [mm]

    // Classes, 1 to 4; 0 before the first run
    std::int16_t ClasseCompressione = 0;
    std::int16_t ClasseFlessioneY = 0;
    std::int16_t ClasseFlessioneZ = 0;
    std::int16_t ClassePressoFlessione = 0; ///< in compression with bending
    double Ntrascurabile = 0;               ///< axial force below which the class in bending holds [N]

    // Resistances
    double NplRd = 0;  ///< axial force [N]
    double NbyRd = 0;  ///< buckling about y-y [N], ENV 1993-1-1 5.5.1
    double NbzRd = 0;  ///< buckling about z-z [N]
    double McyRd = 0;  ///< moment about y-y [N mm], ENV 1993-1-1 5.4.5; no number for a pair of class 4
    double MczRd = 0;  ///< moment about z-z [N mm]; no number for a pair of class 4
    double eNy = 0;    ///< shift of the centroid along the web, class 4 in bending about y-y [mm]
    double eNz = 0;    ///< shift of the centroid across the web, class 4 in bending about z-z [mm]
    double VplzRd = 0; ///< shear carried by the web [N], ENV 1993-1-1 5.4.6
    double VplyRd = 0; ///< shear carried by the flanges [N]
    double WyEff = 0;  ///< effective modulus about y-y, class 4 [mm3]; no number for a pair
    double WzEff = 0;  ///< effective modulus about z-z, class 4 [mm3]; no number for a pair

    // Plates
    double c = 0;                                ///< outstand of the flange, from the fillet [mm]
    double d = 0;                                ///< straight part of the web, between the fillets [mm]
    std::int16_t ClasseWebF = 0, ClasseWebC = 0; ///< web in bending, in compression
    std::string Limite0WebF, Limite1WebF;        ///< limits of the class of the web in bending, in epsilon
    std::string Limite0WebC, Limite1WebC;        ///< limits of that in compression
    std::int16_t ClasseAlaF = 0, ClasseAlaC = 0; ///< flange in bending about z-z, in compression
    std::string Limite0AlaF, Limite1AlaF;        ///< limits of the class of the flange in bending
    std::string Limite0AlaC, Limite1AlaC;        ///< limits of that in compression
    bool Doppi = false;                          ///< two channels
    bool DoppiCorto = false;                     ///< flange tips towards each other, else back to back

    /// Computes everything that follows from the stored data. Without a screen it does no screen work at all.
    /// @param schermo  kept as MiaForm, receives the visibility of lblVplRd; may be null
    void InizializzaSezione(MostraVplRd* schermo = nullptr);

    [[nodiscard]] double LamdaY() const; ///< L0y / iY [-]; no number where it does not divide
    [[nodiscard]] double LamdaZ() const; ///< L0z / Iz [-]; no number where it does not divide

    /// Warping constant of the centre lines, on the full flange width [mm6].
    [[nodiscard]] double JotaOmega() const;
    /// Torsion constant with the junctions of web and flanges [mm4].
    [[nodiscard]] double JotaT() const;

    [[nodiscard]] double SnellWeb() const;                  ///< d / tw / epsilon
    [[nodiscard]] double SnellAla() const;                  ///< c / tf / epsilon
    [[nodiscard]] static double SnellAlaInf() { return 0; } ///< no lower flange to tell apart
    [[nodiscard]] double dFunz() const;                     ///< height of the web between the fillets [mm]

    /// Class in compression (ENV 1993-1-1 table 5.3.1): the worse of web and flange; writes their classes and
    /// limits.
    std::int16_t ClasseCompressioneFunz();

    /// Effective over gross area in compression, ENV 1993-1-1 5.5.1.1: 1 up to class 3.
    [[nodiscard]] double betaA() const;

    /// Writes ClassePressoFlessione: the class in compression once NSd reaches Ntrascurabile, compared in
    /// single precision; the class in bending about y-y below.
    void ClassePressoFlessioneCalcola();

    /// Class in bending about y-y: web in bending, flange as classified in compression (so
    /// ClasseCompressioneFunz runs before).
    std::int16_t ClasseFlessioneYfunz();

    /// Class in bending about z-z: the flange alone.
    std::int16_t ClasseFlessioneZfunz();

    /// Draws the section, or the pair with its gap, to scale with hatching, axes, dimensions and the lines of
    /// its data. Called from "FrmClasseDoppioTU", the effective outline that SezioneEfficaceDaPlottare names
    /// is drawn inside the thin line of the whole one. Before InizializzaSezione nothing is drawn.
    /// @param oggetto      target of "VIDEO" and "STAMPANTE"; null for "DXF", "DWG" and "BLOCCO"
    /// @param maschera     name of the screen that asks
    /// @param dispositivo  device, put in force
    void PlottaSezione(Superficie* oggetto, std::string_view maschera, std::string_view dispositivo) const;

    [[nodiscard]] double tf1() const; ///< thickness of the flange at its sharp tip [mm]
    [[nodiscard]] double tf2() const; ///< thickness of the flange where the root fillet begins [mm]
    [[nodiscard]] double
    pf() const; ///< slope of a tapered flange as a tangent: 0.08, above h 300 0.05; else 0

    /// Closed outline of one channel in mm, counter-clockwise from (b, 0), each arc a chord line of 8 equal
    /// steps: 24 vertices with parallel flanges, 40 with tapered ones.
    /// @param x, y  receive the vertices, vertex 1 at [0]
    /// @param n     receives their number
    /// @param x0    abscissa of the back of the web
    void Coordinate(std::vector<double>& x, std::vector<double>& y, std::int16_t& n, double x0 = 0) const;

    /// Builds SezioneComp4: class 4 flanges cut at their tips, of a class 4 web the middle strip removed.
    void CoordinateComp4();

    /// Builds SezioneWy4: a class 4 upper flange cut at its tip, of a class 4 web the strip between those
    /// that resist at its top and at mid-height removed.
    void CoordinateWy4();

    /// Builds SezioneWz4: class 4 flanges cut at their tips.
    void CoordinateWz4();

    /// Buckling curve: "c" about both axes, for any size and steel, ENV 1993-1-1 table 5.5.3.
    [[nodiscard]] static std::string CurvaInstabilita(std::string_view asse);

    /// Axial resistance [N], ENV 1993-1-1 5.4.4, with the effective area of class 4 that the object has.
    [[nodiscard]] double NplRdFunz() const;

    /// Writes Ntrascurabile, the smaller of half the web's plastic resistance and a quarter of the section's
    /// [N], after EC3 6.2.9.1 (4). Reads d and NplRd.
    double NtrascurabileFunz();
};

} // namespace sagomi
