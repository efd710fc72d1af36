#include "report/FormuleRelazione.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <regex>
#include <set>
#include <string>

#include "Approvato.h"

using namespace sagomi;

namespace {

/// A file of formulas with one block.
std::string File(const std::string& blocco) {
    return "{\\rtf1\\ansi\\uc1\n{\\fonttbl{\\f0 "
           "Arial;}}\n{\\pard\\plain\\v\nSTART-RTF-GIUNTO\nID-RTF-GIUNTO-q\n" +
           blocco + "\\v\nID-RTF-GIUNTO-q\n}}\n";
}

FormulaQuantita Letta(const std::string& blocco) {
    const auto f = FormulaDi(File(blocco), "q");
    EXPECT_TRUE(f.has_value());
    return f.value_or(FormulaQuantita());
}

constexpr auto titolo = "\\pard\\plain{\\b x{\\sub 1}}  La cosa \\par\n";

TEST(FormuleRelazione, BoldIsTheSymbolAndAnIndentAFormula) {
    const FormulaQuantita f =
        Letta(std::string(titolo) + "\\pard\\plain\\li567 x{\\sub 1} = a{\\super 2} / b\\par\n"
                                    "\\pard\\plain Un testo con {\\b grassetto}.\\par\n"
                                    "\\pard\\plain\\li400{\\b y} = {\\i z}  \\par\n");
    EXPECT_EQ(f.simbolo, "x{1}");
    EXPECT_EQ(f.descrizione, "La cosa");
    EXPECT_EQ(f.formula, "x{1} = a^{2} / b\ny = z");
}

TEST(FormuleRelazione, SignsOfAPageAreThoseOfTheText) {
    const FormulaQuantita f =
        Letta(std::string(titolo) + "\\pard\\plain\\li567 a < b > c & \"d\" < &lt; e\\par\n");
    EXPECT_EQ(f.formula, "a < b > c & \"d\" < &lt; e");
}

TEST(FormuleRelazione, ASignThatReadsAsAnotherStaysOne) {
    for (const char* text : {"&amp; a &amp;amp; b", "&& &&", "<<&gt;>>"})
        EXPECT_EQ(Letta(std::string(titolo) + "\\pard\\plain\\li567 " + text + "\\par\n").formula, text);
}

TEST(FormuleRelazione, WhatIsNotThereIsEmpty) {
    EXPECT_FALSE(FormulaDi(File(titolo), "r"));
    EXPECT_FALSE(FormulaDi("", "q"));
    const FormulaQuantita alone = Letta(titolo);
    EXPECT_EQ(alone.simbolo, "x{1}");
    EXPECT_EQ(alone.formula, "");
    const FormulaQuantita none = Letta("\\pard\\plain solo testo\\par\n");
    EXPECT_EQ(none.simbolo + none.descrizione + none.formula, "");
    const FormulaQuantita formula = Letta("\\pard\\plain\\li567 a = b\\par\n");
    EXPECT_EQ(formula.formula, "a = b");
    EXPECT_EQ(formula.simbolo, "");
}

// All blocks of the file that goes with the program.
TEST(FormuleRelazione, AreThoseOfTheFile) {
    std::ifstream file(SAGOMI_CATALOGUE_DATA "/../FormuleGiunto.rtf", std::ios::binary);
    const std::string rtf{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    std::string text;
    std::set<std::string> seen;
    const std::regex tag("ID-RTF-GIUNTO-(\\S+)");
    for (std::sregex_iterator i(rtf.begin(), rtf.end(), tag), end; i != end; ++i) {
        const std::string id = (*i)[1];
        if (!seen.insert(id).second)
            continue;
        const auto f = FormulaDi(rtf, id);
        ASSERT_TRUE(f) << id;
        EXPECT_FALSE(f->simbolo.empty()) << id;
        text += id + ": " + f->simbolo + " | " + f->descrizione + "\n" + f->formula + "\n";
    }
    EXPECT_GT(seen.size(), 60U);
    prove::ConfrontaApprovato("report/formule.txt", text);
}

} // namespace
