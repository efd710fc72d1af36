#include <QApplication>
#include <QLineEdit>

#include <gtest/gtest.h>

#include "frame/ui/Campi.h"
#include "frame/ui/Guida.h"

/// The start of every test program with windows of one layer: an application, the help key, the separators of
/// the system.
int main(int argc, char** argv) {
    // No display is needed, nor wanted, where none is asked for.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    sagomi::Guida::Installa();
    QLineEdit hidden;
    sagomi::SeparatoriControlla(&hidden, true);
    return RUN_ALL_TESTS();
}
