#include "screens/SchermoDi.h"

#include <stdexcept>

#include "screens/Comandi.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

/// A screen that reads its rows in another way and shows one more result.
struct Sorella : frmDoppioT {
    using frmDoppioT::CollegaDettagli;
    using frmDoppioT::CollegaRisultati;

    Sorella() {
        CollegaRisultati({{"TxtClassePressFless", [](const SezioneDoppioT& s) { return s.Designation; }}});
    }

protected:
    void LeggeSezione(const Lettore& riga, SezioneDoppioT& sezione) override {
        frmDoppioT::LeggeSezione(riga, sezione);
        sezione.Designation = "2 " + sezione.Designation;
    }
};

class SchermoDiTest : public AmbienteSchermi {};

TEST_F(SchermoDiTest, ScreenSaysHowARowIsReadAndWhatIsShown) {
    Avvia();
    auto& n = NavigaSchermi::Unico();
    auto& s = n.Prende<Sorella>();
    Trova<QLineEdit>(&s, "Txt_L0_1")->setText("3");
    Trova<QLineEdit>(&s, "TxtNsd")->setText("7");
    n.Passa(s, nullptr);
    EXPECT_EQ(Sezione().Designation, "2 IPE 80");
    EXPECT_EQ(Sezione().L0z.Stretto(), 3000.F) << "m to mm";
    EXPECT_EQ(Sezione().NSd.Stretto(), 7000.F) << "kN to N";
    EXPECT_EQ(Sezione().fy.Stretto(), 235.F);
    EXPECT_EQ(Testo(&s, "TxtClassePressFless"), "2 IPE 80");
    EXPECT_EQ(Testo(&s, "TxtClasseCompressione"), "1");
    s.SvuotaRisultati();
    EXPECT_EQ(Testo(&s, "TxtClassePressFless"), "");
    EXPECT_EQ(Testo(&s, "TxtVplRd_1"), "");
}

TEST_F(SchermoDiTest, NamesThatTheFormDoesNotHaveAreErrors) {
    Avvia();
    auto& s = NavigaSchermi::Unico().Prende<Sorella>();
    const auto nothing = [](const SezioneDoppioT&) { return std::string(); };
    EXPECT_THROW(s.CollegaRisultati({{"TxtNessuno", nothing}}), std::out_of_range);
    EXPECT_THROW(s.CollegaDettagli({{"CmdNessuno", "FrmMcRd"}}), std::out_of_range);
}

} // namespace
