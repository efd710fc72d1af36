#include "joints/FormuleGiunto.h"

#include <QFile>
#include <QGridLayout>
#include <QLineEdit>
#include <QRegularExpression>
#include <QTabWidget>

#include "frame/ui/EtichettaFormula.h"
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

/// The symbol left of a box, without its unit.
QString SimboloAccanto(const QLineEdit& box) {
    const auto* grid = dynamic_cast<const QGridLayout*>(box.parentWidget()->layout());
    if (grid == nullptr)
        return {};
    int row = 0, column = 0, rows = 0, columns = 0;
    grid->getItemPosition(grid->indexOf(&box), &row, &column, &rows, &columns);
    const QLayoutItem* left = grid->itemAtPosition(row, column - 1);
    const auto* label = left == nullptr ? nullptr : dynamic_cast<const EtichettaFormula*>(left->widget());
    return label == nullptr ? QString() : label->Formula().section(QStringLiteral(" ["), 0, 0);
}

// The head of a block has the symbol of the screen, with its subscripts.
TEST_F(FormuleSchermoTest, BlocksOfTheResistancesHaveTheSymbolsOfTheScreen) {
    auto& main = Avvia();
    NavigaSchermi::Unico().Apre(QStringLiteral("frmGiunti"), main);
    const auto& screen = dynamic_cast<const frmGiunti&>(Aperto("frmGiunti"));
    QFile file(QStringLiteral(SAGOMI_BIN "/FormuleGiunto.rtf"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const std::string rtf = file.readAll().toStdString();
    static const QRegularExpression head(QStringLiteral("\\\\fs26\\{\\\\b (.*?)\\}  "));
    for (const char* name :
         {"txtF1", "txtF2", "txtF3", "txtF4", "txtF5", "txtF6_0", "txtF6_1", "txtF7_0", "txtF7_1", "txtF8",
          "txtFmin0", "txtFmin1", "TxtMjRd", "TxtMel", "txtMrdTrave", "TxtVrd0", "TxtVrd1"}) {
        const auto* box = Trova<QLineEdit>(&screen, name);
        const auto block = TestoFormula(rtf, IdFormula(name, *screen.NodoInMano().ConnessioneCorrente));
        ASSERT_TRUE(block.has_value()) << name;
        QString symbol = head.match(QString::fromStdString(*block)).captured(1);
        symbol.replace(QStringLiteral("{\\sub "), QStringLiteral("{"));
        EXPECT_FALSE(symbol.isEmpty()) << name;
        EXPECT_EQ(symbol, SimboloAccanto(*box)) << name;
    }
}

} // namespace
