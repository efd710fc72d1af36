#include "catalogue/CartellaLavoro.h"

#include <gmock/gmock.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <optional>
#include <stdexcept>

#include "frame/Ambiente.h"
#include "frame/Cartelle.h"

using namespace sagomi;
using prove::LeggeByte;
using prove::ScriveByte;
using testing::HasSubstr;

namespace fs = std::filesystem;

namespace {

/// A variable of the environment with another value, or none, while it lives.
class ConVariabile {
public:
    ConVariabile(const char* nome, const std::optional<std::string>& valore) : nome_(nome) {
        if (const char* ora = std::getenv(nome))
            prima_ = ora;
        Mette(valore);
    }
    ~ConVariabile() { Mette(prima_); }
    ConVariabile(const ConVariabile&) = delete;
    ConVariabile& operator=(const ConVariabile&) = delete;

private:
    void Mette(const std::optional<std::string>& valore) {
        if (valore)
            setenv(nome_, valore->c_str(), 1);
        else
            unsetenv(nome_);
    }
    const char* nome_;
    std::optional<std::string> prima_;
};

/// While it lives no file can grow beyond a few bytes: a disk that refuses.
class DiscoPieno {
public:
    explicit DiscoPieno(rlim_t massimo) {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &prima_);
        rlimit stretto = prima_;
        stretto.rlim_cur = massimo;
        setrlimit(RLIMIT_FSIZE, &stretto);
    }
    ~DiscoPieno() { setrlimit(RLIMIT_FSIZE, &prima_); }
    DiscoPieno(const DiscoPieno&) = delete;
    DiscoPieno& operator=(const DiscoPieno&) = delete;

private:
    rlimit prima_{};
};

/// A program in bin with its files in share/sagomi, and a user's home beside.
class CartellaLavoroTest : public testing::Test {
protected:
    CartellaLavoroTest() {
        fs::create_directories(bin);
        fs::create_directories(share);
        fs::create_directories(casa);
        ScriveByte(share / "Sagomi.xls", "standard 1");
        ScriveByte(share / "SagomiUtente.xls", "vuota");
        ScriveByte(share / "Sagomi.hlp", "guida");
    }

    /// Another version of the package.
    void Aggiorna(std::string_view standard) const {
        fs::remove(share / "Sagomi.xls");
        ScriveByte(share / "Sagomi.xls", standard);
        fs::last_write_time(share / "Sagomi.xls",
                            fs::last_write_time(share / "Sagomi.xls") + std::chrono::seconds(7));
    }

    [[nodiscard]] std::string Standard() const { return LeggeByte(dati / "Sagomi.xls"); }

    void ScriveConfigurazione(std::string_view nome, std::string_view byte) const {
        fs::create_directories(configurazione);
        ScriveByte(configurazione / nome, byte);
    }

    prove::CartellaDiProva dir;
    fs::path bin = dir.percorso / "usr" / "bin", share = dir.percorso / "usr" / "share" / "sagomi";
    fs::path casa = dir.percorso / "casa di Niccolò";
    fs::path dati = casa / ".local" / "share" / "sagomi", configurazione = casa / ".config" / "Sagomi";
    ConVariabile home{"HOME", casa.string()}, xdgDati{"XDG_DATA_HOME", {}},
        xdgConfigurazione{"XDG_CONFIG_HOME", {}};
};

TEST_F(CartellaLavoroTest, AProgramWithItsFilesBesideItWorksThere) {
    ScriveByte(bin / "Sagomi.xls", "standard");
    const CartellaLavoro c = ApreCartellaLavoro(bin);
    EXPECT_EQ(c.lavoro, bin);
    EXPECT_EQ(c.installazione, bin);
    EXPECT_EQ(c.avviso, "");
    EXPECT_FALSE(fs::exists(dati));
}

TEST_F(CartellaLavoroTest, AnInstalledProgramMakesTheUsersFolderAtItsFirstStart) {
    const CartellaLavoro c = ApreCartellaLavoro(bin);
    EXPECT_EQ(c.lavoro, dati);
    EXPECT_EQ(c.installazione, share);
    EXPECT_EQ(c.avviso, "");
    EXPECT_EQ(Standard(), "standard 1");
    EXPECT_EQ(LeggeByte(dati / "SagomiUtente.xls"), "vuota");
    EXPECT_FALSE(fs::exists(dati / "Sagomi.hlp")) << "what is only read stays where it was installed";
}

