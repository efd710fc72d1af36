#include "joints/GeometriaNodo.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "joints/GeneraleGiunto.h"
#include "joints/Nodo.h"

namespace sagomi {

using std::numbers::sqrt2;

namespace {

constexpr double gioco = 8;            ///< of a stiffener between the flanges of the column [mm]
constexpr double arretramento = 5;     ///< of a stiffener from the edge of the flange [mm]
constexpr double troncoColonna = 0.45; ///< of the column beyond the beams, in heights of these
constexpr double troncoTrave = 0.9;    ///< of a beam, in its heights
constexpr double senzaTravi = 1.5;     ///< what stands for the height of the beams, in heights of the column
constexpr double oltrePiastra = 0.1;   ///< of the column's flange beyond the plate, in heights of the beams

bool DestroDi(const std::string& tipo) { return tipo.find("Dx") != std::string::npos; }

/// The kinds of node whose column ends at the beams.
bool SenzaColonnaSopra(const std::string& tipo) {
    return tipo == "LDx" || tipo == "Croce_Dx" || tipo == "Croce_Sn";
}

const SezioneDoppioT* Trave(const Nodo& nodo, const Giunto* giunto, bool destra) {
    if (giunto != nullptr && giunto->Trave)
        return giunto->Trave.get();
    return (destra ? nodo.TraveDx : nodo.TraveSx).Riferimento().get();
}

} // namespace

ProfiloNodo::ProfiloNodo(const SezioneDoppioT* s) {
    if (s == nullptr)
        return;
    h = s->h;
    b = s->b;
    tw = s->tw;
    tf = s->tf;
    r = Giunto::Radice(*s);
    nome = s->Designation;
}

LatoNodo::LatoNodo(const Giunto* giunto, const SezioneDoppioT* sezione, const ProfiloNodo& colonna)
    : trave(sezione), xColonna(colonna.h / 2), tfColonna(colonna.tf) {
    if (giunto == nullptr || !trave.Presente())
        return;
    Piastra(*giunto);
    Bulloni(*giunto);
}

void LatoNodo::Piastra(const Giunto& g) {
    nf = g.nf;
    tf = std::max(g.tf, 0.0);
    bf = std::max(g.bf, 0.0);
    ef = g.ef;
    d2 = g.d2;
    Af = g.Af;
    aw = g.aw;
    if (nf == 2) {
        ex = std::max(g.ex, 0.0);
        dX = g.dX > 0 ? g.dX : std::max(g.L - ex, 0.0);
        u = std::max(g.u, 0.0);
        alto = ex + dX;
        basso = -trave.h - u;
        return;
    }
    const double hf = ArrotondaSu(trave.h - trave.tf);
    alto = (hf - trave.h) / 2;
    basso = -(hf + trave.h) / 2;
}

void LatoNodo::Bulloni(const Giunto& g) {
    xFori = bf / 2 - ef;
    d = g.Diam;
    d0 = g.d0;
    classe = g.Classe;
    testa = g.bul_k;
    dado = g.bul_m;
    larghezza = g.bul_e;
    rondella = g.rond_d2;
    spessoreRondella = g.rond_s;
    if (nf == 2 && dX > 0)
        file.push_back({dX, FilaGiunto::Esterna});
    file.push_back({-trave.tf - d2, FilaGiunto::Interna});
    file.push_back({-trave.h + trave.tf + d2, FilaGiunto::Nessuna});
}

double LatoNodo::Cima() const { return Piastra() ? std::max(alto, 0.0) : 0; }

double LatoNodo::Fondo() const { return Piastra() ? std::min(basso, -trave.h) : -trave.h; }

double LatoNodo::Fila(FilaGiunto quale) const {
    for (const FilaDisegnata& f : file)
        if (f.fila == quale)
            return f.y;
    return -trave.tf - d2;
}

// The fillet on the outer side of a flange lies in the corner above a plate that ends at half the flange, and
// has the throat Af as a triangle of unequal legs; any other has equal ones.
std::vector<std::array<PuntoNodo, 3>> LatoNodo::Cordoni() const {
    std::vector<std::array<PuntoNodo, 3>> cordoni;
    if (!Piastra() || !(Af > 0))
        return cordoni;
    const double x = xTrave();
    const double gamba = Af * sqrt2;
    const auto aggiunge = [&](double y, double lungoX, double lungoY) {
        cordoni.push_back({{{x, y}, {x + lungoX, y}, {x, y + lungoY}}});
    };
    const double verticale = std::min(gamba, -alto);
    if (nf == 2) {
        aggiunge(0, gamba, gamba);
        aggiunge(-trave.h, gamba, -gamba);
    } else if (verticale > 0) {
        const double quadrato = verticale * verticale - Af * Af;
        const double lungo = quadrato > 0 ? std::min(Af * verticale / std::sqrt(quadrato), tf) : tf;
        aggiunge(alto, -lungo, verticale);
        aggiunge(basso, -lungo, -verticale);
    }
    aggiunge(-trave.tf, gamba, -gamba);
    aggiunge(-trave.h + trave.tf, gamba, gamba);
    return cordoni;
}

GeometriaNodo::GeometriaNodo(const Nodo& nodo, const Giunto* giunto, bool due) : dueTravi(due) {
    const Giunto* g = giunto != nullptr ? giunto : nodo.ConnessioneCorrente.get();
    const SezioneDoppioT* c = g != nullptr && g->Colonna ? g->Colonna.get() : nodo.Colonnainf.get();
    destro = g == nullptr || DestroDi(g->TipiGiunto);
    sopra =
        g != nullptr ? !SenzaColonnaSopra(g->TipiGiunto) : nodo.Tipovie == nodoCroce || nodo.Tipovie == nodoT;
    colonna = ProfiloNodo(c);
    lato = LatoNodo(g, Trave(nodo, g, destro), colonna);
    if (dueTravi) {
        const Giunto* opposto = nodo.Giunti[destro ? 2 : 1].Riferimento().get();
        altro = LatoNodo(opposto, Trave(nodo, opposto, !destro), colonna);
    }
    if (g != nullptr && g->Irrigidimenti != "No" && colonna.Presente() && lato.trave.Presente())
        Irrigidisce(*g);
}

// Beams of different height put the lower stiffener on a slope; the upper one is level.
void GeometriaNodo::Irrigidisce(const Giunto& g) {
    const ProfiloNodo& t = lato.trave;
    const ProfiloNodo& o = altro.trave;
    const double netta = colonna.Netta();
    const double dislivello = o.Presente() ? t.h - o.h : 0; // the other end lies that much higher
    const bool data = g.Irr_Spessore > 0 && g.Irr_L1 > 0;
    spessoreIrr = data ? double(g.Irr_Spessore) : std::round(std::max(t.tf, o.tf));
    larghezzaIrr = data ? double(g.Irr_B) : std::round((colonna.b - colonna.tw) / 2 - arretramento);
    lunghezzaIrr = data ? double(g.Irr_L1) : std::floor(std::hypot(netta, dislivello)) - gioco;
    golaIrr = data ? double(g.Irr_a) : 0;
    const double x = netta / 2;
    const double y = -t.h + t.tf / 2;
    irrigidimenti.push_back(Irrigidimento({x, y}, {-x, y + dislivello}, lunghezzaIrr));
    if (g.Irrigidimenti != "Si")
        return;
    lunghezzaSup = g.Irr_L2 > 0 ? double(g.Irr_L2) : netta - gioco;
    irrigidimenti.push_back(Irrigidimento({x, -t.tf / 2}, {-x, -t.tf / 2}, lunghezzaSup));
}

ContornoNodo GeometriaNodo::Irrigidimento(PuntoNodo da, PuntoNodo a, double lunghezza) const {
    const double via = std::hypot(a.x - da.x, a.y - da.y);
    const double ux = (a.x - da.x) / via;
    const double uy = (a.y - da.y) / via;
    const PuntoNodo centro{(da.x + a.x) / 2, (da.y + a.y) / 2};
    const auto punto = [&](double lungo, double oltre) {
        return PuntoNodo{centro.x + ux * lungo - uy * oltre, centro.y + uy * lungo + ux * oltre};
    };
    const double l = lunghezza / 2;
    const double s = spessoreIrr / 2;
    return {punto(-l, -s), punto(l, -s), punto(l, s), punto(-l, s)};
}

double GeometriaNodo::Alta() const {
    const double h = std::max(lato.trave.h, altro.trave.h);
    return h > 0 ? h : senzaTravi * colonna.h;
}

CampoNodo GeometriaNodo::Laterale() const {
    const auto fuori = [](const LatoNodo& l) {
        return l.trave.Presente() ? l.xTrave() + troncoTrave * l.trave.h : l.xColonna;
    };
    const double tronco = troncoColonna * Alta();
    const double cima = std::max(lato.Cima(), altro.Cima());
    const double fondo = lato.trave.Presente() || altro.trave.Presente()
                             ? std::min(lato.Fondo(), altro.Fondo())
                             : -senzaTravi * colonna.h;
    const double manca = std::max(colonna.h, 0.0) / 2;
    return {-std::max(manca, fuori(altro)), fondo - tronco, std::max(manca, fuori(lato)),
            sopra ? cima + tronco : cima};
}

CampoNodo GeometriaNodo::Prospetto() const {
    const double mezza = std::max({colonna.b, lato.bf, lato.trave.b}) / 2;
    const double oltre = oltrePiastra * Alta();
    const double fondo = lato.trave.Presente() ? lato.Fondo() : -Alta();
    const double su = sopra || !lato.Piastra() ? oltre : 0;
    return {-mezza, fondo - oltre, mezza, lato.Cima() + su};
}

std::vector<std::string> GeometriaNodo::Mancanze() const {
    std::vector<std::string> nomi;
    const auto se = [&nomi](bool manca, const char* nome) {
        if (manca)
            nomi.emplace_back(nome);
    };
    se(!colonna.Presente(), "colonna");
    se(!lato.trave.Presente(), destro ? "trave destra" : "trave sinistra");
    se(dueTravi && !altro.trave.Presente(), destro ? "trave sinistra" : "trave destra");
    if (!nomi.empty())
        return nomi;
    se(!(lato.tf > 0), "tf");
    se(!(lato.bf > 0), "bf");
    se(!(lato.ef > 0), "ef");
    se(!(lato.d2 > 0), "d1");
    if (lato.nf == 2) {
        se(!(lato.ex > 0), "ex");
        se(!(lato.dX > 0), "d2");
    }
    return nomi;
}

// Components --------------------------------------------------------------------------------------------

namespace {

constexpr double mezzaFila = 1.6;  ///< half of the strip of a row of bolts, in diameters
constexpr double quotaAnima = 0.4; ///< of the column's web, in front of the flange that is meant

} // namespace

/// Strip of a row, or of all rows in tension, between two abscissas.
std::vector<ContornoNodo> GeometriaNodo::Striscia(FilaGiunto quale, double x1, double x2) const {
    std::vector<ContornoNodo> zone;
    if (!lato.Bulloni())
        return zone;
    const double mezza = mezzaFila * lato.d;
    for (const FilaDisegnata& f : lato.file)
        if (f.fila != FilaGiunto::Nessuna && (quale == FilaGiunto::Nessuna || quale == f.fila))
            zone.push_back(CampoNodo{x1, f.y - mezza, x2, f.y + mezza}.Contorno());
    return zone;
}

std::vector<ContornoNodo> GeometriaNodo::ZoneAnima(ComponenteGiunto componente) const {
    const double x = colonna.Netta() / 2;
    const double davanti = x - quotaAnima * colonna.Netta();
    const double y = -lato.trave.h + lato.trave.tf / 2;
    const double mezza = lato.trave.tf / 2 + 2.5 * (colonna.tf + colonna.r);
    switch (componente) {
    case ComponenteGiunto::AnimaColonnaTesa:
        return Striscia(FilaGiunto::Nessuna, davanti, x);
    case ComponenteGiunto::AnimaColonnaCompressa:
        return {CampoNodo{davanti, y - mezza, x, y + mezza}.Contorno()};
    case ComponenteGiunto::InstabilitaAnimaColonna:
        return {CampoNodo{-x, y - mezza, davanti, y + mezza}.Contorno()};
    default:
        return {CampoNodo{-x, -lato.trave.h, x, 0}.Contorno()};
    }
}

std::vector<ContornoNodo> GeometriaNodo::ZoneBulloni(FilaGiunto quale) const {
    std::vector<ContornoNodo> zone;
    if (!lato.Bulloni())
        return zone;
    const double da = lato.xColonna - lato.tfColonna - lato.spessoreRondella - lato.dado;
    const double a = lato.xTrave() + lato.testa;
    for (const FilaDisegnata& f : lato.file)
        if (quale == FilaGiunto::Nessuna || quale == f.fila)
            zone.push_back(CampoNodo{da, f.y - lato.larghezza / 2, a, f.y + lato.larghezza / 2}.Contorno());
    return zone;
}

std::vector<ContornoNodo> GeometriaNodo::ZoneSaldature() const {
    std::vector<ContornoNodo> zone;
    for (const auto& c : lato.Cordoni())
        zone.emplace_back(c.begin(), c.end());
    return zone;
}

std::vector<ContornoNodo> GeometriaNodo::ZoneLaterali(const ComponenteFila& quale) const {
    const ProfiloNodo& t = lato.trave;
    const double xT = lato.xTrave();
    const double fine = xT + troncoTrave * t.h;
    if (!t.Presente())
        return {};
    switch (quale.componente) {
    case ComponenteGiunto::Nessuno:
        return {};
    case ComponenteGiunto::Bulloni:
        return ZoneBulloni(quale.fila);
    case ComponenteGiunto::AlaColonna:
        return Striscia(quale.fila, lato.xColonna - lato.tfColonna, lato.xColonna);
    case ComponenteGiunto::Flangia:
        return Striscia(quale.fila, lato.xColonna, xT);
    case ComponenteGiunto::AnimaTrave: {
        const double sotto = std::max(lato.d2 + mezzaFila * lato.d, 0.2 * t.h);
        return {CampoNodo{xT, -t.tf - sotto, xT + 0.35 * t.h, -t.tf}.Contorno()};
    }
    case ComponenteGiunto::AlaTrave:
        return {CampoNodo{xT, -t.tf, fine, 0}.Contorno(), CampoNodo{xT, -t.h, fine, -t.h + t.tf}.Contorno()};
    case ComponenteGiunto::Saldature:
        return ZoneSaldature();
    case ComponenteGiunto::Irrigidimenti:
        return irrigidimenti;
    default:
        return colonna.Presente() ? ZoneAnima(quale.componente) : std::vector<ContornoNodo>{};
    }
}

std::vector<ContornoNodo> GeometriaNodo::ZoneFrontali(const ComponenteFila& quale) const {
    const ProfiloNodo& t = lato.trave;
    if (!t.Presente())
        return {};
    if (quale.componente == ComponenteGiunto::Flangia && lato.bf > 0) {
        std::vector<ContornoNodo> zone = Striscia(quale.fila, -lato.bf / 2, lato.bf / 2);
        for (ContornoNodo& z : zone)
            for (PuntoNodo& p : z)
                p.y = std::clamp(p.y, lato.basso, lato.alto);
        return zone;
    }
    if (quale.componente == ComponenteGiunto::AnimaTrave)
        return {CampoNodo{-t.tw / 2, -t.tf - 0.35 * t.h, t.tw / 2, -t.tf}.Contorno()};
    if (quale.componente == ComponenteGiunto::AlaTrave)
        return {CampoNodo{-t.b / 2, -t.tf, t.b / 2, 0}.Contorno(),
                CampoNodo{-t.b / 2, -t.h, t.b / 2, -t.h + t.tf}.Contorno()};
    if (quale.componente != ComponenteGiunto::Bulloni || !lato.Forata())
        return {};
    std::vector<ContornoNodo> zone;
    const double mezza = 0.8 * lato.d0;
    for (const FilaDisegnata& f : lato.file)
        if (quale.fila == FilaGiunto::Nessuna || quale.fila == f.fila)
            for (const double x : {-lato.xFori, lato.xFori})
                zone.push_back(CampoNodo{x - mezza, f.y - mezza, x + mezza, f.y + mezza}.Contorno());
    return zone;
}

} // namespace sagomi
