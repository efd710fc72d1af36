#include "screens/frmMsvergH2.h"

#include <QGridLayout>
#include <QPushButton>

#include "drawing/ui/ImmagineDisegno.h"
#include "frame/ui/Mostra.h"
#include "frame/ui/Protetto.h"
#include "sections/DisegniMomento.h"
#include "ui_frmMsvergH2.h"

namespace sagomi {

frmMsvergH2::frmMsvergH2() : TavolaFattori(QStringLiteral("frmMsvergH2")), ui_(new Ui::frmMsvergH2) {
    ui_->setupUi(this);
    PosaCasi();
    RiempieRighe();
    PreparaContenuto();
    DimensionaIniziale({});
}

frmMsvergH2::~frmMsvergH2() = default;

void frmMsvergH2::PosaCasi() {
    auto* cases = new ImmagineDisegno;
    cases->setObjectName(QStringLiteral("Image1"));
    cases->Mostra(DisegnoProspetto(2));
    cases->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    cases->setAccessibleName(QStringLiteral("Casi di carico"));
    ui_->tabella->PosaDiagrammi(cases);
    constexpr int altezza = 30; // a load case has two rows
    for (int row = 1; row <= ui_->tabella->Righe(); ++row)
        ui_->tabella->Griglia()->setRowMinimumHeight(row, altezza);
}

void frmMsvergH2::RiempieRighe() {
    const auto C1 = Vettore<QPushButton>(QStringLiteral("lblC1"));
    const auto k = Vettore<QLabel>(QStringLiteral("lblK"));
    const auto C2 = Vettore<QLabel>(QStringLiteral("lblC2"));
    const auto C3 = Vettore<QLabel>(QStringLiteral("lblC3"));
    for (std::size_t i = 0; i < ProspettoF12().size(); ++i) {
        const RigaF12& row = ProspettoF12()[i];
        const auto at = static_cast<qsizetype>(i);
        Mostra(k[at], "0.0", row.k);
        C1[at]->setText(QString::fromStdString(Formato("0.000", row.C1)));
        Mostra(C2[at], "0.000", row.C2);
        Mostra(C3[at], "0.000", row.C3);
        Collega(C1[at], &QPushButton::clicked, this, [this, i] { Sceglie(i); });
    }
}

void frmMsvergH2::Sceglie(std::size_t riga) {
    const RigaF12& row = ProspettoF12()[riga];
    Consegna({row.k, row.C1, row.C2, row.C3});
}

} // namespace sagomi
