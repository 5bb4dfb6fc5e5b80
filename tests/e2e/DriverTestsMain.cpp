#include <QGuiApplication>
#include <cstdio>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("DISPLAY")) {
        std::fputs("These tests need a display: run them through tests/e2e/with-display\n", stderr);
        return 2;
    }
    qputenv("QT_QPA_PLATFORM", "xcb"); // the program's pictures come from the same display server
    QGuiApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
