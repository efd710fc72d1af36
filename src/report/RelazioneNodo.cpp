#include "report/RelazioneNodo.h"

#include <algorithm>
#include <cmath>
#include <span>
#include <utility>

#include "frame/Acciaio.h"
#include "frame/Cartelle.h"
#include "frame/FileDati.h"
#include "frame/GeneraleSagomi.h"
#include "frame/LetturaFile.h"
#include "frame/Messaggi.h"
#include "joints/ComponentiGiunto.h"
#include "joints/DisegnoNodo.h"
#include "joints/FormuleGiunto.h"
#include "joints/Nodo.h"
#include "joints/RelazioneGiunto.h"
#include "joints/TestiGiunto.h"
#include "joints/UtilizzoGiunto.h"
#include "report/Figure.h"
#include "report/FormuleRelazione.h"
#include "report/NumeriGiunto.h"

namespace sagomi {

namespace {

using Passi = std::vector<PassoRelazione>;

/// Without blanks and dashes around it.
std::string Nudo(std::string_view testo, std::string_view tolti = " -") {
    const std::size_t da = testo.find_first_not_of(tolti);
    if (da == std::string_view::npos)
        return {};
    return std::string(testo.substr(da, testo.find_last_not_of(tolti) - da + 1));
}

/// A letter or two in front of a number are subscripts: "d0", "Mj.rd".
std::string ConPedice(std::string_view simbolo) {
    if (simbolo.starts_with("beta"))
        return "β";
    if (simbolo.size() < 2 || simbolo.find(' ') != std::string_view::npos)
        return std::string(simbolo);
    return std::string(simbolo.substr(0, 1)) + '{' + std::string(simbolo.substr(1)) + '}';
}

/// "     Spessore: tf = " as words and symbol.
PassoRelazione PassoDi(const VoceRelazione& voce) {
    std::string testo = Nudo(voce.testo, " =");
    std::string simbolo;
    const std::size_t spazio = testo.find_last_of(' ');
    const std::string ultima = spazio == std::string::npos ? testo : testo.substr(spazio + 1);
    constexpr std::size_t lungoSimbolo = 7;
    const bool eSimbolo = testo.find(": " + ultima) != std::string::npos || spazio == std::string::npos ||
                          ultima.find('.') != std::string::npos || ultima == "Sj" || ultima == "Kwc" ||
                          ultima == "Kfc" || ultima == "beta";
    if (eSimbolo && ultima.size() <= lungoSimbolo && !ultima.ends_with(".")) {
        simbolo = ultima;
        testo = spazio == std::string::npos ? std::string() : Nudo(testo.substr(0, spazio), " :");
    }
    return Dato(testo, ConPedice(simbolo), voce.valore, Nudo(voce.unita, "[]"));
}

/// A line of dashes with words in it begins a chapter.
bool ETitolo(const VoceRelazione& voce) { return voce.testo.find("---") != std::string::npos; }

/// Without a span of the beam there are no limits of stiffness.
bool ELimiteAssente(const VoceRelazione& voce) {
    return voce.conValore && voce.valore.empty() && Nudo(voce.testo).starts_with("Limite ");
}

void AggiungeVoci(Relazione& r, const Nodo& nodo, int indice, const std::string& lato) {
    r.capitoli.push_back({.titolo = "Giunto " + lato});
    const std::vector<VoceRelazione> voci = VociRelazione(nodo, indice);
    std::string nomeFila;
    for (auto voce = voci.begin() + 1; voce != voci.end(); ++voce) {
        if (ETitolo(*voce)) {
            const std::string titolo = Nudo(voce->testo);
            r.capitoli.push_back({.titolo = titolo.empty() ? "Resistenze del giunto" : titolo});
        } else if (ELimiteAssente(*voce)) {
            continue;
        } else if (voce->conValore) {
            PassoRelazione passo = PassoDi(*voce);
            if (const std::size_t fila = passo.descrizione.find("Fila"); fila == 0)
                passo.descrizione.insert(0, nomeFila); // the second row of the same component
            else if (fila != std::string::npos)
                nomeFila = passo.descrizione.substr(0, fila);
            r.capitoli.back().passi.push_back(std::move(passo));
        } else if (const std::size_t duepunti = voce->testo.find(" : "); duepunti != std::string::npos) {
            r.capitoli.back().passi.push_back(
                Dato(Nudo(voce->testo.substr(0, duepunti)), "", voce->testo.substr(duepunti + 3)));
        } else if (const std::string nota = Nudo(voce->testo); !nota.empty()) {
            r.capitoli.back().note.push_back(nota);
        }
    }
}

/// The steps of the check, made anew where the joint has none; empty where they lead elsewhere.
TracciaGiunto PassiDi(const Giunto& giunto) {
    if (!giunto.Traccia.empty() || !giunto.Acquisito)
        return giunto.Traccia;
    const MessaggiTaciuti silenzio;
    try {
        const auto copia = giunto.CopiaDiLavoro();
        copia->Mrd_Giunto_Calcola();
        copia->Limiti();
        copia->Sj_Giunto_Calcola();
        constexpr double cifreFile = 1e-6;
        const double scarto = std::abs(copia->MplRdGIUNTO - giunto.MplRdGIUNTO);
        return scarto <= cifreFile * std::abs(giunto.MplRdGIUNTO) ? copia->Traccia : TracciaGiunto();
    } catch (const std::exception&) {
        return {};
    }
}

/// The bytes of the file of formulas; empty where it cannot be read.
std::string Formule() {
    constexpr std::size_t massimo = std::size_t{1} << 22U;
    try {
        const FileLetto file = LeggeFile(PercorsoSenzaMaiuscole(CartellaInstallata(), fileFormule), massimo);
        return {file.byte.begin(), file.byte.end()};
    } catch (const std::exception&) {
        return {};
    }
}

/// Symbols of steps that have no block of formulas.
constexpr std::pair<std::string_view, const char*> simboli[] = {{"Bt", "B{t,Rd}"},
                                                                {"leff", "l{eff}"},
                                                                {"beff", "b{eff}"},
                                                                {"Mpl", "M{pl,Rd}"},
                                                                {"Modo 1", "F{t,1,Rd}"},
                                                                {"Modo 2", "F{t,2,Rd}"},
                                                                {"Modo 3", "F{t,3,Rd}"},
                                                                {"sigma", "σ{c}"},
                                                                {"fd", "f{d}"},
                                                                {"Avc", "A{vc}"},
                                                                {"a1", "a{1}"},
                                                                {"a2", "a{2}"},
                                                                {"CordoneAla", "a{max}"},
                                                                {"mu", "μ"},
                                                                {"S", "S"},
                                                                {"SEst", "S{est}"},
                                                                {"eta1", "η{1}"},
                                                                {"eta2", "η{2}"},
                                                                {"eta3", "η{3}"},
                                                                {"eta4", "η{4}"},
                                                                {"eta5", "η{5}"},
                                                                {"eta6", "η{6}"},
                                                                {"eta5e", "η{5,est}"},
                                                                {"zInt", "z{int}"},
                                                                {"zEst", "z{est}"},
                                                                {"FtotFile", "F{tot}"},
                                                                {"leffInterna", "l{eff}"},
                                                                {"Ftrd_FilaSupRid_c", "F{t,Rd,rid}"},
                                                                {"mu4_Estesa", "μ{4,est}"},
                                                                {"mu5_Estesa", "μ{5,est}"},
                                                                {"FtRd_Individuale", "F{t,Rd}"},
                                                                {"FtRd_Gruppo", "F{t,Rd,gr}"},
                                                                {"RDebole", "F{Rd,min}"},
                                                                {"Sj_MjRd_", "S{j,int}"},
                                                                {"Sj_MjRd_Estesa", "S{j,est}"},
                                                                {"Sj_Mela_", "S{j,int}"},
                                                                {"Sj_Mela_Estesa", "S{j,est}"},
                                                                {"Sj_MjSd_", "S{j,int}"},
                                                                {"Sj_MjSd_Estesa", "S{j,est}"}};

/// Texts have their place beside a word, not beside the name of a member.
constexpr std::pair<std::string_view, const char*> testi[] = {
    {"ComponenteDeboleFilaInf", "resistenza governata"},
    {"ComponenteDeboleFilaSup", "resistenza governata"},
    {"ComponenteDebole", "componente comune più debole"},
    {"Nota", "nota"},
    {"ResistenzaGiunto", "classe"},
    {"RigidezzaGiunto1", "telaio controventato"},
    {"RigidezzaGiunto2", "telaio non controventato"}};

template <typename T> std::string NomeIn(const T& tavola, std::string_view nome) {
    for (const auto& [chiave, testo] : tavola)
        if (chiave == nome)
            return testo;
    return {};
}

/// Symbol and formula of a step, from the file of formulas where it has them.
void Spiega(PassoRelazione& passo, std::string_view nome, const std::string& rtf) {
    passo.simbolo = NomeIn(simboli, nome);
    if (const auto f = FormulaDi(rtf, nome)) {
        passo.simbolo = f->simbolo.empty() ? passo.simbolo : f->simbolo;
        const std::string uguale = passo.simbolo + " = ";
        const bool propria = f->formula.starts_with(uguale);
        passo.formula = propria              ? f->formula.substr(uguale.size())
                        : f->formula.empty() ? std::string()
                                             : '\n' + f->formula;
    }
    if (passo.simbolo.empty())
        passo.simbolo = ConPedice(nome);
}

/// The lines of a block but those that the steps of a T-stub have said with their numbers.
std::string SenzaModi(std::string_view blocco) {
    constexpr std::string_view detti[] = {"M{pl} = ", "F{1} = ", "F{2} = ", "F{3} = ", "F = "};
    std::string resto;
    while (!blocco.empty()) {
        const std::string_view riga = blocco.substr(0, blocco.find('\n'));
        blocco.remove_prefix(std::min(riga.size() + 1, blocco.size()));
        const bool detta = std::ranges::any_of(detti, [&](auto d) { return riga.starts_with(d); });
        if (!riga.empty() && !detta && !riga.starts_with("min(F{1};"))
            resto += '\n' + std::string(riga);
    }
    return resto;
}

/// The numbers stand behind the first line of a formula; those below it say what its symbols are.
void AggiungeNumeri(PassoRelazione& passo, NumeriPasso numeri) {
    if (!numeri.formula.empty()) {
        numeri.numeri += numeri.numeri.empty() ? std::string() : SenzaModi(passo.formula);
        passo.formula = passo.formula.empty() || !numeri.numeri.empty() ? numeri.formula : passo.formula;
    }
    passo.numeri = std::move(numeri.numeri);
    const std::size_t riga = passo.formula.find('\n');
    if (passo.numeri.empty() || riga == 0 || riga == std::string::npos)
        return;
    passo.numeri += passo.formula.substr(riga);
    passo.formula.erase(riga);
}

PassoRelazione PassoDi(const TracciaGiunto& traccia, std::size_t i, const Giunto& giunto,
                       const std::string& rtf) {
    const PassoGiunto& p = traccia[i];
    PassoRelazione passo = Dato({}, {}, p.testo.empty() ? Cifre(p.valore) : p.testo, std::string(p.unita));
    if (p.testo.empty()) {
        Spiega(passo, p.nome, rtf);
        AggiungeNumeri(passo, NumeriDi(p, std::span(traccia).first(i), giunto));
    } else
        passo.descrizione = NomeIn(testi, p.nome);
    if (passo.unita == "mm2" || passo.unita == "N/mm2")
        passo.unita.replace(passo.unita.size() - 1, 1, "^{2}");
    return passo;
}

/// A chapter of the whole derivation; component and clause stand where they change.
void AggiungePassi(Relazione& r, const Giunto& giunto, const std::string& lato) {
    CapitoloRelazione c{.titolo = "Passi del calcolo, giunto " + lato};
    const std::string rtf = Formule();
    std::string_view componente;
    const TracciaGiunto traccia = PassiDi(giunto);
    for (std::size_t i = 0; i < traccia.size(); ++i) {
        const PassoGiunto& p = traccia[i];
        if (p.nome == "TipoMessaggio" ||
            (!p.testo.empty() && p.testo.find_first_not_of(' ') == std::string::npos))
            continue;
        PassoRelazione passo = PassoDi(traccia, i, giunto, rtf);
        if (std::exchange(componente, p.componente) != p.componente) {
            passo.descrizione =
                std::string(p.componente) + (passo.descrizione.empty() ? "" : ", ") + passo.descrizione;
            passo.norma = p.norma;
        }
        c.passi.push_back(std::move(passo));
    }
    AdattaDecimali(c);
    if (c.passi.empty() && giunto.Acquisito)
        c.note.emplace_back(
            "I risultati vengono dal file: coi coefficienti parziali in vigore il calcolo ne dà altri.");
    if (!c.passi.empty() || !c.note.empty())
        r.capitoli.push_back(std::move(c));
}

/// The components that govern the moment, as the screen names them.
std::string NomiGovernanti(const Giunto& giunto) {
    std::string nomi;
    for (const ComponenteFila& quale : Governa(giunto).governano)
        nomi += (nomi.empty() ? "" : "; ") + NomeComponente(quale);
    return nomi;
}

void AggiungeVerdetti(Relazione& r, const Giunto& giunto, const std::string& lato) {
    const VerdettoGiunto v = Giudica(giunto);
    CapitoloRelazione momento{.titolo = "Verifica a momento, giunto " + lato};
    CapitoloRelazione taglio{.titolo = "Verifica a taglio, giunto " + lato};
    const std::string quale = " del giunto " + lato;
    momento.verdetto = VerdettoRelazione{.verifica = "Momento resistente" + quale,
                                         .motivo = "non calcolato",
                                         .norma = "ENV 1993-1-1 appendice J"};
    if (v.presente) {
        VerdettoRelazione& m = *momento.verdetto;
        m.esito = v.resiste ? EsitoRelazione::Passa : EsitoRelazione::NonPassa;
        m.utilizzo = Utilizzo(giunto, "txtFmin0").value_or(std::numeric_limits<double>::quiet_NaN());
        m.governa = NomiGovernanti(giunto);
        m.motivo = v.notaMomento;
        taglio.verdetto =
            VerdettoRelazione{.verifica = "Taglio resistente" + quale,
                              .esito = v.taglio.empty() ? EsitoRelazione::Passa : EsitoRelazione::NonPassa,
                              .utilizzo = std::abs(double(giunto.Trave->Vsd())) / giunto.Vrd1,
                              .motivo = v.taglio.empty() ? v.notaTaglio : v.taglio,
                              .norma = "ENV 1993-1-1 6.5.5"};
    }
    r.capitoli.push_back(std::move(momento));
    if (taglio.verdetto)
        r.capitoli.push_back(std::move(taglio));
}

const char* Tipo(const Nodo& nodo) {
    switch (nodo.Tipovie) {
    case nodoCroce:
        return "due travi, con colonna superiore";
    case nodoCroceSenzaColonna:
        return "due travi, senza colonna superiore";
    case nodoT:
        return "una trave, con colonna superiore";
    default:
        return "una trave, senza colonna superiore";
    }
}

const char* Irrigidimenti(const Giunto& g) {
    return g.Irrigidimenti == "Si"   ? "con irrigidimenti"
           : g.Irrigidimenti == "Cp" ? "irrigidimento in zona compressa"
                                     : "senza irrigidimenti";
}

std::string Figura(double v) { return Formato("0.0##", v); }

/// Name, grade and strengths of a section, and the actions, which a node holds in kN and kNm.
void AggiungeSagomo(Passi& p, const std::string& ruolo, const SezioneDoppioT& s) {
    p.push_back(Dato(ruolo, "", s.Designation));
    if (const std::string acciaio = AcciaioMostrato(s.TipoAcciaio, s.fy); !acciaio.empty())
        p.push_back(Dato(ruolo + ", acciaio", "", acciaio));
    p.push_back(Dato(ruolo + ", tensione di snervamento", "f{y}", Piano(s.fy), "N/mm^{2}"));
    p.push_back(Dato(ruolo + ", tensione di rottura", "f{u}", Piano(s.fu), "N/mm^{2}"));
    p.push_back(Dato(ruolo + ", forza assiale", "N{Sd}", Figura(s.Nsd()), "kN"));
    p.push_back(Dato(ruolo + ", momento", "M{Sd}", Figura(s.Mysd), "kNm"));
    p.push_back(Dato(ruolo + ", taglio", "V{Sd}", Figura(s.Vsd()), "kN"));
}

void AggiungeGiunto(Passi& p, const Giunto& g, const std::string& lato) {
    const std::string ruolo = lato == "destro" ? "Trave destra" : "Trave sinistra";
    if (g.Trave) {
        AggiungeSagomo(p, ruolo, *g.Trave);
        const double luce = g.Trave->lunghezza();
        p.push_back(luce == 0 ? Dato(ruolo + ", luce", "L", "non data")
                              : Dato(ruolo + ", luce", "L", Figura(luce), "m"));
    }
    p.push_back(Dato("Giunto " + lato + ", classe dei bulloni", "", g.Classe));
    p.push_back(
        Dato("Giunto " + lato + ", tensione di rottura dei bulloni", "f{ub}", Piano(g.fubl), "N/mm^{2}"));
    p.push_back(Dato("Giunto " + lato + ", anima della colonna", "", Irrigidimenti(g)));
    p.push_back(Dato("Giunto " + lato + ", taglio nel pannello d'anima", "β",
                     g.Beta_Cautel ? "cautelativo" : "analitico", "", "ENV 1993-1-1 appendice J"));
}

/// What was entered.
CapitoloRelazione CapitoloDati(const Nodo& nodo) {
    CapitoloRelazione c{.titolo = "Dati"};
    c.passi = {Dato("Nodo", "", Tipo(nodo)), Dato("Normativa", "", NomeNormativa()),
               Dato("Coefficiente parziale, resistenza", "γ{M0}", Piano(GammaM0)),
               Dato("Coefficiente parziale, instabilità", "γ{M1}", Piano(GammaM1)),
               Dato("Coefficiente parziale, collegamenti", "γ{M2}", Piano(GammaM2))};
    if (nodo.Colonnainf)
        AggiungeSagomo(c.passi, "Colonna", *nodo.Colonnainf);
    if (nodo.Tipovie == nodoCroce || nodo.Tipovie == nodoT)
        c.passi.push_back(Dato("Colonna superiore, taglio", "V{Sd,sup}", Figura(nodo.VColSup), "kN"));
    for (int i = 1; i <= nodo.NumeroGiunti; ++i)
        if (const auto& giunto = nodo.Giunti[i].Riferimento())
            AggiungeGiunto(c.passi, *giunto, i == 1 ? "destro" : "sinistro");
    return c;
}

std::string Nome(const Nodo& nodo) {
    std::string nome;
    for (const SezioneDoppioT* s :
         {nodo.Colonnainf.get(), nodo.TraveDx.Riferimento().get(), nodo.TraveSx.Riferimento().get()})
        if (s != nullptr && !s->Designation.empty())
            nome += (nome.empty() ? "" : ", ") + s->Designation;
    return nome;
}

} // namespace

Relazione RelazioneNodo(const Nodo& nodo, const std::string& descrizione) {
    Relazione r{.titolo = "Giunto flangiato trave-colonna",
                .oggetto = descrizione.empty() ? Nome(nodo) : descrizione};
    r.maschera = "frmGiunti";
    r.disegno = nodo.ConnessioneCorrente ? DisegnoNodo(nodo) : Disegno();
    r.capitoli.push_back(CapitoloDati(nodo));
    for (int i = 1; i <= nodo.NumeroGiunti; ++i) {
        const std::string lato = i == 1 ? "destro" : "sinistro";
        AggiungeVoci(r, nodo, i, lato);
        if (const auto& giunto = nodo.Giunti[i].Riferimento()) {
            AggiungePassi(r, *giunto, lato);
            AggiungeVerdetti(r, *giunto, lato);
        }
    }
    return r;
}

} // namespace sagomi
