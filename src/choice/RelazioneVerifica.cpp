#include "choice/RelazioneVerifica.h"

#include <type_traits>
#include <utility>

#include "report/CapitoliMomento.h"
#include "report/CapitoliSagomo.h"
#include "report/CapitoliStabilita.h"
#include "report/CapitoloEfficace.h"
#include "report/Figure.h"
#include "report/PassiSagomo.h"
#include "report/RelazioneSagomo.h"

namespace sagomi {

SezioneDoppioT PerLaSezione(const SezioneDoppioT& s, const Richiesta& r) {
    SezioneDoppioT sezione = s;
    sezione.Mysd = EffettiDelDiagramma(r.y, r.tipoDiagramma, r.pict).M;
    sezione.Mzsd = EffettiDelDiagramma(r.z, r.tipoDiagramma, r.pict).M;
    sezione.ClassePressoFlessioneCalcola();
    return sezione;
}

namespace {

void AggiungeCapitoli(Relazione& relazione, const SezioneDoppioT& s, const SagomoVerificato& e,
                      const Richiesta& r) {
    const SezioneDoppioT sezione = PerLaSezione(s, r);
    auto& c = relazione.capitoli;
    c.push_back(CapitoloDati(s));
    c.push_back(CapitoloAzioni(sezione));
    c.push_back(CapitoloMomenti(r.y, r.z, r.tipoDiagramma, r.pict));
    c.push_back(CapitoloClassi(sezione));
    c.push_back(CapitoloEfficace(sezione));
    c.push_back(CapitoloResistenze(s));
    if (!e.riga.SenzaVerdetto())
        c.push_back(CapitoloSezione(sezione));
    c.push_back(CapitoloInstabilita(s, {e.CurvaY, e.CurvaZ}));
    if (!e.riga.SenzaVerdetto())
        c.push_back(CapitoloMembratura(s));
    if (r.LLT || r.L0z > 0)
        c.push_back(e.riga.SenzaVerdetto() ? CapitoloMomentoCritico(s) : CapitoloSvergolamento(s));
}

CapitoloRelazione CapitoloForza(const SagomoVerificato& e, const Richiesta& r) {
    CapitoloRelazione c{.titolo = "Verifica a forza assiale"};
    c.passi = {
        Dato("Forza assiale, di compressione se positiva", "N{Sd}", Kilo(r.NSd), "kN"),
        Dato("Resistenza a forza assiale", "N{pl,Rd}", Kilo(e.riga.NplRd), "kN", "ENV 1993-1-1 5.4.4")};
    c.verdetto = VerdettoRelazione{.verifica = "Stabilità della membratura",
                                   .esito = VerdettoRelazione::Da(e.riga.membratura),
                                   .utilizzo = e.riga.membratura,
                                   .motivo = e.riga.motivo,
                                   .norma = "ENV 1993-1-1 5.5.1"};
    return c;
}

/// Channels and angles, which are checked under the axial force alone.
template <typename S>
void AggiungeCapitoli(Relazione& relazione, const S& s, const SagomoVerificato& e, const Richiesta& r) {
    relazione.capitoli.push_back(CapitoloDati(s));
    relazione.capitoli.push_back(CapitoloAzioni(s, r.NSd));
    relazione.capitoli.push_back(CapitoloClassi(s));
    relazione.capitoli.push_back(CapitoloEfficace(s));
    relazione.capitoli.push_back(CapitoloResistenze(s));
    relazione.capitoli.push_back(CapitoloInstabilita(s, {e.CurvaY, e.CurvaZ}));
    if (!e.riga.SenzaVerdetto())
        relazione.capitoli.push_back(CapitoloForza(e, r));
}

} // namespace

Relazione RelazioneVerifica(const SagomoInGara& sagomo, const SagomoVerificato& esito,
                            const Richiesta& richiesta) {
    Relazione r;
    std::visit(
        [&](const auto& s) {
            r = TestaSagomo("Verifica di un sagomo", s, sagomo.schermo);
            AggiungeCapitoli(r, s, esito, richiesta);
        },
        esito.sezione);
    return SenzaCapitoliVuoti(std::move(r));
}

} // namespace sagomi
