#include "drawing/ui/ScegliDispositivo.h"

#include <QFileInfo>
#include <QPrinter>

#include <stdexcept>

#include "Guasti.h"
#include "drawing/CadFinto.h"
#include "drawing/Dxf.h"
#include "drawing/Grafica.h"
#include "drawing/ui/Immagini.h"
#include "frame/Ambiente.h"
#include "frame/ui/AmbienteFinestre.h"
#include "frame/ui/FileDialogo.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

class ScegliDispositivoTest : public AmbienteFinestre {
protected:
    void SetUp() override {
        AmbienteFinestre::SetUp();
        PathLavoro.clear();
        disegno.nome = "IPE 200";
        disegno.PlottaInOggetto = [this](Superficie* target, std::string_view screen) {
            dispositivi.push_back(Dispositivo);
            bersagli.push_back(target);
            maschere.emplace_back(screen);
            penne.push_back(ColorePenna);
            if (target != nullptr)
                target->Line(10, 20, 110, 20);
            else
                LineaPlt(1, 2, 3, 4);
        };
    }
    void TearDown() override {
        ImpostaSceltaFile({});
        ImpostaSceltaStampante({});
        AmbienteFinestre::TearDown();
    }

    void RispondeFile(const QString& chosen) {
        ImpostaSceltaFile(
            [=, this](QWidget*, std::string_view mode, const QString& f, int i, const QString& p) {
                modo = mode;
                filtro = f;
                indice = i;
                proposto = p;
                return chosen;
            });
    }
    /// "Print to file" of the dialog.
    void RispondeStampante(const QString& pdf, int copies = 1, bool accepted = true) {
        ImpostaSceltaStampante([=, this](QPrinter& printer, QWidget*) {
            lavoro = printer.docName();
            printer.setOutputFileName(pdf);
            printer.setCopyCount(copies);
            return accepted;
        });
    }
    bool Sceglie(int choice, const char* name = "IPE 200") {
        return ScegliDispositivo(choice, QString::fromUtf8(name), disegno, QStringLiteral("frmDoppioT"),
                                 nullptr, &esito);
    }

    Disegno disegno;
    std::vector<std::string> dispositivi, maschere;
    std::vector<Superficie*> bersagli;
    std::vector<std::int16_t> penne;
    std::string modo;
    QString filtro, proposto, lavoro, esito;
    int indice = 0;
};

// Printer -----------------------------------------------------------------------------------------------

TEST_F(ScegliDispositivoTest, PrintsToTheFileOfTheDialog) {
    const QString pdf = cartella.filePath(QStringLiteral("foglio.pdf"));
    RispondeStampante(pdf);
    ColorePenna = 3;
    EXPECT_TRUE(Sceglie(sceltaStampante));
    EXPECT_EQ(lavoro, "IPE 200");
    EXPECT_EQ(dispositivi, std::vector<std::string>{"STAMPANTE"});
    EXPECT_EQ(maschere, std::vector<std::string>{"frmDoppioT"});
    EXPECT_EQ(penne, std::vector<std::int16_t>{7});
    ASSERT_NE(bersagli.at(0), nullptr);
    EXPECT_EQ(esito, "STAMPANTE: " + pdf);
    EXPECT_EQ(Dispositivo, "VIDEO") << "the output is put back";
    EXPECT_EQ(ColorePenna, 3);
    ColorePenna = 7;
    EXPECT_EQ(PathLavoro, QFileInfo(pdf).absolutePath().toStdString());
    EXPECT_TRUE(registratore.testi.empty());
    if (!ConPoppler())
        GTEST_SKIP() << "poppler-utils is not installed";
    EXPECT_NEAR(Inchiostro(PaginaPdf(pdf)).width(), 1000, 5) << "100 mm are 100 mm";
}

TEST_F(ScegliDispositivoTest, EveryCopyIsDrawn) {
    const QString pdf = cartella.filePath(QStringLiteral("foglio.pdf"));
    RispondeStampante(pdf, 3);
    EXPECT_TRUE(Sceglie(sceltaStampante));
    EXPECT_EQ(dispositivi.size(), 3U);
    if (!ConPoppler())
        GTEST_SKIP() << "poppler-utils is not installed";
    EXPECT_FALSE(PaginaPdf(pdf, 3).isNull());
    EXPECT_FALSE(Inchiostro(PaginaPdf(pdf, 3)).isEmpty());
}

