#include "catalogue/ui/GrigliaCatalogo.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QLabel>
#include <QScrollBar>
#include <QSignalSpy>

#include "catalogue/Famiglie.h"
#include "catalogue/ui/ColonnaFerma.h"
#include "catalogue/ui/LettoreDati.h"
#include "frame/ui/AmbienteFinestre.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

/// The table of the real workbook, worked by keys and mouse.
class GrigliaManiTest : public AmbienteFinestre {
protected:
    void SetUp() override {
        AmbienteFinestre::SetUp();
        CopiaAccanto("Sagomi.xls");
        griglia.Collega(&dati);
        dati.DatabaseName(PathProgramma / "Sagomi.xls");
        dati.RecordSource(ComponeQuery("frmDoppioT", {"HEA", "IPE"}, 0));
        dati.Refresh();
        griglia.FormatoGriglia(dati.Recordset().Campi() - 1);
        griglia.resize(700, 400);
        griglia.show();
    }
    void Tasto(Qt::Key key, Qt::KeyboardModifiers held = {}) { QTest::keyClick(&griglia, key, held); }
    void Clic(int row, Qt::KeyboardModifiers held = {}) {
        const QRect cell = griglia.visualRect(griglia.model()->index(row, 1));
        QTest::mouseClick(griglia.viewport(), Qt::LeftButton, held, cell.center());
    }
    [[nodiscard]] int InMano() const { return dati.Recordset().RigaCorrente(); }
    [[nodiscard]] bool Scelta(int row) const {
        return griglia.selectionModel()->isRowSelected(row, QModelIndex());
    }
    [[nodiscard]] qsizetype Scelte() const { return griglia.selectionModel()->selectedRows().size(); }
    static QStringList Copiate() { return QApplication::clipboard()->text().split('\n', Qt::SkipEmptyParts); }

    LettoreDati dati;
    GrigliaCatalogo griglia;
};

TEST_F(GrigliaManiTest, TheRowInHandIsTheSelectedOneByEveryKey) {
    const int last = dati.Recordset().Righe() - 1;
    const struct {
        Qt::Key key;
        Qt::KeyboardModifiers held;
        int row;
    } steps[] = {{Qt::Key_End, Qt::ControlModifier, last}, {Qt::Key_Home, Qt::ControlModifier, 0},
                 {Qt::Key_Down, Qt::ControlModifier, 1},   {Qt::Key_Down, Qt::ControlModifier, 2},
                 {Qt::Key_Up, Qt::ControlModifier, 1},     {Qt::Key_Space, Qt::ControlModifier, 1},
                 {Qt::Key_End, Qt::NoModifier, last},      {Qt::Key_Home, Qt::NoModifier, 0},
                 {Qt::Key_Right, Qt::ControlModifier, 0},  {Qt::Key_Left, Qt::NoModifier, 0}};
    for (const auto& step : steps) {
        SCOPED_TRACE(testing::Message() << step.key << " to " << step.row);
        Tasto(step.key, step.held);
        EXPECT_EQ(InMano(), step.row);
        EXPECT_TRUE(Scelta(step.row));
        EXPECT_EQ(Scelte(), 1);
        QTest::keySequence(&griglia, QKeySequence::Copy);
        ASSERT_EQ(Copiate().size(), 2);
        EXPECT_EQ(Copiate()[1].section('\t', 0, 0).toStdString(), dati.Recordset().Testo(0));
    }
}

