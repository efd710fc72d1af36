#include <cmath>
#include <numbers>
#include <stdexcept>

#include "frame/Attesa.h"
#include "frame/Errori.h"
#include "frame/Messaggi.h"
#include "frame/Numeri.h"
#include "frame/Unita.h"
#include "joints/OsservatoreProgetto.h"
#include "joints/RicercaGiunto.h"

namespace sagomi {

using std::numbers::sqrt2;

namespace {

constexpr double passo1Fila = 5; ///< of the width of the plate with one row [mm]
constexpr double margineL = 10;  ///< the extension may grow so far beyond the best before giving up [mm]
constexpr double misuraMassima =
    1e4; ///< of a plate: beyond it the steps of the search would have no end [mm]
constexpr const char* titolo = "Giunto Flangiato";

/// Whether steps from one measure reach the other.
bool HaFine(double da, double a) { return da >= -misuraMassima && a <= misuraMassima; }

/// The coefficients of a search, in force while one lives.
struct CoefficientiInForza {
    CoefficientiInForza() { coefficientiProgetto.Imposta(); }
    ~CoefficientiInForza() { coefficientiRiposo.Imposta(); }
    CoefficientiInForza(const CoefficientiInForza&) = delete;
    CoefficientiInForza& operator=(const CoefficientiInForza&) = delete;
};

/// Step of width and extension [mm].
std::optional<double> Passo(std::int16_t tipoProgetto) {
    if (tipoProgetto == 0)
        return 5;
    if (tipoProgetto == 1)
        return 1;
    Avvisa("Caso non previsto negli step della routine progetto");
    return {};
}

/// Moment that ends a search [kNm].
std::optional<double> Obiettivo(std::int16_t tipoUscita, const SezioneDoppioT& trave) {
    if (tipoUscita == 0)
        return Nmm_a_kNm(1.2 * trave.McyRd);
    if (tipoUscita == 1)
        return Nmm_a_kNm(trave.McyRd);
    if (tipoUscita != 2) {
        Avvisa("Caso non previsto nell'uscita dalla sub progetto");
        return {};
    }
    if (trave.Mysd > 0)
        return trave.Mysd;
    Avvisa("Mj,Sd deve essere > 0 per progettare", titolo, Icona::Stop);
    return {};
}

} // namespace

RicercaGiunto::RicercaGiunto(Giunto& giunto, OsservatoreProgetto& osservatore, double passo, double obiettivo)
    : g_(giunto), osservatore_(osservatore), passo_(passo), obiettivo_(obiettivo), dueFile_(g_.nf == 2),
      compressioneIrrigidita_(g_.Irrigidito() || g_.SoloCompressione()), tfMax_(ParteIntera(g_.tf_max)),
      instabilita_(compressioneIrrigidita_ ? 0 : g_.TensioneInstabilita()) {}

bool RicercaGiunto::Esegue() {
    g_.Kfc_Calcola();
    g_.Kwc_Calcola();
    g_.VplRdPannello_Calcola(g_.Beta);
    g_.parametriSelezione_.Svuota();
    g_.MplRdGIUNTO = 0;
    if (tfMax_ < 1 || !HaFine(g_.t().b, g_.c().b))
        return false;
    if (!dueFile_)
        Progetto1Fila();
    else if (LIniziale_ = g_.LMin_Calcola().value_or(0); HaFine(LIniziale_, g_.L_max))
        Progetto2File();
    if (record_.Vuoto())
        return false;
    g_.DatiSelezione_Imposta(record_);
    return true;
}

/// The step of the width is the same in both kinds of search.
void RicercaGiunto::Progetto1Fila() {
    const double ultima = ParteIntera(g_.c().b);
    for (double bf = ParteIntera(g_.t().b); bf <= ultima; bf += passo1Fila) {
        g_.bf = bf;
        (void)GiroBulloni();
        if (Ferma() || Raggiunto())
            return;
    }
}

void RicercaGiunto::Progetto2File() {
    const double ultima = ParteIntera(g_.c().b);
    for (double bf = ParteIntera(g_.t().b); bf <= ultima; bf += passo_) {
        g_.bf = bf;
        GiroEstensioni();
        if (Ferma() || Raggiunto())
            return;
    }
}

void RicercaGiunto::GiroEstensioni() {
    double ML = 0;
    const double ultima = ParteIntera(g_.L_max);
    for (double L = LIniziale_; L <= ultima; L += passo_) {
        g_.L = L;
        const double MBolt = GiroBulloni();
        if (Ferma() || (MBolt <= ML && L > record_.L + margineL))
            return;
        if (MBolt > ML)
            ML = MBolt;
        if (Raggiunto())
            return;
    }
}

/// A turn in which there was no candidate has not asked whether to go on.
bool RicercaGiunto::Ferma() {
    if (!provato_ && !fermata_)
        fermata_ = !sagomi::Prosegue();
    provato_ = false;
    return fermata_;
}

/// @return greatest moment of the turn
double RicercaGiunto::GiroBulloni() {
    double MBolt = 0;
    const int ultimo = g_.IndiceBulloneMaxGiunto_Calcola();
    for (int i = BulloneIniziale_; i <= ultimo; ++i) {
        const double MEf = GiroBordi(static_cast<std::int16_t>(i));
        if (fermata_ || MEf <= MBolt)
            break;
        MBolt = MEf;
        if (Raggiunto())
            break;
    }
    return MBolt;
}

double RicercaGiunto::GiroBordi(std::int16_t bullone) {
    PreparaBullone(bullone);
    double MEf = 0;
    const double ultimo = g_.efMax_Calcola();
    for (double ef = g_.efmin_Ricerca(); ef <= ultimo; ++ef) {
        PreparaBordo(ef);
        const double MTf = GiroSpessori();
        if (fermata_ || LasciaBordi(MTf, MEf) || Raggiunto())
            break;
    }
    return MEf;
}

/// With two rows the last candidate has a say of its own.
bool RicercaGiunto::LasciaBordi(double MTf, double& MEf) const {
    if (MTf <= MEf)
        return !dueFile_ || g_.MplRdGIUNTO <= MEf;
    MEf = MTf;
    return false;
}

double RicercaGiunto::GiroSpessori() {
    double MTf = 0;
    for (double tf = 1; tf <= tfMax_; ++tf) {
        Candidato(tf);
        const bool migliora = g_.MplRdGIUNTO > migliore_;
        if (migliora)
            Migliora();
        fermata_ = !Prosegue(migliora);
        if (fermata_ || g_.MplRdGIUNTO <= MTf)
            break;
        MTf = g_.MplRdGIUNTO;
        if (Raggiunto())
            break;
    }
    return MTf;
}

void RicercaGiunto::PreparaBullone(std::int16_t bullone) {
    g_.IndiceBullone(bullone);
    if (dueFile_)
        g_.ex = g_.exMin_Calcola();
    g_.d2 = g_.d2Min_Calcola();
    Bt_ = g_.Bt_Rd();
}

/// All that the thickness of the plate does not change.
void RicercaGiunto::PreparaBordo(double ef) {
    g_.ef = ef;
    g_.Derivati_Calcola();
    g_.BracciLeva_Calcola();
    g_.Beff_Calcola();
    g_.AnimaColonnaTesa(g_.nf);
    if (g_.Irrigidito())
        g_.AggiungeAlaTrave(g_.FtRd_Anima_c);
    if (compressioneIrrigidita_)
        g_.FcRd_AnimaColonnaIrrigidita_Calcola();
    if (compressioneIrrigidita_ && dueFile_)
        g_.u = ArrotondaSu(sqrt2 * g_.Af);
    g_.AlaColonna(Bt_);
    g_.LeffFlangia_Calcola();
    g_.FtRdAnimaTrave_Calcola();
}

void RicercaGiunto::Candidato(double tf) {
    provato_ = true;
    g_.tf = tf;
    g_.lb = g_.c().tf + tf + g_.rond_s + (g_.bul_m + g_.bul_k) / 2;
    if (!compressioneIrrigidita_)
        CompressioneSenzaIrrigidimenti();
    if (dueFile_)
        g_.hf = g_.t().h + g_.L + g_.u;
    g_.RDebole_Calcola();
    g_.Flangia(Bt_);
    g_.FtRd_EfficaciFile_Calcola();
    if (dueFile_)
        g_.Ridistribuisce2File();
    else
        g_.Ridistribuisce1Fila();
    g_.Momento();
}

void RicercaGiunto::CompressioneSenzaIrrigidimenti() {
    if (dueFile_)
        g_.u = std::min(ArrotondaSu(sqrt2 * g_.Af + g_.tf), g_.u_max);
    g_.AnimaCompressa(instabilita_);
}

void RicercaGiunto::Migliora() {
    migliore_ = g_.MplRdGIUNTO;
    record_ = {g_.IndiceBullone(), g_.tf, g_.bf, g_.ef, g_.ex, g_.L, g_.d2, g_.u};
    BulloneIniziale_ = record_.bullone;
    LIniziale_ = g_.L;
    g_.parametriSelezione_.Aggiunge(Riga());
}

RigaSelezione RicercaGiunto::Riga() const {
    const double n = g_.parametriSelezione_.n() + 1;
    const std::string M = Formato("0.00", g_.MplRdGIUNTO);
    if (dueFile_)
        return {n, M, g_.Diam, g_.tf, g_.bf, g_.ef, g_.ex, g_.L - g_.ex, g_.d2, g_.u};
    return {n, M, g_.Diam, g_.tf, g_.bf, g_.ef, g_.d2};
}

/// Shows the candidate, asks for a stop, lets events through.
bool RicercaGiunto::Prosegue(bool migliora) {
    osservatore_.Candidato(g_);
    if (migliora)
        osservatore_.Miglioramento(g_);
    return !osservatore_.InterrompiProgetto() && sagomi::Prosegue();
}

bool Giunto::Mrd_Giunto_Ottimizza_M_MAX(OsservatoreProgetto* osservatore) {
    const auto vivo = weak_from_this().lock(); // the yield port may drop the last reference to it
    const CoefficientiInForza coefficienti;
    const auto passo = Passo(TipoProgetto);
    const auto obiettivo = passo ? Obiettivo(TipoUscitaProgetto, t()) : std::nullopt;
    if (!obiettivo)
        return false;
    OsservatoreProgetto nessuno;
    const auto lavoro = CopiaDiLavoro();
    lavoro->coefficienti_ = coefficientiProgetto;
    lavoro->osservatore_ = osservatore != nullptr ? osservatore : &nessuno;
    return lavoro->Cerca(*passo, *obiettivo, *this);
}

/// Searches on this copy; the original gets the best, or nothing but that there is none.
bool Giunto::Cerca(double passo, double obiettivo, Giunto& originale) {
    std::string errore;
    try {
        sTraveColonna_Calcola();
        RicercaGiunto ricerca(*this, *osservatore_, passo, obiettivo);
        if (ricerca.Esegue()) {
            originale.Riprende(*this);
            return true;
        }
        if (!ricerca.Fermata())
            errore = "Nessuna configurazione del giunto è possibile entro i limiti assegnati";
    } catch (const std::out_of_range& e) {
        errore = std::string("Progetto del giunto interrotto: ") + e.what();
    } catch (const ErroreAritmetico& e) {
        errore = std::string("Progetto del giunto interrotto: ") + e.what();
    }
    originale.parametriSelezione_.Svuota();
    originale.Acquisito = false;
    if (!errore.empty())
        Avvisa(errore, titolo, Icona::Stop);
    return false;
}

} // namespace sagomi
