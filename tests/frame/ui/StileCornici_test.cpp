#include "frame/ui/StileCornici.h"

#include <QApplication>
#include <QGroupBox>
#include <QImage>
#include <QPainter>
#include <QRegion>
#include <QStyleFactory>
#include <QStyleOption>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <tuple>

using namespace sagomi;

namespace {

/// The greatest difference of a channel in all pixels.
int Scarto(const QImage& a, const QImage& b) {
    int worst = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y);
            const QRgb q = b.pixel(x, y);
            worst = std::max({worst, std::abs(qRed(p) - qRed(q)), std::abs(qGreen(p) - qGreen(q)),
                              std::abs(qBlue(p) - qBlue(q))});
        }
    return worst;
}

/// Fusion with its frames kept, and Fusion itself.
class StileCorniciTest : public testing::TestWithParam<std::tuple<int, bool>> {
protected:
    QImage Dipinge(const QStyle* style, QStyle::PrimitiveElement element, const QStyleOptionFrame& option,
                   const QWidget* widget) const {
        const int ratio = std::get<0>(GetParam());
        QImage image((option.rect.right() + 5) * ratio, (option.rect.bottom() + 5) * ratio,
                     QImage::Format_ARGB32_Premultiplied);
        image.setDevicePixelRatio(ratio);
        image.fill(option.palette.color(QPalette::Base));
        QPainter painter(&image);
        painter.setRenderHint(QPainter::SmoothPixmapTransform, std::get<1>(GetParam()));
        style->drawPrimitive(element, &option, &painter, widget);
        painter.end();
        return image;
    }

    int Scarto(QStyle::PrimitiveElement element, const QStyleOptionFrame& option, const QWidget* widget) {
        return ::Scarto(Dipinge(&own, element, option, widget),
                        Dipinge(plain.get(), element, option, widget));
    }

    StileCornici own{QStyleFactory::create("fusion")};
    std::unique_ptr<QStyle> plain{QStyleFactory::create("fusion")};
};

TEST_P(StileCorniciTest, FramesOfEntriesLookAsTheStylePaintsThem) {
    const QStyle::State enabled = QStyle::State_Enabled;
    QPalette dark;
    dark.setColor(QPalette::Window, QColor(45, 45, 45));
    dark.setColor(QPalette::Base, QColor(30, 30, 30));
    for (const QPalette& colours : {QApplication::palette(), dark})
        for (const QStyle::State state : {enabled, enabled | QStyle::State_HasFocus, QStyle::State()})
            for (const QSize& size : {QSize(80, 22), QSize(31, 17), QSize(200, 40), QSize(12, 22)}) {
                QStyleOptionFrame option;
                option.rect = QRect(QPoint(3, 2), size);
                option.palette = colours;
                option.state = state;
                option.lineWidth = 1;
                EXPECT_LE(Scarto(QStyle::PE_FrameLineEdit, option, nullptr), 2) << size.width();
            }
}

/// The device pixels that a frame has painted on a ground of the window's colour.
QRegion Dipinti(const QImage& image, const QColor& ground) {
    QRegion painted;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixelColor(x, y) != ground)
                painted += QRect(x, y, 1, 1);
    return painted;
}

// The style's own frame is a picture of 6 + 6 pixels around its middle whose outermost column and row are
// empty.
TEST_P(StileCorniciTest, FramesOfGroupsStandWhereTheStylePaintsThem) {
    const int ratio = std::get<0>(GetParam());
    for (const char* title : {"", "Resistenze"}) {
        QGroupBox group(title);
        QStyleOptionFrame option;
        option.initFrom(&group);
        option.palette.setColor(QPalette::Base, option.palette.window().color());
        option.rect = QRect(1, 4, 90, 61);
        const QColor ground = option.palette.window().color();
        const QRect ours =
            Dipinti(Dipinge(&own, QStyle::PE_FrameGroupBox, option, &group), ground).boundingRect();
        const QRect theirs =
            Dipinti(Dipinge(plain.get(), QStyle::PE_FrameGroupBox, option, &group), ground).boundingRect();
        EXPECT_LE(std::abs(ours.top() - theirs.top()), ratio) << title;
        EXPECT_LE(std::abs(ours.left() - theirs.left()), ratio);
        EXPECT_EQ(ours.right(), theirs.right());
        EXPECT_EQ(ours.bottom(), theirs.bottom());
    }
}

// 15 % of the way from 239 to 0 and from 45 to 255: 239 - 35, 45 + 31.
TEST_P(StileCorniciTest, TheFrameOfAGroupIsOneLineBetweenGroundAndText) {
    for (const auto& [window, text, line] : {std::tuple(239, 0, 204), std::tuple(45, 255, 76)}) {
        QGroupBox group("N");
        QStyleOptionFrame option;
        option.initFrom(&group);
        option.palette.setColor(QPalette::Base, QColor(window, window, window));
        option.palette.setColor(QPalette::Window, QColor(window, window, window));
        option.palette.setColor(QPalette::WindowText, QColor(text, text, text));
        option.rect = QRect(1, 4, 90, 61);
        const QImage image = Dipinge(&own, QStyle::PE_FrameGroupBox, option, &group);
        const int ratio = std::get<0>(GetParam());
        const int bottom = (4 + 61 - 1) * ratio;
        EXPECT_EQ(image.pixelColor(40 * ratio, bottom), QColor(line, line, line)) << window;
        EXPECT_EQ(image.pixelColor(40 * ratio, bottom - 1), QColor(window, window, window));
        EXPECT_EQ(image.pixelColor(1 * ratio, bottom), QColor(window, window, window)); // a corner
    }
}

INSTANTIATE_TEST_SUITE_P(Scale, StileCorniciTest,
                         testing::Combine(testing::Values(1, 2, 3), testing::Bool()));

} // namespace
