// Bolts, welds and an end-plate joint: published examples.
#include <cmath>
#include <numbers>

#include "Profili.h"
#include "Verbale.h"
#include "fasteners/Bullone.h"
#include "fasteners/Saldatura.h"
#include "joints/GiuntoInglese.h"

using namespace sagomi;
using namespace sagomi::verifica;
using sagomi::prove::GiuntoInglese;

namespace {

class CollegamentiPubblicati : public Ambiente {};

constexpr double lontano = 1000; ///< a distance that limits nothing [mm]
constexpr std::int16_t M20 = 7;
constexpr std::int16_t M24 = 9;

struct Piastra {
    double t, fu, e1, p1, e2, p2;
};

Bullone Calcola(double classe, std::int16_t posizione, const Piastra& p) {
    Bullone b;
    b.Classe(classe);
    b.d(posizione);
    b.CalcolaResistenzaTaglio();
    b.t = p.t;
    b.fu = p.fu;
    b.e1 = p.e1;
    b.p1 = p.p1;
    b.e2 = p.e2;
    b.p2 = p.p2;
    b.RifollamentoCalcola();
    return b;
}

const char* const alfaArrotondata = "La pubblicazione arrotonda α<sub>b</sub> 0,606 a 0,61.";

TEST_F(CollegamentiPubblicati, BulloniDiUnPiattoDAnima) {
    const Bullone ver = Calcola(8.8, M20, {10, 430, 40, 70, 50, 60});
    const Bullone oriz = Calcola(8.8, M20, {10, 430, 50, 60, 40, 70});
    const Bullone animaVer = Calcola(8.8, M20, {9, 430, lontano, 70, 40, 60});
    const Bullone animaOriz = Calcola(8.8, M20, {9, 430, 40, 60, lontano, 70});
    Esempio(Capitolo::collegamenti, "MSB05", "esempio 3.4, pp. 5-40...5-42",
            "M20 8.8, fori 22; piatto 10 mm, anima 9 mm, f<sub>u</sub> 430")
        .Confronta("F<sub>v,Rd</sub>", "kN", "94", ver.FvRd / 1e3, 0.005)
        .Confronta("F<sub>b,ver,Rd</sub>, piatto (e<sub>1</sub> 40, p<sub>1</sub> 70, e<sub>2</sub> 50, "
                   "p<sub>2</sub> 60)",
                   "kN", "89", ver.FbRd / 1e3, 0.01, alfaArrotondata)
        .Confronta("F<sub>b,hor,Rd</sub>, piatto", "kN", "114", oriz.FbRd / 1e3, 0.01, alfaArrotondata)
        .Confronta("F<sub>b,ver,Rd</sub>, anima", "kN", "106", animaVer.FbRd / 1e3, 0.01)
        .Confronta("F<sub>b,hor,Rd</sub>, anima", "kN", "94", animaOriz.FbRd / 1e3, 0.01);
}

TEST_F(CollegamentiPubblicati, BulloniDiDueAngolari) {
    const Bullone angolare = Calcola(8.8, M20, {10, 430, 40, 70, 40, lontano});
    const Bullone anima = Calcola(8.8, M20, {9, 430, lontano, 70, 40, lontano});
    Esempio(Capitolo::collegamenti, "MSB05", "esempio 4.4, pp. 5-71...5-73",
            "M20 8.8, angolari 10 mm, anima 9 mm")
        .Confronta("F<sub>b,ver,Rd</sub>, angolare", "kN", "105", angolare.FbRd / 1e3, 0.01, alfaArrotondata)
        .Confronta("F<sub>b,ver,Rd</sub>, anima", "kN", "125", anima.FbRd / 1e3, 0.01);
    const Bullone b = Calcola(5.6, M20, {8, 360, lontano, 70, 35, lontano});
    Esempio(Capitolo::collegamenti, "JRC-Wald", "doppio angolare bullonato",
            "M20 5.6, piatto 8 mm, f<sub>u</sub> 360, "
            "e<sub>2</sub> 35, p<sub>1</sub> 70")
        .Confronta("F<sub>v,Rd</sub>, due piani", "kN", "117.6", 2 * b.FvRd / 1e3, 0.001)
        .Confronta("α<sub>b</sub>", "-", "0.811", b.alfa, 0.001)
        .Confronta("F<sub>b,Rd</sub>", "kN", "93.4", b.FbRd / 1e3, 0.002);
    const Bullone t = Calcola(8.8, M24, {10, 430, lontano, lontano, lontano, lontano});
    Esempio(Capitolo::collegamenti, "P398", "esempio C.1, foglio 5", "M24 8.8")
        .Confronta("F<sub>t,Rd</sub>", "kN", "203", t.FtRd / 1e3, 0.005);
}

TEST_F(CollegamentiPubblicati, BulloniDelleTabelle) {
    struct Riga {
        const char* nome;
        std::int16_t posizione;
        double classe;
        const char *FvRd, *FtRd; // null where the table was not read
    };
    Esempio e(Capitolo::collegamenti, "Orange", "tabelle dei bulloni",
              "bulloni M16, M20 e M24: un piano di taglio sul filetto, trazione");
    for (const Riga& r : {Riga{"M16 4.6", 5, 4.6, "30.1", "45.2"},
                          {"M20 4.6", 7, 4.6, "47.0", "70.6"},
                          {"M24 4.6", 9, 4.6, "67.8", "102"},
                          {"M16 8.8", 5, 8.8, "60.3", nullptr},
                          {"M20 8.8", 7, 8.8, "94.1", "141"},
                          {"M24 8.8", 9, 8.8, "136", nullptr},
                          {"M16 10.9", 5, 10.9, "62.8", nullptr},
                          {"M20 10.9", 7, 10.9, "98.0", nullptr},
                          {"M24 10.9", 9, 10.9, "141", nullptr}}) {
        Bullone b;
        b.Classe(r.classe);
        b.d(r.posizione);
        b.CalcolaResistenzaTaglio();
        e.Confronta(std::string(r.nome) + ", F<sub>v,Rd</sub>", "kN", r.FvRd, b.FvRd / 1e3, 0.005);
        if (r.FtRd != nullptr)
            e.Confronta(std::string(r.nome) + ", F<sub>t,Rd</sub>", "kN", r.FtRd, b.FtRd / 1e3, 0.005);
    }
}

TEST_F(CollegamentiPubblicati, Saldatura) {
    class Saldatura cordone;
    cordone.fu = 430;
    Esempio(Capitolo::collegamenti, "MSB05", "esempio 6.5",
            "cordone da 8 mm (gola 5,6), S275, f<sub>u</sub> 410")
        .Confronta("F<sub>w,Rd</sub>", "N/mm", "1248", cordone.fvwd() * 5.6, 0.06,
                   "L'esempio usa f<sub>u</sub> 410 di EN 10025, il programma 430 di EN 1993-1-1 tabella "
                   "3.1, per la "
                   "quale la norma dà il coefficiente di correlazione.");
}

TEST_F(CollegamentiPubblicati, GiuntoFlangiato) {
    const GiuntoInglese inglese;
    const Giunto& g = inglese.g;
    const char* const dueFile =
        "Il programma conta al più due file in trazione; la pubblicazione ne conta tre.";
    Esempio(Capitolo::giunti, "P398", "esempio C.1, fogli 2-7 e risultato",
            "UB 533x210x92 su UC 254x254x107, flangia 670x250x25, M24 8.8, S275, tre file tese, nessun "
            "taglio nel pannello")
        .Confronta("m, ala della colonna", "mm", "33.4", g.mc, 0.002)
        .Confronta("m<sub>x</sub>, flangia", "mm", "30.4", g.mx, 0.002)
        .Confronta("l<sub>eff,cp</sub>, ala della colonna", "mm", "210", g.Beff(1), 0.005)
        .Confronta(
            "F<sub>T,Rd</sub>, ala, una fila", "kN", "398", g.FtRd_Individuale, 0.05,
            "La ENV dà una sola lunghezza efficace per i tre modi; EN 1993-1-8 prende per il modo 2 la sola "
            "lunghezza non circolare, 233 mm.")
        .Confronta("l<sub>eff,nc</sub>, flangia esterna", "mm", "125", g.leffEsterna(), 0.001)
        .Confronta("F<sub>T,Rd</sub>, flangia esterna", "kN", "377", g.FtRd_FilaSup_f, 0.005)
        .Confronta("F<sub>T,3,Rd</sub>", "kN", "406", 2 * g.Bt_Rd(), 0.005)
        .Confronta("M<sub>j,Rd</sub>", "kNm", "424", g.MplRdGIUNTO, 0.16, dueFile)
        .Confronta("V<sub>Rd</sub>", "kN", "499", g.Vrd1, 0.32,
                   "Il programma conta una fila tesa e quella compressa, la pubblicazione tutte e quattro.");
}

} // namespace
