#include "catalogue/ui/GrigliaCatalogo.h"

#include <QApplication>
#include <QClipboard>
#include <QPushButton>
#include <QSignalSpy>

#include "screens/Ambiente.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

class GrigliaCatalogoTest : public AmbienteSchermi {};

TEST_F(GrigliaCatalogoTest, ShowsHeadingsAndNumbersInTheirPictures) {
    auto& grid = *Avvia().DBGrid1;
    const auto text = [&grid](int row, int column) {
        return grid.model()->index(row, column).data().toString().toStdString();
    };
    EXPECT_EQ(grid.model()->headerData(0, Qt::Horizontal), "designation");
    EXPECT_EQ(grid.model()->headerData(18, Qt::Horizontal), "Iw (cm6)");
    EXPECT_EQ(text(6, 0), "IPE 200");
    EXPECT_EQ(text(6, 1), Locale("22.4"));
    EXPECT_EQ(text(6, 2), "200");
    EXPECT_EQ(text(6, 4), Locale("5.60"));
    EXPECT_EQ(text(6, 9), Locale("1,943.00"));
    EXPECT_EQ(grid.model()->index(0, 0).data(Qt::TextAlignmentRole).toInt() & Qt::AlignRight, 0);
    EXPECT_NE(grid.model()->index(0, 5).data(Qt::TextAlignmentRole).toInt() & Qt::AlignRight, 0);
    EXPECT_GE(grid.columnWidth(0), 1520 / 15);
    EXPECT_GE(grid.columnWidth(5), 800 / 15);
}

TEST_F(GrigliaCatalogoTest, TypingGoesToTheFirstDesignationThatBeginsSo) {
    auto& s = Avvia();
    s.ChkTipo[0]->setChecked(true);
    Trova<QPushButton>(&s, "AggiornaTabella")->click();
    QTest::keyClicks(s.DBGrid1, "hea 2");
    EXPECT_EQ(Testo(&s, "TxtProf_0"), "HEA 200");
    QTest::keyClicks(s.DBGrid1, "4");
    EXPECT_EQ(Testo(&s, "TxtProf_0"), "HEA 240");
    QTest::keyClicks(s.DBGrid1, "x");
    EXPECT_EQ(Testo(&s, "TxtProf_0"), "HEA 240") << "nothing begins so: the row stays";
}

TEST_F(GrigliaCatalogoTest, CopiesTheSelectedRowsWithHeadings) {
    auto& s = Avvia();
    s.DBGrid1->selectRow(0);
    s.DBGrid1->selectionModel()->select(s.DBGrid1->model()->index(1, 0),
                                        QItemSelectionModel::Select | QItemSelectionModel::Rows);
    QTest::keySequence(s.DBGrid1, QKeySequence::Copy);
    const QStringList lines = QApplication::clipboard()->text().split('\n');
    ASSERT_EQ(lines.size(), 4) << "headings, two rows, the end of the last line";
    EXPECT_TRUE(lines[0].startsWith("designation\tg (Kg/m)\th (mm)\t"));
    EXPECT_EQ(lines[1].section('\t', 0, 4).toStdString(), Locale("IPE 80\t6\t80\t46\t3.8"));
    EXPECT_TRUE(lines[2].startsWith("IPE 100\t"));
}

TEST_F(GrigliaCatalogoTest, KeepsTheColumnsAsTheUserDrewThem) {
    auto& s = Avvia();
    s.DBGrid1->setColumnWidth(2, 137);
    s.ChkTipo[0]->setChecked(true);
    Trova<QPushButton>(&s, "AggiornaTabella")->click();
    EXPECT_EQ(s.DBGrid1->columnWidth(2), 137);
}

TEST_F(GrigliaCatalogoTest, RowInHandFollowsMouseAndKeys) {
    auto& s = Avvia();
    const QModelIndex third = s.DBGrid1->model()->index(2, 3);
    QTest::mouseClick(s.DBGrid1->viewport(), Qt::LeftButton, {}, s.DBGrid1->visualRect(third).center());
    EXPECT_EQ(Testo(&s, "TxtProf_0"), "IPE 120");
    QTest::keyClick(s.DBGrid1, Qt::Key_Down);
    EXPECT_EQ(Testo(&s, "TxtProf_0"), "IPE 140");
    QTest::keyClick(s.DBGrid1, Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(Testo(&s, "TxtProf_0"), "IPE 600");
    QSignalSpy rows(s.Data1, &LettoreDati::rigaCambiata);
    QTest::keyClick(s.DBGrid1, Qt::Key_Down);
    EXPECT_EQ(rows.count(), 0) << "the last row stays, without being taken over again";
}

} // namespace
