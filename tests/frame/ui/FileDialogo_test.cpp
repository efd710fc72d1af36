#include "frame/ui/FileDialogo.h"

#include <fstream>

#include "frame/FileDati.h"
#include "frame/ui/AmbienteFinestre.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

struct SchermoProva : SchermoConFile {
    QWidget finestra;
    double valore = 0;
    void FileLeggeScrive(std::string_view modo, std::int16_t nFile) override {
        FileInOut(modo, nFile, {&valore});
    }
    QString PrefissoTitolo() const override { return QStringLiteral("Prova - "); }
    QWidget* Finestra() override { return &finestra; }
};

class FileDialogoTest : public AmbienteFinestre {
protected:
    void TearDown() override {
        ImpostaSceltaFile({});
        AmbienteFinestre::TearDown();
    }
    void Risponde(const QString& chosen) {
        ImpostaSceltaFile(
            [this, chosen](QWidget*, std::string_view, const QString& f, int i, const QString& p) {
                filtro = f;
                indice = i;
                proposto = p;
                return chosen;
            });
    }
    QString filtro, proposto;
    int indice = 0;
};

TEST_F(FileDialogoTest, SavesAndReadsWithFilterAndCaption) {
    SchermoProva s;
    s.valore = 2.5;
    QString file;
    Risponde(cartella.filePath("trave"));
    ASSERT_TRUE(FileDialogo(s, "S", "Giunti", "Gfl", file));
    EXPECT_EQ(filtro, "Tutti i Files (*.*)|*.*|Files Giunti (*.Gfl)|*.Gfl");
    EXPECT_EQ(indice, 2);
    EXPECT_EQ(proposto, "*.Gfl");
    EXPECT_EQ(file, cartella.filePath("trave.Gfl"));
    EXPECT_EQ(s.finestra.windowTitle(), "Prova - trave.Gfl");
    EXPECT_EQ(PathLavoro, PathProgramma);
    s.valore = 0;
    Risponde(file);
    ASSERT_TRUE(FileDialogo(s, "L", "Giunti", "Gfl", file));
    EXPECT_EQ(s.valore, 2.5);
}

TEST_F(FileDialogoTest, GivingUpChangesNothing) {
    SchermoProva s;
    s.finestra.setWindowTitle("com'era");
    QString file = QStringLiteral("a.Gfl");
    Risponde({});
    EXPECT_FALSE(FileDialogo(s, "L", "Giunti", "Gfl", file));
    EXPECT_EQ(file, "a.Gfl");
    EXPECT_EQ(proposto, "a.Gfl");
    EXPECT_EQ(s.finestra.windowTitle(), "com'era");
}

TEST_F(FileDialogoTest, FileThatCannotBeOpenedIsTold) {
    SchermoProva s;
    QString file;
    Risponde(cartella.filePath("manca/trave.Gfl"));
    EXPECT_FALSE(FileDialogo(s, "L", "Giunti", "Gfl", file));
    EXPECT_FALSE(FileDialogo(s, "S", "Giunti", "Gfl", file));
    ASSERT_GE(registratore.testi.size(), 2U);
    EXPECT_TRUE(registratore.testi[0].starts_with("Non è possibile leggere il file "));
}

} // namespace
