#include "criticalloads/Timoshenko.h"

#include <cmath>
#include <numbers>

#include <gtest/gtest.h>

// The ordinates of the tables against the energy of the buckled beam. With the lateral bending eliminated
// (E Iz u'' = -M phi, both beams being statically determinate) the twist phi leaves
//
//     C phi'^2 + C1 phi''^2 - M^2 phi^2 / (E Iz)   integrated, less the work of a load at height a
//
// which is made stationary on a series of shapes (Rayleigh-Ritz). With L = C = E Iz = 1 the critical load is
// gamma2 itself; C1 is 1 / ratio, and half the height of an I section is root(C1).

using namespace sagomi;

namespace {

constexpr int nForme = 10;
constexpr int nPunti = 2000;
using Matrice = std::array<std::array<double, nForme>, nForme>;

/// True as long as the energy of every shape stays positive (Cholesky).
bool Stabile(const Matrice& A, const Matrice& B, const Matrice& D, double P) {
    Matrice l{};
    for (std::size_t i = 0; i < nForme; ++i)
        for (std::size_t j = 0; j <= i; ++j) {
            double s = A[i][j] - P * P * B[i][j] - P * D[i][j];
            for (std::size_t k = 0; k < j; ++k)
                s -= l[i][k] * l[j][k];
            if (i == j && !(s > 0))
                return false;
            l[i][j] = i == j ? std::sqrt(s) : s / l[j][j];
        }
    return true;
}

double CaricoCritico(const Matrice& A, const Matrice& B, const Matrice& D) {
    double basso = 0;
    double alto = 1;
    while (Stabile(A, B, D, alto))
        alto *= 2;
    for (int i = 0; i < 50; ++i) {
        const double m = (basso + alto) / 2;
        (Stabile(A, B, D, m) ? basso : alto) = m;
    }
    return basso;
}

struct Forma {
    double f, f1, f2; ///< shape, slope, curvature
};

/// A beam: its shapes, its moment under a unit load, its load along the length.
struct Trave {
    Forma (*forma)(std::size_t k, double z);
    double (*momento)(double z);
    bool distribuito;
};

double Gamma2(const Trave& t, double ratio, double quota) {
    const double C1 = 1 / ratio;
    const double a = quota * std::sqrt(C1);
    Matrice A{};
    Matrice B{};
    Matrice D{};
    for (int p = 0; p < nPunti; ++p) {
        const double z = (p + 0.5) / nPunti;
        std::array<Forma, nForme> f{};
        for (std::size_t k = 0; k < nForme; ++k)
            f[k] = t.forma(k, z);
        const double M2 = std::pow(t.momento(z), 2);
        for (std::size_t i = 0; i < nForme; ++i)
            for (std::size_t j = 0; j < nForme; ++j) {
                A[i][j] += (f[i].f1 * f[j].f1 + C1 * f[i].f2 * f[j].f2) / nPunti;
                B[i][j] += M2 * f[i].f * f[j].f / nPunti;
                if (t.distribuito)
                    D[i][j] += a * f[i].f * f[j].f / nPunti;
            }
    }
    if (!t.distribuito)
        for (std::size_t i = 0; i < nForme; ++i)
            for (std::size_t j = 0; j < nForme; ++j)
                D[i][j] = a * t.forma(i, 0.5).f * t.forma(j, 0.5).f;
    return CaricoCritico(A, B, D);
}

constexpr double pi = std::numbers::pi;

/// Held against twisting at both ends, symmetric.
Forma Appoggiata(std::size_t k, double z) {
    const double w = static_cast<double>(2 * k + 1) * pi;
    return {std::sin(w * z), w * std::cos(w * z), -w * w * std::sin(w * z)};
}

/// Held against twisting and warping at z = 0.
Forma Mensola(std::size_t k, double z) {
    const double w = (static_cast<double>(k) + 0.5) * pi;
    return {1 - std::cos(w * z), w * std::sin(w * z), w * w * std::cos(w * z)};
}

constexpr Trave concentrato{Appoggiata, [](double z) { return std::min(z, 1 - z) / 2; }, false};
constexpr Trave distribuito{Appoggiata, [](double z) { return z * (1 - z) / 2; }, true};
constexpr Trave mensola{Mensola, [](double z) { return 1 - z; }, false};

void Confronta(const Trave& t, double quota, const std::vector<double>& ascisse,
               const std::vector<double>& ordinate, const char* nome) {
    ASSERT_EQ(ascisse.size(), 14U);
    ASSERT_EQ(ordinate.size(), 14U);
    for (std::size_t i = 0; i < ascisse.size(); ++i) {
        const double g = Gamma2(t, ascisse[i], quota);
        EXPECT_NEAR(ordinate[i], g, 0.03 * g) << nome << ", L^2C/C1 = " << ascisse[i];
    }
}

TEST(TimoshenkoEnergia, SimplySupportedBeam) {
    for (std::int16_t quota = quotaEstradosso; quota <= quotaIntradosso; ++quota) {
        std::vector<double> ascisse;
        std::vector<double> ordinate;
        Timoshenko::TabellaAppoggiata(ascisse, ordinate, caricoConcentrato, quota);
        Confronta(concentrato, 1 - quota, ascisse, ordinate, "concentrato");
        Timoshenko::TabellaAppoggiata(ascisse, ordinate, caricoDistribuito, quota);
        Confronta(distribuito, 1 - quota, ascisse, ordinate, "distribuito");
    }
}

TEST(TimoshenkoEnergia, CantileverLoadedAtItsEnd) {
    std::vector<double> ascisse;
    std::vector<double> ordinate;
    Timoshenko::TabellaMensola(ascisse, ordinate);
    Confronta(mensola, 0, ascisse, ordinate, "mensola");
}

} // namespace
