#pragma once

#include <span>
#include <string>

#include "joints/PassoGiunto.h"

namespace sagomi {

class Giunto;

/// The formula of a step of a joint with its numbers, in the markup of reports.
struct NumeriPasso {
    std::string formula; ///< of steps that have no block of formulas; may be empty
    std::string numeri;  ///< empty where they are not at hand, or give another value than the step has
};

/// @param prima  the steps of the joint before it
[[nodiscard]] NumeriPasso NumeriDi(const PassoGiunto& passo, std::span<const PassoGiunto> prima,
                                   const Giunto& giunto);

} // namespace sagomi
