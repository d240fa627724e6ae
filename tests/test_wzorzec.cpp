// The files of a package are put where the user works on them, and nobody's work is lost.
#include "desk.h"
#include "system/wzorzec.h"

#include <numeric>
#include <set>

namespace dorva::test {
namespace {

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
    // The files in the folder, sorted, as lines "name byte".
    std::string laid() const {
        std::set<std::string> files;
        for (const auto& entry : fs::recursive_directory_iterator(folder))
            if (const auto name = entry.path().lexically_relative(folder);
                *name.begin() != "wzorzec" && !entry.is_directory())
                files.insert(name.generic_string() + ' ' + std::to_string(readFile(entry.path()).at(0)) + '\n');
        return std::accumulate(files.begin(), files.end(), std::string());
    }
};

TEST_F(LayingOut, WhatIsMissingIsLaidAndFoldersOnlyAsAWhole) {
    put("ETAPY.nowe/DETAP.3", 9); // left by an interrupted start
    put("PLIKI/DP1.DTA.nowe", 9);
    ASSERT_FALSE(layOut(folder));
    EXPECT_EQ(laid(), "ETAPY/DETAP.1 1\nETAPY/DETAP.2 1\nOBIEKTY/ORN_EXPORT/FNT01.ORN.ND 1\nPLIKI/DP1.DTA 1\n"
                      "PLIKI/DP3.BAT 1\nPLIKI/PALETY/Bitwor.act 1\n");

    put("ETAPY/DETAP.1", 7);
    put("PLIKI/DP1.DTA", 7);
    fs::remove(folder / "ETAPY/DETAP.2");
    fs::remove(folder / "PLIKI/DP3.BAT");
    fs::remove_all(folder / "OBIEKTY");
    ASSERT_FALSE(layOut(folder));
    EXPECT_EQ(laid(), "ETAPY/DETAP.1 7\nOBIEKTY/ORN_EXPORT/FNT01.ORN.ND 1\nPLIKI/DP1.DTA 7\n"
                      "PLIKI/DP3.BAT 1\nPLIKI/PALETY/Bitwor.act 1\n");
}

TEST_F(LayingOut, AFailureIsReportedAndTheRestIsLaid) {
    put("PLIKI", 5); // a file where a folder is needed
    EXPECT_TRUE(layOut(folder));
    EXPECT_EQ(laid(), "ETAPY/DETAP.1 1\nETAPY/DETAP.2 1\nOBIEKTY/ORN_EXPORT/FNT01.ORN.ND 1\nPLIKI 5\n");
}

TEST_F(LayingOut, ALinkIsLeftAloneWhereverItLeads) {
    std::error_code refused;
    fs::create_directory_symlink("brak", folder / "ETAPY", refused);
    if (refused)
        GTEST_SKIP() << "symbolic links aren't for everyone here";
    ASSERT_FALSE(layOut(folder));
    EXPECT_TRUE(fs::is_symlink(folder / "ETAPY"));
    fs::remove_all(folder / "wzorzec");
    EXPECT_FALSE(layOut(folder)) << "nothing was delivered";
}

} // namespace
} // namespace dorva::test
