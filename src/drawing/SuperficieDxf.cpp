#include "drawing/SuperficieDxf.h"

#include "drawing/Dxf.h"

namespace sagomi {

void SuperficieDxf::Line(double x1, double y1, double x2, double y2) { DxfLinea(X(x1), Y(y1), X(x2), Y(y2)); }

void SuperficieDxf::Circle(double x, double y, double r) { DxfCerchio(X(x), Y(y), Raggio(r)); }

void SuperficieDxf::Polyline(std::span<const double> x, std::span<const double> y, bool chiusa) {
    (chiusa ? DxfPolilineaChiusa : DxfPolilinea)(static_cast<std::int16_t>(x.size()), X(x), Y(y));
}

void SuperficieDxf::Print(std::string_view testo) { DxfTesto(X(CurrentX), Y(CurrentY), FontSize, testo); }

} // namespace sagomi
