#include "frame/ui/AttesaQt.h"

#include <QTimer>

#include "frame/Attesa.h"
#include "frame/ui/AmbienteFinestre.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

class AttesaQtTest : public AmbienteFinestre {
protected:
    void SetUp() override {
        AmbienteFinestre::SetUp();
        prima_ = CollegaAttesa({});
        CollegaAttesaQt();
    }
    void TearDown() override {
        CollegaAttesa(prima_);
        AmbienteFinestre::TearDown();
    }

private:
    PortaAttesa prima_;
};

TEST_F(AttesaQtTest, LongWorkLetsEventsThroughAndStopsWhenTheProgramCloses) {
    int steps = 0;
    QTimer::singleShot(0, [] { ChiusuraInCorso = true; });
    while (Prosegue() && steps < 1000)
        ++steps;
    EXPECT_LT(steps, 1000);
    ChiusuraInCorso = false;
    EXPECT_TRUE(Prosegue());
}

} // namespace
