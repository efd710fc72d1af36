#include "frame/ui/Protetto.h"

#include <QPainter>
#include <QWidget>

#include <stdexcept>

#include "frame/Impostazioni.h"
#include "frame/ui/AmbienteFinestre.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

class ProtettoTest : public AmbienteFinestre {};

/// A widget whose painting fails.
struct Rotto : QWidget {
    int dipinti = 0;
    void paintEvent(QPaintEvent* /*event*/) override {
        DipintoProtetto(this, [this] {
            ++dipinti;
            throw std::out_of_range("indice 9");
        });
    }
};

TEST_F(ProtettoTest, ExceptionInAHandlerBecomesABox) {
    QObject sender;
    Collega(&sender, &QObject::objectNameChanged, &sender, [] { throw std::out_of_range("indice 9"); });
    sender.setObjectName("x");
    EXPECT_EQ(registratore.testi, std::vector<std::string>{"Errore n° 0 - indice 9"});
}

TEST_F(ProtettoTest, PaintingThatFailsIsToldOnceAndAfterwards) {
    Rotto broken;
    broken.grab();
    EXPECT_TRUE(registratore.testi.empty()) << "no box in the middle of a painting";
    broken.grab();
    QCoreApplication::processEvents();
    EXPECT_EQ(registratore.testi, std::vector<std::string>{"Errore n° 0 - indice 9"});
    EXPECT_EQ(broken.dipinti, 1) << "the next would fail alike";
}

TEST_F(ProtettoTest, ASettingChangedInAHandlerIsWrittenAtOnce) {
    IniLeggeScrive("L");
    QObject sender;
    Collega(&sender, &QObject::objectNameChanged, &sender, [] { IndiceAcciaio = 2; });
    sender.setObjectName("x");
    EXPECT_TRUE(std::filesystem::exists(PathProgramma / "Sagomi.ini"));
    IndiceAcciaio = 0;
    IniLeggeScrive("L");
    EXPECT_EQ(IndiceAcciaio, 2);
}

} // namespace
