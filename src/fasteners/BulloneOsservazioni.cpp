#include <array>

#include "fasteners/Bullone.h"
#include "frame/Numeri.h"

namespace sagomi {

namespace {

constexpr const char* aCapo = "\r\n";
constexpr const char* rigaVuota = "\r\n\r\n";
constexpr int cifreTesto = 4;

constexpr int diametroMinimo = 12; ///< smallest bolt that the code speaks of [mm]

struct Distanza {
    const char* testo;
    Singolo valore;
};

/// A limit that distances should not exceed: which clause, in what words.
struct LimiteMassimo {
    Singolo valore;
    const char* articolo;
    const char* testo;
};

/// Names the distances that exceed the limit; no word when none does.
void OsservaMassimo(std::string& testo, const LimiteMassimo& limite,
                    const std::array<Distanza, 2>& distanze) {
    std::string eccedenti;
    for (const Distanza& d : distanze)
        if (d.valore.Stretto() > limite.valore.Stretto())
            eccedenti += aCapo + (d.testo + TestoPiano(d.valore));
    if (eccedenti.empty())
        return;
    testo += std::string(limite.articolo) + aCapo + limite.testo + Formato("0", limite.valore) +
             " mm. Si ha invece:" + eccedenti + rigaVuota;
}

const char* GiocoStandard(std::int16_t d) {
    if (d > 24)
        return "   3 mm per bulloni M27 ed oltre ";
    if (d >= 15)
        return "   2 mm per bulloni da M16 e M24 ";
    return "   1 mm per bulloni M12 e M14 \r\n"
           "EC3 #6.5.5. (8) - Bulloni M12 e M14 possono essere usati in fori con 2 mm di gioco "
           "purchè per i bulloni delle classi 4.8, 5.8, 6.8, 10.9 la resistenza di progetto a taglio "
           "Fv,Rd sia ridotta all'85% (riduzione già operata dal programma)";
}

} // namespace

void Bullone::Osservazioni(std::string& testo) const {
    testo.clear();
    if (do_ < d_) {
        testo = "B E S T I A !!!  Il diametro del foro è inferiore al diametro del bullone.";
        return;
    }
    if (!(t > 0)) {
        testo = "Spessore piastra = 0 !!!!";
        return;
    }
    OsservaForo(testo);
    OsservaAlfa(testo);
    OsservaBordi(testo);
    OsservaPassi(testo);
    OsservaRiduzioni(testo);
}

void Bullone::OsservaForo(std::string& testo) const {
    if (d_ < diametroMinimo)
        testo += std::string("EC3 sembra escludere bulloni con diametro inferiore a 12 mm (bulloni M12)") +
                 rigaVuota;
    if (do_.Stretto() <= DiametroForoStandard().Stretto())
        return;
    testo += std::string("EC3 #7.5.2. (1)") + aCapo +
             "Il gioco foro-bullone = " + TestoPiano(Singolo(do_ - d_)) +
             " mm è maggiore del valore standard:" + aCapo + GiocoStandard(d_) + rigaVuota;
}

void Bullone::OsservaAlfa(std::string& testo) const {
    if (!(alfa < 1))
        return;
    testo += "La resistenza a rifollamento è penalizzata (alfa = " + FormatoCifre(cifreTesto, alfa) +
             " < 1) perchè:";
    const Singolo e1Intera = MultiploForo(3);
    const Singolo p1Intera = MultiploForo(3.75);
    if (e1.Stretto() < e1Intera.Stretto())
        testo += std::string(aCapo) + "   e1 < 3 do = " + TestoPiano(e1Intera);
    if (p1.Stretto() < p1Intera.Stretto())
        testo += std::string(aCapo) + "   p1 < 3.75 do = " + TestoPiano(p1Intera);
    if (fub.Stretto() < fu.Stretto())
        testo += std::string(aCapo) + "   fub = " + TestoPiano(fub) + " < fu = " + TestoPiano(fu);
    testo += rigaVuota;
}

void Bullone::OsservaBordi(std::string& testo) const {
    const std::array<Distanza, 2> bordi{{{"   e1 = ", e1}, {"   e2 = ", e2}}};
    const Singolo esposto = 4 * t + 40;
    const double protetto = 12 * t;
    OsservaMassimo(testo,
                   {esposto, "EC3 #6.5.1.4. (1)",
                    "Se il giunto è esposto alle intemperie o ad altre azioni corrosive, la distanza massima "
                    "dall'estremità o dal bordo deve essere inferiore a 40 mm + 4 t = "},
                   bordi);
    OsservaMassimo(
        testo,
        {protetto < 150 ? 150 : protetto, "EC3 #6.5.1.4. (2)",
         "Se il giunto non è esposto alle intemperie o ad altre azioni corrosive, la distanza massima "
         "dall'estremità o dal bordo non deve superare il valore maggiore "
         "fra 12 t e 150 mm = "},
        bordi);
}

void Bullone::OsservaPassi(std::string& testo) const {
    const std::array<Distanza, 2> passi{{{"   p1 = ", p1}, {"   p2 = ", p2}}};
    const double multiplo = 14 * t;
    const Singolo compresso = multiplo > 200 ? 200 : multiplo;
    OsservaMassimo(testo,
                   {compresso, "EC3 #6.5.1.6. (1)",
                    "Se il giunto è compresso o è esposto alle intemperie o ad altre azioni corrosive, "
                    "p1 e p2 non devono superare il valore minore "
                    "fra 14 t e 200 mm = "},
                   passi);
    OsservaMassimo(testo,
                   {1.5 * compresso, "EC3 #6.5.1.7. (2)",
                    "Se il giunto è teso e non è esposto alle intemperie o ad altre azioni corrosive, "
                    "p1 e p2 non devono superare il valore minore "
                    "fra 1.5*(14 t e 200 mm) = "},
                   passi);
}

void Bullone::OsservaRiduzioni(std::string& testo) const {
    const Singolo e2Intera = MultiploForo(1.5);
    const Singolo p2Intera = MultiploForo(3);
    if (e2.Stretto() < e2Intera.Stretto())
        testo += std::string("EC3 #6.5.5. (10)") + aCapo + "Poichè e2 < 1.5 do = " + TestoPiano(e2Intera) +
                 ", la resistenza a rifollamento è penalizzata con coefficiente " +
                 FormatoCifre(cifreTesto, RiduzioneBordo()) + rigaVuota;
    if (p2.Stretto() < p2Intera.Stretto())
        testo += std::string("EC3 #6.5.5. (10)") + aCapo + "Poichè p2 < 3 do = " + TestoPiano(p2Intera) +
                 ", la resistenza a rifollamento è penalizzata con coefficiente " +
                 FormatoCifre(cifreTesto, RiduzionePasso());
}

} // namespace sagomi
