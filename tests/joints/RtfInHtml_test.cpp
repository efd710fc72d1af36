#include "joints/RtfInHtml.h"

#include <gmock/gmock.h>

#include <random>

using namespace sagomi;

namespace {

/// The paragraphs without the style of each.
std::string Senza(std::string html) {
    for (std::size_t i = html.find(" style=\"margin"); i != std::string::npos;
         i = html.find(" style=\"margin"))
        html.erase(i, html.find("\">", i) + 1 - i);
    return html;
}

std::string Html(const std::string& corpo) { return Senza(HtmlDaRtf("{\\rtf1\\ansi " + corpo + "}")); }

struct CasoRtf {
    const char* nome;
    const char* rtf;
    const char* html;
};
void PrintTo(const CasoRtf& c, std::ostream* os) { *os << c.nome; }
class RtfInHtmlTest : public testing::TestWithParam<CasoRtf> {};
TEST_P(RtfInHtmlTest, Tabella) { EXPECT_EQ(Html(GetParam().rtf), GetParam().html); }
// clang-format off
INSTANTIATE_TEST_SUITE_P(RtfInHtml, RtfInHtmlTest, testing::Values(
    CasoRtf{"testo",        "ciao",                         "<p>ciao</p>\n"},
    CasoRtf{"paragrafi",    "uno\\par\r\ndue\\par",         "<p>uno</p>\n<p>due</p>\n"},
    CasoRtf{"grassetto",    "a{\\b b}c",                    "<p>a<b>b</b>c</p>\n"},
    CasoRtf{"spento",       "a\\b b\\b0 c",                 "<p>a<b>b</b>c</p>\n"},
    CasoRtf{"annidati",     "{\\b m{\\sub c}}",             "<p><b>m</b><b><sub>c</sub></b></p>\n"},
    CasoRtf{"apice",        "t{\\super 2} x\\super 3\\nosupersub y", "<p>t<sup>2</sup> x<sup>3</sup>y</p>\n"},
    CasoRtf{"corsivo",      "{\\i n}{\\ul s}",              "<p><i>n</i><u>s</u></p>\n"},
    CasoRtf{"ansi",         "\\'e8 \\'E0\\'80",             "<p>è à€</p>\n"},
    CasoRtf{"unicode",      "\\u947?\\u8730V3\\u-3913?",    "<p>γ√3\xEF\x82\xB7</p>\n"},
    CasoRtf{"due_e_tre_byte", "\\u2047?\\u2048?",           "<p>\xDF\xBF\xE0\xA0\x80</p>\n"},
    CasoRtf{"sostituti",    "\\uc2\\u947xyz\\uc0\\u947z",   "<p>γzγz</p>\n"},
    CasoRtf{"sostituto_hex","\\u8722\\'2d5",                "<p>−5</p>\n"},
    CasoRtf{"simboli",      "{\\fonttbl{\\f0 Times;}{\\f3\\fcharset2 Symbol;}}{\\f3 bS\\'b3\\'d6}b", "<p>βΣ≥√b</p>\n"},
    CasoRtf{"segni",        "a\\{b\\}\\\\c\\~d\\_e\\emdash f", "<p>a{b}\\c\xC2\xA0" "d\xE2\x80\x91" "e—f</p>\n"},
    CasoRtf{"segni_per_nome", "\\tab a\\endash b\\bullet c\\lquote d\\rquote e\\ldblquote f\\rdblquote g",
                            "<p>\ta–b•c‘d’e“f”g</p>\n"},
    CasoRtf{"html",         "a<b>&c",                       "<p>a&lt;b&gt;&amp;c</p>\n"},
    CasoRtf{"a_capo",       "a\\line b\r\nc",               "<p>a<br>bc</p>\n"},
    CasoRtf{"nascosto",     "a\\v xx\\v0 b{\\v y}c",        "<p>abc</p>\n"},
    CasoRtf{"tavole",       "{\\colortbl;\\red1;}{\\info{\\title T}}{\\*\\ignoto z}a", "<p>a</p>\n"},
    CasoRtf{"ignote",       "\\lang1040\\qualcosa a",       "<p>a</p>\n"},
    CasoRtf{"corpo",        "{\\fs44 a}{\\fs26 b}\\fs22 c", "<p><span style=\"font-size:xx-large;\">a</span>"
                                                            "<span style=\"font-size:large;\">b</span>c</p>\n"},
    CasoRtf{"troncato",     "a{\\b b",                      "<p>a<b>b</b></p>\n"},
    CasoRtf{"vuoto",        "",                             ""}),
    [](const auto& i) { return std::string(i.param.nome); });
// clang-format on

TEST(RtfInHtml, RientriInPixel) {
    EXPECT_EQ(HtmlDaRtf("{\\rtf1\\pard\\li570\\sa60\\sb120 a\\par\\pard b}"),
              "<p style=\"margin:8px 0px 4px 38px; white-space:pre-wrap;\">a</p>\n"
              "<p style=\"margin:0px 0px 0px 0px; white-space:pre-wrap;\">b</p>\n");
}

TEST(RtfInHtml, QualunqueByteDaUnTesto) {
    std::mt19937 caso(7);
    const std::string pezzi[] = {"{", "}", "\\", "\\'", "\\u", "\\uc", "-", "9", "\\b", "\\par", "\xE8", " "};
    for (int prova = 0; prova < 2000; ++prova) {
        std::string rtf;
        for (unsigned i = caso() % 40; i > 0; --i)
            rtf += pezzi[caso() % std::size(pezzi)];
        (void)HtmlDaRtf(rtf);
    }
    (void)HtmlDaRtf(std::string(100000, '{') + "a" + std::string(100000, '}'));
    EXPECT_EQ(Html(std::string(1000, '{') + "\\b a" + std::string(1000, '}') + "b"), "<p><b>a</b>b</p>\n");
}

} // namespace

