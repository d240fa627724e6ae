// Runs the window's tests with an application; where that can be done, without a display.
#include "qt/program.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", DORVA_PLATFORM);
    ::testing::InitGoogleTest(&argc, argv);
    const QTemporaryDir settings; // for settings that Qt might write by itself
    qputenv("XDG_CONFIG_HOME", settings.path().toLocal8Bit());
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs); // tests can't answer those of the system
    const auto application = dorva::makeApplication(argv, "dorva_qt_tests");
    return RUN_ALL_TESTS();
}
