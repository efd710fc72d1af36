#include "frame/ui/Guida.h"

#include <QApplication>
#include <QMessageBox>
#include <QTextBrowser>

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

TEST_F(GuidaTest, MissingFileIsToldByName) {
    Guida::Apri(QStringLiteral("Manca.hlp"));
    ASSERT_EQ(registratore.testi.size(), 1U);
    EXPECT_NE(registratore.testi[0].find("Manca.hlp"), std::string::npos);
    EXPECT_EQ(Finestra(), nullptr);
}

} // namespace
