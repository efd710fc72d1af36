#include "joints/LimitiGiunto.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

#include "fasteners/Bullone.h"
#include "frame/Errori.h"
#include "frame/Messaggi.h"
#include "frame/Numeri.h"
#include "joints/Giunto.h"

namespace sagomi {

using std::numbers::sqrt2;

namespace {

constexpr const char* titolo = "Giunto Flangiato";
constexpr const char* sostituito = " verrà inserito automaticamente tale valore.";
constexpr double golaMinima = 3; ///< EC3 6.6.5.2 (2) [mm]

void Dice(const std::string& testo) { Avvisa(testo, titolo, Icona::Stop); }

std::string Testo(double mm) { return TestoPiano(Singolo(mm)); }

const SezioneDoppioT& Trave(const Giunto& g) {
    if (!g.Trave)
        throw ErroreNumerato("Sagomo non assegnato: trave");
    return *g.Trave;
}

const SezioneDoppioT& Colonna(const Giunto& g) {
    if (!g.Colonna)
        throw ErroreNumerato("Sagomo non assegnato: colonna");
    return *g.Colonna;
}

/// From the middle of a web to the edge of the hole that it has to keep off [mm].
double ForoDallaColonna(const Giunto& g) {
    const CoefficientiForo k = g.Coefficienti();
    return k.Raccordo * g.sColonna() + k.Anima * g.d0;
}

double ForoDallaTrave(const Giunto& g) {
    const CoefficientiForo k = g.Coefficienti();
    return sqrt2 * k.Raccordo * g.aw + k.Anima * g.d0;
}

/// Width at which the largest ef is the smallest one.
double bfMinima(const Giunto& g) {
    const double ef = g.efmin_Ricerca();
    return ArrotondaSu(
        std::max(Colonna(g).tw + 2 * (ForoDallaColonna(g) + ef), Trave(g).tw + 2 * (ForoDallaTrave(g) + ef)));
}

double ecMenoEf(const Giunto& g) { return g.bf > 0 ? (Colonna(g).b - g.bf) / 2 : 0; }

/// Where the column is narrower than the plate its edge is the nearer one.
double efMinimo(const Giunto& g) { return g.efmin_Ricerca() - std::min(ecMenoEf(g), 0.0); }

/// What bounds the distance of a hole from the edge: the first that is the least of all.
struct LimiteEf {
    bool colonna = true; ///< the web of the column, else that of the beam
    bool daBf = false;   ///< by the width of the plate, else of the column
};

LimiteEf GovernaEf(const Giunto& g) {
    const auto dellaColonna = [&](double b) { return (b - Colonna(g).tw) / 2 - ForoDallaColonna(g); };
    const auto dellaTrave = [&](double b) { return (b - Trave(g).tw) / 2 - ForoDallaTrave(g); };
    LimiteEf governa;
    double minore = dellaColonna(Colonna(g).b);
    const auto prova = [&](double valore, bool colonna, bool daBf) {
        if (valore >= minore)
            return;
        minore = valore;
        governa = {colonna, daBf};
    };
    prova(dellaTrave(Colonna(g).b), false, false);
    if (g.bf > 0) {
        prova(dellaColonna(g.bf), true, true);
        prova(dellaTrave(g.bf), false, true);
    }
    return governa;
}

bool Sostituisce(Giunto& g, double& campo, double valore, const std::string& testo) {
    Dice(testo);
    campo = valore;
    g.Derivati_Calcola();
    return true;
}

/// The extension follows from the two distances of the outer row.
bool SostituisceEsterna(Giunto& g, double& campo, double valore, const std::string& testo) {
    const double esterna = &campo == &g.ex ? g.dX : g.ex;
    g.L = esterna + valore;
    return Sostituisce(g, campo, valore, testo);
}

bool efTroppoPiccolo(Giunto& g) {
    const double ec = g.ef + ecMenoEf(g);
    g.minecef = std::min(ec, g.ef);
    if (g.minecef >= g.efmin_Ricerca())
        return false;
    const double minimo = efMinimo(g);
    return Sostituisce(g, g.ef, minimo,
                       std::string("Il valore di ef inserito porta ad avere il foro parzialmente esterno "
                                   "alla ") +
                           (ec < g.ef ? "colonna" : "flangia") +
                           " non consentendo la sua realizzazione pratica. Verrà inserito automaticamente il "
                           "valore minimo pari a " +
                           Testo(minimo) + " mm");
}

bool efTroppoGrande(Giunto& g, const LimiteEf& governa) {
    const double massimo = g.efMax_Calcola();
    if (g.ef <= massimo)
        return false;
    return Sostituisce(g, g.ef, massimo,
                       std::string("Il valore di ef inserito porta ad una distanza orizzontale dell'asse dei "
                                   "bulloni dal bordo dell'anima della ") +
                           (governa.colonna ? "colonna" : "trave") +
                           " che non consente la realizzazione del foro. Verrà inserito automaticamente il "
                           "valore massimo pari a " +
                           Testo(massimo) + " mm");
}

std::string DistanzaDallAla(const char* nome, const char* filo, double minimo) {
    return std::string("Il valore di ") + nome +
           " porta ad una distanza verticale dell'asse dei bulloni dal filo " + filo +
           " dell'ala della trave che non consente la realizzazione del foro. Verrà inserito automaticamente "
           "il valore minimo pari a " +
           Testo(minimo) + " mm";
}

/// The welds of a plate of another thickness.
Giunto ConSpessore(const Giunto& g, double tf) {
    Giunto copia = g;
    copia.tf = tf;
    const MessaggiTaciuti muto;
    copia.saldature(0);
    return copia;
}

} // namespace

void PreparaLimiti(Giunto& g) {
    g.sTraveColonna_Calcola();
    const Giunto copia = ConSpessore(g, g.tf);
    g.Af = copia.Af;
    g.aw = copia.aw;
}

CampoAmmesso CampoDi(const Giunto& g, ParametroGiunto parametro) {
    switch (parametro) {
    case ParametroGiunto::bf:
        return {std::max(bfMinima(g), double(Trave(g).b)), Colonna(g).b};
    case ParametroGiunto::ef:
        return {efMinimo(g), g.efMax_Calcola()};
    case ParametroGiunto::d2:
    case ParametroGiunto::dX:
        return {g.d2Min_Calcola()};
    case ParametroGiunto::ex:
        return {g.exMin_Calcola()};
    case ParametroGiunto::u:
        return {ArrotondaSu(sqrt2 * g.Af)};
    case ParametroGiunto::L:
        break;
    }
    return {g.LMin_Calcola().value_or(0)};
}

bool bf_Controlla(Giunto& g) {
    g.bfmin = bfMinima(g);
    g.bfmax = Colonna(g).b;
    bool sostituita = false;
    const auto mette = [&](double valore, const std::string& testo) {
        sostituita = Sostituisce(g, g.bf, valore, testo + sostituito);
    };
    if (const double b = Trave(g).b; g.bf < b)
        mette(b, " bf è inferiore a quello minimo pari alla larghezza della trave " + Testo(b));
    if (g.bf < g.bfmin)
        mette(g.bfmin, " bf è inferiore a quello minimo pari a " + Testo(g.bfmin) + " mm");
    if (g.bf > g.bfmax)
        mette(g.bfmax,
              " bf è superiore a quello massimo pari alla larghezza della colonna " + Testo(g.bfmax));
    return sostituita;
}

bool ef_Controlla(Giunto& g, std::string& suggerimento) {
    const LimiteEf governa = GovernaEf(g);
    suggerimento = governa.daBf ? "Per aumentare ef bisogna incrementare bf" : "";
    const bool piccolo = efTroppoPiccolo(g);
    const bool grande = efTroppoGrande(g, governa);
    return piccolo || grande;
}

bool d2_Controlla(Giunto& g) {
    const double minimo = g.d2Min_Calcola();
    return g.d2 < minimo && Sostituisce(g, g.d2, minimo, DistanzaDallAla("d1", "inferiore", minimo));
}

bool dx_Controlla(Giunto& g) {
    const double minimo = g.d2Min_Calcola();
    return g.dX < minimo && SostituisceEsterna(g, g.dX, minimo, DistanzaDallAla("d2", "superiore", minimo));
}

bool ex_Controlla(Giunto& g) {
    const double minimo = g.exMin_Calcola();
    return g.ex < minimo &&
           SostituisceEsterna(g, g.ex, minimo,
                              "Il valore di ex porta ad avere il foro parzialmente esterno alla flangia\r\n"
                              "Verrà inserito automaticamente il valore minimo paria a " +
                                  Testo(minimo) + " mm");
}

bool u_Controlla(Giunto& g) {
    const double minimo = ArrotondaSu(sqrt2 * g.Af);
    return g.u < minimo &&
           Sostituisce(g, g.u, minimo,
                       "Il valore introdotto è inferiore al cordone di saldatura necessario per\r\n"
                       "la giunzione delle ali della trave alla flangia. Tale valore sarà\r\n"
                       "sostituito con la larghezza del cordone di saldatura.");
}

bool L_Controlla(Giunto& g) {
    const double minimo = g.LMin_Calcola().value_or(0);
    return g.L < minimo && Sostituisce(g, g.L, minimo, "Il valore di L minimo è " + Testo(minimo));
}

void ParametriControlla(Giunto& g) {
    std::string suggerimento;
    bf_Controlla(g);
    ef_Controlla(g, suggerimento);
    d2_Controlla(g);
    if (g.nf != 2)
        return;
    dx_Controlla(g);
    ex_Controlla(g);
    u_Controlla(g);
}

bool L_max_Controlla(Giunto& g) {
    const double meta = Trave(g).h / 2;
    if (g.L_max > meta) {
        Dice(" h'max è superiore a metà dell'altezza della trave pari a " + Testo(meta));
        g.L_max = meta;
        return true;
    }
    const double minimo = ConSpessore(g, g.tf_max).LMin_Calcola().value_or(0);
    if (g.L_max >= minimo)
        return false;
    Dice(" h'max non consente di posizionare il bullone con d = 8 mm rispettando le distanze minime dai "
         "bordi");
    g.L_max = minimo;
    return true;
}

bool u_max_Controlla(Giunto& g) {
    const double meta = Trave(g).h / 2;
    if (g.u_max > meta) {
        Dice(" u max è superiore a metà dell'altezza della trave pari a " + Testo(meta));
        g.u_max = meta;
        return true;
    }
    const double minimo = ArrotondaSu(sqrt2 * ConSpessore(g, g.tf_max).Af);
    if (g.u_max >= minimo)
        return false;
    Dice(" u max non consente di realizzare la saldatura della flangia all'ala della trave verrà inserito "
         "automaticamente il valore necessario pari a " +
         Testo(minimo));
    g.u_max = minimo;
    return true;
}

std::string NotaSpessore(const Giunto& g, double tf) {
    if (tf <= 0)
        return {};
    Giunto copia = g;
    copia.tf = tf;
    double gola = 0;
    copia.CordoneAla(gola);
    return gola < golaMinima ? "Non rispetta i 3 mm (EC3)." : "";
}

BulloneMassimo BulloneMax(const Giunto& g) {
    const CoefficientiForo k = g.Coefficienti();
    const double unForo = k.Anima + k.Bordo;
    const auto larghezza = [&](double b) {
        return std::min(ParteIntera(((b - Colonna(g).tw) / 2 - k.Raccordo * g.sColonna()) / unForo),
                        ParteIntera(((b - Trave(g).tw) / 2 - sqrt2 * k.Raccordo * g.aw) / unForo));
    };
    const bool sporge = g.nf == 2 && g.L > 0; // not given yet, it bounds nothing
    Giunto copia = g;
    copia.nf = sporge ? 2 : 1;
    BulloneMassimo r{.indice = copia.IndiceBulloneMaxGiunto_Calcola()};
    double A = larghezza(Colonna(g).b);
    if (const double daBf = larghezza(g.bf); g.bf > 0 && daBf < A) {
        A = daBf;
        r.suggerimento = "per aumentarlo bisogna aumentare bf";
    }
    if (const double daL = ParteIntera((g.L - sqrt2 * k.Raccordo * g.Af) / unForo); sporge && daL < A) {
        A = daL;
        r.suggerimento =
            g.ex < g.dX ? "per aumentarlo bisogna aumentare ex" : "per aumentarlo bisogna incrementare d2";
    }
    r.tutti = Giunto::DiametroForo(TabellaBulloni()[TabellaBulloni().n()].d).value_or(0) <= A;
    return r;
}

bool bullone_Controlla(Giunto& g) {
    const BulloneMassimo massimo = BulloneMax(g);
    if (massimo.tutti || g.IndiceBullone() <= massimo.indice)
        return false;
    Dice("Il diametro è maggiore di quello massimo pari a d = " + Testo(TabellaBulloni()[massimo.indice].d) +
         " mm \r\n" + massimo.suggerimento);
    g.IndiceBullone(massimo.indice);
    g.Derivati_Calcola();
    return true;
}

std::string PrimoZero(const Giunto& g) {
    struct Valore {
        double valore;
        const char* nome;
        bool serve;
    };
    const bool progetto = g.Criterio1;
    const bool verifica = !progetto;
    const bool due = verifica && g.nf == 2;
    const std::array valori{Valore{g.tf, "lo spessore della flangia tf", verifica},
                            Valore{g.bf, "la larghezza della flangia bf", verifica},
                            Valore{g.ef, "ef", verifica},
                            Valore{g.d2, "d2", verifica},
                            Valore{g.dX, "dx", due},
                            Valore{g.ex, "ex", due},
                            Valore{g.u, "u", due},
                            Valore{g.tf_max, "tf max", progetto},
                            Valore{g.L_max, "h'max", progetto},
                            Valore{g.u_max, "u max", progetto}};
    for (const Valore& v : valori)
        if (v.serve && !(v.valore > 0))
            return std::string("Inserire un valore diverso da zero per ") + v.nome + ".";
    return {};
}

} // namespace sagomi
