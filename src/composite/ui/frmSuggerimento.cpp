#include "composite/ui/frmSuggerimento.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include <string>

#include "composite/ProgettoConnettori.h"
#include "composite/ui/TraveInUso.h"
#include "frame/ui/Casella.h"
#include "frame/ui/Mostra.h"
#include "frame/ui/NavigaSchermi.h"
#include "frame/ui/Protetto.h"
#include "frame/ui/Voce.h"

namespace sagomi {

frmSuggerimento::frmSuggerimento() : Schermo(QStringLiteral("frmSuggerimento")) {
    setWindowTitle(QStringLiteral("Suggerimento"));
    auto* content = new QWidget;
    auto* column = new QVBoxLayout(content);
    auto* text = new QLabel;
    text->setObjectName(QStringLiteral("lblSuggerimento"));
    text->setAccessibleName(QStringLiteral("Suggerimento"));
    text->setText(QString::fromStdString(TestoSuggerimento(1000)));
    column->addWidget(text);
    auto* row = new QHBoxLayout;
    row->addWidget(CreaCampo({.nome = "TxtNerv",
                              .caratteri = 5,
                              .aiuto = "Nervature con 2 connettori",
                              .letta = "Nervature con 2 connettori",
                              .genere = Genere::risultato}));
    auto* unit = new QLabel(QStringLiteral("nervatura"));
    unit->setObjectName(QStringLiteral("lblNerv"));
    row->addWidget(unit, 1);
    auto* ok = new QPushButton(QStringLiteral("&OK"));
    ok->setObjectName(QStringLiteral("cmdOK"));
    row->addWidget(ok);
    column->addLayout(row);
    setCentralWidget(content);
    PreparaContenuto();
    Collega(ok, &QPushButton::clicked, this, [this] { close(); });
    DimensionaIniziale({});
}

void frmSuggerimento::Apre(Schermo& da) {
    const auto* advice = dynamic_cast<ConsiglioPioli*>(&da);
    const int n = advice == nullptr ? 1 : advice->NervatureDoppie();
    Mostra(findChild<QLabel*>(QStringLiteral("lblSuggerimento")), TestoSuggerimento(n));
    findChild<QLineEdit*>(QStringLiteral("TxtNerv"))->setText(QString::number(n));
    findChild<QLabel*>(QStringLiteral("lblNerv"))->setText(n == 1 ? tr("nervatura") : tr("nervature"));
    NavigaSchermi::Unico().ApreDialogo(*this, da);
    findChild<QPushButton*>(QStringLiteral("cmdOK"))->setFocus();
}

} // namespace sagomi
