#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace sagomi {

/// Advice on a result of a joint: what raises the resistance or the stiffness of a component. The topics are
/// counted from 0: panel, column web in compression, its buckling, row of bolts, column web in tension,
/// column flange and its inner and outer row, plate and its inner and outer row, beam web, both effective
/// rows, one of them, moment, stiffness of plate, bolts and column flange, their corrections in the same
/// order.
inline constexpr int numConsigliGiunto = 21;

/// The lines of a topic; one that is not there throws std::out_of_range.
/// @param classe  of the bolts: of "10.9" there is no stronger one
[[nodiscard]] std::vector<std::string> RigheConsiglio(int argomento, std::string_view classe);

/// The same as one text.
[[nodiscard]] std::string ConsiglioGiunto(int argomento, std::string_view classe);

/// What the topic is about, as a name for its button.
[[nodiscard]] std::string_view NomeConsiglio(int argomento);

} // namespace sagomi
