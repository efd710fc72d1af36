#include "catalogue/ui/GrigliaCatalogo.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QSignalSpy>

#include "catalogue/Famiglie.h"
#include "catalogue/ui/LettoreDati.h"
#include "frame/ui/AmbienteFinestre.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

/// The table of the real workbook in a window of its own.
class GrigliaCatalogoTest : public AmbienteFinestre {
protected:
    void SetUp() override {
        AmbienteFinestre::SetUp();
        CopiaAccanto("Sagomi.xls");
        griglia.Collega(&dati);
        dati.DatabaseName(PathProgramma / "Sagomi.xls");
        Mostra({"IPE"});
        griglia.resize(700, 400);
        griglia.show();
    }
    void Mostra(const std::vector<std::string>& families) {
        dati.RecordSource(ComponiQuery("frmDoppioT", families, 0));
        dati.Refresh();
        griglia.FormatoGriglia(dati.Recordset().Campi() - 1);
    }
    [[nodiscard]] std::string InMano() const { return dati.Recordset().Testo(0); }

    LettoreDati dati;
    GrigliaCatalogo griglia;
};

TEST_F(GrigliaCatalogoTest, ShowsHeadingsAndNumbersInTheirPictures) {
    const auto text = [this](int row, int column) {
        return griglia.model()->index(row, column).data().toString().toStdString();
    };
    EXPECT_EQ(griglia.model()->headerData(0, Qt::Horizontal), "designation");
    EXPECT_EQ(griglia.model()->headerData(18, Qt::Horizontal), "Iw (cm6)");
    EXPECT_EQ(text(6, 0), "IPE 200");
    EXPECT_EQ(text(6, 1), Locale("22.4"));
    EXPECT_EQ(text(6, 2), "200");
    EXPECT_EQ(text(6, 4), Locale("5.60"));
    EXPECT_EQ(text(6, 9), Locale("1,943.00"));
    EXPECT_EQ(griglia.model()->index(0, 0).data(Qt::TextAlignmentRole).toInt() & Qt::AlignRight, 0);
    EXPECT_NE(griglia.model()->index(0, 5).data(Qt::TextAlignmentRole).toInt() & Qt::AlignRight, 0);
    EXPECT_GE(griglia.columnWidth(0), 1520 / 15);
    EXPECT_GE(griglia.columnWidth(5), 800 / 15);
}

TEST_F(GrigliaCatalogoTest, TypingGoesToTheFirstDesignationThatBeginsSo) {
    Mostra({"HEA", "IPE"});
    QTest::keyClicks(&griglia, "hea 2");
    EXPECT_EQ(InMano(), "HEA 200");
    QTest::keyClicks(&griglia, "4");
    EXPECT_EQ(InMano(), "HEA 240");
    QTest::keyClicks(&griglia, "x");
    EXPECT_EQ(InMano(), "HEA 240") << "nothing begins so: the row stays";
}

TEST_F(GrigliaCatalogoTest, CopiesTheSelectedRowsWithHeadings) {
    griglia.selectRow(0);
    griglia.selectionModel()->select(griglia.model()->index(1, 0),
                                     QItemSelectionModel::Select | QItemSelectionModel::Rows);
    QTest::keySequence(&griglia, QKeySequence::Copy);
    const QStringList lines = QApplication::clipboard()->text().split('\n');
    ASSERT_EQ(lines.size(), 4) << "headings, two rows, the end of the last line";
    EXPECT_TRUE(lines[0].startsWith("designation\tg (Kg/m)\th (mm)\t"));
    EXPECT_EQ(lines[1].section('\t', 0, 4).toStdString(), Locale("IPE 80\t6\t80\t46\t3.8"));
    EXPECT_TRUE(lines[2].startsWith("IPE 100\t"));
}

TEST_F(GrigliaCatalogoTest, KeepsTheColumnsAsTheUserDrewThem) {
    griglia.setColumnWidth(2, 137);
    Mostra({"HEA", "IPE"});
    EXPECT_EQ(griglia.columnWidth(2), 137);
}

TEST_F(GrigliaCatalogoTest, RowInHandFollowsMouseAndKeys) {
    const QModelIndex third = griglia.model()->index(2, 3);
    QTest::mouseClick(griglia.viewport(), Qt::LeftButton, {}, griglia.visualRect(third).center());
    EXPECT_EQ(InMano(), "IPE 120");
    QTest::keyClick(&griglia, Qt::Key_Down);
    EXPECT_EQ(InMano(), "IPE 140");
    QTest::keyClick(&griglia, Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(InMano(), "IPE 600");
    QSignalSpy rows(&dati, &LettoreDati::rigaCambiata);
    QTest::keyClick(&griglia, Qt::Key_Down);
    EXPECT_EQ(rows.count(), 0) << "the last row stays, without being taken over again";
}

} // namespace
