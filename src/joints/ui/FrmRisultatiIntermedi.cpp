#include "joints/ui/FrmRisultatiIntermedi.h"

#include <QHeaderView>

#include <algorithm>

#include "frame/ui/Annunci.h"
#include "frame/ui/Guida.h"
#include "frame/ui/Protetto.h"
#include "joints/Nodo.h"
#include "joints/ui/ModelloSelezione.h"
#include "joints/ui/ServiziGiunto.h"
#include "ui_FrmRisultatiIntermedi.h"

namespace sagomi {

namespace {

constexpr QSize almeno(700, 360);

int FileDi(const ServiziGiunto& services) {
    const auto& joint = services.NodoInMano().ConnessioneCorrente;
    return joint ? joint->nf : 1;
}

} // namespace

FrmRisultatiIntermedi::FrmRisultatiIntermedi()
    : Schermo(QStringLiteral("FrmRisultatiIntermedi")), ui_(new Ui::FrmRisultatiIntermedi),
      modello_(new ModelloSelezione(this)) {
    ui_->setupUi(this);
    ui_->Griglia->setModel(modello_);
    ui_->Griglia->verticalHeader()->hide();
    ui_->Griglia->verticalHeader()->setMinimumSectionSize(0);
    ui_->Griglia->verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    ui_->Griglia->horizontalHeader()->setHighlightSections(false);
    ui_->Griglia->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    PreparaContenuto();
    DimensionaIniziale(almeno);
    Collega(ui_->Griglia->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this] { RigaScelta(); });
    Collega(ui_->CmdPlottaSelezione, &QPushButton::clicked, this,
            [this] { Servizi()->PlottaSelezione(Riga() + 1); });
    Collega(ui_->CmdInsericiSelezione, &QPushButton::clicked, this, [this] { Inserisce(); });
    RigaScelta();
}

FrmRisultatiIntermedi::~FrmRisultatiIntermedi() = default;

ServiziGiunto* FrmRisultatiIntermedi::Servizi() const { return dynamic_cast<ServiziGiunto*>(origine); }

int FrmRisultatiIntermedi::Riga() const { return ui_->Griglia->currentIndex().row(); }

void FrmRisultatiIntermedi::AllAttivazione() {
    Guida::ImpostaFile(FileGuida());
    Aggiorna();
}

void FrmRisultatiIntermedi::Aggiorna() {
    const ServiziGiunto* services = Servizi();
    if (services == nullptr)
        return;
    const int before = Riga();
    modello_->Mostra(services->Selezioni(), FileDi(*services));
    const int last = modello_->rowCount() - 1;
    Seleziona(services->InRicerca() || before < 0 ? last : std::min(before, last));
    RigaScelta();
}

void FrmRisultatiIntermedi::Seleziona(int riga) {
    if (riga < 0 || riga == Riga())
        return;
    ui_->Griglia->setCurrentIndex(modello_->index(riga, std::max(0, ui_->Griglia->currentIndex().column())));
    ui_->Griglia->scrollTo(ui_->Griglia->currentIndex());
}

/// Rows of another number of rows of bolts cannot go into the joint.
void FrmRisultatiIntermedi::RigaScelta() {
    setWindowTitle(QStringLiteral("Risultati intermedi - Configurazione N° ") + modello_->Indice(Riga()));
    const ServiziGiunto* services = Servizi();
    const bool usable = services != nullptr && Riga() >= 0 && !services->InRicerca() &&
                        FileDi(*services) == modello_->FileBulloni();
    ui_->CmdPlottaSelezione->setEnabled(usable);
    ui_->CmdInsericiSelezione->setEnabled(usable);
}

void FrmRisultatiIntermedi::Inserisce() {
    const QString number = modello_->Indice(Riga());
    Servizi()->InserisceSelezione(Riga() + 1);
    Aggiorna();
    const QString done = QStringLiteral("Configurazione N° %1 inserita nel giunto").arg(number);
    ui_->statusbar->showMessage(done);
    Annuncia(*this, done);
}

} // namespace sagomi
