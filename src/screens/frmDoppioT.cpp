#include "screens/frmDoppioT.h"

#include "catalogue/ControlloDati.h"
#include "catalogue/RigaDoppioT.h"
#include "sections/DisegnoSagoma.h"
#include "ui_frmDoppioT.h"

namespace sagomi {

frmDoppioT::frmDoppioT() : SchermoDi(QStringLiteral("frmDoppioT")), ui_(new Ui::frmDoppioT) {
    ui_->setupUi(this);
    MostraSagoma(nullptr);
    CollegaControlli();
    CollegaRisultati(RisultatiDoppioT());
    CollegaDettagli({{"LblClasse", "FrmClasseDoppioTU"},
                     {"LblNbRd", "FrmInstabDoppioT"},
                     {"LblMcRd", "FrmMcRd"},
                     {"Command1", "FrmPresFless"}});
    CollegaSvergolamento();
    Carica();
}

frmDoppioT::~frmDoppioT() = default;

void frmDoppioT::Risultati() {
    if (SezioneDoppioT* section = SezioneInUso<SezioneDoppioT>())
        section->Saldata = false;
    SchermoDi::Risultati();
}

void frmDoppioT::LeggeSezione(const Lettore& riga, SezioneDoppioT& sezione) { LeggeRiga(riga, sezione); }

void frmDoppioT::ControllaSezione(const Lettore& riga, SezioneDoppioT& sezione) {
    ControlloDatiLaminati(riga, sezione);
}

void frmDoppioT::MostraSagoma(const SezioneDoppioT* sezione) {
    ui_->Picture1->Mostra(DisegnoSagoma(sezione == nullptr ? SagomaDisegnata{} : SagomaDi(*sezione)));
}

} // namespace sagomi
