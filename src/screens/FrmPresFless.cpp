#include "screens/FrmPresFless.h"

#include <QButtonGroup>
#include <QRadioButton>
#include <QScopedValueRollback>
#include <QSignalBlocker>

#include <algorithm>
#include <cmath>
#include <limits>

#include "frame/Unita.h"
#include "frame/ui/Campi.h"
#include "frame/ui/Casella.h"
#include "frame/ui/Entrata.h"
#include "frame/ui/Esito.h"
#include "frame/ui/InvioFra.h"
#include "frame/ui/Mostra.h"
#include "frame/ui/NavigaSchermi.h"
#include "frame/ui/Protetto.h"
#include "report/RelazioneSagomo.h"
#include "report/ui/ComandoRelazione.h"
#include "screens/PulsanteDiagramma.h"
#include "screens/SchermoSezione.h"
#include "screens/TermineSpostato.h"
#include "sections/DiagrammaMomenti.h"
#include "sections/DisegniMomento.h"
#include "sections/PressoFlessione.h"
#include "sections/SezioneDoppioT.h"
#include "sections/Verdetto.h"
#include "ui_FrmPresFless.h"

namespace sagomi {

namespace {

constexpr auto figura = "0.0##";
constexpr const char* motivoEstremita = "M1 deve essere positivo e non minore di M2 in valore assoluto";
constexpr const char* motivoCampata = "MQ deve essere positivo";
constexpr const char* motivoLunghezza = "La lunghezza di libera inflessione non può essere negativa";

/// Writes a corrected number back into its box; a box that holds it already keeps its text.
void Riscrive(QLineEdit* box, double value) {
    if (NumeroIn(box) != value)
        box->setText(QString::fromStdString(TestoPiano(value)));
}

QString Titolo(int classe) {
    if (classe > 3)
        return QStringLiteral("Flessione e compressione assiale - Classe 4 - EC3 #5.5.4.(5)");
    return QStringLiteral("Flessione e compressione assiale - Classe ") + QString::number(classe) +
           (classe == 3 ? QStringLiteral(" - EC3 #5.5.4.(3)") : QStringLiteral(" - EC3 #5.5.4.(1)"));
}

constexpr auto aiutoTermineN = "Forza assiale sulla minore resistenza all'instabilità, ENV 1993-1-1 5.5.4";
constexpr auto aiutoSomma = "Somma dei termini, passa se non supera 1, ENV 1993-1-1 5.5.4";

/// Classes 1 to 3; the verdict stands behind the line.
Formula InterazioneLorda() {
    return {
        .termini = {{.sopra = {{"", "N", "Sd"}},
                     .sotto = {{"", "N", "b,min,Rd"}},
                     .valoreSopra = VoceValore("LblTermineN", aiutoTermineN, "Termine di N")},
                    {.sopra = {{"", "k", "y"}, {"", "M", "y,Sd"}},
                     .sotto = {{"", "M", "y,Rd"}},
                     .valoreSopra = VoceValore("LblTermineMy",
                                               "Termine del momento intorno a y-y: momento resistente della "
                                               "classe, con GammaM1, ENV 1993-1-1 5.5.4",
                                               "Termine di My"),
                     .piu = "LblValPiu1"},
                    {.sopra = {{"", "k", "z"}, {"", "M", "z,Sd"}},
                     .sotto = {{"", "M", "z,Rd"}},
                     .valoreSopra = VoceValore("LblTermineMz",
                                               "Termine del momento intorno a z-z: momento resistente della "
                                               "classe, con GammaM1, ENV 1993-1-1 5.5.4",
                                               "Termine di Mz"),
                     .piu = "LblValPiu2"}},
        .uguale = "LblValUguale",
        .somma = VoceSomma("Lbl_Risult", aiutoSomma)};
}

/// Class 4: the moments carry the shift of the effective section's centroid.
Formula InterazioneEfficace() {
    return {
        .termini = {{.sopra = {{"", "N", "Sd"}},
                     .sotto = {{"", "N", "b,min,Rd"}},
                     .valoreSopra = VoceValore("LblTermineN4", aiutoTermineN, "Termine di N")},
                    {.sopra = TermineSpostato("y", true),
                     .sotto = {{"", "M", "y,Rd"}},
                     .valoreSopra = VoceValore("LblTermineMy4",
                                               "Termine del momento intorno a y-y, con lo spostamento del "
                                               "baricentro, ENV 1993-1-1 5.5.4 (5)",
                                               "Termine di My"),
                     .piu = "LblValPiu14"},
                    {.sopra = TermineSpostato("z", false),
                     .sotto = {{"", "M", "z,Rd"}},
                     .valoreSopra = VoceValore("LblTermineMz4",
                                               "Termine del momento intorno a z-z, con lo spostamento del "
                                               "baricentro, ENV 1993-1-1 5.5.4 (5)",
                                               "Termine di Mz"),
                     .piu = "LblValPiu24"}},
        .uguale = "LblValUguale4",
        .somma = VoceSomma("Lbl_Risult4", aiutoSomma)};
}

} // namespace

FrmPresFless::FrmPresFless() : SchermoDettaglio(QStringLiteral("FrmPresFless")), ui_(new Ui::FrmPresFless) {
    ui_->setupUi(this);
    ui_->termini->Compone(InterazioneLorda());
    ui_->termini4->Compone(InterazioneEfficace());
    ui_->termini4->hide();
    Txt_L0_ = Vettore<QLineEdit>(QStringLiteral("Txt_L0"));
    TxtM1_ = Vettore<QLineEdit>(QStringLiteral("TxtM1"));
    TxtM2_ = Vettore<QLineEdit>(QStringLiteral("TxtM2"));
    TxtMQ_ = Vettore<QLineEdit>(QStringLiteral("TxtMQ"));
    OptMomento_ = Vettore<QRadioButton>(QStringLiteral("OptMomento"));
    for (int i = 1; i <= nPict; ++i)
        Picture1_ << findChild<PulsanteDiagramma*>(QStringLiteral("Picture1_%1").arg(i));
    CollegaControlli(InvioFra({ui_->fraSezione->Txt_fy, ui_->fraAzioni->TxtNsd, Txt_L0_[0], Txt_L0_[1],
                               TxtM1_[0], TxtM2_[0], TxtMQ_[0], TxtM1_[1], TxtM2_[1], TxtMQ_[1]}));
    CollegaEventi();
    CollegaDiagrammi();
    VisualizzaPict(IndicePict);
    ui_->ImgMomenti->Mostra(DisegnoMomenti({}, {}, IndicePict)); // its room counts from the start
    AggiungeRelazione(*this, [this] {
        const SezioneDoppioT* s = Sezione();
        if (s == nullptr || s->ErroreDatiDatabase || !regole_.Applica())
            return Relazione();
        return RelazioneMembratura(*s, {s->CurvaInstabilita("yy"), s->CurvaInstabilita("zz")},
                                   {Momenti(0), Momenti(1), TipoDiagramma, IndicePict},
                                   objectName().toStdString());
    });
    DimensionaIniziale({});
}

FrmPresFless::~FrmPresFless() = default;

void FrmPresFless::CollegaEventi() {
    CollegaRegole(0);
    CollegaRegole(1);
    CalcolaA(QList<QLineEdit*>{ui_->fraAzioni->TxtNsd} + Txt_L0_ + TxtM1_ + TxtM2_ + TxtMQ_);
    Collega(ui_->LblVerifiche, &QPushButton::clicked, this,
            [this] { NavigaSchermi::Unico().Apre(QStringLiteral("FrmVerifiche"), *this); });
    for (QPushButton* open : {ui_->LblFlessTors, ui_->LbLFlessTorsHelp})
        Collega(open, &QPushButton::clicked, this,
                [this] { NavigaSchermi::Unico().Apre(QStringLiteral("FrmMsverg"), *this); });
}

void FrmPresFless::CollegaRegole(int asse) {
    const bool y = asse == 0;
    const auto sums = Controlli({"Lbl_Risult", "Lbl_Risult4", "Lbl_Risultato", "LblUtilizzo", "LblMotivo"});
    const auto term = y ? Controlli({"Lbl_Mu_0", "Lbl_k_0", "LblTermineMy", "LblTermineMy4"})
                        : Controlli({"Lbl_Mu_1", "Lbl_k_1", "LblTermineMz", "LblTermineMz4"});
    const auto moments =
        y ? Controlli({"Lbl_MSd_0", "Lbl_BetaM_0", "Lbl_C1"}) : Controlli({"Lbl_MSd_1", "Lbl_BetaM_1"});
    const auto buckling = y ? Controlli({"Lbl_Lamda_0", "Lbl_NbRd_0", "LblTermineN", "LblTermineN4"})
                            : Controlli({"Lbl_Lamda_1", "Lbl_NbRd_1", "LblTermineN", "LblTermineN4"});
    const auto number = [](const QLineEdit* box) { return NumeroIn(box); };
    regole_.Aggiunge({.caselle = {TxtM1_[asse], TxtM2_[asse]},
                      .motivo =
                          [this, asse, number] {
                              const double M1 = number(TxtM1_[asse]);
                              return M1 < 0 || std::abs(number(TxtM2_[asse])) > M1 ? tr(motivoEstremita)
                                                                                   : QString();
                          },
                      .corregge =
                          [this, asse] {
                              double M1 = 0;
                              double M2 = 0;
                              inputM1M2(asse, M1, M2);
                          },
                      .risultati = moments + term + sums});
    regole_.Aggiunge({.caselle = {TxtMQ_[asse]},
                      .motivo =
                          [this, asse, number] {
                              const bool used = TipoDiagramma == diagrammaCampata;
                              return used && number(TxtMQ_[asse]) < 0 ? tr(motivoCampata) : QString();
                          },
                      .corregge =
                          [this, asse] {
                              double MQ = 0;
                              inputMQ(asse, MQ);
                          },
                      .risultati = moments + term + sums});
    regole_.Aggiunge({.caselle = {Txt_L0_[asse]},
                      .motivo =
                          [this, asse, number] {
                              const double L = number(Txt_L0_[asse]);
                              return L >= 0 && std::isfinite(L) ? QString() : tr(motivoLunghezza);
                          },
                      .risultati = buckling + term + sums});
}

void FrmPresFless::CollegaDiagrammi() {
    auto* pictures = new QButtonGroup(this);
    for (QRadioButton* option : OptMomento_)
        option->setFocusPolicy(Qt::ClickFocus); // one group with the pictures, which Tab enters
    for (PulsanteDiagramma* picture : Picture1_) {
        pictures->addButton(picture);
        Collega(picture, &QAbstractButton::clicked, this,
                [this, picture] { SelezionaPict(picture->Pict()); });
    }
    for (int i = 0; i < OptMomento_.size(); ++i)
        Collega(OptMomento_[i], &QRadioButton::toggled, this, [this, i](bool on) {
            if (on && i != TipoDiagramma)
                SelezionaPict(PrimaPict(static_cast<std::int16_t>(i)));
        });
}

void FrmPresFless::RiempieDati() {
    if (const SezioneDoppioT* s = Sezione()) {
        Riempie(ui_->fraAzioni->TxtNsd, N_a_kN(s->NSd));
        Riempie(Txt_L0_[0], mm_a_m(s->L0y));
        Riempie(Txt_L0_[1], mm_a_m(s->L0z));
    }
    FuocoSu(ui_->fraAzioni->TxtNsd);
}

void FrmPresFless::Calcola() {
    Leggedati();
    SezioneDoppioT* s = Sezione();
    if (s == nullptr)
        return;
    PrendeMomento(0);
    PrendeMomento(1);
    EffettiDiagramma y;
    EffettiDiagramma z;
    CompletaForm1(0, y.M, y.BetaM, y.C1);
    CompletaForm1(1, z.M, z.BetaM, z.C1);
    y.C1 = FattoreInForza(y.C1);
    ApplicaDiagrammi(*s, y, z);
    if (chiamante_->valoriScelti) // else the ends are free and the load stands at mid-height
        chiamante_->valoriScelti->MetteFattori(*s);
    scritti_ = {s->Mysd, s->Mzsd};
    Mostra(ui_->Lbl_C1, figura, s->C1);
    s->McrFunz();
    s->MbRdSub();
    MostraAsse(0);
    MostraAsse(1);
    MostraMomenti();
    MostraInterazione();
}

// Of end moments alone the picture is the one of their signs.
void FrmPresFless::MostraMomenti() {
    const double M2 = NumeroIn(TxtM2_[0]);
    if (TipoDiagramma == diagrammaEstremita && M2 != 0) {
        IndicePict = M2 < 0 ? pictEstremitaDiscordi : pictEstremitaConcordi;
        VisualizzaPict(IndicePict);
    }
    ui_->ImgMomenti->Mostra(DisegnoMomenti(Momenti(0), Momenti(1), IndicePict));
}

// A moment that another detail has given the section comes into the diagram, which keeps its shape.
void FrmPresFless::PrendeMomento(int asse) {
    const SezioneDoppioT& s = *Sezione();
    const double given = std::abs(asse == 0 ? s.Mysd : s.Mzsd);
    const double own = scritti_.at(static_cast<std::size_t>(asse));
    const QList<QLineEdit*> boxes{TxtM1_[asse], TxtM2_[asse], TxtMQ_[asse]};
    const auto typing = [](const QLineEdit* box) { return InDigitazione(box); };
    constexpr double cifreSingolo = 5e-7;
    if (!StessaSezione() || !std::isfinite(given) || std::ranges::any_of(boxes, typing) ||
        std::abs(given - own) <= cifreSingolo * own)
        return;
    const TerminiInterazione t = s.TerminiMNInstab();
    const double NeN = asse == 0 ? t.y.NeN : t.z.NeN;
    const QScopedValueRollback guard(inCalcolo_, true);
    const double scala = own == NeN ? 0 : (given - NeN) / (own - NeN);
    if (scala > 0)
        for (QLineEdit* box : boxes)
            Riempie(box, NumeroIn(box) * scala);
    else if (given > NeN)
        Riempie(boxes[0], Nmm_a_kNm(given - NeN));
}

// C1 of the diagram, or the one that another detail has given the section since the diagram was changed.
double FrmPresFless::FattoreInForza(double C1) {
    const SezioneDoppioT& s = *Sezione();
    const auto& scelti = chiamante_->valoriScelti;
    const bool chosen = !StessaSezione() && scelti && scelti->C1Proprio;
    const bool other = chosen || (StessaSezione() && C1 == C1Proprio_ && s.C1 != Singolo(C1));
    C1Proprio_ = C1;
    return other ? double(s.C1) : C1;
}

void FrmPresFless::ImpostaDiagramma(const MomentiMembratura& y, const MomentiMembratura& z,
                                    std::int16_t pict) {
    const QScopedValueRollback guard(inCalcolo_, true);
    IndicePict = pict;
    TipoDiagramma = TipoDiPict(pict);
    const MomentiMembratura* axes[] = {&y, &z};
    const auto write = [](QLineEdit* box, double moment) {
        box->setText(QString::fromStdString(TestoPiano(Nmm_a_kNm(moment))));
    };
    for (int asse = 0; asse < 2; ++asse) {
        write(TxtM1_[asse], axes[asse]->M1);
        write(TxtM2_[asse], axes[asse]->M2);
        write(TxtMQ_[asse], axes[asse]->MQ);
    }
    VisualizzaPict(IndicePict);
}

MomentiMembratura FrmPresFless::Momenti(int asse) {
    MomentiMembratura m;
    inputM1M2(asse, m.M1, m.M2);
    if (TipoDiagramma == diagrammaCampata)
        inputMQ(asse, m.MQ);
    m.M1 = kNm_a_Nmm(m.M1);
    m.M2 = kNm_a_Nmm(m.M2);
    m.MQ = kNm_a_Nmm(m.MQ);
    if (const SezioneDoppioT* s = Sezione()) {
        const TerminiInterazione t = s->TerminiMNInstab();
        m.NeN = asse == 0 ? t.y.NeN : t.z.NeN;
    }
    return m;
}

void FrmPresFless::CompletaForm1(int asse, double& M, double& BetaM, double& C1) {
    const MomentiMembratura m = Momenti(asse);
    const EffettiDiagramma e = EffettiDelDiagramma(m, TipoDiagramma, IndicePict);
    M = e.M;
    BetaM = e.BetaM;
    C1 = e.C1;
}

void FrmPresFless::inputM1M2(int asse, double& M1, double& M2) {
    M1 = NumeroIn(TxtM1_[asse]);
    M2 = NumeroIn(TxtM2_[asse]);
    if (InDigitazione(TxtM1_[asse]) || InDigitazione(TxtM2_[asse]))
        return; // the correction waits
    CorreggeM1M2(M1, M2);
    const QScopedValueRollback guard(inCalcolo_, true);
    Riscrive(TxtM1_[asse], M1);
    Riscrive(TxtM2_[asse], M2);
}

void FrmPresFless::inputMQ(int asse, double& MQ) {
    MQ = NumeroIn(TxtMQ_[asse]);
    if (InDigitazione(TxtMQ_[asse]))
        return;
    CorreggeMQ(MQ);
    const QScopedValueRollback guard(inCalcolo_, true);
    Riscrive(TxtMQ_[asse], MQ);
}

void FrmPresFless::Leggedati() {
    if (chiamante_ == nullptr)
        return;
    RiportaAlChiamante();
    if (SezioneDoppioT* s = Sezione()) {
        s->NSd = kN_a_N(NumeroIn(ui_->fraAzioni->TxtNsd)); // another detail may have left its own
        s->ClassePressoFlessioneCalcola();
    }
}

void FrmPresFless::VisualizzaPict(int indice) {
    if (indice < 1 || indice > nPict)
        return;
    const std::int16_t type = TipoDiPict(static_cast<std::int16_t>(indice));
    for (PulsanteDiagramma* picture :
         Picture1_) // Tab comes to the one that is chosen, arrows go on from there
        picture->setFocusPolicy(picture->Pict() == indice ? Qt::StrongFocus : Qt::ClickFocus);
    const QSignalBlocker quiet(OptMomento_[type]);
    OptMomento_[type]->setChecked(true);
    Picture1_[indice - 1]->setChecked(true);
    for (int asse = 0; asse < TxtMQ_.size(); ++asse)
        TxtMQ_[asse]->setVisible(type == diagrammaCampata);
    ui_->LblMQ->setVisible(type == diagrammaCampata);
}

void FrmPresFless::SelezionaPict(int indice) {
    if (indice < 1 || indice > nPict)
        return;
    IndicePict = static_cast<std::int16_t>(indice);
    TipoDiagramma = TipoDiPict(IndicePict);
    VisualizzaPict(indice);
    Ricalcola();
}

void FrmPresFless::MostraAsse(int asse) {
    const SezioneDoppioT& s = *Sezione();
    const bool y = asse == 0;
    Mostra(y ? ui_->Lbl_Lamda_0 : ui_->Lbl_Lamda_1, figura, y ? s.LamdaY() : s.LamdaZ());
    Mostra(y ? ui_->Lbl_Mu_0 : ui_->Lbl_Mu_1, figura, y ? s.muY() : s.muZ());
    Mostra(y ? ui_->Lbl_k_0 : ui_->Lbl_k_1, figura, y ? s.kY() : s.kZ());
    Mostra(y ? ui_->Lbl_McRd_0 : ui_->Lbl_McRd_1, figura, Nmm_a_kNm(y ? s.McyRd : s.MczRd));
    Mostra(y ? ui_->Lbl_MSd_0 : ui_->Lbl_MSd_1, figura, NumeroMostrato(Nmm_a_kNm(y ? s.Mysd : s.Mzsd)));
    Mostra(y ? ui_->Lbl_BetaM_0 : ui_->Lbl_BetaM_1, figura, y ? s.BetaMy : s.BetaMz);
    const double N = s.ErroreDatiDatabase ? std::numeric_limits<double>::quiet_NaN() : y ? s.NbyRd : s.NbzRd;
    Mostra(y ? ui_->Lbl_NbRd_0 : ui_->Lbl_NbRd_1, figura, N_a_kN(N));
}

void FrmPresFless::MostraInterazione() {
    const SezioneDoppioT& s = *Sezione();
    const bool classe4 = s.ClassePressoFlessione > 3;
    ui_->Frame1->setTitle(Titolo(s.ClassePressoFlessione));
    ui_->termini->setVisible(!classe4);
    ui_->termini4->setVisible(classe4);

    const TerminiInterazione t = s.TerminiMNInstab();
    const Verdetto v = GiudicaInstabilita(s);
    LineaFormula* line = classe4 ? ui_->termini4 : ui_->termini;
    Mostra(line->Sopra(0), figura, t.N());
    Mostra(line->Sopra(1), figura, t.y.Valore());
    Mostra(line->Sopra(2), figura, t.z.Valore());
    line->MostraSomma(v.somma);
    line->Evidenzia(TermineDi(v));
    MostraEsito(ui_->Lbl_Risultato, v.utilizzo);
    ui_->verdetto->Mostra(v);
}

} // namespace sagomi
