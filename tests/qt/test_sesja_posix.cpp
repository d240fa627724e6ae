// Starting other programs, and the end of a session, on POSIX systems.
#include "window_desk.h"

#include "qt/sesja.h"

#include <QProcess>

#include <csignal>

namespace dorva::test {
namespace {

class SessionPosix : public WindowDesk {
protected:
    // Runs a program that stands in the base folder until its window is up, and ends it as a desktop does.
    QProcess::ExitStatus runProgram(const char* name, const QStringList& options = {}) {
        QProcess program;
        program.start(QString::fromStdString((base / name).string()), options);
        EXPECT_TRUE(QTest::qWaitFor([this] { return fs::exists(etap(1)); }));
        QTest::qWait(500);
        program.terminate();
        EXPECT_TRUE(program.waitForFinished());
        return program.exitStatus();
    }
};

TEST_F(SessionPosix, ASignalToEndStoresTheWork) {
    open();
    storeAtSessionEnd(*okno);
    for (int signal : {SIGTERM, SIGINT, SIGHUP}) {
        okno->show();
        e.okno.imgPG[410].znak = znak(signal);
        ASSERT_EQ(::raise(signal), 0);
        EXPECT_TRUE(QTest::qWaitFor([this] { return !okno->isVisible(); }));
        EXPECT_EQ(readFile(etap(1))[uklad::PLANSZA + 410], signal);
        std::signal(signal, SIG_DFL);
    }
}

// The emulator is a script that writes down how it was called.
TEST_F(SessionPosix, TheLauncherRunsTheEmulatorBesideTheEditor) {
    open();
    fs::copy_file(DORVA_LAUNCHER, base / "PLIKI/DP3.BAT");
    const std::string emulator = "#!/bin/sh\n{ pwd; echo \"$@\"; } > \"" + (root / "call").string() + "\"\n";
    writeFile(root / "atari800", Bajty(emulator.begin(), emulator.end()));
    fs::permissions(root / "atari800", fs::perms::owner_all);
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", QByteArray::fromStdString(root.string()) + ":" + path);

    click("cmdTest", {"Tak"});
    const std::string called =
        fs::canonical(base).string() + "\n-xe -nobasic -win-width 1008 -win-height 720 -run PLIKI/TEST.XEX\n";
    EXPECT_TRUE(QTest::qWaitFor([&] { return readFile(root / "call").size() == called.size(); }));
    EXPECT_EQ(readFile(root / "call"), Bajty(called.begin(), called.end()));
    qputenv("PATH", path);
}

// It takes no option of Qt's from its command line.
TEST_F(SessionPosix, TheProgramLoadsAndStoresTheFolderThatItStandsIn) {
    fs::copy_file(DORVA_PROGRAM, base / "planszownik");
    fs::remove(base / "ETAPY/DETAP.1"); // the program creates it, empty, when it reads the stage
    EXPECT_EQ(runProgram("planszownik", {"-platform", "brak"}), QProcess::NormalExit);
    EXPECT_EQ(readFile(etap(1)).size(), std::size_t(ETAP_SIZE_BYTES));
}

TEST_F(SessionPosix, TheOverviewLaysOnlyAFreshPackage) {
    fs::create_directories(base / "wzorzec/PLIKI");
    for (const char* name : {"ETAPY", "PLIKI/DP1.DTA"})
        fs::rename(base / name, base / "wzorzec" / name);
    fs::copy_file(DORVA_PRZEGLAD, base / "przeglad");
    EXPECT_EQ(runProgram("przeglad"), QProcess::NormalExit) << "the signal closes the window, which may ask";
    EXPECT_TRUE(fs::remove(base / "PLIKI/DP1.DTA"));
    (void)runProgram("przeglad");
    EXPECT_FALSE(fs::exists(base / "PLIKI/DP1.DTA"));
}

TEST(Program, WithoutADisplayOneSentenceQtsReasonAndStatusOne) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* variable : {"WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "QT_LOGGING_RULES", "XDG_SESSION_TYPE"})
        environment.remove(variable);
    environment.insert("DISPLAY", ":9999"); // not there
    QProcess program;
    program.setProcessEnvironment(environment);
    program.start(DORVA_PROGRAM, QStringList());
    ASSERT_TRUE(program.waitForFinished());
    EXPECT_EQ(program.exitCode(), 1);
    const QByteArray said = program.readAllStandardError();
    EXPECT_TRUE(said.startsWith("Planszownik nie może")) << said.toStdString();
    EXPECT_TRUE(said.contains("could not connect to display :9999")) << said.toStdString();
}

} // namespace
} // namespace dorva::test
