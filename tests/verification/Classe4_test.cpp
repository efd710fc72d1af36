// Plates and sections of class 4: published buckling factors and widths, energy, strips.
#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <vector>

#include "Profili.h"
#include "Verbale.h"
#include "sections/Eurocod3.h"
#include "sections/LarghezzeEfficaci.h"

using namespace sagomi;
using namespace sagomi::verifica;

namespace {

class Classe4 : public Ambiente {};

constexpr double pi = std::numbers::pi;
constexpr std::size_t termini = 14;
using Matrice = std::array<std::array<double, termini>, termini>;

/// Whether K - k G is positive definite, by Cholesky.
bool Definita(const Matrice& K, const Matrice& G, double k) {
    Matrice L{};
    for (std::size_t i = 0; i < termini; ++i)
        for (std::size_t j = 0; j <= i; ++j) {
            double v = K[i][j] - k * G[i][j];
            for (std::size_t l = 0; l < j; ++l)
                v -= L[i][l] * L[j][l];
            if (i != j)
                L[i][j] = v / L[j][j];
            else if (v <= 0)
                return false;
            else
                L[i][i] = std::sqrt(v);
        }
    return true;
}

/// Least k at which the energy is no longer positive.
double Critico(const Matrice& K, const Matrice& G) {
    double basso = 0, alto = 200;
    for (int i = 0; i < 45; ++i) {
        const double k = (basso + alto) / 2;
        (Definita(K, G, k) ? basso : alto) = k;
    }
    return basso;
}

/// Integral of x cos(q pi x) from 0 to 1.
double Momento(int q) { return q == 0 ? 0.5 : (q % 2 == 0 ? 0 : -2) / (q * q * pi * pi); }

/// Plate on four simple supports, length a over width b, stress from 1 to psi across the width: half a wave
/// along, sines across, Ritz.
double Appoggiata(double psi, double lunga) {
    Matrice K{}, G{};
    for (std::size_t i = 0; i < termini; ++i)
        for (std::size_t j = 0; j < termini; ++j) {
            const int n = static_cast<int>(i) + 1, m = static_cast<int>(j) + 1;
            G[i][j] = (n == m ? 0.5 : 0) - (1 - psi) * (Momento(n - m) - Momento(n + m)) / 2;
            if (n == m)
                K[i][i] = std::pow(1 / lunga + n * n * lunga, 2) / 2;
        }
    return Critico(K, G);
}

/// The same with one side along free, stress from psi at the support to 1 at the tip: powers across.
double Sbalzo(double psi, double lunga) {
    constexpr double nu = 0.3;
    constexpr std::size_t usati = 6; // powers of higher degree are as good as dependent
    const double a2 = std::pow(pi / lunga, 2);
    Matrice K{}, G{};
    for (std::size_t i = 0; i < termini; ++i) {
        K[i][i] = 1;
        for (std::size_t j = 0; j < usati && i < usati; ++j) {
            const double n = double(i) + 1, m = double(j) + 1, s = n + m;
            const double unita = 1 / (s + 1), pendenze = n * m / (s - 1);
            const double curve = s > 3 ? n * (n - 1) * m * (m - 1) / (s - 3) : 0;
            const double miste = (n * (n - 1) + m * (m - 1)) / (s - 1);
            K[i][j] = a2 * a2 * unita - nu * a2 * miste + curve + 2 * (1 - nu) * a2 * pendenze;
            G[i][j] = pi * pi * a2 * (psi * unita + (1 - psi) / (s + 2));
        }
    }
    return Critico(K, G);
}

/// The least over the length.
template <typename Piastra> double Minimo(Piastra k, double psi, double da, double a, double passo) {
    double minore = 1e9;
    for (double lunga = da; lunga < a; lunga += passo)
        minore = std::min(minore, k(psi, lunga));
    return minore;
}

TEST_F(Classe4, FattoriDiImbozzamentoPubblicati) {
    const char* const interpola = "La norma interpola con 8,2/(1,05 + ψ).";
    Esempio(Capitolo::classi, "Timoshenko", "capitolo 9, piastra appoggiata sotto flessione e compressione",
            "tensioni da 1 a ψ sulla larghezza, minimo sulla lunghezza")
        .Confronta("k<sub>σ</sub>, ψ 1/3", "-", "5.8", kSigmaPiatto(1.0 / 3), 0.03, interpola)
        .Confronta("k<sub>σ</sub>, ψ 0,2", "-", "6.6", kSigmaPiatto(0.2), 0.01)
        .Confronta("k<sub>σ</sub>, ψ 0", "-", "7.8", kSigmaPiatto(0), 0.01)
        .Confronta("k<sub>σ</sub>, ψ −1/3", "-", "11.0", kSigmaPiatto(-1.0 / 3), 0.01)
        .Confronta("k<sub>σ</sub>, ψ −1", "-", "23.9", kSigmaPiatto(-1), 0.003);
}

TEST_F(Classe4, SottopannelloPubblicato) {
    const double k = kSigmaPiatto(0.406);
    Esempio(Capitolo::classi, "EUR22898", "punto 17.5.2, p. 200",
            "sottopannello d'anima 492x8 mm, ψ 0,406, f<sub>y</sub> 235")
        .Confronta("k<sub>σ</sub>", "-", "5.632", k, 0.0005)
        .Confronta("ρ", "-", "0.871", Rho(492, 8, 235, k), 0.05,
                   "EN 1993-1-5 mette 0,055 (3 + ψ) al posto di 0,22, che la ENV tiene per ogni ψ: il "
                   "programma è a favore di sicurezza.");
}

TEST_F(Classe4, FattoriDiImbozzamentoPerEnergia) {
    Controprova c("Fattori di imbozzamento k<sub>σ</sub>",
                  "energia: la piastra come somma di 14 seni (6 potenze per lo sbalzo) attraverso e mezza "
                  "onda lungo la tensione, il minimo sulla lunghezza; il programma ha le formule della "
                  "norma.",
                  "piastra appoggiata su quattro lati e sbalzo con un lato libero, ν 0,3");
    for (const auto& [psi, nome] :
         {std::pair{1.0, "1"}, {0.5, "0,5"}, {0.0, "0"}, {-0.5, "−0,5"}, {-1.0, "−1"}, {-1.5, "−1,5"}})
        c.Confronta(std::string("anima, ψ ") + nome, "-", Minimo(Appoggiata, psi, 0.3, 1.3, 0.02),
                    kSigmaPiatto(psi), 0.01);
    c.Confronta("sbalzo in compressione uniforme", "-", Sbalzo(1, 30), kSigmaAlaCompressa, 0.015,
                "La norma arrotonda 0,425 a 0,43.")
        .Confronta("sbalzo teso alla radice, ψ 0", "-", Sbalzo(0, 30), kSigmaAlaInflessa, 0.01);
}

/// Horizontal plates of an effective section: width between two levels.
struct Piatto {
    double larga, da, a;
};

struct Composta {
    double A = 0, yG = 0, I = 0;
};

Composta Compone(const std::vector<Piatto>& piatti) {
    Composta c;
    double S = 0, I = 0;
    for (const auto& p : piatti) {
        c.A += p.larga * (p.a - p.da);
        S += p.larga * (p.a * p.a - p.da * p.da) / 2;
        I += p.larga * (std::pow(p.a, 3) - std::pow(p.da, 3)) / 3;
    }
    c.yG = S / c.A;
    c.I = I - c.A * c.yG * c.yG;
    return c;
}

/// Winter's width in the form of the ENV, from the critical stress E/(1 - nu2) pi2/12 k (t/b)2.
double Efficace(double larga, double t, double k, double fy) {
    const double critica = k * pi * pi * 210000 / (12 * (1 - 0.09)) * (t / larga) * (t / larga);
    const double l = std::sqrt(fy / critica);
    return l > 0.673 ? larga * (1 - 0.22 / l) / l : larga;
}

const char* const filo = "Nel contorno resta un filo d'anima di 0,02 mm che lo tiene unito.";

TEST_F(Classe4, TraveDiAliDisugualiPerComposizione) {
    const double h = 1200, b = 300, tw = 8, tf = 10, bi = 360, ti = 20, fy = 355;
    const auto s = Saldata(fy, h, b, tw, tf, bi, ti);
    const double d = h - tf - ti;
    const double ala = 2 * Efficace((b - tw) / 2, tf, Sbalzo(1, 30), fy) + tw;
    const double inf = 2 * Efficace((bi - tw) / 2, ti, Sbalzo(1, 30), fy) + tw;
    const double anima = Efficace(d, tw, Appoggiata(1, 1), fy);
    // Bending: the effective web on the axis that the reduced flange leaves.
    const Composta ridotta = Compone({{ala, h - tf, h}, {tw, ti, h - tf}, {bi, 0, ti}});
    const double compressa = h - tf - ridotta.yG, psi = -(d - compressa) / compressa;
    const double k = Minimo(Appoggiata, psi, 0.3, 1.0, 0.02);
    const double beff = Efficace(d, tw, k, fy) * compressa / d;
    const Composta f = Compone({{ala, h - tf, h},
                                {tw, h - tf - 0.4 * beff, h - tf},
                                {tw, ti, ridotta.yG + 0.6 * beff},
                                {bi, 0, ti}});
    Controprova("Sezione di classe 4 di ali disuguali",
                "composizione dei piatti efficaci; le larghezze dalla tensione critica con i fattori "
                "trovati per energia.",
                "saldata 1200 mm, ali 300x10 e 360x20, anima 8 mm, S355, ala minore compressa")
        .Confronta("A<sub>eff</sub>", "cm²", (ala * tf + inf * ti + anima * tw) / 1e2,
                   s.SezioneComp4->Area / 1e2, 0.005, filo)
        .Confronta("W<sub>eff,y</sub>", "cm³", f.I / (h - f.yG) / 1e3, s.WyEff / 1e3, 0.005)
        .Confronta("baricentro efficace dal basso", "mm", f.yG, s.SezioneWy4->yG, 0.005);
}

/// About z-z only the compressed tips are lost: plates turned by 90 degrees, from the tensioned tip.
struct AliSottili {
    Composta z;
    double compressa, tesa; ///< distances of the fibres [mm]
    AliSottili(double h, double b, double tw, double tf, double fy) {
        const double resta = Efficace((b - tw) / 2, tf, Sbalzo(0, 30), fy), anima = (b - tw) / 2;
        z = Compone({{2 * tf, 0, anima}, {h, anima, anima + tw}, {2 * tf, anima + tw, anima + tw + resta}});
        compressa = anima + tw + resta - z.yG;
        tesa = z.yG;
    }
};

TEST_F(Classe4, AliSottiliPerComposizione) {
    const auto s = Saldata(355, 600, 400, 8, 8);
    const AliSottili t(600, 400, 8, 8, 355);
    Controprova("Ali sottili inflesse nel loro piano",
                "composizione dei piatti efficaci, le punte compresse delle ali ridotte.",
                "saldata 600 mm, ali 400x8, anima 8 mm, S355")
        .Confronta("W<sub>eff,z</sub>, lembo compresso", "cm³", t.z.I / t.compressa / 1e3, s.WzEff / 1e3,
                   0.005)
        .Confronta("e<sub>Nz</sub>", "mm", 200 - t.z.yG, s.eNz, 0.01);
}

TEST_F(Classe4, FibraTesaDelleAli) {
    Regola r("fibra-tesa-delle-ali");
    for (const double b : {300.0, 400.0}) {
        const auto s = Saldata(355, 600, b, 8, 8);
        const AliSottili t(600, b, 8, 8, 355);
        r.Caso("saldata 600 mm, ali " + std::to_string(int(b)) + "x8, anima 8, S355: la fibra che cede prima",
               "M<sub>c,z,Rd</sub>", "kNm", t.z.I / std::max(t.compressa, t.tesa) * 355 / 1e6, s.MczRd / 1e6,
               Verso::resistenza);
    }
}

TEST_F(Classe4, AnimaLaminataCompressa) {
    const auto s = Laminata("IPE 600", 355, 600, 220, 12, 19, 24);
    const double d = 600 - 2 * (19 + 24);
    const double tolta = (d - Efficace(d, 12, Appoggiata(1, 1), 355)) * 12;
    Controprova("Laminata con l'anima di classe 4",
                "area della tavola, 156 cm², meno la striscia d'anima che la tensione critica toglie.",
                "IPE 600, S355, compressione")
        .Confronta("classe", "-", 4, s.ClasseCompressione, 0)
        .Confronta("A<sub>eff</sub>", "cm²", 156 - tolta / 1e2, s.SezioneComp4->Area / 1e2, 0.005);
}

} // namespace
