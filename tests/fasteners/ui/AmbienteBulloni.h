#pragma once

#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>

#include <string>
#include <vector>

#include "fasteners/ui/frmBulloni.h"
#include "screens/Ambiente.h"

namespace sagomi::prove {

// Expected figures by hand, gamma M2 1.25. M16, As 157: 8.8 in shear 0.6 · 800 · 157 / 1.25 = 60.288 kN, in
// tension 0.9 · 800 · 157 / 1.25 = 90.432 kN; 4.6 30.144 and 45.216 kN. Bearing of M16 in 10 mm of S235 with
// full distances 2.5 · 360 · 16 · 10 / 1.25 = 115.2 kN.
class FrmBulloniTest : public AmbienteSchermi {
protected:
    frmBulloni& Apre() {
        partenza = &Avvia();
        return Riapre();
    }
    frmBulloni& Riapre() {
        Trova<QAction>(partenza, "mnuCollegamenti_0")->trigger();
        b = dynamic_cast<frmBulloni*>(NavigaSchermi::Unico().Trova(QStringLiteral("frmBulloni")));
        if (b == nullptr || !b->isVisible())
            throw std::runtime_error("the screen did not open");
        return *b;
    }
    /// As the user chooses an item of a list.
    void Sceglie(const char* elenco, int indice) const {
        auto* list = Trova<QComboBox>(b, elenco);
        list->setCurrentIndex(indice);
        emit list->activated(indice);
    }
    void Classe(const char* testo) const {
        Sceglie("ComboClassiBulloni", Trova<QComboBox>(b, "ComboClassiBulloni")->findText(testo));
    }
    void Diametro(const char* testo) const {
        Sceglie("ComboDiametriBulloni", Trova<QComboBox>(b, "ComboDiametriBulloni")->findText(testo));
    }
    void Scrive(const char* casella, const std::string& testo) const {
        Trova<QLineEdit>(b, casella)->setText(QString::fromStdString(Locale(testo)));
    }
    void M16() const {
        Classe("8.8");
        Diametro("16");
        Scrive("Txt_Rif_0", "10");
    }
    [[nodiscard]] std::string Legge(const char* casella) const { return Testo(b, casella); }
    [[nodiscard]] std::string Somma() const {
        return Trova<QLabel>(b, "Lbl_Risultato_0")->text().toStdString();
    }
    [[nodiscard]] std::string Scritta(const char* nome) const {
        return Trova<QLabel>(b, nome)->text().toStdString();
    }
    [[nodiscard]] QString Verdetto() const { return Trova<QLabel>(b, "Lbl_Risultato_1")->text(); }
    [[nodiscard]] std::vector<std::string> Elenco() const {
        const auto* list = Trova<QListWidget>(b, "List1");
        std::vector<std::string> rows;
        for (int i = 0; i < list->count(); ++i)
            rows.push_back(list->item(i)->text().toStdString());
        EXPECT_EQ(list->isVisible(), !rows.empty());
        return rows;
    }
    [[nodiscard]] QPlainTextEdit* Osservazioni() const {
        return Trova<QPlainTextEdit>(b, "Txt_Osservazioni");
    }

    frmDoppioT* partenza = nullptr;
    frmBulloni* b = nullptr;
};

} // namespace sagomi::prove
