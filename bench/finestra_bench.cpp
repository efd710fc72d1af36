// What the user waits for, from outside: a program in a real window of the X server, timed from exec or from
// a key (XTest) to the damage that the server reports (XDamage). Every figure stands beside that of a peer in
// the same run: the two programs take turns, so that a busy machine slows both.
//
//   misura_finestra SAGOMI PEER BIG [RUNS]
//
// BIG is SAGOMI beside a workbook of two sheets of 50,000 rows (misura_grande).
// A start ends with the last damage before a quiet time, for the first pixels of a window are not yet the
// screen; so does a key. Prints lines of tab-separated figures: name, unit, quantity, sagomi, peer.

#include <X11/XKBlib.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <X11/extensions/XTest.h>
#include <X11/extensions/Xdamage.h>
#include <X11/keysym.h>
#include <csignal>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <charconv>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <optional>
#include <stdexcept>
#include <string>
#include <thread>
#include <utility>
#include <vector>

extern char** environ;

namespace {

using Orologio = std::chrono::steady_clock;
using Istante = Orologio::time_point;
using namespace std::chrono_literals;

constexpr auto quieteAvvio = 400ms; ///< nothing painted for so long: the screen stands
constexpr auto pazienza = 20s;

double Millisecondi(Orologio::duration d) { return std::chrono::duration<double, std::milli>(d).count(); }

struct Tasto {
    KeySym simbolo;
    bool maiuscole = false;
};
using Tasti = std::vector<Tasto>;

/// The display, and what is painted on it.
class Schermata {
public:
    Schermata() : x_(XOpenDisplay(nullptr)) {
        int errore = 0;
        if (x_ == nullptr || XDamageQueryExtension(x_, &evento_, &errore) == 0)
            throw std::runtime_error("no X server with the DAMAGE extension");
        XSetErrorHandler([](Display*, XErrorEvent*) { return 0; }); // windows come and go
        danno_ = XDamageCreate(x_, DefaultRootWindow(x_), XDamageReportRawRectangles);
        XSync(x_, False);
    }
    ~Schermata() {
        XDamageDestroy(x_, danno_);
        XCloseDisplay(x_);
    }
    Schermata(const Schermata&) = delete;
    Schermata& operator=(const Schermata&) = delete;

    void Scorda() {
        XSync(x_, False);
        while (XPending(x_) > 0)
            Prossimo();
    }

    /// The last damage before a quiet time; nothing when none comes at all.
    std::optional<Istante> UltimoDanno(Orologio::duration quiete, Orologio::duration attesa,
                                       long areaMinima) {
        std::optional<Istante> ultimo;
        long area = 0;
        for (Istante fine = Orologio::now() + attesa; Orologio::now() < fine;) {
            Aspetta(std::min<Orologio::duration>(fine - Orologio::now(), 5ms));
            while (XPending(x_) > 0)
                if (const long a = Prossimo(); a > 0) {
                    area += a;
                    ultimo = Orologio::now();
                    if (area >= areaMinima)
                        fine = *ultimo + quiete;
                }
        }
        return area >= areaMinima ? ultimo : std::nullopt;
    }

    void Preme(const Tasto& tasto) {
        const KeyCode codice = XKeysymToKeycode(x_, tasto.simbolo);
        const KeyCode maiuscole = XKeysymToKeycode(x_, XK_Shift_L);
        if (tasto.maiuscole)
            XTestFakeKeyEvent(x_, maiuscole, True, CurrentTime);
        XTestFakeKeyEvent(x_, codice, True, CurrentTime);
        XTestFakeKeyEvent(x_, codice, False, CurrentTime);
        if (tasto.maiuscole)
            XTestFakeKeyEvent(x_, maiuscole, False, CurrentTime);
        XFlush(x_);
    }

    /// Gives the keys to the greatest window that is shown: there is no window manager to do it.
    void Fuoco() {
        if (const Window w = Maggiore())
            XSetInputFocus(x_, w, RevertToParent, CurrentTime);
        XSync(x_, False);
    }

private:
    void Aspetta(Orologio::duration quanto) {
        if (XPending(x_) > 0)
            return;
        pollfd fd{ConnectionNumber(x_), POLLIN, 0};
        poll(&fd, 1, static_cast<int>(std::max(1.0, Millisecondi(quanto))));
    }

    /// Takes one event; the damaged area if it is damage, else 0.
    long Prossimo() {
        XEvent e;
        XNextEvent(x_, &e);
        if (e.type != evento_ + XDamageNotify)
            return 0;
        const auto& d = reinterpret_cast<const XDamageNotifyEvent&>(e);
        return long{d.area.width} * d.area.height;
    }

