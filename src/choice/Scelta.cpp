#include "choice/Scelta.h"

#include <algorithm>
#include <cmath>
#include <string_view>
#include <tuple>
#include <utility>

#include "frame/GeneraleSagomi.h"
#include "frame/Messaggi.h"
#include "frame/RaccoltaMessaggi.h"
#include "sections/AreaEfficace.h"
#include "sections/PressoFlessione.h"
#include "sections/SezioneDoppia.h"
#include "sections/Verdetto.h"

namespace sagomi {

namespace {

/// While one lives, the section in use is one of its own, of that grade: buckling curves read the grade
/// there.
class SezionePropria {
public:
    explicit SezionePropria(const std::string& acciaio) : prima_(SezioneCorrente) {
        auto propria = std::make_shared<SezioneDoppioT>();
        propria->TipoAcciaio = acciaio;
        SezioneCorrente = std::move(propria);
    }
    ~SezionePropria() { SezioneCorrente = std::move(prima_); }
    SezionePropria(const SezionePropria&) = delete;
    SezionePropria& operator=(const SezionePropria&) = delete;

private:
    RiferimentoSezione prima_;
};

/// Outer measures and weight, before anything is computed.
struct Ingombro {
    double h, b, g;
};

Ingombro IngombroDi(const SezioneDoppioT& s, double g, const Richiesta& /*r*/) {
    return {s.h, std::max<double>(s.b, s.bAlaInf), g};
}

Ingombro IngombroDi(const SezioneSagomoU& s, double g, const Richiesta& r) {
    return r.doppi ? Ingombro{s.h, 2 * s.b + r.dDoppi, 2 * g} : Ingombro{s.h, s.b, g};
}

Ingombro IngombroDi(const SezioneSagomoL& s, double g, const Richiesta& r) {
    if (!r.doppi)
        return {s.h, s.b, g};
    return r.accostati ? Ingombro{2 * s.h + r.dDoppi, s.b, 2 * g} : Ingombro{s.h, 2 * s.b + r.dDoppi, 2 * g};
}

bool Ammesso(const SagomoInGara& sagomo, const Ingombro& i, const Filtri& f) {
    const auto oltre = [](double valore, const std::optional<double>& limite) {
        return limite && valore > *limite;
    };
    const bool famiglia =
        f.famiglie.empty() || std::ranges::find(f.famiglie, sagomo.famiglia) != f.famiglie.end();
    return famiglia && !oltre(i.h, f.hMassima) && !oltre(i.b, f.bMassima) && !oltre(i.g, f.gMassimo) &&
           !(f.gMinimo && i.g < *f.gMinimo);
}

bool HaMomenti(const Richiesta& r) {
    const auto qualcuno = [](const MomentiMembratura& m) { return m.M1 != 0 || m.M2 != 0 || m.MQ != 0; };
    return qualcuno(r.y) || qualcuno(r.z);
}

/// Where nothing acts the checks would all say 0: they say nothing.
void ToglieVerifiche(RigaScelta& riga) {
    riga.sezione = riga.membratura = riga.svergolamento = riga.massimo = RigaScelta::nessuno;
    riga.governa = VerificaScelta::Nessuna;
    riga.verificato = true;
    riga.motivo.clear();
}

/// Which resistance is 0, where an action is held against none.
std::string MotivoInfinito(VerificaScelta verifica, const Verdetto& v) {
    const bool conY = v.governa == TermineVerifica::My, flessa = conY || v.governa == TermineVerifica::Mz;
    const char* nome = verifica == VerificaScelta::Svergolamento && conY ? "Mb,Rd"
                       : conY                                            ? "La resistenza a My"
                       : flessa                                          ? "La resistenza a Mz"
                                                                         : "La resistenza a N";
    return std::string(nome) + " è 0";
}

/// What a check has said goes into the row; one that was asked for and has no number does not hold. The
/// reason is that of the check that governs, or, where every number holds, of the one without a verdict.
void Accoglie(RigaScelta& riga, VerificaScelta verifica, double RigaScelta::*valore, const Verdetto& v) {
    const bool senzaVerdetto = !riga.verificato && !(riga.massimo > 1);
    riga.*valore = v.utilizzo;
    riga.verificato = riga.verificato && v.utilizzo <= 1;
    if (std::isnan(v.utilizzo)) {
        if (riga.motivo.empty())
            riga.motivo = MotivoSenzaVerdetto(verifica);
    } else if (std::isnan(riga.massimo) || v.utilizzo > riga.massimo) {
        riga.massimo = v.utilizzo;
        riga.governa = verifica;
        if (v.utilizzo > 1 || !senzaVerdetto)
            riga.motivo = std::isinf(v.utilizzo) && v.motivo.empty() ? MotivoInfinito(verifica, v) : v.motivo;
    }
}

template <typename S> void ImpostaAcciaio(S& s, const Richiesta& r) {
    s.TipoAcciaio = r.TipoAcciaio;
    s.fy = r.fy;
    s.fu = r.fu;
    s.L0y = r.L0y;
    s.L0z = r.L0z;
}

void VerificaSezione(SezioneDoppioT& s, const Richiesta& r, RigaScelta& riga) {
    s.Mysd = EffettiDelDiagramma(r.y, r.tipoDiagramma, r.pict).M;
    s.Mzsd = EffettiDelDiagramma(r.z, r.tipoDiagramma, r.pict).M;
    s.ClassePressoFlessioneCalcola();
    riga.classe = s.ClassePressoFlessione;
    Accoglie(riga, VerificaScelta::Sezione, &RigaScelta::sezione, GiudicaResistenza(s));
}

void VerificaMembratura(SezioneDoppioT& s, const Richiesta& r, RigaScelta& riga) {
    EffettiDiagramma y = EffettiSullaSezione(s, 0, r.y, r.tipoDiagramma, r.pict);
    y.C1 = r.C1.value_or(y.C1);
    ApplicaDiagrammi(s, y, EffettiSullaSezione(s, 1, r.z, r.tipoDiagramma, r.pict));
    Accoglie(riga, VerificaScelta::Membratura, &RigaScelta::membratura, GiudicaInstabilita(s));
}

void VerificaSvergolamento(SezioneDoppioT& s, const Richiesta& r, RigaScelta& riga) {
    const std::optional<double> L = LunghezzaSvergolamento(r);
    if (!L)
        return;
    s.k = r.k;
    s.Kw = r.Kw;
    s.c2 = r.c2;
    s.c3 = r.c3;
    s.za = r.za;
    s.LLT = *L;
    s.McrFunz();
    s.MbRdSub();
    riga.MbRd = s.MbRd;
    Accoglie(riga, VerificaScelta::Svergolamento, &RigaScelta::svergolamento, GiudicaFlessoTorsionale(s));
}

void Calcola(SezioneDoppioT& s, const Richiesta& r, RigaScelta& riga) {
    ImpostaAcciaio(s, r);
    s.NSd = r.NSd;
    InizializzaConAreaEfficace(s);
    riga.NplRd = s.NplRd;
    riga.NbyRd = s.ErroreDatiDatabase ? RigaScelta::nessuno : s.NbyRd;
    riga.NbzRd = s.ErroreDatiDatabase ? RigaScelta::nessuno : s.NbzRd;
    riga.McyRd = s.McyRd;
    riga.A = s.Area;
    VerificaSezione(s, r, riga);
    VerificaMembratura(s, r, riga);
    VerificaSvergolamento(s, r, riga);
}

/// Channels and angles are checked under the axial force alone.
/// @param NbRd  the smallest resistance to buckling [N]
void VerificaAssiale(const Richiesta& r, double NbRd, RigaScelta& riga) {
    if (HaMomenti(r)) {
        riga.verificato = false;
        riga.motivo = motivoFlessione;
        return;
    }
    const TermineMomento nessuno{.MRd = 1};
    const TerminiInterazione termini{r.NSd, NbRd, nessuno, nessuno};
    Accoglie(riga, VerificaScelta::Membratura, &RigaScelta::membratura,
             Giudica(termini, {NbRd, "Nb,Rd", riga.NplRd}));
}

template <typename S> void CalcolaCoppia(S& s, const Richiesta& r, RigaScelta& riga) {
    ImpostaAcciaio(s, r);
    if (r.doppi) {
        S uno = s;
        uno.InizializzaSezione();
        RendeDoppia(s, SingoloDi(uno), r.dDoppi, r.accostati);
        riga.doppio = true;
    }
    InizializzaConAreaEfficace(s);
    riga.A = s.Area;
    riga.NbyRd = s.NbyRd;
    riga.NbzRd = s.NbzRd;
}

void Calcola(SezioneSagomoU& s, const Richiesta& r, RigaScelta& riga) {
    s.NSd = r.NSd;
    CalcolaCoppia(s, r, riga);
    riga.classe = s.ClassePressoFlessione;
    riga.NplRd = s.NplRd;
    riga.McyRd = s.McyRd;
    VerificaAssiale(r, std::min(s.NbyRd, s.NbzRd), riga);
}

void Calcola(SezioneSagomoL& s, const Richiesta& r, RigaScelta& riga) {
    s.L0v = r.L0v;
    CalcolaCoppia(s, r, riga);
    riga.classe = s.ClasseCompressione;
    riga.NbvRd = s.NbvRd;
    riga.NplRd = s.Area * s.fy * s.betaA() / GammaM0; // ENV 1993-1-1 5.4.4 (1)
    VerificaAssiale(r, std::min({s.NbyRd, s.NbzRd, s.NbvRd}), riga);
}

template <typename S>
RigaScelta RigaDi(std::size_t indice, const Ingombro& i, S& sezione, const Richiesta& r) {
    RigaScelta riga;
    riga.indice = indice;
    riga.g = i.g;
    riga.h = i.h;
    riga.b = i.b;
    riga.verificato = true;
    Calcola(sezione, r, riga);
    if (SenzaAzioni(r))
        ToglieVerifiche(riga);
    return riga;
}

/// Moments as the figure of the factors has them.
Richiesta Corretta(Richiesta r) {
    for (MomentiMembratura* m : {&r.y, &r.z}) {
        CorreggeM1M2(m->M1, m->M2);
        CorreggeMQ(m->MQ);
    }
    return r;
}

/// A beam is bent and held by nobody knows what: that it counts as restrained is told.
void DiceSenzaLunghezza(const SezioneQualsiasi& sezione, const Richiesta& r,
                        std::vector<std::string>& messaggi) {
    constexpr std::string_view testo = "svergolamento non verificato: manca L o L0z";
    const bool inflessa = r.y.M1 != 0 || r.y.M2 != 0 || r.y.MQ != 0;
    if (inflessa && !LunghezzaSvergolamento(r) && std::holds_alternative<SezioneDoppioT>(sezione) &&
        std::ranges::find(messaggi, testo) == messaggi.end())
        messaggi.emplace_back(testo);
}

void Prende(std::vector<Messaggio>& raccolti, std::vector<std::string>& messaggi) {
    for (Messaggio& m : raccolti)
        if (std::ranges::find(messaggi, m.testo) == messaggi.end())
            messaggi.push_back(std::move(m.testo));
    raccolti.clear();
}

} // namespace

std::string_view NomeVerifica(VerificaScelta verifica) {
    switch (verifica) {
    case VerificaScelta::Sezione:
        return "sezione";
    case VerificaScelta::Membratura:
        return "membratura";
    case VerificaScelta::Svergolamento:
        return "svergolamento";
    default:
        return "";
    }
}

std::optional<double> LunghezzaSvergolamento(const Richiesta& r) {
    return r.LLT ? r.LLT : r.L0z > 0 ? std::optional(r.L0z) : std::nullopt;
}

std::string MotivoSenzaVerdetto(VerificaScelta verifica) {
    return "La verifica a " + std::string(NomeVerifica(verifica)) + " non ha un verdetto";
}

bool SenzaAzioni(const Richiesta& richiesta) { return richiesta.NSd == 0 && !HaMomenti(richiesta); }

std::vector<RigaScelta> Valuta(std::span<const SagomoInGara> sagomi, const Richiesta& richiesta,
                               const Filtri& filtri, std::vector<std::string>& messaggi) {
    RaccoltaMessaggi raccolta;
    const SezionePropria propria(richiesta.TipoAcciaio);
    const Richiesta r = Corretta(richiesta);
    std::vector<RigaScelta> righe;
    for (std::size_t i = 0; i < sagomi.size(); ++i)
        std::visit(
            [&](const auto& letta) {
                const Ingombro ingombro = IngombroDi(letta, sagomi[i].g, r);
                if (!Ammesso(sagomi[i], ingombro, filtri))
                    return;
                auto sezione = letta;
                RigaScelta riga = RigaDi(i, ingombro, sezione, r);
                DiceSenzaLunghezza(sagomi[i].sezione, r, messaggi);
                if (riga.verificato || !filtri.soloVerificati)
                    righe.push_back(std::move(riga));
            },
            sagomi[i].sezione);
    Prende(raccolta.raccolti, messaggi);
    return righe;
}

SagomoVerificato Verifica(const SagomoInGara& sagomo, const Richiesta& richiesta,
                          std::vector<std::string>& messaggi) {
    RaccoltaMessaggi raccolta;
    const SezionePropria propria(richiesta.TipoAcciaio);
    const Richiesta r = Corretta(richiesta);
    SagomoVerificato esito{.riga = {}, .sezione = sagomo.sezione, .CurvaY = {}, .CurvaZ = {}};
    std::visit(
        [&](auto& sezione) {
            esito.riga = RigaDi(0, IngombroDi(sezione, sagomo.g, r), sezione, r);
            esito.CurvaY = sezione.CurvaInstabilita("yy");
            esito.CurvaZ = sezione.CurvaInstabilita("zz");
        },
        esito.sezione);
    DiceSenzaLunghezza(sagomo.sezione, r, messaggi);
    Prende(raccolta.raccolti, messaggi);
    return esito;
}

std::tuple<bool, double, double> ChiavePeso(const RigaScelta& riga) {
    const double utilizzo = std::isnan(riga.massimo) ? std::numeric_limits<double>::infinity() : riga.massimo;
    return {!riga.verificato, riga.g, utilizzo};
}

void OrdinaPerPeso(std::vector<RigaScelta>& righe) {
    std::ranges::sort(righe, {}, [](const RigaScelta& r) { return std::pair(ChiavePeso(r), r.indice); });
}

} // namespace sagomi
