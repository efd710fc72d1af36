#include "screens/TestaDettaglio.h"

#include "frame/ui/Casella.h"
#include "frame/ui/UpDown.h"
#include "screens/Ambiente.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

TEST(TestaDettaglioTest, HoldsTheControlsByTheirNames) {
    const TestaDettaglio head;
    EXPECT_EQ(Trova<QLineEdit>(&head, "Txt_Prof"), head.Txt_Prof);
    EXPECT_EQ(Trova<QLineEdit>(&head, "Txt_TipoAcciaio"), head.Txt_TipoAcciaio);
    EXPECT_EQ(Trova<QLineEdit>(&head, "Txt_fy"), head.Txt_fy);
    EXPECT_EQ(Trova<UpDown>(&head, "UpDown1"), head.UpDown1);
    EXPECT_EQ(Trova<UpDown>(&head, "UpDown2"), head.UpDown2);
}

TEST(TestaDettaglioTest, ShowsOnlyUnlessTheStrengthCanBeTyped) {
    TestaDettaglio head;
    for (const Casella* box : {head.Txt_Prof, head.Txt_TipoAcciaio, head.Txt_fy})
        EXPECT_TRUE(box->isReadOnly());
    EXPECT_FALSE(head.FyModificabile());
    head.ImpostaFyModificabile(true);
    EXPECT_TRUE(head.FyModificabile());
    EXPECT_FALSE(head.Txt_fy->isReadOnly());
    EXPECT_EQ(head.Txt_fy->focusPolicy(), Qt::StrongFocus);
    EXPECT_TRUE(head.Txt_Prof->isReadOnly());
}

// NTC: both 1.05.
TEST(TestaDettaglioTest, ShowsTheCodeOfRulesAndItsFactors) {
    RipristinaGenerale();
    TestaDettaglio head;
    EXPECT_EQ(Trova<QLabel>(&head, "Lbl_Normativa")->text(), "NTC");
    EXPECT_EQ(Trova<QLabel>(&head, "Lbl_GammaM0")->text().toStdString(), Locale("1.05"));
    EXPECT_EQ(Trova<QLabel>(&head, "Lbl_GammaM1")->text().toStdString(), Locale("1.05"));
    Normativa = normativaAltro;
    GammaM0Altro = 1.2;
    GammaM1Altro = 1.3;
    ImpostaGamma();
    head.MostraNormativa();
    EXPECT_EQ(Trova<QLabel>(&head, "Lbl_Normativa")->text(), "Altro");
    EXPECT_EQ(Trova<QLabel>(&head, "Lbl_GammaM0")->text().toStdString(), Locale("1.2"));
    EXPECT_EQ(Trova<QLabel>(&head, "Lbl_GammaM1")->text().toStdString(), Locale("1.3"));
    RipristinaGenerale();
}

TEST(TestaDettaglioTest, EveryControlHasANameOfItsOwnAndATip) {
    const TestaDettaglio head;
    QStringList names;
    for (const QWidget* w : QList<const QWidget*>{head.Txt_Prof, head.UpDown1, head.Txt_TipoAcciaio,
                                                  head.UpDown2, head.Txt_fy}) {
        EXPECT_FALSE(w->toolTip().isEmpty());
        EXPECT_FALSE(names.contains(w->accessibleName())) << w->accessibleName().toStdString();
        names << w->accessibleName();
    }
    EXPECT_EQ(Trova<QLabel>(&head, "LblFy")->buddy(), head.Txt_fy);
}

} // namespace
