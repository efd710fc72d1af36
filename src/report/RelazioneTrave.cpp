#include "report/RelazioneTrave.h"

#include "composite/AcciaioCls.h"
#include "composite/DisegnoVivo.h"
#include "composite/VerificaTrave.h"
#include "frame/GeneraleSagomi.h"
#include "report/CapitoliSagomo.h"
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
        c.passi.push_back(Dato("Larghezza superiore della nervatura", "b{s}", Piano(t.bs), "mm"));
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
                .unita = "N/mm^{2}"},
               {.descrizione = "Calcestruzzo",
                .simbolo = "f{cd}",
                .formula = "0,85 f{ck} / 1,5",
                .numeri = "0,85 · " + Piano(fck) + " / 1,5",
                .valore = Cifre(AcciaioCls::fcd()),
                .unita = "N/mm^{2}"},
               {.descrizione = "Armatura",
                .simbolo = "f{sd}",
                .formula = "f{sk} / 1,15",
                .numeri = Piano(fsk) + " / 1,15",
                .valore = Cifre(AcciaioCls::fsd()),
                .unita = "N/mm^{2}"},
               Dato("Rapporto di omogeneizzazione", "n", Piano(CoeffOmogeneizzazione))};
    AdattaDecimali(c);
    return c;
}

void AggiungePlastici(Passi& p, const AcciaioCls& t, const EsitoTrave& esito) {
    p.push_back(Dato("Asse neutro plastico, dal bordo superiore", "y{pl}", Cifre(t.yNeutroDaSopra()), "mm",
                     "EC4 6.2.1.2"));
    p.push_back(
        Dato("Momento resistente plastico", "M{pl,Rd}", Cifre(Nmm_a_kNm(t.MplRd)), "kNm", "EC4 6.2.1.2"));
    if (esito.equilibrio)
        p.push_back(
            Dato("Momento in equilibrio", "", Cifre(Nmm_a_kNm(*esito.equilibrio)), "kNm", "EC4 6.2.1.2"));
    p.push_back(Dato("Momento plastico del solo acciaio", "M{a,pl,Rd}", Cifre(Nmm_a_kNm(t.Sezione->MplyRd)),
                     "kNm", "EC3 6.2.5"));
}

void AggiungeElastici(Passi& p, const AcciaioCls& t) {
    p.push_back(
        Dato("Asse neutro elastico, dal bordo superiore", "y{G}", Cifre(t.yNeutroDaSopra()), "mm", tensioni));
    p.push_back(
        Dato("Momento d'inerzia omogeneizzato", "J{id}", Cifre(mm4_a_cm4(t.Jid)), "cm^{4}", tensioni));
    p.push_back(Dato("Rapporto col solo acciaio", "J{id} / J{a}", Cifre(t.Jid / t.Sezione->Jy)));
    p.push_back(Dato("Momento statico della soletta", "S{s}", Cifre(mm3_a_cm3(t.Ss)), "cm^{3}"));
    p.push_back(
        Dato("Bordo superiore del calcestruzzo", "σ{c}", Cifre(double(t.SigmaCls)), "N/mm^{2}", tensioni));
    p.push_back(Dato("Armatura", "σ{s}", Cifre(double(t.SigmaArm)), "N/mm^{2}", tensioni));
    p.push_back(
        Dato("Lembo superiore dell'acciaio", "σ{a,sup}", Cifre(double(t.SigmaSup)), "N/mm^{2}", tensioni));
    p.push_back(
        Dato("Lembo inferiore dell'acciaio", "σ{a,inf}", Cifre(double(t.SigmaInf)), "N/mm^{2}", tensioni));
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
    if (esito.validi)
        c.passi.push_back(Dato("Forza di scorrimento per i connettori", "V{l}", Cifre(N_a_kN(t.Vl)), "kN"));
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
