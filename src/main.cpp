#include <QApplication>
#include <fontconfig/fontconfig.h>

#include <filesystem>
#include <iostream>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "choice/Comando.h"
#include "frame/Cartelle.h"
#include "frame/ui/Protetto.h"
#include "screens/ApreFile.h"
#include "screens/GeneraleSchermi.h"

namespace {

/// What is answered without windows.
std::optional<int> Comando(int argc, char* argv[]) {
    const std::vector<std::string> arguments(argv + (argc > 0 ? 1 : 0), argv + argc);
    std::error_code none;
    const auto own = std::filesystem::read_symlink("/proc/self/exe", none).parent_path();
    const auto status =
        sagomi::EsegueComando(arguments, sagomi::CartellaFile(own), std::cin, std::cout, std::cerr);
    if (!status || std::cout.flush())
        return status;
    std::cerr << "sagomi: non è possibile scrivere la risposta\n";
    return sagomi::comandoErrato;
}

} // namespace

int main(int argc, char* argv[]) {
    if (const auto status = Comando(argc, argv))
        return *status;
    // The toolkit asks for the list of the system's fonts when it needs the first of them; reading it takes
    // as long as all the rest that comes before.
    std::jthread fonts([] { FcInit(); });
    const QApplication application(argc, argv);
    sagomi::PreparaApplicazione();
    fonts.join();
    sagomi::Main();
    for (const QString& file : QApplication::arguments().mid(1))
        sagomi::Protetto("Errore", [&file] { sagomi::ApreFile(file); });
    return QApplication::exec();
}
