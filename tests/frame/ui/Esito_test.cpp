#include "frame/ui/Esito.h"

#include <QApplication>
#include <QLabel>

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include "frame/ui/Accessibilita.h"
#include "frame/ui/Colori.h"

using namespace sagomi;

namespace {

class Esito : public testing::Test {
protected:
    QColor Testo() const { return verdetto.palette().color(QPalette::WindowText); }
    QLabel verdetto;
};

TEST_F(Esito, PassesUpToOne) {
    for (const double sum : {-2.0, 0.0, 0.999, 1.0}) {
        MostraEsito(&verdetto, sum);
        EXPECT_EQ(verdetto.text(), "OK") << sum;
        EXPECT_EQ(Testo(), QColor(Qt::black));
    }
}

TEST_F(Esito, FailsAboveOneInRedOnWhite) {
    for (const double sum : {std::nextafter(1.0, 2.0), 1.001, std::numeric_limits<double>::infinity()}) {
        MostraEsito(&verdetto, sum);
        EXPECT_EQ(verdetto.text(), "NO") << sum;
        EXPECT_EQ(Testo(), QColor(255, 0, 0));
        EXPECT_EQ(verdetto.palette().color(QPalette::Window), QColor(Qt::white));
        EXPECT_TRUE(verdetto.autoFillBackground());
    }
}

TEST_F(Esito, NoNumberNoVerdict) {
    MostraEsito(&verdetto, 2);
    MostraEsito(&verdetto, std::nan(""));
    EXPECT_EQ(verdetto.text(), "");
    EXPECT_FALSE(verdetto.autoFillBackground());
    MostraEsito(&verdetto, -HUGE_VAL);
    EXPECT_EQ(verdetto.text(), "");
    MostraEsito(&verdetto, 0.5);
    EXPECT_EQ(verdetto.text(), "OK");
    EXPECT_EQ(Testo(), QColor(Qt::black));
}

TEST_F(Esito, InADarkPaletteItIsLightOnDark) {
    const QPalette before = QApplication::palette();
    MostraEsito(&verdetto, 2);
    QApplication::setPalette(QPalette(QColor(53, 53, 53)));
    for (const double sum : {2.0, 0.5}) {
        MostraEsito(&verdetto, sum);
        EXPECT_GE(Contrasto(Testo(), verdetto.palette().color(QPalette::Window)), 4.5) << sum;
        EXPECT_LT(verdetto.palette().color(QPalette::Window).lightness(), 128);
    }
    QLabel value;
    MostraGoverna(&value, true);
    EXPECT_GE(Contrasto(value.palette().color(QPalette::WindowText),
                        QApplication::palette().color(QPalette::Window)),
              4.5);
    QApplication::setPalette(before);
    MostraGoverna(&value, true);
    EXPECT_EQ(value.palette().color(QPalette::WindowText), QColor(255, 0, 0));
    EXPECT_TRUE(value.font().bold());
    MostraGoverna(&value, false);
    EXPECT_FALSE(value.font().bold());
}

TEST_F(Esito, FollowsThePaletteThatComes) {
    const QPalette before = QApplication::palette();
    verdetto.show();
    MostraEsito(&verdetto, 2);
    const auto change = [this](const QPalette& colours) {
        QApplication::setPalette(colours);
        QEvent event(QEvent::ApplicationPaletteChange); // the running program sends it
        QApplication::sendEvent(&verdetto, &event);
    };
    change(QPalette(QColor(53, 53, 53)));
    EXPECT_GE(Contrasto(Testo(), verdetto.palette().color(QPalette::Window)), 4.5);
    EXPECT_NE(Testo(), QColor(255, 0, 0));
    change(before);
    EXPECT_EQ(Testo(), QColor(255, 0, 0));
}

// Told when it changes, and only then.
TEST_F(Esito, IsToldToAScreenReader) {
    verdetto.show();
    QStringList said;
    ImpostaAscolto([&said](const QWidget& /*label*/, const QString& text) { said << text; });
    for (const double sum : {0.5, 0.6, 1.6, 1.7, 0.9})
        MostraEsito(&verdetto, sum);
    ImpostaAscolto({});
    EXPECT_EQ(said, QStringList({"OK", "NO", "OK"}));
}

} // namespace
