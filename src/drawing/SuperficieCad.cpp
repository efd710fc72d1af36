#include "drawing/SuperficieCad.h"

namespace sagomi {

void SuperficieCad::Line(double x1, double y1, double x2, double y2) {
    CadLinea(dove_.get(), X(x1), Y(y1), X(x2), Y(y2));
}

void SuperficieCad::Circle(double x, double y, double r) { CadCerchio(dove_.get(), X(x), Y(y), Raggio(r)); }

void SuperficieCad::Polyline(std::span<const double> x, std::span<const double> y, bool chiusa) {
    CadPolilinea(dove_.get(), static_cast<std::int16_t>(x.size()), X(x), Y(y), chiusa);
}

void SuperficieCad::Print(std::string_view testo) {
    CadTesto(dove_.get(), X(CurrentX), Y(CurrentY), FontSize, testo);
}

} // namespace sagomi
