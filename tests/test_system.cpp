// Files, copies of what is replaced, and laying what a package delivers.
#include "desk.h"
#include "system/kopie.h"
#include "system/wzorzec.h"

#include <chrono>
#include <set>

namespace dorva::test {
namespace {

using std::chrono::hours, std::chrono::minutes;

class FileLayer : public Desk {};

TEST_F(FileLayer, WhatIsNotOnDiskIsNotWritten) {
    fs::current_path(root);
    ASSERT_TRUE(writeWhole(SYSTEM_CALLS, "plik", Bajty{1})) << "a name without a folder";
    SystemCalls unflushed = SYSTEM_CALLS, unclosed = SYSTEM_CALLS;
    unflushed.flush = [](Handle) { return Result::Error; };
    unclosed.close = [](Handle file) { return SYSTEM_CALLS.close(file), Result::Error; };
    for (const SystemCalls& broken : {unflushed, unclosed})
        EXPECT_FALSE(writeWhole(broken, root / "plik", Bajty{2}));
    EXPECT_EQ(readFile(root / "plik"), Bajty{1});
}

TEST_F(FileLayer, StartSweepsOldLeftoversAlone) {
    for (auto [name, age] : {std::pair("ETAPY/dorva-1.dp-tmp", 61),
                             {"ETAPY/dorva-2.dp-tmp", 59}, // another machine may still be writing it
                             {"ETAPY/moje.dp-tmp", 61},
                             {"ETAPY/dorva-moje.dp-tmp", 61},
                             {"PLIKI/dorva-2.dp-tmp", 61}}) {
        writeFile(base / name, {1});
        fs::last_write_time(base / name, fs::file_time_type::clock::now() - minutes(age));
    }
    start();
    EXPECT_EQ(namesIn("ETAPY").size(), 35U);
    EXPECT_EQ(namesIn("PLIKI"), (std::vector<std::string>{"DP1.DTA", "DP2.DTA"}));
}

class Copies : public Desk {
protected:
    void SetUp() override {
        Desk::SetUp();
        file = root / "plik";
    }
    // What the copies hold, the newest first.
    [[nodiscard]] std::vector<Bajty> kept() const {
        std::vector<Bajty> contents;
        for (const Kopia& copy : listCopies(SYSTEM_CALLS, file))
            contents.push_back(readFile(copy.path));
        return contents;
    }
    fs::path file;
};

// One program is about to replace a file when another one writes to it.
TEST_F(Copies, WhatComesBetweenIsKept) {
    static fs::path replaced;
    static Bajt next;
    replaced = file;
    next = 7;
    SystemCalls own = SYSTEM_CALLS;
    own.flush = [](Handle handle) { // first called for the new content, then for a copy
        if (next < 9)
            writeFile(replaced, {next++});
        return SYSTEM_CALLS.flush(handle);
    };
    EXPECT_TRUE(writeKeeping(own, file, Bajty{1}));
    EXPECT_EQ(readFile(file), Bajty{1});
    EXPECT_EQ(kept(), (std::vector<Bajty>{{8}, {7}}));
}

TEST_F(Copies, WhatIsTooLongToBeKeptIsNotReplaced) {
    writeFile(file, {1});
    fs::resize_file(file, 100U << 20U);
    EXPECT_FALSE(writeKeeping(SYSTEM_CALLS, file, Bajty{2}));
    EXPECT_EQ(fs::file_size(file), 100U << 20U);
}

TEST_F(Copies, TheSameBytesNeedNoCopyAndLeaveTheFileAsItIs) {
    writeFile(file, {1});
    fs::last_write_time(file, fs::file_time_type::clock::now() - hours(48));
    const auto old = fs::last_write_time(file); // as exact as the system keeps it
    EXPECT_TRUE(writeKeeping(SYSTEM_CALLS, file, Bajty{1}));
    EXPECT_EQ(fs::last_write_time(file), old);
    writeFile(root / "pusty", {});
    EXPECT_TRUE(writeKeeping(SYSTEM_CALLS, root / "pusty", Bajty{1})) << "an empty file";
    EXPECT_FALSE(fs::exists(root / "KOPIE"));
    for (const Bajt content : {1, 1, 2, 1})
        EXPECT_TRUE(keepCopy(SYSTEM_CALLS, file, Bajty{content}, Time()));
    SystemCalls late = SYSTEM_CALLS;
    late.list = [](const fs::path&, std::vector<fs::path>&) { return Result::Ok; };
    EXPECT_TRUE(keepCopy(late, file, Bajty{3}, Time())) << "another program has made copies since the folder was read";
    EXPECT_EQ(kept(), (std::vector<Bajty>{{3}, {1}, {2}, {1}})) << "no copy replaces another";
}

TEST_F(Copies, HalfAListingCountsAsNone) {
    SystemCalls own = SYSTEM_CALLS;
    own.list = [](const fs::path&, std::vector<fs::path>& names) { return names = {"plik"}, Result::Error; };
    EXPECT_FALSE(keepCopy(own, file, Bajty{1}, Time()));
    EXPECT_TRUE(listNames(own, root, "").empty());
}

// Only the number decides what is newer, and names of another form don't count.
TEST_F(Copies, NamesAndNumbers) {
    const fs::path folder = root / "KOPIE/plik";
    fs::create_directories(folder);
    for (const char* name :
         {"plik.123 2026-11-25 18.32", "plik.0200 2026-11-25 18.32.dpa", "plik.0200 2026-11-25 18:32", "plik.0200",
          "plik.0x00 2026-11-25 18.32", "plik.99999999999 2026-11-25 18.32"})
        writeFile(folder / (POSIX ? name : std::string(name).substr(0, 20)), {1});
    for (auto [newest, next] :
         {std::pair("plik.0041 2099-01-01 00.00", "plik.0042 2024-10-0"), // 0041 is the newest so far
          {"plik.9999 2020-01-01 00.00", "plik.10000 2024-10-0"}}) {
        writeFile(folder / newest, {1});
        EXPECT_TRUE(keepCopy(SYSTEM_CALLS, file, Bajty{2}, Time(hours(24 * 20000))));
        EXPECT_TRUE(listCopies(SYSTEM_CALLS, file)[0].path.filename().string().starts_with(next));
    }
    EXPECT_TRUE(keepCopy(SYSTEM_CALLS, root / "gra", Bajty{3}, Time::min(), ".dpa"));
    const auto copies = listCopies(SYSTEM_CALLS, root / "gra", ".dpa");
    ASSERT_EQ(copies.size(), 1U);
    EXPECT_TRUE(copies[0].path.filename().string().starts_with("gra.0001 "));
    EXPECT_EQ(copies[0].path.extension(), ".dpa");
}

// The files of a package are put where the user works on them, and nobody's work is lost.
class LayingOut : public ::testing::Test {
protected:
    fs::path folder = makeFolder();

