#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "drawing/Plottaggio.h"
#include "geometry/Poligono.h"

namespace sagomi {

class Superficie;

/// A section known only by its outline: a polygon and the static values copied from it [mm].
/// CoordinateSezione comes first, then CaratteristicheStaticheSezione, then Wplastici where the plastic
/// moduli are wanted.
class SezioneGenerica {
public:
    double Area = 0, xG = 0, yG = 0;
    double JotaXG = 0;      ///< second moment about the centroidal x axis
    double JotaYG = 0;      ///< second moment about the centroidal y axis
    double JotaIG = 0;      ///< greater principal moment
    double JotaIIG = 0;     ///< lesser principal moment
    double Rho1 = 0;        ///< radius of gyration of JotaIG
    double Rho2 = 0;        ///< radius of gyration of JotaIIG
    double Alfa1 = 0;       ///< direction of the axis of JotaIG [rad]
    double WxSuperiore = 0; ///< elastic modulus about x, top fibre
    double WxInferiore = 0; ///< the same, bottom fibre
    double WyDestra = 0;    ///< elastic modulus about y, right fibre
    double WySinistra = 0;  ///< the same, left fibre
    double WplX = 0;        ///< plastic modulus, horizontal cut
    double WplY = 0;        ///< plastic modulus, vertical cut

    /// The outline. A copy of the section keeps it until either is given new coordinates; one that was taken
    /// away is created at the next use.
    std::shared_ptr<sagomi::Poligono> Poligono = std::make_shared<sagomi::Poligono>();

    /// Hands the first n vertices to the polygon.
    void CoordinateSezione(const std::vector<double>& x, const std::vector<double>& y, std::int16_t n);

    /// Keeps the device and the target that the drawing operations work on.
    void MiaFormSetta(std::string_view dispositivo, Superficie* oggetto);

    /// Calculates the plastic moduli of the polygon and copies them; zero before the static properties.
    void Wplastici();

    /// Calculates the static properties of the polygon and copies them.
    void CaratteristicheStaticheSezione();

    /// Draws the seam of a fillet weld that runs all round the outline, as seen from the end of the member:
    /// the line at a leg's distance outside it.
    /// @param gola  throat of the weld [mm]; its leg is the root of 2 times as much
    void PlottaSaldature(double gola) const;

    /// Takes pen 7 and gives the target its scale, then draws the outline.
    void PlottaSenzaTratteggio();

    /// Prepares the frame of a screen or a printer for a window of the model, and takes the font of printed
    /// sheets on the printer. On other devices only the device is put in force: they draw in the units of the
    /// model.
    /// @param frazione  part of the target's width and height that the window may take
    void PltInizializza(double xMin, double xMax, double yMin, double yMax, double frazione = 0.9);

    /// Draws the outline to the middle of the target, hatched unless the joint screen asks ("frmGiunti"). The
    /// device is the one in force; files and CAD get the same in the units of the model.
    /// @param oggetto   may be null where the device has no target
    /// @param maschera  name of the screen that asks
    /// @param frazione  as for PltInizializza
    void PlottaSezione(Superficie* oggetto, std::string_view maschera, double frazione = 0.9);

    /// Draws the central ellipse of inertia.
    void PlottaEllisse() const;

private:
    sagomi::Poligono& Contorno();
    [[nodiscard]] double PassoTratteggio() const;

    std::string dispositivo_;
    Superficie* oggetto_ = nullptr;
    Plottaggio plottaggio_;
};

} // namespace sagomi
