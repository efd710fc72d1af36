#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "frame/Osservatore.h"
#include "frame/Singolo.h"

namespace sagomi {

/// What another program sees of Sagomi: it makes one of these, the section screens open, and each row that
/// the user goes to is published in the members and announced. A C++ program uses the class itself, any other
/// its twin on the session bus (ServizioSagomi).
///
/// The members hold what the section of the row has before anything is computed with it; of a pair the values
/// are those of one piece, with the flags of the pair beside them. What a kind of section does not have keeps
/// the value of an earlier row. Units: mm, N, N/mm2 and their products.
class SezioneSagomi : public OsservatoreSezione {
public:
    std::string TipoSezione;                ///< "SezioneDoppioT", "SezioneSagomoU" or "SezioneSagomoL"
    std::string Designation;                ///< name of the section
    Singolo h;                              ///< height [mm]
    Singolo b;                              ///< width [mm]
    Singolo tw;                             ///< thickness of the web, of an angle its own [mm]
    Singolo tf;                             ///< thickness of the flange [mm]; -1 for an angle
    Singolo r1, r2;                         ///< radii [mm]
    Singolo r;                              ///< fillet of a welded section [mm]; double-T only
    Singolo bAlaInf, tAlaInf;               ///< lower flange [mm]; double-T only
    bool SaldataAsimm = false;              ///< welded with different flanges; double-T only
    bool Saldata = false;                   ///< welded; double-T only
    Singolo Area;                           ///< [mm2]
    Singolo Jz, Jy;                         ///< second moments [mm4]
    Singolo Wply, Wplz;                     ///< plastic moduli [mm3]; double-T only
    Singolo fy;                             ///< yield strength [N/mm2]
    std::int16_t VersioneSezioneSagomi = 3; ///< version of this interface
    bool Doppi = false;                     ///< a pair of channels or angles; never a double-T
    Singolo dDoppi;                         ///< gap of the pair [mm]
    bool DoppiCorto = false;                ///< the pair is put together by its short sides
    std::string CurvaY, CurvaZ;             ///< buckling curves, "a0" to "d"

    // The events. Nothing that a receiver throws reaches the program.
    std::function<void()> ComunicaSagomo; ///< the members hold a new section
    std::function<void()> SagomiQuit;     ///< the user has closed the program; the object is to be released

    /// Creates the object: the program starts under it, with its first screen. The event of the first row is
    /// raised on the way.
    /// @return false, and nothing has happened, while the program runs under an object already
    bool Class_Initialize();

    /// Takes over the section in use and raises ComunicaSagomo. An error on the way ends it without the
    /// event.
    void SagomoCambiato() override;

    /// Closes the program, without an event.
    /// @return false where the user keeps it open for work that is not saved; events go on then
    bool Quit();

    /// Raises SagomiQuit.
    void SagomiQuittato() override;
};

} // namespace sagomi
