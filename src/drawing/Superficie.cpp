#include "drawing/Superficie.h"

#include <array>

namespace sagomi {

ColoreRgb ColoreTabella(std::int16_t numero) {
    static constexpr std::array<ColoreRgb, 16> tabella{{{0, 0, 0},
                                                        {0, 0, 128},
                                                        {0, 128, 0},
                                                        {0, 128, 128},
                                                        {128, 0, 0},
                                                        {128, 0, 128},
                                                        {128, 128, 0},
                                                        {192, 192, 192},
                                                        {128, 128, 128},
                                                        {0, 0, 255},
                                                        {0, 255, 0},
                                                        {0, 255, 255},
                                                        {255, 0, 0},
                                                        {255, 0, 255},
                                                        {255, 255, 0},
                                                        {255, 255, 255}}};
    if (numero < 0 || static_cast<std::size_t>(numero) >= tabella.size())
        return {};
    return tabella[static_cast<std::size_t>(numero)];
}

} // namespace sagomi
