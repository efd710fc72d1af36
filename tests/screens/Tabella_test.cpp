#include <QCheckBox>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>

#include "screens/Ambiente.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

/// The table of the first screen with its ticks and options.
class TabellaTest : public AmbienteSchermi {
protected:
    static void ClicSuIntestazione(SchermoSezione& s, int column) {
        const QHeaderView* heads = s.DBGrid1->horizontalHeader();
        QTest::mouseClick(heads->viewport(), Qt::LeftButton, {},
                          QPoint(heads->sectionViewportPosition(column) + 15, heads->height() / 2));
    }
    static int OrdineAcceso(const SchermoSezione& s) {
        for (int i = 0; i < s.OptionOrdina.size(); ++i)
            if (s.OptionOrdina[i]->isChecked())
                return i;
        return -1;
    }
};

TEST_F(TabellaTest, AHeadingSortsAndItsOptionShows) {
    auto& s = Avvia();
    const Lettore& rows = s.Data1->Recordset();
    EXPECT_EQ(s.DBGrid1->horizontalHeader()->sortIndicatorSection(), 10) << "Wy";
    ClicSuIntestazione(s, 2);
    EXPECT_EQ(s.Data1->RecordSource(), "SELECT * FROM [IPE$] ORDER BY [h (mm)]");
    EXPECT_EQ(OrdineAcceso(s), -1) << "no option is that of h";
    EXPECT_EQ(s.DBGrid1->horizontalHeader()->sortIndicatorSection(), 2);
    for (int i = 1; i < rows.Righe(); ++i)
        EXPECT_LE(NumeroDi(rows.Cella(i - 1, 2)), NumeroDi(rows.Cella(i, 2)));
    s.ChkTipo[0]->click();
    QTest::keyClick(&s, Qt::Key_F5);
    EXPECT_EQ(s.Data1->RecordSource(), "SELECT * FROM [HEA$] UNION SELECT * FROM [IPE$] ORDER BY [h (mm)]")
        << "the order in force stays";
    ClicSuIntestazione(s, 1);
    EXPECT_EQ(OrdineAcceso(s), 2) << "g";
    s.OptionOrdina[0]->click();
    EXPECT_EQ(OrdineAcceso(s), 0);
    EXPECT_EQ(s.DBGrid1->horizontalHeader()->sortIndicatorSection(), 10);
}

TEST_F(TabellaTest, AHeadingWithNothingTickedChangesNothing) {
    auto& s = Avvia();
    const std::string before = s.Data1->RecordSource();
    s.ChkTipo[3]->click();
    ClicSuIntestazione(s, 2);
    EXPECT_EQ(registratore.testi.size(), 1U);
    EXPECT_EQ(s.Data1->RecordSource(), before);
    EXPECT_EQ(OrdineAcceso(s), 0);
}

TEST_F(TabellaTest, TicksThatAreNotInTheTableShowOnTheButton) {
    auto& s = Avvia();
    const auto* button = Trova<QPushButton>(&s, "AggiornaTabella");
    const int width = button->width();
    EXPECT_EQ(button->text(), "Aggiorna Tabella");
    s.ChkTipo[0]->click();
    s.ChkTipo[3]->click();
    EXPECT_EQ(button->text(), "Aggiorna Tabella •");
    EXPECT_TRUE(button->toolTip().contains("Da aggiungere: HEA")) << button->toolTip().toStdString();
    EXPECT_TRUE(button->toolTip().contains("Da togliere: IPE"));
    EXPECT_EQ(button->width(), width);
    s.ChkTipo[0]->click();
    s.ChkTipo[3]->click();
    EXPECT_EQ(button->text(), "Aggiorna Tabella") << "ticked as listed";
    s.ChkTipo[11]->click();
    QTest::keyClick(&s, Qt::Key_F5);
    EXPECT_EQ(button->text(), "Aggiorna Tabella");
    EXPECT_EQ(Trova<QLabel>(&s, "LblBarra")->text().section(' ', 2).toStdString(), "di 2 famiglie");
}

TEST_F(TabellaTest, TheSectionInHandStaysWhileItIsListed) {
    auto& s = Avvia();
    VaA(s, "IPE 300");
    s.ChkTipo[0]->click();
    QTest::keyClick(&s, Qt::Key_F5);
    EXPECT_EQ(s.Data1->Recordset().Righe(), 42);
    EXPECT_EQ(s.TxtProf[0]->text(), "IPE 300");
    EXPECT_EQ(Sezione().h, 300);
    EXPECT_EQ(s.DBGrid1->currentIndex().row(), s.Data1->Recordset().RigaCorrente());
    s.OptionOrdina[1]->click();
    EXPECT_EQ(s.TxtProf[0]->text(), "IPE 300");
    s.ChkTipo[3]->click();
    QTest::keyClick(&s, Qt::Key_F5);
    EXPECT_EQ(s.TxtProf[0]->text(), "HEA 100") << "no longer listed: the first";
}

TEST_F(TabellaTest, ARightClickTakesTheRowAndItsMenuCopies) {
    auto& s = Avvia();
    const QPoint fifth = s.DBGrid1->visualRect(s.DBGrid1->model()->index(4, 3)).center();
    QTest::mouseClick(s.DBGrid1->viewport(), Qt::RightButton, {}, fifth);
    EXPECT_EQ(s.TxtProf[0]->text(), "IPE 160");
    QString entry;
    QTimer::singleShot(20, [&entry] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        entry = menu->actions().front()->text();
        QTest::keyClick(menu, Qt::Key_Down);
        QTest::keyClick(menu, Qt::Key_Return);
    });
    QContextMenuEvent asked(QContextMenuEvent::Mouse, fifth, s.DBGrid1->viewport()->mapToGlobal(fifth));
    QApplication::sendEvent(s.DBGrid1->viewport(), &asked);
    EXPECT_TRUE(entry.startsWith("&Copia")) << entry.toStdString();
    const QStringList lines = QApplication::clipboard()->text().split(u'\n', Qt::SkipEmptyParts);
    ASSERT_EQ(lines.size(), 2) << "headings and the row";
    EXPECT_TRUE(lines[1].startsWith("IPE 160\t"));
}

TEST_F(TabellaTest, TheTableEndsWithAWholeRow) {
    auto& s = Avvia();
    for (const int height : {700, 707, 713}) {
        s.resize(s.width(), height);
        QCoreApplication::processEvents();
        EXPECT_EQ(s.DBGrid1->viewport()->height() % s.DBGrid1->rowHeight(0), 0) << height;
    }
}

TEST_F(TabellaTest, LettersSearchFromAnyControlThatIsNoEntry) {
    auto& s = Avvia();
    QTest::keyClicks(Trova<QPushButton>(&s, "Command1"), "ipe3");
    EXPECT_EQ(s.TxtProf[0]->text(), "IPE 300");
    QTest::keyClick(s.DBGrid1, Qt::Key_Home);
    QTest::qWait(3 * QApplication::keyboardInputInterval() + 50); // another search
    QTest::keyClicks(s.ChkTipo[1], "ipe 4");
    EXPECT_EQ(s.TxtProf[0]->text(), "IPE 400");
    QTest::keyClicks(s.Txt_L0[0], "5");
    EXPECT_EQ(s.TxtProf[0]->text(), "IPE 400") << "an entry keeps its keys";
}

} // namespace
