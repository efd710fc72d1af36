#include "sections/TracciaContorno.h"

#include <cmath>
#include <map>
#include <numbers>

namespace sagomi {

namespace {

DirezioniArco Direzioni(double da, double passo) {
    DirezioniArco direzioni{};
    for (int i = 0; i <= passiArco; ++i)
        direzioni[static_cast<std::size_t>(i)] = {std::cos(da + i * passo), std::sin(da + i * passo)};
    return direzioni;
}

ArchiAla Archi(double pf) {
    const double pigreco = std::numbers::pi;
    const double a = std::atan(pf);
    const double passo = (pigreco / 2 - a) / passiArco;
    return {Direzioni(0, passo), Direzioni(1.5 * pigreco - a, -passo), std::cos(a),
            std::tan((pigreco / 2 - a) / 2)};
}

} // namespace

const ArchiAla& ArchiDiPendenza(double pf) {
    static const ArchiAla paralleli = Archi(0);
    static std::map<double, ArchiAla> rastremati;
    if (pf == 0)
        return paralleli;
    const auto trovato = rastremati.find(pf);
    return trovato != rastremati.end() ? trovato->second : rastremati.emplace(pf, Archi(pf)).first->second;
}

void Profilo::Arco(double xC, double yC, double raggio, const DirezioniArco& direzioni) {
    for (const auto& [coseno, seno] : direzioni)
        Punto(xC + raggio * coseno, yC + raggio * seno);
}

Percorso::Percorso(std::vector<double>& x, std::vector<double>& y, const PostoContorno& posto, std::size_t n)
    : posto_(posto) {
    x.resize(n);
    y.resize(n);
    x_ = x.data();
    y_ = y.data();
}

void Percorso::Mette(double px, double py) {
    *x_++ = (px + posto_.x0) / posto_.scala;
    *y_++ = py + posto_.y0;
}

void Percorso::InBasso(const Profilo& p) {
    for (std::size_t i = 0; i < p.Numero(); ++i)
        Mette(p[i].x, p[i].y);
}

void Percorso::InAlto(const Profilo& p) {
    for (std::size_t i = p.Numero(); i-- > 0;)
        Mette(p[i].x, posto_.h - p[i].y);
}

void Percorso::InAltoASinistra(const Profilo& p) {
    for (std::size_t i = 0; i < p.Numero(); ++i)
        Mette(-p[i].x, posto_.h - p[i].y);
}

void Percorso::InBassoASinistra(const Profilo& p) {
    for (std::size_t i = p.Numero(); i-- > 0;)
        Mette(-p[i].x, p[i].y);
}

} // namespace sagomi