    LayingOut() {
        for (const char* name : {"ETAPY/DETAP.1", "ETAPY/DETAP.2", "PLIKI/DP1.DTA", "PLIKI/DP3.BAT",
                                 "PLIKI/PALETY/Bitwor.act", "OBIEKTY/ORN_EXPORT/FNT01.ORN.ND"})
            put(fs::path("wzorzec") / name, 1);
    }
    ~LayingOut() override { fs::remove_all(folder); }

    void put(const fs::path& name, Bajt byte) const {
        fs::create_directories((folder / name).parent_path());
        writeFile(folder / name, {byte});
    }
    // The files that were laid, as "name byte".
    std::set<std::string> laid() const {
        std::set<std::string> files;
        for (const auto& entry : fs::recursive_directory_iterator(folder))
            if (const auto name = entry.path().lexically_relative(folder).generic_string();
                entry.is_regular_file() && !name.starts_with("wzorzec"))
                files.insert(name + ' ' + std::to_string(readFile(entry.path()).at(0)));
        return files;
    }
};

TEST_F(LayingOut, WhatIsMissingIsLaidAndFoldersOnlyAsAWhole) {
    put("ETAPY.nowe/DETAP.3", 9); // left by an interrupted start
    put("PLIKI/DP1.DTA.nowe", 9);
    ASSERT_FALSE(layOut(folder));
    const std::set<std::string> all{"ETAPY/DETAP.1 1", "ETAPY/DETAP.2 1", "OBIEKTY/ORN_EXPORT/FNT01.ORN.ND 1",
                                    "PLIKI/DP1.DTA 1", "PLIKI/DP3.BAT 1", "PLIKI/PALETY/Bitwor.act 1"};
    EXPECT_EQ(laid(), all);

    put("ETAPY/DETAP.1", 7);
    put("PLIKI/DP1.DTA", 7);
    fs::remove(folder / "ETAPY/DETAP.2");
    fs::remove_all(folder / "OBIEKTY");
    ASSERT_FALSE(layOut(folder));
    EXPECT_EQ(laid(), (std::set<std::string>{"ETAPY/DETAP.1 7", "OBIEKTY/ORN_EXPORT/FNT01.ORN.ND 1", "PLIKI/DP1.DTA 7",
                                             "PLIKI/DP3.BAT 1", "PLIKI/PALETY/Bitwor.act 1"}));
}

TEST_F(LayingOut, AFailureIsReportedAndTheRestIsLaid) {
    put("PLIKI", 5); // a file where a folder is needed
    EXPECT_TRUE(layOut(folder));
    EXPECT_EQ(laid(), (std::set<std::string>{"ETAPY/DETAP.1 1", "ETAPY/DETAP.2 1", "OBIEKTY/ORN_EXPORT/FNT01.ORN.ND 1",
                                             "PLIKI 5"}));
}

TEST_F(LayingOut, ALinkIsLeftAloneWhereverItLeads) {
    std::error_code refused;
    fs::create_directory_symlink("brak", folder / "ETAPY", refused);
    if (refused)
        GTEST_SKIP() << "symbolic links aren't for everyone here";
    ASSERT_FALSE(layOut(folder));
    EXPECT_TRUE(fs::is_symlink(folder / "ETAPY"));
    fs::remove_all(folder / "wzorzec");
    fs::remove_all(folder / "OBIEKTY");
    EXPECT_FALSE(layOut(folder)) << "nothing was delivered";
}

} // namespace
} // namespace dorva::test
