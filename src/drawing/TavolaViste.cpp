#include "drawing/TavolaViste.h"

#include <algorithm>
#include <cmath>

#include "drawing/Grafica.h"
#include "drawing/TavolaDisegno.h"
#include "frame/Numeri.h"

namespace sagomi {

namespace {

constexpr double quotaSchermo = 0.72; ///< of a target that texts may take at most
constexpr double quotaCarta = 0.9;    ///< the same of paper, where they are small
constexpr double foglio = 190;        ///< mm, width of a sheet A4 within its margins
constexpr std::string_view campione = "0";

/// Part of their size that the texts can have.
double Riduzione(const std::vector<Ingombro>& ingombri, double spazio, double corpo, double quotaTesti) {
    double f = 1;
    for (const Ingombro& i : ingombri)
        if (i.testi * corpo > quotaTesti * spazio)
            f = std::min(f, quotaTesti * spazio / (i.testi * corpo));
    return f;
}

/// Units of the model in one of the target.
double Rapporto(const std::vector<Ingombro>& ingombri, double spazio, double corpo) {
    double r = 0;
    for (const Ingombro& i : ingombri)
        r = std::max(r, i.modello / (spazio - i.testi * corpo));
    return r;
}

double Esteso(const std::vector<Ingombro>& ingombri, double passo) {
    double l = 0;
    for (const Ingombro& i : ingombri)
        l = std::max(l, i.modello + i.testi * passo);
    return l;
}

} // namespace

TavolaViste::TavolaViste(Superficie* oggetto, std::string_view dispositivo, std::string_view carattere)
    : oggetto_(oggetto) {
    plottaggio_.Inizializza(oggetto, dispositivo);
    if (oggetto_ == nullptr || !SulBersaglio())
        return;
    oggetto_->Scale();
    oggetto_->Predefiniti();
    if (!carattere.empty())
        oggetto_->FontName = carattere;
    if (Dispositivo == dispositivoStampante)
        oggetto_->FontHeight(altezzaTestoCarta);
}

TavolaViste::~TavolaViste() = default;

double TavolaViste::InAltezze(std::string_view testo) const {
    if (oggetto_ == nullptr || !SulBersaglio())
        return LarghezzaTestoPlt(1, testo);
    const double altezza = oggetto_->TextHeight(campione);
    return altezza > 0 ? oggetto_->TextWidth(testo) / altezza : 0;
}

void TavolaViste::Dispone(std::span<const DisposizioneViste> disposizioni) {
    if (oggetto_ != nullptr && SulBersaglio())
        SuBersaglio(disposizioni);
    else
        SenzaBersaglio(disposizioni.front());
}

void TavolaViste::Misura(const DisposizioneViste& d) {
    larghezza_ = Esteso(d.larghezze, passo_);
    altezza_ = Esteso(d.altezze, passo_);
}

void TavolaViste::SenzaBersaglio(const DisposizioneViste& d) {
    const double denominatore = ScalaInUso(Rapporto(d.larghezze, foglio, 0));
    passo_ = altezzaTestoCarta * std::max(denominatore, 1.0);
    plottaggio_.AltezzaTesto = passo_;
    plottaggio_.Denominatore = 1;
    Misura(d);
}

void TavolaViste::SuBersaglio(std::span<const DisposizioneViste> disposizioni) {
    Superficie& o = *oggetto_;
    const bool carta = Dispositivo == dispositivoStampante;
    const double l = o.ScaleWidth;
    const double h = o.ScaleHeight;
    const double corpo = o.TextHeight(campione);
    const double quota = carta ? quotaCarta : quotaSchermo;
    double riduzione = 1;
    double rapporto = 0;
    double merito = -1;
    for (std::size_t i = 0; i < disposizioni.size(); ++i) {
        const DisposizioneViste& d = disposizioni[i];
        const double f =
            std::min(Riduzione(d.larghezze, l, corpo, quota), Riduzione(d.altezze, h, corpo, quota));
        const double r = std::max(Rapporto(d.larghezze, l, f * corpo), Rapporto(d.altezze, h, f * corpo));
        if (!(r > 0) || f * f / r <= merito)
            continue;
        scelta_ = i;
        merito = f * f / r;
        riduzione = f;
        rapporto = r;
    }
    if (!(rapporto > 0))
        rapporto = 1;
    plottaggio_.Denominatore = carta ? ScalaInUso(rapporto) : 0;
    if (plottaggio_.Denominatore > 0)
        rapporto = plottaggio_.Denominatore;
    o.FontSize *= riduzione;
    passo_ = riduzione * corpo * rapporto;
    Misura(disposizioni[scelta_]);
    plottaggio_.xFinestraPlt(larghezza_ / 2 - l * rapporto / 2, larghezza_ / 2 + l * rapporto / 2);
    plottaggio_.yFinestraPlt(altezza_ / 2 - h * rapporto / 2, altezza_ / 2 + h * rapporto / 2);
    plottaggio_.AdattaAfinestra();
    plottaggio_.AltezzaTesto = o.TextHeight(campione);
}

std::string TavolaViste::Scala() const { return ScalaScritta(plottaggio_.Denominatore); }

} // namespace sagomi
