// What the user waits for: from a key press to the painted result (target: under 8 ms), from one row to the
// next, and from the start to the first usable screen. Peer: painting the unchanged screen once more, in the
// same run. Runs on Qt's offscreen platform.

#include <QApplication>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>

#include <benchmark/benchmark.h>

#include <filesystem>

#include "frame/GeneraleSagomi.h"
#include "frame/Messaggi.h"
#include "frame/ui/NavigaSchermi.h"
#include "screens/GeneraleSchermi.h"
#include "screens/frmDoppioT.h"

using namespace sagomi;

namespace {

frmDoppioT& Schermo() {
    if (NavigaSchermi::Unico().Trova(QStringLiteral("frmDoppioT")) == nullptr)
        InizializzaProgramma();
    return NavigaSchermi::Unico().Prende<frmDoppioT>();
}

/// Paints the whole screen, which is more than a changed result asks for.
void Dipinge(QWidget& screen) {
    QCoreApplication::sendPostedEvents();
    benchmark::DoNotOptimize(screen.grab());
}

void RidipingeSoltanto(benchmark::State& state) {
    auto& screen = Schermo();
    for (auto _ : state)
        Dipinge(screen);
}
BENCHMARK(RidipingeSoltanto)->Unit(benchmark::kMillisecond);

void TastoFinoAlDipinto(benchmark::State& state) {
    auto& screen = Schermo();
    QLineEdit* force = screen.TxtNsd;
    force->setFocus();
    for (auto _ : state) {
        force->selectAll();
        QTest::keyClick(force, Qt::Key_7);
        Dipinge(screen);
        force->setText(QStringLiteral("1"));
    }
}
BENCHMARK(TastoFinoAlDipinto)->Unit(benchmark::kMillisecond);

void FrecciaFinoAlDipinto(benchmark::State& state) {
    auto& screen = Schermo();
    for (auto _ : state) {
        QTest::keyClick(screen.DBGrid1,
                        screen.DBGrid1->currentIndex().row() == 17 ? Qt::Key_Home : Qt::Key_Down);
        if (screen.Data1->Recordset().RigaCorrente() == 17)
            screen.Data1->MoveFirst();
        Dipinge(screen);
    }
}
BENCHMARK(FrecciaFinoAlDipinto)->Unit(benchmark::kMillisecond);

void AvvioFinoAlPrimoSchermo(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        NavigaSchermi::Unico().ScaricaTutti();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        state.ResumeTiming();
        InizializzaProgramma();
        Dipinge(Schermo());
    }
}
BENCHMARK(AvvioFinoAlPrimoSchermo)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    PreparaApplicazione();
    CollegaMessaggi({}); // nobody is there to press OK
    benchmark::RunSpecifiedBenchmarks();
}
