#include "sections/FibraInferiore.h"

#include <cmath>
#include <memory>

#include <gtest/gtest.h>

#include "frame/GeneraleSagomi.h"
#include "frame/Numeri.h"
#include "sections/AreaEfficace.h"
#include "sections/SezioneDoppioT.h"
#include "sections/SezioneGenerica.h"
#include "sections/Verdetto.h"

using namespace sagomi;

namespace {

/// Web of a thickness between 300 x 20 above and 250 x 12 below, 1000 high, S235, without fillets.
SezioneDoppioT Trave(double tw, double b = 300, double tf = 20, double b2 = 250, double tf2 = 12) {
    SezioneDoppioT s;
    s.fy = 235;
    s.InizializzaSezioneUtente(nullptr, 1000, b, tw, tf, 0, b2, tf2);
    InizializzaConAreaEfficace(s);
    return s;
}

// The plates by hand, tw 10: yG = 575.98 mm, Iy = 2.8211E9 mm4, so 1489.1 kNm above and 1096.2 below; web
// 968/10 = 96.8, between 83 and 124, class 3.
TEST(FibraInferiore, BearsLessWhereTheLowerModulusIsTheSmallerOne) {
    const SezioneDoppioT s = Trave(10);
    ASSERT_EQ(s.ClasseFlessioneY, 3);
    EXPECT_NEAR(s.McyRd / 1e6, 1489.1, 0.1);
    EXPECT_NEAR(McyRdInferiore(s).value() / 1e6, 1096.2, 0.1);
    EXPECT_NEAR(QuotaMcyRd(s), 1096.2 / 1489.1, 1e-4);
    EXPECT_NEAR(QuotaElastica(s), 1096.2 / 1489.1, 1e-4);
}

// Of class 4 the modulus is that of the effective section's lower fibre, with the factor of class 4.
TEST(FibraInferiore, OfClassFourIsThatOfTheEffectiveSection) {
    const SezioneDoppioT s = Trave(7);
    ASSERT_EQ(s.ClasseFlessioneY, 4);
    const SezioneGenerica& e = *s.SezioneWy4;
    EXPECT_NEAR(McyRdInferiore(s).value(), e.JotaXG / e.yG * 235 / GammaM1, 1);
    EXPECT_LT(QuotaMcyRd(s), 1);
}

TEST(FibraInferiore, HasNothingToSayElsewhere) {
    EXPECT_FALSE(McyRdInferiore(Trave(16))) << "plastic: class 1 or 2";
    EXPECT_FALSE(McyRdInferiore(Trave(10, 250, 12, 300, 20))) << "the upper fibre decides";
    SezioneDoppioT uguali;
    uguali.fy = 235;
    uguali.InizializzaSezioneUtente(nullptr, 1000, 300, 10, 20, 0);
    EXPECT_FALSE(McyRdInferiore(uguali));
    EXPECT_FALSE(VplzRdInferiore(uguali));
    EXPECT_EQ(QuotaElastica(uguali), 1);
}

// Moduli of a few mm3 count like others; one that is missing, or left over from another shape, does not.
TEST(FibraInferiore, CountsEveryModulusThatThereIs) {
    SezioneDoppioT s;
    s.fy = 235;
    s.Wely = 4;
    s.WelyInf = 1;
    s.ClasseFlessioneY = 3;
    EXPECT_EQ(QuotaElastica(s), 1) << "equal flanges";
    s.SaldataAsimm = true;
    EXPECT_EQ(QuotaElastica(s), 0.25);
    EXPECT_NEAR(McyRdInferiore(s).value_or(0), 235 / GammaM0, 1e-9);
    s.WelyInf = 0;
    EXPECT_EQ(QuotaElastica(s), 1);
    EXPECT_FALSE(McyRdInferiore(s));
    s.WelyInf = 4;
    s.ClasseFlessioneY = 4;
    s.WyEff = 3;
    s.SezioneWy4 = std::make_shared<SezioneGenerica>();
    s.SezioneWy4->WxInferiore = 1;
    EXPECT_EQ(QuotaElastica(s), 0.25);
    EXPECT_NEAR(McyRdInferiore(s).value_or(0), 235 / GammaM1, 1e-9);
    s.SezioneWy4->WxInferiore = 0;
    EXPECT_EQ(QuotaElastica(s), 1);
    EXPECT_FALSE(McyRdInferiore(s));
}

// 2 x 300 x 20 against 300 x 20 + 250 x 12: 1550.6 and 1162.9 kN.
TEST(FibraInferiore, ShearCountsTheFlangesAsTheyAre) {
    EXPECT_NEAR(Trave(10).VplzRd / 1e3, 1550.6, 0.1);
    EXPECT_NEAR(VplzRdInferiore(Trave(10)).value() / 1e3, 1162.9, 0.1);
    EXPECT_FALSE(VplzRdInferiore(Trave(10, 250, 12, 300, 20)));
    SezioneDoppioT s = Trave(10);
    s.ErroreDatiDatabase = true;
    EXPECT_FALSE(VplzRdInferiore(s)) << "data that are none";
    s.ErroreDatiDatabase = false;
    s.SaldataAsimm = false;
    EXPECT_FALSE(VplzRdInferiore(s)) << "the lower flange is the upper one";
}

// 1300 kNm: 0.873 of what the upper fibre bears, 1.186 of the lower one.
TEST(FibraInferiore, VerdictTakesTheSmaller) {
    SezioneDoppioT s = Trave(10);
    s.Mysd = 1300e6;
    s.BetaMy = s.BetaMz = 1.1;
    for (const Verdetto& v : {GiudicaResistenza(s), GiudicaInstabilita(s)}) {
        EXPECT_NEAR(v.somma, 1300 / 1489.1, 1e-3) << "the terms stay as they are shown";
        EXPECT_NEAR(v.utilizzo, 1300 / 1096.2, 1e-3);
        EXPECT_EQ(v.governa, TermineVerifica::My);
        EXPECT_EQ(v.motivo.find("La fibra inferiore porta meno: My,Rd = "), 0U) << v.motivo;
    }
    s.Mysd = 1000e6;
    EXPECT_NEAR(GiudicaResistenza(s).utilizzo, 1000 / 1096.2, 1e-3);
    EXPECT_EQ(GiudicaResistenza(s).motivo, "");
    s.Mysd = 1600e6; // too much for the upper fibre as well
    EXPECT_NEAR(GiudicaResistenza(s).utilizzo, 1600 / 1096.2, 1e-3);
    EXPECT_EQ(GiudicaResistenza(s).motivo, "");
}

} // namespace
