#pragma once

namespace sagomi {

/// Levels of load of the components [-] and what gives way on the paths of both rows, at one moment.
struct TerminiRigidezza {
    double eta1 = 0, eta2 = 0, eta3 = 0, eta4 = 0, eta5 = 0, eta5e = 0, eta6 = 0;
    double S = 0, SEst = 0; ///< sums of eta mu / k
};

} // namespace sagomi
