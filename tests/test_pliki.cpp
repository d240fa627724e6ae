#include "pulpit.h"

#include <sys/stat.h>

namespace dorva::test {
namespace {

class Pliki : public Pulpit {};

TEST_F(Pliki, WriteKeepsModeAndLinks) {
    const auto file = root / "plik", link = root / "dowiazanie";
    writeFile(file, {1, 2, 3});
    fs::permissions(file, fs::perms(0640));
    fs::create_symlink("plik", link);
    ASSERT_TRUE(writeWhole(SYSTEM_PLIKOW, link, Bajty{9}));
    EXPECT_TRUE(fs::is_symlink(link));
    EXPECT_EQ(readFile(file), Bajty{9});
    EXPECT_EQ(fs::status(file).permissions(), fs::perms(0640));
}

TEST_F(Pliki, WriteRefusesWhatCouldNotBeOpened) {
    fs::create_directory(root / "katalog");
    ASSERT_EQ(::mkfifo((root / "potok").c_str(), 0600), 0);
    fs::create_symlink("petla", root / "petla");
    for (const char* name : {"katalog", "potok", "petla", "brak/plik"})
        EXPECT_FALSE(writeWhole(SYSTEM_PLIKOW, root / name, Bajty{1})) << name;
    EXPECT_EQ(listNames(SYSTEM_PLIKOW, root, "").size(), 4U) << "no temporary file is left";
    EXPECT_TRUE(fs::is_fifo(root / "potok"));
}

TEST_F(Pliki, ReadNeverHangsAndCreatesTheMissing) {
    ASSERT_EQ(::mkfifo((root / "potok").c_str(), 0600), 0);
    EXPECT_FALSE(readFirst(SYSTEM_PLIKOW, root / "potok", 1));
    EXPECT_FALSE(readFirst(SYSTEM_PLIKOW, "/dev/zero", 1));
    EXPECT_FALSE(readFirst(SYSTEM_PLIKOW, root, 1));
    EXPECT_FALSE(readFirst(SYSTEM_PLIKOW, root / "nowy", 1));
    EXPECT_EQ(lengthOf(SYSTEM_PLIKOW, root / "nowy"), 0U);
}

int failAt = 0, steps = 0;

template <auto Real, class... Args> auto failing(Args... args) {
    if (++steps == failAt) {
        errno = ENOSPC;
        return decltype((*Real)(args...)){-1};
    }
    return (*Real)(args...);
}

int failingOpen(const char* path, int flags, ::mode_t mode) {
    return ++steps == failAt ? -1 : SYSTEM_PLIKOW.open(path, flags, mode);
}

TEST_F(Pliki, EveryFailedStepLeavesTheOldFileOrTheNew) {
    SystemPlikow system = SYSTEM_PLIKOW;
    system.open = failingOpen;
    system.write = [](int f, const void* b, std::size_t n) { return failing<::write>(f, b, n); };
    system.fsync = [](int f) { return failing<::fsync>(f); };
    system.rename = [](const char* a, const char* b) { return failing<::rename>(a, b); };
    system.link = [](const char* a, const char* b) { return failing<::link>(a, b); };
    const auto folder = root / "f";
    fs::create_directory(folder);
    int failures = 0;
    for (failAt = 1; failAt <= 12; ++failAt) {
        for (bool keep : {false, true}) {
            writeFile(folder / "plik", {1, 2, 3});
            steps = 0;
            const bool written = keep ? writeKeepingOld(system, folder / "plik", Bajty{9})
                                      : writeWhole(system, folder / "plik", Bajty{9});
            failures += written ? 0 : 1;
            EXPECT_EQ(readFile(folder / "plik"), (written ? Bajty{9} : Bajty{1, 2, 3})) << failAt;
            EXPECT_TRUE(listNames(SYSTEM_PLIKOW, folder, ".dp-tmp").empty());
            EXPECT_EQ(fs::exists(folder / "plik.kopia"), keep && written) << failAt;
            fs::remove(folder / "plik.kopia");
        }
    }
    EXPECT_GE(failures, 8);
}

TEST_F(Pliki, StartSweepsLeftovers) {
    writeFile(base / "ETAPY/dorva-999999999.dp-tmp", {1});
    start();
    EXPECT_EQ(namesIn("ETAPY").size(), 32U);
}

} // namespace
} // namespace dorva::test
