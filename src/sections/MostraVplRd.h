#pragma once

namespace sagomi {

/// What a section asks of the screen it was computed for.
struct MostraVplRd {
    virtual ~MostraVplRd() = default;

    /// The mark beside the shear resistance: shown when the web is so slender that shear buckling has to be
    /// checked (d/tw > 69 epsilon, ENV 1993-1-1 5.4.6 (7)).
    virtual void lblVplRd(bool visibile) = 0;
};

} // namespace sagomi