    Window Maggiore() {
        Window radice = 0;
        Window padre = 0;
        Window* figli = nullptr;
        unsigned n = 0;
        XQueryTree(x_, DefaultRootWindow(x_), &radice, &padre, &figli, &n);
        Window scelta = 0;
        long area = 0;
        for (unsigned i = 0; i < n; ++i) {
            XWindowAttributes a;
            if (XGetWindowAttributes(x_, figli[i], &a) == 0 || a.map_state != IsViewable)
                continue;
            if (long{a.width} * a.height > area) {
                area = long{a.width} * a.height;
                scelta = figli[i];
            }
        }
        if (figli != nullptr)
            XFree(figli);
        return scelta;
    }

    Display* x_;
    int evento_ = 0;
    Damage danno_ = 0;
};

/// A program that runs until it is let go.
class Programma {
public:
    explicit Programma(const std::string& file) {
        std::string nome = file;
        char* argomenti[] = {nome.data(), nullptr};
        if (posix_spawnp(&pid_, file.c_str(), nullptr, nullptr, argomenti, environ) != 0)
            throw std::runtime_error("cannot start " + file);
    }
    ~Programma() {
        kill(pid_, SIGKILL); // its settings stay as they were
        waitpid(pid_, nullptr, 0);
    }
    Programma(const Programma&) = delete;
    Programma& operator=(const Programma&) = delete;

