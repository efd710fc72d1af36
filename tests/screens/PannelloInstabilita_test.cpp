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

TEST_F(PannelloInstabilitaTest, MarksTheAxisThatGoverns) {
    PannelloInstabilita panel;
    panel.ImpostaAssi("y-y z-z v-v");
    const auto bold = [&panel](int axis) {
        const auto number = std::to_string(axis);
        const bool head = Trova<QLabel>(&panel, ("LblAsse_" + number).c_str())->font().bold();
        EXPECT_EQ(Trova<QLabel>(&panel, ("Lbl_NbRd_" + number).c_str())->font().bold(), head) << axis;
        return head;
    };
    panel.MostraAsse(0, 50, 1000, 300e3);
    EXPECT_EQ(Scritta(&panel, "LblGoverna"), "governa y-y") << "the only one so far";
    panel.MostraAsse(1, 40, 1000, 200e3);
    panel.MostraAsse(2, 30, 1000, 250e3);
    EXPECT_EQ(Scritta(&panel, "LblGoverna"), "governa z-z");
    EXPECT_TRUE(!bold(0) && bold(1) && !bold(2));
    panel.MostraAsse(1, 40, 1000, std::numeric_limits<double>::quiet_NaN());
    EXPECT_EQ(Scritta(&panel, "LblGoverna"), "governa v-v") << "an axis without a number does not";
    EXPECT_TRUE(!bold(0) && !bold(1) && bold(2));
    panel.MostraAsse(0, 50, 1000, 250e3);
    EXPECT_EQ(Scritta(&panel, "LblGoverna"), "") << "neither of two that are alike";
    panel.MostraAsse(0, 50, 1000, 200e3);
    EXPECT_EQ(Scritta(&panel, "LblGoverna"), "governa y-y");
    for (int axis = 0; axis < 3; ++axis)
        panel.MostraAsse(axis, 40, -1000, 200e3 + axis);
    EXPECT_EQ(Scritta(&panel, "LblGoverna"), "") << "nothing buckles in tension";
    EXPECT_TRUE(!bold(0) && !bold(1) && !bold(2));
}

} // namespace
