#include "screens/PannelloRisultati.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <algorithm>
#include <stdexcept>
#include <string>

#include "frame/ui/ColonnaDecimali.h"
#include "frame/ui/GruppoVoci.h"
#include "screens/NoteSezione.h"
#include "screens/VociSezione.h"

namespace sagomi {

namespace {

QPushButton* CreaDettagli(const char* name, const char* tip, const char* read) {
    auto* button = new QPushButton(QStringLiteral("Dettagli"));
    button->setObjectName(QString::fromUtf8(name));
    button->setToolTip(QString::fromUtf8(tip));
    button->setAccessibleName(QString::fromUtf8(read));
    return button;
}

/// @return columns taken
int PosaResistenze(QGridLayout& grid, const RigaResistenze& line, int row) {
    int column = 0;
    for (const Voce& v : line.assi) {
        const Coppia pair = CreaCoppia(v);
        grid.addWidget(pair.etichetta, row, column++);
        grid.addWidget(pair.campo, row, column++);
    }
    if (*line.bottone != '\0')
        grid.addWidget(CreaDettagli(line.bottone, line.aiutoBottone, line.lettoBottone), row, column++);
    return column;
}

} // namespace

PannelloRisultati::PannelloRisultati(QWidget* parent) : QWidget(parent) {}

void PannelloRisultati::ImpostaSchermo(const QByteArray& nome) {
    schermo_ = nome;
    const VociSchermo& results = VociDi(nome.toStdString());
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(6);
    row->addWidget(CreaClassi(results));
    row->addWidget(CreaResistenze(results), 1);
}

void PannelloRisultati::Mostra(const char* nome, const QString& testo) {
    auto* box = findChild<QLineEdit*>(QString::fromUtf8(nome));
    if (box == nullptr)
        throw std::out_of_range(std::string("nessun risultato \"") + nome + "\"");
    box->setText(testo);
}

void PannelloRisultati::Svuota(const QString& array) {
    for (QLineEdit* box : findChildren<QLineEdit*>())
        if (array.isEmpty() || box->objectName().startsWith(array + u'_'))
            box->clear();
}

QWidget* PannelloRisultati::CreaClassi(const VociSchermo& voci) {
    auto* room = new GruppoVoci;
    room->setObjectName(QStringLiteral("fraClasse"));
    room->setTitle(tr("Classe"));
    QGridLayout* grid = room->InColonne(voci.classi);
    grid->addWidget(CreaDettagli("LblClasse", "Come nasce la classe di ogni parte", "Dettagli della classe"),
                    grid->rowCount(), 0, 1, 2);
    return room;
}

QWidget* PannelloRisultati::CreaResistenze(const VociSchermo& voci) {
    auto* room = new QGroupBox(tr("Resistenze di progetto"));
    room->setObjectName(QStringLiteral("fraResistenze"));
    auto* grid = new QGridLayout(room);
    grid->setContentsMargins(9, 6, 9, 9);
    grid->setHorizontalSpacing(4);
    grid->setVerticalSpacing(4);
    int row = 0;
    int columns = 0;
    for (const RigaResistenze& line : voci.resistenze)
        columns = std::max(columns, PosaResistenze(*grid, line, row++));
    AllineaDecimali(*grid);
    grid->addItem(new QSpacerItem(0, 0, QSizePolicy::Expanding), 0, columns);
    if (voci.note)
        for (const char* note : {"LblFibraInferiore", "LblAliDiverse"})
            grid->addWidget(CreaNota(note), row++, 0, 1, columns);
    grid->addItem(new QSpacerItem(0, 0, QSizePolicy::Minimum, QSizePolicy::Expanding), row, 0);
    return room;
}

} // namespace sagomi
