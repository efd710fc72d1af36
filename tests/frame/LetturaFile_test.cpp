#include "frame/LetturaFile.h"

#include <fcntl.h>
#include <stdexcept>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Ambiente.h"
#include "frame/Disco.h"

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

// The system says 4096 and gives less.
TEST_F(LeggeFileTest, AFileThatEndsEarlyIsWhatItGives) {
    file = "/sys/devices/system/cpu/online";
    std::error_code errore;
    if (std::filesystem::file_size(file, errore) != 4096 || errore)
        GTEST_SKIP() << "no such file here";
    const FileLetto letto = LeggeFile(file, 4096);
    EXPECT_GT(letto.byte.size(), 1U);
    EXPECT_LT(letto.byte.size(), 100U);
    EXPECT_EQ(letto.byte.back(), '\n');
}

/// Leaves the standard input, which has the number 0, closed while it lives.
class SenzaIngresso {
public:
    SenzaIngresso() : copia_(dup(0)) { close(0); }
    ~SenzaIngresso() {
        if (copia_ < 0)
            return;
        dup2(copia_, 0);
        close(copia_);
    }
    SenzaIngresso(const SenzaIngresso&) = delete;
    SenzaIngresso& operator=(const SenzaIngresso&) = delete;

private:
    int copia_;
};

TEST_F(LeggeFileTest, WithoutAStandardInputFilesAreReadAllTheSame) {
    prove::ScriveByte(file, "abc");
    const SenzaIngresso senza;
    EXPECT_THAT(LeggeFile(file, 3).byte, ElementsAre('a', 'b', 'c'));
    DiscoInUso().SvuotaCartella(dir.percorso);
    EXPECT_EQ(fcntl(0, F_GETFD), -1) << "what was opened is closed again";
}

} // namespace
