#include "fasteners/ui/frmBulloni.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QRadioButton>
#include <QScopedValueRollback>
#include <QScreen>
#include <QSignalBlocker>

#include <algorithm>
#include <cmath>
#include <utility>

#include "fasteners/DisegnoForatura.h"
#include "fasteners/VerdettoBullone.h"
#include "fasteners/ui/GeneraleCollegamenti.h"
#include "frame/GeneraleSagomi.h"
#include "frame/Messaggi.h"
#include "frame/Numeri.h"
#include "frame/Unita.h"
#include "frame/ui/Campi.h"
#include "frame/ui/ColonnaDecimali.h"
#include "frame/ui/Entrata.h"
#include "frame/ui/Esito.h"
#include "frame/ui/Guida.h"
#include "frame/ui/NavigaSchermi.h"
#include "frame/ui/Protetto.h"
#include "report/RelazioneCollegamenti.h"
#include "report/ui/ComandoRelazione.h"
#include "ui_frmBulloni.h"

namespace sagomi {

namespace {

constexpr int cifreRisultati = 4;
constexpr int ultimaEntrata = 5; ///< Txt_Rif up to here is typed, beyond it computed
constexpr int nMessaggi = 5;
constexpr int caratteriTermine = 9;  ///< room of a term of the check
constexpr int righeMotivo = 3;       ///< of a reason beside the utilisation
constexpr int righeOsservazioni = 6; ///< seen at once

/// Places of Txt_Rif.
enum { rifSpessore, rifForo, rif_e1, rif_p1, rif_e2, rif_p2, rifAlfa, rifResistenza };

/// Boxes of the hole and the distances with what they hold.
constexpr std::pair<int, Singolo Bullone::*> misure[] = {{rifForo, &Bullone::do_},
                                                         {rif_e1, &Bullone::e1},
                                                         {rif_p1, &Bullone::p1},
                                                         {rif_e2, &Bullone::e2},
                                                         {rif_p2, &Bullone::p2}};

/// Writes a text without telling an entry's own handler; a result has none, and shows its head by itself.
void Scrive(QLineEdit* box, const std::string& text) {
    const QSignalBlocker quiet(box->isReadOnly() ? nullptr : box);
    box->setText(QString::fromStdString(text));
    SegnaEntrata(box, {}); // it has heard nothing
}

QString Nome(TermineBullone termine) {
    switch (termine) {
    case TermineBullone::Taglio:
        return QStringLiteral("taglio");
    case TermineBullone::Trazione:
        return QStringLiteral("trazione");
    case TermineBullone::Rifollamento:
        return QStringLiteral("rifollamento");
    case TermineBullone::Nessuno:
        break;
    }
    return {};
}

void MostraForza(QLineEdit* box, Singolo force) {
    Scrive(box, FormatoCifre(cifreRisultati, Singolo(N_a_kN(force))));
}

} // namespace

frmBulloni::frmBulloni() : Schermo(QStringLiteral("frmBulloni")), ui_(new Ui::frmBulloni) {
    ui_->setupUi(this);
    ui_->Picture1->Mostra(DisegnoForatura({}));
    Txt_Rif_ = Vettore<QLineEdit>(QStringLiteral("Txt_Rif"));
    Txt_FSd_ = Vettore<QLineEdit>(QStringLiteral("Txt_FSd"));
    PreparaForma();
    PreparaContenuto();
    CollegaCaselle();
    CollegaScelte();
    AggiungeRelazione(*this, [this] {
        const bool some =
            bullone_ && !ui_->Txt_FVRd->text().isEmpty() && !Txt_Rif_[rifResistenza]->text().isEmpty();
        return some ? RelazioneBullone(*bullone_, ui_->Txt_TipoAcciaio->text().toStdString(),
                                       !ui_->Lbl_Risultato_1->text().isEmpty())
                    : Relazione();
    });
    DimensionaIniziale({}); // the status line has its room by now
}

frmBulloni::~frmBulloni() = default;

void frmBulloni::PreparaForma() {
    QSizePolicy place = ui_->List1->sizePolicy(); // keeps its place: nothing jumps when a message comes
    place.setRetainSizeWhenHidden(true);
    ui_->List1->setSizePolicy(place);
    ui_->Lbl_Risultato_0->Sotto({ui_->LblSimTaglio, ui_->LblSimTrazione, ui_->LblSimLimite});
    AllineaDecimali({ui_->Txt_A, ui_->Txt_FVRd, ui_->Txt_FtRd});
    AllineaDecimali({Txt_Rif_[rifAlfa], Txt_Rif_[rifResistenza]});
    ui_->Txt_Osservazioni->viewport()->setAutoFillBackground(false); // the tint of the panel
    ui_->fraOsservazioni->Ospita(ui_->Txt_Osservazioni);
}

/// Rooms that are kept free go with the size of the text.
void frmBulloni::ScalaContenuto(double rapporto) {
    Schermo::ScalaContenuto(rapporto);
    ui_->List1->setFixedHeight(nMessaggi * (ui_->List1->fontMetrics().height() + 3) +
                               2 * ui_->List1->frameWidth());
    for (QWidget* term : {ui_->LblSimTaglio, ui_->LblSimTrazione, ui_->LblSimLimite})
        term->setMinimumWidth(caratteriTermine * fontMetrics().horizontalAdvance(u'0'));
    ui_->verdetto->setMinimumHeight(righeMotivo * fontMetrics().lineSpacing()); // nothing jumps or scrolls
    ui_->Txt_Osservazioni->setFixedHeight(righeOsservazioni * fontMetrics().lineSpacing());
}

void frmBulloni::CollegaScelte() {
    // Choosing the same item again counts: it brings the class's fub, or the usual distances, back.
    Collega(ui_->ComboClassiBulloni, &QComboBox::activated, this, [this] { SceglieClasse(); });
    Collega(ui_->ComboDiametriBulloni, &QComboBox::activated, this, [this] { SceglieDiametro(); });
    Collega(ui_->optFilettata_1, &QRadioButton::toggled, this, [this] { SceglieSezione(); });
    Collega(ui_->UpDown2, &UpDown::passo, this, [this](bool su) {
        PassoAcciaioCorrente(su);
        MostraAcciaioCorrente(ui_->Txt_TipoAcciaio, ui_->Txt_fu);
    });
    Collega(ui_->Command1, &QPushButton::clicked, this, [this] { ApreChiudeOsservazioni(); });
    Collega(ui_->fraOsservazioni, &PannelloConsiglio::chiuso, this, [this] { ChiudeOsservazioni(); });
}

void frmBulloni::CollegaCaselle() {
    auto* entries = new FiltroCampi(this, [this](QLineEdit* box) { return Invio(box); });
    for (QLineEdit* box : findChildren<QLineEdit*>())
        if (!box->isReadOnly())
            entries->Osserva(box);
    Collega(entries, &FiltroCampi::conclusa, this, [this](QLineEdit* box) { Conclusa(box); });
    CollegaRegole();
    Collega(ui_->Txt_fub, &QLineEdit::textChanged, this, [this] { ScriveFub(); });
    Collega(ui_->Txt_fu, &QLineEdit::textChanged, this, [this] {
        if (!Caricamento && bullone_)
            Aggiorna();
    });
    for (int i = 0; i <= ultimaEntrata; ++i)
        Collega(Txt_Rif_[i], &QLineEdit::textChanged, this, [this, i] { ScriveRif(i); });
    for (QLineEdit* box : Txt_FSd_)
        Collega(box, &QLineEdit::textChanged, this, [this] {
            if (!Caricamento && bullone_)
                Interazione();
        });
}

void frmBulloni::CollegaRegole() {
    verdetto_ = {ui_->Lbl_Risultato_0, ui_->Lbl_Risultato_1,
                 findChild<QLabel*>(QStringLiteral("LblUtilizzo")),
                 findChild<QLabel*>(QStringLiteral("LblMotivo"))};
    const QList<QWidget*> bearing = verdetto_ + QList<QWidget*>{Txt_Rif_[rifAlfa], Txt_Rif_[rifResistenza]};
    for (QLineEdit* box : Txt_FSd_)
        RegolaSegno(box, "La forza non può essere negativa", verdetto_);
    regole_.Aggiunge({.caselle = Txt_FSd_, .risultati = verdetto_, .manca = [this] {
                          return Txt_FSd_[0]->text().trimmed().isEmpty() &&
                                 Txt_FSd_[1]->text().trimmed().isEmpty();
                      }});
    regole_.Aggiunge({.caselle = {Txt_FSd_[0]}, .motivo = [this] { return MotivoForza(0); }});
    regole_.Aggiunge({.caselle = {Txt_FSd_[1]}, .motivo = [this] { return MotivoForza(1); }});
    RegolaSegno(Txt_Rif_[rifSpessore], "Lo spessore non può essere negativo", bearing);
    RegolaSegno(Txt_Rif_[rifForo], "Il diametro del foro non può essere negativo",
                bearing + QList<QWidget*>{ui_->Txt_FVRd});
    for (const int i : {rif_e1, rif_p1, rif_e2, rif_p2})
        RegolaSegno(Txt_Rif_[i], "La distanza non può essere negativa", bearing);
    for (const int i : {rifForo, rif_e1, rif_p1, rif_e2, rif_p2})
        RegolaAttesa(Txt_Rif_[i], bearing);
    RegolaAttesa(ui_->Txt_fu, bearing);
    RegolaAttesa(ui_->Txt_fub, bearing + QList<QWidget*>{ui_->Txt_FVRd, ui_->Txt_FtRd});
}

/// A number that cannot be is marked and stays; what hangs on it is empty.
void frmBulloni::RegolaSegno(QLineEdit* casella, const char* motivo, const QList<QWidget*>& risultati) {
    regole_.Aggiunge({.caselle = {casella},
                      .motivo =
                          [casella, motivo] {
                              const double value = Singolo(NumeroIn(casella));
                              return !std::isfinite(value) ? tr("Il numero è troppo grande")
                                     : value < 0           ? tr(motivo)
                                                           : QString();
                          },
                      .risultati = risultati});
}

/// A measure on its way that is none yet: what hangs on it is empty until it is one, or is put back.
void frmBulloni::RegolaAttesa(QLineEdit* casella, const QList<QWidget*>& risultati) {
    regole_.Aggiunge({.caselle = {casella}, .risultati = risultati, .manca = [casella] {
                          return !(Singolo(NumeroIn(casella)) > 0) && InDigitazione(casella);
                      }});
}

/// Why a force alone is beyond what resists it.
QString frmBulloni::MotivoForza(int i) const {
    if (!bullone_ || Caricamento)
        return {};
    const VerdettoBullone v = Giudica(*bullone_);
    return QString::fromStdString(i == 0 ? v.motivoTaglio : v.motivoTrazione);
}

/// A measure or a strength of 0, with which nothing is computed, goes back to what the bolt has.
void frmBulloni::Conclusa(QLineEdit* casella) {
    if (!bullone_ || Singolo(NumeroIn(casella)) > 0)
        return;
    const bool nullo = Singolo(NumeroIn(casella)) == 0;
    for (const auto& [place, member] : misure)
        if (nullo && casella == Txt_Rif_[place])
            Scrive(casella, TestoPiano((*bullone_).*member));
    if (casella == ui_->Txt_fub)
        Scrive(casella, Formato("0", bullone_->fub));
    if (casella == ui_->Txt_fu && bullone_->fu > 0)
        Scrive(casella, TestoPiano(bullone_->fu));
    Aggiorna();
}

bool frmBulloni::Invio(QLineEdit* casella) {
    const auto i = Txt_Rif_.indexOf(casella);
    if (i >= 0)
        FuocoSu(i < ultimaEntrata ? Txt_Rif_[i + 1] : Txt_FSd_[0]);
    else if (casella == Txt_FSd_[0])
        FuocoSu(Txt_FSd_[1]);
    else if (casella == Txt_FSd_[1])
        ui_->Command1->setFocus(Qt::TabFocusReason);
    else
        return false;
    return true;
}

void frmBulloni::Apre(Schermo& chiamante) {
    origine = &chiamante;
    NavigaSchermi::Unico().Passa(*this, &chiamante);
    ui_->ComboClassiBulloni->setFocus();
}

void frmBulloni::AllAttivazione() {
    Guida::ImpostaFile(FileGuida());
    ui_->testa->Mostra();
    if (!bullone_) {
        Carica();
        return;
    }
    const MessaggiTaciuti quiet; // the factor may be another one since
    bullone_->CalcolaResistenzaTaglio();
    Aggiorna();
}

void frmBulloni::closeEvent(QCloseEvent* event) {
    EventoProtetto([this] { bullone_.reset(); });
    Schermo::closeEvent(event);
}

void frmBulloni::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && ui_->fraOsservazioni->isVisible())
        EventoProtetto([this] { ChiudeOsservazioni(); });
    else
        Schermo::keyPressEvent(event);
}

