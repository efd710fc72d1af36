#include <QApplication>
#include <QByteArrayView>
#include <fontconfig/fontconfig.h>

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <iostream>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "catalogue/CartellaLavoro.h"
#include "choice/Comando.h"
#include "choice/Opzioni.h"
#include "frame/GeneraleSagomi.h"
#include "frame/ui/Protetto.h"
#include "report/ui/PdfRelazione.h"
#include "screens/ApreFile.h"
#include "screens/GeneraleSchermi.h"

namespace {

using Scelta = std::optional<std::filesystem::path>;

/// Where an answer finds the workbooks; what lies with the program, formulas, is read there.
std::filesystem::path CartellaComando(const Scelta& chosen) {
    std::error_code none;
    const auto own = std::filesystem::read_symlink("/proc/self/exe", none).parent_path();
    sagomi::CartellaLavoro folders = sagomi::ApreCartellaLavoro(own, chosen);
    sagomi::PathInstallazione = folders.installazione;
    std::erase(folders.avviso, '\r');
    if (!folders.avviso.empty())
        std::cerr << "sagomi: " << folders.avviso << '\n';
    return folders.lavoro;
}

/// What is answered without windows.
std::optional<int> Comando(const std::vector<std::string>& arguments, const Scelta& chosen) {
    sagomi::ImpostaPdfRelazione();
    const auto status = sagomi::EsegueComando(
        arguments, [&chosen] { return CartellaComando(chosen); }, std::cin, std::cout, std::cerr);
    if (status && std::ferror(stdin) != 0) { // std::cin takes it for the end
        std::cerr << "sagomi: i lavori non si possono leggere\n";
        return sagomi::comandoErrato;
    }
    if (!status || std::cout.flush())
        return status;
    std::cerr << "sagomi: non è possibile scrivere la risposta\n";
    return sagomi::comandoErrato;
}

/// The files to open: what neither the toolkit nor the program has taken for itself.
std::vector<std::string> FileDaAprire() {
    std::vector<std::string> files;
    for (const QString& argument : QApplication::arguments().mid(1))
        files.push_back(argument.toStdString());
    sagomi::PrendeCartella(files);
    return files;
}

/// While one lives, a toolkit that finds no screen says so in our words and ends the program: it would abort.
class SenzaSchermo {
public:
    SenzaSchermo() { before_ = qInstallMessageHandler(&Prende); }
    ~SenzaSchermo() { qInstallMessageHandler(before_); }
    SenzaSchermo(const SenzaSchermo&) = delete;
    SenzaSchermo& operator=(const SenzaSchermo&) = delete;

private:
    static void Prende(QtMsgType type, const QMessageLogContext& context, const QString& text) {
        if (type == QtFatalMsg) {
            std::fputs("sagomi: non c'è uno schermo su cui aprire le finestre (DISPLAY o WAYLAND_DISPLAY); "
                       "sagomi --help dice che cosa si fa senza\n",
                       stderr);
            std::_Exit(sagomi::comandoErrato);
        }
        // What the platforms say on the way belongs to it.
        if (!QByteArrayView(context.category).startsWith("qt.qpa") && before_ != nullptr)
            before_(type, context, text);
    }
    static inline QtMessageHandler before_ = nullptr;
};

QtMessageHandler messaggiPrima = nullptr;

/// A session without a folder for the run is no fault, and nothing that a user could mend.
void TaceCartellaSessione(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    if (!text.startsWith(QLatin1String("QStandardPaths: ")))
        messaggiPrima(type, context, text);
}

int Finestre(int argc, char* argv[], const Scelta& chosen) {
    // The toolkit asks for the list of the system's fonts when it needs the first of them; reading it takes
    // as long as all the rest that comes before.
    std::jthread fonts([] { FcInit(); });
    std::optional<SenzaSchermo> noScreen(std::in_place);
    const QApplication application(argc, argv);
    noScreen.reset();
    sagomi::PreparaApplicazione();
    fonts.join();
    if (!sagomi::TrovaCartelle(chosen))
        return sagomi::comandoErrato;
    sagomi::Main();
    for (const std::string& file : FileDaAprire())
        sagomi::Protetto("Errore", [&file] { sagomi::ApreFile(QString::fromStdString(file)); });
    return QApplication::exec();
}

} // namespace

int main(int argc, char* argv[]) {
    messaggiPrima = qInstallMessageHandler(&TaceCartellaSessione);
    std::vector<std::string> arguments(argv + (argc > 0 ? 1 : 0), argv + argc);
    try {
        const Scelta chosen = sagomi::PrendeCartella(arguments);
        if (const auto status = Comando(arguments, chosen))
            return *status;
        return Finestre(argc, argv, chosen);
    } catch (const std::exception& e) {
        std::cerr << "sagomi: " << e.what() << '\n';
        return sagomi::comandoErrato;
    }
}
