#include "frame/ui/Schermo.h"

#include <QCloseEvent>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QStatusBar>

#include <algorithm>

#include "frame/GeneraleSagomi.h"
#include "frame/ui/Accessibilita.h"
#include "frame/ui/Campi.h"
#include "frame/ui/Copie.h"
#include "frame/ui/Protetto.h"
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
    QSize size = scroll == nullptr ? sizeHint() : scroll->widget()->sizeHint();
    for (const QWidget* bar :
         {static_cast<QWidget*>(findChild<QMenuBar*>()), static_cast<QWidget*>(findChild<QStatusBar*>())})
        if (bar != nullptr)
            size.rheight() += bar->sizeHint().height();
    return size;
}

void Schermo::DimensionaIniziale(QSize almeno) {
    constexpr QSize cornice(16, 48); // title bar and borders of the window manager
    const QSize room = QGuiApplication::primaryScreen()->availableGeometry().size() - cornice;
    setMinimumWidth(std::min(LarghezzaTitolo(windowTitle()), room.width()));
    almeno.rwidth() = std::max(almeno.width(), minimumWidth());
    resize(DimensioneContenuto().expandedTo(almeno).boundedTo(room.expandedTo(almeno)));
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
