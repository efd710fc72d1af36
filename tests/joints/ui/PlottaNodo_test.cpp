// The preview of a joint, and the files that it is saved to from there.

#include "joints/ui/PlottaNodo.h"

#include <QAction>
#include <QFileInfo>
#include <QPushButton>
#include <QTemporaryDir>

#include "drawing/ui/AreaDisegno.h"
#include "drawing/ui/FrmPltSezione.h"
#include "drawing/ui/Immagini.h"
#include "frame/ui/FileDialogo.h"
#include "joints/NodoDisegnato.h"
#include "screens/Comandi.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

class PlottaNodoTest : public AmbienteSchermi {
protected:
    void TearDown() override {
        ImpostaSceltaFile({});
        AmbienteSchermi::TearDown();
    }
    static FrmPltSezione& Anteprima() { return dynamic_cast<FrmPltSezione&>(Aperto("FrmPltSezione")); }
    static QImage Immagine() { return Trova<AreaDisegno>(&Anteprima(), "Picture1")->grab().toImage(); }

    /// Chooses an entry of the preview's menu and gives what was saved.
    QByteArray Salva(const char* voce, const QString& nome) {
        const QString file = cartella.filePath(nome);
        ImpostaSceltaFile(
            [file](QWidget*, std::string_view, const QString&, int, const QString&) { return file; });
        Trova<QAction>(&Anteprima(), voce)->trigger();
        return Byte(file);
    }
    QTemporaryDir cartella;
    Nodo nodo = NodoDisegnato(nodoCroce, 2, "Si");
};

TEST_F(PlottaNodoTest, ShowsTheJointAsItIsAtEveryPress) {
    PlottaNodo(Avvia(), nodo);
    EXPECT_EQ(Anteprima().windowTitle(), "Plotta - Giunto HE 200 B IPE 270");
    const QImage before = Immagine();
    EXPECT_GT(Inchiostro(before).height(), before.height() / 2);
    nodo.nGiunto = 2;
    nodo.Cambia();
    EXPECT_EQ(Immagine(), before); // what is shown stays until it is asked for
    Trova<QPushButton>(&Anteprima(), "CmdPlotta")->click();
    EXPECT_EQ(Anteprima().windowTitle(), "Plotta - Giunto HE 200 B IPE 330");
    EXPECT_NE(Immagine(), before);
    EXPECT_TRUE(registratore.testi.empty());
}

TEST_F(PlottaNodoTest, GoesToEveryKindOfFile) {
    PlottaNodo(Avvia(), nodo);
    const QByteArray dxf = Salva("mnuFileItem_1", "giunto.dxf");
    EXPECT_TRUE(dxf.startsWith("  0\r\nSECTION\r\n  2\r\nENTITIES\r\n"));
    EXPECT_TRUE(dxf.contains("Altezza della flangia: hf = 350"));
    EXPECT_FALSE(dxf.contains("Scala 1:1"));
    EXPECT_TRUE(Salva("mnuFileItem_4", "giunto.svg").contains("<svg"));
    EXPECT_TRUE(Salva("mnuFileItem_6", "giunto.pdf").startsWith("%PDF"));
    EXPECT_TRUE(Salva("mnuFileItem_7", "giunto.png").startsWith("\x89PNG"));
    EXPECT_FALSE(Inchiostro(QImage(cartella.filePath("giunto.png"))).isEmpty());
    EXPECT_TRUE(registratore.testi.empty());
}

} // namespace
