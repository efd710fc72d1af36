#include "joints/ui/frmGiunti.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QScopedValueRollback>
#include <QShortcut>
#include <QTabBar>
#include <QToolButton>

#include <stdexcept>
#include <utility>

#include "frame/GeneraleSagomi.h"
#include "frame/ui/Accessibilita.h"
#include "frame/ui/Campi.h"
#include "frame/ui/DocumentoSchermo.h"
#include "frame/ui/Guida.h"
#include "frame/ui/NavigaSchermi.h"
#include "frame/ui/Protetto.h"
#include "joints/ConsigliGiunto.h"
#include "joints/ui/ComuneGiunti.h"
#include "joints/ui/PezziPagina.h"
#include "joints/ui/VistaGiunto.h"
#include "ui_frmGiunti.h"

namespace sagomi {

namespace {

constexpr auto tastoFormula = Qt::CTRL | Qt::Key_F1;

} // namespace

frmGiunti::frmGiunti() : Schermo(QStringLiteral("frmGiunti")), ui_(new Ui::frmGiunti) {
    const QScopedValueRollback loading(CaricaForm, true);
    ui_->setupUi(this);
    NodoCorrente.ImpostaNodo();
    NodoCorrente.CaratterizzaGiunti();
    PreparaForma();
    PreparaContenuto();
    CollegaEntrate();
    CollegaOpzioni();
    CollegaComandi();
    PreparaDocumento();
    ScriveSagomi();
    CriterioScelto();
    DimensionaIniziale({1340, 690}); // room for the drawing
}

frmGiunti::~frmGiunti() { disconnect(qApp, nullptr, this, nullptr); }

void frmGiunti::PreparaForma() {
    for (auto* part : ui_->SSTab1->tabBar()->findChildren<QToolButton*>())
        part->setProperty(proprietaValore, true); // of the toolkit, no commands
    ui_->cmdCalcola->setProperty(proprietaSuggerimento, true);
    for (int i = 0; i < ui_->SSTab1->count(); ++i) {
        const QKeySequence key(QStringLiteral("Alt+%1").arg(i + 1));
        ui_->SSTab1->setTabToolTip(i, key.toString(QKeySequence::NativeText));
        auto* shortcut = new QShortcut(key, this);
        Collega(shortcut, &QShortcut::activated, this, [this, i] {
            if (!inRicerca_)
                ui_->SSTab1->setCurrentIndex(i);
        });
    }
    vista_ = new VistaGiunto;
    vista_->setObjectName(QStringLiteral("VistaGiunto"));
    vista_->setAccessibleName(QStringLiteral("Disegno del giunto"));
    ui_->loDisegno->addWidget(vista_);
    diagramma_ = new ImmagineDisegno;
    diagramma_->setObjectName(QStringLiteral("DiagrammaRigidezza"));
    diagramma_->setAccessibleName(QStringLiteral("Diagramma momento-rotazione"));
    findChild<QWidget*>(QStringLiteral("stanzaDiagramma"))->layout()->addWidget(diagramma_);
}

QLineEdit* frmGiunti::Casella(const char* nome) const {
    auto* box = findChild<QLineEdit*>(QString::fromLatin1(nome));
    if (box == nullptr)
        throw std::out_of_range(std::string("nessuna casella si chiama ") + nome);
    return box;
}

QLabel* frmGiunti::Etichetta(const char* nome) const {
    auto* label = findChild<QLabel*>(QString::fromLatin1(nome));
    if (label == nullptr)
        throw std::out_of_range(std::string("nessuna etichetta si chiama ") + nome);
    return label;
}

QRadioButton* frmGiunti::Opzione(const char* nome, int i) const {
    auto* option = findChild<QRadioButton*>(QString::fromLatin1(nome) + u'_' + QString::number(i));
    if (option == nullptr)
        throw std::out_of_range(std::string("nessuna opzione si chiama ") + nome);
    return option;
}

void frmGiunti::Sceglie(const char* nome, int i) const { Opzione(nome, i)->setChecked(true); }

void frmGiunti::CollegaComandi() {
    Collega(ui_->cmdCalcola, &QPushButton::clicked, this, [this] { cmdCalcola(); });
    Collega(ui_->CmdAzzera, &QPushButton::clicked, this, [this] { Azzera(); });
    Collega(ui_->CmdPlotta, &QPushButton::clicked, this, [this] { Plotta(); });
    Collega(ui_->CmdRisultati, &QPushButton::clicked, this,
            [this] { NavigaSchermi::Unico().Apre(QStringLiteral("FrmRisultatiIntermedi"), *this); });
    Collega(findChild<QPushButton*>(QStringLiteral("CmdInfo")), &QPushButton::clicked, this, [this] {
        NavigaSchermi::Unico()
            .Prende<SchermoInfoGiunti>(QStringLiteral("FrmInfoGiunti"))
            .MostraIrrigidimenti(*this);
    });
    Collega(findChild<QPushButton*>(QStringLiteral("CmdInterrompi")), &QPushButton::clicked, this,
            [this] { InterrompiProgetto = true; });
    for (const auto& [name, role] :
         {std::pair{"CmdTraveDx", RuoloSagomo::TraveDx}, std::pair{"CmdTraveSx", RuoloSagomo::TraveSx},
          std::pair{"CmdColonnaInf", RuoloSagomo::Colonna}})
        Collega(findChild<QPushButton*>(QString::fromLatin1(name)), &QPushButton::clicked, this,
                [this, role = role] { SceglieSagomo(role); });
    for (int i = 0; i < numConsigliGiunto; ++i)
        if (auto* question = findChild<QPushButton*>(QStringLiteral("lblInfo_%1").arg(i)))
            Collega(question, &QPushButton::clicked, this, [this, i] { MostraConsiglio(i); });
    Collega(ui_->SSTab1, &QTabWidget::currentChanged, this, [this](int tab) { SchedaScelta(tab); });
    Collega(vista_, &VistaGiunto::ComponenteScelto, this,
            [this](ComponenteGiunto component) { VaAlComponente(component); });
    for (QLabel* label : findChildren<QLabel*>())
        if (label->buddy() != nullptr && !IdFormula(label->buddy()->objectName()).empty()) {
            label->installEventFilter(this);
            label->setToolTip(tr("Doppio clic: la formula (%1 nella casella)")
                                  .arg(QKeySequence(tastoFormula).toString(QKeySequence::NativeText)));
        }
    Collega(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { FuocoPassato(now); });
    CollegaFile();
    NavigaSchermi::Unico().CollegaMenu(*this);
}

/// The "?" of the result that has the focus; elsewhere that of the moment.
void frmGiunti::PremeDomanda() {
    const QWidget* now = focusWidget();
    QPushButton* question = findChild<QPushButton*>(QStringLiteral("lblInfo_14"));
    for (auto* button : findChildren<QPushButton*>()) {
        const QVariant box = button->property(proprietaCasella);
        if (now != nullptr && box.isValid() && (button == now || box.toString() == now->objectName()))
            question = button;
    }
    question->click();
}

/// The formula of the result that has the focus.
void frmGiunti::ApreFormula() {
    const QWidget* now = focusWidget();
    const std::string id = now != nullptr ? IdFormula(now->objectName()) : "";
    if (!id.empty())
        FormulaGiunto_Leggi(id);
}

void frmGiunti::Apre(Schermo& chiamante) {
    if (&chiamante != this)
        origine = &chiamante;
    NavigaSchermi::Unico().Passa(*this, &chiamante);
}

void frmGiunti::AllAttivazione() {
    if (inRicerca_)
        return;
    Guida::ImpostaFile(FileGuida());
    ui_->NormativaMain->setText(QStringLiteral("Normativa: ") + QString::fromStdString(NomeNormativa()));
    RinnovaSeCambiato();
    PrendeSagomo();
    MostraDisegno();
}

/// The tabs behind the data want the sections.
void frmGiunti::SchedaScelta(int indice) {
    if (inRicerca_ && indice != schedaProgetto &&
        !findChild<QWidget*>(QStringLiteral("FrameAttesa"))->isHidden())
        ui_->SSTab1->setCurrentIndex(schedaProgetto); // where the search tells of itself
    if (CaricaForm || inRicerca_)
        return;
    if (indice > 0 && !SagomiAssegnati(NodoCorrente)) {
        const QScopedValueRollback loading(CaricaForm, true);
        ui_->SSTab1->setCurrentIndex(0);
        Dice("Completare l'assegnamento dei sagomi prima di passare alla scheda progetto");
        return;
    }
    bool excessive = false;
    if (indice == schedaProgetto)
        NodoCorrente.ControllaNTravi(excessive);
    if (excessive)
        Dice("Lo sforzo normale nella trave è superiore al 10% del suo Npl,rd. "
             "Questa situazione invalida il calcolo (Appendice J-3.1.1.(6)).");
    MostraDisegno();
}

// --------------------------------------------------------------------------------- picking of sections

void frmGiunti::SceglieSagomo(RuoloSagomo ruolo) {
    inAttesa_ = ruolo;
    SceltaSagomoGiunto = true;
    NavigaSchermi::Unico().Apre(QStringLiteral("frmDoppioT"), *this);
}

/// What was picked on one of the two screens of double-T sections; from another one it stays to be picked.
void frmGiunti::PrendeSagomo() {
    if (inAttesa_ == RuoloSagomo::Nessuno) {
        if (std::exchange(SceltaSagomoGiunto, false))
            Avvisa("SceltaSagomoGiunto=TRUE ! Non previsto", titoloGiunto, Icona::Stop);
        return;
    }
    const auto* section = SezioneInUso<SezioneDoppioT>();
    if (section == nullptr || (ScreenAttivo != "frmDoppioT" && ScreenAttivo != "frmSaldati"))
        return;
    SceltaSagomoGiunto = false;
    if (!AssegnaSagomo(NodoCorrente, std::exchange(inAttesa_, RuoloSagomo::Nessuno), *section))
        return;
    firma_ = FirmaSagomi(NodoCorrente);
    dalFile_ = {};
    DimenticaSelezioni();
    documento_->Modifica();
    ScriveSagomi();
    ScriviDatiInForm();
    CriterioScelto();
}

/// What was to be picked is not any more.
void frmGiunti::AbbandonaScelta() {
    inAttesa_ = RuoloSagomo::Nessuno;
    SceltaSagomoGiunto = false;
}

/// Other factors, or another strength: the resistances of the sections are of yesterday.
void frmGiunti::RinnovaSeCambiato() {
    const std::string now = FirmaSagomi(NodoCorrente);
    if (now == firma_)
        return;
    firma_ = now;
    RinnovaResistenze(NodoCorrente);
    bool results = false;
    for (std::int16_t i = 1; i <= NodoCorrente.NumeroGiunti; ++i)
        results = results || NodoCorrente.Giunti[i]->Acquisito;
    if (results && SagomiAssegnati(NodoCorrente))
        documento_->Modifica();
    NodoCorrente.No_Acquisito();
    dalFile_ = {};
    DimenticaSelezioni();
    ScriviDatiInForm();
    CriterioScelto();
}

// ---------------------------------------------------------------------------------------------- window

void frmGiunti::closeEvent(QCloseEvent* event) {
    if (inRicerca_)
        EventoProtetto([this, event] {
            InterrompiProgetto = true;
            event->ignore();
        });
    else
        Schermo::closeEvent(event);
}

void frmGiunti::keyPressEvent(QKeyEvent* event) {
    if (!inRicerca_ && event->keyCombination() == tastoDomanda)
        EventoProtetto([this] { PremeDomanda(); });
    else if (!inRicerca_ && event->keyCombination() == tastoFormula)
        EventoProtetto([this] { ApreFormula(); });
    else if (inRicerca_)
        EventoProtetto(
            [this, event] { InterrompiProgetto = InterrompiProgetto || event->key() == Qt::Key_Escape; });
    else
        Schermo::keyPressEvent(event);
}

/// A double click on the name of a result opens its formula.
bool frmGiunti::eventFilter(QObject* object, QEvent* event) {
    return EventoProtetto([&] {
        if (event->type() != QEvent::MouseButtonDblClick)
            return Schermo::eventFilter(object, event);
        const auto* label = qobject_cast<QLabel*>(object);
        const std::string id =
            label != nullptr && label->buddy() != nullptr ? IdFormula(label->buddy()->objectName()) : "";
        if (!id.empty())
            FormulaGiunto_Leggi(id);
        return true;
    });
}

} // namespace sagomi
