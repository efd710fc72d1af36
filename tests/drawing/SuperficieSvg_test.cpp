#include "drawing/SuperficieSvg.h"

#include <gtest/gtest.h>

#include "drawing/SuperficieFinta.h"

using namespace sagomi;
using namespace sagomi::prove;

namespace {

class SuperficieSvgTest : public testing::Test {
protected:
    [[nodiscard]] bool Contiene(std::string_view testo) const {
        return svg.Documento().find(testo) != std::string::npos;
    }
    SuperficieSvg svg;
    SuUscita uscita{&svg, dispositivoSvg};
};

TEST_F(SuperficieSvgTest, NothingIsAPictureOfAMillimetre) {
    EXPECT_EQ(svg.Documento(), "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                               "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"1mm\" height=\"1mm\" "
                               "viewBox=\"0 0 1 1\" fill=\"none\" font-family=\"sans-serif\">\n</svg>\n");
}

// y upwards becomes y downwards: the line runs from -0 to -10. Without texts a line of 1 is a five-hundredth
// of 200, 0.4; with 1.4 of them as border the picture is 200 + 2 · 0.56 by 10 + 2 · 0.56.
TEST_F(SuperficieSvgTest, ALineInMillimetresDownwards) {
    LineaPlt(0, 0, 200, 10);
    EXPECT_TRUE(Contiene("width=\"201.12mm\" height=\"11.12mm\" viewBox=\"-0.56 -10.56 201.12 11.12\""))
        << svg.Documento();
    EXPECT_TRUE(Contiene("<polyline points=\"0,0 200,-10\" stroke=\"#000000\" stroke-width=\"0.4\" "
                         "stroke-linecap=\"round\"/>\n"));
}

// With texts of 10 a line of 1 is 1 wide: 1.4 and dashes of 6 and 4 widths.
TEST_F(SuperficieSvgTest, LinesHaveTheirWidthAndStyle) {
    PennaPlt(12);
    LineaStilePlt(1.4, TipoLinea::Tratteggiata, Estremi::Piatti);
    CerchioPlt(5, 5, 2.5);
    TestoPlt(0, 0, 10, "x");
    EXPECT_TRUE(Contiene("<circle cx=\"5\" cy=\"-5\" r=\"2.5\" stroke=\"#ff0000\" stroke-width=\"1.4\" "
                         "stroke-linecap=\"butt\" stroke-dasharray=\"8.4 5.6\"/>\n"))
        << svg.Documento();
}

TEST_F(SuperficieSvgTest, TextsAreAlignedByTheReaderAndKeepTheirSigns) {
    TestoPlt(3, 4, 7.3, "a < b & \"c\"", Allinea::Centro);
    EXPECT_TRUE(Contiene("<text x=\"3\" y=\"-4\" font-size=\"10\" text-anchor=\"middle\" fill=\"#000000\">"
                         "a &lt; b &amp; \"c\"</text>\n"))
        << svg.Documento();
}

TEST_F(SuperficieSvgTest, AreasAreFilledWithoutALine) {
    const std::vector<double> x{0, 10, 10};
    const std::vector<double> y{0, 0, 10};
    AreaPlt(3, x, y, Fondo::Tenue);
    PennaPlt(8);
    AreaPlt(3, x, y, Fondo::Pieno);
    AreaPlt(3, x, y, Fondo::Sfondo);
    EXPECT_TRUE(Contiene("<polygon points=\"0,0 10,0 10,-10\" fill=\"#000000\" fill-opacity=\"0.15\"/>\n"));
    EXPECT_TRUE(Contiene("<polygon points=\"0,0 10,0 10,-10\" fill=\"#808080\"/>\n"));
    EXPECT_TRUE(Contiene("<polygon points=\"0,0 10,0 10,-10\" fill=\"#ffffff\"/>\n"));
}

TEST_F(SuperficieSvgTest, ADrawingIsNotFittedToIt) {
    EXPECT_FALSE(SulBersaglio());
    EXPECT_EQ(SuperficieInForza(), &svg);
}

// A circle of 5: a line is 5/500, 1.4 of them are the border.
TEST_F(SuperficieSvgTest, ACircleIsInsideThePicture) {
    CerchioPlt(5, 5, 2.5);
    EXPECT_TRUE(Contiene("viewBox=\"2.486 -7.514 5.028 5.028\"")) << svg.Documento();
}

// Two letters of 0.85 · 7.3 about x = 3, from 7.3 above y = 4 to 0.3 of that below; a line is 0.73, the
// border 1.022.
TEST_F(SuperficieSvgTest, ATextIsInsideThePicture) {
    TestoPlt(3, 4, 7.3, "ab", Allinea::Centro);
    EXPECT_TRUE(Contiene("viewBox=\"-4.227 -12.322 14.454 11.534\"")) << svg.Documento();
}

// 200 high, so a line is 0.4 wide and the border 0.56, wherever it stands.
TEST_F(SuperficieSvgTest, AnUprightLineHasAPictureAsWideAsItsBorders) {
    LineaPlt(3, 1000, 3, 1200);
    EXPECT_TRUE(Contiene("viewBox=\"2.44 -1200.56 1.12 201.12\"")) << svg.Documento();
}

} // namespace
