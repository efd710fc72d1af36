#include "frame/ui/EtichettaRisultato.h"

#include <gtest/gtest.h>

using namespace sagomi;

namespace {

TEST(EtichettaRisultato, IsAsWideAsItsFiguresAskWhateverItShows) {
    EtichettaRisultato label;
    label.ImpostaCaratteri(9);
    const int empty = label.sizeHint().width();
    EXPECT_GE(empty, 9 * label.fontMetrics().horizontalAdvance(u'0'));
    label.setText(QStringLiteral("1234.567"));
    EXPECT_EQ(label.sizeHint().width(), empty);
    label.setText(QStringLiteral("Effettivo  1,234,567"));
    EXPECT_GT(label.sizeHint().width(), empty) << "never clipped";
}

TEST(EtichettaRisultato, CanBeCopiedFromAndStaysOutOfTheTabOrder) {
    const EtichettaRisultato label;
    EXPECT_TRUE(label.textInteractionFlags() & Qt::TextSelectableByMouse);
    EXPECT_FALSE(label.focusPolicy() & Qt::TabFocus);
    EXPECT_EQ(label.textFormat(), Qt::PlainText);
}

} // namespace
