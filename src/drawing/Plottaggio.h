#pragma once

#include <array>
#include <string>
#include <string_view>

#include "frame/Singolo.h"

namespace sagomi {

class Superficie;

/// The frame of a drawing: fits a window of the model into the part of a target that is left to it, by giving
/// the target its user scale. y1 of the window is at the bottom of the target, y2 at the top: with y1 < y2
/// the model's y points upwards, whatever the target's own direction.
class Plottaggio {
public:
    // Left to the callers' use: what a drawing remembers of its frame.
    Singolo AltezzaTesto; ///< [model]
    Singolo Interlinea;   ///< [model]
    Singolo xTesto;       ///< where the next line of text goes [model]
    Singolo yTesto;
    Singolo Denominatore; ///< of the scale on paper, 1 : n

    /// Window of the model.
    void xFinestraPlt(double x1, double x2);
    void yFinestraPlt(double y1, double y2);

    /// Margins kept free: left, top, right, bottom, in the target's own scale (pixels, millimetres).
    void Bordi(double sx, double su, double dx, double giu);

    /// Part of the target that is used, as fractions of it: left, top, width, height. A width or height of 0
    /// counts as 1.
    void EstremiFinestra(double x, double y, double l, double h);

    /// Takes a target and puts it and the device in force. Window, margins and fractions start anew.
    /// @param proporzionale  one scale for both directions
    void Inizializza(Superficie* oggetto, std::string_view dispositivo, bool proporzionale = true);

    /// Gives the target its user scale. A proportional model lies in the middle of the area left to it.
    /// Margins that leave no area are not kept. A device other than "VIDEO" and "STAMPANTE" is told in a
    /// message and nothing is changed.
    void AdattaAfinestra();

    /// Widens a window of the model, in place, to the aspect of a page of l by h: the window stays in the
    /// middle. The sign of the height, below 0 where y points upwards, is kept.
    static void CentraPlottaggio(double l, double h, double& xMin, double& yMin, double& larghezza,
                                 double& altezza);

    /// A small marker rectangle at the frame's lower left corner: a thousandth of the model's width by a
    /// five-hundredth of its height.
    void PlottaFinestra() const;

    /// Brings scale, font, colour and line of the target back to its own.
    void RipristinaDefault();

private:
    Superficie* oggetto_ = nullptr;
    std::array<double, 4> bordi_{};
    std::array<Singolo, 4> estremi_{};
    std::array<double, 2> xFinestra_{}, yFinestra_{};
    std::string dispositivo_;
    bool proporzionale_ = true;
};

} // namespace sagomi
