#include "composite/ui/FormaConnettori.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include "drawing/ui/ImmagineDisegno.h"
#include "frame/ui/Schermo.h"
#include "frame/ui/Voce.h"

namespace sagomi {

namespace {

constexpr auto risultato = Genere::risultato;

QGridLayout* Stanza(const char* nome, const char* titolo) {
    auto* box = new QGroupBox(QString::fromUtf8(titolo));
    box->setObjectName(QString::fromLatin1(nome));
    auto* grid = new QGridLayout(box);
    grid->setContentsMargins(9, 4, 9, 7);
    grid->setHorizontalSpacing(6);
    grid->setVerticalSpacing(4);
    return grid;
}

void Posa(QGridLayout& grid, const Voce& voce, int riga) {
    const Coppia pair = CreaCoppia(voce);
    PosaDicitura(grid, pair.etichetta, riga, 0, Qt::AlignRight | Qt::AlignVCenter);
    grid.addWidget(pair.campo, riga, 1);
}

QLabel* Scritta(const char* nome, const char* letta) {
    auto* label = new QLabel;
    label->setObjectName(QString::fromLatin1(nome));
    label->setAccessibleName(QString::fromUtf8(letta));
    return label;
}

void Elenco(QGridLayout& grid, const Dicitura& scritta, const char* nome, const char* aiuto,
            const char* letto, const QStringList& voci, int riga) {
    auto* list = new QComboBox;
    list->setObjectName(QString::fromLatin1(nome));
    list->setToolTip(QString::fromUtf8(aiuto));
    list->setAccessibleName(QString::fromUtf8(letto));
    list->addItems(voci);
    QLabel* caption = CreaDicitura(scritta, Qt::AlignRight | Qt::AlignVCenter);
    caption->setBuddy(list);
    grid.addWidget(caption, riga, 0);
    grid.addWidget(list, riga, 1);
}

QPushButton* Bottone(const char* nome, const char* testo, const char* aiuto) {
    auto* button = new QPushButton(QString::fromUtf8(testo));
    button->setObjectName(QString::fromLatin1(nome));
    button->setToolTip(QString::fromUtf8(aiuto));
    return button;
}

QWidget* StanzaPioli() {
    QGridLayout* grid = Stanza("fraPioli", "Pioli");
    Posa(*grid, {{"lblInput_0", "h [mm]"}, "txtInput_0", 7, "Altezza del piolo, EC4 6.3.2", "h piolo [mm]"},
         0);
    Elenco(*grid, {"lblDiametro", "d [mm]"}, "Combo1", "Diametro del gambo del piolo", "d piolo [mm]",
           {"10", "13", "16", "19", "22", "25"}, 1);
    Posa(*grid,
         {{"lblInput_1", "f{u} [N/mm2]"},
          "txtInput_1",
          7,
          "Resistenza a rottura del piolo",
          "fu piolo [N/mm2]"},
         2);
    Posa(*grid,
         {{"lblInput_2", "", "", "γ{V}"},
          "txtInput_2",
          7,
          "Coefficiente parziale dei pioli, EC4 2.3.3.2",
          "gammaV"},
         3);
    Elenco(*grid, {"lblNr", "Nr"}, "ComboNr", "Connettori per nervatura o per fila", "Nr", {"1", "2"}, 4);
    Posa(*grid,
         {{"lblInput_3", "L con n connettori [m]"},
          "txtInput_3",
          7,
          "Lunghezza su cui si dispongono gli n connettori",
          "L con n connettori [m]"},
         5);
    grid->setRowStretch(6, 1);
    return grid->parentWidget();
}

void Opzione(QGridLayout& grid, QButtonGroup& group, const char* nome, const char* testo, const char* aiuto,
             int riga) {
    auto* option = new QRadioButton(QString::fromUtf8(testo));
    option->setObjectName(QString::fromLatin1(nome));
    option->setToolTip(QString::fromUtf8(aiuto));
    option->setChecked(riga == 0);
    group.addButton(option);
    grid.addWidget(option, riga, 0, 1, 2);
}

QWidget* StanzaConnessione() {
    QGridLayout* grid = Stanza("fraConnessione", "Connessione");
    auto* group = new QButtonGroup(grid->parentWidget());
    Opzione(*grid, *group, "OptConnect_0", "A completo ripristino",
            "Connettori per tutta la forza di scorrimento", 0);
    Opzione(*grid, *group, "OptConnect_1", "A parziale ripristino",
            "Connettori che bastano al momento di progetto, EC4 6.2.1.2", 1);
    Posa(*grid, {{"lblMsd", "M{Sd} [kNm]"}, "TxtMsd", 8, "Momento sollecitante di progetto", "Msd [kNm]"}, 2);
    grid->addWidget(Scritta("lblMomento", "Segno del momento"), 3, 0, 1, 2);
    grid->setRowStretch(4, 1);
    return grid->parentWidget();
}

QWidget* StanzaSoletta() {
    QGridLayout* grid = Stanza("fraTipo", "Soletta");
    grid->addWidget(Scritta("lblTipoSoletta", "Tipo di soletta"), 0, 0, 1, 3);
    grid->addWidget(Scritta("lblOrditura", "Orditura"), 1, 0, 1, 3);
    grid->addWidget(Scritta("lblParagrafo", "Paragrafo"), 2, 0, 1, 3);
    Posa(*grid,
         {{"lblb0", "b{0} [mm]"},
          "txtb0",
          7,
          "Larghezza media della nervatura, EC4 6.3.3",
          "b0 [mm]",
          risultato},
         3);
    grid->setRowStretch(4, 1);
    grid->setColumnStretch(2, 1);
    return grid->parentWidget();
}

QWidget* StanzaRisultati() {
    QGridLayout* grid = Stanza("fraRisultati", "Risultati");
    Posa(*grid,
         {{"lblPRd", "P{Rd} [kN]"},
          "TxtPrd",
          8,
          "Resistenza di progetto di un piolo, EC4 6.3.2",
          "PRd [kN]",
          risultato},
         0);
    auto* row = new QHBoxLayout;
    row->setSpacing(6);
    row->addWidget(Scritta("lblK", "Fattore di riduzione k"));
    row->addWidget(Bottone("lblDomandaPrd", "?", "Le due resistenze del piolo, acciaio e calcestruzzo"));
    row->addStretch(1);
    grid->addLayout(row, 0, 2);
    Posa(*grid,
         {{"lblnConnettori", "n. connettori"},
          "txtn",
          8,
          "Connettori di tutta la trave",
          "n. connettori",
          risultato},
         1);
    Posa(*grid,
         {{"lblInter", "Passo [mm]"},
          "txtPasso",
          8,
          "Passo dei connettori o delle coppie",
          "Passo [mm]",
          risultato},
         2);
    grid->addWidget(Scritta("lblUnita", "Unità del passo"), 2, 2);
    Posa(*grid,
         {{"lblNervPasso", "Nervature per passo"},
          "TxtNerv",
          8,
          "Nervature in un passo",
          "Nervature per passo",
          risultato},
         3);
    grid->addWidget(Scritta("lblNerv", "Unità delle nervature"), 3, 2);
    grid->setColumnStretch(2, 1);
    grid->setRowStretch(4, 1);
    return grid->parentWidget();
}

} // namespace

void ComponeConnettori(Schermo& schermo) {
    auto* content = new QWidget;
    auto* grid = new QGridLayout(content);
    grid->setContentsMargins(9, 9, 9, 9);
    grid->setSpacing(6);
    grid->addWidget(StanzaPioli(), 0, 0, 2, 1);
    grid->addWidget(StanzaConnessione(), 0, 1);
    grid->addWidget(StanzaSoletta(), 0, 2);
    grid->addWidget(StanzaRisultati(), 1, 1, 1, 2);
    auto* picture = new ImmagineDisegno;
    picture->setObjectName(QStringLiteral("pctConnettori"));
    picture->setAccessibleName(QStringLiteral("Disegno della trave con i pioli"));
    grid->addWidget(picture, 2, 0, 1, 3);
    grid->setRowStretch(2, 1);
    auto* commands = new QHBoxLayout;
    commands->addWidget(Scritta("lblHsuD", "Messaggio sui pioli"), 1);
    commands->addWidget(Bottone("CmdProgetta", "&Progetta", "Numero e passo dei connettori"));
    grid->addLayout(commands, 3, 0, 1, 3);
    grid->setColumnStretch(2, 1);
    schermo.setCentralWidget(content);
}

} // namespace sagomi
