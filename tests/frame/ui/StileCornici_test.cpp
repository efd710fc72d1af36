#include "frame/ui/StileCornici.h"

#include <QApplication>
#include <QGroupBox>
#include <QImage>
#include <QPainter>
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

TEST_P(StileCorniciTest, FramesOfGroupsLookAsTheStylePaintsThem) {
    for (const char* title : {"", "Resistenze"}) {
        QGroupBox group(title);
        for (const QSize& size : {QSize(300, 150), QSize(90, 61), QSize(40, 40)}) {
            QStyleOptionFrame option;
            option.initFrom(&group);
            option.rect = QRect(QPoint(1, 4), size);
            EXPECT_LE(Scarto(QStyle::PE_FrameGroupBox, option, &group), 2) << title << size.width();
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Scale, StileCorniciTest,
                         testing::Combine(testing::Values(1, 2, 3), testing::Bool()));

} // namespace
