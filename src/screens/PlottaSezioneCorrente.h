#pragma once

#include "drawing/Disegno.h"

namespace sagomi {

class Schermo;

/// Opens the preview on the current section. The screen's own name goes along: called from
/// "FrmClasseDoppioTU" the effective outline is drawn that SezioneEfficaceDaPlottare names.
void PlottaSezioneCorrente(Schermo& da);

/// The drawing of the current section, which keeps the section that it shows.
Disegno DisegnoSezioneCorrente();

} // namespace sagomi
