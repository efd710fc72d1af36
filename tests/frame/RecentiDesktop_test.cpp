#include "frame/RecentiDesktop.h"

#include <gmock/gmock.h>
#include <sys/stat.h>

#include "frame/Ambiente.h"
#include "frame/GeneraleSagomi.h"

using namespace sagomi;
using prove::LeggeByte;
using prove::ScriveByte;
using testing::HasSubstr;
using testing::Not;

namespace fs = std::filesystem;

namespace {

class RecentiDesktopTest : public testing::Test {
protected:
    RecentiDesktopTest() { CartellaRecenti(dir.percorso); }
    ~RecentiDesktopTest() override { RipristinaGenerale(); }
    [[nodiscard]] std::string Lista() const { return LeggeByte(elenco); }
    prove::CartellaDiProva dir;
    fs::path elenco = dir.percorso / "recently-used.xbel";
};

TEST_F(RecentiDesktopTest, AFileEntersWithItsKindAndTheProgram) {
    RicordaNelDesktop("/lavori/di Niccolò/nodo.Gfl");
    EXPECT_THAT(Lista(), HasSubstr("href=\"file:///lavori/di%20Niccol%C3%B2/nodo.Gfl\""));
    EXPECT_THAT(Lista(), HasSubstr("application/x-sagomi-giunto"));
    EXPECT_THAT(Lista(), HasSubstr("name=\"Sagomi\""));
    EXPECT_EQ(fs::status(elenco).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    RicordaNelDesktop("/lavori/trave.sco");
    EXPECT_THAT(Lista(), HasSubstr("application/x-sagomi-trave"));
    EXPECT_THAT(Lista(), HasSubstr("nodo.Gfl")) << "the others stay";
    const fs::perms altri = fs::perms::owner_read | fs::perms::owner_write | fs::perms::others_read;
    fs::permissions(elenco, altri);
    RicordaNelDesktop("/lavori/altra.sco");
    EXPECT_EQ(fs::status(elenco).permissions(), altri) << "a list that is there keeps its rights";
}

TEST_F(RecentiDesktopTest, WhatIsNoFileOfOursAndNoListIsLeftAlone) {
    RicordaNelDesktop("/lavori/testo.txt");
    RicordaNelDesktop("relativo.gfl");
    EXPECT_FALSE(fs::exists(elenco));
    ScriveByte(elenco, "<xbel non finito");
    RicordaNelDesktop("/lavori/trave.sco");
    EXPECT_EQ(Lista(), "<xbel non finito");
    CartellaRecenti(dir.percorso / "manca");
    RicordaNelDesktop("/lavori/trave.sco");
    EXPECT_EQ(dir.Voci(), 1);
}

TEST_F(RecentiDesktopTest, APipeInItsPlaceIsNotWaitedFor) {
    ASSERT_EQ(mkfifo(elenco.c_str(), 0600), 0);
    RicordaNelDesktop("/lavori/trave.sco");
    EXPECT_TRUE(fs::is_fifo(elenco));
    EXPECT_EQ(dir.Voci(), 1);
}

TEST_F(RecentiDesktopTest, AListOfNoDesktopsLengthIsLeftAlone) {
    RicordaNelDesktop("/lavori/nodo.gfl");
    const std::string before = Lista();
    const std::string filled = before + std::string((16U << 20U) - before.size(), '\n');
    ScriveByte(elenco, filled);
    RicordaNelDesktop("/lavori/trave.sco");
    EXPECT_THAT(Lista(), HasSubstr("trave.sco")) << "16 MB are read";
    ScriveByte(elenco, filled + '\n');
    RicordaNelDesktop("/lavori/altra.sco");
    EXPECT_EQ(fs::file_size(elenco), filled.size() + 1);
}

TEST_F(RecentiDesktopTest, NothingIsKeptWhereNoFolderIsNamed) {
    RipristinaGenerale();
    RicordaNelDesktop("/lavori/trave.sco");
    EXPECT_EQ(dir.Voci(), 0);
    CartellaRecenti("."); // of a user without a home
    RicordaNelDesktop("/lavori/trave.sco");
    EXPECT_FALSE(fs::exists("recently-used.xbel"));
}

} // namespace
