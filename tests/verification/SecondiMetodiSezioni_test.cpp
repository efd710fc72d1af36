// Sections by a second method: plates, strips, torsion by finite differences.
#include <algorithm>
#include <cmath>
#include <functional>
#include <numbers>
#include <vector>

#include "Profili.h"
#include "TraveElementi.h"
#include "Verbale.h"
#include "sections/Eurocod3.h"
#include "sections/SezioneSagomoL.h"

using namespace sagomi;
using namespace sagomi::verifica;

namespace {

class SecondiMetodiSezioni : public Ambiente {};

constexpr double pi = std::numbers::pi;

/// Horizontal strips of a rolled double-T, by the widths of flanges, web and true circular fillets.
double LarghezzaLaminata(double h, double b, double tw, double tf, double r, double y) {
    const double dal = std::min(y, h - y); // from the nearer face
    if (dal < tf)
        return b;
    const double sopra = dal - tf;
    return sopra >= r ? tw : tw + 2 * (r - std::sqrt(std::max(0.0, r * r - (r - sopra) * (r - sopra))));
}

struct Strisce {
    double A = 0, Iy = 0, Wpl = 0, Iz = 0;
};

Strisce Integra(double h, const std::function<double(double)>& larghezza) {
    constexpr int n = 200000;
    Strisce s;
    const double dy = h / n;
    for (int i = 0; i < n; ++i) {
        const double y = (i + 0.5) * dy - h / 2;
        const double l = larghezza(y + h / 2);
        s.A += l * dy;
        s.Iy += l * dy * y * y;
        s.Wpl += l * dy * std::abs(y);
        s.Iz += l * l * l / 12 * dy;
    }
    return s;
}

TEST_F(SecondiMetodiSezioni, StrisceDiUnaLaminata) {
    const auto s = Laminata("HE 300 B", 235, 300, 300, 11, 19, 27);
    const Strisce t = Integra(300, [](double y) { return LarghezzaLaminata(300, 300, 11, 19, 27, y); });
    Controprova("Contorno di una sezione laminata",
                "200 000 strisce orizzontali con i raccordi ad arco di cerchio; il programma usa un "
                "poligono, ogni arco una "
                "spezzata di 8 corde.",
                "HE 300 B")
        .Confronta("A", "cm²", t.A / 1e2, s.Area / 1e2, 0.002)
        .Confronta("I<sub>y</sub>", "cm⁴", t.Iy / 1e4, s.Jy / 1e4, 0.002)
        .Confronta("W<sub>pl,y</sub>", "cm³", t.Wpl / 1e3, s.Wply / 1e3, 0.002)
        .Confronta("I<sub>z</sub>", "cm⁴", t.Iz / 1e4, s.Jz / 1e4, 0.002);
}

TEST_F(SecondiMetodiSezioni, PiattiDiUnaSaldata) {
    const double h = 800, b = 250, tw = 10, tf = 20, b2 = 350, t2 = 25;
    auto s = Saldata(355, h, b, tw, tf, b2, t2);
    const double A1 = b * tf, A2 = b2 * t2, hw = h - tf - t2, Aw = hw * tw, A = A1 + A2 + Aw;
    const double yG = (A1 * (h - tf / 2) + A2 * t2 / 2 + Aw * (t2 + hw / 2)) / A;
    const auto terzo = [](double larga, double alta, double d) {
        return larga * alta * alta * alta / 12 + larga * alta * d * d;
    };
    const double Iy =
        terzo(b, tf, h - tf / 2 - yG) + terzo(b2, t2, yG - t2 / 2) + terzo(tw, hw, t2 + hw / 2 - yG);
    const double yP = t2 + (A / 2 - A2) / tw; // equal areas, in the web
    const double Wpl = A1 * (h - tf / 2 - yP) + A2 * (yP - t2 / 2) +
                       tw * (std::pow(h - tf - yP, 2) + std::pow(yP - t2, 2)) / 2;
    const PiattiAperti aperti(h, b, tw, tf, b2, t2);
    Controprova("Sezione saldata con ali diverse",
                "composizione dei tre piatti; ingobbamento dalle linee medie.",
                "800 mm, ala superiore 250x20, inferiore 350x25, anima 10 mm, senza cordoni")
        .Confronta("A", "cm²", A / 1e2, s.Area / 1e2, 1e-5)
        .Confronta("y<sub>G</sub>", "mm", yG, s.yG, 1e-5)
        .Confronta("I<sub>y</sub>", "cm⁴", Iy / 1e4,
                   s.Jy / 1e4 > 0 ? s.Jy / 1e4 : s.SezioneGenericaCorrente->JotaXG / 1e4, 1e-5)
        .Confronta("W<sub>el</sub> superiore", "cm³", Iy / (h - yG) / 1e3, s.Wely / 1e3, 1e-5)
        .Confronta("W<sub>el</sub> inferiore", "cm³", Iy / yG / 1e3, s.WelyInf / 1e3, 1e-5)
        .Confronta("W<sub>pl,y</sub>", "cm³", Wpl / 1e3, s.Wply / 1e3, 1e-5)
        .Confronta("I<sub>w</sub>", "cm⁶", aperti.Iw / 1e6, s.Jw / 1e6, 0.06,
                   "Il programma misura la distanza delle ali come h − t<sub>f,sup</sub> − t<sub>f,inf</sub> "
                   "invece che tra le "
                   "linee medie: a favore di sicurezza.");
}

/// Torsion constant of a quarter of a double-T by Prandtl's function on a grid: half thicknesses and flange
/// are whole steps; over-relaxation. @return of the whole section [mm4]
double TorsionePrandtl(double h, double b, double tw, double tf, double r, double passo) {
    const auto nx = static_cast<std::size_t>(std::lround(b / 2 / passo));
    const auto ny = static_cast<std::size_t>(std::lround(h / 2 / passo));
    const auto dentro = [&](std::size_t i, std::size_t j) { // x from the axis of the web, y from mid-height
        const double x = double(i) * passo, y = double(j) * passo;
        if (i >= nx || j >= ny)
            return false;
        return 2 * x < LarghezzaLaminata(h, b, tw, tf, r, h / 2 + y) - 1e-9;
    };
    std::vector<std::vector<double>> f(nx + 1, std::vector<double>(ny + 1));
    std::vector<std::pair<std::size_t, std::size_t>> punti;
    for (std::size_t i = 0; i <= nx; ++i)
        for (std::size_t j = 0; j <= ny; ++j)
            if (dentro(i, j))
                punti.emplace_back(i, j);
    constexpr double omega = 1.9;
    for (int giro = 0; giro < 1500; ++giro)
        for (const auto& [i, j] : punti) {
            const double ovest = i == 0 ? f[1][j] : f[i - 1][j], sud = j == 0 ? f[i][1] : f[i][j - 1];
            const double nuovo = (ovest + f[i + 1][j] + sud + f[i][j + 1] + 2 * passo * passo) / 4;
            f[i][j] += omega * (nuovo - f[i][j]);
        }
    double somma = 0;
    for (const auto& [i, j] : punti)
        somma += f[i][j] * (i == 0 ? 0.5 : 1) * (j == 0 ? 0.5 : 1);
    return 2 * 4 * somma * passo * passo;
}

TEST_F(SecondiMetodiSezioni, TorsioneAlleDifferenzeFinite) {
    const auto he = Laminata("HE 240 B", 235, 240, 240, 10, 17, 21);
    const auto saldata = Saldata(235, 240, 240, 10, 17);
    const auto estrapola = [](double r) {
        const double fine = TorsionePrandtl(240, 240, 10, 17, r, 0.5);
        return 2 * fine - TorsionePrandtl(240, 240, 10, 17, r, 1);
    };
    Controprova(
        "Costante di torsione",
        "funzione di Prandtl alle differenze finite su un quarto della sezione, a passi di 1 e di 0,5 mm, "
        "estrapolata.",
        "HE 240 B (I<sub>t</sub> delle tavole 102,7 cm⁴); la stessa saldata, senza raccordi")
        .Confronta(
            "I<sub>t</sub>, HE 240 B", "cm⁴", estrapola(21) / 1e4, he.JT / 1e4, 0.02,
            "La formula, che è quella delle tavole, somma anima, ali e nodi con coefficienti approssimati.")
        .Confronta("I<sub>t</sub>, saldata", "cm⁴", estrapola(0) / 1e4, saldata.JT / 1e4, 0.03,
                   "La somma dei rettangoli b t³/3 trascura le estremità libere, che tolgono, e i nodi, che "
                   "aggiungono.");
}

TEST_F(SecondiMetodiSezioni, AssePrincipaleDiUnAngolare) {
    SezioneSagomoL s;
    s.fy = 235;
    s.h = 150;
    s.b = 100;
    s.t = 10;
    s.r1 = 12;
    s.r2 = 6;
    s.Area = 2420;
    s.InizializzaSezione();
    const Poligono& p = *s.SezioneGenericaCorrente->Poligono;
    double minimo = 1e30;
    for (int i = 0; i < 18000; ++i) {
        const double a = pi * i / 18000, c = std::cos(a), n = std::sin(a);
        minimo = std::min(minimo, p.IxG * c * c + p.IyG * n * n - 2 * p.IxyG * n * c);
    }
    Controprova("Raggio d'inerzia minimo di un angolare",
                "ricerca della giacitura che rende minimo il momento d'inerzia, ogni "
                "centesimo di grado.",
                "L 150x100x10")
        .Confronta("i<sub>v</sub>", "mm", std::sqrt(minimo / p.Area), s.SezioneGenericaCorrente->Rho2, 1e-5);
}

/// Plastic moment of a rolled double-T under an axial force, by strips.
double MomentoConForza(double h, double b, double tw, double tf, double r, double fy, double N) {
    constexpr int n = 40000;
    const double dy = h / n;
    double basso = 0, alto = h;
    double M = 0;
    for (int giro = 0; giro < 32; ++giro) {
        const double yN = (basso + alto) / 2; // compressed above
        double F = 0;
        M = 0;
        for (int i = 0; i < n; ++i) {
            const double y = (i + 0.5) * dy;
            const double f =
                fy * std::clamp(2 * (y - yN) / dy, -1.0, 1.0) * LarghezzaLaminata(h, b, tw, tf, r, y) * dy;
            F += f;
            M += f * (y - h / 2);
        }
        (F > N ? basso : alto) = yN;
    }
    return M;
}

TEST_F(SecondiMetodiSezioni, MomentoPlasticoRidotto) {
    auto s = Laminata("IPE 500", 235, 500, 200, 10.2, 16, 21);
    Controprova c("Momento plastico ridotto dallo sforzo normale",
                  "equilibrio plastico di 40 000 strisce della sezione intera, con l'asse neutro che dà lo "
                  "sforzo normale.",
                  "IPE 500, S235");
    Grafico::Punti norma, strisce;
    for (int i = 0; i <= 20; ++i) {
        s.NSd = 0.05 * i * s.NplRd;
        double MNy = 0, MNz = 0, beta = 0;
        s.MNRd(MNy, MNz, beta);
        norma.emplace_back(0.05 * i, MNy / s.McyRd);
        strisce.emplace_back(0.05 * i, MomentoConForza(500, 200, 10.2, 16, 21, 235, s.NSd) / s.McyRd);
    }
    Grafico("Momento plastico ridotto dallo sforzo normale", "Dominio plastico di una IPE 500.", "N / Npl",
            "M / Mpl")
        .Serie("Sagomi", norma)
        .Serie("equilibrio di strisce", strisce);
    for (const double n : {0.2, 0.4, 0.6, 0.8}) {
        s.NSd = n * s.NplRd;
        double MNy = 0, MNz = 0, beta = 0;
        s.MNRd(MNy, MNz, beta);
        c.Confronta("M<sub>N,y,Rd</sub>, N = " + std::to_string(n).replace(1, 1, ",").substr(0, 3) +
                        " N<sub>pl</sub>",
                    "kNm", MomentoConForza(500, 200, 10.2, 16, 21, 235, s.NSd) / 1e6, MNy / 1e6, 0.07,
                    "La norma trascura N fino a un quarto della resistenza e sostituisce poi alla curva "
                    "esatta una retta: con "
                    "poco sforzo normale dà di più dell'equilibrio esatto.");
    }
}

TEST_F(SecondiMetodiSezioni, Classe4PerComposizione) {
    const double h = 1000, b = 300, tw = 6, tf = 12, fy = 355;
    auto s = Saldata(fy, h, b, tw, tf);
    const double d = h - 2 * tf, c = (b - tw) / 2, eps = std::sqrt(235 / fy);
    const auto rho = [&](double larga, double t, double k) {
        const double l = larga / t / (28.4 * eps * std::sqrt(k));
        return l > 0.673 ? (l - 0.22) / (l * l) : 1;
    };
    const double ala = 2 * rho(c, tf, 0.43) * c + tw;
    const double Aeff = 2 * ala * tf + rho(d, tw, 4) * d * tw;
    // Bending: the web from the axis of the section with the reduced flange; psi is not -1.
    const double A1 = ala * tf + b * tf + d * tw;
    const double y1 = (ala * tf * (h - tf / 2) + b * tf * tf / 2 + d * tw * h / 2) / A1;
    const double psi = -(y1 - tf) / (h - tf - y1);
    const double k = psi > -1 ? 7.81 - 6.29 * psi + 9.78 * psi * psi : 5.98 * (1 - psi) * (1 - psi);
    const double bc = d / (1 - psi), beff = rho(d, tw, k) * bc, be1 = 0.4 * beff, be2 = 0.6 * beff;
    const double y0 = h - tf - bc; // neutral axis of the web
    struct Piatto {
        double larga, da, a;
    };
    const std::vector<Piatto> piatti{
        {ala, h - tf, h}, {tw, h - tf - be1, h - tf}, {tw, tf, y0 + be2}, {b, 0, tf}};
    double A = 0, S = 0, I = 0;
    for (const auto& p : piatti) {
        A += p.larga * (p.a - p.da);
        S += p.larga * (p.a * p.a - p.da * p.da) / 2;
        I += p.larga * (std::pow(p.a, 3) - std::pow(p.da, 3)) / 3;
    }
    const double yG = S / A, Weff = (I - A * yG * yG) / (h - yG);
    Controprova("Sezione di classe 4",
                "composizione dei piatti efficaci, larghezze dalle formule della norma scritte qui di nuovo; "
                "il programma taglia "
                "il contorno poligonale.",
                "saldata 1000 mm, ali 300x12, anima 6 mm, S355")
        .Confronta("classe in compressione", "-", 4, s.ClasseCompressione, 0)
        .Confronta("A<sub>eff</sub>", "cm²", Aeff / 1e2, s.SezioneComp4->Area / 1e2, 0.0025,
                   "Nel contorno resta un filo d'anima di 0,02 mm che lo tiene unito.")
        .Confronta("W<sub>eff,y</sub>", "cm³", Weff / 1e3, s.WyEff / 1e3, 0.001)
        .Confronta("e<sub>Ny</sub>", "mm", h / 2 - yG, s.eNy, 0.01);
}

} // namespace