void frmBulloni::Carica() {
    const QScopedValueRollback loading(Caricamento, true);
    bullone_.emplace();
    DisponeInAlto(this);
    ChiudeOsservazioni();
    for (QLineEdit* box : {Txt_Rif_[rifSpessore], Txt_FSd_[0], Txt_FSd_[1]})
        box->clear();
    ComboClassiBulloniCarica(ui_->ComboClassiBulloni);
    ComboDiametriBulloniCarica(ui_->ComboDiametriBulloni);
    SceglieClasse();
    ui_->optFilettata_0->setChecked(true);
    bullone_->Gambo = false;
    SceglieDiametro();
    MostraAcciaioCorrente(ui_->Txt_TipoAcciaio, ui_->Txt_fu);
    ClasseCambiata();
    DiametroCambiato();
    Interazione();
}

void frmBulloni::SceglieClasse() {
    if (!bullone_ || ui_->ComboClassiBulloni->currentIndex() < 0)
        return;
    IndiceClasseBullone = static_cast<std::int16_t>(ui_->ComboClassiBulloni->currentIndex());
    bullone_->Classe(ClasseScelta(ui_->ComboClassiBulloni));
    if (!Caricamento)
        ClasseCambiata();
}

void frmBulloni::SceglieDiametro() {
    if (!bullone_)
        return;
    bullone_->d(static_cast<std::int16_t>(ui_->ComboDiametriBulloni->currentIndex() + 1));
    if (!Caricamento)
        DiametroCambiato();
}

