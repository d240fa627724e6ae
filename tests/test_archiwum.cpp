#include "desk.h"
#include "stage/archiwum.h"
#include "stage/zbior_etapow.h"

#include <algorithm>

namespace dorva::test {
namespace {

class Archive : public Desk {};

TEST_F(Archive, RoundTripRestoresEveryStageAndTheTitleLines) {
    Bajty lines(60, ' ');
    lines[0] = 0xA3; // Ł
    lines[40] = 'a';
    writeFile(base / "PLIKI/DP1.DTA", lines);
    start();
    chosen = root / "gra.dpa";
    cmdSaveArch_Click(e);
    EXPECT_EQ(shown, std::vector<std::string>{"Archiwum zostało pomyślnie zapisane"});
    const Bajty archive = readFile(*chosen);
    ASSERT_EQ(archive.size(), ARCHIWUM_SIZE_BYTES);
    EXPECT_TRUE(std::equal(lines.begin(), lines.end(), archive.begin()));
    EXPECT_EQ(archive[28921 + uklad::CEL_MASEK], 32);

    for (int number = 1; number <= ETAPY_COUNT; ++number)
        writeFile(etap(number), sampleEtap(33 - number));
    writeFile(base / "PLIKI/DP1.DTA", Bajty(60, 'Y'));
    SelectEtapNR(e, 6);
    cell(3, 3) = BOMBA;
    cmdLoadArch_Click(e);
    EXPECT_EQ(e.NumerEtapu, 7);
    EXPECT_EQ(e.okno.hscMonet, 7);
    EXPECT_EQ(e.okno.pola[TXT_AUTOR_GRY].tekst.znaki[0], '\xA3');
    for (int number = 1; number <= ETAPY_COUNT; ++number)
        EXPECT_EQ(readFile(etap(number)), sampleEtap(number)) << number;
    EXPECT_EQ(readFile(base / "PLIKI/DP1.DTA"), lines);
    EXPECT_EQ(shown.size(), 1U);

    answers = {true, true};
    cmdSaveArch_Click(e);
    EXPECT_EQ(readFile(*chosen), archive);
}

TEST_F(Archive, WrongLengthChangesNothing) {
    start();
    const auto before = e.OstatniaSciezka;
    chosen = root / "zle.dpa";
    cmdLoadArch_Click(e);
    EXPECT_TRUE(shown.empty()) << "a missing file gives no message";
    for (std::size_t size : {29851U, 29853U}) {
        writeFile(*chosen, Bajty(size, 1));
        cmdLoadArch_Click(e);
    }
    EXPECT_EQ(shown, std::vector<std::string>(2, "Niewłaściwy format pliku!"));
    EXPECT_EQ(e.OstatniaSciezka, before);
    EXPECT_EQ(readFile(etap(2)), sampleEtap(2));
}

TEST_F(Archive, SaveEndsSilentlyWithoutAllStagesOrTheTitleLines) {
    start();
    fs::remove(base / "PLIKI/DP1.DTA");
    fs::create_directory(base / "PLIKI/DP1.DTA");
    cmdSaveArch_Click(e);
    EXPECT_TRUE(dialogs.empty());
    fs::remove(base / "PLIKI/DP1.DTA");
    fs::remove(etap(20));
    writeFile(etap(21), Bajty(930, 1));
    chosen = root / "gra.dpa";
    cmdSaveArch_Click(e);
    EXPECT_TRUE(dialogs.empty());
    EXPECT_EQ(readFile(etap(20)).size(), 0U);
    EXPECT_TRUE(shown.empty());
}

TEST_F(Archive, LoadMayBreakOffOrRefuseAField) {
    start();
    writeFile(root / "x.dpa", sampleArchiwum());
    fs::remove(etap(20));
    fs::create_directory(etap(20));
    chosen = root / "x.dpa";
    SelectEtapNR(e, 6);
    cmdLoadArch_Click(e);
    EXPECT_EQ(readFile(etap(7)), sampleEtap(26));
    EXPECT_EQ(e.image, sampleEtap(7)) << "the editor never came to the archive's stage";
    EXPECT_EQ(e.okno.pola[TXT_AUTOR_GRY].tekst.znaki, std::string(20, 'A')) << "the title lines did";
    EXPECT_EQ(readFile(base / "PLIKI/DP1.DTA"), sampleLinie());

    fs::remove(etap(20));
    writeFile(root / "x.dpa", Bajty(ARCHIWUM_SIZE_BYTES, 7));
    cmdLoadArch_Click(e);
    EXPECT_EQ(readFile(etap(32)), Bajty(ETAP_SIZE_BYTES, 7));
    EXPECT_EQ(e.okno.hscMonet, 7);
    EXPECT_EQ(e.okno.optObiektyNR, 1) << "the last flag 7 is refused before the world";
}

TEST_F(Archive, SavedOverTheEditorsOwnFilesKeepsThem) {
    start();
    cell(3, 3) = BOMBA;
    chosen = etap(2);
    cmdSaveArch_Click(e);
    EXPECT_EQ(readFile(etap(2)).size(), ARCHIWUM_SIZE_BYTES);
    chosen = base / "PLIKI/DP1.DTA";
    cmdSave_Click(e);
    EXPECT_EQ(namesIn("ETAPY/KOPIE/DETAP.2").size(), 1U);
    EXPECT_EQ(namesIn("PLIKI/KOPIE/DP1.DTA").size(), 1U);
    chosen = root / "obcy";
    writeFile(*chosen, {1});
    cmdSave_Click(e);
    EXPECT_FALSE(fs::exists(root / "KOPIE")) << "any other file that the user chose is replaced without";
}

} // namespace
} // namespace dorva::test
