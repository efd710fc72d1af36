#include "screens/FrmInform.h"

#include "frame/GeneraleSagomi.h"
#include "frame/ui/NavigaSchermi.h"
#include "frame/ui/Protetto.h"
#include "ui_FrmInform.h"

namespace sagomi {

FrmInform::FrmInform() : Schermo(QStringLiteral("FrmInform")), ui_(new Ui::FrmInform) {
    ui_->setupUi(this);
    PreparaContenuto();
    DimensionaIniziale({420, 220});
    ui_->LblVersione->setText(tr("Versione ") + QString::fromLatin1(versioneProgramma));
    Collega(ui_->cmdOK, &QPushButton::clicked, this, [this] { close(); });
}

FrmInform::~FrmInform() = default;

void FrmInform::Apre(Schermo& chiamante) {
    NavigaSchermi::Unico().ApreDialogo(*this, chiamante);
    ui_->cmdOK->setFocus();
}

} // namespace sagomi
