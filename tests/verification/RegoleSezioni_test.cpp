// Settled rules of sections: what they give beside theory or the code of today.
#include <algorithm>
#include <cmath>
#include <numbers>

#include "Profili.h"
#include "TraveElementi.h"
#include "Verbale.h"
#include "sections/AreaEfficace.h"
#include "sections/Eurocod3.h"
#include "sections/FibraInferiore.h"
#include "sections/SezioneDoppia.h"
#include "sections/SezioneSagomoL.h"
#include "sections/SezioneSagomoU.h"
#include "sections/Verdetto.h"

using namespace sagomi;
using namespace sagomi::verifica;

namespace {

class RegoleSezioni : public Ambiente {};

constexpr double pi = std::numbers::pi;

/// A length without what rounding leaves of it.
double Intero(double mm) { return std::abs(mm) < 1e-6 ? 0 : mm; }

/// A slender welded section, of class 4 however it is loaded.
SezioneDoppioT Snella() { return Saldata(355, 1000, 300, 6, 12); }

SezioneSagomoU Canale(double h, double b, double tw, double tf, double r1, double r2) {
    SezioneSagomoU s;
    s.fy = 235;
    s.h = h;
    s.b = b;
    s.tw = tw;
    s.tf = tf;
    s.r1 = r1;
    s.r2 = r2;
    s.pendenza = r2;
    return s;
}

TEST_F(RegoleSezioni, Contorno) {
    const auto s = Laminata("IPE 300", 235, 300, 150, 7.1, 10.7, 15);
    const double esatta = 2 * 150 * 10.7 + (300 - 21.4) * 7.1 + (4 - pi) * 15 * 15;
    SezioneSagomoU u = Canale(350, 100, 14, 16, 16, 8);
    u.Area = 7730;
    u.InizializzaSezione();
    Regola("contorno")
        .Caso("IPE 300, raccordi ad arco", "A", "cm²", esatta / 1e2, s.Area / 1e2, Verso::resistenza)
        .Caso("UPN 350, tavole", "A", "cm²", 77.3, u.SezioneGenericaCorrente->Area / 1e2, Verso::resistenza);
}

TEST_F(RegoleSezioni, Costanti) {
    Regola("costanti")
        .Caso("S235", "λ<sub>1</sub>", "-", pi * std::sqrt(E_acciaio / 235), Lamda1(1), Verso::neutro)
        .Caso("EN 1993-1-1 3.2.6", "G", "N/mm²", 81000, G_acciaio, Verso::resistenza);
}

TEST_F(RegoleSezioni, Torsione) {
    const auto ipn = Laminata("IPN 300", 235, 300, 125, 10.8, 16.2, 10.8, 6.5);
    const auto heb = Laminata("HE 240 B", 235, 240, 240, 10, 17, 21);
    const SezioneSagomoU upn = Canale(200, 75, 8.5, 11.5, 11.5, 6);
    Regola("torsione")
        .Caso("HE 240 B, tavole", "I<sub>t</sub>", "cm⁴", 102.7, heb.JT / 1e4, Verso::resistenza)
        .Caso("IPN 300, tavole", "I<sub>t</sub>", "cm⁴", 56.8, ipn.JT / 1e4, Verso::resistenza)
        .Caso("UPN 200, tavole", "I<sub>t</sub>", "cm⁴", 11.9, upn.JotaT() / 1e4, Verso::resistenza);
}

TEST_F(RegoleSezioni, Ingobbamento) {
    const auto s = Saldata(355, 800, 250, 10, 20, 350, 25);
    const auto grossa = Saldata(355, 300, 250, 12, 40, 200, 30);
    SezioneSagomoU upn = Canale(200, 75, 8.5, 11.5, 11.5, 6);
    Regola("ingobbamento")
        .Caso("saldata 800 mm, ali 250x20 e 350x25", "I<sub>w</sub>", "dm⁶",
              PiattiAperti(800, 250, 10, 20, 350, 25).Iw / 1e12, s.Jw / 1e12, Verso::resistenza)
        .Caso("saldata 300 mm, ali 250x40 e 200x30", "I<sub>w</sub>", "dm⁶",
              PiattiAperti(300, 250, 12, 40, 200, 30).Iw / 1e12, grossa.Jw / 1e12, Verso::resistenza)
        .Caso("UPN 200, tavole", "I<sub>w</sub>", "cm⁶", 9070, upn.JotaOmega() / 1e6, Verso::resistenza);
}

TEST_F(RegoleSezioni, AnimaATaglio) {
    const auto s = Saldata(355, 500, 250, 10, 20);
    const auto diversa = Saldata(355, 800, 250, 10, 20, 350, 40);
    const auto snella = Snella();
    const auto norma = [](double hw, double tw, double eta) {
        return eta * hw * tw * 355 / std::numbers::sqrt3 / 1e3;
    };
    const double hw = 1000 - 24, lamda = hw / (86.4 * 6 * std::sqrt(235.0 / 355));
    Regola("anima-a-taglio")
        .Caso("saldata 500 mm, ali 250x20, anima 10", "V<sub>pl,y,Rd</sub>", "kN", norma(460, 10, 1.2),
              s.VplyRd / 1e3, Verso::resistenza)
        .Caso("saldata 800 mm, ali 250x20 e 350x40, anima 10 (η 1)", "V<sub>pl,y,Rd</sub>", "kN",
              norma(740, 10, 1), diversa.VplyRd / 1e3, Verso::resistenza)
        .Caso("saldata 1000 mm, anima 6, con l'imbozzamento (irrigidimenti solo sugli appoggi)",
              "V<sub>Rd</sub>", "kN", norma(hw, 6, 0.83 / lamda), snella.VplyRd / 1e3, Verso::resistenza);
}

TEST_F(RegoleSezioni, AliATaglio) {
    const auto s = Saldata(355, 600, 300, 8, 25, 150, 10);
    const double V = (300 * 25 + 150 * 10) * 355 / std::numbers::sqrt3 / 1e3;
    Regola("ali-a-taglio")
        .Caso("ali 300x25 e 150x10", "V<sub>pl,z,Rd</sub>", "kN", V, s.VplzRd / 1e3, Verso::resistenza)
        .Caso("la stessa, valore accanto", "V<sub>z</sub> delle due ali", "kN", V,
              VplzRdInferiore(s).value_or(0) / 1e3, Verso::resistenza);
}

TEST_F(RegoleSezioni, FibraInferiore) {
    const auto s = Saldata(355, 700, 300, 8, 25, 150, 12);
    const double W = std::min<double>(s.Wely, s.WelyInf);
    ASSERT_EQ(s.ClasseFlessioneY, 3);
    auto carica = s;
    carica.Mysd = 0.9 * s.McyRd;
    Regola("fibra-inferiore")
        .Caso("saldata 700 mm, ali 300x25 e 150x12, anima 8, classe 3", "M<sub>c,y,Rd</sub>", "kNm",
              W * 355 / 1e6, s.McyRd / 1e6, Verso::resistenza)
        .Caso("la stessa, M<sub>y,Sd</sub> = 0,9 M<sub>c,y,Rd</sub>: verdetto", "utilizzo", "-",
              carica.Mysd / (W * 355), GiudicaResistenza(carica).utilizzo, Verso::sollecitazione);
}

/// Class of a web under axial force and bending, EN 1993-1-1 table 5.2, plastic then elastic stress.
int ClasseAnimaNM(double d, double tw, double fy, double A, double N) {
    const double eps = std::sqrt(235 / fy), s = d / tw;
    const double alfa = std::min(1.0, 0.5 * (1 + N / (d * tw * fy)));
    if (s <= 396 * eps / (13 * alfa - 1))
        return 1;
    if (s <= 456 * eps / (13 * alfa - 1))
        return 2;
    const double psi = 2 * N / (A * fy) - 1;
    const double limite = psi > -1 ? 42 * eps / (0.67 + 0.33 * psi) : 62 * eps * (1 - psi) * std::sqrt(-psi);
    return s <= limite ? 3 : 4;
}

TEST_F(RegoleSezioni, ClasseConAssiale) {
    auto alto = Laminata("IPE 600", 355, 600, 220, 12, 19, 24);
    Regola r("classe-con-assiale");
    r.Numero("soglia", alto.Ntrascurabile / 1e3, 0);
    for (const double N : {500e3, 1000e3, 1200e3}) {
        alto.NSd = N;
        InizializzaConAreaEfficace(alto);
        r.Caso("IPE 600, S355, N = " + std::to_string(int(N / 1e3)) + " kN", "classe", "-",
               ClasseAnimaNM(alto.d, 12, 355, alto.Area, N), alto.ClassePressoFlessione,
               Verso::sollecitazione);
    }
    auto saldata = Saldata(355, 560, 300, 8, 20);
    saldata.NSd = 0.9 * saldata.Ntrascurabile;
    saldata.ClassePressoFlessioneCalcola();
    const int classe = ClasseAnimaNM(saldata.d, 8, 355, saldata.Area, saldata.NSd);
    ASSERT_EQ(classe, 3);
    ASSERT_EQ(saldata.ClassePressoFlessione, 2);
    double MNy = 0, MNz = 0, beta = 0;
    saldata.MNRd(MNy, MNz, beta);
    r.Caso("saldata 560 mm, ali 300x20, anima 8, S355, N appena sotto la soglia", "classe", "-", classe,
           saldata.ClassePressoFlessione, Verso::sollecitazione)
        .Caso("la stessa, M<sub>y</sub> che porta con quella N", "M<sub>N,y,Rd</sub>", "kNm",
              saldata.MelyRd * (1 - saldata.NSd / saldata.NplRd) / 1e6, MNy / 1e6, Verso::resistenza);
}

TEST_F(RegoleSezioni, ForzaOltreLaResistenza) {
    auto s = Laminata("HE 200 B", 235, 200, 200, 9, 15, 18);
    s.NSd = 1.3 * s.NplRd;
    s.Mysd = 20e6;
    s.ClassePressoFlessioneCalcola();
    ASSERT_LT(s.ClassePressoFlessione, 3);
    auto mezzo = s;
    mezzo.NSd = 0;
    mezzo.Mysd = 0.8 * s.McyRd;
    mezzo.ClassePressoFlessioneCalcola();
    Regola("forza-oltre-la-resistenza")
        .Caso("HE 200 B, N = 1,3 N<sub>pl,Rd</sub>, M<sub>y</sub> 20 kNm", "somma", "-", 1.3,
              s.InterazioneMNResistenza(), Verso::sollecitazione)
        .Caso("lo stesso: verdetto della finestra", "utilizzo", "-", 1.3, GiudicaResistenza(s).utilizzo,
              Verso::sollecitazione)
        .Caso("HE 200 B, N = 0, M<sub>y</sub> = 0,8 M<sub>c,y,Rd</sub>", "somma", "-", 0.8,
              mezzo.InterazioneMNResistenza(), Verso::sollecitazione);
}

TEST_F(RegoleSezioni, SbalziEfficaci) {
    Regola r("sbalzi-efficaci");
    for (const double t : {12.0, 8.0, 5.0}) {
        const double c = 150, lamda = c / t / (28.4 * std::sqrt(235.0 / 355 * 0.43));
        r.Caso("sbalzo 150x" + std::to_string(int(t)) + ", S355, compressione uniforme", "ρ", "-",
               lamda > 0.748 ? std::min(1.0, (lamda - 0.188) / (lamda * lamda)) : 1.0, Rho(c, t, 355, 0.43),
               Verso::resistenza);
    }
}

TEST_F(RegoleSezioni, PrimaCorsa) {
    const auto nuova = Snella();
    auto quieta = nuova;
    InizializzaConAreaEfficace(quieta);
    Regola("prima-corsa")
        .Caso("saldata 1000 mm, ali 300x12, anima 6, S355: prima inizializzazione", "N<sub>pl,Rd</sub>", "kN",
              nuova.SezioneComp4->Area * 355 / 1e3, nuova.NplRd / 1e3, Verso::resistenza)
        .Caso("la stessa, seconda (così le finestre)", "N<sub>pl,Rd</sub>", "kN",
              quieta.SezioneComp4->Area * 355 / 1e3, quieta.NplRd / 1e3, Verso::resistenza);
}

TEST_F(RegoleSezioni, SpostamentoDelBaricentro) {
    auto s = Snella();
    InizializzaConAreaEfficace(s);
    s.NSd = 500e3;
    s.Mysd = 600e6;
    s.ClassePressoFlessioneCalcola();
    ASSERT_EQ(s.ClassePressoFlessione, 4);
    Regola("spostamento-del-baricentro")
        .Caso("saldata 1000 mm, ali 300x12, anima 6, S355", "e<sub>N,y</sub>", "mm",
              Intero(s.h / 2 - s.SezioneComp4->yG), s.eNy, Verso::sollecitazione)
        .Caso("N 500 kN, M<sub>y</sub> 600 kNm: resistenza della sezione", "somma", "-",
              500e3 / s.NplRd + 600e6 / s.McyRd, s.InterazioneMNResistenza(), Verso::sollecitazione);
}

TEST_F(RegoleSezioni, FattoreDellaClasse4) {
    Normativa = normativaAltro;
    GammaM0Altro = 1;
    GammaM1Altro = 1.1;
    GammaM2Altro = 1.25;
    ImpostaGamma();
    const auto s = Snella();
    Regola("fattore-della-classe-4")
        .Caso("saldata 1000 mm, ali 300x12, anima 6, γ<sub>M0</sub> 1, γ<sub>M1</sub> 1,1",
              "M<sub>c,y,Rd</sub>", "kNm", s.WyEff * 355 / GammaM0 / 1e6, s.McyRd / 1e6, Verso::resistenza);
}

TEST_F(RegoleSezioni, AngolariETorsione) {
    Regola r("angolari-e-torsione");
    for (const double L : {600.0, 2000.0}) {
        SezioneSagomoL s;
        s.fy = 235;
        s.h = s.b = 100;
        s.t = 10;
        s.r1 = 12;
        s.r2 = 6;
        s.InizializzaSezione();
        const SezioneGenerica& g = *s.SezioneGenericaCorrente;
        s.Area = g.Area;
        s.iY = s.Iz = std::sqrt(g.JotaXG / g.Area);
        s.iV = g.Rho2;
        s.L0y = s.L0z = s.L0v = L;
        s.InizializzaSezione();
        // Flexural-torsional about the axis of symmetry: shear centre at the crossing of the mid-lines.
        const double y0 = (g.xG - 5) * std::numbers::sqrt2, iu = g.Rho1;
        const double i0 = iu * iu + s.iV * s.iV + y0 * y0;
        const double NcrT = G_acciaio * (190 * 1000 / 3.0) / i0;
        const double Ncru = pi * pi * E_acciaio * g.JotaIG / (L * L);
        const double beta = 1 - y0 * y0 / i0, somma = Ncru + NcrT;
        const double Ncr = (somma - std::sqrt(somma * somma - 4 * beta * Ncru * NcrT)) / (2 * beta);
        const double lamda = std::sqrt(s.betaA() * g.Area * 235 / Ncr);
        const double Nb = Chi(AlfaCurva("b"), lamda) * g.Area * s.betaA() * 235;
        r.Caso("L 100x10, S235, " + std::to_string(int(L)) + " mm", "N<sub>b,Rd</sub> minore", "kN",
               std::min(Nb, s.NbvRd) / 1e3, std::min({s.NbyRd, s.NbzRd, s.NbvRd}) / 1e3, Verso::resistenza);
    }
}

TEST_F(RegoleSezioni, CanaliETorsione) {
    Regola r("canali-e-torsione");
    for (const double L0z : {1000.0, 3000.0}) {
        SezioneSagomoU s = Canale(200, 75, 8.5, 11.5, 11.5, 6);
        s.Area = 3220;
        s.iY = 77;
        s.Iz = 21.4;
        s.L0y = 3000;
        s.L0z = L0z;
        s.InizializzaSezione();
        const double L = 3000, y0 = 39.4; // centroid to shear centre, of the tables
        const double i0 = 77 * 77 + 21.4 * 21.4 + y0 * y0;
        const double NcrT = (G_acciaio * 11.9e4 + pi * pi * E_acciaio * 9070e6 / (L * L)) / i0;
        const double Ncry = pi * pi * E_acciaio * 3220 * 77 * 77 / (L * L);
        const double beta = 1 - y0 * y0 / i0, somma = Ncry + NcrT;
        const double Ncr = (somma - std::sqrt(somma * somma - 4 * beta * Ncry * NcrT)) / (2 * beta);
        const double Nb = Chi(AlfaCurva("c"), std::sqrt(3220 * 235 / Ncr)) * 3220 * 235;
        r.Caso("UPN 200, S235, L<sub>0y</sub> 3 m, L<sub>0z</sub> " + std::to_string(int(L0z / 1e3)) + " m",
               "N<sub>b,Rd</sub> minore", "kN", std::min({Nb, s.NbyRd, s.NbzRd}) / 1e3,
               std::min(s.NbyRd, s.NbzRd) / 1e3, Verso::resistenza);
    }
}

TEST_F(RegoleSezioni, CoppieSenzaTaglio) {
    SezioneSagomoU s = Canale(120, 55, 7, 9, 9, 4.5);
    s.Area = 1700;
    s.Jy = 364e4;
    s.Jz = 43.2e4;
    s.iY = 46.2;
    s.Iz = 15.9;
    s.InizializzaSezione();
    RendeDoppia(s, SingoloDi(s), 10, false);
    s.L0y = s.L0z = 4000;
    Regola r("coppie-senza-taglio");
    for (const double passo : {200.0, 1000.0}) {
        s.InizializzaSezione();
        const double lamda1 = passo > 15 * 15.9 ? passo / 15.9 : 0;
        const double lamda = std::hypot(s.LamdaZ(), lamda1);
        r.Caso("due UPN 120 a 10 mm, L<sub>0z</sub> 4 m, imbottiture ogni " + std::to_string(int(passo)) +
                   " mm",
               "N<sub>b,z,Rd</sub>", "kN", ChiFyM1(lamda, 235, 1, "c") * s.Area / 1e3, s.NbzRd / 1e3,
               Verso::resistenza);
    }
}

} // namespace
