#include "screens/PannelloUtente.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>

#include "frame/ui/Accessibilita.h"
#include "screens/VociSezione.h"

namespace sagomi {

namespace {

/// A button of an array of controls.
struct Comando {
    const char* testo;
    const char* aiuto;
};

constexpr Comando comandi[] = {{"Aggiungi", "Aggiunge un nuovo sagomo"},
                               {"Modifica", "Modifica il sagomo selezionato"},
                               {"Elimina", "Elimina il sagomo selezionato"}};

constexpr Comando conclusioni[] = {
    {"Aggiungi Nuovo Sagomo", "Calcola i valori statici e aggiunge il sagomo a SagomiUtente.xls"},
    {"Annulla/Esci", "Torna ai valori del sagomo"},
    {"Inserisci Modifiche", "Calcola i valori statici e riscrive il sagomo in SagomiUtente.xls"}};

QPushButton* CreaBottone(QWidget* genitore, const char* array, int i, const Comando& comando) {
    auto* button = new QPushButton(QString::fromUtf8(comando.testo), genitore);
    button->setObjectName(QString::fromLatin1(array) + u'_' + QString::number(i));
    button->setToolTip(QString::fromUtf8(comando.aiuto));
    button->setProperty(proprietaSuggerimento, true);
    return button;
}

} // namespace

ComandiUtente::ComandiUtente(QWidget* parent) : QGroupBox(tr("Edita Sagomo Utente"), parent) {
    setObjectName(QStringLiteral("frUtenteComandi"));
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(9, 3, 9, 5);
    row->setSpacing(6);
    int i = 0;
    for (const Comando& command : comandi)
        row->addWidget(CreaBottone(this, "cmdUtente", i++, command));
    hide();
}

DatiUtente::DatiUtente(QWidget* parent) : GruppoVoci(parent) { setTitle(tr("Dati Sagomo Utente")); }

void DatiUtente::ImpostaSchermo(const QByteArray& nome) {
    QGridLayout* grid = InColonne(VociUtente(nome.toStdString()));
    auto* name = findChild<QLineEdit*>(QStringLiteral("TxtProfUtente_0"));
    name->setProperty("testo", true);
    name->setAlignment(Qt::AlignLeft);
    auto* row = new QHBoxLayout;
    row->setSpacing(6);
    for (const int i : {0, 2, 1})
        row->addWidget(CreaBottone(this, "cmdUtenteEdita", i, conclusioni[i]));
    row->addStretch();
    const int below = grid->rowCount();
    grid->addItem(new QSpacerItem(0, 4), below, 0);
    grid->addLayout(row, below + 1, 0, 1, 3);
    grid->setColumnStretch(2, 1);
    grid->setRowStretch(below + 2, 1);
}

} // namespace sagomi
