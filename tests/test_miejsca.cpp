// Odd places.
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

} // namespace
} // namespace dorva::test
