#include "screens/FigureGuida.h"

#include <QHash>

#include <functional>
#include <memory>

#include "composite/AcciaioCls.h"
#include "composite/DisegniTraveMista.h"
#include "criticalloads/DisegnoTrave.h"
#include "drawing/ui/SuperficieImmagine.h"
#include "fasteners/DisegnoForatura.h"
#include "joints/FiguraGiunto.h"
#include "joints/Nodo.h"
#include "joints/NoteIrrigidimenti.h"

namespace sagomi {

namespace {

std::shared_ptr<SezioneDoppioT> Sagomo(const char* nome, double h, double b, double tw, double tf, double r) {
    auto s = std::make_shared<SezioneDoppioT>();
    s->Designation = nome;
    s->h = h;
    s->b = b;
    s->tw = tw;
    s->tf = tf;
    s->r1 = r;
    s->fy = 235;
    s->fu = 360;
    return s;
}

/// A beam IPE 270 on a column HE 200 B, two rows of M18, stiffened in compression.
Disegno EsempioGiunto() {
    Nodo node;
    node.ImpostaNodo();
    node.Tipovie = nodoT;
    node.NumeroGiunti = 1;
    node.CaratterizzaGiunti();
    node.PuntatoreTraveDestra(Sagomo("IPE 270", 270, 135, 6.6, 10.2, 15));
    node.PuntatoreColonna(Sagomo("HE 200 B", 200, 200, 9, 15, 18));
    node.ConnessioneCorrente = node.Giunti[1].Usa();
    Giunto& g = *node.ConnessioneCorrente;
    g.IndiceBullone(6);
    g.nf = 2;
    g.Irrigidimenti = "Cp";
    g.tf = 20;
    g.bf = 160;
    g.ef = 30;
    g.d2 = 35;
    g.ex = 30;
    g.L = 65;
    g.u = 15;
    g.Af = 7;
    g.aw = 4;
    g.sTraveColonna_Calcola();
    g.Derivati_Calcola();
    node.CalcolaIrrigidimenti();
    return FiguraGiunto(node, nullptr, {});
}

AcciaioCls EsempioTrave() {
    AcciaioCls beam;
    beam.TipoSoletta = nervatureTrasversali;
    beam.hc = 120;
    beam.beff = 1200;
    beam.ha = 55;
    beam.bb = 60;
    beam.bs = 90;
    beam.iNervature = 200;
    beam.hPiolo = 100;
    beam.dPiolo = 19;
    beam.Luce = 6;
    beam.Nr = 1;
    beam.Passo = 400;
    return beam;
}

Disegno DisegnoDi(const QString& nome) {
    static const QHash<QString, std::function<Disegno()>> drawings{
        {QStringLiteral("giunto"), EsempioGiunto},
        {QStringLiteral("irrigidimenti"), [] { return DisegnoIrrigidimenti({}); }},
        {QStringLiteral("foratura"),
         [] {
             return DisegnoForatura({16, 18, 40, 60, 30, 60});
         }},
        {QStringLiteral("trave"), [] { return DisegnoTrave({}); }},
        {QStringLiteral("mensola"),
         [] {
             return DisegnoTrave({true, false, 0});
         }},
        {QStringLiteral("lamiera"), [] { return DisegnoLamiera(EsempioTrave()); }},
        {QStringLiteral("connettori"), [] { return DisegnoConnettori(EsempioTrave(), 16); }}};
    const auto found = drawings.find(nome);
    return found == drawings.end() ? Disegno() : (*found)();
}

} // namespace

QImage FiguraGuida(const QString& nome) {
    const Disegno drawing = DisegnoDi(nome);
    return drawing.PlottaInOggetto ? ImmagineDi(drawing, QStringLiteral("FinestraGuida")) : QImage();
}

} // namespace sagomi