TEST_F(ScegliDispositivoTest, GivingUpThePrinterDrawsNothing) {
    RispondeStampante(cartella.filePath(QStringLiteral("foglio.pdf")), 1, false);
    EXPECT_FALSE(Sceglie(sceltaStampante));
    EXPECT_TRUE(dispositivi.empty());
    EXPECT_TRUE(registratore.testi.empty());
    EXPECT_EQ(esito, "");
}

TEST_F(ScegliDispositivoTest, WithoutAPrinterTheTwoLinesAreShown) {
    ImpostaSceltaStampante([](QPrinter& printer, QWidget*) {
        printer.setOutputFormat(QPrinter::NativeFormat);
        printer.setPrinterName(QStringLiteral("manca"));
        printer.setOutputFileName({});
        return true;
    });
    EXPECT_FALSE(Sceglie(sceltaStampante));
    EXPECT_EQ(registratore.testi, std::vector<std::string>{"Stampante non presente o non disponibile.\r\n"
                                                           "La stampante potrebbe essere spenta."});
    EXPECT_TRUE(dispositivi.empty());
    EXPECT_EQ(Dispositivo, "VIDEO");
}

TEST_F(ScegliDispositivoTest, APdfThatCannotBeWrittenIsTold) {
    RispondeStampante(QStringLiteral("/manca/foglio.pdf"));
    EXPECT_FALSE(Sceglie(sceltaStampante));
    EXPECT_EQ(registratore.testi,
              std::vector<std::string>{
                  "Non è possibile scrivere il file /manca/foglio.pdf:\r\nla cartella non esiste"});
}

TEST_F(ScegliDispositivoTest, ADrawingThatFailsOnPaperIsTold) {
    RispondeStampante(cartella.filePath(QStringLiteral("foglio.pdf")));
    disegno.PlottaInOggetto = [](Superficie*, std::string_view) { throw std::runtime_error("guasto"); };
    EXPECT_FALSE(Sceglie(sceltaStampante));
    EXPECT_EQ(registratore.testi, std::vector<std::string>{"Errore n° 0 - guasto"});
    EXPECT_EQ(Dispositivo, "VIDEO");
}

// DXF ---------------------------------------------------------------------------------------------------

TEST_F(ScegliDispositivoTest, ProposesTheNameAndWritesTheFile) {
    const QString file = cartella.filePath(QStringLiteral("IPE 200.dxf"));
    RispondeFile(file);
    EXPECT_TRUE(Sceglie(sceltaDxf));
    EXPECT_EQ(modo, "S");
    EXPECT_EQ(filtro, "All Files (*.*)|*.*|Files per Autocad (*.dxf)|*.dxf");
    EXPECT_EQ(indice, 2);
    EXPECT_EQ(proposto, "IPE 200.dxf");
    EXPECT_EQ(dispositivi, std::vector<std::string>{"DXF"});
    EXPECT_EQ(bersagli.at(0), nullptr);
    EXPECT_EQ(
        Byte(file),
        "  0\r\nSECTION\r\n  2\r\nENTITIES\r\n  0\r\nLINE\r\n  8\r\n0\r\n 62\r\n     7\r\n 10\r\n1\r\n 20\r\n"
        "2\r\n 30\r\n0.0\r\n 11\r\n3\r\n 21\r\n4\r\n 31\r\n0.0\r\n  0\r\nENDSEC\r\n  0\r\nEOF\r\n");
    EXPECT_EQ(esito, "FILE: " + file);
    EXPECT_EQ(PathLavoro, QFileInfo(file).absolutePath().toStdString());
    EXPECT_EQ(Dispositivo, "VIDEO");
    EXPECT_TRUE(registratore.testi.empty());
}

TEST_F(ScegliDispositivoTest, ANameWithoutExtensionGetsOne) {
    RispondeFile(cartella.filePath(QStringLiteral("trave")));
    EXPECT_TRUE(Sceglie(sceltaDxf));
    EXPECT_TRUE(QFileInfo::exists(cartella.filePath(QStringLiteral("trave.dxf"))));
}

