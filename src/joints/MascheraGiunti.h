#pragma once

namespace sagomi {

/// The joint screen as the drawing knows it.
struct MascheraGiunti {
    int Optvie = 0; ///< kind of node chosen: 0 and 1 have two beams
};

} // namespace sagomi
