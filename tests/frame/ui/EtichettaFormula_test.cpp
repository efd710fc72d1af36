#include "frame/ui/EtichettaFormula.h"

#include <gtest/gtest.h>

using namespace sagomi;

namespace {

/// Lowest row that a label paints, from above.
int Fondo(EtichettaFormula& label) {
    label.resize(label.sizeHint());
    const QImage picture = label.grab().toImage();
    const QRgb ground = picture.pixel(picture.width() - 1, 0);
    for (int y = picture.height() - 1; y >= 0; --y)
        for (int x = 0; x < picture.width(); ++x)
            if (picture.pixel(x, y) != ground)
                return y;
    return -1;
}

TEST(EtichettaFormulaTest, TheTextIsTheFormulaWithoutItsSigns) {
    EtichettaFormula label;
    label.ImpostaFormula("χ β{A} A f{y} / γ{M1}");
    EXPECT_EQ(label.text(), "χ βA A fy / γM1");
    label.ImpostaFormula("W [mm^{3}]");
    EXPECT_EQ(label.text(), "W [mm3]");
}

TEST(EtichettaFormulaTest, ASubscriptStandsLowerAndTakesLessRoom) {
    EtichettaFormula plain;
    plain.ImpostaFormula("xx");
    EtichettaFormula low;
    low.ImpostaFormula("x{x}");
    EXPECT_GT(Fondo(low), Fondo(plain));
    EXPECT_LT(low.sizeHint().width(), plain.sizeHint().width() + 2);
    EtichettaFormula high;
    high.ImpostaFormula("x^{x}");
    EXPECT_LT(Fondo(high), Fondo(low));
}

TEST(EtichettaFormulaTest, ASymbolStandsBehindItsWordAndIsNoPartOfIt) {
    EtichettaFormula label;
    label.setText("lamda1");
    const int word = label.sizeHint().width();
    label.ImpostaSimbolo("λ{1}");
    EXPECT_EQ(label.text(), "lamda1");
    EXPECT_GT(label.sizeHint().width(), word);
    label.ImpostaFormula("L{0}");
    label.setText("another");
    EXPECT_GT(label.sizeHint().width(), word) << "what is written last is shown";
}

} // namespace
