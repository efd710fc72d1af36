// scimmia [EVENTS] [SEED]: plays with all windows of the program, in a folder of its own, starting it anew
// each time that it has been closed. The same seed does the same again; SCIMMIA_RACCONTA=1 tells each event.
// Fails for a warning of the toolkit, an empty box, a window that stays when the program has closed, a
// program that does not come back.

#include <QApplication>
#include <QDir>
#include <QMap>
#include <QPrinter>
#include <QTemporaryDir>
#include <QTest>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sys/stat.h>

#include "Scimmia.h"
#include "Sorveglianza.h"
#include "drawing/ui/ScegliDispositivo.h"
#include "frame/GeneraleSagomi.h"
#include "frame/ui/FileDialogo.h"
#include "frame/ui/Guida.h"
#include "frame/ui/NavigaSchermi.h"
#include "screens/GeneraleSchermi.h"

using namespace sagomi;

namespace {

namespace fs = std::filesystem;

/// What lies beside the program, and files for the dialogs: sound ones, broken ones, a folder, a pipe.
void Prepara(const fs::path& folder) {
    for (const char* file :
         {"Sagomi.xls", "Sagomi.hlp", "GiuntoFlangiato.hlp", "FormuleGiunto.rtf", "SagomiUtente.xls"})
        if (fs::exists(fs::path(SAGOMI_BIN) / file)) {
            fs::copy_file(fs::path(SAGOMI_BIN) / file, folder / file);
            fs::permissions(folder / file, fs::perms::owner_write, fs::perm_options::add);
        }
    fs::copy_file(fs::path(SAGOMI_CORPUS) / "trave/piena", folder / "trave.sco");
    fs::copy_file(fs::path(SAGOMI_CORPUS) / "nodo/due_una_fila", folder / "nodo.gfl");
    std::ofstream(folder / "rotto.sco") << "\"IPE\",1,2\r\nx";
    std::ofstream(folder / "rotto.gfl") << "\"T\",1\r\n";
    fs::create_directory(folder / "cartella.sco");
    mkfifo((folder / "fifo.gfl").c_str(), 0600);
}

/// The dialogs of the system are answered by the monkey.
void CollegaDialoghi(prove::Scimmia& monkey, const QString& folder) {
    ImpostaSceltaFile([&monkey, folder](QWidget*, std::string_view mode, const QString&, int,
                                        const QString&) { return monkey.File(mode == "L", folder); });
    ImpostaSceltaStampante([&monkey, folder](QPrinter& printer, QWidget*) {
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(folder + (monkey.Si(80) ? "/stampa.pdf" : "/manca/stampa.pdf"));
        return monkey.Si(70);
    });
}

/// Ends what was told to end later.
void Sgombera() {
    for (int i = 0; i < 3; ++i) {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }
}

/// The widgets that are there, how many of each kind.
QMap<QString, int> Presenti() {
    QMap<QString, int> kinds;
    for (const QWidget* w : QApplication::allWidgets())
        ++kinds[QString::fromLatin1(w->window()->metaObject()->className()) + u'.' +
                QString::fromLatin1(w->metaObject()->className()) + u' ' + w->objectName()];
    return kinds;
}

/// What there is more of than there was.
QString InPiu(const QMap<QString, int>& before) {
    QStringList more;
    const QMap<QString, int> now = Presenti();
    for (auto kind = now.begin(); kind != now.end(); ++kind)
        if (const int n = kind.value() - before.value(kind.key()); n > 0)
            more << QStringLiteral("%1 %2").arg(n).arg(kind.key());
    return more.join(QLatin1String(", "));
}

} // namespace

int main(int argc, char** argv) {
    const QTemporaryDir folder, home;
    qputenv("HOME", home.path().toUtf8());
    qputenv("XDG_CONFIG_HOME", home.path().toUtf8());
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const int events = argc > 1 ? std::atoi(argv[1]) : 5000;
    const unsigned seed = argc > 2 ? static_cast<unsigned>(std::atoi(argv[2])) : 1;
    Prepara(folder.path().toStdString());
    QDir::setCurrent(folder.path());
    PreparaApplicazione();
    RipristinaGenerale();
    PathProgramma = folder.path().toStdString();

    prove::Sorveglianza watch;
    Guida::Apre(QStringLiteral("Sagomi.hlp"), {}); // its window lives to the end of the run
    QApplication::closeAllWindows();
    prove::Scimmia monkey(watch, events, seed);
    CollegaDialoghi(monkey, folder.path());
    QMap<QString, int> first;
    int lives = 0;
    while (!monkey.Finito()) {
        ChiusuraInCorso = false;
        monkey.Vive(InizializzaProgramma);
        Sgombera();
        if (++lives == 1) // what the first run makes once for all
            first = Presenti();
        std::printf("life %d: %lld widgets, %zu objects left\n", lives,
                    static_cast<long long>(QApplication::allWidgets().size()), prove::OggettiVivi());
        if (const QString more = InPiu(first); !more.isEmpty())
            watch.Trova(QStringLiteral("more widgets than after the first life: ") + more);
    }
    QStringList met = monkey.Incontrate().values();
    met.sort();
    std::printf("%lld windows met: %s\n", static_cast<long long>(met.size()), qPrintable(met.join(u' ')));
    std::printf("%d events of seed %u in %d lives: %d findings\n", events, seed, lives, watch.Trovati());
    return watch.Trovati() == 0 ? 0 : 1;
}
