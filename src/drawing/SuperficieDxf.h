#pragma once

#include "drawing/SuperficieIllimitata.h"

namespace sagomi {

/// The open DXF file as surface (Dxf.h). Entities take the pen in force, `ColorePenna`.
class SuperficieDxf : public SuperficieIllimitata {
public:
    void Line(double x1, double y1, double x2, double y2) override;
    void Circle(double x, double y, double r) override;
    /// One entity.
    void Polyline(std::span<const double> x, std::span<const double> y, bool chiusa) override;
    void Print(std::string_view testo) override;
};

} // namespace sagomi
