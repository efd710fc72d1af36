#include "screens/frmSagomiL.h"

#include "catalogue/ControlloDati.h"
#include "catalogue/RigaSagomi.h"

namespace sagomi {

frmSagomiL::frmSagomiL() : SchermoDoppi(QStringLiteral("frmSagomiL")) {
    CollegaControlli();
    CollegaRisultati(RisultatiSagomoL());
    CollegaDoppi("chkDoppiCorto", {.A = 7, .Iy = 8, .Wy = 9, .iy = 10, .Iz = 11, .Wz = 12, .iz = 13});
    CollegaDettagli({{"LblClasse", "FrmClasseSagomiL"}, {"LblNbRd", "FrmInstabSagomiL"}});
    Carica();
}

void frmSagomiL::LeggeSezione(const Lettore& riga, SezioneSagomoL& sezione) { LeggeRiga(riga, sezione); }

void frmSagomiL::ControllaSezione(const Lettore& riga, SezioneSagomoL& sezione) {
    ControlloDatiSagomi(riga, sezione);
}

} // namespace sagomi