TEST_F(ScegliDispositivoTest, CharactersThatNoFileMayHaveAreReplaced) {
    RispondeFile({});
    EXPECT_FALSE(Sceglie(sceltaDxf, "W 44/16: \"prova\""));
    EXPECT_EQ(proposto, "W 44-16- -prova-.dxf");
}

TEST_F(ScegliDispositivoTest, GivingUpTheFileWritesNothing) {
    RispondeFile({});
    EXPECT_FALSE(Sceglie(sceltaDxf));
    EXPECT_TRUE(dispositivi.empty());
    EXPECT_EQ(PathLavoro, std::filesystem::current_path()) << "the folder in hand becomes the working one";
    PathLavoro = "/tmp";
    EXPECT_FALSE(Sceglie(sceltaDxf));
    EXPECT_EQ(PathLavoro, "/tmp") << "and stays it";
}

TEST_F(ScegliDispositivoTest, AFileThatCannotBeWrittenIsToldAndNothingIsLost) {
    RispondeFile(QStringLiteral("/manca/a.dxf"));
    EXPECT_FALSE(Sceglie(sceltaDxf));
    EXPECT_EQ(
        registratore.testi,
        std::vector<std::string>{"Non è possibile scrivere il file /manca/a.dxf:\r\nla cartella non esiste"});
    EXPECT_TRUE(dispositivi.empty());
    EXPECT_EQ(nFileDxf, 0);
}

TEST_F(ScegliDispositivoTest, ADrawingThatFailsLeavesTheOldFile) {
    const QString file = cartella.filePath(QStringLiteral("a.dxf"));
    {
        QFile old(file);
        ASSERT_TRUE(old.open(QIODevice::WriteOnly));
        old.write("vecchio");
    }
    disegno.PlottaInOggetto = [](Superficie*, std::string_view) { throw std::runtime_error("guasto"); };
    RispondeFile(file);
    EXPECT_THROW(Sceglie(sceltaDxf), std::runtime_error);
    EXPECT_EQ(Byte(file), "vecchio");
    EXPECT_EQ(nFileDxf, 0);
    EXPECT_EQ(Dispositivo, "VIDEO");
}

// SVG ---------------------------------------------------------------------------------------------------

TEST_F(ScegliDispositivoTest, WritesAnSvgFile) {
    const QString file = cartella.filePath(QStringLiteral("IPE 200"));
    RispondeFile(file);
    disegno.PlottaInOggetto = [this](Superficie*, std::string_view) {
        dispositivi.push_back(Dispositivo);
        LineaPlt(1, 2, 3, 4);
    };
    EXPECT_TRUE(Sceglie(sceltaSvg));
    EXPECT_EQ(proposto, "IPE 200.svg");
    EXPECT_EQ(dispositivi, std::vector<std::string>{"SVG"});
    EXPECT_EQ(esito, "FILE: " + file + ".svg");
    EXPECT_TRUE(Byte(file + ".svg").contains("points=\"1,-2 3,-4\""));
    EXPECT_EQ(Dispositivo, "VIDEO");
}

TEST_F(ScegliDispositivoTest, AnSvgFileThatCannotBeWrittenIsTold) {
    RispondeFile(QStringLiteral("/manca/a.svg"));
    EXPECT_FALSE(Sceglie(sceltaSvg));
    EXPECT_EQ(
        registratore.testi,
        std::vector<std::string>{"Non è possibile scrivere il file /manca/a.svg:\r\nla cartella non esiste"});
}

// PDF and PNG ---------------------------------------------------------------------------------------------

TEST_F(ScegliDispositivoTest, APdfFileIsWrittenWithoutAPrinter) {
    const QString file = cartella.filePath(QStringLiteral("sezione"));
    RispondeFile(file);
    EXPECT_TRUE(Sceglie(sceltaPdf));
    EXPECT_EQ(proposto, "IPE 200.pdf");
    EXPECT_TRUE(Byte(file + ".pdf").startsWith("%PDF-"));
    EXPECT_EQ(esito, "FILE: " + file + ".pdf");
    EXPECT_EQ(Dispositivo, "VIDEO");
}

TEST_F(ScegliDispositivoTest, APngFileHoldsThePicture) {
    const QString file = cartella.filePath(QStringLiteral("sezione"));
    RispondeFile(file);
    EXPECT_TRUE(Sceglie(sceltaPng));
    EXPECT_EQ(proposto, "IPE 200.png");
    EXPECT_FALSE(QImage(file + ".png").isNull());
    RispondeFile(QStringLiteral("/manca/a.png"));
    EXPECT_FALSE(Sceglie(sceltaPng));
    EXPECT_EQ(registratore.testi.size(), 1U);
}

