#include "frame/ui/GrigliaDerivazione.h"

#include <QGridLayout>
#include <QLabel>

#include "frame/ui/EtichettaFormula.h"
#include "frame/ui/EtichettaRisultato.h"

namespace sagomi {

namespace {

constexpr int colonnaNome = 0;
constexpr int colonnaFormula = 1;
constexpr int colonnaValori = 2;
constexpr int cifreValore = 9;
constexpr int decimaliValore = 4;

const Qt::Alignment sinistra = Qt::AlignLeft | Qt::AlignVCenter;

EtichettaRisultato* CreaValoreAsse(const Passo& passo, const QString& asse, qsizetype i) {
    EtichettaRisultato* value = CreaValore({.caratteri = cifreValore, .decimali = decimaliValore});
    const QString root = QString::fromUtf8(passo.radice);
    value->setObjectName(QStringLiteral("Lbl_") + root + u'_' + QString::number(i));
    value->setToolTip(QString::fromUtf8(passo.aiuto) + QStringLiteral(" per inflessione intorno a ") + asse +
                      QStringLiteral(", ") + QString::fromUtf8(passo.norma));
    value->setAccessibleName(QString::fromUtf8(passo.letta) + u' ' + asse);
    return value;
}

QLabel* CreaFormula(const Passo& passo) {
    auto* label = new EtichettaFormula;
    label->setObjectName(QStringLiteral("LblFormula") + QString::fromUtf8(passo.radice));
    label->ImpostaFormula(QString::fromUtf8(passo.formula));
    return label;
}

QLabel* CreaNorma(const Passo& passo) {
    QLabel* label = CreaDicitura({"", passo.norma}, sinistra);
    label->setObjectName(QStringLiteral("LblNorma") + QString::fromUtf8(passo.radice));
    return label;
}

void PosaPasso(QGridLayout& grid, int row, const Passo& passo, const QStringList& assi) {
    QLabel* name = CreaDicitura(passo.nome, sinistra);
    name->setObjectName(QStringLiteral("LblNome") + QString::fromUtf8(passo.radice));
    grid.addWidget(name, row, colonnaNome);
    grid.addWidget(CreaFormula(passo), row, colonnaFormula);
    int column = colonnaValori;
    for (qsizetype i = 0; i < assi.size(); ++i) {
        EtichettaRisultato* value = CreaValoreAsse(passo, assi[i], i);
        if (i == 0)
            name->setBuddy(value);
        grid.addWidget(value, row, column++);
    }
    grid.addWidget(CreaNorma(passo), row, column);
}

} // namespace

GrigliaDerivazione::GrigliaDerivazione(QWidget* parent) : QWidget(parent) {}

void GrigliaDerivazione::Compone(const std::vector<Passo>& passi, const QStringList& assi) {
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(12);
    grid->setVerticalSpacing(4);
    int column = colonnaValori;
    for (const QString& axis : assi) {
        QLabel* head = CreaDicitura({}, Qt::AlignCenter);
        head->setText(axis);
        head->setObjectName(QStringLiteral("LblAsse_") + QString::number(column - colonnaValori));
        grid->addWidget(head, 0, column++);
    }
    int row = 1;
    for (const Passo& step : passi)
        PosaPasso(*grid, row++, step, assi);
    grid->addItem(new QSpacerItem(0, 0, QSizePolicy::Expanding, QSizePolicy::Minimum), 1, column + 1);
}

} // namespace sagomi
