#include "sections/Eurocod3.h"

#include <array>
#include <cmath>
#include <stdexcept>
#include <string>

#include "frame/GeneraleSagomi.h"
#include "frame/Messaggi.h"
#include "sections/Limiti.h"
#include "sections/SezioneDoppioT.h"

namespace sagomi {

namespace {

struct CurvaEuropea {
    std::string_view nome;
    double alfa;
    double beta;
};

// alfa of ENV 1993-1-1 table 5.5.1, beta of figure 5.5.1.
constexpr std::array<CurvaEuropea, 5> curveEuropee = {
    {{"a0", 0.13, 0.23}, {"a", 0.21, 0.23}, {"b", 0.34, 0.15}, {"c", 0.49, 0.11}, {"d", 0.76, 0.08}}};

const CurvaEuropea& Curva(std::string_view nome) {
    for (const CurvaEuropea& c : curveEuropee)
        if (c.nome == nome)
            return c;
    throw std::out_of_range("curva di instabilità \"" + std::string(nome) + "\"");
}

} // namespace

// ENV 1993-1-1 table 5.3.1.
double Epsilon(double fy) { return std::sqrt(fyRiferimento / (fy == 0 ? 0.00001 : fy)); }

// ENV 1993-1-1 5.5.1.2 (1), down to Chi.
double Lamda1(double epsilon) { return 93.9 * epsilon; }

double LamdaRelativa(double lamda, double fy, double betaA) {
    return lamda / Lamda1(Epsilon(fy)) * std::sqrt(betaA);
}

double LamdaDaRelativa(double lamdaRelativa, double fy, double betaA) {
    return lamdaRelativa * Lamda1(Epsilon(fy)) / std::sqrt(betaA);
}

double AlfaCurva(std::string_view curva) { return Curva(curva).alfa; }

double BetaCurva(std::string_view curva) { return Curva(curva).beta; }

double Fi(double alfa, double lamda) { return 0.5 * (1 + alfa * (lamda - 0.2) + lamda * lamda); }

double Chi(double alfa, double lamda) {
    const double fi = Fi(alfa, lamda);
    if (std::isinf(fi))
        return 0;
    return AlPiu(1 / (fi + std::sqrt((fi - lamda) * (fi + lamda))), 1);
}

// ENV 1993-1-1 5.5.1.1 (1).
double ChiFyM1(double lamda, double fy, double betaA, std::string_view curva) {
    return Chi(AlfaCurva(curva), LamdaRelativa(lamda, fy, betaA)) * fy / GammaM1;
}

// ENV 1993-1-1 5.5.4 (1), of class 3 and 4 (3).
double Mu(double lamda, double beta, double Wel, double Wpl, std::int16_t classe) {
    const double m = lamda * (2 * beta - 4);
    return AlPiu(classe < 3 ? m + (Wpl - Wel) / Wel : m, 0.9);
}

// ENV 1993-1-1 5.3.5 (3).
double Rho(double b, double t, double fy, double kSigma) {
    if (kSigma <= 0)
        return 0;
    const double lamda = b / t / (28.4 * Epsilon(fy) * std::sqrt(kSigma));
    if (std::isinf(lamda))
        return 0;
    return lamda > 0.673 ? (lamda - 0.22) / (lamda * lamda) : 1;
}

// ENV 1993-1-1 figure 5.5.1.
double FrecciaIniziale(const SezioneDoppioT& sezione, std::string_view asse) {
    const bool yy = asse == "yy";
    const std::string curva = sezione.CurvaInstabilita(asse);
    const double lamda = yy ? sezione.LamdaSegnatoY() : sezione.LamdaSegnatoZ();
    const double Wel = yy ? sezione.Wely : sezione.Welz;
    const double beta = BetaCurva(curva);
    const double k = Almeno(2 * beta * lamda + 1 - beta, 1);
    return Almeno((lamda - 0.2) * AlfaCurva(curva) * k * Wel / sezione.Area, 2);
}

// ENV 1993-1-1 figure 5.5.3.
double Psi2(double psi) {
    if (psi < -1 || psi > 1)
        Avvisa("Valore di psi non ammesso");
    return 1.8 - 0.7 * psi;
}

} // namespace sagomi
