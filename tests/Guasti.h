#pragma once

#include <array>
#include <csignal>
#include <filesystem>
#include <string>
#include <sys/resource.h>
#include <sys/stat.h>
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
