#include "sections/DisegnoQuotato.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "drawing/Quote.h"
#include "drawing/SuperficieFinta.h"

using namespace sagomi;
using namespace sagomi::prove;

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

/// A plate 10 wide and 200 high whose middle strip, 60 high, is gone but for the thread; its middle at x.
SezioneGenerica PiattoConFilo(double x) {
    const std::vector<double> xs{x - 5, x + 5, x + 5, x + 0.01, x + 0.01, x + 5,
                                 x + 5, x - 5, x - 5, x - 0.01, x - 0.01, x - 5};
    const std::vector<double> ys{0, 0, 70, 70, 130, 130, 200, 200, 130, 130, 70, 70};
    SezioneGenerica s;
    s.CoordinateSezione(xs, ys, 12);
    s.CaratteristicheStaticheSezione();
    return s;
}

/// The sides of what is hatched and outlined in full lines, in ink: two rectangles have 8.
std::size_t LatiPieni(double x, double filo) {
    const SezioneGenerica efficace = PiattoConFilo(x);
    SezioneGenerica intero;
    intero.CoordinateSezione({x - 5, x + 5, x + 5, x - 5}, {0, 0, 200, 200}, 4);
    intero.CaratteristicheStaticheSezione();
    PezzoQuotato pezzo;
    pezzo.contorno = &intero;
    pezzo.efficace = {&efficace, "Aeff", filo};
    SuperficieFinta su(900, 600);
    DisegnaQuotato(pezzo, &su, "VIDEO");
    return static_cast<std::size_t>(std::count_if(su.linee.begin(), su.linee.end(), [](const auto& l) {
        return l.colore == pennaInchiostro && l.spessore > spessoreFine && l.tipo == TipoLinea::Continua;
    }));
}

TEST(DisegnoQuotato, TheThreadOfTheWebIsLeftOutWhereverTheWebStands) {
    EXPECT_EQ(LatiPieni(0, 0), 8U);
    EXPECT_EQ(LatiPieni(40, 40), 8U);
    EXPECT_EQ(LatiPieni(40, 0), 12U) << "the web is not where it was said to be: all of the outline shows";
}

} // namespace
