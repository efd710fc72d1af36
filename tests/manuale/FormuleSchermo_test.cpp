#include "joints/FormuleGiunto.h"

#include <QFile>
#include <QLineEdit>
#include <QTabWidget>

#include "joints/ui/frmGiunti.h"
#include "screens/Comandi.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

class FormuleSchermoTest : public AmbienteSchermi {};

// Every box of the joint screen that shows a result has a formula, and the file has its block.
TEST_F(FormuleSchermoTest, EveryResultOfTheJointScreenHasItsBlock) {
    auto& main = Avvia();
    NavigaSchermi::Unico().Apre(QStringLiteral("frmGiunti"), main);
    const auto& screen = dynamic_cast<const frmGiunti&>(Aperto("frmGiunti"));
    QFile file(QStringLiteral(SAGOMI_BIN "/FormuleGiunto.rtf"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const std::string rtf = file.readAll().toStdString();
    int results = 0;
    for (const QLineEdit* box : screen.findChildren<QLineEdit*>()) {
        const std::string name = box->objectName().toStdString();
        if (!box->isReadOnly() || name.empty() || name.starts_with("qt_"))
            continue;
        ++results;
        const std::string_view id = IdFormula(name, *screen.NodoInMano().ConnessioneCorrente);
        EXPECT_FALSE(id.empty()) << name << " has no formula";
        EXPECT_TRUE(TestoFormula(rtf, id).has_value()) << name << " has no block " << id;
    }
    EXPECT_GE(results, 60);
}

} // namespace
