#include <QApplication>
#include <fontconfig/fontconfig.h>

#include <thread>

#include "screens/GeneraleSchermi.h"

int main(int argc, char* argv[]) {
    // The toolkit asks for the list of the system's fonts when it needs the first of them; reading it takes
    // as long as all the rest that comes before.
    std::jthread fonts([] { FcInit(); });
    const QApplication application(argc, argv);
    sagomi::PreparaApplicazione();
    fonts.join();
    sagomi::Main();
    return QApplication::exec();
}
