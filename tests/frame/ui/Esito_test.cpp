#include "frame/ui/Esito.h"

#include <QLabel>

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

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

} // namespace
