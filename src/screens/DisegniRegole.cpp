#include "screens/DisegniRegole.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <initializer_list>
#include <numbers>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "drawing/Quadro.h"
#include "frame/Generale.h"
#include "frame/Numeri.h"
#include "sections/Eurocod3.h"

namespace sagomi {

namespace {

using Punto = PuntoQuadro;

/// Two axes from 0 to a round value with a grid, and curves between them.
class Assi {
public:
    Assi(const Quadro& quadro, double xMax, double yMax) : q_(quadro), xMax_(xMax), yMax_(yMax) {
        const double riga = quadro.Riga();
        campo_ = quadro.Tutto().Dentro(quadro.LarghezzaTesto("0000"), 1.6 * riga, riga, 2.4 * riga);
    }

    void Reticolo(double dx, double dy) const {
        for (double x = 0; x <= xMax_ * 1.0001; x += dx) {
            q_.Fine();
            Quadro::Linea(In(x, 0), In(x, yMax_));
            q_.Testo(In(x, 0) + Punto{0, 3}, TestoPiano(std::round(x * 100) / 100), Allinea::Centro,
                     Posa::Alto);
        }
        for (double y = 0; y <= yMax_ * 1.0001; y += dy) {
            q_.Fine();
            Quadro::Linea(In(0, y), In(xMax_, y));
            q_.Testo(In(0, y) - Punto{4, 0}, TestoPiano(std::round(y * 100) / 100), Allinea::Destra,
                     Posa::Mezzo);
        }
    }

    void Nomi(std::string_view x, std::string_view y) const {
        q_.Testo({campo_.Destra(), campo_.Basso() + 2.3 * q_.Riga()}, x, Allinea::Destra, Posa::Basso);
        q_.Testo({2, 2}, y, Allinea::Sinistra, Posa::Alto);
    }

    void Curva(const std::function<double(double)>& f, TipoLinea tipo = TipoLinea::Continua) const {
        constexpr int passi = 120;
        std::vector<Punto> punti;
        for (int i = 0; i <= passi; ++i)
            punti.push_back(In(xMax_ * i / passi, f(xMax_ * i / passi)));
        PennaPlt(pennaInchiostro);
        LineaStilePlt(spessoreContorno, tipo, Estremi::Piatti);
        Quadro::Spezzata(punti);
    }

    /// The name of a curve, on a ground of its own.
    void Scritta(double x, double y, std::string_view testo) const {
        const Punto p = In(x, y);
        const double l = q_.LarghezzaTesto(testo) / 2 + 2;
        const double h = q_.Riga() / 2;
        Quadro::Area(
            std::array<Punto, 4>{{p + Punto{-l, -h}, p + Punto{l, -h}, p + Punto{l, h}, p + Punto{-l, h}}},
            Fondo::Sfondo);
        q_.Testo(p, testo, Allinea::Centro, Posa::Mezzo);
    }

private:
    [[nodiscard]] Punto In(double x, double y) const {
        return {campo_.sinistra + x / xMax_ * campo_.larghezza, campo_.Basso() - y / yMax_ * campo_.altezza};
    }

