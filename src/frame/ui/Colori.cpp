#include "frame/ui/Colori.h"

#include <algorithm>
#include <cmath>

namespace sagomi {

namespace {

double Lineare(double c) { return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4); }

double Luminanza(const QColor& c) {
    return 0.2126 * Lineare(c.redF()) + 0.7152 * Lineare(c.greenF()) + 0.0722 * Lineare(c.blueF());
}

} // namespace

double Contrasto(const QColor& a, const QColor& b) {
    const double one = Luminanza(a);
    const double other = Luminanza(b);
    return (std::max(one, other) + 0.05) / (std::min(one, other) + 0.05);
}

bool Scuro(const QColor& fondo) { return Contrasto(fondo, Qt::white) > Contrasto(fondo, Qt::black); }

QColor RossoSu(const QColor& fondo) {
    if (!Scuro(fondo))
        return {255, 0, 0};
    QColor red(255, 96, 96);
    while (red.green() < 255 && Contrasto(red, fondo) < contrastoLeggibile)
        red = QColor(255, red.green() + 1, red.blue() + 1);
    return red;
}

QColor Leggibile(const QColor& inchiostro, const QColor& fondo) {
    QColor ink = inchiostro;
    while (!Scuro(fondo) && ink.value() > 0 && Contrasto(ink, fondo) < contrastoLeggibile)
        ink = QColor::fromHsv(ink.hsvHue(), ink.hsvSaturation(), ink.value() - 1).toRgb();
    return ink;
}

QColor Velo(const QColor& fondo, const QColor& tinta, float parte) {
    const auto mix = [parte](float a, float b) { return a + (b - a) * parte; };
    return QColor::fromRgbF(mix(fondo.redF(), tinta.redF()), mix(fondo.greenF(), tinta.greenF()),
                            mix(fondo.blueF(), tinta.blueF()));
}

} // namespace sagomi
