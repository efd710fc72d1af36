#include "catalogue/CartellaXls.h"

#include <stdexcept>
#include <sys/stat.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "CartellaAMano.h"
#include "frame/Ambiente.h"

using namespace sagomi;
using prove::CartellaAMano;
using testing::ThrowsMessage;

namespace {

TEST(CartellaXls, SheetsAreReadWhenAskedFor) {
    CartellaXls c(
        CartellaAMano().Foglio(u"guasto").Numero(0, 300, 1).Foglio(u"IPE").Numero(0, 0, 7).Flusso());
    ASSERT_EQ(c.Fogli(), 2U);
    EXPECT_EQ(c.Nome(0), "guasto");
    const FoglioLetto ipe = c.Legge(1);
    EXPECT_EQ(ipe.Cella(0, 0)->Numero(), 7);
    const auto guasto = [&] { static_cast<void>(c.Legge(0)); };
    EXPECT_THAT(guasto, ThrowsMessage<std::runtime_error>(
                            "il foglio \"guasto\" è danneggiato (celle oltre la colonna 256)"));
    EXPECT_THROW(static_cast<void>(c.Legge(2)), std::out_of_range);
}

TEST(CartellaXls, HeadThatIsDamagedOrHasNoSheets) {
    const auto corta = [] { CartellaXls(std::vector<std::uint8_t>(3)); };
    EXPECT_THAT(corta, ThrowsMessage<std::runtime_error>("la cartella di lavoro è danneggiata (inizio)"));
    const auto vuota = [] { CartellaXls(CartellaAMano().Foglio(u"Grafico", 2).Flusso()); };
    EXPECT_THAT(vuota, ThrowsMessage<std::runtime_error>("la cartella di lavoro non ha fogli"));
}

/// 1,000 runs of 250 numbers, listed as 17 sheets at one place: 4,250,000 cells, of which each alone is well.
TEST(CartellaXls, FourMillionCellsInAllSheetsTogether) {
    CartellaAMano c;
    c.Foglio(u"0");
    for (unsigned r = 0; r < 1000; ++r) {
        Ottetti o = Ottetti().U16(r).U16(0);
        for (int i = 0; i < 250; ++i)
            o.U16(15).U32(2);
        c.Sciolto(Biff::MulRk, o.U16(249));
    }
    CartellaXls una(c.Flusso());
    for (int volta = 0; volta < 20; ++volta) // the same sheet again is not more
        EXPECT_EQ(una.Legge(0).Celle(), 250'000U);

    const auto flusso = c.Flusso();
    const auto posizione = LeggeTesta(flusso).fogli[0].posizione;
    CartellaAMano molti = c;
    for (int i = 1; i < 17; ++i) // each entry takes 13 bytes of the head
        molti.Testa(Biff::BoundSheet, Ottetti().U32(posizione + 16 * 13).U16(0).U8(1).U8(0).U8('x'));
    CartellaXls cartella(molti.Flusso());
    ASSERT_EQ(cartella.Fogli(), 17U);
    for (std::size_t i = 0; i < 16; ++i)
        EXPECT_EQ(cartella.Legge(i).Celle(), 250'000U);
    const auto ultimo = [&] { static_cast<void>(cartella.Legge(16)); };
    EXPECT_THAT(ultimo, ThrowsMessage<std::runtime_error>(testing::HasSubstr("4 milioni di celle")));
}

TEST(CartellaXls, FileKeepsItsState) {
    const prove::CartellaDiProva dir;
    const auto file = dir.percorso / "a.xls";
    prove::ScriveByte(file, CartellaAMano().Foglio(u"IPE").File());
    const CartellaXls c(file);
    EXPECT_EQ(c.Impronta(), ImprontaDi(file));
    EXPECT_NE(c.Impronta(), ImprontaFile{});
    EXPECT_EQ(c.Nome(0), "IPE");
}

TEST(CartellaXls, OnlyFilesOfAtMost64Megabytes) {
    const prove::CartellaDiProva dir;
    const auto file = dir.percorso / "a.xls";
    prove::ScriveByte(file, "");
    std::filesystem::resize_file(file, (std::uintmax_t{64} << 20U) + 1);
    EXPECT_THAT([&] { CartellaXls c(file); }, ThrowsMessage<std::runtime_error>("il file supera 64 MB"));
    std::filesystem::remove(file);
    ASSERT_EQ(mkfifo(file.c_str(), 0600), 0);
    EXPECT_THAT([&] { CartellaXls c(file); }, ThrowsMessage<std::runtime_error>("non è un file"));
}

} // namespace