// Nothing beyond the text is read: the second figure of a character stands behind its end.
TEST(RtfInHtml, FineDentroUnCarattere) {
    const std::string intero = "{\\rtf1\\ansi a\\'e8";
    EXPECT_EQ(Senza(HtmlDaRtf(intero)), "<p>aè</p>\n");
    const std::string_view vista = intero;
    EXPECT_EQ(Senza(HtmlDaRtf(vista.substr(0, vista.size() - 1))), Senza(HtmlDaRtf("{\\rtf1\\ansi ae}")));
    EXPECT_EQ(Html("\\'AA\\'aF\\'fA"), "<p>ª¯ú</p>\n");
}

TEST(RtfInHtml, SempliceEAnnidatoOltreIlLimite) {
    EXPECT_EQ(Html("a\\b b\\i c\\plain d"), Html("a{\\b b}{\\b\\i c}d"));
    // Groups beyond the depth that is kept are still counted: what follows them is as before.
    EXPECT_EQ(Html(std::string(5000, '{') + "x" + std::string(5000, '}') + "{\\b y}z"),
              "<p>x<b>y</b>z</p>\n");
}

TEST(RtfInHtml, DallaPrimaLettera) { EXPECT_EQ(Senza(HtmlDaRtf("abc")), "<p>abc</p>\n"); }

// A group that is too deep to be kept closes itself, not one around it.
TEST(RtfInHtml, GruppiOltreIlLimite) {
    EXPECT_EQ(Html("{\\b " + std::string(5000, '{') + std::string(5000, '}') + "x}y"), "<p><b>x</b>y</p>\n");
}

// The font of symbols has Greek letters from A to Z and from a to z.
TEST(RtfInHtml, AlfabetoDeiSimboli) {
    EXPECT_EQ(Html("{\\fonttbl{\\f1\\fcharset2 Symbol;}}{\\f1 AaZz}"), "<p>ΑαΖζ</p>\n");
}

// A minus belongs to a number that follows it, also at the end; alone it is a text.
TEST(RtfInHtml, NumeriNegativi) {
    EXPECT_EQ(Senza(HtmlDaRtf("{\\rtf1\\ansi a\\b-5")), "<p>a</p>\n");
    EXPECT_EQ(Html("a\\b-5 x"), "<p>a<b>x</b></p>\n");
    EXPECT_EQ(Html("a\\b-x"), "<p>a<b>-x</b></p>\n");
    EXPECT_EQ(Html("a\\u-8192?b"), "<p>a\xEE\x80\x80"
                                   "b</p>\n");      // the first character behind the halves of pairs
    EXPECT_EQ(Html("a\\u-8193?b"), "<p>a?b</p>\n"); // the last half of a pair
}

TEST(RtfInHtml, UnRitornoDopoLaBarraEUnParagrafo) {
    EXPECT_EQ(Html("a\\\nb"), "<p>a</p>\n<p>b</p>\n");
    EXPECT_EQ(Html("a\\\rb"), "<p>a</p>\n<p>b</p>\n");
}

// What stands behind the end of the text is not read: neither a letter nor a sign.
TEST(RtfInHtml, FineDopoLaBarra) {
    for (const std::string segno : {"~", "_", "{", "b "}) {
        const std::string intero = "{\\rtf1\\ansi a\\" + segno;
        EXPECT_EQ(Senza(HtmlDaRtf(std::string_view(intero).substr(0, intero.size() - segno.size()))),
                  "<p>a</p>\n");
    }
}

// Two hundred groups are kept, that of the document among them; letters of a deeper one are those of the
// last.
TEST(RtfInHtml, LUltimoGruppoCheSiRicorda) {
    const auto dentro = [](int gruppi) {
        return Html(std::string(static_cast<std::size_t>(gruppi), '{') + "{\\b x}y" +
                    std::string(static_cast<std::size_t>(gruppi), '}'));
    };
    EXPECT_EQ(dentro(198), "<p><b>x</b>y</p>\n");
    EXPECT_EQ(dentro(199), "<p><b>xy</b></p>\n");
}

TEST(RtfInHtml, OgniCifraEsadecimale) {
    EXPECT_EQ(Html("\\'30\\'39\\'41\\'5a\\'6f\\'7A"), "<p>09AZoz</p>\n");
    EXPECT_EQ(Html("\\'3ga"), "<p>3ga</p>\n"); // no character
}
