// The joint in sight beside its figures, and its way to preview, paper and files.

#include "joints/ui/VistaGiunto.h"

#include <QAccessible>
#include <QElapsedTimer>
#include <QPrinter>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <map>

#include <gtest/gtest.h>

#include "Registratore.h"
#include "drawing/Grafica.h"
#include "drawing/ui/Immagini.h"
#include "drawing/ui/ScegliDispositivo.h"
#include "joints/NodoDisegnato.h"
#include "joints/ui/PlottaNodo.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

/// Red points of a picture: much more red than green.
int Rossi(const QImage& picture) {
    int n = 0;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x) {
            const QColor c = picture.pixelColor(x, y);
            n += c.red() > c.green() + 60 && c.red() > c.blue() + 60;
        }
    return n;
}

class VistaGiuntoTest : public testing::Test {
protected:
    VistaGiuntoTest() { vista.resize(480, 600); }
    QImage Dipinta() { return vista.grab().toImage(); }
    /// A point that shows each component in sight, found by asking every other pixel.
    std::map<ComponenteGiunto, QPoint> InVista() {
        std::map<ComponenteGiunto, QPoint> seen;
        for (int y = 0; y < vista.height(); y += 2)
            for (int x = 0; x < vista.width(); x += 2)
                seen.try_emplace(vista.Componente(QPointF(x, y)).componente, x, y);
        return seen;
    }
    Registratore registratore;
    VistaGiunto vista;
};

TEST_F(VistaGiuntoTest, ShowsEveryStateOfANode) {
    Nodo n;
    vista.Mostra(n, nullptr, {}); // nothing at all
    Dipinta();
    n.ImpostaNodo();
    n.CaratterizzaGiunti();
    vista.Mostra(n, nullptr, {});
    EXPECT_FALSE(Inchiostro(Dipinta()).isEmpty());
    EXPECT_EQ(vista.accessibleDescription(), QStringLiteral("Nessun sagomo assegnato."));
    n.PuntatoreColonna(HEB200());
    vista.Mostra(n, nullptr, {});
    EXPECT_TRUE(vista.accessibleDescription().contains("Manca trave destra"));
    n.PuntatoreTraveSinistra(IPE330()); // the other beam alone
    vista.Mostra(n, n.Giunti[1].Usa().get(), {});
    Dipinta();
    n.PuntatoreTraveDestra(IPE270());
    for (double Giunto::*field : {&Giunto::tf, &Giunto::bf, &Giunto::d2, &Giunto::ef}) {
        n.ConnessioneCorrente.get()->*field = 20;
        vista.Mostra(n, nullptr, {});
        Dipinta();
    }
    for (const double strange : {0.0, -1.0, 1e30, std::numeric_limits<double>::quiet_NaN()}) {
        n.ConnessioneCorrente->tf = strange;
        vista.Mostra(n, nullptr, {});
        Dipinta();
    }
    EXPECT_TRUE(registratore.testi.empty());
}

TEST_F(VistaGiuntoTest, FollowsEveryCall) {
    Nodo n = NodoDisegnato(nodoT, 2);
    vista.Mostra(n, nullptr, {});
    const QImage before = Dipinta();
    n.ConnessioneCorrente->tf = 30;
    EXPECT_EQ(Dipinta(), before); // a copy is shown
    vista.Mostra(n, nullptr, {});
    EXPECT_NE(Dipinta(), before);
}

