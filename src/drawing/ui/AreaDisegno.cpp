#include "drawing/ui/AreaDisegno.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

#include "drawing/ui/DipingeProtetto.h"
#include "frame/ui/Protetto.h"

namespace sagomi {

namespace {

constexpr double passoZoom = 1.25; ///< of a notch of the wheel, of a key
constexpr double zoomMinimo = 0.5;
constexpr double zoomMassimo = 200;
constexpr double passoTasto = 40; ///< pixels

} // namespace

AreaDisegno::AreaDisegno(QWidget* parent) : QWidget(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::OpenHandCursor);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
}

void AreaDisegno::Mostra(Pittore pittore) {
    pittore_ = std::move(pittore);
    update();
}

void AreaDisegno::Adatta() {
    vista_ = {};
    update();
    emit vistaCambiata(vista_.zoom);
}

void AreaDisegno::Ingrandisce(double fattore, const QPointF& intorno) {
    const double zoom = std::clamp(vista_.zoom * fattore, zoomMinimo, zoomMassimo);
    const QPointF middle(width() / 2.0, height() / 2.0);
    const QPointF fromMiddle = intorno - middle;
    vista_.spostamento = fromMiddle - (fromMiddle - vista_.spostamento) * (zoom / vista_.zoom);
    vista_.zoom = zoom;
    update();
    emit vistaCambiata(vista_.zoom);
}

void AreaDisegno::Sposta(const QPointF& passo) {
    vista_.spostamento += passo;
    update();
}

void AreaDisegno::paintEvent(QPaintEvent* /*event*/) {
    if (!pittore_)
        return;
    DipintoProtetto(this, [this] {
        QPainter painter(this);
        SuperficieSchermo surface(painter, size(), font(), palette().color(QPalette::Text), vista_);
        if (!DipingeProtetto(this, [&] { pittore_(surface); }))
            pittore_ = {};
    });
}

void AreaDisegno::wheelEvent(QWheelEvent* event) {
    constexpr double scatto = 120; // eighths of a degree in a notch
    EventoProtetto([this, event] {
        const double notches = event->angleDelta().y() / scatto;
        if (notches != 0)
            Ingrandisce(std::pow(passoZoom, notches), event->position());
        event->accept();
    });
}

void AreaDisegno::mousePressEvent(QMouseEvent* event) {
    EventoProtetto([this, event] {
        if (event->button() != Qt::LeftButton && event->button() != Qt::MiddleButton)
            return;
        trascina_ = true;
        presa_ = event->position();
        setCursor(Qt::ClosedHandCursor);
    });
}

void AreaDisegno::mouseMoveEvent(QMouseEvent* event) {
    EventoProtetto([this, event] {
        if (!trascina_)
            return;
        Sposta(event->position() - presa_);
        presa_ = event->position();
    });
}

void AreaDisegno::mouseReleaseEvent(QMouseEvent* /*event*/) {
    EventoProtetto([this] {
        trascina_ = false;
        setCursor(Qt::OpenHandCursor);
    });
}

void AreaDisegno::mouseDoubleClickEvent(QMouseEvent* event) {
    EventoProtetto([this, event] {
        if (event->button() == Qt::LeftButton)
            Adatta();
    });
}

void AreaDisegno::keyPressEvent(QKeyEvent* event) {
    EventoProtetto([this, event] { Tasto(event); });
}

void AreaDisegno::Tasto(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Plus:
        Ingrandisce(passoZoom);
        break;
    case Qt::Key_Minus:
        Ingrandisce(1 / passoZoom);
        break;
    case Qt::Key_Home:
        Adatta();
        break;
    case Qt::Key_Left:
        Sposta({passoTasto, 0});
        break;
    case Qt::Key_Right:
        Sposta({-passoTasto, 0});
        break;
    case Qt::Key_Up:
        Sposta({0, passoTasto});
        break;
    case Qt::Key_Down:
        Sposta({0, -passoTasto});
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

} // namespace sagomi
