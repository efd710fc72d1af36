#include <QApplication>

#include <gtest/gtest.h>

#include "screens/GeneraleSchermi.h"

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    sagomi::PreparaApplicazione();
    return RUN_ALL_TESTS();
}
