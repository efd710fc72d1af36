#include "screens/frmMsvergH1.h"

#include <QGridLayout>
#include <QPushButton>
#include <QScrollBar>

#include "drawing/ui/ImmagineDisegno.h"
#include "frame/ui/Mostra.h"
#include "frame/ui/Protetto.h"
#include "sections/DisegniMomento.h"
#include "ui_frmMsvergH1.h"

namespace sagomi {

frmMsvergH1::frmMsvergH1() : TavolaFattori(QStringLiteral("frmMsvergH1")), ui_(new Ui::frmMsvergH1) {
    ui_->setupUi(this);
    ui_->testata->Griglia()->setContentsMargins(9, 0, 9, 0);
    ui_->tabella->Griglia()->setContentsMargins(9, 6, 9, 6);
    PosaDiagrammi();
    RiempieRighe();
    PreparaContenuto();
    QScrollBar* bar = ui_->scorre->verticalScrollBar();
    Collega(ui_->Freccia, &QToolButton::clicked, this,
            [bar] { bar->setValue(bar->value() >= bar->maximum() ? 0 : bar->value() + bar->pageStep()); });
    // At the end the arrow leads back to the top.
    const auto turn = [this, bar] {
        ui_->Freccia->setArrowType(bar->value() >= bar->maximum() ? Qt::UpArrow : Qt::DownArrow);
        ui_->Freccia->setEnabled(bar->maximum() > 0);
    };
    Collega(bar, &QScrollBar::valueChanged, this, turn);
    Collega(bar, &QScrollBar::rangeChanged, this, turn);
    DimensionaIniziale({});
}

frmMsvergH1::~frmMsvergH1() = default;

void frmMsvergH1::PosaDiagrammi() {
    auto* diagrams = new ImmagineDisegno;
    diagrams->setObjectName(QStringLiteral("Image1"));
    diagrams->Mostra(DisegnoProspetto(1));
    diagrams->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    diagrams->setAccessibleName(QStringLiteral("Diagrammi dei momenti"));
    ui_->tabella->PosaDiagrammi(diagrams);
    for (GrigliaFattori* part : {ui_->testata, ui_->tabella})
        part->Griglia()->addItem(new QSpacerItem(0, 0, QSizePolicy::Expanding), 0,
                                 part->Griglia()->columnCount()); // takes the spare width
}

void frmMsvergH1::RiempieRighe() {
    const auto C1 = Vettore<QPushButton>(QStringLiteral("lblC1"));
    const auto k = Vettore<QLabel>(QStringLiteral("lblK"));
    const auto C3 = Vettore<QLabel>(QStringLiteral("lblC3"));
    for (std::size_t i = 0; i < ProspettoF11().size(); ++i) {
        const RigaF11& row = ProspettoF11()[i];
        const auto at = static_cast<qsizetype>(i);
        Mostra(k[at], "0.0", row.k);
        C1[at]->setText(QString::fromStdString(Formato("0.000", row.C1)));
        Mostra(C3[at], "0.000", row.C3);
        Collega(C1[at], &QPushButton::clicked, this, [this, i] { Sceglie(i); });
    }
}

void frmMsvergH1::ScalaContenuto(double rapporto) {
    TavolaFattori::ScalaContenuto(rapporto);
    AllineaColonne();
}

// The heads stay in place while the rows scroll below them.
void frmMsvergH1::AllineaColonne() {
    QGridLayout* const heads = ui_->testata->Griglia();
    QGridLayout* const rows = ui_->tabella->Griglia();
    const int columns = heads->columnCount() - 1; // the last one takes the spare width
    for (int c = 0; c < columns; ++c) {
        int width = 0;
        for (const QGridLayout* grid : {heads, rows})
            for (int i = 0; i < grid->count(); ++i)
                if (int r = 0, at = 0, rs = 0, cs = 0; grid->getItemPosition(i, &r, &at, &rs, &cs), at == c)
                    width = std::max(width, grid->itemAt(i)->sizeHint().width());
        heads->setColumnMinimumWidth(c, width);
        rows->setColumnMinimumWidth(c, width);
    }
    const int bar = ui_->scorre->verticalScrollBar()->sizeHint().width();
    ui_->scorre->setMinimumWidth(ui_->tabella->sizeHint().width() + bar);
    const int row = ui_->tabella->Bottone(0)->sizeHint().height() + rows->verticalSpacing();
    constexpr int visibili = 18; // six diagrams
    const QMargins edges = rows->contentsMargins();
    ui_->scorre->setMinimumHeight(visibili * row + edges.top() + edges.bottom());
}

void frmMsvergH1::Sceglie(std::size_t riga) {
    const RigaF11& row = ProspettoF11()[riga];
    Consegna({row.k, row.C1, 0, row.C3}); // no transverse load, no height of it
}

} // namespace sagomi
