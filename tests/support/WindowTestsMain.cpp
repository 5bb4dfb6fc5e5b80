#include "platform/widgets/ProgramStyle.h"

#include <QApplication>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
#ifndef _WIN32 // there it would have no fonts
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
#endif
    QApplication application(argc, argv);
    ProgramStyle::Install();
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
