// Odd places and odd files that only POSIX systems have: links, pipes, devices, trees that can't be written.
#include "output/obraz_gry.h"
#include "pulpit.h"
#include "stage/archiwum.h"
#include "system/wzorzec.h"
#include "tiles/kolory.h"

#include <sys/stat.h>
#include <sys/wait.h>

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
    writeFile(root / "dysk/dorva-1.dp-tmp", {1});
    fs::last_write_time(root / "dysk/dorva-1.dp-tmp", fs::file_time_type::clock::now() - std::chrono::hours(2));
    fs::remove(etap(3));
    fs::create_symlink("../../dysk/trzeci", etap(3));
    fs::create_hard_link(etap(4), root / "dysk/czwarty");
    writeFile(root / "dysk/krotki", Bajty(100, 3));
    fs::remove(etap(5));
    fs::create_symlink("../../dysk/krotki", etap(5));
    start();
    for (int index : {1, 2, 3, 4}) {
        SelectEtapNR(e, index);
        cell(6, 6) = BOMBA;
    }
    SelectEtapNR(e, 5);
    EXPECT_TRUE(fs::is_symlink(etap(2)) && fs::is_symlink(etap(3)));
    EXPECT_EQ(readFile(base / "ETAPY/DETAP.5.kopia"), Bajty(100, 3)) << "kept beside the link";
    for (const auto& file : {root / "dysk/drugi", root / "dysk/trzeci", etap(4), root / "dysk/krotki"})
        EXPECT_EQ(readFile(file)[32 + 246], 14) << file;
    EXPECT_EQ(readFile(root / "dysk/czwarty"), sampleEtap(4)) << "a second name keeps the old stage";
    expectNoLeftovers();
    fs::create_symlink("brak", base / "trzeci");
    EXPECT_TRUE(layOut(SYSTEM_PLIKOW, root / "dysk", base).empty());
    EXPECT_FALSE(fs::exists(base / "trzeci")) << "laying out leaves links alone";
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
    restart();
    useEverything();
    EXPECT_TRUE(fs::is_fifo(etap(2)) && fs::is_fifo(base / "PLIKI/DP1.DTA") && fs::is_fifo(base / "PLIKI/TEST.XEX"));
    EXPECT_TRUE(fs::is_fifo(root / "potok") && fs::is_character_file("/dev/full"));
    EXPECT_EQ(readFile(etap(3)), sampleEtap(3));
    expectNoLeftovers();
}

constexpr int NOBODY = 65534;

// Runs `work` as an ordinary user where this is root: modes mean nothing to root.
int asOrdinaryUser(const std::function<void()>& work) {
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
            EXPECT_EQ(e.okno.optEtapNR, 0);
            EXPECT_TRUE(e.okno.chkOstatniEnabled);
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

TEST_F(MiejscaPosix, AStageThatMayBeWrittenInAReadOnlyFolder) {
    fs::permissions(root, fs::perms(0755));
    fs::permissions(base / "ETAPY", fs::perms(0555));
    fs::permissions(etap(1), fs::perms(0666));
    fs::permissions(base / "PLIKI", fs::perms(0777));
    const auto linie = base / "PLIKI/DP1.DTA";
    fs::permissions(linie, fs::perms(0660));
    const bool foreignGroup = ::chown(linie.c_str(), NOBODY, 0) == 0; // only root may
    const auto status = asOrdinaryUser([&] {
        start();
        cell(5, 5) = BOMBA;
        SelectEtapNR(e, 1);
        EXPECT_TRUE(writeAutorGry(e));
    });
    EXPECT_EQ(status, 0);
    EXPECT_EQ(fs::status(linie).permissions(), fs::perms(foreignGroup ? 0600 : 0660)) << "not for its new group";
    EXPECT_EQ(readFile(etap(1))[uklad::PLANSZA + 205], 14);
}

} // namespace
} // namespace dorva::test
