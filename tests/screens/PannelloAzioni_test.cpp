#include "screens/PannelloAzioni.h"

#include "frame/ui/Casella.h"
#include "screens/Ambiente.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

TEST(PannelloAzioniTest, HoldsThreeEntriesByTheirNamesInReadingOrder) {
    PannelloAzioni actions;
    EXPECT_EQ(Trova<QLineEdit>(&actions, "TxtNsd"), actions.TxtNsd);
    EXPECT_EQ(Trova<QLineEdit>(&actions, "TxtMysd"), actions.TxtMysd);
    EXPECT_EQ(Trova<QLineEdit>(&actions, "TxtMzsd"), actions.TxtMzsd);
    QList<QWidget*> order;
    for (QWidget* w = actions.nextInFocusChain(); w != &actions; w = w->nextInFocusChain())
        if ((w->focusPolicy() & Qt::TabFocus) == Qt::TabFocus)
            order << w;
    EXPECT_EQ(order, (QList<QWidget*>{actions.TxtNsd, actions.TxtMysd, actions.TxtMzsd}));
}

TEST(PannelloAzioniTest, EachEntryHasItsCaptionAndItsUnit) {
    const PannelloAzioni actions;
    EXPECT_EQ(Trova<QLabel>(&actions, "LblTxtNsd")->buddy(), actions.TxtNsd);
    EXPECT_EQ(Trova<QLabel>(&actions, "LblTxtMysd")->buddy(), actions.TxtMysd);
    EXPECT_EQ(Trova<QLabel>(&actions, "LblTxtMzsd")->buddy(), actions.TxtMzsd);
    EXPECT_EQ(actions.TxtNsd->accessibleName(), "NSd [kN]");
    EXPECT_EQ(actions.TxtMysd->accessibleName(), "My,Sd [kNm]");
    EXPECT_EQ(actions.TxtMzsd->accessibleName(), "Mz,Sd [kNm]");
}

TEST(PannelloColonnaTest, HoldsTheForceAndTheLengths) {
    const PannelloColonna column;
    EXPECT_EQ(Trova<QLineEdit>(&column, "TxtNsd"), column.TxtNsd);
    EXPECT_EQ(Trova<QLineEdit>(&column, "Txt_L0_0"), column.Txt_L0_0);
    EXPECT_EQ(Trova<QLineEdit>(&column, "Txt_L0_1"), column.Txt_L0_1);
    EXPECT_EQ(Trova<QLabel>(&column, "LblL0_1")->buddy(), column.Txt_L0_1);
    EXPECT_EQ(column.Txt_L0_1->accessibleName(), "L0 z-z [m]");
}

} // namespace
