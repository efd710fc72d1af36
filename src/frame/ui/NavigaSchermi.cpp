#include "frame/ui/NavigaSchermi.h"

#include <QApplication>
#include <QScopedValueRollback>
#include <QWindow>

#include "frame/GeneraleSagomi.h"
#include "frame/ui/Protetto.h"

namespace sagomi {

NavigaSchermi& NavigaSchermi::Unico() {
    static NavigaSchermi navigator;
    return navigator;
}

NavigaSchermi::NavigaSchermi() {
    // A navigation sends the focus through several windows; only where it comes to rest counts.
    riposo_.setSingleShot(true);
    riposo_.setInterval(0);
    connect(qApp, &QGuiApplication::focusWindowChanged, this, [this](QWindow* window) {
        inPrimoPiano_ = window;
        riposo_.start();
    });
    connect(&riposo_, &QTimer::timeout, this, &NavigaSchermi::FinestraInPrimoPiano);
}

Schermo* NavigaSchermi::Trova(const QString& nome) const {
    for (Schermo* s : schermi_)
        if (s->objectName().compare(nome, Qt::CaseInsensitive) == 0)
            return s;
    return nullptr;
}

void NavigaSchermi::Mostra(Schermo& s) {
    s.show();
    s.raise();
    s.activateWindow();
}

void NavigaSchermi::ApertaPerUltima(Schermo& s) {
    schermi_.removeOne(&s);
    schermi_.append(&s);
}

void NavigaSchermi::Attiva(Schermo& s) {
    attivo_ = &s;
    Protetto("Errore", [&s] { s.AllAttivazione(); });
}

void NavigaSchermi::Passa(Schermo& a, Schermo* da) {
    const QScopedValueRollback guard(inNavigazione_, true);
    ApertaPerUltima(a);
    Mostra(a);
    Attiva(a);
    if (da != nullptr && da != &a)
        da->hide();
}

void NavigaSchermi::Apri(Schermo& a, Schermo& da) {
    const QScopedValueRollback guard(inNavigazione_, true);
    if (&a != &da)
        a.origine = &da;
    ApertaPerUltima(a);
    Mostra(a);
    Attiva(a);
}

void NavigaSchermi::ApriDialogo(Schermo& a, Schermo& da) {
    a.setWindowFlags(Qt::Dialog | Qt::WindowTitleHint | Qt::WindowCloseButtonHint);
    a.setWindowModality(Qt::WindowModal);
    a.winId(); // makes the window that can be bound to the opener's
    a.windowHandle()->setTransientParent(da.windowHandle());
    Apri(a, da);
}

void NavigaSchermi::Lascia(Schermo& s) {
    const QScopedValueRollback guard(inNavigazione_, true);
    Schermo* back = s.origine;
    s.hide();
    if (back == nullptr)
        return;
    Mostra(*back);
    Attiva(*back);
}

void NavigaSchermi::ScaricaTutti() {
    const QScopedValueRollback guard(inNavigazione_, true);
    attivo_ = nullptr;
    while (!schermi_.isEmpty()) {
        Schermo* last = schermi_.takeLast();
        last->hide();
        emit schermoScaricato(last->objectName());
        last->deleteLater(); // it may be the one whose close event we are in
    }
}

void NavigaSchermi::FinestraInPrimoPiano() {
    if (inPrimoPiano_ == nullptr || inNavigazione_ || ChiusuraInCorso)
        return;
    for (Schermo* s : schermi_)
        if (s->windowHandle() == inPrimoPiano_ && s->isVisible() && s != attivo_) {
            const QScopedValueRollback guard(inNavigazione_, true);
            Attiva(*s);
            return;
        }
}

} // namespace sagomi
