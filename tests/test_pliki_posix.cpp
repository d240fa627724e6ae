// The file layer where there are mode bits, symbolic links, pipes and devices.
#include "pulpit.h"
#include "system/system_plikow.h"

#include <chrono>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace dorva::test {
namespace {

constexpr ::uid_t OTHER = 12345;

class PlikiPosix : public Pulpit {};

TEST_F(PlikiPosix, WriteKeepsModeAndLinks) {
    const auto file = root / "plik", link = root / "dowiazanie";
    writeFile(file, {1, 2, 3});
    fs::permissions(file, fs::perms(0640));
    (void)::chown(file.c_str(), OTHER, OTHER); // only root may
    struct ::stat before {
    }, now{};
    ::stat(file.c_str(), &before);
    fs::create_symlink("plik", link);
    SystemPlikow unread = SYSTEM_PLIKOW;
    unread.readLink = [](const fs::path&, fs::path&) { return Wynik::Blad; };
    EXPECT_FALSE(writeWhole(unread, link, Bajty{9}));
    ASSERT_TRUE(writeWhole(SYSTEM_PLIKOW, link, Bajty{9}));
    EXPECT_TRUE(fs::is_symlink(link));
    EXPECT_EQ(readFile(file), Bajty{9});
    ::stat(file.c_str(), &now);
    EXPECT_EQ(std::tuple(now.st_mode, now.st_uid, now.st_gid),
              std::tuple(before.st_mode, before.st_uid, before.st_gid));
}

// Behind a link to another file system, where another program writes at the last moment.
TEST_F(PlikiPosix, WhatComesBetweenIsKeptBesideTheLinkAcrossFileSystems) {
    static fs::path plik;
    plik = root / "dysk/plik";
    fs::create_directory(root / "dysk");
    writeFile(plik, {1});
    fs::create_symlink("dysk/plik", root / "dowiazanie");
    SystemPlikow system = SYSTEM_PLIKOW;
    system.swap = [](const fs::path& one, const fs::path& other) {
        writeFile(plik, {7});
        return SYSTEM_PLIKOW.swap(one, other);
    };
    system.renameNew = [](const fs::path& from, const fs::path& to) {
        return from.parent_path() == to.parent_path() ? SYSTEM_PLIKOW.renameNew(from, to) : Wynik::Blad;
    };
    EXPECT_TRUE(writeKeepingUnknown(system, root / "dowiazanie", Bajty{2}, Bajty{1}));
    EXPECT_EQ(readFile(plik), Bajty{2});
    EXPECT_EQ(readFile(root / "dowiazanie.kopia"), Bajty{7});
    EXPECT_EQ(listNames(SYSTEM_PLIKOW, root / "dysk", "").size(), 1U);
}

// Another editor stores at the same instant, where names can't be exchanged.
TEST_F(PlikiPosix, WritersInAFolderTakeTurns) {
    static fs::path plik;
    static std::thread other;
    plik = root / "plik";
    writeFile(plik, {1});
    SystemPlikow system = SYSTEM_PLIKOW;
    system.swap = [](const fs::path&, const fs::path&) { return Wynik::Odmowa; };
    static const SystemPlikow others = system;
    system.rename = [](const fs::path& from, const fs::path& to) {
        other = std::thread([] { EXPECT_TRUE(writeKeepingUnknown(others, plik, Bajty{3}, Bajty{1})); });
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
        return SYSTEM_PLIKOW.rename(from, to);
    };
    EXPECT_TRUE(writeKeepingUnknown(system, plik, Bajty{2}, Bajty{1}));
    other.join();
    EXPECT_EQ(readFile(plik), Bajty{3});
    EXPECT_EQ(readFile(root / "plik.kopia"), Bajty{2});
}

// What a swap leaves under the temporary name is as old as the file was.
TEST_F(PlikiPosix, AnotherStartMaySweepTheOldContent) {
    writeFile(root / "plik", {1});
    SystemPlikow system = SYSTEM_PLIKOW;
    system.swap = [](const fs::path& one, const fs::path& other) {
        const Wynik wynik = SYSTEM_PLIKOW.swap(one, other);
        return fs::remove(one), wynik;
    };
    EXPECT_TRUE(writeKeepingUnknown(system, root / "plik", Bajty{2}, Bajty{1}));
    EXPECT_EQ(readFile(root / "plik"), Bajty{2});
}

TEST_F(PlikiPosix, WriteRefusesWhatCouldNotBeOpened) {
    fs::create_directory(root / "katalog");
    ASSERT_EQ(::mkfifo((root / "potok").c_str(), 0600), 0);
    fs::create_symlink("petla", root / "petla");
    for (const char* name : {"katalog", "potok", "petla", "brak/plik"}) {
        EXPECT_FALSE(writeWhole(SYSTEM_PLIKOW, root / name, Bajty{1})) << name;
        EXPECT_FALSE(readOrCreate(SYSTEM_PLIKOW, root / name, 1)) << name;
    }
    EXPECT_EQ(listNames(SYSTEM_PLIKOW, root, "").size(), 4U) << "no temporary file is left";
    EXPECT_TRUE(fs::is_fifo(root / "potok"));
}

TEST_F(PlikiPosix, FileSystemsWithoutModeBits) {
    SystemPlikow system = SYSTEM_PLIKOW;
    system.makeLike = [](Uchwyt file, const OpisPliku& other) {
        OpisPliku own;
        SYSTEM_PLIKOW.describe(file, own);
        return own.mode == other.mode ? Wynik::Ok : Wynik::Odmowa;
    };
    ::umask(022);
    writeFile(root / "plik", {1});
    fs::permissions(root / "plik", fs::perms(0600));
    ASSERT_TRUE(writeKeepingUnknown(system, root / "plik", Bajty{2}, {}));
    EXPECT_EQ(readFile(root / "plik.kopia"), Bajty{1});
    EXPECT_EQ(readFile(root / "plik"), Bajty{2});
    EXPECT_EQ(fs::status(root / "plik").permissions(), fs::perms(0600)) << "a private file never becomes a public one";
}

TEST_F(PlikiPosix, ExistenceAndSameness) {
    writeFile(root / "plik", {1});
    writeFile(root / "inny", {1});
    fs::create_symlink("plik", root / "link");
    EXPECT_TRUE(fileExists(SYSTEM_PLIKOW, root / "link"));
    EXPECT_FALSE(fileExists(SYSTEM_PLIKOW, root / "brak"));
    EXPECT_FALSE(fileExists(SYSTEM_PLIKOW, root / "plik" / "pod plikiem"));
    EXPECT_TRUE(isSameFile(SYSTEM_PLIKOW, root / "plik", root / "link"));
    for (const char* name : {"inny", "brak", "plik/pod plikiem", "/dev/null"})
        EXPECT_FALSE(isSameFile(SYSTEM_PLIKOW, root / "plik", root / name)) << name;
    fs::create_symlink("petla", root / "petla");
    EXPECT_TRUE(isSameFile(SYSTEM_PLIKOW, root / "plik", root / "petla")) << "can't be told";
}

TEST_F(PlikiPosix, StartSweepsOldLeftoversAlone) {
    const auto leave = [](const fs::path& path, std::chrono::minutes age) {
        writeFile(path, {1});
        fs::last_write_time(path, fs::file_time_type::clock::now() - age);
    };
    leave(base / "ETAPY/dorva-1.dp-tmp", std::chrono::minutes(61));
    leave(base / "ETAPY/dorva-2.dp-tmp", std::chrono::minutes(59)); // it may be at work, on another machine
    leave(base / "ETAPY/moje.dp-tmp", std::chrono::minutes(61));
    leave(base / "ETAPY/dorva-moje.dp-tmp", std::chrono::minutes(61));
    leave(base / "PLIKI/dorva-2.dp-tmp", std::chrono::minutes(61));
    leave(root / "dorva-1.dp-tmp", std::chrono::minutes(61));
    start();
    EXPECT_EQ(namesIn("ETAPY").size(), 35U);
    EXPECT_EQ(namesIn("PLIKI"), (std::vector<std::string>{"DP1.DTA", "DP2.DTA"}));
    chosen = root / "etap";
    cmdSave_Click(e);
    EXPECT_FALSE(fs::exists(root / "dorva-1.dp-tmp")) << "nor do any stay beside a chosen file";
}

} // namespace
} // namespace dorva::test
