#include "frame/ui/FileDialogo.h"

#include <fstream>

#include "Guasti.h"
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

// Between the dialog and the reading a file can go, or become something else.
TEST_F(FileDialogoTest, WhatStandsInAFilesPlaceIsTold) {
    for (const AlPosto what : ogniAlPosto) {
        SchermoProva s;
        s.valore = 7;
        QString file = QStringLiteral("prima.Gfl");
        const QString chosen = cartella.filePath("trave.Gfl");
        Mette(what, chosen.toStdString());
        Risponde(chosen);
        registratore.testi.clear();
        EXPECT_FALSE(FileDialogo(s, "L", "Giunti", "Gfl", file));
        ASSERT_EQ(registratore.testi.size(), 1U);
        EXPECT_NE(registratore.testi[0].find(MotivoAtteso(what)), std::string::npos) << registratore.testi[0];
        EXPECT_EQ(s.valore, 7);
        EXPECT_EQ(file, "prima.Gfl");
        if (what == AlPosto::Niente)
            continue; // a save makes it
        EXPECT_FALSE(FileDialogo(s, "S", "Giunti", "Gfl", file));
        ASSERT_EQ(registratore.testi.size(), 2U);
        EXPECT_NE(registratore.testi[1].find(MotivoAtteso(what)), std::string::npos) << registratore.testi[1];
        std::filesystem::remove(chosen.toStdString());
    }
}

TEST_F(FileDialogoTest, OnAFullDiskTheOldFileStaysAndIsTold) {
    SchermoProva s;
    s.valore = 1.23456789012345;
    QString file = QStringLiteral("prima.Gfl");
    const std::filesystem::path chosen = cartella.filePath("trave.Gfl").toStdString();
    std::ofstream(chosen) << "2\r\n";
    Risponde(QString::fromStdString(chosen.string()));
    {
        const DiscoPieno full(4);
        EXPECT_FALSE(FileDialogo(s, "S", "Giunti", "Gfl", file));
    }
    EXPECT_EQ(file, "prima.Gfl") << "the caption does not promise what is not there";
    EXPECT_EQ(registratore.testi.size(), 1U);
    EXPECT_EQ(s.finestra.windowTitle(), "");
    ASSERT_TRUE(FileDialogo(s, "L", "Giunti", "Gfl", file));
    EXPECT_EQ(s.valore, 2);
}

} // namespace
