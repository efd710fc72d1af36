#include "sections/DisegnoQuotato.h"

#include <gtest/gtest.h>

#include "drawing/Quote.h"

using namespace sagomi;

namespace {

TEST(DisegnoQuotato, ALineOfDataNamesItsValue) {
    EXPECT_EQ(RigaDato("tw", 5.6), "tw = 5.6");
    EXPECT_EQ(RigaDato("h", 200), "h = 200");
}

struct Classificata {
    std::int16_t SezioneEfficaceDaPlottare = 0;
    std::int16_t ClasseCompressione = 4, ClasseFlessioneY = 4, ClasseFlessioneZ = 4;
    std::shared_ptr<SezioneGenerica> SezioneComp4 = std::make_shared<SezioneGenerica>();
    std::shared_ptr<SezioneGenerica> SezioneWy4 = std::make_shared<SezioneGenerica>();
    std::shared_ptr<SezioneGenerica> SezioneWz4 = std::make_shared<SezioneGenerica>();
};

TEST(DisegnoQuotato, TheEffectiveOutlineIsTheOneAskedForByTheClasses) {
    Classificata s;
    EXPECT_EQ(EfficaceChiesto(s, "FrmClasseDoppioTU").sezione, s.SezioneComp4.get());
    EXPECT_EQ(EfficaceChiesto(s, "frmDoppioT").sezione, nullptr);
    s.SezioneEfficaceDaPlottare = 1;
    EXPECT_EQ(EfficaceChiesto(s, "FrmClasseDoppioTU").nome, "Weff,y");
    s.SezioneEfficaceDaPlottare = 2;
    EXPECT_EQ(EfficaceChiesto(s, "FrmClasseDoppioTU").sezione, s.SezioneWz4.get());
    s.ClasseFlessioneZ = 3; // that outline is of an earlier run
    EXPECT_EQ(EfficaceChiesto(s, "FrmClasseDoppioTU").sezione, nullptr);
}

TEST(DisegnoQuotato, WithoutAnOutlineNothingIsDrawn) {
    bool quotato = false;
    PezzoQuotato pezzo;
    pezzo.quotatura = [&quotato](const Quote&, const PezzoQuotato::Riquadro&) { quotato = true; };
    DisegnaQuotato(pezzo, nullptr, "DXF");
    const SezioneGenerica vuota;
    pezzo.contorno = &vuota;
    DisegnaQuotato(pezzo, nullptr, "DXF");
    EXPECT_FALSE(quotato);
}

} // namespace
