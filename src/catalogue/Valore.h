#pragma once

#include <string>
#include <variant>

namespace sagomi {

/// What a cell or a field holds: nothing, a number or a text in UTF-8.
using Valore = std::variant<std::monostate, double, std::string>;

inline bool Vuoto(const Valore& v) { return std::holds_alternative<std::monostate>(v); }

/// A value as a number: a text by the rule of the entry boxes, nothing as 0.
double NumeroDi(const Valore& v);

/// A value as plain text: a number in its shortest form with the system's decimal character, without
/// grouping.
std::string TestoDi(const Valore& v);

} // namespace sagomi
