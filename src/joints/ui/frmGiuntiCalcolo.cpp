// The calculation on the joint screen: check, search with its progress, results.
#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QScopedValueRollback>

#include <algorithm>
#include <cmath>

#include "frame/Numeri.h"
#include "frame/ui/Casella.h"
#include "frame/ui/DocumentoSchermo.h"
#include "frame/ui/Esito.h"
#include "frame/ui/NavigaSchermi.h"
#include "frame/ui/Protetto.h"
#include "frame/ui/StanzaCopiata.h"
#include "joints/ConsigliGiunto.h"
#include "joints/DiagrammaRigidezza.h"
#include "joints/LimitiGiunto.h"
#include "joints/OsservatoreProgetto.h"
#include "joints/TestiGiunto.h"
#include "joints/UtilizzoGiunto.h"
#include "joints/ui/ComuneGiunti.h"
#include "joints/ui/VistaGiunto.h"
#include "joints/ui/frmGiunti.h"
#include "joints/ui/frmGiuntiCampi.h"
#include "ui_frmGiunti.h"

namespace sagomi {

namespace {

constexpr qint64 respiro = 100; ///< between two lines of progress [ms]

constexpr QColor verde(0, 170, 0);
constexpr QColor rosso(210, 0, 0);

/// Switches off everything in a window but one room, and what else is open, as long as it lives.
class TuttoSpento {
public:
    TuttoSpento(QWidget& window, QWidget* room) : stanza_(room) {
        while (QWidget* menu = QApplication::activePopupWidget())
            menu->close(); // switched off it would hold the keyboard and could not be left
        SpegneIntorno(window);
        for (QAction* action : window.findChildren<QAction*>())
            if (action->isEnabled()) {
                action->setEnabled(false);
                azioni_ << action;
            }
        for (QWidget* other : QApplication::topLevelWidgets())
            if (other != &window && other->isVisible() && other->isEnabled())
                Spegne(*other);
    }
    ~TuttoSpento() {
        for (const auto& widget : spenti_)
            if (widget)
                widget->setEnabled(true);
        for (const auto& action : azioni_)
            if (action)
                action->setEnabled(true);
    }
    TuttoSpento(const TuttoSpento&) = delete;
    TuttoSpento& operator=(const TuttoSpento&) = delete;

private:
    void Spegne(QWidget& widget) {
        widget.setEnabled(false);
        spenti_ << &widget;
    }
    /// What holds the room stays, its other parts do not.
    void SpegneIntorno(QWidget& holder) {
        for (auto* widget : holder.findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
            if (widget == stanza_ || widget->isWindow())
                continue;
            if (widget->isAncestorOf(stanza_))
                SpegneIntorno(*widget);
            else if (widget->isEnabled())
                Spegne(*widget);
        }
    }

    QWidget* stanza_;
    QList<QPointer<QWidget>> spenti_;
    QList<QPointer<QAction>> azioni_;
};

QString Numero(double value, int digits = 4) {
    return QString::fromStdString(FormatoCifre(digits, value)).trimmed();
}

/// The points of the diagram, to be copied; nothing where it has none.
QVariant TabellaMomentoRotazione(const Giunto& giunto) {
    QList<QStringList> rows{
        {QStringLiteral("Punto"), QStringLiteral("Rotazione [mrad]"), QStringLiteral("Momento [kNm]")}};
    for (const auto& [phi, M] : PuntiMomentoRotazione(giunto))
        rows << QStringList{QString::number(rows.size()), Numero(phi), Numero(M)};
    return rows.size() > 1 ? QVariant::fromValue(rows) : QVariant();
}

/// The mark of the group of a component, which also tells them apart in print.
const char* SegnoGruppo(bool column) { return column ? "◆" : "●"; }

bool DellaColonna(std::string_view control) {
    return control != "txtF4" && control != "txtF8" && !control.starts_with("txtF7");
}

void Ingrassa(QWidget* widget, bool bold) {
    QFont font = widget->font();
    font.setBold(bold);
    widget->setFont(font);
}

void Tinge(QWidget* widget, QPalette::ColorRole role, const QColor& colour) {
    if (role == QPalette::Text)
        widget->setProperty("inchiostro", colour); // a box colours itself anew at each change
    QPalette colours = widget->palette();
    colours.setColor(role, colour);
    widget->setPalette(colours);
}

/// Blue for the column, brown for the beam; light on a dark ground.
QColor ColoreGruppo(bool column) {
    const bool dark = QApplication::palette().color(QPalette::Window).lightness() < 128;
    if (column)
        return dark ? QColor(130, 180, 255) : QColor(0, 60, 170);
    return dark ? QColor(255, 190, 110) : QColor(140, 60, 0);
}

} // namespace

void TingeGruppo(QWidget* box, bool column) { Tinge(box, QPalette::Text, ColoreGruppo(column)); }

/// Shows a search while it runs.
class OsservatoreSchermo : public OsservatoreProgetto {
public:
    explicit OsservatoreSchermo(frmGiunti& form) : form_(form) { tempo_.start(); }

