#include "screens/frmSagomiU.h"

#include "catalogue/ControlloDati.h"
#include "catalogue/RigaSagomi.h"

namespace sagomi {

frmSagomiU::frmSagomiU() : SchermoDoppi(QStringLiteral("frmSagomiU")) {
    CollegaControlli();
    CollegaRisultati(RisultatiSagomoU());
    CollegaDoppi("chkDoppiAla",
                 {.A = 8, .Iy = 9, .Wy = 10, .iy = 12, .Iz = 13, .Wz = 14, .iz = 16, .Wply = 11, .Wplz = 15});
    CollegaDettagli(
        {{"LblClasse", "FrmClasseDoppioTU"}, {"LblNbRd", "FrmInstabSagomiU"}, {"LblMcRd", "FrmMcRd"}});
    Carica();
}

void frmSagomiU::LeggeSezione(const Lettore& riga, SezioneSagomoU& sezione) { LeggeRiga(riga, sezione); }

void frmSagomiU::ControllaSezione(const Lettore& riga, SezioneSagomoU& sezione) {
    ControlloDatiSagomi(riga, sezione);
}

} // namespace sagomi
