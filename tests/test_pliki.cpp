#include "awaria.h"
#include "pulpit.h"

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>

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

TEST_F(Pliki, StartSweepsLeftovers) {
    writeFile(base / "ETAPY/dorva-999999999.dp-tmp", {1});
    start();
    EXPECT_EQ(namesIn("ETAPY").size(), 32U);
}

} // namespace
} // namespace dorva::test
