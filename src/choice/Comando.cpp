#include "choice/Comando.h"

#include <algorithm>
#include <exception>
#include <istream>
#include <ostream>
#include <stdexcept>
#include <string_view>
#include <type_traits>
#include <utility>

#include "catalogue/Famiglie.h"
#include "choice/FileRelazione.h"
#include "choice/LavoriJson.h"
#include "choice/NomiVicini.h"
#include "choice/Opzioni.h"
#include "choice/RelazioneVerifica.h"
#include "choice/ScritturaScelta.h"
#include "frame/Cartelle.h"
#include "frame/GeneraleSagomi.h"
#include "frame/VersioneProgramma.h"
#include "sections/PressoFlessione.h"
#include "sections/SezioneDoppia.h"

namespace sagomi {

namespace {

constexpr auto guida = R"(Uso: sagomi [file.sco|file.gfl]          apre le finestre, e il file
     sagomi --verifica "HEA 200" [opzioni]   verifica un sagomo
     sagomi --scelta [opzioni]               verifica tutti i sagomi, i più leggeri per primi
     sagomi file|"HEA 200" [opzioni] --relazione o.txt --pdf o.pdf --dxf o.dxf
                                             scrive la relazione di un file o di un sagomo, e il disegno
     sagomi --help, --version

Azioni e lunghezze (numeri col punto decimale):
  --N kN                  forza assiale, positiva se di compressione
  --My kNm --Mz kNm       momento maggiore alle estremità; --My2, --Mz2 quello all'altra (se mancano 0)
  --MyQ kNm --MzQ kNm     momento del carico in campata, con --diagramma da 3 a 6
  --diagramma 1..6        forma del diagramma: 1 e 2 estremità concordi e discordi, 3 e 4 carico distribuito e
                          concentrato contro i momenti di estremità, 5 e 6 gli stessi concordi
  --L0y m --L0z m --L0v m lunghezze di libera inflessione (se manca L0v, degli angolari, la maggiore delle altre)
  --L m                   distanza fra i vincoli torsionali (se manca L0z)
  --k --Kw --C1 --C2 --C3 --za mm   dati del momento critico; C1 se manca è quello del diagramma
Materiale e norma:
  --acciaio S235|S275|S355  --fy N/mm2 --fu N/mm2 (se mancano quelle dell'acciaio)
  --normativa NTC|EC3, o Altro con --GammaM0 e --GammaM1
Sagomi:
  --famiglie IPE,HEA      solo queste famiglie
  --hmax mm --bmax mm --gmin kg/m --gmax kg/m   limiti, con --scelta
  --verificati            solo quelli verificati, con --scelta
  --doppi mm --accostati  canali e angolari doppi alla distanza data, accostati di ala o di lato corto
Cartella:
  --cartella DIR          lavora in DIR (impostazioni, Sagomi.xls, SagomiUtente.xls), anche con le finestre
Risposta:
  --json, --csv           per altri programmi
  --json da solo          legge lavori, uno per riga ({"verifica":"HEA 200","N":400}), e risponde a ciascuno;
                          "richiesta" di una risposta è un lavoro
Relazione, anche con --verifica:
  --relazione file --pdf file --dxf file   testo, PDF, disegno: uno o più; --relazione - scrive sull'uscita
  --progetto "testo"      nome del progetto, in testa alla relazione
Stato di uscita: 0 verificato (senza azioni niente da verificare), 1 non verificato, 2 uso errato.
)";

constexpr std::string_view segnoUtf8 = "\xEF\xBB\xBF"; ///< some programs begin a text with it

using TrovaCartella = std::function<std::filesystem::path()>;

/// Where answers go, and what has no place in them.
struct Uscite {
    std::ostream &uscita, &errori;
};

/// A table for programs has no place for what was told on the way.
void MessaggiAParte(const Comando& c, const std::vector<std::string>& messaggi, const Uscite& u) {
    if (c.formato == FormatoUscita::Csv)
        ScriveMessaggi(u.errori, messaggi);
}

/// The rows, or the reason why there are none.
Gara Legge(const std::filesystem::path& cartella, const std::vector<std::string>& famiglie) {
    Gara gara = LeggeGara(cartella, famiglie);
    if (gara.sagomi.empty() && !gara.mancanti.empty())
        throw ErroreUso(gara.mancanti.front());
    return gara;
}

/// The names of the families of all kinds, those of the user's own last.
std::vector<std::string> NomiFamiglie() {
    std::vector<std::string> nomi, utente;
    for (const FamigliaSchermo& f : FamiglieSchermi()) {
        nomi.insert(nomi.end(), f.fogli.begin(), f.fogli.end());
        if (!f.foglioUtente.empty())
            utente.emplace_back(f.foglioUtente);
    }
    nomi.insert(nomi.end(), utente.begin(), utente.end());
    return nomi;
}

/// Names of families as their sheets have them: "hea" is "HEA".
void RiconosceFamiglie(Comando& c) {
    const std::vector<std::string> nomi = NomiFamiglie();
    for (std::string& data : c.filtri.famiglie) {
        const auto nome = std::ranges::find(nomi, Piegato(data), Piegato);
        if (nome == nomi.end())
            throw ErroreUso("nessuna famiglia si chiama \"" + data + "\": le famiglie sono " +
                            Elencati(nomi));
        data = *nome;
    }
}

/// A family without rows may be one whose sheet could not be read; then that is said.
void ControllaFamiglie(const Gara& gara, const std::vector<std::string>& famiglie) {
    for (const std::string& famiglia : famiglie)
        if (std::ranges::find(gara.sagomi, famiglia, &SagomoInGara::famiglia) == gara.sagomi.end())
            throw ErroreUso("nessuna riga della famiglia \"" + famiglia + '"' +
                            (gara.mancanti.empty() ? "" : "; " + gara.mancanti.front()));
}

/// Whether a row is the one that is asked for; jobs share the rows of all families.
bool Cercato(const Comando& c, const SagomoInGara& s) {
    const auto& famiglie = c.filtri.famiglie;
    return (famiglie.empty() || std::ranges::find(famiglie, s.famiglia) != famiglie.end()) &&
           Piegato(s.Designazione()) == Piegato(c.sagomo);
}

void ScriveRelazione(const Comando& c, DocumentoLetto documento, const std::vector<std::string>& messaggi,
                     const Uscite& u) {
    Relazione& r = documento.relazione;
    r.progetto = c.progetto;
    r.data = DataRelazione();
    r.avvisi.insert(r.avvisi.end(), messaggi.begin(), messaggi.end());
    ScriveUscite(documento, c.uscite, u.uscita);
}

/// What a name that is no section's may have been meant for.
[[noreturn]] void NessunSagomo(const Comando& c, const Gara& gara) {
    std::error_code nessuno;
    if (c.modo == ModoComando::Relazione &&
        (c.sagomo.find('/') != std::string::npos || std::filesystem::exists(c.sagomo, nessuno)))
        throw ErroreUso(c.sagomo + " non è un file di Sagomi (Gfl, Sco)");
    std::vector<std::string> nomi;
    for (const SagomoInGara& s : gara.sagomi)
        if (c.filtri.famiglie.empty() ||
            std::ranges::find(c.filtri.famiglie, s.famiglia) != c.filtri.famiglie.end())
            nomi.push_back(s.Designazione());
    const std::string vicini = Elencati(NomiVicini(c.sagomo, nomi));
    throw ErroreUso("nessun sagomo si chiama \"" + c.sagomo + '"' +
                    (vicini.empty() ? "" : ": forse " + vicini));
}

/// The factors of a check that is not made would go unheard.
void ControllaLunghezza(const Comando& c) {
    if (!c.fattoreChiesto.empty() && !LunghezzaSvergolamento(c.richiesta))
        throw ErroreUso(c.fattoreChiesto + " vuole --L o --L0z: senza lo svergolamento non si verifica");
}

/// What was asked for in this very call shall mean something for the kind of section.
void ControllaGenere(const Comando& c, const SagomoInGara& sagomo) {
    const auto rifiuta = [&sagomo](const std::string& opzione, const char* per) {
        throw ErroreUso(opzione + " vale per " + per + ", non per " + sagomo.Designazione());
    };
    std::visit(
        [&]<typename S>(const S&) {
            if (c.coppiaChiesta && !ConCoppia<S>)
                rifiuta("--doppi", "canali e angolari");
            if (!c.soloSvergolamento.empty() && !ConDiagrammi<S>)
                rifiuta(c.soloSvergolamento, "lo svergolamento dei doppi T");
            if (c.assiVChiesti && !std::is_same_v<S, SezioneSagomoL>)
                rifiuta("--L0v", "gli angolari");
        },
        sagomo.sezione);
    ControllaLunghezza(c);
}

int VerificaUno(const Comando& c, const Gara& gara, const Uscite& u) {
    const auto sagomo =
        std::ranges::find_if(gara.sagomi, [&](const SagomoInGara& s) { return Cercato(c, s); });
    if (sagomo == gara.sagomi.end())
        NessunSagomo(c, gara);
    ControllaGenere(c, *sagomo);
    const SenzaMigliaia piano;
    std::vector<std::string> messaggi = gara.mancanti;
    const SagomoVerificato esito = Verifica(*sagomo, c.richiesta, messaggi);
    if (c.uscite.Qualcuna())
        ScriveRelazione(c, {RelazioneVerifica(*sagomo, esito, c.richiesta)}, messaggi, u);
    if (c.modo == ModoComando::Verifica)
        ScriveVerifica(u.uscita, c, *sagomo, esito, messaggi);
    MessaggiAParte(c, messaggi, u);
    return esito.riga.verificato ? comandoVerificato : comandoNonVerificato;
}

/// A file that is drawn and not reported has nothing to be verified.
int RelazioneDiFile(const Comando& c, const Uscite& u) {
    DocumentoLetto documento = LeggeDocumento(c.file);
    const EsitoRelazione esito = documento.relazione.Esito();
    ScriveRelazione(c, std::move(documento), {}, u);
    const bool soloDisegno = c.uscite.relazione.empty() && c.uscite.pdf.empty();
    return soloDisegno || esito == EsitoRelazione::Passa ? comandoVerificato : comandoNonVerificato;
}

int SceglieFraTutti(const Comando& c, const Gara& gara, const Uscite& u) {
    ControllaLunghezza(c);
    std::vector<std::string> messaggi = gara.mancanti;
    std::vector<RigaScelta> righe = Valuta(gara.sagomi, c.richiesta, c.filtri, messaggi);
    OrdinaPerPeso(righe);
    ScriveScelta(u.uscita, c, gara.sagomi, righe, messaggi);
    MessaggiAParte(c, messaggi, u);
    return !righe.empty() && righe.front().verificato ? comandoVerificato : comandoNonVerificato;
}

int Risponde(Comando& c, const Gara& gara, const Uscite& u) {
    ControllaFamiglie(gara, c.filtri.famiglie);
    MetteInVigore(c);
    return c.modo == ModoComando::Scelta ? SceglieFraTutti(c, gara, u) : VerificaUno(c, gara, u);
}

/// One job; what is wrong with it is its answer, and those after it go on.
int EsegueLavoro(const LavoriJson& lavori, const std::string& riga, const std::vector<std::string>& comuni,
                 const Gara& gara, const Uscite& u) {
    try {
        Comando c = LeggeOpzioni(lavori.Argomenti(riga), comuni);
        if ((c.modo != ModoComando::Verifica && c.modo != ModoComando::Scelta) ||
            c.formato != FormatoUscita::Json)
            throw ErroreUso("un lavoro chiede \"verifica\" o \"scelta\"");
        RiconosceFamiglie(c);
        if (c.uscite.Qualcuna())
            throw ErroreUso("un lavoro risponde sull'uscita e non scrive file");
        return Risponde(c, gara, u);
    } catch (const std::exception& e) {
        ScriveErrore(u.uscita, e.what());
        return comandoErrato;
    }
}

/// The jobs on the input; options of the command line hold for each of them.
int EsegueLavori(const std::vector<std::string>& comuni, const TrovaCartella& cartella,
                 std::istream& ingresso, const Uscite& u) {
    const Gara gara = Legge(cartella(), {});
    const LavoriJson lavori;
    int peggiore = comandoVerificato;
    bool prima = true;
    for (std::string riga; std::getline(ingresso, riga);) {
        if (std::exchange(prima, false) && riga.starts_with(segnoUtf8))
            riga.erase(0, segnoUtf8.size());
        if (riga.find_first_not_of(" \t\r") == std::string::npos)
            continue;
        peggiore = std::max(peggiore, EsegueLavoro(lavori, riga, comuni, gara, u));
        u.uscita.flush();
    }
    return peggiore;
}

/// Formulas lie beside the workbooks of a program that is not installed. A chosen folder that cannot be used
/// is told, even where the report itself needs nothing of it.
void TrovaFormule(const TrovaCartella& cartella) {
    const std::filesystem::path dove = cartella();
    if (CartellaInstallata().empty())
        PathInstallazione = dove;
}

int Esegue(Comando c, const TrovaCartella& cartella, const Uscite& u) {
    if (c.modo == ModoComando::Aiuto) {
        u.uscita << guida;
        return comandoVerificato;
    }
    if (c.modo == ModoComando::Versione) {
        u.uscita << "sagomi " << versioneProgramma << '\n';
        return comandoVerificato;
    }
    if (!c.file.empty()) {
        MetteInVigore(c);
        TrovaFormule(cartella);
        return RelazioneDiFile(c, u);
    }
    RiconosceFamiglie(c);
    return Risponde(c, Legge(cartella(), c.filtri.famiglie), u);
}

} // namespace

std::optional<int> EsegueComando(const std::vector<std::string>& argomenti,
                                 const std::filesystem::path& cartella, std::istream& ingresso,
                                 std::ostream& uscita, std::ostream& errori) {
    return EsegueComando(
        argomenti, [&cartella] { return cartella; }, ingresso, uscita, errori);
}

std::optional<int> EsegueComando(const std::vector<std::string>& argomenti, const TrovaCartella& cartella,
                                 std::istream& ingresso, std::ostream& uscita, std::ostream& errori) {
    try {
        Comando comando = LeggeOpzioni(argomenti);
        if (comando.modo == ModoComando::Finestre)
            return std::nullopt;
        if (comando.modo == ModoComando::Lavori)
            return EsegueLavori(argomenti, cartella, ingresso, {uscita, errori});
        return Esegue(std::move(comando), cartella, {uscita, errori});
    } catch (const ErroreUso& e) {
        errori << "sagomi: " << e.what() << "\nsagomi --help dice come si usa\n";
        return comandoErrato;
    } catch (const std::exception& e) {
        errori << "sagomi: " << e.what() << '\n';
        return comandoErrato;
    }
}

} // namespace sagomi
