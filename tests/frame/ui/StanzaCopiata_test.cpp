#include "frame/ui/StanzaCopiata.h"

#include <QProgressBar>
#include <QVBoxLayout>

#include "frame/ui/AmbienteFinestre.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

class StanzaCopiataTest : public AmbienteFinestre {};

// A bar that only shows how far a computation has come has no name, and is no result.
TEST_F(StanzaCopiataTest, ABarIsARowWhereItHasAName) {
    QWidget screen;
    auto* column = new QVBoxLayout(&screen);
    auto* bar = new QProgressBar;
    bar->setValue(40);
    column->addWidget(bar);
    EXPECT_TRUE(Derivazione(screen).isEmpty());
    bar->setAccessibleName(QStringLiteral("Utilizzo"));
    ASSERT_EQ(Derivazione(screen).size(), 1);
    EXPECT_EQ(Derivazione(screen)[0].simbolo, "Utilizzo");
    EXPECT_EQ(Derivazione(screen)[0].valore, "40%");
}

} // namespace