    const Quadro& q_;
    CampoQuadro campo_;
    double xMax_, yMax_;
};

/// A drawing of a size of its own.
Disegno Figura(std::string nome, Misura misura, std::function<void(const Quadro&)> traccia) {
    Disegno disegno{std::move(nome), {}, misura, misura};
    disegno.PlottaInOggetto = [misura, traccia = std::move(traccia)](Superficie* oggetto, std::string_view) {
        const Quadro quadro(oggetto, Dispositivo, misura);
        traccia(quadro);
    };
    return disegno;
}

/// A double-T seen from its end.
void Profilo(Punto centro, double h, double b, double t) {
    const double x = centro.x;
    const double alto = centro.y - h / 2;
    const double basso = centro.y + h / 2;
    const std::array<Punto, 12> punti{{{x - b / 2, alto},
                                       {x + b / 2, alto},
                                       {x + b / 2, alto + t},
                                       {x + t / 2, alto + t},
                                       {x + t / 2, basso - t},
                                       {x + b / 2, basso - t},
                                       {x + b / 2, basso},
                                       {x - b / 2, basso},
                                       {x - b / 2, basso - t},
                                       {x - t / 2, basso - t},
                                       {x - t / 2, alto + t},
                                       {x - b / 2, alto + t}}};
    Quadro::Area(punti, Fondo::Tenue);
    Quadro::Spezzata(punti, true);
}

/// Stresses beside a line: outlines right of it for compression, left for tension.
void Tensioni(const Quadro& q, std::span<const Punto> punti, Punto alto, Punto basso, std::string_view nome) {
    Quadro::Area(punti, Fondo::Tenue);
    q.Contorno();
    Quadro::Spezzata(punti, true);
    Quadro::Linea(alto, basso);
    q.Testo(basso + Punto{0, 6}, nome, Allinea::Centro, Posa::Alto);
}

void TracciaTensioni(const Quadro& q) {
    constexpr double h = 120;
    constexpr double s = 34; ///< of a stress of fy
    const double y = 20 + h / 2;
    q.Contorno();
    Profilo({50, y}, h, 60, 9);
    q.Fine(TipoLinea::TrattoPunto);
    Quadro::Linea({8, y}, {470, y});
    const double su = y - h / 2;
    const double giu = y + h / 2;
    const auto asse = [&](double x, std::span<const Punto> punti, std::string_view nome) {
        Tensioni(q, punti, {x, su}, {x, giu}, nome);
        q.Testo({x + s + 3, su}, "fy", Allinea::Sinistra, Posa::Mezzo);
    };
    double x = 160;
    asse(x,
         std::array<Punto, 8>{
             {{x, su}, {x + s, su}, {x + s, y}, {x, y}, {x - s, y}, {x - s, giu}, {x, giu}, {x, y}}},
         "classi 1, 2: Wpl");
    x = 280;
    asse(x, std::array<Punto, 4>{{{x, su}, {x + s, su}, {x - s, giu}, {x, giu}}}, "classe 3: Wel");
    x = 400;
    const double perso = y - h * 0.22; // what the buckled part of the web does not carry
    const double neutro = y + h * 0.06;
    const auto a = [&](double yy) { return x + s * (neutro - yy) / (neutro - su); };
    asse(x, std::array<Punto, 4>{{{x, su}, {x + s, su}, {a(su + 18), su + 18}, {x, su + 18}}},
         "classe 4: Weff");
    const std::array<Punto, 4> resto{{{x, perso}, {a(perso), perso}, {a(giu), giu}, {x, giu}}};
    Quadro::Area(resto, Fondo::Tenue);
    q.Contorno();
    Quadro::Spezzata(resto, true);
}

void TracciaCurve(const Quadro& q) {
    const Assi assi(q, 3, 1.1);
    assi.Reticolo(0.5, 0.2);
    for (const std::string_view curva : {"a0", "a", "b", "c", "d"})
        assi.Curva([curva](double l) { return Chi(AlfaCurva(curva), l); });
    assi.Curva([](double l) { return l > 0 ? std::min(1 / (l * l), 1.1) : 1.1; }, TipoLinea::Tratteggiata);
    // Each name on its curve, away from its neighbours'.
    const std::array<std::pair<std::string_view, double>, 5> nomi{
        {{"a0", 0.72}, {"a", 0.85}, {"b", 0.82}, {"c", 0.79}, {"d", 0.76}}};
    for (const auto& [curva, l] : nomi)
        assi.Scritta(l, Chi(AlfaCurva(curva), l), curva);
    assi.Scritta(1.45, 0.66, "Eulero");
    assi.Nomi("snellezza relativa", "chi");
}

void TracciaDominio(const Quadro& q) {
    constexpr double a = 0.4; // share of the web
    const Assi assi(q, 1, 1.1);
    assi.Reticolo(0.2, 0.2);
    assi.Curva([](double n) { return std::min(1.0, (1 - n) / (1 - 0.5 * a)); });
    assi.Curva([](double n) { return n <= a ? 1.0 : 1 - std::pow((n - a) / (1 - a), 2); },
               TipoLinea::Tratteggiata);
    assi.Scritta(0.55, (1 - 0.55) / 0.8, "MNy/Mpl,y");
    assi.Scritta(0.72, 1 - std::pow((0.72 - a) / 0.6, 2), "MNz/Mpl,z");
    assi.Nomi("n = NSd/Npl,Rd", "m");
}

void TracciaCordone(const Quadro& q) {
    constexpr double lato = 80;
    const Punto spigolo{70, 120};
    q.Contorno();
    const std::array<Punto, 4> orizzontale{{{12, 120}, {210, 120}, {210, 146}, {12, 146}}};
    const std::array<Punto, 4> verticale{{{44, 20}, {70, 20}, {70, 120}, {44, 120}}};
    const std::array<Punto, 3> cordone{{spigolo, spigolo - Punto{0, lato}, spigolo + Punto{lato, 0}}};
    for (const std::span<const Punto> pezzo :
         {std::span<const Punto>(orizzontale), std::span<const Punto>(verticale)})
        Quadro::Spezzata(pezzo, true);
    Quadro::Area(cordone, Fondo::Tenue);
    q.Contorno();
    Quadro::Spezzata(cordone, true);
    const double gola = lato / std::numbers::sqrt2;
    const Punto fuori = Punto{1, -1} * (gola / std::numbers::sqrt2);
    q.Quota(spigolo, spigolo + fuori);
    q.Testo(spigolo + fuori + Punto{4, -4}, "a", Allinea::Sinistra, Posa::Basso);
}

/// Both halves of the picture: a frame between its feet.
struct Telaio {
    double sinistra, destra, alto, basso;

