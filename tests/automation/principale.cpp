#include <QApplication>

#include <gtest/gtest.h>

#include <unistd.h>

#include "screens/GeneraleSchermi.h"

// The whole program runs again under a session bus of its own.
int main(int argc, char** argv) {
    constexpr auto sotto = "SAGOMI_BUS_DELLE_PROVE";
    if (qEnvironmentVariableIsEmpty(sotto)) {
        qputenv(sotto, "1");
        std::vector<char*> command{const_cast<char*>("dbus-run-session"), const_cast<char*>("--")};
        command.insert(command.end(), argv, argv + argc + 1);
        execvp(command.front(), command.data());
        qputenv(sotto, "nessuno"); // not installed: the tests say that they cannot run
    }
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    sagomi::PreparaApplicazione();
    return RUN_ALL_TESTS();
}
