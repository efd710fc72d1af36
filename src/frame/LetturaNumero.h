#pragma once

#include <cstddef>
#include <string_view>

namespace sagomi {

/// A number read from the front of a text with a decimal point.
template <typename T> struct NumeroLetto {
    T valore = 0;
    std::size_t fine =
        0; ///< length of what was read: blanks, sign, digits, exponent; 0 where no number begins
    bool troppoGrande = false; ///< outside the range of T; the value is an infinity
};

/// Digits, one point, an exponent; blanks and a sign may stand in front. What follows is left alone.
/// A number too small for T is 0. T is float or double.
template <typename T> NumeroLetto<T> LeggeNumero(std::string_view testo);

} // namespace sagomi
