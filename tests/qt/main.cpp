// The window's tests need an application; they run without a display.
#include "qt/aplikacja.h"

#include <QApplication>
#include <QTemporaryDir>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    ::testing::InitGoogleTest(&argc, argv);
    const QTemporaryDir settings; // what the toolkit might write of its own accord
    qputenv("XDG_CONFIG_HOME", settings.path().toLocal8Bit());
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs); // those of the system can't be answered from here
    QApplication application(argc, argv);
    dorva::setUpApplication(application);
    return RUN_ALL_TESTS();
}