TEST_F(VistaGiuntoTest, AClickTellsTheComponent) {
    vista.Mostra(NodoDisegnato(nodoT, 2, "Si"), nullptr, {});
    Dipinta();
    const auto seen = InVista();
    QSignalSpy spy(&vista, &VistaGiunto::ComponenteScelto);
    using enum ComponenteGiunto;
    for (const ComponenteGiunto c :
         {Pannello, AnimaColonnaCompressa, InstabilitaAnimaColonna, Bulloni, AnimaColonnaTesa, AlaColonna,
          Flangia, AnimaTrave, AlaTrave, Saldature, Irrigidimenti}) {
        ASSERT_TRUE(seen.contains(c)) << NomeComponente({c, FilaGiunto::Nessuna});
        QTest::mouseClick(&vista, Qt::LeftButton, {}, seen.at(c));
        ASSERT_EQ(spy.size(), 1);
        EXPECT_EQ(spy.takeFirst()[0].value<ComponenteGiunto>(), c);
        EXPECT_EQ(vista.Scelto(), c);
    }
    QTest::mouseClick(&vista, Qt::LeftButton, {}, QPoint(1, 1));
    QTest::mouseClick(&vista, Qt::RightButton, {}, seen.at(Bulloni));
    EXPECT_TRUE(spy.isEmpty());
}

TEST_F(VistaGiuntoTest, TheKeysReachEveryComponent) {
    vista.Mostra(NodoDisegnato(nodoT, 2, "Si"), nullptr, {});
    Dipinta();
    QSignalSpy spy(&vista, &VistaGiunto::ComponenteScelto);
    QTest::keyClick(&vista, Qt::Key_Return);
    EXPECT_TRUE(spy.isEmpty());
    std::vector<ComponenteGiunto> seen;
    for (int i = 0; i < 11; ++i) {
        QTest::keyClick(&vista, Qt::Key_Right);
        QTest::keyClick(&vista, Qt::Key_Return);
        seen.push_back(vista.Scelto());
        EXPECT_EQ(spy.takeLast()[0].value<ComponenteGiunto>(), vista.Scelto());
    }
    std::sort(seen.begin(), seen.end());
    EXPECT_EQ(std::unique(seen.begin(), seen.end()), seen.end());
    const ComponenteGiunto last = vista.Scelto();
    QTest::keyClick(&vista, Qt::Key_Right); // round
    QTest::keyClick(&vista, Qt::Key_Left);
    EXPECT_EQ(vista.Scelto(), last);
    EXPECT_TRUE(vista.accessibleName().startsWith("Disegno del giunto: "));
}

TEST_F(VistaGiuntoTest, WhatGovernsIsSeenAndTold) {
    const Nodo n = NodoDisegnato(nodoT, 2);
    vista.Mostra(n, nullptr, {});
    EXPECT_EQ(Rossi(Dipinta()), 0);
    EvidenzaGiunto e;
    e.governano = {{ComponenteGiunto::AlaColonna, FilaGiunto::Interna}};
    e.testo = "governa: ala della colonna, fila interna 182 kN";
    e.parametro = "ef";
    e.limite = "min 35";
    vista.Mostra(n, nullptr, e);
    EXPECT_GT(Rossi(Dipinta()), 200);
    EXPECT_TRUE(vista.accessibleDescription().contains("governa: ala della colonna, fila interna 182 kN"));
    EXPECT_TRUE(vista.accessibleDescription().contains("Fuori limite: ef min 35"));
}

TEST_F(VistaGiuntoTest, FollowsTheDarkPalette) {
    QPalette dark(QColor(40, 40, 40));
    dark.setColor(QPalette::Window, QColor(40, 40, 40));
    dark.setColor(QPalette::WindowText, Qt::white);
    vista.setPalette(dark);
    vista.setAutoFillBackground(true);
    vista.Mostra(NodoDisegnato(nodoT, 2), nullptr, {});
    const QImage picture = Dipinta();
    int light = 0;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            light += qGray(picture.pixel(x, y)) > 200;
    EXPECT_GT(light, 500);
}

// Generous: the machine may be busy.
TEST_F(VistaGiuntoTest, IsDrawnFasterThanAKeyRepeats) {
    const Nodo n = NodoDisegnato(nodoCroce, 2, "Si");
    constexpr int times = 20;
    vista.Mostra(n, nullptr, {});
    Dipinta();
    QElapsedTimer clock;
    clock.start();
    for (int i = 0; i < times; ++i) {
        vista.Mostra(n, nullptr, {});
        Dipinta();
    }
    EXPECT_LT(clock.elapsed() / times, 30);
}

