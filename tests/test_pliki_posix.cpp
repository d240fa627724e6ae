// The file layer on systems with mode bits, symbolic links, pipes and devices.
#include "desk.h"
#include "output/obraz_gry.h"
#include "stage/archiwum.h"
#include "stage/zbior_etapow.h"
#include "tiles/kolory.h"

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace dorva::test {
namespace {

class FilesPosix : public Desk {
protected:
    // Every operation once.
    void useEverything() {
        for (int index : {1, 2, 0})
            SelectEtapNR(e, index);
        cmdSave_Click(e);
        cmdLoad_Click(e);
        cmdSaveArch_Click(e);
        cmdLoadArch_Click(e);
        cmdCreate_Click(e);
        cmdTest_Click(e);
        Form_QueryUnload(e);
    }
    static void makePipe(const fs::path& path) {
        fs::remove(path);
        fs::create_directories(path.parent_path());
        ASSERT_EQ(::mkfifo(path.c_str(), 0600), 0);
    }
    // Sets the mode bits of all that is in the root folder.
    void setModes(unsigned folders, unsigned files) {
        for (const auto& entry : fs::recursive_directory_iterator(root))
            fs::permissions(entry.path(), fs::perms(entry.is_directory() ? folders : files));
    }
    void expectNoLeftovers() {
        for (const auto& entry : fs::recursive_directory_iterator(root))
            EXPECT_NE(entry.path().extension(), ".dp-tmp") << entry.path();
    }
};

TEST_F(FilesPosix, WriteKeepsModeAndLinks) {
    const auto file = root / "plik", link = root / "dowiazanie";
    ::umask(022);
    writeFile(file, {1, 2, 3});
    fs::permissions(file, fs::perms(0640));
    fs::create_symlink("plik", link);
    SystemCalls unread = SYSTEM_CALLS, modeless = SYSTEM_CALLS;
    unread.readLink = [](const fs::path&, fs::path&) { return Result::Error; };
    EXPECT_FALSE(writeWhole(unread, link, Bajty{9}));
    ASSERT_TRUE(writeWhole(SYSTEM_CALLS, link, Bajty{9}));
    EXPECT_TRUE(fs::is_symlink(link));
    EXPECT_EQ(readFile(file), Bajty{9});
    EXPECT_EQ(fs::status(file).permissions(), fs::perms(0640));
    modeless.setMode = [](const fs::path&, fs::perms) { return Result::Error; };
    EXPECT_TRUE(writeWhole(modeless, file, Bajty{8})) << "a file system without mode bits";
    EXPECT_EQ(readFile(file), Bajty{8});
}

TEST_F(FilesPosix, WhatCouldNotBeOpenedIsRefused) {
    writeFile(root / "plik", {1});
    fs::create_directory(root / "katalog");
    fs::create_symlink("petla", root / "petla");
    for (const char* name : {"katalog", "petla", "brak/plik", "plik/pod plikiem"}) {
        EXPECT_FALSE(writeWhole(SYSTEM_CALLS, root / name, Bajty{1})) << name;
        EXPECT_FALSE(readOrCreate(SYSTEM_CALLS, root / name, 1)) << name;
        EXPECT_FALSE(isSameFile(SYSTEM_CALLS, root / "plik", root / name)) << name;
    }
    EXPECT_EQ(listNames(SYSTEM_CALLS, root, "").size(), 4U) << "no temporary file is left";
    EXPECT_FALSE(fileExists(SYSTEM_CALLS, root / "plik/pod plikiem"));
}

TEST_F(FilesPosix, LinkedStageStaysLinked) {
    fs::create_directory(root / "dysk");
    fs::rename(etap(2), root / "dysk/drugi");
    fs::create_symlink("../../dysk/drugi", etap(2));
    fs::remove(etap(3));
    fs::create_symlink("../../dysk/trzeci", etap(3));
    start();
    for (int index : {1, 2}) {
        SelectEtapNR(e, index);
        cell(6, 6) = BOMBA;
    }
    SelectEtapNR(e, 4);
    EXPECT_TRUE(fs::is_symlink(etap(2)) && fs::is_symlink(etap(3)));
    for (const char* name : {"drugi", "trzeci"})
        EXPECT_EQ(readFile(root / "dysk" / name)[uklad::PLANSZA + 246], 14) << name;
    EXPECT_EQ(namesIn("ETAPY/KOPIE"), (std::vector<std::string>{"DETAP.2"})) << "beside the link";
    run(cmdSave_Click, "dysk/drugi");
    EXPECT_EQ(namesIn("ETAPY/KOPIE/DETAP.2").size(), 2U) << "known as a stage by its other name, too";
    fs::create_hard_link(etap(9), root / "dziewiaty");
    run(cmdSave_Click, "dziewiaty");
    EXPECT_EQ(readFile(*chosen), e.image) << "what was chosen is written";
    EXPECT_EQ(readFile(etap(9)), sampleEtap(9)) << "and nothing else";
    expectNoLeftovers();
}

TEST_F(FilesPosix, PipesAndDevicesAreLeftAloneAndNeverHang) {
    start();
    for (const char* name : {"ETAPY/DETAP.2", "PLIKI/DP1.DTA", "PLIKI/DP2.DTA", "PLIKI/TEST.XEX",
                             "PLIKI/PALETY/Bitwor.act", "OBIEKTY/ORN_EXPORT/FNT01.ORN.ND.KOLORY"})
        makePipe(base / name);
    makePipe(root / "potok");
    for (const fs::path& name : {fs::path("/dev/zero"), fs::path("/dev/full"), fs::path("/dev/null"), root / "potok"}) {
        chosen = name;
        useEverything();
    }
    restart();
    useEverything();
    for (const fs::path& pipe : {etap(2), base / "PLIKI/DP1.DTA", base / "PLIKI/TEST.XEX", root / "potok"})
        EXPECT_TRUE(fs::is_fifo(pipe)) << pipe;
    EXPECT_TRUE(fs::is_character_file("/dev/full"));
    EXPECT_EQ(readFile(etap(3)), sampleEtap(3));
    expectNoLeftovers();
}

// Runs `work` in a child process that has no root rights, since root may open anything. Returns its status.
int asOrdinaryUser(const std::function<void()>& work) {
    constexpr int NOBODY = 65534;
    const ::pid_t child = ::fork();
    if (child == 0) {
        if (::geteuid() == 0 && (::setgid(NOBODY) != 0 || ::setuid(NOBODY) != 0))
            ::_exit(2);
        work();
        ::_exit(::testing::Test::HasFailure() ? 1 : 0);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return status;
}

TEST_F(FilesPosix, ReadOnlyTreeAndReadOnlyFiles) {
    fs::permissions(root, fs::perms(0755));
    for (unsigned folders : {0555, 0777}) {
        setModes(folders, 0444);
        const auto status = asOrdinaryUser([&] {
            start();
            cell(5, 5) = BOMBA;
            SelectEtapNR(e, 31);
            EXPECT_TRUE(messages().starts_with("Nie można zapisać etapu."));
            EXPECT_EQ(cell(5, 5), BOMBA);
            EXPECT_TRUE(e.okno.chkOstatniEnabled) << "this isn't stage 32";
            chosen = etap(3);
            useEverything();
        });
        EXPECT_EQ(status, 0) << std::oct << folders;
        setModes(0777, 0444);
        for (int number : {1, 2, 3, 32})
            EXPECT_EQ(readFile(etap(number)), sampleEtap(number)) << number;
        expectNoLeftovers();
    }
}

} // namespace
} // namespace dorva::test
