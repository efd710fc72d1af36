#pragma once

#include <memory>
#include <type_traits>
#include <utility>
#include <variant>

#include "frame/GeneraleSagomi.h"

namespace sagomi {

/// Runs a piece of a screen on the current section, whichever kind it is; nothing happens while there is
/// none. The headers of the section classes have to be in sight.
/// @param f  takes a reference to any kind of section
template <typename F> void SullaSezioneInUso(F&& f) {
    std::visit(
        [&f](const auto& section) {
            if constexpr (!std::is_same_v<std::decay_t<decltype(section)>, std::monostate>)
                if (section)
                    f(*section);
        },
        SezioneCorrente);
}

} // namespace sagomi
