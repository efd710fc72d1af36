#include "drawing/Quadro.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <string>

namespace sagomi {

namespace {

constexpr double testoFoglio = 3.5; ///< mm, the lettering where the picture has a size of its own
constexpr double maiuscole = 9.7;   ///< height of the capitals there [units]: those of a screen's font
constexpr double mezzaTacca = 3.5;  ///< half of an oblique tick of a dimension line [units]
constexpr int latiDisco = 72;       ///< sides of a filled circle
constexpr std::string_view campione = "0";

struct Ascisse {
    std::vector<double> x, y;

    explicit Ascisse(std::span<const PuntoQuadro> punti) {
        for (const PuntoQuadro& p : punti) {
            x.push_back(p.x);
            y.push_back(p.y);
        }
    }
    [[nodiscard]] std::int16_t Numero() const { return static_cast<std::int16_t>(x.size()); }
};

} // namespace

Quadro::Quadro(Superficie* oggetto, std::string_view dispositivo, const Misura& misura)
    : larghezza_(misura.larghezza), altezza_(misura.altezza) {
    Dispositivo = std::string(dispositivo); // it may be a view of the one in force
    OggettoGrafico = oggetto;
    superficie_ = SuperficieInForza();
    if (superficie_ == nullptr)
        return;
    superficie_->Scale();
    superficie_->Predefiniti();
    if (superficie_->Limitata() && Dispositivo != dispositivoStampante)
        DisponeSuSchermo();
    else
        DisponeSuFoglio(misura);
    const RigaTesto riga = superficie_->TextLine();
    riga_ = riga.sopra + riga.sotto;
}

Quadro::~Quadro() {
    if (superficie_ != nullptr && !superficie_->Limitata())
        superficie_->Scale();
}

void Quadro::DisponeSuSchermo() {
    superficie_->ScaleMode = Superficie::scalaUtente;
    larghezza_ = superficie_->ScaleWidth;
    altezza_ = superficie_->ScaleHeight;
    altezzaTesto_ = superficie_->TextHeight(campione);
}

void Quadro::DisponeSuFoglio(const Misura& misura) {
    Superficie& s = *superficie_;
    const double l = s.ScaleWidth;
    const double h = s.ScaleHeight;
    s.FontName = carattereStampa;
    s.ScaleMode = Superficie::scalaUtente;
    const auto scala = [&](double unita) { // model units in one of the picture
        s.ScaleWidth = s.Limitata() ? l / unita : 1 / unita;
        s.ScaleHeight = s.Limitata() ? h / unita : 1 / unita;
        s.FontHeight(maiuscole);
    };
    double unita = testoFoglio / maiuscole;
    scala(unita);
    larghezza_ += s.TextWidth(misura.campione);
    altezzaTesto_ = maiuscole;
    if (!s.Limitata()) {
        s.ScaleTop = altezza_;
        return;
    }
    unita = std::min({unita, l / larghezza_, h / altezza_});
    scala(unita);
    s.ScaleLeft = (larghezza_ - s.ScaleWidth) / 2;
    s.ScaleTop = (altezza_ - s.ScaleHeight) / 2;
}

void Quadro::VeraGrandezza(double scala) const {
    if (superficie_ == nullptr || superficie_->Limitata() || !(scala > 0))
        return;
    superficie_->ScaleWidth = scala;
    superficie_->ScaleHeight = scala;
}

double Quadro::LarghezzaTesto(std::string_view testo) const {
    return LarghezzaTestoPlt(altezzaTesto_, testo);
}

void Quadro::Contorno(Estremi estremi) const {
    PennaPlt(pennaInchiostro);
    LineaStilePlt(spessoreContorno, TipoLinea::Continua, estremi);
}

void Quadro::Fine(TipoLinea tipo, Estremi estremi) const {
    PennaPlt(pennaGrigia);
    LineaStilePlt(spessoreFine, tipo, estremi);
}

void Quadro::Spezzata(std::span<const PuntoQuadro> punti, bool chiusa) {
    const Ascisse a(punti);
    PolilineaPlt(a.Numero(), a.x, a.y, chiusa);
}

void Quadro::Area(std::span<const PuntoQuadro> punti, Fondo fondo) {
    const Ascisse a(punti);
    AreaPlt(a.Numero(), a.x, a.y, fondo);
}

void Quadro::Disco(PuntoQuadro centro, double r, Fondo fondo) {
    std::vector<PuntoQuadro> punti;
    for (int i = 0; i < latiDisco; ++i) {
        const double t = 2 * std::numbers::pi * i / latiDisco;
        punti.push_back(centro + PuntoQuadro{r * std::cos(t), r * std::sin(t)});
    }
    Area(punti, fondo);
}

void Quadro::Punta(PuntoQuadro dove, PuntoQuadro verso, double lunghezza, double mezza) {
    const PuntoQuadro coda = dove - verso * lunghezza;
    const PuntoQuadro lato = PuntoQuadro{-verso.y, verso.x} * mezza;
    Area(std::vector<PuntoQuadro>{dove, coda + lato, coda - lato}, Fondo::Pieno);
}

void Quadro::Tacca(PuntoQuadro dove) const {
    const PuntoQuadro mezza{mezzaTacca, -mezzaTacca};
    Linea(dove - mezza, dove + mezza);
}

void Quadro::Quota(PuntoQuadro a, PuntoQuadro b) const {
    Fine();
    Linea(a, b);
    Tacca(a);
    Tacca(b);
}

void Quadro::Testo(PuntoQuadro dove, std::string_view testo, Allinea allinea, Posa posa) const {
    PennaPlt(pennaInchiostro);
    TestoPlt(dove.x, dove.y, altezzaTesto_, testo, allinea, posa);
}

} // namespace sagomi
