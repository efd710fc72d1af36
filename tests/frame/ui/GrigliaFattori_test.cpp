#include "frame/ui/GrigliaFattori.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include "AmbienteFinestre.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

struct GrigliaFattoriTest : testing::Test {
    GrigliaFattoriTest() {
        griglia.ImpostaTesta(QStringLiteral("Caso"));
        griglia.ImpostaFattori("k C1 C2 C3");
        griglia.ImpostaRighe(3);
    }
    GrigliaFattori griglia;
};

TEST_F(GrigliaFattoriTest, EachRowHasItsFactorsByTheirNames) {
    for (const char* name : {"lblK_0", "lblC2_1", "lblC3_2"})
        EXPECT_NO_THROW(Trova<QLabel>(&griglia, name)) << name;
    EXPECT_EQ(griglia.Bottone(2), Trova<QPushButton>(&griglia, "lblC1_2"));
    EXPECT_EQ(griglia.Bottone(3), nullptr);
    EXPECT_EQ(griglia.findChildren<QPushButton*>().size(), 3);
    EXPECT_EQ(Trova<QLabel>(&griglia, "LblTestaC2")->text(), "C");
    EXPECT_EQ(Trova<QLabel>(&griglia, "LblTestaK")->text(), "k");
}

TEST_F(GrigliaFattoriTest, TheButtonSaysWhatItCopies) {
    EXPECT_EQ(griglia.Bottone(0)->toolTip(), "Copia k, C1, C2 e C3 nella verifica");
    GrigliaFattori two;
    two.ImpostaFattori("k C1 C3");
    two.ImpostaRighe(1);
    EXPECT_EQ(two.Bottone(0)->toolTip(), "Copia k, C1 e C3 nella verifica");
    EXPECT_EQ(two.findChildren<QLabel*>(QStringLiteral("LblTestaK")).size(), 0) << "no heads without a title";
}

TEST_F(GrigliaFattoriTest, TheDiagramsStandBesideAllRows) {
    auto* diagrams = new QWidget;
    griglia.PosaDiagrammi(diagrams);
    const int index = griglia.Griglia()->indexOf(diagrams);
    int row = 0, column = 0, rows = 0, columns = 0;
    griglia.Griglia()->getItemPosition(index, &row, &column, &rows, &columns);
    EXPECT_EQ(row, 1);
    EXPECT_EQ(column, 0);
    EXPECT_EQ(rows, 3);
}

TEST_F(GrigliaFattoriTest, RowsComeOnce) {
    griglia.ImpostaRighe(3);
    EXPECT_EQ(griglia.findChildren<QPushButton*>().size(), 3);
    EXPECT_EQ(griglia.Righe(), 3);
    EXPECT_EQ(griglia.Fattori(), "k C1 C2 C3");
}

} // namespace
