#include "frame/Cartelle.h"

#include <gtest/gtest.h>

#include "Ambiente.h"

using namespace sagomi;
using prove::ScriveByte;

namespace fs = std::filesystem;

namespace {

TEST(Cartelle, FilesBesideTheProgramComeFirstThenThoseInstalled) {
    const prove::CartellaDiProva dir;
    const fs::path bin = dir.percorso / "bin";
    const fs::path share = dir.percorso / "share" / "sagomi";
    fs::create_directories(bin);
    fs::create_directories(share);
    EXPECT_EQ(CartellaFile(bin), bin) << "no workbook anywhere";
    ScriveByte(share / "Sagomi.xls", "");
    EXPECT_EQ(CartellaFile(bin), share);
    ScriveByte(bin / "SAGOMI.XLS", "");
    EXPECT_EQ(CartellaFile(bin), bin);
}

} // namespace
