#include "Casi.h"

#include <cctype>
#include <charconv>
#include <cmath>
#include <fstream>
#include <numbers>
#include <stdexcept>

namespace sagomi::prove {

namespace {

double Numero(std::string_view t) {
    double v = 0;
    const auto [fine, errore] = std::from_chars(t.data(), t.data() + t.size(), v);
    if (errore != std::errc{} || fine != t.data() + t.size())
        throw std::runtime_error("numero: " + std::string(t));
    return v;
}

std::vector<std::string_view> Parole(std::string_view t, std::string_view separatori) {
    std::vector<std::string_view> parole;
    for (std::size_t i = t.find_first_not_of(separatori); i != std::string_view::npos;) {
        const std::size_t fine = std::min(t.find_first_of(separatori, i), t.size());
        parole.push_back(t.substr(i, fine - i));
        i = t.find_first_not_of(separatori, fine);
    }
    return parole;
}

void LeggeContorno(std::string_view t, std::vector<double>& x, std::vector<double>& y) {
    const auto numeri = Parole(t, ", ");
    if (numeri.size() % 2 != 0)
        throw std::runtime_error("contorno: " + std::string(t));
    for (std::size_t i = 0; i < numeri.size(); i += 2) {
        x.push_back(Numero(numeri[i]));
        y.push_back(Numero(numeri[i + 1]));
    }
}

/// "y 40 = 960 50 60 / 1720 50 13.95": direction, level, then area and centroid above and below.
TaglioAtteso LeggeTaglio(std::string_view t) {
    const auto p = Parole(t, " =/");
    if (p.size() != 8)
        throw std::runtime_error("taglio: " + std::string(t));
    return {p[0] == "x",
            Numero(p[1]),
            {Numero(p[2]), Numero(p[3]), Numero(p[4])},
            {Numero(p[5]), Numero(p[6]), Numero(p[7])}};
}

void LeggeRiga(std::string_view chiave, std::string_view valore, CasoPoligono& c) {
    const auto parole = Parole(valore, " ");
    if (chiave == "source") {
        c.fonte = valore;
    } else if (chiave == "outline") {
        LeggeContorno(valore, c.x, c.y);
    } else if (chiave == "tolerance") {
        c.tolleranza = Numero(parole.at(0));
        c.tolleranzaPlastica = parole.size() > 2 ? Numero(parole[2]) : c.tolleranza;
    } else if (chiave == "expected") {
        for (const std::string_view p : parole)
            c.attesi[std::string(p.substr(0, p.find('=')))] = Numero(p.substr(p.find('=') + 1));
    } else if (chiave == "cut") {
        c.tagli.push_back(LeggeTaglio(valore));
    } else {
        throw std::runtime_error("riga: " + std::string(chiave));
    }
}

} // namespace

void PrintTo(const CasoPoligono& c, std::ostream* os) { *os << c.titolo << " (" << c.fonte << ")"; }

std::vector<CasoPoligono> LeggeCasiPoligono(const std::string& file) {
    std::ifstream in(std::string(SAGOMI_TEST_DATA) + "/geometry/" + file);
    if (!in)
        throw std::runtime_error("manca " + file);
    std::vector<CasoPoligono> casi;
    for (std::string riga; std::getline(in, riga);) {
        if (riga.empty() || riga[0] == '#')
            continue;
        const std::size_t due = riga.find(':');
        const std::string chiave = riga.substr(0, due);
        const std::string valore = due + 2 < riga.size() ? riga.substr(due + 2) : "";
        if (chiave == "title")
            casi.push_back({valore, {}, {}, {}, 0, 0, {}, {}});
        else
            LeggeRiga(chiave, valore, casi.at(casi.size() - 1));
    }
    return casi;
}

Poligono PoligonoDaTesto(std::string_view testo) {
    CasoPoligono c;
    LeggeContorno(testo, c.x, c.y);
    return PoligonoDelCaso(c);
}

Poligono PoligonoDelCaso(const CasoPoligono& c) {
    Poligono p;
    p.Coordinate(c.x, c.y, static_cast<std::int16_t>(c.x.size()));
    return p;
}

std::string NomeCaso(const CasoPoligono& c) {
    std::string nome;
    for (const char k : c.titolo)
        nome += std::isalnum(static_cast<unsigned char>(k)) != 0 ? k : '_';
    return nome;
}

Poligono ContornoDoppioT(double h, double b, double tw, double tf, double r) {
    std::vector<double> x{b / 2, b / 2};
    std::vector<double> y{0, tf};
    for (int k = 0; k <= 8; ++k) {
        const double a = k * std::numbers::pi / 16;
        x.push_back(tw / 2 + r - r * std::sin(a));
        y.push_back(tf + r - r * std::cos(a));
    }
    // The upper half of the right side mirrors the lower one, then the left side mirrors the right one.
    for (std::size_t i = x.size(); i-- > 0;) {
        x.push_back(x[i]);
        y.push_back(h - y[i]);
    }
    for (std::size_t i = x.size(); i-- > 0;) {
        x.push_back(-x[i]);
        y.push_back(y[i]);
    }
    Poligono p;
    p.Coordinate(x, y, static_cast<std::int16_t>(x.size()));
    return p;
}

} // namespace sagomi::prove
