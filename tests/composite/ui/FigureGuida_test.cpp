#include "screens/FigureGuida.h"

#include <QFile>
#include <QRegularExpression>

#include "AmbienteTravi.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

class FigureGuidaTest : public AmbienteTravi {};

/// Ink in a picture: it is black on white.
bool Disegnata(const QImage& picture) {
    const QImage grey = picture.convertToFormat(QImage::Format_Grayscale8);
    int dark = 0;
    for (int y = 0; y < grey.height(); ++y)
        for (int x = 0; x < grey.width(); ++x)
            dark += grey.constScanLine(y)[x] < 128 ? 1 : 0;
    return dark > 500;
}

TEST_F(FigureGuidaTest, EveryPictureOfTheHelpIsDrawn) {
    static const QRegularExpression picture(
        QStringLiteral("<img src=\"figura:([^\"]+)\" alt=\"[^\"]{10,}\">"));
    int pictures = 0;
    for (const char* name : {"Sagomi.hlp", "GiuntoFlangiato.hlp"}) {
        QFile help(QStringLiteral(SAGOMI_BIN "/") + QLatin1String(name));
        ASSERT_TRUE(help.open(QIODevice::ReadOnly));
        const QString text = QString::fromUtf8(help.readAll());
        for (auto found = picture.globalMatch(text); found.hasNext(); ++pictures) {
            const QString figure = found.next().captured(1);
            EXPECT_TRUE(Disegnata(FiguraGuida(figure))) << figure.toStdString();
        }
        EXPECT_EQ(text.count(QStringLiteral("<img ")), text.count(picture))
            << "each says in words what it shows";
    }
    EXPECT_GE(pictures, 33);
    EXPECT_TRUE(FiguraGuida(QStringLiteral("nessuna")).isNull());
}

} // namespace
