// The views on the sheet of a joint.
#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

#include "frame/Numeri.h"
#include "joints/FoglioNodo.h"

namespace sagomi {

namespace {

// In heights of the text.
constexpr double primaQuota = 2.5;      ///< of dimension lines, from the piece
constexpr double passoQuote = 2.7;      ///< from one to the next
constexpr double secondaCatena = 6.5;   ///< of the height of the plate, beyond the chain of the holes
constexpr double altezzaSpessore = 4.2; ///< of the thickness of the plate, at least
constexpr double distacco = 2;
constexpr double stacco = 0.4;            ///< of a text from its line
constexpr double primaDellaRottura = 1.8; ///< of the name of a beam from its end
constexpr double fuoriTrave = 1.5;        ///< of a text over or under a beam, clear of its end
constexpr double righe = 1.4;             ///< from one line of a text to the next

constexpr double sporgenzaBullone = 0.25; ///< of the thread beyond the nut, in diameters
constexpr double assiForo = 0.75;         ///< of the axes of a hole, in its diameters

std::string Mm(double valore) { return TestoPiano(std::round(valore * 10) / 10); }

} // namespace

// Side view ---------------------------------------------------------------------------------------------

void FoglioNodo::VistaLaterale() const {
    if (!tavola_)
        return;
    const TracciaVista v = Laterale();
    if (g_.colonna.Presente())
        Colonna(v);
    if (g_.altro.trave.Presente())
        Lato(TracciaVista(dove_[0].x, dove_[0].y, g_.destro ? -1.0 : 1.0, v.a(), tavola_->AltezzaTesto()),
             g_.altro);
    Lato(v, g_.lato);
    Irrigidimenti(v);
    QuoteLaterali(v);
    if (!Schermo())
        Richiami(v);
    Evidenzia(v, false);
}

void FoglioNodo::Colonna(const TracciaVista& v) const {
    const CampoNodo m = g_.Laterale();
    const double x = g_.colonna.h / 2;
    const double interna = x - g_.colonna.tf;
    v.Area(CampoNodo{-x, m.y1, x, m.y2}.Contorno(), Fondo::Sfondo);
    for (const double s : {-1.0, 1.0})
        v.Area(CampoNodo{s * interna, m.y1, s * x, m.y2}.Contorno(), Fondo::Tenue);
    TracciaVista::Contorno();
    for (const double s : {-x, -interna, interna, x})
        v.Linea({s, m.y1}, {s, m.y2});
    if (!g_.sopra) {
        TracciaVista::Contorno();
        v.Linea({-x, m.y2}, {x, m.y2});
    } else {
        v.Rottura({-x, m.y2}, {x, m.y2});
    }
    v.Rottura({-x, m.y1}, {x, m.y1});
    const bool entra = LarghezzaTestoPlt(tavola_->AltezzaTesto(), g_.colonna.nome) < 0.9 * 2 * interna;
    if (entra)
        v.Testo({0, m.y1 + 1.8 * v.a()}, g_.colonna.nome, Allinea::Centro);
    else if (g_.lato.trave.Presente() && SottoTrave(RigheSotto(v.a()), v.a()) < m.y1 + 0.5 * v.a())
        v.Testo({-x - v.a(), m.y1 + v.a()}, g_.colonna.nome, Allinea::Destra);
    else
        v.Testo({x + v.a(), m.y1 + v.a()}, g_.colonna.nome, Allinea::Sinistra);
}

void FoglioNodo::Lato(const TracciaVista& v, const LatoNodo& lato) const {
    if (!lato.trave.Presente())
        return;
    Trave(v, lato);
    if (lato.Piastra()) {
        const CampoNodo piastra{lato.xColonna, lato.basso, lato.xTrave(), lato.alto};
        v.Area(piastra.Contorno(), Fondo::Tenue);
        TracciaVista::Contorno();
        v.Campo(piastra);
    }
    Saldature(v, lato);
    if (lato.Bulloni())
        for (const FilaDisegnata& fila : lato.file)
            Bullone(v, lato, fila.y);
}

void FoglioNodo::Trave(const TracciaVista& v, const LatoNodo& lato) const {
    const ProfiloNodo& t = lato.trave;
    const double x = lato.xTrave();
    const double fine = Fine(lato);
    for (const double y : {-t.tf, -t.h})
        v.Area(CampoNodo{x, y, fine, y + t.tf}.Contorno(), Fondo::Tenue);
    TracciaVista::Contorno();
    v.Linea({x, -t.h}, {x, 0});
    for (const double y : {0.0, -t.tf, -t.h + t.tf, -t.h})
        v.Linea({x, y}, {fine, y});
    v.Rottura({fine, -t.h}, {fine, 0});
    NomeTrave(v, lato);
}

double FoglioNodo::Fine(const LatoNodo& lato) const {
    const CampoNodo m = g_.Laterale();
    return &lato == &g_.lato ? m.x2 : -m.x1;
}

double FoglioNodo::Larghezza(const std::string& testo) const {
    return LarghezzaTestoPlt(tavola_->AltezzaTesto(), testo);
}

/// Inside the beam at its end, where there is room between flanges, bolts and their texts; else outside:
/// under the one that is meant, over the other one, whose stiffeners have their texts below.
void FoglioNodo::NomeTrave(const TracciaVista& v, const LatoNodo& lato) const {
    const double a = v.a();
    const ProfiloNodo& t = lato.trave;
    if (NomeDentro(lato, a))
        v.Testo({Fine(lato) - primaDellaRottura * a, -t.h / 2}, t.nome, Allinea::Destra);
    else if (&lato != &g_.lato)
        v.Testo({lato.xTrave() + lato.testa + lato.d / 2 + stacco * a, fuoriTrave * a}, t.nome,
                Allinea::Sinistra);
    else
        v.Testo({InizioRichiami(a) + stacco * a, SottoTrave(RigheSotto(a) - 1, a)}, t.nome,
                Allinea::Sinistra);
}

bool FoglioNodo::NomeDentro(const LatoNodo& lato, double a) const {
    const ProfiloNodo& t = lato.trave;
    const double sinistra = Fine(lato) - primaDellaRottura * a - Larghezza(t.nome);
    if (t.h / 2 - t.tf < 0.6 * a || sinistra < lato.xTrave() + lato.testa + stacco * a)
        return false;
    if (Schermo() || &lato != &g_.lato || !lato.Piastra() ||
        sinistra > InizioRichiami(a) + 2 * stacco * a + LarghezzaRichiami())
        return true;
    if (!RichiamiDentro(a)) // their lines run down
        return sinistra > InizioRichiami(a) + stacco * a;
    const double y = lato.Fila(FilaGiunto::Interna);
    const auto lontana = [&](double riga) { return std::abs(riga + t.h / 2) > 1.1 * a; };
    return (!lato.Bulloni() || (lontana(y) && lontana(y - righe * a))) &&
           (!(lato.aw > 0) || lontana(RigaSaldatura(a)));
}

// Texts of bolts and weld of the web ------------------------------------------------------------------

std::string FoglioNodo::NomeBulloni() const {
    return std::to_string(2 * g_.lato.file.size()) + " M" + Mm(g_.lato.d);
}

std::string FoglioNodo::NomeClasse() const { return "cl. " + g_.lato.classe; }

std::string FoglioNodo::NomeSaldatura() const { return "aw " + Mm(g_.lato.aw); }

/// Beyond the heads of the bolts and their axes.
double FoglioNodo::InizioRichiami(double a) const {
    const LatoNodo& l = g_.lato;
    return l.xTrave() + l.testa + std::max(distacco * a, l.d / 2 + stacco * a);
}

double FoglioNodo::LarghezzaRichiami() const {
    return std::max({Larghezza(NomeBulloni()), Larghezza(NomeClasse()), Larghezza(NomeSaldatura())});
}

double FoglioNodo::RigaSaldatura(double a) const {
    const double h = g_.lato.trave.h;
    return std::min(-h - g_.lato.Fila(FilaGiunto::Interna), -h / 2 - 1.5 * a);
}

double FoglioNodo::SottoTrave(int riga, double a) const {
    return g_.lato.Fondo() - (fuoriTrave + righe * riga) * a;
}

/// Lines under the beam that is meant: bolts, weld, its name, as far as they have no room inside.
int FoglioNodo::RigheSotto(double a) const {
    const bool richiami = !Schermo() && g_.lato.Piastra() && !RichiamiDentro(a);
    return (richiami ? 2 : 0) + (NomeDentro(g_.lato, a) ? 0 : 1);
}

/// Three lines between the flanges, before the end of the beam.
bool FoglioNodo::RichiamiDentro(double a) const {
    const LatoNodo& l = g_.lato;
    const double alta = l.Fila(FilaGiunto::Interna);
    const double bassa = RigaSaldatura(a);
    return InizioRichiami(a) + stacco * a + LarghezzaRichiami() < Fine(l) - a &&
           alta + 0.6 * a < -l.trave.tf && alta - bassa > 2 * (righe - 0.15) * a &&
           bassa - 0.6 * a > -l.trave.h + l.trave.tf;
}

/// Head on the plate, nut and washer inside the column, the shank hidden between them.
void FoglioNodo::Bullone(const TracciaVista& v, const LatoNodo& lato, double y) {
    const double e = lato.larghezza / 2;
    const double r = lato.d / 2;
    const double dentro = lato.xColonna - lato.tfColonna;
    const double rondella = dentro - lato.spessoreRondella;
    const double dado = rondella - lato.dado;
    const double testa = lato.xTrave();
    const double cima = testa + lato.testa;
    TracciaVista::Contorno();
    for (const CampoNodo& c :
         {CampoNodo{rondella, y - lato.rondella / 2, dentro, y + lato.rondella / 2},
          CampoNodo{dado, y - e, rondella, y + e}, CampoNodo{testa, y - e, cima, y + e}}) {
        v.Area(c.Contorno(), Fondo::Sfondo);
        v.Area(c.Contorno(), Fondo::Tenue);
        v.Campo(c);
    }
    const double fine = dado - sporgenzaBullone * lato.d;
    v.Spezzata(std::array<PuntoNodo, 4>{{{dado, y - r}, {fine, y - r}, {fine, y + r}, {dado, y + r}}}, false);
    TracciaVista::Fine();
    for (const double s : {-e / 2, e / 2}) { // edges of the hexagon
        v.Linea({dado, y + s}, {rondella, y + s});
        v.Linea({testa, y + s}, {cima, y + s});
    }
    TracciaVista::Fine(TipoLinea::Tratteggiata);
    for (const double s : {-r, r})
        v.Linea({dentro, y + s}, {testa, y + s});
    TracciaVista::Fine(TipoLinea::TrattoPunto);
    v.Linea({fine - r, y}, {cima + r, y});
}

void FoglioNodo::Saldature(const TracciaVista& v, const LatoNodo& lato) {
    for (const auto& cordone : lato.Cordoni()) {
        TracciaVista::Contorno();
        v.Area(cordone, Fondo::Pieno);
    }
    if (!lato.Piastra() || !(lato.aw > 0))
        return;
    const double x = lato.xTrave() + lato.aw * std::numbers::sqrt2;
    const double tolto = lato.trave.tf + lato.Af * std::numbers::sqrt2;
    TracciaVista::Fine();
    v.Linea({x, -tolto}, {x, -lato.trave.h + tolto});
}

void FoglioNodo::Irrigidimenti(const TracciaVista& v) const {
    for (const ContornoNodo& contorno : g_.irrigidimenti) {
        v.Area(contorno, Fondo::Sfondo);
        v.Area(contorno, Fondo::Tenue);
        TracciaVista::Contorno();
        v.Spezzata(contorno, true);
    }
}

void FoglioNodo::QuoteLaterali(const TracciaVista& v) const {
    const double a = v.a();
    const CampoNodo m = g_.Laterale();
    const LatoNodo& l = g_.lato;
    if (l.Piastra()) {
        const double y = std::max(l.Cima() + distacco * a, altezzaSpessore * a);
        v.Spessore(l.xColonna, l.xTrave(), l.alto, y, Quota(0, l.tf, "tf", "tf"));
    }
    if (Schermo())
        return;
    const ProfiloNodo& t = l.trave;
    if (t.Presente())
        v.Verticali(m.x2, m.x2 + primaQuota * a, std::array{QuotaNodo{-t.h, 0, Mm(t.h)}});
    if (g_.altro.trave.Presente())
        v.Verticali(m.x1, m.x1 - primaQuota * a,
                    std::array{QuotaNodo{-g_.altro.trave.h, 0, Mm(g_.altro.trave.h)}});
    const double x = g_.colonna.h / 2;
    if (g_.colonna.Presente())
        v.Orizzontali(m.y1, m.y1 - primaQuota * a, std::array{QuotaNodo{-x, x, Mm(2 * x)}});
}

/// Bolts and welds are named inside the beam, the rows and the middle leave room there; where they do not,
/// under it.
void FoglioNodo::Richiami(const TracciaVista& v) const {
    const LatoNodo& l = g_.lato;
    const double a = v.a();
    RichiamiIrrigidimenti(v);
    if (!l.Piastra())
        return;
    const bool dentro = RichiamiDentro(a);
    const double x = InizioRichiami(a);
    if (l.Bulloni()) {
        const double fila = l.Fila(FilaGiunto::Interna);
        const double y = dentro ? fila : SottoTrave(0, a);
        v.Richiamo({l.xTrave() + l.testa, fila}, {x, y}, NomeBulloni() + (dentro ? "" : " " + NomeClasse()));
        if (dentro)
            v.Testo({x + stacco * a, y - righe * a}, NomeClasse(), Allinea::Sinistra);
    }
    if (l.aw > 0) {
        const double basso = dentro ? RigaSaldatura(a) : SottoTrave(1, a);
        v.Richiamo({l.xTrave() + l.aw, dentro ? basso : -l.trave.h / 2}, {x, basso}, NomeSaldatura());
    }
    const auto cordoni = l.Cordoni();
    if (cordoni.empty())
        return;
    const PuntoNodo c{(cordoni[0][0].x + cordoni[0][1].x) / 2, (cordoni[0][0].y + cordoni[0][2].y) / 2};
    v.Richiamo(c, {x, 1.8 * a}, "af " + Mm(l.Af));
}

void FoglioNodo::RichiamiIrrigidimenti(const TracciaVista& v) const {
    if (g_.irrigidimenti.empty())
        return;
    const double a = v.a();
    const std::string misure = Mm(g_.larghezzaIrr) + " x " + Mm(g_.spessoreIrr) + " x ";
    const double x = -g_.colonna.h / 2 - distacco * a;
    const double fondo = std::min(g_.lato.Fondo(), g_.altro.Fondo());
    const double cima = std::max(g_.lato.Cima(), g_.altro.Cima());
    const bool nomeSopra = g_.altro.trave.Presente() && !NomeDentro(g_.altro, a);
    const double sopraNome = nomeSopra ? (fuoriTrave + righe) * a : 0;
    const auto nomina = [&](const ContornoNodo& c, double y, double verso, double lunghezza) {
        const PuntoNodo da{(c[2].x + 3 * c[1].x) / 4, (c[2].y + 3 * c[1].y) / 4};
        std::vector<std::string> testi{"2 piatti", misure + Mm(lunghezza)};
        if (g_.golaIrr > 0)
            testi.push_back("a " + Mm(g_.golaIrr));
        if (verso > 0)
            std::reverse(testi.begin(), testi.end());
        v.Richiamo(da, {x, y}, testi[0]);
        for (std::size_t i = 1; i < testi.size(); ++i)
            v.Testo({x - 0.4 * a, y + verso * righe * a * static_cast<double>(i)}, testi[i], Allinea::Destra);
    };
    nomina(g_.irrigidimenti[0], fondo - distacco * a, -1, g_.lunghezzaIrr);
    if (g_.irrigidimenti.size() > 1)
        nomina(g_.irrigidimenti[1], std::max(cima + distacco * a, sopraNome), 1, g_.lunghezzaSup);
}

// Front view --------------------------------------------------------------------------------------------

void FoglioNodo::Prospetto() const {
    if (!tavola_ || !g_.lato.trave.Presente())
        return;
    const TracciaVista v = Frontale();
    if (g_.colonna.Presente())
        AlaColonna(v);
    if (g_.lato.Piastra() && g_.lato.bf > 0)
        Piastra(v);
    if (g_.lato.trave.Presente())
        SezioneTrave(v);
    if (g_.lato.Forata())
        Fori(v);
    QuoteFrontali(v);
    QuoteOrizzontali(v);
    Evidenzia(v, true);
}

/// The flange of the column lies in front of the plate: as an adjacent part, ISO 128-2 line type 05.1.
void FoglioNodo::AlaColonna(const TracciaVista& v) const {
    const CampoNodo m = g_.Prospetto();
    const double x = g_.colonna.b / 2;
    TracciaVista::Fine(TipoLinea::TrattoPuntoCorto);
    for (const double s : {-x, x})
        v.Linea({s, m.y1}, {s, m.y2});
    if (!g_.sopra)
        v.Linea({-x, m.y2}, {x, m.y2});
}

void FoglioNodo::Piastra(const TracciaVista& v) const {
    const CampoNodo p{-g_.lato.bf / 2, g_.lato.basso, g_.lato.bf / 2, g_.lato.alto};
    v.Area(p.Contorno(), Fondo::Tenue);
    TracciaVista::Contorno();
    v.Campo(p);
}

/// Behind the plate, so hidden; in sight where there is no plate yet.
void FoglioNodo::SezioneTrave(const TracciaVista& v) const {
    const ProfiloNodo& t = g_.lato.trave;
    const double b = t.b / 2;
    const double w = t.tw / 2;
    const std::array<PuntoNodo, 12> contorno{{{-b, 0},
                                              {b, 0},
                                              {b, -t.tf},
                                              {w, -t.tf},
                                              {w, -t.h + t.tf},
                                              {b, -t.h + t.tf},
                                              {b, -t.h},
                                              {-b, -t.h},
                                              {-b, -t.h + t.tf},
                                              {-w, -t.h + t.tf},
                                              {-w, -t.tf},
                                              {-b, -t.tf}}};
    if (g_.lato.Piastra() && g_.lato.bf > 0)
        TracciaVista::Fine(TipoLinea::Tratteggiata);
    else
        TracciaVista::Contorno();
    PennaPlt(pennaInchiostro);
    v.Spezzata(contorno, true);
}

void FoglioNodo::Fori(const TracciaVista& v) const {
    const LatoNodo& l = g_.lato;
    const double braccio = assiForo * l.d0;
    for (const FilaDisegnata& fila : l.file)
        for (const double x : {-l.xFori, l.xFori}) {
            TracciaVista::Contorno();
            v.Cerchio({x, fila.y}, l.d0 / 2);
            TracciaVista::Fine();
            v.Linea({x - braccio, fila.y}, {x + braccio, fila.y});
            v.Linea({x, fila.y - braccio}, {x, fila.y + braccio});
        }
}

QuotaNodo FoglioNodo::Quota(double da, double a, const char* campo, const char* nome) const {
    QuotaNodo q{da, a, Mm(std::abs(a - da))};
    if (Schermo() && *nome != '\0')
        q.testo = std::string(nome) + " " + q.testo;
    q.rosso = *campo != '\0' && evidenza_.parametro == campo;
    if (q.rosso && !evidenza_.limite.empty())
        q.testo += " (" + evidenza_.limite + ")";
    return q;
}

void FoglioNodo::Aggiunge(std::vector<QuotaNodo>& catena, const QuotaNodo& quota) {
    constexpr double visibile = 0.05; // mm
    if (std::abs(quota.a - quota.da) > visibile)
        catena.push_back(quota);
}

/// The holes, from edge to edge of the plate.
std::vector<QuotaNodo> FoglioNodo::QuoteFori() const {
    const LatoNodo& l = g_.lato;
    std::vector<QuotaNodo> catena;
    if (!l.Bulloni())
        return catena;
    const double interna = l.Fila(FilaGiunto::Interna);
    const double bassa = l.file.back().y;
    if (l.nf == 2 && l.dX > 0) {
        const double esterna = l.Fila(FilaGiunto::Esterna);
        Aggiunge(catena, Quota(esterna, l.alto, "ex", "ex"));
        Aggiunge(catena, Quota(interna, esterna, "", ""));
    } else {
        Aggiunge(catena, Quota(interna, l.alto, "", ""));
    }
    Aggiunge(catena, Quota(bassa, interna, "", "p"));
    Aggiunge(catena, Quota(l.basso, bassa, "", ""));
    return catena;
}

/// The holes and the edge of the plate from the flanges of the beam.
std::vector<QuotaNodo> FoglioNodo::QuoteDallaTrave() const {
    const LatoNodo& l = g_.lato;
    const ProfiloNodo& t = l.trave;
    std::vector<QuotaNodo> catena;
    if (evidenza_.parametro == "L" && l.nf == 2)
        Aggiunge(catena, Quota(0, l.alto, "L", "h'"));
    else if (l.Bulloni())
        Aggiunge(catena, Quota(0, l.dX, "dX", "d2"));
    if (l.Bulloni())
        Aggiunge(catena, Quota(-t.tf, l.Fila(FilaGiunto::Interna), "d2", "d1"));
    Aggiunge(catena, Quota(-t.h, -t.h - l.u, "u", "u"));
    return catena;
}

/// At the right the holes and the whole plate, at the left the distances from the beam.
void FoglioNodo::QuoteFrontali(const TracciaVista& v) const {
    const LatoNodo& l = g_.lato;
    if (!l.Piastra() || !(l.bf > 0))
        return;
    const double bordo = l.bf / 2;
    const double fuori = g_.Prospetto().x2 + primaQuota * v.a();
    v.Verticali(bordo, fuori, QuoteFori());
    v.Verticali(bordo, fuori + secondaCatena * v.a(), std::array{Quota(l.basso, l.alto, "hf", "hf")});
    v.Verticali(-bordo, -fuori, QuoteDallaTrave());
}

void FoglioNodo::QuoteOrizzontali(const TracciaVista& v) const {
    const LatoNodo& l = g_.lato;
    const double b = l.bf / 2;
    const double y = g_.Prospetto().y1;
    double livello = y - primaQuota * v.a();
    if (l.Forata()) {
        v.Orizzontali(l.basso, livello,
                      std::array{Quota(-b, -l.xFori, "ef", "ef"), Quota(-l.xFori, l.xFori, "w", "w"),
                                 Quota(l.xFori, b, "", "")});
        livello -= passoQuote * v.a();
    }
    if (l.Piastra() && l.bf > 0)
        v.Orizzontali(l.basso, livello, std::array{Quota(-b, b, "bf", "bf")});
    const double c = g_.colonna.b / 2;
    const double cima = g_.Prospetto().y2;
    if (!Schermo() && g_.colonna.Presente())
        v.Orizzontali(cima, cima + primaQuota * v.a(), std::array{QuotaNodo{-c, c, Mm(2 * c)}});
}

void FoglioNodo::Evidenzia(const TracciaVista& v, bool frontale) const {
    for (const ComponenteFila& quale : evidenza_.governano)
        for (const ContornoNodo& zona : frontale ? g_.ZoneFrontali(quale) : g_.ZoneLaterali(quale)) {
            v.Tratteggia(zona, pennaGoverna);
            TracciaVista::Rossa();
            v.Spezzata(zona, true);
        }
}

} // namespace sagomi
