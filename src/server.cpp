#include <QApplication>

#include <cstdio>
#include <exception>
#include <string>
#include <vector>

#include "automation/ServizioSagomi.h"
#include "choice/Opzioni.h"
#include "frame/GeneraleSagomi.h"
#include "screens/GeneraleSchermi.h"

namespace {

int Ferma(const std::string& perche) {
    std::fputs(("sagomi-server: " + perche + '\n').c_str(), stderr);
    return 1;
}

int Serve(std::vector<std::string> arguments) {
    sagomi::ServerAttivo = true;
    if (!sagomi::TrovaCartelle(sagomi::PrendeCartella(arguments)))
        return 1;
    sagomi::Main();
    sagomi::ServizioSagomi servizio;
    if (const QString perche = servizio.Registra(); !perche.isEmpty())
        return Ferma(perche.toStdString());
    return QApplication::exec();
}

} // namespace

/// The program as the session bus starts it: no window until a client creates the object.
int main(int argc, char* argv[]) {
    const QApplication application(argc, argv);
    sagomi::PreparaApplicazione();
    try {
        return Serve({argv + (argc > 0 ? 1 : 0), argv + argc});
    } catch (const std::exception& e) {
        return Ferma(e.what());
    }
}
