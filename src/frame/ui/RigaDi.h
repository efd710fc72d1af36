#pragma once

#include "frame/ui/NavigaSchermi.h"

namespace sagomi {

/// The row of the screen of class T, which opens itself by its Apre(Schermo& da) or, where it has none, in
/// front of its opener.
/// @param nome  its object name
/// @param menu  object name of the menu entry that leads to it; empty: none does
template <typename T> VoceSchermo RigaDi(const char* nome, const char* menu = "") {
    const auto apri = [](Schermo& s, Schermo& da) {
        if constexpr (requires(T & t) { t.Apre(da); })
            dynamic_cast<T&>(s).Apre(da);
        else
            NavigaSchermi::Unico().Apre(s, da);
    };
    return {QString::fromLatin1(nome), [] { return new T; }, apri, QString::fromLatin1(menu)};
}

} // namespace sagomi