TEST_F(CartellaLavoroTest, TheVariableOfTheDesktopChoosesTheDataFolder) {
    const ConVariabile altra("XDG_DATA_HOME", (dir.percorso / "dati").string());
    EXPECT_EQ(ApreCartellaLavoro(bin).lavoro, dir.percorso / "dati" / "sagomi");
}

TEST_F(CartellaLavoroTest, ARelativePathInTheVariableDoesNotCount) {
    const ConVariabile altra("XDG_DATA_HOME", "dati"), vuota("XDG_CONFIG_HOME", "");
    EXPECT_EQ(ApreCartellaLavoro(bin).lavoro, dati);
    EXPECT_FALSE(fs::exists("dati"));
    EXPECT_EQ(CartellaConfigurazioneUtente(), casa / ".config");
}

TEST_F(CartellaLavoroTest, AUserWithoutAHomeReadsTheInstalledFiles) {
    const ConVariabile senza("HOME", {});
    const CartellaLavoro c = ApreCartellaLavoro(bin);
    EXPECT_EQ(c.lavoro, share);
    EXPECT_THAT(c.avviso, HasSubstr("l'utente non ha una cartella propria"));
    EXPECT_FALSE(fs::exists(".local/share/sagomi"));
}

TEST_F(CartellaLavoroTest, ANewerStandardWorkbookIsTakenOver) {
    ApreCartellaLavoro(bin);
    fs::permissions(dati / "Sagomi.xls", fs::perms::owner_read); // as the first screen leaves it
    Aggiorna("standard 2");
    ApreCartellaLavoro(bin);
    EXPECT_EQ(Standard(), "standard 2");
    Aggiorna("standard 3");
    ApreCartellaLavoro(bin);
    EXPECT_EQ(Standard(), "standard 3");
}

TEST_F(CartellaLavoroTest, AWorkbookThatTheUserHasChangedStays) {
    ApreCartellaLavoro(bin);
    ScriveByte(dati / "Sagomi.xls", "con le mie righe");
    ApreCartellaLavoro(bin);
    EXPECT_EQ(Standard(), "con le mie righe");
    for (const char* versione : {"standard 2", "standard 3"}) {
        Aggiorna(versione);
        ApreCartellaLavoro(bin);
        EXPECT_EQ(Standard(), "con le mie righe");
    }
    fs::remove(dati / "Sagomi.xls");
    ApreCartellaLavoro(bin);
    EXPECT_EQ(Standard(), "standard 3") << "one that is gone comes anew";
    Aggiorna("standard 4");
    ApreCartellaLavoro(bin);
    EXPECT_EQ(Standard(), "standard 4");
}

TEST_F(CartellaLavoroTest, AWorkbookOfUnknownOriginIsTheUsers) {
    fs::create_directories(dati);
    ScriveByte(dati / "Sagomi.xls", "portata da altrove");
    ScriveByte(dati / ".Sagomi.xls.copia", "non si legge\n");
    ApreCartellaLavoro(bin);
    EXPECT_EQ(Standard(), "portata da altrove");
}

// Nothing is waited for, and what is unknown of the copy makes it the user's.
TEST_F(CartellaLavoroTest, APipeOrALongFileInPlaceOfTheRegisterHoldsNoStartUp) {
    const fs::path registro = dati / ".Sagomi.xls.copia";
    ApreCartellaLavoro(bin);
    fs::remove(registro);
    ASSERT_EQ(mkfifo(registro.c_str(), 0600), 0);
    Aggiorna("standard 2");
    EXPECT_EQ(ApreCartellaLavoro(bin).avviso, "");
    EXPECT_EQ(Standard(), "standard 1");
    fs::remove(registro);
    ScriveByte(registro, "");
    fs::resize_file(registro, std::uintmax_t{2} << 30U); // without blocks on the disk
    EXPECT_EQ(ApreCartellaLavoro(bin).avviso, "");
    EXPECT_EQ(Standard(), "standard 1");
    EXPECT_LT(fs::file_size(registro), 1000U) << "written anew";
}

