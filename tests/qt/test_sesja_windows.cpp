// Starting other programs, and the end of a session, on Windows.
#include "window_desk.h"

#include "qt/programy.h"
#include "qt/sesja.h"

#include <windows.h>

namespace dorva::test {
namespace {

class SessionWindows : public WindowDesk {
protected:
    void SetUp() override {
        WindowDesk::SetUp();
        fs::rename(base, root / "Moja łódź & spółka"); // what a user may call a folder
        base = root / "Moja łódź & spółka";
        fs::copy_file(DORVA_LAUNCHER, base / "PLIKI/DP3.BAT");
    }

    // Runs the launcher after a test build. Returns what the fake emulator has written in `folder`.
    std::string launchedIn(const fs::path& folder) {
        const fs::path note = folder / "call";
        fs::remove(note);
        click("cmdTest", {"Tak"});
        (void)QTest::qWaitFor([&] { return readFile(note).ends_with('\n'); }, 10000);
        return readFile(note);
    }
    static std::string readFile(const fs::path& path) {
        const Bajty bytes = test::readFile(path);
        return {bytes.begin(), bytes.end()};
    }
};

TEST_F(SessionWindows, TheLauncherTakesAnEmulatorOfItsFolderElseOneInThePathElseSaysThereIsNone) {
    open();
    const auto here = base.u8string();
    const std::string place = std::string(here.begin(), here.end()) + '\n';
    const fs::path elsewhere = root / "Programy (x86)";
    const fs::path beside = base / "PLIKI/emulator";
    for (const fs::path& emulator : {elsewhere / "atari800.exe", beside / "Altirra.exe"}) {
        fs::create_directory(emulator.parent_path());
        fs::copy_file(DORVA_EMULATOR, emulator);
    }
    const QString path = qEnvironmentVariable("PATH");
    ::SetEnvironmentVariableW(L"PATH", (elsewhere.native() + L';' + path.toStdWString()).c_str());
    EXPECT_EQ(launchedIn(beside), place + "/hardware:800xl /memsize:128K /nobasic /run PLIKI\\TEST.XEX\n");
    EXPECT_FALSE(fs::exists(elsewhere / "call"));
    fs::remove_all(beside);
    EXPECT_EQ(launchedIn(elsewhere), place + "-xe -nobasic -win-width 1008 -win-height 720 -run PLIKI\\TEST.XEX\n");
    fs::rename(elsewhere / "atari800.exe", elsewhere / "powershell.exe"); // what shows the message
    EXPECT_NE(launchedIn(elsewhere).find("Nie ma emulatora Atari. Pobierz"), std::string::npos);
    ::SetEnvironmentVariableW(L"PATH", path.toStdWString().c_str());
}

TEST_F(SessionWindows, ProgramsRunInTheCurrentFolder) {
    fs::current_path(root);
    const fs::path orn = base / "OBIEKTY/ORN.exe";
    fs::copy_file(DORVA_EMULATOR, orn);
    startProgram(orn, OknoProgramu::Normal);
    EXPECT_TRUE(QTest::qWaitFor([&] { return readFile(base / "OBIEKTY/call").ends_with('\n'); }, 10000));
    const auto here = root.u8string();
    EXPECT_EQ(readFile(base / "OBIEKTY/call"), std::string(here.begin(), here.end()) + "\n");
}

TEST_F(SessionWindows, TheEndOfASessionStoresTheWork) {
    open();
    storeAtSessionEnd(*okno);
    e.okno.imgPG[410].znak = KLUCZ;
    const auto window = reinterpret_cast<::HWND>(okno->winId());
    EXPECT_TRUE(::SendMessageW(window, WM_QUERYENDSESSION, 0, 0));
    EXPECT_EQ(test::readFile(etap(1))[uklad::PLANSZA + 410], 13);
    EXPECT_TRUE(okno->isVisible()) << "the end may still be called off";
    ::SendMessageW(window, WM_ENDSESSION, FALSE, 0);
}

} // namespace
} // namespace dorva::test
