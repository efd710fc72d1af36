#include "composite/DisegniTraveMista.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "composite/AcciaioCls.h"
#include "drawing/Quadro.h"
#include "frame/Numeri.h"
#include "frame/Unita.h"
#include "sections/SezioneDoppioT.h"

namespace sagomi {

namespace {

using Punto = PuntoQuadro;

std::string Dato(const char* nome, Singolo valore) { return std::string(nome) + " " + TestoPiano(valore); }

// ---- deck

/// The outline of slab and ribs from one full rib to the next but one, the middle one on the beam.
class TavolaLamiera {
public:
    TavolaLamiera(const Quadro& quadro, const AcciaioCls& t) : q_(quadro), t_(t), testo_(quadro.Riga()) {
        // Ribs across the beam are all alike.
        if (t_.TipoSoletta == nervatureTrasversali)
            t_.b0t = t_.bb;
        const double r = (t_.iNervature - t_.bs - t_.bb) / 2;
        t_.beff = t_.b0t + 2 * (2 * r + t_.bs) + 2 * t_.bb;
        const CampoQuadro campo = q_.Tutto().Dentro(testo_, testo_, testo_ * 5, testo_ * 3.4);
        scala_ = std::min(campo.larghezza / t_.beff, campo.altezza / t_.hc);
        origine_ = campo.Centro() + Punto{0, t_.hc / 2 * scala_};
        q_.VeraGrandezza(scala_);
    }

    void Traccia() const {
        Contorno();
        Larghezze();
        Altezze();
    }

private:
    [[nodiscard]] Punto In(double x, double y) const { return origine_ + Punto{x, -y} * scala_; }

    void Contorno() const {
        std::vector<double> xs;
        std::vector<double> ys;
        t_.CoordinateGrecata(xs, ys);
        xs.push_back(t_.beff / 2);
        ys.push_back(t_.hc);
        std::vector<Punto> punti;
        for (std::size_t i = 0; i < xs.size(); ++i)
            punti.push_back(In(xs[i], ys[i]));
        for (std::size_t i = xs.size(); i-- > 0;)
            punti.push_back(In(-xs[i], ys[i]));
        Quadro::Area(punti, Fondo::Tenue);
        q_.Contorno();
        Quadro::Spezzata(punti, true);
    }

    /// Below: lower widths, then the spacing; the upper width above its void.
    void Larghezze() const {
        const double meta = t_.b0t / 2;
        const double r = (t_.iNervature - t_.bs - t_.bb) / 2;
        const bool parallele = t_.TipoSoletta == nervatureParallele;
        Orizzontale(-meta, meta, 1, parallele ? Dato("b0t", t_.b0t) : Dato("bb", t_.bb));
        if (parallele)
            Orizzontale(t_.beff / 2 - t_.bb, t_.beff / 2, 1, Dato("bb", t_.bb));
        Orizzontale(meta, meta + t_.iNervature, 2.2, Dato("i", t_.iNervature));
        const Punto vuoto = In(meta + r + t_.bs / 2, t_.ha);
        q_.Testo(vuoto - Punto{0, 2}, Dato("bs", t_.bs), Allinea::Centro, Posa::Basso);
    }

    void Orizzontale(double x1, double x2, double sotto, const std::string& testo) const {
        const double y = origine_.y + sotto * testo_ - testo_ * 0.5;
        q_.Quota({In(x1, 0).x, y}, {In(x2, 0).x, y});
        q_.Testo({(In(x1, 0).x + In(x2, 0).x) / 2, y + 1}, testo, Allinea::Centro, Posa::Alto);
    }

    void Altezze() const {
        const double destra = In(t_.beff / 2, 0).x;
        Verticale(destra + testo_ * 0.5, t_.ha, Dato("ha", t_.ha), t_.ha / 2);
        Verticale(destra + testo_, t_.hc, Dato("hc", t_.hc), (t_.ha + t_.hc) / 2);
    }

    void Verticale(double x, double alto, const std::string& testo, double dove) const {
        q_.Quota({x, In(0, 0).y}, {x, In(0, alto).y});
        q_.Testo({origine_.x + t_.beff / 2 * scala_ + testo_ * 1.4, In(0, dove).y}, testo, Allinea::Sinistra,
                 Posa::Mezzo);
    }

    const Quadro& q_;
    AcciaioCls t_;
    double testo_;
    double scala_ = 1;
    Punto origine_;
};

/// Why there is no picture; empty where there is one.
std::string Mancanza(const AcciaioCls& t) {
    if (t.TipoSoletta == solettaPiena)
        return "soletta piena";
    const std::array<double, 3> misure{t.hc, t.iNervature, t.b0t};
    if (!Disegnabili(misure) || !(t.ha > 0) || t.bb < 0 || t.bs < 0 || t.b0t < 0 || !(t.bb + t.bs > 0))
        return "dati della lamiera incompleti";
    if (t.iNervature < t.bb + t.bs)
        return "interasse < bb + bs";
    return t.hc > t.ha ? "" : "hc <= ha";
}

// ---- studs

class TavolaConnettori {
public:
    TavolaConnettori(const Quadro& quadro, const AcciaioCls& t, int n)
        : q_(quadro), t_(t), n_(n),
          campo_(q_.Tutto().Dentro(quadro.Riga(), quadro.Riga() * 0.7, quadro.Riga(), quadro.Riga() * 2)) {}