// The workshop's sheet ----------------------------------------------------------------------------------

class DisegnoNodoTest : public testing::Test {
protected:
    QString File(const char* nome) const { return cartella.filePath(nome); }
    Registratore registratore;
    QTemporaryDir cartella;
};

TEST_F(DisegnoNodoTest, KeepsTheJointThatItShows) {
    Nodo n = NodoDisegnato(nodoT, 2);
    const Disegno d = DisegnoNodo(n);
    EXPECT_EQ(d.nome, "Giunto HE 200 B IPE 270");
    n.ConnessioneCorrente->tf = 99;
    n.TraveDx->h = 500;
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(File("giunto.pdf"));
    ASSERT_TRUE(StampaSu(printer, d, "frmGiunti"));
    if (!ConPoppler())
        GTEST_SKIP() << "no poppler";
    const QString text = TestoPdf(File("giunto.pdf"));
    EXPECT_TRUE(text.contains("Spessore: tf = 20"));
    EXPECT_TRUE(text.contains("hf = 350"));
}

/// The longest upright run of dark points in a column of the picture.
int Verticale(const QImage& page, int x) {
    int best = 0;
    int run = 0;
    for (int y = 0; y < page.height(); ++y) {
        run = qGray(page.pixel(x, y)) < 100 ? run + 1 : 0;
        best = std::max(best, run);
    }
    return best;
}

// 10 pixels to the millimetre. At 1:5 the plate is 70 mm high and 32 mm wide, its edges are the only upright
// lines of that length.
TEST_F(DisegnoNodoTest, APrintedSheetHasItsScale) {
    if (!ConPoppler())
        GTEST_SKIP() << "no poppler";
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageSize(QPageSize(QPageSize::A4));
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(File("scala.pdf"));
    ASSERT_TRUE(StampaSu(printer, DisegnoNodo(NodoDisegnato(nodoT, 2)), "frmGiunti"));
    EXPECT_TRUE(TestoPdf(File("scala.pdf")).contains("disegno 1:5"));
    const QImage page = PaginaPdf(File("scala.pdf"));
    std::vector<int> edges; // of what is 350 mm high at 1:5
    for (int x = 0; x < page.width(); ++x)
        if (std::abs(Verticale(page, x) - 704) <= 5 && (edges.empty() || x > edges.back() + 8))
            edges.push_back(x);
    bool plate = false;
    for (const int a : edges)
        for (const int b : edges)
            plate = plate || std::abs(b - a - 320) <= 4;
    EXPECT_TRUE(plate) << edges.size();
}

TEST_F(DisegnoNodoTest, ARowOfTheSearchIsDrawnOnAScratchCopy) {
    Nodo n = NodoDisegnato(nodoT, 1);
    TabellaSelezione table;
    RigaSelezione row;
    row.Dimensiona(7);
    const std::vector<double> values{1, 0, 20, 15, 150, 32, 40};
    for (int i = 1; i <= 7; ++i)
        row[i] = values[static_cast<std::size_t>(i - 1)];
    table.Aggiunge(row);
    const Disegno d = DisegnoSelezione(n, table, 1);
    EXPECT_EQ(n.ConnessioneCorrente->tf, 20);
    EXPECT_EQ(n.ConnessioneCorrente->Diam, 18);
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(File("riga.pdf"));
    ASSERT_TRUE(StampaSu(printer, d, "frmGiunti"));
    EXPECT_THROW(static_cast<void>(DisegnoSelezione(n, table, 2)), std::out_of_range);
    if (!ConPoppler())
        GTEST_SKIP() << "no poppler";
    const QString text = TestoPdf(File("riga.pdf"));
    EXPECT_TRUE(text.contains("d = 20"));
    EXPECT_TRUE(text.contains("Spessore: tf = 15"));
}

TEST_F(DisegnoNodoTest, NothingToDrawWithoutAJoint) {
    EXPECT_FALSE(bool(DisegnoNodo(Nodo{}).PlottaInOggetto));
}

} // namespace