    /// A value of /proc, in MB.
    [[nodiscard]] double Memoria(const std::string& file, const std::string& chiave) const {
        std::ifstream stato("/proc/" + std::to_string(pid_) + "/" + file);
        for (std::string riga; std::getline(stato, riga);)
            if (riga.starts_with(chiave + ":")) {
                long kB = 0;
                const std::size_t da = riga.find_first_of("0123456789");
                std::from_chars(riga.data() + da, riga.data() + riga.size(), kB);
                return static_cast<double>(kB) / 1024;
            }
        return 0;
    }

private:
    pid_t pid_ = 0;
};

using Serie = std::vector<double>;

double Quantile(Serie s, double q) {
    if (s.empty())
        return 0;
    std::sort(s.begin(), s.end());
    return s[std::min(s.size() - 1, static_cast<std::size_t>(q * static_cast<double>(s.size())))];
}

struct Avvii {
    Serie ms, privata, massima;
};

constexpr long areaSchermo = 100000; ///< pixels that a screen paints at least

void Avvia(Schermata& x, const std::string& file, Avvii& esiti) {
    x.Scorda();
    const Istante inizio = Orologio::now();
    const Programma p(file);
    const auto fine = x.UltimoDanno(quieteAvvio, pazienza, areaSchermo);
    if (!fine)
        throw std::runtime_error(file + " has shown nothing");
    esiti.ms.push_back(Millisecondi(*fine - inizio));
    esiti.privata.push_back(p.Memoria("smaps_rollup", "Pss"));
    esiti.massima.push_back(p.Memoria("status", "VmHWM"));
}

/// How fast keys follow each other, and after how much quiet what a key does is done.
struct Ritmo {
    Orologio::duration quiete, pausa;
};

constexpr Ritmo svelto{60ms, 20ms};
constexpr Ritmo unaLettera{60ms, 1300ms}; ///< each letter begins a new name
constexpr Ritmo paziente{1s, 20ms};       ///< the option is painted at once, the table long after

/// Keys pressed in turn in a running program, each timed to its last damage.
Serie Preme(Schermata& x, const Tasti& giro, int volte, const Ritmo& ritmo) {
    Serie s;
    for (int i = 0; i < volte; ++i) {
        std::this_thread::sleep_for(ritmo.pausa);
        x.Scorda();
        const Istante inizio = Orologio::now();
        x.Preme(giro[static_cast<std::size_t>(i) % giro.size()]);
        if (const auto fine = x.UltimoDanno(ritmo.quiete, 3s, 1))
            s.push_back(Millisecondi(*fine - inizio));
    }
    return s;
}

/// Starts a program, goes where the keys shall go, and measures them.
Serie Digita(Schermata& x, const std::string& file, const Tasti& strada, const Tasti& giro, int volte,
             const Ritmo& ritmo = svelto) {
    const Programma p(file);
    x.UltimoDanno(quieteAvvio, pazienza, areaSchermo);
    x.Fuoco();
    x.UltimoDanno(quieteAvvio, 2s, 1); // what has the focus looks so
    Preme(x, strada, static_cast<int>(strada.size()), ritmo.quiete > svelto.quiete ? ritmo : svelto);
    Preme(x, giro, static_cast<int>(giro.size()), ritmo);
    return Preme(x, giro, volte, ritmo);
}

void Riga(const char* nome, const char* unita, const char* cosa, double sagomi, double altro) {
    std::printf("%s\t%s\t%s\t%.3f\t%.3f\n", nome, unita, cosa, sagomi, altro);
    std::fflush(stdout);
}

void Righe(const char* nome, const Serie& sagomi, const Serie& altro) {
    Riga(nome, "ms", "p50", Quantile(sagomi, 0.5), Quantile(altro, 0.5));
    Riga(nome, "ms", "p99", Quantile(sagomi, 0.99), Quantile(altro, 0.99));
}

void MisuraAvvio(Schermata& x, const char* nome, const std::string& sagomi, const std::string& altro,
                 int volte) {
    Avvii nostri;
    Avvii suoi;
    for (int i = 0; i <= volte; ++i) {
        if (i == 1) // the first of each has filled the caches
            nostri = suoi = {};
        Avvia(x, sagomi, nostri);
        Avvia(x, altro, suoi);
    }
    Riga(nome, "ms", "p50", Quantile(nostri.ms, 0.5), Quantile(suoi.ms, 0.5));
    Riga(nome, "ms", "best", Quantile(nostri.ms, 0), Quantile(suoi.ms, 0));
    Riga(nome, "MB", "Pss", Quantile(nostri.privata, 0.5), Quantile(suoi.privata, 0.5));
    Riga(nome, "MB", "peak", Quantile(nostri.massima, 0.5), Quantile(suoi.massima, 0.5));
}

// Where the keys go on the first screen: the table has the focus at the start, the sort options, the sixteen
// boxes of the families and the button that reads the table lie before it, the entries behind it.

Tasti FinoAiCampi() { return Tasti(6, Tasto{XK_Tab}); }

Tasti FinoAgliOrdini() { return Tasti(2, Tasto{XK_Tab, true}); }

/// All families but the one that is ticked; then the table is read anew, and the sort options have the focus.
Tasti TutteLeFamiglie(int famiglie, int giaScelta) {
    Tasti strada = FinoAgliOrdini();
    for (int i = famiglie - 1; i >= 0; --i) {
        strada.push_back({XK_Tab, true});
        if (i != giaScelta)
            strada.push_back({XK_space});
    }
    strada.insert(strada.end(), static_cast<std::size_t>(famiglie), {XK_Tab});
    strada.push_back({XK_Tab});
    strada.push_back({XK_space});
    strada.push_back({XK_Tab, true});
    return strada;
}

/// The same for the first of them alone, beside the one that is ticked.
Tasti AnchePrimaFamiglia(int famiglie) {
    Tasti strada = FinoAgliOrdini();
    strada.insert(strada.end(), static_cast<std::size_t>(famiglie), {XK_Tab, true});
    strada.push_back({XK_space});
    strada.insert(strada.end(), static_cast<std::size_t>(famiglie) + 1, {XK_Tab});
    strada.push_back({XK_space});
    return strada;
}

const Tasti cifre{{XK_1}, {XK_2}, {XK_3}, {XK_BackSpace}, {XK_BackSpace}, {XK_BackSpace}};
const Tasti frecce{{XK_Down}, {XK_Down}, {XK_Up}};
const Tasti ordini{{XK_Left}, {XK_Left}, {XK_Right}, {XK_Right}}; // up and down would move the row
const Tasti lettere{{XK_h}, {XK_i}};
constexpr int famiglie = 16;
constexpr int primaFamiglia = 3; ///< the box that is ticked at the start

void MisuraTasti(Schermata& x, const std::string& sagomi, const Serie& altro, int volte) {
    Righe("arrow", Digita(x, sagomi, {}, frecce, volte), altro);
    Righe("digit", Digita(x, sagomi, FinoAiCampi(), cifre, volte), altro);
    const Tasti tutte = TutteLeFamiglie(famiglie, primaFamiglia);
    Righe("sort, 792 rows", Digita(x, sagomi, tutte, ordini, volte), altro);
}

void MisuraGrande(Schermata& x, const std::string& grande, const std::string& altro, const Serie& tasti,
                  int volte) {
    MisuraAvvio(x, "start, 50,000 rows of 100,000", grande, altro, std::max(3, volte / 5));
    Tasti strada = AnchePrimaFamiglia(famiglie);
    strada.push_back({XK_Tab});
    Righe("letter, 100,000 rows", Digita(x, grande, strada, lettere, volte, unaLettera), tasti);
    strada.pop_back();
    strada.push_back({XK_Tab, true});
    Righe("sort, 100,000 rows", Digita(x, grande, strada, ordini, volte, paziente), tasti);
}

} // namespace

int main(int argc, char** argv) {
    try {
        if (argc < 4)
            throw std::runtime_error("misura_finestra SAGOMI PEER BIG [RUNS]");
        const std::string sagomi = argv[1];
        const std::string altro = argv[2];
        const int volte = argc > 4 ? std::atoi(argv[4]) : 20;
        Schermata x;
        MisuraAvvio(x, "start", sagomi, altro, volte);
        const Serie tasti = Digita(x, altro, {}, cifre, 10 * volte);
        MisuraTasti(x, sagomi, tasti, 10 * volte);
        MisuraGrande(x, argv[3], altro, tasti, volte);
        return 0;
    } catch (const std::exception& e) {
        std::fprintf(stderr, "misura_finestra: %s\n", e.what());
        return 1;
    }
}
