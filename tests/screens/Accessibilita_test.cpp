#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAccessible>
#include <QAccessibleInterface>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTabWidget>

#include "frame/ui/EtichettaPedice.h"
#include "frame/ui/EtichettaRisultato.h"
#include "frame/ui/Guida.h"
#include "screens/Comandi.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

class AccessibilitaTest : public AmbienteSchermi {};

QString Letto(QWidget* w, QAccessible::Text what = QAccessible::Name) {
    QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(w);
    return interface == nullptr ? QString() : interface->text(what);
}

bool Risultato(const QWidget* w) {
    const auto* label = qobject_cast<const QLabel*>(w);
    return label != nullptr &&
           (qobject_cast<const EtichettaRisultato*>(label) != nullptr || !label->accessibleName().isEmpty());
}

bool Comando(const QWidget* w) {
    if (qobject_cast<const QComboBox*>(w->parentWidget()) != nullptr ||
        w->objectName().startsWith(QStringLiteral("qt_")))
        return false; // a part of a control of the toolkit
    return qobject_cast<const QAbstractButton*>(w) != nullptr ||
           qobject_cast<const QLineEdit*>(w) != nullptr || qobject_cast<const QComboBox*>(w) != nullptr ||
           qobject_cast<const QAbstractItemView*>(w) != nullptr || (w->focusPolicy() & Qt::TabFocus) != 0;
}

/// What a user of that window meets: entries, commands, results.
QList<QWidget*> Controlli(const QWidget& screen) {
    QList<QWidget*> controls;
    for (QWidget* w : screen.findChildren<QWidget*>())
        if (w->isVisibleTo(&screen) && w->window() == &screen && (Comando(w) || Risultato(w)))
            controls << w;
    return controls;
}

std::string Dove(const QWidget& s, const QWidget* w) {
    return s.objectName().toStdString() + '.' + w->objectName().toStdString() + " (" +
           w->metaObject()->className() + ")";
}

void Percorre(const QWidget& screen) {
    QHash<QString, QWidget*> names;
    for (QWidget* w : Controlli(screen)) {
        const QString name = Letto(w);
        EXPECT_FALSE(name.isEmpty()) << Dove(screen, w) << " has no name";
        EXPECT_FALSE(names.contains(name)) << Dove(screen, w) << " and " << Dove(screen, names.value(name, w))
                                           << " are both \"" << name.toStdString() << '"';
        names.insert(name, w);
        const QLabel* label = qobject_cast<QLabel*>(w);
        const QLineEdit* box = qobject_cast<QLineEdit*>(w);
        if (label != nullptr || box != nullptr) {
            EXPECT_EQ(Letto(w, QAccessible::Value), label != nullptr ? label->text() : box->text())
                << Dove(screen, w);
        }
    }
}

/// Each page of a screen that has pages; the one that was open is open again afterwards.
void PercorrePagine(const QWidget& screen) {
    Percorre(screen);
    for (auto* tabs : screen.findChildren<QTabWidget*>()) {
        const QSignalBlocker quiet(tabs);
        const int open = tabs->currentIndex();
        for (int i = 0; i < tabs->count(); ++i) {
            tabs->setCurrentIndex(i);
            if (i != open)
                Percorre(screen);
        }
        tabs->setCurrentIndex(open);
    }
}

const QHash<QString, QString> apritori = {{"FrmMsverg", "FrmPresFless"},
                                          {"FrmVerifiche", "FrmPresFless"},
                                          {"frmMsvergH1", "FrmMsverg"},
                                          {"frmMsvergH2", "FrmMsverg"},
                                          {"frmTimoshenko", "FrmMsverg"}};

/// @return how many screens there are
int PercorreTutti(Schermo& main) {
    auto& n = NavigaSchermi::Unico();
    PercorrePagine(main);
    n.Apre("FrmPresFless", main);
    n.Apre("FrmMsverg", n.Prende("FrmPresFless"));
    int screens = 1;
    for (const VoceSchermo& voce : QList<VoceSchermo>(n.Tavola())) {
        if (voce.nome == main.objectName())
            continue;
        n.Apre(voce.nome, n.Prende(apritori.value(voce.nome, main.objectName())));
        PercorrePagine(n.Prende(voce.nome));
        ++screens;
    }
    return screens;
}

TEST_F(AccessibilitaTest, EveryControlOfEveryScreenHasANameOfItsOwnAndItsValue) {
    auto& main = Avvia();
    EXPECT_EQ(PercorreTutti(main), NavigaSchermi::Unico().Tavola().size());
}

TEST_F(AccessibilitaTest, SoItIsWhereASlenderSectionBringsOtherResults) {
    auto& main = Avvia();
    VaA(main, "IPE 500");
    Scrive(&main, "Txt_fy", "355");
    Scrive(&main, "TxtNsd", "900");
    ASSERT_EQ(Sezione().ClasseCompressione, 4);
    PercorreTutti(main);
}

TEST_F(AccessibilitaTest, SoItIsInTheViewerOfTheHelp) {
    Avvia();
    Guida::Apre(QStringLiteral("Sagomi.hlp"));
    QWidget* viewer = nullptr;
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->objectName() == u"FinestraGuida")
            viewer = window;
    ASSERT_NE(viewer, nullptr);
    Preme(viewer, "cmdTrova"); // with the line to find words in
    EXPECT_TRUE(Trova<QLineEdit>(viewer, "txtTrova")->isVisible());
    PercorrePagine(*viewer);
    for (const auto* button : viewer->findChildren<QPushButton*>()) {
        const bool told = !button->toolTip().isEmpty() || !button->shortcut().isEmpty();
        EXPECT_TRUE(told) << Dove(*viewer, button) << " has no key";
    }
    viewer->close();
}

TEST_F(AccessibilitaTest, AFactorToBeTakenHasItsNumberAndCanBePressed) {
    auto& main = Avvia();
    PercorreTutti(main);
    auto& table = NavigaSchermi::Unico().Prende("frmMsvergH1");
    NavigaSchermi::Unico().Apre(table.objectName(), NavigaSchermi::Unico().Prende("FrmMsverg"));
    auto* button = Trova<QPushButton>(&table, "lblC1_1");
    EXPECT_EQ(Letto(button), "C1, riga 2");
    EXPECT_EQ(Letto(button, QAccessible::Value), button->text());
    QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(button);
    interface->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_FALSE(table.isVisible()) << "the factor has been taken";
}

TEST_F(AccessibilitaTest, AResultIsReadByCharactersAndACaptionWithItsSubscript) {
    EtichettaRisultato result;
    result.setAccessibleName("Mb,Rd [kNm]");
    result.setText("  83.5");
    auto* interface = QAccessible::queryAccessibleInterface(&result);
    EXPECT_EQ(interface->text(QAccessible::Name), "Mb,Rd [kNm]");
    EXPECT_EQ(interface->text(QAccessible::Value), "  83.5");
    ASSERT_NE(interface->textInterface(), nullptr);
    EXPECT_EQ(interface->textInterface()->text(2, 4), "83");
    EXPECT_TRUE(interface->state().readOnly);
    result.setText("¥");
    EXPECT_EQ(interface->textInterface()->text(0, -1), "∞");

    EtichettaPedice caption;
    caption.setText("N         [kN]");
    caption.ImpostaPedice("b,y,Rd");
    EXPECT_EQ(Letto(&caption), "Nb,y,Rd [kN]");
}

} // namespace
