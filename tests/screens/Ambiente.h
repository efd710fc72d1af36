#pragma once

#include <QLabel>

#include "frame/ui/AmbienteFinestre.h"
#include "screens/GeneraleSchermi.h"
#include "screens/frmDoppioT.h"
#include "sections/SezioneDoppioT.h"

namespace sagomi::prove {

/// The whole program in a temporary folder, with the real workbook.
class AmbienteSchermi : public AmbienteFinestre {
protected:
    void SetUp() override {
        AmbienteFinestre::SetUp();
        CopiaAccanto("Sagomi.xls");
    }

    /// Starts the program and gives its first screen, without the warning about the separators.
    frmDoppioT& Avvia() {
        InizializzaProgramma();
        registratore.testi.clear();
        registratore.messaggi.clear();
        return dynamic_cast<frmDoppioT&>(*NavigaSchermi::Unico().Trova(QStringLiteral("frmDoppioT")));
    }

    static SezioneDoppioT& Sezione() { return *std::get<std::shared_ptr<SezioneDoppioT>>(SezioneCorrente); }

    /// Goes to a section of the table by its name.
    static void VaA(SchermoSezione& screen, const char* name) {
        ASSERT_TRUE(screen.Data1->Recordset().CercaRecord(name)) << name;
    }
};

} // namespace sagomi::prove
