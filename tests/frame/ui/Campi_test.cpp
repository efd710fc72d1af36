#include "frame/ui/Campi.h"

#include <QPushButton>
#include <QVBoxLayout>

#include "frame/ui/AmbienteFinestre.h"
#include "frame/ui/ScriveTesto.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

class CampiTest : public AmbienteFinestre {
protected:
    void SetUp() override {
        AmbienteFinestre::SetUp();
        auto* rows = new QVBoxLayout(&finestra);
        for (QWidget* w : {static_cast<QWidget*>(&prima), static_cast<QWidget*>(&spenta),
                           static_cast<QWidget*>(&nascosta), static_cast<QWidget*>(&seconda)})
            rows->addWidget(w);
        spenta.setEnabled(false);
        nascosta.hide();
        finestra.show();
        finestra.activateWindow();
        QCoreApplication::processEvents();
    }
    QWidget finestra;
    QLineEdit prima, nascosta, seconda;
    QPushButton spenta;
};

TEST_F(CampiTest, FocusSkipsControlsThatRefuseAndSelects) {
    seconda.setText("12");
    prima.setFocus();
    FuocoSuccessivo(&finestra);
    EXPECT_TRUE(seconda.hasFocus());
    EXPECT_EQ(seconda.selectionStart(), 0);
    EXPECT_EQ(seconda.selectionLength(), 2);
}

TEST_F(CampiTest, EnteringABoxByMouseSelectsItsText) {
    seconda.setText("12345");
    FiltroCampi filter(&finestra);
    filter.Osserva(&seconda);
    prima.setFocus();
    QTest::mouseClick(&seconda, Qt::LeftButton);
    QCoreApplication::processEvents();
    EXPECT_EQ(seconda.selectedText(), "12345");
}

TEST_F(CampiTest, SlowClickThatMovesSelectsAllTheSame) {
    seconda.setText("360");
    FiltroCampi filter(&finestra);
    filter.Osserva(&seconda);
    prima.setFocus();
    QTest::mousePress(&seconda, Qt::LeftButton, {}, QPoint(4, 8));
    QCoreApplication::processEvents();
    QTest::mouseMove(&seconda, QPoint(12, 8));
    QCoreApplication::processEvents();
    QTest::mouseRelease(&seconda, Qt::LeftButton, {}, QPoint(12, 8));
    QCoreApplication::processEvents();
    QTest::keyClicks(&seconda, "7");
    EXPECT_EQ(seconda.text(), "7");
}

TEST_F(CampiTest, KeypadWritesIntoNothingThatIsReadOnly) {
    FiltroCampi filter(&finestra);
    filter.Osserva(&prima);
    prima.setText("1");
    prima.setReadOnly(true);
    QTest::keyClick(&prima, Qt::Key_Period, Qt::KeypadModifier);
    EXPECT_EQ(prima.text(), "1");
}

TEST_F(CampiTest, KeypadTypesTheSeparatorInUse) {
    FiltroCampi filter(&finestra);
    filter.Osserva(&prima);
    const auto saved = CarDecimale;
    CarDecimale = u',';
    prima.setFocus();
    QTest::keyClick(&prima, Qt::Key_Period, Qt::KeypadModifier);
    CarDecimale = saved;
    EXPECT_EQ(prima.text(), ",");
    QTest::keyClicks(&prima, "abc");
    EXPECT_EQ(prima.text(), ",abc") << "letters stay typeable";
    EXPECT_EQ(NumeroIn(&prima), 0.0);
}

TEST_F(CampiTest, EnterAsksTheScreenFirst) {
    QLineEdit* asked = nullptr;
    FiltroCampi filter(&finestra, [&asked](QLineEdit* box) {
        asked = box;
        return false;
    });
    filter.Osserva(&prima);
    prima.setFocus();
    QTest::keyClick(&prima, Qt::Key_Enter);
    EXPECT_EQ(asked, &prima);
    EXPECT_TRUE(seconda.hasFocus());
}

TEST_F(CampiTest, BoxAndRecordShareOneFieldList) {
    double value = 1234.5;
    LeggeScriveTesto("S", &prima, value);
    EXPECT_EQ(prima.text().toStdString(), "1234" + Utf8DaCodice(CarDecimale) + "5");
    value = 0;
    LeggeScriveTesto("L", &prima, value);
    EXPECT_EQ(value, 1234.5);
    std::string name = "HEA 100";
    LeggeScriveTesto("S", &prima, name);
    name.clear();
    LeggeScriveTesto("L", &prima, name);
    EXPECT_EQ(name, "HEA 100");
}

TEST_F(CampiTest, ATextThatIsThereAlreadyKeepsItsSelection) {
    prima.setText("12,50");
    prima.setSelection(1, 2);
    ScriveTesto(&prima, "12,50");
    EXPECT_EQ(prima.selectedText(), "2,");
    ScriveTesto(&prima, "13");
    EXPECT_EQ(prima.text(), "13");
}

} // namespace
