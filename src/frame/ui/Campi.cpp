#include "frame/ui/Campi.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QLocale>
#include <QMainWindow>
#include <QStatusBar>
#include <QTimer>

#include <algorithm>
#include <utility>

#include "frame/GeneraleSagomi.h"
#include "frame/Numeri.h"
#include "frame/NumeroPulito.h"
#include "frame/ui/Entrata.h"
#include "frame/ui/Protetto.h"
#include "frame/ui/UpDown.h"

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
    void Nasconde() override { box_->hide(); }

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

QString TestoPulito(const QLineEdit* casella) {
    return NumeroPulito(casella->text().toStdString())
               ? casella->text()
               : QString::fromStdString(TestoPiano(NumeroIn(casella)));
}

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
    : QObject(maschera), maschera_(maschera), invio_(std::move(invio)) {
    if (auto* window = qobject_cast<QMainWindow*>(maschera))
        window->statusBar(); // where an entry says how it was read
    // A button pressed by its key, or a step by the program, takes no focus away. What the end of the typing
    // has to say comes when the button is up again, before it acts: a message would take the release from it.
    for (QAbstractButton* button : maschera->findChildren<QAbstractButton*>())
        connect(button, &QAbstractButton::released, this, &FiltroCampi::Conclude);
    for (UpDown* steps : maschera->findChildren<UpDown*>())
        connect(steps, &UpDown::passo, this, &FiltroCampi::Conclude);
}

void FiltroCampi::Osserva(QLineEdit* casella) {
    new Entrata(casella);
    caselle_.append(casella);
    casella->installEventFilter(this);
}

bool FiltroCampi::InDigitazione() const {
    return std::ranges::any_of(caselle_, [](const QLineEdit* box) { return sagomi::InDigitazione(box); });
}

void FiltroCampi::Conclude() {
    for (QLineEdit* box : caselle_)
        ConcludeCasella(box);
}

/// The click that left a box acts first; a message in the middle of it would swallow it.
void FiltroCampi::AttendeRilascio() {
    if (!std::exchange(attendeRilascio_, true))
        qApp->installEventFilter(this);
}

void FiltroCampi::Rilasciato(const QObject* bersaglio) {
    attendeRilascio_ = false;
    qApp->removeEventFilter(this);
    if (qobject_cast<const QLineEdit*>(bersaglio) != nullptr)
        Conclude(); // nothing acts on a release there
    else
        QTimer::singleShot(0, this, &FiltroCampi::ConcludeDopoIlClic);
}

void FiltroCampi::ConcludeDopoIlClic() {
    constexpr int pausa = 50;                         // [ms]
    if (QApplication::activePopupWidget() != nullptr) // a list that the click has opened
        QTimer::singleShot(pausa, this, &FiltroCampi::ConcludeDopoIlClic);
    else
        EventoProtetto([this] { Conclude(); });
}

void FiltroCampi::ConcludeCasella(QLineEdit* casella) {
    if (!ChiusuraInCorso && Entrata::Di(casella)->Conclude())
        emit conclusa(casella);
}

void FiltroCampi::Entra(QLineEdit* casella, Qt::FocusReason ragione) {
    entrataColMouse_ = ragione == Qt::MouseFocusReason ? casella : nullptr;
    Entrata::Di(casella)->Dice();
    QTimer::singleShot(0, casella, [casella] {
        if (casella->hasFocus())
            SelezionaTesto(casella);
    });
}

bool FiltroCampi::Tasto(QLineEdit* casella, const QKeyEvent& tasto) {
    if (tasto.key() == Qt::Key_Return || tasto.key() == Qt::Key_Enter) {
        ConcludeCasella(casella);
        if (!invio_ || !invio_(casella))
            FuocoSuccessivo(maschera_);
        return true;
    }
    const bool keypad = (tasto.modifiers() & Qt::KeypadModifier) != 0 && !casella->isReadOnly();
    if (keypad && (tasto.key() == Qt::Key_Period || tasto.key() == Qt::Key_Comma)) {
        casella->insert(QString(QChar(CarDecimale)));
        return true;
    }
    return false;
}

bool FiltroCampi::eventFilter(QObject* object, QEvent* event) {
    return EventoProtetto([this, object, event] { return Filtra(object, event); });
}

bool FiltroCampi::Filtra(QObject* object, QEvent* event) {
    if (attendeRilascio_ && event->type() == QEvent::MouseButtonRelease)
        Rilasciato(object);
    auto* box = qobject_cast<QLineEdit*>(object);
    if (box == nullptr || !caselle_.contains(box))
        return false;
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) {
        const auto reason = static_cast<QFocusEvent*>(event)->reason();
        if (reason == Qt::PopupFocusReason || reason == Qt::ActiveWindowFocusReason)
            return false;
        if (event->type() == QEvent::FocusIn)
            Entra(box, reason);
        else if (reason == Qt::MouseFocusReason && QGuiApplication::mouseButtons() != Qt::NoButton)
            AttendeRilascio();
        else if (reason != Qt::MenuBarFocusReason)
            ConcludeCasella(box);
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
    return event->type() == QEvent::KeyPress && Tasto(box, *static_cast<QKeyEvent*>(event));
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
