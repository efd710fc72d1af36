#include <QApplication>

#include <cstdio>

#include "automation/ServizioSagomi.h"
#include "frame/GeneraleSagomi.h"
#include "screens/GeneraleSchermi.h"

/// The program as the session bus starts it: no window until a client creates the object.
int main(int argc, char* argv[]) {
    const QApplication application(argc, argv);
    sagomi::PreparaApplicazione();
    sagomi::ServerAttivo = true;
    sagomi::Main();
    sagomi::ServizioSagomi servizio;
    if (const QString perche = servizio.Registra(); !perche.isEmpty()) {
        std::fputs(qPrintable(QStringLiteral("sagomi-server: ") + perche + u'\n'), stderr);
        return 1;
    }
    return QApplication::exec();
}
