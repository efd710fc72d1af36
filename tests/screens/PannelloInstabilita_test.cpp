#include "screens/PannelloInstabilita.h"

#include "screens/Dettagli.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

struct PannelloInstabilitaTest : AmbienteSchermi {};

TEST_F(PannelloInstabilitaTest, HasAColumnForEachAxis) {
    PannelloInstabilita two;
    two.ImpostaAssi("y-y z-z");
    for (const char* root : {"Lamda", "LamdaS", "Curva", "Alfa", "Fi", "chi", "Ncr", "NbRd"}) {
        EXPECT_NO_THROW(Trova<QLabel>(&two, (std::string("Lbl_") + root + "_1").c_str())) << root;
        EXPECT_EQ(two.findChild<QLabel*>(QString::fromStdString(std::string("Lbl_") + root + "_2")), nullptr);
    }
    PannelloInstabilita three;
    three.ImpostaAssi("y-y z-z v-v"); // angles
    EXPECT_EQ(Trova<QLabel>(&three, "Lbl_chi_2")->accessibleName(), "chi v-v");
}

// Of S355 epsilon is sqrt(235/355) = 0.8136, lamda1 93.9 times that, 76.40.
TEST_F(PannelloInstabilitaTest, ShowsWhatFollowsFromTheSteel) {
    PannelloInstabilita panel;
    panel.ImpostaAssi("y-y z-z");
    panel.MostraAcciaio(355);
    EXPECT_EQ(Scritta(&panel, "Lbl_eps"), Locale("0.81"));
    EXPECT_EQ(Scritta(&panel, "Lbl_Lamda1"), Locale("76.4"));
}

} // namespace
