#include "joints/FoglioNodo.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "drawing/Grafica.h"

namespace sagomi {

namespace {

// In heights of the text.
constexpr double interlinea = 1.7;
constexpr double margine = 1;        ///< around the whole sheet
constexpr double piede = 2;          ///< under the views, for the scale
constexpr double primaDeiTesti = 2;  ///< between a view and the column of texts
constexpr double quotaFuori = 8;     ///< of a dimension with its text beside a view
constexpr double sottoColonna = 5.5; ///< of the dimension of the column
constexpr double senzaQuote = 2;     ///< beside and under a side view without dimensions
constexpr double sopraTravi = 6.5;   ///< of what stands over a node without column above
constexpr double richiami = 12;      ///< of the texts beside a node with one beam
constexpr double destraProspetto = 15;
constexpr double sottoProspetto = 8;
constexpr double sopraProspetto = 5; ///< of the width of the column's flange

std::vector<std::string> Righe(const std::string& testo) {
    std::vector<std::string> righe;
    for (std::size_t da = 0; da < testo.size();) {
        const std::size_t a = std::min(testo.find("; ", da), testo.size());
        righe.push_back(testo.substr(da, a - da));
        da = a + 2;
    }
    return righe;
}

} // namespace

FoglioNodo::FoglioNodo(GeometriaNodo geometria, UsoFoglio uso, EvidenzaGiunto evidenza,
                       std::vector<std::string> righe)
    : g_(std::move(geometria)), uso_(uso), evidenza_(std::move(evidenza)), righe_(std::move(righe)),
      titoli_(Righe(evidenza_.testo)) {}

double FoglioNodo::AltezzaColonna() const { return interlinea * static_cast<double>(righe_.size()); }

/// Room for the views, the side view as it stands on the sheet.
void FoglioNodo::Riquadri() {
    laterale_ = {g_.Laterale(), margine, margine, quotaFuori, sottoColonna};
    if (Schermo())
        laterale_.dx = laterale_.giu = senzaQuote;
    prospetto_ = {g_.Prospetto(), quotaFuori, Schermo() ? margine : sopraProspetto, destraProspetto,
                  sottoProspetto};
    if (!g_.sopra)
        laterale_.su = sopraTravi;
    if (g_.dueTravi)
        laterale_.sx = laterale_.dx;
    else if (!Schermo() && !g_.irrigidimenti.empty())
        laterale_.sx = richiami;
    if (!g_.destro) {
        std::swap(laterale_.sx, laterale_.dx);
        std::swap(laterale_.modello.x1, laterale_.modello.x2);
        laterale_.modello.x1 *= -1;
        laterale_.modello.x2 *= -1;
    }
}

Ingombro FoglioNodo::Largo(const Riquadro& r) { return {r.modello.x2 - r.modello.x1, r.sx + r.dx}; }

Ingombro FoglioNodo::Alto(const Riquadro& r) { return {r.modello.y2 - r.modello.y1, r.su + r.giu}; }

/// 0 the front view below with the texts beside it, 1 all in one row with the views on one level, 2 the views
/// over one another and the texts beside both, 3 the views on one level over the texts.
std::vector<DisposizioneViste> FoglioNodo::Disposizioni() const {
    const double testi = larghezzaTesti_ > 0 ? larghezzaTesti_ + primaDeiTesti : 0;
    const double titoli = interlinea * static_cast<double>(titoli_.size());
    const auto somma = [](Ingombro a, Ingombro b) {
        return Ingombro{a.modello + b.modello, a.testi + b.testi};
    };
    const auto piu = [](Ingombro a, double t) { return Ingombro{a.modello, a.testi + t}; };
    const Ingombro lL = Largo(laterale_);
    const Ingombro lP = Largo(prospetto_);
    const Ingombro aL = Alto(laterale_);
    const Ingombro aP = Alto(prospetto_);
    const double colonna = AltezzaColonna();
    const double sotto = colonna + primaDeiTesti;
    const CampoNodo& m = laterale_.modello;
    const CampoNodo& n = prospetto_.modello;
    std::vector<DisposizioneViste> d{{{lL, piu(lP, testi)}, {somma(aL, aP), piu(aL, colonna)}},
                                     {{piu(somma(lL, lP), testi)},
                                      {aL,
                                       aP,
                                       {m.y2 - n.y1, laterale_.su + prospetto_.giu},
                                       {n.y2 - m.y1, prospetto_.su + laterale_.giu},
                                       {0, colonna}}},
                                     {{piu(lL, testi), piu(lP, testi)}, {somma(aL, aP), {0, colonna}}},
                                     {{somma(lL, lP), {0, larghezzaTesti_}},
                                      {piu(aL, sotto),
                                       piu(aP, sotto),
                                       {m.y2 - n.y1, laterale_.su + prospetto_.giu + sotto},
                                       {n.y2 - m.y1, prospetto_.su + laterale_.giu + sotto}}}};
    if (Schermo()) // one view over the other, however wide the room
        d.resize(1);
    for (DisposizioneViste& x : d) {
        x.larghezze.push_back({0, larghezzaTitoli_});
        for (Ingombro& i : x.larghezze)
            i.testi += 2 * margine;
        for (Ingombro& i : x.altezze)
            i.testi += titoli + 2 * margine + piede_;
    }
    return d;
}

void FoglioNodo::Colloca() {
    const double a = tavola_->Passo();
    const double titoli = interlinea * static_cast<double>(titoli_.size());
    const double cima = tavola_->Altezza() - (margine + titoli) * a;
    const auto larga = [a](Ingombro i) { return i.modello + i.testi * a; };
    const auto posto = [a](const Riquadro& r, double sinistra, double alto) {
        return PuntoNodo{sinistra + r.sx * a - r.modello.x1, alto - r.su * a - r.modello.y2};
    };
    const double x = margine * a;
    const double sotto = cima - larga(Alto(laterale_));
    const double destraP = larga(Largo(prospetto_)) + primaDeiTesti * a;
    dove_[0] = posto(laterale_, x, cima);
    const std::size_t scelta = tavola_->Scelta();
    switch (scelta) {
    case 0:
        dove_[1] = posto(prospetto_, x, sotto);
        testi_ = {x + destraP, sotto};
        break;
    case 1:
    case 3: {
        const double y = std::min(dove_[0].y, posto(prospetto_, 0, cima).y);
        dove_[0].y = y;
        dove_[1] = {posto(prospetto_, x + larga(Largo(laterale_)), 0).x, y};
        testi_ = {x + larga(Largo(laterale_)) + destraP, cima};
        if (scelta == 3)
            testi_ = {x, (margine + piede_ + AltezzaColonna()) * a};
        break;
    }
    default:
        dove_[1] = posto(prospetto_, x, sotto);
        testi_ = {x + std::max(larga(Largo(laterale_)) + primaDeiTesti * a, destraP), cima};
    }
}

void FoglioNodo::Dispone(Superficie* oggetto, std::string_view dispositivo) {
    const std::string uscita(dispositivo); // it may be a view of the one in force
    const bool video = uscita == dispositivoVideo;
    piede_ = video ? 0 : piede;
    tavola_ = std::make_unique<TavolaViste>(oggetto, uscita,
                                            Schermo() && video ? std::string_view{} : carattereStampa);
    larghezzaTesti_ = larghezzaTitoli_ = 0;
    for (const std::string& riga : righe_)
        larghezzaTesti_ = std::max(larghezzaTesti_, tavola_->InAltezze(riga));
    for (const std::string& riga : titoli_)
        larghezzaTitoli_ = std::max(larghezzaTitoli_, tavola_->InAltezze(riga));
    testiScritti_ = false;
    Riquadri();
    const auto disposizioni = Disposizioni();
    tavola_->Dispone(disposizioni);
    Colloca();
}

void FoglioNodo::Testi() {
    if (!tavola_ || std::exchange(testiScritti_, true))
        return;
    const double a = tavola_->Passo();
    const TracciaVista t(0, 0, 1, a, tavola_->AltezzaTesto());
    double y = tavola_->Altezza() - (margine + 0.5) * a;
    for (const std::string& riga : titoli_) {
        t.Testo({margine * a, y}, riga, Allinea::Sinistra, true);
        y -= interlinea * a;
    }
    if (!Scala().empty())
        t.Testo({margine * a, (margine + 0.5) * a}, "Quote in mm, disegno " + Scala(), Allinea::Sinistra);
    y = testi_.y - 0.5 * a;
    for (const std::string& riga : righe_) {
        t.Testo({testi_.x, y}, riga, Allinea::Sinistra);
        y -= interlinea * a;
    }
}

TracciaVista FoglioNodo::Laterale() const {
    return {dove_[0].x, dove_[0].y, g_.destro ? 1.0 : -1.0, tavola_->Passo(), tavola_->AltezzaTesto()};
}

TracciaVista FoglioNodo::Frontale() const {
    return {dove_[1].x, dove_[1].y, 1, tavola_->Passo(), tavola_->AltezzaTesto()};
}

std::vector<ZonaNodo> FoglioNodo::Zone() const {
    using enum ComponenteGiunto;
    std::vector<ZonaNodo> zone;
    const auto aggiunge = [&zone](const TracciaVista& vista, ComponenteFila quale,
                                  const std::vector<ContornoNodo>& contorni) {
        for (const ContornoNodo& c : contorni) {
            ZonaNodo zona{quale, {}};
            for (const PuntoNodo& p : c)
                zona.contorno.push_back(vista.In(p));
            zone.push_back(std::move(zona));
        }
    };
    if (!tavola_)
        return zone;
    for (const ComponenteGiunto c :
         {Bulloni, Saldature, Irrigidimenti, Flangia, AlaColonna, AlaTrave, AnimaTrave, AnimaColonnaTesa,
          AnimaColonnaCompressa, InstabilitaAnimaColonna, Pannello})
        for (const FilaGiunto f : {FilaGiunto::Esterna, FilaGiunto::Interna, FilaGiunto::Nessuna}) {
            const bool perFile = c == Bulloni || c == Flangia || c == AlaColonna;
            if (f != FilaGiunto::Nessuna && !perFile)
                continue;
            aggiunge(Laterale(), {c, f}, g_.ZoneLaterali({c, f}));
            aggiunge(Frontale(), {c, f}, g_.ZoneFrontali({c, f}));
        }
    return zone;
}

} // namespace sagomi
