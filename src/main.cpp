#include <QApplication>

#include "screens/GeneraleSchermi.h"

int main(int argc, char* argv[]) {
    const QApplication application(argc, argv);
    sagomi::PreparaApplicazione();
    sagomi::Main();
    return QApplication::exec();
}