// 16 MB are read, one byte more is not: then nothing is known of the copy.
TEST_F(CartellaLavoroTest, ARegisterIsReadUpTo16Megabytes) {
    const fs::path registro = dati / ".Sagomi.xls.copia";
    ApreCartellaLavoro(bin);
    fs::resize_file(registro, std::uintmax_t{16} << 20U);
    Aggiorna("standard 2");
    ApreCartellaLavoro(bin);
    EXPECT_EQ(Standard(), "standard 2");
    fs::resize_file(registro, (std::uintmax_t{16} << 20U) + 1);
    Aggiorna("standard 3");
    ApreCartellaLavoro(bin);
    EXPECT_EQ(Standard(), "standard 2");
}

// The copy has been renewed, but not what is known of it: the next version is taken over all the same.
TEST_F(CartellaLavoroTest, ATakeOverThatWasInterruptedIsFinished) {
    ApreCartellaLavoro(bin);
    const std::string prima = LeggeByte(dati / ".Sagomi.xls.copia");
    Aggiorna("standard 2");
    ApreCartellaLavoro(bin);
    ScriveByte(dati / ".Sagomi.xls.copia", prima);
    ApreCartellaLavoro(bin);
    Aggiorna("standard 3");
    ApreCartellaLavoro(bin);
    EXPECT_EQ(Standard(), "standard 3");
}

TEST_F(CartellaLavoroTest, WhatTheUserHadInHisConfigurationFolderMoves) {
    ScriveConfigurazione("Sagomi.ini", "impostazioni");
    ScriveConfigurazione("SagomiUtente.xls", "sezioni");
    ScriveConfigurazione("stato.ini", "finestre");
    ApreCartellaLavoro(bin);
    EXPECT_EQ(LeggeByte(dati / "Sagomi.ini"), "impostazioni");
    EXPECT_EQ(LeggeByte(dati / "SagomiUtente.xls"), "sezioni");
    EXPECT_FALSE(fs::exists(configurazione / "Sagomi.ini"));
    EXPECT_FALSE(fs::exists(configurazione / "SagomiUtente.xls"));
    EXPECT_EQ(LeggeByte(configurazione / "stato.ini"), "finestre");
    ScriveConfigurazione("SagomiUtente.xls", "altre");
    ApreCartellaLavoro(bin);
    EXPECT_EQ(LeggeByte(dati / "SagomiUtente.xls"), "sezioni") << "what he works with is not written over";
    EXPECT_EQ(LeggeByte(configurazione / "SagomiUtente.xls"), "altre");
}

TEST_F(CartellaLavoroTest, AnInstallationInTheUsersDataFolderIsTheWorkingFolder) {
    const ConVariabile altra("XDG_DATA_HOME", (dir.percorso / "usr" / "share").string());
    ScriveByte(share / "SagomiUtente-vuota.xls", "vuota");
    ScriveConfigurazione("SagomiUtente.xls", "sezioni");
    EXPECT_EQ(ApreCartellaLavoro(bin).lavoro, share);
    EXPECT_EQ(LeggeByte(share / "SagomiUtente.xls"), "sezioni");
    EXPECT_FALSE(fs::exists(share / ".Sagomi.xls.copia"));
}

// An older program, or a backup, puts its files into the configuration folder again.
TEST_F(CartellaLavoroTest, WhatTheUserWorksWithInSuchAnInstallationIsNeverReplaced) {
    const ConVariabile altra("XDG_DATA_HOME", (dir.percorso / "usr" / "share").string());
    ScriveByte(share / "SagomiUtente-vuota.xls", "vuota");
    ApreCartellaLavoro(bin);
    ScriveByte(share / "SagomiUtente.xls", "le mie sezioni");
    ScriveByte(share / "Sagomi.ini", "le mie impostazioni");
    ScriveConfigurazione("SagomiUtente.xls", "vecchie sezioni");
    ScriveConfigurazione("Sagomi.ini", "vecchie impostazioni");
    EXPECT_EQ(ApreCartellaLavoro(bin).avviso, "");
    EXPECT_EQ(LeggeByte(share / "SagomiUtente.xls"), "le mie sezioni");
    EXPECT_EQ(LeggeByte(share / "Sagomi.ini"), "le mie impostazioni");
    EXPECT_EQ(LeggeByte(configurazione / "SagomiUtente.xls"), "vecchie sezioni");
    EXPECT_EQ(LeggeByte(configurazione / "Sagomi.ini"), "vecchie impostazioni");
}

