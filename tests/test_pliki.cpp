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

// One call that fails, by name.
template <class Call> SystemPlikow without(Call call) {
    SystemPlikow system = SYSTEM_PLIKOW;
    call(system);
    return system;
}

TEST_F(Pliki, WhatIsNotOnDiskIsNotWritten) {
    writeFile(root / "plik", {1});
    const auto unflushed = without([](SystemPlikow& s) { s.fsync = [](int) { return -1; }; });
    const auto unclosed = without([](SystemPlikow& s) { s.close = [](int file) { return ::close(file), -1; }; });
    for (const SystemPlikow& system : {unflushed, unclosed})
        EXPECT_FALSE(writeWhole(system, root / "plik", Bajty{2}));
    EXPECT_EQ(readFile(root / "plik"), Bajty{1});
    EXPECT_EQ(listNames(SYSTEM_PLIKOW, root, "").size(), 2U);
}

TEST_F(Pliki, FileSystemsWithoutModeBitsOrHardLinks) {
    const auto system = without([](SystemPlikow& s) {
        s.fchmod = [](int, ::mode_t) { return errno = EPERM, -1; };
        s.link = [](const char*, const char*) { return errno = EPERM, -1; };
    });
    ::umask(022);
    writeFile(root / "plik", {1});
    ASSERT_TRUE(writeKeepingOld(system, root / "plik", Bajty{2}));
    EXPECT_EQ(readFile(root / "plik.kopia"), Bajty{1});
    fs::permissions(root / "plik", fs::perms(0600));
    EXPECT_FALSE(writeWhole(system, root / "plik", Bajty{3})) << "a private file never becomes a public one";
    EXPECT_EQ(readFile(root / "plik"), Bajty{2});
}

TEST_F(Pliki, ListingThatBreaksOffGivesNoNames) {
    writeFile(root / "a.ND", {});
    writeFile(root / "b.ND", {});
    static int entries = 0;
    const auto system = without([](SystemPlikow& s) {
        s.readdir = [](::DIR* folder) { return ++entries == 4 ? (errno = EIO, nullptr) : ::readdir(folder); };
    });
    EXPECT_TRUE(listNames(system, root, ".ND").empty());
    EXPECT_EQ(listNames(system, root, ".ND").size(), 2U);
}

TEST_F(Pliki, StartSweepsLeftovers) {
    writeFile(base / "ETAPY/dorva-999999999.dp-tmp", {1});
    start();
    EXPECT_EQ(namesIn("ETAPY").size(), 32U);
}

} // namespace
} // namespace dorva::test