void frmBulloni::SceglieSezione() {
    if (Caricamento || !bullone_)
        return;
    bullone_->Gambo = ui_->optFilettata_1->isChecked();
    DiametroCambiato();
}

void frmBulloni::ScriveFub() {
    if (Caricamento || !bullone_)
        return;
    if (const Singolo fub = NumeroIn(ui_->Txt_fub); fub > 0) { // too small for a single is 0 too
        bullone_->fub = fub;
        bullone_->CalcolaResistenzaTaglio();
    }
    Aggiorna();
}

void frmBulloni::ScriveRif(int i) {
    if (Caricamento || !bullone_)
        return;
    LeggePiastra();
    if (i == rifForo)
        bullone_->CalcolaResistenzaTaglio(); // the play of the hole may reduce it
    Aggiorna();
}

void frmBulloni::ClasseCambiata() {
    bullone_->CalcolaResistenzaTaglio();
    Scrive(ui_->Txt_fub, Formato("0", bullone_->fub));
    Scrive(ui_->Txt_fyb, TestoPiano(bullone_->fyb));
    if (!Caricamento)
        Aggiorna(); // 4.6 and 4.8 share fub, but not the shear resistance
}

void frmBulloni::DiametroCambiato() {
    bullone_->do_ = bullone_->DiametroForoStandard();
    bullone_->CalcolaResistenzaTaglio();
    // Distances that lower nothing: alfa is 1 and no reduction across the load applies.
    const Singolo hole = bullone_->do_;
    Scrive(Txt_Rif_[rifForo], TestoPiano(hole));
    Scrive(Txt_Rif_[rif_e1], TestoPiano(Singolo(3 * hole)));
    Scrive(Txt_Rif_[rif_p1], TestoPiano(Singolo(3.75 * hole)));
    Scrive(Txt_Rif_[rif_e2], TestoPiano(Singolo(1.5 * hole)));
    Scrive(Txt_Rif_[rif_p2], TestoPiano(Singolo(3 * hole)));
    Aggiorna();
}