// As long as the one without rows, but another.
TEST_F(CartellaLavoroTest, AWorkbookOfTheSameLengthIsNotTheEmptyOne) {
    const ConVariabile altra("XDG_DATA_HOME", (dir.percorso / "usr" / "share").string());
    ScriveByte(share / "SagomiUtente-vuota.xls", "vuota");
    ApreCartellaLavoro(bin);
    ScriveByte(share / "SagomiUtente.xls", "piena");
    ScriveConfigurazione("SagomiUtente.xls", "vecchie sezioni");
    EXPECT_EQ(ApreCartellaLavoro(bin).avviso, "");
    EXPECT_EQ(LeggeByte(share / "SagomiUtente.xls"), "piena");
}

TEST_F(CartellaLavoroTest, AWorkbookThatCannotBeToldFromTheInstalledOneStays) {
    const ConVariabile altra("XDG_DATA_HOME", (dir.percorso / "usr" / "share").string());
    ScriveConfigurazione("SagomiUtente.xls", "vecchie sezioni");
    ApreCartellaLavoro(bin);
    EXPECT_EQ(LeggeByte(share / "SagomiUtente.xls"), "vuota");
    EXPECT_EQ(LeggeByte(configurazione / "SagomiUtente.xls"), "vecchie sezioni");
}

TEST_F(CartellaLavoroTest, TheFirstStartBesideTheProgramMakesTheUsersWorkbook) {
    ScriveByte(bin / "Sagomi.xls", "standard");
    ScriveByte(bin / "SagomiUtente-vuota.xls", "senza righe");
    {
        const DiscoPieno disco(4);
        EXPECT_EQ(ApreCartellaLavoro(bin).avviso, "Non è possibile creare " +
                                                      (bin / "SagomiUtente.xls").string() +
                                                      ":\r\nil disco non ha accettato i dati");
    }
    EXPECT_EQ(ApreCartellaLavoro(bin).avviso, "");
    EXPECT_EQ(LeggeByte(bin / "SagomiUtente.xls"), "senza righe");
    ScriveByte(bin / "SagomiUtente.xls", "le mie sezioni");
    ApreCartellaLavoro(bin);
    EXPECT_EQ(LeggeByte(bin / "SagomiUtente.xls"), "le mie sezioni");
}

TEST_F(CartellaLavoroTest, AnInstallationWithTheEmptyWorkbookAloneFillsTheUsersFolder) {
    fs::remove(share / "SagomiUtente.xls");
    ScriveByte(share / "SagomiUtente-vuota.xls", "senza righe");
    ApreCartellaLavoro(bin);
    EXPECT_EQ(LeggeByte(dati / "SagomiUtente.xls"), "senza righe");
    EXPECT_FALSE(fs::exists(dati / "SagomiUtente-vuota.xls"));
    ApreCartellaLavoro(bin, dir.percorso / "scelta");
    EXPECT_EQ(LeggeByte(dir.percorso / "scelta" / "SagomiUtente.xls"), "senza righe");
}

TEST_F(CartellaLavoroTest, AChosenFolderIsMadeAndFilled) {
    const fs::path scelta = dir.percorso / "lavori" / "capannone";
    ScriveConfigurazione("Sagomi.ini", "impostazioni");
    const CartellaLavoro c = ApreCartellaLavoro(bin, scelta);
    EXPECT_EQ(c.lavoro, scelta);
    EXPECT_EQ(c.installazione, share);
    EXPECT_EQ(LeggeByte(scelta / "Sagomi.xls"), "standard 1");
    EXPECT_FALSE(fs::exists(scelta / "Sagomi.ini")) << "the user's own folder keeps its settings";
    EXPECT_TRUE(fs::exists(configurazione / "Sagomi.ini"));
    EXPECT_FALSE(fs::exists(dati));
}

TEST_F(CartellaLavoroTest, AChosenFolderThatCannotBeUsedIsToldWithItsReason) {
    const auto motivo = [&](const fs::path& scelta) {
        try {
            ApreCartellaLavoro(bin, scelta);
        } catch (const std::runtime_error& e) {
            return std::string(e.what());
        }
        return std::string("nessun errore");
    };
    const fs::path file = dir.percorso / "testo";
    ScriveByte(file, "");
    EXPECT_EQ(motivo(file),
              "la cartella " + file.string() + " non si può usare: " + file.string() + " non è una cartella");
    fs::permissions(file, fs::perms(0755)); // as a folder has them
    EXPECT_THAT(motivo(file), HasSubstr("non è una cartella"));
    EXPECT_EQ(motivo(file / "sotto" / "ancora"), "la cartella " + (file / "sotto" / "ancora").string() +
                                                     " non si può usare: " + file.string() +
                                                     " non è una cartella");
    EXPECT_THAT(motivo("/proc/sagomi"), HasSubstr("la cartella /proc/sagomi non si può usare: "));
}

