#include "frame/ui/Guida.h"

#include <QApplication>
#include <QMessageBox>
#include <QTextBrowser>
#include <QWheelEvent>

#include "frame/ui/AmbienteFinestre.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

class GuidaTest : public AmbienteFinestre {
protected:
    static QTextBrowser* Finestra() {
        for (QWidget* w : QApplication::topLevelWidgets())
            if (w->objectName() == "FinestraGuida" && w->isVisible())
                return qobject_cast<QTextBrowser*>(w);
        return nullptr;
    }
    void TearDown() override {
        if (auto* window = Finestra())
            window->hide();
        AmbienteFinestre::TearDown();
    }
};

TEST_F(GuidaTest, F1OpensTheHelpOfTheProgram) {
    Schermo first(QStringLiteral("frmDoppioT"));
    auto* box = new QLineEdit(&first);
    box->setObjectName("Txt_L0_1");
    first.show();
    box->setFocus();
    QTest::keyClick(box, Qt::Key_F1);
    ASSERT_NE(Finestra(), nullptr);
    EXPECT_TRUE(Finestra()->toPlainText().contains("Lunghezze di libera inflessione", Qt::CaseInsensitive));
    QTest::keyClick(Finestra(), Qt::Key_Escape);
    EXPECT_EQ(Finestra(), nullptr);
}

TEST_F(GuidaTest, FileIsFoundWhateverTheCaseOfItsLetters) {
    Guida::Apri(QStringLiteral("SAGOMI.HLP"));
    EXPECT_NE(Finestra(), nullptr);
    EXPECT_TRUE(registratore.testi.empty());
}

TEST_F(GuidaTest, MessageBoxGetsNoHelpBehindIt) {
    QMessageBox box;
    box.setModal(true);
    box.show();
    QCoreApplication::processEvents();
    QTest::keyClick(&box, Qt::Key_F1);
    EXPECT_EQ(Finestra(), nullptr);
}

// Notches without number, up and down: the font stays between 6 and 40 points, and what a notch did another
// one undoes.
TEST_F(GuidaTest, ZoomHasItsBounds) {
    Guida::Apri(QStringLiteral("Sagomi.hlp"));
    QTextBrowser* window = Finestra();
    ASSERT_NE(window, nullptr);
    const auto notches = [window](int n) {
        QWheelEvent event({50, 50}, window->mapToGlobal(QPointF(50, 50)), {}, {0, 120 * n}, Qt::NoButton,
                          Qt::ControlModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(window->viewport(), &event);
        return window->font().pointSizeF();
    };
    const double start = window->font().pointSizeF();
    EXPECT_NEAR(notches(1), start + 1, 0.1);
    EXPECT_NEAR(notches(-1), start, 0.1);
    for (int i = 0; i < 300; ++i)
        EXPECT_LE(notches(10), 40.1);
    for (int i = 0; i < 300; ++i)
        EXPECT_GE(notches(-10), 5.9);
    EXPECT_LE(notches(1000000), 40.1);
}

TEST_F(GuidaTest, MissingFileIsToldByName) {
    Guida::Apri(QStringLiteral("Manca.hlp"));
    ASSERT_EQ(registratore.testi.size(), 1U);
    EXPECT_NE(registratore.testi[0].find("Manca.hlp"), std::string::npos);
    EXPECT_EQ(Finestra(), nullptr);
}

} // namespace
