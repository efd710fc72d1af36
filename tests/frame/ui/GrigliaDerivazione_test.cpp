#include "frame/ui/GrigliaDerivazione.h"

#include <QLabel>

#include "AmbienteFinestre.h"
#include "frame/ui/EtichettaRisultato.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

const std::vector<Passo> passi = {
    {{"", "lamda"}, "Lamda", "lamda", "λ = L0 / i", "Snellezza", "EC3 6.3.1.3"},
    {{"", "N      [kN]", "b,Rd"}, "NbRd", "NbRd", "χ A fy / γM1", "Resistenza", "EC3 6.3.1.1"},
};

TEST(GrigliaDerivazioneTest, EachStepHasAValueForEachAxis) {
    GrigliaDerivazione grid;
    grid.Compone(passi, {"y-y", "z-z", "v-v"}); // angles have three
    for (const char* name : {"Lbl_Lamda_0", "Lbl_Lamda_1", "Lbl_Lamda_2", "Lbl_NbRd_2"})
        EXPECT_NO_THROW(Trova<EtichettaRisultato>(&grid, name));
    EXPECT_EQ(Trova<QLabel>(&grid, "LblAsse_2")->text(), "v-v");
    EXPECT_EQ(grid.findChildren<EtichettaRisultato*>().size(), 6);
}

TEST(GrigliaDerivazioneTest, SaysWhatAValueIsWithItsAxisAndItsClause) {
    GrigliaDerivazione grid;
    grid.Compone(passi, {"y-y", "z-z"});
    const auto* value = Trova<QLabel>(&grid, "Lbl_Lamda_1");
    EXPECT_EQ(value->toolTip(), "Snellezza per inflessione intorno a z-z, EC3 6.3.1.3");
    EXPECT_EQ(value->accessibleName(), "lamda z-z");
    EXPECT_EQ(Trova<QLabel>(&grid, "LblNomeLamda")->buddy(), Trova<QLabel>(&grid, "Lbl_Lamda_0"));
    EXPECT_EQ(Trova<QLabel>(&grid, "LblFormulaLamda")->text(), QStringLiteral("λ = L0 / i"));
    EXPECT_EQ(Trova<QLabel>(&grid, "LblNormaNbRd")->text(), "EC3 6.3.1.1");
}

TEST(GrigliaDerivazioneTest, LinesFollowOneAnotherAndColumnsStandBelowTheirAxis) {
    GrigliaDerivazione grid;
    grid.Compone(passi, {"y-y", "z-z"});
    grid.show();
    QCoreApplication::processEvents();
    const auto place = [&grid](const char* name) { return Trova<QLabel>(&grid, name)->geometry(); };
    EXPECT_LT(place("Lbl_Lamda_0").bottom(), place("Lbl_NbRd_0").top());
    EXPECT_LT(place("LblNomeLamda").right(), place("LblFormulaLamda").left());
    EXPECT_LT(place("LblFormulaLamda").right(), place("Lbl_Lamda_0").left());
    EXPECT_LT(place("Lbl_Lamda_1").right(), place("LblNormaLamda").left());
    EXPECT_EQ(place("LblAsse_1").left(), place("Lbl_Lamda_1").left());
}

} // namespace
