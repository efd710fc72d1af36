#include "joints/ui/PaginaProgetto.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "frame/ui/Voce.h"
#include "joints/DisegniScelte.h"
#include "joints/ui/PezziPagina.h"

namespace sagomi {

PaginaProgetto::PaginaProgetto(QWidget* parent) : QWidget(parent) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(9, 9, 9, 9);
    column->setSpacing(6);
    column->addWidget(CreaAnalisi());
    column->addWidget(CreaAttesa());
    column->addWidget(CreaImpostazioni());
    column->addStretch(1);
}

QWidget* PaginaProgetto::CreaAnalisi() {
    auto* room = new QGroupBox;
    QGridLayout* grid = CreaStanza(room, "FrameTipoanalisi", "Tipo di analisi");
    const auto line = [&](int i, const char* caption, const char* name, const QList<Scelta>& choices) {
        grid->addWidget(CreaScritta(caption), i, 0);
        const QList<QRadioButton*> options = CreaScelte(this, name, choices);
        options[0]->setChecked(true);
        grid->addLayout(ScelteInRiga(options), i, 1);
    };
    line(0, "Analisi", "OptCriterio",
         {{"Progetto", "Cerca piastra e bulloni"}, {"Verifica", "Verifica i parametri assegnati"}});
    line(1, "Ricerca", "OptTipoProgetto",
         {{"Veloce", "Step di 5 mm in bf e h'"}, {"Accurato", "Step di 1 mm su tutti i parametri"}});
    line(2, "Obiettivo", "OptOttimizza",
         {{"1.2 Mb,Rd ", "Giunto a completo ripristino con margine, EC3 6.9.6.3"},
          {"Mb,Rd", "Giunto a completo ripristino, EC3 6.9.6.3"},
          {"MjSd", "Momento di progetto della trave"}});
    grid->addWidget(CreaEsposto("LblObiettivo", "Momento obiettivo"), 3, 1);
    grid->setColumnStretch(1, 1);
    return room;
}

QWidget* PaginaProgetto::CreaAttesa() {
    auto* room = new QGroupBox;
    QGridLayout* grid = CreaStanza(room, "FrameAttesa", "Progetto");
    QLabel* progress = CreaEsposto("LblAttesa", "Avanzamento del progetto", "Progetto in corso...");
    progress->setWordWrap(true);
    progress->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    progress->setMinimumHeight(4 * progress->fontMetrics().lineSpacing());
    grid->addWidget(progress, 0, 0);
    grid->addWidget(
        CreaBottone("CmdInterrompi", "&Interrompi", "Ferma la ricerca e tiene il giunto migliore"), 0, 1,
        Qt::AlignTop);
    grid->setColumnStretch(0, 1);
    room->hide();
    return room;
}

QWidget* PaginaProgetto::CreaImpostazioni() {
    auto* room = new QGroupBox;
    QGridLayout* grid = CreaStanza(room, "FrameImpostazioni", "Impostazioni");
    const auto options = [this](const char* name, const QList<Scelta>& choices) {
        const QList<QRadioButton*> made = CreaScelte(this, name, choices);
        made[0]->setChecked(true);
        return made;
    };
    const auto line = [grid](int i, const char* caption, QLayout* row) {
        grid->addWidget(CreaScritta(caption), i, 0);
        grid->addLayout(row, i, 1);
    };
    line(0, "Bulloni",
         ScelteInRiga(
             options("Optres", {{"Classe 8.8", "fub 800 N/mm²"}, {"Classe 10.9", "fub 1000 N/mm²"}})));
    const QList<QRadioButton*> rows =
        options("Optfila", {{"1 fila ", "Una fila di bulloni, sotto l'ala tesa della trave"},
                            {"2 file ", "Due file di bulloni: la piastra sporge oltre l'ala tesa"}});
    line(1, "File tese",
         InRiga(QList<QWidget*>{CreaFigura("Pic1Fila", "Disegno: 1 fila", DisegnoFile(1)), rows[0],
                                CreaFigura("Pic2Fila", "Disegno: 2 file", DisegnoFile(2)), rows[1]}));
    const QList<QRadioButton*> stiffeners =
        options("Optirr", {{"senza irrigidimenti", "Nessun irrigidimento d'anima nella colonna"},
                           {"con irrigidimenti", "Irrigidimenti in zona tesa e compressa"},
                           {"irrigidimento in zona compressa", "Irrigidimento nella sola zona compressa"}});
    line(2, "Colonna", ScelteInRiga({stiffeners[0], stiffeners[1]}));
    grid->addLayout(
        InRiga(QList<QWidget*>{stiffeners[2], CreaBottone("CmdInfo", "Info", "Note sugli irrigidimenti")}), 3,
        1);
    line(4, "Beta",
         ScelteInRiga(options("OptBeta", {{"Cautelativo", "Beta della tabella, ENV 1993-1-1 appendice J"},
                                          {"Analitico", "Beta dal taglio nel pannello d'anima"}})));
    PosaLimiti(*grid);
    grid->setColumnStretch(1, 1);
    return room;
}

/// The limits of a design.
void PaginaProgetto::PosaLimiti(QGridLayout& grid) {
    QList<QWidget*> row;
    for (const Voce& v : {Voce{.etichetta = {"LbltfMax", "tf max"},
                         .nome = "Texttf_1",
                         .caratteri = 5,
                         .aiuto = "Massimo spessore della flangia nella ricerca",
                         .letta = "tf max [mm]"},
                          Voce{.etichetta = {"LblLMax", "h'max"},
                          .nome = "TextL",
                          .caratteri = 5,
                          .aiuto = "Massima sporgenza della flangia oltre l'ala tesa, con due file",
                          .letta = "h'max [mm]"},
                          Voce{.etichetta = {"LbluMax", "u max"},
                          .nome = "Textu_1",
                          .caratteri = 5,
                          .aiuto = "Massima sporgenza della flangia oltre l'ala compressa",
                          .letta = "u max [mm]"}}) {
        const Coppia pair = CreaCoppia(v);
        row << pair.etichetta << pair.campo;
    }
    grid.addWidget(CreaScritta("Limiti [mm]"), 5, 0);
    grid.addLayout(InRiga(row), 5, 1);
    QLabel* note = CreaEsposto("lbltf", "Nota su tf");
    note->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    grid.addWidget(note, 6, 1);
}

} // namespace sagomi
