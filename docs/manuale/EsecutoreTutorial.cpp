#include "EsecutoreTutorial.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QTabWidget>

#include <optional>

#include "frame/Numeri.h"
#include "frame/ui/FileDialogo.h"
#include "frame/ui/NavigaSchermi.h"
#include "report/ui/ComandoRelazione.h"
#include "screens/SchermoSezione.h"

namespace sagomi {

namespace {

/// A number of the text, written as Italians do, in the separators in force.
QString InForza(const QString& text) {
    QString result;
    for (const QChar c : text)
        result += c == u',' ? QChar(CarDecimale) : c == u'.' ? QChar(CarMigliaia) : c;
    return result;
}

/// A text of the screen as it is read: without the marks of keys
/// and of what is not taken over yet.
QString Letto(QString text) { return text.remove(u'&').remove(u'•').section(u'\t', 0, 0).simplified(); }

bool Uguali(const QString& shown, const QString& text) {
    return Letto(shown) == text || Letto(shown) == Letto(InForza(text));
}

QString Mostra(const QWidget& w) {
    if (const auto* list = qobject_cast<const QComboBox*>(&w))
        return list->currentText();
    const QVariant text = w.property("text");
    return text.isValid() ? text.toString() : w.property("title").toString();
}

void Invio(QWidget& w) {
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent key(type, Qt::Key_Return, Qt::NoModifier);
        QApplication::sendEvent(&w, &key);
    }
}

} // namespace

EsecutoreTutorial::EsecutoreTutorial(QString cartella) : cartella_(std::move(cartella)) {
    precedente_ = CollegaMessaggi([this](const Messaggio& m) {
        detti_ << QString::fromStdString(m.testo).simplified();
        return m.bottoni == Bottoni::SiNo ? Risposta::Si : Risposta::Ok;
    });
    ImpostaSceltaFile([this](QWidget*, std::string_view, const QString&, int, const QString&) {
        return file_.isEmpty() ? QString() : QDir(cartella_).filePath(file_);
    });
    ImpostaChiedeRelazione([this](QWidget*, const QString&) {
        return progetto_.isEmpty() ? std::nullopt
                                   : std::optional(SceltaRelazione{MetaRelazione::Pdf, progetto_});
    });
}

EsecutoreTutorial::~EsecutoreTutorial() {
    ImpostaChiedeRelazione({});
    ImpostaSceltaFile({});
    CollegaMessaggi(precedente_);
}

void EsecutoreTutorial::Esegue(const QList<PassoTutorial>& passi) {
    for (qsizetype i = 0; i < passi.size(); ++i) {
        PreparaRisposte(passi, i + 1);
        Esegue(passi[i]);
    }
}

/// What the questions of a step are answered stands right behind it.
void EsecutoreTutorial::PreparaRisposte(const QList<PassoTutorial>& passi, qsizetype seguente) {
    file_.clear();
    progetto_.clear();
    for (; seguente < passi.size(); ++seguente)
        if (passi[seguente].verbo == u"progetto")
            progetto_ = passi[seguente].testo;
        else if (passi[seguente].verbo == u"file")
            file_ = passi[seguente].testo;
        else
            return;
}

void EsecutoreTutorial::Esegue(const PassoTutorial& p) {
    if (p.verbo == u"messaggio") {
        if (detti_.isEmpty() || !detti_.takeFirst().contains(p.testo))
            Sbaglia(p, QStringLiteral("the program does not tell it"));
        return;
    }
    NullaDaDire(p);
    if (p.verbo == u"progetto" || p.verbo == u"riporta")
        return;
    if (p.verbo == u"file") {
        if (QFileInfo(QDir(cartella_).filePath(p.testo)).size() == 0)
            Sbaglia(p, QStringLiteral("no such file has been written"));
        return;
    }
    if (SchermoDi(p) != nullptr)
        Agisce(p);
    QCoreApplication::processEvents();
}

