#include "frame/ui/Collocazione.h"

#include <QApplication>
#include <QGroupBox>
#include <QLineEdit>
#include <QScreen>

#include <algorithm>
#include <array>
#include <tuple>

#include "frame/ui/EtichettaRisultato.h"

namespace sagomi {

namespace {

/// The nearest place at which a window is inside an area; its upper left corner comes first.
QPoint Dentro(QPoint p, QSize size, const QRect& area) {
    const int right = area.right() + 1 - size.width();
    const int bottom = area.bottom() + 1 - size.height();
    return {std::max(area.left(), std::min(p.x(), right)), std::max(area.top(), std::min(p.y(), bottom))};
}

qint64 Area(const QRect& r) { return r.isEmpty() ? 0 : qint64(r.width()) * r.height(); }

qint64 Coperto(const QRect& window, const QList<QRect>& rooms) {
    qint64 covered = 0;
    for (const QRect& room : rooms)
        covered += Area(window & room);
    return covered;
}

std::array<QPoint, 4> PostiAccanto(QSize size, const QRect& caller) {
    return {QPoint(caller.right() + 1, caller.top()), QPoint(caller.left() - size.width(), caller.top()),
            QPoint(caller.left(), caller.bottom() + 1), QPoint(caller.left(), caller.top() - size.height())};
}

/// Places at the sides of rooms, inside and outside of each.
QList<QPoint> PostiSopra(QSize size, const Stanze& s) {
    QList<int> x;
    QList<int> y;
    for (const QRect& room : s.protette + s.aperte + QList<QRect>{s.copribile, s.chiamante, s.disponibile}) {
        x << room.left() << room.right() + 1 - size.width() << room.left() - size.width() << room.right() + 1;
        y << room.top() << room.bottom() + 1 - size.height() << room.top() - size.height()
          << room.bottom() + 1;
    }
    QList<QPoint> places;
    for (const int left : x)
        for (const int top : y)
            places << Dentro({left, top}, size, s.disponibile);
    return places;
}

QRect InDesktop(const QWidget& w) { return {w.mapToGlobal(QPoint()), w.size()}; }

bool HaDati(const QGroupBox& room) {
    return room.findChild<QLineEdit*>() != nullptr || room.findChild<EtichettaRisultato*>() != nullptr;
}

/// The windows in sight but two, without menus and tool-tips.
QList<QRect> AltreFinestre(const QWidget& window, const QWidget& caller) {
    QList<QRect> others;
    for (const QWidget* w : QApplication::topLevelWidgets()) {
        const bool stands = w->windowType() == Qt::Window || w->windowType() == Qt::Dialog;
        if (stands && w != &window && w != &caller && w->isVisible() && !w->isMinimized())
            others << w->frameGeometry();
    }
    return others;
}

Stanze StanzeDi(const QWidget& window, const QWidget& caller) {
    Stanze s{.disponibile = caller.screen()->availableGeometry(),
             .chiamante = caller.frameGeometry(),
             .aperte = AltreFinestre(window, caller)};
    for (const QGroupBox* room : caller.findChildren<QGroupBox*>()) {
        if (!room->isVisible())
            continue;
        if (room->property("copribile").toBool())
            s.copribile |= InDesktop(*room);
        else if (HaDati(*room))
            s.protette << InDesktop(*room);
    }
    return s;
}

} // namespace

QPoint PostoLibero(QSize misura, const Stanze& stanze) {
    for (const QPoint& beside : PostiAccanto(misura, stanze.chiamante)) {
        const QRect window(Dentro(beside, misura, stanze.disponibile), misura);
        if (stanze.disponibile.contains(window) && !window.intersects(stanze.chiamante) &&
            Coperto(window, stanze.aperte) == 0)
            return window.topLeft();
    }
    const auto cost = [&](QPoint p) {
        const QRect window(p, misura);
        return std::tuple(Coperto(window, stanze.protette), Coperto(window, stanze.aperte),
                          -Area(window & stanze.copribile));
    };
    const QList<QPoint> places = PostiSopra(misura, stanze);
    return *std::min_element(places.begin(), places.end(),
                             [&cost](QPoint a, QPoint b) { return cost(a) < cost(b); });
}

void Colloca(QWidget& finestra, const QWidget& chiamante) {
    const Stanze rooms = StanzeDi(finestra, chiamante);
    const QSize frame = chiamante.frameGeometry().size() - chiamante.size(); // the one of the other is alike
    const QSize size = finestra.size() + frame;
    const auto kept = PostiFinestre().constFind(finestra.objectName());
    finestra.move(kept == PostiFinestre().constEnd() ? PostoLibero(size, rooms)
                                                     : Dentro(*kept, size, rooms.disponibile));
}

void RiprendePosto(QWidget& finestra) {
    const auto kept = PostiFinestre().constFind(finestra.objectName());
    if (kept == PostiFinestre().constEnd() || finestra.isVisible() || finestra.isMaximized())
        return;
    const QScreen* there = QGuiApplication::screenAt(*kept);
    finestra.move(Dentro(*kept, finestra.frameGeometry().size(),
                         (there != nullptr ? there : finestra.screen())->availableGeometry()));
}

void RicordaPosto(const QWidget& finestra) {
    if (finestra.isVisible() && !finestra.isMaximized() && !finestra.isMinimized())
        PostiFinestre().insert(finestra.objectName(), finestra.pos());
}

QHash<QString, QPoint>& PostiFinestre() {
    static QHash<QString, QPoint> places;
    return places;
}

} // namespace sagomi
