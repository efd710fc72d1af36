#include "frame/ui/AttesaQt.h"

#include <QPointer>
#include <QTimer>

#include "frame/Attesa.h"
#include "frame/ui/AmbienteFinestre.h"
#include "frame/ui/ChiudiProgramma.h"

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

// The screen that lets events through is in use until its work ends.
TEST_F(AttesaQtTest, AProgramThatIsClosedInTheMiddleOfItWaitsForItsEnd) {
    struct Schermata : Schermo {
        Schermata() : Schermo(QStringLiteral("Schermata")) {}
    };
    const QPointer<Schermo> screen = &NavigaSchermi::Unico().Prende<Schermata>();
    QTimer::singleShot(0, qApp, [] { EXPECT_TRUE(ChiudiProgramma()); });
    EXPECT_FALSE(Prosegue());
    EXPECT_TRUE(ChiusuraInCorso);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_NE(screen, nullptr);
    EXPECT_FALSE(Prosegue()) << "nothing more is let through";
    EXPECT_TRUE(QTest::qWaitFor([&] { return screen.isNull(); }));
}

} // namespace
