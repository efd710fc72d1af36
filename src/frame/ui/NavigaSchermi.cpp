#include "frame/ui/NavigaSchermi.h"

#include <QAction>
#include <QApplication>
#include <QScopedValueRollback>
#include <QWindow>

#include <algorithm>
#include <stdexcept>

#include "frame/GeneraleSagomi.h"
#include "frame/ui/Collocazione.h"
#include "frame/ui/Protetto.h"

namespace sagomi {

namespace {

/// Where closing leads to.
Schermo* Ritorno(const Schermo& s) {
    for (Schermo* opener : s.Catena())
        if (opener->isVisible())
            return opener;
    return s.origine;
}

/// A window stays in front of the one that opens it; two never each in front of the other.
void Segue(Schermo& a, Schermo& da) {
    if (&a == &da || da.Catena().contains(&a))
        return;
    a.winId(); // makes the windows that can be bound
    da.winId();
    a.windowHandle()->setTransientParent(da.windowHandle());
}

} // namespace

NavigaSchermi& NavigaSchermi::Unico() {
    static NavigaSchermi navigator;
    return navigator;
}

NavigaSchermi::NavigaSchermi() {
    Schermo::alCongedo = [this](Schermo& s) { Lascia(s); };
    // A navigation sends the focus through several windows; only where it comes to rest counts.
    riposo_.setSingleShot(true);
    riposo_.setInterval(0);
    connect(qApp, &QGuiApplication::focusWindowChanged, this, [this](QWindow* window) {
        inPrimoPiano_ = window;
        attese_ = 0;
        riposo_.start(0);
    });
    connect(&riposo_, &QTimer::timeout, this, &NavigaSchermi::FinestraInPrimoPiano);
}

const VoceSchermo& NavigaSchermi::Voce(const QString& nome) const {
    const auto voce = std::find_if(tavola_.begin(), tavola_.end(), [&nome](const VoceSchermo& v) {
        return v.nome.compare(nome, Qt::CaseInsensitive) == 0;
    });
    if (voce == tavola_.end())
        throw std::out_of_range("nessuno schermo si chiama " + nome.toStdString());
    return *voce;
}

void NavigaSchermi::Aggiunge(VoceSchermo voce) {
    Toglie(voce.nome);
    tavola_.append(std::move(voce));
}

void NavigaSchermi::Toglie(const QString& nome) {
    tavola_.removeIf(
        [&nome](const VoceSchermo& v) { return v.nome.compare(nome, Qt::CaseInsensitive) == 0; });
}

Schermo& NavigaSchermi::Crea(const std::function<Schermo*()>& crea) {
    if (ChiusuraInCorso || inCreazione_)
        throw std::logic_error("un altro schermo si sta aprendo o il programma si chiude");
    const QScopedValueRollback guard(inCreazione_, true);
    Schermo* s = crea(); // its load lets events through
    schermi_.append(s);
    return *s;
}

Schermo& NavigaSchermi::Prende(const QString& nome) {
    Schermo* made = Trova(nome);
    return made != nullptr ? *made : Crea(Voce(nome).crea);
}

void NavigaSchermi::Apre(const QString& nome, Schermo& da) {
    if (inCreazione_ || ChiusuraInCorso)
        return; // a second click came while a screen was being made
    const auto apri = Voce(nome).apri;
    Schermo& made = Prende(nome); // its load lets events through, the end of the program among them
    if (!ChiusuraInCorso)
        apri(made, da);
}

void NavigaSchermi::CollegaMenu(Schermo& da) {
    for (const VoceSchermo& voce : tavola_) {
        auto* entry = voce.menu.isEmpty() ? nullptr : da.findChild<QAction*>(voce.menu);
        if (entry == nullptr)
            continue; // a window without that entry goes without
        entry->setEnabled(true);
        Collega(entry, &QAction::triggered, &da, [this, nome = voce.nome, &da] { Apre(nome, da); });
    }
}

Schermo* NavigaSchermi::Trova(const QString& nome) const {
    for (Schermo* s : schermi_)
        if (s->objectName().compare(nome, Qt::CaseInsensitive) == 0)
            return s;
    return nullptr;
}

QList<Schermo*> NavigaSchermi::VisibiliDa(const Schermo& s) const {
    QList<Schermo*> found;
    for (Schermo* screen : schermi_)
        if (screen->isVisible() && screen->Catena().contains(&s))
            found << screen;
    return found;
}

void NavigaSchermi::Mostra(Schermo& s) {
    s.show();
    s.raise();
    Riprende(s);
    s.activateWindow();
}

void NavigaSchermi::Sospende(const Schermo& da) {
    for (Schermo* s : VisibiliDa(da))
        if (s != attivo_) {
            RicordaPosto(*s);
            s->hide();
            sospesi_ << s;
        }
}

void NavigaSchermi::Riprende(const Schermo& s) {
    sospesi_.removeOne(&s);
    for (Schermo* waiting : QList(sospesi_))
        if (waiting->Catena().contains(&s)) {
            sospesi_.removeOne(waiting);
            Colloca(*waiting, s);
            waiting->show();
        }
}

void NavigaSchermi::Affida(const Schermo& chiuso, const Schermo& a) {
    for (Schermo* s : schermi_)
        if (s != &a && s->windowHandle() != nullptr &&
            s->windowHandle()->transientParent() == chiuso.windowHandle())
            s->windowHandle()->setTransientParent(a.windowHandle());
}

void NavigaSchermi::ApertaPerUltima(Schermo& s) {
    schermi_.removeOne(&s);
    schermi_.append(&s);
}

// What was being typed elsewhere stands before another screen computes with it.
void NavigaSchermi::Attiva(Schermo& s) {
    if (attivo_ != nullptr && attivo_ != &s)
        attivo_->ConcludeEntrate();
    attivo_ = &s;
    Protetto("Errore", [&s] { s.AllAttivazione(); });
}

void NavigaSchermi::Passa(Schermo& a, Schermo* da) {
    const QScopedValueRollback guard(inNavigazione_, true);
    if (da != nullptr) {
        da->ConcludeEntrate();
        a.Adatta(a.Rapporto());
        RiprendePosto(a);
    }
    ApertaPerUltima(a);
    Mostra(a);
    Attiva(a);
    if (da != nullptr && da != &a) {
        Sospende(*da);
        RicordaPosto(*da);
        da->hide();
    }
}

void NavigaSchermi::Apre(Schermo& a, Schermo& da) {
    const QScopedValueRollback guard(inNavigazione_, true);
    da.ConcludeEntrate();
    Segue(a, da);
    a.Adatta(da.Rapporto());
    if (!a.isVisible() && a.windowModality() == Qt::NonModal)
        Colloca(a, da);
    if (&a != &da)
        a.origine = &da;
    ApertaPerUltima(a);
    Mostra(a);
    Attiva(a);
}

void NavigaSchermi::ApreDialogo(Schermo& a, Schermo& da) {
    a.setWindowFlags(Qt::Dialog | Qt::WindowTitleHint | Qt::WindowCloseButtonHint);
    a.setWindowModality(Qt::WindowModal);
    Apre(a, da);
}

void NavigaSchermi::Lascia(Schermo& s) {
    const QScopedValueRollback guard(inNavigazione_, true);
    s.ConcludeEntrate();
    Schermo* back = Ritorno(s);
    RicordaPosto(s);
    s.hide();
    if (sospesi_.removeOne(&s) || back == nullptr)
        return;
    Affida(s, *back);
    Mostra(*back);
    Attiva(*back);
}

void NavigaSchermi::ScaricaTutti() {
    const QScopedValueRollback guard(inNavigazione_, true);
    attivo_ = nullptr;
    sospesi_.clear();
    for (const Schermo* s : schermi_)
        RicordaPosto(*s); // before the first of them writes what is kept
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
    // The click that brings a window to the front acts on it first: a message would swallow it.
    constexpr int pausa = 20;      // [ms]
    constexpr int piuALungo = 100; // pauses; who holds a button down that long drags something
    if (QGuiApplication::mouseButtons() != Qt::NoButton && ++attese_ < piuALungo) {
        riposo_.start(pausa);
        return;
    }
    for (Schermo* s : schermi_)
        if (s->windowHandle() == inPrimoPiano_ && s->isVisible() && s != attivo_) {
            const QScopedValueRollback guard(inNavigazione_, true);
            Attiva(*s);
            return;
        }
}

} // namespace sagomi