    void Candidato(const Giunto& /*giunto*/) override {
        ++provati_;
        if (tempo_.elapsed() - detto_ >= respiro)
            Dice();
    }
    void Miglioramento(const Giunto& giunto) override {
        migliore_ = giunto.MplRdGIUNTO;
        form_.MostraCandidato(giunto);
        Dice();
    }
    void Avviso(std::string_view testo) override {
        avviso_ = QString::fromUtf8(testo.data(), static_cast<qsizetype>(testo.size()));
    }
    bool InterrompiProgetto() override { return form_.InterrompiProgetto; }

private:
    void Dice() {
        detto_ = tempo_.elapsed();
        QString text = QStringLiteral("Progetto in corso...\nmigliore Mj,Rd = %1 kNm; provati %2; tempo %3 s")
                           .arg(Numero(migliore_), QString::number(provati_),
                                Numero(static_cast<double>(detto_ / respiro) / 10));
        if (!avviso_.isEmpty())
            text += u'\n' + avviso_;
        form_.Etichetta("LblAttesa")->setText(text);
    }

    frmGiunti& form_;
    QElapsedTimer tempo_;
    qint64 detto_ = -respiro;
    int provati_ = 0;
    double migliore_ = 0;
    QString avviso_;
};

void frmGiunti::cmdCalcola() {
    if (inRicerca_)
        return;
    ConcludeEntrate();
    if (!SagomiAssegnati(NodoCorrente)) {
        Dice("Completare l'assegnamento dei sagomi prima di passare alla scheda progetto");
        return;
    }
    EseguiCriterio();
    Giunto& g = Corrente();
    if (const std::string missing = PrimoZero(g); !missing.empty()) {
        Dice(missing);
        return;
    }
    if (g.Criterio2) {
        PreparaLimiti(g);
        ParametriControlla(g);
        ScriveEntrate();
    }
    AzzeraRisultati();
    DalFile(false);
    documento_->Modifica();
    bool done = false;
    try {
        done = Calcola();
    } catch (...) {
        MostraRisultati();
        throw;
    }
    if (done && g.Trave->lunghezza() == 0)
        Avvisa("Inserire la luce della trave per classificare il giunto in base alla rigidezza", titoloGiunto,
               Icona::Avviso);
    MostraRisultati();
}

/// @return whether there are results
bool frmGiunti::Calcola() {
    const std::shared_ptr<Giunto> joint = NodoCorrente.ConnessioneCorrente;
    if (joint->Criterio1)
        return Progetta();
    return NodoCorrente.EsegueCalcolo();
}

bool frmGiunti::Progetta() {
    QWidget* analysis = findChild<QWidget*>(QStringLiteral("FrameTipoanalisi"));
    QWidget* waiting = findChild<QWidget*>(QStringLiteral("FrameAttesa"));
    const int tab = ui_->SSTab1->currentIndex();
    const QScopedValueRollback searching(inRicerca_, true);
    bool found = false;
    InterrompiProgetto = false;
    Etichetta("LblAttesa")->setText(QStringLiteral("Progetto in corso..."));
    ui_->SSTab1->setCurrentIndex(schedaProgetto);
    analysis->hide();
    waiting->show();
    const auto restore = [&] {
        trovate_ = nullptr;
        waiting->hide();
        analysis->show();
        ui_->SSTab1->setCurrentIndex(tab);
    };
    try {
        const TuttoSpento off(*this, waiting);
        OsservatoreSchermo progress(*this);
        found = NodoCorrente.EsegueCalcolo(&progress);
    } catch (...) {
        restore();
        throw;
    }
    restore();
    ui_->CmdRisultati->setEnabled(found);
    ui_->CmdAzzera->setEnabled(true);
    return found;
}

const TabellaSelezione& frmGiunti::Selezioni() const {
    return trovate_ != nullptr ? *trovate_ : ServiziGiunto::Selezioni();
}

/// What is open beside this screen shows the same joint.
void frmGiunti::AggiornaVisibili() {
    for (Schermo* screen : NavigaSchermi::Unico().VisibiliDa(*this))
        Protetto("Errore", [screen] { screen->Aggiorna(); });
}

/// The best candidate so far, in the boxes of the parameters and in the drawing.
void frmGiunti::MostraCandidato(const Giunto& giunto) {
    trovate_ = &giunto.RisultatiIntermedi_Estrai();
    const QScopedValueRollback loading(CaricaForm, true);
    const auto write = [this](const char* box, double value) {
        Casella(box)->setText(QString::fromStdString(TestoPiano(value)));
    };
    write("Texttf", giunto.tf);
    write("Textbf", giunto.bf);
    write("Textef", giunto.ef);
    write("Textd2", giunto.d2);
    write("Texthf", giunto.hf);
    if (giunto.nf == 2) {
        write("Textex", giunto.ex);
        write("Textdx", giunto.dX);
        write("Textu", giunto.u);
    }
    findChild<QComboBox*>(QStringLiteral("CboDiametriBulloni"))->setCurrentIndex(giunto.IndiceBullone() - 1);
    MostraDisegno(&giunto);
    AggiornaVisibili();
}

void frmGiunti::MostraRisultati() {
    ScriviDatiInForm();
    MostraDisegno();
}

void frmGiunti::Azzera() {
    NodoCorrente.AzzeraParametriConnessione(NodoCorrente.nGiunto);
    AzzeraRisultati();
    documento_->Modifica();
    ScriveEntrate();
    MostraDisegno();
}

void frmGiunti::AzzeraRisultati() {
    Corrente().Acquisito = false;
    ScriviDatiInForm();
}

// --------------------------------------------------------------------------------------------- results

void frmGiunti::ScriviDatiInForm() {
    const Giunto& g = Corrente();
    const TestiGiunto texts(NodoCorrente, NodoCorrente.nGiunto);
    {
        const QScopedValueRollback loading(CaricaForm, true);
        for (QWidget* page :
             {static_cast<QWidget*>(ui_->pagGeometria), static_cast<QWidget*>(ui_->pagResistenza),
              static_cast<QWidget*>(ui_->pagRigidezza)})
            for (auto* box : page->findChildren<QLineEdit*>())
                box->setText(QString::fromStdString(texts[box->objectName().toStdString()]));
        for (const char* name : {"ResistenzaGiunto", "RigidezzaGiunto1", "RigidezzaGiunto2"})
            Etichetta(name)->setText(QString::fromStdString(texts[name]).trimmed());
    }
    ScriveEntrate();
    EvidenziaRisultatoMio();
    ComponenteDebole_Grassetta();
    MostraUtilizzi();
    MostraStato();
    diagramma_->Mostra(DiagrammaRigidezza(g));
    diagramma_->setProperty(proprietaTabella, TabellaMomentoRotazione(g));
    ui_->CmdRisultati->setEnabled(g.RisultatiIntermedi_Estrai().n() > 0);
    AggiornaVisibili();
}

void frmGiunti::EvidenziaRisultatoMio() {
    const VerdettoGiunto v = Giudica(Corrente());
    QLabel* shape = Etichetta("ShapeResistenza");
    Ingrassa(shape, true);
    shape->setText(!v.presente       ? QString()
                   : !v.resiste      ? QStringLiteral("NO")
                   : v.forma.empty() ? QStringLiteral("OK")
                                     : QString::fromStdString(v.forma));
    shape->setAutoFillBackground(v.presente);
    if (v.presente) {
        Tinge(shape, QPalette::Window, v.resiste ? verde : rosso);
        Tinge(shape, QPalette::WindowText, v.resiste ? Qt::black : Qt::white);
    }
    QLabel* shear = Etichetta("LblTaglio");
    shear->setText(QString::fromStdString(v.taglio.empty() ? v.notaTaglio : v.taglio));
    MostraGoverna(shear, !v.taglio.empty());
    Etichetta("LblGoverna")->setText(QString::fromStdString(TestoGovernante(Corrente())));
    Etichetta("LblNota")->setText(QString::fromStdString(v.notaMomento));
    Etichetta("LblNotaSj")->setText(QString::fromStdString(v.notaRigidezza));
}

/// What governs each row and the moment: bold, with the colour and the mark of its group, and so the value
/// that it limits.
void frmGiunti::ComponenteDebole_Grassetta() {
    ToglieGrassetto();
    ComponenteDebole_GrassettaInt();
    Grassetta("txtFmin1");
    Grassetta("TxtMjRd");
}

void frmGiunti::ComponenteDebole_GrassettaInt() { Grassetta("txtFmin0"); }

void frmGiunti::Grassetta(std::string_view risultato) {
    for (const ComponenteGovernante& c : ComponentiGovernanti(Corrente())) {
        if (c.risultato != risultato)
            continue;
        const bool column = DellaColonna(c.componente);
        for (const std::string_view control : {c.componente, c.risultato}) {
            const QString name = QString::fromUtf8(control.data(), static_cast<qsizetype>(control.size()));
            auto* box = findChild<QLineEdit*>(name);
            Ingrassa(box, true);
            TingeGruppo(box, column);
            QString row = name;
            if (auto* mark =
                    findChild<QLabel*>(QStringLiteral("LblSegno") + row.remove(QStringLiteral("Ridistr"))))
                mark->setText(QString::fromUtf8(SegnoGruppo(column)));
        }
    }
}

void frmGiunti::ToglieGrassetto() {
    for (auto* box : ui_->pagResistenza->findChildren<QLineEdit*>()) {
        Ingrassa(box, false);
        Tinge(box, QPalette::Text, QApplication::palette().color(QPalette::Text));
    }
    for (auto* label : ui_->pagResistenza->findChildren<QLabel*>())
        if (label->objectName().startsWith(QStringLiteral("LblSegno")))
            label->clear();
}

void frmGiunti::MostraUtilizzi() {
    for (auto* bar : ui_->pagResistenza->findChildren<QProgressBar*>()) {
        const std::string control = bar->objectName().mid(3).toStdString();
        const auto used = Utilizzo(Corrente(), control);
        const bool shown = used && std::isfinite(*used);
        bar->setFormat(shown ? QStringLiteral("%1 %").arg(std::lround(100 * *used)) : QString());
        bar->setValue(shown ? static_cast<int>(std::min(100L, std::lround(100 * *used))) : 0);
    }
}

/// Whether the results of the current joint were read from a file.
void frmGiunti::DalFile(bool letti) {
    dalFile_.at(static_cast<std::size_t>(NodoCorrente.nGiunto - 1)) = letti;
}

/// Whether the results are of now, and the verdict in short.
void frmGiunti::MostraStato() {
    const Giunto& g = Corrente();
    QString text;
    if (g.Acquisito && g.Trave) {
        text = QStringLiteral("Mj,Rd = %1 kNm").arg(Numero(g.MplRdGIUNTO));
        if (g.MplRdGIUNTO > 0)
            text += QStringLiteral(", utilizzo %1 %")
                        .arg(std::lround(100 * std::abs(double(g.Trave->Mysd)) / g.MplRdGIUNTO));
        if (dalFile_.at(static_cast<std::size_t>(NodoCorrente.nGiunto - 1)))
            text += QStringLiteral(" - ") + QString::fromUtf8(testoDalFile);
    }
    ui_->LblStato->setText(text);
}

void frmGiunti::MostraConsiglio(int argomento) {
    Avvisa(ConsiglioGiunto(argomento, Corrente().Classe), titoloGiunto, Icona::Informazione);
}

/// @param giunto  another than the current one: a candidate of a search
void frmGiunti::MostraDisegno(const Giunto* giunto) {
    const Giunto& shown = giunto != nullptr ? *giunto : Corrente();
    MostraDisegno(giunto, shown.Acquisito ? Governa(shown) : EvidenzaGiunto{});
}

void frmGiunti::MostraDisegno(const Giunto* giunto, const EvidenzaGiunto& segni) {
    if (giunto != nullptr || Corrente().Acquisito || !SagomiAssegnati(NodoCorrente)) {
        vista_->Mostra(NodoCorrente, giunto, segni);
        return;
    }
    Nodo scratch = NodoCorrente; // with what follows from the parameters
    scratch.ConnessioneCorrente = std::make_shared<Giunto>(Corrente());
    Giunto& g = *scratch.ConnessioneCorrente;
    PreparaLimiti(g);
    g.Derivati_Calcola();
    vista_->Mostra(scratch, &g, segni);
}

} // namespace sagomi
