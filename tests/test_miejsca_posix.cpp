// Odd places and odd files that only POSIX systems have: links, pipes, devices, trees that can't be written.
#include "output/obraz_gry.h"
#include "pulpit.h"
#include "stage/archiwum.h"
#include "tiles/kolory.h"

#include <atomic>
#include <fcntl.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>

namespace dorva::test {
namespace {

class MiejscaPosix : public Pulpit {
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
    void expectNoLeftovers() {
        for (const auto& entry : fs::recursive_directory_iterator(root))
            EXPECT_NE(entry.path().extension(), ".dp-tmp") << entry.path();
    }
};

TEST_F(MiejscaPosix, LinkedStageStaysLinked) {
    fs::create_directory(root / "dysk");
    fs::rename(etap(2), root / "dysk/drugi");
    fs::create_symlink("../../dysk/drugi", etap(2));
    writeFile(root / "dysk/dorva-999999999.dp-tmp", {1});
    fs::remove(etap(3));
    fs::create_symlink("../../dysk/trzeci", etap(3));
    fs::create_hard_link(etap(4), root / "dysk/czwarty");
    start();
    for (int index : {1, 2, 3}) {
        SelectEtapNR(e, index);
        cell(6, 6) = BOMBA;
    }
    SelectEtapNR(e, 4);
    EXPECT_TRUE(fs::is_symlink(etap(2)) && fs::is_symlink(etap(3)));
    for (const auto& file : {root / "dysk/drugi", root / "dysk/trzeci", etap(4)})
        EXPECT_EQ(readFile(file)[32 + 246], 14) << file;
    EXPECT_EQ(readFile(root / "dysk/czwarty"), sampleEtap(4)) << "a second name keeps the old stage";
    expectNoLeftovers();
}

TEST_F(MiejscaPosix, UnreadLinkedStageIsKeptBesideTheLink) {
    writeFile(root / "krotki", Bajty(100, 3));
    fs::remove(etap(2));
    fs::create_symlink("../../krotki", etap(2));
    start();
    SelectEtapNR(e, 1);
    SelectEtapNR(e, 2);
    EXPECT_EQ(readFile(base / "ETAPY/DETAP.2.kopia"), Bajty(100, 3));
    EXPECT_EQ(readFile(root / "krotki"), sampleEtap(1));
}

TEST_F(MiejscaPosix, ReadersAlwaysSeeAWholeStage) {
    start();
    cell(6, 6) = cell(6, 7) = ZIEMIA;
    SelectEtapNR(e, 1);
    const Bajty old = readFile(etap(1));
    const int held = ::open(etap(1).c_str(), O_RDONLY);
    std::atomic<bool> stop = false;
    std::atomic<int> torn = 0, seen = 0;
    std::thread reader([&] {
        while (!stop) {
            const auto bytes = readFirst(SYSTEM_PLIKOW, etap(1), ETAP_SIZE_BYTES);
            torn += bytes && lengthOf(SYSTEM_PLIKOW, etap(1)) == ETAP_SIZE_BYTES ? 0 : 1;
            torn += bytes && (*bytes)[32 + 246] == (*bytes)[32 + 247] ? 0 : 1;
            ++seen;
        }
    });
    for (int i = 0; i < 200 || seen < 200; ++i) {
        SelectEtapNR(e, 0);
        cell(6, 6) = cell(6, 7) = znak(i % 50);
        SelectEtapNR(e, 1);
    }
    stop = true;
    reader.join();
    EXPECT_EQ(torn, 0);
    Bajty bytes(ETAP_SIZE_BYTES);
    EXPECT_EQ(::read(held, bytes.data(), bytes.size()), static_cast<::ssize_t>(bytes.size()));
    EXPECT_EQ(bytes, old) << "an open file keeps what it was";
    ::close(held);
}

TEST_F(MiejscaPosix, PipesAndDevicesAreLeftAloneAndNeverHang) {
    const auto potok = [](const fs::path& path) {
        fs::remove(path);
        fs::create_directories(path.parent_path());
        ASSERT_EQ(::mkfifo(path.c_str(), 0666), 0);
    };
    start();
    potok(etap(2));
    for (const char* name : {"PLIKI/DP1.DTA", "PLIKI/DP2.DTA", "PLIKI/TEST.XEX", "PLIKI/PALETY/Bitwor.act",
                             "OBIEKTY/ORN_EXPORT/FNT01.ORN.ND.KOLORY"})
        potok(base / name);
    for (const char* device : {"/dev/zero", "/dev/full", "/dev/null"}) {
        chosen = device;
        useEverything();
    }
    potok(root / "potok");
    chosen = root / "potok";
    useEverything();
    e = Edytor{};
    attach(e);
    start();
    useEverything();
    EXPECT_TRUE(fs::is_fifo(etap(2)) && fs::is_fifo(base / "PLIKI/DP1.DTA") && fs::is_fifo(base / "PLIKI/TEST.XEX"));
    EXPECT_TRUE(fs::is_fifo(root / "potok") && fs::is_character_file("/dev/full"));
    EXPECT_EQ(readFile(etap(3)), sampleEtap(3));
    expectNoLeftovers();
}

// Runs `work` as an ordinary user where this is root: modes mean nothing to root.
int asOrdinaryUser(const std::function<void()>& work) {
    const ::pid_t child = ::fork();
    if (child == 0) {
        constexpr int NOBODY = 65534;
        if (::geteuid() == 0 && (::setgid(NOBODY) != 0 || ::setuid(NOBODY) != 0))
            ::_exit(2);
        work();
        ::_exit(::testing::Test::HasFailure() ? 1 : 0);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return status;
}

TEST_F(MiejscaPosix, ReadOnlyTreeAndReadOnlyFiles) {
    for (bool folders : {true, false}) {
        fs::permissions(root, fs::perms(0755));
        for (const auto& entry : fs::recursive_directory_iterator(root))
            fs::permissions(entry.path(), entry.is_directory() ? fs::perms(folders ? 0555 : 0777) : fs::perms(0444));
        const auto status = asOrdinaryUser([&] {
            start();
            cell(5, 5) = BOMBA;
            SelectEtapNR(e, 31);
            EXPECT_EQ(shown, std::vector<std::string>{"Nie można zapisać etapu."});
            EXPECT_EQ(e.NumerEtapu, 1);
            EXPECT_EQ(cell(5, 5), BOMBA);
            chosen = etap(3);
            useEverything();
            EXPECT_EQ(kod(cell(5, 6)), 206 * 3 % 50) << "what was loaded is on the board";
        });
        EXPECT_EQ(status, 0) << (folders ? "folders" : "files");
        for (const auto& entry : fs::recursive_directory_iterator(root))
            if (entry.is_directory())
                fs::permissions(entry.path(), fs::perms::owner_all);
        for (int number = 1; number <= ETAPY_COUNT; ++number)
            EXPECT_EQ(readFile(etap(number)), sampleEtap(number)) << number;
        EXPECT_EQ(namesIn("ETAPY").size(), 32U);
        expectNoLeftovers();
    }
}

TEST_F(MiejscaPosix, StagesThatMayBeWrittenInAReadOnlyFolder) {
    fs::permissions(root, fs::perms(0755));
    fs::permissions(base / "ETAPY", fs::perms(0555));
    for (int number = 1; number <= ETAPY_COUNT; ++number)
        fs::permissions(etap(number), fs::perms(0666));
    EXPECT_EQ(asOrdinaryUser([&] {
                  start();
                  cell(5, 5) = BOMBA;
                  SelectEtapNR(e, 1);
                  EXPECT_TRUE(shown.empty());
              }),
              0);
    EXPECT_EQ(readFile(etap(1))[uklad::PLANSZA + 205], 14);
    EXPECT_EQ(namesIn("ETAPY").size(), 32U);
}

TEST_F(MiejscaPosix, FullDisk) {
    const auto disk = base / "ETAPY";
    if (::mount("tmpfs", disk.c_str(), "tmpfs", 0, "size=400k") != 0)
        GTEST_SKIP() << "no file system may be mounted here; a full disk is among the injected failures";
    for (int number = 1; number <= ETAPY_COUNT; ++number)
        writeFile(etap(number), sampleEtap(number));
    start();
    std::ofstream(disk / "reszta", std::ios::binary) << std::string(1 << 20, 'x');
    cell(5, 5) = BOMBA;
    SelectEtapNR(e, 1);
    EXPECT_EQ(shown, std::vector<std::string>{"Nie można zapisać etapu."});
    EXPECT_EQ(readFile(etap(1)), sampleEtap(1));
    EXPECT_EQ(namesIn("ETAPY").size(), 33U);
    fs::remove(disk / "reszta");
    SelectEtapNR(e, 1);
    EXPECT_EQ(readFile(etap(1))[32 + 205], 14);
    EXPECT_EQ(::umount(disk.c_str()), 0);
}

} // namespace
} // namespace dorva::test
