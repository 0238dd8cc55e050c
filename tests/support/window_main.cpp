#include "shell/run_editor.h"

#include <QApplication>

#include <gmock/gmock.h>

int main(int argc, char** argv)
{
    // These tests want no screen, whoever starts them.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication application(argc, argv);
    torvane::prepareApplication();
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
