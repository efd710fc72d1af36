#pragma once

#include <QAction>
#include <QLabel>
#include <QRadioButton>

#include <string>
#include <utility>
#include <vector>

#include "composite/ui/frmAcciaioCls.h"
#include "drawing/ui/ImmagineDisegno.h"
#include "frame/ui/Casella.h"
#include "frame/ui/FileDialogo.h"
#include "frame/ui/UpDown.h"
#include "screens/Comandi.h"

namespace sagomi::prove {

/// The screen of composite beams, opened from the first screen on IPE 300 of S235, EC3 so that gamma M0 is 1.
class AmbienteTravi : public AmbienteSchermi {
protected:
    void TearDown() override {
        ImpostaSceltaFile({});
        AmbienteSchermi::TearDown();
    }

    frmAcciaioCls& Apre(const char* sagomo = "IPE 300") {
        partenza = &Avvia();
        Normativa = normativaEC3;
        ImpostaGamma();
        VaA(*partenza, sagomo);
        Trova<QAction>(partenza, "mnuAcciaioCls")->trigger();
        f = dynamic_cast<frmAcciaioCls*>(&Aperto("frmAcciaioCls"));
        registratore.testi.clear();
        return *f;
    }

    using Dati = std::vector<std::pair<const char*, const char*>>;

    /// Numbers with a point.
    void Scrive(const Dati& dati) const {
        for (const auto& [box, text] : dati)
            Trova<QLineEdit>(f, box)->setText(QString::fromStdString(Locale(text)));
    }
    /// A slab of 120 mm, 1200 mm wide, C25/30, bars of 1000 mm2 of 430 N/mm2 30 mm below its top.
    void Piena() const {
        Scrive({{"txtDati_1", "120"}, {"txtDati_2", "1200"}, {"txtDati_3", "1000"}, {"txtDati_4", "30"}});
    }
    /// The same on a deck.
    void Grecata(int tipo) const {
        Sceglie("OptTipoSoletta", tipo);
        Piena();
        Scrive({{"TxtLam_0", "55"}, {"TxtLam_1", "60"}, {"TxtLam_2", "90"}, {"TxtLam_3", "200"}});
        if (tipo == 2)
            Scrive({{"TxtLam_4", "80"}});
    }
    void Sceglie(const char* nome, int indice) const {
        Trova<QRadioButton>(f, (std::string(nome) + "_" + std::to_string(indice)).c_str())->click();
    }
    [[nodiscard]] double Valore(const char* nome) const { return ValoreNumerico(Testo(f, nome)); }
    [[nodiscard]] std::string Legge(const char* nome) const { return Testo(f, nome); }
    [[nodiscard]] std::string Etichetta(const char* nome) const {
        return Trova<QLabel>(f, nome)->text().toStdString();
    }
    void Batte(const char* casella, const char* testo) const {
        auto* box = Trova<QLineEdit>(f, casella);
        box->setFocus();
        box->selectAll();
        QTest::keyClicks(box, QString::fromStdString(Locale(testo)));
    }
    void Invio(const char* casella) const { QTest::keyClick(Trova<QLineEdit>(f, casella), Qt::Key_Return); }

    static void RispondeFile(const QString& chosen) {
        ImpostaSceltaFile(
            [chosen](QWidget*, std::string_view, const QString&, int, const QString&) { return chosen; });
    }
    [[nodiscard]] QString InCartella(const char* nome) const {
        return cartella.filePath(QString::fromLatin1(nome));
    }
    void Menu(const char* voce) const { Trova<QAction>(f, voce)->trigger(); }

    frmDoppioT* partenza = nullptr;
    frmAcciaioCls* f = nullptr;
};

} // namespace sagomi::prove
