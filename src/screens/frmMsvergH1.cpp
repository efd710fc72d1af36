#include "screens/frmMsvergH1.h"

#include <QPushButton>
#include <QScrollBar>

#include "frame/ui/Mostra.h"
#include "frame/ui/Protetto.h"
#include "sections/DisegniMomento.h"
#include "ui_frmMsvergH1.h"

namespace sagomi {

frmMsvergH1::frmMsvergH1() : TavolaFattori(QStringLiteral("frmMsvergH1")), ui_(new Ui::frmMsvergH1) {
    ui_->setupUi(this);
    ui_->Image1->Mostra(DisegnoProspetto(1));
    RiempiRighe();
    AllineaColonne();
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

void frmMsvergH1::RiempiRighe() {
    const auto C1 = Vettore<QPushButton>(QStringLiteral("lblC1"));
    const auto k = Vettore<QLabel>(QStringLiteral("lblK"));
    const auto C3 = Vettore<QLabel>(QStringLiteral("lblC3"));
    for (std::size_t i = 0; i < ProspettoF11().size(); ++i) {
        const RigaF11& row = ProspettoF11()[i];
        const auto at = static_cast<qsizetype>(i);
        Mostra(k[at], "0.0", row.k);
        C1[at]->setText(QString::fromStdString(Formato("0.000", row.C1)));
        Mostra(C3[at], "0.000", row.C3);
        Collega(C1[at], &QPushButton::clicked, this, [this, i] { Scegli(i); });
    }
}

// The heads stay in place while the rows scroll below them.
void frmMsvergH1::AllineaColonne() {
    const int columns = ui_->loTesta->columnCount() - 1; // the last one takes the spare width
    for (int c = 0; c < columns; ++c) {
        int width = 0;
        for (const QGridLayout* grid : {ui_->loTesta, ui_->loTabella})
            for (int i = 0; i < grid->count(); ++i)
                if (int r = 0, at = 0, rs = 0, cs = 0; grid->getItemPosition(i, &r, &at, &rs, &cs), at == c)
                    width = std::max(width, grid->itemAt(i)->sizeHint().width());
        ui_->loTesta->setColumnMinimumWidth(c, width);
        ui_->loTabella->setColumnMinimumWidth(c, width);
    }
    const int bar = ui_->scorre->verticalScrollBar()->sizeHint().width();
    ui_->scorre->setMinimumWidth(ui_->tabella->sizeHint().width() + bar);
    const int row = ui_->lblC1_0->sizeHint().height() + ui_->loTabella->verticalSpacing();
    constexpr int visibili = 18; // six diagrams
    const QMargins edges = ui_->loTabella->contentsMargins();
    ui_->scorre->setMinimumHeight(visibili * row + edges.top() + edges.bottom());
}

void frmMsvergH1::Scegli(std::size_t riga) {
    const RigaF11& row = ProspettoF11()[riga];
    Consegna({row.k, row.C1, 0, row.C3}); // no transverse load, no height of it
}

} // namespace sagomi
