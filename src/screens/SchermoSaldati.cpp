#include "screens/SchermoSaldati.h"

#include "catalogue/ControlloDati.h"
#include "frame/ui/Protetto.h"

namespace sagomi {

SchermoSaldati::SchermoSaldati(const QString& nome, RigheDoppioT righe) : SchermoDi(nome), righe_(righe) {
    CollegaControlli();
    CollegaRisultati(RisultatiDoppioT());
    for (const char* command : {"Command1", "Command2"}) // they start from a fresh section
        Collega(Pulsante(command), &QPushButton::clicked, this, [this] { DatiRisultati(); });
    CollegaDettagli({{"LblClasse", "FrmClasseDoppioTU"},
                     {"LblNbRd", "FrmInstabDoppioT"},
                     {"LblMcRd", "FrmMcRd"},
                     {"Command1", "FrmPresFless"}});
    CollegaSvergolamento();
    Carica();
}

void SchermoSaldati::LeggeSezione(const Lettore& riga, SezioneDoppioT& sezione) {
    LeggeRiga(riga, sezione, righe_);
}

void SchermoSaldati::ControllaSezione(const Lettore& riga, SezioneDoppioT& sezione) {
    ControlloDatiSaldati(riga, sezione);
}

} // namespace sagomi
