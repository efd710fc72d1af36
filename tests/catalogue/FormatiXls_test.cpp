#include "catalogue/FormatiXls.h"

#include <gtest/gtest.h>

using namespace sagomi;

namespace {

TEST(GenereFormato, TheFormatsThatEveryWorkbookHas) {
    for (const unsigned n : {0U, 1U, 2U, 10U, 13U, 23U, 44U, 48U, 49U, 164U})
        EXPECT_EQ(GenereFormato(n), GenereNumero::Semplice) << n;
    for (const unsigned n : {14U, 15U, 16U, 17U})
        EXPECT_EQ(GenereFormato(n), GenereNumero::Data) << n;
    for (const unsigned n : {18U, 19U, 20U, 21U, 45U, 46U, 47U})
        EXPECT_EQ(GenereFormato(n), GenereNumero::Ora) << n;
    EXPECT_EQ(GenereFormato(22), GenereNumero::DataOra);
}

TEST(GenereFigura, DatesAndTimes) {
    for (const char* f : {"dd/mm/yyyy", "d", "\"x\"d", "\"\"d", "_xd", "\\xy", "*xm", "[Red]y", "d-mmm-yy",
                          "YYYY\\-MM\\-DD", "[$-410]d mmmm yyyy;@", "mmm-yy", "mmmm"})
        EXPECT_EQ(GenereFigura(f), GenereNumero::Data) << f;
    for (const char* f : {"h:mm", "hh:mm:ss", "[h]:mm", "mm:ss.0", "h:mm AM/PM", "[mm]"})
        EXPECT_NE(GenereFigura(f), GenereNumero::Semplice) << f;
    for (const char* f : {"[h]:mm", "h", "s", "[s]", "\"d\"s", "0\"y\"h", "a/p", "[mm]:ss"})
        EXPECT_EQ(GenereFigura(f), GenereNumero::Ora) << f;
    EXPECT_EQ(GenereFigura("h AM/PM"), GenereNumero::Ora);
    EXPECT_EQ(GenereFigura("dd/mm/yyyy hh:mm"), GenereNumero::DataOra);
}

TEST(GenereFigura, NumbersAndWhatOnlyLooksLikeADate) {
    for (const char* f : {"", "General", "0.00", "#,##0.00", "0.0E+00", "0\" days\"", "0.0\\h", "[Red]0.0",
                          "0_d", "*d0", "[<100]0.0;0", "0;dd", "\"y", "[", "[]0", "\\", "_"})
        EXPECT_EQ(GenereFigura(f), GenereNumero::Semplice) << f;
}

} // namespace
