#include <QPainter>
#include <QPrinter>
#include <QTemporaryDir>

#include <cmath>

#include <gtest/gtest.h>

#include "drawing/Grafica.h"
#include "drawing/Plottaggio.h"
#include "drawing/ui/Immagini.h"
#include "drawing/ui/SuperficieSchermo.h"
#include "drawing/ui/SuperficieStampante.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

class SchermoSuImmagine : public testing::Test {
protected:
    /// Draws on a white picture of 400 x 300 and gives it back.
    template <typename F> QImage Disegna(F draw, const VistaSchermo& view = {}, double pixelRatio = 1) {
        QImage picture(QSizeF(400 * pixelRatio, 300 * pixelRatio).toSize(), QImage::Format_RGB32);
        picture.setDevicePixelRatio(pixelRatio);
        picture.fill(Qt::white);
        QPainter painter(&picture);
        SuperficieSchermo surface(painter, {400, 300}, QFont(QStringLiteral("DejaVu Sans"), 10), Qt::black,
                                  view);
        const StatoUscita before;
        OggettoGrafico = &surface;
        draw(surface);
        return picture;
    }

    /// Bottom left (0, 0), 2 pixels to a unit, y upwards.
    static void DueAllUnita(Superficie& s) {
        s.ScaleMode = Superficie::scalaUtente;
        s.ScaleLeft = 0;
        s.ScaleTop = 150;
        s.ScaleWidth = 200;
        s.ScaleHeight = -150;
    }
};

TEST_F(SchermoSuImmagine, OwnScaleIsPixelsDownwards) {
    const QImage p = Disegna([](Superficie& s) {
        EXPECT_EQ(s.ScaleWidth, 400);
        EXPECT_EQ(s.ScaleHeight, 300);
        EXPECT_EQ(s.FontSize, 10);
        s.Line(20, 50, 120, 50);
    });
    const QRect box = Inchiostro(p);
    EXPECT_EQ(box.top(), 50);
    EXPECT_EQ(box.height(), 1) << "a level line sits on the pixels";
    EXPECT_NEAR(box.left(), 20, 1);
    EXPECT_NEAR(box.width(), 100, 2);
}

TEST_F(SchermoSuImmagine, UserScaleTurnsHeightsUpwards) {
    const QImage p = Disegna([](Superficie& s) {
        DueAllUnita(s);
        s.Line(10, 20, 10, 120);
    });
    const QRect box = Inchiostro(p);
    EXPECT_EQ(box.left(), 20);
    EXPECT_EQ(box.width(), 1);
    EXPECT_NEAR(box.top(), 300 - 240, 1);
    EXPECT_NEAR(box.bottom(), 300 - 40, 1);
}

TEST_F(SchermoSuImmagine, ThinLinesAreOneDevicePixelTwiceAsDense) {
    const QImage p = Disegna([](Superficie& s) { s.Line(20, 50, 120, 50); }, {}, 2);
    const QRect box = Inchiostro(p);
    EXPECT_NEAR(box.height(), 2, 1) << "1 of the screen's pixels";
    EXPECT_NEAR(box.width(), 200, 4);
}

TEST_F(SchermoSuImmagine, CirclesKeepTheirRadius) {
    const QImage p = Disegna([](Superficie& s) {
        DueAllUnita(s);
        CerchioPlt(100, 75, 30); // 60 pixels about the middle
    });
    const QRect box = Inchiostro(p);
    EXPECT_NEAR(box.width(), 121, 1);
    EXPECT_NEAR(box.height(), 121, 1);
    EXPECT_NEAR(box.center().x(), 200, 1);
    EXPECT_NEAR(box.center().y(), 150, 1);
}

TEST_F(SchermoSuImmagine, TextIsAsHighAsItIsWanted) {
    for (const double height : {4.0, 10.0, 40.0}) {
        const QImage p = Disegna([&](Superficie& s) {
            DueAllUnita(s);
            TestoPlt(20, 60, height, "H");
        });
        const QRect box = Inchiostro(p);
        EXPECT_NEAR(box.height(), 2 * height, 1.5) << "capitals, 2 pixels to a unit";
        EXPECT_NEAR(box.bottom() + 1, 300 - 120, 1.5) << "stands on its base line";
        EXPECT_NEAR(box.left(), 40, 0.3 * height + 1);
    }
}

