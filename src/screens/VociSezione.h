#pragma once

#include <string_view>
#include <vector>

#include "frame/ui/Voce.h"

namespace sagomi {

/// A resistance about each axis of a section, with the button that tells how it comes about.
struct RigaResistenze {
    std::vector<Voce> assi;
    const char* bottone = "";      ///< object name of the button; none where it is empty
    const char* aiutoBottone = ""; ///< its tool-tip
    const char* lettoBottone = ""; ///< its accessible name
};

/// What the user types on a main screen, and what it answers.
struct VociSchermo {
    std::string_view schermo;
    const char* titolo = "";     ///< caption of the window
    std::vector<Voce> lunghezze; ///< buckling lengths [m], Txt_L0 by axis
    bool forza = true;           ///< the axial force is an entry
    std::vector<Voce> classi;
    std::vector<RigaResistenze> resistenze;
    bool separatori = false; ///< has the hidden box of the separator check, which runs once
    bool membratura = true;  ///< checks of the member under axial force and bending open from it
    Voce accosta = {};       ///< how two pieces may be put together as a pair; without a name there are none
    bool note = false;       ///< tells what the lower of two different flanges leaves of the resistances
};

/// The plates of the user's own section, TxtProfUtente by position; the first is its name. Empty where a
/// screen has no such sections.
std::vector<Voce> VociUtente(std::string_view schermo);

/// Entries and results of a main screen. A name that is no main screen throws std::out_of_range.
const VociSchermo& VociDi(std::string_view schermo);

/// What a column of the catalogue holds, for a tool-tip: "Altezza totale" for "h (mm)". Empty for a column
/// that is not known.
const char* DescrizioneColonna(std::string_view intestazione, std::string_view schermo = {});

} // namespace sagomi