// CAD ---------------------------------------------------------------------------------------------------

/// The kinds of files that a drawing goes to.
struct Uscite {
    int scelta;
    const char* estensione;
};
constexpr Uscite uscite[] = {
    {sceltaDxf, "dxf"}, {sceltaSvg, "svg"}, {sceltaPdf, "pdf"}, {sceltaPng, "png"}, {sceltaStampante, "pdf"}};

TEST_F(ScegliDispositivoTest, OnAFullDiskTheOldFileStaysAndIsTold) {
    for (const Uscite& u : uscite) {
        const std::filesystem::path file = PathProgramma / ("disegno." + std::string(u.estensione));
        ScriveByte(file, "vecchio");
        RispondeFile(QString::fromStdString(file.string()));
        RispondeStampante(QString::fromStdString(file.string()));
        registratore.testi.clear();
        {
            const DiscoPieno full(10);
            EXPECT_FALSE(ScegliDispositivo(u.scelta, QString::fromLatin1(u.estensione), disegno,
                                           QStringLiteral("x"), nullptr));
        }
        EXPECT_EQ(LeggeByte(file), "vecchio") << u.estensione;
        ASSERT_EQ(registratore.testi.size(), 1U) << u.estensione;
        EXPECT_NE(registratore.testi[0], "");
        EXPECT_TRUE(ScegliDispositivo(u.scelta, QString::fromLatin1(u.estensione), disegno,
                                      QStringLiteral("x"), nullptr))
            << "the disk has room again";
        EXPECT_NE(LeggeByte(file), "vecchio");
    }
}

TEST_F(ScegliDispositivoTest, AFolderOrAPipeInAFilesPlaceIsTold) {
    for (const Uscite& u : uscite)
        for (const AlPosto what : {AlPosto::Cartella, AlPosto::Pipa}) {
            const std::filesystem::path file = PathProgramma / "al posto.pdf";
            Mette(what, file);
            RispondeFile(QString::fromStdString(file.string()));
            RispondeStampante(QString::fromStdString(file.string()));
            registratore.testi.clear();
            EXPECT_FALSE(ScegliDispositivo(u.scelta, QString::fromLatin1(u.estensione), disegno,
                                           QStringLiteral("x"), nullptr));
            ASSERT_EQ(registratore.testi.size(), 1U) << u.estensione;
            EXPECT_NE(registratore.testi[0].find(MotivoAtteso(what)), std::string::npos)
                << registratore.testi[0];
            std::filesystem::remove(file);
        }
}

TEST_F(ScegliDispositivoTest, WithoutACadProgramTheTwoLinesAreShown) {
    EXPECT_FALSE(Sceglie(sceltaCad));
    EXPECT_EQ(registratore.testi,
              std::vector<std::string>{
                  "Impossibile aprire Autocad.\r\nControllare che la versione di Autocad non sia LT"});
    EXPECT_TRUE(dispositivi.empty());
    EXPECT_FALSE(PathLavoro.empty());
}

TEST_F(ScegliDispositivoTest, DrawsIntoTheCadProgramAndShowsAllOfIt) {
    const CadFinto cad("AutoCAD.Application.17");
    EXPECT_TRUE(Sceglie(sceltaCad));
    EXPECT_EQ(dispositivi, std::vector<std::string>{"DWG"});
    EXPECT_EQ(*cad.chiamate, (std::vector<std::string>{"Visible True", "ActiveDocument", "ModelSpace",
                                                       "Attiva", "ModelSpace.AddLine (1 2 0) (3 4 0)",
                                                       "Color 7", "ZoomExtents", "Attiva"}));
    EXPECT_EQ(esito, "DWG");
    EXPECT_EQ(Dispositivo, "VIDEO");
}

TEST_F(ScegliDispositivoTest, WithoutADrawingNothingHappens) {
    disegno = {};
    for (const int choice : {0, 1, 2, 3})
        EXPECT_FALSE(Sceglie(choice));
    EXPECT_TRUE(registratore.testi.empty());
}

} // namespace
