#include "frame/ui/EtichettaRisultato.h"

#include <QLocale>
#include <gtest/gtest.h>

#include "frame/ui/Casella.h"
#include "frame/ui/Colori.h"
#include "frame/ui/Esito.h"

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

TEST(EtichettaRisultato, LooksLikeABoxThatIsReadOnly) {
    Casella box;
    box.ImpostaRisultato(true);
    EtichettaRisultato label;
    for (const int pixels : {5, 9, 12, 20}) {
        QFont font = label.font();
        font.setPixelSize(pixels);
        label.setFont(font);
        box.setFont(font);
        EXPECT_EQ(label.sizeHint().height(), box.sizeHint().height()) << pixels;
    }
    for (QWidget* result : std::initializer_list<QWidget*>{&box, &label})
        result->resize(90, box.sizeHint().height());
    EXPECT_EQ(label.grab().toImage(), box.grab().toImage());
    label.setFrameShape(QFrame::NoFrame);
    EXPECT_NE(label.grab().toImage(), box.grab().toImage()) << "in a line of a formula it is bare";
}

// The palette has the red of the models, whose contrast on white is 4.0.
TEST(EtichettaRisultato, PaintsAVerdictSoThatItCanBeRead) {
    EtichettaRisultato label;
    QFont big = label.font();
    big.setPointSize(40);
    label.setFont(big);
    label.resize(label.sizeHint());
    MostraEsito(&label, 2);
    const QImage image = label.grab().toImage();
    double best = 0;
    for (int x = 0; x < image.width(); ++x)
        for (int y = 0; y < image.height(); ++y) {
            const QColor c = image.pixelColor(x, y);
            EXPECT_NE(c, QColor(255, 0, 0));
            if (c.red() > 200 && c.green() == 0)
                best = std::max(best, Contrasto(c, Qt::white));
        }
    EXPECT_GE(best, contrastoLeggibile);
}

TEST(EtichettaRisultato, CanBeCopiedFromAndStaysOutOfTheTabOrder) {
    const EtichettaRisultato label;
    EXPECT_TRUE(label.textInteractionFlags() & Qt::TextSelectableByMouse);
    EXPECT_FALSE(label.focusPolicy() & Qt::TabFocus);
    EXPECT_EQ(label.textFormat(), Qt::PlainText);
}

// 12.5 lacks two of three places, 12 all of them and the separator, which is the locale's.
TEST(EtichettaRisultato, DecimalsLineUpInAColumn) {
    EtichettaRisultato label;
    label.ImpostaDecimali(3);
    const int figure = label.fontMetrics().horizontalAdvance(u'0');
    const QString point = QLocale::system().decimalPoint();
    const auto shown = [&](const char* text) {
        label.setText(QString::fromUtf8(text).replace(u'.', point));
        label.grab();
        return label.indent();
    };
    EXPECT_EQ(shown("12.125"), 0);
    EXPECT_EQ(shown("12.5"), 2 * figure);
    EXPECT_EQ(shown("12"), 3 * figure + label.fontMetrics().horizontalAdvance(point));
    EXPECT_EQ(shown("b"), 0) << "no number";
    EXPECT_EQ(shown("¥"), 0);
    label.ImpostaDecimali(-1);
    EXPECT_EQ(shown("12.5"), 0);
    label.ImpostaCaratteri(4);
    label.ImpostaDecimali(3);
    label.setText(QStringLiteral("1234.5").replace(u'.', point));
    EXPECT_GE(label.sizeHint().width(), label.fontMetrics().horizontalAdvance("1234.500"));
}

} // namespace
