#include "report/RelazioneTrave.h"

#include <cmath>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "composite/AcciaioCls.h"
#include "composite/DisegnoVivo.h"
#include "composite/VerificaTrave.h"
#include "frame/GeneraleSagomi.h"
#include "geometry/Poligono.h"
#include "report/CapitoliSagomo.h"
#include "report/CapitoloConnettori.h"
#include "report/Figure.h"
#include "sections/SezioneDoppioT.h"
#include "sections/SezioneInForza.h"

namespace sagomi {

namespace {

using Passi = std::vector<PassoRelazione>;

constexpr const char* tensioni = "EC4 6.2.1.5";

bool Plastica(const AcciaioCls& t) { return t.TipoVerifica == sluPositivo || t.TipoVerifica == sluNegativo; }

const char* Soletta(const AcciaioCls& t) {
    return t.TipoSoletta == nervatureTrasversali ? "su lamiera con nervature trasversali"
           : t.TipoSoletta == nervatureParallele ? "su lamiera con nervature parallele"
                                                 : "piena";
}

const char* Verifica(const AcciaioCls& t) {
    switch (t.TipoVerifica) {
    case sluPositivo:
        return "S.L.U., momento positivo";
    case sluNegativo:
        return "S.L.U., momento negativo";
    case metodoNPositivo:
        return "metodo n, momento positivo";
    default:
        return "metodo n, momento negativo";
    }
}

CapitoloRelazione CapitoloSoletta(const AcciaioCls& t) {
    CapitoloRelazione c{.titolo = "Soletta e armatura"};
    c.passi = {Dato("Soletta", "", Soletta(t)), Dato("Spessore della soletta", "h{c}", Piano(t.hc), "mm"),
               Dato("Larghezza efficace", "b{eff}", Piano(t.beff), "mm", "EC4 5.4.1.2"),
               Dato("Area dell'armatura", "A{s}", Piano(t.As), "mm^{2}"),
               Dato("Distanza dell'armatura dal bordo superiore", "c", Piano(t.c), "mm")};
    if (t.TipoSoletta != solettaPiena) {
        c.passi.push_back(Dato("Altezza delle nervature", "h{a}", Piano(t.ha), "mm"));
        c.passi.push_back(Dato("Larghezza inferiore della nervatura", "b{b}", Piano(t.bb), "mm"));
        c.passi.push_back(
            Dato("Larghezza della greca superiore, fra due nervature", "b{s}", Piano(t.bs), "mm"));
        c.passi.push_back(Dato("Interasse delle nervature", "i", Piano(t.iNervature), "mm"));
    }
    if (t.TipoSoletta == nervatureParallele)
        c.passi.push_back(Dato("Larghezza del calcestruzzo sulla trave", "b{0t}", Piano(t.b0t), "mm"));
    return c;
}

CapitoloRelazione CapitoloMateriali(const AcciaioCls& t) {
    CapitoloRelazione c{.titolo = "Resistenze di progetto"};
    c.passi = {{.descrizione = "Acciaio",
                .simbolo = "f{yd}",
                .formula = "f{y} / γ{M0}",
                .numeri = Piano(t.Sezione->fy) + " / " + Piano(GammaM0),
                .valore = Cifre(t.fyd()),
                .unita = "N/mm^{2}",
                .norma = "EC4 2.4.1.2"},
               {.descrizione = "Calcestruzzo",
                .simbolo = "f{cd}",
                .formula = "0,85 f{ck} / 1,5",
                .numeri = "0,85 · " + Piano(fck) + " / 1,5",
                .valore = Cifre(AcciaioCls::fcd()),
                .unita = "N/mm^{2}",
                .norma = "EC4 2.4.1.2"},
               {.descrizione = "Armatura",
                .simbolo = "f{sd}",
                .formula = "f{sk} / 1,15",
                .numeri = Piano(fsk) + " / 1,15",
                .valore = Cifre(AcciaioCls::fsd()),
                .unita = "N/mm^{2}",
                .norma = "EC4 2.4.1.2"},
               Dato("Rapporto di omogeneizzazione", "n", Piano(CoeffOmogeneizzazione))};
    AdattaDecimali(c);
    return c;
}

/// A part that reacts: its area, and its centroid above the lower fibre of the steel.
struct Parte {
    double A = 0, y = 0;

    explicit Parte(const std::shared_ptr<Poligono>& p) : A(p ? p->Area : 0), y(p ? p->yG : 0) {}