void frmBulloni::Aggiorna() {
    if (!bullone_) // another screen changed while this one was on its way
        return;
    MostraTaglioTrazione();
    RifollamentoAggiorna();
    Interazione();
}

void frmBulloni::MostraTaglioTrazione() {
    Scrive(ui_->Txt_A, Formato("0.0", bullone_->Ataglio));
    MostraForza(ui_->Txt_FVRd, bullone_->FvRd);
    MostraForza(ui_->Txt_FtRd, bullone_->FtRd);
}

void frmBulloni::LeggePiastra() {
    // Of what divides, and of the distances, nothing but a positive value reaches the bolt.
    if (const Singolo fu = NumeroIn(ui_->Txt_fu); fu > 0)
        bullone_->fu = fu;
    bullone_->t = NumeroIn(Txt_Rif_[rifSpessore]);
    for (const auto& [place, member] : misure)
        if (const Singolo v = NumeroIn(Txt_Rif_[place]); v > 0)
            (*bullone_).*member = v;
}

void frmBulloni::RifollamentoAggiorna() {
    LeggePiastra();
    if (bullone_->fu == 0) { // a steel without a strength: nothing to compute yet
        Txt_Rif_[rifAlfa]->clear();
        Txt_Rif_[rifResistenza]->clear();
        Messaggi();
        Disegna();
        return;
    }
    bullone_->RifollamentoCalcola();
    Scrive(Txt_Rif_[rifAlfa], FormatoCifre(cifreRisultati, bullone_->alfa));
    MostraForza(Txt_Rif_[rifResistenza], bullone_->FbRd);
    Messaggi();
    Disegna();
    if (ui_->Txt_Osservazioni->isVisible())
        MostraOsservazioni();
}

