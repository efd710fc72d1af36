#include "frame/ui/Campi.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLocale>
#include <QTimer>

#include "frame/Numeri.h"
#include "frame/ui/Protetto.h"

namespace sagomi {

namespace {

bool AccettaFuoco(const QWidget* w) {
    return w->isEnabled() && w->isVisibleTo(w->window()) && (w->focusPolicy() & Qt::TabFocus) != 0;
}

/// The hidden box as the separator check sees it.
class CasellaNascosta : public CasellaTesto {
public:
    explicit CasellaNascosta(QLineEdit* box) : box_(box) {}
    void Testo(std::string_view testo) override {
        box_->setText(QString::fromUtf8(testo.data(), static_cast<qsizetype>(testo.size())));
    }
    [[nodiscard]] std::string Testo() const override { return box_->text().toStdString(); }
    void Nascondi() override { box_->hide(); }

private:
    QLineEdit* box_;
};

char16_t PrimoCarattere(const QString& text, char16_t fallback) {
    return text.isEmpty() ? fallback : text.front().unicode();
}

} // namespace

void SelezionaTesto(QLineEdit* casella) { casella->selectAll(); }

void FuocoSu(QLineEdit* casella) {
    casella->setFocus(Qt::TabFocusReason);
    SelezionaTesto(casella);
}

void FuocoSuccessivo(QWidget* maschera) {
    QWidget* active = maschera->focusWidget();
    if (active == nullptr)
        return;
    for (QWidget* w = active->nextInFocusChain(); w != active && w != maschera; w = w->nextInFocusChain()) {
        if (!AccettaFuoco(w))
            continue;
        w->setFocus(Qt::TabFocusReason);
        if (auto* box = qobject_cast<QLineEdit*>(w))
            SelezionaTesto(box);
        return;
    }
}

double NumeroIn(const QLineEdit* casella) { return ValoreNumerico(casella->text().toStdString()); }

void LeggeScriveTesto(std::string_view modo, QLineEdit* controllo, double& valore) {
    if (modo == "L")
        valore = NumeroIn(controllo);
    else
        controllo->setText(QString::fromStdString(TestoPiano(valore)));
}

void LeggeScriveTesto(std::string_view modo, QLineEdit* controllo, std::string& valore) {
    if (modo == "L")
        valore = controllo->text().toStdString();
    else
        controllo->setText(QString::fromStdString(valore));
}

FiltroCampi::FiltroCampi(QWidget* maschera, RegolaInvio invio)
    : QObject(maschera), maschera_(maschera), invio_(std::move(invio)) {}

void FiltroCampi::Osserva(QLineEdit* casella) { casella->installEventFilter(this); }

bool FiltroCampi::eventFilter(QObject* object, QEvent* event) {
    return EventoProtetto([this, object, event] { return Filtra(object, event); });
}

bool FiltroCampi::Filtra(QObject* object, QEvent* event) {
    auto* box = qobject_cast<QLineEdit*>(object);
    if (box == nullptr)
        return false;
    if (event->type() == QEvent::FocusIn) {
        const auto reason = static_cast<QFocusEvent*>(event)->reason();
        if (reason == Qt::PopupFocusReason || reason == Qt::ActiveWindowFocusReason)
            return false;
        entrataColMouse_ = reason == Qt::MouseFocusReason ? box : nullptr;
        QTimer::singleShot(0, box, [box] {
            if (box->hasFocus())
                SelezionaTesto(box);
        });
        return false;
    }
    // The click that brings the focus neither places the cursor nor drags a selection: it selects all.
    if (box == entrataColMouse_ && event->type() == QEvent::MouseMove)
        return true;
    if (box == entrataColMouse_ && event->type() == QEvent::MouseButtonRelease) {
        entrataColMouse_ = nullptr;
        QTimer::singleShot(0, box, [box] { SelezionaTesto(box); });
        return false;
    }
    if (event->type() != QEvent::KeyPress)
        return false;
    const auto* key = static_cast<QKeyEvent*>(event);
    if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
        if (!invio_ || !invio_(box))
            FuocoSuccessivo(maschera_);
        return true;
    }
    const bool keypad = (key->modifiers() & Qt::KeypadModifier) != 0 && !box->isReadOnly();
    if (keypad && (key->key() == Qt::Key_Period || key->key() == Qt::Key_Comma)) {
        box->insert(QString(QChar(CarDecimale)));
        return true;
    }
    return false;
}

void SeparatoriControlla(QLineEdit* casella, bool silenzioso, bool* esito) {
    const QLocale system = QLocale::system();
    CasellaNascosta box(casella);
    SeparatoriControlla(box,
                        Separatori{PrimoCarattere(system.decimalPoint(), u'.'),
                                   PrimoCarattere(system.groupSeparator(), u',')},
                        silenzioso, esito);
}

} // namespace sagomi
