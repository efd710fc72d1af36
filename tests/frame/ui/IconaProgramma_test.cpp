#include "frame/ui/IconaProgramma.h"

#include <QColor>
#include <QPixmap>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cstdlib>

using namespace sagomi;

namespace {

// The icon of the desktop is the one of the windows: its file, rendered by another program, differs from the
// program's own drawing in nothing but the smoothing of edges.
TEST(IconaProgrammaTest, FileOfTheDesktopIsTheIconOfTheWindows) {
    constexpr int side = 128;
    const QTemporaryDir folder;
    const QString rendered = folder.filePath(QStringLiteral("icona.png"));
    const QString file = QStringLiteral(SAGOMI_CATALOGUE_DATA "/../scrivania/org.sagomi.Sagomi.svg");
    ASSERT_EQ(QProcess::execute(QStringLiteral("rsvg-convert"), {QStringLiteral("-w"), QString::number(side),
                                                                 file, QStringLiteral("-o"), rendered}),
              0);
    const QImage theirs = QImage(rendered).convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const QImage ours =
        IconaProgramma().pixmap(side).toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
    ASSERT_EQ(theirs.size(), QSize(side, side));
    ASSERT_EQ(ours.size(), theirs.size());
    int other = 0;
    for (int y = 0; y < side; ++y)
        for (int x = 0; x < side; ++x) {
            const QRgb a = theirs.pixel(x, y);
            const QRgb b = ours.pixel(x, y);
            other += std::abs(qRed(a) - qRed(b)) + std::abs(qAlpha(a) - qAlpha(b)) > 64 ? 1 : 0;
        }
    EXPECT_LT(other, side) << "pixels that differ by more than a shade";
}

} // namespace
