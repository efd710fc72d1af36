#include <clocale>

#include <gmock/gmock.h>

int main(int argc, char** argv) {
    std::setlocale(LC_ALL, ""); // "C" unless the environment names another
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
