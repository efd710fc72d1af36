#pragma once

#include <QAction>
#include <QComboBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>

#include <string>

#include "joints/ui/frmGiunti.h"
#include "screens/Comandi.h"
#include "screens/frmSaldati.h"

namespace sagomi::prove {

/// The joint screen, opened from the first one.
class AmbienteGiunti : public AmbienteSchermi {
protected:
    frmGiunti& Apre() {
        partenza = &Avvia();
        partenza->ChkTipo[1]->setChecked(true); // HEB besides IPE
        Preme(partenza, "AggiornaTabella");
        Trova<QAction>(partenza, "MnuGiunto")->trigger();
        g = &dynamic_cast<frmGiunti&>(Aperto("frmGiunti"));
        return *g;
    }

    /// Picks a section for a role by the button of the screen of double-T sections.
    void Prende(const char* bottone, const char* sagomo) {
        Preme(g, bottone);
        VaA(*partenza, sagomo);
        Preme(partenza, "cmdSceltaSagomoGiunto");
    }

    void Nodo(int indice) const {
        Trova<QRadioButton>(g, ("Optvie_" + std::to_string(indice)).c_str())->click();
    }

    /// T node of a HEB 200 column and an IPE 270 beam, S235.
    void NodoT() {
        Apre();
        Nodo(2);
        Prende("CmdColonnaInf", "HEB 200");
        Prende("CmdTraveDx", "IPE 270");
    }

    void Scheda(int indice) const { Trova<QTabWidget>(g, "SSTab1")->setCurrentIndex(indice); }
    void Sceglie(const char* opzione) const { Trova<QRadioButton>(g, opzione)->click(); }
    void Scrive(const char* casella, const char* testo) const { prove::Scrive(g, casella, testo); }
    [[nodiscard]] std::string Legge(const char* casella) const { return Testo(g, casella); }
    /// As the user chooses a diameter [mm].
    void Bullone(const char* d) const {
        auto* list = Trova<QComboBox>(g, "CboDiametriBulloni");
        list->setCurrentIndex(list->findText(d));
    }
    /// A check of one row: M16, plate 150 x 15.
    void Verifica1Fila() const {
        Sceglie("OptCriterio_1");
        Scrive("Texttf", "15");
        Scrive("Textbf", "150");
        Bullone("16");
        Scrive("Textef", "35");
        Scrive("Textd2", "40");
    }
    /// The same with a second row outside.
    void Verifica2File() const {
        Sceglie("Optfila_1");
        Verifica1Fila();
        Scrive("Textex", "30");
        Scrive("Textdx", "40");
        Scrive("Textu", "15");
    }
    /// What was told since the last look.
    std::vector<std::string> Detto() {
        std::vector<std::string> said;
        std::swap(said, registratore.testi);
        registratore.messaggi.clear();
        return said;
    }

    frmDoppioT* partenza = nullptr;
    frmGiunti* g = nullptr;
};

} // namespace sagomi::prove
