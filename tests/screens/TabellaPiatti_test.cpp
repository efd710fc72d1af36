#include "screens/TabellaPiatti.h"

#include <QLabel>

#include "screens/Ambiente.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

Voce Misura(const char* symbol, const char* name) {
    return {{"", symbol}, name, 6, "misura", symbol, Genere::valore};
}

const std::vector<Piatto> piatti = {
    {"Anima", "dell'anima", "lblAnima", Misura("d", "Lbl_d"), Misura("tw", "Lbl_tw"),
     Misura("d/tw/eps", "Lbl_SnellWeb"), "Lbl_LimiteWeb", true, "Lbl_ClasseWebF", "Lbl_ClasseWebC"},
    {"Ala inferiore", "dell'ala inferiore", "lblAlaInf", Misura("c inf", "Lbl_cInf"),
     Misura("tf inf", "Lbl_tfInf"), Misura("c/tf/eps inf", "Lbl_SnellAlaInf"), "Lbl_LimiteAlaInf", false,
     "Lbl_ClasseAlaInfF", "Lbl_ClasseAlaInfC"}};

struct TabellaPiattiTest : testing::Test {
    TabellaPiattiTest() { tabella.Compone(piatti); }
    QRect Posto(const char* name) const { return Trova<QWidget>(&tabella, name)->geometry(); }
    TabellaPiatti tabella;
};

TEST_F(TabellaPiattiTest, HoldsItsValuesByTheirNames) {
    for (const char* name : {"Lbl_d", "Lbl_tw", "Lbl_SnellWeb", "Lbl_LimiteWeb_3", "Lbl_ClasseWebF",
                             "Lbl_cInf", "Lbl_LimiteAlaInf_1"})
        EXPECT_EQ(tabella.Valore(name), Trova<QLabel>(&tabella, name));
    EXPECT_THROW((void)tabella.Valore("Lbl_LimiteAlaInf_2"), std::out_of_range)
        << "limits in compression alone";
}

TEST_F(TabellaPiattiTest, SaysOfEachLimitWhatItIs) {
    EXPECT_EQ(tabella.Valore("Lbl_LimiteWeb_0")->toolTip(),
              "Limite inferiore della classe dell'anima a flessione, EC3 tabella 5.2");
    EXPECT_EQ(tabella.Valore("Lbl_LimiteWeb_3")->toolTip(),
              "Limite superiore della classe dell'anima a compressione, EC3 tabella 5.2");
    EXPECT_EQ(tabella.Valore("Lbl_LimiteAlaInf_0")->accessibleName(), "Ala inferiore da compressione");
    EXPECT_EQ(tabella.Valore("Lbl_ClasseWebC")->accessibleName(), "Anima classe compressione");
    EXPECT_EQ(Trova<QLabel>(&tabella, "lblAnimaDim1")->buddy(), tabella.Valore("Lbl_d"));
}

TEST_F(TabellaPiattiTest, PlatesFollowOneAnotherInAlignedColumns) {
    tabella.show();
    QCoreApplication::processEvents();
    EXPECT_LT(Posto("Lbl_d").bottom(), Posto("Lbl_cInf").top());
    EXPECT_EQ(Posto("Lbl_LimiteWeb_2").left(), Posto("Lbl_LimiteAlaInf_0").left());
    EXPECT_LT(Posto("Lbl_ClasseWebF").right(), Posto("Lbl_LimiteWeb_2").left());
    EXPECT_LT(Posto("lblAnimaDim1").bottom(), Posto("Lbl_d").top());
}

TEST_F(TabellaPiattiTest, APlateCanBeHiddenWithAllThatBelongsToIt) {
    tabella.MostraPiatto(1, false);
    for (const char* name : {"lblAlaInf", "lblAlaInfPer", "lblAlaInfSn", "Lbl_cInf", "Lbl_ClasseAlaInfC"})
        EXPECT_FALSE(Trova<QLabel>(&tabella, name)->isVisibleTo(&tabella)) << name;
    EXPECT_TRUE(Trova<QLabel>(&tabella, "Lbl_d")->isVisibleTo(&tabella));
    tabella.MostraPiatto(1, true);
    EXPECT_TRUE(Trova<QLabel>(&tabella, "Lbl_cInf")->isVisibleTo(&tabella));
}

} // namespace
