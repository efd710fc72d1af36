#pragma once

#include <QString>

#include <functional>

namespace sagomi {

class Schermo;

/// A row of the table of screens: all that others have to know of a screen.
struct VoceSchermo {
    QString nome;                                      ///< its object name
    std::function<Schermo*()> crea;                    ///< makes it, at its first use
    std::function<void(Schermo& s, Schermo& da)> apri; ///< shows it, coming from another screen
    QString menu;                                      ///< entry that leads to it, empty where none does
};

} // namespace sagomi
