#pragma once

#include <cstdint>

#include "sections/DiagrammaMomenti.h"

namespace sagomi {

/// A screen with the moment diagrams of a member.
class ConDiagramma {
public:
    ConDiagramma() = default;
    virtual ~ConDiagramma() = default;
    ConDiagramma(const ConDiagramma&) = delete;
    ConDiagramma& operator=(const ConDiagramma&) = delete;

    /// Takes the diagrams of both axes [N mm], to be shown when the screen computes next.
    /// @param pict  shape, 1 to 6
    virtual void ImpostaDiagramma(const MomentiMembratura& y, const MomentiMembratura& z,
                                  std::int16_t pict) = 0;
};

} // namespace sagomi
