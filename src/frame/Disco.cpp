#include "frame/Disco.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace sagomi {

int Disco::CreaTemporaneo(std::string& modello) { return mkostemp(modello.data(), O_CLOEXEC); }

void Disco::Permette(int fd, mode_t diritti) { static_cast<void>(fchmod(fd, diritti)); }

bool Disco::Scrive(int fd, std::string_view byte) {
    while (!byte.empty()) {
        const ssize_t scritti = write(fd, byte.data(), byte.size());
        if (scritti < 0 && errno == EINTR)
            continue;
        if (scritti <= 0)
            return false;
        byte.remove_prefix(static_cast<std::size_t>(scritti));
    }
    return true;
}

bool Disco::Svuota(int fd) { return fsync(fd) == 0; }

bool Disco::Chiude(int fd) { return close(fd) == 0; }

bool Disco::Rinomina(const std::string& da, const std::filesystem::path& a) {
    return std::rename(da.c_str(), a.c_str()) == 0;
}

void Disco::SvuotaCartella(const std::filesystem::path& cartella) {
    const int fd = open(cartella.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0)
        return;
    fsync(fd);
    close(fd);
}

void Disco::Toglie(const std::string& file) { unlink(file.c_str()); }

namespace {

Disco sistema;
Disco* inUso = &sistema;

} // namespace

Disco& DiscoInUso() { return *inUso; }

void CollegaDisco(Disco* disco) { inUso = disco == nullptr ? &sistema : disco; }

} // namespace sagomi
