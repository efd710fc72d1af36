#include "sections/SezioneDoppioT.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <string>

#include "frame/Messaggi.h"
#include "frame/Numeri.h"
#include "geometry/ForoSezione.h"
#include "sections/ContornoEfficace.h"
#include "sections/Eurocod3.h"
#include "sections/SezioneGenerica.h"

namespace sagomi {

namespace {

constexpr int passiArco = 8; // chords of each fillet

/// A quarter of an outline, lower right, from the outer corner to the web; the others are its mirrors.
/// Heights count from the lower fibre, abscissas from the web's axis.
class Quarto {
public:
    void Punto(double px, double py) { punti_.push_back({px, py}); }

    /// An arc in equal steps, both ends included.
    void Arco(double xC, double yC, double raggio, double da, double passo) {
        for (int i = 0; i <= passiArco; ++i)
            Punto(xC + raggio * std::cos(da + i * passo), yC + raggio * std::sin(da + i * passo));
    }

    struct P {
        double x, y;
    };
    [[nodiscard]] const std::vector<P>& punti() const { return punti_; }

private:
    std::vector<P> punti_;
};

struct Piatto {
    double b, t;
};

Quarto QuartoLaminato(const SezioneDoppioT& s) {
    const double pigreco = std::numbers::pi;
    const double a = std::atan(s.pf());
    const double passo = (pigreco / 2 - a) / passiArco;
    Quarto q;
    q.Punto(s.b / 2, 0);
    if (s.r2 > 0)
        q.Arco(s.b / 2 - s.r2, s.tf1() - s.r2 * std::tan((pigreco / 2 - a) / 2), s.r2, 0, passo);
    else
        q.Punto(s.b / 2, s.tf);
    q.Arco(s.tw / 2 + s.r1, s.tf2() + s.r1 * std::cos(a), s.r1, 1.5 * pigreco - a, -passo);
    return q;
}

Quarto QuartoSaldato(const SezioneDoppioT& s, const Piatto& ala) {
    Quarto q;
    q.Punto(ala.b / 2, 0);
    q.Punto(ala.b / 2, ala.t);
    q.Punto(s.tw / 2 + s.r, ala.t);
    q.Punto(s.tw / 2, ala.t + s.r);
    return q;
}

/// Where an outline is put.
struct Posto {
    double x0, y0, scala;
};

/// Goes round counter-clockwise: lower right, upper right, upper left, lower left.
void Percorri(const Quarto& inf, const Quarto& sup, double h, const Posto& posto, std::vector<double>& x,
              std::vector<double>& y) {
    x.clear();
    y.clear();
    const auto metti = [&](double px, double py) {
        x.push_back((px + posto.x0) / posto.scala);
        y.push_back(py + posto.y0);
    };
    for (const auto& p : inf.punti())
        metti(p.x, p.y);
    for (auto p = sup.punti().rbegin(); p != sup.punti().rend(); ++p)
        metti(p->x, h - p->y);
    for (const auto& p : sup.punti())
        metti(-p.x, h - p.y);
    for (auto p = inf.punti().rbegin(); p != inf.punti().rend(); ++p)
        metti(-p->x, p->y);
}

/// psi of a doubly symmetric outline is -1 but for rounding.
double Assesta(double psi) {
    for (const double esatto : {-1.0, 0.0, 1.0})
        if (std::abs(psi - esatto) < 1e-9)
            return esatto;
    return psi;
}

/// Removes a strip of the web, of height H from y0 upwards, but for the thread that holds the outline
/// together.
void TogliAnima(std::vector<double>& x, std::vector<double>& y, std::int16_t& n, double y0, double H) {
    if (H > 0)
        ForoSezione(x, y, n, y0, H, "DoppioT");
}

} // namespace

double SezioneDoppioT::pf() const { return r2 > 0 ? 0.14 : 0; }

double SezioneDoppioT::tf1() const { return r2 > 0 ? tf - pf() * b / 4 : double(tf); }

double SezioneDoppioT::tf2() const {
    if (!(r2 > 0))
        return tf;
    const double a = std::atan(pf());
    const double t = std::tan((std::numbers::pi / 2 - a) / 2);
    const double u = b / 2 - tw / 2 - r1 * t * std::cos(a);
    return pf() * u + tf1();
}

void SezioneDoppioT::Coordinate(std::vector<double>& x, std::vector<double>& y, std::int16_t& n, double x0,
                                double y0, double scala) const {
    if (Saldata) {
        CoordinateSaldata(x, y, n, x0, y0, scala);
        return;
    }
    const Quarto q = QuartoLaminato(*this);
    Percorri(q, q, h, {x0, y0, scala}, x, y);
    n = static_cast<std::int16_t>(x.size());
}

void SezioneDoppioT::CoordinateSaldata(std::vector<double>& x, std::vector<double>& y, std::int16_t& n,
                                       double x0, double y0, double scala) const {
    const Quarto sup = QuartoSaldato(*this, {b, tf});
    const Quarto inf = SaldataAsimm ? QuartoSaldato(*this, {bAlaInf, tAlaInf}) : sup;
    Percorri(inf, sup, h, {x0, y0, scala}, x, y);
    n = static_cast<std::int16_t>(x.size());
}

void SezioneDoppioT::AlaEfficace(std::vector<double>& x, std::vector<double>& y, double kS, double t,
                                 double cAla, double quota, bool destra, bool sinistra) const {
    const double taglio = (1 - Rho(cAla, t, fy, kS)) * cAla;
    const ParteContorno ala = {h / 2, quota > h / 2};
    double punta = 0;
    for (std::size_t i = 0; i < x.size(); ++i)
        if ((y[i] > ala.livello) == ala.sopra)
            punta = std::max(punta, std::abs(x[i]));
    if (destra)
        TagliaPunta(x, y, ala, punta - taglio, true);
    if (sinistra)
        TagliaPunta(x, y, ala, taglio - punta, false);
}

void SezioneDoppioT::CoordinateComp4() {
    std::vector<double> x;
    std::vector<double> y;
    std::int16_t n = 0;
    Coordinate(x, y, n);
    if (ClasseAlaC == 4)
        AlaEfficace(x, y, 0.43, tf, c, h - tf / 2, true, true);
    if (ClasseAlaInfC == 4)
        AlaEfficace(x, y, 0.43, tAlaInf, cAlaInf, tAlaInf / 2, true, true);
    if (ClasseWebC == 4) {
        const double beff = Rho(d, tw, fy, 4) * d;
        TogliAnima(x, y, n, h / 2 - d / 2 + beff / 2, d - beff);
    }
    CalcolaContorno(SezioneComp4, x, y, n);
}

void SezioneDoppioT::CoordinateWy4() {
    std::vector<double> x;
    std::vector<double> y;
    std::int16_t n = 0;
    Coordinate(x, y, n);
    if (ClasseAlaC == 4)
        AlaEfficace(x, y, 0.43, tf, c, h - tf / 2, true, true);
    const SezioneGenerica& contorno = CalcolaContorno(SezioneWy4, x, y, n);
    if (ClasseWebF != 4)
        return;

    const double ySup = h - tf - (Saldata ? r : r1);
    double be1 = 0;
    double be2 = 0;
    const double psi = be1_be2Anima(contorno, d, ySup, be1, be2);
    if (!(psi <= 1))
        return;
    const double compressa = psi < 0 ? d / (1 - psi) : d;
    TogliAnima(x, y, n, ySup - compressa + be2, compressa - be1 - be2);
    CalcolaContorno(SezioneWy4, x, y, n);
}

void SezioneDoppioT::CoordinateWz4() {
    std::vector<double> x;
    std::vector<double> y;
    std::int16_t n = 0;
    Coordinate(x, y, n);
    if (ClasseAlaC == 4)
        AlaEfficace(x, y, 0.57, tf, c, h - tf / 2, true, false);
    if (ClasseAlaInfC == 4)
        AlaEfficace(x, y, 0.57, tAlaInf, cAlaInf, tAlaInf / 2, true, false);
    CalcolaContorno(SezioneWz4, x, y, n);
}

double SezioneDoppioT::be1_be2Anima(const SezioneGenerica& contorno, double bp, double ySup, double& be1,
                                    double& be2) const {
    const double yInf = ySup - bp;
    const double psi = Assesta(-(contorno.yG - yInf) / (ySup - contorno.yG));
    be1_be2Anima(psi, bp, be1, be2);
    return psi;
}

void SezioneDoppioT::be1_be2Anima(double psi, double bp, double& be1, double& be2) const {
    psi = Assesta(psi);
    const double rho = Rho(bp, tw, fy, kSigma(psi));
    if (psi == 1) {
        be1 = 0.5 * rho * bp;
        be2 = be1;
    } else if (psi >= 0 && psi < 1) {
        const double beff = rho * bp;
        be1 = 2 * beff / (5 - psi);
        be2 = beff - be1;
    } else if (psi < 0) {
        const double bc = bp / (1 - psi);
        const double beff = rho * bc;
        be1 = 0.4 * beff;
        be2 = beff - be1;
    } else {
        be1 = 0;
        be2 = 0;
        Avvisa("Caso non previsto in Sub be1_be2Anima");
    }
}

double SezioneDoppioT::kSigma(double psi) {
    const double p = Assesta(psi);
    if (p == 1)
        return 4.0;
    if (p > 0 && p < 1)
        return 8.2 / (p + 1.05);
    if (p == 0)
        return 7.81;
    if (p > -1 && p < 0)
        return 7.81 - 6.29 * p + 9.78 * p * p;
    if (p == -1)
        return 23.9;
    if (p > -2 && p < -1)
        return 5.98 * (1 - p) * (1 - p);
    Avvisa("psi = " + TestoPiano(psi) + " < -2. Caso non previsto da EC3 Prospetto 5.2.");
    return 0;
}

} // namespace sagomi
