#include "frame/Cartelle.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <optional>

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

/// A variable of the environment while it lives; nullptr for none.
class ConVariabile {
public:
    ConVariabile(const char* nome, const char* valore) : nome_(nome) {
        if (const char* prima = std::getenv(nome))
            prima_ = prima;
        Mette(valore);
    }
    ~ConVariabile() { Mette(prima_ ? prima_->c_str() : nullptr); }
    ConVariabile(const ConVariabile&) = delete;
    ConVariabile& operator=(const ConVariabile&) = delete;

private:
    void Mette(const char* valore) const {
        if (valore)
            setenv(nome_, valore, 1);
        else
            unsetenv(nome_);
    }
    const char* nome_;
    std::optional<std::string> prima_;
};

// The rules of the desktops: a variable counts where it names an absolute path.
TEST(Cartelle, TheUsersFoldersFollowTheEnvironment) {
    const ConVariabile casa("HOME", "/home/lucia");
    {
        const ConVariabile dati("XDG_DATA_HOME", "/altrove/dati");
        const ConVariabile configurazione("XDG_CONFIG_HOME", "relativa");
        EXPECT_EQ(CartellaDatiUtente(), "/altrove/dati");
        EXPECT_EQ(CartellaConfigurazioneUtente(), "/home/lucia/.config");
    }
    const ConVariabile dati("XDG_DATA_HOME", nullptr);
    EXPECT_EQ(CartellaDatiUtente(), "/home/lucia/.local/share");
    const ConVariabile senza("HOME", nullptr);
    EXPECT_EQ(CartellaDatiUtente(), ".local/share");
}

} // namespace
