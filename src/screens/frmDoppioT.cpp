#include "screens/frmDoppioT.h"

#include "catalogue/ControlloDati.h"
#include "catalogue/RigaDoppioT.h"

namespace sagomi {

frmDoppioT::frmDoppioT() : SchermoDi(QStringLiteral("frmDoppioT")) {
    CollegaControlli();
    CollegaRisultati(RisultatiDoppioT());
    CollegaDettagli({{"LblClasse", "FrmClasseDoppioTU"},
                     {"LblNbRd", "FrmInstabDoppioT"},
                     {"LblMcRd", "FrmMcRd"},
                     {"Command1", "FrmPresFless"}});
    CollegaSvergolamento();
    Carica();
}

void frmDoppioT::Risultati() {
    if (SezioneDoppioT* section = SezioneInUso<SezioneDoppioT>())
        section->Saldata = false;
    SchermoDi::Risultati();
}

void frmDoppioT::LeggeSezione(const Lettore& riga, SezioneDoppioT& sezione) { LeggeRiga(riga, sezione); }

void frmDoppioT::ControllaSezione(const Lettore& riga, SezioneDoppioT& sezione) {
    ControlloDatiLaminati(riga, sezione);
}

} // namespace sagomi
