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

/// An angle, equal or unequal, or a pair of them, under axial force: geometry, material, class and buckling
/// about three axes after Eurocode 3 (ENV 1993-1-1 where the clause is of the 1992 edition).
///
/// Units: mm, N, N/mm2 and their products; the screens convert at the border. The longer leg h is upright,
/// its back lies at x = 0; the shorter leg b is at the foot, its lower face at y = 0. Axis y-y is horizontal,
/// z-z upright, v-v the minor principal one.
///
/// A caller sets name, dimensions, constants and lengths, runs InizializzaSezione and reads the results from
/// the members. Of a pair (Doppi) the constants are those of both angles, h, b, t and iV those of one.
class SezioneSagomoL {
public:
    MostraVplRd* Form = nullptr; ///< the screen of the last run

    // Outlines, created at first use; that of class 4 while the class is 4. A copy of the section keeps those
    // that it was copied with.
    std::shared_ptr<SezioneGenerica> SezioneGenericaCorrente; ///< one whole angle
    std::shared_ptr<SezioneGenerica> SezioneComp4; ///< effective in compression; of a pair Area counts both

    bool Doppi = false;      ///< two angles
    bool DoppiCorto = false; ///< the short legs lie against each other, else the long ones

    Singolo fy;              ///< yield strength [N/mm2]
    Singolo fu;              ///< ultimate strength [N/mm2]
    std::string Designation; ///< name of the section
    std::string TipoAcciaio; ///< name of the grade

    Singolo h;      ///< longer leg [mm]
    Singolo b;      ///< shorter leg [mm]
    Singolo t;      ///< thickness [mm]
    Singolo r1;     ///< root radius [mm]
    Singolo r2;     ///< toe radius [mm]
    Singolo Area;   ///< [mm2]
    Singolo iY;     ///< radius of gyration about y-y [mm]
    Singolo Iz;     ///< radius of gyration about z-z [mm]
    double iV = 0;  ///< radius of gyration about v-v [mm]
    Singolo L0y;    ///< buckling length about y-y [mm]
    Singolo L0z;    ///< buckling length about z-z [mm]
    Singolo L0v;    ///< buckling length about v-v [mm]
    Singolo Jy;     ///< second moment about y-y [mm4]
    Singolo Jz;     ///< second moment about z-z [mm4]
    Singolo Wely;   ///< elastic modulus about y-y [mm3]
    Singolo Welz;   ///< elastic modulus about z-z [mm3]
    Singolo dDoppi; ///< gap of a pair [mm]

    std::int16_t ClasseCompressione = 0; ///< 1 to 4; 0 before the first run
    double NbyRd = 0;                    ///< buckling about y-y [N], ENV 1993-1-1 5.5.1
    double NbzRd = 0;                    ///< buckling about z-z [N]
    double NbvRd = 0;                    ///< buckling about v-v [N]

    std::string Limite0Ala, Limite1Ala;     ///< limits of the class found, in epsilon
    std::string Classe4LarghezzaGovernante; ///< "h" or "(b+h)/2": the width that governs the class
    Singolo SnellAla;                       ///< h / t / epsilon
    Singolo SnellAla1;                      ///< (b + h) / 2 / t / epsilon

    /// Computes everything that follows from the stored data.
    /// @param schermo  kept as Form; may be null
    void InizializzaSezione(MostraVplRd* schermo = nullptr);

    [[nodiscard]] double LamdaY() const; ///< L0y / iY [-]; no number where it does not divide
    [[nodiscard]] double LamdaZ() const; ///< L0z / Iz [-]; no number where it does not divide
    [[nodiscard]] double LamdaV() const; ///< L0v / iV [-]; no number where it does not divide

    /// Class in compression, after ENV 1993-1-1 table 5.3.1 sheet 4: equal legs by h/t, unequal ones by h/t
    /// up to class 2 and by h/t and (b + h)/2t above. Writes both slendernesses, the governing width and the
    /// limits; those of unequal legs above class 2 stay as they were, but for the upper one of class 4.
    std::int16_t ClasseCompressioneFunz();

    /// Effective over gross area, ENV 1993-1-1 5.5.1.1: 1 up to class 3.
    [[nodiscard]] double betaA() const;

    /// Draws the section, or the pair with its gap, to scale with hatching, axes, dimensions and the lines of
    /// its data. Called from "FrmClasseSagomiL", the effective outline of class 4 is drawn inside the thin
    /// line of the whole one. Before InizializzaSezione nothing is drawn.
    /// @param oggetto      target of "VIDEO" and "STAMPANTE"; null for "DXF", "DWG" and "BLOCCO"
    /// @param maschera     name of the screen that asks
    /// @param dispositivo  device, put in force
    void PlottaSezione(Superficie* oggetto, std::string_view maschera, std::string_view dispositivo) const;

    /// Closed outline of one angle in mm, counter-clockwise from (b, 0), each arc a chord line of 8 equal
    /// steps: 30 vertices; a radius that is 0 leaves its points together.
    /// @param x, y  receive the vertices, vertex 1 at [0]
    /// @param n     receives their number
    void Coordinate(std::vector<double>& x, std::vector<double>& y, std::int16_t& n) const;

    /// Builds SezioneComp4: each leg cut at its tip to its effective part.
    void CoordinateComp4();

    /// Buckling curve: "b" about all axes, for any size and steel.
    [[nodiscard]] static std::string CurvaInstabilita(std::string_view asse);
};

} // namespace sagomi
