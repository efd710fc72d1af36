#include "drawing/ui/AreaDisegno.h"

#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>

#include <stdexcept>

#include <gtest/gtest.h>

#include "Registratore.h"
#include "drawing/Grafica.h"
#include "drawing/ui/Immagini.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

class AreaDisegnoTest : public testing::Test {
protected:
    void SetUp() override {
        area.resize(400, 300);
        area.Mostra([](Superficie& s) {
            s.ScaleMode = Superficie::scalaUtente; // its own pixels, but magnified
            s.Line(100, 100, 300, 100);
        });
        area.show();
    }

    void Rotella(const QPointF& at, int notches) {
        QWheelEvent event(at, area.mapToGlobal(at), {}, {0, 120 * notches}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(&area, &event);
    }

    QRect Riga() { return Inchiostro(area.grab().toImage()); }

    Registratore registratore;
    AreaDisegno area;
};

TEST_F(AreaDisegnoTest, DrawsWhatItIsGivenOnTheBaseColour) {
    EXPECT_NEAR(Riga().left(), 100, 1);
    EXPECT_NEAR(Riga().top(), 100, 1);
    EXPECT_EQ(area.grab().toImage().pixelColor(5, 5), area.palette().color(QPalette::Base));
    area.Mostra({});
    EXPECT_TRUE(Riga().isEmpty());
}

// The end of the line at (100, 100) under the pointer stays; the line grows by 1.25 a notch.
TEST_F(AreaDisegnoTest, WheelZoomsAtThePointer) {
    const QSignalSpy zoomed(&area, &AreaDisegno::vistaCambiata);
    Rotella({100, 100}, 1);
    EXPECT_NEAR(area.Vista().zoom, 1.25, 1e-9);
    EXPECT_NEAR(Riga().left(), 100, 1);
    EXPECT_NEAR(Riga().width(), 251, 2);
    Rotella({100, 100}, -1);
    EXPECT_NEAR(area.Vista().zoom, 1, 1e-9);
    EXPECT_NEAR(area.Vista().spostamento.x(), 0, 1e-9);
    EXPECT_EQ(zoomed.count(), 2);
}

TEST_F(AreaDisegnoTest, ZoomHasItsLimits) {
    Rotella({100, 100}, 100);
    EXPECT_EQ(area.Vista().zoom, 200);
    Rotella({100, 100}, -200);
    EXPECT_EQ(area.Vista().zoom, 0.5);
    Rotella({100, 100}, 0);
    EXPECT_EQ(area.Vista().zoom, 0.5);
}

TEST_F(AreaDisegnoTest, DraggingMovesAndADoubleClickFits) {
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::MiddleButton}) {
        QTest::mousePress(&area, button, {}, {50, 50});
        QTest::mouseMove(&area, {70, 80});
        QTest::mouseRelease(&area, button, {}, {70, 80});
        EXPECT_EQ(area.Vista().spostamento, QPointF(20, 30));
        EXPECT_NEAR(Riga().top(), 130, 1);
        QTest::mouseMove(&area, {90, 90});
        EXPECT_EQ(area.Vista().spostamento, QPointF(20, 30)) << "let go";
        Rotella({10, 10}, 3);
        QTest::mouseDClick(&area, Qt::LeftButton, {}, {10, 10});
        QTest::mouseRelease(&area, Qt::LeftButton, {}, {10, 10});
        EXPECT_EQ(area.Vista().zoom, 1);
        EXPECT_EQ(area.Vista().spostamento, QPointF());
    }
    QTest::mousePress(&area, Qt::RightButton, {}, {50, 50});
    QTest::mouseMove(&area, {70, 80});
    EXPECT_EQ(area.Vista().spostamento, QPointF());
}

TEST_F(AreaDisegnoTest, KeysZoomMoveAndFit) {
    QTest::keyClick(&area, Qt::Key_Plus);
    EXPECT_NEAR(area.Vista().zoom, 1.25, 1e-9);
    QTest::keyClick(&area, Qt::Key_Minus);
    EXPECT_NEAR(area.Vista().zoom, 1, 1e-9);
    QTest::keyClick(&area, Qt::Key_Left);
    EXPECT_GT(area.Vista().spostamento.x(), 0) << "looking to the left, the picture moves right";
    QTest::keyClick(&area, Qt::Key_Right);
    QTest::keyClick(&area, Qt::Key_Up);
    EXPECT_GT(area.Vista().spostamento.y(), 0);
    EXPECT_NEAR(area.Vista().spostamento.x(), 0, 1e-9);
    QTest::keyClick(&area, Qt::Key_Down);
    EXPECT_NEAR(area.Vista().spostamento.y(), 0, 1e-9);
    QTest::keyClick(&area, Qt::Key_Plus);
    QTest::keyClick(&area, Qt::Key_Home);
    EXPECT_EQ(area.Vista().zoom, 1);
}

TEST_F(AreaDisegnoTest, APaintingThatFailsIsToldOnceAndCleared) {
    area.Mostra([](Superficie&) { throw std::runtime_error("guasto"); });
    EXPECT_TRUE(Riga().isEmpty());
    EXPECT_TRUE(Riga().isEmpty());
    QCoreApplication::processEvents();
    EXPECT_EQ(registratore.testi, std::vector<std::string>{"Errore n° 0 - guasto"});
    EXPECT_EQ(Dispositivo, "VIDEO");
    EXPECT_EQ(OggettoGrafico, nullptr);
}

} // namespace
