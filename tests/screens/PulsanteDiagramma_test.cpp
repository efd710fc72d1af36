#include "screens/PulsanteDiagramma.h"

#include <QAction>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>
#include <QMimeData>
#include <QPrinter>
#include <QTimer>

#include "drawing/ui/FrmPltSezione.h"
#include "drawing/ui/Immagini.h"
#include "drawing/ui/MenuDisegno.h"
#include "drawing/ui/ScegliDispositivo.h"
#include "frame/ui/FileDialogo.h"
#include "screens/Comandi.h"
#include "sections/DiagrammaMomenti.h"
#include "sections/DisegniMomento.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

/// A moment diagram on its ways out of the screen: parabola with the end moments.
class PulsanteDiagrammaTest : public AmbienteSchermi {
protected:
    void SetUp() override {
        AmbienteSchermi::SetUp();
        button.ImpostaPict(pictDistribuitoConcorde);
    }
    void TearDown() override {
        ImpostaSceltaFile({});
        ImpostaSceltaStampante({});
        AmbienteSchermi::TearDown();
    }
    void Sceglie(int choice) {
        const auto menu = MenuDisegno(button, DisegnoPict(pictDistribuitoConcorde));
        Trova<QAction>(menu.get(), qPrintable(QStringLiteral("mnuImmagineItem_%1").arg(choice)))->trigger();
    }
    QByteArray Salva(int choice, const char* extension) {
        const QString file = cartella.filePath(QStringLiteral("momenti.") + QLatin1String(extension));
        ImpostaSceltaFile([&](QWidget*, std::string_view, const QString&, int, const QString& proposal) {
            EXPECT_EQ(proposal, QStringLiteral("Diagramma dei momenti.") + QLatin1String(extension));
            return file;
        });
        Sceglie(choice);
        EXPECT_TRUE(registratore.testi.empty());
        return Byte(file);
    }
    PulsanteDiagramma button;
};

// The diagram of 48 chords as one polyline, its names, supports' ordinates and axis as lines.
TEST_F(PulsanteDiagrammaTest, TheDiagramIsSavedAsDxf) {
    const QByteArray dxf = Salva(sceltaDxf, "dxf");
    EXPECT_TRUE(dxf.startsWith("  0\r\nSECTION\r\n"));
    EXPECT_TRUE(dxf.endsWith("  0\r\nEOF\r\n"));
    EXPECT_EQ(dxf.count("\r\nPOLYLINE\r\n"), 1);
    EXPECT_EQ(dxf.count("\r\nVERTEX\r\n"), 49);
    EXPECT_EQ(dxf.count("\r\nLINE\r\n"), 3);
    for (const char* name : {"M1", "M2", "MQ"})
        EXPECT_EQ(dxf.count(QByteArray("\r\n  1\r\n") + name + "\r\n"), 1) << name;
}

TEST_F(PulsanteDiagrammaTest, TheDiagramIsSavedAsSvg) {
    const QByteArray svg = Salva(sceltaSvg, "svg");
    EXPECT_TRUE(svg.startsWith("<?xml"));
    EXPECT_EQ(svg.count("<polyline"), 4);
    EXPECT_EQ(svg.count("fill-opacity"), 1);
    EXPECT_TRUE(svg.contains(">MQ</text>"));
}

// Texts of 3.5 mm make of 46 units of diagram 16.6 mm, in the middle of the page.
TEST_F(PulsanteDiagrammaTest, TheDiagramIsPrinted) {
    const QString pdf = cartella.filePath(QStringLiteral("momenti.pdf"));
    ImpostaSceltaStampante([&](QPrinter& printer, QWidget*) {
        printer.setOutputFileName(pdf);
        printer.setPageSize(QPageSize(QPageSize::A4));
        return true;
    });
    Sceglie(sceltaStampante);
    EXPECT_TRUE(registratore.testi.empty());
    if (!ConPoppler())
        GTEST_SKIP() << "poppler-utils is not installed";
    const QString text = TestoPdf(pdf);
    for (const char* name : {"M1", "M2", "MQ"})
        EXPECT_TRUE(text.contains(QLatin1String(name))) << name;
    const QRect box = Inchiostro(PaginaPdf(pdf));
    EXPECT_GT(box.height(), 60) << "a tenth of a millimetre to the pixel";
    EXPECT_LT(box.height(), 200);
    EXPECT_GT(box.width(), 200);
    EXPECT_LT(box.width(), 500);
    EXPECT_NEAR(box.center().x(), 1050, 60);
}

TEST_F(PulsanteDiagrammaTest, TheDiagramIsCopiedAsPictureAndSvg) {
    Sceglie(sceltaAppunti);
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    ASSERT_NE(data, nullptr);
    EXPECT_TRUE(data->data(QStringLiteral("image/svg+xml")).contains(">M1</text>"));
    const auto picture = qvariant_cast<QImage>(data->imageData());
    EXPECT_EQ(picture.size(), button.sizeHint() * 3);
    EXPECT_FALSE(Inchiostro(picture).isEmpty());
    EXPECT_EQ(picture.pixelColor(1, 1), QColor(Qt::white));
}

TEST_F(PulsanteDiagrammaTest, TheContextMenuOffersAllWays) {
    button.show();
    QStringList texts;
    QTimer::singleShot(0, [&texts] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        for (const QAction* action : menu->actions())
            texts << action->text();
        menu->close();
    });
    QContextMenuEvent event(QContextMenuEvent::Mouse, {5, 5}, button.mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(&button, &event);
    EXPECT_EQ(texts,
              (QStringList{"C&opia", "&Stampa", "File &DXF", "File S&VG", "File &PDF", "File P&NG", "&CAD"}));
}

// From a screen the picture also opens in the preview, with its own name.
TEST_F(PulsanteDiagrammaTest, APictureOfAScreenOpensInThePreview) {
    auto& s = Avvia();
    auto* picture = Trova<QWidget>(&s, "Picture1");
    const auto menu = MenuDisegno(*picture, DisegnoPict(pictEstremitaConcordi));
    Trova<QAction>(menu.get(), "mnuImmagineAnteprima")->trigger();
    auto& p = Aperto("FrmPltSezione");
    EXPECT_EQ(p.windowTitle(), "Plotta - Diagramma dei momenti");
    EXPECT_FALSE(Inchiostro(Trova<QWidget>(&p, "Picture1")->grab().toImage()).isEmpty());
}

} // namespace
