#include "desk.h"

namespace dorva::test {
namespace {

class FileLayer : public Desk {};

TEST_F(FileLayer, WhatIsNotOnDiskIsNotWritten) {
    fs::current_path(root);
    ASSERT_TRUE(writeWhole(SYSTEM_CALLS, "plik", Bajty{1})) << "a name without a folder";
    SystemCalls unflushed = SYSTEM_CALLS, unclosed = SYSTEM_CALLS, unnamed = SYSTEM_CALLS;
    unflushed.flush = [](Handle) { return Result::Error; };
    unclosed.close = [](Handle file) { return SYSTEM_CALLS.close(file), Result::Error; };
    unnamed.rename = [](const fs::path&, const fs::path&) { return Result::Error; };
    for (const SystemCalls& broken : {unflushed, unclosed, unnamed})
        EXPECT_FALSE(writeWhole(broken, root / "plik", Bajty{2}));
    EXPECT_FALSE(writeWhole(SYSTEM_CALLS, root / "plik", Bajty{2}, [](const fs::path&) { return false; }));
    EXPECT_EQ(readFile(root / "plik"), Bajty{1});
    EXPECT_EQ(listNames(SYSTEM_CALLS, root, "").size(), 2U);
}

TEST_F(FileLayer, ListingThatBreaksOffGivesNoNames) {
    writeFile(root / "a.ND", {});
    writeFile(root / "b.ND", {});
    SystemCalls own = SYSTEM_CALLS;
    own.list = [](const fs::path& folder, std::vector<fs::path>& names) {
        return SYSTEM_CALLS.list(folder, names), Result::Error;
    };
    EXPECT_TRUE(listNames(own, root, ".ND").empty());
    EXPECT_EQ(listNames(SYSTEM_CALLS, root, ".ND").size(), 2U);
}

TEST_F(FileLayer, StartSweepsOldLeftoversAlone) {
    const auto leave = [](const fs::path& path, std::chrono::minutes age) {
        writeFile(path, {1});
        fs::last_write_time(path, fs::file_time_type::clock::now() - age);
    };
    leave(base / "ETAPY/dorva-1.dp-tmp", std::chrono::minutes(61));
    leave(base / "ETAPY/dorva-2.dp-tmp", std::chrono::minutes(59)); // another machine may still be writing it
    leave(base / "ETAPY/moje.dp-tmp", std::chrono::minutes(61));
    leave(base / "ETAPY/dorva-moje.dp-tmp", std::chrono::minutes(61));
    leave(base / "PLIKI/dorva-2.dp-tmp", std::chrono::minutes(61));
    start();
    EXPECT_EQ(namesIn("ETAPY").size(), 35U);
    EXPECT_EQ(namesIn("PLIKI"), (std::vector<std::string>{"DP1.DTA", "DP2.DTA"}));
}

} // namespace
} // namespace dorva::test
