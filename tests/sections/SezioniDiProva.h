#pragma once

#include "frame/Messaggi.h"
#include "sections/SezioneDoppioT.h"

namespace sagomi::prove {

/// IPE 200 of EN 10365, S235.
inline SezioneDoppioT Ipe200() {
    SezioneDoppioT s;
    s.Designation = "IPE 200";
    s.TipoAcciaio = "S235 (Fe360)";
    s.fy = 235;
    s.h = 200;
    s.b = 100;
    s.tw = 5.6;
    s.tf = 8.5;
    s.r1 = 12;
    s.Area = 2848;
    s.Jy = 1943e4;
    s.Wely = 194.3e3;
    s.Wply = 220.6e3;
    s.iY = 82.6;
    s.Jz = 142.4e4;
    s.Welz = 28.47e3;
    s.Wplz = 44.61e3;
    s.iZ = 22.4;
    s.JT = 6.98e4;
    s.Jw = 12990e6;
    return s;
}

/// A welded section of equal flanges without fillets, S235, with the constants of three rectangles.
inline SezioneDoppioT TrePiatti(double h, double b, double tw, double tf) {
    const double hw = h - 2 * tf;
    const double Jy = (b * h * h * h - (b - tw) * hw * hw * hw) / 12;
    const double Jz = (2 * tf * b * b * b + hw * tw * tw * tw) / 12;
    SezioneDoppioT s;
    s.Saldata = true;
    s.TipoAcciaio = "S235 (Fe360)";
    s.fy = 235;
    s.h = h;
    s.b = b;
    s.tw = tw;
    s.tf = tf;
    s.Area = 2 * b * tf + hw * tw;
    s.Jy = Jy;
    s.Jz = Jz;
    s.Wely = Jy / (h / 2);
    s.Welz = Jz / (b / 2);
    s.Wply = b * tf * (h - tf) + tw * hw * hw / 4;
    s.Wplz = tf * b * b / 2 + hw * tw * tw / 4;
    s.iY = 0.42 * h;
    s.iZ = 0.24 * b;
    return s;
}

} // namespace sagomi::prove
