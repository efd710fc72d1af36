#include "catalogue/ui/GrigliaCatalogo.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QScrollBar>
#include <QSignalSpy>
#include <QStyledItemDelegate>

#include <utility>

#include "catalogue/Famiglie.h"
#include "catalogue/ui/CifreDipinte.h"
#include "catalogue/ui/LettoreDati.h"
#include "catalogue/ui/NomiPiegati.h"
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
        dati.RecordSource(ComponeQuery("frmDoppioT", families, 0));
        dati.Refresh();
        griglia.FormatoGriglia(dati.Recordset().Campi() - 1);
    }
    [[nodiscard]] std::string InMano() const { return dati.Recordset().Testo(0); }

    LettoreDati dati;
    GrigliaCatalogo griglia;
};

/// How many times a widget has been painted since the last time that it was asked.
class Dipinti : public QObject {
public:
    explicit Dipinti(QWidget* widget) { widget->installEventFilter(this); }
    int Nuovi() {
        for (int i = 0; i < 5; ++i)
            QCoreApplication::processEvents();
        return std::exchange(n_, 0);
    }
    /// Height of all that was painted [px].
    int Alti() {
        Nuovi();
        return std::exchange(dipinto_, {}).boundingRect().height();
    }
    bool eventFilter(QObject* /*object*/, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            ++n_;
            dipinto_ += static_cast<QPaintEvent*>(event)->region();
        }
        return false;
    }

private:
    int n_ = 0;
    QRegion dipinto_;
};

TEST_F(GrigliaCatalogoTest, PaintsWhatHasChangedAndOnce) {
    Dipinti rows(griglia.viewport());
    Dipinti headings(griglia.horizontalHeader()->viewport());
    rows.Nuovi();
    headings.Nuovi();
    dati.MoveNext();
    EXPECT_EQ(rows.Nuovi(), 1);
    EXPECT_EQ(headings.Nuovi(), 0) << "they show nothing of the row in hand";
    Mostra({"HEM", "IPE", "HEAA"}); // other widths, and a scroll bar
    EXPECT_EQ(rows.Nuovi(), 1);
    EXPECT_EQ(headings.Nuovi(), 1);
}

TEST_F(GrigliaCatalogoTest, AnActiveWindowAndTheFocusPaintTheSelectionAlone) {
    Dipinti rows(griglia.viewport());
    Dipinti headings(griglia.horizontalHeader()->viewport());
    EXPECT_GT(griglia.viewport()->height(), 5 * griglia.rowHeight(0));
    for (const QEvent::Type type : {QEvent::WindowDeactivate, QEvent::WindowActivate}) {
        rows.Alti();
        headings.Alti();
        QEvent event(type);
        QCoreApplication::sendEvent(&griglia, &event);
        EXPECT_EQ(rows.Alti(), griglia.rowHeight(0));
        EXPECT_EQ(headings.Alti(), 0);
    }
    QFocusEvent focus(QEvent::FocusIn);
    QCoreApplication::sendEvent(&griglia, &focus);
    EXPECT_EQ(rows.Alti(), griglia.rowHeight(0));
    EXPECT_EQ(headings.Alti(), 0);
}

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

/// The whole table, scrolled to its last columns too, with some rows chosen.
std::vector<QImage> Immagini(GrigliaCatalogo& grid, double scale) {
    std::vector<QImage> images;
    for (const int bar : {0, 1}) {
        grid.horizontalScrollBar()->setValue(bar * grid.horizontalScrollBar()->maximum());
        QImage image(grid.size() * scale, QImage::Format_RGB32);
        image.setDevicePixelRatio(scale);
        grid.render(&image);
        images.push_back(image);
    }
    return images;
}

TEST_F(GrigliaCatalogoTest, NumbersAreComposedWithoutTheTextEngine) {
    CifreDipinte digits;
    const QFontMetricsF metrics(griglia.font());
    for (const char* text : {"1,943.00", "-17.5", "0.00", "1.943,00", "1 943", "7"}) {
        EXPECT_TRUE(digits.Compone(griglia.font(), text)) << text;
        EXPECT_NEAR(digits.Larghezza(), metrics.horizontalAdvance(text), 1e-6) << text;
    }
    for (const char* text : {"", "IPE 200", "1e5", "12 mm", "½"})
        EXPECT_FALSE(digits.Compone(griglia.font(), text)) << text;
}

