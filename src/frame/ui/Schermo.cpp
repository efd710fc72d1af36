#include "frame/ui/Schermo.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QStatusBar>

#include "frame/GeneraleSagomi.h"
#include "frame/ui/Accessibilita.h"
#include "frame/ui/Campi.h"
#include "frame/ui/Copie.h"
#include "frame/ui/NavigaSchermi.h"
#include "frame/ui/Protetto.h"

namespace sagomi {

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
    new Copie(this);
}

void Schermo::ConcludiEntrate() {
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
    resize(DimensioneContenuto().expandedTo(almeno).boundedTo(room.expandedTo(almeno)));
}

void Schermo::closeEvent(QCloseEvent* event) {
    if (ChiusuraInCorso) {
        event->accept();
        return;
    }
    event->ignore();
    EventoProtetto([this] { NavigaSchermi::Unico().Lascia(*this); });
}

void Schermo::keyPressEvent(QKeyEvent* event) {
    EventoProtetto([this, event] {
        if (event->key() == Qt::Key_Escape && origine != nullptr)
            close();
        else
            QMainWindow::keyPressEvent(event);
    });
}

} // namespace sagomi