TEST_F(SchermoSuImmagine, TextsAlignByTheirWidth) {
    const auto draw = [&](Allinea where) {
        return Inchiostro(Disegna([&](Superficie& s) {
            DueAllUnita(s);
            TestoPlt(100, 60, 12, "HHHH", where);
        }));
    };
    const QRect left = draw(Allinea::Sinistra);
    const QRect middle = draw(Allinea::Centro);
    const QRect right = draw(Allinea::Destra);
    EXPECT_NEAR(middle.center().x(), 200, 1.5);
    EXPECT_NEAR(left.center().x() - middle.center().x(), middle.center().x() - right.center().x(), 1.5);
    EXPECT_LE(right.right(), 200);
    EXPECT_GE(left.left(), 200);
}

TEST_F(SchermoSuImmagine, ColoursComeFromTheTableAndPen7IsInk) {
    const auto colour = [&](std::int16_t pen) {
        return Disegna([&](Superficie& s) {
                   s.DrawWidth = 5;
                   s.ForeColor = pen;
                   s.Line(0, 50.5, 400, 50.5);
               })
            .pixelColor(200, 50);
    };
    EXPECT_EQ(colour(7), QColor(Qt::black));
    EXPECT_EQ(colour(8), QColor(128, 128, 128));
    EXPECT_EQ(colour(9), QColor(0, 0, 255));
    EXPECT_EQ(colour(12), QColor(255, 0, 0));
    EXPECT_EQ(colour(15), QColor(255, 255, 255));
}

TEST_F(SchermoSuImmagine, LinesHaveTheirWidthAndStyle) {
    const auto thickness = [&](double width) {
        const QImage p = Disegna([&](Superficie& s) {
            s.DrawWidth = width;
            s.Line(0, 50, 400, 50);
        });
        double ink = 0;
        for (int y = 40; y < 60; ++y)
            ink += 1 - qGray(p.pixel(200, y)) / 255.0;
        return ink;
    };
    EXPECT_NEAR(thickness(1), 1, 0.05);
    EXPECT_NEAR(thickness(1.4), 1.4, 0.05);
    const QImage chain = Disegna([](Superficie& s) {
        s.DrawStyle = TipoLinea::TrattoPunto;
        s.Line(0, 50, 400, 50);
    });
    int dark = 0;
    for (int x = 0; x < 400; ++x)
        dark += qGray(chain.pixel(x, 50)) < 128 ? 1 : 0;
    EXPECT_NEAR(dark, 400 * 14 / 20, 20) << "12 and 2 drawn in every 20";
}

// Twice as large about the middle (200, 150), then 30 to the right: a level line from 100 to 300 pixels goes
// from 0 + 30 to 400 + 30; a plumb one at x = 200 stands at 230.
TEST_F(SchermoSuImmagine, ViewMagnifiesTheUserScaleAboutTheMiddle) {
    const VistaSchermo view{2, {30, 0}};
    const QImage p = Disegna(
        [](Superficie& s) {
            DueAllUnita(s);
            s.Line(100, 50, 100, 100); // 200 pixels from the left, 200 to 100 from the top
        },
        view);
    const QRect box = Inchiostro(p);
    EXPECT_EQ(box.left(), 230);
    EXPECT_NEAR(box.top(), 50, 1);
    EXPECT_NEAR(box.bottom(), 250, 1);
    const QImage own = Disegna([](Superficie& s) { s.Line(20, 50, 120, 50); }, view);
    EXPECT_EQ(Inchiostro(own).top(), 50) << "the own scale is not magnified";
}

TEST_F(SchermoSuImmagine, OwnTextsKeepTheirSizeInEveryView) {
    const auto height = [&](double zoom) {
        return Inchiostro(Disegna(
                              [&](Superficie& s) {
                                  DueAllUnita(s);
                                  TestoPlt(100, 75, s.TextHeight("0"), "H");
                              },
                              {zoom, {}}))
            .height();
    };
    const int normal = height(1);
    EXPECT_GT(normal, 6);
    EXPECT_NEAR(height(4), normal, 1);
    EXPECT_NEAR(height(0.5), normal, 1);
}