    void Traccia() const {
        Soletta();
        Trave();
        if (n_ >= 2)
            Pioli();
        Misure();
    }

private:
    // Shares of the height of the picture.
    static constexpr double fondoSoletta = 0.4;
    static constexpr double fondoTrave = 0.9;
    static constexpr double altezzaPiolo = 0.25;
    static constexpr double ala = 0.05;

    [[nodiscard]] Punto In(double x, double y) const {
        return {campo_.sinistra + x * campo_.larghezza, campo_.alto + y * campo_.altezza};
    }

    [[nodiscard]] std::array<Punto, 4> Rettangolo(double y1, double y2) const {
        return {In(0, y1), In(1, y1), In(1, y2), In(0, y2)};
    }

    void Soletta() const {
        Quadro::Area(Rettangolo(0, fondoSoletta), Fondo::Tenue);
        q_.Fine();
        Quadro::Spezzata(Rettangolo(0, fondoSoletta), true);
    }

    void Trave() const {
        q_.Contorno();
        Quadro::Spezzata(Rettangolo(fondoSoletta, fondoTrave), true);
        q_.Fine();
        for (const double y : {fondoSoletta + ala, fondoTrave - ala})
            Quadro::Linea(In(0, y), In(1, y));
    }

    /// Each stud a stem with its head, each pair two; closer than can be seen, as many as can.
    void Pioli() const {
        constexpr double minima = 6; // units of the picture between two places
        const bool coppie = t_.Nr == 2;
        const int posti = std::max(coppie ? n_ / 2 : n_, 1);
        const int visibili = std::max(static_cast<int>(campo_.larghezza / minima), 2);
        const double luce = m_a_mm(t_.Luce);
        const bool aPasso = posti <= visibili && t_.Passo > 0 && luce > 0;
        const int disegnati = std::min(posti, visibili);
        const double passo = aPasso ? t_.Passo / luce : 1.0 / std::max(disegnati - 1, 1);
        q_.Contorno();
        for (int i = 0; i < disegnati; ++i) {
            const Punto piede = In(std::min(i * passo, 1.0), fondoSoletta);
            for (const double dx : coppie ? std::vector{-1.5, 1.5} : std::vector{0.0})
                Piolo(piede + Punto{dx, 0});
        }
    }

    void Piolo(Punto piede) const {
        const Punto testa = piede - Punto{0, altezzaPiolo * campo_.altezza};
        Quadro::Linea(piede, testa);
        Quadro::Linea(testa - Punto{1, 0}, testa + Punto{1, 0});
    }

    void Misure() const {
        const double y = In(0, 1).y + q_.Riga() * 0.4;
        q_.Quota({In(0, 0).x, y}, {In(1, 0).x, y});
        q_.Testo({In(0.5, 0).x, y + 2}, Scritta(), Allinea::Centro, Posa::Alto);
    }

    [[nodiscard]] std::string Scritta() const {
        std::string testo = "L = " + TestoPiano(t_.Luce) + " m";
        if (n_ < 2)
            return testo;
        testo = "n = " + std::to_string(n_) + ", " + testo;
        return t_.Passo > 0 ? testo + ", passo " + std::to_string(static_cast<int>(t_.Passo)) + " mm" : testo;
    }

    const Quadro& q_;
    const AcciaioCls& t_;
    int n_;
    CampoQuadro campo_;
};

} // namespace

Disegno DisegnoLamiera(const AcciaioCls& trave) {
    Disegno disegno{"Lamiera", {}, {300, 130}, {220, 100}};
    disegno.PlottaInOggetto = [trave, misura = disegno.misura](Superficie* oggetto, std::string_view) {
        const Quadro quadro(oggetto, Dispositivo, misura);
        const std::string mancanza = Mancanza(trave);
        if (mancanza.empty())
            TavolaLamiera(quadro, trave).Traccia();
        else
            quadro.Testo(quadro.Tutto().Centro(), mancanza, Allinea::Centro, Posa::Mezzo);
    };
    return disegno;
}

Disegno DisegnoConnettori(const AcciaioCls& trave, int n) {
    Disegno disegno{"Connettori", {}, {420, 110}, {260, 90}};
    disegno.PlottaInOggetto = [trave, n, misura = disegno.misura](Superficie* oggetto, std::string_view) {
        const Quadro quadro(oggetto, Dispositivo, misura);
        TavolaConnettori(quadro, trave, n).Traccia();
    };
    return disegno;
}

} // namespace sagomi
