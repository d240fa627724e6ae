// A delivered set is laid out over whatever stands there, and no one's work is lost.
#include "pulpit.h"
#include "system/system_calls.h"
#include "system/wzorzec.h"

#include <utility>

namespace dorva::test {
namespace {

class Wzorzec : public Pulpit {
protected:
    void deliver(const std::string& name, const Bajty& bytes) {
        fs::create_directories((wzorzec / name).parent_path());
        writeFile(wzorzec / name, bytes);
    }
    bool lay() { return refused().empty(); }
    std::vector<fs::path> refused() { return layOut(SYSTEM_CALLS, wzorzec, base); }

    fs::path wzorzec;

    void SetUp() override {
        Pulpit::SetUp();
        wzorzec = root / "wzorzec";
        deliver("ETAPY/DETAP.1", {1});
        deliver("ETAPY/DETAP.2", {2});
        deliver("NOWY/GŁĘBOKI/plik", {3});
        fs::remove(etap(1));
        writeFile(etap(2), {});
    }
};

TEST_F(Wzorzec, MissingAndEmptyFilesArePutIn) {
    ASSERT_TRUE(lay());
    EXPECT_EQ(readFile(etap(1)), Bajty{1});
    EXPECT_EQ(readFile(etap(2)), Bajty{2});
    EXPECT_EQ(readFile(base / "NOWY/GŁĘBOKI/plik"), Bajty{3});
    EXPECT_EQ(readFile(etap(3)), sampleEtap(3)) << "not delivered";
}

TEST_F(Wzorzec, ANewerVersionRenewsOnlyWhatNobodyChanged) {
    ASSERT_TRUE(lay());
    writeFile(etap(2), {7});
    for (Bajt version : {10, 20}) {
        deliver("ETAPY/DETAP.1", {version});
        deliver("ETAPY/DETAP.2", {version});
        ASSERT_TRUE(lay());
        EXPECT_EQ(readFile(etap(1)), Bajty{version});
        EXPECT_EQ(readFile(etap(2)), Bajty{7}) << "changed since: its owner's";
    }
    writeFile(etap(1), {1}); // what the first version laid
    writeFile(etap(2), {20});
    ASSERT_TRUE(lay());
    EXPECT_EQ(readFile(etap(1)), Bajty{20});
    deliver("ETAPY/DETAP.2", {30});
    ASSERT_TRUE(lay());
    EXPECT_EQ(readFile(etap(2)), Bajty{30}) << "put back as delivered, so no one's any more";
}

TEST_F(Wzorzec, WithoutItsRecordEverythingIsItsOwners) {
    ASSERT_TRUE(lay());
    fs::remove(base / ".ulozone");
    deliver("ETAPY/DETAP.1", {10});
    ASSERT_TRUE(lay());
    EXPECT_EQ(readFile(etap(1)), Bajty{1});
}

TEST_F(Wzorzec, WhatCannotBePutInIsTold) {
    fs::create_directory(base / "NOWY");
    writeFile(base / "NOWY/GŁĘBOKI", {5}); // a file where a folder is needed
    EXPECT_EQ(refused(), std::vector<fs::path>{"NOWY/GŁĘBOKI/plik"});
    EXPECT_EQ(readFile(etap(1)), Bajty{1}) << "the rest is laid";
    fs::remove(etap(1));
    fs::create_directory(etap(1));
    fs::remove_all(base / "NOWY");
    EXPECT_TRUE(lay()) << "a folder in a file's place is its owner's";
    fs::remove_all(wzorzec);
    EXPECT_TRUE(lay()) << "nothing was delivered";
    writeFile(wzorzec, {});
    EXPECT_FALSE(lay());
}

} // namespace
} // namespace dorva::test
