#include "screens/FrmInform.h"

#include <QAction>
#include <QPushButton>

#include "screens/Ambiente.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

class FrmInformTest : public AmbienteSchermi {};

TEST_F(FrmInformTest, SaysNameAndVersionAndGoesBack) {
    auto& s = Avvia();
    Trova<QAction>(&s, "mnuHelp_1")->trigger();
    auto* info = NavigaSchermi::Unico().Trova(QStringLiteral("FrmInform"));
    ASSERT_NE(info, nullptr);
    EXPECT_TRUE(info->isVisible());
    EXPECT_TRUE(s.isVisible());
    EXPECT_EQ(Trova<QLabel>(info, "LblNome")->text(), "Sagomi");
    EXPECT_EQ(Trova<QLabel>(info, "LblVersione")->text(), "Versione 7.8");
    ScreenAttivo.clear();
    QTest::keyClick(Trova<QPushButton>(info, "cmdOK"), Qt::Key_Return);
    EXPECT_FALSE(info->isVisible());
    EXPECT_EQ(ScreenAttivo, "frmDoppioT") << "the caller has been activated again";
    Trova<QAction>(&s, "mnuHelp_1")->trigger();
    QTest::keyClick(info, Qt::Key_Escape);
    EXPECT_FALSE(info->isVisible());
}

} // namespace
