#include "choice/Opzioni.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <iterator>
#include <span>
#include <string_view>
#include <utility>

#include "choice/NomiVicini.h"
#include "choice/OpzioniToolkit.h"
#include "frame/GeneraleSagomi.h"
#include "frame/Impostazioni.h"
#include "frame/Unita.h"

namespace sagomi {

namespace {

using Azione = void (*)(Comando&, const std::string&);
using PrendeNumero = void (*)(Comando&, double);

struct OpzioneTesto {
    std::string_view nome;
    const char* vuole; ///< what its value is, in Italian
    Azione prende;
};

/// A number of a range, ends included.
struct OpzioneNumero {
    std::string_view nome;
    double minimo, massimo;
    PrendeNumero prende;
};

/// What has been read so far.
struct Lettura {
    Comando c;
    std::vector<std::string> date;     ///< options of this call
    std::vector<std::string> soggetti; ///< names without dashes
    std::string soloScelta;            ///< first option of this call that a single section has no use for
    bool proprie = true;               ///< of this call, not those that hold for all

    [[nodiscard]] bool Ha(std::string_view nome) const { return std::ranges::find(date, nome) != date.end(); }
};

constexpr double qualsiasi = 1e12;     // beyond it no force nor length means anything
constexpr double minimoFattore = 1e-6; // the critical moment divides by them, or is none

std::vector<std::string> Separati(const std::string& testo) {
    std::vector<std::string> pezzi;
    std::size_t da = 0;
    for (std::size_t a = 0; a != std::string::npos; da = a + 1) {
        a = testo.find(',', da);
        pezzi.push_back(testo.substr(da, a == std::string::npos ? a : a - da));
        if (a == std::string::npos)
            break;
    }
    return pezzi;
}

void Sceglie(Comando& c, ModoComando modo) {
    if (c.modo != ModoComando::Finestre && c.modo != modo)
        throw ErroreUso("si può chiedere una cosa sola fra --verifica, --scelta e un file");
    c.modo = modo;
}

void Scrive(Comando& c, FormatoUscita formato) {
    if (c.formato != FormatoUscita::Testo && c.formato != formato)
        throw ErroreUso("si può chiedere uno solo fra --json e --csv");
    c.formato = formato;
}

/// Names where an answer goes to.
void Uscita(std::filesystem::path& uscita, const char* opzione, const std::string& nome) {
    if (nome.empty() || (nome == uscitaStandard && opzione != std::string_view("--relazione")))
        throw ErroreUso(std::string(opzione) + " vuole un file");
    if (!uscita.empty())
        throw ErroreUso(std::string(opzione) + " sta due volte");
    uscita = nome;
}

std::int16_t Forma(double v) {
    if (v != std::floor(v))
        throw ErroreUso("--diagramma vuole un numero intero da 1 a 6");
    return static_cast<std::int16_t>(v);
}

// clang-format off
constexpr OpzioneTesto testi[] = {
    {"--verifica",  "il nome di un sagomo", [](Comando& c, const std::string& t) { Sceglie(c, ModoComando::Verifica); c.sagomo = t; }},
    {"--acciaio",   "un acciaio", [](Comando& c, const std::string& t) { c.acciaio = t; }},
    {"--normativa", "una norma (NTC, EC3, Altro)", [](Comando& c, const std::string& t) { c.normativa = t; }},
    {"--famiglie",  "nomi di famiglie con la virgola", [](Comando& c, const std::string& t) { c.filtri.famiglie = Separati(t); }},
    {"--relazione", "un file", [](Comando& c, const std::string& t) { Uscita(c.uscite.relazione, "--relazione", t); }},
    {"--pdf",       "un file", [](Comando& c, const std::string& t) { Uscita(c.uscite.pdf, "--pdf", t); }},
    {"--dxf",       "un file", [](Comando& c, const std::string& t) { Uscita(c.uscite.dxf, "--dxf", t); }},
    {"--progetto",  "un testo", [](Comando& c, const std::string& t) { c.progetto = t; }},
};

constexpr OpzioneNumero numeri[] = {
    {"--N",     -qualsiasi, qualsiasi, [](Comando& c, double v) { c.richiesta.NSd = kN_a_N(v); }},
    {"--My",    0, qualsiasi, [](Comando& c, double v) { c.richiesta.y.M1 = kNm_a_Nmm(v); }},
    {"--My2",   -qualsiasi, qualsiasi, [](Comando& c, double v) { c.richiesta.y.M2 = kNm_a_Nmm(v); }},
    {"--MyQ",   0, qualsiasi, [](Comando& c, double v) { c.richiesta.y.MQ = kNm_a_Nmm(v); }},
    {"--Mz",    0, qualsiasi, [](Comando& c, double v) { c.richiesta.z.M1 = kNm_a_Nmm(v); }},
    {"--Mz2",   -qualsiasi, qualsiasi, [](Comando& c, double v) { c.richiesta.z.M2 = kNm_a_Nmm(v); }},
    {"--MzQ",   0, qualsiasi, [](Comando& c, double v) { c.richiesta.z.MQ = kNm_a_Nmm(v); }},
    {"--L0y",   0, qualsiasi, [](Comando& c, double v) { c.richiesta.L0y = m_a_mm(v); }},
    {"--L0z",   0, qualsiasi, [](Comando& c, double v) { c.richiesta.L0z = m_a_mm(v); }},
    {"--L0v",   0, qualsiasi, [](Comando& c, double v) { c.richiesta.L0v = m_a_mm(v); }},
    {"--L",     0, qualsiasi, [](Comando& c, double v) { c.richiesta.LLT = m_a_mm(v); }},
    {"--k",     minimoFattore, qualsiasi, [](Comando& c, double v) { c.richiesta.k = v; }},
    {"--Kw",    minimoFattore, qualsiasi, [](Comando& c, double v) { c.richiesta.Kw = v; }},
    {"--C1",    minimoFattore, qualsiasi, [](Comando& c, double v) { c.richiesta.C1 = v; }},
    {"--C2",    -qualsiasi, qualsiasi, [](Comando& c, double v) { c.richiesta.c2 = v; }},
    {"--C3",    -qualsiasi, qualsiasi, [](Comando& c, double v) { c.richiesta.c3 = v; }},
    {"--za",    -qualsiasi, qualsiasi, [](Comando& c, double v) { c.richiesta.za = v; }},
    {"--fy",    limitiResistenza.minimo, limitiResistenza.massimo, [](Comando& c, double v) { c.fy = v; }},
    {"--fu",    limitiResistenza.minimo, limitiResistenza.massimo, [](Comando& c, double v) { c.fu = v; }},
    {"--GammaM0", 0.01, 100, [](Comando& c, double v) { c.GammaM0 = v; }},
    {"--GammaM1", 0.01, 100, [](Comando& c, double v) { c.GammaM1 = v; }},
    {"--doppi", 0, qualsiasi, [](Comando& c, double v) { c.richiesta.doppi = true; c.richiesta.dDoppi = v; }},
    {"--hmax",  0, qualsiasi, [](Comando& c, double v) { c.filtri.hMassima = v; }},
    {"--bmax",  0, qualsiasi, [](Comando& c, double v) { c.filtri.bMassima = v; }},
    {"--gmin",  0, qualsiasi, [](Comando& c, double v) { c.filtri.gMinimo = v; }},
    {"--gmax",  0, qualsiasi, [](Comando& c, double v) { c.filtri.gMassimo = v; }},
    {"--diagramma", 1, nPict, [](Comando& c, double v) { c.richiesta.pict = Forma(v); }},
};

constexpr std::pair<std::string_view, void (*)(Comando&)> interruttori[] = {
    {"--help",       [](Comando& c) { c.modo = ModoComando::Aiuto; }},
    {"--version",    [](Comando& c) { c.modo = ModoComando::Versione; }},
    {"--scelta",     [](Comando& c) { Sceglie(c, ModoComando::Scelta); }},
    {"--json",       [](Comando& c) { Scrive(c, FormatoUscita::Json); }},
    {"--csv",        [](Comando& c) { Scrive(c, FormatoUscita::Csv); }},
    {"--accostati",  [](Comando& c) { c.richiesta.accostati = true; }},
    {"--verificati", [](Comando& c) { c.filtri.soloVerificati = true; }},
};
// clang-format on

std::string Cifre(double v) {
    char testo[32];
    return {testo, std::to_chars(testo, testo + sizeof testo, v).ptr};
}

/// The numbers that an option takes, in Italian.
std::string Intervallo(const OpzioneNumero& o) {
    const std::string da = o.minimo == minimoFattore ? "maggiore di 0" : "da " + Cifre(o.minimo);
    if (o.massimo < qualsiasi)
        return da + " a " + Cifre(o.massimo);
    return o.minimo == 0 ? "non minore di 0" : o.minimo == minimoFattore ? da : da + " a " + Cifre(o.massimo);
}

double NumeroDi(const OpzioneNumero& opzione, const std::string& testo) {
    double v = 0;
    const char* fine = testo.data() + testo.size();
    const auto letto = std::from_chars(testo.data(), fine, v);
    const std::string nome(opzione.nome);
    if (letto.ec != std::errc() || letto.ptr != fine || !std::isfinite(v))
        throw ErroreUso(nome + " vuole un numero col punto decimale, per esempio 2.5, non \"" + testo + "\"");
    if (v < opzione.minimo || v > opzione.massimo)
        throw ErroreUso(nome + " non può valere " + testo + ": vuole un numero " + Intervallo(opzione));
    return v;
}

/// Options that a file takes, too; the others tell what a section bears, or which ones take part.
bool AncheDiFile(std::string_view nome) {
    constexpr std::string_view anche[] = {"--relazione", "--pdf", "--dxf", "--progetto", "--normativa"};
    return std::ranges::find(anche, nome) != std::end(anche);
}

bool SoloDiScelta(std::string_view nome) {
    constexpr std::string_view sole[] = {"--hmax", "--bmax", "--gmin", "--gmax", "--verificati"};
    return std::ranges::find(sole, nome) != std::end(sole);
}

bool DelloSvergolamento(std::string_view nome) {
    constexpr std::string_view sue[] = {"--L", "--k", "--Kw", "--C1", "--C2", "--C3", "--za"};
    return std::ranges::find(sue, nome) != std::end(sue);
}

/// The option that a name was probably meant for; empty: none is near.
std::string_view OpzioneVicina(const std::string& nome) {
    constexpr std::size_t simile = 2; // letters
    std::string_view vicina;
    std::size_t minima = simile + 1;
    const auto prova = [&](std::string_view nostra) {
        const bool troppe = nome.size() > nostra.size() + simile;
        if (const std::size_t d = troppe || nostra.size() <= 2 + simile ? minima : Distanza(nome, nostra);
            d < minima) {
            minima = d;
            vicina = nostra;
        }
    };
    for (const auto& i : interruttori)
        prova(i.first);
    for (const OpzioneTesto& t : testi)
        prova(t.nome);
    for (const OpzioneNumero& n : numeri)
        prova(n.nome);
    return vicina;
}

/// Refuses what is no option, with the one that was probably meant, or what is expected.
[[noreturn]] void NonOpzione(const std::string& nome) {
    const std::string_view vicina = OpzioneVicina(nome);
    throw ErroreUso('"' + nome + "\" non è un'opzione: " +
                    (vicina.empty() ? "si attende un file Gfl o Sco, --verifica o --scelta"
                                    : "forse " + std::string(vicina)));
}

/// The windows take files and options of the toolkit alone; what stands behind one of these is its value.
void ControllaFinestre(const std::vector<std::string>& argomenti) {
    for (std::size_t i = 0; i < argomenti.size(); ++i) {
        const std::string& argomento = argomenti[i];
        if (const auto valori = ValoriNelToolkit(argomento))
            i += *valori;
        else if (argomento.starts_with('-'))
            NonOpzione(argomento);
    }
}

/// A name without dashes: one file or section.
void PrendeSoggetto(Comando& c, const std::string& nome) {
    if (nome.empty())
        throw ErroreUso("un nome vuoto non è né un file né un sagomo");
    if (!c.file.empty() || !c.sagomo.empty())
        throw ErroreUso("un solo file o sagomo alla volta: \"" + nome + "\" è di troppo");
    (EFileDati(nome) ? c.file : c.sagomo) = nome;
}

/// Keeps count of an option: none stands twice, and some go with a question of their own.
void Annota(Lettura& l, const std::string& nome) {
    if (l.Ha(nome))
        throw ErroreUso(nome + " sta due volte");
    l.date.push_back(nome);
    if (l.proprie && l.soloScelta.empty() && SoloDiScelta(nome))
        l.soloScelta = nome;
    if (l.proprie && l.c.soloSvergolamento.empty() && DelloSvergolamento(nome))
        l.c.soloSvergolamento = nome;
}

bool ConValore(std::string_view nome) {
    return std::ranges::find(testi, nome, &OpzioneTesto::nome) != std::end(testi) ||
           std::ranges::find(numeri, nome, &OpzioneNumero::nome) != std::end(numeri);
}

bool ENostra(const std::string& argomento) { return ConValore(argomento) || EInterruttore(argomento); }

/// Whether an argument stands where a value was expected and is the next option.
bool EOpzione(const std::string& argomento) {
    return ENostra(argomento) || (argomento.starts_with("--") && argomento.size() > 2);
}

/// The value behind an option. Throws for one that is missing.
const std::string& ValoreDi(std::span<const std::string> argomenti, const char* vuole) {
    if (argomenti.size() < 2 || EOpzione(argomenti[1]))
        throw ErroreUso(argomenti.front() + " vuole " + vuole);
    return argomenti[1];
}

/// Keeps in mind what a file, or a call without a length, has no use for.
void AnnotaSenzaEffetto(Lettura& l, const std::string& nome, bool conValore) {
    if (l.c.soloSagomi.empty() && (conValore || nome == "--accostati") && !AncheDiFile(nome) &&
        !SoloDiScelta(nome))
        l.c.soloSagomi = nome;
    if (l.proprie && l.c.fattoreChiesto.empty() && nome != "--L" && DelloSvergolamento(nome))
        l.c.fattoreChiesto = nome;
}

/// "--option" of "--option=value", where the option has a value; else the argument.
std::string NomeOpzione(const std::string& argomento) {
    const std::string nome = argomento.substr(0, argomento.find('='));
    return nome.size() < argomento.size() && ConValore(nome) ? nome : argomento;
}

/// Takes one option, with its value where it has one. What stands behind a "=" is a value, whatever it is.
/// @return how many arguments it has taken
std::size_t Prende(Lettura& l, std::span<const std::string> argomenti) {
    const std::string nome = NomeOpzione(argomenti.front());
    if (!ENostra(nome))
        NonOpzione(nome);
    const bool conValore = ConValore(nome);
    const bool unito = nome.size() < argomenti.front().size();
    const auto* testo = std::ranges::find(testi, nome, &OpzioneTesto::nome);
    const char* vuole = testo != std::end(testi) ? testo->vuole : "un numero";
    const std::string valore = unito       ? argomenti.front().substr(nome.size() + 1)
                               : conValore ? ValoreDi(argomenti, vuole)
                                           : std::string();
    Annota(l, nome);
    AnnotaSenzaEffetto(l, nome, conValore);
    if (!conValore)
        std::ranges::find(interruttori, nome, [](const auto& i) { return i.first; })->second(l.c);
    else if (testo != std::end(testi))
        testo->prende(l.c, valore);
    else if (const auto* numero = std::ranges::find(numeri, nome, &OpzioneNumero::nome))
        numero->prende(l.c, NumeroDi(*numero, valore));
    return conValore && !unito ? 2 : 1;
}

void PrendeTutte(Lettura& l, const std::vector<std::string>& argomenti) {
    for (std::span<const std::string> resto(argomenti); !resto.empty();) {
        if (resto.front().starts_with("-")) {
            resto = resto.subspan(Prende(l, resto));
            continue;
        }
        l.soggetti.push_back(resto.front());
        resto = resto.subspan(1);
    }
}

/// The whole name, or what stands before its blank: "S275" of "S275 (Fe430)".
bool ENomeDi(const std::string& nome, const std::string& intero) {
    return nome == intero || (!nome.empty() && intero.starts_with(nome + ' '));
}

std::string NomiAcciai() {
    std::string nomi;
    for (const std::string& nome : NomeAcciaio)
        nomi += (nomi.empty() ? "" : ", ") + nome.substr(0, nome.find(' '));
    return nomi;
}

/// Files that are not there yet are compared, too: "o.txt" is "./o.txt".
bool Stesso(const std::filesystem::path& a, const std::filesystem::path& b) {
    const auto intero = [](const std::filesystem::path& file) {
        std::error_code nessuno;
        return std::filesystem::weakly_canonical(std::filesystem::absolute(file, nessuno), nessuno);
    };
    return !a.empty() && !b.empty() && intero(a) == intero(b);
}

/// No answer writes over another one, nor over the file that is read.
void ControllaUscite(const Comando& c) {
    const UsciteComando& u = c.uscite;
    if (Stesso(u.relazione, u.pdf) || Stesso(u.relazione, u.dxf) || Stesso(u.pdf, u.dxf))
        throw ErroreUso("--relazione, --pdf e --dxf vogliono file diversi");
    for (const std::filesystem::path& uscita : {u.relazione, u.pdf, u.dxf})
        if (Stesso(c.file, uscita))
            throw ErroreUso("\"" + uscita.string() + "\" è il file da leggere: non si sovrascrive");
}

/// A name alone is reported; what does not go with it is refused.
void ControllaSoggetto(Comando& c, const std::vector<std::string>& soggetti) {
    if (!soggetti.empty() && !c.uscite.Qualcuna())
        throw ErroreUso("\"" + soggetti.front() + "\" non è un'opzione");
    for (const std::string& soggetto : soggetti)
        PrendeSoggetto(c, soggetto);
    if (!soggetti.empty())
        Sceglie(c, ModoComando::Relazione);
    if (c.uscite.Qualcuna() && c.modo == ModoComando::Scelta)
        throw ErroreUso("--relazione, --pdf e --dxf vogliono un file Gfl o Sco o un sagomo, non --scelta");
    if (c.uscite.Qualcuna() && c.modo == ModoComando::Finestre)
        throw ErroreUso("--relazione, --pdf e --dxf vogliono un file Gfl o Sco o un sagomo");
    if (!c.progetto.empty() && !c.uscite.Qualcuna())
        throw ErroreUso("--progetto va con --relazione o --pdf");
    if (c.modo == ModoComando::Relazione && c.formato != FormatoUscita::Testo)
        throw ErroreUso("--json e --csv vanno con --verifica e --scelta");
    if (!c.file.empty() && !c.soloSagomi.empty())
        throw ErroreUso(c.soloSagomi + " vale per un sagomo: un file ha i suoi dati");
    if (c.uscite.relazione == uscitaStandard && c.modo == ModoComando::Verifica)
        throw ErroreUso("--relazione - va senza --verifica, che risponde già sull'uscita");
    ControllaUscite(c);
}

/// Moments that no diagram has, or that the one in force leaves out.
void ControllaMomenti(const Richiesta& r) {
    if (std::abs(r.y.M2) > r.y.M1 || std::abs(r.z.M2) > r.z.M1)
        throw ErroreUso("--My2 e --Mz2 non possono superare --My e --Mz in valore assoluto");
    if (r.tipoDiagramma == diagrammaEstremita && (r.y.MQ != 0 || r.z.MQ != 0))
        throw ErroreUso("--MyQ e --MzQ vogliono --diagramma da 3 a 6");
}

/// What would go unheard is refused.
void ControllaIgnorate(const Lettura& l) {
    if (l.c.richiesta.accostati && !l.c.richiesta.doppi)
        throw ErroreUso("--accostati vuole --doppi");
    if ((l.c.modo == ModoComando::Verifica || l.c.modo == ModoComando::Relazione) && !l.soloScelta.empty())
        throw ErroreUso(l.soloScelta + " va con --scelta: un sagomo solo non si sceglie");
}

/// A code has its own factors; those of another one are given.
void ControllaFattore(const Comando& c, const char* opzione, double dato, double inVigore) {
    constexpr double tolleranza = 5e-5; // four decimals
    if (dato > 0 && std::abs(dato - inVigore) > tolleranza)
        throw ErroreUso(std::string(opzione) + " vale con --normativa Altro: " + c.normativa + " ha il suo");
}

void NormaInVigore(const Comando& c) {
    if (c.normativa == "Altro") {
        if (!(c.GammaM0 > 0 && c.GammaM1 > 0))
            throw ErroreUso("--normativa Altro vuole --GammaM0 e --GammaM1");
        Normativa = normativaAltro;
        GammaM0Altro = c.GammaM0;
        GammaM1Altro = c.GammaM1;
        ImpostaGamma();
        return;
    }
    if (c.normativa != "NTC" && c.normativa != "EC3")
        throw ErroreUso("--normativa vuole NTC o EC3, o Altro con --GammaM0 e --GammaM1, non \"" +
                        c.normativa + "\"");
    Normativa = c.normativa == "EC3" ? normativaEC3 : normativaNTC;
    ImpostaGamma();
    ControllaFattore(c, "--GammaM0", c.GammaM0, GammaM0);
    ControllaFattore(c, "--GammaM1", c.GammaM1, GammaM1);
}

/// What follows from the options together.
void Completa(Lettura& l, bool conL0v) {
    Comando& c = l.c;
    if (c.modo != ModoComando::Aiuto && c.modo != ModoComando::Versione)
        ControllaSoggetto(c, l.soggetti);
    if (c.modo == ModoComando::Finestre && c.formato != FormatoUscita::Json)
        throw ErroreUso("manca che cosa fare: --verifica o --scelta");
    if (c.modo == ModoComando::Finestre)
        c.modo = ModoComando::Lavori;
    Richiesta& r = c.richiesta;
    r.tipoDiagramma = TipoDiPict(r.pict);
    // An angle buckles about v-v, too: without a length of its own by the greater of the others.
    if (!conL0v)
        r.L0v = std::max(r.L0y, r.L0z);
    if (c.modo != ModoComando::Lavori) { // each job completes what holds for all
        ControllaMomenti(r);
        ControllaIgnorate(l);
    }
}

} // namespace

Comando LeggeOpzioni(const std::vector<std::string>& argomenti, const std::vector<std::string>& comuni) {
    Lettura l;
    if (std::ranges::none_of(argomenti, ENostra, NomeOpzione) && comuni.empty()) {
        ControllaFinestre(argomenti);
        return l.c;
    }
    l.proprie = false;
    PrendeTutte(l, comuni);
    const bool conL0v = l.Ha("--L0v");
    l.proprie = true;
    l.date.clear();
    PrendeTutte(l, argomenti);
    l.c.coppiaChiesta = l.Ha("--doppi");
    l.c.assiVChiesti = l.Ha("--L0v");
    Completa(l, conL0v || l.Ha("--L0v"));
    return l.c;
}

bool EInterruttore(std::string_view nome) {
    return std::ranges::any_of(interruttori, [nome](const auto& i) { return i.first == nome; });
}

void ControllaVoce(const std::string& chiave) {
    if (ENostra("--" + chiave))
        return;
    const std::string vicina(OpzioneVicina("--" + chiave));
    throw ErroreUso(
        '"' + chiave + "\" non è una voce di un lavoro: " +
        (vicina.empty() ? "le voci sono le opzioni senza i trattini" : "forse " + vicina.substr(2)));
}

std::optional<std::filesystem::path> PrendeCartella(std::vector<std::string>& argomenti) {
    constexpr std::string_view nome = "--cartella", conUguale = "--cartella=";
    std::optional<std::filesystem::path> cartella;
    for (auto a = argomenti.begin(); a != argomenti.end();) {
        const bool unita = a->starts_with(conUguale);
        if (!unita && *a != nome) {
            ++a;
            continue;
        }
        const auto valore = unita ? a : a + 1;
        const std::string dove =
            valore == argomenti.end() ? "" : valore->substr(unita ? conUguale.size() : 0);
        if (dove.empty() || (!unita && EOpzione(dove)))
            throw ErroreUso("--cartella vuole una cartella");
        cartella = dove;
        a = argomenti.erase(a, valore + 1);
    }
    return cartella;
}

void MetteInVigore(Comando& c) {
    NormaInVigore(c);
    for (int i = 1; i <= NumAcciai; ++i)
        if (ENomeDi(c.acciaio, NomeAcciaio[i])) {
            c.richiesta.TipoAcciaio = NomeAcciaio[i];
            c.richiesta.fy = c.fy > 0 ? c.fy : double(fyAcciaio[i]);
            c.richiesta.fu = c.fu > 0 ? c.fu : double(fuAcciaio[i]);
            return;
        }
    throw ErroreUso("--acciaio vuole " + NomiAcciai() + ", non \"" + c.acciaio + "\"");
}

} // namespace sagomi
