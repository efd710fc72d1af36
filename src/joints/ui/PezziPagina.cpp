#include "joints/ui/PezziPagina.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include "drawing/ui/ImmagineDisegno.h"
#include "frame/ui/Accessibilita.h"

namespace sagomi {

namespace {

/// As small as its sign.
class Domanda : public QPushButton {
public:
    using QPushButton::QPushButton;
    [[nodiscard]] QSize sizeHint() const override {
        const QFontMetrics text = fontMetrics();
        return {text.horizontalAdvance(u'?') + text.averageCharWidth() + 6, text.height() + 5};
    }
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }
};

class Nota : public QLabel {
public:
    explicit Nota(int lines) : righe_(lines) {
        setTextFormat(Qt::PlainText);
        setWordWrap(lines > 1);
        setAlignment(Qt::AlignLeft | (lines > 1 ? Qt::AlignTop : Qt::AlignVCenter));
        setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    }
    [[nodiscard]] QSize sizeHint() const override { return {QLabel::sizeHint().width(), Altezza()}; }
    [[nodiscard]] QSize minimumSizeHint() const override { return {0, Altezza()}; }
    [[nodiscard]] bool hasHeightForWidth() const override { return false; }

private:
    [[nodiscard]] int Altezza() const { return righe_ * fontMetrics().lineSpacing() + 2; }
    int righe_;
};

} // namespace

QGridLayout* CreaStanza(QGroupBox* stanza, const char* nome, const char* titolo) {
    stanza->setObjectName(QString::fromUtf8(nome));
    stanza->setTitle(QString::fromUtf8(titolo));
    auto* grid = new QGridLayout(stanza);
    grid->setContentsMargins(9, 6, 9, 9);
    grid->setHorizontalSpacing(6);
    grid->setVerticalSpacing(4);
    return grid;
}

QList<QRadioButton*> CreaScelte(QWidget* padre, const char* nome, const QList<Scelta>& scelte) {
    auto* group = new QButtonGroup(padre);
    QList<QRadioButton*> buttons;
    for (const Scelta& s : scelte) {
        auto* button = new QRadioButton(QString::fromUtf8(s.testo));
        button->setObjectName(QString::fromUtf8(nome) + u'_' + QString::number(buttons.size()));
        button->setToolTip(QString::fromUtf8(s.aiuto));
        button->setAccessibleName(QString::fromUtf8(s.letta));
        group->addButton(button, static_cast<int>(buttons.size()));
        buttons << button;
    }
    return buttons;
}

QWidget* CreaFigura(const char* nome, const char* letta, const Disegno& disegno) {
    auto* picture = new ImmagineDisegno;
    picture->setObjectName(QString::fromUtf8(nome));
    picture->setAccessibleName(QString::fromUtf8(letta));
    picture->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    picture->Mostra(disegno);
    picture->setFocusPolicy(Qt::NoFocus);
    return picture;
}

QLabel* CreaScritta(const char* testo, QWidget* controllo) {
    auto* label = new QLabel(QString::fromUtf8(testo));
    label->setTextFormat(Qt::PlainText);
    label->setBuddy(controllo);
    return label;
}

QPushButton* CreaBottone(const char* nome, const char* testo, const char* aiuto) {
    auto* button = new QPushButton(QString::fromUtf8(testo));
    button->setObjectName(QString::fromUtf8(nome));
    button->setToolTip(QString::fromUtf8(aiuto));
    return button;
}

QPushButton* CreaDomanda(int indice, const char* letta, const char* casella) {
    auto* button = new Domanda;
    button->setProperty(proprietaValore, true);
    button->setText(QStringLiteral("?"));
    button->setObjectName(QStringLiteral("lblInfo_") + QString::number(indice));
    button->setAccessibleName(QStringLiteral("Come migliorare: ") + QString::fromUtf8(letta));
    button->setProperty(proprietaCasella, QString::fromUtf8(casella));
    button->setToolTip(QStringLiteral("Come migliorare il risultato (%1 nella sua casella)")
                           .arg(QKeySequence(tastoDomanda).toString(QKeySequence::NativeText)));
    button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    return button;
}

QLabel* CreaEsposto(const char* nome, const char* letta, const char* testo) {
    QLabel* label = CreaScritta(testo);
    label->setObjectName(QString::fromUtf8(nome));
    label->setAccessibleName(QString::fromUtf8(letta));
    return label;
}

QLabel* CreaNota(const char* nome, const char* letta, int righe) {
    auto* label = new Nota(righe);
    label->setObjectName(QString::fromUtf8(nome));
    label->setAccessibleName(QString::fromUtf8(letta));
    return label;
}

QHBoxLayout* InRiga(const QList<QWidget*>& pezzi) {
    auto* row = new QHBoxLayout;
    row->setSpacing(6);
    for (QWidget* piece : pezzi)
        row->addWidget(piece);
    row->addStretch(1);
    return row;
}

QHBoxLayout* ScelteInRiga(const QList<QRadioButton*>& scelte) {
    QList<QWidget*> pieces;
    for (QRadioButton* button : scelte)
        pieces << button;
    return InRiga(pieces);
}

} // namespace sagomi
