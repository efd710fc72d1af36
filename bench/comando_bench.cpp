// What a script waits for: the command line from exec to its end, beside an empty program, by turns; the time
// and, for busy machines, that of the processor. Prints medians in lines of tab-separated figures: name,
// unit, sagomi, peer, its figure.
//
//   misura_comando SAGOMI [STARTS]

#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/time.h>
#include <sys/wait.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>
#include <string>
#include <vector>

extern char** environ;

namespace {

using Argomenti = std::vector<std::string>;

/// Milliseconds from exec to the end of a program.
struct Durata {
    double tutto, processore;
};

double Millisecondi(const timeval& t) { return double(t.tv_sec) * 1e3 + double(t.tv_usec) / 1e3; }

/// Starts a program whose answer nobody reads.
Durata Avvia(const Argomenti& comando) {
    std::vector<char*> argv;
    for (const std::string& a : comando)
        argv.push_back(const_cast<char*>(a.c_str()));
    argv.push_back(nullptr);
    posix_spawn_file_actions_t azioni;
    posix_spawn_file_actions_init(&azioni);
    posix_spawn_file_actions_addopen(&azioni, 1, "/dev/null", O_WRONLY, 0);
    const auto inizio = std::chrono::steady_clock::now();
    pid_t pid = 0;
    if (posix_spawnp(&pid, argv.front(), &azioni, nullptr, argv.data(), environ) != 0)
        throw std::runtime_error("cannot start " + comando.front());
    int stato = 0;
    rusage uso{};
    wait4(pid, &stato, 0, &uso);
    const auto fine = std::chrono::steady_clock::now();
    posix_spawn_file_actions_destroy(&azioni);
    if (!WIFEXITED(stato) || WEXITSTATUS(stato) != 0)
        throw std::runtime_error(comando.front() + " does not answer");
    return {std::chrono::duration<double, std::milli>(fine - inizio).count(),
            Millisecondi(uso.ru_utime) + Millisecondi(uso.ru_stime)};
}

double Mediana(std::vector<Durata> tempi, double Durata::*quale) {
    std::ranges::sort(tempi, {}, quale);
    return tempi[tempi.size() / 2].*quale;
}

void Misura(const char* nome, const Argomenti& comando, int avvii) {
    std::vector<Durata> nostri, vuoti;
    for (int i = 0; i < avvii; ++i) {
        nostri.push_back(Avvia(comando));
        vuoti.push_back(Avvia({"true"}));
    }
    const auto scrive = [&](const char* quantita, double Durata::*quale) {
        std::printf("%s, %s\tms\t%.3f\tan empty program\t%.3f\n", nome, quantita, Mediana(nostri, quale),
                    Mediana(vuoti, quale));
    };
    scrive("p50", &Durata::tutto);
    scrive("p50 of CPU", &Durata::processore);
}

} // namespace

int main(int argc, char* argv[]) {
    constexpr int abituali = 50;
    if (argc < 2)
        return EXIT_FAILURE;
    try {
        const std::string sagomi = argv[1];
        const int avvii = argc > 2 ? std::max(1, std::atoi(argv[2])) : abituali;
        Misura("--version", {sagomi, "--version"}, avvii);
        Misura("--verifica --json", {sagomi, "--verifica", "HEA 200", "--N", "400", "--L0z", "3", "--json"},
               avvii);
        Misura("--scelta --json", {sagomi, "--scelta", "--N", "400", "--L0z", "3", "--json"}, avvii);
    } catch (const std::exception& e) {
        std::fprintf(stderr, "%s\n", e.what());
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
