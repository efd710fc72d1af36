#include "frame/ui/Tasti.h"

#include <QCheckBox>
#include <QMainWindow>
#include <QMenuBar>
#include <QPushButton>
#include <QToolButton>

#include <gtest/gtest.h>

#include "frame/ui/Accessibilita.h"

using namespace sagomi;

namespace {

const QKeySequence f2(Qt::Key_F2);
const QKeySequence f3(Qt::Key_F3);

TEST(TastiTest, ACommandKeepsItsKeyOrGetsAFunctionKeyAndTellsIt) {
    QWidget screen;
    QPushButton mnemonic("&Plotta", &screen);
    QPushButton plain("Dettagli", &screen);
    plain.setToolTip("Come nasce la classe");
    QToolButton tool(&screen);
    AssegnaTasti(screen);
    EXPECT_EQ(mnemonic.shortcut(), QKeySequence(QStringLiteral("Alt+P")));
    EXPECT_EQ(mnemonic.toolTip(), "Alt+P");
    EXPECT_EQ(plain.shortcut(), f2);
    EXPECT_EQ(plain.toolTip(), "Come nasce la classe (F2)");
    EXPECT_EQ(tool.shortcut(), f3);
    AssegnaTasti(screen);
    EXPECT_EQ(plain.toolTip(), "Come nasce la classe (F2)") << "told once";
}

TEST(TastiTest, AKeyInUseIsNotGivenAway) {
    QMainWindow screen;
    auto* action = screen.menuBar()->addMenu("&File")->addAction("Esci");
    action->setShortcut(f2);
    QPushButton plain("Dettagli", &screen);
    AssegnaTasti(screen);
    EXPECT_EQ(plain.shortcut(), f3);
}

TEST(TastiTest, AnEntryOfTheMenuBarIsACommandAndAnOptionIsNone) {
    QMainWindow screen;
    QAction* rules = screen.menuBar()->addAction("Normativa: NTC");
    QCheckBox option("HEA", &screen);
    QPushButton number("1,132", &screen);
    number.setProperty(proprietaValore, true);
    AssegnaTasti(screen);
    EXPECT_EQ(rules->shortcut(), f2);
    EXPECT_TRUE(option.shortcut().isEmpty());
    EXPECT_TRUE(number.shortcut().isEmpty()) << "a row of a table";
}

} // namespace
