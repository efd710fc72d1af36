#include "frame/LetturaFile.h"

#include <cerrno>
#include <fcntl.h>
#include <stdexcept>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace sagomi {

namespace {

/// A file that is open, to its end.
class Descrittore {
public:
    explicit Descrittore(const std::filesystem::path& file)
        : fd_(open(file.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY)) {
        if (fd_ < 0)
            throw std::runtime_error(errno == EACCES                       ? "accesso negato"
                                     : errno == ENOENT || errno == ENOTDIR ? "il file non esiste"
                                                                           : "il file non si apre");
    }
    ~Descrittore() { close(fd_); }
    Descrittore(const Descrittore&) = delete;
    Descrittore& operator=(const Descrittore&) = delete;

    [[nodiscard]] struct stat Stato() const {
        struct stat s {};
        if (fstat(fd_, &s) != 0)
            throw std::runtime_error("il file non si apre");
        return s;
    }

    /// Fills the bytes as far as the file goes; returns how many.
    std::size_t Legge(std::vector<std::uint8_t>& byte) const {
        std::size_t letti = 0;
        while (letti < byte.size()) {
            const ssize_t n = read(fd_, byte.data() + letti, byte.size() - letti);
            if (n < 0 && errno == EINTR)
                continue;
            if (n < 0)
                throw std::runtime_error("il disco non dà i dati");
            if (n == 0)
                break;
            letti += static_cast<std::size_t>(n);
        }
        return letti;
    }

private:
    int fd_;
};

ImprontaFile ImprontaDa(const struct stat& s) {
    return {s.st_dev, s.st_ino, s.st_size, s.st_mtim.tv_sec, s.st_mtim.tv_nsec};
}

} // namespace

ImprontaFile ImprontaDi(const std::filesystem::path& file) noexcept {
    struct stat s {};
    return stat(file.c_str(), &s) == 0 ? ImprontaDa(s) : ImprontaFile{};
}

FileLetto LeggeFile(const std::filesystem::path& file, std::size_t massimo) {
    const Descrittore descrittore(file);
    const struct stat s = descrittore.Stato();
    if (!S_ISREG(s.st_mode))
        throw std::runtime_error("non è un file");
    const auto lunghezza = static_cast<std::size_t>(s.st_size);
    if (lunghezza > massimo)
        throw std::runtime_error("il file supera " + std::to_string(massimo >> 20U) + " MB");
    FileLetto letto{std::vector<std::uint8_t>(lunghezza), ImprontaDa(s)};
    letto.byte.resize(descrittore.Legge(letto.byte));
    return letto;
}

} // namespace sagomi
