#include "screens/FrmMsverg.h"

#include <QScopedValueRollback>

#include <cmath>
#include <limits>

#include "frame/GeneraleSagomi.h"
#include "frame/Unita.h"
#include "frame/ui/Campi.h"
#include "frame/ui/Casella.h"
#include "frame/ui/InvioFra.h"
#include "frame/ui/Mostra.h"
#include "frame/ui/NavigaSchermi.h"
#include "frame/ui/Protetto.h"
#include "report/RelazioneSagomo.h"
#include "report/ui/ComandoRelazione.h"
#include "screens/SchermoSezione.h"
#include "screens/TavolaFattori.h"
#include "screens/TermineSpostato.h"
#include "sections/Eurocod3.h"
#include "sections/Verdetto.h"
#include "ui_FrmMsverg.h"

namespace sagomi {

namespace {

constexpr auto figura = "0.0##";
constexpr const char* motivoLunghezza = "La lunghezza fra i vincoli non può essere negativa";
constexpr const char* notaMcr = "Ali diverse e carico fuori dal baricentro: questo Mcr si discosta da quello "
                                "delle norme attuali (F1 dice di quanto).";
constexpr int cifreProdotto = 14; ///< width of a factor times a moment

void Scrive(QLineEdit* box, double value) { box->setText(QString::fromStdString(TestoPiano(value))); }

/// Factor times moment [N mm].
std::string Prodotto(double k, double M) {
    return Formato(figura, k) + " x " + Formato(figura, Nmm_a_kNm(M));
}

/// The same with the moment of the shifted centroid.
std::string Prodotto(double k, double M, double NeN) {
    return Formato(figura, k) + " x (" + Formato(figura, Nmm_a_kNm(M)) + " + " +
           Formato(figura, Nmm_a_kNm(NeN)) + ")";
}

/// What follows from a critical moment that is no number (end factors of 0, say) is none either.
double Valido(const SezioneDoppioT& s, double value) {
    return s.LLT > 0 && !std::isfinite(s.Mcr) ? std::numeric_limits<double>::quiet_NaN() : value;
}

QString Titolo(int classe) {
    const QString resistenza = QStringLiteral("Resistenza all'instabilità flesso torsionale ");
    if (classe > 3)
        return resistenza + QStringLiteral("(flessione e compressione)- Classe 4 - EC3 #5.5.4. (6)");
    return resistenza + (classe == 3
                             ? QStringLiteral("(flessione e compressione)- Classe 3 - EC3 #5.5.4. (4)")
                             : QStringLiteral("(flessione e compressione)- Classe 1/2 - EC3 #5.5.4. (2)"));
}

/// The interaction with its two forms of the moments' terms: as they are, and with the shift of the centroid.
Formula Interazione() {
    return {.termini =
                {{.sopra = {{"", "N", "Sd"}, unitaN},
                  .sotto = {{"", "N", "b,z,Rd"}, unitaN},
                  .valoreSopra = VoceValore("LblNsd", "Forza assiale di progetto [kN]", "NSd [kN]"),
                  .valoreSotto = VoceValore(
                      "LblNbzRd", "Resistenza all'instabilità per inflessione intorno a z-z [kN], EC3 6.3.1",
                      "Nb,z,Rd [kN]")},
                 {.sopra = {{"", "k", "LT"}, {"", "M", "y,Sd"}, unitaM},
                  .sotto = {{"", "M", "b,Rd"}, unitaM},
                  .valoreSopra = VoceValore(
                      "LblKLTMySd", "Fattore kLT per il momento intorno a y-y [kNm], ENV 1993-1-1 5.5.4 (2)",
                      "kLT My,Sd", cifreProdotto),
                  .valoreSotto = VoceValore(
                      "LblMbRd", "Resistenza all'instabilità flesso-torsionale [kNm], ENV 1993-1-1 5.5.2",
                      "Mb,Rd [kNm]"),
                  .altro = Con(unitaM, TermineSpostato("LT", true)),
                  .valoreAltro = VoceValore("LakLTMySd4",
                                            "Fattore kLT per il momento intorno a y-y con lo spostamento del "
                                            "baricentro [kNm], ENV 1993-1-1 5.5.4 (6)",
                                            "kLT (My,Sd + NSd eNy)", cifreProdotto),
                  .piu = "LblValPiu1"},
                 {.sopra = {{"", "k", "z"}, {"", "M", "z,Sd"}, unitaM},
                  .sotto = {{"", "M", "c,z,Rd"}, unitaM},
                  .valoreSopra = VoceValore(
                      "LblkzMzSd", "Fattore kz per il momento intorno a z-z [kNm], ENV 1993-1-1 5.5.4 (2)",
                      "kz Mz,Sd", cifreProdotto),
                  .valoreSotto = VoceValore(
                      "LblMczRd", "Momento resistente intorno a z-z, con GammaM1 [kNm], ENV 1993-1-1 5.5.4",
                      "Mc,z,Rd [kNm]"),
                  .altro = Con(unitaM, TermineSpostato("z", false)),
                  .valoreAltro = VoceValore("LblkzMzSd4",
                                            "Fattore kz per il momento intorno a z-z con lo spostamento del "
                                            "baricentro [kNm], ENV 1993-1-1 5.5.4 (6)",
                                            "kz (Mz,Sd + NSd eNz)", cifreProdotto),
                  .piu = "LblValPiu2"}},
            .uguale = "LblValUguale",
            .somma = VoceSomma("Lbl_Risult", "Somma dei termini, passa se non supera 1, ENV 1993-1-1 5.5.4"),
            .esito = VoceEsito("Lbl_Risultato")};
}

} // namespace

FrmMsverg::FrmMsverg() : SchermoDettaglio(QStringLiteral("FrmMsverg")), ui_(new Ui::FrmMsverg) {
    ui_->setupUi(this);
    ui_->formula->Compone(Interazione());
    CollegaControlli(InvioFra({ui_->fraSezione->Txt_fy, ui_->fraAzioni->TxtNsd, ui_->fraAzioni->TxtMysd,
                               ui_->fraAzioni->TxtMzsd, ui_->Txt_L, ui_->Txt_k, ui_->Txt_Kw, ui_->Txt_Zg,
                               ui_->Txt_C1, ui_->Txt_C2, ui_->Txt_C3}));
    CollegaEventi();
    AggiungeRelazione(*this, [this] {
        const SezioneDoppioT* s = Sezione();
        return s == nullptr || !regole_.Applica() ? Relazione()
                                                  : RelazioneSvergolamento(*s, objectName().toStdString());
    });
    DimensionaIniziale({});
}

FrmMsverg::~FrmMsverg() = default;

void FrmMsverg::CollegaEventi() {
    Lega(ui_->fraAzioni->TxtMysd, &SezioneDoppioT::Mysd, kNm_a_Nmm(1));
    Lega(ui_->fraAzioni->TxtMzsd, &SezioneDoppioT::Mzsd, kNm_a_Nmm(1));
    Lega(ui_->Txt_C1, &SezioneDoppioT::C1, 1);
    risultati_ = Controlli({"Lbl_Mcr", "Lbl_LamdaLT", "Lbl_chi", "Lbl_MbRd", "LblMbRd", "Lbl_Risult",
                            "Lbl_Risultato", "LblUtilizzo", "LblMotivo"});
    regole_.Aggiunge({.caselle = {ui_->Txt_L},
                      .motivo = [this] { return NumeroIn(ui_->Txt_L) < 0 ? tr(motivoLunghezza) : QString(); },
                      .risultati = risultati_,
                      .manca = [this] { return ui_->Txt_L->text().trimmed().isEmpty(); }});
    CalcolaA({ui_->fraAzioni->TxtNsd, ui_->fraAzioni->TxtMysd, ui_->fraAzioni->TxtMzsd, ui_->Txt_L,
              ui_->Txt_k, ui_->Txt_Kw, ui_->Txt_Zg, ui_->Txt_C1, ui_->Txt_C2, ui_->Txt_C3});
    Collega(ui_->LblVerifiche, &QPushButton::clicked, this,
            [this] { NavigaSchermi::Unico().Apre(QStringLiteral("FrmVerifiche"), *this); });
    Collega(ui_->CmdH1, &QPushButton::clicked, this, [this] { ApreTavola(QStringLiteral("frmMsvergH1")); });
    Collega(ui_->CmdH2, &QPushButton::clicked, this, [this] { ApreTavola(QStringLiteral("frmMsvergH2")); });
    Collega(ui_->Command1, &QPushButton::clicked, this,
            [this] { NavigaSchermi::Unico().Apre(QStringLiteral("frmTimoshenko"), *this); });
}

void FrmMsverg::ApreTavola(const QString& nome) {
    NavigaSchermi::Unico().Prende<TavolaFattori>(nome).alScelta = [this](const FattoriScelti& f) {
        PrendeFattori(f.k, f.C1, f.C2, f.C3);
    };
    NavigaSchermi::Unico().Apre(nome, *this);
}

void FrmMsverg::RiempieDati() {
    if (const SezioneDoppioT* s = Sezione()) {
        Riempie(ui_->fraAzioni->TxtNsd, N_a_kN(s->NSd));
        Riempie(ui_->fraAzioni->TxtMysd, Nmm_a_kNm(s->Mysd));
        Riempie(ui_->fraAzioni->TxtMzsd, Nmm_a_kNm(s->Mzsd));
        Riempie(ui_->Txt_k, s->k);
        Riempie(ui_->Txt_Kw, s->Kw);
        Riempie(ui_->Txt_C1, s->C1);
        Riempie(ui_->Txt_C2, s->c2);
        Riempie(ui_->Txt_C3, s->c3);
        Riempie(ui_->Txt_Zg, s->za);
        const auto& scelti = chiamante_->valoriScelti;
        if (s->LLT > 0 || (scelti && scelti->LLT)) // a choice may ask for 0: held all along
            Riempie(ui_->Txt_L, mm_a_m(s->LLT));
        else if (s->L0z > 0 && ui_->Txt_L->text().isEmpty())
            Riempie(ui_->Txt_L, mm_a_m(s->L0z)); // restraints hold against both, as a rule
    }
    sezione_ = SezioneCorrente;
    FuocoSu(ui_->fraAzioni->TxtNsd);
}

// Without a length in the choice the check was not asked for: none here either.
void FrmMsverg::RiempieDaScelta(const ValoriScelti& scelti) {
    scelti.MetteMembratura(*Sezione());
    ui_->Txt_L->clear();
    RiempieDati();
}

void FrmMsverg::RiportaValori(const SezioneDoppioT& vecchia, SezioneDoppioT& nuova) {
    nuova.BetaMy = vecchia.BetaMy;
    nuova.BetaMz = vecchia.BetaMz;
    nuova.BetaMLT = vecchia.BetaMLT;
    nuova.C1 = vecchia.C1;
}

void FrmMsverg::Calcola() {
    SezioneDoppioT* const section = Sezione();
    if (section == nullptr)
        return;
    // The caller has read its row anew; factors that another screen has given the section are its own.
    const bool fresh = section->BetaMy == 0 && section->BetaMz == 0 && section->BetaMLT == 0;
    const SezioneDoppioT* const before = SezioneInUso<SezioneDoppioT>(sezione_);
    if (before != nullptr && before != section && fresh)
        RiportaValori(*before, *section);
    sezione_ = SezioneCorrente;
    ScriveDati();
    section->ClassePressoFlessioneCalcola();
    section->McrFunz();
    section->MbRdSub();
    for (QWidget* result : risultati_) // nothing old beside a message
        SvuotaRisultato(result);
    (void)section->InterazioneFlessoTorsionale(); // tells an MbRd of 0
    MostraResistenza();
    MostraInterazione();
}

void FrmMsverg::ScriveDati() {
    SezioneDoppioT& s = *Sezione();
    s.NSd = kN_a_N(NumeroIn(ui_->fraAzioni->TxtNsd));
    s.Mysd = kNm_a_Nmm(NumeroIn(ui_->fraAzioni->TxtMysd));
    s.Mzsd = kNm_a_Nmm(NumeroIn(ui_->fraAzioni->TxtMzsd));
    s.k = NumeroIn(ui_->Txt_k);
    s.Kw = NumeroIn(ui_->Txt_Kw);
    s.C1 = NumeroIn(ui_->Txt_C1);
    s.c2 = NumeroIn(ui_->Txt_C2);
    s.c3 = NumeroIn(ui_->Txt_C3);
    s.za = NumeroIn(ui_->Txt_Zg);
    s.LLT = m_a_mm(NumeroIn(ui_->Txt_L));
}

void FrmMsverg::MostraResistenza() {
    const SezioneDoppioT& s = *Sezione();
    ui_->consiglioMcr->Mostra(McrSiDiscosta(s) ? tr(notaMcr) : QString());
    Mostra(ui_->Lbl_McRd, figura, Nmm_a_kNm(s.McyRd));
    if (s.LLT > 0)
        Mostra(ui_->Lbl_Mcr, figura, Nmm_a_kNm(s.Mcr));
    else
        Mostra(ui_->Lbl_Mcr, std::string(limiteInfinito));
    Mostra(ui_->Lbl_BetaMLT, figura, s.BetaMLT);
    Mostra(ui_->Lbl_BetaMz, figura, s.BetaMz);
    Mostra(ui_->Lbl_LamdaLT, figura, Valido(s, s.LamdaLT));
    Mostra(ui_->Lbl_chi, figura, Valido(s, s.ChiLT));
    Mostra(ui_->Lbl_MbRd, figura, Valido(s, Nmm_a_kNm(s.MbRd)));
}

void FrmMsverg::MostraInterazione() {
    const SezioneDoppioT& s = *Sezione();
    ui_->Frame1->setTitle(Titolo(s.ClassePressoFlessione));
    const LineaFormula& f = *ui_->formula;
    ui_->formula->MostraAltro(s.ClassePressoFlessione > 3);

    const TerminiInterazione t = s.TerminiFlessoTorsionale();
    Mostra(f.Sopra(0), figura, N_a_kN(t.NSd));
    Mostra(f.Sotto(0), figura, N_a_kN(t.NRd));
    Mostra(f.Sopra(1), Prodotto(t.y.k, t.y.M()));
    Mostra(f.Altro(1), Prodotto(t.y.k, t.y.MSd, t.y.NeN));
    Mostra(f.Sotto(1), figura, Valido(s, Nmm_a_kNm(t.y.MRd)));
    Mostra(f.Sopra(2), Prodotto(t.z.k, t.z.M()));
    Mostra(f.Altro(2), Prodotto(t.z.k, t.z.MSd, t.z.NeN));
    Mostra(f.Sotto(2), figura, Nmm_a_kNm(t.z.MRd));
    const Verdetto v = Giudizio(s);
    ui_->formula->MostraSomma(v.somma, v.utilizzo);
    ui_->formula->Evidenzia(TermineDi(v));
    ui_->verdetto->Mostra(v);
}

// A resistance that is none has no verdict, nor has a factor on its way through 0, which is not the user's
// word yet; an axial force beyond its own resistance has it all the same.
Verdetto FrmMsverg::Giudizio(const SezioneDoppioT& s) const {
    Verdetto v = GiudicaFlessoTorsionale(s);
    const bool nessuna = (s.LLT > 0 && !std::isfinite(s.Mcr)) || (s.MbRd == 0 && entrate_->InDigitazione());
    return nessuna && !v.assialeOltre ? Verdetto() : v;
}

void FrmMsverg::PrendeFattori(double k, double C1, double C2, double C3) {
    const QScopedValueRollback guard(inCalcolo_, true);
    Scrive(ui_->Txt_k, k);
    Scrive(ui_->Txt_C1, C1);
    Scrive(ui_->Txt_C2, C2);
    Scrive(ui_->Txt_C3, C3);
}

} // namespace sagomi
