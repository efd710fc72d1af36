#include "geometry/Matematica.h"

#include <cmath>
#include <numeric>
#include <stdexcept>
#include <string>
#include <utility>

#include "frame/Messaggi.h"

namespace sagomi {

namespace {

constexpr int iterazioniPerDomanda = 100;

/// The user's word on a search that does not come to an end.
bool Prosegue(int limite) {
    return Chiede("ERRORE! Il procedimento non converge!\nSuperate " + std::to_string(limite) +
                  " iterazioni.\nProseguire ?");
}

double NonConvergente(double x) {
    Avvisa("ERRORE! Procedimento non convergente!\nRISULTATI ERRATI!");
    return x;
}

/// False position with the halving of a stuck end, Dowell and Jarratt (1971).
double Illinois(const std::function<double(double)>& f, double& x1, double f1, double& x2, double f2,
                double tolleranza) {
    int limite = iterazioniPerDomanda;
    double x3 = x2;
    // Equal values give the line no zero, undefined ones no line.
    for (int contatore = 1; f2 != f1 && std::isfinite(f2); ++contatore) {
        x3 = x2 - f2 * (x2 - x1) / (f2 - f1);
        const double f3 = f(x3);
        if (std::abs(f3) < tolleranza)
            return x3;
        if (f3 * f2 <= 0) {
            x1 = x2;
            f1 = f2;
        } else {
            f1 /= 2;
        }
        x2 = x3;
        f2 = f3;
        if (contatore < limite)
            continue;
        if (!Prosegue(limite))
            break;
        limite += iterazioniPerDomanda;
    }
    return NonConvergente(x3);
}

std::size_t Posto(int i, const std::vector<double>& v) {
    if (i < 1 || static_cast<std::size_t>(i) > v.size())
        throw std::out_of_range("indice " + std::to_string(i) + " fuori dalla tabella");
    return static_cast<std::size_t>(i) - 1;
}

} // namespace

double CercaZero(const std::function<double(double)>& f, double& x1, double& x2, double tolleranza) {
    const double f1 = f(x1);
    if (std::abs(f1) < tolleranza)
        return x1;
    const double f2 = f(x2);
    if (std::abs(f2) < tolleranza)
        return x2;
    if (f1 * f2 > 0) {
        Avvisa("ERRORE! La funzione non cambia segno fra x1 e x2", {}, Icona::Stop);
        return 0;
    }
    return Illinois(f, x1, f1, x2, f2, tolleranza);
}

std::optional<double> yInterpola(double x1, double y1, double x2, double y2, double x) {
    if (x1 == x2)
        return std::nullopt;
    return y1 + (x - x1) * (y2 - y1) / (x2 - x1);
}

std::optional<double> yInterpolaTabella(int i, const std::vector<double>& xs, const std::vector<double>& ys,
                                        double x) {
    const int primo = i == static_cast<int>(xs.size()) && i > 1 ? i - 1 : i;
    const std::size_t a = Posto(primo, xs);
    const std::size_t b = Posto(primo + 1, xs);
    return yInterpola(xs[a], ys.at(a), xs[b], ys.at(b), x);
}

int IndiceTabella(const std::vector<double>& xs, double x) {
    const auto ultimo = static_cast<int>(xs.size());
    const double primo = xs[Posto(1, xs)];
    if (ultimo == 1)
        return 1;
    const double i = std::floor((x - primo) / (xs[1] - primo)) + 1;
    if (i >= ultimo)
        return ultimo;
    return i >= 1 ? static_cast<int>(i) : 1;
}

void Ordina(std::vector<double>& a, int primo, int ultimo, std::vector<int>* indici) {
    if (primo > ultimo)
        return;
    const std::size_t inizio = Posto(primo, a);
    const std::size_t fine = Posto(ultimo, a);
    if (indici && indici->empty()) {
        indici->resize(a.size());
        std::iota(indici->begin(), indici->end(), 1);
    }
    if (indici && indici->size() <= fine)
        throw std::out_of_range("indici da ordinare: troppo pochi");
    for (bool scambio = true; scambio;) {
        scambio = false;
        for (std::size_t k = inizio; k < fine; ++k) {
            if (!(a[k] > a[k + 1]))
                continue;
            std::swap(a[k], a[k + 1]);
            if (indici)
                std::swap((*indici)[k], (*indici)[k + 1]);
            scambio = true;
        }
    }
}

void Scambia(double& a, double& b, bool negativi) {
    std::swap(a, b);
    if (!negativi)
        return;
    a = -a;
    b = -b;
}

double Arrotonda(double x) {
    const double intera = std::floor(x);
    return x - intera >= 0.5 ? intera + 1 : intera;
}

double ArrotondaEccesso(double x) { return std::ceil(x); }

} // namespace sagomi
