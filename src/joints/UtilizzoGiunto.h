#pragma once

#include <optional>
#include <string_view>

namespace sagomi {

class Giunto;

/// How much the acting moment takes of the resistance of a component, by the control that shows it ("txtF1",
/// "txtFmin0", ...): the forces of the rows at Mj,Rd, in proportion to |M| over Mj,Rd, over what the
/// component resists [-]. Nothing for a joint that is not Acquisito, for a component that it does not have or
/// that nothing exhausts.
[[nodiscard]] std::optional<double> Utilizzo(const Giunto& giunto, std::string_view controllo);

} // namespace sagomi
