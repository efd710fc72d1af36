#pragma once

#include <memory>

#include "drawing/Cad.h"
#include "drawing/SuperficieIllimitata.h"

namespace sagomi {

/// A container of the CAD program as surface (Cad.h). Entities take the pen in force, `ColorePenna`; without
/// a container nothing is drawn.
class SuperficieCad : public SuperficieIllimitata {
public:
    /// @param dove  where the container of the moment is found: model space, or the current block
    explicit SuperficieCad(const std::shared_ptr<ContenitoreCad>& dove) : dove_(dove) {}

    void Line(double x1, double y1, double x2, double y2) override;
    void Circle(double x, double y, double r) override;
    /// One entity.
    void Polyline(std::span<const double> x, std::span<const double> y, bool chiusa) override;
    void Print(std::string_view testo) override;

private:
    const std::shared_ptr<ContenitoreCad>& dove_;
};

} // namespace sagomi
