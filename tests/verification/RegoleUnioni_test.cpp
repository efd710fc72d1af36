// Settled rules of bolts, welds and joints: what they give beside theory or the code of today.
#include <algorithm>
#include <cmath>
#include <numbers>

#include "Profili.h"
#include "Verbale.h"
#include "fasteners/Bullone.h"
#include "fasteners/Saldatura.h"
#include "joints/GiuntoInglese.h"
#include "sections/Eurocod3.h"

using namespace sagomi;
using namespace sagomi::verifica;
using sagomi::prove::GiuntoInglese;

namespace {

class RegoleUnioni : public Ambiente {};

using std::numbers::sqrt2;
using std::numbers::sqrt3;

constexpr auto quale = "UB 533x210x92 su UC 254x254x107, flangia da 25 mm, M24 8.8";

TEST_F(RegoleUnioni, CordoneSenzaDirezione) {
    class Saldatura s;
    s.fu = 430;
    const double trasversale = 430 / (0.85 * 1.25 * sqrt2); // σ = τ across the throat
    Regola("cordone-senza-direzione")
        .Caso("S275, forza normale al cordone (metodo direzionale)", "f<sub>vw,d</sub>", "N/mm²", trasversale,
              s.fvwd(), Verso::resistenza)
        .Caso("S275, forza lungo il cordone", "f<sub>vw,d</sub>", "N/mm²", 430 / (sqrt3 * 0.85 * 1.25),
              s.fvwd(), Verso::resistenza);
}

TEST_F(RegoleUnioni, ResistenzaUltima) {
    Regola r("resistenza-ultima");
    for (const auto& [acciaio, tabella, prodotto, beta] :
         {std::tuple{"S275", 430.0, 410.0, 0.85}, {"S355", 510.0, 470.0, 0.9}}) {
        class Saldatura s;
        s.fu = tabella;
        r.Caso(std::string(acciaio) + ", f<sub>u</sub> di EN 10025-2", "f<sub>vw,d</sub>", "N/mm²",
               prodotto / (sqrt3 * beta * 1.25), s.fvwd(), Verso::resistenza);
    }
}

TEST_F(RegoleUnioni, GiocoDeiBulloniPiccoli) {
    Regola r("gioco-dei-bulloni-piccoli");
    for (const auto& [classe, nome] : {std::pair{8.8, "8.8"}, {10.9, "10.9"}}) {
        Bullone b;
        b.Classe(classe);
        b.d(3); // M12
        b.do_ = 14;
        b.CalcolaResistenzaTaglio();
        const double alfa = classe == 8.8 ? 0.6 : 0.5;
        r.Caso(std::string("M12 ") + nome + " in fori da 14 mm, filetto", "F<sub>v,Rd</sub>", "kN",
               0.85 * alfa * b.fub * b.Ares / 1.25 / 1e3, b.FvRd / 1e3, Verso::resistenza);
    }
}

TEST_F(RegoleUnioni, DistanzeDeiBulloni) {
    Regola r("distanze-dei-bulloni");
    const auto calcola = [](double e2, double p2) {
        Bullone b;
        b.Classe(8.8);
        b.d(7); // M20
        b.CalcolaResistenzaTaglio();
        b.t = 10;
        b.fu = 430;
        b.e1 = b.p1 = 200;
        b.e2 = e2;
        b.p2 = p2;
        b.RifollamentoCalcola();
        return b.FbRd / 1e3;
    };
    const auto norma = [](double e2, double p2) { // EN 1993-1-8 table 3.4, αb = 1
        return std::min({2.8 * e2 / 22 - 1.7, 1.4 * p2 / 22 - 1.7, 2.5}) * 430 * 20 * 10 / 1.25 / 1e3;
    };
    for (const double e2 : {26.4, 30.0, 33.0})
        r.Caso("M20, fori 22, e<sub>2</sub> " + std::to_string(e2).substr(0, 4).replace(2, 1, ",") + " mm",
               "F<sub>b,Rd</sub>", "kN", norma(e2, 200), calcola(e2, 200), Verso::resistenza);
    r.Caso("M20, fori 22, p<sub>2</sub> 50 mm, file sfalsate (EN: p<sub>2</sub> ≥ 1,2 d<sub>0</sub>)",
           "F<sub>b,Rd</sub>", "kN", norma(200, 50), calcola(200, 50), Verso::resistenza);
}

TEST_F(RegoleUnioni, UnaLunghezzaEfficace) {
    GiuntoInglese giunto;
    const Giunto& g = giunto.g;
    const double nc = 4 * g.mc + 1.25 * g.ec, cp = 2 * std::numbers::pi * g.mc, n = g.nColonna_Calcola();
    const auto Mpl = [](double leff) { return 0.25 * leff * 20.5 * 20.5 * 265 / 1e3; };
    const double Bt = g.Bt_Rd();
    const double norma =
        std::min({4 * Mpl(std::min(nc, cp)) / g.mc, (2 * Mpl(nc) + n * 2 * Bt) / (g.mc + n), 2 * Bt});
    Regola("una-lunghezza-efficace")
        .Caso(std::string(quale) + ", ala della colonna, una fila", "F<sub>T,Rd</sub>", "kN", norma,
              g.FtRd_Individuale, Verso::resistenza);
}

TEST_F(RegoleUnioni, DueFileTese) {
    GiuntoInglese giunto;
    const double una = 0.6 * 800 * 353 / 1.25 / 1e3; // shear of one bolt
    Regola("due-file-tese")
        .Caso("P398 esempio C.1, tre file tese (valore pubblicato)", "M<sub>j,Rd</sub>", "kNm", 424,
              giunto.g.MplRdGIUNTO, Verso::resistenza)
        .Caso("due file tese e una compressa, tutte contate", "V<sub>Rd</sub>", "kN",
              (2 + 4 * (1 - 1 / 1.4)) * una, giunto.g.Vrd1, Verso::resistenza);
}

TEST_F(RegoleUnioni, TaglioSenzaRifollamento) {
    GiuntoInglese giunto;
    Giunto& g = giunto.g;
    g.tf = 8;
    g.Derivati_Calcola();
    g.Vrd_Calcola();
    Bullone b;
    b.Classe(8.8);
    b.d(9);
    b.CalcolaResistenzaTaglio();
    b.t = 8;
    b.fu = 430;
    b.e1 = 50;
    b.p1 = b.p2 = 100;
    b.e2 = 75;
    b.RifollamentoCalcola();
    Regola("taglio-senza-rifollamento")
        .Caso("M24 8.8, flangia da 8 mm, S275, e<sub>1</sub> 50: fila compressa", "V<sub>Rd</sub>", "kN",
              2 * std::min<double>(b.FbRd, b.FvRd) / 1e3, g.Vrd0, Verso::resistenza);
}

TEST_F(RegoleUnioni, GolaDelleAli) {
    Regola r("gola-delle-ali");
    for (const std::int16_t file : {std::int16_t{1}, std::int16_t{2}}) {
        GiuntoInglese giunto;
        Giunto& g = giunto.g;
        g.Trave->fu = 430;
        g.Trave->fy = 275;
        g.nf = file;
        g.saldature(1);
        const double piena = 15.6 / 2 * 275 * sqrt2 * 0.85 * 1.25 / 430; // both fillets across the flange
        r.Caso(std::string("UB 533x210x92, S275, ala da 15,6 mm, ") + (file == 1 ? "una fila" : "due file"),
               "gola a<sub>f</sub>", "mm", piena, g.Af, Verso::sollecitazione);
    }
}

TEST_F(RegoleUnioni, PannelloATaglio) {
    GiuntoInglese giunto;
    Giunto& g = giunto.g;
    g.VplRdPannello_Calcola(1);
    const double Av = Giunto::AreaTaglio_Calcola(*g.Colonna);
    Regola("pannello-a-taglio")
        .Caso(std::string(quale) + ", pannello", "V<sub>wp,Rd</sub>", "kN", 0.9 * Av * 265 / sqrt3 / 1e3,
              g.VplRd_Pannello_c, Verso::resistenza);
}

TEST_F(RegoleUnioni, AnimaCompressa) {
    Regola r("anima-compressa");
    for (const bool conTaglio : {false, true}) {
        GiuntoInglese giunto;
        Giunto& g = giunto.g;
        const double beff = g.BeffCompressione_Calcola(), tw = 12.8;
        const double Av = Giunto::AreaTaglio_Calcola(*g.Colonna);
        const double omega = conTaglio ? 1 / std::sqrt(1 + 1.3 * std::pow(beff * tw / Av, 2)) : 1;
        const double dwc = 266.7 - 2 * (20.5 + 12.7);
        const double lamda = 0.932 * std::sqrt(beff * dwc * 265 / (E_acciaio * tw * tw));
        const double rho = lamda > 0.72 ? (lamda - 0.2) / (lamda * lamda) : 1;
        r.Caso(std::string(quale) + (conTaglio ? ", β 1" : ", β 0"), "F<sub>c,wc,Rd</sub>", "kN",
               omega * rho * beff * tw * 265 / 1e3, std::min<double>(g.FcRd_Anima_c, g.NbRd_Anima_c),
               Verso::resistenza);
    }
}

TEST_F(RegoleUnioni, ColonnaCompressa) {
    Regola r("colonna-compressa");
    for (const double quota : {0.6, 0.8, 0.95}) {
        GiuntoInglese giunto;
        Giunto& g = giunto.g;
        g.Colonna->NSd = quota * 265 * g.Colonna->Area / 1e3;
        g.Colonna->Mysd = 0;
        g.Kwc_Calcola();
        g.Kfc_Calcola();
        const std::string dati = "tensione della colonna 0," +
                                 std::string(quota == 0.95  ? "95"
                                             : quota == 0.8 ? "8"
                                                            : "6") +
                                 " f<sub>y</sub>, f<sub>y</sub> 265";
        r.Caso(dati, "k<sub>wc</sub>", "-", quota > 0.7 ? 1.7 - quota : 1, g.Kwc, Verso::resistenza)
            .Caso(dati, "k<sub>fc</sub>", "-", 1, g.Kfc, Verso::resistenza);
    }
}

TEST_F(RegoleUnioni, IrrigidimentoComeAla) {
    GiuntoInglese giunto;
    Giunto& g = giunto.g;
    g.Irrigidimenti = "Cp";
    g.Irr_Spessore = 8;
    g.Irr_B = 100;
    g.FcRd_AnimaColonnaIrrigidita_Calcola();
    Regola("irrigidimento-come-ala")
        .Caso(std::string(quale) + ", irrigidimenti 100x8", "F<sub>c,Rd</sub>", "kN",
              g.FcRd_Anima_c + 2 * 100 * 8 * 265 / 1e3, g.FcRd_AnimaIrrigidita_c, Verso::resistenza);
}

TEST_F(RegoleUnioni, AcciaioDellaFlangia) {
    GiuntoInglese giunto;
    Giunto& g = giunto.g;
    const double flangia265 = g.FtRd_FilaSup_f;
    g.Trave->fy = 355;
    g.RottureFlangia_Calcola();
    Regola("acciaio-della-flangia")
        .Caso("trave S355 (355), flangia S275 (265): fila esterna", "F<sub>T,Rd</sub>", "kN", flangia265,
              g.FtRd_FilaSup_f, Verso::resistenza);
}

TEST_F(RegoleUnioni, LetteraNelNome) {
    auto s = *prove::HEB300();
    const double laminata = Giunto::AreaTaglio_Calcola(s);
    s.Designation = "HE 300 B S235";
    Regola("lettera-nel-nome")
        .Caso("HE 300 B chiamata «HE 300 B S235»", "A<sub>v</sub>", "cm²", laminata / 1e2,
              Giunto::AreaTaglio_Calcola(s) / 1e2, Verso::resistenza);
}

TEST_F(RegoleUnioni, MomentoNegativo) {
    GiuntoInglese due, una;
    una.g.nf = 1;
    una.g.Derivati_Calcola();
    una.g.Mrd_Giunto_Calcola();
    Regola("momento-negativo")
        .Caso(std::string(quale) + ", momento che comprime la sporgenza", "M<sub>j,Rd</sub>", "kNm",
              una.g.MplRdGIUNTO, due.g.MplRdGIUNTO, Verso::resistenza);
}

TEST_F(RegoleUnioni, ForzeDeiBulloni) {
    GiuntoInglese giunto;
    Giunto& g = giunto.g;
    g.tf = 40;
    g.Colonna->tf = 40;
    g.Colonna->tw = 25;
    g.sTraveColonna_Calcola();
    g.Derivati_Calcola();
    g.Mrd_Giunto_Calcola();
    const double sopra = g.FtRd_EffSup, limite = 1.9 * g.Bt_Rd();
    ASSERT_GT(sopra, limite);
    const double sotto = std::min<double>(g.FtRd_EffInf, sopra * g.zInt() / g.zEst());
    Regola("forze-dei-bulloni")
        .Caso("la stessa con flangia e ala da 40 mm: EN 1993-1-8 6.2.7.2 (9)", "M<sub>j,Rd</sub>", "kNm",
              (sopra * g.zEst() + sotto * g.zInt()) / 1e3, g.MplRdGIUNTO, Verso::resistenza);
}

TEST_F(RegoleUnioni, RigidezzaDelGiunto) {
    Regola r("rigidezza-del-giunto");
    for (const bool taglio : {false, true}) {
        GiuntoInglese giunto;
        Giunto& g = giunto.g;
        g.Beta = taglio ? 1 : 0;
        g.Mrd_Giunto_Calcola();
        g.Sj_Giunto_Calcola();
        // EN 1993-1-8 6.3.3.1: each row, then the equivalent spring of both.
        const double tw = 12.8, tfc = 20.5, dc = 266.7 - 2 * (20.5 + 12.7), meta = g.Beff(2) / 2;
        const double k3 = 0.7 * meta * tw / dc, k4 = 0.9 * meta * std::pow(tfc / g.mc, 3),
                     k10 = 1.6 * g.Areares / g.lb;
        const double k5i = 0.9 * g.leffInterna() * std::pow(25 / g.mf, 3),
                     k5e = 0.9 * g.leffEsterna() * std::pow(25 / g.mx, 3);
        const double ki = 1 / (1 / k3 + 1 / k4 + 1 / k5i + 1 / k10),
                     ke = 1 / (1 / k3 + 1 / k4 + 1 / k5e + 1 / k10);
        const double hi = g.zInt(), he = g.zEst();
        const double zeq = (ki * hi * hi + ke * he * he) / (ki * hi + ke * he);
        const double keq = (ki * hi + ke * he) / zeq;
        const double k2 = 0.7 * g.BeffCompressione_Calcola() * tw / dc;
        const double k1 = 0.38 * Giunto::AreaTaglio_Calcola(*g.Colonna) / zeq;
        const double Sj = E_acciaio * zeq * zeq / (1 / keq + 1 / k2 + (taglio ? 1 / k1 : 0)) / 1e6;
        r.Caso(std::string(quale) + (taglio ? ", β 1" : ", β 0"), "S<sub>j,ini</sub>", "MNm/rad", Sj / 1e3,
               g.Sj_Mela / 1e3, Verso::neutro);
    }
}

} // namespace
