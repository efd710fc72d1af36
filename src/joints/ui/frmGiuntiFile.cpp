// Files, report and drawings of the joint screen.
#include <QComboBox>
#include <QFileInfo>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QScopeGuard>
#include <QScopedValueRollback>

#include <utility>

#include "drawing/ui/StampaTesto.h"
#include "frame/FileDati.h"
#include "frame/GeneraleSagomi.h"
#include "frame/MotivoFile.h"
#include "frame/ui/Campi.h"
#include "frame/ui/DocumentoSchermo.h"
#include "frame/ui/Guida.h"
#include "frame/ui/NavigaSchermi.h"
#include "frame/ui/Protetto.h"
#include "joints/FormuleGiunto.h"
#include "joints/RelazioneGiunto.h"
#include "joints/ui/ComuneGiunti.h"
#include "joints/ui/PlottaNodo.h"
#include "joints/ui/VistaGiunto.h"
#include "joints/ui/frmGiunti.h"
#include "report/RelazioneNodo.h"
#include "report/ui/ComandoRelazione.h"
#include "ui_frmGiunti.h"

namespace sagomi {

namespace {

constexpr const char* titoloForma = "Giunto Flangiato - F1 per aiuto";

enum VoceFile : int { nuovo, apri, salva, stampa, stampaSuFile, ritorna, numVociFile };

/// A box and the component in the drawing that it belongs to.
struct Legame {
    const char* casella;
    ComponenteGiunto componente;
    FilaGiunto fila = FilaGiunto::Nessuna;
};

using enum ComponenteGiunto;
using enum FilaGiunto;

constexpr Legame legami[] = {
    {"txtF1", Pannello},
    {"txtF2", AnimaColonnaCompressa},
    {"txtF3", InstabilitaAnimaColonna},
    {"txtF4", Bulloni},
    {"txtF5", AnimaColonnaTesa},
    {"txtF6", AlaColonna},
    {"txtF6_0", AlaColonna, Interna},
    {"txtF6_1", AlaColonna, Esterna},
    {"txtF6_0Ridistr", AlaColonna, Interna},
    {"txtF6_1Ridistr", AlaColonna, Esterna},
    {"txtF7", Flangia},
    {"txtF7_0", Flangia, Interna},
    {"txtF7_1", Flangia, Esterna},
    {"txtF8", AnimaTrave},
    {"txtFmin0", Bulloni, Interna},
    {"txtFmin1", Bulloni, Esterna},
    {"txtK_0", Pannello},
    {"txtK_1", AnimaColonnaTesa},
    {"txtK_2", AlaColonna},
    {"txtK_3", Bulloni},
    {"txtK_4", Flangia, Interna},
    {"txtK_5", Flangia, Esterna},
    {"txtK_6", AnimaColonnaCompressa},
    {"txtmu_0", Pannello},
    {"txtmu_1", AnimaColonnaTesa},
    {"txtmu_2", AlaColonna},
    {"txtmu_3", Bulloni},
    {"txtmu_4", Flangia, Interna},
    {"txtmu_5", Flangia, Esterna},
    {"txtmu_6", AnimaColonnaCompressa},
    {"TxtCoef_0", Pannello},
    {"TxtCoef_1", AnimaColonnaCompressa},
    {"TxtCoef_2", AlaColonna},
    {"Textd", Bulloni},
    {"Textd0", Bulloni},
    {"Textdw", Bulloni},
    {"Textlb", Bulloni},
    {"Textaf", Saldature},
    {"Textaw", Saldature},
    {"Textw", Bulloni},
    {"Textp", Bulloni},
    {"Textec", AlaColonna},
    {"Textmc", AlaColonna},
    {"Textmf", Flangia},
    {"Textm1", Flangia},
    {"Textm2", Flangia},
    {"Texthf", Flangia},
    {"Txt_S_Irr", Irrigidimenti},
    {"Txt_B_Irr", Irrigidimenti},
    {"Txt_L_Irr_0", Irrigidimenti},
    {"Txt_L_Irr_1", Irrigidimenti},
    {"Txt_Sal_Irr", Irrigidimenti},
    {"Texttf", Flangia},
    {"Textbf", Flangia},
    {"Textef", Flangia},
    {"Textd2", Bulloni},
    {"Textex", Bulloni},
    {"Textdx", Bulloni},
    {"Textu", Flangia},
};

const Legame* LegameDi(const QString& box) {
    for (const Legame& l : legami)
        if (box == QLatin1String(l.casella))
            return &l;
    return nullptr;
}

} // namespace

void frmGiunti::PreparaDocumento() {
    documento_ = new DocumentoSchermo(*this, {"Giunto Flangiato", "Gfl", "Gfl"});
    Collega(ui_->mnuRecenti, &QMenu::triggered, this, [this] { ConcludeEntrate(); });
    documento_->CollegaRecenti(*ui_->mnuRecenti);
    setWindowTitle(QString::fromLatin1(titoloForma));
}

QString frmGiunti::PrefissoTitolo() const {
    return QString::fromLatin1(titoloForma) + QStringLiteral(" - File: ");
}

void frmGiunti::CollegaFile() {
    for (int i = 0; i < numVociFile; ++i)
        Collega(findChild<QAction*>(QStringLiteral("mnufileitem_%1").arg(i)), &QAction::triggered, this,
                [this, i] { SceltaFileMenu(i); });
    AggiungeRelazione(*this, *ui_->mnuFile, ui_->mnufileitem_5, [this] {
        const Giunto* joint = NodoCorrente.ConnessioneCorrente.get();
        return joint == nullptr || !joint->Acquisito
                   ? Relazione()
                   : RelazioneNodo(NodoCorrente, Casella("TxtDescrizione")->text().toStdString());
    });
    Collega(ui_->mnuHelp_0, &QAction::triggered, this, [this] { Guida::Apre(FileGuida()); });
}

void frmGiunti::SceltaFileMenu(int indice) {
    ConcludeEntrate();
    switch (indice) {
    case nuovo:
        NuovoDocumento();
        break;
    case apri:
        documento_->Apre();
        break;
    case salva:
        documento_->Salva();
        break;
    case stampa:
        StampaFile("STAMPANTE", 0);
        break;
    case stampaSuFile:
        StampaSuFile();
        break;
    default:
        close();
    }
}

void frmGiunti::NuovoDocumento() {
    EventoProtetto([this] {
        if (documento_->Nuovo([this] { NuovoNodo(); }))
            setWindowTitle(QString::fromLatin1(titoloForma));
    });
}

void frmGiunti::NuovoNodo() {
    NodoCorrente = Nodo();
    NodoCorrente.ImpostaNodo();
    NodoCorrente.CaratterizzaGiunti();
    AbbandonaScelta();
    dalFile_ = {};
    firma_ = FirmaSagomi(NodoCorrente);
    {
        const QScopedValueRollback loading(CaricaForm, true);
        Casella("TxtDescrizione")->clear();
        ui_->SSTab1->setCurrentIndex(schedaDati);
    }
    ui_->CmdAzzera->setEnabled(false);
    ScriveSagomi();
    CriterioScelto();
}

void frmGiunti::FileLeggeScrive(std::string_view modo, std::int16_t nFile) {
    if (modo == "L") {
        fileRiuscito_ = Legge(nFile);
        return;
    }
    NodoCorrente.PreparaSalvataggio();
    ToglieVirgolette(NodoCorrente);
    std::string description = Casella("TxtDescrizione")->text().toStdString();
    fileRiuscito_ = FileInOut(modo, nFile, {&description}) && NodoCorrente.Input_Output(modo, nFile);
}

/// A node that is whole takes the place of the one in hand.
bool frmGiunti::Legge(std::int16_t nFile) {
    std::string description;
    Nodo node;
    if (!FileInOut("L", nFile, {&description}) || !node.AperturaFile(nFile))
        return false;
    RinnovaNplRd(node);
    NodoCorrente = node;
    firma_ = FirmaSagomi(NodoCorrente);
    AbbandonaScelta();
    dalFile_ = {true, true};
    {
        const QScopedValueRollback loading(CaricaForm, true);
        Casella("TxtDescrizione")->setText(QString::fromStdString(description));
    }
    ScriveSagomi();
    CriterioScelto();
    ui_->CmdAzzera->setEnabled(true);
    if (!NodoCorrente.Controllafile()) {
        NuovoNodo();
        QMetaObject::invokeMethod(
            this, [this] { NuovoDocumento(); }, Qt::QueuedConnection);
    }
    return true;
}

// ---------------------------------------------------------------------------------------------- report

bool frmGiunti::SubStampa(std::string_view Uscita, std::int16_t nFile, std::string_view testo) {
    if (Uscita != "STAMPANTE")
        return ScriveRiga(nFile, testo);
    righeStampa_.emplace_back(testo);
    return true;
}

void frmGiunti::StampaFile(std::string_view Uscita, std::int16_t nFile) {
    const QString name = QFileInfo(documento_->File()).fileName();
    const TestaRelazione head{.nomeFile = name.toStdString(),
                              .descrizione = Casella("TxtDescrizione")->text().toStdString()};
    righeStampa_.clear();
    StampaRelazione(NodoCorrente, head,
                    [&](std::string_view line) { return SubStampa(Uscita, nFile, line); });
    if (Uscita == "STAMPANTE")
        StampaTesto(std::exchange(righeStampa_, {}), name.isEmpty() ? tr("Giunto flangiato") : name, this);
}

void frmGiunti::StampaSuFile() {
    const QString stem = QFileInfo(documento_->File()).completeBaseName();
    const QString proposal = stem.isEmpty() ? QStringLiteral("*.txt") : stem + QStringLiteral(".txt");
    QString chosen = SceglieFile(this, "S", QString::fromStdString(FiltroFileDialogo("Testo", "txt")),
                                 indiceFiltroFileDialogo, proposal);
    if (chosen.isEmpty())
        return;
    if (QFileInfo(chosen).suffix().isEmpty())
        chosen += QStringLiteral(".txt");
    const std::int16_t number = ApreFile(chosen.toStdString(), "S");
    if (number == 0) {
        Avvisa(AvvisoNonScritto(chosen.toStdString()));
        return;
    }
    auto abandon = qScopeGuard([number] { AbbandonaFile(number); });
    StampaFile("FILE", number);
    abandon.dismiss();
    ChiudeFile(number);
}

// ------------------------------------------------------------------------------- drawings and formulas

void frmGiunti::Plotta() {
    if (!SagomiAssegnati(NodoCorrente)) {
        Dice("Completare l'assegnamento dei sagomi prima di disegnare il giunto");
        return;
    }
    PlottaNodo(*this, NodoCorrente);
}

void frmGiunti::PlottaSelezione(int riga) {
    sagomi::PlottaSelezione(*this, NodoCorrente, Corrente().RisultatiIntermedi_Estrai(), riga);
}

/// The results are those of the row from now on.
void frmGiunti::InserisceSelezione(int riga) {
    try {
        NodoCorrente.EsegueSelezione(riga);
    } catch (...) {
        MostraRisultati();
        throw;
    }
    DalFile(false);
    documento_->Modifica();
    MostraRisultati();
}

std::string frmGiunti::IdFormula(const QString& casella) const {
    return std::string(sagomi::IdFormula(casella.toStdString(), Corrente()));
}

void frmGiunti::FormulaGiunto_Leggi(const std::string& id) {
    NavigaSchermi::Unico()
        .Prende<SchermoInfoGiunti>(QStringLiteral("FrmInfoGiunti"))
        .MostraFormula(*this, id);
}

/// The value of a component that was chosen in the drawing.
void frmGiunti::VaAlComponente(ComponenteGiunto componente) {
    for (const Legame& l : legami) {
        if (l.componente != componente)
            continue;
        QLineEdit* box = Casella(l.casella);
        if (!box->isVisibleTo(box->parentWidget()))
            continue; // of the other number of rows
        for (int i = 0; i < ui_->SSTab1->count(); ++i)
            if (ui_->SSTab1->widget(i)->isAncestorOf(box))
                ui_->SSTab1->setCurrentIndex(i);
        FuocoSu(box);
        return;
    }
}

/// The component of the value that has the focus is marked in the drawing.
void frmGiunti::FuocoPassato(const QWidget* controllo) {
    if (inRicerca_ || controllo == nullptr || controllo->window() != this)
        return;
    const Legame* l = LegameDi(controllo->objectName());
    if (l == nullptr)
        return;
    EvidenzaGiunto marks = Corrente().Acquisito ? Governa(Corrente()) : EvidenzaGiunto{};
    marks.governano = {{l->componente, l->fila}};
    MostraDisegno(nullptr, marks);
}

} // namespace sagomi
