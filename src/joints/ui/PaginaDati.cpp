#include "joints/ui/PaginaDati.h"

#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include <array>

#include "frame/ui/Voce.h"
#include "joints/DisegniScelte.h"
#include "joints/ui/PezziPagina.h"

namespace sagomi {

namespace {

constexpr int colonnaAzioni = 2; ///< of the grid, behind button and section

/// A row of the table of sections: the button, the section, the boxes under L, M, V, N.
struct RigaSagomo {
    const char* bottone;
    const char* testo;
    const char* etichetta;
    const char* soggetto; ///< as the names of its boxes are read
    std::array<const char*, 4> caselle;
};

constexpr std::array righe{
    RigaSagomo{"CmdTraveDx",
               "Trave destra",
               "LblTraveDx",
               "della trave destra",
               {"TxtL_Dx", "TxtM_Dx", "TxtT_T", "TxtN_Dx"}},
    RigaSagomo{"CmdTraveSx",
               "Trave sinistra",
               "LblTraveSx",
               "della trave sinistra",
               {"TxtL_Sn", "TxtM_Sn", "TxtV_Sn", "TxtN_Sn"}},
    RigaSagomo{"CmdColonnaInf",
               "Colonna inferiore",
               "LblColonnaInf",
               "della colonna inferiore",
               {"", "TxtM_Col", "TxtV_Col", "TxtN_Col"}},
};

struct Intestazione {
    const char* testo;
    const char* letta;
    const char* aiuto;
};

constexpr std::array<Intestazione, 4> intestazioni{{
    {"L [m]", "Luce [m]", "Luce della trave, per classificare il giunto in base alla rigidezza"},
    {"M [kNm] (+ = fibre superiori tese)", "Momento [kNm]",
     "Momento di progetto, positivo se tende le fibre superiori"},
    {"V [kN]", "Taglio [kN]", "Taglio di progetto"},
    {"N [kN]", "Sforzo normale [kN]", "Sforzo normale di progetto"},
}};

QWidget* CreaAzione(const char* nome, const QString& letta, const char* aiuto) {
    const QByteArray read = letta.toUtf8();
    return CreaCampo({.nome = nome, .caratteri = 8, .aiuto = aiuto, .letta = read.constData()});
}

void PosaIntestazioni(QGridLayout& grid) {
    for (std::size_t i = 0; i < intestazioni.size(); ++i) {
        QLabel* head = CreaScritta(intestazioni[i].testo);
        head->setWordWrap(true);
        head->setAlignment(Qt::AlignHCenter | Qt::AlignBottom);
        grid.addWidget(head, 0, colonnaAzioni + static_cast<int>(i));
    }
}

void PosaRiga(QGridLayout& grid, const RigaSagomo& row, int line) {
    const QString subject = QString::fromUtf8(row.soggetto);
    grid.addWidget(CreaBottone(row.bottone, row.testo, "Sceglie il sagomo fra quelli a doppio T"), line, 0);
    const QByteArray read = (QStringLiteral("Sagomo ") + subject).toUtf8();
    grid.addWidget(CreaEsposto(row.etichetta, read.constData(), "NON ASSEGNATO"), line, 1);
    for (std::size_t i = 0; i < row.caselle.size(); ++i)
        if (*row.caselle[i] != '\0')
            grid.addWidget(CreaAzione(row.caselle[i],
                                      QString::fromUtf8(intestazioni[i].letta) + u' ' + subject,
                                      intestazioni[i].aiuto),
                           line, colonnaAzioni + static_cast<int>(i));
}

QWidget* CreaDescrizione() {
    QWidget* box = CreaCampo({.nome = "TxtDescrizione",
                              .aiuto = "Descrizione del progetto, nel file e nella relazione",
                              .letta = "Descrizione"});
    box->setProperty("parole", true); // no number
    static_cast<QLineEdit*>(box)->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    box->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    return box;
}

} // namespace

PaginaDati::PaginaDati(QWidget* parent) : QWidget(parent) {
    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    auto* frame = new QFrame;
    frame->setObjectName(QStringLiteral("FrmDati"));
    outer->addWidget(frame);
    auto* column = new QVBoxLayout(frame);
    column->setContentsMargins(9, 9, 9, 9);
    column->setSpacing(6);
    QWidget* description = CreaDescrizione();
    auto* first = new QHBoxLayout;
    first->addWidget(CreaScritta("Descrizione", description));
    first->addWidget(description, 1);
    column->addLayout(first);
    column->addWidget(CreaNodo());
    column->addWidget(CreaSagomi());
    column->addStretch(1);
}

QWidget* PaginaDati::CreaNodo() {
    auto* room = new QGroupBox;
    QGridLayout* grid = CreaStanza(room, "fraNodo", "Nodo");
    const QList<QRadioButton*> kinds = CreaScelte(
        this, "Optvie",
        {{"con colonna superiore", "Due travi, la colonna continua sopra il nodo",
          "Due travi, con colonna superiore"},
         {"senza colonna superiore", "Due travi in testa alla colonna", "Due travi, senza colonna superiore"},
         {"con colonna superiore", "Una trave, la colonna continua sopra il nodo",
          "Una trave, con colonna superiore"},
         {"senza colonna superiore", "Una trave in testa alla colonna",
          "Una trave, senza colonna superiore"}});
    kinds[0]->setChecked(true);
    grid->addWidget(CreaScritta("Due travi"), 0, 0, 1, 2);
    grid->addWidget(CreaScritta("Una trave"), 0, 2, 1, 2);
    constexpr const char* pictures[] = {"PicCroce", "PicT", "PicTDx", "PicLDx"};
    for (int i = 0; i < kinds.size(); ++i) {
        const QByteArray read = "Disegno: " + kinds[i]->accessibleName().toUtf8();
        grid->addWidget(
            CreaFigura(pictures[i], read.constData(), DisegnoTipoNodo(static_cast<std::int16_t>(i))),
            1 + i % 2, 2 * (i / 2));
        grid->addWidget(kinds[i], 1 + i % 2, 2 * (i / 2) + 1);
    }
    grid->setColumnStretch(4, 1);
    return room;
}

QWidget* PaginaDati::CreaSagomi() {
    auto* room = new QGroupBox;
    QGridLayout* grid = CreaStanza(room, "fraSagomi", "Sagomi e azioni di progetto");
    PosaIntestazioni(*grid);
    int line = 1;
    for (const RigaSagomo& row : righe)
        PosaRiga(*grid, row, line++);
    QWidget* above = CreaAzione("TxtV_Sup", QStringLiteral("Taglio [kN] della colonna superiore"),
                                "Taglio di progetto della colonna sopra il nodo");
    QLabel* caption = CreaScritta("V colonna superiore [kN]", above);
    caption->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    grid->addWidget(caption, line, 0, 1, colonnaAzioni + 2);
    grid->addWidget(above, line, colonnaAzioni + 2);
    grid->setColumnStretch(1, 1);
    return room;
}

} // namespace sagomi
