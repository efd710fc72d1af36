#include "catalogue/ContenitoreOle.h"

#include <stdexcept>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace sagomi;

namespace {

std::vector<std::uint8_t> Letto(const std::string& byte, std::initializer_list<const char*> nomi) {
    return LeggeFlussoOle({reinterpret_cast<const std::uint8_t*>(byte.data()), byte.size()}, nomi);
}

TEST(ContenitoreOle, HoldsTheStreamByteForByte) {
    for (const std::size_t n : {std::size_t{1}, std::size_t{4095}, std::size_t{4096}, std::size_t{100000}}) {
        std::vector<std::uint8_t> dati(n);
        for (std::size_t i = 0; i < n; ++i)
            dati[i] = static_cast<std::uint8_t>(i * 31 + i / 251);
        const std::string byte = ContenitoreOle("Workbook", dati);
        EXPECT_EQ(byte.substr(0, 8), "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1");
        EXPECT_EQ(Letto(byte, {"Workbook", "Book"}), dati);
        EXPECT_EQ(Letto(byte, {"Book", "Workbook"}), dati);
    }
}

TEST(LeggeFlussoOle, TellsWhatIsWrong) {
    const auto con = [](const std::string& byte) { return [byte] { Letto(byte, {"Workbook"}); }; };
    using testing::ThrowsMessage;
    for (const char* byte : {"", "testo"})
        EXPECT_THAT(con(byte),
                    ThrowsMessage<std::runtime_error>("il file non è una cartella di lavoro .xls"));
    EXPECT_THAT(con(ContenitoreOle("Altro", {1, 2, 3})),
                ThrowsMessage<std::runtime_error>("il file non contiene una cartella di lavoro"));
}

/// The length of the stream stands in its entry of the directory, 120 bytes behind its name.
TEST(LeggeFlussoOle, StreamLongerThanItsFile) {
    std::string byte = ContenitoreOle("Workbook", std::vector<std::uint8_t>(5000, 1));
    const std::string nome("W\0o\0r\0k\0b\0o\0o\0k\0", 16);
    const std::size_t voce = byte.find(nome);
    ASSERT_NE(voce, std::string::npos);
    byte.replace(voce + 120, 4, std::string("\0\0\0\x70", 4));
    const auto legge = [&] { Letto(byte, {"Workbook"}); };
    EXPECT_THAT(legge, testing::ThrowsMessage<std::runtime_error>(testing::HasSubstr("cartella di lavoro")));
}

TEST(ContenitoreOle, SameBytesForTheSameStream) {
    const std::vector<std::uint8_t> dati(5000, 7);
    EXPECT_EQ(ContenitoreOle("Workbook", dati), ContenitoreOle("Workbook", dati));
}

} // namespace
