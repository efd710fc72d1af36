#include "frame/ui/StileMinuto.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QImage>
#include <QLineEdit>
#include <QRadioButton>
#include <QSpinBox>
#include <gtest/gtest.h>

#include <memory>

using namespace sagomi;

namespace {

class StileMinutoTest : public testing::Test {
protected:
    /// A control in this style, its text so many pixels high.
    template <typename W> std::unique_ptr<W> Controllo(int pixels) {
        auto control = std::make_unique<W>();
        control->setStyle(&minuto);
        QFont font = control->font();
        font.setPixelSize(pixels);
        control->setFont(font);
        return control;
    }
    /// What the usual style gives it.
    template <typename W> static QSize Solita(W& control) {
        QStyle* const own = control.style();
        control.setStyle(nullptr);
        const QSize usual = control.sizeHint();
        control.setStyle(own);
        return usual;
    }
    StileMinuto minuto;
};

TEST_F(StileMinutoTest, SmallTextsHaveSmallControls) {
    const auto tick = Controllo<QCheckBox>(6);
    const int line = tick->fontMetrics().height();
    ASSERT_LT(line, 13);
    EXPECT_EQ(minuto.pixelMetric(QStyle::PM_IndicatorHeight, nullptr, tick.get()), line);
    EXPECT_LT(tick->sizeHint().height(), Solita(*tick).height());
    const auto list = Controllo<QComboBox>(6);
    EXPECT_EQ(list->sizeHint().height(), Solita(*list).height() - (14 - line));
    const auto steps = Controllo<QSpinBox>(6);
    EXPECT_EQ(steps->sizeHint().height(), Solita(*steps).height() - (14 - line));
    EXPECT_GE(steps->sizeHint().height(), line);
    const auto box = Controllo<QLineEdit>(6);
    EXPECT_EQ(box->sizeHint().height(), Solita(*box).height() - 2);
}

/// The row in which the frame of a group begins [px].
int CimaCornice(QGroupBox& group) {
    group.setTitle(QStringLiteral("N"));
    group.resize(200, 80);
    QImage image(group.size(), QImage::Format_RGB32);
    group.render(&image);
    int y = 0;
    while (y < image.height() && image.pixel(150, y) == image.pixel(150, 0))
        ++y;
    return y;
}

// The title, and three pixels to its frame: with small texts, too.
TEST_F(StileMinutoTest, TheFrameOfAGroupBeginsUnderItsTitle) {
    const auto small = Controllo<QGroupBox>(6);
    EXPECT_EQ(CimaCornice(*small), small->fontMetrics().height() + 3);
    const auto usual = Controllo<QGroupBox>(16);
    EXPECT_EQ(CimaCornice(*usual), usual->fontMetrics().height() + 3);
}

TEST_F(StileMinutoTest, TextsOfAUsualSizeChangeNothing) {
    const auto radio = Controllo<QRadioButton>(16);
    EXPECT_EQ(radio->sizeHint(), Solita(*radio));
    const auto list = Controllo<QComboBox>(16);
    EXPECT_EQ(list->sizeHint(), Solita(*list));
    EXPECT_EQ(minuto.pixelMetric(QStyle::PM_IndicatorHeight, nullptr, nullptr),
              minuto.baseStyle()->pixelMetric(QStyle::PM_IndicatorHeight));
}

} // namespace
