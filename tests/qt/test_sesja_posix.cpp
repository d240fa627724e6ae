// Programs beside the editor and the end of a session, on POSIX systems.
#include "stanowisko.h"

#include "qt/programy.h"
#include "qt/sesja.h"

#include <csignal>

namespace dorva::test {
namespace {

class SesjaPosix : public Stanowisko {};

TEST_F(SesjaPosix, ASignalToEndStoresTheWork) {
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

// The launcher of the working folder, with an emulator that notes how it was called.
TEST_F(SesjaPosix, TheLauncherRunsTheEmulatorBesideTheEditor) {
    open();
    fs::copy_file(DORVA_LAUNCHER, base / "PLIKI/DP3.BAT");
    const std::string emulator = "#!/bin/sh\n{ pwd; echo \"$@\"; } > \"" + (root / "wywolanie").string() + "\"\n";
    writeFile(root / "atari800", Bajty(emulator.begin(), emulator.end()));
    fs::permissions(root / "atari800", fs::perms::owner_all);
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", QByteArray::fromStdString(root.string()) + ":" + path);

    whenAskedPress("Tak");
    click("cmdTest");
    EXPECT_EQ(said, QStringList("Dorva Planszownik|Został utworzony plik XEX z testowanym etapem.\n"
                                "Uruchomić plik na emulatorze Atari?"));
    const std::string called =
        fs::canonical(base).string() + "\n-xe -nobasic -win-width 1008 -win-height 720 -run PLIKI/TEST.XEX\n";
    EXPECT_TRUE(QTest::qWaitFor([&] { return readFile(root / "wywolanie").size() == called.size(); }));
    EXPECT_EQ(readFile(root / "wywolanie"), Bajty(called.begin(), called.end()));
    qputenv("PATH", path);

    startProgram(base / "PLIKI/BRAK.BAT", OknoProgramu::Hidden); // nothing happens, nothing is created
    EXPECT_FALSE(fs::exists(base / "PLIKI/BRAK.BAT"));
}

} // namespace
} // namespace dorva::test
