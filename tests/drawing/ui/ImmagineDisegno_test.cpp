#include "drawing/ui/ImmagineDisegno.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QTimer>

#include <stdexcept>

#include <gtest/gtest.h>

#include "Registratore.h"
#include "drawing/Quadro.h"
#include "drawing/ui/Immagini.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

class ImmagineDisegnoTest : public testing::Test {
protected:
    /// A level line through the middle, in a picture of 120 x 80.
    static Disegno Riga() {
        Disegno d{"riga", {}, {120, 80}, {60, 40}};
        d.PlottaInOggetto = [misura = d.misura](Superficie* target, std::string_view) {
            const Quadro q(target, Dispositivo, misura);
            q.Contorno();
            const PuntoQuadro middle = q.Tutto().Centro();
            Quadro::Linea({10, middle.y}, {q.Tutto().larghezza - 10, middle.y});
        };
        return d;
    }
    Registratore registratore;
    ImmagineDisegno immagine;
};

TEST_F(ImmagineDisegnoTest, HasTheSizesOfItsDrawing) {
    EXPECT_TRUE(immagine.sizeHint().isEmpty());
    immagine.Mostra(Riga());
    EXPECT_EQ(immagine.sizeHint(), QSize(120, 80));
    EXPECT_EQ(immagine.minimumSizeHint(), QSize(60, 40));
    Disegno wider = Riga();
    wider.misura.campione = "MMM";
    wider.minima = {};
    immagine.Mostra(wider);
    EXPECT_EQ(immagine.sizeHint().width(), 120 + immagine.fontMetrics().horizontalAdvance("MMM"));
    EXPECT_EQ(immagine.minimumSizeHint(), immagine.sizeHint());
}

TEST_F(ImmagineDisegnoTest, IsSmallerWithSmallTextsDownToHalf) {
    immagine.Mostra(Riga());
    QFont font = immagine.font();
    font.setPixelSize(40); // a size in pixels counts as well
    immagine.setFont(font);
    EXPECT_EQ(immagine.sizeHint(), QSize(120, 80)) << "never larger";
    font.setPixelSize(2);
    immagine.setFont(font);
    EXPECT_EQ(immagine.sizeHint(), QSize(60, 40));
}

TEST_F(ImmagineDisegnoTest, DrawsOverTheWholeOfItsSize) {
    immagine.resize(200, 100);
    immagine.Mostra(Riga());
    const QRect box = Inchiostro(immagine.grab().toImage());
    EXPECT_NEAR(box.left(), 10, 1);
    EXPECT_NEAR(box.right(), 190, 1);
    EXPECT_NEAR(box.center().y(), 50, 1);
    immagine.Mostra({});
    EXPECT_TRUE(Inchiostro(immagine.grab().toImage()).isEmpty());
}

TEST_F(ImmagineDisegnoTest, InksFollowThePalette) {
    QPalette dark(QColor(40, 40, 40));
    dark.setColor(QPalette::Window, QColor(40, 40, 40));
    dark.setColor(QPalette::WindowText, Qt::white);
    immagine.setPalette(dark);
    immagine.resize(200, 100);
    immagine.Mostra(Riga());
    const QImage picture = immagine.grab().toImage();
    EXPECT_GT(qGray(picture.pixel(100, 50)) + qGray(picture.pixel(100, 49)), 200);
}

TEST_F(ImmagineDisegnoTest, ADrawingThatFailsIsToldOnceAndTheNextOneShows) {
    immagine.resize(200, 100);
    Disegno faulty = Riga();
    faulty.PlottaInOggetto = [](Superficie*, std::string_view) { throw std::runtime_error("guasto"); };
    immagine.Mostra(faulty);
    immagine.grab();
    immagine.grab();
    QCoreApplication::processEvents();
    EXPECT_EQ(registratore.testi, std::vector<std::string>{"Errore n° 0 - guasto"});
    immagine.Mostra(Riga());
    EXPECT_FALSE(Inchiostro(immagine.grab().toImage()).isEmpty());
}

TEST_F(ImmagineDisegnoTest, TheKeyboardReachesAPictureAndItsMenu) {
    EXPECT_EQ(immagine.focusPolicy(), Qt::NoFocus);
    immagine.Mostra(Riga());
    EXPECT_EQ(immagine.focusPolicy(), Qt::TabFocus);
    int entries = 0;
    QTimer::singleShot(0, &immagine, [&entries] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        entries = static_cast<int>(menu->actions().size());
        menu->close();
    });
    QContextMenuEvent key(QContextMenuEvent::Keyboard, {10, 10}, immagine.mapToGlobal(QPoint(10, 10)));
    QApplication::sendEvent(&immagine, &key);
    EXPECT_EQ(entries, 7);
    immagine.Mostra({});
    EXPECT_EQ(immagine.focusPolicy(), Qt::NoFocus);
}

} // namespace
