#pragma once

namespace sagomi {

class SezioneDoppioT;
class SezioneSagomoU;

/// What plates of class 4 lose [mm], ENV 1993-1-1 5.3.5; 0 where a plate is not of class 4.
struct LunghezzePerse {
    double animaCompressa = 0; ///< height of the web, in the middle, in uniform compression
    double animaInflessa = 0;  ///< height of the web in bending about y-y
    double ala = 0;            ///< of each outstand of the upper flange, in uniform compression
};

LunghezzePerse PerseDi(const SezioneDoppioT& s);
LunghezzePerse PerseDi(const SezioneSagomoU& s);

} // namespace sagomi
