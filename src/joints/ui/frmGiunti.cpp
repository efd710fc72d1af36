#include "joints/ui/frmGiunti.h"

#include <QAction>
#include <QScopedValueRollback>
#include <QTabBar>
#include <QToolButton>

#include "frame/GeneraleSagomi.h"
#include "frame/ui/Accessibilita.h"
#include "frame/ui/Guida.h"
#include "frame/ui/NavigaSchermi.h"
#include "frame/ui/Protetto.h"
#include "ui_frmGiunti.h"

namespace sagomi {

frmGiunti::frmGiunti() : Schermo(QStringLiteral("frmGiunti")), ui_(new Ui::frmGiunti) {
    const QScopedValueRollback loading(CaricaForm, true);
    ui_->setupUi(this);
    for (auto* part : ui_->SSTab1->tabBar()->findChildren<QToolButton*>())
        part->setProperty(proprietaValore, true); // of the toolkit, no commands
    PreparaContenuto();
    NavigaSchermi::Unico().CollegaMenu(*this);
    NodoCorrente.ImpostaNodo();
    NodoCorrente.CaratterizzaGiunti();
    DimensionaIniziale({});
}

frmGiunti::~frmGiunti() = default;

void frmGiunti::Apri(Schermo& chiamante) {
    origine = &chiamante;
    NavigaSchermi::Unico().Passa(*this, &chiamante);
}

void frmGiunti::AllAttivazione() {
    Guida::ImpostaFile(FileGuida());
    ui_->NormativaMain->setText(QStringLiteral("Normativa: ") + QString::fromStdString(NomeNormativa()));
}

} // namespace sagomi
