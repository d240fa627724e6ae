// Odd places and odd files.
#include "output/obraz_gry.h"
#include "pulpit.h"
#include "stage/archiwum.h"

namespace dorva::test {
namespace {

class Miejsca : public Pulpit {};

TEST_F(Miejsca, SpacesAndPolishLetters) {
    const std::string quote = POSIX ? "\"" : "'";
    const auto odd = root / (POSIX ? "Moje gry: zażółć gęślą jaźń" : "Moje gry - zażółć gęślą jaźń & %100^");
    fs::rename(base, odd);
    base = odd;
    start();
    chosen = root / ("Gra " + quote + "Łoś" + quote + ".dpa");
    cmdSaveArch_Click(e);
    cmdLoadArch_Click(e);
    chosen = root / "Gra łosia.xex";
    cmdCreate_Click(e);
    EXPECT_EQ(readFile(*chosen).size(), GRA_SIZE_BYTES);
    EXPECT_EQ(readFile(base / "PLIKI/TEST.XEX"), readFile(*chosen));
    EXPECT_EQ(started.size(), 1U);
    SelectEtapNR(e, 8);
    EXPECT_EQ(e.image, sampleEtap(9));
}

TEST_F(Miejsca, FilesLargerThanMemory) {
    start();
    const auto huge = root / "ogromny";
    writeFile(huge, {1});
    fs::resize_file(huge, std::uintmax_t{1} << 42U);
    chosen = huge;
    cmdLoad_Click(e);
    cmdLoadArch_Click(e);
    EXPECT_EQ(shown, std::vector<std::string>(2, "Niewłaściwy format pliku!"));
    writeFile(etap(2), sampleEtap(2));
    fs::resize_file(etap(2), std::uintmax_t{1} << 42U);
    SelectEtapNR(e, 1);
    EXPECT_EQ(e.image, sampleEtap(2));
    SelectEtapNR(e, 2);
    EXPECT_EQ(fs::file_size(base / "ETAPY/DETAP.2.kopia"), std::uintmax_t{1} << 42U);
    EXPECT_EQ(readFile(etap(2)), sampleEtap(2));
}

} // namespace
} // namespace dorva::test