void frmBulloni::Messaggi() {
    ui_->List1->hide();
    ui_->List1->clear();
    for (std::int16_t i = 1; i <= nMessaggi; ++i) {
        const std::string text = bullone_->Messaggio(i);
        if (text.empty())
            continue;
        ui_->List1->show();
        ui_->List1->addItem(QString::fromStdString(text));
    }
}

void frmBulloni::Interazione() {
    bullone_->FvSd = kN_a_N(NumeroIn(Txt_FSd_[0]));
    bullone_->FtSd = kN_a_N(NumeroIn(Txt_FSd_[1]));
    MostraSomma();
    const VerdettoBullone v = Giudica(*bullone_);
    MostraEsito(ui_->Lbl_Risultato_1, v.utilizzo);
    ui_->verdetto->Mostra(v.utilizzo, Nome(v.governa), QString::fromStdString(v.Motivo()));
    regole_.Applica();
    regole_.SvuotaRisultati();
    const bool shown = !ui_->Lbl_Risultato_0->text().isEmpty();
    const int governs = v.governa == TermineBullone::Taglio     ? 0
                        : v.governa == TermineBullone::Trazione ? 1
                                                                : -1;
    ui_->Lbl_Risultato_0->Evidenzia(shown ? governs : -1, Nome(v.governa));
}

void frmBulloni::MostraSomma() {
    ui_->Lbl_Risultato_0->clear();
    if (bullone_->FvRd == 0 || bullone_->FtRd == 0)
        return;
    const auto text = [](double v) { return FormatoCifre(cifreRisultati, v); };
    const TerminiTaglioTrazione t = bullone_->TerminiInterazione();
    ui_->Lbl_Risultato_0->setText(
        QString::fromStdString(text(t.taglio) + " + " + text(t.trazione) + " = " + text(t.Somma())));
}

void frmBulloni::Disegna() {
    const Bullone& b = *bullone_;
    ui_->Picture1->Mostra(DisegnoForatura({double(b.d()), b.do_, b.e1, b.p1, b.e2, b.p2}));
}

void frmBulloni::ApreChiudeOsservazioni() {
    if (ui_->Txt_Osservazioni->isVisible()) {
        ChiudeOsservazioni();
        return;
    }
    conSuggerimento_ = SuggerimentoBulloni;
    SuggerimentoBulloni = false;
    ui_->fraOsservazioni->Apre(true);
    FaPosto();
    MostraOsservazioni();
}

/// The advice stands under everything it speaks of: the window grows by its room, downwards and then upwards,
/// inside the screen.
void frmBulloni::FaPosto() {
    const int missing = DimensioneContenuto().height() - height();
    if (missing <= 0 || isMaximized())
        return;
    constexpr int bordo = 8; // of the window manager [px]
    const QRect screenRoom = screen()->availableGeometry();
    const int below = std::clamp(screenRoom.bottom() - bordo - geometry().bottom(), 0, missing);
    const int above = std::clamp(frameGeometry().top() - screenRoom.top(), 0, missing - below);
    altezzaPrima_ = height();
    if (above > 0)
        move(pos() - QPoint(0, above));
    resize(width(), height() + below + above);
}

void frmBulloni::ChiudeOsservazioni() {
    ui_->fraOsservazioni->Apre(false);
    if (const int before = std::exchange(altezzaPrima_, 0); before > 0 && !isMaximized())
        resize(width(), before);
}

void frmBulloni::MostraOsservazioni() {
    std::string text;
    bullone_->Osservazioni(text);
    if (conSuggerimento_)
        text += "\r\n\r\nCliccare nuovamente sul comando Osservazioni per chiudere la casella";
    ui_->Txt_Osservazioni->setPlainText(QString::fromStdString(text));
}

} // namespace sagomi
