#include "drawing/TavolaViste.h"

#include <algorithm>
#include <cmath>

#include "drawing/Grafica.h"
#include "drawing/TavolaDisegno.h"
#include "frame/Numeri.h"

namespace sagomi {

namespace {

constexpr double quotaTesti = 0.72;  ///< of a screen that texts may take at most
constexpr double testoPiccolo = 1.8; ///< mm, the next smaller lettering, ISO 3098-1
constexpr double foglio = 190;       ///< mm, width of a sheet A4 within its margins
constexpr std::string_view campione = "0";

/// Part of their size that the texts can have.
double Riduzione(const std::vector<Ingombro>& ingombri, double spazio, double corpo) {
    double f = 1;
    for (const Ingombro& i : ingombri)
        if (i.testi * corpo > quotaTesti * spazio)
            f = std::min(f, quotaTesti * spazio / (i.testi * corpo));
    return f;
}

/// Units of the model in one of the target; below 0 where the texts find no room.
double Rapporto(const std::vector<Ingombro>& ingombri, double spazio, double corpo) {
    double r = 0;
    for (const Ingombro& i : ingombri) {
        if (!(spazio > i.testi * corpo))
            return -1;
        r = std::max(r, i.modello / (spazio - i.testi * corpo));
    }
    return r;
}

/// A scale of the series 1, 2, 5 alone.
double ScalaSerie(double rapporto) {
    const double s = ScalaInUso(rapporto);
    const double mantissa = s / std::pow(10, std::floor(std::log10(s)));
    return s > 0 && std::abs(mantissa - 2.5) < 0.1 ? 2 * s : s;
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

/// On the screen texts become smaller where they would take too much.
TavolaViste::SceltaViste TavolaViste::SuSchermo(std::span<const DisposizioneViste> disposizioni,
                                                double corpo) {
    SceltaViste migliore;
    for (std::size_t i = 0; i < disposizioni.size(); ++i) {
        const DisposizioneViste& d = disposizioni[i];
        const double f = std::min(Riduzione(d.larghezze, oggetto_->ScaleWidth, corpo),
                                  Riduzione(d.altezze, oggetto_->ScaleHeight, corpo));
        const double r = Necessario(d, f * corpo);
        if (r > 0 && f * f / r > migliore.merito)
            migliore = {i, f, r, f * f / r};
    }
    return migliore;
}

/// On paper the largest scale, then the larger texts, then the layout that leaves more room.
TavolaViste::SceltaViste TavolaViste::SuCarta(std::span<const DisposizioneViste> disposizioni, double corpo) {
    SceltaViste migliore;
    for (const double f : {1.0, testoPiccolo / altezzaTestoCarta})
        for (std::size_t i = 0; i < disposizioni.size(); ++i) {
            const double r = Necessario(disposizioni[i], f * corpo);
            const double scala = r > 0 ? ScalaSerie(r) : 0;
            const double merito = scala > 0 ? 1 / scala + f * 1e-6 + 1e-9 / r : 0;
            if (merito > migliore.merito)
                migliore = {i, f, scala, merito};
        }
    plottaggio_.Denominatore = migliore.merito > 0 ? migliore.rapporto : 0;
    return migliore.merito > 0 ? migliore : SuSchermo(disposizioni, corpo);
}

double TavolaViste::Necessario(const DisposizioneViste& d, double corpo) const {
    const double larga = Rapporto(d.larghezze, oggetto_->ScaleWidth, corpo);
    const double alta = Rapporto(d.altezze, oggetto_->ScaleHeight, corpo);
    return larga < 0 || alta < 0 ? 0 : std::max(larga, alta);
}

void TavolaViste::SuBersaglio(std::span<const DisposizioneViste> disposizioni) {
    Superficie& o = *oggetto_;
    const double l = o.ScaleWidth;
    const double h = o.ScaleHeight;
    const double corpo = o.TextHeight(campione);
    plottaggio_.Denominatore = 0;
    const SceltaViste s =
        Dispositivo == dispositivoStampante ? SuCarta(disposizioni, corpo) : SuSchermo(disposizioni, corpo);
    scelta_ = s.quale;
    o.FontSize *= s.testi;
    passo_ = s.testi * corpo * s.rapporto;
    Misura(disposizioni[scelta_]);
    plottaggio_.xFinestraPlt(larghezza_ / 2 - l * s.rapporto / 2, larghezza_ / 2 + l * s.rapporto / 2);
    plottaggio_.yFinestraPlt(altezza_ / 2 - h * s.rapporto / 2, altezza_ / 2 + h * s.rapporto / 2);
    plottaggio_.AdattaAfinestra();
    plottaggio_.AltezzaTesto = o.TextHeight(campione);
}

std::string TavolaViste::Scala() const { return ScalaScritta(plottaggio_.Denominatore); }

} // namespace sagomi
