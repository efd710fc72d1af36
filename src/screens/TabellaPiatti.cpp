#include "screens/TabellaPiatti.h"

#include <QGridLayout>
#include <QLabel>

#include <stdexcept>
#include <string>

#include "frame/ui/EtichettaRisultato.h"

namespace sagomi {

namespace {

// Columns: the plate, length x thickness, slenderness, then limits and class in bending and in compression.
constexpr int colonnaNome = 0;
constexpr int colonnaLunghezza = 1;
constexpr int colonnaPer = 2;
constexpr int colonnaSpessore = 3;
constexpr int colonnaSnellezza = 4;
constexpr int colonnaFlessione = 5;
constexpr int colonnaStacco = 8;
constexpr int colonnaCompressione = 9;
constexpr int colonnaResto = 12;
constexpr int righeTesta = 2;
constexpr int stacco = 12; ///< between bending and compression [px]

constexpr auto norma = ", EC3 tabella 5.2";

QString Testo(const char* text) { return QString::fromUtf8(text); }

EtichettaRisultato* CreaLimite(const Piatto& piatto, int index, bool upper, bool bending) {
    EtichettaRisultato* limit = CreaValore({.caratteri = 5});
    const QString action = bending ? QStringLiteral("flessione") : QStringLiteral("compressione");
    limit->setObjectName(Testo(piatto.limiti) + u'_' + QString::number(index));
    limit->setToolTip((upper ? QStringLiteral("Limite superiore") : QStringLiteral("Limite inferiore")) +
                      QStringLiteral(" della classe ") + Testo(piatto.delPiatto) + QStringLiteral(" a ") +
                      action + Testo(norma));
    limit->setAccessibleName(Testo(piatto.nome) + (upper ? QStringLiteral(" a ") : QStringLiteral(" da ")) +
                             action);
    return limit;
}

EtichettaRisultato* CreaClasse(const Piatto& piatto, const char* name, const QString& action) {
    EtichettaRisultato* label = CreaValore({.nome = name, .caratteri = 2});
    QFont bold = label->font();
    bold.setBold(true);
    label->setFont(bold);
    label->setToolTip(QStringLiteral("Classe ") + Testo(piatto.delPiatto) + QStringLiteral(" a ") + action +
                      Testo(norma));
    label->setAccessibleName(Testo(piatto.nome) + QStringLiteral(" classe ") + action);
    return label;
}

} // namespace

TabellaPiatti::TabellaPiatti(QWidget* parent) : QWidget(parent), griglia_(new QGridLayout(this)) {
    griglia_->setContentsMargins(0, 0, 0, 0);
    griglia_->setHorizontalSpacing(6);
    griglia_->setVerticalSpacing(3);
}

void TabellaPiatti::Compone(const std::vector<Piatto>& piatti) {
    PosaTeste();
    for (const Piatto& p : piatti) {
        piatti_.append(QWidgetList());
        PosaPiatto(p, static_cast<int>(piatti_.size()) - 1);
    }
    griglia_->addItem(new QSpacerItem(0, 0, QSizePolicy::Expanding), 0, colonnaResto);
}

void TabellaPiatti::PosaTeste() {
    PosaTesto("[mm]", 0, colonnaLunghezza, 3);
    PosaTesto("Snellezza", 0, colonnaSnellezza);
    PosaTesto("Flessione", 0, colonnaFlessione, 3);
    PosaTesto("Compressione", 0, colonnaCompressione, 3);
    griglia_->addItem(new QSpacerItem(stacco, 0, QSizePolicy::Fixed), 0, colonnaStacco);
    for (const int first : {colonnaFlessione, colonnaCompressione}) {
        PosaTesto("da", 1, first);
        PosaTesto("a", 1, first + 1);
        PosaTesto("classe", 1, first + 2);
    }
}

QLabel* TabellaPiatti::PosaTesto(const char* testo, int riga, int colonna, int colonne) {
    QLabel* label = CreaDicitura({"", testo}, Qt::AlignCenter);
    griglia_->addWidget(label, riga, colonna, 1, colonne);
    return label;
}

void TabellaPiatti::Posa(QWidget* parte, int riga, int colonna) {
    griglia_->addWidget(parte, riga, colonna);
    piatti_.last().append(parte);
}

/// Two rows: captions, values.
void TabellaPiatti::PosaPiatto(const Piatto& piatto, int indice) {
    const int row = righeTesta + 2 * indice + 1;
    Posa(CreaDicitura({piatto.didascalie, piatto.nome}), row, colonnaNome);
    PosaDimensioni(piatto, row);
    PosaLimiti(piatto, row);
    PosaClassi(piatto, row);
}

void TabellaPiatti::PosaDimensioni(const Piatto& piatto, int riga) {
    const QString root = Testo(piatto.didascalie);
    const auto place = [&](const Voce& voce, const char* suffix, int column) {
        QLabel* caption = CreaDicitura(voce.etichetta, Qt::AlignCenter);
        caption->setObjectName(root + QString::fromLatin1(suffix));
        QWidget* value = CreaValore(voce);
        caption->setBuddy(value);
        Posa(caption, riga - 1, column);
        Posa(value, riga, column);
    };
    place(piatto.lunghezza, "Dim1", colonnaLunghezza);
    QLabel* times = CreaDicitura({"", " x "}, Qt::AlignCenter);
    times->setObjectName(root + QStringLiteral("Per"));
    Posa(times, riga, colonnaPer);
    place(piatto.spessore, "Dim2", colonnaSpessore);
    place(piatto.snellezza, "Sn", colonnaSnellezza);
}

void TabellaPiatti::PosaLimiti(const Piatto& piatto, int riga) {
    int index = 0;
    for (const bool bending : {true, false}) {
        if (bending && !piatto.limitiFlessione)
            continue;
        const int first = bending ? colonnaFlessione : colonnaCompressione;
        for (const bool upper : {false, true})
            Posa(CreaLimite(piatto, index++, upper, bending), riga, first + (upper ? 1 : 0));
    }
}

void TabellaPiatti::PosaClassi(const Piatto& piatto, int riga) {
    Posa(CreaClasse(piatto, piatto.classeF, QStringLiteral("flessione")), riga, colonnaFlessione + 2);
    Posa(CreaClasse(piatto, piatto.classeC, QStringLiteral("compressione")), riga, colonnaCompressione + 2);
}

QLabel* TabellaPiatti::Valore(const char* nome) const {
    auto* label = findChild<QLabel*>(QString::fromUtf8(nome));
    if (label == nullptr)
        throw std::out_of_range(std::string("nessun valore \"") + nome + "\"");
    return label;
}

void TabellaPiatti::MostraPiatto(int indice, bool visibile) {
    for (QWidget* part : piatti_[indice])
        part->setVisible(visibile);
}

} // namespace sagomi
