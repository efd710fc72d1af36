#include "joints/ui/FrmRisultatiIntermedi.h"

#include <QPushButton>
#include <QTableView>

#include "joints/ui/GiuntoFinto.h"
#include "screens/Comandi.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

class FrmRisultatiIntermediTest : public AmbienteSchermi {
protected:
    void SetUp() override {
        AmbienteSchermi::SetUp();
        Avvia();
        auto& navigator = NavigaSchermi::Unico();
        navigator.Aggiunge({QStringLiteral("GiuntoFinto"), [] { return new GiuntoFinto; }, {}, {}});
        giunto = &navigator.Prende<GiuntoFinto>(QStringLiteral("GiuntoFinto"));
    }
    void TearDown() override {
        NavigaSchermi::Unico().Toglie(QStringLiteral("GiuntoFinto"));
        AmbienteSchermi::TearDown();
    }
    Schermo& Apre() {
        NavigaSchermi::Unico().Apre(QStringLiteral("FrmRisultatiIntermedi"), *giunto);
        return Aperto("FrmRisultatiIntermedi");
    }
    static QTableView& Griglia(const Schermo& s) { return *Trova<QTableView>(&s, "Griglia"); }
    static QStringList Titoli(const Schermo& s) {
        QStringList titles;
        const auto* model = Griglia(s).model();
        for (int i = 0; i < model->columnCount(); ++i)
            titles << model->headerData(i, Qt::Horizontal).toString();
        return titles;
    }
    static QStringList Riga(const Schermo& s, int riga) {
        QStringList cells;
        const auto* model = Griglia(s).model();
        for (int i = 0; i < model->columnCount(); ++i)
            cells << model->index(riga, i).data().toString();
        return cells;
    }

    GiuntoFinto* giunto = nullptr;
};

TEST_F(FrmRisultatiIntermediTest, TitoliERigheDiUnaFila) {
    giunto->UnaFila(1, "40.15");
    giunto->UnaFila(2, "52.30");
    const Schermo& s = Apre();
    EXPECT_EQ(Titoli(s), (QStringList{" Indice ", " M [kNm] ", " d [mm] ", " tf [mm] ", " bf [mm] ",
                                      " ef [mm] ", " d1 [mm] "}));
    EXPECT_EQ(Riga(s, 1),
              (QStringList{"2", "52.30", "16", "12", "160", "35", QString::fromStdString(TestoPiano(32.5))}));
    EXPECT_EQ(s.windowTitle(), "Risultati intermedi - Configurazione N° 2") << "the best is the last";
}

TEST_F(FrmRisultatiIntermediTest, TitoliDiDueFile) {
    giunto->DueFile();
    giunto->nodo.ConnessioneCorrente->nf = 2;
    const Schermo& s = Apre();
    EXPECT_EQ(Titoli(s), (QStringList{" Indice ", " M [kNm] ", " d [mm] ", " tf [mm] ", " bf [mm] ",
                                      " ef [mm] ", " ex [mm] ", " d2 [mm] ", " d1 [mm] ", " u [mm] "}));
    EXPECT_EQ(Riga(s, 0), (QStringList{"1", "88.10", "20", "15", "180", "40", "45", "50", "38", "12"}));
}

TEST_F(FrmRisultatiIntermediTest, LaRigaSceltaSiPlottaESiInserisce) {
    giunto->UnaFila(1, "40.15");
    giunto->UnaFila(2, "52.30");
    const Schermo& s = Apre();
    Griglia(s).selectRow(0);
    EXPECT_EQ(s.windowTitle(), "Risultati intermedi - Configurazione N° 1");
    Preme(&s, "CmdPlottaSelezione");
    Preme(&s, "CmdInsericiSelezione");
    EXPECT_EQ(giunto->plottate, std::vector<int>{1});
    EXPECT_EQ(giunto->inserite, std::vector<int>{1});
    EXPECT_EQ(s.windowTitle(), "Risultati intermedi - Configurazione N° 1");
}

TEST_F(FrmRisultatiIntermediTest, SenzaRigheNullaDaInserire) {
    const Schermo& s = Apre();
    EXPECT_EQ(s.windowTitle(), "Risultati intermedi - Configurazione N° ");
    EXPECT_EQ(Griglia(s).model()->rowCount(), 0);
    EXPECT_FALSE(Trova<QPushButton>(&s, "CmdPlottaSelezione")->isEnabled());
    EXPECT_FALSE(Trova<QPushButton>(&s, "CmdInsericiSelezione")->isEnabled());
}

TEST_F(FrmRisultatiIntermediTest, DuranteLaRicercaCresceSenzaReagire) {
    giunto->UnaFila(1, "40.15");
    Schermo& s = Apre();
    giunto->inRicerca = true;
    giunto->UnaFila(2, "52.30");
    s.Aggiorna();
    EXPECT_EQ(Griglia(s).model()->rowCount(), 2);
    EXPECT_EQ(s.windowTitle(), "Risultati intermedi - Configurazione N° 2");
    EXPECT_FALSE(Trova<QPushButton>(&s, "CmdInsericiSelezione")->isEnabled());
    giunto->inRicerca = false;
    s.Aggiorna();
    EXPECT_TRUE(Trova<QPushButton>(&s, "CmdInsericiSelezione")->isEnabled());
}

TEST_F(FrmRisultatiIntermediTest, AltreFileNonEntranoNelGiunto) {
    giunto->UnaFila(1, "40.15");
    giunto->nodo.ConnessioneCorrente->nf = 2;
    const Schermo& s = Apre();
    EXPECT_EQ(Titoli(s).size(), 7);
    EXPECT_FALSE(Trova<QPushButton>(&s, "CmdInsericiSelezione")->isEnabled());
}

TEST_F(FrmRisultatiIntermediTest, LaSceltaRestaQuandoTorna) {
    giunto->UnaFila(1, "40.15");
    giunto->UnaFila(2, "52.30");
    Schermo& s = Apre();
    Griglia(s).selectRow(0);
    s.Aggiorna();
    EXPECT_EQ(Griglia(s).currentIndex().row(), 0);
    giunto->tabella.Svuota();
    s.Aggiorna();
    EXPECT_EQ(s.windowTitle(), "Risultati intermedi - Configurazione N° ");
}

} // namespace