// The style's own delegate lays every cell out with the text engine.
TEST_F(GrigliaCatalogoTest, NumbersLandOnThePixelsOfTheStyle) {
    Mostra({"HEA", "HEM", "HD", "UB"});
    QStyledItemDelegate style;
    QAbstractItemDelegate* own = griglia.itemDelegate();
    for (const double size : {8.0, 9.0, 10.5, 13.0, 19.0})
        for (const double scale : {1.0, 1.5, 2.0})
            for (const bool enabled : {true, false}) {
                SCOPED_TRACE(testing::Message() << size << " pt, scale " << scale << ", enabled " << enabled);
                QFont font = griglia.font();
                font.setPointSizeF(size);
                griglia.setFont(font);
                griglia.Scala(size / 9, size / 9);
                griglia.setEnabled(enabled);
                griglia.selectRow(2);
                griglia.setItemDelegate(own);
                const auto drawn = Immagini(griglia, scale);
                griglia.setItemDelegate(&style);
                EXPECT_TRUE(drawn == Immagini(griglia, scale));
            }
    griglia.setItemDelegate(own);
}

TEST_F(GrigliaCatalogoTest, ColumnsTakeTheWidestOfAllCells) {
    Mostra({"HEA", "HEB", "HEM", "IPE", "IPEO", "IPEA", "IPEX", "IPN", "HD", "HEX", "HP", "HEAA", "UC", "UB",
            "W", "HL"});
    const QFontMetrics metrics = griglia.fontMetrics();
    for (int column = 0; column < griglia.model()->columnCount(); ++column) {
        int widest = 0;
        for (int row = 0; row < griglia.model()->rowCount(); ++row)
            widest = std::max(
                widest, metrics.horizontalAdvance(griglia.model()->index(row, column).data().toString()));
        EXPECT_GE(griglia.columnWidth(column), widest + 10) << column;
        const QString heading = griglia.model()->headerData(column, Qt::Horizontal).toString();
        const int least = std::max(column == 0 ? 101 : 53, metrics.horizontalAdvance(heading) + 10);
        EXPECT_EQ(griglia.columnWidth(column), std::max(least, widest + 10)) << column;
    }
}

// The toolkit's own headings of the same model, which measure a bold face, are as high.
TEST_F(GrigliaCatalogoTest, HeadingsAreAsHighAsThoseOfTheToolkit) {
    QTableView plain;
    plain.setFont(griglia.font());
    plain.setModel(griglia.model());
    EXPECT_EQ(griglia.horizontalHeader()->sizeHint().height(), plain.horizontalHeader()->sizeHint().height());
    EXPECT_FALSE(griglia.horizontalHeader()->highlightSections());
    EXPECT_TRUE(griglia.horizontalHeader()->sectionsClickable());
}

TEST_F(GrigliaCatalogoTest, FindsWhatAScanOfAllRowsFinds) {
    Mostra({"HEA", "IPE", "W"});
    const auto folded = [](QString text) { return text.toLower().remove(u' '); };
    for (const char* typed :
         {"h", "HE", "hea1", "hea 1", "HEA 1000", "ipe", "Ipe 3", "w", "w 10 0", "x", "hea2x"}) {
        int first = -1;
        for (int row = griglia.model()->rowCount() - 1; row >= 0; --row)
            if (folded(griglia.model()->index(row, 0).data().toString()).startsWith(folded(typed)))
                first = row;
        EXPECT_EQ(griglia.CercaIniziale(typed), first) << typed;
    }
    Mostra({"IPN"});
    EXPECT_EQ(griglia.CercaIniziale("hea"), -1) << "the names follow the rows";
    EXPECT_EQ(griglia.CercaIniziale("ipn8"), 0);
}

TEST(NomiPiegati, CapitalsBlanksAndAccents) {
    NomiPiegati names;
    for (const char* name : {"HE 100 A", "Perché 2", "PERCHÉ 20", "", "à"})
        names.Aggiunge(name);
    EXPECT_EQ(names.CercaIniziale("he1"), 0);
    EXPECT_EQ(names.CercaIniziale("perchÉ2"), 1);
    EXPECT_EQ(names.CercaIniziale("PERCHÉ 20"), 2);
    EXPECT_EQ(names.CercaIniziale("À"), 4);
    EXPECT_EQ(names.CercaIniziale(""), 0);
    EXPECT_EQ(names.CercaIniziale("a"), -1);
    names.Svuota();
    EXPECT_EQ(names.CercaIniziale(""), -1);
}

} // namespace
