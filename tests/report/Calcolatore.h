#pragma once

#include <algorithm>
#include <charconv>
#include <cmath>
#include <numbers>
#include <stdexcept>
#include <string>
#include <string_view>

namespace sagomi::prove {

/// A number with a decimal point, as reports write it in every locale.
inline double ConPunto(std::string_view testo) {
    double v = std::nan("");
    const auto inizio = std::min(testo.find_first_not_of(' '), testo.size());
    std::from_chars(testo.data() + inizio, testo.data() + testo.size(), v);
    return v;
}

/// Works out what a report prints as a formula with its numbers put in, as "√(235 / 275) · 10^{-3}".
class Calcolatore {
public:
    /// @throws std::invalid_argument on what is no such formula
    static double Valore(std::string_view formula) {
        Calcolatore c(formula);
        const double v = c.Somma();
        c.Salta();
        if (!c.resto_.empty())
            throw std::invalid_argument(std::string(formula));
        return v;
    }

private:
    explicit Calcolatore(std::string_view formula) : resto_(formula) {}

    void Salta() {
        while (resto_.starts_with(' '))
            resto_.remove_prefix(1);
    }
    bool Prende(std::string_view segno) {
        Salta();
        if (!resto_.starts_with(segno))
            return false;
        resto_.remove_prefix(segno.size());
        return true;
    }
    double Somma() {
        double v = Prodotto();
        while (true) {
            if (Prende("+"))
                v += Prodotto();
            else if (Prende("−") || Prende("-"))
                v -= Prodotto();
            else
                return v;
        }
    }
    double Prodotto() {
        double v = Potenza();
        while (true) {
            if (Prende("·"))
                v *= Potenza();
            else if (Prende("/"))
                v /= Potenza();
            else
                return v;
        }
    }
    double Potenza() {
        double v = Fattore();
        while (Prende("^{"))
            v = std::pow(v, Chiusa("}"));
        return v;
    }
    double Fattore() {
        if (Prende("−") || Prende("-"))
            return -Potenza();
        if (Prende("√"))
            return std::sqrt(Fattore());
        if (Prende("π"))
            return std::numbers::pi;
        if (Prende("min("))
            return Minimo();
        if (Prende("("))
            return Chiusa(")");
        if (Prende("["))
            return Chiusa("]");
        return Numero();
    }
    double Chiusa(std::string_view fine) {
        const double v = Somma();
        if (!Prende(fine))
            throw std::invalid_argument(std::string(resto_));
        return v;
    }
    double Minimo() {
        double v = Somma();
        while (Prende(";"))
            v = std::min(v, Somma());
        if (!Prende(")"))
            throw std::invalid_argument(std::string(resto_));
        return v;
    }
    double Numero() {
        Salta();
        const std::size_t lungo = std::min(resto_.find_first_not_of("0123456789."), resto_.size());
        if (lungo == 0)
            throw std::invalid_argument(std::string(resto_));
        const double v = ConPunto(resto_.substr(0, lungo));
        resto_.remove_prefix(lungo);
        return v;
    }

    std::string_view resto_;
};

} // namespace sagomi::prove
