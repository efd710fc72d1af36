#include "frame/ui/GrigliaFattori.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include "frame/ui/Accessibilita.h"
#include "frame/ui/Voce.h"

namespace sagomi {

namespace {

constexpr int rigaTeste = 0;
constexpr int colonnaDiagrammi = 0;

/// Object names spell the first letter of a factor as a capital.
QString NomeFattore(const QByteArray& fattore) {
    QString name = QString::fromLatin1(fattore);
    name[0] = name[0].toUpper();
    return name;
}

/// C1 is a C with a subscript.
QLabel* CreaSimbolo(const QByteArray& fattore) {
    const QByteArray letter = fattore.left(1);
    const QByteArray index = fattore.mid(1);
    QLabel* symbol = CreaDicitura({"", letter.constData(), index.constData()},
                                  index.isEmpty() ? Qt::AlignCenter : Qt::AlignLeft | Qt::AlignVCenter);
    symbol->setObjectName(QStringLiteral("LblTesta") + NomeFattore(fattore));
    return symbol;
}

} // namespace

GrigliaFattori::GrigliaFattori(QWidget* parent) : QWidget(parent), griglia_(new QGridLayout(this)) {
    griglia_->setContentsMargins(0, 0, 0, 0);
    griglia_->setHorizontalSpacing(12);
    griglia_->setVerticalSpacing(2);
}

void GrigliaFattori::ImpostaTesta(const QString& testo) {
    testa_ = testo;
    QLabel* head = CreaDicitura({"LblTesta"}, Qt::AlignCenter);
    head->setText(testo);
    griglia_->addWidget(head, rigaTeste, colonnaDiagrammi);
}

void GrigliaFattori::ImpostaFattori(const QByteArray& fattori) {
    fattori_ = fattori.split(' ');
    if (!testa_.isEmpty())
        PosaTeste();
}

void GrigliaFattori::PosaTeste() {
    for (qsizetype i = 0; i < fattori_.size(); ++i)
        griglia_->addWidget(CreaSimbolo(fattori_[i]), rigaTeste, static_cast<int>(i) + 1, Qt::AlignCenter);
}

void GrigliaFattori::ImpostaRighe(int righe) {
    for (; righe_ < righe; ++righe_)
        PosaRiga(righe_);
}

/// The first factor but k is the one that is pressed.
void GrigliaFattori::PosaRiga(int riga) {
    QStringList names;
    for (const QByteArray& f : fattori_)
        if (f != "k")
            names << QString::fromLatin1(f);
    const QString tip = QStringLiteral("Copia k, ") +
                        names.mid(0, names.size() - 1).join(QStringLiteral(", ")) + QStringLiteral(" e ") +
                        names.last() + QStringLiteral(" nella verifica");
    for (qsizetype i = 0; i < fattori_.size(); ++i) {
        const bool pressed = names.first() == QString::fromLatin1(fattori_[i]);
        QWidget* cell = pressed ? static_cast<QWidget*>(new QPushButton)
                                : CreaDicitura({}, Qt::AlignRight | Qt::AlignVCenter);
        if (pressed)
            cell->setProperty(proprietaValore, true);
        cell->setObjectName(QStringLiteral("lbl") + NomeFattore(fattori_[i]) + u'_' + QString::number(riga));
        cell->setAccessibleName(QString::fromLatin1(fattori_[i]) + QStringLiteral(", riga ") +
                                QString::number(riga + 1));
        if (pressed)
            cell->setToolTip(tip);
        griglia_->addWidget(cell, riga + 1, static_cast<int>(i) + 1,
                            pressed ? Qt::Alignment() : Qt::AlignCenter);
    }
}

void GrigliaFattori::PosaDiagrammi(QWidget* diagrammi) {
    griglia_->addWidget(diagrammi, rigaTeste + 1, colonnaDiagrammi, righe_, 1);
}

QPushButton* GrigliaFattori::Bottone(int riga) const { return findChildren<QPushButton*>().value(riga); }

} // namespace sagomi
