#include "frame/LetturaFile.h"

#include <stdexcept>
#include <sys/stat.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Ambiente.h"

using namespace sagomi;
using testing::ElementsAre;
using testing::ThrowsMessage;

namespace {

class LeggeFileTest : public testing::Test {
protected:
    auto Legge(std::size_t massimo) {
        return [this, massimo] { static_cast<void>(LeggeFile(file, massimo)); };
    }
    prove::CartellaDiProva dir;
    std::filesystem::path file = dir.percorso / "a";
};

TEST_F(LeggeFileTest, AllBytesAndTheState) {
    prove::ScriveByte(file, std::string("a\0b", 3));
    const FileLetto letto = LeggeFile(file, 3);
    EXPECT_THAT(letto.byte, ElementsAre('a', 0, 'b'));
    EXPECT_EQ(letto.impronta, ImprontaDi(file));
    EXPECT_EQ(letto.impronta.lunghezza, 3);
    prove::ScriveByte(file, "");
    EXPECT_TRUE(LeggeFile(file, 3).byte.empty());
    EXPECT_NE(letto.impronta, ImprontaDi(file));
}

TEST_F(LeggeFileTest, WhatIsNoFileOrTooLong) {
    EXPECT_THAT(Legge(10), ThrowsMessage<std::runtime_error>("il file non esiste"));
    EXPECT_EQ(ImprontaDi(file), ImprontaFile{});
    ASSERT_EQ(mkfifo(file.c_str(), 0600), 0);
    EXPECT_THAT(Legge(10), ThrowsMessage<std::runtime_error>("non è un file")); // does not wait for a writer
    std::filesystem::remove(file);
    std::filesystem::create_directory(file);
    EXPECT_THAT(Legge(10), ThrowsMessage<std::runtime_error>("non è un file"));
    file = "/dev/zero";
    EXPECT_THAT(Legge(10), ThrowsMessage<std::runtime_error>("non è un file"));
    file = dir.percorso / "b";
    prove::ScriveByte(file, "");
    std::filesystem::resize_file(file, (5U << 20U) + 1);
    EXPECT_THAT(Legge(5U << 20U), ThrowsMessage<std::runtime_error>("il file supera 5 MB"));
}

TEST_F(LeggeFileTest, AnotherFileInItsPlaceHasAnotherState) {
    prove::ScriveByte(file, "uno");
    const ImprontaFile prima = ImprontaDi(file);
    EXPECT_EQ(ImprontaDi(file), prima);
    prove::ScriveByte(dir.percorso / "nuovo", "due");
    std::filesystem::last_write_time(dir.percorso / "nuovo", std::filesystem::last_write_time(file));
    std::filesystem::rename(dir.percorso / "nuovo", file);
    EXPECT_NE(ImprontaDi(file), prima);
}

} // namespace
