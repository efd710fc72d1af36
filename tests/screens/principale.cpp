#include <QApplication>

#include <gtest/gtest.h>

#include "screens/GeneraleSchermi.h"

int main(int argc, char** argv) {
    // No display is needed, nor wanted, where none is asked for.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    sagomi::PreparaApplicazione();
    return RUN_ALL_TESTS();
}
