// The report of the screen, read back from its PDF.
#include <QFile>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QTemporaryDir>
#include <QTimer>
#include <QToolButton>

#include "TestoPdf.h"
#include "fasteners/ui/AmbienteBulloni.h"
#include "frame/ui/FileDialogo.h"
#include "report/ui/ComandoRelazione.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

class FrmBulloniRelazioneTest : public FrmBulloniTest {
protected:
    void SetUp() override {
        FrmBulloniTest::SetUp();
        ImpostaChiedeRelazione([this](QWidget*, const QString&) { return SceltaRelazione{meta, {}}; });
        ImpostaSceltaFile(
            [this](QWidget*, std::string_view, const QString&, int, const QString&) { return file; });
    }
    void TearDown() override {
        ImpostaChiedeRelazione({});
        ImpostaSceltaFile({});
        QFile::remove(file);
        FrmBulloniTest::TearDown();
    }
    /// The line of the verdict and what stands below it.
    [[nodiscard]] std::string Riportato() const {
        Trova<QToolButton>(b, "CmdRelazione")->click();
        const std::string testo = TestoPdf(file.toStdString());
        const std::size_t riga = testo.find("Bullone a taglio e trazione");
        return riga == std::string::npos ? testo : testo.substr(riga);
    }

    MetaRelazione meta = MetaRelazione::Pdf;
    QTemporaryDir prova;
    QString file = prova.filePath("o.pdf");
};

TEST_F(FrmBulloniRelazioneTest, HasAVerdictWhereTheScreenHasOne) {
    if (!ConLettorePdf())
        GTEST_SKIP() << "no pdftotext";
    Apre();
    M16();
    EXPECT_EQ(Verdetto(), "");
    EXPECT_NE(Riportato().find("le forze mancano"), std::string::npos) << Riportato();
    Scrive("Txt_FSd_0", "20");
    EXPECT_EQ(Verdetto(), "OK");
    EXPECT_NE(Riportato().find("OK"), std::string::npos) << Riportato();
    Scrive("Txt_FSd_0", "-20");
    EXPECT_NE(Riportato().find("le forze mancano"), std::string::npos) << Riportato();
    Scrive("Txt_FSd_0", "500"); // beyond its resistance
    EXPECT_EQ(Verdetto(), "NO");
    const std::string oltre = Riportato();
    EXPECT_NE(oltre.find("NO"), std::string::npos) << oltre;
    EXPECT_NE(oltre.find("supera da sola"), std::string::npos) << oltre;
}

TEST_F(FrmBulloniRelazioneTest, APrinterThatCannotBeHadIsTold) {
    Apre();
    M16();
    meta = MetaRelazione::Anteprima;
    QTimer::singleShot(0, b, [this] {
        auto* preview = b->findChild<QPrintPreviewDialog*>();
        ASSERT_NE(preview, nullptr);
        QPrinter paper;
        paper.setOutputFormat(QPrinter::PdfFormat);
        paper.setOutputFileName(QStringLiteral("/nessuna/cartella/o.pdf"));
        emit preview->paintRequested(&paper);
        preview->reject();
    });
    Trova<QToolButton>(b, "CmdRelazione")->click();
    EXPECT_EQ(registratore.testi, std::vector<std::string>{"La stampante non accetta la relazione."});
}

} // namespace
