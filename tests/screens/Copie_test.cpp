#include "frame/ui/Copie.h"

#include <QApplication>
#include <QClipboard>
#include <QMimeData>
#include <QtTest>

#include "frame/ui/EtichettaRisultato.h"
#include "frame/ui/IconaProgramma.h"
#include "screens/Comandi.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

class CopieTest : public AmbienteSchermi {
protected:
    Schermo& Momenti() {
        auto& main = Avvia();
        VaA(main, "IPE 500");
        NavigaSchermi::Unico().Apre("FrmMcRd", main);
        return Aperto("FrmMcRd");
    }
};

TEST_F(CopieTest, ADoubleClickTakesTheWholeNumberWithoutBlanks) {
    auto* result = Trova<EtichettaRisultato>(&Momenti(), "Lbl_McRd_0");
    result->setText("  1234,5 ");
    QTest::mouseDClick(result, Qt::LeftButton);
    EXPECT_EQ(result->selectedText(), "1234,5");
    auto* box = Trova<QLineEdit>(&Aperto("FrmMcRd"), "Txt_Prof");
    box->setText(" IPE 500 ");
    QTest::mouseDClick(box, Qt::LeftButton);
    EXPECT_EQ(box->selectedText(), "IPE 500");
}

TEST_F(CopieTest, CtrlCWithNothingSelectedCopiesTheDerivation) {
    Schermo& s = Momenti();
    auto* box = Trova<QLineEdit>(&s, "TxtNsd");
    box->deselect();
    QTest::keyClick(box, Qt::Key_C, Qt::ControlModifier);
    const QMimeData* data = QApplication::clipboard()->mimeData();
    ASSERT_NE(data, nullptr);
    const std::string moment =
        Scritta(&s, "Lbl_McRd_0").substr(Scritta(&s, "Lbl_McRd_0").find_first_not_of(' '));
    EXPECT_NE(data->text().toStdString().find("Mc,Rd y-y\t" + moment), std::string::npos)
        << data->text().toStdString();
    EXPECT_NE(data->text().toStdString().find("EC3 6.2.5"), std::string::npos);
    EXPECT_NE(data->html().toStdString().find("<td>" + moment + "</td>"), std::string::npos);
    const QImage picture = qvariant_cast<QImage>(data->imageData());
    EXPECT_GT(picture.width(), 300);
    EXPECT_GT(picture.height(), 300);
    EXPECT_LT(data->text().indexOf("IPE 500"), data->text().indexOf("Mc,Rd y-y")) << "the head comes first";
}

TEST_F(CopieTest, AScreenThatShowsNothingLeavesTheClipboardAlone) {
    Schermo empty(QStringLiteral("Vuoto"));
    QApplication::clipboard()->setText("12");
    QTest::keyClick(&empty, Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    QTest::keyClick(&empty, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "12");
}

TEST_F(CopieTest, WhatIsSelectedIsCopiedAlone) {
    Schermo& s = Momenti();
    auto* box = Trova<QLineEdit>(&s, "TxtNsd");
    box->setText("125");
    box->selectAll();
    QTest::keyClick(box, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "125");
}

TEST_F(CopieTest, TheSymbolTheUnitAndTheClauseStandApart) {
    QWidget screen;
    EtichettaRisultato result(&screen);
    result.setAccessibleName("Mb,Rd [kNm]");
    result.setToolTip("Resistenza, EC3 6.3.2; non valida per C1 > 3");
    result.setText("  83.5");
    const auto rows = Derivazione(screen);
    ASSERT_EQ(rows.size(), 1);
    EXPECT_EQ(rows[0].simbolo, "Mb,Rd");
    EXPECT_EQ(rows[0].valore, "83.5");
    EXPECT_EQ(rows[0].unita, "kNm");
    EXPECT_EQ(rows[0].norma, "EC3 6.3.2");
}

TEST(IconaProgrammaTest, EveryWindowHasADrawnIconAtEverySize) {
    EXPECT_FALSE(QApplication::windowIcon().isNull());
    for (const int side : {16, 48, 256}) {
        const QImage picture = IconaProgramma().pixmap(side).toImage();
        ASSERT_EQ(picture.width(), side);
        const QColor web = picture.pixelColor(side / 2, side / 2);
        const QColor ground = picture.pixelColor(side / 4, side / 2);
        EXPECT_GT(web.lightness(), ground.lightness() + 100) << "the web stands out of the ground";
        EXPECT_LT(picture.pixelColor(0, 0).alpha(), 64) << "round corners";
    }
}

} // namespace
