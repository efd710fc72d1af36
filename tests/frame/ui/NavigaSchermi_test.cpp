#include "frame/ui/NavigaSchermi.h"

#include <QMessageBox>
#include <QTimer>

#include "frame/ui/AmbienteFinestre.h"
#include "frame/ui/MessaggiQt.h"
#include "frame/ui/RigaDi.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

struct Primo : Schermo {
    int attivazioni = 0;
    Primo() : Schermo(QStringLiteral("Primo")) {}
    void AllAttivazione() override { ++attivazioni; }
};
struct Secondo : Primo {
    Secondo() { setObjectName("Secondo"); }
    bool visibileIlPrimo = false;
    void AllAttivazione() override {
        ++attivazioni;
        visibileIlPrimo = NavigaSchermi::Unico().Trova("Primo")->isVisible();
    }
};

struct Terzo : Primo {};

class NavigaSchermiTest : public AmbienteFinestre {};

TEST_F(NavigaSchermiTest, PassingShowsActivatesOnceThenHidesTheOrigin) {
    auto& n = NavigaSchermi::Unico();
    auto& a = n.Prende<Primo>();
    n.Passa(a, nullptr);
    auto& b = n.Prende<Secondo>();
    n.Passa(b, &a);
    QCoreApplication::processEvents();
    EXPECT_EQ(a.attivazioni, 1);
    EXPECT_EQ(b.attivazioni, 1);
    EXPECT_TRUE(b.visibileIlPrimo) << "the origin is hidden after the activation";
    EXPECT_FALSE(a.isVisible());
    EXPECT_EQ(&n.Prende<Secondo>(), &b) << "a screen is created once";
}

TEST_F(NavigaSchermiTest, ClosingADetailGoesBackAndActivatesItsOpener) {
    auto& n = NavigaSchermi::Unico();
    auto& a = n.Prende<Primo>();
    n.Passa(a, nullptr);
    auto& b = n.Prende<Secondo>();
    n.Apre(b, a);
    EXPECT_TRUE(a.isVisible()) << "the opener stays behind";
    QTest::keyClick(&b, Qt::Key_Escape);
    QCoreApplication::processEvents();
    EXPECT_FALSE(b.isVisible());
    EXPECT_EQ(a.attivazioni, 2);
    EXPECT_EQ(n.Attivo(), &a);
}

TEST_F(NavigaSchermiTest, ScreenBroughtToTheFrontByTheUserIsActivatedOnce) {
    auto& n = NavigaSchermi::Unico();
    auto& a = n.Prende<Primo>();
    n.Passa(a, nullptr);
    auto& b = n.Prende<Secondo>();
    n.Apre(b, a);
    QCoreApplication::processEvents();
    ASSERT_EQ(a.attivazioni, 1);
    emit qApp->focusWindowChanged(a.windowHandle());
    QCoreApplication::processEvents();
    EXPECT_EQ(a.attivazioni, 2);
    emit qApp->focusWindowChanged(nullptr); // the user leaves the program
    QCoreApplication::processEvents();
    emit qApp->focusWindowChanged(a.windowHandle());
    QCoreApplication::processEvents();
    EXPECT_EQ(a.attivazioni, 2) << "coming back activates nothing";
    EXPECT_EQ(b.attivazioni, 1);
}

TEST_F(NavigaSchermiTest, MinimisingAndHidingActivateNothing) {
    auto& n = NavigaSchermi::Unico();
    auto& a = n.Prende<Primo>();
    n.Passa(a, nullptr);
    a.showMinimized();
    QCoreApplication::processEvents();
    a.showNormal();
    QCoreApplication::processEvents();
    EXPECT_EQ(a.attivazioni, 1);
}

TEST_F(NavigaSchermiTest, ScreenOpensByItsNameOnceCreated) {
    auto& n = NavigaSchermi::Unico();
    n.Aggiunge(RigaDi<Secondo>("Secondo"));
    auto& a = n.Prende<Primo>();
    n.Passa(a, nullptr);
    n.Apre("Secondo", a);
    auto* b = n.Trova("Secondo");
    ASSERT_NE(b, nullptr);
    EXPECT_EQ(b->origine, &a) << "a screen without an opener of its own stays in front";
    EXPECT_EQ(&n.Prende<Secondo>("secondo"), b);
    EXPECT_THROW(n.Prende<Terzo>("Secondo"), std::bad_cast);
    n.Toglie("Secondo");
    EXPECT_THROW(n.Apre("Terzo", a), std::out_of_range);
}

// Making a screen lets events through: a second click, or a shortcut that is still being shown.
TEST_F(NavigaSchermiTest, ASecondClickWhileAScreenIsMadeOpensNothing) {
    auto& n = NavigaSchermi::Unico();
    auto& a = n.Prende<Primo>();
    n.Passa(a, nullptr);
    n.Aggiunge(RigaDi<Terzo>("Terzo"));
    VoceSchermo slow = RigaDi<Secondo>("Secondo");
    slow.crea = [&n, &a]() -> Schermo* {
        EXPECT_NO_THROW(n.Apre("Terzo", a));
        return new Secondo;
    };
    n.Aggiunge(slow);
    n.Apre("Secondo", a);
    EXPECT_NE(n.Trova("Secondo"), nullptr);
    EXPECT_EQ(n.Trova("Terzo"), nullptr);
    n.Toglie("Secondo");
    n.Toglie("Terzo");
}

TEST_F(NavigaSchermiTest, RowOfTheSameNameReplacesTheOlderOne) {
    auto& n = NavigaSchermi::Unico();
    const auto before = n.Tavola().size();
    n.Aggiunge(RigaDi<Primo>("Secondo"));
    n.Aggiunge(RigaDi<Secondo>("Secondo", "mnuSecondo"));
    ASSERT_EQ(n.Tavola().size(), before + 1);
    EXPECT_EQ(n.Tavola().back().menu, "mnuSecondo");
    n.Toglie("Secondo");
    EXPECT_EQ(n.Tavola().size(), before);
}

TEST_F(NavigaSchermiTest, MessageBoxDoesNotReactivateTheScreenBehind) {
    auto& n = NavigaSchermi::Unico();
    auto& a = n.Prende<Primo>();
    n.Passa(a, nullptr);
    const auto recorder = CollegaMessaggi({});
    CollegaMessaggiQt();
    QString shown, title;
    QTimer::singleShot(0, [&shown, &title] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box == nullptr)
            return;
        shown = box->text();
        title = box->windowTitle();
        box->buttons().front()->click();
    });
    Avvisa("una riga\raltra riga\r\nterza\r");
    CollegaMessaggi(recorder);
    QCoreApplication::processEvents();
    EXPECT_EQ(shown, "una riga\naltra riga\nterza");
    EXPECT_EQ(title, "Sagomi");
    EXPECT_EQ(a.attivazioni, 1);
}

} // namespace
