#include "drawing/SuperficieIllimitata.h"

#include <algorithm>
#include <cmath>

namespace sagomi {

namespace {

constexpr double larghezzaMediaCarattere = 0.85; ///< of a character over its height, in a plain CAD font

/// Characters of a text in UTF-8.
std::size_t Caratteri(std::string_view testo) {
    return static_cast<std::size_t>(
        std::count_if(testo.begin(), testo.end(), [](char c) { return (c & 0xC0) != 0x80; }));
}

} // namespace

double LarghezzaStimata(double altezza, std::string_view testo) {
    return larghezzaMediaCarattere * altezza * static_cast<double>(Caratteri(testo));
}

SuperficieIllimitata::SuperficieIllimitata() {
    SuperficieIllimitata::Scale();
    SuperficieIllimitata::Predefiniti();
}

void SuperficieIllimitata::Scale() {
    ScaleMode = scalaPropria;
    ScaleLeft = 0;
    ScaleTop = 0;
    ScaleWidth = 1;
    ScaleHeight = -1;
}

void SuperficieIllimitata::Predefiniti() {
    ForeColor = pennaInchiostro;
    DrawWidth = spessoreFine;
    DrawStyle = TipoLinea::Continua;
    DrawCap = Estremi::Tondi;
    FontName.clear();
    FontSize = 1;
}

void SuperficieIllimitata::Fill(std::span<const double> x, std::span<const double> y, Fondo fondo) {
    if (fondo == Fondo::Pieno)
        Polyline(x, y, true);
}

void SuperficieIllimitata::FontHeight(double altezza) { FontSize = altezza / std::abs(ScaleHeight); }

double SuperficieIllimitata::TextHeight(std::string_view /*testo*/) const {
    return FontSize * std::abs(ScaleHeight);
}

double SuperficieIllimitata::TextWidth(std::string_view testo) const {
    return LarghezzaStimata(FontSize, testo) * std::abs(ScaleWidth);
}

double SuperficieIllimitata::Raggio(double r) const { return r / std::abs(ScaleWidth); }

std::vector<double> SuperficieIllimitata::X(std::span<const double> x) const {
    std::vector<double> usciti(x.size());
    std::transform(x.begin(), x.end(), usciti.begin(), [this](double v) { return X(v); });
    return usciti;
}

std::vector<double> SuperficieIllimitata::Y(std::span<const double> y) const {
    std::vector<double> usciti(y.size());
    std::transform(y.begin(), y.end(), usciti.begin(), [this](double v) { return Y(v); });
    return usciti;
}

} // namespace sagomi
