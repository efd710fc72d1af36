#include "frame/ui/Schermo.h"

#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QFontDatabase>
#include <QKeyEvent>
#include <QLabel>
#include <QLayout>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QStatusBar>

#include <algorithm>
#include <utility>

#include "frame/GeneraleSagomi.h"
#include "frame/ui/Accessibilita.h"
#include "frame/ui/Campi.h"
#include "frame/ui/Copie.h"
#include "frame/ui/Protetto.h"
#include "frame/ui/ScalaCaratteri.h"
#include "frame/ui/StampaDiSchermo.h"
#include "frame/ui/Tasti.h"

namespace sagomi {

namespace {

/// Width of a title in the bar of its window, between the menu and the buttons.
int LarghezzaTitolo(const QString& title) {
    constexpr int tasti = 4 * 36; // menu, minimise, maximise, close
    const QFontMetrics metrics(QFontDatabase::systemFont(QFontDatabase::TitleFont));
    return title.isEmpty() ? 0 : metrics.horizontalAdvance(title) + tasti;
}

/// The largest content of a window on a desktop.
QSize StanzaDi(const QScreen& screen) {
    constexpr QSize cornice(16, 54); // title bar and borders of the window manager
    return screen.availableGeometry().size() - cornice;
}

/// Layouts keep the sizes that they know: those of other fonts, or of other texts while nobody looks.
void RinnovaMisure(const QWidget& window) {
    for (QWidget* w : window.findChildren<QWidget*>()) {
        w->ensurePolished();                          // the style may have its say on sizes
        if (qobject_cast<QComboBox*>(w) != nullptr) { // it keeps the least size that it had with other fonts
            QEvent again(QEvent::StyleChange);
            QApplication::sendEvent(w, &again);
        }
        w->updateGeometry();
    }
    for (QLayout* layout : window.findChildren<QLayout*>())
        layout->invalidate();
    if (auto* bar = window.findChild<QStatusBar*>()) { // it measures its font only then
        QEvent asked(QEvent::LayoutRequest);
        QApplication::sendEvent(bar, &asked);
    }
}

/// Below this ratio the figures would be too small for the eye.
double RapportoLeggibile(const QWidget& w) {
    constexpr double corpoMinimo = 6; // at the pixels of the device [pt]
    return std::min(1.0, corpoMinimo / (QApplication::font().pointSizeF() * w.devicePixelRatioF()));
}

} // namespace

namespace {

StampaDiSchermo& StampaInForza() {
    static StampaDiSchermo print;
    return print;
}

/// @return whether the key was one of those that print
bool Stampa(Schermo& screen, const QKeyEvent& key) {
    if (key.key() != Qt::Key_P || !StampaInForza())
        return false;
    const bool preview = key.modifiers() == (Qt::ControlModifier | Qt::ShiftModifier);
    if (!preview && key.modifiers() != Qt::ControlModifier)
        return false;
    StampaInForza()(screen, preview);
    return true;
}

} // namespace

void ImpostaStampa(StampaDiSchermo stampa) { StampaInForza() = std::move(stampa); }

Schermo::Schermo(const QString& nome) {
    setObjectName(nome);
    InstallaAccessibilita();
}

void Schermo::PreparaContenuto() {
    for (QLabel* label : findChildren<QLabel*>())
        label->setTextFormat(Qt::PlainText);
    for (QPushButton* button : findChildren<QPushButton*>())
        button->setAutoDefault(true);
    auto* scroll = new QScrollArea(this);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    scroll->setFocusPolicy(Qt::NoFocus);
    scroll->setWidget(takeCentralWidget());
    setCentralWidget(scroll);
    NominaParti(*this);
    new Copie(this, [this] { return origine != nullptr; });
    AssegnaTasti(*this);
}

QList<Schermo*> Schermo::Catena() const {
    QList<Schermo*> chain;
    for (Schermo* opener = origine; opener != nullptr && !chain.contains(opener); opener = opener->origine)
        chain << opener;
    return chain;
}

void Schermo::ConcludeEntrate() {
    for (FiltroCampi* entries : findChildren<FiltroCampi*>())
        entries->Conclude();
}

QSize Schermo::DimensioneContenuto() const {
    const auto* scroll = qobject_cast<const QScrollArea*>(centralWidget());
    const QWidget* content = scroll == nullptr ? this : scroll->widget();
    constexpr QSize arrotondamenti(1, 2);
    QSize size = content->sizeHint().expandedTo(content->minimumSizeHint()) + arrotondamenti;
    for (const QWidget* bar :
         {static_cast<QWidget*>(findChild<QMenuBar*>()), static_cast<QWidget*>(findChild<QStatusBar*>())})
        if (bar != nullptr)
            size.rheight() += bar->sizeHint().height();
    return size;
}

void Schermo::DimensionaIniziale(QSize almeno) {
    almeno_ = almeno;
    Adatta(std::exchange(chiesto_, 0) > 0 ? rapporto_ : 1);
}

void Schermo::Adatta(double rapporto) {
    const QSize room = StanzaDi(*screen());
    if (rapporto == chiesto_ && room == stanza_) {
        ContieneTutto(room);
        return;
    }
    chiesto_ = rapporto;
    stanza_ = room;
    ScalaFino(rapporto, room);
    setMinimumWidth(std::min(LarghezzaTitolo(windowTitle()), room.width()));
    resize(DimensioneContenuto().expandedTo(almeno_).expandedTo(minimumSize()).boundedTo(room));
}

// What it shows may have grown since: the items of a list, say.
void Schermo::ContieneTutto(QSize stanza) {
    if (isVisible() || isMaximized())
        return;
    RinnovaMisure(*this);
    resize(size().expandedTo(DimensioneContenuto()).boundedTo(stanza));
}

// The need grows with the ratio, but for margins and frames: a few steps of proportion come close.
double Schermo::ScalaFino(double rapporto, QSize stanza) {
    constexpr int passi = 30;
    constexpr double calo = 0.98;
    const double least = std::min(rapporto, RapportoLeggibile(*this));
    const auto excess = [this, stanza](double ratio) {
        ScalaContenuto(ratio);
        const QSize needed = DimensioneContenuto();
        return std::max(double(needed.width()) / stanza.width(), double(needed.height()) / stanza.height());
    };
    double ratio = rapporto;
    double over = excess(ratio);
    for (int i = 0; i < passi && over > 1 && ratio > least; ++i) {
        ratio = std::max(least, ratio * std::min(1 / over, calo));
        over = excess(ratio);
    }
    return ratio;
}

void Schermo::ScalaContenuto(double rapporto) {
    rapporto_ = rapporto;
    ScalaCaratteri(*this, rapporto);
    ScalaSpazi(*this, rapporto);
    RinnovaMisure(*this);
}

void Schermo::closeEvent(QCloseEvent* event) {
    if (ChiusuraInCorso) {
        event->accept();
        return;
    }
    event->ignore();
    EventoProtetto([this] {
        if (alCongedo)
            alCongedo(*this);
        else
            hide();
    });
}

void Schermo::keyPressEvent(QKeyEvent* event) {
    EventoProtetto([this, event] {
        if (event->key() == Qt::Key_Escape && origine != nullptr)
            close();
        else if (!Stampa(*this, *event))
            QMainWindow::keyPressEvent(event);
    });
}

} // namespace sagomi
