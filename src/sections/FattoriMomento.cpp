#include "sections/FattoriMomento.h"

namespace sagomi {

// clang-format off
const std::array<RigaF11, 3 * psiF11>& ProspettoF11() {
    static constexpr std::array<RigaF11, 3 * psiF11> righe = {{
        { 1.00, 1.0, 1.000, 1.000}, { 1.00, 0.7, 1.000, 1.113}, { 1.00, 0.5, 1.000, 1.144},
        { 0.75, 1.0, 1.141, 0.998}, { 0.75, 0.7, 1.270, 1.565}, { 0.75, 0.5, 1.305, 2.283},
        { 0.50, 1.0, 1.323, 0.992}, { 0.50, 0.7, 1.473, 1.556}, { 0.50, 0.5, 1.514, 2.271},
        { 0.25, 1.0, 1.563, 0.977}, { 0.25, 0.7, 1.739, 1.531}, { 0.25, 0.5, 1.788, 2.235},
        { 0.00, 1.0, 1.879, 0.939}, { 0.00, 0.7, 2.092, 1.473}, { 0.00, 0.5, 2.150, 2.150},
        {-0.25, 1.0, 2.281, 0.855}, {-0.25, 0.7, 2.538, 1.340}, {-0.25, 0.5, 2.609, 1.957},
        {-0.50, 1.0, 2.704, 0.676}, {-0.50, 0.7, 3.009, 1.059}, {-0.50, 0.5, 3.093, 1.546},
        {-0.75, 1.0, 2.927, 0.366}, {-0.75, 0.7, 3.009, 0.575}, {-0.75, 0.5, 3.093, 0.837},
        {-1.00, 1.0, 2.752, 0.000}, {-1.00, 0.7, 3.063, 0.000}, {-1.00, 0.5, 3.149, 0.000},
    }};
    return righe;
}

const std::array<RigaF12, 2 * casiF12>& ProspettoF12() {
    using enum CasoF12;
    static constexpr std::array<RigaF12, 2 * casiF12> righe = {{
        {UniformeAppoggi,     1.0, 1.132, 0.459, 0.525}, {UniformeAppoggi,     0.5, 0.972, 0.304, 0.980},
        {UniformeIncastri,    1.0, 1.285, 1.562, 0.753}, {UniformeIncastri,    0.5, 0.712, 0.652, 1.070},
        {ConcentratoAppoggi,  1.0, 1.365, 0.553, 1.730}, {ConcentratoAppoggi,  0.5, 1.070, 0.432, 3.050},
        {ConcentratoIncastri, 1.0, 1.565, 1.267, 2.640}, {ConcentratoIncastri, 0.5, 0.938, 0.715, 4.800},
        {DueCarichiAppoggi,   1.0, 1.046, 0.430, 1.120}, {DueCarichiAppoggi,   0.5, 1.010, 0.410, 1.890},
    }};
    return righe;
}
// clang-format on

} // namespace sagomi
