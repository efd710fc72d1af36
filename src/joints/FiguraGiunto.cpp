#include "joints/FiguraGiunto.h"

#include <cmath>
#include <utility>

#include "drawing/Grafica.h"
#include "frame/Numeri.h"
#include "joints/Nodo.h"

namespace sagomi {

namespace {

std::string Cifre(double valore) {
    std::string testo = FormatoCifre(4, valore);
    return testo.erase(0, testo.find_first_not_of(' '));
}

std::string Unite(const std::vector<std::string>& nomi) {
    std::string testo;
    for (const std::string& nome : nomi)
        testo += (testo.empty() ? "" : ", ") + nome;
    return testo;
}

bool DueTravi(const Nodo& nodo) { return nodo.Tipovie == nodoCroce || nodo.Tipovie == nodoCroceSenzaColonna; }

const Giunto* Quale(const Nodo& nodo, const Giunto* giunto) {
    return giunto != nullptr ? giunto : nodo.ConnessioneCorrente.get();
}

std::string Misure(const LatoNodo& l) {
    return Cifre(l.tf) + " x " + Cifre(l.bf) + " x " + Cifre(l.alto - l.basso);
}

/// What is missing: sections a line each, parameters in one.
void Mancanze(std::vector<std::string>& righe, const GeometriaNodo& geo) {
    const std::vector<std::string> mancano = geo.Mancanze();
    if (mancano.empty())
        return;
    const bool parametri =
        geo.colonna.Presente() && geo.lato.trave.Presente() && (!geo.dueTravi || geo.altro.trave.Presente());
    if (parametri)
        righe.push_back((mancano.size() == 1 ? "Manca " : "Mancano ") + Unite(mancano));
    else
        for (const std::string& nome : mancano)
            righe.push_back("Manca " + nome);
}

/// What is known, a line each.
std::vector<std::string> Righe(const GeometriaNodo& geo, const Giunto* g) {
    std::vector<std::string> righe;
    if (geo.colonna.Presente())
        righe.push_back("Colonna " + geo.colonna.nome);
    if (geo.lato.trave.Presente())
        righe.push_back("Trave " + geo.lato.trave.nome);
    const LatoNodo& l = geo.lato;
    if (l.Piastra() && l.bf > 0)
        righe.push_back("Flangia " + Misure(l));
    if (l.Bulloni())
        righe.push_back("Bulloni M" + Cifre(l.d) + " " + l.classe);
    if (l.Piastra() && l.Af > 0)
        righe.push_back("af " + Cifre(l.Af) + "   aw " + Cifre(l.aw));
    Mancanze(righe, geo);
    if (g != nullptr && g->Acquisito)
        righe.push_back("Mj,Rd " + Cifre(g->MplRdGIUNTO) + " kNm");
    return righe;
}

/// What the screen calls a field.
std::string NomeParametro(const std::string& campo) {
    if (campo == "d2")
        return "d1";
    if (campo == "dX")
        return "d2";
    return campo == "L" ? "h'" : campo;
}

/// Whether the picture has a dimension of a field.
bool Quotata(const LatoNodo& l, const std::string& campo) {
    if (campo == "tf")
        return l.Piastra();
    if (!l.Piastra() || !(l.bf > 0))
        return false;
    if (campo == "bf")
        return true;
    if (campo == "ef")
        return l.Forata();
    if (campo == "d2")
        return l.Bulloni();
    if (l.nf != 2)
        return false;
    if (campo == "u" || campo == "L")
        return campo == "u" ? l.u > 0 : l.alto > 0;
    return l.Bulloni() && l.dX > 0 && (campo == "ex" ? l.ex > 0 : campo == "dX");
}

/// A limit that no dimension can show is told over the picture.
EvidenzaGiunto ConLimite(EvidenzaGiunto e, const LatoNodo& l) {
    if (!e.parametro.empty() && !Quotata(l, e.parametro))
        e.testo += (e.testo.empty() ? "" : "; ") + NomeParametro(e.parametro) + ": " + e.limite;
    return e;
}

void Vuoto() {
    constexpr std::string_view testo = "Nessun sagomo assegnato";
    Superficie* s = SuperficieInForza();
    if (s == nullptr || !s->Limitata())
        return;
    s->Scale();
    s->Predefiniti();
    s->ScaleMode = Superficie::scalaUtente;
    PennaPlt(pennaInchiostro);
    TestoPlt(s->ScaleWidth / 2, s->ScaleHeight / 2, s->TextHeight("0"), testo, Allinea::Centro, Posa::Mezzo);
}

void Cornice(const std::vector<ZonaNodo>& zone, const ComponenteFila& scelto) {
    for (const ZonaNodo& z : zone) {
        if (z.quale.componente != scelto.componente)
            continue;
        const TracciaVista v(0, 0, 1, 1, 1);
        PennaPlt(pennaInchiostro);
        LineaStilePlt(2 * spessoreFine, TipoLinea::Tratteggiata, Estremi::Piatti);
        v.Spezzata(z.contorno, true);
    }
}

void Ricorda(TracciatoNodo& t, const FoglioNodo& foglio) {
    t.zone = foglio.Zone();
    if (const Superficie* s = SuperficieInForza(); s != nullptr) {
        t.sinistra = s->ScaleLeft;
        t.alto = s->ScaleTop;
        t.larghezza = s->ScaleWidth;
        t.altezza = s->ScaleHeight;
    }
    if (t.scelto.componente != ComponenteGiunto::Nessuno)
        Cornice(t.zone, t.scelto);
}

} // namespace

Disegno FiguraGiunto(const Nodo& nodo, const Giunto* giunto, const EvidenzaGiunto& evidenza,
                     const std::shared_ptr<TracciatoNodo>& tracciato) {
    const GeometriaNodo geometria(nodo, giunto, DueTravi(nodo));
    const auto righe = Righe(geometria, Quale(nodo, giunto));
    Disegno disegno{geometria.destro ? "Giunto destro" : "Giunto sinistro", {}, {420, 520}, {300, 320}};
    disegno.PlottaInOggetto = [geometria, evidenza = ConLimite(evidenza, geometria.lato), righe,
                               tracciato](Superficie* oggetto, std::string_view) {
        const bool conta = tracciato && tracciato->attivo;
        if (conta)
            tracciato->zone.clear();
        if (geometria.Vuota()) {
            Vuoto();
            return;
        }
        FoglioNodo foglio(geometria, UsoFoglio::Schermo, evidenza, righe);
        foglio.Dispone(oggetto, Dispositivo);
        foglio.VistaLaterale();
        foglio.Prospetto();
        foglio.Testi();
        if (conta)
            Ricorda(*tracciato, foglio);
    };
    return disegno;
}

std::string DescrizioneGiunto(const Nodo& nodo, const Giunto* giunto, const EvidenzaGiunto& evidenza) {
    const GeometriaNodo geometria(nodo, giunto, DueTravi(nodo));
    if (geometria.Vuota())
        return "Nessun sagomo assegnato.";
    std::string testo =
        "Vista laterale e prospetto della flangia. " + Unite(Righe(geometria, Quale(nodo, giunto))) + ".";
    if (!evidenza.testo.empty())
        testo += " " + evidenza.testo + ".";
    if (!evidenza.parametro.empty())
        testo += " Fuori limite: " + NomeParametro(evidenza.parametro) + " " + evidenza.limite + ".";
    return testo;
}

} // namespace sagomi
