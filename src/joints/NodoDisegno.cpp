// The drawing of a node's current joint.
#include <cmath>

#include "drawing/Grafica.h"
#include "frame/Numeri.h"
#include "joints/FoglioNodo.h"
#include "joints/MascheraGiunti.h"
#include "joints/Nodo.h"

namespace sagomi {

namespace {

/// The lines of data. A quantity that is not there stands without a value.
class Colonna {
public:
    void Riga(std::string testo) { righe.push_back(std::move(testo)); }
    void Dato(const char* nome, double valore) {
        righe.push_back(nome + TestoPiano(std::round(valore * 10) / 10));
    }
    void DatoSe(const char* nome, double valore, bool noto) { noto ? Dato(nome, valore) : Riga(nome); }
    std::vector<std::string> righe;
};

void Bulloni(Colonna& c, const Giunto& g) {
    c.Riga("Bulloni [mm]");
    c.Dato("d = ", g.Diam);
    c.Dato("d0 = ", g.d0);
    c.Dato("dw = ", g.rond_d2);
    c.Dato("lb = ", g.lb);
    c.Riga("Saldature trave  [mm]");
    c.Dato("Ala: af = ", g.Af);
    c.Dato("Anima: aw = ", g.aw);
}

/// What follows from the parameters stands without a value while one of them is missing.
void Flangia(Colonna& c, const Giunto& g) {
    const bool due = g.nf == 2;
    const bool given = g.tf != 0 && g.bf != 0 && g.ef != 0 && g.d2 != 0;
    const auto derived = [&](const char* name, double value) { c.DatoSe(name, value, given); };
    c.Riga("Flangia  [mm]");
    c.Dato("Spessore: tf = ", g.tf);
    c.Dato("Larghezza: bf = ", g.bf);
    c.Dato("Distanza orizzontale del foro dal bordo (lato flangia): ef = ", g.ef);
    derived("Passo orizzontale fori: w = ", g.w);
    derived("Passo verticale fori interni: p = ", g.pint);
    derived("Distanza orizzontale del foro dal bordo (lato colonna): ec = ", g.ec);
    derived("Distanza orizzontale del foro dall'anima della colonna: mc = ", g.mc);
    derived("Distanza orizzontale del foro dall'anima della trave: mf = ", g.mf);
    derived("Distanza verticale del foro dall'ala della trave: m1 = ", g.m2);
    c.DatoSe("Distanza verticale del foro dall'ala della trave: m2 = ", g.mx, due && given);
    c.DatoSe("Distanza verticale del foro dal bordo della flangia: ex = ", g.ex, due);
    c.DatoSe("Distanza del bordo inferiore della flangia dall'ala della trave: u = ", g.u, due);
    derived("Altezza della flangia: hf = ", g.hf);
}

std::vector<std::string> Righe(const GeometriaNodo& geometria, const Giunto& g, std::string_view uscita) {
    Colonna c;
    c.Riga("Colonna: " + geometria.colonna.nome + " ");
    c.Riga("Trave: " + geometria.lato.trave.nome);
    if (uscita == dispositivoDwg)
        c.Riga("Scala 1:1");
    Bulloni(c, g);
    Flangia(c, g);
    return c.righe;
}

} // namespace

void Nodo::PltInizializza(Superficie* oggetto, const MascheraGiunti& form) {
    foglio_.reset();
    const GeometriaNodo geometria(*this, nullptr, form.Optvie == 0 || form.Optvie == 1);
    if (!ConnessioneCorrente || geometria.Vuota())
        return;
    foglio_ = std::make_shared<FoglioNodo>(geometria, UsoFoglio::Officina, EvidenzaGiunto{},
                                           Righe(geometria, *ConnessioneCorrente, Uscita));
    foglio_->Dispone(oggetto, Uscita);
}

void Nodo::PltInizializza() { PltInizializza(OggettoGrafico, {Tipovie}); }

void Nodo::PlottaInOggetto(Superficie* oggetto, const MascheraGiunti& form) {
    PltInizializza(oggetto, form);
    PlottaGiuntoFlangiato();
    PlottaProspettoGiunto();
    foglio_.reset();
}

void Nodo::PlottaGiuntoFlangiato() {
    if (!foglio_)
        return;
    foglio_->VistaLaterale();
    ScriviDati();
}

void Nodo::PlottaProspettoGiunto() {
    if (!foglio_)
        return;
    foglio_->Prospetto();
    ScriviDati();
}

void Nodo::ScriviDati() {
    if (foglio_)
        foglio_->Testi();
}

} // namespace sagomi
