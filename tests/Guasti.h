#pragma once

#include <gtest/gtest.h>

#include <array>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace sagomi::prove {

/// A disk with room for a few bytes of each file, while it lives; for root, too.
class DiscoPieno {
public:
    explicit DiscoPieno(rlim_t byte) {
        getrlimit(RLIMIT_FSIZE, &prima_);
        segnale_ = std::signal(SIGXFSZ, SIG_IGN);
        const rlimit ora{byte, prima_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &ora);
    }
    ~DiscoPieno() {
        setrlimit(RLIMIT_FSIZE, &prima_);
        std::signal(SIGXFSZ, segnale_);
    }
    DiscoPieno(const DiscoPieno&) = delete;
    DiscoPieno& operator=(const DiscoPieno&) = delete;

private:
    rlimit prima_{};
    void (*segnale_)(int);
};

/// A folder in which nobody may write, while it lives; root is a user without rights meanwhile.
class CartellaChiusa {
public:
    explicit CartellaChiusa(std::filesystem::path cartella) : cartella_(std::move(cartella)) {
        namespace fs = std::filesystem;
        fs::permissions(cartella_, fs::perms(0555));
        const fs::path fine = fs::temp_directory_path();
        for (fs::path su = cartella_.parent_path(); su != fine && su != su.root_path(); su = su.parent_path())
            fs::permissions(su, fs::perms::group_exec | fs::perms::others_exec,
                            fs::perm_options::add); // to be reached by that user
        constexpr uid_t nessuno = 65534;
        root_ = geteuid() == 0 && setresuid(nessuno, nessuno, 0) == 0;
    }
    ~CartellaChiusa() {
        if (root_ && setresuid(0, 0, 0) != 0)
            std::abort();
        std::filesystem::permissions(cartella_, std::filesystem::perms(0755));
    }
    CartellaChiusa(const CartellaChiusa&) = delete;
    CartellaChiusa& operator=(const CartellaChiusa&) = delete;

private:
    std::filesystem::path cartella_;
    bool root_ = false;
};

/// Has a file written where it cannot be: on a full disk, into a folder that is closed, into one that has
/// gone. What stood there before still does.
/// @param cartella  to work in
/// @param scrive    writes to the file and looks for the reason in what is told
template <typename F>
void ConOgniGuasto(const std::filesystem::path& cartella, const std::string& nome, F&& scrive) {
    const std::filesystem::path dentro = cartella / "guasti";
    const std::filesystem::path file = dentro / nome;
    std::filesystem::create_directory(dentro);
    std::ofstream(file) << "prima";
    {
        const DiscoPieno pieno(16);
        scrive(file, "il disco ");
    }
    std::filesystem::remove(dentro / ("nuovo" + nome));
    {
        const CartellaChiusa chiusa(dentro);
        scrive(dentro / ("nuovo" + nome), "nella cartella non è permesso scrivere");
    }
    scrive(dentro / "manca" / nome, "la cartella non esiste");
    std::ifstream rimasto(file);
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(rimasto), {}), "prima");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(dentro), {}), 1) << "nothing half written";
}

/// What may stand where a file should.
enum class AlPosto { Niente, Cartella, Pipa };

inline constexpr std::array ogniAlPosto{AlPosto::Niente, AlPosto::Cartella, AlPosto::Pipa};

/// Puts it there; what a message says of it when the file is to be read, and when it is to be written.
inline void Mette(AlPosto cosa, const std::filesystem::path& file) {
    if (cosa == AlPosto::Cartella)
        std::filesystem::create_directory(file);
    if (cosa == AlPosto::Pipa)
        mkfifo(file.c_str(), 0600);
}
inline std::string MotivoAtteso(AlPosto cosa) {
    return cosa == AlPosto::Niente     ? "il file non esiste"
           : cosa == AlPosto::Cartella ? "è una cartella"
                                       : "non è un file di dati";
}

} // namespace sagomi::prove