TEST_F(GrigliaManiTest, CtrlClickAddsRowsAndNeverLeavesTheOneInHandUnselected) {
    Clic(2);
    Clic(4, Qt::ControlModifier);
    EXPECT_EQ(InMano(), 4);
    EXPECT_TRUE(Scelta(2) && Scelta(4));
    Clic(2, Qt::ControlModifier);
    EXPECT_EQ(InMano(), 2);
    EXPECT_TRUE(Scelta(2) && Scelta(4));
    QTest::keySequence(&griglia, QKeySequence::Copy);
    EXPECT_EQ(Copiate().size(), 3);
    Tasto(Qt::Key_Down);
    EXPECT_EQ(InMano(), 3);
    EXPECT_EQ(Scelte(), 1);
    Tasto(Qt::Key_End, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(Scelte(), dati.Recordset().Righe() - 3) << "from the row in hand to the last";
}

TEST_F(GrigliaManiTest, CopiesTheRowInHandThoughNothingIsSelected) {
    dati.MoveTo(3);
    griglia.clearSelection();
    QTest::keySequence(&griglia, QKeySequence::Copy);
    ASSERT_EQ(Copiate().size(), 2);
    EXPECT_EQ(Copiate()[1].section('\t', 0, 0).toStdString(), dati.Recordset().Testo(0));
}

TEST_F(GrigliaManiTest, AMenuOfItsOwnCopies) {
    dati.MoveTo(5);
    EXPECT_EQ(griglia.contextMenuPolicy(), Qt::ActionsContextMenu);
    QApplication::clipboard()->clear();
    Trova<QAction>(&griglia, "mnuCopia")->trigger();
    ASSERT_EQ(Copiate().size(), 2);
    EXPECT_EQ(Copiate()[1].section('\t', 0, 0).toStdString(), dati.Recordset().Testo(0));
}

TEST_F(GrigliaManiTest, ColumnsStayWhenRowsGo) {
    QScrollBar* bar = griglia.horizontalScrollBar();
    bar->setValue(bar->maximum() / 2);
    const int left = bar->value();
    for (const Qt::Key key : {Qt::Key_End, Qt::Key_Home, Qt::Key_PageDown, Qt::Key_Down}) {
        Tasto(key);
        EXPECT_EQ(bar->value(), left) << key;
    }
    Tasto(Qt::Key_Right);
    EXPECT_GT(bar->value(), left) << "sideways the user scrolls";
}

TEST_F(GrigliaManiTest, TheFirstColumnStaysInSight) {
    auto* names = Trova<ColonnaFerma>(&griglia, "ColonnaFerma");
    EXPECT_FALSE(names->isVisible());
    griglia.horizontalScrollBar()->setValue(200);
    Tasto(Qt::Key_End);
    ASSERT_TRUE(names->isVisible());
    EXPECT_EQ(names->width(), griglia.columnWidth(0));
    EXPECT_EQ(names->mapTo(&griglia, QPoint()).x(), griglia.viewport()->x());
    EXPECT_EQ(names->rowAt(0), griglia.rowAt(0)) << "the same rows beside each other";
    EXPECT_EQ(names->viewport()->height(), griglia.viewport()->height());
    const int row = griglia.rowAt(0) + 1;
    QTest::mouseClick(names->viewport(), Qt::LeftButton, {},
                      names->visualRect(names->model()->index(row, 0)).center());
    EXPECT_EQ(InMano(), row);
    EXPECT_TRUE(Scelta(row));
    EXPECT_EQ(griglia.horizontalScrollBar()->value(), 200);
    griglia.horizontalScrollBar()->setValue(0);
    EXPECT_FALSE(names->isVisible());
}

TEST_F(GrigliaManiTest, RowsAreWholeAtAnyHeight) {
    for (const int height : {300, 307, 311, 400, 413}) {
        griglia.resize(700, height);
        QTest::qWait(0);
        const int row = griglia.rowHeight(0);
        for (const Qt::Key key : {Qt::Key_End, Qt::Key_Home}) {
            Tasto(key);
            EXPECT_EQ(griglia.rowViewportPosition(griglia.rowAt(0)), 0) << height;
            EXPECT_EQ(griglia.visualRect(griglia.currentIndex()).height(), row - 1) << "less its line";
            EXPECT_TRUE(griglia.viewport()->rect().contains(
                QRect(0, griglia.rowViewportPosition(InMano()), 10, row)));
        }
        EXPECT_EQ(griglia.viewport()->height() % row, 0) << height;
        const int used = griglia.viewport()->y() + griglia.viewport()->height() +
                         griglia.horizontalScrollBar()->height() + griglia.frameWidth();
        EXPECT_LT(height - used, row) << "no room for another row, " << height;
    }
}

TEST_F(GrigliaManiTest, AFewPixelsAreNoReasonToScroll) {
    int wanted = 2 * griglia.frameWidth() + griglia.verticalScrollBar()->sizeHint().width();
    for (int column = 0; column < griglia.model()->columnCount(); ++column)
        wanted += griglia.columnWidth(column);
    griglia.resize(wanted - 12, 400);
    QTest::qWait(0);
    EXPECT_EQ(griglia.horizontalScrollBar()->maximum(), 0);
    griglia.resize(wanted + 40, 400);
    QTest::qWait(0);
    int full = 0;
    for (int column = 0; column < griglia.model()->columnCount(); ++column)
        full += griglia.columnWidth(column);
    EXPECT_EQ(full, wanted - 2 * griglia.frameWidth() - griglia.verticalScrollBar()->sizeHint().width())
        << "with room all is as before";
}

TEST_F(GrigliaManiTest, AClickOnAHeadingAsksForItsOrder) {
    QSignalSpy asked(&griglia, &GrigliaCatalogo::ordineChiesto);
    const QHeaderView* heads = griglia.horizontalHeader();
    QTest::mouseClick(heads->viewport(), Qt::LeftButton, {},
                      QPoint(heads->sectionViewportPosition(2) + 20, heads->height() / 2));
    ASSERT_EQ(asked.count(), 1);
    EXPECT_EQ(asked[0][0].toInt(), 2);
    EXPECT_EQ(Scelte(), 1) << "a column is nothing to select";
    griglia.MostraOrdine("h (mm)");
    EXPECT_TRUE(heads->isSortIndicatorShown());
    EXPECT_EQ(heads->sortIndicatorSection(), 2);
    griglia.MostraOrdine("");
    EXPECT_FALSE(heads->isSortIndicatorShown());
}

TEST_F(GrigliaManiTest, ShowsWhatIsTypedAndThatNothingFits) {
    auto* typed = Trova<QLabel>(&griglia, "LblRicerca");
    EXPECT_FALSE(typed->isVisible());
    QTest::keyClicks(&griglia, "ipe 2");
    EXPECT_TRUE(typed->isVisible());
    EXPECT_EQ(typed->text(), "Cerca: ipe 2");
    QTest::keyClicks(&griglia, "x");
    EXPECT_EQ(typed->text(), "Nessun sagomo comincia per \"ipe 2x\"");
    EXPECT_EQ(dati.Recordset().Testo(0), "IPE 200");
    Tasto(Qt::Key_Backspace);
    EXPECT_EQ(typed->text(), "Cerca: ipe 2");
}

TEST_F(GrigliaManiTest, KeepsTheRowOfANameThroughARefresh) {
    QSignalSpy rows(&dati, &LettoreDati::rigaCambiata);
    dati.RecordSource(ComponeQuery("frmDoppioT", {"IPE"}, 2));
    dati.Refresh("IPE 300");
    EXPECT_EQ(dati.Recordset().Testo(0), "IPE 300");
    EXPECT_EQ(griglia.currentIndex().row(), InMano());
    EXPECT_TRUE(Scelta(InMano()));
    dati.Refresh("HEA 100");
    EXPECT_EQ(InMano(), 0) << "not listed: the first";
    EXPECT_EQ(rows.count(), 2) << "one new row a refresh";
}

} // namespace
