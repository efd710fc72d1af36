#include "screens/SchermoSezione.h"

#include <QAction>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLayout>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>

#include <cmath>
#include <stdexcept>
#include <type_traits>

#include "catalogue/Catalogo.h"
#include "catalogue/Famiglie.h"
#include "catalogue/OrdineQuery.h"
#include "drawing/ui/ImmagineDisegno.h"
#include "frame/GeneraleSagomi.h"
#include "frame/Impostazioni.h"
#include "frame/Messaggi.h"
#include "frame/Numeri.h"
#include "frame/Unita.h"
#include "frame/ui/ChiudiProgramma.h"
#include "frame/ui/Entrata.h"
#include "frame/ui/Guida.h"
#include "frame/ui/NavigaSchermi.h"
#include "frame/ui/Protetto.h"
#include "frame/ui/ScriveTesto.h"
#include "frame/ui/Twips.h"
#include "screens/CorpoSezione.h"
#include "screens/MenuSezione.h"
#include "screens/PannelloFamiglie.h"
#include "screens/PannelloRisultati.h"
#include "screens/PlottaSezioneCorrente.h"
#include "screens/VociSezione.h"
#include "sections/SezioneCorrente.h"

namespace sagomi {

namespace {

constexpr int larghezzaInizialeTwips = 9600;
constexpr int altezzaInizialeTwips = 7680;
constexpr auto vuoleRiga = "vuoleRiga"; ///< property of a command: it works on the row in hand
constexpr const char* motivoLunghezza = "La lunghezza di libera inflessione non può essere negativa";

/// A box for a text, not for a number.
bool ETesto(const QLineEdit* box) { return box->property("testo").toBool(); }

QString Conta(qsizetype n, const char* one, const char* many) {
    return QString::number(n) + u' ' + QString::fromLatin1(n == 1 ? one : many);
}

/// What works on the row in hand waits until the table has rows.
void AbilitaComandi(const SchermoSezione& screen) {
    const bool rows = screen.Data1->Recordset().Righe() > 0;
    for (QPushButton* command : screen.findChildren<QPushButton*>())
        if (command->property(vuoleRiga).toBool())
            command->setEnabled(rows);
}

} // namespace

SchermoSezione::SchermoSezione(const QString& nome) : Schermo(nome), Data1(new LettoreDati(this)) {
    Data1->setObjectName(QStringLiteral("Data1"));
}

void SchermoSezione::Compone() {
    const QByteArray name = objectName().toLatin1();
    setWindowTitle(QString::fromUtf8(VociDi(name.toStdString()).titolo));
    setCentralWidget(new CorpoSezione(name, this));
    auto* menus = new MenuSezione(this);
    menus->setObjectName(QStringLiteral("menubar"));
    menus->ImpostaSchermo(name);
    setMenuBar(menus);
    statusBar()->setObjectName(QStringLiteral("statusbar"));
}

void SchermoSezione::TrovaControlli() {
    DBGrid1 = findChild<GrigliaCatalogo*>(QStringLiteral("DBGrid1"));
    TxtProf = Vettore<QLineEdit>(QStringLiteral("TxtProf"));
    ComboTipoAcciaio = findChild<QComboBox*>(QStringLiteral("ComboTipoAcciaio"));
    Txt_fy = findChild<QLineEdit*>(QStringLiteral("Txt_fy"));
    Txt_fu = findChild<QLineEdit*>(QStringLiteral("Txt_fu"));
    Txt_L0 = Vettore<QLineEdit>(QStringLiteral("Txt_L0"));
    TxtNsd = findChild<QLineEdit*>(QStringLiteral("TxtNsd"));
    ChkTipo = Vettore<QCheckBox>(QStringLiteral("ChkTipo"));
    OptionOrdina = Vettore<QRadioButton>(QStringLiteral("OptionOrdina"));
    cmdSceltaSagomoGiunto = findChild<QPushButton*>(QStringLiteral("cmdSceltaSagomoGiunto"));
    Picture1 = findChild<ImmagineDisegno*>(QStringLiteral("Picture1"));
    NormativaMain = findChild<QAction*>(QStringLiteral("NormativaMain"));
}

void SchermoSezione::CollegaControlli() {
    Compone();
    TrovaControlli();
    barra_ = new QLabel(this);
    barra_->setObjectName(QStringLiteral("LblBarra"));
    barra_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // a long text widens no window
    statusBar()->addWidget(barra_, 1);
    if (auto* picture = findChild<QWidget*>(QStringLiteral("Picture1")))
        picture->parentWidget()->setProperty("copribile", true);
    DBGrid1->Collega(Data1);
    CollegaMenu();
    CollegaTabella();
    CollegaDati();
    PreparaContenuto();
    centralWidget()->installEventFilter(this); // else it would scroll by the arrow keys
    for (QAbstractButton* button : findChildren<QAbstractButton*>())
        if (qobject_cast<QRadioButton*>(button) == nullptr)
            button->installEventFilter(this); // their arrow keys belong to the rows
}

void SchermoSezione::CollegaMenu() {
    if (auto* quit = findChild<QAction*>(QStringLiteral("mnuFileItem_0")))
        Collega(quit, &QAction::triggered, this, [] { ChiudiProgramma(); });
    Collega(findChild<QAction*>(QStringLiteral("mnuHelp_0")), &QAction::triggered, this,
            [this] { Guida::Apre(FileGuida()); });
    NavigaSchermi::Unico().CollegaMenu(*this);
    if (cmdSceltaSagomoGiunto != nullptr) {
        cmdSceltaSagomoGiunto->setProperty(vuoleRiga, true);
        Collega(cmdSceltaSagomoGiunto, &QPushButton::clicked, this, [this] {
            SceltaSagomoGiunto = false;
            NavigaSchermi::Unico().Apre(QStringLiteral("frmGiunti"), *this);
        });
    }
}

void SchermoSezione::CollegaTabella() {
    Collega(Pulsante("AggiornaTabella"), &QPushButton::clicked, this, [this] {
        if (!AggiungeSagomoUtente)
            Aggiorna();
    });
    if (QPushButton* plot = Pulsante("CmdPlotta")) {
        plot->setProperty(vuoleRiga, true);
        Collega(plot, &QPushButton::clicked, this, [this] {
            if (RigaInMano())
                PlottaSezioneCorrente(*this);
        });
    }
    for (QRadioButton* option : OptionOrdina)
        Collega(option, &QRadioButton::clicked, this, [this] {
            if (!Fermo())
                CambioFamiglia(*this, TabellaOrdine);
        });
    Collega(DBGrid1, &GrigliaCatalogo::ordineChiesto, this,
            [this](int column) { OrdinaPerColonna(*this, column); });
    Collega(Data1->Modello(), &QAbstractItemModel::modelReset, this, [this] { MostraStatoTabella(); });
    for (QCheckBox* box : ChkTipo)
        Collega(box, &QCheckBox::toggled, this, [this] { MostraStatoTabella(); });
}

void SchermoSezione::MostraStatoTabella() {
    AbilitaComandi(*this);
    const std::string& query = Data1->RecordSource();
    DBGrid1->MostraOrdine(QString::fromStdString(ColonnaOrdine(query)));
    if (auto* families = findChild<PannelloFamiglie*>())
        families->MostraDifferenze(query);
}

void SchermoSezione::CollegaDati() {
    entrate_ = new FiltroCampi(this, [this](QLineEdit* box) { return Invio(box); });
    for (QLineEdit* box : findChildren<QLineEdit*>())
        if (!box->isReadOnly() && box->parentWidget() != ComboTipoAcciaio && !ETesto(box))
            entrate_->Osserva(box);
    Collega(entrate_, &FiltroCampi::conclusa, this, [this](QLineEdit* box) { Conclusa(box); });
    Collega(ComboTipoAcciaio, &QComboBox::activated, this, [this] { AcciaioScelto(); });
    Collega(Txt_fy, &QLineEdit::textChanged, this, [this] { AcciaioCambiato(*this); });
    Collega(Txt_fu, &QLineEdit::textChanged, this, [this] { RotturaCambiata(); });
    for (int i = 0; i < Txt_L0.size(); ++i)
        Collega(Txt_L0[i], &QLineEdit::textChanged, this, [this, i] { LunghezzaCambiata(i); });
    if (TxtNsd != nullptr)
        Collega(TxtNsd, &QLineEdit::textChanged, this, [this] { ForzaCambiata(); });
    if (QPushButton* slender = Pulsante("lblVplRd")) {
        slender->hide();
        Collega(slender, &QPushButton::clicked, this,
                [] { Avvisa("d/tw > 69 epsilon. Verificare instabilità per taglio EC3 #5.4.6.(7)"); });
    }
    CollegaRegole();
}

void SchermoSezione::CollegaRegole() {
    for (int i = 0; i < Txt_L0.size(); ++i) {
        QList<QWidget*> results;
        if (auto* resistance = findChild<QLineEdit*>(QStringLiteral("TxtNbRd_%1").arg(i)))
            results << resistance;
        regole_.Aggiunge({.caselle = {Txt_L0[i]},
                          .motivo = [this, i] { return Lunghezza(i) < 0 ? tr(motivoLunghezza) : QString(); },
                          .risultati = results});
    }
    if (TxtNsd != nullptr)
        RegolaForza();
}

void SchermoSezione::RegolaForza() {
    QList<QWidget*> results;
    for (const auto* panel : findChildren<PannelloRisultati*>())
        for (QLineEdit* box : panel->findChildren<QLineEdit*>())
            results << box;
    regole_.Aggiunge({.caselle = {TxtNsd},
                      .motivo =
                          [this] {
                              const Singolo N = kN_a_N(NumeroIn(TxtNsd));
                              return std::isfinite(N.Stretto()) ? QString() : tr("Il numero è troppo grande");
                          },
                      .risultati = results});
}

void SchermoSezione::ApplicaRegole() {
    regole_.Applica();
    regole_.SvuotaRisultati();
}

void SchermoSezione::Conclusa(QLineEdit* casella) {
    if (casella == Txt_fy)
        AcciaioCambiato(*this);
    else if (casella == Txt_fu)
        RotturaCambiata();
    else if (!Fermo() && RigaInMano())
        Risultati();
}

double SchermoSezione::FyInForza() const {
    double fy = NumeroIn(Txt_fy);
    if (!FyPossibile(fy))
        SullaSezioneInUso([&fy](const auto& section) { fy = section.fy; });
    return FyPossibile(fy) ? fy : double(fyAcciaio[IndiceAcciaio + 1]);
}

void SchermoSezione::RimetteFy() {
    if (const double fy = FyInForza(); FyPossibile(fy))
        Txt_fy->setText(QString::fromStdString(TestoPiano(Singolo(fy))));
}

double SchermoSezione::FuInForza() const {
    double fu = NumeroIn(Txt_fu);
    if (!FyPossibile(fu))
        SullaSezioneInUso([&fu](const auto& section) { fu = section.fu; });
    return FyPossibile(fu) ? fu : double(fuAcciaio[IndiceAcciaio + 1]);
}

// A strength that is none never reaches the section; once it is not being typed it is told and put back.
void SchermoSezione::RotturaCambiata() {
    if (Fermo())
        return;
    const double fu = NumeroIn(Txt_fu);
    if (FyPossibile(fu)) {
        if (RigaInMano()) {
            SullaSezioneInUso([fu](auto& section) { section.fu = fu; });
            RotturaPassata();
        }
        return;
    }
    if (InDigitazione(Txt_fu))
        return;
    Avvisa("fu deve essere > 0");
    if (const double old = FuInForza(); FyPossibile(old))
        Txt_fu->setText(QString::fromStdString(TestoPiano(Singolo(old))));
}

double SchermoSezione::Lunghezza(int index) const {
    const double length = m_a_mm(NumeroIn(Txt_L0[index]));
    return std::isfinite(static_cast<float>(length)) ? length : -1;
}

void SchermoSezione::Apre(Schermo& da) { NavigaSchermi::Unico().Passa(*this, &da); }

void SchermoSezione::CollegaDettagli(std::initializer_list<std::pair<const char*, const char*>> dettagli) {
    for (const auto& [button, name] : dettagli) {
        QPushButton* found = Pulsante(button);
        if (found == nullptr)
            throw std::out_of_range(std::string("nessun pulsante si chiama ") + button);
        found->setProperty(vuoleRiga, true);
        Collega(found, &QPushButton::clicked, this,
                [this, name = QString::fromLatin1(name)] { ApreDettaglio(name); });
    }
}

void SchermoSezione::CollegaSvergolamento() {
    Pulsante("Command2")->setProperty(vuoleRiga, true);
    Collega(Pulsante("Command2"), &QPushButton::clicked, this, [this] {
        // Free ends under a uniform moment to begin with, unless a choice has given others.
        SullaSezioneInUso(
            [](auto& section) requires requires {
                section.Kw;
                section.k;
                section.C1;
            } {
                section.k = 1;
                section.Kw = 1;
                section.C1 = 1;
            });
        if (auto* section = SezioneInUso<SezioneDoppioT>(); valoriScelti && section != nullptr)
            valoriScelti->MetteMembratura(*section);
        ApreDettaglio(QStringLiteral("FrmMsverg"));
    });
}

void SchermoSezione::ApreDettaglio(const QString& nome) {
    if (RigaInMano())
        NavigaSchermi::Unico().Apre(nome, *this);
}

QPushButton* SchermoSezione::Pulsante(const char* nome) const {
    return findChild<QPushButton*>(QString::fromLatin1(nome));
}

QLineEdit* SchermoSezione::CasellaDi(const char* nome) const {
    auto* box = findChild<QLineEdit*>(QString::fromLatin1(nome));
    if (box == nullptr)
        throw std::out_of_range(std::string("nessuna casella si chiama ") + nome);
    return box;
}

void SchermoSezione::Carica() {
    if (VociDi(objectName().toStdString()).separatori)
        SeparatoriControlla(CasellaDi("txtNascosto"));
    const auto workbook = FileAccanto(PathProgramma, "Sagomi.xls");
    RendeSolaLettura(workbook);
    Data1->DatabaseName(workbook);
    SQLstring = FamigliaDi(objectName().toStdString()).primaQuery;
    CaricaFormComune(*this);
    DimensionaIniziale(QSize(larghezzaInizialeTwips, altezzaInizialeTwips) / twipsAPixel);
    rapportoIniziale_ = Rapporto();
    WidthIni = width() * twipsAPixel;
    HeightIni = height() * twipsAPixel;
    AggiornaCaptionNormativa(*this);
    DBGrid1->setFocus();
    RiprendeStato(*this);
}

void SchermoSezione::RiprendeFinestra(QPoint posto, QSize misura, bool massima) {
    const QRect desktop = screen()->availableGeometry();
    resize(misura.boundedTo(desktop.size()).expandedTo(minimumSize()));
    move(std::clamp(posto.x(), desktop.left(), std::max(desktop.left(), desktop.right() - width())),
         std::clamp(posto.y(), desktop.top(), std::max(desktop.top(), desktop.bottom() - height())));
    if (massima)
        setWindowState(windowState() | Qt::WindowMaximized);
}

void SchermoSezione::LegaRiga() {
    Collega(Data1, &LettoreDati::rigaCambiata, this, [this] { RigaNuova(); });
    if (RigaInMano())
        RigaNuova();
}

void SchermoSezione::Aggiorna() { CambioFamiglia(*this); }

void SchermoSezione::RigaNuova() {
    valoriScelti.reset();
    if (AggiungeSagomoUtente)
        return;
    ScriveTesto(TxtProf[0], Data1->Recordset().Testo(0));
    RecordCambiato(*this, 0);
}

void SchermoSezione::AcciaioScelto() {
    IndiceAcciaio = static_cast<std::int16_t>(ComboTipoAcciaio->currentIndex());
    const QString fy = QString::fromStdString(TestoPiano(fyAcciaio[IndiceAcciaio + 1]));
    const bool same = Txt_fy->text() == fy; // an equal text tells nobody that it has changed
    Txt_fy->setText(fy);
    Txt_fu->setText(QString::fromStdString(TestoPiano(fuAcciaio[IndiceAcciaio + 1])));
    if (same)
        AcciaioCambiato(*this);
}

void SchermoSezione::DatiRisultati() {
    Leggedati();
    Risultati();
}

bool SchermoSezione::RigaInMano() const { return !Data1->BOF() && !Data1->EOF_(); }

void SchermoSezione::SvuotaRisultati() {
    if (QPushButton* slender = Pulsante("lblVplRd"))
        slender->hide();
}

bool SchermoSezione::PassaLunghezza(int index) {
    if (Fermo() || !RigaInMano() || !SezioneMia())
        return false;
    Singolo* length = nullptr;
    const bool some = SullaSezioneInUso([&](ConLunghezze auto& section) {
        if (index == 0 || index == 1)
            length = index == 0 ? &section.L0y : &section.L0z;
        if constexpr (ConLunghezzaV<std::decay_t<decltype(section)>>)
            if (index == 2)
                length = &section.L0v;
    });
    if (some && length == nullptr)
        Avvisa("Errore in L0");
    if (length == nullptr)
        return false;
    *length = Lunghezza(index);
    return true;
}

void SchermoSezione::LunghezzaCambiata(int index) {
    if (!PassaLunghezza(index))
        return;
    const MessaggiTaciuti quiet(InDigitazione(Txt_L0[index]));
    Risultati();
}

bool SchermoSezione::PassaForza() {
    return !Fermo() && RigaInMano() && SezioneMia() &&
           SullaSezioneInUso([this](ConMomenti auto& section) { section.NSd = kN_a_N(NumeroIn(TxtNsd)); });
}

void SchermoSezione::ForzaCambiata() {
    if (!PassaForza())
        return;
    const MessaggiTaciuti quiet(InDigitazione(TxtNsd));
    Risultati();
}

void SchermoSezione::AllAttivazione() {
    AttivaForm(*this);
    if (isMaximized() && !ridimensiona.scalata) // since before it was loaded
        RidimensionaForm(*this);
}

void SchermoSezione::lblVplRd(bool visibile) { Pulsante("lblVplRd")->setVisible(visibile); }

bool SchermoSezione::Invio(QLineEdit* casella) {
    QList<QLineEdit*> road = QList<QLineEdit*>{Txt_fy} + Txt_L0;
    if (TxtNsd != nullptr)
        road << TxtNsd;
    const auto at = road.indexOf(casella);
    QPushButton* command = Pulsante("Command1");
    if (at >= 0 && at + 1 < road.size())
        FuocoSu(road[at + 1]);
    else if (at >= 0 && command != nullptr)
        command->setFocus(Qt::TabFocusReason); // a disabled button refuses and the focus stays
    else
        return false;
    return true;
}

void SchermoSezione::AggiornaBarraDiStato() {
    AbilitaComandi(*this);
    const auto families = QString::fromStdString(Data1->RecordSource()).count(QLatin1String("FROM ["));
    const int rows = Data1->Recordset().Righe();
    const QString origin = TipoUtente
                               ? QString::fromStdString(Data1->Recordset().DatabaseName().filename().string())
                               : Conta(families, "famiglia", "famiglie");
    const QString shown =
        rows == 0 ? tr("Nessun sagomo") : Conta(rows, "sagomo", "sagomi") + tr(" di ") + origin;
    const QString notice = QString::fromStdString(AvvisoImpostazioni());
    barra_->setText(notice.isEmpty() ? shown : shown + QStringLiteral(" · ") + notice);
    barra_->setToolTip(notice); // a long list of values may be wider than the line
}

void SchermoSezione::ScalaControlli(double larghezza, double altezza) {
    scalaTabella_ = larghezza / altezza;
    ScalaContenuto(altezza * rapportoIniziale_);
}

// A combo box keeps its height as long as its text has the room, but for texts made smaller.
void SchermoSezione::ScalaContenuto(double rapporto) {
    if (altezzaLista_ == 0)
        altezzaLista_ = ComboTipoAcciaio->sizeHint().height();
    Schermo::ScalaContenuto(rapporto);
    const int asked = ComboTipoAcciaio->sizeHint().height();
    ComboTipoAcciaio->setFixedHeight(rapporto < 1 ? asked : std::max(altezzaLista_, asked));
    DBGrid1->Scala(rapporto * scalaTabella_, rapporto);
}

// All columns of the table in sight.
QSize SchermoSezione::DimensioneContenuto() const {
    QSize size = Schermo::DimensioneContenuto();
    if (const QWidget* room = DBGrid1 == nullptr ? nullptr : DBGrid1->parentWidget()) {
        const QMargins around = room->parentWidget()->layout()->contentsMargins();
        size.rwidth() = std::max(size.width(), DBGrid1->LarghezzaIntera() + around.left() + around.right());
    }
    return size;
}

void SchermoSezione::ScalaMassimizzato() {
    scalaTabella_ = 1;
    misuraScalata_ = size();
    ScalaFino(ridimensiona.altezza * rapportoIniziale_, size());
    SeguonoDettagli();
}

void SchermoSezione::RimetteScala() {
    misuraScalata_ = {};
    scalaTabella_ = 1;
    ScalaContenuto(rapportoIniziale_);
    SeguonoDettagli();
}

void SchermoSezione::SeguonoDettagli() {
    for (Schermo* detail : NavigaSchermi::Unico().VisibiliDa(*this))
        detail->Adatta(Rapporto());
}

void SchermoSezione::closeEvent(QCloseEvent* event) {
    EventoProtetto([event] { event->setAccepted(ChiudiProgramma()); });
}

// The table, the steel list and the sort options keep their arrow keys to themselves: these never get here.
bool SchermoSezione::FrecciaDiRiga(int key) {
    if (key != Qt::Key_Up && key != Qt::Key_Down)
        return false;
    MuoviRecord(Data1->Recordset(), key == Qt::Key_Down);
    return true;
}

// Letters that the control with the focus has no use for look for a section.
bool SchermoSezione::RicercaDiRiga(const QKeyEvent& event) {
    const bool plain = (event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) == 0;
    if (!plain || event.text().isEmpty() || !event.text().front().isPrint())
        return false;
    DBGrid1->Digita(event.text());
    return true;
}

void SchermoSezione::keyPressEvent(QKeyEvent* event) {
    EventoProtetto([this, event] {
        const bool plain = event->modifiers() == Qt::NoModifier || event->modifiers() == Qt::KeypadModifier;
        if (plain && FrecciaDiRiga(event->key()))
            return;
        if (plain && event->key() == Qt::Key_F5)
            Pulsante("AggiornaTabella")->click();
        else if (!RicercaDiRiga(*event))
            Schermo::keyPressEvent(event);
    });
}

bool SchermoSezione::eventFilter(QObject* object, QEvent* event) {
    return EventoProtetto([this, object, event] {
        if (event->type() == QEvent::KeyPress && FrecciaDiRiga(static_cast<QKeyEvent*>(event)->key()))
            return true;
        return Schermo::eventFilter(object, event);
    });
}

void SchermoSezione::changeEvent(QEvent* event) {
    EventoProtetto([this, event] {
        Schermo::changeEvent(event);
        if (event->type() != QEvent::WindowStateChange)
            return;
        attendeMisura_ = isMaximized() && !isMinimized(); // the new size arrives after the new state
        if (!attendeMisura_ || ridimensiona.minimizzata)
            RidimensionaForm(*this);
    });
}

void SchermoSezione::resizeEvent(QResizeEvent* event) {
    EventoProtetto([this, event] {
        Schermo::resizeEvent(event);
        if (!isMaximized() || CaricaForm || misuraScalata_ == size())
            return;
        if (!attendeMisura_ && !ridimensiona.scalata)
            return;
        attendeMisura_ = false;
        ridimensiona.scalata = false; // another desktop, or its first size
        RidimensionaForm(*this);
    });
}

} // namespace sagomi
