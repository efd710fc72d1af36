#pragma once

#include <string>
#include <vector>

namespace sagomi {

class SezioneDoppioT;
class SezioneSagomoL;
class SezioneSagomoU;

/// A result box of a main screen and what it shows of the section.
template <typename S> struct VoceRisultato {
    const char* casella;            ///< its object name
    std::string (*testo)(const S&); ///< a class, or a resistance [kN, kNm] with 4 figures
};

/// What a double-T answers, rolled or welded: classes, resistances to buckling, bending and shear.
const std::vector<VoceRisultato<SezioneDoppioT>>& RisultatiDoppioT();

/// What a channel answers: three classes, resistances to buckling, bending and shear.
const std::vector<VoceRisultato<SezioneSagomoU>>& RisultatiSagomoU();

/// What an angle answers: its class, resistances to buckling about three axes.
const std::vector<VoceRisultato<SezioneSagomoL>>& RisultatiSagomoL();

} // namespace sagomi
