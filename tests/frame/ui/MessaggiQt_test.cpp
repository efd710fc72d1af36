#include "frame/ui/MessaggiQt.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QMainWindow>
#include <QMessageBox>
#include <QScreen>
#include <QTimer>

#include <functional>

#include "frame/Messaggi.h"
#include "frame/ui/AmbienteFinestre.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

class MessaggiQtTest : public AmbienteFinestre {
protected:
    void SetUp() override {
        AmbienteFinestre::SetUp();
        registra_ = CollegaMessaggi({});
        CollegaMessaggiQt();
    }
    void TearDown() override {
        CollegaMessaggi(registra_);
        AmbienteFinestre::TearDown();
    }
    /// Looks at the box that is to come, then presses a key in it once it takes keys.
    static void Alla(std::function<void(QMessageBox&)> vede, Qt::Key key) {
        QTimer::singleShot(450, [vede = std::move(vede), key] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            vede(*box);
            QTest::keyClick(box, key);
        });
    }

private:
    PortaMessaggi registra_;
};

TEST_F(MessaggiQtTest, ABoxStandsOverTheWindowAtWork) {
    QMainWindow first;
    QMainWindow second;
    for (QMainWindow* window : {&first, &second}) {
        window->show();
        window->activateWindow();
        QApplication::setActiveWindow(window);
        const QWidget* parent = nullptr;
        Alla([&parent](const QMessageBox& box) { parent = box.parentWidget(); }, Qt::Key_Return);
        Avvisa("fy deve essere > 0");
        EXPECT_EQ(parent, window);
    }
}

TEST_F(MessaggiQtTest, LinesStayWhole) {
    bool whole = false;
    QString text;
    Alla(
        [&](QMessageBox& box) {
            const auto* label = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
            text = label->text();
            int longest = 0;
            for (const QString& line : text.split('\n'))
                longest = std::max(longest, label->fontMetrics().horizontalAdvance(line));
            const int desktop = box.screen()->availableGeometry().width(); // a small one is all the box's
            whole = label->width() >= longest;
            EXPECT_LE(longest, desktop - 120);
            EXPECT_GT(longest, desktop - 600) << "else any box would hold it";
        },
        Qt::Key_Return);
    Avvisa("Riscontrato valore troppo approssimato nel database, una riga che una finestra da sola spezza\r"
           " 2,000\rDifferenza del  5.12%\r");
    EXPECT_TRUE(whole);
    EXPECT_EQ(text.count('\n'), 2);
}

TEST_F(MessaggiQtTest, EscSkipsWhatFollows) {
    QString title;
    Alla([&title](const QMessageBox& box) { title = box.windowTitle(); }, Qt::Key_Escape);
    EXPECT_TRUE(AvvisaSaltabile("a", "IPE 200 - Iy (cm4)"));
    EXPECT_EQ(title, "IPE 200 - Iy (cm4)");
    Alla([](const QMessageBox&) {}, Qt::Key_Return);
    EXPECT_FALSE(AvvisaSaltabile("b", "IPE 200 - Iz (cm4)"));
}

TEST_F(MessaggiQtTest, KeysMeantForAnEntryDoNotAnswerTheBox) {
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
}

} // namespace
