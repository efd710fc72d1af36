#include "fasteners/Bullone.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

#include "fasteners/Rapporto.h"
#include "frame/GeneraleSagomi.h"
#include "frame/Messaggi.h"
#include "frame/Numeri.h"
#include "geometry/Matematica.h"

namespace sagomi {

namespace {

// Classes by their shear coefficient on the thread, table 6.5.3. They are compared as they are stored.
constexpr std::array classi06{4.6F, 5.6F, 8.8F};
constexpr std::array classi05{4.8F, 5.8F, 6.8F, 10.9F};

constexpr double giocoRidotto = 0.85;        ///< shear through M12 and M14 in holes of larger play, 6.5.5 (8)
constexpr double riduzioneMassima = 2.0 / 3; ///< bearing at the least distance across the load, 6.5.5 (10)

// Diameters that part the standard plays of 1, 2 and 3 mm [mm].
constexpr int diametroMedio = 15;
constexpr int diametroGrande = 24;

template <std::size_t n> bool Contiene(const std::array<float, n>& classi, Singolo classe) {
    return std::ranges::find(classi, classe.Stretto()) != classi.end();
}

/// On the straight line from the least distance, where bearing is reduced most, to the one that leaves it
/// whole. The two differ wherever there is a hole.
double Riduzione(double distanza, double minima, double intera) {
    return yInterpola(minima, riduzioneMassima, intera, 1, distanza).value_or(1);
}

} // namespace

// Heads by product grade A up to M24, by grade B above; ISO 4014, 4032 and 7089 end at M64.
const Tabella1<DimensioneBullone>& TabellaBulloni() {
    // clang-format off
    static const Tabella1<DimensioneBullone> tabella{
        { 8,  38.6,  5.3,  14.38,  13,  6.8,  16, 1.6},
        {10,    58,  6.4,  17.77,  16,  8.4,  20,   2},
        {12,  84.3,  7.5,  20.03,  18, 10.8,  24, 2.5},
        {14,   115,  8.8,  23.36,  21, 12.8,  28, 2.5},
        {16,   157,   10,  26.75,  24, 14.8,  30,   3},
        {18,   192, 11.5,  30.14,  27, 15.8,  34,   3},
        {20,   245, 12.5,  33.53,  30,   18,  37,   3},
        {22,   303,   14,  37.72,  34, 19.4,  39,   3},
        {24,   353,   15,  39.98,  36, 21.5,  44,   4},
        {27,   459,   17,   45.2,  41, 23.8,  50,   4},
        {30,   581, 18.7,  50.85,  46, 25.6,  56,   4},
        {33,   694,   21,  55.37,  50, 28.7,  60,   5},
        {36,   817, 22.5,  60.79,  55,   31,  66,   5},
        {39,   976,   25,  66.44,  60, 33.4,  72,   6},
        {42,  1120,   26,   71.3,  65,   34,  78,   8},
        {45,  1310,   28,  76.95,  70,   36,  85,   8},
        {48,  1470,   30,   82.6,  75,   38,  92,   8},
        {52,  1760,   33,  88.25,  80,   42,  98,   8},
        {56,  2030,   35,  93.56,  85,   45, 105,  10},
        {60,  2360,   38,  99.21,  90,   48, 110,  10},
        {64,  2680,   40, 104.86,  95,   51, 115,  10},
        {68,  3060,   43, 110.51, 100,   54, 120,  10}};
    // clang-format on
    return tabella;
}

// ENV 1993-1-1 6.5.5 (5).
TerminiTaglioTrazione Bullone::TerminiInterazione() const {
    return {.taglio = Rapporto(FvSd, FvRd), .trazione = Rapporto(FtSd / 1.4, FtRd)};
}

double Bullone::InterazioneTaglioTrazione() const { return TerminiInterazione().Somma(); }

// ENV 1993-1-1 table 3.3: nominal strengths of the bolt classes.
void Bullone::Classe(Singolo classe) {
    Classe_ = classe;
    const double n = std::floor(classe);
    const Singolo f = classe - n; // not rounded to one decimal: 8.8 is 8.80000019 in 32 bits
    fub = n * 100;
    fyb = n * f * 100;
}

void Bullone::d(std::int16_t posizione) {
    const DimensioneBullone& riga = TabellaBulloni()[posizione];
    d_ = riga.d;
    Ares = riga.Ares;
    Alorda = double(d_) * d_ * std::numbers::pi / 4;
    Ataglio = Gambo ? Alorda : Ares;
    do_ = DiametroForoStandard();
}

// ENV 1993-1-1 table 6.5.3; M12 and M14 in larger holes by 6.5.5 (8).
void Bullone::CalcolaResistenzaTaglio() {
    FtRd = 0.9 * fub * Ares / GammaM2;
    FvRdGambo = 0.6 * fub * Alorda / GammaM2;
    if (Contiene(classi06, Classe_)) {
        FvRdFilettata = 0.6 * fub * Ares / GammaM2;
    } else if (Contiene(classi05, Classe_)) {
        FvRdFilettata = 0.5 * fub * Ares / GammaM2;
        if (GrandeGioco())
            FvRdFilettata *= giocoRidotto;
    } else {
        Avvisa("Classe bullone non implementata");
    }
    Ataglio = Gambo ? Alorda : Ares;
    FvRd = Gambo ? FvRdGambo : FvRdFilettata;
}

bool Bullone::GrandeGioco() const { return d_ < diametroMedio && do_ - d_ > 1; }

double Bullone::alfaV() const { return !Gambo && Contiene(classi05, Classe_) ? 0.5 : 0.6; }

double Bullone::FattoreGioco() const {
    return !Gambo && Contiene(classi05, Classe_) && GrandeGioco() ? giocoRidotto : 1;
}

double Bullone::FattoreBordo() const {
    return e2.Stretto() < MultiploForo(1.5).Stretto() ? RiduzioneBordo() : 1;
}

double Bullone::FattorePasso() const {
    return p2.Stretto() < MultiploForo(3).Stretto() ? RiduzionePasso() : 1;
}

// ENV 1993-1-1 7.5.2 (1).
Singolo Bullone::DiametroForoStandard() const {
    if (d_ < diametroMedio)
        return d_ + 1;
    return d_ > diametroGrande ? d_ + 3 : d_ + 2;
}

// ENV 1993-1-1 table 6.5.3, bearing.
void Bullone::AlfaCalcola() {
    const std::array<Singolo, 3> rapporti{Rapporto(e1 / 3, do_), Rapporto(p1 / 3, do_) - 0.25,
                                          Rapporto(fub, fu)};
    alfa = 1;
    for (const Singolo& r : rapporti)
        if (r.Stretto() < alfa.Stretto())
            alfa = r;
}

// ENV 1993-1-1 6.5.5 (10).
double Bullone::RiduzioneBordo() const { return Riduzione(e2, 1.2 * do_, 1.5 * do_); }

double Bullone::RiduzionePasso() const { return Riduzione(p2, 2.4 * do_, 3 * do_); }

// ENV 1993-1-1 6.5.1.2 to 6.5.1.5.
bool Bullone::DistanzeControlla() {
    struct Controllo {
        Singolo distanza;
        Singolo minima;
        const char* testo;
        const char* articolo;
    };
    const std::array<Controllo, 5> controlli{
        {{do_, d_, "do deve essere > d = ", ""},
         {e1, MultiploForo(1.2), "e1 deve essere > 1.2 do = ", " - EC3 #6.5.1.2. (1)"},
         {p1, MultiploForo(2.2), "p1 deve essere > 2.2 do = ", " - EC3 #6.5.1.5. (1)"},
         {e2, MultiploForo(1.2), "e2 deve essere > 1.2 do = ", " - EC3 #6.5.1.3. (2)"},
         {p2, MultiploForo(2.4), "p2 deve essere > 2.4 do = ", " - EC3 #6.5.1.5. (2)"}}};
    bool bastano = true;
    int i = 0;
    for (const Controllo& c : controlli) {
        std::string& messaggio = messaggi_[++i];
        messaggio.clear();
        if (c.distanza.Stretto() >= c.minima.Stretto())
            continue;
        messaggio = c.testo + Formato("0.0", c.minima) + c.articolo;
        bastano = false;
    }
    return bastano;
}

// ENV 1993-1-1 table 6.5.3 and 6.5.5 (10).
void Bullone::RifollamentoCalcola() {
    AlfaCalcola();
    FbRd = 2.5 * alfa * fu * d_ * t / GammaM2;
    if (!DistanzeControlla()) {
        FbRd = 0;
        return;
    }
    FbRd *= FattoreBordo();
    FbRd *= FattorePasso();
}

} // namespace sagomi
