#include "screens/CorpoSezione.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <utility>

#include "catalogue/Famiglie.h"
#include "catalogue/ui/GrigliaCatalogo.h"
#include "drawing/ui/ImmagineDisegno.h"
#include "frame/ui/Casella.h"
#include "screens/PannelloDati.h"
#include "screens/PannelloDoppi.h"
#include "screens/PannelloFamiglie.h"
#include "screens/PannelloRisultati.h"
#include "screens/PannelloUtente.h"
#include "screens/StanzaTabella.h"
#include "screens/ValoriRiga.h"
#include "screens/VociSezione.h"
#include "sections/DisegnoSagoma.h"

namespace sagomi {

namespace {

constexpr int spazio = 6; ///< between rooms [px]

/// The designation, read only, above the picture.
Casella* CreaNome(QWidget* genitore) {
    auto* name = new Casella(genitore);
    name->setObjectName(QStringLiteral("TxtProf_0"));
    name->ImpostaCaratteri(13);
    name->ImpostaRisultato(true);
    name->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    name->setAlignment(Qt::AlignCenter);
    name->setToolTip(QObject::tr("Nome del sagomo nel catalogo"));
    name->setAccessibleName(QObject::tr("Sagomo"));
    return name;
}

QPushButton* CreaComando(QWidget* genitore, const char* nome, const char* testo, const char* aiuto) {
    auto* command = new QPushButton(QString::fromUtf8(testo), genitore);
    command->setObjectName(QString::fromLatin1(nome));
    command->setToolTip(QString::fromUtf8(aiuto));
    return command;
}

} // namespace

CorpoSezione::CorpoSezione(QByteArray schermo, QWidget* parent)
    : QWidget(parent), schermo_(std::move(schermo)) {
    setObjectName(QStringLiteral("centrale"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(9, 6, 9, 6);
    column->setSpacing(spazio);
    PosaTabella(*column);
    auto* below = new QHBoxLayout;
    below->setSpacing(spazio);
    column->addLayout(below);
    below->addWidget(CreaDisegno(), 1);
    below->addWidget(CreaValori());
    PosaDestra(*below);
}

/// A panel that builds itself for the screen.
template <typename P> P* CorpoSezione::CreaPannello(const char* nome, QWidget* genitore) {
    auto* panel = new P(genitore);
    panel->setObjectName(QString::fromLatin1(nome));
    panel->ImpostaSchermo(schermo_);
    return panel;
}

void CorpoSezione::PosaTabella(QBoxLayout& colonna) {
    colonna.addWidget(CreaPannello<PannelloFamiglie>("famiglie", this));
    auto* table = new GrigliaCatalogo;
    table->setObjectName(QStringLiteral("DBGrid1"));
    table->setAccessibleName(tr("Tabella dei sagomi"));
    table->ImpostaRiempie(true);
    colonna.addWidget(new StanzaTabella(table, this), 1);
}

QWidget* CorpoSezione::CreaDisegno() {
    auto* room = new QGroupBox(tr("Sagomo"), this);
    room->setObjectName(QStringLiteral("fraDisegno"));
    auto* column = new QVBoxLayout(room);
    column->setContentsMargins(9, 6, 9, 9);
    column->setSpacing(4);
    column->addWidget(CreaNome(room));
    auto* picture = new ImmagineDisegno(room);
    picture->setObjectName(QStringLiteral("Picture1"));
    picture->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    picture->setAccessibleName(tr("Disegno della sezione"));
    picture->Mostra(DisegnoSagoma({})); // it draws nothing yet and takes its room
    column->addWidget(picture, 1);
    return room;
}

/// The values of the row; what the user types of a section of his own takes their place.
QWidget* CorpoSezione::CreaValori() {
    if (FamigliaDi(schermo_.toStdString()).foglioUtente.empty())
        return CreaPannello<ValoriRiga>("fraValori", this);
    auto* pages = new QStackedWidget(this);
    pages->setObjectName(QStringLiteral("pagineValori"));
    pages->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    pages->addWidget(CreaPannello<ValoriRiga>("Frame1", pages));
    pages->addWidget(CreaPannello<DatiUtente>("frUtenteEdita", pages));
    return pages;
}

void CorpoSezione::PosaDestra(QBoxLayout& riga) {
    auto* column = new QVBoxLayout;
    column->setSpacing(spazio);
    riga.addLayout(column);
    column->addWidget(CreaPannello<PannelloDati>("fraDati", this));
    if (*VociDi(schermo_.toStdString()).accosta.nome != '\0')
        column->addWidget(CreaPannello<PannelloDoppi>("doppi", this));
    column->addWidget(CreaPannello<PannelloRisultati>("risultati", this), 1);
    PosaComandi(*column);
}

void CorpoSezione::PosaComandi(QBoxLayout& colonna) {
    auto* row = new QHBoxLayout;
    row->setSpacing(spazio);
    colonna.addLayout(row);
    auto* back = CreaComando(this, "cmdSceltaSagomoGiunto", "Ritorna alla Form Giunto",
                             "Porta nel giunto il sagomo scelto");
    back->hide();
    row->addWidget(back);
    row->addStretch();
    if (VociDi(schermo_.toStdString()).membratura) {
        row->addWidget(CreaComando(this, "Command1", "P&resso Flessione",
                                   "Verifica della membratura a sforzo normale e flessione"));
        row->addWidget(
            CreaComando(this, "Command2", "&Svergolamento", "Verifica all'instabilità flesso-torsionale"));
    }
    row->addWidget(CreaComando(this, "CmdPlotta", "Plotta", "Disegno della sezione in scala"));
}

} // namespace sagomi
