#include <QLabel>
#include <QSignalSpy>

#include "frame/ui/AmbienteFinestre.h"
#include "frame/ui/Casella.h"
#include "frame/ui/EtichettaSimbolo.h"
#include "frame/ui/UpDown.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

class EtichetteTest : public AmbienteFinestre {};

TEST_F(EtichetteTest, MarkForNoLimitIsHeldAsTextAndPaintedAsInfinity) {
    EtichettaSimbolo mark;
    mark.setText(QStringLiteral("¥"));
    EtichettaSimbolo infinity;
    infinity.setText(QString(QChar(0x221E)));
    mark.resize(40, 24);
    infinity.resize(40, 24);
    EXPECT_EQ(mark.text(), "¥");
    EXPECT_EQ(mark.grab().toImage(), infinity.grab().toImage());
}

TEST_F(EtichetteTest, StepButtonsTellUpFromDown) {
    UpDown steps;
    QSignalSpy spy(&steps, &UpDown::passo);
    steps.stepUp();
    steps.stepDown();
    ASSERT_EQ(spy.count(), 2);
    EXPECT_TRUE(spy[0][0].toBool());
    EXPECT_FALSE(spy[1][0].toBool());
    QTest::keyClick(&steps, Qt::Key_Up);
    ASSERT_EQ(spy.count(), 3);
    EXPECT_TRUE(spy[2][0].toBool());
}

TEST_F(EtichetteTest, ResultsFollowALiveChangeOfThePalette) {
    QWidget window;
    Casella result(&window);
    result.ImpostaRisultato(true);
    const QPalette light = QApplication::palette();
    QPalette dark = light;
    dark.setColor(QPalette::Window, QColor(40, 40, 40));
    dark.setColor(QPalette::Base, QColor(20, 20, 20));
    QApplication::setPalette(dark);
    QCoreApplication::processEvents();
    EXPECT_EQ(result.palette().color(QPalette::Base), QColor(40, 40, 40));
    QApplication::setPalette(light);
    QCoreApplication::processEvents();
    EXPECT_EQ(result.palette().color(QPalette::Base), light.color(QPalette::Window));
}

} // namespace
