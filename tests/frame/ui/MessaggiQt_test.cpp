#include "frame/ui/MessaggiQt.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QMessageBox>
#include <QTimer>

#include "frame/Messaggi.h"
#include "frame/ui/AmbienteFinestre.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

class MessaggiQtTest : public AmbienteFinestre {};

TEST_F(MessaggiQtTest, KeysMeantForAnEntryDoNotAnswerTheBox) {
    const PortaMessaggi recorder = CollegaMessaggi({});
    CollegaMessaggiQt();
    bool stood = false;
    QTimer::singleShot(20, [&stood] {
        QWidget* box = QApplication::activeModalWidget();
        QTest::keyClick(box, Qt::Key_Return);
        stood = box->isVisible();
    });
    QTimer::singleShot(600, [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Return); });
    QElapsedTimer shown;
    shown.start();
    Avvisa("M1 deve essere positivo.");
    EXPECT_TRUE(stood);
    EXPECT_GE(shown.elapsed(), 500) << "read, then answered";
    CollegaMessaggi(recorder);
}

} // namespace
