#include "frame/FileAtomico.h"

#include <chrono>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "Ambiente.h"
#include "Guasti.h"
#include "frame/Disco.h"

using namespace sagomi;
using prove::DiscoPieno;
using prove::LeggeByte;
using prove::ScriveByte;

namespace fs = std::filesystem;

namespace {

class FileAtomicoTest : public testing::Test {
protected:
    prove::CartellaDiProva cartella;
    fs::path percorso = cartella.percorso / "dati.txt";
};

TEST_F(FileAtomicoTest, ReplacesTheOldFileAndLeavesNothingElse) {
    ScriveByte(percorso, "vecchio");
    EXPECT_TRUE(ScriveAtomico(percorso, std::string("nu\0ovo", 6)));
    EXPECT_EQ(LeggeByte(percorso), std::string("nu\0ovo", 6));
    EXPECT_EQ(cartella.Voci(), 1);
}

TEST_F(FileAtomicoTest, TheOldFileStaysUntilTheEnd) {
    ScriveByte(percorso, "vecchio");
    {
        FileAtomico file;
        ASSERT_TRUE(file.Apre(percorso));
        EXPECT_EQ(LeggeByte(percorso), "vecchio");
        EXPECT_EQ(cartella.Voci(), 2);
    }
    EXPECT_EQ(LeggeByte(percorso), "vecchio");
    EXPECT_EQ(cartella.Voci(), 1);
}

TEST_F(FileAtomicoTest, AFullDiskLosesNothing) {
    ScriveByte(percorso, "vecchio");
    FileAtomico file;
    ASSERT_TRUE(file.Apre(percorso));
    {
        const DiscoPieno pieno(10);
        EXPECT_FALSE(file.Conferma(std::string(1000, 'x')));
    }
    EXPECT_EQ(LeggeByte(percorso), "vecchio");
    EXPECT_EQ(cartella.Voci(), 1);
}

TEST_F(FileAtomicoTest, KeepsTheRightsOfTheOldFile) {
    ScriveByte(percorso, "vecchio");
    fs::permissions(percorso, fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
    ASSERT_TRUE(ScriveAtomico(percorso, "nuovo"));
    EXPECT_EQ(fs::status(percorso).permissions(),
              fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
}

TEST_F(FileAtomicoTest, ANewFileHasTheRightsOfAnyOther) {
    const mode_t maschera = umask(027);
    EXPECT_TRUE(ScriveAtomico(percorso, "nuovo"));
    umask(maschera);
    EXPECT_EQ(fs::status(percorso).permissions(),
              fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
}

TEST_F(FileAtomicoTest, WritesThroughALink) {
    ScriveByte(percorso, "vecchio");
    const fs::path legame = cartella.percorso / "legame.txt";
    fs::create_symlink(percorso, legame);
    EXPECT_TRUE(ScriveAtomico(legame, "nuovo"));
    EXPECT_TRUE(fs::is_symlink(legame));
    EXPECT_EQ(LeggeByte(percorso), "nuovo");
}

TEST_F(FileAtomicoTest, RefusesWhatIsNoFileToWrite) {
    FileAtomico file;
    EXPECT_FALSE(file.Apre(cartella.percorso));                     // a folder
    EXPECT_FALSE(file.Apre(cartella.percorso / "manca" / "x.txt")); // no such folder
    EXPECT_FALSE(file.Apre("/dev/null"));                           // a device must not be replaced
    EXPECT_FALSE(file.Apre(""));
    EXPECT_FALSE(file.Conferma("byte"));
    EXPECT_EQ(cartella.Voci(), 0);
}

TEST_F(FileAtomicoTest, RefusesAReadOnlyFile) {
    if (geteuid() == 0)
        GTEST_SKIP() << "root writes everything";
    ScriveByte(percorso, "vecchio");
    fs::permissions(percorso, fs::perms::owner_read);
    EXPECT_FALSE(ScriveAtomico(percorso, "nuovo"));
}

TEST_F(FileAtomicoTest, CanBeMoved) {
    FileAtomico primo;
    ASSERT_TRUE(primo.Apre(percorso));
    FileAtomico secondo(std::move(primo));
    FileAtomico terzo;
    ASSERT_TRUE(terzo.Apre(cartella.percorso / "altro.txt"));
    terzo = std::move(secondo); // gives up its own file
    EXPECT_TRUE(terzo.Conferma("nuovo"));
    EXPECT_EQ(LeggeByte(percorso), "nuovo");
    EXPECT_EQ(cartella.Voci(), 1);
}

TEST_F(FileAtomicoTest, ADanglingLinkIsFollowed) {
    const fs::path altrove = cartella.percorso / "altrove";
    fs::create_directory(altrove);
    fs::create_symlink("secondo.txt", percorso);
    fs::create_symlink(altrove / "nuovo.txt", cartella.percorso / "secondo.txt");
    ASSERT_TRUE(ScriveAtomico(percorso, "testo"));
    EXPECT_TRUE(fs::is_symlink(percorso));
    EXPECT_EQ(LeggeByte(altrove / "nuovo.txt"), "testo");
}

TEST_F(FileAtomicoTest, ALinkToItselfIsRefused) {
    fs::create_symlink("dati.txt", percorso);
    EXPECT_FALSE(ScriveAtomico(percorso, "testo"));
    EXPECT_TRUE(fs::is_symlink(percorso));
}

TEST_F(FileAtomicoTest, OwnTemporaryFilesOlderThanAnHourGo) {
    const auto vecchia = fs::file_time_type::clock::now() - std::chrono::minutes(61);
    for (const char* nome : {".dati.txt.abC12x", ".dati.txt.Recent", ".altri.txt.abC12x", ".dati.txt.lungo12",
                             ".dati.txt.ab-12x"})
        ScriveByte(cartella.percorso / nome, "x");
    for (const char* nome :
         {".dati.txt.abC12x", ".altri.txt.abC12x", ".dati.txt.lungo12", ".dati.txt.ab-12x"})
        fs::last_write_time(cartella.percorso / nome, vecchia);
    ASSERT_TRUE(ScriveAtomico(percorso, "testo"));
    EXPECT_FALSE(fs::exists(cartella.percorso / ".dati.txt.abC12x"));
    EXPECT_TRUE(fs::exists(cartella.percorso / ".dati.txt.Recent")) << "another run may be writing it";
    EXPECT_EQ(cartella.Voci(), 5) << "files of other names stay";
}

TEST_F(FileAtomicoTest, TheLastWordIsAskedBeforeTheOldFileGoes) {
    ScriveAtomico(percorso, "vecchio");
    EXPECT_FALSE(ScriveAtomico(percorso, "nuovo", [] { return false; }));
    EXPECT_THROW(ScriveAtomico(percorso, "nuovo", []() -> bool { throw std::runtime_error("no"); }),
                 std::runtime_error);
    EXPECT_EQ(LeggeByte(percorso), "vecchio");
    EXPECT_EQ(cartella.Voci(), 1);
    EXPECT_TRUE(ScriveAtomico(percorso, "nuovo", [] { return true; }));
    EXPECT_EQ(LeggeByte(percorso), "nuovo");
}

/// Writes down what a save asks of it; its files have the number 0, as after the standard input was closed.
class DiscoFinto : public Disco {
public:
    DiscoFinto() { CollegaDisco(this); }
    ~DiscoFinto() override { CollegaDisco(nullptr); }
    int CreaTemporaneo(std::string& /*modello*/) override { return 0; }
    void Permette(int /*fd*/, mode_t /*diritti*/) override {}
    bool Scrive(int fd, std::string_view byte) override { return Segna("scrive", fd, byte); }
    bool Svuota(int fd) override { return Segna("svuota", fd); }
    bool Chiude(int fd) override { return Segna("chiude", fd); }
    bool Rinomina(const std::string& da, const fs::path& a) override {
        passi.push_back("rinomina " + fs::path(da).filename().string() + " " + a.filename().string());
        return true;
    }
    void SvuotaCartella(const fs::path& /*cartella*/) override {}
    void Toglie(const std::string& file) override {
        passi.push_back("toglie " + fs::path(file).filename().string());
    }
    std::vector<std::string> passi;

private:
    bool Segna(const char* passo, int fd, std::string_view byte = {}) {
        passi.push_back(passo + std::string(" ") + std::to_string(fd) + std::string(byte));
        return true;
    }
};

TEST_F(FileAtomicoTest, AFileOfTheNumberZeroIsOneLikeAnyOther) {
    DiscoFinto disco;
    EXPECT_TRUE(ScriveAtomico(percorso, "testo"));
    EXPECT_EQ(disco.passi, (std::vector<std::string>{"scrive 0testo", "svuota 0", "chiude 0",
                                                     "rinomina .dati.txt.XXXXXX dati.txt"}));
    disco.passi.clear();
    {
        FileAtomico file;
        EXPECT_TRUE(file.Apre(percorso));
    }
    EXPECT_EQ(disco.passi, (std::vector<std::string>{"chiude 0", "toglie .dati.txt.XXXXXX"}));
}

// 40 links are followed, as the system does.
TEST_F(FileAtomicoTest, AChainOfLinksHasAnEnd) {
    const auto legame = [this](int i) { return cartella.percorso / ("legame" + std::to_string(i)); };
    fs::create_symlink(percorso, legame(1));
    for (int i = 2; i <= 41; ++i)
        fs::create_symlink(legame(i - 1), legame(i));
    EXPECT_FALSE(ScriveAtomico(legame(41), "testo"));
    EXPECT_FALSE(fs::exists(percorso));
    EXPECT_TRUE(ScriveAtomico(legame(40), "testo"));
    EXPECT_EQ(LeggeByte(percorso), "testo");
}

} // namespace
