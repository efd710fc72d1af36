#include "frame/ui/Entrata.h"

#include <QLineEdit>
#include <QSignalBlocker>
#include <QStatusBar>
#include <QValidator>

#include <algorithm>
#include <cmath>

#include "frame/Numeri.h"
#include "frame/NumeroPulito.h"
#include "frame/ui/Casella.h"
#include "frame/ui/NumeroIn.h"

namespace sagomi {

namespace {

constexpr int durataAvviso = 8000; ///< how long the status line tells of a box that has been left [ms]

QString Ripulito(const QString& text) { return QString::fromStdString(NumeroRipulito(text.toStdString())); }

/// How many characters one change has put into a text.
qsizetype Inseriti(const QString& before, const QString& after) {
    const auto shorter = std::min(before.size(), after.size());
    qsizetype front = 0;
    while (front < shorter && before[front] == after[front])
        ++front;
    qsizetype back = 0;
    while (back < shorter - front && before[before.size() - 1 - back] == after[after.size() - 1 - back])
        ++back;
    return after.size() - front - back;
}

/// Refuses nothing: it puts the text right while it arrives. What comes in one piece was pasted, or written
/// by the program, and loses the blanks around it; a blank that is typed stays and is told.
class Ripulitura : public QValidator {
public:
    using QValidator::QValidator;

    State validate(QString& input, int& pos) const override {
        QString front = Ripulito(input.left(pos));
        QString text = Ripulito(input);
        if (Inseriti(prima_, text) > 1) {
            const auto blanks = text.size() - (text + u'.').trimmed().size() + 1;
            text = text.trimmed();
            pos = static_cast<int>(std::clamp<qsizetype>(front.size() - blanks, 0, text.size()));
        } else {
            pos = static_cast<int>(front.size());
        }
        input = text;
        prima_ = text;
        return Acceptable;
    }

private:
    mutable QString prima_; ///< the text as it last was
};

bool Pulito(const QString& text) { return NumeroPulito(text.toStdString()); }

/// "-", "1E", "2,": a number on its way.
bool Avviato(const QString& text) { return !text.isEmpty() && !text.back().isDigit() && Pulito(text + u'0'); }

} // namespace

Entrata::Entrata(QLineEdit* casella) : QObject(casella), casella_(casella) {
    casella->setValidator(new Ripulitura(this));
    connect(casella, &QLineEdit::textEdited, this, [this](const QString& text) {
        digitata_ = true;
        testoDigitato_ = text;
    });
    connect(casella, &QLineEdit::textChanged, this, &Entrata::Aggiorna);
    Aggiorna();
}

Entrata* Entrata::Di(const QLineEdit* casella) {
    return casella->findChild<Entrata*>(QString(), Qt::FindDirectChildrenOnly);
}

// The program's own writing ends the typing by itself: the text is no longer the one that was typed.
bool Entrata::InDigitazione() const { return digitata_ && casella_->text() == testoDigitato_; }

bool Entrata::Conclude() {
    const bool typed = InDigitazione();
    digitata_ = false;
    const QString text = casella_->text();
    const double value = NumeroIn(casella_);
    if (!Pulito(text) && std::isfinite(value)) {
        const QString read = Lettura();
        const QSignalBlocker quiet(casella_); // the number is the same
        casella_->setText(QString::fromStdString(TestoPiano(value)));
        Aggiorna();
        if (QStatusBar* bar = Barra())
            bar->showMessage(u'"' + text + QStringLiteral("\" ") + read, durataAvviso);
    } else {
        Aggiorna();
    }
    return typed;
}

void Entrata::Segna(const QString& motivo) {
    motivo_ = motivo;
    Aggiorna();
}

QString Entrata::Lettura() const {
    const QString text = casella_->text();
    const double value = NumeroIn(casella_);
    if (!std::isfinite(value))
        return tr("numero troppo grande");
    if (Pulito(text) || (InDigitazione() && Avviato(text)))
        return {};
    return tr("letto come ") + QString::fromStdString(TestoPiano(value));
}

void Entrata::Aggiorna() {
    QString said = motivo_;
    const QString read = Lettura();
    if (!said.isEmpty() && !read.isEmpty())
        said += u'\n';
    said += read;
    if (said != detto_)
        MostraSegni(said);
    if (auto* box = qobject_cast<Casella*>(casella_))
        box->ImpostaSegno(!motivo_.isEmpty() ? Casella::Impossibile
                          : !read.isEmpty()  ? Casella::Riletta
                                             : Casella::Nessuno);
}

void Entrata::MostraSegni(const QString& detto) {
    if (detto_.isEmpty()) {
        suggerimento_ = casella_->toolTip();
        descrizione_ = casella_->accessibleDescription();
    }
    QStatusBar* bar = Barra();
    if (bar != nullptr && !detto_.isEmpty() && bar->currentMessage() == QString(detto_).replace(u'\n', u' '))
        bar->clearMessage();
    detto_ = detto;
    casella_->setToolTip(detto.isEmpty() ? suggerimento_ : detto);
    casella_->setAccessibleDescription(detto.isEmpty() ? descrizione_ : detto);
    Dice();
}

void Entrata::Dice() const {
    if (QStatusBar* bar = Barra(); bar != nullptr && !detto_.isEmpty())
        bar->showMessage(QString(detto_).replace(u'\n', u' '));
}

QStatusBar* Entrata::Barra() const { return casella_->window()->findChild<QStatusBar*>(); }

bool InDigitazione(const QLineEdit* casella) {
    const Entrata* entry = Entrata::Di(casella);
    return entry != nullptr && entry->InDigitazione();
}

void SegnaEntrata(QLineEdit* casella, const QString& motivo) {
    if (Entrata* entry = Entrata::Di(casella))
        entry->Segna(motivo);
}

} // namespace sagomi