void EsecutoreTutorial::Agisce(const PassoTutorial& p) {
    Schermo& screen = *SchermoDi(p);
    if (p.verbo == u"foto") {
        if (foto)
            foto(NomeFoto(foto_), screen);
        ++foto_;
    } else if (p.verbo == u"chiude")
        screen.close();
    else if (p.verbo == u"sagomo") {
        auto* main = dynamic_cast<SchermoSezione*>(&screen);
        if (main == nullptr || !main->Data1->Recordset().CercaRecord(p.testo.toStdString()))
            Sbaglia(p, QStringLiteral("no such section in the table"));
    } else if (p.verbo == u"scrive") {
        if (auto* box = Controllo<QLineEdit>(p)) {
            box->setFocus();
            box->setText(InForza(p.testo));
            Invio(*box);
        }
    } else if (p.verbo == u"sceglie")
        Sceglie(p);
    else if (p.verbo == u"legge")
        Legge(p);
    else
        Preme(p);
}

void EsecutoreTutorial::Preme(const PassoTutorial& p) {
    if (p.verbo == u"menu") {
        if (auto* entry = Controllo<QAction>(p)) {
            if (!Uguali(entry->text(), p.testo))
                Sbaglia(p, QStringLiteral("the entry is called ") + entry->text());
            entry->trigger();
        }
        return;
    }
    auto* button = Controllo<QAbstractButton>(p);
    if (button == nullptr)
        return;
    if (!Uguali(button->text(), p.testo))
        Sbaglia(p, QStringLiteral("the button is called ") + button->text());
    if (!button->isVisible() || !button->isEnabled())
        Sbaglia(p, QStringLiteral("the button cannot be pressed"));
    if (p.verbo == u"preme" || button->isChecked() != (p.verbo == u"spunta"))
        button->click();
}

void EsecutoreTutorial::Sceglie(const PassoTutorial& p) {
    auto* w = Controllo<QWidget>(p);
    if (auto* list = qobject_cast<QComboBox*>(w); list != nullptr && list->findText(p.testo) >= 0) {
        list->setCurrentIndex(list->findText(p.testo));
        emit list->activated(list->currentIndex()); // as the user's choice does
        return;
    }
    if (auto* option = qobject_cast<QAbstractButton*>(w)) {
        if (!Uguali(option->text(), p.testo) && !Uguali(option->accessibleName(), p.testo))
            Sbaglia(p, QStringLiteral("the option is called ") + option->text());
        option->click();
        return;
    }
    if (auto* tabs = qobject_cast<QTabWidget*>(w))
        for (int i = 0; i < tabs->count(); ++i)
            if (Uguali(tabs->tabText(i), p.testo)) {
                tabs->setCurrentIndex(i);
                return;
            }
    if (w != nullptr)
        Sbaglia(p, QStringLiteral("there is no such choice"));
}

void EsecutoreTutorial::Legge(const PassoTutorial& p) {
    if (const auto* entry = SchermoDi(p)->findChild<QAction*>(p.controllo)) {
        if (!Uguali(entry->text(), p.testo))
            Sbaglia(p, QStringLiteral("it shows ") + entry->text());
    } else if (const auto* w = Controllo<QWidget>(p); w != nullptr && !Uguali(Mostra(*w), p.testo))
        Sbaglia(p, QStringLiteral("it shows ") + Letto(Mostra(*w)));
}

void EsecutoreTutorial::NullaDaDire(const PassoTutorial& p) {
    for (const QString& text : std::as_const(detti_))
        Sbaglia(p, QStringLiteral("before it the program tells: ") + text);
    detti_.clear();
}

template <typename T> T* EsecutoreTutorial::Controllo(const PassoTutorial& p) {
    auto* control = SchermoDi(p)->findChild<T*>(p.controllo);
    if (control == nullptr)
        Sbaglia(p, QStringLiteral("no such control"));
    return control;
}

Schermo* EsecutoreTutorial::SchermoDi(const PassoTutorial& p) {
    Schermo* screen = NavigaSchermi::Unico().Trova(p.schermo);
    if (screen != nullptr && screen->isVisible())
        return screen;
    Sbaglia(p, QStringLiteral("the screen is not open"));
    return nullptr;
}

void EsecutoreTutorial::Sbaglia(const PassoTutorial& p, const QString& perche) {
    errori_ << QStringLiteral("%1: %2 %3.%4 \"%5\": %6")
                   .arg(p.riga)
                   .arg(p.verbo, p.schermo, p.controllo, p.testo, perche);
}

} // namespace sagomi
