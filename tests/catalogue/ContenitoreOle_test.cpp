#include "catalogue/ContenitoreOle.h"

#include <stdexcept>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "frame/Ambiente.h"

using namespace sagomi;

namespace {

TEST(ContenitoreOle, HoldsTheStreamByteForByte) {
    const prove::CartellaDiProva dir;
    for (const std::size_t n : {std::size_t{1}, std::size_t{4095}, std::size_t{4096}, std::size_t{100000}}) {
        std::vector<std::uint8_t> dati(n);
        for (std::size_t i = 0; i < n; ++i)
            dati[i] = static_cast<std::uint8_t>(i * 31 + i / 251);
        const std::string byte = ContenitoreOle("Workbook", dati);
        EXPECT_EQ(byte.substr(0, 8), "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1");
        prove::ScriveByte(dir.percorso / "a.xls", byte);
        EXPECT_EQ(LeggiFlussoOle(dir.percorso / "a.xls", {"Workbook", "Book"}), dati);
        EXPECT_EQ(LeggiFlussoOle(dir.percorso / "a.xls", {"Book", "Workbook"}), dati);
    }
}

TEST(LeggiFlussoOle, TellsWhatIsWrong) {
    const prove::CartellaDiProva dir;
    const auto file = dir.percorso / "a.xls";
    const auto leggi = [&] { LeggiFlussoOle(file, {"Workbook"}); };
    EXPECT_THAT(leggi, testing::ThrowsMessage<std::runtime_error>("il file non si apre"));
    prove::ScriveByte(file, "testo");
    EXPECT_THAT(leggi,
                testing::ThrowsMessage<std::runtime_error>("il file non è una cartella di lavoro .xls"));
    prove::ScriveByte(file, ContenitoreOle("Altro", {1, 2, 3}));
    EXPECT_THAT(leggi,
                testing::ThrowsMessage<std::runtime_error>("il file non contiene una cartella di lavoro"));
}

TEST(ContenitoreOle, SameBytesForTheSameStream) {
    const std::vector<std::uint8_t> dati(5000, 7);
    EXPECT_EQ(ContenitoreOle("Workbook", dati), ContenitoreOle("Workbook", dati));
}

} // namespace
