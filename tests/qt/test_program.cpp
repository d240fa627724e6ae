// The program itself, as a process.
#include <QProcess>
#include <gtest/gtest.h>

namespace {

TEST(Program, WithoutADisplayOneSentenceQtsReasonAndStatusOne) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* variable : {"WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "QT_LOGGING_RULES", "XDG_SESSION_TYPE"})
        environment.remove(variable);
    for (const char* display : {"", ":9999"}) { // none, and one that is not there
        environment.insert("DISPLAY", display);
        QProcess program;
        program.setProcessEnvironment(environment);
        program.start(DORVA_PROGRAM, QStringList());
        ASSERT_TRUE(program.waitForFinished());
        EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(program.exitCode(), 1);
        const QByteArray said = program.readAllStandardError();
        EXPECT_TRUE(said.startsWith("Planszownik nie może")) << said.toStdString();
        EXPECT_TRUE(said.contains(QByteArray("could not connect to display ") + display)) << said.toStdString();
    }
}

} // namespace
