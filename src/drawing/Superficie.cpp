#include "drawing/Superficie.h"

#include <array>
#include <cmath>

namespace sagomi {

ColoreRgb ColoreTabella(std::int16_t numero) {
    static constexpr std::array<ColoreRgb, 16> tabella{{{0, 0, 0},
                                                        {0, 0, 128},
                                                        {0, 128, 0},
                                                        {0, 128, 128},
                                                        {128, 0, 0},
                                                        {128, 0, 128},
                                                        {128, 128, 0},
                                                        {192, 192, 192},
                                                        {128, 128, 128},
                                                        {0, 0, 255},
                                                        {0, 255, 0},
                                                        {0, 255, 255},
                                                        {255, 0, 0},
                                                        {255, 0, 255},
                                                        {255, 255, 0},
                                                        {255, 255, 255}}};
    if (numero < 0 || static_cast<std::size_t>(numero) >= tabella.size())
        return {};
    return tabella[static_cast<std::size_t>(numero)];
}

std::span<const double> TrattiDi(TipoLinea tipo) {
    static constexpr std::array<double, 4> trattoPunto{12, 3, 2, 3};
    static constexpr std::array<double, 2> tratteggiata{6, 4};
    static constexpr std::array<double, 4> trattoPuntoCorto{8, 2, 2, 2};
    switch (tipo) {
    case TipoLinea::TrattoPunto:
        return trattoPunto;
    case TipoLinea::Tratteggiata:
        return tratteggiata;
    case TipoLinea::TrattoPuntoCorto:
        return trattoPuntoCorto;
    case TipoLinea::Continua:
        break;
    }
    return {};
}

void Superficie::Polyline(std::span<const double> x, std::span<const double> y, bool chiusa) {
    for (std::size_t i = 1; i < x.size(); ++i)
        Line(x[i - 1], y[i - 1], x[i], y[i]);
    if (chiusa)
        Line(x.back(), y.back(), x.front(), y.front());
}

void Superficie::Fill(std::span<const double> /*x*/, std::span<const double> /*y*/, Fondo /*fondo*/) {}

void Superficie::PrintAligned(std::string_view testo, Allinea allinea) {
    CurrentX -= QuotaSinistra(allinea) * TextWidth(testo);
    Print(testo);
}

void Superficie::FontHeight(double altezza) {
    const double attuale = std::abs(TextHeight("0"));
    if (attuale > 0)
        FontSize *= altezza / attuale;
}

RigaTesto Superficie::TextLine() const {
    constexpr double sopra = 1.27; // over the height of the capitals
    constexpr double sotto = 0.32;
    const double maiuscole = TextHeight("0");
    return {sopra * maiuscole, sotto * maiuscole};
}

} // namespace sagomi
