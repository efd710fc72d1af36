#include "frame/MotivoFile.h"

#include <gtest/gtest.h>

#include <fstream>
#include <unistd.h>

using namespace sagomi;

namespace {

namespace fs = std::filesystem;

class MotivoFileTest : public testing::Test {
protected:
    void SetUp() override { fs::create_directory(folder); }
    void TearDown() override { fs::remove_all(folder); }
    const fs::path folder = fs::temp_directory_path() / ("motivo_" + std::to_string(getpid()));
};

TEST_F(MotivoFileTest, AFolderThatIsNone) {
    EXPECT_EQ(AvvisoNonScritto("/manca/a.dxf"),
              "Non è possibile scrivere il file /manca/a.dxf:\r\nla cartella non esiste");
    std::ofstream(folder / "testo") << "x";
    EXPECT_EQ(MotivoNonScritto(folder / "testo" / "a.dxf"),
              (folder / "testo").string() + " non è una cartella");
}

TEST_F(MotivoFileTest, AFolderInThePlaceOfTheFile) {
    EXPECT_EQ(MotivoNonScritto(folder), "è una cartella");
    EXPECT_EQ(MotivoNonLetto(folder), "è una cartella");
    EXPECT_EQ(MotivoNonLetto("/dev/null"), "non è un file di dati");
}

TEST_F(MotivoFileTest, AFileThatIsNotThere) {
    EXPECT_EQ(AvvisoNonLetto(folder / "a.Gfl"),
              "Non è possibile leggere il file " + (folder / "a.Gfl").string() + ":\r\nil file non esiste");
}

TEST_F(MotivoFileTest, RightsThatAreMissing) {
    if (geteuid() == 0)
        GTEST_SKIP() << "root may write everything";
    std::ofstream(folder / "testo") << "x";
    fs::permissions(folder / "testo", fs::perms::none);
    EXPECT_EQ(MotivoNonScritto(folder / "testo"), "il file è di sola lettura");
    EXPECT_EQ(MotivoNonLetto(folder / "testo"), "il file non è leggibile da questo utente");
    fs::permissions(folder, fs::perms::owner_read | fs::perms::owner_exec);
    EXPECT_EQ(MotivoNonScritto(folder / "altro"), "nella cartella non è permesso scrivere");
    fs::permissions(folder, fs::perms::owner_all);
}

TEST_F(MotivoFileTest, ADiskThatRefuses) {
    EXPECT_EQ(MotivoNonScritto(folder / "a.txt"), "il disco non ha accettato i dati");
}

TEST_F(MotivoFileTest, AFileThatCanBeReadIsTooLargeOrNoneOfOurs) {
    std::ofstream(folder / "testo") << "x";
    EXPECT_EQ(MotivoNonLetto(folder / "testo"), "il file è troppo grande o non è un file di dati");
}

} // namespace
