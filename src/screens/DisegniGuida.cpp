#include "screens/DisegniGuida.h"

#include <functional>
#include <map>
#include <memory>
#include <numeric>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "choice/ConfrontoScelta.h"
#include "choice/GraficoScelta.h"
#include "choice/Scelta.h"
#include "composite/AcciaioCls.h"
#include "composite/DisegniTraveMista.h"
#include "composite/DisegnoVivo.h"
#include "criticalloads/DisegnoTrave.h"
#include "drawing/Grafica.h"
#include "fasteners/DisegnoForatura.h"
#include "frame/Messaggi.h"
#include "joints/DiagrammaRigidezza.h"
#include "joints/DisegniScelte.h"
#include "joints/FiguraGiunto.h"
#include "joints/Nodo.h"
#include "joints/NoteIrrigidimenti.h"
#include "screens/DisegniRegole.h"
#include "screens/SagomiGuida.h"
#include "sections/DisegniMomento.h"
#include "sections/DisegnoSagoma.h"
#include "sections/SezioneDoppia.h"

namespace sagomi {

namespace {

SezioneDoppioT Sagomo(const char* nome, double h, double b, double tw, double tf, double r) {
    SezioneDoppioT s;
    s.Designation = nome;
    s.TipoAcciaio = "S235 (Fe360)";
    s.h = h;
    s.b = b;
    s.tw = tw;
    s.tf = tf;
    s.r1 = r;
    s.fy = 235;
    s.fu = 360;
    return s;
}

/// A welded girder with a web of class 4 in bending.
SezioneDoppioT Saldato() {
    SezioneDoppioT s = Sagomo("1000x300", 1000, 300, 8, 16, 0);
    s.Saldata = true;
    s.r = 6;
    s.fy = 355;
    s.SezioneEfficaceDaPlottare = 1;
    s.Area = 17344;
    s.Jy = 2928e6;
    s.Wely = 5857e3;
    s.Wply = 6597e3;
    s.iY = 411;
    s.Jz = 72e6;
    s.Welz = 480e3;
    s.Wplz = 735e3;
    s.iZ = 64.5;
    s.InizializzaSezione(nullptr);
    return s;
}

SezioneDoppioT Asimmetrico() {
    SezioneDoppioT s = Sagomo("400 asimmetrico", 400, 180, 10, 16, 0);
    s.Saldata = true;
    s.SaldataAsimm = true;
    s.bAlaInf = 260;
    s.tAlaInf = 24;
    s.r = 6;
    s.InizializzaSezioneAcciaioCls();
    return s;
}

SezioneDoppioT Ipe300() { return SezioneGuida<SezioneDoppioT>("IPE 300", 235); }
SezioneSagomoU Canale() { return SezioneGuida<SezioneSagomoU>("UPN 200", 235); }
SezioneSagomoL Angolare() { return SezioneGuida<SezioneSagomoL>("L 100x100x10", 235); }

template <typename Sezione> Disegno Coppia(Sezione s) {
    RendeDoppia(s, SingoloDi(s), 10, false);
    s.InizializzaSezione(nullptr);
    return DisegnoSagoma(SagomaDi(s));
}

template <typename Sezione> Disegno Tavola(const Sezione& sezione, std::string_view maschera) {
    return {sezione.Designation, [sezione, maschera](Superficie* target, std::string_view) {
                sezione.PlottaSezione(target, maschera, Dispositivo);
            }};
}

/// A beam IPE 270 of 6 m on a column HEB 200, two rows of M18, stiffened in compression.
Nodo EsempioNodo() {
    Nodo node;
    node.ImpostaNodo();
    node.Tipovie = nodoT;
    node.NumeroGiunti = 1;
    node.CaratterizzaGiunti();
    const auto beam = std::make_shared<SezioneDoppioT>(SezioneGuida<SezioneDoppioT>("IPE 270", 235));
    const auto column = std::make_shared<SezioneDoppioT>(SezioneGuida<SezioneDoppioT>("HEB 200", 235));
    node.PuntatoreTraveDestra(beam);
    node.PuntatoreColonna(column);
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
    return node;
}

/// The same joint checked for 40 kNm, with a beam of 6 m.
Disegno EsempioRigidezza() {
    Nodo node = EsempioNodo();
    Giunto& g = *node.ConnessioneCorrente;
    g.Trave->lunghezza() = 6;
    g.Trave->Mysd = 40;
    g.Mrd_Giunto_Calcola();
    g.Sj_Giunto_Calcola();
    g.Acquisito = true;
    return DiagrammaRigidezza(g);
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

Disegno EsempioTraveMista() {
    AcciaioCls beam = EsempioTrave();
    beam.Sezione = std::make_shared<SezioneDoppioT>(Ipe300());
    beam.c = 30;
    beam.As = 500;
    return DisegnoVivo(beam);
}

/// Uniform load and end moments of one sign, 60 and 20 kNm, as a member carries them [N mm].
Disegno EsempioMomenti() {
    constexpr double kNm = 1e6;
    MomentiMembratura y;
    MomentiMembratura z;
    y.M1 = 60 * kNm;
    y.M2 = 20 * kNm;
    y.MQ = 45 * kNm;
    z.M1 = 10 * kNm;
    z.MQ = 4 * kNm;
    return DisegnoMomenti(y, z, 5);
}

/// A simple beam in S275: 100 kNm in the middle of 6 m, held sideways every 3 m [N, mm].
Richiesta EsempioScelta() {
    Richiesta asked;
    asked.TipoAcciaio = "S275 (Fe430)";
    asked.fy = 275;
    asked.fu = 430;
    asked.L0y = 6000;
    asked.L0z = 3000;
    asked.y.M1 = 100e6;
    asked.C1 = 1;
    return asked;
}

/// IPE, HEA and HEB for that beam, as the chart of the choice shows them.
Disegno EsempioGrafico() {
    std::vector<SagomoInGara> rows;
    for (const SagomoInGara& s : GaraGuida().sagomi)
        if (!s.utente && (s.famiglia == "IPE" || s.famiglia == "HEA" || s.famiglia == "HEB"))
            rows.push_back(s);
    std::vector<std::string> told;
    const std::vector<RigaScelta> checked = Valuta(rows, EsempioScelta(), {}, told);
    std::vector<std::uint32_t> places(checked.size());
    std::iota(places.begin(), places.end(), 0U);
    return DisegnoGrafico(std::make_shared<DatiGrafico>(DatiGraficoDi(places, checked, rows)));
}

/// Three sections that bear it.
Disegno EsempioConfronto() {
    std::vector<std::string> told;
    std::vector<Confrontato> rows;
    for (const char* name : {"IPE 330", "HEA 220", "HEB 180"})
        rows.push_back({SagomoGuida(name), Verifica(SagomoGuida(name), EsempioScelta(), told)});
    return DisegnoConfronto(rows);
}

using Tabella = std::map<std::string_view, std::function<Disegno()>>;

const Tabella& Disegni() {
    static const Tabella drawings{
        {"angolare", [] { return DisegnoSagoma(SagomaDi(Angolare())); }},
        {"angolare4",
         [] { return Tavola(SezioneGuida<SezioneSagomoL>("L 120x120x8", 355), "FrmClasseSagomiL"); }},
        {"angolari", [] { return Coppia(Angolare()); }},
        {"asimmetrico", [] { return DisegnoSagoma(SagomaDi(Asimmetrico())); }},
        {"canale", [] { return DisegnoSagoma(SagomaDi(Canale())); }},
        {"canali", [] { return Coppia(Canale()); }},
        {"connettori", [] { return DisegnoConnettori(EsempioTrave(), 16); }},
        {"coefficienti", DisegnoCoefficienti},
        {"confronto", EsempioConfronto},
        {"cordone", DisegnoCordone},
        {"curve", DisegnoCurve},
        {"dominio", DisegnoDominio},
        {"doppioT", [] { return DisegnoSagoma(SagomaDi(Ipe300())); }},
        {"efficace", [] { return Tavola(Saldato(), "FrmClasseDoppioTU"); }},
        {"fila1", [] { return DisegnoFile(1); }},
        {"fila2", [] { return DisegnoFile(2); }},
        {"foratura",
         [] {
             return DisegnoForatura({16, 18, 40, 60, 30, 60});
         }},
        {"giunto", [] { return FiguraGiunto(EsempioNodo(), nullptr, {}); }},
        {"irrigidimenti", [] { return DisegnoIrrigidimenti({}); }},
        {"lamiera", [] { return DisegnoLamiera(EsempioTrave()); }},
        {"mensola",
         [] {
             return DisegnoTrave({true, false, 0});
         }},
        {"momenti", EsempioMomenti},
        {"portale", DisegnoPortale},
        {"prospettoF1", [] { return DisegnoProspetto(1); }},
        {"prospettoF2", [] { return DisegnoProspetto(2); }},
        {"rigidezza", EsempioRigidezza},
        {"scelta", EsempioGrafico},
        {"sezione", [] { return Tavola(Ipe300(), "frmDoppioT"); }},
        {"suggerimento", DisegnoSuggerimento},
        {"tensioni", DisegnoTensioni},
        {"trave", [] { return DisegnoTrave({}); }},
        {"travemista", EsempioTraveMista},
        {"trattoT", DisegnoModiTrattoT}};
    return drawings;
}

} // namespace

Disegno DisegnoGuida(std::string_view nome) {
    const MessaggiTaciuti quiet;
    const auto found = Disegni().find(nome);
    try {
        return found == Disegni().end() ? Disegno() : found->second();
    } catch (const std::out_of_range&) {
        return {}; // a workbook without that section
    }
}

std::vector<std::string_view> NomiDisegniGuida() {
    std::vector<std::string_view> names;
    for (const auto& [name, drawing] : Disegni())
        names.push_back(name);
    return names;
}

} // namespace sagomi