    void Aggiunge(Passi& p, const std::string& nome, const std::string& pedice) const {
        if (!(A > 0))
            return;
        p.push_back(Dato(nome + ", area", "A{" + pedice + "}", Intero(A), "mm^{2}"));
        p.push_back(Dato(nome + ", baricentro sul lembo inferiore", "y{" + pedice + "}", Cifre(y), "mm"));
    }
};

/// What bears a plastic moment. Forces in compression are positive.
struct Plastico {
    Parte cls, compresso, teso;
    double Fs; ///< of the bars
    bool assurdo, sotto, clsContrario;

    explicit Plastico(const AcciaioCls& t)
        : cls(t.ClsCompresso), compresso(t.AcciaioCompresso), teso(t.AcciaioTeso), sotto(t.hc < 0) {
        const double barre = AcciaioCls::fsd() * t.As;
        const bool positivo = t.TipoVerifica == sluPositivo;
        assurdo = !t.AcciaioCompresso && !t.AcciaioTeso;
        clsContrario = !positivo && !sotto && cls.A > 0;
        Fs = sotto          ? t.ForzaArmatura(t.yNeutro)
             : positivo     ? barre
             : clsContrario ? -(t.Vl + AcciaioCls::fcd() * cls.A) // no more than slab and steel balance
                            : -barre;
    }
};

/// A force and its level, behind a sign that is left out in front of all others; nothing for no force.
std::string Termine(const std::string& prima, bool meno, double forza, double y) {
    if (forza == 0)
        return {};
    const char* segno = meno ? (prima.empty() ? "−" : " − ") : (prima.empty() ? "" : " + ");
    return segno + ConSegno(InFormula(forza)) + " · " + InFormula(y);
}

std::string Termine(const std::string& prima, bool meno, double tensione, const Parte& parte) {
    if (!(parte.A > 0))
        return {};
    return Termine(prima, meno, tensione, parte.A) + " · " + InFormula(parte.y);
}

/// The moment of the forces about the lower fibre of the steel.
PassoRelazione PassoMpl(const AcciaioCls& t, const Plastico& k) {
    PassoRelazione p{.descrizione = "Momento resistente plastico",
                     .simbolo = "M{pl,Rd}",
                     .valore = Cifre(Nmm_a_kNm(t.MplRd)),
                     .unita = "kNm",
                     .norma = "EC4 6.2.1.2"};
    if (k.assurdo) {
        p.formula = "(y{s} − y{a}) A{a} f{yd}";
        return p;
    }
    const std::string segno = k.clsContrario ? " − " : " + ";
    p.formula = "f{yd} (A{ac} y{ac} − A{at} y{at})" + segno + "f{cd} A{cc} y{cc}" +
                (k.sotto ? " − f{sd} A{s} y{s}" : " + F{s} y{s}");
    std::string somma = Termine({}, false, t.fyd(), k.compresso);
    somma += Termine(somma, true, t.fyd(), k.teso);
    somma += Termine(somma, k.clsContrario, AcciaioCls::fcd(), k.cls);
    somma += Termine(somma, false, k.sotto ? -AcciaioCls::fsd() * t.As : k.Fs, t.yArmatura);
    p.numeri = "[" + somma + "] · 10^{-6}";
    return p;
}

PassoRelazione PassoScorrimento(const AcciaioCls& t, const Plastico& k) {
    const bool tesa = t.TipoVerifica == sluNegativo && !k.sotto;
    return {.descrizione = "Forza di scorrimento per i connettori",
            .simbolo = "V{l}",
            .formula = k.assurdo ? ""
                       : tesa    ? "−F{s} − f{cd} A{cc}"
                                 : "f{cd} A{cc} + F{s}",
            .valore = Cifre(N_a_kN(t.Vl)),
            .unita = "kN",
            .norma = "EC4 6.6.2.2"};
}

/// Bars at their full strength have it; others bear what is missing.
std::string FormulaBarre(const AcciaioCls& t, const Plastico& k) {
    constexpr double scarto = 1e-6;
    const double barre = AcciaioCls::fsd() * t.As;
    if (std::abs(std::abs(k.Fs) - barre) > scarto * barre)
        return {};
    return k.Fs < 0 ? "−f{sd} A{s}" : "f{sd} A{s}";
}

void AggiungePlastici(Passi& p, const AcciaioCls& t, const EsitoTrave& esito) {
    const Plastico k(t);
    k.compresso.Aggiunge(p, "Acciaio compresso", "ac");
    k.teso.Aggiunge(p, "Acciaio teso", "at");
    k.cls.Aggiunge(p, "Calcestruzzo compresso", "cc");
    if (!k.assurdo)
        p.push_back({.descrizione = "Forza dell'armatura, di compressione se positiva",
                     .simbolo = "F{s}",
                     .formula = FormulaBarre(t, k),
                     .valore = Cifre(N_a_kN(k.Fs)),
                     .unita = "kN"});
    p.push_back(Dato("Armatura sul lembo inferiore", "y{s}", Cifre(t.yArmatura), "mm"));
    p.push_back({.descrizione = "Asse neutro plastico, dal bordo superiore",
                 .simbolo = "y{pl}",
                 .formula = k.assurdo ? "" : "\nf{cd} A{cc} + F{s} + f{yd} A{ac} = f{yd} A{at}",
                 .valore = Cifre(t.yNeutroDaSopra()),
                 .unita = "mm",
                 .norma = "EC4 6.2.1.2"});
    p.push_back(PassoMpl(t, k));
    if (esito.equilibrio)
        p.push_back({.descrizione = "Momento in equilibrio",
                     .simbolo = "",
                     .formula = "Σ F{i} y{i} con l'asse dove Σ F{i} = 0",
                     .valore = Cifre(Nmm_a_kNm(*esito.equilibrio)),
                     .unita = "kNm",
                     .norma = "EC4 6.2.1.2"});
    p.push_back({.descrizione = "Momento plastico del solo acciaio",
                 .simbolo = "M{a,pl,Rd}",
                 .formula = "W{pl,y} f{y} / γ{M0}",
                 .numeri = Intero(t.Sezione->Wply) + " · " + Piano(t.Sezione->fy) + " / " + Piano(GammaM0) +
                           " · 10^{-6}",
                 .valore = Cifre(Nmm_a_kNm(t.Sezione->MplyRd)),
                 .unita = "kNm",
                 .norma = "EC3 6.2.5"});
    p.push_back(PassoScorrimento(t, k));
}

/// M (y - y0) / Jid.
PassoRelazione Tensione(const AcciaioCls& t, const char* descrizione, const char* simbolo,
                        const char* distanza, const std::string& numeri, double sigma) {
    const bool cls = std::string_view(simbolo) == "σ{c}";
    return {.descrizione = descrizione,
            .simbolo = simbolo,
            .formula = std::string(cls ? "−" : "") + "M{Sd} " + distanza + " / J{id}" + (cls ? " / n" : ""),
            .numeri = std::string(cls ? "−" : "") + ConSegno(InFormula(Nmm_a_kNm(t.Msd))) + " · 10^{6} · " +
                      numeri + " / (" + InFormula(mm4_a_cm4(t.Jid)) + " · 10^{4})" +
                      (cls ? " / " + Piano(CoeffOmogeneizzazione) : ""),
            .valore = Cifre(sigma),
            .unita = "N/mm^{2}",
            .norma = tensioni};
}

std::string Distanza(double a, double b) {
    return "(" + Formato("0.0##", a) + " − " + ConSegno(Formato("0.0##", b)) + ")";
}

void AggiungeTensioni(Passi& p, const AcciaioCls& t) {
    const bool sotto = t.hc < 0 && t.TipoVerifica != metodoNPositivo;
    const double yN = t.yNeutro;
    const double bordo = sotto ? t.Sommita() + t.hc : t.Sommita();
    p.push_back(Tensione(t, sotto ? "Bordo inferiore del calcestruzzo" : "Bordo superiore del calcestruzzo",
                         "σ{c}", "(y{c} − y{N})", Distanza(bordo, yN), t.SigmaCls));
    p.push_back(Tensione(t, "Armatura", "σ{s}", "(y{N} − y{s})", Distanza(yN, t.yArmatura), t.SigmaArm));
    p.push_back(Tensione(t, "Lembo superiore dell'acciaio", "σ{a,sup}", "(y{N} − h)",
                         Distanza(yN, t.Sezione->h), t.SigmaSup));
    p.push_back(
        Tensione(t, "Lembo inferiore dell'acciaio", "σ{a,inf}", "y{N}", ConSegno(InFormula(yN)), t.SigmaInf));
}

void AggiungeElastici(Passi& p, const AcciaioCls& t) {
    const Parte cls(t.ClsCompresso);
    cls.Aggiunge(p, "Calcestruzzo reagente", "cc");
    p.push_back(Dato("Armatura sul lembo inferiore", "y{s}", Cifre(t.yArmatura), "mm"));
    p.push_back({.descrizione = "Asse neutro elastico, sul lembo inferiore",
                 .simbolo = "y{N}",
                 .formula = "\nA{a} (y{a} − y{N}) + A{s} (y{s} − y{N}) + A{cc} (y{cc} − y{N}) / n = 0",
                 .valore = Cifre(t.yNeutro),
                 .unita = "mm",
                 .norma = tensioni});
    p.push_back({.descrizione = "Asse neutro elastico, dal bordo superiore",
                 .simbolo = "y{G}",
                 .formula = "y{sup} − y{N}",
                 .numeri = InFormula(t.Sommita()) + " − " + ConSegno(InFormula(t.yNeutro)),
                 .valore = Cifre(t.yNeutroDaSopra()),
                 .unita = "mm",
                 .norma = tensioni});
    p.push_back({.descrizione = "Momento d'inerzia omogeneizzato",
                 .simbolo = "J{id}",
                 .formula = "J{a} + A{a} (y{N} − y{a})^{2} + A{s} (y{N} − y{s})^{2} + [J{cc} + A{cc} (y{N} − "
                            "y{cc})^{2}] / n",
                 .valore = Cifre(mm4_a_cm4(t.Jid)),
                 .unita = "cm^{4}",
                 .norma = tensioni});
    p.push_back(Dato("Rapporto col solo acciaio", "J{id} / J{a}", Cifre(t.Jid / t.Sezione->Jy)));
    AggiungeTensioni(p, t);
    p.push_back({.descrizione = "Momento statico di soletta e armatura, in valore assoluto",
                 .simbolo = "S{s}",
                 .formula = "A{cc} (y{cc} − y{N}) / n + A{s} (y{s} − y{N})",
                 .numeri = "[" + InFormula(cls.A) + " · " + Distanza(cls.y, t.yNeutro) + " / " +
                           Piano(CoeffOmogeneizzazione) + " + " + Piano(t.As) + " · " +
                           Distanza(t.yArmatura, t.yNeutro) + "] · 10^{-3}",
                 .valore = Cifre(mm3_a_cm3(t.Ss)),
                 .unita = "cm^{3}",
                 .norma = "EC4 6.6.2.1"});
    p.push_back({.descrizione = "Forza di scorrimento per i connettori",
                 .simbolo = "V{l}",
                 .formula = "S{s} M{Sd} / J{id}",
                 .valore = Cifre(N_a_kN(t.Vl)),
                 .unita = "kN",
                 .norma = "EC4 6.6.2.1"});
}

CapitoloRelazione CapitoloVerifica(const AcciaioCls& t, const EsitoTrave& esito) {
    CapitoloRelazione c{.titolo = "Verifica della sezione composta"};
    c.passi = {Dato("Verifica", "", Verifica(t)),
               Dato("Momento di progetto", "M{Sd}", Cifre(Nmm_a_kNm(t.Msd)), "kNm")};
    if (esito.accettati)
        c.passi.push_back(Dato("Sezione di acciaio inflessa", "classe",
                               std::to_string(t.Sezione->ClasseFlessioneY), "", "ENV 1993-1-1 tab. 5.3.1"));
    if (esito.validi && Plastica(t))
        AggiungePlastici(c.passi, t, esito);
    else if (esito.validi)
        AggiungeElastici(c.passi, t);
    AdattaDecimali(c);
    const VerdettoTrave v = Giudica(t, esito);
    const char* norma = Plastica(t) ? "EC4 6.2.1.2" : tensioni;
    c.verdetto = VerdettoRelazione{.verifica = Plastica(t) ? "Momento resistente" : "Tensioni",
                                   .esito = VerdettoRelazione::Da(v.utilizzo),
                                   .utilizzo = v.utilizzo,
                                   .governa = v.governa,
                                   .motivo = v.motivo,
                                   .norma = norma};
    return c;
}

} // namespace

Relazione RelazioneTrave(const AcciaioCls& trave, const EsitoTrave& esito) {
    Relazione r{.titolo = "Trave mista acciaio-calcestruzzo",
                .oggetto = trave.TitoloFunz().empty() && trave.Sezione ? trave.Sezione->Designation
                                                                       : trave.TitoloFunz()};
    if (!trave.Sezione)
        return r;
    r.disegno = DisegnoVivo(trave);
    r.maschera = "frmAcciaioCls";
    r.capitoli.push_back(CapitoloDati(*trave.Sezione));
    r.capitoli.front().passi.insert(r.capitoli.front().passi.begin(),
                                    Dato("Trave di acciaio", "", trave.Sezione->Designation));
    r.capitoli.push_back(CapitoloSoletta(trave));
    r.capitoli.push_back(CapitoloMateriali(trave));
    r.capitoli.push_back(CapitoloVerifica(trave, esito));
    if (esito.validi)
        if (auto pioli = CapitoloConnettori(trave))
            r.capitoli.push_back(std::move(*pioli));
    return r;
}

Relazione RelazioneTraveVerificata(const AcciaioCls& trave) {
    AcciaioCls copia = trave;
    if (trave.Sezione)
        copia.Sezione = std::make_shared<SezioneDoppioT>(*trave.Sezione);
    const SezioneInForza propria(copia.Sezione);
    const EsitoTrave esito = VerificaTrave(copia);
    return RelazioneTrave(copia, esito);
}

} // namespace sagomi
