#pragma once

#include <utility>
#include <vector>

#include "drawing/Disegno.h"

namespace sagomi {

class Giunto;

/// Moment over rotation of a joint that has been computed: its line (elastic up to 2/3 of Mj,Rd, secant at
/// Mj,Rd, then level), the limits of rigid joints in unbraced and braced frames and of pinned ones, EC3
/// 6.9.6.2, and the acting moment. A joint that is not Acquisito gives a line of text; a beam without span
/// has no limits, which is told. Values are taken now.
Disegno DiagrammaRigidezza(const Giunto& giunto);

/// The points of that line up to Mj,Rd, from the origin: rotation [mrad], moment [kNm]. Empty for a joint
/// that is not Acquisito or has no stiffness.
std::vector<std::pair<double, double>> PuntiMomentoRotazione(const Giunto& giunto);

} // namespace sagomi