TEST_F(CartellaLavoroTest, AFullDiskLeavesTheInstalledFilesInUse) {
    const DiscoPieno disco(4);
    const CartellaLavoro c = ApreCartellaLavoro(bin);
    EXPECT_EQ(c.lavoro, share);
    EXPECT_EQ(c.avviso, "Non è possibile usare la cartella dei dati " + dati.string() +
                            ":\r\nil disco non ha accettato i dati\r\n"
                            "Impostazioni e sagomi dell'utente non si possono conservare.");
    EXPECT_THROW(ApreCartellaLavoro(bin, dir.percorso / "scelta"), std::runtime_error);
    EXPECT_FALSE(fs::exists(dati / "Sagomi.xls")) << "nothing by halves";
}

TEST_F(CartellaLavoroTest, AFullDiskLosesNothingOfWhatWasToMove) {
    ScriveConfigurazione("SagomiUtente.xls", "molte sezioni");
    {
        const DiscoPieno disco(10); // room for what is empty
        EXPECT_NE(ApreCartellaLavoro(bin).avviso, "");
    }
    EXPECT_EQ(LeggeByte(configurazione / "SagomiUtente.xls"), "molte sezioni");
    ApreCartellaLavoro(bin);
    EXPECT_EQ(LeggeByte(dati / "SagomiUtente.xls"), "molte sezioni");
}

TEST_F(CartellaLavoroTest, AFullDiskKeepsTheCopyOfAnOlderVersion) {
    ApreCartellaLavoro(bin);
    Aggiorna("standard 2");
    {
        const DiscoPieno disco(4);
        const CartellaLavoro c = ApreCartellaLavoro(bin);
        EXPECT_EQ(c.lavoro, dati);
        EXPECT_EQ(c.avviso, "");
        EXPECT_EQ(Standard(), "standard 1");
    }
    ApreCartellaLavoro(bin);
    EXPECT_EQ(Standard(), "standard 2");
}

/// Rights mean nothing to root; run by another user, see tests/utente.sh.
class CartellaLavoroPermessi : public CartellaLavoroTest {
protected:
    void SetUp() override {
        if (geteuid() == 0)
            GTEST_SKIP() << "root writes everywhere";
    }
    void TearDown() override {
        for (const fs::path& cartella : {bin, casa, dir.percorso})
            fs::permissions(cartella, fs::perms::owner_all);
    }
    static void SolaLettura(const fs::path& cartella) {
        fs::permissions(cartella, fs::perms::owner_read | fs::perms::owner_exec);
    }
};

TEST_F(CartellaLavoroPermessi, AProgramWhoseFolderIsReadOnlyWorksInTheUsersFolder) {
    ScriveByte(bin / "Sagomi.xls", "accanto");
    SolaLettura(bin);
    const CartellaLavoro c = ApreCartellaLavoro(bin);
    EXPECT_EQ(c.lavoro, dati);
    EXPECT_EQ(c.installazione, bin);
    EXPECT_EQ(Standard(), "accanto");
}

TEST_F(CartellaLavoroPermessi, AHomeThatIsReadOnlyLeavesTheInstalledFilesInUse) {
    SolaLettura(casa);
    const CartellaLavoro c = ApreCartellaLavoro(bin);
    EXPECT_EQ(c.lavoro, share);
    EXPECT_THAT(c.avviso, HasSubstr(":\r\nnella cartella non è permesso scrivere\r\n"));
}

TEST_F(CartellaLavoroPermessi, AChosenFolderThatIsReadOnlyIsRefused) {
    SolaLettura(casa);
    EXPECT_THROW(ApreCartellaLavoro(bin, casa), std::runtime_error);
    EXPECT_THROW(ApreCartellaLavoro(bin, casa / "nuova"), std::runtime_error);
}

} // namespace
