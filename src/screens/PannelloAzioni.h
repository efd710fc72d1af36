#pragma once

#include "frame/ui/GruppoVoci.h"

namespace sagomi {

class Casella;

/// The design actions that a check asks for: axial force and the moments about both axes.
class PannelloAzioni : public GruppoVoci {
    Q_OBJECT
public:
    explicit PannelloAzioni(QWidget* parent = nullptr);

    Casella* TxtNsd;  ///< axial force [kN], compression positive
    Casella* TxtMysd; ///< moment about y-y [kNm]
    Casella* TxtMzsd; ///< moment about z-z [kNm]
};

/// What buckling asks for: axial force and the buckling lengths about both axes; of an angle, whose screen
/// has no force, the lengths about all three.
class PannelloColonna : public GruppoVoci {
    Q_OBJECT
public:
    explicit PannelloColonna(QWidget* parent = nullptr, bool angolare = false);

    Casella* TxtNsd;   ///< axial force [kN], compression positive; null of an angle
    Casella* Txt_L0_0; ///< about y-y [m]
    Casella* Txt_L0_1; ///< about z-z [m]
    Casella* Txt_L0_2; ///< about v-v [m]; null but of an angle
};

} // namespace sagomi