TEST_F(SchermoSuImmagine, AFontGivenInPixelsHasASizeToo) {
    QImage picture(100, 100, QImage::Format_RGB32);
    QPainter painter(&picture);
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(20);
    const SuperficieSchermo s(painter, {100, 100}, font, Qt::black);
    EXPECT_NEAR(s.FontSize, 20 * 72.0 / painter.device()->logicalDpiY(), 1e-9);
}

// Paper -------------------------------------------------------------------------------------------------

class StampanteTest : public testing::Test {
protected:
    template <typename F> QImage Stampa(F draw) {
        const QString pdf = folder.filePath(QStringLiteral("foglio.pdf"));
        {
            QPrinter printer(QPrinter::HighResolution);
            printer.setOutputFileName(pdf);
            printer.setPageSize(QPageSize(QPageSize::A4));
            printer.setPageMargins({10, 10, 10, 10}, QPageLayout::Millimeter);
            QPainter painter(&printer);
            SuperficieStampante s(painter);
            const StatoUscita before;
            Dispositivo = dispositivoStampante;
            OggettoGrafico = &s;
            draw(s);
        }
        return PaginaPdf(pdf);
    }
    QTemporaryDir folder;
};

TEST_F(StampanteTest, OwnScaleIsMillimetresOfThePage) {
    if (!ConPoppler())
        GTEST_SKIP() << "poppler-utils is not installed";
    const QImage page = Stampa([](Superficie& s) {
        EXPECT_NEAR(s.ScaleWidth, 190, 0.3) << "A4 less two margins of 10, in whole points";
        EXPECT_NEAR(s.ScaleHeight, 277, 0.3);
        s.Line(20, 50, 120, 50);
    });
    EXPECT_NEAR(page.width(), 2100, 3);
    EXPECT_NEAR(page.height(), 2970, 3);
    const QRect box = Inchiostro(page);
    EXPECT_NEAR(box.width(), 1000, 5) << "100 mm, and a round end of 0.125 mm at each side";
    EXPECT_NEAR(box.left(), 300, 4) << "10 of margin and 20";
    EXPECT_NEAR(box.center().y(), 600, 3);
    EXPECT_NEAR(box.height(), 2.5, 1.6) << "0.25 mm";
}

TEST_F(StampanteTest, AHundredMillimetresInEveryDirectionThroughTheFrame) {
    if (!ConPoppler())
        GTEST_SKIP() << "poppler-utils is not installed";
    // The frame at 1:1: a window as large as the page, 190 x 277.
    const QImage page = Stampa([](Superficie& s) {
        Plottaggio frame;
        frame.Inizializza(&s, "STAMPANTE");
        frame.xFinestraPlt(0, s.ScaleWidth);
        frame.yFinestraPlt(0, s.ScaleHeight);
        frame.AdattaAfinestra();
        LineaPlt(40, 100, 140, 100);
        LineaPlt(40, 100, 40, 200);
    });
    const QRect box = Inchiostro(page);
    EXPECT_NEAR(box.width(), 1000, 5);
    EXPECT_NEAR(box.height(), 1000, 5);
    EXPECT_NEAR(box.bottom(), 2970 - 100 - 1000, 5) << "100 above the lower margin of 10";
}

TEST_F(StampanteTest, TextsAreAsHighAsTheyAreWanted) {
    if (!ConPoppler())
        GTEST_SKIP() << "poppler-utils is not installed";
    const QImage page = Stampa([](Superficie&) { TestoPlt(50, 100, 10, "H"); });
    const QRect box = Inchiostro(page);
    EXPECT_NEAR(box.height(), 100, 3) << "10 mm";
    EXPECT_NEAR(box.bottom(), 1100, 3);
    EXPECT_TRUE(TestoPdf(folder.filePath(QStringLiteral("foglio.pdf"))).contains(u'H'))
        << "a text, no curves";
}

} // namespace