    void Traccia(const Quadro& q) const {
        q.Contorno();
        Quadro::Spezzata(
            std::array<Punto, 4>{{{sinistra, basso}, {sinistra, alto}, {destra, alto}, {destra, basso}}});
        for (const double x : {sinistra, destra}) {
            Quadro::Cerchio({x, basso + 4}, 4);
            Quadro::Linea({x - 12, basso + 8}, {x + 12, basso + 8});
        }
    }
};

void TracciaPortale(const Quadro& q) {
    const Telaio carico{50, 230, 60, 180};
    carico.Traccia(q);
    q.Fine();
    Quadro::Linea({carico.sinistra, 28}, {carico.destra, 28});
    for (int i = 0; i <= 10; ++i) {
        const Punto giu{carico.sinistra + 18.0 * i, carico.alto - 3};
        Quadro::Linea({giu.x, 28}, giu);
        Quadro::Punta(giu, {0, 1}, 6, 2);
    }
    q.Testo({140, 24}, "p", Allinea::Centro, Posa::Basso);
    q.Quota({carico.sinistra, 208}, {carico.destra, 208});
    q.Testo({140, 212}, "L", Allinea::Centro, Posa::Alto);
    q.Quota({20, carico.basso}, {20, carico.alto});
    q.Testo({16, 120}, "h", Allinea::Destra, Posa::Mezzo);

    const Telaio momenti{330, 510, 60, 180};
    constexpr double nodo = 21; // of 67.5 kNm, the diagram on the side of the tension
    constexpr double isolata = 71;
    std::vector<Punto> trave;
    for (int i = 0; i <= 40; ++i) {
        const double s = i / 40.0;
        trave.push_back({momenti.sinistra + s * (momenti.destra - momenti.sinistra),
                         momenti.alto - nodo + isolata * 4 * s * (1 - s)});
    }
    const auto colonna = [&](double x, double fuori) {
        const std::array<Punto, 3> lato{{{x, momenti.basso}, {x + fuori, momenti.alto}, {x, momenti.alto}}};
        Quadro::Area(lato, Fondo::Tenue);
        q.Fine();
        Quadro::Spezzata(lato);
    };
    colonna(momenti.sinistra, -nodo);
    colonna(momenti.destra, nodo);
    std::vector<Punto> area = trave;
    area.push_back({momenti.destra, momenti.alto});
    area.insert(area.begin(), {momenti.sinistra, momenti.alto});
    Quadro::Area(area, Fondo::Tenue);
    q.Fine();
    Quadro::Spezzata(area);
    momenti.Traccia(q);
    q.Testo({momenti.sinistra, momenti.alto - nodo - 3}, "M", Allinea::Centro, Posa::Basso);
    q.Testo({momenti.destra, momenti.alto - nodo - 3}, "M", Allinea::Centro, Posa::Basso);
    q.Testo({420, momenti.alto - nodo + isolata + 3}, "MQ - M", Allinea::Centro, Posa::Alto);
}

/// A bar of the share 1 / gamma, with factor and share in words.
void BarraFattore(const Quadro& q, Punto dove, double gamma) {
    constexpr double intera = 190;
    constexpr double alta = 13;
    const double parte = intera / gamma;
    const std::array<Punto, 4> barra{
        {dove, dove + Punto{parte, 0}, dove + Punto{parte, alta}, dove + Punto{0, alta}}};
    Quadro::Area(barra, Fondo::Tenue);
    q.Contorno();
    Quadro::Spezzata(barra, true);
    q.Fine(TipoLinea::Tratteggiata);
    Quadro::Linea(dove + Punto{intera, -2}, dove + Punto{intera, alta + 2});
    q.Testo(dove + Punto{6, alta / 2}, TestoPiano(std::round(1000 / gamma) / 10) + " %", Allinea::Sinistra,
            Posa::Mezzo);
    q.Testo(dove + Punto{intera + 8, alta / 2}, TestoPiano(gamma), Allinea::Sinistra, Posa::Mezzo);
}

void TracciaCoefficienti(const Quadro& q) {
    struct Voce {
        std::string_view nome;
        double ntc, ec3;
    };
    const std::array<Voce, 3> voci{{{"GammaM0, sezioni", fattoriNTC.GammaM0, fattoriEC3.GammaM0},
                                    {"GammaM1, instabilità", fattoriNTC.GammaM1, fattoriEC3.GammaM1},
                                    {"GammaM2, collegamenti", fattoriNTC.GammaM2, fattoriEC3.GammaM2}}};
    constexpr double barre = 225;
    q.Testo({barre, 2}, "Parte che resta, e coefficiente", Allinea::Sinistra, Posa::Alto);
    double y = 24;
    for (const Voce& v : voci) {
        q.Testo({4, y + 15}, v.nome, Allinea::Sinistra, Posa::Mezzo);
        q.Testo({barre - 8, y + 6}, "NTC", Allinea::Destra, Posa::Mezzo);
        BarraFattore(q, {barre, y}, v.ntc);
        q.Testo({barre - 8, y + 23}, "EC3", Allinea::Destra, Posa::Mezzo);
        BarraFattore(q, {barre, y + 17}, v.ec3);
        y += 46;
    }
}

/// How far the flange of a T-stub in tension stands off at its web, its bolts and its edges.
struct Distacco {
    double anima, bulloni, bordo;
};

void Cerniera(const Quadro& q, Punto dove) {
    Quadro::Disco(dove, 3.5, Fondo::Tenue);
    q.Contorno();
    Quadro::Cerchio(dove, 3.5);
}

/// A T-stub on its two bolts; those that hold keep the flange down, there it yields as at the web.
void TrattoT(const Quadro& q, double x, Distacco d, bool snervata, std::string_view nome) {
    constexpr double m = 34; // from the web to the bolts
    constexpr double n = 26; // from the bolts to the edge
    constexpr double base = 132;
    const bool rotti = d.bulloni > 0;
    q.Fine(TipoLinea::TrattoPunto);
    Quadro::Linea({x - m - n - 8, base}, {x + m + n + 8, base});
    q.Contorno();
    Quadro::Spezzata(std::array<Punto, 5>{{{x - m - n, base - d.bordo},
                                           {x - m, base - d.bulloni},
                                           {x, base - d.anima},
                                           {x + m, base - d.bulloni},
                                           {x + m + n, base - d.bordo}}});
    Quadro::Linea({x, base - d.anima}, {x, 44});
    Quadro::Punta({x, 30}, {0, -1}, 14, 5);
    for (const double dove : {x - m, x + m}) {
        const double testa = base - d.bulloni - 8;
        Quadro::Linea({dove - 5, testa}, {dove + 5, testa});
        Quadro::Linea({dove, testa}, {dove, rotti ? base - d.bulloni / 2 - 2 : base + 14});
        if (rotti)
            Quadro::Linea({dove, base - d.bulloni / 2 + 2}, {dove, base + 14});
        if (!rotti)
            Cerniera(q, {dove, base});
    }
    if (snervata)
        Cerniera(q, {x, base - d.anima});
    q.Testo({x, base + 22}, nome, Allinea::Centro, Posa::Alto);
}

void TracciaModi(const Quadro& q) {
    TrattoT(q, 90, {20, 0, 0}, true, "modo 1: la flangia");
    TrattoT(q, 270, {28, 12, 0}, true, "modo 2: flangia e bulloni");
    TrattoT(q, 450, {18, 18, 18}, false, "modo 3: i bulloni");
}

void TracciaSuggerimento(const Quadro& q) {
    constexpr int nervature = 15;
    constexpr int doppie = 3;
    constexpr double passo = 32;
    const double sinistra = 20;
    const double destra = sinistra + nervature * passo;
    const double ala = 92;
    q.Contorno();
    Quadro::Spezzata(
        std::array<Punto, 4>{{{sinistra, ala}, {destra, ala}, {destra, ala + 34}, {sinistra, ala + 34}}},
        true);
    q.Fine();
    for (const double y : {ala + 4, ala + 30})
        Quadro::Linea({sinistra, y}, {destra, y});
    Quadro::Linea({sinistra, 34}, {destra, 34}); // top of the slab
    for (int i = 0; i < nervature; ++i) {
        const double x = sinistra + (i + 0.5) * passo;
        q.Fine();
        Quadro::Spezzata(std::array<Punto, 4>{{{x - 13, 64}, {x - 8, ala}, {x + 8, ala}, {x + 13, 64}}});
        if (i + 1 < nervature)
            Quadro::Linea({x + 13, 64}, {x + passo - 13, 64});
        q.Contorno();
        const bool due = i < doppie || i >= nervature - doppie;
        for (const double lato : due ? std::vector<double>{-4, 4} : std::vector<double>{0}) {
            Quadro::Linea({x + lato, ala}, {x + lato, 48});
            Quadro::Linea({x + lato - 2.5, 48}, {x + lato + 2.5, 48});
        }
    }
    for (const double x : {sinistra + 4, destra - 4})
        Quadro::Spezzata(std::array<Punto, 3>{{{x, ala + 34}, {x - 8, ala + 48}, {x + 8, ala + 48}}}, true);
    const double primo = sinistra + doppie * passo;
    q.Quota({sinistra, 22}, {primo, 22});
    q.Quota({destra - doppie * passo, 22}, {destra, 22});
    q.Testo({(sinistra + primo) / 2, 18}, "2 pioli", Allinea::Centro, Posa::Basso);
    q.Testo({destra - doppie * passo / 2, 18}, "2 pioli", Allinea::Centro, Posa::Basso);
    q.Testo({(sinistra + destra) / 2, 18}, "1 piolo", Allinea::Centro, Posa::Basso);
}

} // namespace

Disegno DisegnoCoefficienti() { return Figura("Coefficienti parziali", {470, 170}, TracciaCoefficienti); }
Disegno DisegnoModiTrattoT() { return Figura("Tratto a T", {540, 176}, TracciaModi); }
Disegno DisegnoSuggerimento() { return Figura("Pioli nelle nervature", {520, 150}, TracciaSuggerimento); }
Disegno DisegnoPortale() { return Figura("Portale", {540, 236}, TracciaPortale); }
Disegno DisegnoCurve() { return Figura("Curve di instabilità", {460, 300}, TracciaCurve); }
Disegno DisegnoTensioni() { return Figura("Tensioni", {480, 165}, TracciaTensioni); }
Disegno DisegnoDominio() { return Figura("Momenti ridotti", {400, 260}, TracciaDominio); }
Disegno DisegnoCordone() { return Figura("Cordone d'angolo", {220, 160}, TracciaCordone); }

} // namespace sagomi
