#include <array>
#include <cmath>
#include <numbers>

#include "drawing/Grafica.h"
#include "geometry/LineeGeometria.h"
#include "geometry/PoligonoOffset.h"
#include "sections/SezioneGenerica.h"

namespace sagomi {

namespace {

constexpr double angoloTratteggio = 45;
constexpr int puntiEllisse = 72;

} // namespace

double SezioneGenerica::PassoTratteggio() const {
    constexpr double lineePerDimensione = 50;
    return Poligono->MaxDimensione() / lineePerDimensione;
}

void SezioneGenerica::MiaFormSetta(std::string_view dispositivo, Superficie* oggetto) {
    dispositivo_ = dispositivo;
    oggetto_ = oggetto;
}

void SezioneGenerica::PlottaSaldature(double gola) const {
    if (!Poligono || !(gola > 0))
        return;
    ZeroMaxDimen = Poligono->MaxDimensione() / 1000000;
    sagomi::Poligono bordo;
    if (ZeroMaxDimen > 0 && OffsetPoligono(*Poligono, gola * std::numbers::sqrt2, bordo))
        bordo.Plotta();
}

void SezioneGenerica::PltInizializza(double xMin, double xMax, double yMin, double yMax, double frazione) {
    plottaggio_.Inizializza(oggetto_, dispositivo_);
    if (!SulBersaglio() || oggetto_ == nullptr)
        return;
    oggetto_->Predefiniti();
    if (dispositivo_ == dispositivoStampante)
        oggetto_->FontName = carattereStampa;
    plottaggio_.xFinestraPlt(xMin, xMax);
    plottaggio_.yFinestraPlt(yMin, yMax);
    plottaggio_.EstremiFinestra((1 - frazione) / 2, (1 - frazione) / 2, frazione, frazione);
    plottaggio_.AdattaAfinestra();
}

void SezioneGenerica::PlottaSenzaTratteggio() {
    const auto [xMin, xMax, yMin, yMax] = Contorno().BoundingBox();
    PltInizializza(xMin, xMax, yMin, yMax);
    PennaPlt(pennaInchiostro);
    LineaStilePlt(spessoreContorno);
    Contorno().Plotta();
}

void SezioneGenerica::PlottaSezione(Superficie* oggetto, std::string_view maschera, double frazione) {
    MiaFormSetta(Dispositivo, oggetto);
    double xMin = 0;
    double xMax = 0;
    double yMin = 0;
    double yMax = 0;
    Contorno().MaxMin(xMin, xMax, yMin, yMax);
    PltInizializza(xMin, xMax, yMin, yMax, frazione);
    if (maschera != "frmGiunti") {
        LineaStilePlt(spessoreFine);
        Contorno().Tratteggia(angoloTratteggio, -PassoTratteggio(), pennaGrigia);
    }
    PennaPlt(pennaInchiostro);
    LineaStilePlt(spessoreContorno);
    Contorno().Plotta();
}

void SezioneGenerica::PlottaEllisse() const {
    if (!(Area > 0))
        return;
    // The semiaxis along one principal axis is the radius of gyration about the other.
    const double lungo1 = std::sqrt(JotaIIG / Area);
    const double lungo2 = std::sqrt(JotaIG / Area);
    std::array<double, puntiEllisse> x{};
    std::array<double, puntiEllisse> y{};
    for (std::size_t i = 0; i < x.size(); ++i) {
        const double t = 2 * std::numbers::pi * static_cast<double>(i) / puntiEllisse;
        const double u = lungo1 * std::cos(t);
        const double v = lungo2 * std::sin(t);
        x[i] = xG + u * std::cos(Alfa1) - v * std::sin(Alfa1);
        y[i] = yG + u * std::sin(Alfa1) + v * std::cos(Alfa1);
    }
    PolilineaPlt(puntiEllisse, x, y, true);
}

} // namespace sagomi
